#include "invoicing/VCardReader.h"

#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QStringEncoder>

#include <random>

#include <gtest/gtest.h>

using namespace vorn;

namespace {

// first|last|org|street|city|zip|state|country|emails (with their types)
QString summary(const Contact& c)
{
    const ContactAddress p = c.primaryAddress() ? *c.primaryAddress() : ContactAddress();
    QStringList emails;
    for (const ContactEmail& e : c.emails)
        emails << e.address + (e.types.isEmpty() ? QString() : "(" + e.types.join(QLatin1Char(',')) + ")");
    return QStringList{
        c.firstName,  c.lastName, c.organization, QString(p.street).replace("\n", "\\n"), p.city,
        p.postalCode, p.region,   p.country,      emails.join(QLatin1Char(' '))}
        .join(QLatin1Char('|'));
}

// One card of the given version around the body, whose lines end in CR LF.
QByteArray card(const char* version, QByteArray body)
{
    return "BEGIN:VCARD\r\nVERSION:" + QByteArray(version) + "\r\n" + body.replace("\n", "\r\n") +
           "END:VCARD\r\n";
}

struct CardCase
{
    const char* name;
    QByteArray data;
    QStringList contacts;
    int notes = 0;
};

const CardCase cardCases[] = {
    {"v3FoldedAndEscaped",
     card("3.0", "N:Doe;Jane;;;\nFN:Jane Doe\nORG:Acme\\, Inc.;Sales\nADR;TYPE=WORK:;;1 Main St\\nSuite "
                 "5;Spring\n field;IL;62701;USA\nEMAIL;TYPE=INTERNET,WORK:jane@acme.com\n"),
     {"Jane|Doe|Acme, Inc.|1 Main St\\nSuite 5|Springfield|62701|IL|USA|jane@acme.com(internet,work)"}},
    {"v21QuotedPrintableLatin1",
     card("2.1", "N;CHARSET=ISO-8859-1;ENCODING=QUOTED-PRINTABLE:M=FCller;J=FCrgen\nADR;HOME;PREF;ENCODING="
                 "QUOTED-PRINTABLE;CHARSET=ISO-8859-1:;;Hauptstra=DFe 1=0D=0A=\nHinterhaus;Berlin;;10115;"
                 "Germany\nEMAIL;HOME;INTERNET:j@m.de\n"),
     {"Jürgen|Müller||Hauptstraße 1\\nHinterhaus|Berlin|10115||Germany|j@m.de(home,internet)"}},
    {"v21BareQuotedPrintableUtf8",
     "BEGIN:VCARD\nVERSION:2.1\nN;QUOTED-PRINTABLE;CHARSET=UTF-8:=C3=85ngstr=C3=B6m;=C3=85sa\nEND:VCARD\n",
     {"Åsa|Ångström|||||||"}},
    {"v21FoldingKeepsTheSpace",
     card("2.1", "N:Doe;Jane\nORG:Big\n Company\n"),
     {"Jane|Doe|Big Company||||||"}},
    {"v3FoldingDropsOneSpace", card("3.0", "N:Doe;Jane\nORG:Big\n Company\n"), {"Jane|Doe|BigCompany||||||"}},
    {"v4PrefParameterPicksPrimary",
     card("4.0", "N:Roe;Rick;;;\nADR;TYPE=\"home,work\";PREF=2:;;Second St;B;;2;\nADR;TYPE=work:;;Other "
                 "St;C;;3;\nADR;PREF=1;LABEL=\"x:y\":;;First St;A;;1;\n"),
     {"Rick|Roe||First St|A|1|||"}},
    {"v3PrefTypeInList",
     card("3.0", "N:Poe;Pia\nADR;TYPE=home:;;Home St;H;;1;\nADR;TYPE=work,pref:;;Work St;W;;2;\n"),
     {"Pia|Poe||Work St|W|2|||"}},
    {"v3RepeatedTypeParameters",
     card("3.0", "N:Poe;Pia\nADR;type=home:;;Home St;H;;1;\nADR;type=WORK;type=PREF:;;Work St;W;;2;\n"),
     {"Pia|Poe||Work St|W|2|||"}},
    {"noPreferenceTakesTheFirst",
     card("3.0", "N:Poe;Pia\nADR:;;One;;;;\nADR:;;Two;;;;\n"),
     {"Pia|Poe||One|||||"}},
    {"extendedAddressAndPoBox",
     card("3.0", "N:X;Y\nADR:PO Box 7;Apt 4;12 Elm;Town;;9;\n"),
     {"Y|X||12 Elm|Town|9|||"}},
    {"appleGroupLabels",
     card("3.0", "N:Lee;Ann;;;\nitem1.EMAIL;type=INTERNET:a@x.org\nitem1.X-ABLabel:_$!<Home>!$_\n"
                 "item2.EMAIL;type=INTERNET:b@x.org\nitem2.X-ABLabel:Club\n"),
     {"Ann|Lee|||||||a@x.org(internet,home) b@x.org(internet,club)"}},
    {"unknownCharsetSkipsOnlyThatCard",
     card("2.1", "N;CHARSET=X-NO-SUCH-SET:A;B\n") + card("2.1", "N:C;D\n"),
     {"D|C|||||||"},
     1},
    {"windows1252Charset", card("2.1", "N;CHARSET=windows-1252:Caf\xE9;\x80uro\n"), {"€uro|Café|||||||"}},
    {"unlabelled8BitFallsBackToLatin1", card("2.1", "N:M\xFCller;Hans\n"), {"Hans|Müller|||||||"}},
    {"missingEndAtTheEnd",
     "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Open;Olga\r\nEMAIL:o@o.org\r\n",
     {"Olga|Open|||||||o@o.org"},
     1},
    {"missingEndBeforeTheNextCard",
     "BEGIN:VCARD\r\nVERSION:3.0\r\nN:One;A\r\n" + card("3.0", "N:Two;B\n"),
     {"A|One|||||||", "B|Two|||||||"},
     1},
    {"brokenLineInsideACard",
     card("3.0", "this line has no colon\nN:Ok;Kay\n:novalue\n"),
     {"Kay|Ok|||||||"},
     2},
    {"agentCardIsNotAContact",
     card("2.1", "N:Boss;Bea\nAGENT:\nBEGIN:VCARD\nVERSION:2.1\nN:Helper;Hal\nEND:VCARD\nEMAIL:bea@b.org\n"),
     {"Bea|Boss|||||||bea@b.org"}},
    {"lowercaseAndCrOnlyLines", "begin:vcard\rversion:3.0\rn:Low;Lou\rend:vcard\r", {"Lou|Low|||||||"}},
    {"quotedPrintableWithBrokenEscape",
     card("2.1", "ORG;ENCODING=QUOTED-PRINTABLE:A=ZZB=4\nN:Q;P\n"),
     {"P|Q|A=ZZB=4||||||"}},
    {"rfc6868CaretsAndBackslashes",
     card("4.0", "N:Back\\\\slash;Semi\\;colon\nEMAIL;TYPE=\"ho^'me\":c@c.org\n"),
     {"Semi;colon|Back\\slash|||||||c@c.org(ho\"me)"}},
    {"strayTextAndEndOutsideCards",
     "hello\r\nEND:VCARD\r\nBEGIN:VCARD\r\nN:In;Side\r\nEND:VCARD\r\n",
     {"Side|In|||||||"},
     1},
    {"notAVCardAtAll", "just some text\nwith lines\n", {}, 2},
    {"empty", "", {}},
};

TEST(VCardReader, ReadsEveryCardOfTheTable)
{
    for (const CardCase& c : cardCases) {
        SCOPED_TRACE(c.name);
        const VCardReadResult result = VCardReader::parse(c.data, QStringLiteral("test.vcf"));
        QStringList got;
        for (const Contact& contact : result.contacts)
            got << summary(contact);
        EXPECT_EQ(got, c.contacts);
        EXPECT_EQ(result.notes.size(), c.notes) << result.notes.join(QLatin1Char('\n')).toStdString();
        for (const QString& note : result.notes)
            EXPECT_TRUE(note.startsWith(QLatin1String("test.vcf: "))) << note.toStdString();
    }
}

TEST(VCardReader, Utf16AndUtf8WithByteOrderMark)
{
    const QString text = QStringLiteral("BEGIN:VCARD\r\nVERSION:3.0\r\nN:Zoë;Chloé\r\nEND:VCARD\r\n");
    for (auto encoding : {QStringEncoder::Utf16LE, QStringEncoder::Utf16BE, QStringEncoder::Utf8}) {
        const QByteArray data = QStringEncoder(encoding, QStringEncoder::Flag::WriteBom).encode(text);
        const VCardReadResult result = VCardReader::parse(data, QStringLiteral("bom.vcf"));
        ASSERT_EQ(result.contacts.size(), 1) << int(encoding);
        EXPECT_EQ(summary(result.contacts[0]), QStringLiteral("Chloé|Zoë|||||||"));
    }
}

// The name a contact is listed by: its formatted name, else the last name,
// the organisation, the e-mail address.
TEST(VCardReader, DisplayNameFallsBackInOrder)
{
    Contact c;
    c.emails << ContactEmail{QStringLiteral("m@x.org"), {}, false};
    QStringList names{c.displayName()};
    c.organization = QStringLiteral("Org");
    names << c.displayName();
    c.lastName = QStringLiteral("Last");
    names << c.displayName();
    c.formattedName = QStringLiteral(" Full Name ");
    names << c.displayName();
    EXPECT_EQ(names, QStringList({"m@x.org", "Org", "Last", "Full Name"}));
}

TEST(VCardReader, OverlongLinesAndTooManyPropertiesAreCutWithNotes)
{
    QByteArray data = "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Long;Lara\r\nNOTE:";
    data += QByteArray(VCardReader::maximumLineLength + 10, 'x');
    data += "\r\nEMAIL:l@l.org\r\n";
    for (int i = 0; i < VCardReader::maximumPropertiesPerCard + 5; ++i)
        data += "X-JUNK:" + QByteArray::number(i) + "\r\n";
    data += "ORG:Late Org\r\nEND:VCARD\r\n";
    const VCardReadResult result = VCardReader::parse(data, QStringLiteral("big.vcf"));
    ASSERT_EQ(result.contacts.size(), 1);
    EXPECT_EQ(result.contacts[0].lastName, QStringLiteral("Long"));
    EXPECT_EQ(result.contacts[0].emails.size(), 1);
    EXPECT_EQ(result.contacts[0].organization, QString()); // after the property limit
    EXPECT_EQ(result.notes.size(), 2) << result.notes.join(QLatin1Char('\n')).toStdString();
}

TEST(VCardReader, HugeInputKeepsTheCompleteCardsBeforeTheLimit)
{
    const QByteArray card =
        "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Many;Max\r\nNOTE:" + QByteArray(4000, 'n') + "\r\nEND:VCARD\r\n";
    QByteArray data;
    data.reserve(VCardReader::maximumFileSize + 2 * card.size());
    while (data.size() <= VCardReader::maximumFileSize + card.size())
        data += card;
    const VCardReadResult result = VCardReader::parse(data, QStringLiteral("huge.vcf"));
    EXPECT_EQ(result.contacts.size(), VCardReader::maximumFileSize / card.size());
    ASSERT_EQ(result.notes.size(), 2) << result.notes.join(QLatin1Char('\n')).toStdString();
}

TEST(VCardReader, FoldersAreReadRecursivelyAndUnreadableFilesNoted)
{
    vorn::test::TestEnvironment env;
    QDir home(env.home());
    home.mkpath(QStringLiteral("contacts/work/deeper"));
    auto write = [&](const QString& path, const QByteArray& data) {
        QFile f(home.filePath(path));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(data);
    };
    write(QStringLiteral("contacts/a.vcf"), "BEGIN:VCARD\nN:A;A\nEND:VCARD\n");
    write(QStringLiteral("contacts/work/b.VCF"),
          "BEGIN:VCARD\nN:B;B\nEND:VCARD\nBEGIN:VCARD\nN:C;C\nEND:VCARD\n");
    write(QStringLiteral("contacts/work/deeper/d.vcard"), "BEGIN:VCARD\nN:D;D\nEND:VCARD\n");
    write(QStringLiteral("contacts/notes.txt"), "BEGIN:VCARD\nN:X;X\nEND:VCARD\n");
    write(QStringLiteral("contacts/locked.vcf"), "BEGIN:VCARD\nN:L;L\nEND:VCARD\n");
    QFile::setPermissions(home.filePath(QStringLiteral("contacts/locked.vcf")), QFileDevice::WriteOwner);

    const VCardReadResult result = VCardReader::readPaths(
        {home.filePath(QStringLiteral("contacts")), home.filePath(QStringLiteral("missing"))});
    QStringList names;
    for (const Contact& c : result.contacts)
        names << c.lastName + QString::number(c.indexInFile);
    names.sort();
    const bool root = QFile(home.filePath(QStringLiteral("contacts/locked.vcf"))).open(QIODevice::ReadOnly);
    EXPECT_EQ(names,
              root ? QStringList({"A0", "B0", "C1", "D0", "L0"}) : QStringList({"A0", "B0", "C1", "D0"}));
    EXPECT_EQ(result.notes.size(), root ? 1 : 2) << result.notes.join(QLatin1Char('\n')).toStdString();
}

// Damaged cards of every kind: whatever the bytes, the reader answers
// without crashing, and every contact it answers came from a card.
TEST(VCardReader, MutatedInputNeverBreaksTheReader)
{
    const char alphabet[] = "=:;,\\\r\n \"^BEGINVCARDEND\x80\xFF\x00";
    std::mt19937 rng(7);
    const auto pick = [&rng](qsizetype low, qsizetype high) {
        return int(std::uniform_int_distribution<qsizetype>(low, high)(rng));
    };
    for (int round = 0; round < 3000; ++round) {
        QByteArray data = cardCases[round % std::size(cardCases)].data;
        for (int edits = pick(1, 12); edits > 0; --edits) {
            const int at = pick(0, data.size()), operation = pick(0, 2);
            const char c = alphabet[pick(0, sizeof alphabet - 2)];
            if (operation == 0)
                data.insert(at, c);
            else if (operation == 1 && at < data.size())
                data[at] = c;
            else
                data.remove(at, pick(1, 20));
        }
        const VCardReadResult result = VCardReader::parse(data, QStringLiteral("m.vcf"));
        ASSERT_LE(result.contacts.size(), data.count("BEGIN") + data.count("begin") + 2) << round;
        for (const Contact& c : result.contacts)
            ASSERT_LE(c.addresses.size(), 10) << round;
    }
}

} // namespace
