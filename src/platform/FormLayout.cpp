#include "platform/FormLayout.h"
