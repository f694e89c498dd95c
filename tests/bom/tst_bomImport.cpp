// Lists of parts as CAD tools write them: read in any form, their columns guessed, their lines matched.
#include "testSupport.h"

#include "bom/bomDiff.h"
#include "bom/bomImport.h"
#include "bom/partsTexts.h"
#include "bom/workbookReader.h"
#include "data/loaders.h"
#include "util/workbook.h"

#include <QProcess>
#include <QTextCodec>

using namespace testSupport;

namespace {

QString shown(const partsTable &table)
{
    QStringList rows;
    for (const QStringList &row : table.rows)
        rows.append(row.join('|'));
    return rows.join('/');
}

QString shown(const QVector<partsColumns::field> &fields) { return partsColumns::asText(fields); }

// A database of a few materials, each a line:
// KTM;group;name;value;case;power;voltage;tolerance;maker;number;supplier;number
std::unique_ptr<kiv_mat_databaseStruct> databaseOf(const QStringList &lines)
{
    auto all = std::make_unique<kiv_mat_databaseStruct>();
    for (const QString &line : lines) {
        const QStringList fields = line.split(';');
        auto group = std::make_unique<d_groupStruct>();
        group->name = fields[1];
        auto material = std::make_unique<materialStruct>();
        material->d_ktm = fields[0];
        material->d_name = fields.value(2);
        material->d_value = fields.value(3);
        material->d_case = fields.value(4);
        material->d_power = fields.value(5);
        material->d_voltage = fields.value(6);
        material->d_tolerance = fields.value(7);
        if (!fields.value(9).isEmpty()) {
            auto maker = std::make_unique<manufacturerStruct>();
            maker->name = fields[8];
            maker->partNo = fields[9];
            material->manufacturers.append(std::move(maker));
        }
        if (!fields.value(11).isEmpty()) {
            auto supplier = std::make_unique<supplierStruct>();
            supplier->name = fields[10];
            supplier->partNo = fields[11];
            material->suppliers.append(std::move(supplier));
        }
        group->append(std::move(material));
        all->groups.push_back(std::move(group));
    }
    return all;
}

std::vector<ktmIndex::entry> materialsOf(kiv_mat_databaseStruct &database)
{
    std::vector<ktmIndex::entry> all;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            all.push_back({material.get(), group.get(), &database});
    return all;
}

} // namespace

class tst_bomImport : public folderTest
{
    Q_OBJECT

    partsTable read(const QByteArray &content, const QString &name = "list.csv")
    {
        QString fault;
        const auto table = readPartsTable(m_folder->write(name, content), {}, &fault);
        return table.value_or(partsTable());
    }
    bomImport::staged staged(const QByteArray &content, kiv_mat_databaseStruct &database,
                             const matchDecisions &decisions = {})
    {
        const partsTable table = read(content);
        bomImport::staged lines;
        bomImport::stage(linesOf(table, partsColumns::guessed(table)), partsMatcher(materialsOf(database)), decisions,
                         &lines);
        return lines;
    }

private slots:
    void designators_data()
    {
        const rows<QString> row;
        row("R1, R2;R3 R4|R5", "R1 R2 R3 R4 R5");
        row("R1-R4, R9", "R1 R2 R3 R4 R9");
        row("R1 - R3", "R1 R2 R3");
        row("C8..C10", "C8 C9 C10");
        row("R1-3", "R1 R2 R3");
        row("R3-R1", "R3-R1");
        row("R1-C3", "R1-C3");
        row("R1-R2000000", "R1-R2000000");
        row("R1, R1", "R1");
        row("BOOT, LED1", "BOOT LED1");
        row("", "");
    }
    void designators()
    {
        const auto [all] = fetch<QString>();
        QCOMPARE(partsTexts::designatorsIn(tag()).join(' '), all);
    }

