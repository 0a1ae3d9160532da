#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"
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
#include "ui/MainWindow.h"
#include "ui/ShippingPopover.h"
#include "ui/Translations.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimeZone>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

// The main window over a launched application with an empty database,
// driven through its widgets as a user would. With VORN_SCREENSHOTS set to a
// folder, every page and popover is saved there as it is shown, in the
// language VORN_SCREENSHOT_LANGUAGE names (1 German, 2 French, 3 Spanish).
class MainWindowStoryTest : public ::testing::Test
{
public:
    MainWindowStoryTest()
        : clock(QDateTime(QDate(2026, 11, 21), QTime(9, 0), QTimeZone::utc())),
          settings(env.locations().settingsFile())
    {
        Translations::install(qEnvironmentVariableIntValue("VORN_SCREENSHOT_LANGUAGE"));
        app = std::make_unique<AppDelegate>(settings, ui, clock, env.locations());
        app->setLaunchChecksEnabled(false);
        window = std::make_unique<MainWindow>(*app);
        app->awakeFromNib();
        app->applicationDidFinishLaunching();
        window->resize(1280, 800);
        window->show();
        app->fadeViewIn();
        QApplication::setActiveWindow(window.get());
    }
    ~MainWindowStoryTest() override
    {
        window.reset();
        app.reset();
        Translations::install(0);
    }

    void shoot(QWidget* widget, const QString& name)
    {
        const QString folder = qEnvironmentVariable("VORN_SCREENSHOTS");
        if (folder.isEmpty())
            return;
        QDir().mkpath(folder);
        // The page fade has ended.
        QTest::qWait(200);
        widget->grab().save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
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
    QStringList itemTitles() const
    {
        QStringList titles;
        for (const ManagedObject* item : app->state().currentInvoice()->items())
            titles << item->stringValue(key::title);
        return titles;
    }

    TestEnvironment env;
    FixedClock clock;
    Settings settings;
    ScriptedUserInterface ui;
    std::unique_ptr<AppDelegate> app;
    std::unique_ptr<MainWindow> window;
};

TEST_F(MainWindowStoryTest, AnInvoiceFromAnEmptyDatabaseToPaidAndFiltered)
{
    // An empty database opens on the address page with nothing to edit.
    EXPECT_EQ(window->currentPageIndex(), 0);
    shoot(window.get(), QStringLiteral("01-empty"));

    const QString contacts = env.locations().filesDirectory + QStringLiteral("/contacts");
    QDir().mkpath(contacts);
    QFile card(contacts + QStringLiteral("/ada.vcf"));
    ASSERT_TRUE(card.open(QIODevice::WriteOnly));
    card.write(
        "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Lovelace;Ada;;;\r\nFN:Ada Lovelace\r\nORG:Engines Ltd\r\n"
        "ADR;TYPE=work:;;12 Analytical Row;London;;N1 9GU;UK\r\nEMAIL:ada@example.org\r\nEND:VCARD\r\n");
    card.close();
    settings.setValue(key::prefsContactsFolders, contacts);
    settings.setValue(key::prefsAddressPattern,
                      QStringLiteral("%FIRSTNAME% %LASTNAME%\n%STREET%\n%ZIP% %CITY%"));

    window->command(QStringLiteral("addInvoice"))->trigger();
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
              QStringLiteral("Ada Lovelace\n12 Analytical Row\nN1 9GU London"));
    shoot(addressPopover, QStringLiteral("02-address-popover"));
    QTest::mouseClick(button(addressPopover, "&Use Address"), Qt::LeftButton);
    EXPECT_FALSE(addressPopover->isVisible());
    EXPECT_EQ(invoice->stringValue(key::address),
              QStringLiteral("Ada Lovelace\n12 Analytical Row\nN1 9GU London"));
    EXPECT_EQ(invoice->stringValue(key::emailAddress), QStringLiteral("ada@example.org"));
    // The core asks for the subject; the window's target of that name takes the keyboard.
    ASSERT_FALSE(ui.calls(QStringLiteral("focus")).isEmpty());
    const QString target = ui.calls(QStringLiteral("focus")).last().title;
    EXPECT_EQ(target, QStringLiteral("subjectView"));
    window->focusTarget(target);
    QTest::qWait(20);
    EXPECT_EQ(window->focusWidget(), addressPage->subjectField());
    type(addressPage->subjectField(), QStringLiteral("Engine design"));
    EXPECT_EQ(invoice->stringValue(key::subject), QStringLiteral("Engine design"));
    shoot(window.get(), QStringLiteral("03-address-page"));

