#include "platform/SpecialFolders.h"