    void cases_data()
    {
        const rows<QString> row;
        row("Capacitor_SMD:C_0603_1608Metric_Pad1.05x0.95mm_HandSolder", "0603");
        row("R_1206_3216Metric", "1206");
        row("SOT-23-3", "SOT-23");
        row("Package_TO_SOT_SMD:SOT-23-5_HandSoldering", "SOT-23-5");
        row("SOIC-8_3.9x4.9mm_P1.27mm", "SOIC-8");
        row("soic 8", "SOIC-8");
        row("CP_Elec_6.3x5.9", "");
        row("RC0603FR-0710KL", "0603");
        row("GRM155R60G475ME", "");
        row("10603", "");
    }
    void cases()
    {
        const auto [found] = fetch<QString>();
        QCOMPARE(partsTexts::caseIn(tag()), found);
    }

    void partNumbers_data()
    {
        const rows<bool, QString> row;
        row("LMK107BJ475KAHT", true, "LMK107BJ475KAHT");
        row("LT1117CST-3.3#TRPBF", true, "LT1117CST3.3");
        row("SMBJ5.0A", true, "SMBJ5.0A");
        row("MAX3232EUE+T", true, "MAX3232EUE");
        row("BAS16,215", true, "BAS16");
        row("9774060151R", true, "9774060151R");
        row("1000000R", false, "1000000R");
        row("ADC081C021CIMM/NOPB", true, "ADC081C021CIMM");
        row("sn74lvc1g08dbvr", true, "SN74LVC1G08DBVR");
        row("100nF", false, "100NF");
        row("4k7", false, "4K7");
        row("GRN", false, "GRN");
        row("DNP", false, "DNP");
        row("33 ohm resistor", false, "33OHMRESISTOR");
    }
    void partNumbers()
    {
        const auto [is, base] = fetch<bool, QString>();
        QCOMPARE(partsTexts::looksLikePartNumber(tag()), is);
        QCOMPARE(partsTexts::partNumber(tag()).withoutPackaging(), base);
    }

    void notFitted_data()
    {
        const rows<bool> row;
        row.each(
            {"DNP", "10k DNP", "do not mount", "n/m", "(nie montować)", "not fitted", "No Stuff", "100n n/m", "DNI"},
            true);
        row.each({"", "10n", "DNPX", "N/A", "montować", "manual mount", "dostawa 14 dni", "14 dni", "0.5 N/m"}, false);
    }
    void notFitted()
    {
        const auto [says] = fetch<bool>();
        QCOMPARE(partsTexts::saysNotFitted(tag()), says);
    }

    void texts_data()
    {
        const rows<QByteArray, QString, QString> row;
        const QString plain = "Ref|Wartość/R1|10k";
        row("comma", "Ref,Wartość\nR1,10k\n", plain, "UTF-8");
        row("semicolon, quotes and CRLF", "\"Ref\";\"Wartość\"\r\n\r\n\"R1\";10k\r\n", plain, "UTF-8");
        row("tab and mark", "\xef\xbb\xbfRef\tWarto\u015b\u0107\nR1\t10k", plain, "UTF-8");
        row("Windows-1250", "Ref;Warto\x9c\xe6\nR1;10k", plain, "windows-1250");
        row("UTF-16", QTextCodec::codecForName("UTF-16")->fromUnicode(QString("Ref\tWartość\r\nR1\t10k\r\n")), plain,
            "UTF-16LE");
        row("UTF-16 without a mark",
            QTextCodec::codecForName("UTF-16BE")->fromUnicode(QString("Ref;Wartość\nR1;10k")).mid(2), plain,
            "UTF-16BE");
        row("separators and line ends in quotes", "a,\"b,\nc\",\"say \"\"x\"\"\"\n1,2,3", "a|b,\nc|say \"x\"/1|2|3",
            "UTF-8");
        row("decimal commas between semicolons", "a;b\n1,5;2,5\n3,5;4", "a|b/1,5|2,5/3,5|4", "UTF-8");
        row("rows of other lengths", "a,b\n1\n1,2,3", "a|b|/1||/1|2|3", "UTF-8");
    }
    void texts()
    {
        const auto [content, rows, encoding] = fetch<QByteArray, QString, QString>();
        const partsTable table = read(content);
        QCOMPARE(shown(table), rows);
        QCOMPARE(table.encoding, encoding);
    }

