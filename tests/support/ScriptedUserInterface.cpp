#include "tests/support/ScriptedUserInterface.h"

namespace vorn::test {

int ScriptedUserInterface::runAlert(const Alert& alert)
{
    record("alert", alert.title, alert.text, alert.buttons);
    return m_alertAnswers.isEmpty() ? 0 : m_alertAnswers.dequeue();
}

std::optional<QString> ScriptedUserInterface::runPanel(const QString& kind, const FilePanel& panel)
{
    record(kind, panel.title, panel.proposedName, panel.fileTypes);
    return m_panelAnswers.isEmpty() ? std::nullopt : m_panelAnswers.dequeue();
}

bool ScriptedUserInterface::presentError(const Error& error)
{
    record("error", error.message, error.reason, {}, error.code);
    m_errors.append(error);
    return m_errorAnswers.isEmpty() ? false : m_errorAnswers.dequeue();
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
    for (const Call& c : calls(QStringLiteral("alert")))
        titles << c.title;
    return titles;
}

QList<int> ScriptedUserInterface::errorCodes() const
{
    QList<int> codes;
    for (const Call& c : calls(QStringLiteral("error")))
        codes << c.code;
    return codes;
}

} // namespace vorn::test
