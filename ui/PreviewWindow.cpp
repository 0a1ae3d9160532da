#include "ui/PreviewWindow.h"

#include "app/AppDelegate.h"
#include "output/ExportController.h"
#include "output/PreviewController.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "ui/MainWindow.h"
#include "ui/PdfPages.h"
#include "ui/UiLog.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPdfPageNavigator>
#include <QPdfView>
#include <QProgressBar>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>

namespace vorn {

namespace {

const QString kGeometryKey = QStringLiteral("previewWindowGeometry");
constexpr int kThumbnailWidth = 120;

} // namespace

PreviewWindow::PreviewWindow(AppDelegate& app, QWidget* parent) : QMainWindow(parent), m_app(app)
{
    setObjectName(QStringLiteral("previewWindow"));
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose, false);
    m_pages = new PdfPages(this);

    m_thumbnails = new QListWidget(this);
    m_thumbnails->setObjectName(QStringLiteral("pdfThumbnailView"));
    m_thumbnails->setAccessibleName(tr("Page thumbnails"));
    m_thumbnails->setViewMode(QListView::IconMode);
    m_thumbnails->setFlow(QListView::TopToBottom);
    m_thumbnails->setWrapping(false);
    m_thumbnails->setMovement(QListView::Static);
    m_thumbnails->setResizeMode(QListView::Adjust);
    m_thumbnails->setSpacing(8);
    m_thumbnails->setIconSize(QSize(kThumbnailWidth, kThumbnailWidth * 3 / 2));
    m_thumbnails->setFixedWidth(kThumbnailWidth + 48);
    m_thumbnails->setFrameShape(QFrame::NoFrame);

    m_view = new QPdfView(this);
    m_view->setObjectName(QStringLiteral("pdfView"));
    m_view->setAccessibleName(tr("Pages"));
    m_view->setDocument(m_pages->document());
    m_view->setPageMode(QPdfView::PageMode::MultiPage);
    m_view->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    m_view->setPageSpacing(12);
    m_view->setDocumentMargins(QMargins(16, 16, 16, 16));
    m_view->setBackgroundRole(QPalette::Dark);

    auto* pages = new QWidget(this);
    auto* pagesLayout = new QHBoxLayout(pages);
    pagesLayout->setContentsMargins(0, 0, 0, 0);
    pagesLayout->setSpacing(0);
    pagesLayout->addWidget(m_thumbnails);
    pagesLayout->addWidget(m_view, 1);

    m_placeholder = new QLabel(this);
    m_placeholder->setAlignment(Qt::AlignCenter);
    m_placeholder->setWordWrap(true);
    m_placeholder->setEnabled(false);

    m_stack = new QStackedWidget(this);
    m_stack->addWidget(m_placeholder);
    m_stack->addWidget(pages);
    setCentralWidget(m_stack);

    m_indicator = new QProgressBar(this);
    m_indicator->setObjectName(QStringLiteral("pdfIndicator"));
    m_indicator->setRange(0, 0);
    m_indicator->setMaximumWidth(140);
    m_indicator->setTextVisible(false);
    m_indicator->hide();
    m_pageLabel = new QLabel(this);
    statusBar()->addWidget(m_pageLabel, 1);
    statusBar()->addPermanentWidget(m_indicator);

    createToolBar();

    connect(m_thumbnails, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && row < m_pages->pageCount())
            m_view->pageNavigator()->jump(row, QPointF(), m_view->pageNavigator()->currentZoom());
    });
    connect(m_view->pageNavigator(), &QPdfPageNavigator::currentPageChanged, this, [this](int page) {
        QSignalBlocker block(m_thumbnails);
        m_thumbnails->setCurrentRow(page);
        if (m_pages->pageCount() > 0)
            m_pageLabel->setText(tr("Page %1 of %2").arg(page + 1).arg(m_pages->pageCount()));
    });

    PreviewController& preview = m_app.preview();
    connect(&preview, &PreviewController::previewWindowChanged, this, &PreviewWindow::setWindowShown);
    connect(&preview, &PreviewController::previewReady, this, &PreviewWindow::showPdf);
    connect(&preview, &PreviewController::generatingChanged, this, &PreviewWindow::setGenerating);
    connect(&preview, &PreviewController::previewFailed, this, [this] {
        if (m_stack->currentIndex() == 0)
            showPlaceholder(tr("The preview could not be made."));
    });
    connect(&m_app.state(), &AppState::currentInvoiceChanged, this, &PreviewWindow::updateTitle);

    const QByteArray geometry = m_app.settings().dataValue(kGeometryKey);
    if (geometry.isEmpty() || !restoreGeometry(geometry)) {
        QSize size(820, 900);
        if (QScreen* screen = QGuiApplication::primaryScreen())
            size = size.boundedTo(screen->availableGeometry().size() * 0.9);
        resize(size);
    }
    showPlaceholder(tr("Select a document to see how it will look on paper."));
    updateTitle();
}

