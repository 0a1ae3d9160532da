#include "invoicing/InvoicingControllers.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "tests/ui/UiFixture.h"
#include "ui/AddressPage.h"
#include "ui/AddressPopover.h"
#include "ui/DiscountPopover.h"
#include "ui/DocumentListModel.h"
#include "ui/DocumentListView.h"
#include "ui/FilterPopover.h"
#include "ui/InfoPage.h"
#include "ui/ItemPopover.h"
#include "ui/ItemTableModel.h"
#include "ui/ItemsPage.h"
#include "ui/ShippingPopover.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

namespace vorn::test {
namespace {

// The main window over a launched application with an empty database,
// driven through its widgets as a user would. With VORN_SCREENSHOTS set, every
// page and popover is saved as it is shown, in the language
// VORN_SCREENSHOT_LANGUAGE names (1 German, 2 French, 3 Spanish).
class MainWindowStoryTest : public AppFixture
{
public:
    MainWindowStoryTest() : AppFixture(true, qEnvironmentVariableIntValue("VORN_SCREENSHOT_LANGUAGE"))
    {
        QApplication::setActiveWindow(window.get());
    }

    // The button with the given English label, in the language installed.
    QPushButton* button(QWidget* parent, const char* label)
    {
        const QString text = QCoreApplication::translate(parent->metaObject()->className(), label);
        for (QPushButton* b : parent->findChildren<QPushButton*>())
            if (b->text() == text)
                return b;
        ADD_FAILURE() << "no button " << label;
        return nullptr;
    }
    void type(QLineEdit* field, const QString& text)
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        Q_EMIT field->editingFinished();
    }
    void choose(QComboBox* field, int index)
    {
        field->setCurrentIndex(index);
        Q_EMIT field->activated(index);
    }
    void addItem(const QString& title, const QString& price, const QString& quantity)
    {
        ItemsPage* page = window->itemsPage();
        QTest::mouseClick(page->addButton(), Qt::LeftButton);
        ItemPopover* popover = page->itemPopover();
        EXPECT_TRUE(popover->isVisible());
        QTest::keyClicks(popover->titleField(), title);
        type(popover->priceField(), price);
        type(popover->quantityField(), quantity);
        QTest::mouseClick(popover->addButton(), Qt::LeftButton);
        EXPECT_FALSE(popover->isVisible());
    }
    // A new invoice with one line, its status set on the info page.
    ManagedObject* addInvoice(const QString& item, const QString& price, int status)
    {
        window->command("addInvoice")->trigger();
        window->showPage(1);
        addItem(item, price, "1");
        window->showPage(2);
        choose(window->infoPage()->statusField(), status);
        return app->state().currentInvoice();
    }
};

TEST_F(MainWindowStoryTest, AnInvoiceFromAnEmptyDatabaseToPaidAndFiltered)
{
    // An empty database opens on the address page with nothing to edit.
    EXPECT_EQ(window->currentPageIndex(), 0);
    shoot(window.get(), "01-empty");

    const QString contacts = env.locations().filesDirectory + "/contacts";
    writeFile(
        contacts + "/ada.vcf",
        "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Lovelace;Ada;;;\r\nFN:Ada Lovelace\r\nORG:Engines Ltd\r\n"
        "ADR;TYPE=work:;;12 Analytical Row;London;;N1 9GU;UK\r\nEMAIL:ada@example.org\r\nEND:VCARD\r\n");
    settings.setValue(key::prefsContactsFolders, contacts);
    settings.setValue(key::prefsAddressPattern, "%FIRSTNAME% %LASTNAME%\n%STREET%\n%ZIP% %CITY%");

    window->command("addInvoice")->trigger();
    ManagedObject* invoice = app->state().currentInvoice();
    ASSERT_TRUE(invoice);
    AddressPage* addressPage = window->addressPage();
    EXPECT_EQ(window->pages()->currentWidget(), addressPage);

    // A picked contact: the address through the pattern, the focus on the subject.
    QTest::mouseClick(addressPage->chooseButton(), Qt::LeftButton);
    AddressPopover* addressPopover = addressPage->popover();
    ASSERT_TRUE(addressPopover->isVisible());
    ASSERT_EQ(addressPopover->contactList()->count(), 1);
    addressPopover->contactList()->setCurrentRow(0);
    EXPECT_EQ(addressPopover->addressField()->toPlainText(),
              "Ada Lovelace\n12 Analytical Row\nN1 9GU London");
    shoot(addressPopover, "02-address-popover");
    QTest::mouseClick(button(addressPopover, "&Use Address"), Qt::LeftButton);
    EXPECT_FALSE(addressPopover->isVisible());
    EXPECT_EQ(invoice->stringValue(key::address), "Ada Lovelace\n12 Analytical Row\nN1 9GU London");
    EXPECT_EQ(invoice->stringValue(key::emailAddress), "ada@example.org");
    // The core asks for the subject; the window's target of that name takes the keyboard.
    ASSERT_FALSE(ui.calls("focus").isEmpty());
    const QString target = ui.calls("focus").last().title;
    EXPECT_EQ(target, "subjectView");
    window->focusTarget(target);
    QTest::qWait(20);
    EXPECT_EQ(window->focusWidget(), addressPage->subjectField());
    type(addressPage->subjectField(), "Engine design");
    EXPECT_EQ(invoice->stringValue(key::subject), "Engine design");
    shoot(window.get(), "03-address-page");

    // Five items: four typed, one picked from the recent items.
    window->showPage(1);
    EXPECT_EQ(window->pages()->currentWidget(), window->itemsPage());
    addItem("Design", "100", "2");
    addItem("Review", "50", "1");
    addItem("Travel", "30", "1");
    addItem("Printing", "5", "4");
    ItemsPage* itemsPage = window->itemsPage();
    QTest::mouseClick(itemsPage->addButton(), Qt::LeftButton);
    ItemPopover* itemPopover = itemsPage->itemPopover();
    itemPopover->tabs()->setCurrentIndex(1);
    ASSERT_EQ(itemPopover->recentList()->count(), 4);
    itemPopover->recentList()->setCurrentRow(1);
    shoot(itemPopover, "04-item-popover-recent");
    QTest::mouseClick(itemPopover->addButton(), Qt::LeftButton); // "Use Item"
    EXPECT_EQ(itemPopover->tabs()->currentIndex(), 0);
    EXPECT_TRUE(itemPopover->quantityField()->hasFocus());
    type(itemPopover->quantityField(), "3");
    shoot(itemPopover, "05-item-popover-entry");
    QTest::mouseClick(itemPopover->addButton(), Qt::LeftButton);
    ASSERT_EQ(invoice->items().size(), 5);
    const QString picked = invoice->items().last()->stringValue(key::title);
    EXPECT_FLOAT_EQ(invoice->items().last()->floatValue(key::unitCount), 3.0f);

    // The last line dragged to the top.
    ItemTableModel* model = itemsPage->model();
    std::unique_ptr<QMimeData> drag(model->mimeData({model->index(4, 0)}));
    ASSERT_TRUE(model->dropMimeData(drag.get(), Qt::MoveAction, 0, 0, {}));
    EXPECT_EQ(invoice->items().first()->stringValue(key::title), picked);
    EXPECT_EQ(model->data(model->index(0, ItemTableModel::TitleColumn)).toString(), picked);

    // Editing a price recalculates at once, undoes as one named step, and
    // the toolbar keeps its label.
    QToolBar* toolBar = window->mainToolBar();
    const QRect undoButton = toolBar->widgetForAction(window->undoAction())->geometry();
    ASSERT_TRUE(model->setData(model->index(1, ItemTableModel::PriceColumn), "120"));
    EXPECT_FLOAT_EQ(invoice->items().at(1)->floatValue(key::subAmount), 240.0f);
    window->updateUndoActions();
    EXPECT_TRUE(window->undoAction()->text().contains("Change Price"));
    EXPECT_EQ(window->undoAction()->iconText(), "Undo");
    EXPECT_EQ(toolBar->widgetForAction(window->undoAction())->geometry(), undoButton);
    window->undoAction()->trigger();
    EXPECT_FLOAT_EQ(invoice->items().at(1)->floatValue(key::subAmount), 200.0f);
    shoot(window.get(), "06-items-page");

    // Shipping with tax.
    QTest::mouseClick(itemsPage->shippingButton(), Qt::LeftButton);
    ShippingPopover* shipping = itemsPage->shippingPopover();
    ASSERT_TRUE(shipping->isVisible());
    EXPECT_EQ(invoice->stringValue(key::shippingTitle), "Shipping");
    type(shipping->amountField(), "10");
    shipping->findChild<QCheckBox*>("shippingPopoverTax1Button")->click();
    shoot(shipping, "07-shipping-popover");
    QTest::mouseClick(button(shipping, "&Charge Shipping"), Qt::LeftButton);
    EXPECT_FALSE(shipping->isVisible());
    EXPECT_TRUE(invoice->boolValue(key::isShippingEnabled));
    EXPECT_TRUE(invoice->boolValue(key::isShippingTax1Enabled));
    EXPECT_FLOAT_EQ(invoice->floatValue(key::shippingAmount), 10.0f);

    // A percentage discount.
    const float beforeDiscount = invoice->floatValue(key::amount);
    QTest::mouseClick(itemsPage->discountButton(), Qt::LeftButton);
    DiscountPopover* discount = itemsPage->discountPopover();
    ASSERT_TRUE(discount->isVisible());
    choose(discount->kindField(), 1);
    EXPECT_TRUE(discount->percentField()->isEnabled());
    type(discount->percentField(), "10");
    shoot(discount, "08-discount-popover");
    QTest::mouseClick(button(discount, "&Give Discount"), Qt::LeftButton);
    EXPECT_FLOAT_EQ(invoice->floatValue(key::discountPercent), 0.1f);
    EXPECT_NEAR(invoice->floatValue(key::amount), beforeDiscount * 0.9f, 0.01f);
    shoot(window.get(), "09-items-totals");

    // A second invoice, sent and not yet paid, for the totals to tell apart.
    addInvoice("Other work", "40", 1);
    window->documentList()->selectRow(window->documentListModel()->rowOf(invoice));
    ASSERT_EQ(app->state().currentInvoice(), invoice);

    // Paid from the info page.
    window->showPage(2);
    InfoPage* info = window->infoPage();
    EXPECT_EQ(window->pages()->currentWidget(), info);
    // The e-invoice fields start empty; each edit is one named step.
    auto* leitweg = info->findChild<QLineEdit*>("buyerReferenceView");
    EXPECT_TRUE(leitweg->text().isEmpty());
    type(leitweg, "04011000-12345-67");
    EXPECT_EQ(invoice->stringValue(key::buyerReference), "04011000-12345-67");
    EXPECT_TRUE(window->undoAction()->text().contains("Change Buyer Reference"));
    choose(info->statusField(), 3);
    EXPECT_EQ(invoice->intValue(key::status), 3);
    EXPECT_TRUE(invoice->boolValue(key::isPaid));
    shoot(window.get(), "10-info-page-paid");

    // Filtered to paid invoices, the totals describe only those.
    const QString allTotals = window->totalsLabel()->text();
    EXPECT_EQ(app->state().invoiceCount, 2u);
    QTest::mouseClick(window->filterButton(), Qt::LeftButton);
    FilterPopover* filter = window->filterPopover();
    ASSERT_TRUE(filter->isVisible());
    shoot(filter, "11-filter-popover");
    QTest::mouseClick(filter->buttons()->button(3), Qt::LeftButton);
    EXPECT_FALSE(filter->isVisible());
    EXPECT_EQ(app->state().filterTag, 3u);
    EXPECT_EQ(app->state().invoicesController().count(), 1);
    EXPECT_EQ(app->state().invoiceCount, 1u);
    EXPECT_FLOAT_EQ(app->state().paidAmount, invoice->floatValue(key::amount));
    EXPECT_NE(window->totalsLabel()->text(), allTotals);
    EXPECT_TRUE(window->filterButton()->property("filterActive").toBool());
    shoot(window.get(), "12-filtered");

    // View ▸ Columns hides the date; the client takes its room.
    QMenu* columns = window->viewMenu()->findChild<QMenu*>("columnsMenu");
    ASSERT_NE(columns, nullptr);
    Q_EMIT columns->aboutToShow();
    const int clientWidth = window->documentList()->columnWidth(DocumentListModel::ClientColumn);
    columns->actions().at(3)->trigger();
    EXPECT_TRUE(window->documentList()->isColumnHidden(DocumentListModel::DateColumn));
    EXPECT_GT(window->documentList()->columnWidth(DocumentListModel::ClientColumn), clientWidth);
    shoot(window.get(), "12b-without-date");
    window->resize(1920, 1080);
    window->showPage(1);
    shoot(window.get(), "15-items-1920");
}

// A sent invoice: its fields are read-only and say why, its lines cannot be
// edited, and the shipping button answers with the sent-lock alert.
TEST_F(MainWindowStoryTest, ASentInvoiceIsReadOnlyAndSaysWhy)
{
    ManagedObject* invoice = addInvoice("Design", "100", 1);
    InfoPage* info = window->infoPage();
    ASSERT_EQ(invoice->intValue(key::status), 1);

    auto* title = info->findChild<QLineEdit*>("titleView");
    EXPECT_TRUE(title->isReadOnly());
    EXPECT_TRUE(info->findChild<QLineEdit*>("orderReferenceView")->isReadOnly());
    EXPECT_FALSE(title->toolTip().isEmpty());
    EXPECT_TRUE(info->findChild<QLabel*>("lockBanner")->isVisible());
    EXPECT_TRUE(info->statusField()->isEnabled());
    shoot(window.get(), "13-sent-info");

    window->showPage(1);
    ItemTableModel* model = window->itemsPage()->model();
    EXPECT_FALSE(model->flags(model->index(0, ItemTableModel::PriceColumn)) & Qt::ItemIsEditable);
    shoot(window.get(), "14-sent-items");
    ui.clear();
    QTest::mouseClick(window->itemsPage()->shippingButton(), Qt::LeftButton);
    EXPECT_FALSE(window->itemsPage()->shippingPopover()->isVisible());
    EXPECT_EQ(ui.alertTitles(), QStringList{"Error!"});
}

// The title cell edits both lines of an item: a typed key opens it on the
// title, Tab moves to the subtitle, Return keeps both.
TEST_F(MainWindowStoryTest, TheTitleCellEditsTheTitleAndTheSubtitle)
{
    window->command("addInvoice")->trigger();
    ManagedObject* invoice = app->state().currentInvoice();
    invoice->insertObject(key::items, app->state().context()->insertNewObject(Entity::Item));
    app->invoicing().items().refreshItems();
    window->showPage(1);
    QTableView* table = window->itemsPage()->table();
    table->setFocus();
    table->setCurrentIndex(window->itemsPage()->model()->index(0, ItemTableModel::TitleColumn));
    QTest::keyClick(table, Qt::Key_L);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), "itemTitleEditor");
    QTest::keyClicks(QApplication::focusWidget(), "ogo");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), "itemSubtitleEditor");
    QTest::keyClicks(QApplication::focusWidget(), "Corporate identity");
    shoot(window.get(), "15-item-cell-editor");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), table);
    EXPECT_EQ(invoice->items().first()->stringValue(key::title), "logo");
    EXPECT_EQ(invoice->items().first()->stringValue(key::subtitle), "Corporate identity");
    // Both lines were one edit: one undo takes both back.
    window->undoAction()->trigger();
    EXPECT_EQ(invoice->items().first()->stringValue(key::title) +
                  invoice->items().first()->stringValue(key::subtitle),
              "");
}

