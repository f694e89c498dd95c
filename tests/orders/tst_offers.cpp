// Offers for an order: what is taken in and what is refused, what they cost, which are proposed, and the order parted
// by firm.
#include "bom/workbookReader.h"
#include "orders/offerImport.h"
#include "orders/offerReport.h"
#include "orders/offerStoring.h"
#include "orders/orderRegister.h"
#include "orders/orderSplitting.h"
#include "orders/quotationDocuments.h"
#include "testSupport.h"
#include "util/workbook.h"

using namespace offerComparison;
using namespace testSupport;

namespace {

constexpr int firstRow = 13; // of the materials in a form

decimal num(const QString &text) { return decimal::read(text).value(); }

// "a=b; c=d", of which d may hold a "|" in the place of a ";".
QVector<std::pair<QString, QString>> pairsOf(const QString &text)
{
    QVector<std::pair<QString, QString>> all;
    for (const QString &one : text.split("; ", Qt::SkipEmptyParts)) {
        const int at = one.indexOf('=');
        all.append({one.left(at), one.mid(at + 1)});
    }
    return all;
}

const QStringList formColumns{"ordinal", "key",      "name",     "partNumbers", "quantity", "unit",
                              "ourDate", "price",    "from2",    "price2",      "from3",    "price3",
                              "minimum", "multiple", "leadTime", "remarks"};
const QStringList formEntries{"request", "customer", "deadline", "firm",     "currency",
                              "are",     "vat",      "lead",     "validity", "remarks"};

QString textOf(const offerStruct &of)
{
    QStringList all;
    for (const auto &field : offerStruct::fields())
        if (!(of.*field.member).isEmpty())
            all.append(of.*field.member);
    for (const auto &row : of.items) {
        QStringList cells;
        for (const auto &field : offeredStruct::fields())
            cells.append((*row).*field.member);
        all.append('[' + cells.join('|') + ']');
    }
    return all.join(' ');
}

QString textOf(const comparison &of, const selection &chosen)
{
    QStringList firms, missing;
    for (const int one : chosen.firmOf)
        firms.append(one < 0 ? "-" : of.firms[size_t(one)].name);
    for (const int one : chosen.missing)
        missing.append(of.materials[size_t(one)].need.key);
    return QString("%1: %2 %3%4")
        .arg(firms.join(' '), chosen.net.text(), chosen.gross().text(),
             missing.isEmpty() ? QString() : " without " + missing.join(' '));
}

} // namespace

class tst_offers : public folderTest
{
    Q_OBJECT
    using termsOf = offerImport::terms;
    static termsOf plainTerms()
    {
        termsOf terms;
        terms.received = QDate(2026, 6, 9);
        return terms;
    }

    kiv_mat_zpStruct m_order;
    kiv_mat_offersStruct m_offers;
    QString m_path;
    kiv_mat_databaseStruct m_database;
    ktmIndex m_materials;
    configStruct m_config;

    void addLine(const QString &ktm, const QString &quantity, const QString &unit = "szt.")
    {
        auto *line = appendTo(m_order.orderItems);
        line->index = QString::number(m_order.orderItems.items.size());
        line->ktm = ktm;
        line->name = "part " + ktm;
        line->quantity = quantity;
        line->price = "9.99";
        line->unit = unit;
    }
    void clearLines() { m_order.orderItems.items.clear(); }
    // prices, minimum, multiple and lead time of each key: "K-1=1: 0.50/10/5/14".
    offerStruct &addOffer(const QString &firm, const QString &rows)
    {
        auto offer = std::make_unique<offerStruct>();
        offer->firm = firm;
        offer->received = "2026.06.01";
        offer->currency = "PLN";
        offer->vat = "23";
        for (const auto &[key, text] : pairsOf(rows)) {
            const QStringList parts = text.split('/');
            auto row = std::make_unique<offeredStruct>();
            row->key = key;
            row->prices = QString(parts.value(0)).replace('|', "; ");
            row->minimum = parts.value(1);
            row->multiple = parts.value(2);
            row->leadTime = parts.value(3);
            offer->append(std::move(row));
        }
        m_offers.offers.push_back(std::move(offer));
        return *m_offers.offers.back();
    }
    comparison compared() const { return comparisonOf(m_order, m_offers, num("8"), QDate(2026, 6, 10)); }

    // A workbook like the one that a firm gets, filled in. before: columns put in front of its own.
    QString writeForm(const QString &entries, const QStringList &rows, const QString &language = "en", int before = 0)
    {
        workbook book;
        book.addSheet("RFQ");
        book.write(1, 1, quotationForm::textOf(quotationForm::title, language));
        QHash<QString, QString> values;
        for (const auto &[name, value] : pairsOf("request=ZP/7/1; firm=TME; " + entries))
            values.insert(name, value);
        for (int i = 0; i < formEntries.size(); ++i) {
            book.write(i + 2, before + 1, quotationForm::captionOf(quotationForm::entry(i), language));
            book.write(i + 2, before + 3, values.value(formEntries[i]));
        }
        for (int i = 0; i < formColumns.size(); ++i)
            book.write(firstRow - 1, before + i + 1, quotationForm::captionOf(quotationForm::column(i), language));
        for (int row = 0; row < rows.size(); ++row)
            for (const auto &[name, value] : pairsOf(rows[row])) {
                bool isNumber = false;
                const double number = value.toDouble(&isNumber);
                const int column = before + formColumns.indexOf(name) + 1;
                isNumber ? book.write(firstRow + row, column, number) : book.write(firstRow + row, column, value);
            }
        const QString path = m_folder->path("form.xlsx");
        return book.saveAs(path) ? path : QString();
    }
    offerImport::result taken(const QString &path, const termsOf &terms = plainTerms(),
                              const QVector<offerImport::field> &fields = {})
    {
        QString fault;
        auto sheet = offerImport::readSheet(path, {}, &fault);
        if (!sheet) {
            offerImport::result none;
            none.faults.append(fault);
            return none;
        }
        if (!fields.isEmpty())
            sheet->fields = fields;
        return offerImport::offerOf(*sheet, terms, {"ZP/7", orderOffers::needsOf(m_order), m_offers, &m_materials});
    }

private slots:
    void init() override
    {
        folderTest::init();
        clearLines();
        m_offers.requests.clear();
        m_offers.offers.clear();
        m_offers.choices.clear();
        m_order.options.findOption(optionKey::orderNumber)->value1 = "ZP/7";
        m_order.options.findOption(optionKey::orderDate)->value1 = "01.06.2026";
        addLine("K-1", "100");
        addLine("K-2", "7");
        addLine("K-1", "20");
        m_path = m_folder->path("zp/zp_7.xml");
        QCOMPARE(saveXmlNoEvents(m_path, &m_order), 0);
        auto request = std::make_unique<requestStruct>();
        request->number = "ZP/7/1";
        request->firm = "TME";
        request->nip = "7290108984";
        request->deadline = "2026.06.10";
        for (const char *key : {"K-1", "K-2", "K-GONE"})
            request->append(std::make_unique<requestedStruct>())->key = key;
        m_offers.requests.push_back(std::move(request));

        m_config.setDefaults();
        m_materials.clear();
        m_database.groups.clear();
        m_database.groups.push_back(std::make_unique<d_groupStruct>());
        for (const auto &[ktm, number] :
             {std::pair("K-1", "RC0603FR-07 10KL"), std::pair("K-2", "SHARED-1"), std::pair("K-3", "SHARED-1")}) {
            auto *material = m_database.groups[0]->append(std::make_unique<materialStruct>());
            material->d_ktm = ktm;
            material->manufacturers.append(std::make_unique<manufacturerStruct>())->partNo = number;
        }
        m_materials.add(&m_database);
    }