    // Five items: four typed, one picked from the recent items.
    window->showPage(1);
    EXPECT_EQ(window->pages()->currentWidget(), window->itemsPage());
    addItem(QStringLiteral("Design"), QStringLiteral("100"), QStringLiteral("2"));
    addItem(QStringLiteral("Review"), QStringLiteral("50"), QStringLiteral("1"));
    addItem(QStringLiteral("Travel"), QStringLiteral("30"), QStringLiteral("1"));
    addItem(QStringLiteral("Printing"), QStringLiteral("5"), QStringLiteral("4"));
    ItemsPage* itemsPage = window->itemsPage();
    QTest::mouseClick(itemsPage->addButton(), Qt::LeftButton);
    ItemPopover* itemPopover = itemsPage->itemPopover();
    itemPopover->tabs()->setCurrentIndex(1);
    ASSERT_EQ(itemPopover->recentList()->count(), 4);
    itemPopover->recentList()->setCurrentRow(1);
    shoot(itemPopover, QStringLiteral("04-item-popover-recent"));
    QTest::mouseClick(itemPopover->addButton(), Qt::LeftButton); // "Use Item"
    EXPECT_EQ(itemPopover->tabs()->currentIndex(), 0);
    EXPECT_TRUE(itemPopover->quantityField()->hasFocus());
    type(itemPopover->quantityField(), QStringLiteral("3"));
    shoot(itemPopover, QStringLiteral("05-item-popover-entry"));
    QTest::mouseClick(itemPopover->addButton(), Qt::LeftButton);
    ASSERT_EQ(invoice->items().size(), 5);
    const QString picked = invoice->items().last()->stringValue(key::title);
    EXPECT_FLOAT_EQ(invoice->items().last()->floatValue(key::unitCount), 3.0f);

    // The last line dragged to the top.
    ItemTableModel* model = itemsPage->model();
    std::unique_ptr<QMimeData> drag(model->mimeData({model->index(4, 0)}));
    ASSERT_TRUE(model->dropMimeData(drag.get(), Qt::MoveAction, 0, 0, {}));
    EXPECT_EQ(itemTitles().first(), picked);
    EXPECT_EQ(model->data(model->index(0, ItemTableModel::TitleColumn)).toString(), picked);

    // Editing a price recalculates at once, undoes as one named step, and
    // the toolbar keeps its label.
    QToolBar* toolBar = window->mainToolBar();
    const QRect undoButton = toolBar->widgetForAction(window->undoAction())->geometry();
    ASSERT_TRUE(model->setData(model->index(1, ItemTableModel::PriceColumn), QStringLiteral("120")));
    EXPECT_FLOAT_EQ(invoice->items().at(1)->floatValue(key::subAmount), 240.0f);
    window->updateUndoActions();
    EXPECT_TRUE(window->undoAction()->text().contains(QStringLiteral("Change Price")));
    EXPECT_EQ(window->undoAction()->iconText(), QStringLiteral("Undo"));
    EXPECT_EQ(toolBar->widgetForAction(window->undoAction())->geometry(), undoButton);
    window->undoAction()->trigger();
    EXPECT_FLOAT_EQ(invoice->items().at(1)->floatValue(key::subAmount), 200.0f);
    shoot(window.get(), QStringLiteral("06-items-page"));

