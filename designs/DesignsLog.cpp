#include "designs/DesignsLog.h"

Q_LOGGING_CATEGORY(lcDesigns, "vorn.designs", QtInfoMsg)
