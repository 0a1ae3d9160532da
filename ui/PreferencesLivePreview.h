#pragma once

#include "store/Result.h"

#include <QElapsedTimer>
#include <QWidget>

class QBuffer;
class QLabel;
class QPdfDocument;
class QPdfView;
class QTimer;

namespace vorn {

class AppDelegate;

// The builder's live preview: the default design filled with the sample
// document, rendered to PDF beside the editors. It renders once typing has
// paused; rendering runs in the web engine while the user types on, and a
// result that a later change made stale is dropped.
class PreferencesLivePreview : public QWidget
{
    Q_OBJECT
public:
    explicit PreferencesLivePreview(AppDelegate& app, QWidget* parent = nullptr);
    ~PreferencesLivePreview() override;

    // How long typing must pause before the preview renders.
    static constexpr int pauseMs = 300;

    // Something the preview shows changed: render after the pause.
    void schedule();
    // Render now.
    void refresh();

    QPdfDocument* document() const { return m_document; }
    QPdfView* view() const { return m_view; }
    // The HTML of the last render started.
    const QString& lastHtml() const { return m_lastHtml; }
    bool isRendering() const { return m_rendering; }
    // A render is waiting for typing to pause or under way.
    bool isPending() const;

Q_SIGNALS:
    // A preview is shown; milliseconds from the start of its render.
    void refreshed(qint64 elapsedMs);
    void failed(const QString& message);

private:
    void show(quint64 generation, const Result<QByteArray>& pdf);

    AppDelegate& m_app;
    QPdfView* m_view;
    QPdfDocument* m_document;
    QBuffer* m_buffer = nullptr;
    QLabel* m_status;
    QTimer* m_pause;
    QString m_lastHtml;
    QElapsedTimer m_clock;
    quint64 m_generation = 0;
    bool m_rendering = false;
};

} // namespace vorn
