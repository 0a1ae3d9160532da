#include "store/FileLocations.h"

#include <QStandardPaths>

namespace vorn {

FileLocations FileLocations::fromEnvironment()
{
    const QString domain = QLatin1Char('/') + QLatin1String(applicationDomain);
    FileLocations l;
    l.filesDirectory = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + domain;
    l.cachesDirectory = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + domain;
    l.settingsDirectory = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + domain;
    l.documentsDirectory = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return l;
}

} // namespace vorn
