#include "tests/invoicing/InvoicingFixture.h"

#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFile>

using namespace vorn;
using namespace vorn::test;

namespace {

// A contact from "first|last|company|street|city|zip|state|country".
Contact contact(const char* text)
{
    const QStringList f = QString::fromUtf8(text).split(QLatin1Char('|'));
    Contact c;
    c.firstName = f.value(0);
    c.lastName = f.value(1);
    c.organization = f.value(2);
    c.addresses << ContactAddress{{}, {}, f.value(3), f.value(4), f.value(6), f.value(5), f.value(7), {}};
    return c;
}

TEST(AddressPatterns, Expand)
{
    const char* threeLines = "%FIRSTNAME% %LASTNAME%\n%STREET%\n%ZIP% %CITY%";
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"Ada|Lovelace||1 Analytical Way|London|N1||UK", threeLines,
         "Ada Lovelace\n1 Analytical Way\nN1 London"},
        {"Ada|Lovelace|||London|N1||", threeLines, "Ada Lovelace\n\nN1 London"}, // no street: empty line
        {"Bo|Li||Main St|Austin|78701|TX|USA",
         "%FIRSTNAME% %LASTNAME%\n%COMPANY%\n%STREET%\n%CITY%, %STATE% %ZIP%\n%COUNTRY%",
         "Bo Li\n\nMain St\nAustin, TX 78701\nUSA"},
        {"Al", "%FIRSTNAME%/%FIRSTNAME%%FIRSTNAME%", "Al/AlAl"},
        {"Al|Bo", "%firstname% %LASTNAME%", "%firstname% Bo"},
        // Values that spell placeholders stay as they are.
        {"%LASTNAME%|Bo", "%FIRSTNAME%", "Bo"},
        {"Al|%FIRSTNAME%", "%LASTNAME%", "%FIRSTNAME%"},
        {"Al|Bo", "Fixed text", "Fixed text"},
    };
    for (const auto& [person, pattern, expected] : cases)
        EXPECT_EQ(AddressController::addressFromPattern(contact(person), QString::fromUtf8(pattern)),
                  QString::fromUtf8(expected))
            << pattern;
}

TEST(AddressEmail, OneAddressOrTheLastLabelledHome)
{
    using Emails = std::vector<std::pair<const char*, QStringList>>;
    const std::pair<Emails, const char*> cases[] = {
        {{}, ""},
        {{{"w@x.org", {"work"}}}, "w@x.org"},
        {{{"u@x.org", {}}}, "u@x.org"},
        {{{"w@x.org", {"work"}}, {"h@x.org", {"internet", "HOME"}}}, "h@x.org"},
        {{{"w1@x.org", {"work"}}, {"w2@x.org", {"work"}}}, ""},
        {{{"h1@x.org", {"home"}}, {"w@x.org", {"work"}}, {"h2@x.org", {"home"}}}, "h2@x.org"},
        {{{"p@x.org", {"work"}}, {"o@x.org", {"other"}}}, ""}, // preferred does not count
    };
    for (const auto& [emails, chosen] : cases) {
        Contact c;
        for (const auto& [address, types] : emails)
            c.emails << ContactEmail{QString::fromUtf8(address), types, false};
        EXPECT_EQ(AddressController::chooseEmail(c), QString::fromUtf8(chosen)) << emails.size();
    }
}

class AddressControllerTest : public InvoicingFixture
{
protected:
    AddressControllerTest()
    {
        assign(settings, key::prefsAddressPattern, "%FIRSTNAME% %LASTNAME%\n%CITY%",
               key::prefsContactsFolders, env.home() + "/nowhere");
        doc = document(1);
        select(doc);
    }
    AddressController& addresses() { return controllers->addresses(); }
    void accept(const QString& text, const QString& email, const QString& number)
    {
        addresses().showAddressPopover();
        addresses().popover() = {true, text, email, number};
        addresses().selectAddress();
    }
    QString popover() const
    {
        const AddressController::Popover& p = controllers->addresses().popover();
        return p.address + QLatin1Char('|') + p.emailAddress;
    }

    TestEnvironment env;
    ManagedObject* doc = nullptr;
};

TEST_F(AddressControllerTest, AcceptingFillsTheDocumentAndRemembersOncePerText)
{
    doc->setValue(key::clientNumber, QStringLiteral("C-7"));
    accept("Ada\nLondon", "ada@x.org", QString());
    // An empty client-number field leaves the document's alone.
    EXPECT_EQ(fields(*doc, {key::address, key::emailAddress, key::clientNumber}),
              QStringLiteral("Ada\nLondon|ada@x.org|C-7"));
    EXPECT_FALSE(addresses().popover().shown);
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).last().title, QStringLiteral("subjectView"));
    ASSERT_EQ(state.addressesController().count(), 1);
    EXPECT_FALSE(context.hasChanges());

    // The same text again: still one, and the remembered e-mail stays.
    accept("Ada\nLondon", "new@x.org", "C-9");
    ASSERT_EQ(state.addressesController().count(), 1);
    const ManagedObject* remembered = state.addressesController().arrangedObjects().first();
    EXPECT_EQ(fields(*remembered, {key::emailAddress, key::clientNumber}), QStringLiteral("ada@x.org|"));
    EXPECT_EQ(remembered->dateValue(key::date), clock.now());
    EXPECT_EQ(fields(*doc, {key::emailAddress, key::clientNumber}), QStringLiteral("new@x.org|C-9"));

    accept("Ada\nParis", QString(), QString());
    EXPECT_EQ(state.addressesController().count(), 2);
}

