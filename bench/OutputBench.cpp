// Figures of document output, on the same machine in the same run:
//   (a) warm render latency of a 30-item, two-page invoice in the running
//       application: document -> HTML -> PDF file at the preview path,
//   (b) `vorn-cli pdf --all` throughput on 200 such documents,
//   (c) the same HTML through wkhtmltopdf and headless Chromium
//       (--print-to-pdf), per document, when they are installed.
// Targets: (a) at most 60 ms; (b) at least 30 documents per second.
//   build/bin/output_bench [--skip-external]

#include "app/AppDelegate.h"
#include "bench/BenchSupport.h"
#include "invoicing/InvoicingControllers.h"
#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/AtomicFile.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPdfDocument>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace vorn::bench {
namespace {

constexpr int itemsPerDocument = 30;
constexpr int batchDocuments = 200;
constexpr int warmRuns = 30;
constexpr int externalRuns = 10;

struct Stats
{
    double median = 0, p90 = 0, min = 0, max = 0;
};

Stats stats(std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    Stats s;
    if (ms.empty())
        return s;
    s.median = ms[ms.size() / 2];
    s.p90 = ms[std::min(ms.size() - 1, ms.size() * 9 / 10)];
    s.min = ms.front();
    s.max = ms.back();
    return s;
}

void print(const char* what, const Stats& s)
{
    std::printf("%-44s median %7.1f ms   p90 %7.1f ms   min %7.1f   max %7.1f\n", what, s.median, s.p90,
                s.min, s.max);
}

// A realistic invoice: 30 items with subtitles and taxes, shipping, discount.
ManagedObject* addInvoice(AppDelegate& app, int n)
{
    ObjectContext& context = *app.managedObjectContext();
    ManagedObject* d = context.insertNewObject(Entity::Invoice);
    d->setValue(QStringLiteral("kind"), 1);
    d->setValue(QStringLiteral("status"), 0);
    d->setValue(QStringLiteral("title"), QStringLiteral("Invoice"));
    d->setValue(QStringLiteral("number"), QStringLiteral("INV-2026-%1").arg(1000 + n));
    d->setValue(QStringLiteral("currency"), QStringLiteral("$"));
    d->setValue(QStringLiteral("address"),
                QStringLiteral("Erin Holloway\nQuarry & Sons Ltd.\n7 Quarry Lane\nFernwood CA 93024"));
    d->setValue(QStringLiteral("subject"), QStringLiteral("Spring campaign, part %1").arg(n));
    d->setValue(QStringLiteral("conditions"),
                app.settings().stringValue(QStringLiteral("tempInvConditions")));
    d->setValue(QStringLiteral("footer"), app.settings().stringValue(QStringLiteral("tempInvFooter")));
    d->setValue(QStringLiteral("tax1Percent"), 0.07f);
    d->setValue(QStringLiteral("isShippingEnabled"), true);
    d->setValue(QStringLiteral("shippingTitle"), QStringLiteral("Courier"));
    d->setValue(QStringLiteral("shippingAmount"), 18.5f);
    d->setValue(QStringLiteral("isShippingTax1Enabled"), true);
    d->setValue(QStringLiteral("isDiscountEnabled"), true);
    d->setValue(QStringLiteral("discountAmount"), 50.0f);
    for (int i = 1; i <= itemsPerDocument; ++i) {
        ManagedObject* item = context.insertNewObject(Entity::Item);
        item->setValue(QStringLiteral("title"), QStringLiteral("Design work, part %1").arg(i));
        if (i % 5 == 0)
            item->setValue(QStringLiteral("subtitle"), QStringLiteral("Concepts and layout"));
        item->setValue(QStringLiteral("unit"), QStringLiteral("h"));
        item->setValue(QStringLiteral("unitCount"), float(i % 4 + 1));
        item->setValue(QStringLiteral("baseAmount"), 45.0f + float(i * 7 % 90));
        item->setValue(QStringLiteral("isTax1Applied"), true);
        item->setValue(QStringLiteral("tax1Title"), QStringLiteral("Sales Tax"));
        item->setValue(QStringLiteral("tax1Percent"), 0.07f);
        d->insertObject(QStringLiteral("items"), item);
    }
    app.invoicing().calculator().calculateInvoiceAmounts(d);
    return d;
}

double pageCount(const QString& path)
{
    QPdfDocument pdf;
    pdf.load(path);
    return pdf.pageCount();
}

// Runs a program n times on the same input; the time per run.
std::vector<double> runExternal(const QString& program, const QStringList& arguments, int n,
                                const QString& output)
{
    std::vector<double> times;
    for (int i = 0; i < n; ++i) {
        QFile::remove(output);
        QElapsedTimer t;
        t.start();
        QProcess p;
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(program, arguments);
        if (!p.waitForFinished(120000) || !QFile::exists(output)) {
            std::fprintf(stderr, "%s failed: %s\n", qPrintable(program), p.readAll().left(400).constData());
            return {};
        }
        times.push_back(double(t.nsecsElapsed()) / 1e6);
    }
    return times;
}

int run(bool external)
{
    // VORN_BENCH_CACHE keeps the generated store between runs.
    QTemporaryDir scratch(QDir::tempPath() + QStringLiteral("/vorn-output-bench-XXXXXX"));
    const QString cache = qEnvironmentVariable("VORN_BENCH_CACHE");
    const QDir home(cache.isEmpty() ? scratch.path() : cache + QStringLiteral("/vorn-output-bench"));
    QDir().mkpath(home.path());
    useHome(home.path());
    const QString pdfFolder = home.filePath(QStringLiteral("pdfs"));
    QDir(pdfFolder).removeRecursively();

    // A store with 200 invoices of 30 items, made as the application makes it.
    if (!QFile::exists(FileLocations::fromEnvironment().storeFile())) {
        const FileLocations locations = FileLocations::fromEnvironment();
        Settings settings(locations.settingsFile());
        (void)settings.load();
        QuietUserInterface ui;
        AppDelegate app(settings, ui, Clock::system(), locations);
        app.setLaunchChecksEnabled(false);
        app.awakeFromNib();
        app.applicationDidFinishLaunching();
        for (int n = 0; n < batchDocuments; ++n)
            addInvoice(app, n);
        if (Status s = app.managedObjectContext()->save(); !s) {
            std::fprintf(stderr, "save failed: %s\n", qPrintable(s.error().fullText()));
            return 1;
        }
        app.applicationShouldTerminate();
    }

    const FileLocations locations = FileLocations::fromEnvironment();
    Settings settings(locations.settingsFile());
    (void)settings.load();
    QuietUserInterface ui;
    AppDelegate app(settings, ui, Clock::system(), locations);
    app.setLaunchChecksEnabled(false);
    app.awakeFromNib();
    app.applicationDidFinishLaunching();
    AppState& state = app.state();
    ManagedObject* document = state.invoicesController().arrangedObjects().first();
    state.invoicesController().setSelectedObjects({document});

    PdfRenderer renderer;
    PreviewController preview(state, renderer);
    std::printf("Document output: a %d-item invoice in the default design, %s paper\n", itemsPerDocument,
                qPrintable(PdfRenderer::paperName(settings.intValue(QStringLiteral("tempPaperSize")))));

    // (a) Warm latency: the first render starts the engine and is not counted.
    {
        QElapsedTimer cold;
        cold.start();
        preview.createPDF(renderer.renderNow(preview.renderJob(preview.invoiceHTMLString())));
        std::printf("%-44s %7.1f ms\n", "first render (engine start)", double(cold.nsecsElapsed()) / 1e6);
        std::printf("%-44s %7.0f\n", "pages", pageCount(state.pdfPath));
        std::vector<double> total, html;
        for (int i = 0; i < warmRuns; ++i) {
            QElapsedTimer t;
            t.start();
            const QString text = preview.invoiceHTMLString();
            html.push_back(double(t.nsecsElapsed()) / 1e6);
            preview.createPDF(renderer.renderNow(preview.renderJob(text)));
            total.push_back(double(t.nsecsElapsed()) / 1e6);
        }
        print("  of which HTML", stats(html));
        print("warm render, document to PDF file", stats(total));
    }

    // The HTML the external tools get: the same page.
    const QString htmlPath = home.filePath(QStringLiteral("invoice.html"));
    (void)AtomicFile::write(htmlPath, preview.invoiceHTMLString().toUtf8());

    // (b) vorn-cli pdf --all on 200 documents, start-up included.
    {
        const QString cli = QCoreApplication::applicationDirPath() + QStringLiteral("/vorn-cli");
        QElapsedTimer t;
        t.start();
        QProcess p;
        p.start(cli, {QStringLiteral("pdf"), QStringLiteral("--all"), pdfFolder});
        p.waitForFinished(600000);
        const double seconds = double(t.nsecsElapsed()) / 1e9;
        const int files = int(QDir(pdfFolder).entryList({QStringLiteral("*.pdf")}, QDir::Files).size());
        if (p.exitCode() != 0)
            std::fprintf(stderr, "vorn-cli: %s\n", p.readAllStandardError().constData());
        std::printf("%-44s %7d files in %.2f s = %.1f documents/s\n", "vorn-cli pdf --all", files, seconds,
                    files / seconds);
    }

    // (c) The same page through other engines.
    if (external) {
        const QString out = home.filePath(QStringLiteral("external.pdf"));
        const QString wk = QStandardPaths::findExecutable(QStringLiteral("wkhtmltopdf"));
        if (wk.isEmpty()) {
            std::printf("%-44s not installed\n", "wkhtmltopdf");
        } else {
            auto times = runExternal(wk,
                                     {QStringLiteral("--quiet"), QStringLiteral("--page-size"),
                                      QStringLiteral("Letter"), QStringLiteral("--enable-local-file-access"),
                                      htmlPath, out},
                                     externalRuns, out);
            if (!times.empty())
                print("wkhtmltopdf, per document", stats(times));
        }
        QString chromium = QStandardPaths::findExecutable(QStringLiteral("chromium"));
        if (chromium.isEmpty())
            chromium = QStandardPaths::findExecutable(QStringLiteral("chromium-browser"));
        if (chromium.isEmpty()) {
            std::printf("%-44s not installed\n", "chromium --print-to-pdf");
        } else {
            auto times = runExternal(
                chromium,
                {QStringLiteral("--headless"), QStringLiteral("--no-sandbox"),
                 QStringLiteral("--disable-gpu"), QStringLiteral("--no-pdf-header-footer"),
                 QStringLiteral("--print-to-pdf=") + out, QUrl::fromLocalFile(htmlPath).toString()},
                externalRuns, out);
            if (!times.empty())
                print("chromium --print-to-pdf, per document", stats(times));
        }
    }
    return 0;
}

} // namespace
} // namespace vorn::bench

int main(int argc, char** argv)
{
    vorn::PdfRenderer::prepareProcess(true);
    QGuiApplication application(argc, argv);
    const bool external = !QCoreApplication::arguments().contains(QStringLiteral("--skip-external"));
    return vorn::bench::run(external);
}