PreviewWindow::~PreviewWindow()
{
    // The view renders pages on a thread of its own; it goes (and stops that
    // thread) before the document it reads from.
    m_view->setDocument(nullptr);
    delete m_view;
}

int PreviewWindow::pageCount() const
{
    return m_pages->pageCount();
}

void PreviewWindow::createToolBar()
{
    QToolBar* bar = MainWindow::addFixedToolBar(*this, tr("Preview"), QStringLiteral("previewToolBar"));

    const auto add = [this, bar](const char* theme, QStyle::StandardPixmap fallback, const QString& text,
                                 void (ExportController::*command)(bool)) {
        auto* action =
            bar->addAction(QIcon::fromTheme(QLatin1String(theme), style()->standardIcon(fallback)), text);
        // Commands of this window put their sheet on this window.
        connect(action, &QAction::triggered, this, [this, command] { (m_app.exporter().*command)(true); });
        return action;
    };
    add("document-print", QStyle::SP_DesktopIcon, tr("Print"), &ExportController::printInvoice);
    add("application-pdf", QStyle::SP_DriveFDIcon, tr("PDF"), &ExportController::pdfInvoice);
    add("mail-send", QStyle::SP_ArrowForward, tr("E-mail"), &ExportController::emailInvoice);
    add("document-export", QStyle::SP_DialogSaveButton, tr("Export"), &ExportController::exportInvoice);
    bar->addSeparator();
    QAction* zoomIn =
        bar->addAction(QIcon::fromTheme(QStringLiteral("zoom-in"), style()->standardIcon(QStyle::SP_ArrowUp)),
                       tr("Zoom In"));
    zoomIn->setShortcut(QKeySequence::ZoomIn);
    connect(zoomIn, &QAction::triggered, this, [this] {
        m_view->setZoomMode(QPdfView::ZoomMode::Custom);
        m_view->setZoomFactor(qMin(4.0, m_view->zoomFactor() * 1.25));
    });
    QAction* zoomOut = bar->addAction(
        QIcon::fromTheme(QStringLiteral("zoom-out"), style()->standardIcon(QStyle::SP_ArrowDown)),
        tr("Zoom Out"));
    zoomOut->setShortcut(QKeySequence::ZoomOut);
    connect(zoomOut, &QAction::triggered, this, [this] {
        m_view->setZoomMode(QPdfView::ZoomMode::Custom);
        m_view->setZoomFactor(qMax(0.25, m_view->zoomFactor() / 1.25));
    });
    QAction* fit = bar->addAction(QIcon::fromTheme(QStringLiteral("zoom-fit-width"),
                                                   style()->standardIcon(QStyle::SP_TitleBarMaxButton)),
                                  tr("Fit Width"));
    connect(fit, &QAction::triggered, this, [this] { m_view->setZoomMode(QPdfView::ZoomMode::FitToWidth); });
    auto* closeAction = new QAction(tr("Close"), this);
    closeAction->setShortcut(QKeySequence::Close);
    connect(closeAction, &QAction::triggered, this, &QWidget::close);
    addAction(closeAction);
}

