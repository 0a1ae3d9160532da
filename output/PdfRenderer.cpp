#include "output/PdfRenderer.h"

#include "output/OutputLog.h"
#include "store/AtomicFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QPointer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>

#include <cstdio>
#include <optional>

#include <unistd.h>

namespace vorn {

// Refuses every request that is not the document itself or a file a job
// allows. Runs on the thread of the renderer.
class RequestGuard : public QWebEngineUrlRequestInterceptor
{
public:
    explicit RequestGuard(PdfRenderer& renderer) : m_renderer(renderer) {}

    void interceptRequest(QWebEngineUrlRequestInfo& info) override
    {
        if (m_renderer.isAllowed(info.requestUrl()))
            return;
        info.block(true);
        qCDebug(lcOutput) << "Blocked a request of a document:" << info.requestUrl().toString().left(200);
        Q_EMIT m_renderer.requestBlocked(info.requestUrl());
    }

private:
    PdfRenderer& m_renderer;
};

// A page that follows no navigation of its main frame but the one its job
// starts: no refresh or link leads the document elsewhere. Frames inside it
// may navigate; what they ask for is refused by the request guard and the
// local-content settings (refusing the navigation itself can leave the
// page loading forever).
class RenderPage : public QWebEnginePage
{
public:
    using QWebEnginePage::QWebEnginePage;

    void expectNavigation() { m_expecting = true; }

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) override
    {
        if (!isMainFrame)
            return true;
        if (m_expecting) {
            m_expecting = false;
            return true;
        }
        qCDebug(lcOutput) << "Refused a navigation of a document to" << url.toString().left(200);
        return false;
    }

private:
    bool m_expecting = false;
};

struct PdfRenderer::Slot
{
    std::unique_ptr<RenderPage> page;
    bool busy = false;
    bool printing = false;
    quint64 job = 0;
    Done done;
    QPageLayout layout;
    QStringList allowed;
    QString tempFile;
    QTimer watchdog;
};