    // --- What comes back

    void numbersAreRead_data()
    {
        const rows<QString> row;
        row("1 234,50", "1234.5");
        row("1\u00a0234\u202f567.5", "1234567.5");
        row("0.10000000000000001", "0.1");
        row("1.0000000000000001E-2", "0.01");
        row("3.5000000000000003E-5", "0.000035");
        row("0.4199999999999999955591079014994", "0.42");
        row(",5", "0.5");
        row("-2", "-2");
        row.each({"", ".", "12 34", "1,234.50", "0,50 zł", "abc", "1e", "0x10", "nan", "٣", "1 2345"}, "none");
    }
    void numbersAreRead()
    {
        const auto [wanted] = fetch<QString>();
        const auto number = offerImport::numberOf(tag());
        QCOMPARE(number ? number->text() : QString("none"), wanted);
    }
    void datesAreRead_data()
    {
        const rows<QString> row;
        row.each({"03.07.2026", "2026-07-03", "2026.07.03", "3.7.2026", "46206", "46206.5"}, "2026.07.03");
        row.each({"31.02.2026", "07/03/2026", "2026-07.03", "12345", "soon", ""}, "");
    }
    void datesAreRead()
    {
        const auto [wanted] = fetch<QString>();
        QCOMPARE(orderOffers::dateText(offerImport::dateOf(tag())), wanted);
    }

    void formIsTaken_data()
    {
        const rows<QString, QString, int> row;
        row("english", "en", "gross", 0);
        row("polish", "pl", "Brutto", 0);
        row("german with a column more", "de", "brutto", 1);
    }
    void formIsTaken()
    {
        const auto [language, gross, before] = fetch<QString, QString, int>();
        termsOf terms = plainTerms();
        terms.rate = "4,31";
        terms.rateDate = QDate(2026, 6, 8);
        const auto read =
            taken(writeForm("currency=eur; are=" + gross + "; vat=23 %; lead=14; validity=46206; remarks=EXW",
                            {"key=K-2",
                             "key=K-1; price=0.1; from2=1 000; price2=0,09; from3=5000; price3=0.08; "
                             "minimum=10; multiple=5; leadTime=7; remarks=reel",
                             "name=sum; price=17"},
                            language, before),
                  terms);
        QCOMPARE(read.faults, QStringList());
        QCOMPARE(textOf(*read.offer), "TME 7290108984 ZP/7/1 2026.06.09 EUR 4.31 2026.06.08 TAK 23 14 2026.07.03 EXW "
                                      "[K-1|1: 0.10; 1000: 0.09; 5000: 0.08|10|5|7|reel]");
        QCOMPARE(read.withoutPrice, 1);
        QCOMPARE(read.remarks, QStringList{"Row 15: it has a price, but names no material"});
    }

    // The table as it is sent is known when it comes back, here by those who left it empty.
    void sentTableIsKnown_data()
    {
        const rows<QString> row;
        for (const QString &language : quotationForm::languages())
            row(qPrintable(language), language);
    }
    void sentTableIsKnown()
    {
        const auto [language] = fetch<QString>();
        const QString path = m_folder->path("sent.xlsx");
        QString fault;
        const quotationDocuments::content content{"ZP/7/1",
                                                  "KiV",
                                                  "TME",
                                                  language,
                                                  QDate(2026, 6, 10),
                                                  {{"K-1", "part", "Yageo RC", num("120"), "szt.", {}}}};
        QVERIFY2(quotationDocuments::writeTable(content, path, &fault), qPrintable(fault));
        const auto sheet = offerImport::readSheet(path, {}, &fault);
        QVERIFY(sheet && sheet->isForm);
        using namespace offerImport;
        QCOMPARE(sheet->fields, (QVector<field>{none, key, none, none, none, none, none, price, from, price, from,
                                                price, minimum, multiple, leadTime, remarks}));
        for (int i = 0; i < quotationForm::entryCount; ++i) {
            const auto entry = quotationForm::entry(i);
            QCOMPARE(sheet->entry(entry).isEmpty(), quotationForm::isAsked(entry));
        }
        const auto read = taken(path);
        QCOMPARE(read.withoutPrice, 1);
        QCOMPARE(read.faults, QStringList{"It offers nothing: no material of the order has a price"});
    }

