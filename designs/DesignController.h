#pragma once

#include "store/AppState.h"
#include "store/Result.h"

#include <QByteArray>
#include <QObject>

#include <functional>
#include <optional>

namespace vorn {

class ManagedObject;

// The design library: the nine built-in designs seeded at first start, and
// the design actions of the preferences window (new, delete, make default,
// import, export) on the designs list of the shared state.
//
// The list is sorted by isDefault, descending, so the default design stands
// first. Exactly one design is the default once seeded: new and imported
// designs never are, only makeDefaultDesign() moves the mark, and the
// default design cannot be deleted.
class DesignController : public QObject
{
    Q_OBJECT
public:
    // A resource by file name ("Temp001.design", "Invoice.htm"), or nothing
    // when it is missing.
    using ResourceReader = std::function<std::optional<QByteArray>(const QString& fileName)>;

    explicit DesignController(AppState& state, QObject* parent = nullptr);

    // The application's own resources (":/designs/...").
    static std::optional<QByteArray> bundledResource(const QString& fileName);
    void setResourceReader(ResourceReader reader) { m_resources = std::move(reader); }

    // Seeds the built-in designs "Temp001" to "Temp009" (the first is the
    // default) and saves. All nine are read and checked before any is
    // inserted: a missing or damaged resource seeds nothing.
    Status loadTemplates();

    // A new design from the "Invoice", "Item" and "CSS" resources, titled
    // "New Design", added to the list, whose title the window then edits
    // (editTitleRequested); saves.
    ManagedObject* addDesign();
    // Inserts a design with its own identity that is not the default, as
    // one undoable action, and adds it to the list. Not saved here.
    ManagedObject* insertDesign(const QString& actionName, const QString& title, const QString& invoice,
                                const QString& item, const QString& css);
    // Asks, then deletes the selected design; refuses the default design.
    void deleteDesign();
    // The end of the delete confirmation: 1 is "Delete".
    void rootDeleteWarningSheetDidEnd(int returnCode);
    // Moves the default mark to the selected design. Not saved here.
    void makeDefaultDesign();
    // The default design, or null (no store, or no default design).
    ManagedObject* currentDesign();
    // Reads a design file into a new design that is not the default. Not saved here.
    ManagedObject* importDesign();
    // Writes the selected design to a design file.
    Status exportDesign();

    // What the window does whenever it saves: the context, and the selected
    // row under "selectedDesign".
    void save();
    // Selects the row kept under "selectedDesign" (the first when there is none).
    void restoreSelection();

Q_SIGNALS:
    // The title cell of this row should start editing, its text selected.
    void editTitleRequested(int row);

private:
    std::optional<QString> resourceText(const QString& fileName);
    void saveContext();

    AppState& m_state;
    ResourceReader m_resources;
};

} // namespace vorn
