#include "ui/ExportSheet.h"

#include "app/AppDelegate.h"
#include "output/ExportController.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "ui/PdfPages.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorn {

namespace {

const QSize kThumbnailBox(180, 240);

} // namespace

ExportSheet::ExportSheet(AppDelegate& app, QWidget* parent) : QDialog(parent), m_app(app)
{
    setObjectName(QStringLiteral("exportSheet"));
    setWindowModality(Qt::WindowModal);
    m_pages = new PdfPages(this);

    m_title = new QLabel(this);
    QFont titleFont = m_title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.2);
    m_title->setFont(titleFont);

    m_thumbnail = new QLabel(this);
    m_thumbnail->setObjectName(QStringLiteral("exportPdfView"));
    m_thumbnail->setFixedSize(kThumbnailBox + QSize(8, 8));
    m_thumbnail->setAlignment(Qt::AlignCenter);
    m_thumbnail->setFrameShape(QFrame::StyledPanel);
    m_thumbnail->setBackgroundRole(QPalette::Dark);
    m_thumbnail->setAutoFillBackground(true);

    m_details = new QLabel(this);
    m_details->setWordWrap(true);
    m_details->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_details->setMinimumWidth(240);

    m_buttons = new QDialogButtonBox(this);
    m_ok = m_buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName(QStringLiteral("exportOKButton"));
    m_ok->setDefault(true);
    m_buttons->addButton(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &ExportSheet::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &ExportSheet::reject);

    auto* body = new QHBoxLayout;
    body->setSpacing(16);
    body->addWidget(m_thumbnail, 0, Qt::AlignTop);
    body->addWidget(m_details, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addSpacing(6);
    layout->addLayout(body);
    layout->addSpacing(6);
    layout->addWidget(m_buttons);

    ExportController& exporter = m_app.exporter();
    connect(&exporter, &ExportController::exportPdfCleared, this, &ExportSheet::clearPdf);
    connect(&exporter, &ExportController::exportPdfReady, this, &ExportSheet::showPdf);
    connect(&exporter, &ExportController::okEnabledChanged, m_ok, &QWidget::setEnabled);
    connect(&exporter, &ExportController::exportSheetEnded, this, [this] {
        m_ending = true;
        QDialog::done(QDialog::Accepted);
        m_ending = false;
    });
    m_ok->setEnabled(exporter.isOKEnabled());
}

ExportSheet::~ExportSheet() = default;

void ExportSheet::present(QWidget* window)
{
    // A command of the other window while the sheet is open takes it over
    // where it is.
    if (isVisible()) {
        updateTexts();
        raise();
        return;
    }
    if (window && parentWidget() != window) {
        setParent(window, windowFlags());
        setWindowModality(Qt::WindowModal);
    }
    updateTexts();
    adjustSize();
    open();
    // Return confirms once the PDF is there; until then the focus waits on it.
    m_ok->setFocus(Qt::OtherFocusReason);
}

void ExportSheet::accept()
{
    if (m_ending)
        return;
    // The controller ends the sheet first, then carries the action out.
    m_app.exporter().exportCommand();
}

void ExportSheet::reject()
{
    if (m_ending)
        return;
    m_app.exporter().cancelExport();
}

void ExportSheet::clearPdf()
{
    m_pages->clear();
    m_thumbnail->setPixmap(QPixmap());
    m_thumbnail->setText(tr("Making the PDF…"));
    updateTexts();
}

void ExportSheet::showPdf(const QString& path)
{
    if (!m_pages->load(path)) {
        m_thumbnail->setText(tr("No PDF"));
        return;
    }
    m_thumbnail->setPixmap(QPixmap::fromImage(m_pages->pageImage(0, kThumbnailBox, devicePixelRatioF())));
    updateTexts();
}

void ExportSheet::updateTexts()
{
    const AppState& state = m_app.state();
    setWindowTitle(state.exportString);
    m_title->setText(state.exportString);
    switch (state.exportKind) {
    case ExportController::Print:
        m_ok->setText(tr("Print…"));
        break;
    case ExportController::PdfFile:
        m_ok->setText(tr("Save…"));
        break;
    case ExportController::Email:
        m_ok->setText(tr("Write E-mail"));
        break;
    default:
        m_ok->setText(tr("Export…"));
        break;
    }

    const ManagedObject* document = state.currentInvoice();
    if (!document) {
        m_details->setText(tr("No document is selected."));
        return;
    }
    QStringList lines;
    const QString title = document->stringValue(key::title);
    const QString number = document->stringValue(key::number);
    lines << QStringLiteral("<b>%1</b>")
                 .arg(QStringList{title, number}.join(QLatin1Char(' ')).trimmed().toHtmlEscaped());
    if (m_pages->pageCount() > 0)
        lines << (m_pages->pageCount() == 1 ? tr("1 page") : tr("%1 pages").arg(m_pages->pageCount()));
    if (state.exportKind == ExportController::Email) {
        const QString address = document->stringValue(key::emailAddress);
        lines << (address.isEmpty() ? tr("Your mail program opens a new message with the PDF attached.")
                                    : tr("Your mail program opens a new message to %1 with the PDF attached.")
                                          .arg(address.toHtmlEscaped()));
    }
    if (document->isInvoice() && m_app.settings().boolValue(key::markInvoiceAsSent))
        lines << tr("The invoice will be marked as sent.");
    m_details->setText(lines.join(QStringLiteral("<br><br>")));
}

} // namespace vorn