    void wrongFormsAreRefused_data()
    {
        const rows<QString, QString, QString> row; // entries, row, what is said
        const auto cell = [&row](const char *tag, const QString &cells, const QString &said) {
            row(tag, "", cells, said);
        };
        cell("no number", "key=K-1; price=ask", "Row 13, \"Unit price\": ask is no price above 0");
        cell("nothing", "key=K-1; price=0", "Row 13, \"Unit price\": 0 is no price above 0");
        cell("too small a price", "key=K-1; price=0.0000001", "is no price above 0");
        cell("not ascending", "key=K-1; price=2; from2=100; price2=1; from3=50; price3=0.9",
             "Row 13, \"From quantity (3)\": the quantities do not ascend: 50 is behind 100");
        cell("twice", "key=K-1; price=2; from2=100; price2=1; from3=100; price3=0.9",
             "\"From quantity (3)\": there are two prices from 100 on");
        cell("no quantity", "key=K-1; price=2; price2=1", "Row 13, \"From quantity (2)\": the quantity from which on");
        cell("no price", "key=K-1; price=2; from2=100", "\"Unit price (2)\": the price from 100 on is missing");
        cell("only a quantity", "key=K-1; from2=100", "the price from 100 on is missing");
        cell("minimum", "key=K-1; price=2; minimum=0", "\"Minimum quantity\": 0 is no number above 0");
        cell("multiple", "key=K-1; price=2; multiple=-5", "\"Multiple\": -5 is no number above 0");
        cell("lead time", "key=K-1; price=2; leadTime=2-3", "\"Lead time [days]\": 2-3 is no number above 0");
        cell("foreign key", "key=K-9; price=2", "Row 13, \"Our number\": K-9 was not asked for");
        cell("same key", "key=K-1; price=2\nkey=K-1; price=3", "Row 14, \"Our number\": K-1 is in row 13 already");
        cell("no price at all", "key=K-1\nkey=K-2", "It offers nothing");
        const auto entry = [&row](const char *tag, const QString &entries, const QString &said) {
            row(tag, entries, "key=K-1; price=2", said);
        };
        entry("no rate", "currency=USD", "Row 6, \"Currency of the prices\": the rate of USD is missing");
        entry("no currency", "currency=free", "FREE is no currency");
        entry("neither", "are=maybe", "\"Prices are (net or gross)\": maybe is neither net nor gross");
        entry("vat", "vat=101", "\"VAT [%]\": 101 is no percentage from 0 to 100");
        entry("vat word", "vat=zw.", "zw. is no percentage");
        entry("usual lead time", "lead=soon", "\"Usual lead time [days]\": soon is no number of days above 0");
        entry("validity", "validity=a month", "\"Offer valid until\": a month is no date");
        entry("passed", "validity=08.06.2026", "it was valid until 08.06.2026, but was received on 09.06.2026");
        entry("other order", "request=ZP/8/1", "Row 2, \"Request for quotation\": ZP/8/1 is no request for this order");
    }
    void wrongFormsAreRefused()
    {
        const auto [entries, cells, said] = fetch<QString, QString, QString>();
        const auto read = taken(writeForm(entries, cells.split('\n')));
        QVERIFY(!read.offer);
        QVERIFY2(read.faults.size() == 1 && read.faults[0].contains(said), qPrintable(read.faults.join('\n')));
    }
    void oddTermsAreTold()
    {
        termsOf terms = plainTerms();
        terms.rate = "4.3";
        const auto read = taken(writeForm("vat=0.23", {"key=K-1; price=2", "key=K-GONE; price=1"}), terms);
        QVERIFY(read.offer && read.offer->rate.isEmpty());
        QCOMPARE(read.remarks, (QStringList{"The prices are in PLN: the rate 4.3 does not count",
                                            "The VAT is less than one percent: 0.23 %",
                                            "Row 14: K-GONE was asked for, but the order does not need it any more"}));
        QCOMPARE(read.notNamed, QStringList{"K-2"});
    }
    void wrongTermsAreRefused()
    {
        const QString path = writeForm("currency=EUR", {"key=K-1; price=2"});
        const auto refusal = [&](const std::function<void(termsOf &)> &change) {
            termsOf terms = plainTerms();
            terms.rate = "4.3";
            change(terms);
            const auto read = taken(path, terms);
            return read.offer ? QString("taken") : read.faults.join('\n');
        };
        QCOMPARE(refusal([](termsOf &of) { of.received = QDate(2026, 6, 10); }), "taken");
        QCOMPARE(refusal([](termsOf &of) { of.received = QDate(2026, 6, 11); }),
                 "It is late: received on 11.06.2026, expected by 10.06.2026");
        QCOMPARE(refusal([](termsOf &of) { of.firm = " tme "; }), "taken");
        QCOMPARE(refusal([](termsOf &of) { of.firm = "Farnell"; }), "The request ZP/7/1 went to TME, not to Farnell");
        QCOMPARE(refusal([](termsOf &of) {
                     of.nip = "1111111111";
                     of.firm = "TME";
                 }),
                 "The request ZP/7/1 went to TME, not to TME");
        QCOMPARE(refusal([](termsOf &of) { of.rate = "0"; }), "0 is no rate above 0");
        QCOMPARE(refusal([](termsOf &of) { of.currency = "PLN"; }), "taken");
    }

