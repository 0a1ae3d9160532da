#include "invoicing/ItemController.h"

#include "invoicing/Calculator.h"
#include "invoicing/QVDragAndDropArrayController.h"
#include "invoicing/SaveLog.h"
#include "invoicing/SentLock.h"
#include "invoicing/TextValue.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/Settings.h"
#include "store/UniqueId.h"
#include "store/UserInterface.h"

#include <QTimer>

namespace vorn {

ItemController::ItemController(AppState& state, Calculator& calculator, QObject* parent)
    : QObject(parent), m_state(state), m_calculator(calculator),
      m_dragAndDrop(new QVDragAndDropArrayController(state.itemsController(), this))
{
    m_dragAndDrop->owner = [this] { return m_state.currentInvoice(); };
    m_dragAndDrop->relationshipKey = key::items;
    m_dragAndDrop->mayDrop = [this] { return m_state.currentInvoice() && !m_state.isCurrentInvoiceSent(); };
    m_dragAndDrop->didChangeRows = [this] { afterRearrange(); };

    connect(&m_state, &AppState::currentInvoiceChanged, this, &ItemController::refreshItems);
    connect(&m_state, &AppState::contextChanged, this, &ItemController::watchContext);
    watchContext();
}

ItemController::~ItemController() = default;

void ItemController::watchContext()
{
    disconnect(m_contextConnection);
    if (ObjectContext* context = m_state.context()) {
        // Lines come and go also through undo and deletion: follow the
        // current document's list.
        m_contextConnection = connect(context, &ObjectContext::objectChanged, this,
                                      [this](ManagedObject* object, const QString& k) {
                                          if (k == key::items && object == m_state.currentInvoice())
                                              refreshItems();
                                      });
    }
    refreshItems();
}

void ItemController::refreshItems()
{
    const ManagedObject* doc = m_state.currentInvoice();
    m_state.itemsController().setContent(doc ? doc->items() : QList<ManagedObject*>());
}

void ItemController::showItemPopover()
{
    if (m_popover.shown) {
        closeItemPopover();
        return;
    }
    if (!m_state.currentInvoice()) {
        m_state.ui().beep();
        return;
    }
    const Settings& s = m_state.settings();
    m_popover = Popover{};
    m_popover.shown = true;
    m_popover.tax1 = s.boolValue(key::tax1Enabled);
    m_popover.tax2 = s.boolValue(key::tax2Enabled);
    m_popover.tax3 = s.boolValue(key::tax3Enabled);
    m_state.itemPopoverQuantity = 1.0f;
    m_state.notifyStateChanged();
    m_state.settings().setValue(key::itemTabViewIndex, s.intValue(key::alwaysShowRecentItems));
    Q_EMIT popoverChanged();
}

void ItemController::closeItemPopover()
{
    // The fields keep their texts: remembering the line reads them afterwards.
    m_popover.shown = false;
    Q_EMIT popoverChanged();
}

ManagedObject* ItemController::addItem()
{
    ObjectContext* context = m_state.context();
    ManagedObject* doc = m_state.currentInvoice();
    if (!context || !doc)
        return nullptr;
    UndoGroup group(context->undoManager(), tr("Add Item"));
    const Settings& s = m_state.settings();
    const QDateTime now = m_state.clock().now();

    // Rates and compound flags are copied into the line: later changes of
    // the settings leave existing lines alone.
    ManagedObject* item = context->insertNewObject(Entity::Item);
    item->setValue(key::uniqueID, globallyUniqueString());
    item->setValue(key::title, m_popover.title);
    item->setValue(key::subtitle, m_popover.subtitle);
    item->setValue(key::unit, m_popover.unit);
    item->setValue(key::sku, m_popover.sku);
    item->setValue(key::note, m_popover.note);
    item->setValue(key::tax1Title, s.stringValue(key::tax1Title));
    item->setValue(key::tax2Title, s.stringValue(key::tax2Title));
    item->setValue(key::tax3Title, s.stringValue(key::tax3Title));
    item->setValue(key::baseAmount, floatValueOfText(m_popover.baseAmount));
    item->setValue(key::unitCount, m_state.itemPopoverQuantity);
    item->setValue(key::isTax1Applied, m_popover.tax1);
    item->setValue(key::isTax2Applied, m_popover.tax2);
    item->setValue(key::isTax3Applied, m_popover.tax3);
    item->setValue(key::isTax2Compound, s.boolValue(key::tax2IsCompound));
    item->setValue(key::isTax3Compound, s.boolValue(key::tax3IsCompound));
    item->setValue(key::tax1Percent, s.floatValue(key::tax1Rate));
    item->setValue(key::tax2Percent, s.floatValue(key::tax2Rate));
    item->setValue(key::tax3Percent, s.floatValue(key::tax3Rate));
    for (const QString& k : {key::subAmount, key::amount, key::tax1Amount, key::tax2Amount, key::tax3Amount})
        item->setValue(k, 0.0f);
    item->setValue(key::misc1, QString());
    item->setValue(key::misc2, qint64(0));
    item->setValue(key::misc3, 0.0f);
    item->setValue(key::misc4, false);
    item->setValue(key::misc5, now);

    doc->insertObject(key::items, item);
    ArrayController& items = m_state.itemsController();
    items.addObject(item);
    items.rearrangeObjects();
    items.setSelectedObjects({item});
    m_calculator.calculateInvoice(doc);

    closeItemPopover();
    scheduleDelayedScroll();
    rememberRecentItem();
    // One save for the line and a newly remembered item: each save waits for
    // the disk, and both belong to the same action.
    saveLoggingFailure(context);
    return item;
}

void ItemController::rememberRecentItem()
{
    ObjectContext* context = m_state.context();
    if (!context)
        return;
    const float price = floatValueOfText(m_popover.baseAmount);
    ArrayController& recent = m_state.recentItemsController();
    for (const ManagedObject* r : recent.arrangedObjects()) {
        const bool sameLine =
            r->stringValue(key::title) == m_popover.title && r->floatValue(key::baseAmount) == price;
        const bool sameSku = !m_popover.sku.isEmpty() && r->stringValue(key::sku) == m_popover.sku;
        if (sameLine || sameSku)
            return;
    }
    // A tax switched off in the settings is never remembered as applied.
    const Settings& s = m_state.settings();
    ManagedObject* r = context->insertNewObject(Entity::RecentItem);
    r->setValue(key::uniqueID, globallyUniqueString());
    r->setValue(key::title, m_popover.title);
    r->setValue(key::subtitle, m_popover.subtitle);
    r->setValue(key::unit, m_popover.unit);
    r->setValue(key::sku, m_popover.sku);
    r->setValue(key::note, m_popover.note);
    r->setValue(key::isTax1Applied, s.boolValue(key::tax1Enabled) && m_popover.tax1);
    r->setValue(key::isTax2Applied, s.boolValue(key::tax2Enabled) && m_popover.tax2);
    r->setValue(key::isTax3Applied, s.boolValue(key::tax3Enabled) && m_popover.tax3);
    r->setValue(key::subAmount, 0.0f);
    r->setValue(key::baseAmount, price);
    r->setValue(key::misc1, QString());
    r->setValue(key::misc2, qint64(0));
    r->setValue(key::misc3, 0.0f);
    r->setValue(key::misc4, false);
    r->setValue(key::misc5, m_state.clock().now());
    recent.addObject(r);
    recent.rearrangeObjects();
}

void ItemController::addItemRecent()
{
    const ManagedObject* r = m_state.recentItemsController().selectedObject();
    if (!r)
        return;
    const Settings& s = m_state.settings();
    m_popover.title = r->stringValue(key::title);
    m_popover.subtitle = r->stringValue(key::subtitle);
    m_popover.unit = r->stringValue(key::unit);
    m_popover.sku = r->stringValue(key::sku);
    m_popover.note = r->stringValue(key::note);
    m_popover.tax1 = s.boolValue(key::tax1Enabled) && r->boolValue(key::isTax1Applied);
    m_popover.tax2 = s.boolValue(key::tax2Enabled) && r->boolValue(key::isTax2Applied);
    m_popover.tax3 = s.boolValue(key::tax3Enabled) && r->boolValue(key::isTax3Applied);
    m_popover.baseAmount = textOfFloat(r->floatValue(key::baseAmount));
    m_state.settings().setValue(key::itemTabViewIndex, qint64(0));
    m_state.ui().focus(QStringLiteral("itemPopoverQuantityView"));
    Q_EMIT popoverChanged();
}

void ItemController::deleteItem()
{
    if (SentLock::refuse(m_state))
        return;
    if (!m_state.currentInvoice() || !m_state.itemsController().selectedObject())
        return;
    const int answer = m_state.ui().runAlert({tr("Delete Item"),
                                              tr("Deleting items is permanent and cannot be undone. Do you "
                                                 "really want to delete the selected item?"),
                                              {tr("Delete"), tr("Cancel")},
                                              UserInterface::AlertStyle::Warning,
                                              true});
    itemDeleteWarningSheetDidEnd(answer == 0 ? 1 : 0);
}

void ItemController::itemDeleteWarningSheetDidEnd(int returnCode)
{
    ObjectContext* context = m_state.context();
    ManagedObject* doc = m_state.currentInvoice();
    ArrayController& items = m_state.itemsController();
    const int index = items.selectionIndex();
    if (returnCode != 1 || !context || !doc || index < 0 || index >= items.count())
        return;
    UndoGroup group(context->undoManager(), tr("Delete Item"));
    ManagedObject* item = items.arrangedObjects().at(index);
    context->deleteObject(item);
    items.removeObject(item);
    m_calculator.calculateInvoice(doc);
    scheduleDelayedScroll();
    saveLoggingFailure(context);
}

void ItemController::openEditItemSheet()
{
    if (SentLock::refuse(m_state)) {
        m_editButtonState = false;
        Q_EMIT editSheetChanged();
        return;
    }
    if (!m_state.itemsController().selectedObject())
        return;
    m_editSheetShown = true;
    m_editButtonState = true;
    Q_EMIT editSheetChanged();
}

void ItemController::editItem()
{
    m_editSheetShown = false;
    m_editButtonState = false;
    Q_EMIT editSheetChanged();
    m_state.itemsController().rearrangeObjects();
    m_calculator.calculateInvoice(m_state.currentInvoice());
    saveLoggingFailure(m_state.context());
}

QList<int> ItemController::moveItems(const QList<int>& indexes, int toIndex)
{
    if (SentLock::refuse(m_state) || !m_state.currentInvoice())
        return {};
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Move Items"));
    return m_dragAndDrop->moveObjectsInArrangedObjectsFromIndexes(indexes, toIndex);
}

bool ItemController::dropRows(const QVDragAndDropArrayController::Pasteboard& pasteboard, bool fromThisTable,
                              bool optionHeld, int row)
{
    if (SentLock::refuse(m_state) || !m_state.currentInvoice())
        return false;
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Move Items"));
    return m_dragAndDrop->acceptDrop(pasteboard, fromThisTable, optionHeld, row);
}

void ItemController::afterRearrange()
{
    // Sums run in the lines' order, so a new order is recomputed.
    m_calculator.calculateInvoice(m_state.currentInvoice());
    saveLoggingFailure(m_state.context());
}

void ItemController::scheduleDelayedScroll()
{
    QTimer::singleShot(100, this, &ItemController::delayedScroll);
}

void ItemController::delayedScroll()
{
    Q_EMIT scrollToRow(m_state.itemsController().selectionIndex());
}

} // namespace vorn
