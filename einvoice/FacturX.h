#pragma once

#include "store/Result.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace vorn {

// Turns a rendered invoice into a Factur-X / ZUGFeRD file: PDF/A-3b with the
// invoice's XML embedded as "factur-x.xml" (an associated file of the
// document), XMP metadata naming the PDF/A part and the Factur-X profile, and
// the sRGB output intent. The PDF is edited through qpdf; the page content
// (with its embedded fonts) is kept as the renderer made it.
namespace FacturX {

inline constexpr const char* attachmentName = "factur-x.xml";

struct Metadata
{
    QString title;
    QString author;
    QDateTime created;
    QString conformanceLevel = QStringLiteral("EN 16931");
};

Result<QByteArray> make(const QByteArray& pdf, const QByteArray& xml, const Metadata& metadata);
// The sRGB profile the output intent carries.
QByteArray srgbProfile();

} // namespace FacturX
} // namespace vorn
