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
#include "ui/AddressPage.h"
#include "ui/DocumentListModel.h"
#include "ui/DocumentListView.h"
#include "ui/ExportSheet.h"
#include "ui/FilterPopover.h"
#include "ui/HelpMenu.h"
#include "ui/InfoPage.h"
#include "ui/ItemsPage.h"
#include "ui/PreferencesWindow.h"
#include "ui/PreviewWindow.h"
#include "ui/ReminderSheet.h"
#include "ui/SelectionSync.h"
#include "ui/UiLog.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QGraphicsOpacityEffect>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPropertyAnimation>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
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
    connect(&state.itemsController(), &ArrayController::selectionChanged, this,
            &MainWindow::validateCommands);
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
    createFileMenu();
    createEditMenu();
    createViewMenu();
    createDocumentMenu();
    createItemsMenu();
}

void MainWindow::createFileMenu()
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
}

void MainWindow::createEditMenu()
{
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
}

void MainWindow::createViewMenu()
{
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    m_viewMenu->setObjectName(QStringLiteral("viewMenu"));
    for (QAction* page : m_pageActions->actions())
        m_viewMenu->addAction(page);
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(command(QStringLiteral("openFilterPopover")));
    QMenu* columns = m_viewMenu->addMenu(tr("&Columns"));
    columns->setObjectName(QStringLiteral("columnsMenu"));
    connect(columns, &QMenu::aboutToShow, this, [this, columns] { fillColumnsMenu(columns); });
}

void MainWindow::createDocumentMenu()
{
    m_documentMenu = menuBar()->addMenu(tr("&Document"));
    m_documentMenu->setObjectName(QStringLiteral("documentMenu"));
    m_documentMenu->addAction(command(QStringLiteral("duplicateInvoice")));
    m_documentMenu->addAction(command(QStringLiteral("convertQuoteToInvoice")));
    m_documentMenu->addAction(command(QStringLiteral("setDispatched")));
    m_documentMenu->addSeparator();
    m_documentMenu->addAction(command(QStringLiteral("showAddressPopover")));
    m_documentMenu->addSeparator();
    m_documentMenu->addAction(command(QStringLiteral("openReminderSheet")));
    m_documentMenu->addAction(command(QStringLiteral("calculatorButtonAction")));
    m_documentMenu->addSeparator();
    m_documentMenu->addAction(command(QStringLiteral("deleteInvoice")));
    connect(m_documentMenu, &QMenu::aboutToShow, this, &MainWindow::validateCommands);
}

