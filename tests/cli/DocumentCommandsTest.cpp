#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

using namespace vorn::test;

namespace {

struct CliRun
{
    int code = -1;
    QString out;
    QString err;
    QJsonObject object() const { return QJsonDocument::fromJson(out.toUtf8()).object(); }
    QJsonArray array() const { return QJsonDocument::fromJson(out.toUtf8()).array(); }
};

// The document commands of vorn-cli, run as a program in a scratch home.
class DocumentCommandsTest : public ::testing::Test
{
protected:
    CliRun run(const QStringList& args)
    {
        QProcess p;
        p.setProgram(QStringLiteral(VORN_CLI_PATH));
        p.setArguments(args);
        p.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
        p.start();
        EXPECT_TRUE(p.waitForFinished(30000)) << qPrintable(args.join(QLatin1Char(' ')));
        CliRun r;
        r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        r.out = QString::fromUtf8(p.readAllStandardOutput());
        r.err = QString::fromUtf8(p.readAllStandardError());
        return r;
    }
    // Runs a command that must succeed and answers its JSON object.
    QJsonObject ok(const QStringList& args)
    {
        const CliRun r = run(args);
        EXPECT_EQ(r.code, 0) << qPrintable(args.join(QLatin1Char(' '))) << ": " << qPrintable(r.err);
        return r.object();
    }
    static QStringList titles(const QJsonObject& doc)
    {
        QStringList list;
        for (const QJsonValue& v : doc.value(QStringLiteral("items")).toArray())
            list << v.toObject().value(QStringLiteral("title")).toString();
        return list;
    }
    void setting(const QString& key, const QString& value, const QString& type = QStringLiteral("string"))
    {
        ASSERT_EQ(run({QStringLiteral("defaults"), QStringLiteral("write"), key, value,
                       QStringLiteral("--type"), type})
                      .code,
                  0);
    }

