#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace vorn::test;

namespace {

struct CliRun
{
    int code = -1;
    QString out;
    QString err;
};

// The output commands of vorn-cli (html, pdf, design preview-html), run as a
// program in a scratch home.
class OutputCommandsTest : public ::testing::Test
{
protected:
    CliRun run(const QStringList& args)
    {
        QProcess p;
        p.setProgram(QStringLiteral(VORN_CLI_PATH));
        p.setArguments(args);
        p.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
        p.start();
        EXPECT_TRUE(p.waitForFinished(60000)) << qPrintable(args.join(QLatin1Char(' ')));
        CliRun r;
        r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        r.out = QString::fromUtf8(p.readAllStandardOutput());
        r.err = QString::fromUtf8(p.readAllStandardError());
        return r;
    }
    QString ok(const QStringList& args)
    {
        const CliRun r = run(args);
        EXPECT_EQ(r.code, 0) << qPrintable(args.join(QLatin1Char(' '))) << ": " << qPrintable(r.err);
        return r.out;
    }
    QJsonObject document(const QString& doc)
    {
        return QJsonDocument::fromJson(ok({QStringLiteral("show"), doc}).toUtf8()).object();
    }
    // A document with two items; answers its uniqueID.
    QString make(const char* kind, const char* number)
    {
        const QJsonObject d =
            QJsonDocument::fromJson(ok({QStringLiteral("new"), QLatin1String(kind)}).toUtf8()).object();
        const QString id = d.value(QStringLiteral("uniqueID")).toString();
        ok({QStringLiteral("set"), id, QStringLiteral("number=%1").arg(QLatin1String(number))});
        ok({QStringLiteral("item"), QStringLiteral("add"), id, QStringLiteral("title=Brand workshop"),
            QStringLiteral("baseAmount=1200"), QStringLiteral("unitCount=1")});
        ok({QStringLiteral("item"), QStringLiteral("add"), id, QStringLiteral("title=Logo design"),
            QStringLiteral("baseAmount=95"), QStringLiteral("unitCount=12")});
        return id;
    }
    QString path(const QString& name) const { return QDir(env.home()).filePath(name); }
    static QByteArray read(const QString& file)
    {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    TestEnvironment env;
};

const QRegularExpression leftover(QStringLiteral("%[A-Z][A-Z0-9]*%"));

TEST_F(OutputCommandsTest, HtmlIsTheDocumentInTheDefaultDesign)
{
    const QString id = make("invoice", "INV-7");
    const QString html = ok({"html", id});
    EXPECT_TRUE(html.contains("INV-7"));
    EXPECT_TRUE(html.contains("Brand workshop") && html.contains("Logo design"));
    EXPECT_TRUE(html.contains("1,200.00"));
    EXPECT_FALSE(leftover.match(html).hasMatch()) << leftover.match(html).captured().toStdString();

    const QString reminder = ok({"html", id, "--reminder", "--title", "Second Notice", "--conditions",
                                 "Pay now\nplease", "--footer", "Thanks"});
    EXPECT_TRUE(reminder.contains("Second Notice"));
    EXPECT_TRUE(reminder.contains("Pay now<br />please"));
    EXPECT_TRUE(reminder.contains("Overdue Since"));
    // Without texts the reminder sheet's own come in.
    EXPECT_TRUE(ok({"html", id, "--reminder"}).contains("Payment Reminder"));
}

TEST_F(OutputCommandsTest, WrongArgumentsAreUsageErrors)
{
    const QString id = make("invoice", "INV-8");
    struct Case
    {
        QStringList args;
        int code;
    } cases[] = {
        {{"html"}, 2},
        {{"html", "nosuch"}, 2},
        {{"html", id, "--title", "X"}, 2},
        {{"html", id, "--reminder", "--title"}, 2},
        {{"pdf", id}, 2},
        {{"pdf", "--all"}, 2},
        {{"pdf", "--all", path("x"), "--filter", "sent"}, 2},
        {{"design", "preview-html", "extra"}, 2},
    };
    for (const Case& c : cases) {
        const CliRun r = run(c.args);
        EXPECT_EQ(r.code, c.code) << qPrintable(c.args.join(' '));
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_TRUE(r.err.startsWith("vorn-cli: ")) << qPrintable(r.err);
    }
}

struct MarkCase
{
    const char* kind;
    bool setting;
    int status;
};

class PdfMarks : public OutputCommandsTest, public ::testing::WithParamInterface<MarkCase>
{
};

TEST_P(PdfMarks, AnInvoiceIsMarkedSentWhenTheSettingIsOn)
{
    const MarkCase& c = GetParam();
    ok({"defaults", "write", "markInvoiceAsSent", c.setting ? "1" : "0", "--type", "bool"});
    const QString id = make(c.kind, "DOC-1");
    const QString out = path("out.pdf");
    EXPECT_EQ(ok({"pdf", id, out}).trimmed(), out);
    EXPECT_TRUE(read(out).startsWith("%PDF-"));
    EXPECT_EQ(document(id).value("status").toInt(), c.status);
}

INSTANTIATE_TEST_SUITE_P(KindAndSetting, PdfMarks,
                         ::testing::Values(MarkCase{"invoice", true, 1}, MarkCase{"invoice", false, 0},
                                           MarkCase{"quote", true, 0}, MarkCase{"quote", false, 0}));

TEST_F(OutputCommandsTest, PdfNeverReplacesAFile)
{
    const QString id = make("invoice", "INV-9");
    const QString out = path("mine.pdf");
    QFile file(out);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("keep me");
    file.close();
    const CliRun r = run({"pdf", id, out});
    EXPECT_EQ(r.code, 3);
    EXPECT_TRUE(r.err.contains("already exists")) << qPrintable(r.err);
    EXPECT_EQ(r.err.count('\n'), 1) << qPrintable(r.err);
    EXPECT_EQ(read(out), QByteArray("keep me"));
    // Nothing was saved: the invoice is not marked as sent.
    EXPECT_EQ(document(id).value("status").toInt(), 0);
}

struct PaperCase
{
    int setting;
    const char* mediaBox;
};

class PdfPapers : public OutputCommandsTest, public ::testing::WithParamInterface<PaperCase>
{
};

TEST_P(PdfPapers, FollowTheSetting)
{
    ok({"defaults", "write", "tempPaperSize", QString::number(GetParam().setting), "--type", "int"});
    const QString id = make("invoice", "INV-P");
    ok({"pdf", id, path("paper.pdf")});
    const QString pdf = QString::fromLatin1(read(path("paper.pdf")));
    const QRegularExpression box(QStringLiteral("/MediaBox\\s*\\[\\s*0 0 ([0-9.]+) ([0-9.]+)"));
    const auto m = box.match(pdf);
    ASSERT_TRUE(m.hasMatch());
    EXPECT_EQ(
        QStringLiteral("%1x%2").arg(qRound(m.captured(1).toDouble())).arg(qRound(m.captured(2).toDouble())),
        QLatin1String(GetParam().mediaBox));
}

INSTANTIATE_TEST_SUITE_P(TempPaperSize, PdfPapers,
                         ::testing::Values(PaperCase{0, "612x792"}, PaperCase{2, "595x842"},
                                           PaperCase{1, "612x1008"}, PaperCase{9, "612x792"}));

TEST_F(OutputCommandsTest, AllListedDocumentsAreNamedByTheirJobTitles)
{
    ok({"defaults", "write", "prefsName", "Tandrelo Studio"});
    make("invoice", "INV-1");
    make("invoice", "INV-2");
    make("quote", "Q/3");
    const QString folder = path("all");
    const QStringList written = ok({"pdf", "--all", folder}).split('\n', Qt::SkipEmptyParts);
    QStringList names = QDir(folder).entryList({"*.pdf"}, QDir::Files, QDir::Name);
    EXPECT_EQ(names,
              (QStringList{"Tandrelo Studio | Invoice | INV-1.pdf", "Tandrelo Studio | Invoice | INV-2.pdf",
                           "Tandrelo Studio | Quote | Q-3.pdf"}));
    EXPECT_EQ(written.size(), 3);
    for (const QString& name : names)
        EXPECT_TRUE(read(QDir(folder).filePath(name)).startsWith("%PDF-")) << qPrintable(name);

    // With the list filtered to quotes, only the quote.
    const QString quotes = path("quotes");
    ok({"pdf", "--all", quotes, "--filter", "4"});
    EXPECT_EQ(QDir(quotes).entryList({"*.pdf"}, QDir::Files),
              QStringList{"Tandrelo Studio | Quote | Q-3.pdf"});
}

TEST_F(OutputCommandsTest, DesignPreviewShowsTheSampleDocument)
{
    const QString html = ok({"design", "preview-html"});
    EXPECT_TRUE(html.contains("Erin Holloway"));
    EXPECT_TRUE(html.contains("A Lot of Things"));
    EXPECT_TRUE(html.contains("Brand Workshop"));
    EXPECT_FALSE(leftover.match(html).hasMatch()) << leftover.match(html).captured().toStdString();
}

} // namespace
