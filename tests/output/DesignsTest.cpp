#include "invoicing/Calculator.h"
#include "store/PropertyList.h"
#include "tests/output/OutputFixture.h"
#include "tests/output/PdfSupport.h"
#include "tests/support/TestFiles.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QRegularExpression>

#include <functional>

// The nine built-in designs, each filled with documents of every shape and
// printed on A4 and US Letter: no token is left over, every row is printed
// once, item headers repeat on every page with rows, and the totals stand on
// the page of the last rows. With VORN_DESIGN_GALLERY set to a folder the
// PDFs are kept there to be looked at.
namespace vorn::test {
namespace {

struct Design
{
    QString folder;
    QString title;
    QString page;
    QString item;
    QString css;
};

Design builtIn(int n)
{
    const QString folder = QStringLiteral(VORN_DESIGNS_DIR "/Temp00%1").arg(n);
    return {folder, readText(folder + "/title.txt").trimmed(), readText(folder + "/invoice.html"),
            readText(folder + "/item.html"), readText(folder + "/style.css")};
}

struct Variant
{
    const char* name;
    int kind = 1;
    int items = 3;
    bool reminder = false;
    bool allTaxes = false;
    bool noTaxes = false;
    bool shipping = false;
    int discountKind = -1; // -1 none, 0 fixed, 1 percent
    bool subtitles = false;
    bool logo = false;
    bool longTexts = false;
    bool skus = false;
};

const Variant variants[] = {
    {"short"},
    {"full", 1, 6, false, true, false, true, 0, true, true, false, true},
    {"long", 1, 45, false, false, false, true, 1, false, true},
    {"quote", 0, 4, false, false, true, false, -1, false, true},
    {"reminder", 1, 2, true},
    {"empty", 1, 0, false, false, false, true, 0},
    {"texts", 1, 5, false, false, false, true, 0, true, false, true, true},
};

class Designs : public OutputFixture
{
public:
    Designs()
    {
        auto english = PropertyList::read(
            readText(QStringLiteral(VORN_DEFAULTS_DIR "/defaultPrefsEnglish.plist")).toUtf8());
        if (english.ok())
            settings.setValuesForKeys(english.value().toMap());
        assign(
            settings, "prefsName", "Tandrelo Studio", "prefsSlogan", "Brand, type and print design",
            "prefsContact",
            "Mara Lindqvist\n12 Harbour Road\nPortsmouth PO1 3AX\n+44 23 9200 1234\nhello@tandrelo.example",
            "prefsLetterbox", "Tandrelo Studio · 12 Harbour Road · Portsmouth PO1 3AX", "prefsCurrency", "$",
            "tax2Title", "County Tax", "tax3Title", "Levy");
    }

    void use(const Design& design)
    {
        for (ManagedObject* d : context.fetch(Entity::Design))
            d->setValue("isDefault", false);
        addDesign(design.page, design.item, design.css);
    }

    ManagedObject* make(const Variant& v)
    {
        assign(settings, "tax1Enabled", !v.noTaxes, "tax2Enabled", v.allTaxes, "tax3Enabled", v.allTaxes,
               "tempUseSKU", v.skus, "prefsLogo",
               v.logo ? pngData(240, 120, QColor(220, 90, 60)) : QByteArray());
        const QString longText =
            QStringLiteral("Redesign of the visual identity, including research, three "
                           "directions, two rounds of revisions and the final artwork in "
                           "every format");
        ManagedObject* d = addDocument(
            v.kind, "title", v.kind ? "Invoice" : "Quote", "number", v.kind ? "INV-2025-0042" : "Q-2025-0017",
            "currency", "$", "address",
            v.longTexts
                ? "Department of Visual Communication and Brand Strategy\nHolloway, Erin\nQuarry & Sons "
                  "International Ltd.\n7 Quarry Lane, Suite 400\nFernwood CA 93024\nUnited States"
                : "Erin Holloway\nQuarry & Sons Ltd.\n7 Quarry Lane\nFernwood CA 93024",
            "clientNumber", "C-1047", "dispatchNumber", v.shipping ? "UPS 1Z 999 AA1" : "", "subject",
            v.longTexts ? longText : "Spring campaign", "conditions",
            settings.stringValue("tempInvConditions"), "footer",
            "Harbour Bank · IBAN GB00 HARB 1234 5678 9012 34 · BIC HARBGB2L\nThank you for your business!");
        const float rates[3] = {0.07f, 0.02f, 0.01f};
        for (int i = 1; i <= v.items; ++i) {
            ManagedObject* item = addItem(d, "title",
                                          QString("Item-%1 %2")
                                              .arg(i, 2, 10, QLatin1Char('0'))
                                              .arg(v.longTexts && i == 2 ? longText : "Design work"),
                                          "unitCount", float(i % 4 + 1), "unit", "h", "baseAmount",
                                          45.0f + float(i * 7 % 90), "sku", QString("DW-%1").arg(100 + i));
            if (v.subtitles || v.longTexts)
                assign(*item, "subtitle", QString("Concepts and layout, %1 pages").arg(i + 2));
            for (int t = 0; t < 3; ++t) {
                const QString n = QString::number(t + 1);
                assign(*item, "isTax" + n + "Applied", t == 0 ? !v.noTaxes : v.allTaxes, "tax" + n + "Title",
                       settings.stringValue("tax" + n + "Title"), "tax" + n + "Percent", rates[t]);
            }
        }
        assign(*d, "tax1Percent", rates[0], "tax2Percent", rates[1], "tax3Percent", rates[2],
               "isShippingEnabled", v.shipping, "isDiscountEnabled", v.discountKind >= 0);
        if (v.shipping) {
            assign(*d, "shippingTitle", "Courier", "shippingAmount", 18.5f, "hasShippingSubtitle",
                   v.subtitles, "shippingSubtitle", "Printed proofs, next day");
        }
        if (v.discountKind >= 0) {
            assign(*d, "discountKind", v.discountKind, "discountAmount", 50.0f, "discountPercent", 0.1f,
                   "hasDiscountSubtitle", v.subtitles, "discountTitle", "Loyalty discount",
                   "discountSubtitle", "Thank you for five years");
        }
        Calculator(state).calculateInvoice(d);
        select(d);
        state.isReminderAction = v.reminder;
        if (v.reminder)
            preview.setReminderTexts(preview.defaultReminderTexts());
        return d;
    }

