#pragma once

#include "store/Result.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>

#include <functional>

class QAction;
class QActionGroup;
class QSplitter;
class QStackedWidget;
class QToolButton;
class QLabel;
class QMenu;
class QToolBar;

namespace vorn {

class AddressPage;
class AppDelegate;
class FilterPopover;
class InfoPage;
class ItemsPage;
class DocumentListModel;
class DocumentListView;
class ExportSheet;
class PreviewWindow;
class ReminderSheet;
class SelectionSync;

// The main window: the menus, the toolbar, the list of documents and the
// totals beneath it. Every command calls into the core; the window only
// shows the core's state and forwards the core's requests (centre, focus,
// toolbar selection) to its widgets.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(AppDelegate& app, QWidget* parent = nullptr);
    ~MainWindow() override;

    AppDelegate& app() const { return m_app; }
    DocumentListView* documentList() const { return m_list; }
    DocumentListModel* documentListModel() const { return m_model; }
    QMenu* fileMenu() const { return m_fileMenu; }
    QMenu* editMenu() const { return m_editMenu; }
    QMenu* documentMenu() const { return m_documentMenu; }
    PreviewWindow* previewWindow() const { return m_previewWindow; }
    ExportSheet* exportSheet() const { return m_exportSheet; }
    // Output and document commands by name ("printInvoice", "showPreview", ...).
    QAction* command(const QString& name) const { return m_commands.value(name); }
    QToolBar* mainToolBar() const { return m_toolBar; }
    QMenu* viewMenu() const { return m_viewMenu; }
    QMenu* itemsMenu() const { return m_itemsMenu; }
    QSplitter* splitter() const { return m_splitter; }
    QStackedWidget* pages() const { return m_pages; }
    AddressPage* addressPage() const { return m_addressPage; }
    ItemsPage* itemsPage() const { return m_itemsPage; }
    InfoPage* infoPage() const { return m_infoPage; }
    QToolButton* filterButton() const { return m_filterButton; }
    FilterPopover* filterPopover() const { return m_filterPopover; }
    QLabel* totalsLabel() const { return m_amountsLabel; }
    QLabel* countsLabel() const { return m_countsLabel; }
    // Chooses a document page (0 address, 1 items, 2 info) as the toolbar does.
    void showPage(int index);
    int currentPageIndex() const;
    void openFilterPopover();
    QAction* saveAction() const { return m_saveAction; }
    QAction* undoAction() const { return m_undoAction; }
    QAction* redoAction() const { return m_redoAction; }

    // A toolbar that stays where it is, with labels under its icons.
    static QToolBar* addFixedToolBar(QMainWindow& window, const QString& title, const QString& name);

    void centerOnScreen();
    // Toolbar items and focus targets the core can name.
    void registerToolbarItem(const QString& identifier, QAction* action);
    bool selectToolbarItem(const QString& identifier);
    void registerFocusTarget(const QString& name, QWidget* widget);
    bool focusTarget(const QString& name);

    // The window's frame, kept in the settings.
    void restoreFrame();
    void saveFrame();

    void updateUndoActions();
    void updateTotals();
    // Enables and names the commands for the current document.
    void validateCommands();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createActions();
    void createMenus();
    // One function per menu, so a menu can grow without touching the others.
    void createFileMenu();
    void createEditMenu();
    void createViewMenu();
    void createDocumentMenu();
    void createItemsMenu();
    void showCurrentPage(bool fade);
    void sortByColumn(int column);
    void showSortIndicator();
    // The list's columns the user chose to see (View ▸ Columns, or the
    // header's context menu).
    void fillColumnsMenu(QMenu* menu);
    void applyListColumns();
    void updateFilterButton();
    void createToolBar();
    void createCentralArea();
    void createDocumentActions();
    void createOutputWindows();
    void presentFailure(const Status& status);
    QAction* addCommand(const QString& name, const char* theme, int fallback, const QString& text,
                        const QKeySequence& keys, std::function<void()> run);
    void contextChanged();

    AppDelegate& m_app;
    DocumentListModel* m_model = nullptr;
    DocumentListView* m_list = nullptr;
    SelectionSync* m_selectionSync = nullptr;
    QMenu* m_fileMenu = nullptr;
    QMenu* m_editMenu = nullptr;
    QMenu* m_documentMenu = nullptr;
    QMenu* m_viewMenu = nullptr;
    QMenu* m_itemsMenu = nullptr;
    QActionGroup* m_pageActions = nullptr;
    QSplitter* m_splitter = nullptr;
    QStackedWidget* m_pages = nullptr;
    AddressPage* m_addressPage = nullptr;
    ItemsPage* m_itemsPage = nullptr;
    InfoPage* m_infoPage = nullptr;
    QLabel* m_noDocument = nullptr;
    QToolButton* m_filterButton = nullptr;
    FilterPopover* m_filterPopover = nullptr;
    PreviewWindow* m_previewWindow = nullptr;
    ExportSheet* m_exportSheet = nullptr;
    ReminderSheet* m_reminderSheet = nullptr;
    QHash<QString, QPointer<QAction>> m_commands;
    QToolBar* m_toolBar = nullptr;
    QAction* m_saveAction = nullptr;
    QAction* m_quitAction = nullptr;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr;
    QLabel* m_countsLabel = nullptr;
    QLabel* m_amountsLabel = nullptr;
    QHash<QString, QPointer<QAction>> m_toolbarItems;
    QHash<QString, QPointer<QWidget>> m_focusTargets;
    QMetaObject::Connection m_undoConnection;
    bool m_terminating = false;
};

} // namespace vorn
