#pragma once

#include "designs/EditorCommands.h"

#include <QWidget>

#include <array>

class QSplitter;
class QTabWidget;
class QTimer;

namespace vorn {

class AppDelegate;
class DesignBuilder;
class DesignController;
class ManagedObject;
class PreferencesDesignList;
class PreferencesLivePreview;
class TemplateEditor;

// The design builder: the list of designs, the three editors of the
// selected design (page template, item row, style sheet) in tabs, and the
// live preview of the default design beside them. Edits are stored into
// the design they were made in when typing pauses, and whenever the window
// saves or the selection moves.
class PreferencesBuilderPane : public QWidget
{
    Q_OBJECT
public:
    PreferencesBuilderPane(AppDelegate& app, DesignController& designs, DesignBuilder& builder,
                           QWidget* parent = nullptr);

    TemplateEditor* editor(EditorCommands::Editor kind) const { return m_editors[size_t(kind)]; }
    QTabWidget* tabs() const { return m_tabs; }
    PreferencesDesignList* designList() const { return m_list; }
    PreferencesLivePreview* preview() const { return m_preview; }

    // Stores pending edits into their design.
    void storeEdits();
    // The selected design's texts into the editors.
    void showSelectedDesign();

private:
    AppDelegate& m_app;
    DesignBuilder& m_builder;
    PreferencesDesignList* m_list;
    QTabWidget* m_tabs;
    std::array<TemplateEditor*, 3> m_editors{};
    PreferencesLivePreview* m_preview;
    QTimer* m_pause;
    ManagedObject* m_shown = nullptr;
    bool m_pending = false;
};

} // namespace vorn