    // Renders the pages in parallel; the results in the order of the pages.
    QList<Result<QByteArray>> renderAll(const QStringList& pages, int paper)
    {
        settings.setValue("tempPaperSize", paper);
        renderer.setParallelPages(3);
        QList<std::optional<Result<QByteArray>>> results(pages.size());
        int done = 0;
        QEventLoop loop;
        for (int i = 0; i < pages.size(); ++i)
            renderer.render(preview.renderJob(pages[i]), [&, i](Result<QByteArray> r) {
                results[i] = std::move(r);
                if (++done == pages.size())
                    loop.quit();
            });
        if (done < pages.size())
            loop.exec();
        QList<Result<QByteArray>> out;
        for (auto& r : results)
            out.append(std::move(*r));
        return out;
    }

    void keep(const QString& name, const QByteArray& pdf, const QString& html)
    {
        const QString folder = qEnvironmentVariable("VORN_DESIGN_GALLERY");
        if (folder.isEmpty())
            return;
        writeFile(QDir(folder).filePath(name + ".pdf"), pdf);
        writeFile(QDir(folder).filePath(name + ".html"), html.toUtf8());
    }

    // Checks one printed document: every row once, headers on every page
    // with rows, the totals on the page of the last row.
    void checkPdf(const QString& name, const QByteArray& data, int items, const QSizeF& paper)
    {
        PdfInspector pdf(data);
        ASSERT_TRUE(pdf.isValid()) << name.toStdString();
        EXPECT_NEAR(pdf.pageSize().width(), paper.width(), 1.0) << name.toStdString();
        EXPECT_NEAR(pdf.pageSize().height(), paper.height(), 1.0) << name.toStdString();
        // Text extraction may space letters apart: compare without spaces.
        static const QRegularExpression space("\\s+");
        const QString header = settings.stringValue("locDescription").remove(space);
        const QString totalLabel = settings.stringValue("locTotal").remove(space);
        int lastRowPage = -1;
        int totalPage = -1;
        for (int page = 0; page < pdf.pageCount(); ++page) {
            const QString text = pdf.text(page).remove(space);
            static const QRegularExpression row("Item-(\\d\\d)");
            bool rows = false;
            for (auto it = row.globalMatch(text); it.hasNext();) {
                const int n = it.next().captured(1).toInt();
                rows = true;
                if (n == items)
                    lastRowPage = page;
            }
            if (rows) {
                EXPECT_TRUE(text.contains(header, Qt::CaseInsensitive))
                    << name.toStdString() << " page " << page + 1 << " has no header";
            }
            if (text.contains(totalLabel, Qt::CaseInsensitive))
                totalPage = page;
        }
        const QString all = pdf.allText().remove(space);
        for (int i = 1; i <= items; ++i)
            EXPECT_EQ(all.count(QString("Item-%1").arg(i, 2, 10, QLatin1Char('0'))), 1)
                << name.toStdString() << " row " << i;
        ASSERT_GE(totalPage, 0) << name.toStdString() << " has no total";
        if (items > 0) {
            EXPECT_EQ(totalPage, lastRowPage) << name.toStdString() << ": the totals left their last rows";
        }
    }
};

class BuiltInDesigns : public Designs, public ::testing::WithParamInterface<int>
{
};

TEST_P(BuiltInDesigns, PrintEveryDocumentCompletely)
{
    const Design design = builtIn(GetParam());
    ASSERT_FALSE(design.page.isEmpty()) << design.folder.toStdString();
    use(design);
    QList<Variant> all(std::begin(variants), std::end(variants));
    // Documents whose totals fall around a page break.
    for (int n = 9; n <= 33; ++n)
        all.append({"sweep", 1, n, false, false, false, true, 0});
    static const QRegularExpression token("%[A-Z][A-Z0-9]*%");
    for (int paper : {2, 0}) {
        QStringList pages;
        QStringList names;
        for (const Variant& v : all) {
            make(v);
            pages << preview.invoiceHTMLString();
            const bool sweep = QLatin1String(v.name) == QLatin1String("sweep");
            names << QString("Temp00%1-%2%3-%4")
                         .arg(GetParam())
                         .arg(QLatin1String(v.name), sweep ? QString::number(v.items) : QString(),
                              paper == 2 ? "a4" : "letter");
            EXPECT_FALSE(token.match(pages.last()).hasMatch())
                << names.last().toStdString() << " leaves "
                << token.match(pages.last()).captured().toStdString();
        }
        const QList<Result<QByteArray>> pdfs = renderAll(pages, paper);
        const QSizeF size = PdfRenderer::pageSize(paper).size(QPageSize::Point);
        for (int i = 0; i < pdfs.size(); ++i) {
            ASSERT_TRUE(pdfs[i].ok()) << names[i].toStdString();
            if (!names[i].contains(QLatin1String("sweep")) || qEnvironmentVariableIsSet("VORN_DESIGN_SWEEP"))
                keep(names[i], pdfs[i].value(), pages[i]);
            checkPdf(names[i], pdfs[i].value(), all[i].items, size);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Temp, BuiltInDesigns, ::testing::Range(1, 10));

} // namespace
} // namespace vorn::test
