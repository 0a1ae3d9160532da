#pragma once

#include "invoicing/QVDragAndDropArrayController.h"

#include <QObject>
#include <QString>

namespace vorn {

class AppState;
class Calculator;
class ManagedObject;

// The lines of the current document: the item popover (manual entry and the
// remembered items), deleting and editing a line, and the order of lines.
// Every manually entered line is remembered as a recent item unless an equal
// one is remembered already.
class ItemController : public QObject
{
    Q_OBJECT
public:
    ItemController(AppState& state, Calculator& calculator, QObject* parent = nullptr);
    ~ItemController() override;

    // The manual-entry page of the item popover. The quantity field is
    // AppState::itemPopoverQuantity; the unit price is the field's text,
    // read as a number when the line is added.
    struct Popover
    {
        bool shown = false;
        QString title;
        QString subtitle;
        QString unit;
        QString sku;
        QString note;
        QString baseAmount;
        bool tax1 = false;
        bool tax2 = false;
        bool tax3 = false;
    };
    Popover& popover() { return m_popover; }
    const Popover& popover() const { return m_popover; }
    // Toggles the popover; opening starts with empty fields, quantity 1, the
    // tax boxes of the taxes switched on, and the page the settings ask for.
    void showItemPopover();
    void closeItemPopover();

    // Creates the line from the popover, recalculates, saves, and remembers it.
    ManagedObject* addItem();
    // Fills the manual-entry fields from the selected recent item.
    void addItemRecent();

    // Asks, then deletes the selected line (refused for a sent document).
    void deleteItem();
    // The end of the delete sheet: 1 is the first button ("Delete").
    void itemDeleteWarningSheetDidEnd(int returnCode);
    // The edit sheet edits the selected line directly (refused for a sent document).
    void openEditItemSheet();
    void editItem();
    bool isEditItemSheetShown() const { return m_editSheetShown; }
    bool editItemButtonState() const { return m_editButtonState; }

    // Moves lines as one block to drop above row toIndex (refused for a sent
    // document); the new order is the document's and is saved.
    QList<int> moveItems(const QList<int>& indexes, int toIndex);
    // A drop on the items table by the table's drop rules, as one undoable
    // action; refused (with the alert) for a sent document.
    bool dropRows(const QVDragAndDropArrayController::Pasteboard& pasteboard, bool fromThisTable,
                  bool optionHeld, int row);

    // Scrolls the items table to the selected line shortly after a change.
    void scheduleDelayedScroll();
    void delayedScroll();

    QVDragAndDropArrayController& dragAndDrop() { return *m_dragAndDrop; }

    // The items list shows the current document's lines in their order.
    void refreshItems();

Q_SIGNALS:
    void popoverChanged();
    void editSheetChanged();
    void scrollToRow(int row);

private:
    void rememberRecentItem();
    void afterRearrange();
    void watchContext();

    AppState& m_state;
    Calculator& m_calculator;
    Popover m_popover;
    bool m_editSheetShown = false;
    bool m_editButtonState = false;
    QVDragAndDropArrayController* m_dragAndDrop;
    QMetaObject::Connection m_contextConnection;
};

} // namespace vorn
