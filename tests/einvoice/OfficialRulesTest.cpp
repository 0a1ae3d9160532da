#include "tests/einvoice/EInvoiceFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <cstdio>

namespace vorn::test {
namespace {

// The e-invoices Vorn writes, checked by scripts/validate-einvoice.sh
// against the official CII D16B schema and the EN 16931 rules. Those
// artefacts are published by CEN and KoSIT, not shipped with Vorn: point
// VORN_EINVOICE_ARTEFACTS at a folder holding them to run this check.
class OfficialRulesTest : public EInvoiceFixture
{
protected:
    void expectValid(ManagedObject* d, EInvoiceProfile profile, const char* name)
    {
        SCOPED_TRACE(name);
        Result<QByteArray> xml = einvoice.xml(*d, profile);
        ASSERT_TRUE(xml.ok()) << xml.error().fullText().toStdString();
        const QString path = QDir(environment.home()).filePath(QLatin1String(name) + QLatin1String(".xml"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(xml.value());
        file.close();

        QProcess check;
        check.setProcessChannelMode(QProcess::MergedChannels);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        check.setProcessEnvironment(env);
        check.start(QStringLiteral("bash"),
                    {QStringLiteral(VORN_SOURCE_DIR "/scripts/validate-einvoice.sh"), path, m_artefacts});
        ASSERT_TRUE(check.waitForFinished(120000));
        const QByteArray report = check.readAll();
        EXPECT_EQ(check.exitCode(), 0) << report.toStdString();
        std::printf("%s: %s", name, report.constData());
    }

    void SetUp() override
    {
        m_artefacts = qEnvironmentVariable("VORN_EINVOICE_ARTEFACTS");
        if (m_artefacts.isEmpty())
            GTEST_SKIP()
                << "VORN_EINVOICE_ARTEFACTS is not set: the official EN 16931 rules were NOT checked";
    }

    QString m_artefacts;
};

TEST_F(OfficialRulesTest, EveryKindOfInvoicePassesTheSchemaAndTheRules)
{
    // Two rates, shipping, a percentage discount, a fraction of a cent.
    ManagedObject* german = germanInvoice();
    expectValid(german, EInvoiceProfile::En16931, "german-en16931");
    expectValid(german, EInvoiceProfile::XRechnung, "german-xrechnung");

    // Rounding per line moves the total by a cent: carried as rounding amount.
    ManagedObject* rounding =
        addDocument(1, "currency", "EUR", "number", "R-2", "address", "Kunde GmbH\nWeg 1\n10115 Berlin");
    assign(*rounding, key::buyerCountryCode, "DE");
    for (int i = 0; i < 3; ++i)
        line(rounding, "Copy", "", 1, 0.335f, 0.19f, 0);
    calculator.calculateInvoiceAmounts(rounding);
    expectValid(rounding, EInvoiceProfile::En16931, "rounding");

    // A compound tax, a fixed discount, no shipping.
    ManagedObject* compound =
        addDocument(1, "currency", "EUR", "number", "R-3", "address", "Kunde GmbH\nWeg 1\n10115 Berlin");
    assign(*compound, key::buyerCountryCode, "AT", key::buyerVatID, "ATU12345678", "isDiscountEnabled", true,
           "discountKind", 0, "discountAmount", 10.0f);
    line(compound, "Service", "h", 2, 100, 0.10f, 0.05f, true);
    line(compound, "Book", "pcs", 1, 20, 0, 0.07f);
    calculator.calculateInvoiceAmounts(compound);
    expectValid(compound, EInvoiceProfile::En16931, "compound");
}

} // namespace
} // namespace vorn::test
