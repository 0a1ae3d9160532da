#include "store/AppState.h"

#include "store/Keys.h"
#include "store/ObjectContext.h"

namespace vorn {

AppState::AppState(Settings& settings, UserInterface& ui, const Clock& clock, FileLocations locations,
                   QObject* parent)
    : QObject(parent), m_settings(settings), m_ui(ui), m_clock(clock), m_locations(std::move(locations))
{
    // The document list: newest date first; among equal dates the document
    // created last comes first.
    m_invoices.setSortDescriptors({{key::date, false}, {SortDescriptor::storeOrder(), false}});
    m_invoices.setSelectsInsertedObjects(true);
    connect(&m_invoices, &ArrayController::selectionChanged, this, &AppState::currentInvoiceChanged);
    m_designs.setSortDescriptors({{key::isDefault, false}});
}

void AppState::setContext(ObjectContext* context)
{
    m_context = context;
    disconnect(m_contextWatch);
    if (context)
        m_contextWatch = connect(context, &ObjectContext::objectChanged, this,
                                 [this](ManagedObject* object, const QString& key) {
                                     if (object && object == currentInvoice())
                                         Q_EMIT currentInvoiceValueChanged(key);
                                 });
    m_invoices.setEntity(context, Entity::Invoice);
    m_addresses.setEntity(context, Entity::Address);
    m_recentItems.setEntity(context, Entity::RecentItem);
    m_recentShipping.setEntity(context, Entity::RecentShipping);
    m_designs.setEntity(context, Entity::Design);
    Q_EMIT contextChanged();
}

bool AppState::isCurrentInvoiceSent() const
{
    const ManagedObject* invoice = currentInvoice();
    return invoice && invoice->isSent();
}

} // namespace vorn
