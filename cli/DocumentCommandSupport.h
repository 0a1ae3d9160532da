#pragma once

#include "cli/CommandRegistry.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace vorn {

class InvoicingControllers;
class ManagedObject;
class PreviewController;

// Helpers shared by the commands that work on documents.
namespace DocumentCli {

InvoicingControllers& controllers(CommandContext& c);
// Looks DOC up and makes it the current document (the list's selection).
ManagedObject* select(CommandContext& c, const QString& doc);
// The document with its items, as the answer of a command.
void printDocument(CommandContext& c, const ManagedObject& document);
// Removes "--name VALUE" from args: nullopt when absent; missingValue is set
// when the option is there without its value.
std::optional<QString> takeOption(QStringList& args, const QString& name, bool& missingValue);
bool takeFlag(QStringList& args, const QString& name);
// A 0-based row in [0, count).
std::optional<int> parseIndex(const QString& text, int count);
// Whether the preview has a design to render with; without one the
// command's error line says why.
bool hasDesign(CommandContext& c, PreviewController& preview);

} // namespace DocumentCli

void registerItemCommands(CommandRegistry& registry);
void registerAddressCommands(CommandRegistry& registry);

} // namespace vorn
