#pragma once

#include "invoicing/AddressController.h"
#include "invoicing/Calculator.h"
#include "invoicing/DataController.h"
#include "invoicing/DiscountController.h"
#include "invoicing/DocumentEditor.h"
#include "invoicing/FilterController.h"
#include "invoicing/GUIController.h"
#include "invoicing/ItemController.h"
#include "invoicing/NumberingController.h"
#include "invoicing/ShippingController.h"

#include <memory>

namespace vorn {

class AppState;

// The invoicing controllers of the main window, created together because
// they call on one another (every edit ends in the arithmetic, new documents
// take their numbers, adding a document resets the list filter).
class InvoicingControllers
{
public:
    explicit InvoicingControllers(AppState& state);
    ~InvoicingControllers();
    InvoicingControllers(const InvoicingControllers&) = delete;
    InvoicingControllers& operator=(const InvoicingControllers&) = delete;

    Calculator& calculator() { return *m_calculator; }
    NumberingController& numbering() { return *m_numbering; }
    FilterController& filter() { return *m_filter; }
    GUIController& gui() { return *m_gui; }
    DataController& data() { return *m_data; }
    ItemController& items() { return *m_items; }
    ShippingController& shipping() { return *m_shipping; }
    DiscountController& discount() { return *m_discount; }
    AddressController& addresses() { return *m_addresses; }
    DocumentEditor& editor() { return *m_editor; }

private:
    std::unique_ptr<Calculator> m_calculator;
    std::unique_ptr<NumberingController> m_numbering;
    std::unique_ptr<FilterController> m_filter;
    std::unique_ptr<GUIController> m_gui;
    std::unique_ptr<DataController> m_data;
    std::unique_ptr<ItemController> m_items;
    std::unique_ptr<ShippingController> m_shipping;
    std::unique_ptr<DiscountController> m_discount;
    std::unique_ptr<AddressController> m_addresses;
    std::unique_ptr<DocumentEditor> m_editor;
};

} // namespace vorn
