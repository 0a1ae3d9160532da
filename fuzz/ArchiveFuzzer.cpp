// libFuzzer target for everything that reads document and design files from
// strangers: the property-list reader (binary and XML), the keyed-archive
// decoder and the object dictionaries built from what they return.
//
// Invariant checked beyond "no crash": whatever is accepted and inserted
// writes back into a document file that reads and inserts again.

#include "documents/InterchangeFile.h"
#include "documents/KeyedArchive.h"
#include "documents/Serialization.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"

#include <QLoggingCategory>
#include <QTimeZone>

#include <cstdint>
#include <cstdlib>

using namespace vorn;

namespace {

void insertAndWriteBack(const QVariantMap& entry, const QString& key, const QString& entity)
{
    static const FixedClock clock(QDateTime(QDate(2026, 3, 1), QTime(10, 0), QTimeZone::utc()));
    ObjectContext context(nullptr, clock);
    QVariantMap dictionary = entry;
    dictionary.insert(QStringLiteral("class"), entity);
    auto created = Serialization::createManagedObjectFromDictionary(dictionary, context);
    if (!created)
        return;
    QVariantMap written = Serialization::toDictionary(*created.value());
    written.insert(QStringLiteral("class"), entity);
    auto again = InterchangeFile::rootEntry(KeyedArchive::archive(QVariantMap{{key, written}}), key);
    if (!again)
        abort();
    ObjectContext second(nullptr, clock);
    QVariantMap reread = again.value();
    reread.insert(QStringLiteral("class"), entity);
    if (!Serialization::createManagedObjectFromDictionary(reread, second))
        abort();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Skipped unknown keys are logged at debug level; keep the runs quiet.
    QLoggingCategory::setFilterRules(QStringLiteral("vorn.*=false\nqt.*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    (void)PropertyList::read(bytes);
    if (auto document = InterchangeFile::rootEntry(bytes, InterchangeFile::documentKey()))
        insertAndWriteBack(document.value(), InterchangeFile::documentKey(), Entity::Invoice);
    if (auto design = InterchangeFile::rootEntry(bytes, InterchangeFile::designKey()))
        insertAndWriteBack(design.value(), InterchangeFile::designKey(), Entity::Design);
    return 0;
}