    void workbooks()
    {
        const QByteArray list = "Ref\tQty\tWartość\nR1, R2\t2\t10k\n\n\tleft\t5\n";
        const QString rows = "Ref|Qty|Wartość/R1, R2|2|10k/|left|5";
        QProcess python;
        const QString path = m_folder->path("openpyxl.xlsx");
        python.start("/usr/bin/python3", {source("tests/files/writeWorkbook.py"), path});
        python.write(list);
        python.closeWriteChannel();
        QVERIFY(python.waitForFinished());
        workbook own;
        QVERIFY(own.addSheet("Parts"));
        const QList<QByteArray> lines = list.split('\n');
        for (int i = 0; i < lines.size(); ++i)
            for (int j = 0; j < lines[i].split('\t').size(); ++j)
                own.write(i + 1, j + 1, QString::fromUtf8(lines[i].split('\t')[j]));
        QVERIFY(own.saveAs(m_folder->path("own.xlsx")));
        for (const char *name : {"openpyxl.xlsx", "own.xlsx"}) {
            QString fault;
            partsTableOptions options;
            options.sheet = QLatin1String(name) == "own.xlsx" ? -1 : 1;
            const auto table = readPartsTable(m_folder->path(name), options, &fault);
            QVERIFY2(table, qPrintable(fault));
            QCOMPARE(shown(*table), rows);
            QCOMPARE(table->form, QString("XLSX"));
            QCOMPARE(table->lines.last(), 4);
        }
    }

    void refused_data()
    {
        const rows<QByteArray, QString> row;
        row("empty", "", "holds no table");
        row("binary",
            QByteArray("\x7f"
                       "ELF\0\0\1",
                       7),
            "is no text");
        row("another archive", QByteArray("PK\x03\x04 nothing"), "is an archive without a table");
        row("other XML", "<kiv_mat_zp/>", "is XML, but no list of parts of KiCad");
        row("open quote", "Ref,MPN\n\"R1\nR2\",a\nR3,\"b\nR4,c\n", "line 4: the quote is not closed");
        row("damaged workbook", "", "is no workbook");
    }
    void refused()
    {
        const auto [content, reason] = fetch<QByteArray, QString>();
        QString fault;
        if (reason == "is no workbook")
            QVERIFY(!workbookReader::read(m_folder->write("f.xlsx", content), &fault));
        else
            QVERIFY(!readPartsTable(m_folder->write("f.csv", content), {}, &fault));
        QVERIFY2(fault.startsWith(reason), qPrintable(fault));
    }

    void columns_data()
    {
        const rows<QByteArray, int, QString> row;
        row("English", "Reference, Quantity, Value, Footprint, Datasheet, MPN, Mfg, DNP\nR1,1,10k,R_0402,,RC1,Yageo,",
            0, "designator|quantity|value|case|none|part_number|manufacturer|dnp");
        row("Polish", "Lp.;Oznaczenie;Ilość;Wartość;Obudowa;Producent;Numer producenta\n1;R1;1;10k;0402;Yageo;RC1", 0,
            "none|designator|quantity|value|case|manufacturer|part_number");
        row("Polish catalogue", "Oznaczenie;Ilość szt.;Nr katalogowy;Indeks materiałowy\nR1;1;RC1;", 0,
            "designator|quantity|part_number|ktm");
        row("unknown captions", "Ref,Qty,Was,Wo,Womit\nR1,1,10k,R_0402,RC0402FR-0710KL\nR2,1,4k7,0603,RC0603FR-074K7L",
            0, "designator|quantity|value|case|part_number");
        row("with #", "Designator,Manufacturer Part #,LCSC Part #\nR1,RC1,C1", 0,
            "designator|part_number|supplier_number");
        row("running number", "Position;Menge;Bezeichner\n1;2;R1\n2;1;R2", 0, "none|quantity|designator");
        row("German", "Bezeichner;Menge;Wert;Bauform;Hersteller\nR1;1;10k;0402;Yageo", 0,
            "designator|quantity|value|case|manufacturer");
        row("below a title", "Board X,,\nof today,,\n,,\nRef,Qty,Value\nR1,1,10k", 2, "designator|quantity|value");
        row("by content", "R1 R2,2,RC0402FR-0710KL,0402\nC1,1,GRM155R60G475ME,0402", -1,
            "designator|quantity|part_number|case");
        row("KTM by content", "317111-00.01-00001,2\n317111-00.01-00002,3", -1, "ktm|quantity");
        row("an own number beside the maker's", "Designator,PartNumber,PartSymbol\nC1,C_4u7_0402,GRM155R60G475ME", 0,
            "designator|part_number|part_number");
    }
    void columns()
    {
        const auto [content, header, fields] = fetch<QByteArray, int, QString>();
        const partsTable table = read(content);
        const partsColumns::guess guess = partsColumns::guessed(table);
        QCOMPARE(guess.header, header);
        QCOMPARE(shown(guess.fields), fields);
        // What the user corrected is found again by the captions.
        if (header >= 0) {
            const QVector<partsColumns::field> corrected(guess.fields.size(), partsColumns::description);
            const auto again = partsColumns::guessed(
                table, {{partsColumns::captionSet(table, header), partsColumns::asText(corrected)}});
            QCOMPARE(again.fields, corrected);
        }
    }

