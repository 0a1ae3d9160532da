// libFuzzer target for contacts from strangers: the vCard reader (every
// version, folding, escapes, quoted-printable, character sets).
//
// Invariant checked beyond "no crash": every contact read keeps within the
// reader's limits and knows where it came from.

#include "invoicing/VCardReader.h"

#include <QLoggingCategory>

#include <cstdint>
#include <cstdlib>

using namespace vorn;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Cards that cannot be read are named in the log; keep the runs quiet.
    QLoggingCategory::setFilterRules(QStringLiteral("vorn.*=false\nqt.*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    const VCardReadResult result = VCardReader::parse(bytes, QStringLiteral("fuzz.vcf"));
    for (const Contact& contact : result.contacts) {
        if (contact.sourceFile != QStringLiteral("fuzz.vcf") || contact.indexInFile < 0)
            abort();
        (void)contact.displayName();
        (void)contact.primaryAddress();
    }
    return 0;
}
