#include "store/UndoManager.h"

#include <QCoreApplication>
#include <QTimer>

namespace vorn {

UndoManager::UndoManager(QObject* parent) : QObject(parent) {}

void UndoManager::beginGroup(const QString& actionName)
{
    if (m_level == 0) {
        closeImplicitGroup();
        m_open = Group{actionName, {}};
    }
    ++m_level;
}

void UndoManager::endGroup()
{
    if (m_level == 0)
        return;
    if (--m_level > 0)
        return;
    if (m_open.actions.empty())
        return;
    if (m_undoing)
        m_redo.push_back(std::move(m_open));
    else {
        m_undo.push_back(std::move(m_open));
        if (!m_redoing)
            m_redo.clear();
    }
    m_open = {};
    Q_EMIT changed();
}

void UndoManager::registerUndo(Action action)
{
    if (!m_enabled)
        return;
    if (m_level == 0 && !m_implicitOpen) {
        m_open = Group{};
        m_implicitOpen = true;
        scheduleImplicitClose();
    }
    m_open.actions.push_back(std::move(action));
}

void UndoManager::closeImplicitGroup()
{
    if (!m_implicitOpen)
        return;
    m_implicitOpen = false;
    if (!m_open.actions.empty()) {
        m_undo.push_back(std::move(m_open));
        m_redo.clear();
        Q_EMIT changed();
    }
    m_open = {};
}

void UndoManager::scheduleImplicitClose()
{
    // Like the platform's grouping by event: edits of one pass of the event
    // loop undo together.
    if (m_closeScheduled || !QCoreApplication::instance())
        return;
    m_closeScheduled = true;
    QTimer::singleShot(0, this, [this] {
        m_closeScheduled = false;
        if (m_level == 0)
            closeImplicitGroup();
    });
}

bool UndoManager::canUndo() const
{
    return !m_undo.empty() || (m_implicitOpen && !m_open.actions.empty());
}

QString UndoManager::undoActionName() const
{
    return m_undo.empty() ? QString() : m_undo.back().name;
}

QString UndoManager::redoActionName() const
{
    return m_redo.empty() ? QString() : m_redo.back().name;
}

void UndoManager::undo()
{
    if (m_level > 0)
        return;
    closeImplicitGroup();
    if (m_undo.empty())
        return;
    Group group = std::move(m_undo.back());
    m_undo.pop_back();
    m_undoing = true;
    beginGroup(group.name);
    for (auto it = group.actions.rbegin(); it != group.actions.rend(); ++it)
        (*it)();
    endGroup();
    m_undoing = false;
    Q_EMIT changed();
}

void UndoManager::redo()
{
    if (m_level > 0 || m_redo.empty())
        return;
    closeImplicitGroup();
    Group group = std::move(m_redo.back());
    m_redo.pop_back();
    m_redoing = true;
    beginGroup(group.name);
    for (auto it = group.actions.rbegin(); it != group.actions.rend(); ++it)
        (*it)();
    endGroup();
    m_redoing = false;
    Q_EMIT changed();
}

void UndoManager::removeAllActions()
{
    m_undo.clear();
    m_redo.clear();
    m_open = {};
    m_implicitOpen = false;
    Q_EMIT changed();
}

} // namespace vorn
