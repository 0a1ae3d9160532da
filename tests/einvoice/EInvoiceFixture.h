#pragma once

#include "einvoice/EInvoiceController.h"
#include "invoicing/Calculator.h"
#include "store/Keys.h"
#include "tests/output/OutputFixture.h"

namespace vorn::test {

// A German seller with everything an e-invoice needs, and the invoice of
// the examples: two VAT rates, a line with a fraction of a cent, shipping
// and a discount on the total.
class EInvoiceFixture : public OutputFixture
{
public:
    EInvoiceFixture() : calculator(state), einvoice(state, preview) { sellerSettings(); }

    void sellerSettings()
    {
        assign(settings, key::prefsLegalName, "Tandrelo Studio GmbH", key::prefsStreet, "Hauptstraße 1",
               key::prefsPostcode, "10115", key::prefsCity, "Berlin", key::prefsCountryCode, "DE",
               key::prefsVatID, "DE123456789", key::prefsContactEmail, "billing@tandrelo.example",
               key::prefsContactPhone, "+49 30 1234567", key::prefsIBAN, "de89 3704 0044 0532 0130 00",
               key::prefsBIC, "COBADEFFXXX", "tax2IsCompound", false);
    }

    ManagedObject* germanInvoice()
    {
        ManagedObject* d = addDocument(1, "title", "Rechnung", "number", "RE-2025-17", "currency", "€",
                                       "address", "Muster AG\nEinkauf\nBahnhofstraße 5\n80331 München",
                                       "emailAddress", "einkauf@muster.example", "conditions",
                                       "Zahlbar <b>ohne Abzug</b><br />bis zum Fälligkeitsdatum.");
        assign(*d, key::buyerCountryCode, "DE", key::buyerReference, "04011000-12345-67", "tax1Percent",
               0.19f, "tax2Percent", 0.07f, "isShippingEnabled", true, "shippingTitle", "Versand",
               "shippingAmount", 5.9f, "isShippingTax1Enabled", true, "isDiscountEnabled", true,
               "discountKind", 1, "discountPercent", 0.03f);
        line(d, "Beratung", "Std.", 3.5f, 95.0f, 0.19f, 0);
        line(d, "Fachbuch", "Stück", 2, 24.9f, 0, 0.07f);
        line(d, "Druckkosten", "", 3, 0.333f, 0.19f, 0);
        calculator.calculateInvoiceAmounts(d);
        select(d);
        return d;
    }

    // An item with tax 1 and / or tax 2 at the given rates (0 = not applied).
    ManagedObject* line(ManagedObject* d, const QString& title, const QString& unit, float count, float price,
                        float rate1, float rate2, bool compound2 = false)
    {
        return addItem(d, "title", title, "unit", unit, "unitCount", count, "baseAmount", price,
                       "isTax1Applied", rate1 != 0, "tax1Percent", rate1, "isTax2Applied", rate2 != 0,
                       "tax2Percent", rate2, "isTax2Compound", compound2);
    }

    Calculator calculator;
    EInvoiceController einvoice;
};

} // namespace vorn::test
