#include "ui/MainWindow.h"

#include "app/AppDelegate.h"
#include "app/BackupController.h"
#include "einvoice/EInvoiceController.h"
#include "invoicing/InvoicingControllers.h"
#include "output/ExportController.h"
#include "output/InterchangeController.h"
#include "output/PreviewController.h"
#include "store/Keys.h"
#include "store/Settings.h"
#include "store/UserInterface.h"
#include "ui/DocumentListModel.h"
#include "ui/DocumentListView.h"
#include "ui/ExportSheet.h"
#include "ui/HelpMenu.h"
#include "ui/PreferencesWindow.h"
#include "ui/PreviewWindow.h"
#include "ui/ReminderSheet.h"
#include "ui/SelectionSync.h"
#include "ui/UiLog.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

namespace vorn {

namespace {

const QString kGeometryKey = QStringLiteral("mainWindowGeometry");

} // namespace

MainWindow::MainWindow(AppDelegate& app, QWidget* parent) : QMainWindow(parent), m_app(app)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setUnifiedTitleAndToolBarOnMac(true);
    createActions();
    createDocumentActions();
    createMenus();
    createToolBar();
    createCentralArea();

    AppState& state = m_app.state();
    connect(&state, &AppState::contextChanged, this, &MainWindow::contextChanged);
    connect(&state, &AppState::totalsChanged, this, &MainWindow::updateTotals);
    connect(&m_app.settings(), &Settings::valueChanged, this, [this](const QString& key) {
        if (key == key::prefsCurrency)
            updateTotals();
    });
    connect(&state, &AppState::currentInvoiceChanged, this, &MainWindow::validateCommands);
    connect(&state, &AppState::stateChanged, this, &MainWindow::validateCommands);
    connect(&m_app.invoicing().gui(), &GUIController::toolbarChanged, this, &MainWindow::validateCommands);
    createOutputWindows();
    contextChanged();
    restoreFrame();
    HelpMenu::install(*this, m_app);
}

MainWindow::~MainWindow() = default;

void MainWindow::createActions()
{
    const auto icon = [this](const char* themeName, QStyle::StandardPixmap fallback) {
        return QIcon::fromTheme(QLatin1String(themeName), style()->standardIcon(fallback));
    };

    m_saveAction = new QAction(icon("document-save", QStyle::SP_DialogSaveButton), tr("&Save"), this);
    m_saveAction->setShortcut(QKeySequence::Save);
    m_saveAction->setStatusTip(tr("Save all changes to the database"));
    connect(m_saveAction, &QAction::triggered, this, [this] { m_app.saveAction(); });

    m_quitAction =
        new QAction(icon("application-exit", QStyle::SP_DialogCloseButton), tr("&Quit Vorn"), this);
    m_quitAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    m_quitAction->setMenuRole(QAction::QuitRole);
    connect(m_quitAction, &QAction::triggered, this, &QWidget::close);

    m_undoAction = new QAction(icon("edit-undo", QStyle::SP_ArrowBack), tr("&Undo"), this);
    m_undoAction->setShortcut(QKeySequence::Undo);
    connect(m_undoAction, &QAction::triggered, this, [this] {
        if (ObjectContext* context = m_app.state().context())
            context->undoManager()->undo();
        updateUndoActions();
    });

    m_redoAction = new QAction(icon("edit-redo", QStyle::SP_ArrowForward), tr("&Redo"), this);
    m_redoAction->setShortcut(QKeySequence::Redo);
    connect(m_redoAction, &QAction::triggered, this, [this] {
        if (ObjectContext* context = m_app.state().context())
            context->undoManager()->redo();
        updateUndoActions();
    });
}