namespace {

QString cleanPath(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

// A policy in the document itself refuses everything but inline styles and
// local or inline images and fonts before any request is made; this also
// keeps embedded objects from holding the load open forever.
const QString securityPolicy = QStringLiteral(
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src file: data:; "
    "style-src 'unsafe-inline' data:; font-src data:; object-src 'none'; frame-src 'none'; media-src 'none'; "
    "script-src 'none'; form-action 'none'; base-uri 'none'\">");

const QString printOnly = QStringLiteral("<style>@media screen { html { display: none } }</style>");

Error renderError(const QString& reason)
{
    return Error::make(ErrorCode::FileWriteUnknown,
                       QCoreApplication::translate("PdfRenderer", "The PDF could not be made."), reason);
}

} // namespace

PdfRenderer::PdfRenderer(QObject* parent) : QObject(parent) {}

PdfRenderer::~PdfRenderer()
{
    for (auto& slot : m_slots) {
        slot->watchdog.stop();
        slot->page.reset();
        if (!slot->tempFile.isEmpty())
            QFile::remove(slot->tempFile);
    }
    m_slots.clear();
    delete m_profile;
    if (!m_tempDirectory.isEmpty())
        QDir(m_tempDirectory).removeRecursively();
}

QString PdfRenderer::paperName(qint64 paperSize)
{
    switch (paperSize) {
    case 1:
        return QStringLiteral("na-legal");
    case 2:
        return QStringLiteral("iso-a4");
    case 3:
        return QStringLiteral("jis-b4");
    case 4:
        return QStringLiteral("jis-b5");
    default:
        return QStringLiteral("na-letter");
    }
}

QPageSize PdfRenderer::pageSize(qint64 paperSize)
{
    switch (paperSize) {
    case 1:
        return QPageSize(QPageSize::Legal);
    case 2:
        return QPageSize(QPageSize::A4);
    case 3:
        return QPageSize(QPageSize::JisB4);
    case 4:
        return QPageSize(QPageSize::JisB5);
    default:
        return QPageSize(QPageSize::Letter);
    }
}

QPageLayout PdfRenderer::pageLayout(qint64 paperSize)
{
    return QPageLayout(pageSize(paperSize), QPageLayout::Portrait, QMarginsF(40, 40, 40, 60),
                       QPageLayout::Point);
}

QString PdfRenderer::withSecurityPolicy(const QString& html)
{
    // After a doctype, so that the document keeps its standards mode; the
    // parser files the elements into the head either way.
    static const QRegularExpression doctype(QStringLiteral("^\\s*(<!--.*?-->\\s*)*<!doctype[^>]*>"),
                                            QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = doctype.match(html);
    const qsizetype at = match.hasMatch() ? match.capturedEnd() : 0;
    // The page is laid out for print in any case; a layout for the screen
    // first is wasted work. A document whose styles load fonts or images
    // keeps it, since those load only for what is laid out and must have
    // arrived before printing begins.
    const bool loadsFromStyles = html.contains(QLatin1String("url("), Qt::CaseInsensitive) ||
                                 html.contains(QLatin1String("@font-face"), Qt::CaseInsensitive) ||
                                 html.contains(QLatin1String("@import"), Qt::CaseInsensitive);
    return html.left(at) + securityPolicy + (loadsFromStyles ? QString() : printOnly) + html.mid(at);
}

namespace {

QtMessageHandler previousHandler = nullptr;

void quietMessageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool ours = context.category && qstrncmp(context.category, "vorn.", 5) == 0;
    if (!ours && (type == QtDebugMsg || type == QtInfoMsg || type == QtWarningMsg))
        return;
    if (previousHandler)
        previousHandler(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

} // namespace

bool PdfRenderer::isAvailable()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

void PdfRenderer::prepareProcess(bool headless)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    if (headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The engine's sandbox refuses to run as root; documents cannot run code
    // or reach anything anyway.
    if (::getuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext.info=false"));
    if (headless) {
        // A command-line run keeps its error output to its own messages:
        // the engine's start-up notes and the platform's go unsaid.
        QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
        if (!flags.contains("--log-level"))
            qputenv("QTWEBENGINE_CHROMIUM_FLAGS", (flags + " --log-level=3").trimmed());
        previousHandler = qInstallMessageHandler(quietMessageHandler);
    }
}

void PdfRenderer::setParallelPages(int pages)
{
    m_parallelPages = qBound(1, pages, 16);
    startNext();
}

void PdfRenderer::ensureProfile()
{
    if (m_profile)
        return;
    // No storage name: nothing of a document is kept on disk.
    m_profile = new QWebEngineProfile(this);
    m_profile->setHttpCacheType(QWebEngineProfile::NoCache);
    m_profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    m_profile->setSpellCheckEnabled(false);
    m_guard = std::make_unique<RequestGuard>(*this);
    m_profile->setUrlRequestInterceptor(m_guard.get());

    QWebEngineSettings* s = m_profile->settings();
    s->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    s->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    s->setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    s->setAttribute(QWebEngineSettings::LocalStorageEnabled, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
    s->setAttribute(QWebEngineSettings::HyperlinkAuditingEnabled, false);
    s->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    s->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    s->setAttribute(QWebEngineSettings::WebGLEnabled, false);
    s->setAttribute(QWebEngineSettings::Accelerated2dCanvasEnabled, false);
    s->setAttribute(QWebEngineSettings::AutoLoadIconsForPage, false);
    s->setAttribute(QWebEngineSettings::TouchIconsEnabled, false);
    s->setAttribute(QWebEngineSettings::PrintElementBackgrounds, true);
    s->setAttribute(QWebEngineSettings::AllowRunningInsecureContent, false);
    s->setAttribute(QWebEngineSettings::DnsPrefetchEnabled, false);
    s->setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
    s->setAttribute(QWebEngineSettings::ScreenCaptureEnabled, false);
    s->setAttribute(QWebEngineSettings::ShowScrollBars, false);

    QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/vorn-render-XXXXXX"));
    dir.setAutoRemove(false);
    if (dir.isValid())
        m_tempDirectory = dir.path();
}

std::unique_ptr<RenderPage> PdfRenderer::makePage()
{
    auto page = std::make_unique<RenderPage>(m_profile);
    // A page without a view is hidden and would be throttled by the engine.
    page->setVisible(true);
    return page;
}

bool PdfRenderer::isAllowed(const QUrl& url) const
{
    const QString scheme = url.scheme();
    if (scheme == QLatin1String("data") || scheme == QLatin1String("about"))
        return true;
    if (!url.isLocalFile())
        return false;
    const QString path = cleanPath(url.toLocalFile());
    for (const auto& slot : m_slots) {
        if (slot->busy && (slot->allowed.contains(path) || path == slot->tempFile))
            return true;
    }
    return false;
}

PdfRenderer::Slot* PdfRenderer::idleSlot()
{
    for (auto& slot : m_slots)
        if (!slot->busy)
            return slot.get();
    if (int(m_slots.size()) >= m_parallelPages)
        return nullptr;
    auto slot = std::make_unique<Slot>();
    Slot* s = slot.get();
    s->watchdog.setSingleShot(true);
    connect(&s->watchdog, &QTimer::timeout, this, [this, s] {
        qCWarning(lcOutput) << "A document took too long to lay out; its page is replaced";
        s->page.reset();
        finish(*s, renderError(tr("Laying out the document took too long.")));
    });
    m_slots.push_back(std::move(slot));
    return s;
}

void PdfRenderer::render(Job job, Done done)
{
    if (!isAvailable()) {
        done(renderError(tr("Rendering needs the graphical application object.")));
        return;
    }
    ensureProfile();
    m_queue.push_back(Pending{std::move(job), std::move(done)});
    startNext();
}

void PdfRenderer::startNext()
{
    while (!m_queue.empty()) {
        Slot* slot = idleSlot();
        if (!slot)
            return;
        Pending next = std::move(m_queue.front());
        m_queue.pop_front();
        start(*slot, std::move(next));
    }
}

void PdfRenderer::start(Slot& slot, Pending pending)
{
    if (!slot.page) {
        slot.page = makePage();
        Slot* s = &slot;
        connect(slot.page.get(), &QWebEnginePage::loadStarted, this,
                [s] { qCDebug(lcOutput) << "Load started, job" << s->job; });
        connect(slot.page.get(), &QWebEnginePage::loadFinished, this, [this, s](bool ok) {
            qCDebug(lcOutput) << "Load finished, job" << s->job << ok;
            loadFinished(*s, ok);
        });
        connect(slot.page.get(), &QWebEnginePage::renderProcessTerminated, this, [this, s] {
            if (s->busy)
                finish(*s, renderError(tr("The layout engine stopped unexpectedly.")));
        });
    }
    slot.busy = true;
    slot.printing = false;
    slot.job = m_nextJob++;
    slot.done = std::move(pending.done);
    slot.layout = pending.job.layout;
    slot.allowed.clear();
    for (const QString& file : std::as_const(pending.job.allowedFiles))
        slot.allowed.append(cleanPath(file));
    slot.watchdog.start(m_timeoutMs);

    const QByteArray utf8 = withSecurityPolicy(pending.job.html).toUtf8();
    slot.page->expectNavigation();
    if (utf8.size() > inlineHtmlLimit) {
        slot.tempFile = cleanPath(m_tempDirectory + QStringLiteral("/document-%1.html").arg(slot.job));
        if (Status s = AtomicFile::write(slot.tempFile, utf8); !s) {
            slot.tempFile.clear();
            finish(slot, renderError(s.error().fullText()));
            return;
        }
        slot.page->load(QUrl::fromLocalFile(slot.tempFile));
    } else {
        // A file address as base gives the document a local origin, which is
        // what lets it show the logo file and nothing remote.
        slot.page->setContent(utf8, QStringLiteral("text/html;charset=UTF-8"),
                              QUrl::fromLocalFile(m_tempDirectory + QStringLiteral("/document.html")));
    }
}

void PdfRenderer::loadFinished(Slot& slot, bool ok)
{
    if (!slot.busy || slot.printing)
        return;
    if (!ok) {
        finish(slot, renderError(tr("The document could not be laid out.")));
        return;
    }
    slot.printing = true;
    const quint64 job = slot.job;
    QPointer<PdfRenderer> self(this);
    Slot* s = &slot;
    slot.page->printToPdf(
        [self, s, job](const QByteArray& pdf) {
            if (!self || !s->busy || s->job != job)
                return;
            qCDebug(lcOutput) << "Printed, job" << job << pdf.size() << "bytes";
            if (pdf.isEmpty())
                self->finish(*s, renderError(tr("The layout engine did not print the document.")));
            else
                self->finish(*s, pdf);
        },
        slot.layout);
}

void PdfRenderer::finish(Slot& slot, Result<QByteArray> result)
{
    if (!slot.busy)
        return;
    slot.watchdog.stop();
    slot.busy = false;
    slot.printing = false;
    slot.allowed.clear();
    if (!slot.tempFile.isEmpty()) {
        QFile::remove(slot.tempFile);
        slot.tempFile.clear();
    }
    Done done = std::move(slot.done);
    slot.done = nullptr;
    // Later jobs start before this one is reported, so a caller waiting on
    // several jobs keeps every page busy.
    QTimer::singleShot(0, this, [this] { startNext(); });
    if (done)
        done(std::move(result));
}

Result<QByteArray> PdfRenderer::renderNow(Job job)
{
    std::optional<Result<QByteArray>> result;
    QEventLoop loop;
    render(std::move(job), [&result, &loop](Result<QByteArray> r) {
        result = std::move(r);
        loop.quit();
    });
    if (!result)
        loop.exec();
    return std::move(*result);
}

Status PdfRenderer::renderToFile(Job job, const QString& path)
{
    Result<QByteArray> pdf = renderNow(std::move(job));
    if (!pdf)
        return pdf.error();
    return AtomicFile::write(path, pdf.value());
}

} // namespace vorn
