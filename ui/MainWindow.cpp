#include "ui/MainWindow.h"

#include "app/AppDelegate.h"
#include "store/Settings.h"
#include "ui/DocumentListModel.h"
#include "ui/DocumentListView.h"
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
    createMenus();
    createToolBar();
    createCentralArea();

    AppState& state = m_app.state();
    connect(&state, &AppState::contextChanged, this, &MainWindow::contextChanged);
    connect(&state, &AppState::totalsChanged, this, &MainWindow::updateTotals);
    connect(&m_app.settings(), &Settings::valueChanged, this, [this](const QString& key) {
        if (key == QLatin1String("prefsCurrency"))
            updateTotals();
    });
    contextChanged();
    restoreFrame();
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
    m_fileMenu->addAction(m_saveAction);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_quitAction);

    m_editMenu = menuBar()->addMenu(tr("&Edit"));
    m_editMenu->setObjectName(QStringLiteral("editMenu"));
    m_editMenu->addAction(m_undoAction);
    m_editMenu->addAction(m_redoAction);
    // Edits made in this pass of the event loop may not have announced
    // themselves yet.
    connect(m_editMenu, &QMenu::aboutToShow, this, &MainWindow::updateUndoActions);
}

void MainWindow::createToolBar()
{
    m_toolBar = addToolBar(tr("Toolbar"));
    m_toolBar->setObjectName(QStringLiteral("mainToolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setFloatable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolBar->setIconSize(QSize(24, 24));
    m_toolBar->toggleViewAction()->setEnabled(false);
    m_toolBar->addAction(m_saveAction);
    m_toolBar->addSeparator();
    m_toolBar->addAction(m_undoAction);
    m_toolBar->addAction(m_redoAction);
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
    const QString currency = m_app.settings().stringValue(QStringLiteral("prefsCurrency"));
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
