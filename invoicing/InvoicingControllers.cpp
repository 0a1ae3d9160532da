#include "invoicing/InvoicingControllers.h"

#include "store/AppState.h"

namespace vorn {

InvoicingControllers::InvoicingControllers(AppState& state) : m_calculator(std::make_unique<Calculator>(state)) {}

InvoicingControllers::~InvoicingControllers() = default;

} // namespace vorn
