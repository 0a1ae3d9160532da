#pragma once

#include "einvoice/EInvoiceData.h"
#include "store/Result.h"

#include <QByteArray>
#include <QObject>

#include <functional>

namespace vorn {

class AppState;
class ManagedObject;
class PreviewController;

// The e-invoice exports of the current document: a Factur-X PDF (the page
// with the EN 16931 XML inside) and an XRechnung XML file. Each checks the
// invoice first and says what is missing before it asks where to save;
// nothing is written unless the whole file could be made.
class EInvoiceController : public QObject
{
    Q_OBJECT
public:
    using Done = std::function<void(Result<QByteArray>)>;

    EInvoiceController(AppState& state, PreviewController& preview, QObject* parent = nullptr);

    // The data of the document as it would be sent.
    EInvoiceData data(const ManagedObject& document, EInvoiceProfile profile) const;
    // The XML, or the problems found, in one error whose message lists them.
    Result<QByteArray> xml(const ManagedObject& document, EInvoiceProfile profile) const;
    // The rendered PDF of the document made into a Factur-X file carrying
    // the XML of the profile.
    Result<QByteArray> facturX(const ManagedObject& document, const QByteArray& pdf,
                               EInvoiceProfile profile = EInvoiceProfile::En16931) const;
    // Renders the current document and makes its Factur-X file.
    void makeFacturX(EInvoiceProfile profile, Done done);
    // What the PDF export writes for a document: a Factur-X file when that
    // is the user's choice and the document is an invoice, else the PDF.
    Result<QByteArray> pdfForExport(const ManagedObject& document, const QByteArray& pdf) const;

    // The File menu commands.
    void exportFacturX();
    void exportXRechnung();

Q_SIGNALS:
    void exportFinished(bool written);

private:
    bool refuseIfIncomplete(const Result<QByteArray>& xml);

    AppState& m_state;
    PreviewController& m_preview;
    quint64 m_generation = 0;
};

} // namespace vorn
