#pragma once

#include "store/FileLocations.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <map>
#include <optional>

namespace vorn::test {

// A scratch HOME with its own XDG folders for the lifetime of a test; the
// previous environment comes back afterwards. Tests never touch the real
// user's folders.
class TestEnvironment
{
public:
    TestEnvironment();
    ~TestEnvironment();
    TestEnvironment(const TestEnvironment&) = delete;
    TestEnvironment& operator=(const TestEnvironment&) = delete;

    QString home() const { return m_dir.path(); }
    FileLocations locations() const { return FileLocations::fromEnvironment(); }

private:
    QTemporaryDir m_dir;
    std::map<QByteArray, std::optional<QByteArray>> m_saved;
};

} // namespace vorn::test