    void lines_data()
    {
        const rows<QByteArray, QString> row;
        const QByteArray head = "Ref,Qty,Value,Part number\n";
        row("per group", head + "\"R1,R2\",2,10k,\n", "R1 R2=2 10k");
        row("per part", head + "R2,1,10k,\nR1,1,10k,\nC1,1,1u,", "R1 R2=2 10k; C1=1 1u");
        row("another number", head + "\"R1,R2\",3,10k,", "R1 R2=2 10k [the file says 3, the designators are 2]");
        row("no designators", head + ",12,10k,\n,3,10k,", "=15 10k");
        row("no quantity", head + ",,10k,", "=1 10k [no quantity, taken as 1]");
        row("designators go on", head + "\"R1,\",3,10k,\n\"R2,R3\",,,", "R1 R2 R3=3 10k");
        row("left out", head + "R1,1,DNP,\nR2,1,10k,RC0402FR-0710KL", "-R1=1 DNP; R2=1 RC0402FR-0710KL [10k]");
        row("twice", head + "\"R1,R1\",1,10k,\nR1,1,10k,",
            "R1=1 10k [designators stand twice, the file says 2, the designators are 1]");
        row("another kind", head + "R1,1,10k,\nH1,,,\nR2,,,",
            "R1 R2=2 10k [the file says 1, the designators are 2] / "
            "line 3 names no part: H1");
        row("other parameters", "Ref,Value,Voltage\nC1,10u,16V\nC2,10u,50V", "C1=1 10u 16V; C2=1 10u 50V");
        row("other descriptions", "Ref,Value,Description\nD1,LED,red\nD2,LED,green", "D1=1 LED red; D2=1 LED green");
        row("two marks", "Ref,Value,Exclude from BOM,DNP\nH1,a,x,\nR2,b,,x\nR3,c,,", "-H1=1 a; -R2=1 b; R3=1 c");
        row("marks of KiCad",
            "<export><components><comp ref=\"R1\"><value>1k</value><property name=\"dnp\"/></comp><comp ref=\"R2\">"
            "<value>2k</value><property name=\"DNP\" value=\"\"/><property name=\"MPN\" "
            "value=\"\"/></comp></components>"
            "</export>",
            "-R1=1 1k; R2=1 2k");
        row("a sum below", head + "R1,1,10k,\n,1,,", "R1=1 10k / line 3 names no part: 1");
    }
    void lines()
    {
        const auto [content, all] = fetch<QByteArray, QString>();
        const partsTable table = read(content);
        const partsList list = linesOf(table, partsColumns::guessed(table));
        QStringList seen;
        for (const partsLine &line : list.lines)
            seen.append((line.isLeftOut ? "-" : "") + line.designators.join(' ') + '=' + line.quantity + ' '
                        + line.name() + (line.remarks.isEmpty() ? QString() : " [" + line.remarks.join(", ") + ']'));
        QStringList parts{seen.join("; ")};
        parts += list.remarks;
        QCOMPARE(parts.join(" / "), all);
    }

