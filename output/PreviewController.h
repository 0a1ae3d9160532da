#pragma once

#include "documents/Formatter.h"
#include "documents/TemplateValues.h"
#include "output/PdfRenderer.h"

#include <QObject>

namespace vorn {

class AppState;
class ManagedObject;

// Turns the current document into HTML through the default design, lays it
// out into the preview PDF and produces payment reminders. The preview
// window listens to its signals; it never shows anything itself except the
// alert of a failed PDF.
class PreviewController : public QObject
{
    Q_OBJECT
public:
    PreviewController(AppState& state, PdfRenderer& renderer, QObject* parent = nullptr);

    AppState& state() const { return m_state; }
    PdfRenderer& renderer() const { return m_renderer; }
    const Formatter& formatter() const { return m_formatter; }

    // The default design, or null (a failed fetch is presented to the user).
    ManagedObject* currentDesign();

    // The finished HTML of the current document in the default design.
    QString invoiceHTMLString();
    // The same for any document and its items in displayed order.
    QString documentHTMLString(const ManagedObject& document, const QList<ManagedObject*>& items);
    // The item rows of the current document, filled and joined.
    QString itemsList();
    // The items of a document in the order the item list shows them.
    QList<ManagedObject*> displayedItems(const ManagedObject& document) const;

    // The reminder sheet as it opens: the reminder label as title and the
    // reminder texts of the preferences.
    ReminderTexts defaultReminderTexts() const;
    // The texts of the reminder sheet, used while isReminderAction is set.
    void setReminderTexts(ReminderTexts texts) { m_reminder = std::move(texts); }
    const ReminderTexts& reminderTexts() const { return m_reminder; }

    // The page shown when there is no design to fill.
    static QString missingDesignPage();
    static QString missingTemplatePage();

    // The rendering job of a page of HTML on the paper of the settings.
    PdfRenderer::Job renderJob(const QString& html) const;

    // The preview window's command: closes the window when it is open,
    // otherwise opens it and makes a fresh preview.
    void showPreview();
    // The window was closed by other means (its close button).
    void previewWindowClosed();
    bool isPreviewWindowVisible() const { return m_windowVisible; }

    // Lays out the current document and makes the preview PDF.
    void generatePreview();
    // The same as a payment reminder with the sheet's texts, shown in the
    // preview window.
    void generateReminder(ReminderTexts texts);
    // Writes rendered PDF data to pdfPath (replacing the last one) and
    // reports the result; a failure shows the "Ooops!" alert.
    bool createPDF(const Result<QByteArray>& pdf);
    bool isGenerating() const { return m_generating; }

Q_SIGNALS:
    // The progress indicator of the preview.
    void generatingChanged(bool generating);
    // The preview PDF at path is ready to be shown.
    void previewReady(const QString& path);
    void previewFailed();
    // The preview window is to be shown (centred, in front) or closed.
    void previewWindowChanged(bool visible);

private:
    void generate();
    void setGenerating(bool generating);

    AppState& m_state;
    PdfRenderer& m_renderer;
    Formatter m_formatter;
    ReminderTexts m_reminder;
    bool m_generating = false;
    bool m_windowVisible = false;
    quint64 m_generation = 0;
};

} // namespace vorn
