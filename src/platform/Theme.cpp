#include "platform/Theme.h"
