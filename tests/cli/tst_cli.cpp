// kivzp-cli from outside: exit codes, output and files.
#include "util/linkServer.h"

#include "data/keptCopies.h"
#include "data/keptSearches.h"
#include "util/fileLock.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextCodec>

using namespace testSupport;

class tst_cli : public folderTest
{
    Q_OBJECT
private slots:
    void init() override
    {
        folderTest::init();
        QVERIFY(QFile::copy(KIVZP_CLI, m_folder->path("kivzp-cli")));
        copyFolder(source("tests/files/cli"), m_folder->path());
        const QByteArray root = "<kiv_mat_zp xsi:type=\"KIV_MAT_ZP_1\"/>";
        const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        const QByteArray good = head + "<kiv_mat_zp/>";
        m_folder->write("wrong/empty.xml", "");
        m_folder->write("wrong/wide.xml", QTextCodec::codecForName("UTF-16")->fromUnicode(QString(good)));
        m_folder->write("wrong/narrow.xml", QByteArray(good).replace("UTF-8", "UTF-16"));
        m_folder->write("wrong/encoding.xml", QByteArray(good).replace("UTF-8", "KOI-99"));
        m_folder->write("wrong/bytes.xml",
                        QByteArray(good).replace("/>", "><attentions>\xb9</attentions></kiv_mat_zp>"));
        m_folder->write("wrong/dtd.xml", head + "<!DOCTYPE kiv_mat_zp>" + root);
        m_folder->write("wrong/prefix.xml", head + root);
        m_folder->write("wrong/version.xml", QByteArray(order("")).replace("KIV_MAT_ZP_1", "KIV_MAT_ZP_9"));
        m_folder->write("wrong/namespace.xml", QByteArray(order("")).replace("<kiv_mat_zp", "<kiv_mat_zp xmlns=\"u\""));
        m_folder->write("wrong/schema.xml", document("kiv_config", "KIV_CONFIG_1", "none.xsd", ""));
        QVERIFY(keptSearches::keep({"Same", "ktm:k"}));
        m_folder->write("shops.xml",
                        database("<d_group name=\"G\"><material><d_ktm>K</d_ktm><suppliers><supplier><name>TME</name>"
                                 "<part_no>T-1</part_no></supplier><supplier><name>Mouser</name><part_no>M-1</part_no>"
                                 "</supplier></suppliers></material></d_group>"));
        const QByteArray details =
            document("kiv_mat_firm_details", "KIV_MAT_FIRM_DETAILS_1", "kiv_mat_firm_details.xsd",
                     "<details><name>A</name><discount>5</discount></details><details><name>TME</name>"
                     "<separator>semicolon</separator><captions>NIE</captions></details>");
        m_folder->write("details/firm_details.xml", details);
        m_folder->write("details/other.xml", QByteArray(details).replace(">5<", ">7<"));
        const QByteArray boards =
            document("kiv_mat_reservations", "KIV_MAT_RESERVATIONS_1", "kiv_mat_reservations.xsd",
                     "<reserved><board id=\"1\" list=\"a.xml\" date=\"2026.11.26\"><line ktm=\"K\" quantity=\"5\"/>"
                     "</board></reserved>");
        m_folder->write("boards/r.xml", boards);
        m_folder->write("boards/other.xml", QByteArray(boards).replace("\"5\"", "\"7\""));
        const QByteArray states = document("kiv_mat_order_states", "KIV_MAT_ORDER_STATES_1", "kiv_mat_order_states.xsd",
                                           "<order file=\"a.xml\" sent=\"x\"/><order file=\"b.xml\" number=\"7\"/>");
        m_folder->write("boards/order_states.xml", states);
        m_folder->write("boards/later.xml", QByteArray(states).replace("\"x\"", "\"y\""));
        m_folder->write("orders/a.xml",
                        order("<options><option type=\"ORDER_NUMBER\" value1=\"ZP/2/2026\"/>"
                              "<option type=\"ORDER_DATE\" value1=\"05.03.2026\"/></options><order_items>"
                              "<order_item><ktm>K</ktm><name>Rezystor 0603</name><price>2</price><quantity>3</quantity>"
                              "<invoice>FV 7</invoice></order_item><order_item><name>drut</name></order_item>"
                              "</order_items>"));
        m_folder->write("details/makers.xml", read(m_folder->path("makers.xml")));
        // Of the helpers only one is there, and that cannot be started.
        QFile::setPermissions(m_folder->write("_bin/zip.exe", "#!/none/sh\n"), QFile::ReadOwner | QFile::ExeOwner);
    }

