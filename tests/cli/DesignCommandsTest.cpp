#include "tests/cli/CliProcess.h"

using namespace vorn::test;

namespace {

const QStringList builtInTitles{"Classic",    "Modern", "Minimal",        "Elegant", "Compact",
                                "Letterhead", "Bold",   "Detailed Taxes", "Playful"};

class DesignCommandsTest : public CliFixture
{
protected:
    static QStringList titles()
    {
        QStringList result;
        for (const QJsonValue& v : ok({"design", "list"}).array())
            result << v.toObject().value("title").toString();
        return result;
    }
    static QJsonObject show(int index) { return ok({"design", "show", QString::number(index)}).object(); }
};

TEST_F(DesignCommandsTest, FirstRunListsTheNineBuiltInDesigns)
{
    const QJsonArray designs = ok({"design", "list"}).array();
    ASSERT_EQ(designs.size(), 9);
    for (int i = 0; i < designs.size(); ++i) {
        const QJsonObject d = designs[i].toObject();
        EXPECT_EQ(d.keys(), (QStringList{"index", "isDefault", "title", "uniqueID"}));
        EXPECT_EQ(d.value("index").toInt(), i);
        EXPECT_EQ(d.value("title").toString(), builtInTitles[i]);
        EXPECT_EQ(d.value("isDefault").toBool(), i == 0);
    }
    const QJsonObject minimal = show(2);
    EXPECT_EQ(minimal.value("title").toString(), "Minimal");
    EXPECT_TRUE(minimal.value("invoice").toString().contains("%ITEMSLIST%"));
    EXPECT_EQ(minimal.value("uniqueID"), designs[2].toObject().value("uniqueID"));
}

TEST_F(DesignCommandsTest, DeletingAndMakingDefault)
{
    expectRefusal(run({"design", "delete", "0"}), 1, "You can't delete the default design.");
    EXPECT_EQ(titles(), builtInTitles);
    ok({"design", "delete", "3"});
    QStringList expected = builtInTitles;
    expected.removeAt(3);
    EXPECT_EQ(titles(), expected);
    expectRefusal(run({"design", "delete", "8"}), 2);

    ok({"design", "default", "5"}); // Bold, now that Elegant is gone
    // Moving the mark and the row is the controller's; here the command reaches it.
    EXPECT_EQ(titles().value(0), "Bold");
    EXPECT_EQ(ok({"defaults", "read", "selectedDesign"}).out.trimmed(), "0");
}

TEST_F(DesignCommandsTest, ExportImportAddAndSetRefusingDamagedFiles)
{
    ok({"design", "export", "1", path("modern.design")});
    const QJsonObject entry = ok({"design", "import", path("modern.design")}).object();
    EXPECT_EQ(entry.value("index").toInt(), 9);
    EXPECT_EQ(entry.value("title").toString(), "Modern");
    EXPECT_FALSE(entry.value("isDefault").toBool());
    EXPECT_EQ(show(9).value("uniqueID"), show(1).value("uniqueID"));

    const QJsonObject fresh = ok({"design", "add"}).object();
    EXPECT_EQ(fresh.value("index").toInt(), 10);
    EXPECT_EQ(fresh.value("title").toString(), "New Design");
    EXPECT_FALSE(fresh.value("isDefault").toBool());

    writeFile("page.html", "<html><body>Grüße %TOTAL%</body></html>");
    ok({"design", "set", "10", "invoice=@" + path("page.html"), "title=Mine", "css=p{}"});
    const QJsonObject mine = show(10);
    EXPECT_EQ(mine.value("title").toString(), "Mine");
    EXPECT_EQ(mine.value("invoice").toString(), QString::fromUtf8("<html><body>Grüße %TOTAL%</body></html>"));
    EXPECT_EQ(mine.value("css").toString(), "p{}");
    expectRefusal(run({"design", "set", "10", "colour=red"}), 2);
    expectRefusal(run({"design", "set", "10", "item=@" + path("missing.html")}), 3);
    // A damaged or missing design file changes nothing.
    writeFile("bad.design", "bplist00 and then nothing sensible");
    for (const QString& file : {path("bad.design"), path("missing.design")})
        expectRefusal(run({"design", "import", file}), 3);
    EXPECT_EQ(titles().size(), 11);
}

} // namespace
