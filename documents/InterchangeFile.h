#pragma once

#include "store/ManagedObject.h"
#include "store/Result.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVariantMap>

namespace vorn {

// The files documents and designs travel in. All writes are atomic: the old
// file stays as it was when anything goes wrong.
//
// - Document file (".vorn"): a keyed archive whose root is {"vornDic": the
//   document's object dictionary, its items included}.
// - Design file (".design"): a keyed archive whose root is {"designDic": the
//   design's object dictionary with "class" = "Design"}.
// - Document XML (".xml"): the document's object dictionary as an XML
//   property list; database XML: an array of them.
//
// The readers also take a plain dictionary property list (binary or XML)
// in place of the archive.
class InterchangeFile
{
    Q_DECLARE_TR_FUNCTIONS(InterchangeFile)
public:
    static QString documentKey() { return QStringLiteral("vornDic"); }
    static QString designKey() { return QStringLiteral("designDic"); }

    static QByteArray documentFileData(const ManagedObject& document);
    static Status writeDocumentFile(const QString& path, const ManagedObject& document);
    static Status writeDocumentXml(const QString& path, const ManagedObject& document);
    static Status writeDatabaseXml(const QString& path, const QList<ManagedObject*>& documents);
    // The design dictionary with "class" = "Design".
    static QVariantMap designDictionary(const ManagedObject& design);
    static QByteArray designFileData(const QVariantMap& designDictionary);
    static Status writeDesignFile(const QString& path, const ManagedObject& design);

    // The dictionary stored under the document or design key, as the file
    // holds it ("class" included).
    static Result<QVariantMap> readDocumentFile(const QString& path);
    static Result<QVariantMap> readDesignFile(const QString& path);
    // The dictionary under key in the root of an archive or property list.
    static Result<QVariantMap> rootEntry(const QByteArray& data, const QString& key);
    // The whole file, refusing one too large to be ours before reading it.
    static Result<QByteArray> readFile(const QString& path);
    // An error about what is inside a file, told as "this file could not be
    // read" with the detail as its reason.
    static Error fileError(const QString& path, const Error& detail);
};

} // namespace vorn
