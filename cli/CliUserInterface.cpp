#include "cli/CliUserInterface.h"

namespace vorn {

int CliUserInterface::runAlert(const Alert& alert)
{
    if (alert.buttons.size() <= 1)
        m_refusal = alert;
    return 0;
}

std::optional<QString> CliUserInterface::runOpenPanel(const FilePanel&)
{
    return m_panelAnswer;
}

std::optional<QString> CliUserInterface::runSavePanel(const FilePanel&)
{
    return m_panelAnswer;
}

bool CliUserInterface::presentError(const Error& error)
{
    m_errors.append(error);
    return false;
}

void CliUserInterface::clear()
{
    m_refusal.reset();
    m_errors.clear();
}

} // namespace vorn