    void matching_data()
    {
        const rows<QByteArray, QString> row;
        const QByteArray head = "Ref,KTM,Part number,Manufacturer,Value,Case,Tolerance,Voltage,Supplier part number\n";
        const auto one = [&](const char *name, const QByteArray &line, const QString &result) {
            row(name, head + line, result);
        };
        one("own KTM", "U1,K3,,,,,,,", "K3 ktm");
        one("maker and number", "U1,,LM358D,TI,,,,,", "K1 maker_number");
        one("number written otherwise", "U1,,lm-358d,,,,,,", "K1 K2");
        one("of another maker", "U1,,LM358D,STMicro,,,,,", "K2 maker_number");
        one("among several by the case", "U1,,LM358D,,,SOIC-8,,,", "K2 number");
        one("packaging", "U1,,MAX3232EUE+T,,,,,,", "K3 number_packaging");
        one("letters are no packaging", "U1,,MAX3232EUEX,,,,,,", "");
        one("number among the values", "U1,,,,MAX3232EUE,,,,", "K3 number");
        one("supplier's number", "U1,,,,,,,,595-MAX3232EUE", "K3 supplier_number");
        one("value and case", "R1,,,,10k,R_0402_1005Metric,,,", "R1 value");
        for (const char *same : {"10kΩ", "0.01M", "10 kΩ", "10K", "10k0"})
            row(same, head + "R1,,,," + same + ",0402,,,", "R1 value");
        one("value without a case", "R1,,,,10k,,,,", "R1 R2");
        one("tolerance is met", "R1,,,,10k,0402,5%,,", "R1 value");
        one("tolerance is not met", "R1,,,,10k,0402,0.1%,,", "R1");
        one("voltage is met", "C1,,,,\"0,1uF\",0603,,16V,", "C1 value");
        one("voltage is not met", "C1,,,,100n,0603,,100V,", "C1");
        one("voltage with the value", "C1,,,,100nF/100V,0603,,,", "C1");
        one("voltage apart from its unit", "C1,,,,100 nF 100 V,0603,,,", "C1");
        one("a capacitor without a prefix", "C1,,,,100,0603,,,", "");
        one("small prefix in front", "C1,,,,u1,0603,,,", "C1 value");
        one("a bead is no resistor", "R1,,,,600,0603,,,", "");
        one("no resistor by its designator", "RV1,,,,10k,0402,,,", "");
        one("the stated number is not there", "R1,,ERJ2RKF1002X,,10k,0402,,,", "R1");
        one("voltage without its unit", "C1,,,,100n,0603,,100,", "C1");
        one("tolerance as a share", "R1,,,,10k,0402,0.001,,", "R1");
        one("a current that is not stated", "R1,,,,10k 2A,0402,,,", "R1");
        one("a point counts", "D1,,SMBJ5.0A,,,,,,", "");
        one("nothing", "X1,,,,Quartz,,,,", "");
        one("a case in millimetres", "R1,,,,10k,Resistor_SMD:1005_C,,,", "R1 value");
        one("a number of digits alone", "J1,,47346-0001,,,,,,", "D1 number");
        one("of its maker", "J1,,473460001,MOLEX,,,,,", "D1 maker_number");
        one("few digits are not enough", "J1,,123456,TDK,,,,,", "D2");
        one("but with their maker", "J1,,123456,Bourns,,,,,", "D2 maker_number");
        one("digits as a value", "R1,,,,123456,0402,,,", "");
    }
    void matching()
    {
        const auto [content, result] = fetch<QByteArray, QString>();
        const auto database = databaseOf({
            "K1;ICs;;;DIP-8;;;;Texas Instruments;LM358D",
            "K2;ICs;;;SOIC-8;;;;STMicroelectronics;LM358D",
            "K3;ICs;;;;;;;Maxim;MAX3232EUE;Mouser;595-MAX3232EUE",
            "R1;Rezystory;r;10kΩ;0402;63mW;50V;±1%;;",
            "R2;Rezystory;r;10kΩ;0603;100mW;75V;±1%;;",
            "R3;Potencjometry;p;10kΩ;0402;;;;;",
            "C1;Kondensatory;c;100nF;0603;;50V;10%;;",
            "D1;Gniazda;;;;;;;Molex;473460001",
            "D2;Gniazda;;;;;;;Bourns;123456",
            "T1;Diody;;;;;;;Littelfuse;SMBJ50A",
            "F1;Koraliki ferrytowe;Rezystory ferrytowe;600Ω;0603;;;;;",
        });
        const bomImport::staged lines = staged(content, *database);
        QCOMPARE(lines.lines.size(), size_t(1));
        QStringList seen;
        for (const matchCandidate &candidate : lines.lines[0].candidates)
            seen.append(candidate.ktm);
        const matchCandidate *match = lines.lines[0].match();
        if (match)
            seen.append(reasonName(match->reason));
        QCOMPARE(seen.join(' '), result);
        // What was decided counts first.
        const auto again = staged(content, *database, {{lines.lines[0].line.key(), "K2"}});
        QCOMPARE(again.lines[0].match()->ktm, QString("K2"));
    }

