#pragma once

#include "store/Result.h"

#include <QObject>
#include <QPageLayout>
#include <QSet>
#include <QStringList>

#include <deque>
#include <functional>
#include <memory>
#include <vector>

class QWebEngineProfile;

namespace vorn {

class RenderPage;
class RequestGuard;

// Lays HTML out off-screen and prints it into PDF data, without a display
// (the offscreen platform will do) and without any dialog. One renderer
// serves the application, the design preview and vorn-cli; its pages are
// kept between jobs, so only the first job pays for starting the engine.
//
// The renderer is locked down: JavaScript is off and every request is
// blocked except for the files a job names (the logo), so a document can
// neither run code nor reach the network, whatever its text contains.
// A job is printed as soon as its page reports that loading finished.
class PdfRenderer : public QObject
{
    Q_OBJECT
public:
    explicit PdfRenderer(QObject* parent = nullptr);
    ~PdfRenderer() override;

    // The papers of the "tempPaperSize" setting: 0 US Letter, 1 US Legal,
    // 2 A4, 3 JIS B4, 4 JIS B5; any other value US Letter.
    static QString paperName(qint64 paperSize);
    static QPageSize pageSize(qint64 paperSize);
    // The paper with margins of 40 points at the top, left and right and 60
    // at the bottom.
    static QPageLayout pageLayout(qint64 paperSize);

    struct Job
    {
        QString html;
        QPageLayout layout;
        // Local files the document may load (the logo); nothing else loads.
        QStringList allowedFiles;
    };
    using Done = std::function<void(Result<QByteArray>)>;

    // Queues a job; done runs on this thread's event loop with the PDF data
    // or an error. Jobs run on up to parallelPages() pages at once.
    void render(Job job, Done done);
    // Renders and waits (in a local event loop) for the result.
    Result<QByteArray> renderNow(Job job);
    // Renders and writes the PDF atomically: a complete file or none.
    Status renderToFile(Job job, const QString& path);

    void setParallelPages(int pages);
    int parallelPages() const { return m_parallelPages; }
    // Longest a job may take before it is given up.
    void setJobTimeout(int milliseconds) { m_timeoutMs = milliseconds; }
    // Documents larger than this (UTF-8 bytes) are loaded from a temporary
    // file rather than handed over in memory, which has a size limit.
    static constexpr qsizetype inlineHtmlLimit = 1500 * 1000;

    // The document as it is printed: with a security policy that refuses
    // every load but local and inline images, inline styles and inline
    // fonts, and, when its styles load nothing, kept from a screen layout.
    static QString withSecurityPolicy(const QString& html);

    // Whether rendering can work in this process (it needs a GUI application
    // object, though not a display).
    static bool isAvailable();
    // What the process must set before it creates its application object
    // to render: shared GL contexts, the sandbox switched off for root, the
    // offscreen platform when headless and no platform is chosen, and quiet
    // engine start-up logs.
    static void prepareProcess(bool headless);

Q_SIGNALS:
    // A request of a document was refused.
    void requestBlocked(const QUrl& url);

private:
    struct Pending
    {
        Job job;
        Done done;
    };
    struct Slot;
    friend class RequestGuard;

    void startNext();
    void start(Slot& slot, Pending pending);
    void loadFinished(Slot& slot, bool ok);
    void finish(Slot& slot, Result<QByteArray> result);
    Slot* idleSlot();
    bool isAllowed(const QUrl& url) const;
    void ensureProfile();
    std::unique_ptr<RenderPage> makePage();

    QWebEngineProfile* m_profile = nullptr;
    std::unique_ptr<RequestGuard> m_guard;
    std::vector<std::unique_ptr<Slot>> m_slots;
    std::deque<Pending> m_queue;
    QString m_tempDirectory;
    int m_parallelPages = 1;
    int m_timeoutMs = 120 * 1000;
    quint64 m_nextJob = 1;
};

} // namespace vorn
