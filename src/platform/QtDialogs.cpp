#include "platform/QtDialogs.h"