    TestEnvironment env;
};

double number(const QJsonObject& o, const char* key)
{
    return o.value(QLatin1String(key)).toDouble();
}

TEST_F(DocumentCommandsTest, ItemsAddUpMoveAndKeepTheirOrder)
{
    const QJsonObject doc = ok({"new", "invoice"});
    EXPECT_EQ(doc.value("kind").toInt(), 1);
    EXPECT_TRUE(doc.value("items").toArray().isEmpty());
    const QString id = doc.value("uniqueID").toString();

    ok({"item", "add", id, "title=A", "baseAmount=10", "unitCount=3", "tax1=0"});
    ok({"item", "add", id, "title=B", "baseAmount=2.5 EUR", "unitCount=4", "tax1=true"});
    ok({"item", "add", "#1", "title=C", "baseAmount=abc"});
    ok({"item", "add", "#1", "title=D", "baseAmount=1"});
    QJsonObject shown = ok({"item", "add", "#1", "title=E", "baseAmount=1", "tax1=0"});
    EXPECT_EQ(titles(shown), (QStringList{"A", "B", "C", "D", "E"}));
    // 30 + 10 + 7 % of 10 + 0 + 1 (D carries the default tax) + 1
    EXPECT_FLOAT_EQ(float(number(shown, "subAmount")), 42.0f);
    EXPECT_FLOAT_EQ(float(number(shown, "tax1Amount")), 0.77f);

    shown = ok({"item", "move", id, "1,2", "4"});
    EXPECT_EQ(titles(shown), (QStringList{"A", "D", "B", "C", "E"}));
    // A new run reads the order back from the store.
    EXPECT_EQ(titles(ok({"show", id})), (QStringList{"A", "D", "B", "C", "E"}));

    shown = ok({"item", "edit", id, "0", "unitCount=1", "tax1=1"});
    EXPECT_FLOAT_EQ(float(number(shown, "subAmount")), 22.0f);
    shown = ok({"item", "delete", id, "4"});
    EXPECT_EQ(titles(shown), (QStringList{"A", "D", "B", "C"}));

    // Remembered once per title and price.
    ok({"item", "add", id, "title=A", "baseAmount=10.0"});
    const CliRun recent = run({"item", "recent"});
    ASSERT_EQ(recent.code, 0);
    EXPECT_EQ(recent.array().size(), 5);
}

TEST_F(DocumentCommandsTest, TheSentLockRefusesWithTheAlertText)
{
    const QString id = ok({"new", "invoice"}).value("uniqueID").toString();
    ok({"item", "add", id, "title=A", "baseAmount=10"});
    ok({"set", id, "status=1"});

    const QString locked =
        QStringLiteral("The selected invoice is marked as already sent. If you really need to make changes, "
                       "please set its status "
                       "back to 'Created' first. Then you will also be able to resend the modified invoice.");
    const QList<QStringList> refused = {
        {"shipping", id, "title=Post", "amount=5"},
        {"shipping", id, "--off"},
        {"discount", id, "fixed", "5"},
        {"discount", id, "--off"},
        {"item", "delete", id, "0"},
        {"item", "edit", id, "0", "title=X"},
        {"item", "move", id, "0", "1"},
        {"set", id, "shippingAmount=3"},
        {"set", id, "notes=fine", "discountAmount=1"},
    };
    for (const QStringList& args : refused) {
        const CliRun r = run(args);
        EXPECT_EQ(r.code, 1) << qPrintable(args.join(' '));
        EXPECT_EQ(r.err.trimmed(), "vorn-cli: " + locked) << qPrintable(args.join(' '));
        EXPECT_TRUE(r.out.isEmpty());
    }
    const QJsonObject doc = ok({"show", id});
    EXPECT_EQ(titles(doc), QStringList{"A"});
    EXPECT_FALSE(doc.value("isShippingEnabled").toBool());
    EXPECT_EQ(doc.value("notes").toString(), QString());

    // Fields outside the lock stay editable, and a sent invoice may still get lines.
    EXPECT_EQ(ok({"set", id, "notes=called", "paidAmount=2"}).value("notes").toString(), "called");
    EXPECT_EQ(titles(ok({"item", "add", id, "title=B"})), (QStringList{"A", "B"}));

    const CliRun deleted = run({"delete", id});
    EXPECT_EQ(deleted.code, 1);
    EXPECT_TRUE(deleted.err.contains("If you really need to delete it")) << qPrintable(deleted.err);
    ok({"set", id, "status=0"});
    EXPECT_EQ(run({"delete", id}).code, 0);
    EXPECT_EQ(run({"show", id}).code, 2);
}

TEST_F(DocumentCommandsTest, ListFiltersAndTotals)
{
    const QString a = ok({"new", "invoice"}).value("uniqueID").toString();
    const QString b = ok({"new", "invoice"}).value("uniqueID").toString();
    const QString q = ok({"new", "quote"}).value("uniqueID").toString();
    ok({"item", "add", a, "title=x", "baseAmount=100", "tax1=0"});
    ok({"item", "add", b, "title=y", "baseAmount=40", "tax1=0"});
    ok({"set", a, "status=3"});
    // Sent, and due yesterday: overdue after the recomputation.
    ok({"set", b, "status=1", "due=2001-01-01T00:00:00Z"});

    struct Case
    {
        const char* tag;
        int documents;
        double total, paid, due;
        int invoices, quotes, forNumber;
    };
    const Case cases[] = {{"0", 3, 140, 100, 40, 2, 1, 2}, {"2", 1, 40, 0, 40, 1, 0, 1},
                          {"3", 1, 100, 100, 0, 1, 0, 1},  {"4", 1, 0, 0, 0, 0, 1, 0},
                          {"1", 0, 0, 0, 0, 0, 0, 0},      {"5", 3, 140, 100, 40, 2, 1, 2},
                          {"12", 0, 0, 0, 0, 0, 0, 0}};
    for (const Case& c : cases) {
        const QJsonObject list = ok({"list", "--filter", c.tag});
        const QJsonObject totals = list.value("totals").toObject();
        EXPECT_EQ(list.value("documents").toArray().size(), c.documents) << c.tag;
        EXPECT_DOUBLE_EQ(number(totals, "totalAmount"), c.total) << c.tag;
        EXPECT_DOUBLE_EQ(number(totals, "paidAmount"), c.paid) << c.tag;
        EXPECT_DOUBLE_EQ(number(totals, "dueAmount"), c.due) << c.tag;
        EXPECT_EQ(totals.value("invoiceCount").toInt(), c.invoices) << c.tag;
        EXPECT_EQ(totals.value("quoteCount").toInt(), c.quotes) << c.tag;
        EXPECT_EQ(totals.value("invoiceCountForNumber").toInt(), c.forNumber) << c.tag;
        for (const QJsonValue& d : list.value("documents").toArray())
            EXPECT_FALSE(d.toObject().contains("items"));
    }
    const QJsonObject overdue = ok({"show", b});
    EXPECT_EQ(overdue.value("status").toInt(), 2);
    // Newest date first, the last created first among equal dates.
    const QJsonArray all = ok({"list"}).value("documents").toArray();
    EXPECT_EQ(all[0].toObject().value("uniqueID").toString(), q);
    EXPECT_EQ(run({"list", "--filter", "x"}).code, 2);
}

TEST_F(DocumentCommandsTest, ShippingAndDiscountFromTheCommandLine)
{
    setting("tax2IsCompound", "1", "bool");
    const QString id = ok({"new", "invoice"}).value("uniqueID").toString();
    ok({"item", "add", id, "title=x", "baseAmount=100", "tax1=0"});
    ok({"set", id, "tax1Percent=0.2", "tax2Percent=0.1"});

    QJsonObject doc = ok({"shipping", id, "amount=10", "tax2=1", "note=by van"});
    EXPECT_TRUE(doc.value("isShippingEnabled").toBool());
    EXPECT_EQ(doc.value("shippingTitle").toString(), "Shipping"); // the default title
    EXPECT_FLOAT_EQ(float(number(doc, "tax2Amount")), 1.2f);
    EXPECT_FLOAT_EQ(float(number(doc, "amount")), 111.2f);
    ok({"shipping", id, "title=Shipping", "amount=10"}); // the same charge again

    doc = ok({"discount", id, "percent", "10%", "title=Loyal", "subtitle=thanks"});
    EXPECT_FLOAT_EQ(float(number(doc, "amount")), 100.08f);
    EXPECT_TRUE(doc.value("hasDiscountSubtitle").toBool());
    EXPECT_FLOAT_EQ(float(number(ok({"discount", id, "percent", "0.1"}), "amount")), 100.08f);
    EXPECT_FLOAT_EQ(float(number(ok({"discount", id, "fixed", "200"}), "amount")), -88.8f);
    EXPECT_FLOAT_EQ(float(number(ok({"discount", id, "--off"}), "amount")), 111.2f);
    EXPECT_FLOAT_EQ(float(number(ok({"shipping", id, "--off"}), "amount")), 100.0f);

    // The remembered charge switches shipping on again, on another document too.
    const QString other = ok({"new", "quote"}).value("uniqueID").toString();
    doc = ok({"shipping", other, "--recent", "0"});
    EXPECT_TRUE(doc.value("isShippingEnabled").toBool());
    EXPECT_FLOAT_EQ(float(number(doc, "shippingAmount")), 10.0f);
    EXPECT_EQ(run({"shipping", other, "--recent", "1"}).code, 2); // only one was remembered
    EXPECT_EQ(run({"shipping", other, "weight=3"}).code, 2);
    EXPECT_EQ(run({"discount", other, "half", "3"}).code, 2);
}

TEST_F(DocumentCommandsTest, AddressesFromTextContactsAndMemory)
{
    setting("prefsAddressPattern", "%FIRSTNAME% %LASTNAME%\n%STREET%\n%ZIP% %CITY%");
    const QString id = ok({"new", "invoice"}).value("uniqueID").toString();
    QJsonObject doc =
        ok({"address", id, "--text", "Ada\nLondon", "--email", "ada@x.org", "--client-number", "C-1"});
    EXPECT_EQ(doc.value("address").toString(), "Ada\nLondon");
    EXPECT_EQ(doc.value("emailAddress").toString(), "ada@x.org");
    EXPECT_EQ(doc.value("clientNumber").toString(), "C-1");

    const QString vcf = env.home() + "/people.vcf";
    QFile f(vcf);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("BEGIN:VCARD\r\nVERSION:3.0\r\nN:One;Only\r\nEND:VCARD\r\n"
            "BEGIN:VCARD\r\nVERSION:2.1\r\nN;CHARSET=ISO-8859-1:M\xFCller;J\xFCrgen\r\nADR;HOME:;;Hauptstr. "
            "5;Berlin;;"
            "10115;\r\nEMAIL;WORK:j@w.de\r\nEMAIL;HOME:j@h.de\r\nEND:VCARD\r\n");
    f.close();
    doc = ok({"address", id, "--contact", vcf, "--index", "1"});
    EXPECT_EQ(doc.value("address").toString(), "Jürgen Müller\nHauptstr. 5\n10115 Berlin");
    EXPECT_EQ(doc.value("emailAddress").toString(), "j@h.de");
    EXPECT_EQ(doc.value("clientNumber").toString(), "C-1");

    const CliRun list = run({"address", "list"});
    ASSERT_EQ(list.code, 0);
    ASSERT_EQ(list.array().size(), 2);
    EXPECT_EQ(list.array()[0].toObject().value("clientNumber").toString(), "C-1");

    const QString other = ok({"new", "quote"}).value("uniqueID").toString();
    doc = ok({"address", other, "--recent", "0"});
    EXPECT_EQ(doc.value("address").toString(), "Ada\nLondon");
    EXPECT_EQ(doc.value("clientNumber").toString(), "C-1");

    EXPECT_EQ(run({"address", id, "--contact", vcf, "--index", "2"}).code, 3);
    EXPECT_EQ(run({"address", id, "--contact", env.home() + "/none.vcf"}).code, 3);
    EXPECT_EQ(run({"address", id, "--text"}).code, 2);
    EXPECT_EQ(run({"address", id, "--text", "x", "--recent", "0"}).code, 2);
}

TEST_F(DocumentCommandsTest, LifecycleCommandsAndNumbers)
{
    setting("invPattern", "RE-%COUNT%");
    setting("invCount", "100", "int");
    setting("quotPattern", "Q-%COUNT%");
    setting("quotCount", "0", "int");
    EXPECT_EQ(run({"next-number", "invoice"}).out, "\"RE-101\"\n");
    const QJsonObject invoice = ok({"new", "invoice"});
    EXPECT_EQ(invoice.value("number").toString(), "RE-101");
    const QJsonObject quote = ok({"new", "quote"});
    EXPECT_EQ(quote.value("number").toString(), "Q-1");
    EXPECT_EQ(run({"next-number", "quote"}).out, "\"Q-2\"\n");
    EXPECT_EQ(run({"next-number", "client"}).out, "\"C-1001\"\n");
    EXPECT_EQ(run({"next-number", "order"}).code, 2);

    const CliRun sorry = run({"convert", "RE-101"});
    EXPECT_EQ(sorry.code, 1);
    EXPECT_EQ(sorry.err.trimmed(), "vorn-cli: You can't convert an invoice into a quote.");

    const QJsonObject converted = ok({"convert", "Q-1"});
    EXPECT_EQ(converted.value("kind").toInt(), 1);
    EXPECT_EQ(converted.value("number").toString(), "RE-102");
    EXPECT_EQ(converted.value("title").toString(), "Invoice");
    EXPECT_EQ(converted.value("date").toString(), quote.value("date").toString());

    ok({"set", "RE-101", "status=3", "dispatchNumber=D-9"});
    const QJsonObject copy = ok({"duplicate", "RE-101"});
    EXPECT_NE(copy.value("uniqueID").toString(), invoice.value("uniqueID").toString());
    for (const char* k :
         {"number", "status", "date", "due", "paid", "paidAmount", "dueAmount", "dispatchNumber"})
        EXPECT_FALSE(copy.contains(k)) << k;
    EXPECT_EQ(copy.value("title").toString(), "Invoice");

    const QJsonObject stamped = ok({"dispatched", "RE-102"});
    EXPECT_GT(stamped.value("dispatched").toString(), converted.value("dispatched").toString());

    EXPECT_EQ(run({"delete", "Q-1"}).code, 2); // renumbered: no such document any more
    EXPECT_EQ(run({"show", "#9"}).code, 2);
    EXPECT_EQ(run({"set", "RE-101", "nosuchkey=1"}).code, 2);
    EXPECT_EQ(run({"set", "RE-101", "status=high"}).code, 2);
    EXPECT_EQ(run({"item", "move", "RE-101", "0", "0"}).code, 2); // no items
    EXPECT_EQ(run({"new", "order"}).code, 2);
}

} // namespace