    void calls_data()
    {
        const rows<int, QString, QString> row;
        row("", 2, "", "Usage");
        row("--help", 0, "validate", "");
        row("unknown", 2, "", "unknown command: unknown");
        row("--language xx info", 2, "", "xx");
        row("validate --help", 0, "FILE...", "");
        row("validate --colour good.xml", 2, "", "colour");
        row("validate good.xml", 0, "good.xml: valid", "");
        row("validate good.xml bad.xml", 1, "good.xml: valid", "bad.xml:3:");
        row("validate none.xml", 1, "", "none.xml: there is no such file");
        row("validate cut.xml", 1, "", "cut.xml:2:");
        row("info good.xml", 0, "kind: kiv_mat_zp\nversion: KIV_MAT_ZP_1\noptions: 6\nlines: 1\nsum: 6.00", "");
        row("info bad.xml", 0, "lines: 0", "[colour (line 3)]");
        row("resave bad.xml out.xml", 1, "", "would lose colour (line 3); --force");
        row("resave --force bad.xml out2.xml", 0, "", "colour");
        for (const char *command : {"validate", "info"}) {
            const auto each = [&](const char *file, const QString &reason) {
                row(qPrintable(QString("%1 wrong/%2.xml").arg(command, file)), 1, "", reason);
            };
            each("empty", "the file is empty");
            each("wide", "is UTF-16 but says that it is UTF-8");
            each("narrow", "says that it is UTF-16 but is not");
            each("encoding", "the encoding KOI-99 is not known");
            each("bytes", "a byte that is no UTF-8");
            each("dtd", "document type declarations are not allowed");
            each("prefix", "the prefix xsi is not declared");
            each("version", "KIV_MAT_ZP_9 is no version of kiv_mat_zp");
            each("namespace", "kiv_mat_zp is no file of this program");
            each("schema", "none.xsd cannot be loaded");
        }
        row("info cut.xml", 1, "", "cut.xml:");
        row("info twice.xml", 0, "materials: 2\nktms: 1\nduplicates: 1", "");
        row("info good.xml bad.xml", 2, "", "too many");
        row("resave cut.xml out.xml", 1, "", "cut.xml: line 2");
        row("repair cut.xml out4.xml", 0, "kind: kiv_mat_zp", "cut.xml:2:");
        row("repair good.xml good.xml", 2, "", "repair: OUT is IN, which must stay");
        row("diff good.xml good.xml", 0, "", "");
        row("diff one.xml other.xml", 1, "K, Price:  -> 5\n+ G, L: L; NIE", "");
        row("diff good.xml one.xml", 2, "", "good.xml is of the kind kiv_mat_zp, but one.xml");
        row("diff good.xml cut.xml", 2, "", "cut.xml: line 2");
        row("report good.xml -d none.xml -o out.html", 1, "", "none.xml");
        row("find ktm:k -d twice.xml", 0, "K\t", "");
        row("find K -n 1 -d twice.xml", 0, "K\t", "1 of 2 materials shown");
        row("find K -n 0 -d twice.xml -d twice.xml", 0, "K\t", "");
        row("find --help", 0, "value:1k..10k", "");
        row("find none -d twice.xml", 1, "", "nothing found");
        row("find colour:red -d twice.xml", 2, "", "There is no field colour");
        row("find K -n x -d twice.xml", 2, "", "x is no number");
        row("find price:cheap -d twice.xml", 2, "", "cheap is no number; a text goes in quotes");
        row("find --list-kept", 0, "Same\tktm:k\n", "");
        row("find --kept same -d twice.xml", 0, "K\t", "");
        row("find --kept same group:none -d twice.xml", 1, "", "nothing found");
        row("find --kept other -d twice.xml", 2, "", "no search other is kept");
        row("check-materials twice.xml", 1, "K\t\tCPV empty\nK\t\tCPV empty\n", "");
        row("material K -d sources.xml -u bom.xml -u good.xml", 0,
            "Manufacturer\tA\nSupplier\tA\nIn the BOM list\tbom.xml, line 1: 2\nIn the order\tgood.xml, line 1: 3\n",
            "");
        row("material X -d twice.xml", 1, "", "no material has the KTM X");
        row("material K", 2, "", "-d");
        row("material K -d one.xml -u one.xml", 1, "", "one.xml: the file is of another kind");
        row("bom-csv bom.xml", 2, "", "-o");
        row("bom-csv good.xml -o out.csv", 1, "", "is no BOM list");
        row("bom-order bom.xml=2 -d twice.xml -o out.xml", 0, "", "in no database, left out: X");
        row("bom-order bom.xml=1 --existing twice -o out.xml", 2, "", "none of raise");
        row("bom-basket bom.xml=2 -d shops.xml -o out", 0, "out/TME.csv\n", "in no database: X");
        row("bom-basket bom.xml=2 -d shops.xml --firms firms.xml --supplier mouser -o out/", 0, "out/Mouser.csv\n",
            "in no database: X");
        row("bom-basket bom.xml=2 -d shops.xml --supplier TME -o new/t.csv", 0, "new/t.csv\n", "number above 0");
        row("bom-basket --from good.xml -d shops.xml -o out", 0, "out/TME.csv\n", "");
        row("bom-basket bom.xml=2 -d shops.xml --supplier RS -o out", 1, "", "RS does not have it, left out: K");
        row("bom-basket bom.xml=2 -d twice.xml -o out", 1, "", "no material has a supplier");
        row("bom-basket bom.xml=2 -d shops.xml --firms bom.xml -o out", 1, "", "is no firm register");
        row("bom-basket bom.xml=2 -d shops.xml -o good.xml", 3, "", "cannot be written");
        row.each({"bom-basket -o out", "bom-basket bom.xml=1 --from good.xml -o out"}, 2, "", "either BOM=SETS or");
        row("bom-basket bom.xml=1", 2, "", "-o");
        row("validate details/firm_details.xml", 0, "valid", "");
        row("info details/firm_details.xml", 0, "kind: kiv_mat_firm_details\nversion: KIV_MAT_FIRM_DETAILS_1\nfirms: 2",
            "");
        row("diff details/firm_details.xml details/other.xml", 1, "~ A, Discount: 5 -> 7\n", "");
        row("info boards/r.xml", 0, "reserved: 1\nbuilt: 0", "");
        row("diff boards/r.xml boards/other.xml", 1, "~ a.xml 2026.11.26, K, Quantity: 5 -> 7\n", "");
        row("info boards/order_states.xml", 0, "sent: 2\nparted: 0\nstocked: 0", "");
        row("diff boards/order_states.xml boards/later.xml", 1, "~ a.xml, sent: x -> y\n", "");
        row("firm-merge details/makers.xml A B -o out", 0, "out/makers.xml\nout/firm_details.xml\n", "");
        row("bom-shortage bom.xml=2 -d twice.xml", 1, "K\t\t4\t?\t4\tYes\nX\t", "left out: Y");
        row("bom-reserve bom.xml=2 -d twice.xml", 2, "", "give the file of reservations");
        row("reservations none.xml", 1, "", "there is no such file");
        row("bom-reserve bom.xml=2 -d twice.xml -r bom.xml", 1, "", "is no file of this program");
        row("plan -f orders", 0, "Total\t6.00\t6.00\t0.00\t\t2\t1\t1",
            "without a CPV code: ZP/2/2026, line 1: Rezystor 0603");
        row("plan -f orders --by target --json", 0, "\"without_cpv\"", "1 line whose price");
        row("plan -f orders -y 2019", 0, "Total\t0.00", "There are no orders of 2019");
        row("plan -f orders --by x", 2, "", "none of cpv, group, target, firm");
        row("plan -f orders --digits 9", 2, "", "no number of digits from 3 to 8");
        row("plan -f orders -y x", 2, "", "is no year");
        row("plan -f orders -t 302", 2, "", "is not understood: 302");
        row("plan -f orders -o p.doc", 2, "", "ends in .html, .pdf, .xlsx or .csv");
        row("plan -f good.xml", 1, "", "is no folder");
        row("request orders/a.xml --list", 0, "", "");
        row("request orders/a.xml --list --json", 0, "\"requests\": [", "");
        row("request orders/a.xml --list --remind", 2, "", "either --list or --remind");
        row("request orders/a.xml", 2, "", "give --firms and --firm");
        row("request orders/a.xml --remind", 1, "", "no firm is to be reminded");
        row("request orders/a.xml --remind --firm X", 1, "", "X has no request without an offer");
        row("request bom.xml --list", 1, "", "is no order");
        row("offers compare orders/a.xml", 1, "", "there are no offers for it");
        row("offers import orders/a.xml", 2, "", "an argument is missing");
        row("offers compare orders/a.xml --by x", 2, "", "none of cheapest, one, fewest, date");
        row("offers compare orders/a.xml --by date", 2, "", "give the day with --until");
        row("offers import orders/a.xml x.csv --column cost=3", 2, "", "is not what a column holds");
        row("offers choose orders/a.xml", 2, "", "give a --reason");
        row("offers sell orders/a.xml", 2, "", "none of import, compare, choose, split");
        row("offers split orders/a.xml", 1, "", "No firm is chosen for any material");
        row("deliver orders/a.xml --lines 1 --number WZ", 1, "", "Line 1 K was delivered already");
        row("deliver orders/a.xml --lines 9", 2, "", "names no lines of the order");
        row.each({"deliver orders/a.xml", "deliver orders/a.xml --lines 1 --to-stock"}, 2, "", "either --lines or");
        row("deliver orders/a.xml --lines 1 --date 31.02.2026", 2, "", "is no date");
        row("deliver good.xml --to-stock -d twice.xml", 0, "", "");
        row("orders list -f orders", 0, "ZP/2/2026\t05.03.2026\tpartly_delivered\t2\t6.00\t", "");
        row("orders find -f orders fv 0603 --json", 0, "\"number\": \"ZP/2/2026\"", "");
        row("orders find -f orders r -n 1", 0, "\tK\t", "1 of 2 lines shown");
        row("orders where-used X -f orders", 0, "", "");
        row.each({"orders list X -f orders", "orders where-used X Y -f orders"}, 2, "", "too many arguments");
        row("orders find -f orders", 2, "", "an argument is missing");
        row("orders lists -f orders", 2, "", "none of list, find, where-used");
        row("orders list -f good.xml", 1, "", "is no folder");
        row("versions", 1, "", "kiv_mat_config.xml: cannot be read");
        row("mail", 2, "", "give one of");
        row("mail good.xml --boms", 2, "", "give one of");
        row("mail good.xml", 1, "", "_config/kiv_mat_config.xml: cannot be read");
        row("helpers", 1, "_bin/zip.exe: found", "KIV_TEMPLATE_DOC.exe: not found");
        row("pack _validator out.zip", 1, "", "cannot be started");
        row("pack none new.zip", 1, "", "Folder does not exist [none]");
        row("unpack good.xml out", 1, "", "Archive cannot be read [good.xml]");
        row("download http://127.0.0.1:1/ out.bin", 1, "", "cannot be started");
        row("altium twice.xml -o out.xlsx", 0, "out.xlsx\nout.xlsx.DbLib\nNo earlier", "[Group]");
        row("altium twice.xml -o out.SQLITE", 0, "out.SQLITE\nout.txt\nout.SQLITE.DbLib\nout.kicad_dbl\nNo earlier",
            "[Group]");
        row("altium twice.xml -o out.txt", 2, "", ".xlsx / .sqlite");
        row("groups twice.xml -o out.xlsx", 0, "out.xlsx", "[Group]");
        row("groups twice.xml -o out.sqlite", 2, "", "ends in .xlsx");
        row("duplicates twice.xml", 1, "The same KTM:\nK\t[] []", "");
        row("duplicates one.xml", 0, "All materials has unique KTM", "");
        row("empty one.xml", 1, "K\t\tCPV, Name", "");
        row("parse-listing stock.txt -d one.xml", 0, "K\td_inWarehouse\t\t2\nK\td_averagePrice\t\t2.50",
            "brak Error in KTM line");
        row("parse-listing stock.txt -d one.xml -o out.xml", 0, "d_averagePrice", "brak");
        row("parse-listing stock.txt -d one.xml -o _validator", 3, "d_averagePrice", "cannot be written");
        row("parse-listing none.txt -d one.xml", 1, "", "corrupted");
        row("parse-listing good.xml -d one.xml", 1, "", "good.xml");
        row("merge one.xml one.xml", 0, "All materials in database", "");
        row("merge one.xml other.xml", 0, "changed\tK\t\n\td_price\t\t5\nnew\tL\t\n", "");
        row("merge one.xml other.xml --apply -o out.xml", 0, "new\tL", "");
        row("merge other.xml one.xml --update", 0, "changed\tK\t\n\td_price\t5\t\nabsent\tL", "");
        row("merge one.xml other.xml --apply -o _validator", 3, "new\tL", "cannot be written");
        row("merge one.xml other.xml --fields d_price,group", 0, "changed\tK\t\n\td_price\t\t5\n", "");
        row("merge one.xml other.xml --fields d_name", 0, "These fields are the same in both\n", "");
        row("merge one.xml other.xml --fields d_price,colour", 2, "", "merge: colour is no field");
        row("merge one.xml other.xml --fields d_price --update", 2, "", "all fields");
        row("load-cpv cpv.txt -d one.xml", 0, "G\t\t31712340-5", "X");
        row("load-cpv cpv.txt -d one.xml -o _validator", 3, "31712340-5", "cannot be written");
        row("load-cpv none.txt -d one.xml", 1, "", "none.txt");
        row("move-cpv other.xml -o out.xml", 0, "L\td_cpv\t\t31711130-3", "");
        row("check twice.xml one.xml -k duplicate -k cpv", 1,
            "Duplicate\tK\t\t\tKTM\tthe same KTM has: []\nDuplicate\tK\t\t\tKTM\tthe same KTM has: []\n", "");
        row("check sources.xml -f firms.xml -k firm", 1, "Firm\tK\t\tG\tManufacturers\t", "");
        row("check sources.xml -k firm -o out.xlsx", 0, "", "");
        row("check one.xml -o out/", 3, "", "out/");
        row("check one.xml -k colour", 2, "", "duplicate, empty, ktm, cpv, link, file, firm");
        row("check one.xml -f good.xml", 1, "", "is no firm register");
        row("set-field one.xml --find K --field name --set N --dry-run", 0, "K\td_name\t\tN\n",
            "found 1, to change 1, unchanged 0, refused 0");
        row("set-field other.xml --find ktm:K --field cena --replace 5 --with 6 --dry-run", 0, "K\td_price\t5\t6.00\n",
            "found 1");
        row("set-field other.xml --find !ktm:X --field d_description --template {ktm}/{price} --dry-run", 0,
            "K\td_description\t\tK/5\nL\td_description\t\tL/\n", "found 2");
        row("set-field other.xml --find ktm:K --field price --set ten", 1, "", "K\td_price\t5\tten is not a number");
        row("set-field one.xml --find X --field name --set N", 1, "", "nothing found");
        row("set-field one.xml --find colour:X --field name --set N", 2, "", "There is no field colour");
        row("set-field one.xml --find K --field colour --set N", 2, "", "there is no field colour; the fields: d_ktm");
        row("set-field one.xml --find K --field name --replace ( --with x --pattern", 2, "", "closing parenthesis");
        row.each({"set-field one.xml --find K --field name --set N --pattern",
                  "set-field one.xml --find K --field name --replace N"},
                 2, "", "belong together");
        row.each({"set-field one.xml --field name --set N", "set-field one.xml --find K --field name",
                  "set-field one.xml --find K --field name --set N --template N"},
                 2, "", "one of --set");
        row("replace-material --help", 0, "OLD NEW FILE...", "");
        row("replace-material X K bom.xml", 2, "", "-d");
        row("replace-material X -d twice.xml bom.xml", 2, "", "an argument is missing");
        row("replace-material X Z -d twice.xml bom.xml", 1, "", "no database has the material Z");
        row("replace-material K K -d twice.xml bom.xml", 1, "", "both materials are the same");
        row("replace-material Z K -d twice.xml bom.xml good.xml", 1, "", "lines to replace 0, in files 0 of 2");
        row("replace-material X K -d twice.xml bom.xml none.xml", 1, "", "none.xml: ");
        row("replace-material X K -d twice.xml bom.xml bom.xml --dry-run", 0, "stands in several lines",
            "no status valid for ordering (none)");
        row("check one.xml -u none.xml", 1, "", "none.xml");
        row("check one.xml -u bom.xml -k status", 1, "Not to be ordered\tK\t", "");
        row("check-nip firms.xml", 1, "Wrong\t5260250275", "");
        row("firm-uses sources.xml A", 0, "manufacturer\tK\t\nsupplier\tK\t\n", "");
        row("firm-uses sources.xml A --rename B -o out.xml", 0, "supplier\tK", "");
        row("firm-uses sources.xml A --rename B -o _validator", 3, "supplier\tK", "cannot be written");
        row("firm-merge makers.xml A B -d sources.xml", 0,
            "Manufacturers\t\tA\tgoes\t\t\nSuppliers\t\tB\tName\tA\tB\nsources.xml\tK\t\tManufacturer\tA\tB\n"
            "sources.xml\tK\t\tSupplier\tA\tB\n",
            "");
        row("firm-merge makers.xml A B -d sources.xml -o out", 0, "out/makers.xml\nout/sources.xml", "");
        row("firm-merge makers.xml A B -o _validator/kiv_mat.xsd", 3, "goes", "cannot be written");
        row("firm-merge makers.xml A None", 1, "", "the list has no firm None");
        row("firm-merge sources.xml A B", 1, "", "is no firm register");
        row("firm-uses sources.xml a", 1, "", "no material names a");
        row.each({"report good.xml -d good.xml -o out.html", "find K -d good.xml", "check-materials good.xml",
                  "altium good.xml -o out.xlsx", "merge one.xml good.xml", "firm-uses good.xml A"},
                 1, "", "is no material database");
        row.each({"validate", "find -d twice.xml", "check-materials", "unpack good.xml"}, 2, "", "argument is missing");
        row.each({"report good.xml -o out.txt", "report good.xml", "bom-report bom.xml -o out.doc"}, 2, "",
                 ".html or .pdf");
        row.each({"examine-links", "examine-links one.xml --days x", "examine-links one.xml --days -1"}, 2, "",
                 "examine-links");
        row("examine-links bad.xml", 1, "", "bad.xml:3:");
        row.each({"find K", "parse-listing stock.txt", "load-cpv cpv.txt"}, 2, "", "-d");
        row.each({"merge one.xml other.xml --apply", "firm-uses sources.xml A --rename B"}, 2, "", "belong together");
        row.each({"resave good.xml _validator", "report good.xml -o good.xml/out.pdf",
                  "bom-csv bom.xml -o good.xml/out.csv", "bom-order bom.xml=1 -o good.xml/out.xml",
                  "altium twice.xml -o good.xml/out.sqlite", "check-urls one.xml -o _validator",
                  "db-report one.xml --short -o _validator"},
                 3, "", "cannot be written");
        row("validate .", 1, "", "is a folder");
        row("info none.xml", 1, "", "there is no such file");
        row.each({"report twice.xml -o out.html", "bom-order bom.xml=1 --from bom.xml -o out.xml"}, 1, "",
                 "is no order");
        row.each({"db-report one.xml -f good.xml -o out.html", "check-nip one.xml"}, 1, "", "is no firm register");
        row.each({"bom-order bom.xml -d twice.xml -o out.xml", "bom-order bom.xml=-1 -o out.xml"}, 2, "",
                 "is not BOM=SETS");
        row.each({"info --validate bad.xml", "report bad.xml -o out.html", "duplicates bad.xml"}, 1, "", "bad.xml:3:");
        row.each({"resave good.xml new/out.xml", "report good.xml -o out.html", "report good.xml -o new/sub/out.html",
                  "bom-csv bom.xml -d twice.xml -o out.csv", "bom-report bom.xml -d twice.xml -o out.pdf",
                  "bom-shortage bom.xml=0", "check-urls one.xml -o out.xlsx", "examine-links one.xml other.xml",
                  "db-report one.xml -o out.html"},
                 0, "", "");
    }

