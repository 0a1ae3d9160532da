#include "invoicing/GUIController.h"

#include "store/AppState.h"
#include "store/Keys.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

#include <QTimer>

namespace vorn {

namespace {

bool remindable(const ManagedObject* doc)
{
    if (!doc || doc->isQuote())
        return false;
    return doc->status() == DocumentStatus::Overdue || doc->status() == DocumentStatus::PartlyPaid;
}

} // namespace

GUIController::GUIController(AppState& state, QObject* parent)
    : QObject(parent), m_state(state), m_deleteLabel(tr("Delete Invoice"))
{
    connect(&m_state, &AppState::currentInvoiceChanged, this, &GUIController::scheduleToolbarLabel);
}

GUIController::Validation GUIController::validateUserInterfaceItem(const QString& action) const
{
    const ManagedObject* doc = m_state.currentInvoice();
    if (action == deleteInvoiceAction) {
        if (!doc)
            return {false, tr("Delete Invoice")};
        return {true, doc->isQuote() ? tr("Delete Quote") : tr("Delete Invoice")};
    }
    if (action == openReminderSheetAction)
        return {remindable(doc), std::nullopt};
    return {true, std::nullopt};
}

bool GUIController::hasPrerequisites(const QString& action) const
{
    static const QStringList needStore{QStringLiteral("addInvoice"),        QStringLiteral("addQuote"),
                                       QStringLiteral("importInvoice"),     QStringLiteral("exportItems"),
                                       QStringLiteral("exportVornDataXML"), QStringLiteral("backupVornData")};
    static const QStringList needDocument{
        QStringLiteral("duplicateInvoice"),    QStringLiteral("setDispatched"),
        QStringLiteral("showAddressPopover"),  QStringLiteral("showItemPopover"),
        QStringLiteral("showShippingPopover"), QStringLiteral("showDiscountPopover")};
    const ManagedObject* doc = m_state.currentInvoice();
    if (needStore.contains(action))
        return m_state.context() != nullptr;
    if (needDocument.contains(action))
        return doc != nullptr;
    if (action == QLatin1String("deleteItem"))
        return doc && m_state.itemsController().selectedObject();
    if (action == QLatin1String("convertQuoteToInvoice"))
        return doc && doc->isQuote();
    // E-invoices are made of invoices only.
    if (action == QLatin1String("exportFacturX") || action == QLatin1String("exportXRechnung"))
        return doc && doc->isInvoice();
    return true;
}

void GUIController::delayedToolbarLabel()
{
    const ManagedObject* doc = m_state.currentInvoice();
    const bool quote = doc && doc->isQuote();
    m_deleteLabel = quote ? tr("Delete Quote") : tr("Delete Invoice");
    m_reminderEnabled = remindable(doc);
    m_state.isReminderButtonHidden = !m_reminderEnabled;
    m_state.notifyStateChanged();
    Q_EMIT toolbarChanged();
}

void GUIController::scheduleToolbarLabel()
{
    QTimer::singleShot(30, this, &GUIController::delayedToolbarLabel);
}

void GUIController::setDeleteToolbarLabel(const QString& label)
{
    m_deleteLabel = label;
    Q_EMIT toolbarChanged();
}

QString GUIController::toolbarItemForTag(qint64 tag)
{
    switch (tag) {
    case 1:
        return QStringLiteral("itemsItem");
    case 2:
        return QStringLiteral("infoItem");
    default:
        return QStringLiteral("addressItem");
    }
}

void GUIController::selectMainTabIndex(qint64 tag)
{
    m_state.ui().selectToolbarItem(toolbarItemForTag(tag));
    setSelectedToolbarItem(tag);
}

void GUIController::setSelectedToolbarItem(qint64 index)
{
    // The tab view follows this setting.
    m_state.settings().setValue(key::mainTabIndex, index);
}

void GUIController::selectInfoView()
{
    setSelectedToolbarItem(m_state.settings().intValue(key::mainTabIndex));
}

std::pair<QRect, QRect> GUIController::resizeSubviews(const QSize& newSize, int listWidth,
                                                      int dividerThickness)
{
    const QRect list(0, 0, listWidth, newSize.height());
    const int detailX = listWidth + dividerThickness;
    const QRect detail(detailX, 0, newSize.width() - detailX, newSize.height());
    return {list, detail};
}

void GUIController::openReminderSheet()
{
    const Settings& s = m_state.settings();
    m_reminder = {true, s.stringValue(key::locReminder), s.stringValue(key::tempRemConditions),
                  s.stringValue(key::tempRemFooter)};
    Q_EMIT reminderSheetChanged();
}

void GUIController::cancelReminderSheet()
{
    m_reminder.shown = false;
    Q_EMIT reminderSheetChanged();
}

void GUIController::showPreferences()
{
    m_state.ui().showPreferencesWindow();
}

QStringList GUIController::sortableKeys()
{
    return {key::number, key::address, key::date, key::amount, key::status};
}

void GUIController::sortListBy(const QString& sortKey, bool ascending)
{
    const bool known = sortableKeys().contains(sortKey);
    const QString k = known ? sortKey : key::date;
    const bool up = known ? ascending : false;
    // Equal values keep the order of creation, newest first as by default.
    m_state.invoicesController().setSortDescriptors({{k, up}, {SortDescriptor::storeOrder(), false}});
    m_state.settings().setValue(key::listSortKey, k);
    m_state.settings().setValue(key::listSortAscending, up);
}

void GUIController::restoreListSort()
{
    const Settings& s = m_state.settings();
    if (!s.value(key::listSortKey).isValid())
        return;
    sortListBy(s.stringValue(key::listSortKey), s.boolValue(key::listSortAscending));
}

void GUIController::selectFirstDocumentAtLaunch()
{
    ArrayController& list = m_state.invoicesController();
    if (list.selectedObjects().isEmpty() && !list.arrangedObjects().isEmpty())
        list.setSelectionIndexes({0});
}

QStringList GUIController::listColumnKeys()
{
    return {key::number, key::title, key::address, key::date, key::amount};
}

QStringList GUIController::hiddenListColumns() const
{
    const Settings& s = m_state.settings();
    if (!s.value(key::listHiddenColumns).isValid())
        return {key::title};
    QStringList hidden;
    for (const QString& k : s.stringValue(key::listHiddenColumns).split(QLatin1Char(',')))
        if (listColumnKeys().contains(k) && !hidden.contains(k))
            hidden << k;
    // A list with every column hidden would look empty: the amount stays.
    if (hidden.size() == listColumnKeys().size())
        hidden.removeAll(key::amount);
    return hidden;
}

bool GUIController::canHideListColumn(const QString& columnKey) const
{
    const QStringList hidden = hiddenListColumns();
    return listColumnKeys().contains(columnKey) && !hidden.contains(columnKey) &&
           hidden.size() + 1 < listColumnKeys().size();
}

void GUIController::setListColumnShown(const QString& columnKey, bool shown)
{
    if (!listColumnKeys().contains(columnKey))
        return;
    QStringList hidden = hiddenListColumns();
    if (shown)
        hidden.removeAll(columnKey);
    else if (canHideListColumn(columnKey))
        hidden << columnKey;
    m_state.settings().setValue(key::listHiddenColumns, hidden.join(QLatin1Char(',')));
}

void GUIController::calculatorButtonAction()
{
    if (m_state.ui().openApplication(QStringLiteral("calculator")))
        return;
    m_state.ui().inform(
        tr("No calculator found"),
        tr("Vorn starts GNOME Calculator, KCalc, Galculator or Qalculate, but none of them is "
           "installed."),
        UserInterface::AlertStyle::Informational);
}

} // namespace vorn
