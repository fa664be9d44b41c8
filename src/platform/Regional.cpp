#include "platform/Regional.h"