    void listsAreTaken_data()
    {
        const rows<QString, QString, QString> row; // file, rows taken, remarks
        row("pairs before prices",
            "Symbol;Od ilości;Cena netto [PLN];Od ilości;Cena netto [PLN];MOQ\n"
            "rc0603fr-0710kl;1;0,50;1 000;0,42;10\n",
            "[K-1|1: 0.50; 1000: 0.42|10|||]", "");
        row("quantities behind prices", "KTM;Price 1;Qty break 1;Price 2;Qty break 2\nK-1;0.5;10;0.4;20\n",
            "[K-1|10: 0.50; 20: 0.40||||]", "");
        row("one text",
            "Teilenummer;Staffelpreise;VPE;Lieferzeit [Tage];Bemerkungen\n"
            "RC0603FR-0710KL;\"1: 0,5; 100: 0,4\";50;21;ja\n",
            "[K-1|1: 0.50; 100: 0.40||50|21|ja]", "");
        row("quantities in captions", "KTM;Price 1+;Price 100+;Price (2500 +) [PLN]\nK-1;0.5;0.4;0,3\n",
            "[K-1|1: 0.50; 100: 0.40; 2500: 0.30||||]", "");
        row("nothing is guessed", "MPN;Price\nSHARED-1;3\nSHARED-2;4\nRC0603FR-0710KL;5\n;6\nSHARED-3;\n",
            "[K-1|1: 5.00||||]",
            "Row 2: SHARED-1 may be any of K-2, K-3, and is left out\nRow 3: SHARED-2 is nothing that the order "
            "needs\nRow 5: it has a price, but names no material");
    }
    void listsAreTaken()
    {
        const auto [content, wanted, remarks] = fetch<QString, QString, QString>();
        addLine("K-3", "1");
        termsOf terms = plainTerms();
        terms.firm = "Mouser";
        const auto read = taken(m_folder->write("list.csv", content.toUtf8()), terms);
        QCOMPARE(read.faults, QStringList());
        QCOMPARE(textOf(*read.offer), "Mouser 2026.06.09 PLN NIE " + wanted);
        QCOMPARE(read.remarks.join('\n'), remarks);
    }
    void wrongListsAreRefused_data()
    {
        const rows<QString, QString> row;
        row("no firm", "KTM;Price\nK-1;1\n", "The firm is missing");
        row("no prices", "KTM;Colour\nK-1;1\n", "No column has prices");
        row("pairs", "KTM;From;From;Price\nK-1;1;2;3\n",
            "The column \"From\" has quantities without a column of prices");
        row("same material", "KTM;MPN;Price\nK-1;;1\n;RC0603FR-0710KL;2\n", "Row 3, \"MPN\": K-1 is in row 2 already");
        row("texts", "KTM;Prices\nK-1;\"1: 2; 100\"\n",
            "Row 2, \"Prices\": the quantities do not ascend: 1 is behind 1|two prices");
    }
    void wrongListsAreRefused()
    {
        const auto [content, said] = fetch<QString, QString>();
        termsOf terms = plainTerms();
        terms.firm = tag() == "no firm" ? "" : "Mouser";
        const auto read = taken(m_folder->write("list.csv", content.toUtf8()), terms);
        QVERIFY(!read.offer);
        const QString faults = read.faults.join('\n');
        const QStringList any = said.split('|');
        QVERIFY2(std::any_of(any.begin(), any.end(), [&](const QString &one) { return faults.contains(one); }),
                 qPrintable(faults));
    }
    void captionsSayCurrencyAndTax_data()
    {
        const rows<QString, QString> row; // currency given, what is taken or said
        row("Price [EUR]", "", "EUR 4 NIE");
        row("Cena brutto (€)", "", "EUR 4 TAK");
        row("Cena brutto zł", "", "PLN TAK");
        row("Price [EUR]", "USD", "The column \"Price [EUR]\" is not in USD");
        row("Price", "USD", "USD 4 NIE");
        row("Price [CZK]", "", "CZK 4 NIE");
        row("Unit price (EURO)", "", "EUR 4 NIE");
        row("Price (net) [szt]", "PLN", "PLN NIE");
        for (const char *caption : {"Price per 100", "Cena za 1000 szt.", "Preis pro Tsd. Stück", "Price /10 pcs"})
            row(caption, "PLN", QString("The prices of the column \"%1\" are not of one piece").arg(caption));
    }
    void captionsSayCurrencyAndTax()
    {
        const auto [currency, wanted] = fetch<QString, QString>();
        termsOf terms = plainTerms();
        terms.firm = "M";
        terms.rate = wanted.startsWith("PLN") ? "" : "4";
        terms.currency = currency;
        const auto read = taken(m_folder->write("list.csv", "KTM;" + tag().toUtf8() + "\nK-1;1\n"), terms,
                                {offerImport::key, offerImport::price});
        QCOMPARE(read.offer ? textOf(*read.offer) : read.faults.join('\n'),
                 read.offer ? "M 2026.06.09 " + wanted + " [K-1|1: 1.00||||]" : wanted);
    }
    void columnSaysCurrency_data()
    {
        const rows<QString, QString> row; // currency given, what is taken or said
        row("K-1;EUR;2\nK-2;eur;3", "", "EUR");
        row("K-1;;2\nK-2;€;3", "", "EUR");
        row("K-1;PLN;2\nK-9;EUR;3\nK-2;USD;", "", "PLN");
        row("K-1;EUR;2\nK-2;USD;3", "", "Row 3, \"Waluta\": the price is in USD, those before in EUR");
        row("K-1;EUR;2", "PLN", "Row 2, \"Waluta\": the price is in EUR, those before in PLN");
        row("K-2;?;3", "", "Row 2, \"Waluta\": ? is no currency");
        row("K-1;;1\nK-2;CHF;3", "no rate", "Row 3, \"Waluta\": the rate of CHF is missing");
    }
    void columnSaysCurrency()
    {
        const auto [currency, wanted] = fetch<QString, QString>();
        termsOf terms = plainTerms();
        terms.firm = "M";
        terms.rate = wanted == "EUR" || currency == "PLN" ? "4" : "";
        terms.currency = currency == "no rate" ? "" : currency;
        if (wanted.contains("before in EUR"))
            terms.rate = "4";
        const auto read = taken(m_folder->write("list.csv", "KTM;Waluta;Cena\n" + tag().toUtf8() + "\n"), terms);
        QCOMPARE(read.offer ? read.offer->currency : read.faults.join('\n'), wanted);
    }
    // The details of one firm are not those of another one of its name.
    void namesakesAreTold()
    {
        addOffer("Tme", "K-1=1: 1").nip = "111";
        termsOf terms = plainTerms();
        terms.firm = "TME";
        const QString path = m_folder->write("list.csv", "KTM;Price\nK-1;2\n");
        QCOMPARE(
            taken(path, terms).faults,
            QStringList{"Several firms are called TME: the tax number has to say which it is, of 7290108984, 111"});
        terms.nip = "111";
        QCOMPARE(textOf(*taken(path, terms).offer), "TME 111 2026.06.09 PLN NIE [K-1|1: 2.00||||]");
        terms.nip = "729-010-89-84";
        QVERIFY(textOf(*taken(path, terms).offer).startsWith("TME 729-010-89-84 ZP/7/1"));
    }
    // A KTM in two units is two materials, of which a price list names neither.
    void unitsAreNotGuessed()
    {
        addLine("K-1", "5", "m");
        termsOf terms = plainTerms();
        terms.firm = "M";
        const QString said = "K-1 may be any of K-1, K-1 m, and is left out";
        const auto read = taken(m_folder->write("list.csv", "KTM;Price\nK-1;2\nK-2;3\nK-1 m;4\n"), terms);
        QCOMPARE(textOf(*read.offer), "M 2026.06.09 PLN NIE [K-2|1: 3.00||||] [K-1 m|1: 4.00||||]");
        QCOMPARE(read.remarks, QStringList{"Row 2: " + said});
    }
    void faultsAreToldUpToANumber()
    {
        termsOf terms = plainTerms();
        terms.firm = "M";
        constexpr int count = 5000;
        const auto read =
            taken(m_folder->write("list.csv", "KTM;Price\n" + QByteArray("K-1;ask\n").repeated(count)), terms);
        QVERIFY(!read.offer && read.faults.size() < 300);
        const int told = read.faults.size() - 1;
        QVERIFY2(read.faults.last().startsWith(QString::number(count - told) + " more"),
                 qPrintable(read.faults.last()));
    }
    void columnsCanBeSet()
    {
        using namespace offerImport;
        termsOf terms = plainTerms();
        terms.firm = "Mouser";
        const QString path = m_folder->write("list.csv", "what;x;y\nK-1;7;0.5\nK-2;8;0.25\n");
        QVERIFY(!taken(path, terms).offer);
        QString fault;
        auto sheet = readSheet(path, {}, &fault);
        QVERIFY(!setFields(&*sheet, {{3, price}}));
        QVERIFY(setFields(&*sheet, {{0, price}, {2, from}}));
        QVERIFY(setFields(&*sheet, {{2, price}, {1, from}, {0, fieldCalled("key")}}));
        QCOMPARE(sheet->fields, (QVector<field>{key, from, price}));
        const auto read = taken(path, terms, sheet->fields);
        QCOMPARE(textOf(*read.offer), "Mouser 2026.06.09 PLN NIE [K-1|7: 0.50||||] [K-2|8: 0.25||||]");
    }

