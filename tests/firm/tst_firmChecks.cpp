#include "testSupport.h"

#include "data/kiv_mat_firmStruct.h"
#include "firm/firmChecks.h"

class tst_firmChecks : public QObject
{
    Q_OBJECT
private slots:
    void taxNumbers_data();
    void taxNumbers();
    void everyWrongDigitIsFound();
    void firmsAreListed();
};

void tst_firmChecks::taxNumbers_data()
{
    QTest::addColumn<int>("state");
    const auto row = [](const char *number, taxNumberState state) {
        QTest::newRow(number) << int(state);
    };
    row("", taxNumberState::none);
    row(" - ", taxNumberState::none);
    row("5260250274", taxNumberState::good);
    row("526-025-02-74", taxNumberState::good);
    row("PL 526 025 02 74", taxNumberState::good);
    row("pl5260250274", taxNumberState::good);
    row("5260250275", taxNumberState::wrong);
    row("526025027", taxNumberState::wrong);
    row("52602502740", taxNumberState::wrong);
    row("526025027X", taxNumberState::wrong);
    row("0000000000", taxNumberState::wrong);
    // A sum that leaves 10 fits no digit.
    row("1000010000", taxNumberState::wrong);
    row("PL", taxNumberState::wrong);
    row("DE123456789", taxNumberState::foreign);
    row("brak", taxNumberState::wrong);
}

void tst_firmChecks::taxNumbers()
{
    const QString number = QTest::currentDataTag();
    QTEST(int(checkTaxNumber(number)), "state");
    QCOMPARE(taxNumberWarning(number).contains(number) && !number.isEmpty(),
             checkTaxNumber(number) == taxNumberState::wrong);
}

void tst_firmChecks::everyWrongDigitIsFound()
{
    const QString good = "5260250274";
    for (int place = 0; place < good.size(); ++place) {
        for (char digit = '0'; digit <= '9'; ++digit) {
            QString number = good;
            number[place] = digit;
            QCOMPARE(checkTaxNumber(number) == taxNumberState::good, number == good);
        }
    }
}

void tst_firmChecks::firmsAreListed()
{
    kiv_mat_firmStruct firms;
    for (const char *nip : {"", "5260250274", "1"}) {
        firms.manufacturers.append(std::make_unique<firmStruct>())->nip = nip;
        firms.suppliers.append(std::make_unique<firmStruct>())->nip = nip;
    }
    const auto wrong = firmsWithWrongTaxNumber(firms);
    QCOMPARE(int(wrong.size()), 2);
    QCOMPARE(wrong[0], firms.manufacturers.items[2].get());
    QCOMPARE(wrong[1], firms.suppliers.items[2].get());
}

KIVZP_TEST(tst_firmChecks)
#include "tst_firmChecks.moc"
