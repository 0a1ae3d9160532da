#pragma once

#include "tests/support/TestEnvironment.h"
#include "tests/support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

namespace vorn::test {

// One run of vorn-cli: its exit code and both outputs.
struct CliRun
{
    int code = -1;
    QString out;
    QString err;
    QJsonObject object() const { return QJsonDocument::fromJson(out.toUtf8()).object(); }
    QJsonArray array() const { return QJsonDocument::fromJson(out.toUtf8()).array(); }
};

// Runs vorn-cli in the environment of the test (its scratch home).
inline CliRun runCli(const QStringList& args)
{
    QProcess p;
    p.start(QStringLiteral(VORN_CLI_PATH), args);
    EXPECT_TRUE(p.waitForFinished(60000)) << qPrintable(args.join(QLatin1Char(' ')));
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}

// A run that must succeed.
inline CliRun runOk(const QStringList& args)
{
    CliRun r = runCli(args);
    EXPECT_EQ(r.code, 0) << qPrintable(args.join(QLatin1Char(' '))) << ": " << qPrintable(r.err);
    return r;
}

// A refusal: the exit code, nothing on standard output and one line
// "vorn-cli: ..." (saying `says`) on standard error.
inline void expectRefusal(const CliRun& r, int code, const QString& says = {})
{
    EXPECT_EQ(r.code, code) << qPrintable(r.err);
    EXPECT_TRUE(r.out.isEmpty()) << qPrintable(r.out);
    EXPECT_TRUE(r.err.startsWith(QLatin1String("vorn-cli: ")) && r.err.count(QLatin1Char('\n')) == 1 &&
                r.err.endsWith(QLatin1Char('\n')) && r.err.contains(says))
        << qPrintable(r.err);
}

// A scratch home and runs of vorn-cli in it.
class CliFixture : public ::testing::Test
{
protected:
    static CliRun run(const QStringList& args) { return runCli(args); }
    static CliRun ok(const QStringList& args) { return runOk(args); }
    QString path(const QString& name) const { return QDir(env.home()).filePath(name); }
    void writeFile(const QString& name, const QByteArray& data) const { test::writeFile(path(name), data); }
    static QByteArray readFile(const QString& file) { return fileBytes(file); }

    TestEnvironment env;
};

} // namespace vorn::test