void MainWindow::createMenus()
{
    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_fileMenu->setObjectName(QStringLiteral("fileMenu"));
    m_fileMenu->addAction(command(QStringLiteral("addInvoice")));
    m_fileMenu->addAction(command(QStringLiteral("addQuote")));
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_saveAction);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(command(QStringLiteral("showPreview")));
    m_fileMenu->addAction(command(QStringLiteral("printInvoice")));
    m_fileMenu->addAction(command(QStringLiteral("pdfInvoice")));
    m_fileMenu->addAction(command(QStringLiteral("emailInvoice")));
    m_fileMenu->addAction(command(QStringLiteral("exportInvoice")));
    m_fileMenu->addAction(command(QStringLiteral("exportFacturX")));
    m_fileMenu->addAction(command(QStringLiteral("exportXRechnung")));
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(command(QStringLiteral("importInvoice")));
    m_fileMenu->addAction(command(QStringLiteral("exportItems")));
    m_fileMenu->addAction(command(QStringLiteral("exportVornDataXML")));
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(command(QStringLiteral("backupVornData")));
    m_fileMenu->addAction(command(QStringLiteral("restoreVornData")));
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_quitAction);

    m_editMenu = menuBar()->addMenu(tr("&Edit"));
    m_editMenu->setObjectName(QStringLiteral("editMenu"));
    m_editMenu->addAction(m_undoAction);
    m_editMenu->addAction(m_redoAction);
    m_editMenu->addSeparator();
    m_editMenu
        ->addAction(tr("Preferences…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
                    [this] { PreferencesWindow::showShared(m_app, this); })
        ->setMenuRole(QAction::PreferencesRole);
    // Edits made in this pass of the event loop may not have announced
    // themselves yet.
    connect(m_editMenu, &QMenu::aboutToShow, this, &MainWindow::updateUndoActions);

    m_documentMenu = menuBar()->addMenu(tr("&Document"));
    m_documentMenu->setObjectName(QStringLiteral("documentMenu"));
    m_documentMenu->addAction(command(QStringLiteral("duplicateInvoice")));
    m_documentMenu->addAction(command(QStringLiteral("convertQuoteToInvoice")));
    m_documentMenu->addAction(command(QStringLiteral("setDispatched")));
    m_documentMenu->addSeparator();
    m_documentMenu->addAction(command(QStringLiteral("openReminderSheet")));
    m_documentMenu->addSeparator();
    m_documentMenu->addAction(command(QStringLiteral("deleteInvoice")));
    connect(m_documentMenu, &QMenu::aboutToShow, this, &MainWindow::validateCommands);
}

QToolBar* MainWindow::addFixedToolBar(QMainWindow& window, const QString& title, const QString& name)
{
    QToolBar* bar = window.addToolBar(title);
    bar->setObjectName(name);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize(QSize(24, 24));
    bar->toggleViewAction()->setEnabled(false);
    return bar;
}

void MainWindow::createToolBar()
{
    m_toolBar = addFixedToolBar(*this, tr("Toolbar"), QStringLiteral("mainToolBar"));
    m_toolBar->addAction(command(QStringLiteral("addInvoice")));
    m_toolBar->addAction(command(QStringLiteral("addQuote")));
    m_toolBar->addAction(command(QStringLiteral("deleteInvoice")));
    m_toolBar->addSeparator();
    m_toolBar->addAction(m_saveAction);
    m_toolBar->addAction(m_undoAction);
    m_toolBar->addAction(m_redoAction);
    m_toolBar->addSeparator();
    m_toolBar->addAction(command(QStringLiteral("showPreview")));
    m_toolBar->addAction(command(QStringLiteral("printInvoice")));
    m_toolBar->addAction(command(QStringLiteral("pdfInvoice")));
    m_toolBar->addAction(command(QStringLiteral("emailInvoice")));
    m_toolBar->addAction(command(QStringLiteral("openReminderSheet")));
}

