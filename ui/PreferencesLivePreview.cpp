#include "ui/PreferencesLivePreview.h"

#include "app/AppDelegate.h"
#include "output/DesignPreview.h"
#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/Settings.h"
#include "ui/UiLog.h"

#include <QBuffer>
#include <QLabel>
#include <QPdfDocument>
#include <QPdfView>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

namespace vorn {

PreferencesLivePreview::PreferencesLivePreview(AppDelegate& app, QWidget* parent)
    : QWidget(parent), m_app(app), m_view(new QPdfView(this)), m_document(new QPdfDocument(this)),
      m_status(new QLabel(this)), m_pause(new QTimer(this))
{
    m_view->setDocument(m_document);
    m_view->setPageMode(QPdfView::PageMode::MultiPage);
    m_view->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    m_view->setAccessibleName(tr("Design preview"));
    m_view->setFocusPolicy(Qt::StrongFocus);
    m_status->setAccessibleName(tr("Preview status"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_status);
    m_pause->setSingleShot(true);
    m_pause->setInterval(pauseMs);
    connect(m_pause, &QTimer::timeout, this, &PreferencesLivePreview::refresh);
}

PreferencesLivePreview::~PreferencesLivePreview()
{
    // Renders still under way find no preview to show.
    ++m_generation;
}

bool PreferencesLivePreview::isPending() const
{
    return m_rendering || m_pause->isActive();
}

void PreferencesLivePreview::schedule()
{
    m_pause->start();
}

void PreferencesLivePreview::refresh()
{
    m_pause->stop();
    if (!m_app.state().context())
        return;
    m_app.settings().setValue(QStringLiteral("isMainPreviewAction"), false);
    DesignPreview preview(m_app.preview());
    m_lastHtml = preview.invoiceHTMLString();
    const quint64 generation = ++m_generation;
    m_rendering = true;
    m_clock.start();
    m_status->setText(tr("Rendering…"));
    QPointer<PreferencesLivePreview> self(this);
    m_app.renderer().render(m_app.preview().renderJob(m_lastHtml),
                            [self, generation](Result<QByteArray> pdf) {
                                if (self)
                                    self->show(generation, pdf);
                            });
}

void PreferencesLivePreview::show(quint64 generation, const Result<QByteArray>& pdf)
{
    // A later change started another render: this one shows an old text.
    if (generation != m_generation)
        return;
    m_rendering = false;
    if (!pdf) {
        m_status->setText(tr("The preview could not be made: %1").arg(pdf.error().message));
        qCWarning(lcUi).noquote() << "design preview failed:" << pdf.error().fullText();
        Q_EMIT failed(pdf.error().message);
        return;
    }
    auto* buffer = new QBuffer(this);
    buffer->setData(pdf.value());
    buffer->open(QIODevice::ReadOnly);
    m_document->load(buffer);
    delete m_buffer;
    m_buffer = buffer;
    const qint64 elapsed = m_clock.elapsed();
    m_status->setText(tr("%n page(s)", nullptr, m_document->pageCount()));
    Q_EMIT refreshed(elapsed);
}

} // namespace vorn
