#include "output/ExportController.h"

#include "documents/InterchangeFile.h"
#include "invoicing/Calculator.h"
#include "output/OutputLog.h"
#include "output/PdfImageView.h"
#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/AppState.h"
#include "store/AtomicFile.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "store/UndoManager.h"
#include "store/UserInterface.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>

namespace vorn {

ExportController::ExportController(AppState& state, PreviewController& preview, Calculator& calculator,
                                   QObject* parent)
    : QObject(parent), m_state(state), m_preview(preview), m_mailer(&ExportController::sendWithXdgEmail),
      m_calculator(calculator)
{
}

QString ExportController::jobTitle() const
{
    return jobTitle(m_state.settings(), m_state.currentInvoice());
}

QString ExportController::jobTitle(const Settings& settings, const ManagedObject* document)
{
    return QStringLiteral("%1 | %2 | %3")
        .arg(settings.stringValue(key::prefsName), document ? document->stringValue(key::title) : QString(),
             document ? document->stringValue(key::number) : QString());
}

QString ExportController::emailBody()
{
    return QStringLiteral("\n\n\n") + QString(96, QLatin1Char('-')) + QStringLiteral("\n\n");
}

void ExportController::printInvoice(bool fromPreviewWindow)
{
    // The footer of the printed pages shows the job title.
    m_state.settings().setValue(QStringLiteral("currentPrintJobTitle"), jobTitle());
    begin(Print, tr("Print Invoice"), fromPreviewWindow);
}

void ExportController::pdfInvoice(bool fromPreviewWindow)
{
    begin(PdfFile, tr("Export Invoice As PDF File"), fromPreviewWindow);
}

void ExportController::emailInvoice(bool fromPreviewWindow)
{
    begin(Email, tr("Send Invoice As Email Attachment"), fromPreviewWindow);
}

void ExportController::exportInvoice(bool fromPreviewWindow)
{
    begin(DocumentExport, tr("Export Invoice"), fromPreviewWindow);
}

void ExportController::begin(Kind kind, const QString& title, bool fromPreviewWindow)
{
    Q_EMIT exportPdfCleared();
    m_state.exportKind = kind;
    m_state.exportString = title;
    m_state.notifyStateChanged();
    if (fromPreviewWindow)
        exportAction();
    else
        loadExportPDF();
}

void ExportController::exportAction()
{
    prepareSheet(true);
}

void ExportController::loadExportPDF()
{
    prepareSheet(false);
}

void ExportController::prepareSheet(bool onPreviewWindow)
{
    setOK(false);
    createExportPDF();
    Q_EMIT exportSheetRequested(onPreviewWindow);
}

void ExportController::createExportPDF()
{
    m_state.pdfPath = m_state.locations().scratchPdf();
    if (!m_state.currentInvoice()) {
        setOKEnabled();
        return;
    }
    const quint64 generation = ++m_generation;
    QPointer<ExportController> self(this);
    m_preview.renderer().render(m_preview.renderJob(m_preview.invoiceHTMLString()),
                                [self, generation](Result<QByteArray> pdf) {
                                    if (!self || generation != self->m_generation)
                                        return;
                                    // The sheet can confirm once the PDF is made, or has failed.
                                    if (self->m_preview.createPDF(pdf))
                                        Q_EMIT self->exportPdfReady(self->m_state.pdfPath);
                                    self->setOKEnabled();
                                });
}

void ExportController::setOKEnabled()
{
    setOK(true);
}

void ExportController::setOK(bool enabled)
{
    if (m_okEnabled == enabled)
        return;
    m_okEnabled = enabled;
    Q_EMIT okEnabledChanged(enabled);
}

void ExportController::cancelExport()
{
    Q_EMIT exportSheetEnded();
}

void ExportController::exportCommand()
{
    Q_EMIT exportSheetEnded();
    if (!m_state.currentInvoice())
        return;
    switch (m_state.exportKind) {
    case Print:
        print();
        break;
    case PdfFile:
        savePdf();
        break;
    case Email:
        sendEmail();
        break;
    case DocumentExport:
        exportDocument();
        break;
    default:
        break;
    }
    markAsSent();
}

void ExportController::print()
{
    const Settings& settings = m_state.settings();
    m_state.pdfPath = m_state.locations().scratchPdf();
    PdfImageView view(settings);
    if (Status loaded = view.loadFromPath(m_state.pdfPath); !loaded) {
        m_state.ui().presentError(loaded.error());
        return;
    }
    const QString paper = PdfRenderer::paperName(settings.intValue(QStringLiteral("tempPaperSize")));
    const bool panels = settings.intValue(QStringLiteral("printBehavior")) == 1;
    m_state.ui().runPrintOperation(view.printJob(jobTitle(), paper, panels));
}

void ExportController::savePdf()
{
    UserInterface::FilePanel panel;
    panel.title = tr("Export As PDF File");
    panel.fileTypes = {QStringLiteral("pdf")};
    panel.proposedName = jobTitle();
    panel.canCreateFolders = true;
    const std::optional<QString> target = m_state.ui().runSavePanel(panel);
    if (!target || !QFile::exists(m_state.pdfPath))
        return;
    QFile source(m_state.pdfPath);
    if (!source.open(QIODevice::ReadOnly)) {
        m_state.ui().presentError(Error::make(ErrorCode::FileReadUnknown,
                                              tr("The PDF “%1” could not be read.").arg(m_state.pdfPath)));
        return;
    }
    QByteArray pdf = source.readAll();
    if (m_finishPdf) {
        Result<QByteArray> finished = m_finishPdf(*m_state.currentInvoice(), pdf);
        if (!finished) {
            m_state.ui().presentError(finished.error());
            return;
        }
        pdf = std::move(finished.value());
    }
    if (Status written = AtomicFile::writeNew(*target, pdf); !written)
        m_state.ui().presentError(written.error());
}

void ExportController::exportDocument()
{
    const ManagedObject& document = *m_state.currentInvoice();
    const bool xml = m_state.settings().intValue(QStringLiteral("exportFormat")) == 1;
    UserInterface::FilePanel panel;
    panel.title = xml ? tr("Export As XML Document") : tr("Export As Vorn Document");
    panel.fileTypes = {xml ? QStringLiteral("xml") : QStringLiteral("vorn")};
    panel.proposedName = jobTitle();
    panel.canCreateFolders = true;
    const std::optional<QString> target = m_state.ui().runSavePanel(panel);
    if (!target)
        return;
    Status written = xml ? InterchangeFile::writeDocumentXml(*target, document)
                         : InterchangeFile::writeDocumentFile(*target, document);
    if (!written)
        m_state.ui().presentError(written.error());
}

bool ExportController::sendWithXdgEmail(const MailMessage& message)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
    if (program.isEmpty())
        return false;
    QStringList arguments{QStringLiteral("--utf8"),
                          QStringLiteral("--subject"),
                          message.subject,
                          QStringLiteral("--body"),
                          message.body,
                          QStringLiteral("--attach"),
                          message.attachment};
    if (!message.recipient.isEmpty())
        arguments << message.recipient;
    return QProcess::startDetached(program, arguments);
}

