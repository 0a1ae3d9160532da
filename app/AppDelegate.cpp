#include "app/AppDelegate.h"

#include "app/AppLog.h"
#include "app/AssiController.h"
#include "app/BackupController.h"
#include "app/StoreSnapshot.h"
#include "designs/DesignController.h"
#include "documents/InterchangeFile.h"
#include "einvoice/EInvoiceController.h"
#include "invoicing/InvoicingControllers.h"
#include "output/ExportController.h"
#include "output/InterchangeController.h"
#include "output/PdfRenderer.h"
#include "output/PreviewController.h"
#include "store/Clock.h"
#include "store/PropertyList.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

Q_LOGGING_CATEGORY(lcApp, "vorn.app", QtInfoMsg)

namespace vorn {

namespace {

const QString errorDomain = QStringLiteral("YOUR_ERROR_DOMAIN");

} // namespace

AppDelegate::AppDelegate(Settings& settings, UserInterface& ui, const Clock& clock, FileLocations locations,
                         QObject* parent)
    : QObject(parent), m_state(settings, ui, clock, std::move(locations)),
      m_backup(std::make_unique<BackupController>(*this)), m_assi(std::make_unique<AssiController>(*this))
{
    // The English list declares every key's type and its default, which is
    // what a value of the wrong type reads as.
    if (auto english = defaultList(defaultListName(0)))
        settings.setDeclaredDefaults(english.value());
    m_invoicing = std::make_unique<InvoicingControllers>(m_state);
    setTemplateLoader([this] {
        if (Status s = DesignController(m_state).loadTemplates(); !s)
            m_state.ui().presentError(s.error());
    });
}

AppDelegate::~AppDelegate()
{
    m_interchange.reset();
    m_exporter.reset();
    m_einvoice.reset();
    m_preview.reset();
    m_renderer.reset();
    m_state.setContext(nullptr);
}

PdfRenderer& AppDelegate::renderer()
{
    if (!m_renderer)
        m_renderer = std::make_unique<PdfRenderer>();
    return *m_renderer;
}

PreviewController& AppDelegate::preview()
{
    if (!m_preview) {
        m_preview = std::make_unique<PreviewController>(m_state, renderer());
        // The preview shows one document; once the list changes it may no
        // longer be listed, so the window closes.
        connect(&m_invoicing->data(), &DataController::previewShouldClose, m_preview.get(),
                &PreviewController::previewWindowClosed);
    }
    return *m_preview;
}

ExportController& AppDelegate::exporter()
{
    if (!m_exporter) {
        m_exporter = std::make_unique<ExportController>(m_state, preview(), m_invoicing->calculator());
        m_exporter->setPdfFinisher([this](const ManagedObject& document, const QByteArray& pdf) {
            return einvoice().pdfForExport(document, pdf);
        });
    }
    return *m_exporter;
}

EInvoiceController& AppDelegate::einvoice()
{
    if (!m_einvoice)
        m_einvoice = std::make_unique<EInvoiceController>(m_state, preview());
    return *m_einvoice;
}

InterchangeController& AppDelegate::interchange()
{
    if (!m_interchange)
        m_interchange = std::make_unique<InterchangeController>(m_state);
    return *m_interchange;
}

void AppDelegate::generateReminder()
{
    GUIController& gui = m_invoicing->gui();
    const GUIController::ReminderSheet sheet = gui.reminderSheet();
    gui.cancelReminderSheet();
    preview().generateReminder({sheet.title, sheet.conditions, sheet.footer});
    gui.delayedToolbarLabel();
}

const ObjectModel* AppDelegate::managedObjectModel()
{
    // The model is compiled into the program, so it is always there.
    m_modelLoaded = true;
    return &ObjectModel::vorn();
}

SqliteStore* AppDelegate::persistentStoreCoordinator()
{
    if (m_coordinatorBuilt)
        return m_context ? m_context->store() : m_coordinator.get();
    m_coordinatorBuilt = true;

    const ObjectModel* model = managedObjectModel();
    if (!model) {
        qCWarning(lcApp).noquote() << QStringLiteral("%1:%2 No model to generate a store from")
                                          .arg(QLatin1String(metaObject()->className()),
                                               QLatin1String("persistentStoreCoordinator"));
        return nullptr;
    }

    const QString directory = applicationFilesDirectory();
    const QFileInfo info(directory);
    if (info.exists() && !info.isDir()) {
        ui().presentError(
            Error{errorDomain,
                  ErrorCode::NotAFolder,
                  tr("Expected a folder to store application data, found a file (%1).").arg(directory),
                  {}});
        return nullptr;
    }
    if (!info.exists() && !QDir().mkpath(directory)) {
        ui().presentError(Error::make(ErrorCode::FileWriteNoPermission,
                                      tr("The folder “%1” could not be created.").arg(directory),
                                      tr("You don't have permission to create it.")));
        return nullptr;
    }

    m_state.storeURL = m_state.locations().storeFile();
    auto store = SqliteStore::open(m_state.storeURL, *model);
    if (!store) {
        ui().presentError(store.error());
        return nullptr;
    }
    m_coordinator = std::move(store.value());
    return m_coordinator.get();
}

ObjectContext* AppDelegate::managedObjectContext()
{
    if (m_contextBuilt)
        return m_context.get();
    m_contextBuilt = true;
    if (!persistentStoreCoordinator()) {
        ui().presentError(Error{errorDomain, ErrorCode::StoreInitFailed, tr("Failed to initialize the store"),
                                tr("There was an error building up the data file.")});
        return nullptr;
    }
    m_context =
        std::make_unique<ObjectContext>(std::move(m_coordinator), m_state.clock(), *managedObjectModel());
    m_state.setContext(m_context.get());
    watchSaves();
    return m_context.get();
}

void AppDelegate::watchSaves()
{
    connect(m_context.get(), &ObjectContext::saveFailed, this, &AppDelegate::saveFailed);
    connect(m_context.get(), &ObjectContext::didSave, this, [this] { m_saveFailureShown = false; });
}

void AppDelegate::saveFailed(const Error& error)
{
    if (m_presentsOwnSaveFailure || m_saveFailureShown)
        return;
    m_saveFailureShown = true;
    ui().presentError(error);
}

Status AppDelegate::saveReportingFailure()
{
    const QScopedValueRollback quiet(m_presentsOwnSaveFailure, true);
    return m_context->save();
}

void AppDelegate::adoptStore(std::unique_ptr<SqliteStore> store)
{
    m_coordinatorBuilt = m_contextBuilt = true;
    if (m_context) {
        m_context->reset(std::move(store));
        return;
    }
    m_context = std::make_unique<ObjectContext>(std::move(store), m_state.clock(), *managedObjectModel());
    m_state.setContext(m_context.get());
    watchSaves();
}

void AppDelegate::awakeFromNib()
{
    createBackupPath();
    m_state.isReminderButtonHidden = true;
    if (!settings().boolValue(QStringLiteral("firstCenter"))) {
        ui().centerMainWindow();
        settings().setValue(QStringLiteral("firstCenter"), true);
    }
    managedObjectContext();
    m_state.pdfPath = m_state.locations().scratchPdf();
    m_state.notifyStateChanged();
}

void AppDelegate::applicationDidFinishLaunching()
{
    // First start: seed the designs and write the English settings. Not with
    // an unreadable settings file (which would seed a second time) nor without
    // a store (there would be nothing to seed into).
    if (!settings().boolValue(QStringLiteral("firstStartEverDone")) && !settings().isReadOnly() &&
        m_context) {
        loadTemplates();
        loadDefaults();
        settings().setValue(QStringLiteral("firstStartEverDone"), true);
        if (Status s = settings().synchronize(); !s)
            ui().presentError(s.error());
    }
    ui().showPreferencesWindow();
    // Once the store is loaded and before the first edit: the safety copy
    // (or the repair question), then the assistant's first run.
    if (m_launchChecks) {
        m_backup->createBackup();
        m_assi->openAssiAtFirstRun();
    }
    Q_EMIT storeLoaded();
}

void AppDelegate::loadTemplates()
{
    if (m_loadTemplates && m_context)
        m_loadTemplates();
}

QString AppDelegate::defaultListName(int language)
{
    switch (language) {
    case 1:
        return QStringLiteral("defaultPrefsGerman");
    case 2:
        return QStringLiteral("defaultPrefsFrench");
    case 3:
        return QStringLiteral("defaultPrefsSpanish");
    default:
        return QStringLiteral("defaultPrefsEnglish");
    }
}

Result<QVariantMap> AppDelegate::defaultList(const QString& name)
{
    QFile file(QStringLiteral(":/defaults/%1.plist").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return Error::make(ErrorCode::FileNotFound, tr("The default settings “%1” are missing.").arg(name));
    auto list = PropertyList::read(file.readAll());
    if (!list || list.value().typeId() != QMetaType::QVariantMap)
        return Error::make(ErrorCode::FileReadUnknown,
                           tr("The default settings “%1” are damaged.").arg(name));
    return list.value().toMap();
}

void AppDelegate::loadDefaults()
{
    if (Status s = loadDefaults(0); !s)
        ui().presentError(s.error());
}

Status AppDelegate::loadDefaults(int language)
{
    auto list = defaultList(defaultListName(language));
    if (!list)
        return list.error();
    settings().setValuesForKeys(list.value());
    return settings().synchronize();
}

void AppDelegate::createBackupPath()
{
    m_state.backupPath = m_state.locations().documentsDirectory + QStringLiteral("/Vorn_Backup.vndb");
}

void AppDelegate::fadeViewIn()
{
    const bool any = m_state.invoicesController().count() > 0;
    ui().selectToolbarItem(any ? QStringLiteral("infoItem") : QStringLiteral("addressItem"));
}

void AppDelegate::saveAction()
{
    if (!m_context)
        return;
    if (!m_context->commitEditing())
        qCWarning(lcApp).noquote() << QStringLiteral("%1:%2 unable to commit editing before saving")
                                          .arg(QLatin1String(metaObject()->className()),
                                               QLatin1String("saveAction:"));
    if (const Status saved = saveReportingFailure(); !saved)
        ui().presentError(saved.error());
}

AppDelegate::TerminateReply AppDelegate::applicationShouldTerminate()
{
    Settings& s = settings();
    const QList<ManagedObject*> documents =
        m_context ? m_context->fetch(Entity::Invoice) : QList<ManagedObject*>();
    s.setValue(QStringLiteral("fetchedObjectsCount"), qint64(documents.size()));

    auto finish = [&](bool fine) {
        s.setValue(QStringLiteral("isTerminatedFine"), fine);
        if (Status sync = s.synchronize(); !sync)
            qCWarning(lcApp) << sync.error().fullText();
        return fine ? TerminateReply::Now : TerminateReply::Cancel;
    };

    if (!m_context)
        return finish(true);
    if (!m_context->commitEditing()) {
        qCWarning(lcApp).noquote() << QStringLiteral("%1:%2 unable to commit editing to terminate")
                                          .arg(QLatin1String(metaObject()->className()),
                                               QLatin1String("applicationShouldTerminate:"));
        s.setValue(QStringLiteral("isTerminatedFine"), false);
        if (Status sync = s.synchronize(); !sync)
            qCWarning(lcApp) << sync.error().fullText();
        return TerminateReply::Cancel;
    }
    if (!m_context->hasChanges())
        return finish(true);
    const Status saved = saveReportingFailure();
    if (saved)
        return finish(true);
    if (ui().presentError(saved.error())) {
        s.setValue(QStringLiteral("isTerminatedFine"), false);
        if (Status sync = s.synchronize(); !sync)
            qCWarning(lcApp) << sync.error().fullText();
        return TerminateReply::Cancel;
    }
    // Both buttons quit: the answer is compared with a return code this
    // alert never gives.
    ui().runAlert({tr("Could not save changes while quitting. Quit anyway?"),
                   tr("Quitting now will lose any changes you have made since the last successful save"),
                   {tr("Quit anyway"), tr("Cancel")},
                   UserInterface::AlertStyle::Warning,
                   false});
    return finish(true);
}

Status AppDelegate::checkOpenedFile(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("vorn") || suffix == QLatin1String("design")) {
        const auto read = suffix == QLatin1String("vorn") ? InterchangeFile::readDocumentFile(path)
                                                          : InterchangeFile::readDesignFile(path);
        return read ? Status() : Status(read.error());
    }
    if (suffix == QLatin1String("vndb"))
        return StoreSnapshot::checkIntegrity(path);
    return {};
}

bool AppDelegate::applicationOpenFile(const QString& path)
{
    // A file the reader refuses is named with the reader's own message, so
    // the user knows the file itself is the problem, not the way it came in.
    if (Status readable = checkOpenedFile(path); !readable) {
        ui().presentError(readable.error());
        return true;
    }
    ui().runAlert(
        {tr("Vorn, Vorn Documents, and the Vorn Database"),
         tr("In order to avoid duplicate entries, hiccups, and to keep the database intact - please use "
            "the 'File Menu' to open documents and to restore the Vorn database."),
         {tr("OK")},
         UserInterface::AlertStyle::Informational,
         false});
    return true;
}

} // namespace vorn
