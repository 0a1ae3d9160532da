#pragma once

#include <QHash>
#include <QMainWindow>
#include <QPointer>

class QAction;
class QLabel;
class QMenu;
class QToolBar;

namespace vorn {

class AppDelegate;
class DocumentListModel;
class DocumentListView;
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
    QToolBar* mainToolBar() const { return m_toolBar; }
    QAction* saveAction() const { return m_saveAction; }
    QAction* undoAction() const { return m_undoAction; }
    QAction* redoAction() const { return m_redoAction; }

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

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createActions();
    void createMenus();
    void createToolBar();
    void createCentralArea();
    void contextChanged();

    AppDelegate& m_app;
    DocumentListModel* m_model = nullptr;
    DocumentListView* m_list = nullptr;
    SelectionSync* m_selectionSync = nullptr;
    QMenu* m_fileMenu = nullptr;
    QMenu* m_editMenu = nullptr;
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