TEST_F(AddressControllerTest, RecentAddressesCopyOnlyWhatTheyHave)
{
    accept("Bo\nAustin", QString(), QString());
    assign(*doc, key::clientNumber, "C-1", key::emailAddress, "keep@x.org", key::address, "");
    state.addressesController().setSelectionIndexes({0});
    addresses().showAddressPopover();
    addresses().selectRecentAdress();
    const QStringList keys{key::address, key::clientNumber, key::emailAddress};
    EXPECT_EQ(fields(*doc, keys), QStringLiteral("Bo\nAustin|C-1|keep@x.org"));
    EXPECT_FALSE(addresses().popover().shown);

    assign(*state.addressesController().arrangedObjects().first(), key::clientNumber, "C-2",
           key::emailAddress, "bo@x.org");
    addresses().selectRecentAdress();
    EXPECT_EQ(fields(*doc, keys), QStringLiteral("Bo\nAustin|C-2|bo@x.org"));
}

TEST_F(AddressControllerTest, ContactsFromTheFolderThroughThePattern)
{
    QDir home(env.home());
    home.mkpath(QStringLiteral(".local/share/contacts/personal"));
    QFile f(home.filePath(QStringLiteral(".local/share/contacts/personal/people.vcf")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("BEGIN:VCARD\r\nVERSION:3.0\r\nN:Zed;Zoe\r\nADR:;;;Zurich;;;\r\nEMAIL;TYPE=work:z@z.org\r\nEND:"
            "VCARD\r\n"
            "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Abel;Ann\r\nADR:;;;Aachen;;;\r\nEMAIL;TYPE=work:a@w.org\r\n"
            "EMAIL;TYPE=home:a@h.org\r\nEND:VCARD\r\nBEGIN:VCARD\r\nN;CHARSET=NOPE:x;y\r\nEND:VCARD\r\n");
    f.close();
    settings.removeValue(key::prefsContactsFolders);
    EXPECT_EQ(addresses().contactsFolders(),
              QStringList{home.filePath(QStringLiteral(".local/share/contacts"))});

    addresses().showAddressPopover();
    ASSERT_EQ(addresses().contacts().size(), 2);
    EXPECT_EQ(addresses().contacts()[0].lastName, QStringLiteral("Abel")); // sorted by name
    EXPECT_EQ(addresses().contactNotes().size(), 1);

    addresses().popover().emailAddress = QStringLiteral("stale@x.org");
    addresses().setPickerSelection({0});
    addresses().recordChanged();
    EXPECT_EQ(popover(), QStringLiteral("Ann Abel\nAachen|a@h.org"));
    addresses().setPickerSelection({1});
    addresses().changedAddressRecordsCriteria();
    EXPECT_EQ(popover(), QStringLiteral("Zoe Zed\nZurich|z@z.org"));
    // Not exactly one selected: the e-mail field is cleared, nothing else.
    addresses().setPickerSelection({0, 1});
    addresses().selectAddressRecord();
    EXPECT_EQ(popover(), QStringLiteral("Zoe Zed\nZurich|"));

    settings.removeValue(key::prefsAddressPattern);
    addresses().setPickerSelection({0});
    addresses().selectAddressRecord();
    EXPECT_EQ(addresses().popover().address, AddressController::missingPatternText());
}

TEST_F(AddressControllerTest, SettingNamesSeveralFoldersAndClientNumbersCount)
{
    settings.setValue(key::prefsContactsFolders, QStringLiteral("/a: ~/b :"));
    EXPECT_EQ(addresses().contactsFolders(), (QStringList{QStringLiteral("/a"), QDir::homePath() + "/b"}));

    assign(settings, key::clientPattern, "K%COUNT%", key::clientCount, 10);
    addresses().showAddressPopover();
    addresses().generateClientNumber();
    EXPECT_EQ(addresses().popover().clientNumber, QStringLiteral("K11"));
    addresses().popover().address = QStringLiteral("X");
    addresses().selectAddress();
    EXPECT_EQ(doc->stringValue(key::clientNumber), QStringLiteral("K11"));
    addresses().generateClientNumber();
    EXPECT_EQ(addresses().popover().clientNumber, QStringLiteral("K12"));
}

} // namespace