    void filesAreKept()
    {
        const QString file = m_folder->write("came.XLSX", "first");
        const auto store = [&](const QString &firm, bool replaces, QString *fault, const QString &request = {}) {
            offerStruct offer;
            offer.firm = firm;
            offer.request = request;
            offer.received = "2026.06.09";
            offer.append(std::make_unique<offeredStruct>())->key = "K-1";
            return offerImport::store(offer, file, m_path, "ZP/7", replaces, m_config, fault);
        };
        const QString folder = orderOffers::folderOf(m_path);
        const auto copies = [&] { return QDir(folder).entryList({"*.xlsx"}, QDir::Files); };
        QString fault;
        QVERIFY2(store("TME", false, &fault), qPrintable(fault));
        QVERIFY(store("Farnell", false, &fault));
        QVERIFY(!store("tme", false, &fault));
        QCOMPARE(fault, "There is an offer of TME already, received on 09.06.2026");
        QCOMPARE(copies().size(), 2);
        write(file, "second");
        QVERIFY(store("tme", true, &fault));
        offersFile offers(orderOffers::fileOf(m_path));
        QCOMPARE(offers.now().number, "ZP/7");
        QCOMPARE(offers.now().offers.size(), size_t(2));
        QCOMPARE(read(folder + '/' + offers.now().offers[1]->file), "second");
        QCOMPARE(copies().size(), 3);
        // An answer to another request is one more.
        QVERIFY(store("TME", true, &fault, "ZP/7/2"));
        QVERIFY(!store("TME", false, &fault, "ZP/7/2"));
        QCOMPARE(fault, "There is an offer of TME on the request ZP/7/2 already, received on 09.06.2026");
        QCOMPARE(offersFile(orderOffers::fileOf(m_path)).now().offers.size(), size_t(3));
        QCOMPARE(copies().size(), 4);

        // What cannot be noted is not kept either.
        const QByteArray broken = "<broken";
        write(orderOffers::fileOf(m_path), broken);
        QVERIFY(!store("Mouser", false, &fault));
        QVERIFY(!fault.isEmpty());
        QCOMPARE(copies().size(), 4);
        QCOMPARE(read(orderOffers::fileOf(m_path)), broken);
        QVERIFY(QDir(folder).removeRecursively());
        write(folder, "in the way");
        QVERIFY(!store("Mouser", false, &fault));
        QCOMPARE(read(folder), "in the way");
    }

    // --- What it costs

