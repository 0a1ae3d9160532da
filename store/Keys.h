#pragma once

#include <QString>

// Every attribute, relationship and settings key of the application, spelled
// once. The entity model (ObjectModel) is built from these names.
namespace vorn::key {

// Invoice
inline const QString uniqueID = QStringLiteral("uniqueID");
inline const QString kind = QStringLiteral("kind");
inline const QString status = QStringLiteral("status");
inline const QString number = QStringLiteral("number");
inline const QString title = QStringLiteral("title");
inline const QString subject = QStringLiteral("subject");
inline const QString address = QStringLiteral("address");
inline const QString emailAddress = QStringLiteral("emailAddress");
inline const QString clientNumber = QStringLiteral("clientNumber");
inline const QString dispatchNumber = QStringLiteral("dispatchNumber");
inline const QString notes = QStringLiteral("notes");
inline const QString conditions = QStringLiteral("conditions");
inline const QString footer = QStringLiteral("footer");
inline const QString currency = QStringLiteral("currency");
inline const QString date = QStringLiteral("date");
inline const QString due = QStringLiteral("due");
inline const QString paid = QStringLiteral("paid");
inline const QString sent = QStringLiteral("sent");
inline const QString dispatched = QStringLiteral("dispatched");
inline const QString isDispatched = QStringLiteral("isDispatched");
inline const QString isPaid = QStringLiteral("isPaid");
inline const QString subAmount = QStringLiteral("subAmount");
inline const QString amount = QStringLiteral("amount");
inline const QString paidAmount = QStringLiteral("paidAmount");
inline const QString dueAmount = QStringLiteral("dueAmount");
inline const QString shippingAmount = QStringLiteral("shippingAmount");
inline const QString discountAmount = QStringLiteral("discountAmount");
inline const QString tax1Amount = QStringLiteral("tax1Amount");
inline const QString tax2Amount = QStringLiteral("tax2Amount");
inline const QString tax3Amount = QStringLiteral("tax3Amount");
inline const QString tax1Percent = QStringLiteral("tax1Percent");
inline const QString tax2Percent = QStringLiteral("tax2Percent");
inline const QString tax3Percent = QStringLiteral("tax3Percent");
inline const QString tax1Kind = QStringLiteral("tax1Kind");
inline const QString tax2Kind = QStringLiteral("tax2Kind");
inline const QString tax3Kind = QStringLiteral("tax3Kind");
inline const QString discountKind = QStringLiteral("discountKind");
inline const QString discountPercent = QStringLiteral("discountPercent");
inline const QString discountTitle = QStringLiteral("discountTitle");
inline const QString discountSubtitle = QStringLiteral("discountSubtitle");
inline const QString hasDiscountSubtitle = QStringLiteral("hasDiscountSubtitle");
inline const QString isDiscountEnabled = QStringLiteral("isDiscountEnabled");
inline const QString shippingTitle = QStringLiteral("shippingTitle");
inline const QString shippingSubtitle = QStringLiteral("shippingSubtitle");
inline const QString hasShippingSubtitle = QStringLiteral("hasShippingSubtitle");
inline const QString isShippingEnabled = QStringLiteral("isShippingEnabled");
inline const QString isShippingTax1Enabled = QStringLiteral("isShippingTax1Enabled");
inline const QString isShippingTax2Enabled = QStringLiteral("isShippingTax2Enabled");
inline const QString isShippingTax3Enabled = QStringLiteral("isShippingTax3Enabled");
inline const QString misc1 = QStringLiteral("misc1");
inline const QString misc2 = QStringLiteral("misc2");
inline const QString misc3 = QStringLiteral("misc3");
inline const QString misc4 = QStringLiteral("misc4");
inline const QString misc5 = QStringLiteral("misc5");
inline const QString items = QStringLiteral("items");
// Invoice: e-invoices (empty until the user fills them in)
inline const QString buyerCountryCode = QStringLiteral("buyerCountryCode");
inline const QString buyerVatID = QStringLiteral("buyerVatID");
inline const QString buyerReference = QStringLiteral("buyerReference"); // or the Leitweg-ID
inline const QString orderReference = QStringLiteral("orderReference");

// Item -> Invoice (the owner of a line item)
inline const QString invoice = QStringLiteral("invoice");

// Item, RecentItem, RecentShipping
inline const QString subtitle = QStringLiteral("subtitle");
inline const QString unit = QStringLiteral("unit");
inline const QString sku = QStringLiteral("sku");
inline const QString note = QStringLiteral("note");
inline const QString unitCount = QStringLiteral("unitCount");
inline const QString baseAmount = QStringLiteral("baseAmount");
inline const QString isTax1Applied = QStringLiteral("isTax1Applied");
inline const QString isTax2Applied = QStringLiteral("isTax2Applied");
inline const QString isTax3Applied = QStringLiteral("isTax3Applied");
inline const QString isTax2Compound = QStringLiteral("isTax2Compound");
inline const QString isTax3Compound = QStringLiteral("isTax3Compound");
inline const QString tax1Title = QStringLiteral("tax1Title");
inline const QString tax2Title = QStringLiteral("tax2Title");
inline const QString tax3Title = QStringLiteral("tax3Title");
inline const QString hasSubtitle = QStringLiteral("hasSubtitle");
inline const QString isTax1Enabled = QStringLiteral("isTax1Enabled");
inline const QString isTax2Enabled = QStringLiteral("isTax2Enabled");
inline const QString isTax3Enabled = QStringLiteral("isTax3Enabled");

// Design
inline const QString item = QStringLiteral("item");
inline const QString css = QStringLiteral("css");
inline const QString isDefault = QStringLiteral("isDefault");

// Settings
inline const QString invHaveNumber = QStringLiteral("invHaveNumber");
inline const QString invHaveDueDate = QStringLiteral("invHaveDueDate");
inline const QString invDefaultDueDate = QStringLiteral("invDefaultDueDate");
inline const QString invPattern = QStringLiteral("invPattern");
inline const QString invCount = QStringLiteral("invCount");
inline const QString quotHaveNumber = QStringLiteral("quotHaveNumber");
inline const QString quotHaveValidity = QStringLiteral("quotHaveValidity");
inline const QString quotDefaultValidity = QStringLiteral("quotDefaultValidity");
inline const QString quotPattern = QStringLiteral("quotPattern");
inline const QString quotCount = QStringLiteral("quotCount");
inline const QString clientPattern = QStringLiteral("clientPattern");
inline const QString clientCount = QStringLiteral("clientCount");
inline const QString prefsAddressPattern = QStringLiteral("prefsAddressPattern");
inline const QString prefsCurrency = QStringLiteral("prefsCurrency");
inline const QString prefsContactsFolders = QStringLiteral("prefsContactsFolders");
inline const QString locInvoice = QStringLiteral("locInvoice");
inline const QString locQuote = QStringLiteral("locQuote");
inline const QString locReminder = QStringLiteral("locReminder");
inline const QString locShipping = QStringLiteral("locShipping");
inline const QString locDiscount = QStringLiteral("locDiscount");
inline const QString tempInvConditions = QStringLiteral("tempInvConditions");
inline const QString tempInvFooter = QStringLiteral("tempInvFooter");
inline const QString tempQuotConditions = QStringLiteral("tempQuotConditions");
inline const QString tempQuotFooter = QStringLiteral("tempQuotFooter");
inline const QString tempRemConditions = QStringLiteral("tempRemConditions");
inline const QString tempRemFooter = QStringLiteral("tempRemFooter");
inline const QString tax1Rate = QStringLiteral("tax1Rate");
inline const QString tax2Rate = QStringLiteral("tax2Rate");
inline const QString tax3Rate = QStringLiteral("tax3Rate");
inline const QString tax1Enabled = QStringLiteral("tax1Enabled");
inline const QString tax2Enabled = QStringLiteral("tax2Enabled");
inline const QString tax3Enabled = QStringLiteral("tax3Enabled");
inline const QString tax2IsCompound = QStringLiteral("tax2IsCompound");
inline const QString tax3IsCompound = QStringLiteral("tax3IsCompound");
inline const QString markInvoiceAsSent = QStringLiteral("markInvoiceAsSent");
inline const QString showItemSubAmount = QStringLiteral("showItemSubAmount");
inline const QString listSortKey = QStringLiteral("listSortKey");
inline const QString listSortAscending = QStringLiteral("listSortAscending");
inline const QString listHiddenColumns = QStringLiteral("listHiddenColumns");
inline const QString mainTabIndex = QStringLiteral("mainTabIndex");
inline const QString addressTabViewIndex = QStringLiteral("addressTabViewIndex");
inline const QString itemTabViewIndex = QStringLiteral("itemTabViewIndex");
inline const QString shippingTabViewIndex = QStringLiteral("shippingTabViewIndex");
inline const QString alwaysShowRecentAddresses = QStringLiteral("alwaysShowRecentAddresses");
inline const QString alwaysShowRecentItems = QStringLiteral("alwaysShowRecentItems");
inline const QString alwaysShowRecentShipping = QStringLiteral("alwaysShowRecentShipping");

// Settings of e-invoices and payments: the seller's data, empty until filled in
inline const QString prefsName = QStringLiteral("prefsName");
inline const QString prefsContact = QStringLiteral("prefsContact");
inline const QString prefsLogo = QStringLiteral("prefsLogo");
inline const QString prefsLegalName = QStringLiteral("prefsLegalName");
inline const QString prefsStreet = QStringLiteral("prefsStreet");
inline const QString prefsPostcode = QStringLiteral("prefsPostcode");
inline const QString prefsCity = QStringLiteral("prefsCity");
inline const QString prefsCountryCode = QStringLiteral("prefsCountryCode");
inline const QString prefsVatID = QStringLiteral("prefsVatID");
inline const QString prefsTaxNumber = QStringLiteral("prefsTaxNumber");
inline const QString prefsContactEmail = QStringLiteral("prefsContactEmail");
inline const QString prefsContactPhone = QStringLiteral("prefsContactPhone");
inline const QString prefsIBAN = QStringLiteral("prefsIBAN");
inline const QString prefsBIC = QStringLiteral("prefsBIC");
inline const QString prefsAccountHolder = QStringLiteral("prefsAccountHolder");
// The PDF export makes Factur-X files (the invoice's data embedded).
inline const QString prefsFacturXDefault = QStringLiteral("prefsFacturXDefault");

} // namespace vorn::key
