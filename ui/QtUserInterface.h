#pragma once

#include "store/UserInterface.h"

#include <QCoreApplication>
#include <QPageSize>
#include <QPointer>

#include <functional>

class QMessageBox;
class QWidget;

namespace vorn {

class MainWindow;

// The desktop's answers to the core: message boxes for alerts and errors
// (attached to the main window when the core asks for a sheet), file dialogs
// for the open and save panels, and the main window for focus and toolbar
// requests.
class QtUserInterface : public UserInterface
{
    Q_DECLARE_TR_FUNCTIONS(QtUserInterface)
public:
    QtUserInterface() = default;

    void setMainWindow(MainWindow* window) { m_window = window; }
    // Opens the preferences window; until there is one, the request is ignored.
    void setPreferencesWindowHandler(std::function<void()> handler)
    {
        m_showPreferences = std::move(handler);
    }

    int runAlert(const Alert& alert) override;
    std::optional<QString> runOpenPanel(const FilePanel& panel) override;
    std::optional<QString> runSavePanel(const FilePanel& panel) override;
    bool presentError(const Error& error) override;
    void beep() override;

    void centerMainWindow() override;
    void selectToolbarItem(const QString& identifier) override;
    void focus(const QString& target) override;
    void showPreferencesWindow() override;

    bool openUrl(const QUrl& url) override;
    bool openApplication(const QString& identifier) override;
    // The print dialog (when the job asks for it), then the pages on the printer.
    bool runPrintOperation(const PrintJob& job) override;
    // The printer's paper for the paper names of the print settings.
    static QPageSize pageSizeFor(const QString& paperName, const QSizeF& fallbackPoints);

    // The message box an alert is shown in; the buttons are in the alert's order.
    static QMessageBox* createAlertBox(const Alert& alert, QWidget* parent);
    // The desktop programs that can stand in for a helper ("calculator",
    // "contacts"), most common first.
    static QStringList applicationCandidates(const QString& identifier);
    // The first candidate found on PATH, or empty.
    static QString findApplication(const QString& identifier);
    // File dialog filters for a list of extensions (empty: any file).
    static QStringList nameFilters(const QStringList& fileTypes);

private:
    QWidget* dialogParent() const;
    std::optional<QString> runPanel(const FilePanel& panel, bool save);

    QPointer<MainWindow> m_window;
    std::function<void()> m_showPreferences;
    QString m_lastDirectory;
};

} // namespace vorn
