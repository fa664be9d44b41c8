#include "platform/ReportRecord.h"