    // Shipping with tax.
    QTest::mouseClick(itemsPage->shippingButton(), Qt::LeftButton);
    ShippingPopover* shipping = itemsPage->shippingPopover();
    ASSERT_TRUE(shipping->isVisible());
    EXPECT_EQ(invoice->stringValue(key::shippingTitle), QStringLiteral("Shipping"));
    type(shipping->amountField(), QStringLiteral("10"));
    shipping->findChild<QCheckBox*>(QStringLiteral("shippingPopoverTax1Button"))->click();
    shoot(shipping, QStringLiteral("07-shipping-popover"));
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
    discount->kindField()->setCurrentIndex(1);
    Q_EMIT discount->kindField()->activated(1);
    EXPECT_TRUE(discount->percentField()->isEnabled());
    type(discount->percentField(), QStringLiteral("10"));
    shoot(discount, QStringLiteral("08-discount-popover"));
    QTest::mouseClick(button(discount, "&Give Discount"), Qt::LeftButton);
    EXPECT_FLOAT_EQ(invoice->floatValue(key::discountPercent), 0.1f);
    EXPECT_NEAR(invoice->floatValue(key::amount), beforeDiscount * 0.9f, 0.01f);
    shoot(window.get(), QStringLiteral("09-items-totals"));

    // A second invoice, sent and not yet paid, for the totals to tell apart.
    window->command(QStringLiteral("addInvoice"))->trigger();
    window->showPage(1);
    addItem(QStringLiteral("Other work"), QStringLiteral("40"), QStringLiteral("1"));
    window->showPage(2);
    window->infoPage()->statusField()->setCurrentIndex(1);
    Q_EMIT window->infoPage()->statusField()->activated(1);
    window->documentList()->selectRow(window->documentListModel()->rowOf(invoice));
    ASSERT_EQ(app->state().currentInvoice(), invoice);

    // Paid from the info page.
    window->showPage(2);
    InfoPage* info = window->infoPage();
    EXPECT_EQ(window->pages()->currentWidget(), info);
    // The e-invoice fields start empty; each edit is one named step.
    auto* leitweg = info->findChild<QLineEdit*>(QStringLiteral("buyerReferenceView"));
    EXPECT_TRUE(leitweg->text().isEmpty());
    type(leitweg, QStringLiteral("04011000-12345-67"));
    EXPECT_EQ(invoice->stringValue(key::buyerReference), QStringLiteral("04011000-12345-67"));
    EXPECT_TRUE(window->undoAction()->text().contains(QStringLiteral("Change Buyer Reference")));
    info->statusField()->setCurrentIndex(3);
    Q_EMIT info->statusField()->activated(3);
    EXPECT_EQ(invoice->intValue(key::status), 3);
    EXPECT_TRUE(invoice->boolValue(key::isPaid));
    shoot(window.get(), QStringLiteral("10-info-page-paid"));

    // Filtered to paid invoices, the totals describe only those.
    const QString allTotals = window->totalsLabel()->text();
    EXPECT_EQ(app->state().invoiceCount, 2u);
    QTest::mouseClick(window->filterButton(), Qt::LeftButton);
    FilterPopover* filter = window->filterPopover();
    ASSERT_TRUE(filter->isVisible());
    shoot(filter, QStringLiteral("11-filter-popover"));
    QTest::mouseClick(filter->buttons()->button(3), Qt::LeftButton);
    EXPECT_FALSE(filter->isVisible());
    EXPECT_EQ(app->state().filterTag, 3u);
    EXPECT_EQ(app->state().invoicesController().count(), 1);
    EXPECT_EQ(app->state().invoiceCount, 1u);
    EXPECT_FLOAT_EQ(app->state().paidAmount, invoice->floatValue(key::amount));
    EXPECT_NE(window->totalsLabel()->text(), allTotals);
    EXPECT_TRUE(window->filterButton()->property("filterActive").toBool());
    shoot(window.get(), QStringLiteral("12-filtered"));
    window->resize(1920, 1080);
    window->showPage(1);
    shoot(window.get(), QStringLiteral("15-items-1920"));
}