    void costs_data()
    {
        // need, prices/minimum/multiple, terms "currency rate gross vat" | bought x price = cost, remark
        const rows<QString, QString, QString, QString> row;
        row("plain", "100", "1: 0.50", "PLN - NIE 23", "100 x 0.5 = 50");
        row("break", "100", "1: 0.50|100: 0.42", "PLN - NIE 23", "100 x 0.42 = 42");
        row("below the break", "80", "1: 0.50|100: 0.42", "PLN - NIE 23", "80 x 0.5 = 40");
        row("buying up", "90", "1: 0.50|100: 0.42", "PLN - NIE 23",
            "90 x 0.5 = 45, 100 would cost less in total: 42.00 PLN");
        row("the best of those above", "90", "1: 1|100: 0.8|200: 0.3", "PLN - NIE 23",
            "90 x 1 = 90, 200 would cost less in total: 60.00 PLN");
        row("minimum", "7", "1: 2/10", "PLN - NIE 23", "10 x 2 = 20");
        row("multiple", "101", "1: 0.10//25", "PLN - NIE 23", "125 x 0.1 = 12.5");
        row("minimum, then multiple", "3", "1: 1/10/4", "PLN - NIE 23", "12 x 1 = 12");
        row("minimum reaches the break", "3", "1: 1|10: 0.9/10/4", "PLN - NIE 23", "12 x 0.9 = 10.8");
        row("parts of a unit", "0.7", "1: 3//0.25", "PLN - NIE 23", "0.75 x 3 = 2.25");
        row("many steps", "1000000000", "1: 0.01//0.1", "PLN - NIE 23", "1000000000 x 0.01 = 10000000");
        row("one more step", "0.3", "1: 1//0.1", "PLN - NIE 23", "0.3 x 1 = 0.3");
        row("currency", "10", "1: 0.123457", "EUR 4.3125 NIE 23", "10 x 0.532408 = 5.32408");
        row("gross", "3", "1: 1.23", "PLN - TAK 23", "3 x 1 = 3");
        row("gross in dollars", "7", "1: 0.99", "USD 3.6512 TAK 5.5", "7 x 3.426245 = 23.983715");
        row("default tax", "1", "1: 1.08", "PLN - TAK -", "1 x 1 = 1");
        row("sold from", "5", "10: 1|20: 0.9", "PLN - NIE 23", "none, It is sold from 10 on");
        row("minimum helps", "5", "10: 1/10", "PLN - NIE 23", "10 x 1 = 10");
        row("no rate", "5", "1: 1", "EUR - NIE 23", "none, There is no rate for EUR");
        row("broken prices", "5", "1 - 1", "PLN - NIE 23", "none, Its prices cannot be read: 1 - 1");
        row("broken multiple", "5", "1: 1//0", "PLN - NIE 23", "none, Its minimum or multiple cannot be read");
        row("endless steps", "1000000000000", "1: 1//0.000001", "PLN - NIE 23",
            "none, Its minimum or multiple cannot be read");
    }
    void costs()
    {
        const auto [need, row, terms, wanted] = fetch<QString, QString, QString, QString>();
        clearLines();
        addLine("K-1", need);
        offerStruct &offer = addOffer("A", "K-1=" + row);
        const auto said = [parts = terms.split(' ')](int i) { return parts[i] == "-" ? QString() : parts[i]; };
        offer.currency = said(0);
        offer.rate = said(1);
        offer.gross = said(2);
        offer.vat = said(3);
        const cell got = compared().materials[0].cells[0];
        QString text =
            got.isOffered ? QString("%1 x %2 = %3").arg(got.bought.text(), got.price.text(), got.cost.text()) : "none";
        if (!got.remark.isEmpty())
            text += ", " + got.remark;
        QCOMPARE(text, wanted);
    }

    void bestAndTotals()
    {
        addOffer("Old", "K-1=1: 0.01");
        addOffer("b", "K-1=1: 0.50///10; K-2=1: 3///5");
        addOffer("A", "K-1=1: 0.50///10");
        addOffer("C", "K-1=1: 0.50///11; K-2=1: 3").leadTime = "4";
        m_offers.offers[0]->validity = "2026.06.09";
        addOffer("B", "K-1=1: 9").vat = "5"; // before the next one of the same firm
        addOffer("B", "K-1=1: 0.50///10; K-2=1: 3///5").vat.clear();
        const comparison of = compared();
        QStringList firms;
        for (const firm &one : of.firms)
            firms.append(QString("%1 %2/%3 %4 %5 %6")
                             .arg(one.name)
                             .arg(one.offered)
                             .arg(one.missing)
                             .arg(one.cost.text(), one.gross().text())
                             .arg(one.longestLeadTime.value_or(0)));
        QCOMPARE(firms,
                 (QStringList{"A 1/1 60 73.8 10", "B 2/0 81 87.48 10", "C 2/0 81 99.63 11", "Old 1/1 1.2 1.48 0"}));
        QVERIFY(of.firms[3].isExpired && of.isOffered(0, 3));
        QVERIFY(of.firms[1].isVatDefault);
        // 10.004 and half of it would be shown as 10.00 + 5.00 = 15.01.
        clearLines();
        addLine("K-1", "1");
        m_offers.offers.clear();
        addOffer("A", "K-1=1: 10.004").vat = "50";
        const comparison small = compared();
        QCOMPARE(small.firms[0].cost.text(), "10.004");
        QCOMPARE(small.firms[0].gross().text(), "15");
        QCOMPARE(propose(small, {}).gross().text(), "15");
        // Of equal ones the sooner, then the first by name.
        QCOMPARE(of.materials[0].best, 0);
        QCOMPARE(of.materials[1].best, 2);
        QCOMPARE(of.materials[0].need.quantity.text(), "120");
    }

    // A firm's second offer may be of other materials: the first counts for the rest while it is valid. Nobody offers
    // shipment.
    void severalOffersOfAFirm()
    {
        addLine("SRV-000.100", "1");
        offerStruct &first = addOffer("A", "K-1=1: 2; K-2=1: 5");
        first.currency = "EUR";
        first.rate = "4";
        first.validity = "2026.06.10";
        addOffer("A", "K-1=1: 3");
        const auto prices = [this] {
            QStringList all;
            for (const auto &one : compared().materials)
                all.append(one.cells[0].isOffered ? one.cells[0].price.text() : "-");
            return all.join(' ');
        };
        QCOMPARE(prices(), "3 20");
        m_offers.offers[0]->validity = "2026.06.09";
        QCOMPARE(prices(), "3 -");
        m_offers.offers[1]->validity = "2026.06.09";
        QCOMPARE(prices(), "3 -");
    }

    // --- What is proposed

