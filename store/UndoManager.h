#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

namespace vorn {

// Undo and redo of store edits, grouped per user action. An action opens a
// group (UndoGroup) so that all its edits undo in one step. Edits made with
// no group open join an implicit group that closes when the next explicit
// group begins, on undo, or when control returns to the event loop.
class UndoManager : public QObject
{
    Q_OBJECT
public:
    using Action = std::function<void()>;

    explicit UndoManager(QObject* parent = nullptr);

    void beginGroup(const QString& actionName = {});
    void endGroup();
    int groupingLevel() const { return m_level; }

    // Records how to revert the change just made. While undoing, what gets
    // registered becomes the redo action, and the other way round.
    void registerUndo(Action action);

    bool canUndo() const;
    bool canRedo() const { return !m_redo.empty(); }
    QString undoActionName() const;
    QString redoActionName() const;
    void undo();
    void redo();
    void removeAllActions();

    bool isUndoing() const { return m_undoing; }
    bool isRedoing() const { return m_redoing; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    bool isEnabled() const { return m_enabled; }

Q_SIGNALS:
    void changed();

private:
    struct Group
    {
        QString name;
        std::vector<Action> actions;
    };
    void closeImplicitGroup();
    void scheduleImplicitClose();

    std::vector<Group> m_undo;
    std::vector<Group> m_redo;
    Group m_open;
    int m_level = 0;
    bool m_implicitOpen = false;
    bool m_undoing = false;
    bool m_redoing = false;
    bool m_enabled = true;
    bool m_closeScheduled = false;
};

// Opens an undo group for the lifetime of the scope.
class UndoGroup
{
public:
    UndoGroup(UndoManager* manager, const QString& actionName = {}) : m_manager(manager)
    {
        if (m_manager)
            m_manager->beginGroup(actionName);
    }
    ~UndoGroup()
    {
        if (m_manager)
            m_manager->endGroup();
    }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

private:
    UndoManager* m_manager;
};

} // namespace vorn
