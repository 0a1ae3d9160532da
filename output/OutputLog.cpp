#include "output/OutputLog.h"

Q_LOGGING_CATEGORY(lcOutput, "vorn.output", QtInfoMsg)
