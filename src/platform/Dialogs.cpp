#include "platform/Dialogs.h"
