#include "platform/FormRegistry.h"