void PreviewWindow::setWindowShown(bool visible)
{
    if (!visible) {
        m_closingFromController = true;
        close();
        m_closingFromController = false;
        return;
    }
    if (!isVisible()) {
        // Centred over the main window the first time, where it was after that.
        if (m_app.settings().dataValue(kGeometryKey).isEmpty()) {
            QWidget* anchor = parentWidget() ? parentWidget()->window() : nullptr;
            const QRect area =
                anchor ? anchor->frameGeometry() : (screen() ? screen()->availableGeometry() : QRect());
            QRect frame = frameGeometry();
            frame.moveCenter(area.center());
            move(frame.topLeft());
        }
        show();
    }
    if (!m_app.state().currentInvoice())
        showPlaceholder(tr("Select a document to see how it will look on paper."));
    raise();
    activateWindow();
}

void PreviewWindow::showPdf(const QString& path)
{
    if (!m_pages->load(path)) {
        showPlaceholder(tr("The preview could not be shown."));
        return;
    }
    m_stack->setCurrentIndex(1);
    m_view->setZoomMode(m_view->zoomMode());
    m_view->pageNavigator()->jump(0, QPointF(), m_view->pageNavigator()->currentZoom());
    fillThumbnails();
    m_pageLabel->setText(tr("Page %1 of %2").arg(1).arg(m_pages->pageCount()));
    updateTitle();
}

void PreviewWindow::fillThumbnails()
{
    m_thumbnails->clear();
    ++m_thumbnailGeneration;
    for (int page = 0; page < m_pages->pageCount(); ++page) {
        auto* item = new QListWidgetItem(QString::number(page + 1));
        item->setTextAlignment(Qt::AlignHCenter);
        item->setSizeHint(m_thumbnails->iconSize() + QSize(8, fontMetrics().height() + 8));
        m_thumbnails->addItem(item);
    }
    QSignalBlocker block(m_thumbnails);
    m_thumbnails->setCurrentRow(0);
    drawThumbnails(m_thumbnailGeneration, 0);
}

void PreviewWindow::drawThumbnails(quint64 generation, int first)
{
    // A long document gets its pictures a few pages at a time, so the window
    // stays responsive; a newer preview stops the older drawing.
    if (generation != m_thumbnailGeneration)
        return;
    const qreal ratio = devicePixelRatioF();
    const int last = qMin(first + 6, m_thumbnails->count());
    for (int page = first; page < last; ++page) {
        // The same picture when selected: the selection shows in the page
        // number, not as a tint over the page.
        const QPixmap picture = QPixmap::fromImage(m_pages->pageImage(page, m_thumbnails->iconSize(), ratio));
        QIcon icon(picture);
        icon.addPixmap(picture, QIcon::Selected);
        m_thumbnails->item(page)->setIcon(icon);
    }
    if (last < m_thumbnails->count())
        QTimer::singleShot(0, this, [this, generation, last] { drawThumbnails(generation, last); });
}

void PreviewWindow::setGenerating(bool generating)
{
    m_indicator->setVisible(generating);
    if (!generating)
        return;
    m_pageLabel->setText(tr("Making the preview…"));
    if (m_stack->currentIndex() == 0)
        m_placeholder->setText(tr("Making the preview…"));
}

void PreviewWindow::showPlaceholder(const QString& text)
{
    m_pages->clear();
    ++m_thumbnailGeneration;
    m_thumbnails->clear();
    m_placeholder->setText(text);
    m_stack->setCurrentIndex(0);
    m_pageLabel->clear();
}

void PreviewWindow::updateTitle()
{
    const ManagedObject* document = m_app.state().currentInvoice();
    const QString number = document ? document->stringValue(key::number) : QString();
    const QString title = document ? document->stringValue(key::title) : QString();
    QString name = tr("Preview");
    if (!title.isEmpty() || !number.isEmpty())
        name = tr("Preview – %1").arg(QStringList{title, number}.join(QLatin1Char(' ')).trimmed());
    setWindowTitle(name);
}

void PreviewWindow::closeEvent(QCloseEvent* event)
{
    m_app.settings().setValue(kGeometryKey, saveGeometry());
    // The views are emptied so that a later opening never flashes an old document.
    showPlaceholder(QString());
    event->accept();
    if (!m_closingFromController)
        m_app.preview().previewWindowClosed();
}

} // namespace vorn
