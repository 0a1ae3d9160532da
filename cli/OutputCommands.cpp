#include "app/AppDelegate.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"
#include "cli/DocumentCommandSupport.h"
#include "invoicing/InvoicingControllers.h"
#include "output/DesignPreview.h"
#include "output/ExportController.h"
#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/AtomicFile.h"
#include "store/Keys.h"
#include "store/Settings.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QMutex>
#include <QSet>
#include <QThread>
#include <QThreadPool>

#include <functional>

namespace vorn {

namespace {

class OutputCommands
{
    Q_DECLARE_TR_FUNCTIONS(OutputCommands)
};

QString tr(const char* text)
{
    return OutputCommands::tr(text);
}

// The reminder options of html and pdf, taken out of args. Without
// --reminder the document is shown as itself.
struct ReminderOptions
{
    bool reminder = false;
    std::optional<QString> title;
    std::optional<QString> conditions;
    std::optional<QString> footer;
};

std::optional<ReminderOptions> takeReminderOptions(CommandContext& c, QStringList& args)
{
    ReminderOptions options;
    for (int i = 0; i < args.size();) {
        const QString arg = args[i];
        std::optional<QString>* target = nullptr;
        if (arg == QLatin1String("--reminder")) {
            options.reminder = true;
            args.removeAt(i);
            continue;
        }
        if (arg == QLatin1String("--title"))
            target = &options.title;
        else if (arg == QLatin1String("--conditions"))
            target = &options.conditions;
        else if (arg == QLatin1String("--footer"))
            target = &options.footer;
        if (!target) {
            ++i;
            continue;
        }
        if (i + 1 >= args.size()) {
            c.message = tr("%1 needs a text").arg(arg);
            return std::nullopt;
        }
        *target = args[i + 1];
        args.remove(i, 2);
    }
    if (!options.reminder && (options.title || options.conditions || options.footer)) {
        c.message = tr("--title, --conditions and --footer belong to --reminder");
        return std::nullopt;
    }
    return options;
}

// The document as the main window shows it once selected (with its items),
// as a reminder with the sheet's texts when asked.
void present(PreviewController& preview, const ReminderOptions& options)
{
    AppState& state = preview.state();
    state.isReminderAction = options.reminder;
    if (options.reminder) {
        ReminderTexts texts = preview.defaultReminderTexts();
        texts.title = options.title.value_or(texts.title);
        texts.conditions = options.conditions.value_or(texts.conditions);
        texts.footer = options.footer.value_or(texts.footer);
        preview.setReminderTexts(texts);
    }
}

int htmlCommand(CommandContext& c)
{
    QStringList args = c.args;
    auto options = takeReminderOptions(c, args);
    if (!options)
        return ExitCode::Usage;
    if (args.size() != 1)
        return c.usage(tr("usage: html DOC [--reminder [--title T] [--conditions C] [--footer F]]"));
    if (!DocumentCli::select(c, args[0]))
        return ExitCode::Usage;
    PreviewController& preview = c.app.preview();
    if (!DocumentCli::hasDesign(c, preview))
        return ExitCode::Failure;
    present(preview, *options);
    c.out = preview.invoiceHTMLString();
    return ExitCode::Done;
}

// A file name from a job title: no folder separators, no leading dot.
QString fileNameFor(QString title)
{
    title.replace(QLatin1Char('/'), QLatin1Char('-'));
    title.remove(QChar(0));
    if (title.startsWith(QLatin1Char('.')))
        title.prepend(QLatin1Char('_'));
    title = title.trimmed();
    return title.isEmpty() ? QStringLiteral("Document") : title;
}

int pdfAll(CommandContext& c, QStringList args)
{
    bool missing = false;
    const std::optional<QString> filter = DocumentCli::takeOption(args, QStringLiteral("--filter"), missing);
    if (missing || args.size() != 1)
        return c.usage(tr("usage: pdf --all OUTDIR [--filter TAG]"));
    quint64 tag = 0;
    if (filter) {
        bool ok = false;
        tag = filter->trimmed().toULongLong(&ok);
        if (!ok)
            return c.usage(tr("the filter tag must be a whole number from 0 to 8, not “%1”").arg(*filter));
    }
    const QString folder = QFileInfo(args[0]).absoluteFilePath();
    if (!QDir().mkpath(folder))
        return c.fail(tr("The folder “%1” could not be created.").arg(folder));

    // The documents the list shows with that filter, in its order.
    AppState& state = c.app.state();
    c.app.invoicing().filter().selectFilterAction(tag);
    const QList<ManagedObject*> documents = state.invoicesController().arrangedObjects();

    PdfRenderer& renderer = c.app.renderer();
    // The layout engine runs in its own processes: a page more than there
    // are cores keeps them busy while this process writes the files.
    renderer.setParallelPages(QThread::idealThreadCount() + 1);
    PreviewController& preview = c.app.preview();
    if (!DocumentCli::hasDesign(c, preview))
        return ExitCode::Failure;
    state.isReminderAction = false;

    const QString company = state.settings().stringValue(key::prefsName);
    QSet<QString> used;
    QStringList paths;
    for (ManagedObject* document : std::as_const(documents)) {
        const QString title =
            QStringLiteral("%1 | %2 | %3")
                .arg(company, document->stringValue(key::title), document->stringValue(key::number));
        QString name = fileNameFor(title);
        for (int n = 2; used.contains(name.toLower()); ++n)
            name = fileNameFor(title) + QStringLiteral(" (%1)").arg(n);
        used.insert(name.toLower());
        paths << QDir(folder).filePath(name + QStringLiteral(".pdf"));
    }

    // Every page of the renderer is kept busy: the next document's HTML is
    // made when a page frees up, and the files are written on worker threads
    // so the pages are never kept waiting for the disk.
    QMutex mutex;
    QStringList written;
    QString failure;
    auto record = [&](const QString& path, const Status& s) {
        QMutexLocker lock(&mutex);
        if (s)
            written << path;
        else if (failure.isEmpty())
            failure = s.error().fullText();
    };
    QThreadPool writers;
    qsizetype next = 0;
    int pending = 0;
    QEventLoop loop;
    std::function<void()> feed = [&] {
        while (next < documents.size() && pending < renderer.parallelPages()) {
            ManagedObject* document = documents[next];
            const QString path = paths[next++];
            ++pending;
            renderer.render(
                preview.renderJob(preview.documentHTMLString(*document, preview.displayedItems(*document))),
                [&, path](Result<QByteArray> pdf) {
                    --pending;
                    if (pdf) {
                        writers.start([&record, path, data = std::move(pdf.value())] {
                            record(path, AtomicFile::write(path, data));
                        });
                    } else {
                        record(path, pdf.error());
                    }
                    feed();
                    if (pending == 0 && next >= documents.size())
                        loop.quit();
                });
        }
    };
    feed();
    if (pending > 0)
        loop.exec();
    writers.waitForDone();
    written.sort();
    for (const QString& path : std::as_const(written))
        c.out += path + QLatin1Char('\n');
    if (!failure.isEmpty())
        return c.fail(failure);
    return ExitCode::Done;
}

int pdfCommand(CommandContext& c)
{
    QStringList args = c.args;
    if (args.contains(QStringLiteral("--all"))) {
        args.removeAll(QStringLiteral("--all"));
        return pdfAll(c, args);
    }
    auto options = takeReminderOptions(c, args);
    if (!options)
        return ExitCode::Usage;
    if (args.size() != 2)
        return c.usage(tr("usage: pdf DOC OUT.pdf [--reminder ...] | pdf --all OUTDIR [--filter TAG]"));
    if (!DocumentCli::select(c, args[0]))
        return ExitCode::Usage;

    PreviewController& preview = c.app.preview();
    if (!DocumentCli::hasDesign(c, preview))
        return ExitCode::Failure;
    present(preview, *options);

    // As the export sheet does: render into the preview PDF, then save it
    // where asked (never over an existing file; as Factur-X when that is the
    // chosen PDF) and mark the invoice sent.
    ExportController& exporter = c.app.exporter();
    bool rendered = false;
    QEventLoop loop;
    QObject::connect(&exporter, &ExportController::exportPdfReady, &loop, [&rendered] { rendered = true; });
    QObject::connect(&exporter, &ExportController::okEnabledChanged, &loop, [&loop](bool enabled) {
        if (enabled)
            loop.quit();
    });
    exporter.pdfInvoice(false);
    if (!exporter.isOKEnabled())
        loop.exec();
    if (!rendered)
        return c.fail(tr("The PDF could not be made."));
    c.ui.clear();
    c.ui.setPanelAnswer(QFileInfo(args[1]).absoluteFilePath());
    exporter.exportCommand();
    if (c.ui.errors().isEmpty())
        c.out = QFileInfo(args[1]).absoluteFilePath() + QLatin1Char('\n');
    return ExitCode::Done;
}

int designPreviewHtml(CommandContext& c)
{
    if (!c.args.isEmpty())
        return c.usage(tr("usage: design preview-html"));
    PreviewController& preview = c.app.preview();
    if (!DocumentCli::hasDesign(c, preview))
        return ExitCode::Failure;
    DesignPreview sample(preview);
    c.out = sample.invoiceHTMLString();
    return ExitCode::Done;
}

} // namespace

bool DocumentCli::hasDesign(CommandContext& c, PreviewController& preview)
{
    if (preview.currentDesign())
        return true;
    // Loading the designs may have said what is wrong with them.
    c.message = c.ui.errors().isEmpty()
                    ? tr("There is no default design: make one of the designs the default design first.")
                    : c.ui.errors().first().fullText();
    return false;
}

void registerOutputCommands(CommandRegistry& registry)
{
    registry.add({QStringLiteral("html"),
                  QStringLiteral("DOC [--reminder [--title T] [--conditions C] [--footer F]]"), false, true,
                  htmlCommand});
    registry.add({QStringLiteral("pdf"),
                  QStringLiteral("DOC OUT.pdf [--reminder ...] | pdf --all OUTDIR [--filter TAG]"), true,
                  true, pdfCommand});
    registry.add({QStringLiteral("design preview-html"), QString(), false, true, designPreviewHtml});
}

} // namespace vorn
