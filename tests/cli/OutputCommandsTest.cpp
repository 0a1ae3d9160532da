#include "tests/cli/CliProcess.h"

#include <QRegularExpression>

using namespace vorn::test;

namespace {

// The output commands of vorn-cli (html, pdf, design preview-html), run as a
// program in a scratch home.
class OutputCommandsTest : public CliFixture
{
protected:
    static int status(const QString& doc) { return ok({"show", doc}).object().value("status").toInt(); }
    // A document with two items; answers its uniqueID.
    static QString make(const char* kind, const char* number)
    {
        const QString id = ok({"new", kind}).object().value("uniqueID").toString();
        ok({"set", id, QString("number=%1").arg(QLatin1String(number))});
        ok({"item", "add", id, "title=Brand workshop", "baseAmount=1200", "unitCount=1"});
        ok({"item", "add", id, "title=Logo design", "baseAmount=95", "unitCount=12"});
        return id;
    }
    // The page holds these texts and no placeholder of the design is left in it.
    static void expectPage(const QString& html, std::initializer_list<const char*> texts)
    {
        for (const char* text : texts)
            EXPECT_TRUE(html.contains(QLatin1String(text))) << text;
        static const QRegularExpression leftover("%[A-Z][A-Z0-9]*%");
        EXPECT_FALSE(leftover.match(html).hasMatch()) << leftover.match(html).captured().toStdString();
    }
};

TEST_F(OutputCommandsTest, HtmlIsTheDocumentInTheDefaultDesign)
{
    const QString id = make("invoice", "INV-7");
    expectPage(ok({"html", id}).out, {"INV-7", "Brand workshop", "Logo design", "1,200.00"});

    expectPage(ok({"html", id, "--reminder", "--title", "Second Notice", "--conditions", "Pay now\nplease",
                   "--footer", "Thanks"})
                   .out,
               {"Second Notice", "Pay now<br />please", "Overdue Since"});
    // Without texts the reminder sheet's own come in.
    EXPECT_TRUE(ok({"html", id, "--reminder"}).out.contains("Payment Reminder"));

    const QStringList usage[] = {{"html"},
                                 {"html", "nosuch"},
                                 {"html", id, "--title", "X"},
                                 {"html", id, "--reminder", "--title"},
                                 {"pdf", id},
                                 {"pdf", "--all"},
                                 {"pdf", "--all", path("x"), "--filter", "sent"},
                                 {"design", "preview-html", "extra"}};
    for (const QStringList& args : usage)
        expectRefusal(run(args), 2);
}

// Which kinds are marked is the export controller's rule and every paper the
// renderer's; here both settings reach the command, which never replaces a file.
TEST_F(OutputCommandsTest, PdfFollowsTheSettingsAndNeverReplacesAFile)
{
    ok({"defaults", "write", "markInvoiceAsSent", "1", "--type", "bool"});
    ok({"defaults", "write", "tempPaperSize", "1", "--type", "int"});
    const QString id = make("invoice", "DOC-1");
    writeFile("mine.pdf", "keep me");
    expectRefusal(run({"pdf", id, path("mine.pdf")}), 3, "already exists");
    EXPECT_EQ(readFile(path("mine.pdf")), QByteArray("keep me"));
    EXPECT_EQ(status(id), 0) << "nothing was saved";

    EXPECT_EQ(ok({"pdf", id, path("out.pdf")}).out.trimmed(), path("out.pdf"));
    const QString pdf = QString::fromLatin1(readFile(path("out.pdf")));
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    static const QRegularExpression box("/MediaBox\\s*\\[\\s*0 0 ([0-9.]+) ([0-9.]+)");
    const auto m = box.match(pdf);
    EXPECT_EQ(QString("%1x%2").arg(qRound(m.captured(1).toDouble())).arg(qRound(m.captured(2).toDouble())),
              "612x1008");
    EXPECT_EQ(status(id), 1);
}

TEST_F(OutputCommandsTest, AllListedDocumentsAreNamedByTheirJobTitles)
{
    ok({"defaults", "write", "prefsName", "Tandrelo Studio"});
    make("invoice", "INV-1");
    make("invoice", "INV-2");
    make("quote", "Q/3");
    const QString folder = path("all");
    EXPECT_EQ(ok({"pdf", "--all", folder}).out.split('\n', Qt::SkipEmptyParts).size(), 3);
    const QStringList names = QDir(folder).entryList({"*.pdf"}, QDir::Files, QDir::Name);
    EXPECT_EQ(names,
              (QStringList{"Tandrelo Studio | Invoice | INV-1.pdf", "Tandrelo Studio | Invoice | INV-2.pdf",
                           "Tandrelo Studio | Quote | Q-3.pdf"}));
    for (const QString& name : names)
        EXPECT_TRUE(readFile(QDir(folder).filePath(name)).startsWith("%PDF-")) << qPrintable(name);

    // With the list filtered to quotes, only the quote.
    ok({"pdf", "--all", path("quotes"), "--filter", "4"});
    EXPECT_EQ(QDir(path("quotes")).entryList({"*.pdf"}, QDir::Files),
              QStringList{"Tandrelo Studio | Quote | Q-3.pdf"});
}

TEST_F(OutputCommandsTest, DesignPreviewShowsTheSampleDocument)
{
    expectPage(ok({"design", "preview-html"}).out, {"Erin Holloway", "A Lot of Things", "Brand Workshop"});
}

// vorn-cli einvoice: refused with the missing field named and nothing
// written until the data is complete; then the XML and the Factur-X PDF.
TEST_F(OutputCommandsTest, EInvoicesAreWrittenOnlyWithCompleteData)
{
    const QString id = make("invoice", "INV-8");
    const QString xml = path("e.xml");
    const QStringList usage[] = {{"einvoice", id},
                                 {"einvoice", id, path("e.txt")},
                                 {"einvoice", id, xml, "--profile", "peppol"},
                                 {"einvoice", id, xml, "--profile"}};
    for (const QStringList& args : usage)
        expectRefusal(run(args), 2);
    expectRefusal(run({"einvoice", id, xml}), 1, "The buyer's country is missing.");
    EXPECT_FALSE(QFile::exists(xml));

    const char* seller[][2] = {{"prefsLegalName", "Tandrelo Studio GmbH"},
                               {"prefsStreet", "Hauptstraße 1"},
                               {"prefsPostcode", "10115"},
                               {"prefsCity", "Berlin"},
                               {"prefsCountryCode", "DE"},
                               {"prefsVatID", "DE123456789"},
                               {"prefsIBAN", "DE89370400440532013000"},
                               {"prefsCurrency", "EUR"}};
    for (const auto& [key, value] : seller)
        ok({"defaults", "write", key, QString::fromUtf8(value)});
    ok({"set", id, "currency=EUR", "address=Muster AG\n80331 München", "buyerCountryCode=DE"});
    expectRefusal(run({"einvoice", id, xml, "--profile", "xrechnung"}), 1, "(Leitweg-ID) is missing");
    EXPECT_EQ(ok({"einvoice", id, xml}).out.trimmed(), xml);
    EXPECT_TRUE(readFile(xml).contains("<ram:DuePayableAmount>"));
    expectRefusal(run({"einvoice", id, xml}), 3, "already exists");
    ok({"einvoice", id, path("e.pdf")});
    EXPECT_TRUE(readFile(path("e.pdf")).startsWith("%PDF-1.7"));
}

} // namespace
