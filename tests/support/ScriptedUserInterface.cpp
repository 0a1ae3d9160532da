#include "tests/support/ScriptedUserInterface.h"

namespace vorn::test {

int ScriptedUserInterface::runAlert(const Alert& alert)
{
    m_calls.append({QStringLiteral("alert"), alert.title, alert.text, alert.buttons, 0});
    return m_alertAnswers.isEmpty() ? 0 : m_alertAnswers.dequeue();
}

std::optional<QString> ScriptedUserInterface::runOpenPanel(const FilePanel& panel)
{
    m_calls.append({QStringLiteral("open"), panel.title, panel.proposedName, panel.fileTypes, 0});
    return m_panelAnswers.isEmpty() ? std::nullopt : m_panelAnswers.dequeue();
}

std::optional<QString> ScriptedUserInterface::runSavePanel(const FilePanel& panel)
{
    m_calls.append({QStringLiteral("save"), panel.title, panel.proposedName, panel.fileTypes, 0});
    return m_panelAnswers.isEmpty() ? std::nullopt : m_panelAnswers.dequeue();
}

bool ScriptedUserInterface::presentError(const Error& error)
{
    m_calls.append({QStringLiteral("error"), error.message, error.reason, {}, error.code});
    m_errors.append(error);
    return m_errorAnswers.isEmpty() ? false : m_errorAnswers.dequeue();
}

bool ScriptedUserInterface::openUrl(const QUrl& url)
{
    m_calls.append({QStringLiteral("url"), url.toString(), {}, {}, 0});
    return true;
}

bool ScriptedUserInterface::openApplication(const QString& identifier)
{
    m_calls.append({QStringLiteral("application"), identifier, {}, {}, 0});
    return true;
}

bool ScriptedUserInterface::runPrintOperation(const PrintJob& job)
{
    m_calls.append({QStringLiteral("print"), job.title, job.paperName, {}, job.showPanels ? 1 : 0});
    m_lastPrintJob = job;
    return m_printAnswers.isEmpty() ? true : m_printAnswers.dequeue();
}

QList<ScriptedUserInterface::Call> ScriptedUserInterface::calls(const QString& kind) const
{
    QList<Call> result;
    for (const Call& c : m_calls)
        if (c.kind == kind)
            result.append(c);
    return result;
}

QStringList ScriptedUserInterface::alertTitles() const
{
    QStringList titles;
    for (const Call& c : m_calls)
        if (c.kind == QLatin1String("alert"))
            titles << c.title;
    return titles;
}

QList<int> ScriptedUserInterface::errorCodes() const
{
    QList<int> codes;
    for (const Call& c : m_calls)
        if (c.kind == QLatin1String("error"))
            codes << c.code;
    return codes;
}

} // namespace vorn::test
