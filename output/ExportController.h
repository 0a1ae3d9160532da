#pragma once

#include "store/Result.h"

#include <QObject>

#include <functional>

namespace vorn {

class AppState;
class Calculator;
class ManagedObject;
class PreviewController;
class Settings;

// The four output actions of the main and preview windows (print, save as
// PDF, send by e-mail, export as a file) and the export sheet they share:
// each action renders the current document into the preview PDF and asks
// for the sheet; the sheet's confirming button runs exportCommand(), which
// carries the action out and may mark the invoice as sent.
class ExportController : public QObject
{
    Q_OBJECT
public:
    enum Kind : quint64
    {
        Print = 0,
        PdfFile = 1,
        Email = 2,
        DocumentExport = 3
    };

    struct MailMessage
    {
        QString subject;
        QString body;
        QString attachment; // a file path
        QString recipient;  // may be empty
    };
    // Hands a message to the user's mail program; false when that failed.
    using Mailer = std::function<bool(const MailMessage&)>;
    // What the PDF export writes for a document, given its rendered PDF
    // (a Factur-X file when the user chose so); an error writes nothing.
    using PdfFinisher = std::function<Result<QByteArray>(const ManagedObject&, const QByteArray&)>;

    // Marking an invoice as sent changes its status: the calculator computes
    // the invoice and the list totals anew.
    ExportController(AppState& state, PreviewController& preview, Calculator& calculator,
                     QObject* parent = nullptr);

    void setMailer(Mailer mailer) { m_mailer = std::move(mailer); }
    void setPdfFinisher(PdfFinisher finisher) { m_finishPdf = std::move(finisher); }
    // The default mailer: xdg-email with subject, body, attachment and recipient.
    static bool sendWithXdgEmail(const MailMessage& message);

    // The actions; fromPreviewWindow puts the sheet on the preview window.
    void printInvoice(bool fromPreviewWindow);
    void pdfInvoice(bool fromPreviewWindow);
    void emailInvoice(bool fromPreviewWindow);
    void exportInvoice(bool fromPreviewWindow);

    // Prepares the sheet on the preview window / on the main window.
    void exportAction();
    void loadExportPDF();
    // Renders the current document into the preview PDF for the sheet.
    void createExportPDF();
    void setOKEnabled();
    bool isOKEnabled() const { return m_okEnabled; }
    // The sheet's buttons.
    void exportCommand();
    void cancelExport();
    void sendEmail();

    // "name | title | number" of the current document.
    QString jobTitle() const;
    // The same of any document: the name of its print job and its files.
    static QString jobTitle(const Settings& settings, const ManagedObject* document);
    static QString emailBody();

Q_SIGNALS:
    // Show the export sheet (on the preview window or the main window).
    void exportSheetRequested(bool onPreviewWindow);
    void exportSheetEnded();
    // The sheet's thumbnail: cleared, then showing the new PDF.
    void exportPdfCleared();
    void exportPdfReady(const QString& path);
    void okEnabledChanged(bool enabled);

private:
    void begin(Kind kind, const QString& title, bool fromPreviewWindow);
    void prepareSheet(bool onPreviewWindow);
    void print();
    void savePdf();
    void exportDocument();
    void markAsSent();
    void setOK(bool enabled);

    AppState& m_state;
    PreviewController& m_preview;
    Mailer m_mailer;
    Calculator& m_calculator;
    PdfFinisher m_finishPdf;
    bool m_okEnabled = false;
    quint64 m_generation = 0;
};

} // namespace vorn
