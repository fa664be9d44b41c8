#include "platform/ReportGrid.h"
