// design-pack: turns a built-in design kept as plain files into the design
// file the application seeds from, at build time.
//
//   design-pack SOURCE_FOLDER OUT.design
//
// The folder holds invoice.html (the page), item.html (one item row),
// style.css, title.txt and uniqueID.txt (each a single line).

#include "documents/KeyedArchive.h"
#include "store/AtomicFile.h"
#include "store/Keys.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <optional>

namespace {

std::optional<QString> readText(const QString& path, bool singleLine)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QString text = QString::fromUtf8(file.readAll());
    return singleLine ? text.trimmed() : text;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    if (args.size() != 3) {
        err << "usage: design-pack SOURCE_FOLDER OUT.design\n";
        return 2;
    }
    const QString folder = args[1];
    QVariantMap design{{QStringLiteral("class"), QStringLiteral("Design")}, {vorn::key::isDefault, false}};
    const struct
    {
        const char* file;
        const char* key;
        bool singleLine;
    } parts[] = {{"invoice.html", "invoice", false},
                 {"item.html", "item", false},
                 {"style.css", "css", false},
                 {"title.txt", "title", true},
                 {"uniqueID.txt", "uniqueID", true}};
    for (const auto& part : parts) {
        const QString path = folder + QLatin1Char('/') + QLatin1String(part.file);
        const auto text = readText(path, part.singleLine);
        if (!text || text->isEmpty()) {
            err << "design-pack: missing or empty " << path << "\n";
            return 1;
        }
        design.insert(QLatin1String(part.key), *text);
    }
    const QByteArray data = vorn::KeyedArchive::archive(QVariantMap{{QStringLiteral("designDic"), design}});
    if (vorn::Status s = vorn::AtomicFile::write(args[2], data); !s) {
        err << "design-pack: " << s.error().fullText() << "\n";
        return 1;
    }
    return 0;
}
