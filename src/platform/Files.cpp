#include "platform/Files.h"