QAction* MainWindow::addCommand(const QString& name, const char* theme, int fallback, const QString& text,
                                const QKeySequence& keys, std::function<void()> run)
{
    // Desktops without an icon theme get the style's own pictures.
    const QIcon icon =
        QIcon::fromTheme(QLatin1String(theme), style()->standardIcon(QStyle::StandardPixmap(fallback)));
    auto* action = new QAction(icon, text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [run = std::move(run)] { run(); });
    m_commands.insert(name, action);
    return action;
}

void MainWindow::presentFailure(const Status& status)
{
    // The exports only answer their failure; a file the user asked for and
    // did not get (a full disk, a read-only folder) must be told.
    if (!status)
        m_app.ui().presentError(status.error());
}

void MainWindow::createDocumentActions()
{
    InvoicingControllers& invoicing = m_app.invoicing();
    addCommand(QStringLiteral("addInvoice"), "document-new", QStyle::SP_FileIcon, tr("New &Invoice"),
               QKeySequence::New, [&invoicing] { invoicing.data().addInvoice(); })
        ->setIconText(tr("Invoice"));
    addCommand(QStringLiteral("addQuote"), "document-new", QStyle::SP_FileDialogNewFolder, tr("New &Quote"),
               QKeySequence(tr("Ctrl+Shift+N")), [&invoicing] { invoicing.data().addQuote(); })
        ->setIconText(tr("Quote"));
    addCommand(QStringLiteral("duplicateInvoice"), "edit-copy", QStyle::SP_FileDialogDetailedView,
               tr("D&uplicate"), QKeySequence(tr("Ctrl+D")),
               [&invoicing] { invoicing.data().duplicateInvoice(); });
    addCommand(QStringLiteral("convertQuoteToInvoice"), "document-edit", QStyle::SP_BrowserReload,
               tr("&Convert Quote to Invoice…"), {},
               [&invoicing] { invoicing.data().convertQuoteToInvoice(); });
    addCommand(QStringLiteral("setDispatched"), "mail-mark-read", QStyle::SP_DialogYesButton,
               tr("Mark as &Dispatched Now"), {}, [&invoicing] { invoicing.data().setDispatched(); });
    addCommand(QStringLiteral("deleteInvoice"), "edit-delete", QStyle::SP_TrashIcon, tr("Delete Invoice"),
               QKeySequence::Delete, [&invoicing] { invoicing.data().deleteInvoice(); });
    addCommand(QStringLiteral("openReminderSheet"), "appointment-soon", QStyle::SP_MessageBoxWarning,
               tr("Payment &Reminder…"), {}, [&invoicing] { invoicing.gui().openReminderSheet(); })
        ->setIconText(tr("Reminder"));

    // Documents and the database as files.
    addCommand(QStringLiteral("importInvoice"), "document-import", QStyle::SP_DialogOpenButton,
               tr("&Import Document…"), QKeySequence::Open, [this] { m_app.interchange().importInvoice(); });
    addCommand(QStringLiteral("exportItems"), "document-export", QStyle::SP_DialogSaveButton,
               tr("Export &Listed Documents as XML…"), {},
               [this] { presentFailure(m_app.interchange().exportItems()); });
    addCommand(QStringLiteral("exportVornDataXML"), "document-export", QStyle::SP_DialogSaveButton,
               tr("Export &All Documents as XML…"), {},
               [this] { presentFailure(m_app.interchange().exportVornDataXML()); });
    addCommand(QStringLiteral("backupVornData"), "document-save-as", QStyle::SP_DriveHDIcon,
               tr("&Back Up Database…"), {}, [this] { m_app.backupController().backupVornData(); });
    addCommand(QStringLiteral("restoreVornData"), "document-revert", QStyle::SP_BrowserReload,
               tr("&Restore Database…"), {}, [this] { m_app.backupController().restoreVornData(); });

    // The output commands of the main window put their sheet on it.
    addCommand(QStringLiteral("showPreview"), "document-print-preview", QStyle::SP_FileDialogContentsView,
               tr("Pre&view"), QKeySequence(tr("Ctrl+Y")), [this] { m_app.preview().showPreview(); })
        ->setIconText(tr("Preview"));
    addCommand(QStringLiteral("printInvoice"), "document-print", QStyle::SP_DesktopIcon, tr("&Print…"),
               QKeySequence::Print, [this] { m_app.exporter().printInvoice(false); })
        ->setIconText(tr("Print"));
    addCommand(QStringLiteral("pdfInvoice"), "application-pdf", QStyle::SP_DriveFDIcon, tr("Export as P&DF…"),
               QKeySequence(tr("Ctrl+Shift+E")), [this] { m_app.exporter().pdfInvoice(false); })
        ->setIconText(tr("PDF"));
    addCommand(QStringLiteral("emailInvoice"), "mail-send", QStyle::SP_ArrowForward, tr("Send by &E-mail…"),
               {}, [this] { m_app.exporter().emailInvoice(false); })
        ->setIconText(tr("E-mail"));
    addCommand(QStringLiteral("exportInvoice"), "document-export", QStyle::SP_DialogSaveButton,
               tr("E&xport Document…"), QKeySequence(tr("Ctrl+E")),
               [this] { m_app.exporter().exportInvoice(false); })
        ->setIconText(tr("Export"));
    addCommand(QStringLiteral("exportFacturX"), "application-pdf", QStyle::SP_DriveFDIcon,
               tr("Export as E-Invoice (&Factur-X PDF)…"), {}, [this] { m_app.einvoice().exportFacturX(); });
    addCommand(QStringLiteral("exportXRechnung"), "text-xml", QStyle::SP_FileIcon,
               tr("Export as XRec&hnung XML…"), {}, [this] { m_app.einvoice().exportXRechnung(); });
}

