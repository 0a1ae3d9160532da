#include "einvoice/EInvoiceController.h"

#include "einvoice/CiiWriter.h"
#include "einvoice/EInvoiceLog.h"
#include "einvoice/EInvoiceValidator.h"
#include "einvoice/FacturX.h"
#include "output/ExportController.h"
#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/AppState.h"
#include "store/AtomicFile.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

#include <QFileInfo>
#include <QPointer>

namespace vorn {

namespace {

// Refused by the rules of e-invoices: the user can put the data right.
constexpr int incompleteCode = 134200;

} // namespace

EInvoiceController::EInvoiceController(AppState& state, PreviewController& preview, QObject* parent)
    : QObject(parent), m_state(state), m_preview(preview)
{
}

EInvoiceData EInvoiceController::data(const ManagedObject& document, EInvoiceProfile profile) const
{
    return EInvoiceData::fromDocument(document, m_state.settings(), profile);
}

namespace {

Result<QByteArray> checkedXml(const EInvoiceData& invoice)
{
    const QStringList problems = EInvoiceValidator::problems(invoice);
    if (!problems.isEmpty())
        return Error::make(incompleteCode, problems.join(QLatin1Char(' ')));
    return CiiWriter::write(invoice);
}

} // namespace

Result<QByteArray> EInvoiceController::xml(const ManagedObject& document, EInvoiceProfile profile) const
{
    return checkedXml(data(document, profile));
}

Result<QByteArray> EInvoiceController::facturX(const ManagedObject& document, const QByteArray& pdf,
                                               EInvoiceProfile profile) const
{
    const EInvoiceData invoice = data(document, profile);
    Result<QByteArray> invoiceXml = checkedXml(invoice);
    if (!invoiceXml)
        return invoiceXml.error();
    FacturX::Metadata metadata;
    metadata.title = ExportController::jobTitle(m_state.settings(), &document);
    metadata.author = invoice.seller.name;
    if (profile == EInvoiceProfile::XRechnung)
        metadata.conformanceLevel = QStringLiteral("XRECHNUNG");
    metadata.created = m_state.clock().now();
    return FacturX::make(pdf, invoiceXml.value(), metadata);
}

Result<QByteArray> EInvoiceController::pdfForExport(const ManagedObject& document,
                                                    const QByteArray& pdf) const
{
    if (!m_state.settings().boolValue(key::prefsFacturXDefault) || !document.isInvoice())
        return pdf;
    return facturX(document, pdf);
}

void EInvoiceController::makeFacturX(EInvoiceProfile profile, Done done)
{
    ManagedObject* document = m_state.currentInvoice();
    if (!document) {
        done(Error::make(incompleteCode, tr("No invoice is selected.")));
        return;
    }
    // Checked before the page is rendered: a refusal costs nothing.
    Result<QByteArray> checked = xml(*document, profile);
    if (!checked) {
        done(checked.error());
        return;
    }
    const quint64 generation = ++m_generation;
    QPointer<EInvoiceController> self(this);
    const QString uniqueID = document->stringValue(key::uniqueID);
    m_preview.renderer().render(
        m_preview.renderJob(m_preview.invoiceHTMLString()),
        [self, generation, uniqueID, profile, done = std::move(done)](Result<QByteArray> pdf) {
            if (!self || generation != self->m_generation)
                return;
            ManagedObject* current = self->m_state.currentInvoice();
            if (!current || current->stringValue(key::uniqueID) != uniqueID) {
                done(Error::make(incompleteCode, tr("The invoice changed while its PDF was made.")));
                return;
            }
            if (!pdf) {
                done(pdf.error());
                return;
            }
            done(self->facturX(*current, pdf.value(), profile));
        });
}

bool EInvoiceController::refuseIfIncomplete(const Result<QByteArray>& checked)
{
    if (checked)
        return false;
    m_state.ui().runAlert({tr("The e-invoice cannot be made"),
                           checked.error().fullText(),
                           {tr("OK")},
                           UserInterface::AlertStyle::Warning,
                           true});
    Q_EMIT exportFinished(false);
    return true;
}

void EInvoiceController::exportXRechnung()
{
    const ManagedObject* document = m_state.currentInvoice();
    if (!document)
        return;
    const Result<QByteArray> checked = xml(*document, EInvoiceProfile::XRechnung);
    if (refuseIfIncomplete(checked))
        return;
    UserInterface::FilePanel panel;
    panel.title = tr("Export As XRechnung XML");
    panel.fileTypes = {QStringLiteral("xml")};
    panel.proposedName = ExportController::jobTitle(m_state.settings(), document);
    const std::optional<QString> target = m_state.ui().runSavePanel(panel);
    if (!target) {
        Q_EMIT exportFinished(false);
        return;
    }
    const Status written = AtomicFile::writeNew(*target, checked.value());
    if (!written)
        m_state.ui().presentError(written.error());
    Q_EMIT exportFinished(bool(written));
}

void EInvoiceController::exportFacturX()
{
    const ManagedObject* document = m_state.currentInvoice();
    if (!document)
        return;
    if (refuseIfIncomplete(xml(*document, EInvoiceProfile::En16931)))
        return;
    UserInterface::FilePanel panel;
    panel.title = tr("Export As E-Invoice (Factur-X PDF)");
    panel.fileTypes = {QStringLiteral("pdf")};
    panel.proposedName = ExportController::jobTitle(m_state.settings(), document);
    const std::optional<QString> target = m_state.ui().runSavePanel(panel);
    if (!target) {
        Q_EMIT exportFinished(false);
        return;
    }
    makeFacturX(EInvoiceProfile::En16931, [this, path = *target](Result<QByteArray> file) {
        Status written = file ? AtomicFile::writeNew(path, file.value()) : Status(file.error());
        if (!written) {
            qCWarning(lcEInvoice) << "Factur-X export failed:" << written.error().fullText();
            m_state.ui().presentError(written.error());
        }
        Q_EMIT exportFinished(bool(written));
    });
}

} // namespace vorn
