#pragma once

#include "store/UserInterface.h"

#include <QTextStream>

namespace vorn {

// How the command-line tool answers the application: running a command is
// its confirmation, so every question gets its first (confirming) button; an
// alert that only informs is a refusal and is kept for the exit message;
// errors are kept too. File panels answer with the path the command was given.
class CliUserInterface : public UserInterface
{
public:
    int runAlert(const Alert& alert) override;
    std::optional<QString> runOpenPanel(const FilePanel& panel) override;
    std::optional<QString> runSavePanel(const FilePanel& panel) override;
    bool presentError(const Error& error) override;
    void beep() override {}
    void centerMainWindow() override {}
    void selectToolbarItem(const QString&) override {}
    void focus(const QString&) override {}
    void showPreferencesWindow() override {}
    bool openUrl(const QUrl&) override { return false; }
    bool openApplication(const QString&) override { return false; }
    // There is no printer dialog without a display; nothing is printed.
    bool runPrintOperation(const PrintJob&) override { return false; }

    void setPanelAnswer(std::optional<QString> path) { m_panelAnswer = std::move(path); }
    // The text of the last alert that only informed, if any.
    const std::optional<Alert>& refusal() const { return m_refusal; }
    const QList<Error>& errors() const { return m_errors; }
    void clear();

private:
    std::optional<QString> m_panelAnswer;
    std::optional<Alert> m_refusal;
    QList<Error> m_errors;
};

} // namespace vorn
