// libFuzzer target for the settings file, which the user (or another
// program) may have edited by hand: the property-list reader and every key
// read through its declared type.
//
// Invariant checked beyond "no crash": a file that loads can be written back
// and loads again with the same values.

#include "store/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <cstdint>
#include <cstdlib>

using namespace vorn;

namespace {

QString settingsPath()
{
    static const QString path =
        QDir::tempPath() +
        QStringLiteral("/vorn-fuzz-settings-%1.plist").arg(QCoreApplication::applicationPid());
    return path;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Values of the wrong type are logged; keep the runs quiet.
    QLoggingCategory::setFilterRules(QStringLiteral("vorn.*=false\nqt.*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString path = settingsPath();
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            abort();
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    QVariantMap loaded;
    {
        Settings settings(path);
        if (!settings.load())
            return 0;
        loaded = settings.dictionaryRepresentation();
        for (auto it = loaded.cbegin(); it != loaded.cend(); ++it) {
            (void)settings.boolValue(it.key());
            (void)settings.intValue(it.key());
            (void)settings.doubleValue(it.key());
            (void)settings.floatValue(it.key());
            (void)settings.stringValue(it.key());
            (void)settings.dataValue(it.key());
            (void)settings.dateValue(it.key());
        }
        settings.setValue(QStringLiteral("fuzzWrittenBack"), true);
        if (!settings.synchronize())
            abort();
    }
    Settings again(path);
    if (!again.load())
        abort();
    QVariantMap reread = again.dictionaryRepresentation();
    reread.remove(QStringLiteral("fuzzWrittenBack"));
    if (reread.keys() != loaded.keys())
        abort();
    return 0;
}
