#pragma once

#include "cli/CommandRegistry.h"

#include <QStringList>
#include <QTextStream>

namespace vorn {

// One run of the command-line tool: open the store as the application does
// at launch, run one command, save, and quit as the application quits.
class CliRunner
{
    Q_DECLARE_TR_FUNCTIONS(CliRunner)
public:
    CliRunner();
    int run(QStringList args, QTextStream& out, QTextStream& err);
    CommandRegistry& registry() { return m_registry; }

private:
    int runCommand(const Command& command, QStringList args, QTextStream& out, QTextStream& err);
    CommandRegistry m_registry;
};

} // namespace vorn