    void proposals_data()
    {
        const rows<QString> row;
        row("cheapest", "B A C A -: 105 129.15 without K-5");
        row("one", "A A - A -: 112 137.76 without K-3 K-5");
        row("fewest 0", "B A C A -: 105 129.15 without K-5");
        row("fewest 2", "A A C A -: 107 131.61 without K-5");
        row("fewest 100", "A A C A -: 107 131.61 without K-5");
        row("date 15.06.2026", "A - - A -: 12 14.76 without K-2 K-3 K-5");
        row("date 20.06.2026", "B - - A -: 10 12.3 without K-2 K-3 K-5");
    }
    void proposals()
    {
        const auto [wanted] = fetch<QString>();
        clearLines();
        for (const char *key : {"K-1", "K-2", "K-3", "K-4", "K-5"})
            addLine(key, "1");
        addOffer("A", "K-1=1: 7///5; K-2=1: 100; K-4=1: 5///1");
        addOffer("B", "K-1=1: 5///10");
        addOffer("C", "K-1=1: 8///30; K-3=1: 50///30; K-2=1: 110");
        if (tag() == "cheapest" || tag().startsWith("fewest"))
            m_offers.offers[0]->items[1]->prices = "1: 45";
        if (tag().startsWith("fewest"))
            m_offers.offers[2]->items[2]->prices = "1: 46";
        question what;
        const QStringList words = tag().split(' ');
        what.by = words[0] == "cheapest" ? mode::cheapest
                  : words[0] == "one"    ? mode::oneFirm
                  : words[0] == "date"   ? mode::byDate
                                         : mode::fewestFirms;
        if (what.by == mode::fewestFirms)
            what.within = num(words[1]);
        else if (words.size() > 1)
            what.until = offerImport::dateOf(words[1]);
        const comparison of = compared();
        QCOMPARE(textOf(of, propose(of, what)), wanted);
    }
    // Thirteen firms are too many to try all sets of them.
    void manyFirms()
    {
        clearLines();
        QStringList all;
        constexpr int count = 13;
        for (int i = 0; i < count; ++i) {
            addLine(QString("K-%1").arg(i), "1");
            all.append(QString("K-%1=1: 10.1").arg(i));
            addOffer(QString("F%1").arg(i, 2, 10, QChar('0')), QString("K-%1=1: 10").arg(i));
        }
        question what{mode::fewestFirms, num("1"), {}};
        const auto firms = [&] { return propose(compared(), what).firms.size(); };
        QCOMPARE(firms(), size_t(count));
        addOffer("All", all.join("; "));
        const selection at = propose(compared(), what);
        QCOMPARE(at.firms.size(), size_t(1));
        QCOMPARE(at.net.text(), "131.3");
        QVERIFY(at.missing.empty());
        what.within = num("0.9");
        QVERIFY(firms() > 1 && firms() < size_t(count));
        QVERIFY(propose(compared(), what).net <= num("131.17"));
        what.within = decimal();
        QCOMPARE(firms(), size_t(count));
    }
    void byHand()
    {
        addOffer("A", "K-1=1: 1; K-2=1: 1");
        addOffer("B", "K-1=1: 2");
        const comparison of = compared();
        selection chosen = propose(of, {});
        QCOMPARE(textOf(of, chosen), "A A: 127 156.21");
        std::vector<int> firmOf = chosen.firmOf;
        firmOf = {1, 1}; // B has no K-2
        QCOMPARE(textOf(of, selectionOf(of, firmOf)), "B -: 240 295.2 without K-2");
    }

    // --- What becomes of the order

    void pricesAreTakenOver_data()
    {
        const rows<bool, QString, int> row;
        row("raised", true, "100 0.42; 10 3.00; 50 0.42; x 9.99", 2);
        row("kept", false, "100 0.42; 7 3.00; 20 0.42; x 9.99", 0);
    }
    void pricesAreTakenOver()
    {
        const auto [raises, wanted, raised] = fetch<bool, QString, int>();
        addLine("K-1", "x");
        addOffer("A", "K-1=1: 0.50|100: 0.42//150; K-2=1: 3/10");
        const comparison of = compared();
        const selection chosen = propose(of, {});
        const applied done = applyChoice(&m_order, of, chosen, raises);
        QStringList lines;
        for (const auto &line : m_order.orderItems.items)
            lines.append(line->quantity + ' ' + line->price);
        QCOMPARE(lines.join("; "), wanted);
        QCOMPARE(done.prices, 3);
        QCOMPARE(done.quantities, raised);
        QVERIFY(changesOf(m_order, of, chosen, raises).empty());
    }
    // What came stays as it was bought.
    void deliveredLinesStay()
    {
        m_order.orderItems.items[2]->delivery = "WZ 1";
        addOffer("A", "K-1=1: 0.50//150");
        const comparison of = compared();
        applyChoice(&m_order, of, propose(of, {}), true);
        QStringList lines;
        for (const auto &line : m_order.orderItems.items)
            lines.append(line->quantity + ' ' + line->price);
        QCOMPARE(lines.join("; "), "130 0.50; 7 9.99; 20 9.99");
    }
    void choicesAreStored()
    {
        addOffer("A", "K-1=1: 0.50; K-2=1: 3");
        addOffer("B", "K-2=1: 2").nip = "123";
        const comparison of = compared();
        const auto store = [&](const selection &chosen, const QString &reason) {
            QString fault;
            return storeChoices(m_path, "ZP/7", choicesOf(of, chosen, reason, QDate(2026, 6, 10), "jk"), m_config,
                                &fault);
        };
        QVERIFY(store(propose(of, {}), "cheapest"));
        QVERIFY(store(selectionOf(of, {-1, 0}), "from stock"));
        offersFile file(orderOffers::fileOf(m_path));
        QStringList all;
        for (const auto &one : file.now().choices)
            all.append(QStringList{one->key, one->firm, one->price, one->date, one->by, one->reason}.join(' '));
        QCOMPARE(all, (QStringList{"K-2 A 3.00 2026.06.10 jk from stock"}));
        QCOMPARE(textOf(of, chosenBefore(of, file.now())), "- A: 21 25.83 without K-1");
        // Only of what was chosen so does a report tell who chose it, and why.
        const auto told = [&](const selection &shown) {
            const auto content = offerReport::contentOf(of, shown, m_order, file.now());
            return content.reason + '|' + content.by + '|' + offerReport::markOf(content, 1, 0);
        };
        QCOMPARE(told(selectionOf(of, {-1, 0})), "from stock|jk|chosen");
        QCOMPARE(told(selectionOf(of, {0, 0})), "||proposed");
    }

