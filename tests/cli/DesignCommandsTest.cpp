#include "tests/support/TestEnvironment.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

using namespace vorn;

namespace {

const QString dataDir = QStringLiteral(VORN_TEST_DATA_DIR);
const QStringList builtInTitles{"Classic",    "Modern", "Minimal",        "Elegant",   "Compact",
                                "Letterhead", "Bold",   "Detailed Taxes", "Playful"};

struct CliRun
{
    int exitCode = -1;
    QString out;
    QString err;
};

class DesignCommandsTest : public ::testing::Test
{
protected:
    test::TestEnvironment env;

    CliRun run(const QStringList& args)
    {
        QProcess p;
        p.setProgram(QStringLiteral(VORN_CLI_PATH));
        p.setArguments(args);
        p.start();
        EXPECT_TRUE(p.waitForFinished(60000)) << qPrintable(args.join(' '));
        CliRun r;
        r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        r.out = QString::fromUtf8(p.readAllStandardOutput());
        r.err = QString::fromUtf8(p.readAllStandardError());
        return r;
    }
    QJsonArray list()
    {
        const CliRun r = run({"design", "list"});
        EXPECT_EQ(r.exitCode, 0) << qPrintable(r.err);
        return QJsonDocument::fromJson(r.out.toUtf8()).array();
    }
    QStringList titles()
    {
        QStringList result;
        for (const QJsonValue& v : list())
            result << v.toObject().value("title").toString();
        return result;
    }
    QString path(const QString& name) const { return env.home() + "/" + name; }
};

} // namespace

TEST_F(DesignCommandsTest, FirstRunListsTheNineBuiltInDesigns)
{
    const QJsonArray designs = list();
    ASSERT_EQ(designs.size(), 9);
    for (int i = 0; i < designs.size(); ++i) {
        const QJsonObject d = designs[i].toObject();
        EXPECT_EQ(d.keys(), (QStringList{"index", "isDefault", "title", "uniqueID"}));
        EXPECT_EQ(d.value("index").toInt(), i);
        EXPECT_EQ(d.value("title").toString(), builtInTitles[i]);
        EXPECT_EQ(d.value("isDefault").toBool(), i == 0);
    }
    const CliRun shown = run({"design", "show", "2"});
    ASSERT_EQ(shown.exitCode, 0) << qPrintable(shown.err);
    const QJsonObject minimal = QJsonDocument::fromJson(shown.out.toUtf8()).object();
    EXPECT_EQ(minimal.value("title").toString(), "Minimal");
    EXPECT_TRUE(minimal.value("invoice").toString().contains("%ITEMSLIST%"));
    EXPECT_EQ(minimal.value("uniqueID"), designs[2].toObject().value("uniqueID"));
}

TEST_F(DesignCommandsTest, DefaultDesignCannotBeDeletedOthersCan)
{
    const CliRun refused = run({"design", "delete", "0"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_EQ(refused.err, "vorn-cli: You can't delete the default design.\n");
    EXPECT_TRUE(refused.out.isEmpty());
    EXPECT_EQ(titles(), builtInTitles);

    const CliRun deleted = run({"design", "delete", "3"});
    ASSERT_EQ(deleted.exitCode, 0) << qPrintable(deleted.err);
    QStringList expected = builtInTitles;
    expected.removeAt(3);
    EXPECT_EQ(titles(), expected);
    EXPECT_EQ(run({"design", "delete", "9"}).exitCode, 2);
}

TEST_F(DesignCommandsTest, MakingADesignDefaultMovesItFirst)
{
    ASSERT_EQ(run({"design", "default", "6"}).exitCode, 0);
    const QJsonArray designs = list();
    EXPECT_EQ(designs[0].toObject().value("title").toString(), "Bold");
    int defaults = 0;
    for (const QJsonValue& d : designs)
        defaults += d.toObject().value("isDefault").toBool() ? 1 : 0;
    EXPECT_EQ(defaults, 1);
    EXPECT_EQ(run({"defaults", "read", "selectedDesign"}).out.trimmed(), "0");
}

TEST_F(DesignCommandsTest, ExportImportAddAndSet)
{
    const CliRun exported = run({"design", "export", "1", path("modern.design")});
    ASSERT_EQ(exported.exitCode, 0) << qPrintable(exported.err);
    const CliRun imported = run({"design", "import", path("modern.design")});
    ASSERT_EQ(imported.exitCode, 0) << qPrintable(imported.err);
    const QJsonObject entry = QJsonDocument::fromJson(imported.out.toUtf8()).object();
    EXPECT_EQ(entry.value("index").toInt(), 9);
    EXPECT_EQ(entry.value("title").toString(), "Modern");
    EXPECT_FALSE(entry.value("isDefault").toBool());
    EXPECT_EQ(entry.value("uniqueID"), list()[1].toObject().value("uniqueID"));
    const QJsonObject original = QJsonDocument::fromJson(run({"design", "show", "1"}).out.toUtf8()).object();
    const QJsonObject copy = QJsonDocument::fromJson(run({"design", "show", "9"}).out.toUtf8()).object();
    for (const char* key : {"invoice", "item", "css", "title", "uniqueID"})
        EXPECT_EQ(copy.value(key), original.value(key)) << key;

    const CliRun added = run({"design", "add"});
    ASSERT_EQ(added.exitCode, 0) << qPrintable(added.err);
    const QJsonObject fresh = QJsonDocument::fromJson(added.out.toUtf8()).object();
    EXPECT_EQ(fresh.value("index").toInt(), 10);
    EXPECT_EQ(fresh.value("title").toString(), "New Design");
    EXPECT_FALSE(fresh.value("isDefault").toBool());

    QFile page(path("page.html"));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write("<html><body>Grüße %TOTAL%</body></html>");
    page.close();
    const CliRun set = run({"design", "set", "10", "invoice=@" + path("page.html"), "title=Mine", "css=p{}"});
    ASSERT_EQ(set.exitCode, 0) << qPrintable(set.err);
    const QJsonObject mine = QJsonDocument::fromJson(run({"design", "show", "10"}).out.toUtf8()).object();
    EXPECT_EQ(mine.value("title").toString(), "Mine");
    EXPECT_EQ(mine.value("invoice").toString(), QString::fromUtf8("<html><body>Grüße %TOTAL%</body></html>"));
    EXPECT_EQ(mine.value("css").toString(), "p{}");
    EXPECT_EQ(run({"design", "set", "10", "colour=red"}).exitCode, 2);
    EXPECT_EQ(run({"design", "set", "10", "item=@" + path("missing.html")}).exitCode, 3);
    EXPECT_EQ(titles().size(), 11);
}

TEST_F(DesignCommandsTest, DamagedDesignFileChangesNothing)
{
    QFile bad(path("bad.design"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("bplist00 and then nothing sensible");
    bad.close();
    for (const QString& file :
         {path("bad.design"), path("missing.design"), dataDir + "/python-document.vorn"}) {
        const CliRun r = run({"design", "import", file});
        EXPECT_EQ(r.exitCode, 3) << qPrintable(file);
        EXPECT_TRUE(r.err.startsWith("vorn-cli: ")) << qPrintable(r.err);
        EXPECT_EQ(r.err.count('\n'), 1) << qPrintable(r.err);
    }
    EXPECT_EQ(titles(), builtInTitles);
}