void MainWindow::createOutputWindows()
{
    // Saving, quitting and the preview command work from the preview window too.
    for (QAction* action : {m_saveAction, m_quitAction, command(QStringLiteral("showPreview"))})
        action->setShortcutContext(Qt::ApplicationShortcut);
    m_previewWindow = new PreviewWindow(m_app, this);
    m_exportSheet = new ExportSheet(m_app, this);
    m_reminderSheet = new ReminderSheet(m_app, this);
    connect(&m_app.exporter(), &ExportController::exportSheetRequested, this, [this](bool onPreviewWindow) {
        m_exportSheet->present(onPreviewWindow && m_previewWindow->isVisible()
                                   ? static_cast<QWidget*>(m_previewWindow)
                                   : static_cast<QWidget*>(this));
    });
}

void MainWindow::validateCommands()
{
    const GUIController& gui = m_app.invoicing().gui();
    for (auto it = m_commands.cbegin(); it != m_commands.cend(); ++it) {
        const GUIController::Validation validation = gui.validateUserInterfaceItem(it.key());
        it.value()->setEnabled(validation.enabled && gui.hasPrerequisites(it.key()));
        if (validation.title) {
            it.value()->setText(*validation.title);
            it.value()->setIconText(*validation.title);
        }
    }
}

void MainWindow::createCentralArea()
{
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_model = new DocumentListModel(m_app.state().invoicesController(), this);
    m_list = new DocumentListView(central);
    m_list->setObjectName(QStringLiteral("documentList"));
    m_list->setModel(m_model);
    m_selectionSync = new SelectionSync(*m_model, *m_list, this);
    layout->addWidget(m_list);
    setCentralWidget(central);
    registerFocusTarget(QStringLiteral("documentList"), m_list);

    m_countsLabel = new QLabel(this);
    m_countsLabel->setObjectName(QStringLiteral("documentCounts"));
    m_amountsLabel = new QLabel(this);
    m_amountsLabel->setObjectName(QStringLiteral("documentTotals"));
    m_amountsLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_countsLabel->setContentsMargins(6, 2, 6, 2);
    m_amountsLabel->setContentsMargins(6, 2, 6, 2);
    statusBar()->addWidget(m_countsLabel, 1);
    statusBar()->addPermanentWidget(m_amountsLabel);
    statusBar()->setSizeGripEnabled(true);
    updateTotals();
}

