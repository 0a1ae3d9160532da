#pragma once

#include "designs/EditorCommands.h"
#include "store/Result.h"

#include <QObject>

namespace vorn {

class AppState;
class DesignController;
class ManagedObject;

// What the design builder and the company pane do beyond the design
// library's actions: duplicating a design to edit it, storing the editors'
// texts into the selected design, and taking a logo file for the settings.
class DesignBuilder : public QObject
{
    Q_OBJECT
public:
    DesignBuilder(AppState& state, DesignController& designs, QObject* parent = nullptr);

    // The design attribute an editor edits: "invoice", "item" or "css".
    static QString attributeFor(EditorCommands::Editor editor);

    // A copy of the selected design (texts and title with " copy"), with its
    // own identity, not the default, selected in the list; saved.
    ManagedObject* duplicateDesign();

    // Stores an editor's text into the design it shows (one undoable change
    // per editing pause is the editor's business).
    void setTemplateText(ManagedObject& design, EditorCommands::Editor editor, const QString& text);

    // Asks for an image file and keeps its data under "prefsLogo". A file
    // that is no image is refused with a message and changes nothing.
    Status chooseLogo();
    Status setLogoFromFile(const QString& path);
    void removeLogo();

Q_SIGNALS:
    // The default design's texts, or a setting the preview shows, changed.
    void designChanged();

private:
    AppState& m_state;
    DesignController& m_designs;
};

} // namespace vorn