// A sent invoice: its fields are read-only and say why, its lines cannot be
// edited, and the shipping button answers with the sent-lock alert.
TEST_F(MainWindowStoryTest, ASentInvoiceIsReadOnlyAndSaysWhy)
{
    window->command(QStringLiteral("addInvoice"))->trigger();
    window->showPage(1);
    addItem(QStringLiteral("Design"), QStringLiteral("100"), QStringLiteral("1"));
    ManagedObject* invoice = app->state().currentInvoice();
    window->showPage(2);
    InfoPage* info = window->infoPage();
    info->statusField()->setCurrentIndex(1);
    Q_EMIT info->statusField()->activated(1);
    ASSERT_EQ(invoice->intValue(key::status), 1);

    auto* title = info->findChild<QLineEdit*>(QStringLiteral("titleView"));
    EXPECT_TRUE(title->isReadOnly());
    EXPECT_TRUE(info->findChild<QLineEdit*>(QStringLiteral("orderReferenceView"))->isReadOnly());
    EXPECT_FALSE(title->toolTip().isEmpty());
    EXPECT_TRUE(info->findChild<QLabel*>(QStringLiteral("lockBanner"))->isVisible());
    EXPECT_TRUE(info->statusField()->isEnabled());
    shoot(window.get(), QStringLiteral("13-sent-info"));

    window->showPage(1);
    ItemTableModel* model = window->itemsPage()->model();
    EXPECT_FALSE(model->flags(model->index(0, ItemTableModel::PriceColumn)) & Qt::ItemIsEditable);
    shoot(window.get(), QStringLiteral("14-sent-items"));
    ui.clear();
    QTest::mouseClick(window->itemsPage()->shippingButton(), Qt::LeftButton);
    EXPECT_FALSE(window->itemsPage()->shippingPopover()->isVisible());
    EXPECT_EQ(ui.alertTitles(), QStringList{QStringLiteral("Error!")});
}

// Every control of the pages has a name for screen readers.
TEST_F(MainWindowStoryTest, EveryControlHasAnAccessibleName)
{
    window->command(QStringLiteral("addInvoice"))->trigger();
    const QList<QWidget*> pages{window->addressPage(), window->itemsPage(), window->infoPage()};
    for (QWidget* page : pages)
        for (QWidget* w : page->findChildren<QWidget*>()) {
            const bool control = qobject_cast<QLineEdit*>(w) || qobject_cast<QPlainTextEdit*>(w) ||
                                 qobject_cast<QAbstractButton*>(w) || qobject_cast<QComboBox*>(w);
            // Qt's own parts (a line edit's clear button, the table's corner) are named by Qt.
            if (!control || w->parentWidget()->inherits("QAbstractSpinBox") ||
                w->inherits("QLineEditIconButton") || w->inherits("QTableCornerButton"))
                continue;
            const bool named =
                !w->accessibleName().isEmpty() ||
                (qobject_cast<QAbstractButton*>(w) && !qobject_cast<QAbstractButton*>(w)->text().isEmpty());
            EXPECT_TRUE(named) << page->objectName().toStdString() << ": " << w->metaObject()->className()
                               << ' ' << w->objectName().toStdString();
        }

    // A long document fills the table; its totals stay in view.
    ManagedObject* invoice = app->state().currentInvoice();
    ObjectContext* context = app->state().context();
    for (int i = 0; i < 1000; ++i) {
        ManagedObject* item = context->insertNewObject(Entity::Item);
        item->setValue(key::title, QStringLiteral("Line %1").arg(i + 1));
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
    EXPECT_TRUE(window->itemsPage()->totalsLabel()->text().contains(QStringLiteral("Subtotal 18,990.50")));
    shoot(window.get(), QStringLiteral("16-thousand-items"));
}

} // namespace
} // namespace vorn::test
