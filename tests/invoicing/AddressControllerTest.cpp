#include "tests/invoicing/InvoicingFixture.h"

#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFile>

using namespace vorn;
using namespace vorn::test;

namespace {

Contact contact(const char* first, const char* last, const char* company, const char* street,
                const char* city, const char* zip, const char* state, const char* country)
{
    Contact c;
    c.firstName = QString::fromUtf8(first);
    c.lastName = QString::fromUtf8(last);
    c.organization = QString::fromUtf8(company);
    ContactAddress a;
    a.street = QString::fromUtf8(street);
    a.city = QString::fromUtf8(city);
    a.postalCode = QString::fromUtf8(zip);
    a.region = QString::fromUtf8(state);
    a.country = QString::fromUtf8(country);
    c.addresses << a;
    return c;
}

struct PatternCase
{
    const char* name;
    Contact contact;
    const char* pattern;
    const char* expected;
};

const PatternCase patternCases[] = {
    {"threeLines", contact("Ada", "Lovelace", "", "1 Analytical Way", "London", "N1", "", "UK"),
     "%FIRSTNAME% %LASTNAME%\n%STREET%\n%ZIP% %CITY%", "Ada Lovelace\n1 Analytical Way\nN1 London"},
    {"noStreetLeavesEmptyLine", contact("Ada", "Lovelace", "", "", "London", "N1", "", ""),
     "%FIRSTNAME% %LASTNAME%\n%STREET%\n%ZIP% %CITY%", "Ada Lovelace\n\nN1 London"},
    {"noCompanyLeavesEmptyLine", contact("Bo", "Li", "", "Main St", "Austin", "78701", "TX", "USA"),
     "%FIRSTNAME% %LASTNAME%\n%COMPANY%\n%STREET%\n%CITY%, %STATE% %ZIP%\n%COUNTRY%",
     "Bo Li\n\nMain St\nAustin, TX 78701\nUSA"},
    {"everyOccurrence", contact("Al", "", "", "", "", "", "", ""), "%FIRSTNAME%/%FIRSTNAME%%FIRSTNAME%",
     "Al/AlAl"},
    {"lowercaseIsText", contact("Al", "Bo", "", "", "", "", "", ""), "%firstname% %LASTNAME%",
     "%firstname% Bo"},
    {"valueSpellingALaterPlaceholder", contact("%LASTNAME%", "Bo", "", "", "", "", "", ""), "%FIRSTNAME%",
     "Bo"},
    {"valueSpellingAnEarlierPlaceholder", contact("Al", "%FIRSTNAME%", "", "", "", "", "", ""), "%LASTNAME%",
     "%FIRSTNAME%"},
    {"noPlaceholders", contact("Al", "Bo", "", "", "", "", "", ""), "Fixed text", "Fixed text"},
};

class AddressPatterns : public ::testing::TestWithParam<PatternCase>
{
};

TEST_P(AddressPatterns, Expand)
{
    const PatternCase& c = GetParam();
    EXPECT_EQ(AddressController::addressFromPattern(c.contact, QString::fromUtf8(c.pattern)),
              QString::fromUtf8(c.expected));
}

INSTANTIATE_TEST_SUITE_P(Addresses, AddressPatterns, ::testing::ValuesIn(patternCases),
                         [](const auto& info) { return std::string(info.param.name); });

struct EmailCase
{
    const char* name;
    std::vector<std::pair<const char*, QStringList>> emails;
    const char* chosen;
};

const EmailCase emailCases[] = {
    {"none", {}, ""},
    {"oneWork", {{"w@x.org", {"work"}}}, "w@x.org"},
    {"oneUnlabelled", {{"u@x.org", {}}}, "u@x.org"},
    {"workAndHome", {{"w@x.org", {"work"}}, {"h@x.org", {"internet", "HOME"}}}, "h@x.org"},
    {"twoWork", {{"w1@x.org", {"work"}}, {"w2@x.org", {"work"}}}, ""},
    {"twoHomeTakesTheLast",
     {{"h1@x.org", {"home"}}, {"w@x.org", {"work"}}, {"h2@x.org", {"home"}}},
     "h2@x.org"},
    {"preferredDoesNotCount", {{"p@x.org", {"work"}}, {"o@x.org", {"other"}}}, ""},
};

class EmailChoice : public ::testing::TestWithParam<EmailCase>
{
};

TEST_P(EmailChoice, Rule)
{
    Contact c;
    for (const auto& [address, types] : GetParam().emails)
        c.emails << ContactEmail{QString::fromUtf8(address), types, false};
    EXPECT_EQ(AddressController::chooseEmail(c), QString::fromUtf8(GetParam().chosen));
}

INSTANTIATE_TEST_SUITE_P(Addresses, EmailChoice, ::testing::ValuesIn(emailCases),
                         [](const auto& info) { return std::string(info.param.name); });

class AddressControllerTest : public InvoicingFixture
{
protected:
    AddressControllerTest()
    {
        settings.setValue(key::prefsAddressPattern, QStringLiteral("%FIRSTNAME% %LASTNAME%\n%CITY%"));
        settings.setValue(key::prefsContactsFolders, env.home() + QStringLiteral("/nowhere"));
        doc = document(1);
        select(doc);
    }
    AddressController& addresses() { return controllers->addresses(); }
    void accept(const QString& text, const QString& email, const QString& number)
    {
        addresses().showAddressPopover();
        addresses().popover().address = text;
        addresses().popover().emailAddress = email;
        addresses().popover().clientNumber = number;
        addresses().selectAddress();
    }

