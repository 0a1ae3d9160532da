#include "invoicing/InvoicingControllers.h"

#include "store/AppState.h"

namespace vorn {

InvoicingControllers::InvoicingControllers(AppState& state)
    : m_calculator(std::make_unique<Calculator>(state)),
      m_numbering(std::make_unique<NumberingController>(state)),
      m_filter(std::make_unique<FilterController>(state, *m_calculator)),
      m_gui(std::make_unique<GUIController>(state)),
      m_data(std::make_unique<DataController>(state, *m_calculator, *m_numbering, *m_filter, *m_gui)),
      m_items(std::make_unique<ItemController>(state, *m_calculator)),
      m_shipping(std::make_unique<ShippingController>(state, *m_calculator)),
      m_discount(std::make_unique<DiscountController>(state, *m_calculator)),
      m_addresses(std::make_unique<AddressController>(state, *m_numbering)),
      m_editor(std::make_unique<DocumentEditor>(state, *m_calculator))
{
}

InvoicingControllers::~InvoicingControllers() = default;

} // namespace vorn