    // A decision is for what was stated, and for nothing else.
    void keysTellPartsApart_data()
    {
        const rows<QByteArray> row;
        row("4.7k,,,", "47k,,,");
        row("10m,,,", "10M,,,");
        row("100n,,16V,", "100n,,50V,");
        row("HEADER,61300311121,,", "HEADER,61300411121,,");
        row(",,,Blue LED", ",,,Screw M3");
    }
    void keysTellPartsApart()
    {
        const auto [other] = fetch<QByteArray>();
        const QByteArray head = "Ref,Value,MPN,Voltage,Description\nX1,";
        const auto keyOf = [&](const QByteArray &line) {
            const partsTable table = read(head + line);
            return linesOf(table, partsColumns::guessed(table)).lines.value(0).key();
        };
        QVERIFY(!keyOf(tag().toUtf8()).isEmpty());
        QVERIFY(keyOf(tag().toUtf8()) != keyOf(other));
        QCOMPARE(partsLine().key(), QString());
    }

    void listIsWritten()
    {
        const auto database = databaseOf({"K1;g;A;;;;;;M;ABC123"});
        const QByteArray content =
            "Ref,Qty,Value,MPN\nU2,1,x,ABC123\nU1,1,y,ABC123\nX1,1,Quartz,\nR1,1,DNP,\nX2,1,Coil,";
        const bomImport::staged lines = staged(content, *database);
        m_folder->write("other.xml",
                        bom("<material><d_ktm>999999-99.99-00007</d_ktm><d_name>Quartz</d_name></material>"));
        bomImport::unknownParts known = bomImport::unknownIn(m_folder->path());
        const auto list = bomImport::bomOf(lines, &known, QDate(2026, 1, 2));
        QStringList seen;
        for (const auto &line : list->materials)
            seen.append(line->d_ktm + ' ' + line->d_name + ' ' + line->d_quantity + ' ' + line->d_designator);
        QCOMPARE(seen.join(" / "),
                 QString("K1 A 2 U2, U1 / 999999-99.99-00007 Quartz 1 X1 / 999999-99.99-00008 Coil 1 X2"));
        QCOMPARE(list->update, QString("02.01.2026"));
        QVERIFY(bomImport::reportOf(lines).contains("\n5;left_out;;;;DNP;1;R1;"));
    }

