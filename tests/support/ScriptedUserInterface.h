#pragma once

#include "store/UserInterface.h"

#include <QList>
#include <QQueue>
#include <QString>
#include <QStringList>

namespace vorn::test {

// A user who answers from a script: every alert, panel and error is recorded,
// and answers come from queues (the first button, a cancelled panel and "not
// recovered" when the queue is empty).
class ScriptedUserInterface : public UserInterface
{
public:
    struct Call
    {
        QString kind;  // "alert", "open", "save", "error", "beep", "center", "toolbar", "focus",
                       // "preferences", "url", "application", "print"
        QString title; // alert title, panel title, error message, toolbar item ...
        QString text;  // alert text, error reason
        QStringList buttons;
        int code = 0; // error code
    };

    int runAlert(const Alert& alert) override;
    std::optional<QString> runOpenPanel(const FilePanel& p) override { return runPanel("open", p); }
    std::optional<QString> runSavePanel(const FilePanel& p) override { return runPanel("save", p); }
    bool presentError(const Error& error) override;
    void beep() override { record("beep"); }
    void centerMainWindow() override { record("center"); }
    void selectToolbarItem(const QString& id) override { record("toolbar", id); }
    void focus(const QString& target) override { record("focus", target); }
    void showPreferencesWindow() override { record("preferences"); }
    bool openUrl(const QUrl& url) override { return record("url", url.toString()); }
    bool openApplication(const QString& id) override { return record("application", id); }
    // Records the job and answers that it printed.
    bool runPrintOperation(const PrintJob& job) override
    {
        return record("print", job.title, job.paperName, {}, job.showPanels ? 1 : 0);
    }

    // Scripting.
    void answerAlert(int button) { m_alertAnswers.enqueue(button); }
    void answerPanel(std::optional<QString> path) { m_panelAnswers.enqueue(std::move(path)); }
    void answerErrorRecovered(bool recovered) { m_errorAnswers.enqueue(recovered); }

    const QList<Call>& calls() const { return m_calls; }
    QList<Call> calls(const QString& kind) const;
    // Alert titles in order.
    QStringList alertTitles() const;
    QList<int> errorCodes() const;
    // Every error presented, whole (domain included), in order.
    const QList<Error>& errors() const { return m_errors; }
    void clear()
    {
        m_calls.clear();
        m_errors.clear();
    }

private:
    // Answers true: the URL opens, the application starts.
    bool record(const QString& kind, const QString& title = {}, const QString& text = {},
                const QStringList& buttons = {}, int code = 0)
    {
        m_calls.append({kind, title, text, buttons, code});
        return true;
    }
    std::optional<QString> runPanel(const QString& kind, const FilePanel& panel);

    QList<Call> m_calls;
    QList<Error> m_errors;
    QQueue<int> m_alertAnswers;
    QQueue<std::optional<QString>> m_panelAnswers;
    QQueue<bool> m_errorAnswers;
};

} // namespace vorn::test
