#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <optional>
#include <vector>

namespace vorn {

class AppDelegate;
class CliUserInterface;
class ManagedObject;

namespace ExitCode {
inline constexpr int Done = 0;
inline constexpr int Refused = 1;
inline constexpr int Usage = 2;
inline constexpr int Failure = 3;
} // namespace ExitCode

// What a command gets: the application core opened as at launch, its own
// arguments (after the command words), and where to write its answer.
struct CommandContext
{
    AppDelegate& app;
    CliUserInterface& ui;
    QStringList args;
    QString out;     // printed only when the run succeeds
    QString message; // the error line for a non-zero exit
    QString asked;   // a question the command answered: printed first, whatever the outcome
    // Answers a usage error.
    int usage(const QString& text)
    {
        message = text;
        return ExitCode::Usage;
    }
    int fail(const QString& text, int code = ExitCode::Failure)
    {
        message = text;
        return code;
    }
};

struct Command
{
    QString name;  // "defaults read", "list", "item add" ...
    QString usage; // the arguments, for the help text
    bool changesStore = true;
    bool needsStore = true;
    std::function<int(CommandContext&)> run;
};

class CommandRegistry
{
    Q_DECLARE_TR_FUNCTIONS(CommandRegistry)
public:
    void add(Command command) { m_commands.push_back(std::move(command)); }
    // The command named by the first words of args; removes those words.
    const Command* find(QStringList& args) const;
    QString helpText() const;

private:
    std::vector<Command> m_commands;
};

// Helpers shared by the commands.
namespace Cli {
// KEY=VALUE arguments; nullopt (with message set) on a malformed one.
std::optional<QList<std::pair<QString, QString>>> keyValues(CommandContext& c, const QStringList& args);
// A text value converted to the type of an attribute of the entity.
std::optional<QVariant> typedValue(const QString& entity, const QString& key, const QString& text,
                                   QString* error);
// Parses booleans as 1/0/true/false (and yes/no).
std::optional<bool> parseBool(const QString& text);
std::optional<QDateTime> parseDate(const QString& text);
// DOC: a uniqueID, a number, or #N in the displayed order of the unfiltered list.
ManagedObject* document(CommandContext& c, const QString& doc);
} // namespace Cli

void registerSettingsCommands(CommandRegistry& registry);
void registerOutputCommands(CommandRegistry& registry);
void registerDocumentCommands(CommandRegistry& registry);
void registerDataCommands(CommandRegistry& registry);
void registerDesignCommands(CommandRegistry& registry);
void registerInterchangeCommands(CommandRegistry& registry);

} // namespace vorn