    void compared_data()
    {
        const rows<QByteArray, QByteArray, QString> row;
        const auto line = [](const QByteArray &ktm, const QByteArray &designators, const QByteArray &quantity) {
            return "<material><d_ktm>" + ktm + "</d_ktm><d_name>n" + ktm + "</d_name><d_quantity>" + quantity
                   + "</d_quantity><d_designator>" + designators + "</d_designator></material>";
        };
        row("equal in another form", line("K1", "R2, R1", "2") + line("K2", "", "5"),
            line("K2", "", "2") + line("K2", "", "3") + line("K1", "R1-R2", "2"), "");
        row("another part", line("K1", "R1 R2 R10", "3"), line("K1", "R1", "1") + line("K2", "R10 R2", "2"),
            "~ R2, R10: 2 x K1 nK1 -> K2 nK2");
        row("more and fewer", line("K1", "R1", "1"), line("K1", "R2 R3", "2"),
            "+ R2, R3: 2 x K1 nK1 / - R1: 1 x K1 nK1");
        row("quantity", line("K1", "", "3"), line("K1", "", "5"), "= K1 nK1: 3 -> 5");
        row("moved between lines", line("K1", "R1", "1") + line("K2", "R2", "1"),
            line("K1", "R2", "1") + line("K2", "R1", "1"), "~ R1: 1 x K1 nK1 -> K2 nK2 / ~ R2: 1 x K2 nK2 -> K1 nK1");
        row("pieces beside a designator", line("K1", "J1", "5"), "", "- J1: 1 x K1 nK1 / - 4 x K1 nK1");
        row("another part with pieces beside", line("K1", "J1", "5"), line("K2", "J1", "5"),
            "~ J1: 1 x K1 nK1 -> K2 nK2 / - 4 x K1 nK1 / + 4 x K2 nK2");
        row("only one has it", line("K1", "", "3"), "", "- 3 x K1 nK1");
    }
    void compared()
    {
        const auto [before, after, all] = fetch<QByteArray, QByteArray, QString>();
        kiv_mat_bomStruct a, b;
        QCOMPARE(loadBom(m_folder->write("a.xml", bom(before)), &a), 0);
        QCOMPARE(loadBom(m_folder->write("b.xml", bom(after)), &b), 0);
        QStringList seen;
        for (const bomDifference &row : compareBoms(a, b))
            seen.append(lineOf(row));
        QCOMPARE(seen.join(" / "), all);
    }

    void decisionsAreKept()
    {
        const auto database = databaseOf({"K1;g;A;;;;;;;"});
        bomImport::staged lines = staged("Ref,Qty,Value\nX1,1,\"Qua;\"\"rtz\"", *database);
        lines.lines[0].candidates.push_back({"K1", "A", matchReason::chosen, {}});
        lines.lines[0].chosen = 0;
        std::vector<bomImport::decision> all;
        bomImport::takeChosen(lines, QDate(2026, 1, 2), &all);
        bomImport::takeChosen(lines, QDate(2026, 1, 3), &all);
        QString fault;
        QVERIFY(bomImport::writeDecisions(m_folder->path(), all, &fault));
        QCOMPARE(bomImport::readDecisions(m_folder->path(), &fault), all);
        QCOMPARE(all.size(), size_t(1));
        QCOMPARE(bomImport::asMap(all).value(lines.lines[0].line.key()), QString("K1"));
    }

    // The lists that people made by hand from the same files: what both matched is the same material.
    void realLists()
    {
        const QString real = qEnvironmentVariable("KIVZP_REAL_DATA", "none");
        if (!QFileInfo::exists(real + "/db_small.xml"))
            QSKIP("KIVZP_REAL_DATA names no folder of real data");
        kiv_mat_databaseStruct database;
        QCOMPARE(loadDatabase(real + "/db_small.xml", &database), 0);
        const partsMatcher matcher(materialsOf(database));
        for (const QString &path : filesIn(real + "/raw/boms", {"*.csv"})) {
            QString fault;
            const auto table = readPartsTable(path, {}, &fault);
            QVERIFY2(table, qPrintable(path + fault));
            const partsList list = linesOf(*table, partsColumns::guessed(*table));
            bomImport::staged lines;
            QVERIFY(bomImport::stage(list, matcher, {}, &lines));
            kiv_mat_bomStruct byHand;
            QCOMPARE(loadBom(real + "/boms/" + QFileInfo(path).completeBaseName() + ".xml", &byHand), 0);
            QHash<QString, QString> ktms; // by designator
            for (const auto &line : byHand.materials)
                for (const QString &designator : partsTexts::designatorsIn(line->d_designator))
                    ktms.insert(designator, line->d_ktm);
            QVERIFY2(list.lines.size() > 5, qPrintable(path));
            for (const bomImport::stagedLine &line : lines.lines)
                if (const matchCandidate *match = line.match())
                    for (const QString &designator : line.line.designators)
                        if (matcher.has(ktms.value(designator)))
                            QCOMPARE(match->ktm, ktms.value(designator));
        }
    }

private:
    static QStringList filesIn(const QString &folder, const QStringList &names)
    {
        QStringList all;
        for (const QFileInfo &file : QDir(folder).entryInfoList(names, QDir::Files))
            all.append(file.filePath());
        return all;
    }
};

KIVZP_TEST(tst_bomImport)
#include "tst_bomImport.moc"
