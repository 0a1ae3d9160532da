#include "tests/support/TestEnvironment.h"

#include <QDir>

namespace vorn::test {

namespace {
const char* const variables[] = {"HOME",           "XDG_DATA_HOME",   "XDG_CONFIG_HOME",
                                 "XDG_CACHE_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_DIRS"};
}

TestEnvironment::TestEnvironment()
{
    for (const char* name : variables)
        m_saved[name] =
            qEnvironmentVariableIsSet(name) ? std::optional<QByteArray>(qgetenv(name)) : std::nullopt;
    const QString home = m_dir.path();
    qputenv("HOME", QFile::encodeName(home));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home + QStringLiteral("/.local/share")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home + QStringLiteral("/.config")));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home + QStringLiteral("/.cache")));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(home + QStringLiteral("/etc-xdg")));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(home + QStringLiteral("/usr-share")));
    QDir(home).mkpath(QStringLiteral("Documents"));
}

TestEnvironment::~TestEnvironment()
{
    for (const auto& [name, value] : m_saved) {
        if (value)
            qputenv(name.constData(), *value);
        else
            qunsetenv(name.constData());
    }
}

} // namespace vorn::test
