#include "documents/DocumentsLog.h"

Q_LOGGING_CATEGORY(lcDocuments, "vorn.documents", QtInfoMsg)