    void calls()
    {
        const auto [code, out, err] = fetch<int, QString, QString>();
        const ended called = call(tag());
        QVERIFY2(called.out.contains(out) && called.out.isEmpty() == out.isEmpty(), qPrintable(called.out));
        QVERIFY2(called.err.contains(err) && called.err.isEmpty() == err.isEmpty(), qPrintable(called.err));
        QCOMPARE(called.code, code);
        // Only a call that succeeded leaves a file.
        const QString target = tag().section(" -o ", 1).section(' ', 0, 0);
        if (code != 0)
            QVERIFY(QDir(m_folder->path()).entryList({"out*"}).isEmpty());
        else if (!target.isEmpty())
            QVERIFY(QFile::exists(m_folder->path(target)));
    }

    void json_data()
    {
        const rows<int, QByteArray> row;
        row("info good.xml", 0,
            R"({"average_sum":0,"average_sum_left_out":"pominięto 1 pozycję bez ceny średniej","file":"good.xml","format":"KIV_MAT_ZP_1",
                "kind":"kiv_mat_zp","lines":1,"options":6,"sum":6})");
        row("find l -d other.xml", 0,
            R"({"materials":[{"case":"","description":"","group":"G","in_warehouse":"","ktm":"L","name":"","price":"",
                "status":"","unit":"","value":""}],"total":1})");
        row("find --list-kept", 0, R"({"kept":[{"name":"Same","words":"ktm:k"}]})");
        row("check-materials one.xml", 1,
            R"({"faults":[{"fault":"Brak CPV","field":"d_cpv","group":"G","ktm":"K","name":""}]})");
        row("material K -d sources.xml -u bom.xml", 0,
            R"({"materials":[{"ktm":"K","group":"G","fields":{"d_ktm":"K","d_active":"NIE"},
                "manufacturers":[{"name":"A","part_no":"","description":"","files":[]}],
                "suppliers":[{"name":"A","part_no":"","description":"","files":[]}],
                "uses":[{"file":"bom.xml","kind":"bom","line":1,"quantity":2,"designator":""}]}]})");
        row("check-nip firms.xml", 1, R"({"firms":[{"name":"Wrong","nip":"5260250275"}]})");
        row("diff one.xml one.xml", 0,
            R"({"after":"one.xml","before":"one.xml","differences":[],"equal":true,"kind":"kiv_mat_database"})");
    }

    // Names are the same in every language, and numbers are numbers.
    void json()
    {
        const auto [code, expected] = fetch<int, QByteArray>();
        const ended called = call("--language pl " + tag() + " --json");
        QCOMPARE(called.code, code);
        QCOMPARE(QString(QJsonDocument::fromJson(called.out.toUtf8()).toJson()),
                 QString(QJsonDocument::fromJson(expected).toJson()));
    }

    void checkAsJson()
    {
        const ended called = call("check twice.xml -k duplicate -k ktm --json");
        QCOMPARE(called.code, 1);
        QCOMPARE(QJsonDocument::fromJson(called.out.toUtf8()).object()["counts"],
                 QJsonValue(QJsonObject{{"duplicate", 2}, {"ktm", 2}}));
        QCOMPARE(QJsonDocument::fromJson(called.out.toUtf8()).object()["findings"].toArray()[0].toObject(),
                 (QJsonObject{{"kind", "duplicate"},
                              {"ktm", "K"},
                              {"name", ""},
                              {"group", ""},
                              {"field", "d_ktm"},
                              {"caption", "KTM"},
                              {"reason", "the same KTM has: []"}}));
    }

    void faultsHaveTheirPlace()
    {
        const QByteArray faults = "\n<options>\n <option colour=\"1\"/>\n <colour>\n</colour></options>";
        const QString path = m_folder->write("f.xml", order(faults));
        const ended called = run({"validate", path});
        QCOMPARE(called.code, 1);
        const QStringList lines = called.err.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[0].contains(QRegularExpression("^\\Q" + path + "\\E:4:[0-9]+: .*colour.*")));
        QVERIFY(lines[1].startsWith(path + ":5:"));
    }

    void longListsAreCut()
    {
        const QByteArray lines = QByteArray("<order_item><x/></order_item>\n").repeated(250);
        m_folder->write("f.xml", order("<order_items>" + lines + "</order_items>"));
        const QStringList told = call("validate f.xml").err.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(told.size(), 101);
        QVERIFY(told.last().endsWith("and 150 more"));
    }

    // A material comes from the first database that has it.
    void reportWithDatabases()
    {
        QCOMPARE(call("report good.xml -d sources.xml -d one.xml -o r.html").code, 0);
        QVERIFY(read(m_folder->path("r.html")).contains("Manufacturers: </span>A<"));
        QCOMPARE(call("report good.xml -d one.xml -d sources.xml -o r.html").code, 0);
        QVERIFY(!read(m_folder->path("r.html")).contains("Manufacturers: "));
        QCOMPARE(call("report good.xml -d sources.xml -o r.pdf").code, 0);
        QVERIFY(read(m_folder->path("r.pdf")).startsWith("%PDF"));
    }

    // What merge and parse-listing write is what they said.
    void changesAreWritten()
    {
        QCOMPARE(call("merge one.xml other.xml --apply -o m.xml").code, 0);
        QVERIFY(call("merge m.xml other.xml --update").out.startsWith("All materials"));
        QCOMPARE(call("merge m.xml one.xml --update --apply -o u.xml").code, 0);
        QVERIFY(call("merge u.xml one.xml --update").out.startsWith("All materials"));
        // Of one field: the new material is not among it.
        QCOMPARE(call("merge one.xml other.xml --fields d_price --apply -o p.xml").code, 0);
        QCOMPARE(call("merge p.xml other.xml").out, QString("new\tL\t\ngroup\t\tG\n\tcpv\t\t31711130-3\n"));
        QCOMPARE(call("parse-listing stock.txt -d one.xml -o s.xml").code, 0);
        QCOMPARE(call("parse-listing stock.txt -d s.xml").out, QString());
        QVERIFY(read(m_folder->path("s.xml")).contains("<d_averagePrice>2.50</d_averagePrice>"));
        QCOMPARE(call("firm-uses sources.xml A --rename B -o f.xml").code, 0);
        QCOMPARE(call("firm-uses f.xml A").code, 1);
        QCOMPARE(call("firm-uses f.xml B").out, call("firm-uses sources.xml A").out);
        // What is written over stays among the versions.
        copyFolder(source("_config"), m_folder->path("_config"));
        QCOMPARE(call("versions m.xml").code, 1);
        QCOMPARE(call("resave one.xml m.xml").err, QString());
        QCOMPARE(call("versions m.xml").out.count('\n'), 1);
    }

    // The file is written over once, its earlier version kept; a window that has it is named. Not when one is refused.
    void fieldIsSet()
    {
        configStruct config;
        config.setDefaults();
        config.backupPath();
        config.options.findOption("PATH_BACKUP")->value1 = m_folder->path("backup");
        QVERIFY(QDir(m_folder->path()).mkpath("_config") && config.save(m_folder->path("_config/kiv_mat_config.xml")));
        const QByteArray before = read(m_folder->path("other.xml"));
        const QString setting = "set-field other.xml --find !ktm:X --field unit --set kg";
        QCOMPARE(call("set-field other.xml --find !ktm:X --field ktm --set K").code, 1);
        QCOMPARE(call(setting + " --dry-run").code, 0);
        QCOMPARE(read(m_folder->path("other.xml")), before);
        {
            fileLock window;
            window.claim(m_folder->path("other.xml"));
            const ended called = call(setting);
            QVERIFY2(called.code == 0, qPrintable(called.err));
            QVERIFY(called.err.contains("which will be told"));
        }
        QCOMPARE(read(m_folder->path("other.xml")).count("<d_unit>kg</d_unit>"), 2);
        QCOMPARE(call("validate other.xml").code, 0);
        const QStringList kept = call("versions other.xml").out.trimmed().split('\t');
        QCOMPARE(kept.size(), 4);
        QString reason;
        const auto version = readKept(kept.last(), &reason);
        QVERIFY2(version, qPrintable(reason));
        QCOMPARE(static_cast<kiv_mat_databaseStruct &>(*version).groups[0]->items[1]->d_unit, QString());
        QVERIFY(call(setting).err.contains("to change 0, unchanged 2"));
        QCOMPARE(call("versions other.xml").out.count('\n'), 1);
    }

    void boardsTakeStock()
    {
        const auto material = [](const char *what) {
            return QByteArray("<material><d_ktm>K</d_ktm>") + what + "</material>";
        };
        m_folder->write("stock.xml", database("<d_group name=\"G\">" + material("<d_inWarehouse>10</d_inWarehouse>")
                                              + "</d_group>"));
        for (const char *board : {"a.xml", "b.xml"})
            m_folder->write(board, testSupport::bom(material("<d_quantity>3</d_quantity>")));
        const ended reserved = call("bom-reserve a.xml=2 -d stock.xml -r r.xml --by me");
        QVERIFY2(reserved.code == 0, qPrintable(reserved.err));
        QVERIFY(call("reservations r.xml").out.contains("reserved\ta.xml\t2\t"));
        QCOMPARE(call("bom-shortage a.xml=3 -d stock.xml -r r.xml").out, QString());
        QCOMPARE(call("bom-shortage b.xml=2 -d stock.xml -r r.xml").out, QString("K\t\t6\t10\t2\tYes\n"));
        const QString built = "bom-built a.xml=1 -d stock.xml -r r.xml";
        QCOMPARE(call(built + " --dry-run").out, QString("K\t\t3\t10\t7\t0\t\n"));
        QVERIFY(read(m_folder->path("stock.xml")).contains(">10<"));
        QCOMPARE(call(built).code, 0);
        QVERIFY(read(m_folder->path("stock.xml")).contains(">7<"));
        QVERIFY(call("reservations r.xml --json").out.contains("\"after\": 7"));
        QCOMPARE(call("validate r.xml").code, 0);
        // A list is found again from wherever it was named.
        QVERIFY(QDir(m_folder->path()).mkpath("res"));
        QCOMPARE(call("bom-reserve a.xml=2 -d stock.xml -r res/r.xml").code, 0);
        QCOMPARE(call("bom-reserve --release " + m_folder->path("a.xml") + "=2 -d stock.xml -r res/r.xml").code, 0);
        // More than there is: what there is is taken, and it is said.
        const ended lacking = call("bom-built a.xml=3 -d stock.xml -r r.xml");
        QCOMPARE(lacking.out, QString("K\t\t9\t7\t0\t2\tnot enough in stock\n"));
        QCOMPARE(lacking.code, 1);
        const ended none = call("bom-reserve --release a.xml=1 -d stock.xml -r r.xml");
        QVERIFY2(none.code == 1 && none.err.contains("only 0 sets were reserved"), qPrintable(none.err));
    }

    // Lists, orders and sets of lists are written together, their versions kept; or none of them.
    void materialIsReplaced()
    {
        configStruct config;
        config.setDefaults();
        config.backupPath();
        config.options.findOption("PATH_BACKUP")->value1 = m_folder->path("backup");
        QVERIFY(QDir(m_folder->path()).mkpath("_config") && config.save(m_folder->path("_config/kiv_mat_config.xml")));
        m_folder->write("sets/a.xml", bom("<material><d_ktm>K</d_ktm><d_quantity>2</d_quantity>"
                                          "<d_designator>R1</d_designator></material>"));
        m_folder->write("sets/set.xml", document("kiv_mat_boms", "KIV_MAT_BOMS_1", "kiv_mat_boms.xsd",
                                                 "<category name=\"c\"><group name=\"g\"><file type=\"FILE_XML\" "
                                                 "name=\"a.xml\"/></group></category>"));
        const QStringList files{"sets/a.xml", "bom.xml", "good.xml"};
        QList<QByteArray> before;
        for (const QString &file : files)
            before.append(read(m_folder->path(file)));
        const QString replacing = "replace-material K L -d other.xml sets/set.xml bom.xml good.xml";
        const auto unchanged = [&] {
            for (int i = 0; i < files.size(); ++i)
                if (read(m_folder->path(files[i])) != before[i])
                    return false;
            return true;
        };
        const ended dry = call(replacing + " --dry-run --json");
        QCOMPARE(dry.code, 0);
        QVERIFY(unchanged());
        const QJsonObject told = QJsonDocument::fromJson(dry.out.toUtf8()).object();
        const QJsonArray lines = told["lines"].toArray();
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0].toObject()["designator"].toString(), QString("R1"));
        QCOMPARE(lines[2].toObject()["kind"].toString(), QString("order"));
        QVERIFY(!told["written"].toBool());
        {
            fileLock window;
            window.claim(m_folder->path("good.xml"));
            const ended called = call(replacing);
            QVERIFY2(called.code == 3 && called.err.contains("good.xml: it is open in"), qPrintable(called.err));
            QVERIFY(unchanged());
        }
        QVERIFY(QJsonDocument::fromJson(call(replacing + " --json").out.toUtf8()).object()["written"].toBool());
        for (const QString &file : files) {
            QVERIFY(read(m_folder->path(file)).contains("ktm>L<"));
            QCOMPARE(call("validate " + file).code, 0);
            QCOMPARE(call("versions " + file).out.count('\n'), 1);
        }
        QCOMPARE(call(replacing).code, 1);
    }

    void polishPathsAndLanguage()
    {
        const QString path =
            m_folder->write("za\u017c\u00f3\u0142\u0107 g\u0119\u015bl\u0105/o.xml", order("<colour/>"));
        const ended polish = run({"--language", "pl", "resave", "--force", path, path + "-2"});
        QVERIFY2(polish.err.contains("(wiersz 2)"), qPrintable(polish.err));
        QVERIFY(QFile::exists(path + "-2"));
        QVERIFY(call("--language=pl validate good.xml").out.contains("poprawny"));
        QVERIFY(run({"validate", path}).err.startsWith(path));
    }

    void runsWithoutDisplayAndHome()
    {
        const ended called =
            run({"report", "good.xml", "-o", "r.pdf"}, {"DISPLAY", "HOME", "XDG_RUNTIME_DIR", "WAYLAND_DISPLAY"});
        QCOMPARE(called.err, QString());
        QCOMPARE(called.code, 0);
    }

    void archives()
    {
        QFile::remove(m_folder->path("_bin/zip.exe"));
        m_folder->ship({"_bin"});
        QCOMPARE(call("helpers").code, 0);
        const QStringList password{"KIVZP_ARCHIVE_PASSWORD=two words"};
        const ended packed = run({"pack", "_validator", "a.zip"}, password);
        QVERIFY2(packed.code == 0 && packed.err.contains("Compression complete"), qPrintable(packed.err));
        const ended unpacked = run({"unpack", "a.zip", "out"}, password);
        QVERIFY2(unpacked.code == 0, qPrintable(unpacked.err));
        QCOMPARE(read(m_folder->path("out/kiv.xsd")), read(m_folder->path("_validator/kiv.xsd")));
        QCOMPARE(run({"unpack", "a.zip", "out2"}, {"KIVZP_ARCHIVE_PASSWORD=wrong"}).code, 1);
        QVERIFY(!QFile::exists(m_folder->path("out2/kiv.xsd")));
    }

    // What was told once is not asked again, and its copy stays.
    void linksAreExamined()
    {
        linkServer server;
        const auto file = [&server](const QString &path) {
            return "<file type=\"FILE_DATASHEET\" name=\"" + server.link(path).toUtf8() + "\"/>";
        };
        m_folder->write("links.xml",
                        database("<d_group name=\"G\"><material><d_ktm>K</d_ktm><manufacturers><manufacturer><files>"
                                 + file("/301/a.pdf") + file("/404") + "<file type=\"FILE_HTML\" name=\"x.html\"/>"
                                 + "</files></manufacturer></manufacturers></material></d_group>"));
        // Here the server is to answer meanwhile.
        const auto examine = [this](const QStringList &more) {
            QProcess process;
            process.setWorkingDirectory(m_folder->path());
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert("XDG_DATA_HOME", m_folder->path("home"));
            environment.insert("no_proxy", "127.0.0.1");
            process.setProcessEnvironment(environment);
            process.start(m_folder->path("kivzp-cli"), QStringList{"examine-links", "links.xml"} + more);
            const bool ended = QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000);
            return std::pair(ended ? process.exitCode() : -1, process.readAllStandardOutput());
        };
        const auto [code, lines] = examine({"--fetch"});
        QCOMPARE(code, 1);
        QCOMPARE(QString(lines), QString("moved\tK\t%1\t%2\nmissing\tK\t%3\tis gone (404)\nnot_web\tK\tx.html\tno web "
                                         "address\n")
                                     .arg(server.link("/301/a.pdf"), server.link("/a.pdf"), server.link("/404")));
        const int asked = server.requests.size();
        const auto [again, json] = examine({"--fetch", "--json"});
        QCOMPARE(again, 1);
        QCOMPARE(server.requests.size(), asked);
        const QJsonArray links = QJsonDocument::fromJson(json)["links"].toArray();
        QCOMPARE(links.size(), 3);
        QCOMPARE(links[0]["moved_to"].toString(), server.link("/a.pdf"));
        QCOMPARE(links[0]["type"].toString(), QString("application/pdf"));
        QVERIFY(read(links[0]["copy"].toString()).startsWith("%PDF"));
        QCOMPARE(links[1]["status"].toInt(), 404);
        examine({"--days", "0"});
        QVERIFY(server.requests.size() > asked);
    }

    void bomsToOrder()
    {
        const QString into = "bom-order bom.xml=2 -d twice.xml -o good.xml --from good.xml";
        QCOMPARE(call(into).code, 0);
        QVERIFY(read(m_folder->path("good.xml")).contains("<quantity>7</quantity>"));
        QVERIFY(call("info good.xml").out.contains("lines: 1\n"));
        QCOMPARE(call(into + " --existing add").code, 0);
        QVERIFY(call("info good.xml").out.contains("lines: 2\n"));
        QCOMPARE(call("validate good.xml").code, 0);
        QCOMPARE(call("bom-csv bom.xml -d twice.xml -o b.csv").code, 0);
        QCOMPARE(read(m_folder->path("b.csv")), QByteArray("K\t2\n!!!!!X\t1\n!!!!!Y\t\n"));
    }

    void baskets()
    {
        const QString command = "bom-basket bom.xml=2 -d shops.xml -o out/ --firms details/makers.xml --supplier ";
        QCOMPARE(call(command + "tme").code, 0);
        QCOMPARE(read(m_folder->path("out/TME.csv")), QByteArray("T-1;4;K\r\n"));
        QCOMPARE(call(command + "Mouser").code, 0);
        QCOMPARE(read(m_folder->path("out/Mouser.csv")),
                 QByteArray("Part number,Quantity,Customer reference\r\nM-1,4,K\r\n"));
        // A broken file of details is told and left alone.
        m_folder->write("details/firm_details.xml", "<kiv_mat_firm_details>\n<details>");
        const ended broken = call(command + "tme");
        QCOMPARE(broken.code, 1);
        QVERIFY2(broken.err.contains("details/firm_details.xml:2:"), qPrintable(broken.err));
        QCOMPARE(call("firm-merge details/makers.xml A B -o merged").code, 1);
        QVERIFY(!QFile::exists(m_folder->path("merged")));
    }

    void mail()
    {
        QFile::remove(m_folder->path("_bin/zip.exe"));
        m_folder->ship({"_bin", "_config", "_e-mail", "_files"});
        const ended order = run({"mail", "good.xml"}, {"DISPLAY", "WAYLAND_DISPLAY"});
        QVERIFY2(order.code == 0, qPrintable(order.err));
        const QString message = order.out.trimmed().chopped(3) + "eml";
        QVERIFY(QTest::qWaitFor([&] { return read(message).endsWith("--\r\n"); }));
        QVERIFY(read(message).contains("filename=\"good.xml\""));
        QVERIFY(read(message).contains(".pdf"));

        const ended boms = call("mail --boms --only-write");
        QVERIFY2(boms.code == 0 && boms.err.contains("Compression complete"), qPrintable(boms.err));
        const QByteArray description = read(boms.out.trimmed());
        QVERIFY2(description.contains("[m.dab@example.com]"), description.constData());
    }

private:
    // The program finds its schemas beside itself.
    ended run(const QStringList &arguments, const QStringList &environment = {}) const
    {
        return testSupport::run(m_folder->path("kivzp-cli"), arguments,
                                QStringList({"LC_ALL=C", "TMPDIR=" + m_folder->path()}) + environment,
                                m_folder->path());
    }
    // The arguments parted by blanks.
    ended call(const QString &arguments) const { return run(arguments.split(' ', Qt::SkipEmptyParts)); }
};

KIVZP_TEST(tst_cli)
#include "tst_cli.moc"
