#include "documents/InterchangeFile.h"

#include "documents/KeyedArchive.h"
#include "documents/Serialization.h"
#include "store/AtomicFile.h"
#include "store/PropertyList.h"

#include <QFile>
#include <QFileInfo>

namespace vorn {

QByteArray InterchangeFile::documentFileData(const ManagedObject& document)
{
    return KeyedArchive::archive(QVariantMap{{documentKey(), Serialization::toDictionary(document)}});
}

Status InterchangeFile::writeDocumentFile(const QString& path, const ManagedObject& document)
{
    return AtomicFile::write(path, documentFileData(document));
}

Status InterchangeFile::writeDocumentXml(const QString& path, const ManagedObject& document)
{
    return AtomicFile::write(path, PropertyList::toXml(Serialization::toDictionary(document)));
}

Status InterchangeFile::writeDatabaseXml(const QString& path, const QList<ManagedObject*>& documents)
{
    QVariantList list;
    list.reserve(documents.size());
    for (const ManagedObject* document : documents)
        list.append(Serialization::toDictionary(*document));
    return AtomicFile::write(path, PropertyList::toXml(list));
}

QVariantMap InterchangeFile::designDictionary(const ManagedObject& design)
{
    // The generic class name would make an importer create an item.
    QVariantMap dictionary = Serialization::toDictionary(design);
    dictionary.insert(QStringLiteral("class"), Entity::Design);
    return dictionary;
}

QByteArray InterchangeFile::designFileData(const QVariantMap& designDictionary)
{
    return KeyedArchive::archive(QVariantMap{{designKey(), designDictionary}});
}

Status InterchangeFile::writeDesignFile(const QString& path, const ManagedObject& design)
{
    return AtomicFile::write(path, designFileData(designDictionary(design)));
}

Result<QByteArray> InterchangeFile::readFile(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return Error::make(ErrorCode::FileNotFound, tr("The file “%1” could not be opened.").arg(name),
                           file.exists() ? file.errorString() : tr("There is no such file."));
    if (file.size() > PropertyList::maximumSize)
        return Error::make(ErrorCode::FileReadCorrupt,
                           tr("The file “%1” is too large to be a Vorn file.").arg(name));
    QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Error::make(ErrorCode::FileReadUnknown, tr("The file “%1” could not be read.").arg(name),
                           file.errorString());
    return data;
}

Result<QVariantMap> InterchangeFile::rootEntry(const QByteArray& data, const QString& key)
{
    auto root = KeyedArchive::unarchive(data);
    if (!root)
        return root.error();
    const QVariant entry = root.value().toMap().value(key);
    if (root.value().typeId() != QMetaType::QVariantMap || entry.typeId() != QMetaType::QVariantMap)
        return Error::make(ErrorCode::FileReadCorrupt, key == designKey()
                                                           ? tr("The file is not a Vorn design.")
                                                           : tr("The file is not a Vorn document."));
    return entry.toMap();
}

namespace {

Result<QVariantMap> readEntry(const QString& path, const QString& key)
{
    auto data = InterchangeFile::readFile(path);
    if (!data)
        return data.error();
    auto entry = InterchangeFile::rootEntry(data.value(), key);
    if (!entry)
        return InterchangeFile::fileError(path, entry.error());
    return entry;
}

} // namespace

Error InterchangeFile::fileError(const QString& path, const Error& detail)
{
    // Which file it was matters to the user more than where inside it broke.
    Error e = detail;
    e.reason = detail.message;
    e.message = tr("The file “%1” could not be read.").arg(QFileInfo(path).fileName());
    return e;
}

Result<QVariantMap> InterchangeFile::readDocumentFile(const QString& path)
{
    return readEntry(path, documentKey());
}

Result<QVariantMap> InterchangeFile::readDesignFile(const QString& path)
{
    return readEntry(path, designKey());
}

} // namespace vorn