void MainWindow::createItemsMenu()
{
    m_itemsMenu = menuBar()->addMenu(tr("&Items"));
    m_itemsMenu->setObjectName(QStringLiteral("itemsMenu"));
    m_itemsMenu->addAction(command(QStringLiteral("showItemPopover")));
    m_itemsMenu->addAction(command(QStringLiteral("deleteItem")));
    m_itemsMenu->addSeparator();
    m_itemsMenu->addAction(command(QStringLiteral("showShippingPopover")));
    m_itemsMenu->addAction(command(QStringLiteral("showDiscountPopover")));
    connect(m_itemsMenu, &QMenu::aboutToShow, this, &MainWindow::validateCommands);
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
    // The button that shows the tools a narrow window has no room for.
    if (auto* more = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
        more->setAccessibleName(tr("More Tools"));
    return bar;
}

void MainWindow::createToolBar()
{
    m_toolBar = addFixedToolBar(*this, tr("Toolbar"), QStringLiteral("mainToolBar"));
    m_toolBar->addAction(command(QStringLiteral("addInvoice")));
    m_toolBar->addAction(command(QStringLiteral("addQuote")));
    m_toolBar->addAction(command(QStringLiteral("deleteInvoice")));
    m_toolBar->addSeparator();
    for (QAction* page : m_pageActions->actions())
        m_toolBar->addAction(page);
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
    m_toolBar->addAction(command(QStringLiteral("calculatorButtonAction")));
    // Every button names what it does for screen readers, also the ones
    // whose label is a short word.
    for (QAction* action : m_toolBar->actions())
        if (QWidget* button = m_toolBar->widgetForAction(action))
            button->setAccessibleName(action->iconText());
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

    addCommand(QStringLiteral("calculatorButtonAction"), "accessories-calculator", QStyle::SP_ComputerIcon,
               tr("&Calculator"), QKeySequence(tr("Ctrl+Shift+K")),
               [&invoicing] { invoicing.gui().calculatorButtonAction(); })
        ->setIconText(tr("Calculator"));
    addCommand(QStringLiteral("showAddressPopover"), "x-office-address-book", QStyle::SP_DirHomeIcon,
               tr("Choose &Address…"), QKeySequence(tr("Ctrl+Shift+A")), [this, &invoicing] {
                   showPage(0);
                   invoicing.addresses().showAddressPopover();
               });
    addCommand(QStringLiteral("showItemPopover"), "list-add", QStyle::SP_FileDialogNewFolder,
               tr("&Add Item…"), QKeySequence(tr("Ctrl+Shift+I")), [this, &invoicing] {
                   showPage(1);
                   invoicing.items().showItemPopover();
               });
    addCommand(QStringLiteral("deleteItem"), "list-remove", QStyle::SP_TrashIcon, tr("De&lete Item"),
               QKeySequence(tr("Ctrl+Backspace")), [&invoicing] { invoicing.items().deleteItem(); });
    addCommand(QStringLiteral("showShippingPopover"), "mail-send", QStyle::SP_ArrowRight, tr("&Shipping…"),
               {}, [this, &invoicing] {
                   showPage(1);
                   invoicing.shipping().showShippingPopover();
               });
    addCommand(QStringLiteral("showDiscountPopover"), "view-financial-account-savings", QStyle::SP_ArrowDown,
               tr("D&iscount…"), {}, [this, &invoicing] {
                   showPage(1);
                   invoicing.discount().showDiscountPopover();
               });
    addCommand(QStringLiteral("openFilterPopover"), "view-filter", QStyle::SP_FileDialogListView,
               tr("&Filter List…"), QKeySequence(tr("Ctrl+Shift+F")), [this] { openFilterPopover(); });

    // The three document pages, chosen from the toolbar.
    m_pageActions = new QActionGroup(this);
    m_pageActions->setExclusive(true);
    const struct
    {
        const char* id;
        const char* theme;
        QStyle::StandardPixmap fallback;
        QString text;
    } pages[] = {{"addressItem", "contact-new", QStyle::SP_DirHomeIcon, tr("Address")},
                 {"itemsItem", "view-list-details", QStyle::SP_FileDialogDetailedView, tr("Items")},
                 {"infoItem", "document-properties", QStyle::SP_FileDialogInfoView, tr("Info")}};
    for (int tag = 0; tag < 3; ++tag) {
        auto* page = new QAction(
            QIcon::fromTheme(QLatin1String(pages[tag].theme), style()->standardIcon(pages[tag].fallback)),
            pages[tag].text, m_pageActions);
        page->setObjectName(QLatin1String(pages[tag].id));
        page->setCheckable(true);
        page->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + tag)));
        page->setToolTip(tr("Show the %1 page").arg(pages[tag].text));
        connect(page, &QAction::toggled, this, [this, tag](bool on) {
            if (on)
                m_app.invoicing().gui().setSelectedToolbarItem(tag);
        });
        registerToolbarItem(QLatin1String(pages[tag].id), page);
    }

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
    m_splitter = new QSplitter(Qt::Horizontal, this);
    m_splitter->setObjectName(QStringLiteral("mainSplitView"));
    m_splitter->setChildrenCollapsible(false);

    // Left: the list, the filter button and the totals of the filtered list.
    auto* listPane = new QWidget(m_splitter);
    listPane->setObjectName(QStringLiteral("listPane"));
    auto* listLayout = new QVBoxLayout(listPane);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->setSpacing(0);
    m_model = new DocumentListModel(m_app.state().invoicesController(), this);
    m_list = new DocumentListView(listPane);
    m_list->setObjectName(QStringLiteral("documentList"));
    m_list->setAccessibleName(tr("Documents"));
    m_list->setModel(m_model);
    applyListColumns();
    m_list->horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list->horizontalHeader(), &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        QMenu menu(this);
        fillColumnsMenu(&menu);
        menu.exec(m_list->horizontalHeader()->mapToGlobal(at));
    });
    m_list->horizontalHeader()->setSectionsClickable(true);
    m_list->horizontalHeader()->setSortIndicatorShown(true);
    connect(m_list->horizontalHeader(), &QHeaderView::sectionClicked, this, &MainWindow::sortByColumn);
    m_selectionSync = new SelectionSync(*m_model, *m_list, this);
    listLayout->addWidget(m_list, 1);
    registerFocusTarget(QStringLiteral("documentList"), m_list);

    auto* bottom = new QWidget(listPane);
    auto* bottomLayout = new QGridLayout(bottom);
    bottomLayout->setContentsMargins(4, 2, 4, 2);
    bottomLayout->setVerticalSpacing(0);
    m_filterButton = new QToolButton(bottom);
    m_filterButton->setObjectName(QStringLiteral("filterButton"));
    m_filterButton->setAutoRaise(true);
    m_filterButton->setIconSize(QSize(20, 20));
    connect(m_filterButton, &QToolButton::clicked, this, &MainWindow::openFilterPopover);
    m_countsLabel = new QLabel(bottom);
    m_countsLabel->setObjectName(QStringLiteral("documentCounts"));
    m_amountsLabel = new QLabel(bottom);
    m_amountsLabel->setObjectName(QStringLiteral("documentTotals"));
    m_amountsLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_amountsLabel->setWordWrap(true);
    m_countsLabel->setWordWrap(true);
    bottomLayout->addWidget(m_filterButton, 0, 0, 2, 1, Qt::AlignTop);
    bottomLayout->addWidget(m_countsLabel, 0, 1);
    bottomLayout->addWidget(m_amountsLabel, 1, 1);
    bottomLayout->setColumnStretch(1, 1);
    listLayout->addWidget(bottom);
    m_filterPopover = new FilterPopover(m_app.invoicing().filter(), m_app.state().filterTag, this);
    connect(&m_app.invoicing().filter(), &FilterController::filterChanged, this,
            &MainWindow::updateFilterButton);

    // Right: the current document's pages.
    m_pages = new QStackedWidget(m_splitter);
    m_pages->setObjectName(QStringLiteral("documentPages"));
    m_addressPage = new AddressPage(m_app, m_pages);
    m_itemsPage = new ItemsPage(m_app, m_pages);
    m_infoPage = new InfoPage(m_app, m_pages);
    m_noDocument = new QLabel(tr("Select a document in the list, or make a new invoice or quote."), m_pages);
    m_noDocument->setObjectName(QStringLiteral("noDocument"));
    m_noDocument->setAlignment(Qt::AlignCenter);
    m_noDocument->setWordWrap(true);
    m_noDocument->setEnabled(false);
    m_pages->addWidget(m_addressPage);
    m_pages->addWidget(m_itemsPage);
    m_pages->addWidget(m_infoPage);
    m_pages->addWidget(m_noDocument);
    registerFocusTarget(QStringLiteral("addressView"), m_addressPage->addressField());
    registerFocusTarget(QStringLiteral("subjectView"), m_addressPage->subjectField());
    for (const char* name :
         {"dispatchedNumberView", "shippingPopoverAmountView", "shippingPopoverSubtitleView",
          "discountPopoverTitleView", "discountPopoverSubtitleView", "itemPopoverQuantityView"})
        if (auto* w = findChild<QWidget*>(QLatin1String(name)))
            registerFocusTarget(QLatin1String(name), w);

    // The list keeps its width when the window is resized; the divider
    // stays between the narrowest and the widest list.
    listPane->setMinimumWidth(int(GUIController::constrainMinCoordinate(0)));
    listPane->setMaximumWidth(int(GUIController::constrainMaxCoordinate(0)));
    m_splitter->addWidget(listPane);
    m_splitter->addWidget(m_pages);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({int(GUIController::constrainMaxCoordinate(0)), 900});
    m_splitter->handle(1)->setAccessibleName(tr("Divider between list and document"));
    setCentralWidget(m_splitter);

    connect(&m_app.settings(), &Settings::valueChanged, this, [this](const QString& key) {
        if (key == key::mainTabIndex)
            showCurrentPage(true);
    });
    connect(&m_app.state(), &AppState::currentInvoiceChanged, this, [this] { showCurrentPage(false); });
    statusBar()->hide();
    updateFilterButton();
    updateTotals();
    showCurrentPage(false);
}

