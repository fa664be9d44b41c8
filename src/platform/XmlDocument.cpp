#include "platform/XmlDocument.h"
