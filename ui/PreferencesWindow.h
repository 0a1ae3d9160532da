#pragma once

#include <QList>
#include <QMainWindow>
#include <QPointer>

#include <memory>

class QAction;
class QActionGroup;
class QLabel;
class QToolBar;

namespace vorn {

class AppDelegate;
class DesignBuilder;
class DesignController;
class PreferencesBuilderPane;
class PreferencesForm;

// The preferences window: eight panes chosen from the toolbar (and from the
// Panes menu, where the three panes the toolbar leaves out are found), the
// window taking each pane's size, and the "Builder" pane, the only one the
// window can be resized with. Every field writes its setting at once; the
// store and the settings file are saved when the window closes or loses
// focus.
class PreferencesWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit PreferencesWindow(AppDelegate& app, QWidget* parent = nullptr);
    ~PreferencesWindow() override;

    // The one window of the application, made on first use.
    static void showShared(AppDelegate& app, QWidget* parent);

    struct Pane
    {
        QString identifier; // "View1ItemIdentifier" ...
        int tag = 0;
        QString label;
        QWidget* view = nullptr;
        QAction* action = nullptr;
    };
    // The toolbar's items in order, and those it may show and select.
    static QStringList toolbarDefaultItemIdentifiers();
    static QStringList toolbarAllowedItemIdentifiers();
    static QStringList toolbarSelectableItemIdentifiers();

    const QList<Pane>& panes() const { return m_panes; }
    int currentTag() const { return m_current; }
    // Shows the pane with this tag (0 to 7) and fits the window to it.
    void changePanes(int tag);
    QWidget* paneView(int tag) const;
    QToolBar* toolBar() const { return m_toolBar; }
    QAction* previewAction() const { return m_preview; }
    PreferencesBuilderPane* builderPane() const { return m_builder; }
    DesignController& designs() const { return *m_designs; }
    DesignBuilder& designBuilder() const { return *m_designBuilder; }

    // Stores pending edits and saves the store and the settings.
    void save();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const Pane* findPane(int tag) const;
    void addPane(const QString& identifier, int tag, const QString& label, const char* theme, QWidget* view);
    QWidget* padded(QWidget* form);
    PreferencesForm* companyPane();
    PreferencesForm* numberingPane();
    QWidget* textsPane();
    PreferencesForm* templatePane();
    QWidget* designPane();
    PreferencesForm* regionPane();
    PreferencesForm* clientsPane();
    void fitToPane(QWidget* view);
    void updateLogo();

    AppDelegate& m_app;
    std::unique_ptr<DesignController> m_designs;
    std::unique_ptr<DesignBuilder> m_designBuilder;
    QList<Pane> m_panes;
    QToolBar* m_toolBar = nullptr;
    QActionGroup* m_group = nullptr;
    QAction* m_preview = nullptr;
    QWidget* m_container = nullptr;
    PreferencesBuilderPane* m_builder = nullptr;
    QLabel* m_logo = nullptr;
    QLabel* m_borderFont = nullptr;
    QSize m_builderSize;
    int m_current = -1;
    bool m_shownOnce = false;
};

} // namespace vorn