    TestEnvironment env;
    ManagedObject* doc = nullptr;
};

TEST_F(AddressControllerTest, AcceptingFillsTheDocumentAndRemembersOncePerText)
{
    doc->setValue(key::clientNumber, QStringLiteral("C-7"));
    accept(QStringLiteral("Ada\nLondon"), QStringLiteral("ada@x.org"), QString());
    EXPECT_EQ(doc->stringValue(key::address), QStringLiteral("Ada\nLondon"));
    EXPECT_EQ(doc->stringValue(key::emailAddress), QStringLiteral("ada@x.org"));
    EXPECT_EQ(doc->stringValue(key::clientNumber), QStringLiteral("C-7")); // empty field: unchanged
    EXPECT_FALSE(addresses().popover().shown);
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).last().title, QStringLiteral("subjectView"));
    ASSERT_EQ(state.addressesController().count(), 1);
    EXPECT_FALSE(context.hasChanges());

    // The same text again: still one, and the remembered e-mail stays.
    accept(QStringLiteral("Ada\nLondon"), QStringLiteral("new@x.org"), QStringLiteral("C-9"));
    ASSERT_EQ(state.addressesController().count(), 1);
    const ManagedObject* remembered = state.addressesController().arrangedObjects().first();
    EXPECT_EQ(remembered->stringValue(key::emailAddress), QStringLiteral("ada@x.org"));
    EXPECT_EQ(remembered->stringValue(key::clientNumber), QString());
    EXPECT_EQ(remembered->dateValue(key::date), clock.now());
    EXPECT_EQ(doc->stringValue(key::emailAddress), QStringLiteral("new@x.org"));
    EXPECT_EQ(doc->stringValue(key::clientNumber), QStringLiteral("C-9"));

    accept(QStringLiteral("Ada\nParis"), QString(), QString());
    EXPECT_EQ(state.addressesController().count(), 2);
}