int MainWindow::currentPageIndex() const
{
    const qint64 index = m_app.settings().intValue(key::mainTabIndex);
    return index >= 0 && index <= 2 ? int(index) : 0;
}

void MainWindow::showPage(int index)
{
    m_app.invoicing().gui().selectMainTabIndex(index);
}

void MainWindow::showCurrentPage(bool fade)
{
    const int index = currentPageIndex();
    if (QAction* page = m_pageActions->actions().value(index); page && !page->isChecked())
        page->setChecked(true);
    QWidget* next = m_app.state().currentInvoice() ? m_pages->widget(index) : m_noDocument;
    if (next == m_pages->currentWidget())
        return;
    m_pages->setCurrentWidget(next);
    if (!fade || !isVisible())
        return;
    // A short fade-in of the new page.
    auto* effect = new QGraphicsOpacityEffect(next);
    next->setGraphicsEffect(effect);
    auto* animation = new QPropertyAnimation(effect, "opacity", next);
    animation->setDuration(120);
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    m_app.state().isAnimating = true;
    connect(animation, &QPropertyAnimation::finished, this, [this, next] {
        next->setGraphicsEffect(nullptr);
        m_app.state().isAnimating = false;
    });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

void MainWindow::sortByColumn(int column)
{
    const QString k = DocumentListModel::keyOfColumn(column);
    const Qt::SortOrder order = m_list->horizontalHeader()->sortIndicatorOrder();
    if (GUIController::sortableKeys().contains(k))
        m_app.invoicing().gui().sortListBy(k, order == Qt::AscendingOrder);
    showSortIndicator();
}

void MainWindow::fillColumnsMenu(QMenu* menu)
{
    menu->clear();
    const QStringList keys = GUIController::listColumnKeys();
    const QStringList hidden = m_app.invoicing().gui().hiddenListColumns();
    for (const QString& k : keys) {
        QAction* action = menu->addAction(
            m_model->headerData(DocumentListModel::columnOfKey(k), Qt::Horizontal).toString());
        action->setCheckable(true);
        action->setChecked(!hidden.contains(k));
        // The last column shown stays.
        action->setEnabled(hidden.contains(k) || m_app.invoicing().gui().canHideListColumn(k));
        connect(action, &QAction::toggled, this, [this, k](bool shown) {
            m_app.invoicing().gui().setListColumnShown(k, shown);
            applyListColumns();
        });
    }
}

void MainWindow::applyListColumns()
{
    const QStringList hidden = m_app.invoicing().gui().hiddenListColumns();
    for (const QString& k : GUIController::listColumnKeys())
        m_list->setColumnHidden(DocumentListModel::columnOfKey(k), hidden.contains(k));
    // One text column takes the room the others leave: the client, else the
    // title, else the number.
    QHeaderView* header = m_list->horizontalHeader();
    bool stretched = false;
    for (const QString& k : {key::address, key::title, key::number}) {
        const bool stretch = !stretched && !hidden.contains(k);
        header->setSectionResizeMode(DocumentListModel::columnOfKey(k),
                                     stretch ? QHeaderView::Stretch : QHeaderView::Interactive);
        stretched = stretched || stretch;
    }
}

void MainWindow::showSortIndicator()
{
    const QList<SortDescriptor>& sort = m_app.state().invoicesController().sortDescriptors();
    const QString k = sort.isEmpty() ? key::date : sort.first().key;
    const int column = GUIController::sortableKeys().contains(k) ? DocumentListModel::columnOfKey(k)
                                                                 : int(DocumentListModel::DateColumn);
    const QSignalBlocker block(m_list->horizontalHeader());
    m_list->horizontalHeader()->setSortIndicator(
        column, !sort.isEmpty() && sort.first().ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void MainWindow::openFilterPopover()
{
    m_filterPopover->open(m_filterButton);
}

void MainWindow::updateFilterButton()
{
    const FilterController& filter = m_app.invoicing().filter();
    const bool active = filter.isFilterActive();
    const QIcon plain =
        QIcon::fromTheme(QStringLiteral("view-filter"), style()->standardIcon(QStyle::SP_FileDialogListView));
    if (!active) {
        m_filterButton->setIcon(plain);
    } else {
        // The active picture: the same filter with a glowing dot.
        QPixmap pixmap = plain.pixmap(m_filterButton->iconSize());
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xf5, 0x7c, 0x00));
        const int d = pixmap.width() / 2;
        painter.drawEllipse(pixmap.width() - d, pixmap.height() - d, d, d);
        m_filterButton->setIcon(QIcon(pixmap));
    }
    const QString name = FilterPopover::filterName(m_app.state().filterTag);
    m_filterButton->setAccessibleName(tr("Filter"));
    m_filterButton->setAccessibleDescription(active ? tr("Showing %1").arg(name)
                                                    : tr("Showing all documents"));
    m_filterButton->setToolTip(active ? tr("Filter: %1").arg(name) : tr("Filter the list"));
    m_filterButton->setProperty("filterActive", active);
}

void MainWindow::contextChanged()
{
    ObjectContext* context = m_app.state().context();
    disconnect(m_undoConnection);
    if (context)
        m_undoConnection =
            connect(context->undoManager(), &UndoManager::changed, this, &MainWindow::updateUndoActions);
    m_saveAction->setEnabled(context != nullptr);
    if (context) {
        m_app.invoicing().gui().restoreListSort();
        m_app.invoicing().gui().selectFirstDocumentAtLaunch();
    }
    showSortIndicator();
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
    // The action's name goes into the menu and the tooltip; the toolbar
    // keeps its short label so that no button moves.
    m_undoAction->setText(undoName.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undoName));
    m_redoAction->setText(redoName.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redoName));
    m_undoAction->setIconText(tr("Undo"));
    m_redoAction->setIconText(tr("Redo"));
    m_undoAction->setToolTip(undoName.isEmpty() ? tr("Undo") : tr("Undo %1").arg(undoName));
    m_redoAction->setToolTip(redoName.isEmpty() ? tr("Redo") : tr("Redo %1").arg(redoName));
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
    m_amountsLabel->setText(tr("Total %1\nPaid %2 · Due %3")
                                .arg(DocumentListModel::amountText(state.totalAmount, currency),
                                     DocumentListModel::amountText(state.paidAmount, currency),
                                     DocumentListModel::amountText(state.dueAmount, currency)));
    m_amountsLabel->setAccessibleName(m_amountsLabel->text());
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
    // The request may come as a popover closes, which hands the keyboard
    // back to the window afterwards: the focus is set again once it has.
    QTimer::singleShot(0, widget, [widget] {
        if (!QApplication::activePopupWidget() && QApplication::activeWindow() != widget->window()) {
            widget->window()->activateWindow();
            QApplication::setActiveWindow(widget->window());
        }
        widget->setFocus(Qt::OtherFocusReason);
    });
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
