#include "output/Logo.h"

#include "output/OutputLog.h"
#include "store/AtomicFile.h"
#include "store/Keys.h"
#include "store/Result.h"
#include "store/Settings.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace vorn {

QString Logo::notice()
{
    return tr(
        "<small><small>Please provide a 'Logo Image' in the Preferences<br />or remove the 'LOGO' substitute "
        "from the design/template.</small></small>");
}

QString Logo::element(const Settings& settings, const QString& logoPath)
{
    const QByteArray data = settings.dataValue(key::prefsLogo);
    if (data.isEmpty())
        return notice();
    // Decoding and encoding is done once per logo, not once per document.
    static QByteArray lastData;
    static QByteArray lastPng;
    if (data != lastData) {
        const QImage image = QImage::fromData(data);
        lastData = data;
        lastPng.clear();
        if (!image.isNull()) {
            QBuffer buffer(&lastPng);
            buffer.open(QIODevice::WriteOnly);
            image.save(&buffer, "PNG");
        }
    }
    if (lastPng.isEmpty()) {
        qCWarning(lcOutput)
            << "The logo image of the preferences cannot be read; the page shows the notice instead";
        return notice();
    }
    // The file always holds the current logo; one that already does is left alone.
    QFile existing(logoPath);
    const bool current = existing.size() == lastPng.size() && existing.open(QIODevice::ReadOnly) &&
                         existing.readAll() == lastPng;
    existing.close();
    if (!current) {
        QDir().mkpath(QFileInfo(logoPath).absolutePath());
        if (Status s = AtomicFile::write(logoPath, lastPng); !s)
            qCWarning(lcOutput) << "The logo could not be written:" << s.error().fullText();
    }
    return QStringLiteral("<img src=\"file://%1\" alt=\"logo\">").arg(logoPath);
}

} // namespace vorn
