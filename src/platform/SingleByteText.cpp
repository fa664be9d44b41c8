#include "platform/SingleByteText.h"
