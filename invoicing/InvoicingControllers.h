#pragma once

#include "invoicing/Calculator.h"

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

private:
    std::unique_ptr<Calculator> m_calculator;
};

} // namespace vorn