TEST_F(AddressControllerTest, RecentAddressesCopyOnlyWhatTheyHave)
{
    accept(QStringLiteral("Bo\nAustin"), QString(), QString());
    doc->setValue(key::clientNumber, QStringLiteral("C-1"));
    doc->setValue(key::emailAddress, QStringLiteral("keep@x.org"));
    doc->setValue(key::address, QString());
    state.addressesController().setSelectionIndexes({0});
    addresses().showAddressPopover();
    addresses().selectRecentAdress();
    EXPECT_EQ(doc->stringValue(key::address), QStringLiteral("Bo\nAustin"));
    EXPECT_EQ(doc->stringValue(key::clientNumber), QStringLiteral("C-1"));
    EXPECT_EQ(doc->stringValue(key::emailAddress), QStringLiteral("keep@x.org"));
    EXPECT_FALSE(addresses().popover().shown);

    ManagedObject* full = state.addressesController().arrangedObjects().first();
    full->setValue(key::clientNumber, QStringLiteral("C-2"));
    full->setValue(key::emailAddress, QStringLiteral("bo@x.org"));
    addresses().selectRecentAdress();
    EXPECT_EQ(doc->stringValue(key::clientNumber), QStringLiteral("C-2"));
    EXPECT_EQ(doc->stringValue(key::emailAddress), QStringLiteral("bo@x.org"));
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
            "EMAIL;TYPE=home:a@h.org\r\nEND:VCARD\r\n"
            "BEGIN:VCARD\r\nN;CHARSET=NOPE:x;y\r\nEND:VCARD\r\n");
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
    EXPECT_EQ(addresses().popover().address, QStringLiteral("Ann Abel\nAachen"));
    EXPECT_EQ(addresses().popover().emailAddress, QStringLiteral("a@h.org"));

    addresses().setPickerSelection({1});
    addresses().changedAddressRecordsCriteria();
    EXPECT_EQ(addresses().popover().address, QStringLiteral("Zoe Zed\nZurich"));
    EXPECT_EQ(addresses().popover().emailAddress, QStringLiteral("z@z.org"));

    // Not exactly one selected: the e-mail field is cleared, nothing else.
    addresses().setPickerSelection({0, 1});
    addresses().selectAddressRecord();
    EXPECT_EQ(addresses().popover().address, QStringLiteral("Zoe Zed\nZurich"));
    EXPECT_EQ(addresses().popover().emailAddress, QString());

    settings.removeValue(key::prefsAddressPattern);
    addresses().setPickerSelection({0});
    addresses().selectAddressRecord();
    EXPECT_EQ(addresses().popover().address, AddressController::missingPatternText());
}

TEST_F(AddressControllerTest, SettingNamesSeveralFoldersAndClientNumbersCount)
{
    settings.setValue(key::prefsContactsFolders, QStringLiteral("/a: ~/b :"));
    EXPECT_EQ(addresses().contactsFolders(), (QStringList{QStringLiteral("/a"), QDir::homePath() + "/b"}));

    settings.setValue(key::clientPattern, QStringLiteral("K%COUNT%"));
    settings.setValue(key::clientCount, 10);
    addresses().showAddressPopover();
    addresses().generateClientNumber();
    EXPECT_EQ(addresses().popover().clientNumber, QStringLiteral("K11"));
    addresses().popover().address = QStringLiteral("X");
    addresses().selectAddress();
    EXPECT_EQ(doc->stringValue(key::clientNumber), QStringLiteral("K11"));
    addresses().generateClientNumber();
    EXPECT_EQ(addresses().popover().clientNumber, QStringLiteral("K12"));

    addresses().contactsButtonAction();
    EXPECT_EQ(ui.calls(QStringLiteral("application")).value(0).title, QStringLiteral("contacts"));
}

TEST_F(AddressControllerTest, NothingHappensWithoutADocument)
{
    state.invoicesController().setSelectionIndexes({});
    addresses().showAddressPopover();
    EXPECT_FALSE(addresses().popover().shown);
    addresses().popover().address = QStringLiteral("X");
    addresses().selectAddress();
    addresses().selectRecentAdress();
    EXPECT_EQ(state.addressesController().count(), 0);
}

} // namespace