    // --- Parting

    void choose(const QString &key, const QString &firm)
    {
        auto choice = std::make_unique<choiceStruct>();
        choice->key = key;
        choice->firm = firm;
        m_offers.choices.push_back(std::move(choice));
    }
    QStringList files() const
    {
        return QDir(m_folder->path("zp")).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    }

    void orderIsParted()
    {
        addLine("WYSYLKA", "1");
        m_order.attentions = "mind";
        choose("K-1", "TME");
        choose("K-2", "Far/nell");
        orderRegister orders;
        QString fault;
        const QStringList parts = orderSplitting::split(m_order, m_path, m_offers, orders, m_config, &fault);
        QCOMPARE(fault, "");
        QStringList seen;
        for (const QString &path : parts) {
            kiv_mat_zpStruct part;
            QCOMPARE(loadZp(path, &part), 0);
            QStringList lines;
            for (const auto &line : part.orderItems.items)
                lines.append(line->index + ' ' + line->ktm + ' ' + line->quantity + ' ' + line->price);
            QCOMPARE(part.attentions, "mind");
            offersFile offers(orderOffers::fileOf(path));
            for (const auto &choice : offers.now().choices)
                lines.append(choice->key + '@' + choice->firm);
            seen.append(QFileInfo(path).fileName() + ' ' + part.options.value(optionKey::orderNumber) + ": "
                        + lines.join(", "));
        }
        QCOMPARE(seen, (QStringList{"zp_7_TME.xml ZP/7/1: 1 K-1 100 9.99, 2 K-1 20 9.99, K-1@TME",
                                    "zp_7_Far_nell.xml ZP/7/2: 1 K-2 7 9.99, K-2@Far/nell",
                                    "zp_7_rest.xml ZP/7/3: 1 WYSYLKA 1 9.99"}));
        orders.update({m_folder->path("zp")});
        int parted = 0;
        for (const auto &one : orders.index().orders())
            parted += orders.isParted(one);
        QCOMPARE(parted, 1);
        QCOMPARE(orders.index().orders().size(), size_t(4));
        QVERIFY(orderSplitting::split(m_order, m_path, m_offers, orders, m_config, &fault).isEmpty());
        QCOMPARE(fault, "It was parted before, and its parts are there");
    }
    void nothingIsHalfParted_data()
    {
        const rows<QString, QString> row; // file in the way, its content
        row("a part's offers", "zp/offers/zp_7_Farnell", "");
        row("the states", "zp/order_states.xml", "<broken");
    }
    void nothingIsHalfParted()
    {
        const auto [inTheWay, content] = fetch<QString, QString>();
        m_folder->write(inTheWay, content.toUtf8());
        choose("K-1", "TME");
        choose("K-2", "Farnell");
        const QStringList before = files();
        orderRegister orders;
        QString fault;
        QVERIFY(orderSplitting::split(m_order, m_path, m_offers, orders, m_config, &fault).isEmpty());
        QVERIFY(!fault.isEmpty());
        QCOMPARE(files(), before);
        QVERIFY(!QFileInfo::exists(m_folder->path("zp/offers/zp_7_TME")));
    }
    // The parts of what was sent or came would be ordered, and taken into stock, once more.
    void nothingIsPartedTwice()
    {
        choose("K-1", "TME");
        orderRegister orders;
        QString fault;
        m_order.orderItems.items[0]->delivery = "WZ 1";
        QCOMPARE(orderSplitting::faultOf(m_order, m_path, m_offers, orders),
                 "Something of it was delivered or invoiced already");
        m_order.orderItems.items[0]->delivery.clear();
        QVERIFY(orders.noteSent(m_path, {"ZP/7", "anna", ""}, m_config, &fault));
        QVERIFY(orderSplitting::split(m_order, m_path, m_offers, orders, m_config, &fault).isEmpty());
        QCOMPARE(fault, "It was sent already");
    }
    void nothingToPart()
    {
        QCOMPARE(orderSplitting::planOf(m_order, m_offers).fault, "No firm is chosen for any material");
        choose("K-1", "TME");
        QCOMPARE(orderSplitting::planOf(m_order, m_offers).fault, "");
        choose("K-2", "tme");
        QCOMPARE(orderSplitting::planOf(m_order, m_offers).fault, "All lines are of TME: there is nothing to part");
    }

    // --- The document

    void report()
    {
        addOffer("<A> & Co", "K-1=1: 0.50").remarks = "<script>";
        addOffer("B", "K-1=1: 1000; K-2=1: 3");
        m_offers.offers[1]->validity = "2026.06.01";
        const comparison of = compared();
        offerReport::content content{of,           selectionOf(of, {0, 1}), "01.06.2026", false,
                                     "only <one>", QDate(2026, 6, 10),      "jk"};
        const QString page = offerReport::page(content);
        QVERIFY(!page.contains("<script>") && !page.contains("<A>") && !page.contains("<one>"));
        for (const char *text :
             {"&lt;A&gt; &amp; Co", "only &lt;one&gt;", "chosen, best", "01.06.2026 (expired)", "not offered",
              "120\u00a0000.00", "class=\"lines\"", "class=\"line\"", "10.06.2026", "ZP/7"})
            QVERIFY2(page.contains(QString::fromUtf8(text)), text);

        const QString path = m_folder->path("offers.csv");
        QString fault;
        QCOMPARE(offerReport::write(content, path, &fault), tableFile::written);
        const QString csv = QString::fromUtf8(read(path));
        QVERIFY2(csv.contains("K-1;part K-1;120;") && csv.contains(";0.50;120;60;;chosen, best;"), qPrintable(csv));
        QVERIFY(csv.contains("only <one>"));
        QCOMPARE(offerReport::write(content, m_folder->path("offers.xlsx"), &fault), tableFile::written);
        const auto sheets = workbookReader::read(m_folder->path("offers.xlsx"), &fault);
        QVERIFY(sheets && sheets->size() == 1 && sheets->at(0).rows[1].startsWith("K-1"));
    }
};

KIVZP_TEST(tst_offers)
#include "tst_offers.moc"
