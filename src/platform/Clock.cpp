#include "platform/Clock.h"