void ExportController::sendEmail()
{
    const ManagedObject* document = m_state.currentInvoice();
    MailMessage message{jobTitle(), emailBody(), m_state.pdfPath,
                        document ? document->stringValue(key::emailAddress) : QString()};
    if (m_mailer && m_mailer(message))
        return;
    qCWarning(lcOutput) << "No mail program took the message";
    m_state.ui().runAlert(
        {tr("The e-mail could not be prepared"),
         tr("No mail program could be started. The PDF is shown in the file manager so that you "
            "can attach it to a message yourself."),
         {tr("OK")},
         UserInterface::AlertStyle::Warning,
         false});
    m_state.ui().openUrl(QUrl::fromLocalFile(QFileInfo(m_state.pdfPath).absolutePath()));
}

void ExportController::markAsSent()
{
    ManagedObject* document = m_state.currentInvoice();
    if (!document || !document->isInvoice() || !m_state.settings().boolValue(key::markInvoiceAsSent))
        return;
    {
        ObjectContext* context = m_state.context();
        UndoGroup group(context ? context->undoManager() : nullptr, tr("Mark as Sent"));
        document->setStatus(DocumentStatus::Sent);
    }
    m_state.invoicesController().rearrangeObjects();
    m_calculator.calculateInvoice(document);
}

} // namespace vorn