void MainWindow::contextChanged()
{
    ObjectContext* context = m_app.state().context();
    disconnect(m_undoConnection);
    if (context)
        m_undoConnection =
            connect(context->undoManager(), &UndoManager::changed, this, &MainWindow::updateUndoActions);
    m_saveAction->setEnabled(context != nullptr);
    m_list->setPlaceholderText(context
                                   ? tr("No documents yet.")
                                   : tr("The Vorn database could not be opened, so there are no documents "
                                        "to show."));
    updateUndoActions();
    validateCommands();
}

void MainWindow::updateUndoActions()
{
    ObjectContext* context = m_app.state().context();
    UndoManager* undo = context ? context->undoManager() : nullptr;
    const QString undoName = undo ? undo->undoActionName() : QString();
    const QString redoName = undo ? undo->redoActionName() : QString();
    m_undoAction->setText(undoName.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undoName));
    m_redoAction->setText(redoName.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redoName));
    m_undoAction->setEnabled(undo && undo->canUndo());
    m_redoAction->setEnabled(undo && undo->canRedo());
}

void MainWindow::updateTotals()
{
    const AppState& state = m_app.state();
    const QString currency = m_app.settings().stringValue(key::prefsCurrency);
    const QString invoices = state.invoiceCount == 1
                                 ? tr("1 invoice")
                                 : tr("%1 invoices").arg(QLocale().toString(state.invoiceCount));
    const QString quotes =
        state.quoteCount == 1 ? tr("1 quote") : tr("%1 quotes").arg(QLocale().toString(state.quoteCount));
    m_countsLabel->setText(tr("%1, %2").arg(invoices, quotes));
    m_amountsLabel->setText(tr("Total %1    Paid %2    Due %3")
                                .arg(DocumentListModel::amountText(state.totalAmount, currency),
                                     DocumentListModel::amountText(state.paidAmount, currency),
                                     DocumentListModel::amountText(state.dueAmount, currency)));
}

void MainWindow::centerOnScreen()
{
    QScreen* screen = this->screen() ? this->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    QRect frame = frameGeometry();
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
}

void MainWindow::registerToolbarItem(const QString& identifier, QAction* action)
{
    m_toolbarItems.insert(identifier, action);
}

bool MainWindow::selectToolbarItem(const QString& identifier)
{
    QAction* action = m_toolbarItems.value(identifier);
    if (!action) {
        qCDebug(lcUi) << "no toolbar item" << identifier;
        return false;
    }
    if (action->isCheckable())
        action->setChecked(true);
    return true;
}

void MainWindow::registerFocusTarget(const QString& name, QWidget* widget)
{
    m_focusTargets.insert(name, widget);
}

bool MainWindow::focusTarget(const QString& name)
{
    QWidget* widget = m_focusTargets.value(name);
    if (!widget) {
        qCDebug(lcUi) << "no focus target" << name;
        return false;
    }
    widget->setFocus(Qt::OtherFocusReason);
    return true;
}

void MainWindow::restoreFrame()
{
    const QByteArray geometry = m_app.settings().dataValue(kGeometryKey);
    if (!geometry.isEmpty() && restoreGeometry(geometry))
        return;
    QSize size(1120, 700);
    if (QScreen* screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableGeometry().size() * 0.9);
    resize(size);
    centerOnScreen();
}

void MainWindow::saveFrame()
{
    m_app.settings().setValue(kGeometryKey, saveGeometry());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_terminating) {
        event->accept();
        return;
    }
    saveFrame();
    if (m_app.applicationShouldTerminate() == AppDelegate::TerminateReply::Cancel) {
        qCInfo(lcUi) << "quitting cancelled";
        event->ignore();
        return;
    }
    m_terminating = true;
    event->accept();
    QCoreApplication::quit();
}

} // namespace vorn
