#pragma once

#include "store/AppState.h"
#include "store/FileLocations.h"
#include "store/ObjectContext.h"
#include "store/Result.h"

#include <QObject>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace vorn {

class AssiController;
class BackupController;
class Clock;
class EInvoiceController;
class ExportController;
class InterchangeController;
class InvoicingControllers;
class PdfRenderer;
class PreviewController;
class Settings;
class UserInterface;

// The owner of everything that lives for the whole run: the store stack (the
// entity model, the store file and the one object context), the shared state
// of the main window, and the launch, save and quit protocols.
class AppDelegate : public QObject
{
    Q_OBJECT
public:
    AppDelegate(Settings& settings, UserInterface& ui, const Clock& clock, FileLocations locations,
                QObject* parent = nullptr);
    ~AppDelegate() override;

    AppState& state() { return m_state; }
    Settings& settings() const { return m_state.settings(); }
    UserInterface& ui() const { return m_state.ui(); }

    // The store stack, built once on first use. Failures are presented to the
    // user; the application then runs without a store (null context).
    const ObjectModel* managedObjectModel();
    SqliteStore* persistentStoreCoordinator();
    ObjectContext* managedObjectContext();
    QString applicationFilesDirectory() const { return m_state.locations().filesDirectory; }
    // Puts a newly opened store file in place of the current one (after a
    // restore); the context forgets its objects and the lists fetch anew.
    void adoptStore(std::unique_ptr<SqliteStore> store);

    BackupController& backupController() { return *m_backup; }
    AssiController& assiController() { return *m_assi; }
    // Documents, numbers, arithmetic, items, shipping, discount, addresses, list filter.
    InvoicingControllers& invoicing() { return *m_invoicing; }
    // Output: one renderer for the preview, the export sheet and the design
    // preview, made on first use (the web engine starts with the first job).
    PdfRenderer& renderer();
    PreviewController& preview();
    ExportController& exporter();
    // E-invoices: Factur-X PDF and XRechnung XML; also what the PDF export
    // writes when Factur-X is the chosen PDF.
    EInvoiceController& einvoice();
    // Importing a document file; exporting the listed or all documents as XML.
    InterchangeController& interchange();
    // The reminder sheet's confirming button: the sheet closes and the
    // preview window shows the current invoice as a payment reminder.
    void generateReminder();
    // Whether launching runs the safety copy with its repair question and
    // opens the setup assistant's first run (the command-line tool does not).
    void setLaunchChecksEnabled(bool enabled) { m_launchChecks = enabled; }

    // Launch, in two halves as the window system calls them.
    void awakeFromNib();
    void applicationDidFinishLaunching();
    // Hook for seeding the built-in designs at first start.
    void setTemplateLoader(std::function<void()> loader) { m_loadTemplates = std::move(loader); }
    void loadTemplates();

    // Writes the English default list as real settings.
    void loadDefaults();
    // Writes the default list of a language (0 English, 1 German, 2 French,
    // 3 Spanish) as real settings.
    Status loadDefaults(int language);
    // A default list from the resources ("defaultPrefsEnglish" ...).
    static Result<QVariantMap> defaultList(const QString& name);
    static QString defaultListName(int language);

    void createBackupPath();
    void fadeViewIn();

    // The "Save" command.
    void saveAction();

    enum class TerminateReply
    {
        Now,
        Cancel
    };
    TerminateReply applicationShouldTerminate();
    // A file dropped on the application is never opened directly: a
    // readable one gets the note on importing, a damaged one the reader's
    // message.
    bool applicationOpenFile(const QString& path);
    // Whether a document, design or database file can be read (other files pass).
    static Status checkOpenedFile(const QString& path);
    bool applicationShouldHandleReopen() const { return true; }

Q_SIGNALS:
    void storeLoaded();

private:
    // A failed save is told to the user once, with its cause, until a save
    // succeeds again; the commands that present their own failure (Save,
    // Quit) are not told twice.
    void watchSaves();
    void saveFailed(const Error& error);
    // Saves for a command that presents its own failure.
    Status saveReportingFailure();
    bool m_saveFailureShown = false;
    bool m_presentsOwnSaveFailure = false;

    bool m_modelLoaded = false;
    bool m_coordinatorBuilt = false;
    bool m_contextBuilt = false;
    std::unique_ptr<SqliteStore> m_coordinator;
    std::unique_ptr<ObjectContext> m_context;
    AppState m_state;
    std::function<void()> m_loadTemplates;
    std::unique_ptr<BackupController> m_backup;
    std::unique_ptr<AssiController> m_assi;
    bool m_launchChecks = true;
    std::unique_ptr<InvoicingControllers> m_invoicing;
    std::unique_ptr<PdfRenderer> m_renderer;
    std::unique_ptr<PreviewController> m_preview;
    std::unique_ptr<ExportController> m_exporter;
    std::unique_ptr<EInvoiceController> m_einvoice;
    std::unique_ptr<InterchangeController> m_interchange;
};

} // namespace vorn