// Every control of the window has a name for screen readers.
TEST_F(MainWindowStoryTest, EveryControlHasAnAccessibleName)
{
    window->command("addInvoice")->trigger();
    for (int page = 0; page < 3; ++page) {
        window->showPage(page);
        EXPECT_EQ(unnamedControls(*window), QStringList()) << page;
    }

    // A long document fills the table; its totals stay in view.
    ManagedObject* invoice = app->state().currentInvoice();
    ObjectContext* context = app->state().context();
    for (int i = 0; i < 1000; ++i) {
        ManagedObject* item = context->insertNewObject(Entity::Item);
        item->setValue(key::title, QString("Line %1").arg(i + 1));
        if (i % 3 == 0)
            item->setValue(key::subtitle, QString("Second line of %1").arg(i + 1));
        item->setValue(key::unitCount, 1.0f + float(i % 3));
        item->setValue(key::baseAmount, 9.5f);
        item->setValue(key::isTax1Applied, true);
        item->setValue(key::tax1Percent, 0.07f);
        invoice->insertObject(key::items, item);
    }
    app->invoicing().items().refreshItems();
    app->invoicing().calculator().calculateInvoice(invoice);
    window->showPage(1);
    EXPECT_EQ(window->itemsPage()->model()->rowCount(), 1000);
    EXPECT_TRUE(window->itemsPage()->totalsLabel()->text().contains("Subtotal 18,990.50"));
    shoot(window.get(), "16-thousand-items");
}

} // namespace
} // namespace vorn::test
