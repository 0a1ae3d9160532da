#include "tests/cli/CliProcess.h"

using namespace vorn::test;

namespace {

// The document commands of vorn-cli, run as a program in a scratch home. The
// arithmetic behind them is the controllers' and tested there; these check
// each command, option and exit path once.
class DocumentCommandsTest : public CliFixture
{
protected:
    static QJsonObject doc(const QStringList& args) { return ok(args).object(); }
    static QString newDocument(const char* kind) { return doc({"new", kind}).value("uniqueID").toString(); }
    static QStringList titles(const QJsonObject& document)
    {
        QStringList list;
        for (const QJsonValue& v : document.value("items").toArray())
            list << v.toObject().value("title").toString();
        return list;
    }
    static void setting(const QString& key, const QString& value, const QString& type = "string")
    {
        ok({"defaults", "write", key, value, "--type", type});
    }
};

double number(const QJsonObject& o, const char* key)
{
    return o.value(QLatin1String(key)).toDouble();
}

TEST_F(DocumentCommandsTest, ItemsAddUpMoveAndKeepTheirOrder)
{
    const QJsonObject created = doc({"new", "invoice"});
    EXPECT_EQ(created.value("kind").toInt(), 1);
    EXPECT_TRUE(created.value("items").toArray().isEmpty());
    const QString id = created.value("uniqueID").toString();

    doc({"item", "add", id, "title=A", "baseAmount=10", "unitCount=3", "tax1=0"});
    doc({"item", "add", id, "title=B", "baseAmount=2.5 EUR", "unitCount=4", "tax1=true"});
    doc({"item", "add", "#1", "title=C", "baseAmount=abc"});
    QJsonObject shown = doc({"item", "add", "#1", "title=D", "baseAmount=1"});
    EXPECT_EQ(titles(shown), (QStringList{"A", "B", "C", "D"}));
    // 30 + 10 + 7 % of 10 + 0 + 1 (D carries the default tax)
    EXPECT_FLOAT_EQ(float(number(shown, "subAmount")), 41.0f);
    EXPECT_FLOAT_EQ(float(number(shown, "tax1Amount")), 0.77f);

    shown = doc({"item", "move", id, "1,2", "4"});
    EXPECT_EQ(titles(shown), (QStringList{"A", "D", "B", "C"}));
    // A new run reads the order back from the store.
    EXPECT_EQ(titles(doc({"show", id})), (QStringList{"A", "D", "B", "C"}));
    EXPECT_FLOAT_EQ(float(number(doc({"item", "edit", id, "0", "unitCount=1"}), "subAmount")), 21.0f);
    EXPECT_EQ(titles(doc({"item", "delete", id, "3"})), (QStringList{"A", "D", "B"}));

    // Remembered once per title and price.
    doc({"item", "add", id, "title=A", "baseAmount=10.0"});
    EXPECT_EQ(ok({"item", "recent"}).array().size(), 4);
}

TEST_F(DocumentCommandsTest, TheSentLockRefusesWithTheAlertText)
{
    const QString id = newDocument("invoice");
    doc({"item", "add", id, "title=A", "baseAmount=10"});
    doc({"set", id, "status=1"});

    const QString locked = QStringLiteral(
        "The selected invoice is marked as already sent. If you really need to make changes, please "
        "set its status back to 'Created' first. Then you will also be able to resend the modified "
        "invoice.");
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
    for (const QStringList& args : refused)
        expectRefusal(run(args), 1, locked);
    const QJsonObject unchanged = doc({"show", id});
    EXPECT_EQ(titles(unchanged), QStringList{"A"});
    EXPECT_FALSE(unchanged.value("isShippingEnabled").toBool());
    EXPECT_EQ(unchanged.value("notes").toString(), QString());

    // Fields outside the lock stay editable, and a sent invoice may still get lines.
    EXPECT_EQ(doc({"set", id, "notes=called", "paidAmount=2"}).value("notes").toString(), "called");
    EXPECT_EQ(titles(doc({"item", "add", id, "title=B"})), (QStringList{"A", "B"}));

    expectRefusal(run({"delete", id}), 1, "If you really need to delete it");
    doc({"set", id, "status=0"});
    ok({"delete", id});
    expectRefusal(run({"show", id}), 2);
}

TEST_F(DocumentCommandsTest, ListFiltersAndTotals)
{
    const QString a = newDocument("invoice"), b = newDocument("invoice"), q = newDocument("quote");
    doc({"item", "add", a, "title=x", "baseAmount=100", "tax1=0"});
    doc({"item", "add", b, "title=y", "baseAmount=40", "tax1=0"});
    doc({"set", a, "status=3"});
    // Sent, and due long ago: overdue after the recomputation.
    EXPECT_EQ(doc({"set", b, "status=1", "due=2001-01-01T00:00:00Z"}).value("status").toInt(), 2);

    const QJsonObject all = doc({"list"});
    EXPECT_EQ(all.value("totals").toObject(), QJsonObject({{"totalAmount", 140},
                                                           {"paidAmount", 100},
                                                           {"dueAmount", 40},
                                                           {"invoiceCount", 2},
                                                           {"quoteCount", 1},
                                                           {"invoiceCountForNumber", 2}}));
    // Newest date first, the last created first among equal dates; no items.
    const QJsonArray documents = all.value("documents").toArray();
    EXPECT_EQ(documents[0].toObject().value("uniqueID").toString(), q);
    for (const QJsonValue& d : documents)
        EXPECT_FALSE(d.toObject().contains("items"));

    // The filters are the list's; here a tag reaches them.
    const std::tuple<const char*, int, double> filtered[] = {{"2", 1, 40}, {"4", 1, 0}};
    for (const auto& [tag, count, total] : filtered) {
        const QJsonObject list = doc({"list", "--filter", tag});
        EXPECT_EQ(list.value("documents").toArray().size(), count) << tag;
        EXPECT_EQ(list.value("totals").toObject().value("totalAmount").toDouble(), total) << tag;
    }
    expectRefusal(run({"list", "--filter", "x"}), 2);
}

// The popovers' fields reach the document; the sums are the Calculator's.
TEST_F(DocumentCommandsTest, ShippingDiscountAndAddressPopovers)
{
    const QString id = newDocument("invoice");
    doc({"item", "add", id, "title=x", "baseAmount=100", "tax1=0"});
    QJsonObject d = doc({"shipping", id, "amount=10", "note=by van"});
    EXPECT_TRUE(d.value("isShippingEnabled").toBool());
    EXPECT_FLOAT_EQ(float(number(d, "amount")), 110.0f);
    // A rate is a fraction, or a percentage with its sign.
    for (const char* rate : {"10%", "0.1"}) {
        d = doc({"discount", id, "percent", rate, "title=Loyal", "subtitle=thanks"});
        EXPECT_FLOAT_EQ(float(number(d, "amount")), 99.0f) << rate;
        EXPECT_TRUE(d.value("hasDiscountSubtitle").toBool());
    }
    EXPECT_FLOAT_EQ(float(number(doc({"discount", id, "fixed", "5"}), "amount")), 105.0f);
    EXPECT_FLOAT_EQ(float(number(doc({"discount", id, "--off"}), "amount")), 110.0f);
    EXPECT_FLOAT_EQ(float(number(doc({"shipping", id, "--off"}), "amount")), 100.0f);
    const QString other = newDocument("quote");
    d = doc({"shipping", other, "--recent", "0"});
    EXPECT_TRUE(d.value("isShippingEnabled").toBool());
    EXPECT_FLOAT_EQ(float(number(d, "shippingAmount")), 10.0f);

    setting("prefsAddressPattern", "%FIRSTNAME% %LASTNAME%\n%CITY%");
    d = doc({"address", id, "--text", "Ada\nLondon", "--email", "ada@x.org", "--client-number", "C-1"});
    EXPECT_EQ(QStringList({d.value("address").toString(), d.value("emailAddress").toString(),
                           d.value("clientNumber").toString()}),
              (QStringList{"Ada\nLondon", "ada@x.org", "C-1"}));
    writeFile("people.vcf",
              "BEGIN:VCARD\r\nN:One;Only\r\nEND:VCARD\r\nBEGIN:VCARD\r\nN:M\xC3\xBCller;J\xC3\xBCrgen\r\n"
              "ADR:;;;Berlin;;;\r\nEMAIL:j@h.de\r\nEND:VCARD\r\n");
    d = doc({"address", id, "--contact", path("people.vcf"), "--index", "1"});
    EXPECT_EQ(d.value("address").toString(), "Jürgen Müller\nBerlin");
    EXPECT_EQ(d.value("emailAddress").toString(), "j@h.de");
    EXPECT_EQ(ok({"address", "list"}).array().size(), 2);
    d = doc({"address", other, "--recent", "0"});
    EXPECT_EQ(d.value("address").toString() + d.value("clientNumber").toString(), "Ada\nLondonC-1");

    expectRefusal(run({"address", id, "--contact", path("people.vcf"), "--index", "2"}), 3);
    expectRefusal(run({"address", id, "--contact", path("none.vcf")}), 3);
    const QStringList usage[] = {{"shipping", other, "--recent", "1"}, // only one was remembered
                                 {"shipping", other, "weight=3"},
                                 {"discount", other, "half", "3"},
                                 {"address", id, "--text"},
                                 {"address", id, "--text", "x", "--recent", "0"}};
    for (const QStringList& args : usage)
        expectRefusal(run(args), 2);
}

TEST_F(DocumentCommandsTest, LifecycleCommandsAndNumbers)
{
    setting("invPattern", "RE-%COUNT%");
    setting("invCount", "100", "int");
    setting("quotPattern", "Q-%COUNT%");
    setting("quotCount", "0", "int");
    EXPECT_EQ(ok({"next-number", "invoice"}).out, "\"RE-101\"\n");
    const QJsonObject invoice = doc({"new", "invoice"});
    EXPECT_EQ(invoice.value("number").toString(), "RE-101");
    const QJsonObject quote = doc({"new", "quote"});
    EXPECT_EQ(quote.value("number").toString(), "Q-1");
    EXPECT_EQ(ok({"next-number", "quote"}).out, "\"Q-2\"\n");
    EXPECT_EQ(ok({"next-number", "client"}).out, "\"C-1001\"\n");

    expectRefusal(run({"convert", "RE-101"}), 1, "You can't convert an invoice into a quote.");
    const QJsonObject converted = doc({"convert", "Q-1"});
    EXPECT_EQ(converted.value("kind").toInt(), 1);
    EXPECT_EQ(converted.value("number").toString(), "RE-102");

    const QJsonObject copy = doc({"duplicate", "RE-101"});
    EXPECT_NE(copy.value("uniqueID").toString(), invoice.value("uniqueID").toString());
    EXPECT_FALSE(copy.contains("number"));

    const QJsonObject stamped = doc({"dispatched", "RE-102"});
    EXPECT_GT(stamped.value("dispatched").toString(), converted.value("dispatched").toString());

    const QStringList usage[] = {{"next-number", "order"},
                                 {"delete", "Q-1"}, // renumbered: no such document
                                 {"show", "#9"},
                                 {"set", "RE-101", "nosuchkey=1"},
                                 {"item", "move", "RE-101", "0", "0"}, // no items
                                 {"new", "order"}};
    for (const QStringList& args : usage)
        expectRefusal(run(args), 2);
}

} // namespace
