// The windows of BOM lists, and what they put into the order.
#include "scenarioFixture.h"

#include "bom/basketsDialog.h"
#include "bom/needsDialog.h"
#include "bom/replaceMaterialDialog.h"
#include "data/loaders.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#define SETS "boms@0/0/0,1 F2 Ctrl+A '2' Return "
#define NAME "boms@0,0 F2 Ctrl+A 'Żuk' Return "
#define CELL "lines@0,2 F2 Ctrl+A 'Żuk' Return "
#define KNOWN "317121-03.01-00001"
#define LIST "_files/boms/zasilacz_liniowy_5v.xml"
#define FIRST "Ctrl+B|boms@0/0/0,0 Return|Ctrl+E "
#define OTHER "Ctrl+B|boms@2/0/0,0 Return|Ctrl+E "
#define INSERT "Ctrl+D Return|materials@0,0 Right materials@?0/0,0 #insertToBom "
#define REGULATOR "317121-03.03-00001"
#define SERIAL "_files/boms/konwerter_rs232_usb.xml"
#define REPLACE "#replaceMaterial '" KNOWN "' Return '" REGULATOR "' Return "
#define PREAMP "_files/boms/przedwzmacniacz_audio.xml"
#define BASKETS "Ctrl+B|" SETS "Ctrl+S !baskets "
#define TYPED "Ctrl+B|boms@0/0/0,1 F2 Ctrl+A '4' "
#define NEEDS                                                                                                          \
    "Ctrl+B|boms@0/0/0,1 F2 Ctrl+A '3' Return boms@1/1/0,1 F2 Ctrl+A '1' Return boms@2/0/0,1 F2 Ctrl+A '1' "           \
    "Return|<#appendBom "

using enum lockRule;
using bomOperations::bomSets;

const scenario setActions[] = {
    {SETS, "#set Escape", "boxes = Materials for the order"},
    {"", "#set", "status = no list is built: all numbers of sets are 0"},
    {SETS, "#clear !Yes", "boms@0/0/0,1 = 0", edits},
    {SETS, "#clear !No", "boms@0/0/0,1 = 2"},
    {"", "#allQuantities '7' Return", "boms@0/0/0,1 = 7; boms@2/0/0,1 = 7", edits},
    {"boms@1,0", "#allQuantities '7' Return", "boms@1/0/0,1 = 7; boms@1/1/1,1 = 7; boms@2/0/0,1 = 0", edits},
    {SETS, "#allQuantities '7' Escape", "boms@0/0/0,1 = 2"},
    {"", "boms@?1/1,0 #setAll '7' Return", "boms@1/0/0,1 = 0; boms@1/1/0,1 = 7", edits},
    {"boms@2/0/0,0", "#report Ctrl+A '%/r.html' Return", "file r.html ~ !!!!!NONE-1; status = Saved as %/r.html"},
    {SETS, "#report Ctrl+A '%/r.pdf' Return", "file r.pdf ~ PDF-1"},
    {SETS, "#report Ctrl+A '%/p' !fileTypeCombo Down Return !fileNameEdit Return",
     "file p.pdf ~ PDF-1; files p.html ="},
    {"boms@0/0/0,0 +boms@2/0/0,0", "#compare", "front = Differences of two lists; summary ~ \u2192"},
    {"boms@0/0/0,0", "#compare '%/" LIST "' Return", "status = The lists have the same parts"},
    {"", "#replaceMaterial Escape", "boxes = Replace material"},
    {"", "#import '%/_files/boms.xml' Return Return", "boxes ~ is XML, but no list of parts"},
    {NAME, "#save", "disk ~ Żuk; title = Bill of materials"},
    {"", "#versions", "front = Versions and unsaved orders"},
    {"", "#close", "title = closed"},
    {NAME, "#undo", "boms@0,0 = Zasilanie; title = Bill of materials"},
    {NAME "Ctrl+Z", "#redo", "boms@0,0 = Żuk; title = Bill of materials *"},
    {"boms@1/0/0,0", "#addFile '%/" LIST "' Return", "boms@1/0/1,2 = boms/zasilacz_liniowy_5v.xml", edits},
    {"boms@0/1,0", "#addFile '%/far.xml' Return", "boms@0/1/0,2 = %/far.xml", edits},
    {"", "#addFile '%/_files/firms.xml' Return Return", "errors ~ firms.xml</b>; title = Bill of materials"},
    {"boms@1/0/0,0", "#addGroup 'Żuk' Return", "boms@1/2,0 = Żuk", edits},
    {SETS "boms@0/0/0,1", "#copyCells", "clipboard = 2"},
    {SETS "boms@0/0/0,1 Ctrl+C boms@1/0/0,1", "#pasteCells", "boms@1/0/0,1 = 2", edits},
    {SETS "boms@0/0/0,1 +boms@1/0/0,1", "#fillDown", "boms@1/0/0,1 = 2", edits},
    {"boms@0/0/0,0 +boms@0/1,0", "#delete", "boms@0/0/0,0 =; boms@0/1,0 =", edits},
    {"boms@0,0", "#delete Return", "boxes = Information: Only empty folders can be deleted"},
    {"#collaps", "#expand boms@1/1/0,0", "status ~ konwerter"},
    {"", "#collaps boms@0,0 Down #allQuantities '7' Return", "boms@1/1/0,1 = 7; boms@0/0/0,1 = 0"},
    {"", "#reserve", "status = no list is built: all numbers of sets are 0"},
    {SETS, "#reserve Escape", "files _files/reservations.xml ="},
    {SETS, "#reserve !go",
     "file _files/reservations.xml ~ <line ktm=\"" KNOWN "\"; status = Stock reserved for 1 board"},
    {SETS, "#built Escape", "boms@0/0/0,1 = 2"},
    {SETS, "#built !go|<Ctrl+B|", "boms@0/0/0,1 = 0"},
    {SETS "#reserve !go", "#reservations Del !No Escape", "file _files/reservations.xml ~ <line "},
    {SETS "#reserve !go", "#reservations Del !Yes Escape", "file _files/reservations.xml !~ <line "},
    {"", "boms@?0/0/0,0 #open", "desktop = file://%/" LIST},
    {"", "boms@?0/0/0,0 #bom", "front = Bill of materials [%/" LIST "] Editing locked"},
    {"", "boms@?2/0/0,0 #csv Ctrl+A '%/o.csv' Return", "file o.csv = !!!!!NONE-1\t2,5\n"},
    {"", "boms@?2/0/0,0 #csv Ctrl+A '%/_zp/zp_0.xml/o.csv' Return Return", "boxes ~ cannot be written"},
    // The converter is not there.
    {"", "boms@?2/0/0,0 #doc Return", "boxes ~ which makes documents; files o.doc ="},
};

const scenario listActions[] = {
    {CELL, "#save", "file " LIST " ~ Żuk; status = Saved", same},
    {"", "#versions", "front = Versions and unsaved orders"},
    {"", "#close", "title = closed"},
    {"Ctrl+E", "#edit", "status = Editing is allowed; title = Bill of materials [%/" LIST "]"},
    {CELL, "#undo", "lines@0,2 = R1", guards},
    {CELL "Ctrl+Z", "#redo", "lines@0,2 = Żuk", guards},
    {"lines@0,2", "lines@?0,6 #copyText", "clipboard = " KNOWN, reads},
    {CELL "lines@0,2 Ctrl+C lines@1,2", "#pasteCells", "lines@1,2 = Żuk", edits},
    {"lines@0,2 Ctrl+C lines@0,6", "#pasteLines", "lines = 3; lines@1,6 = !!!!!R1; lines@2,6 = " KNOWN, edits},
    {CELL "lines@0,2 +lines@1,2", "#fillDown", "lines@1,2 = Żuk", edits},
    {"lines@0,2", "#moveDown", "lines@0,2 = R1; status = 1 line moved", edits},
    {"lines@1,2", "#moveUp", "lines@0,2 = R1; status = 1 line moved", edits},
    {"lines@0,2 +lines@1,2", "#deleteLines", "lines = 0", edits},
    {"lines@0,2", "#pickMaterial Ctrl+A 'ams1117' Return", "lines@0,1 = AMS1117-3.3; lines@0,2 = R1; lines@0,3 = 0,75",
     edits},
    {"lines@0,2", "#replaceMaterial Escape", "boxes = Replace material", reads},
    {"", "#find 'R9' ~100", "counts = 2 lines, 0 of them unknown, 0 found", reads},
    {"", "#sum Return", "boxes ~ Information: ", reads},
};

// A material of the database, and two that it does not have.
const scenario importActions[] = {
    {"", "#open '%/_files/boms.xml' Return Return", "boxes ~ is XML, but no list of parts; lines = 3"},
    {"lines@1,0 #leaveOut", "#open '%/other.csv' Return Return",
     "boxes ~ not written yet; lines = 3; lines@1,0 = left out"},
    {"lines@1,0 #leaveOut", "#open '%/other.csv' Return !Give_it_up", "lines = 1; title ~ other.csv"},
    {"", "#set Ctrl+A '%/_files/boms/in.xml' Return",
     "file _files/boms/in.xml ~ <d_ktm>" KNOWN
     "</d_ktm>; file _files/boms/in.xml ~ 999999-99.99-00001; title = closed; "
     "files _files/*.csv ="},
    {"lines@1,0 'STM32F103C8' Return", "#set Ctrl+A '%/_files/boms/in.xml' Return",
     "file _files/boms/in.xml ~ <d_designator>U1, U2</d_designator>; file _files/bom_decisions.csv ~ " KNOWN},
    {"", "#report Ctrl+A '%/r.csv' Return", "file r.csv ~ NOSUCH-1; status ~ r.csv"},
    {"", "#decisions", "status = Nothing was decided yet"},
    {"lines@1,0 #leaveOut", "#undo", "lines@1,0 = unknown"},
    {"lines@1,0 #leaveOut Ctrl+Z", "#redo", "lines@1,0 = left out"},
    {"lines@1,0 'STM32F103C8'", "#take", "lines@1,0 = matched; lines@1,4 = " KNOWN},
    {"lines@0,0", "#unmatch", "lines@0,0 = choose of 1"},
    {"lines@1,0", "#leaveOut", "lines@1,0 = left out"},
    {"lines@0,0", "#next", "at = unknown"},
    {"lines@1,0", "#matchAgain", "lines@1,0 = unknown; lines@0,0 = matched"},
    {"lines@1,0 #leaveOut", "#matchAgain", "lines@1,0 = left out"},
    {"lines@0,0 #unmatch", "#matchAgain", "lines@0,0 = choose of 1"},
    {"lines@1,0", "#newMaterial Return ~200 Escape", "front = Database of material [%/_files/db_warehouse.xml]"},
    {"", "#close", "title = closed"},
    {"lines@1,0 #leaveOut", "#close Return", "boxes ~ not written yet; title ~ in.csv"},
};

const scenario scenarios[] = {
    // --- The set ---
    {"a number being typed counts", TYPED "Ctrl+S !go|<", "orderLines@0,5 = 31"},
    {"for the menu, too", TYPED "#set !go|<", "orderLines@0,5 = 31"},
    {"for the button, too", TYPED "!set !go|<", "orderLines@0,5 = 31"},
    {"sets are no change", "Ctrl+B|" SETS "Ctrl+W|<Ctrl+B|", "boxes =; boms@0/0/0,1 = 2"},
    {"sets stay", "Ctrl+B|" SETS NAME "Ctrl+W !No|<Ctrl+B|", "boms@0/0/0,1 = 2; boms@0,0 = Zasilanie; disk !~ Żuk"},
    {"sorted", "Ctrl+B|" SETS "boms@^0", "status ~ Sorted by"},
    {"sorting ends the history", "Ctrl+B|" SETS "boms@^0 #-undo #-redo", "boxes ~ redo: "},
    {"appended without sets", "#appendBom", "front = Bill of materials"},
    {"a changed list is saved first",
     "Ctrl+B|" SETS "boms@0/0/0,0 Return|Ctrl+E lines@0,3 F2 Ctrl+A '9' Return|<#appendBom !Yes !go",
     "boxes ~ Asking: Save the changed BOM list; orderLines@0,5 = 44.5"},

    // --- Into the order: two lists of one material are one need; an unknown one is told and not ordered ---
    {"raised", NEEDS "!go", "orderLines = 21; orderLines@0,5 = 32.5; errors ~ NONE-1", edits},
    {"by Return", NEEDS "Return", "orderLines = 21; orderLines@0,5 = 32.5", edits},
    {"added", NEEDS "!add !go", "orderLines = 22; orderLines@0,5 = 25; errors ~ NONE-1", edits},
    {"skipped", NEEDS "!skip !go", "errors ~ NONE-1", reads},
    {"only what is short", NEEDS "!short !go", "orderLines = 21; orderLines@0,5 = 31.5; errors ~ NONE-1", edits},
    {"cancelled", NEEDS "Escape", "errors !~ NONE-1", reads},
    {"topped up", NEEDS "!topUp !go", "orderLines = 21; orderLines@0,5 = 25; errors ~ NONE-1", reads},
    {"none ticked", NEEDS "!none !go", "orderLines = 21; orderLines@0,5 = 25; errors ~ NONE-1", reads},
    {"all unticked by Space", NEEDS "needs@0,0 Ctrl+A Space !go", "orderLines = 21; orderLines@0,5 = 25", reads},
    {"one unticked", NEEDS "needs@0,0 Space !go", "orderLines = 21; orderLines@0,5 = 25", reads},
    {"copied", NEEDS "!copy Escape", "clipboard ~ " KNOWN "; clipboard ~ NONE-1", reads},
    {"saved", NEEDS "!saveAs Ctrl+A '%/n.csv' Return Escape", "file n.csv ~ " KNOWN, reads},

    // --- Another material everywhere: two lists, of which the first one has two lines of it, and the order ---
    {"replaced on disk and in the order", "Ctrl+B|" REPLACE "Return",
     "status ~ " KNOWN " replaced by " REGULATOR ": 6 line; status ~ , lists and orders: 4; file " LIST " !~ " KNOWN
     "; file " SERIAL " ~ <d_ktm>" REGULATOR "</d_ktm>; file " SERIAL " ~ <d_name>L7805CV; file " SERIAL
     " ~ <d_quantity>1.5; "
     "orderLines@0,1 = L7805CV; orderLines@0,5 = 25; orderLines@0,11 = " REGULATOR "; disk ~ zasilacz"},
    {"one step of the order", "Ctrl+B|" REPLACE "Return|<Ctrl+Z",
     "orderLines@0,11 = " KNOWN "; file " LIST " !~ " KNOWN},
    {"what is unticked stays", "Ctrl+B|" REPLACE "Shift+Tab Space Return",
     "status ~ 5 line; status ~ lists and orders: 3; orderLines@0,11 = " KNOWN "; file " LIST " !~ " KNOWN},
    {"none ticked, nothing is replaced", "Ctrl+B|" REPLACE "!none Return Escape",
     "file " LIST " ~ " KNOWN "; orderLines@0,11 = " KNOWN},
    {"by a search", "Ctrl+B|#replaceMaterial '" KNOWN "' Return 'l7805' Return ~100 Return Return",
     "boxes ~ Pick material; file " LIST " ~ " REGULATOR},
    {"an unknown one of a list's line",
     "Ctrl+B|boms@2/0/0,0 Return|lines@0,2 #replaceMaterial '" REGULATOR "' Return Return",
     "title ~ *; lines@0,6 = " REGULATOR "; lines@0,1 = L7805CV; lines@0,3 = 2,5; file " PREAMP " ~ NONE-1"},
    {"the cursor stays",
     "Ctrl+B|boms@0/0/0,0 Return|Ctrl+E lines@1,2 F2 Ctrl+A 'T9' Return lines@0,2 #replaceMaterial '" REGULATOR
     "' Return Return",
     "at = R1; lines@1,2 = T9; lines@0,6 = " REGULATOR},
    {"a locked order stays", "Ctrl+E Ctrl+B|" REPLACE "Return", "status ~ 5 line; orderLines@0,11 = " KNOWN},
    {"cancelled", "Ctrl+B|" REPLACE "Escape", "file " LIST " ~ " KNOWN "; orderLines@0,11 = " KNOWN},
    {"from the database", "Ctrl+D Return|#find '" KNOWN "' Return ~100 #replaceMaterial '" REGULATOR "' Return Return",
     "status ~ replaced by " REGULATOR ": 6 line; file " LIST " ~ " REGULATOR},

    // --- A list ---
    {"unknown", "Ctrl+B|boms@2/0/0,0 Return", "lines@0,6 = !!!!!NONE-1; lines@0,1 = own"},
    {"another material", OTHER "lines@0,6 F2 Ctrl+A '" KNOWN "' Return Ctrl+S",
     "lines@0,6 = " KNOWN "; lines@0,1 = STM32F103C8T6; file " PREAMP " ~ <d_name>own"},
    {"and back", OTHER "lines@0,6 F2 Ctrl+A '" KNOWN "' Return Ctrl+Z",
     "lines@0,6 = !!!!!NONE-1; lines@0,1 = own; title !~ *"},
    {"the mark is not stored", OTHER "lines@0,6 F2 Ctrl+A '!!!!!NONE-2' Return Ctrl+S",
     "lines@0,6 = !!!!!NONE-2; file " PREAMP " ~ <d_ktm>NONE-2<"},
    {"typed and closed", FIRST "lines@0,2 F2 Ctrl+A 'Żuk' Ctrl+W !Yes", "title = closed; file " LIST " ~ Żuk"},
    {"kept open", FIRST CELL "Ctrl+W !Cancel", "lines@0,2 = Żuk"},

    {"what a search hides is not deleted",
     "Ctrl+B|boms@0/0/0,0 Return|Ctrl+E lines@1,2 F2 Ctrl+A 'T9' Return lines@0,2 +lines@1,2 Ctrl+F 't9' ~100 "
     "#deleteLines",
     "lines = 1; lines@0,2 = R1; counts = 1 line, 0 of them unknown, 0 found"},
    {"one material for one line", "Ctrl+B|boms@0/0/0,0 Return|Ctrl+E lines@0,2 +lines@1,2 #-pickMaterial",
     "boxes ~ : several lines are selected"},
    {"unknown ones found", "Ctrl+B|boms@2/0/0,0 Return|Ctrl+F '!!!!!' ~100",
     "counts = 1 line, 1 of them unknown, 1 found"},

    // --- Baskets ---
    {"copied", BASKETS "Alt+C ~150 Escape Escape",
     "clipboard = Part number\tQuantity\tCustomer reference\nSTM32F103C8T6\t3\t" KNOWN "\n; orderLines = 21"},
    {"what is not ticked", "Ctrl+B|" SETS "Ctrl+S Alt+N ~150 !baskets Return Escape", "boxes ~ nothing to be bought"},
    {"one file", BASKETS "Alt+S ~150 Ctrl+A '%/one' Return Escape Escape",
     "file one.csv = Part number,Quantity,Customer reference\r\nSTM32F103C8T6,3," KNOWN "\r\n"},
    {"as the firm wants it", BASKETS "Tab Alt+O ~150 Return Alt+S ~150 Ctrl+A '%/one' Return Escape Escape",
     "file one.txt = \tSTM32F103C8T6\t3\tR1\r\n"},
    {"the line's key", BASKETS "Tab Return ~150 Return Alt+C ~150 Escape Escape",
     "clipboard = \tSTM32F103C8T6\t3\tR1\n; boxes ~ Other supplier"},
    {"all files", BASKETS "Alt+A ~150 Ctrl+A '%/_config' Return Escape Escape",
     "file _config/Digi-Key.csv ~ STM32F103C8T6,3,"},
    {"not over what is there", BASKETS "Alt+A ~150 Ctrl+A '%/_zp' Return Return Escape Escape",
     "boxes ~ has these files already: Digi-Key.csv; file _zp/Digi-Key.csv = mine"},
    {"but when told to", BASKETS "Alt+A ~150 Ctrl+A '%/_zp' Return Shift+Tab Return Escape Escape",
     "file _zp/Digi-Key.csv ~ STM32F103C8T6,3,"},

    // --- From the database ---
    {"no list is open", INSERT "Return", "boxes ~ No BOM list is open"},
    {"the list is locked", "Ctrl+B|boms@0/0/0,0 Return|<" INSERT "Return",
     "boxes ~ is locked. Allow its editing first."},
};

class tst_bomWindows : public scenarioFixture
{
    Q_OBJECT

    void write(const char *name, const QByteArray &ktm, const QByteArray &quantity)
    {
        const QByteArray material = "<material><d_ktm>" + ktm + "</d_ktm><d_name>own</d_name>" + "<d_quantity>"
                                    + quantity + "</d_quantity>" + "<d_designator>R1</d_designator></material>";
        folder().write(
            name, testSupport::document("kiv_mat_bom", "KIV_MAT_BOM_1", "kiv_mat.xsd",
                                        "<update>1</update>" + material + (ktm == KNOWN ? material : QByteArray())));
    }
    QString file() override { return path("_files/boms.xml"); }
    // The first line of the order counts without a unit, and one of its material is in stock.
    void prepare() override
    {
        scenarioFixture::prepare();
        write(LIST, KNOWN, "0,75");
        write("_files/boms/konwerter_rs232_usb.xml", KNOWN, "1.5");
        write("_files/boms/przedwzmacniacz_audio.xml", "NONE-1", "2,5");
        write("far.xml", "NONE-1", "1");
        folder().write("_zp/Digi-Key.csv", "mine");
        folder().write("_files/firm_details.xml",
                       testSupport::document("kiv_mat_firm_details", "KIV_MAT_FIRM_DETAILS_1",
                                             "kiv_mat_firm_details.xsd",
                                             "<details><name>Farnell</name><separator>tab</separator>"
                                             "<captions>NIE</captions><basket><column kind=\"empty\"/>"
                                             "<column kind=\"part_number\"/><column kind=\"quantity\"/>"
                                             "<column kind=\"designators\"/></basket></details>"));
        testSupport::write(path("in.csv"), "Designator,Quantity,Value,MPN\nU1,1,,STM32F103C8T6\n"
                                           "U2,1,,NOSUCH-1\nU3,2,,NOSUCH-2\n");
        testSupport::write(path("other.csv"), "Designator,Quantity,Value,MPN\nU1,1,,STM32F103C8T6\n");
        QByteArray order = testSupport::read(path("_zp/zp_0.xml"));
        order.replace(order.indexOf("<unit>pcs."), 10, "<unit>");
        testSupport::write(path("_zp/zp_0.xml"), order);
        QByteArray database = testSupport::read(path("_files/db_warehouse.xml"));
        const int stock = database.indexOf("<d_inWarehouse>6<", database.indexOf(KNOWN));
        database.replace(stock, 17, "<d_inWarehouse>1<");
        testSupport::write(path("_files/db_warehouse.xml"), database);
    }
    std::vector<scenarioTable> tables() override
    {
        return {{"Ctrl+B", false, setActions},
                {"Ctrl+B|boms@0/0/0,0 Return|Ctrl+E", true, listActions},
                {"Ctrl+B|#import '%/in.csv' Return", false, importActions},
                {nullptr, false, scenarios}};
    }

private slots:
    void widthsOfAList()
    {
        steps("Ctrl+B|boms@0/0/0,0 Return");
        const auto *header = window().findChild<QHeaderView *>("linesHeader");
        QString widths;
        for (int column = 0; column < header->count(); ++column)
            widths += QString::number(header->sectionSize(column)) + ' ';
        QCOMPARE(widths, QString("50 320 150 80 80 80 150 80 80 200 80 80 250 "));
        // "Price [ PLN ]" and "Ave. price [ PLN ]" in two lines.
        QVERIFY(header->height() > 2 * header->fontMetrics().height());
    }

    void insertFromTheDatabase()
    {
        steps("Ctrl+B|boms@0/0/0,0 Return");
        QMainWindow &list = window();
        steps("Ctrl+E lines@0,2|<Ctrl+D Return|materials@0,0 Right materials@?0/0,0 #insertToBom");
        hands inList(list);
        const auto *lines = list.findChild<QTreeView *>("lines")->model();
        QCOMPARE(lines->rowCount(), 3);
        // Below the line that was selected.
        QVERIFY(lines->index(1, 6).data() != lines->index(2, 6).data());
        inList("Ctrl+Z");
        QCOMPARE(lines->rowCount(), 2);
        inList("Ctrl+Y Ctrl+S");
        const auto &first = programData::instance().database(programData::warehouse).groups[0];
        QVERIFY(testSupport::read(path(LIST)).contains(first->items[0]->d_ktm.toUtf8()));
    }

    void emptySetTakesAFile()
    {
        testSupport::write(path("_files/boms.xml"),
                           testSupport::document("kiv_mat_boms", "KIV_MAT_BOMS_1", "kiv_mat_boms.xsd",
                                                 "<update>1</update><server_release>1</server_release>"));
        restart("");
        steps("Ctrl+B|#addFile '%/" LIST "' Return #save");
        look("boms = 1; disk ~ boms/zasilacz_liniowy_5v.xml; boms@0/0/0,1 = 0");
    }

    // Lists in windows and the order are changed there, as one step each; when a file cannot be changed nothing is.
    void replacedInWindowsToo()
    {
        steps("Ctrl+B|boms@0/0/0,0 Return");
        QMainWindow &list = window();
        const QString lock = folder().write("_files/boms/.konwerter_rs232_usb.xml.lock", "4242\nKivZP\nelsewhere\n");
        const QByteArray onDisk = testSupport::read(path(LIST)), other = testSupport::read(path(SERIAL));
        steps("<Ctrl+B|" REPLACE "Return Return Escape");
        look("boxes ~ konwerter_rs232_usb.xml: it is open in KivZP, elsewhere, 4242; orderLines@0,11 = " KNOWN);
        turnTo(list);
        look("lines@0,6 = " KNOWN "; title ~ Editing locked");
        QCOMPARE(testSupport::read(path(SERIAL)), other);
        QVERIFY(QFile::remove(lock));
        steps("<Ctrl+B|" REPLACE "Return");
        look("status ~ 6 line; status ~ lists and orders: 4; orderLines@0,11 = " REGULATOR);
        QVERIFY(testSupport::read(path(SERIAL)).contains(REGULATOR));
        QCOMPARE(QDir(path("backup")).entryList({"konwerter*"}).size(), 1);
        turnTo(list);
        look("lines@0,6 = " REGULATOR "; lines@1,6 = " REGULATOR "; lines@0,2 = R1; lines@0,3 = 0,75; title ~ *");
        QCOMPARE(testSupport::read(path(LIST)), onDisk);
        work("Ctrl+Z");
        look("lines@0,6 = " KNOWN "; lines@1,6 = " KNOWN "; title !~ *");
        work("Ctrl+Y Ctrl+S");
        look("file " LIST " ~ L7805CV; file " LIST " !~ " KNOWN);
    }

    // What the dialog tells before anything is done.
    void replacementIsShown()
    {
        testSupport::write(path("_files/boms/przedwzmacniacz_audio.xml"), "broken");
        programData &data = programData::instance();
        QStringList paths{path("_zp/zp_0.xml")};
        paths += filesOf(data.boms(), data.boms().filePath);
        const auto documents = materialReplacement::readFiles(paths);
        replaceMaterialDialog dialog(data, *documents, nullptr);
        const auto *changes = dialog.findChild<QTreeWidget *>("changes");
        const auto *summary = dialog.findChild<QLabel *>("summary");
        const auto *go = dialog.findChild<QPushButton *>("go");
        dialog.setMaterials(KNOWN, {});
        QVERIFY(!go->isEnabled() && go->toolTip().contains("no new material"));
        dialog.setMaterials(KNOWN, "312241-04.01-00021");
        QVERIFY(go->isEnabled());
        QStringList told;
        for (int row = 0; row < changes->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *item = changes->topLevelItem(row);
            told.append(item->text(0) + (item->data(0, Qt::CheckStateRole).isNull() ? " -" : " +"));
            if (item->text(3).contains("several lines"))
                told.last() += " twice";
            for (int line = 0; line < item->childCount(); ++line)
                told.append(item->child(line)->text(1) + ' ' + item->child(line)->text(2));
        }
        QCOMPARE(told.join('|'), QString("zp_0.xml +|25 312-00012026|zasilacz_liniowy_5v.xml + twice|0,75 pcs. R1|"
                                         "0,75 pcs. R1|modul_stm32f103.xml +|1 pcs. U1|konwerter_rs232_usb.xml + twice|"
                                         "1.5 pcs. R1|1.5 pcs. R1|przedwzmacniacz_audio.xml -"));
        QVERIFY2(summary->text().contains("1 cannot be changed") && summary->text().contains("(GRAY)"),
                 qPrintable(summary->text()));
        QCOMPARE(dialog.chosen(), (std::vector<int>{0, 1, 2, 3}));
        dialog.setLeftOut({paths[2]});
        QCOMPARE(dialog.chosen(), (std::vector<int>{0, 1, 3}));
    }

    // Half of what is built would be ordered unnoticed.
    void unreadableListOrdersNothing()
    {
        steps("Ctrl+B|" SETS "boms@2/0/0,1 F2 Ctrl+A '1' Return");
        QFile::remove(path(LIST));
        work("Ctrl+S");
        look("boxes =; errors ~ zasilacz_liniowy_5v.xml</b>; status ~ nothing was done");
    }

    // What was reserved for a board goes when that is built; both are noted when the database is saved, and not when
    // the step was taken back or given up.
    void builtBoards()
    {
        const QString reservations = path("_files/reservations.xml");
        const auto stock = [] { return programData::instance().materials().find(KNOWN)->material->d_inWarehouse; };
        steps("Ctrl+B|" SETS "#reserve !go");
        QVERIFY(testSupport::read(reservations).contains("sets=\"2\""));
        steps("#built !go");
        look("title ~ db_warehouse.xml]; title ~ *; status ~ zasilacz_liniowy_5v, 2 sets");
        QCOMPARE(stock(), QString("0"));
        const QByteArray reserved = testSupport::read(reservations);
        QVERIFY2(reserved.contains("sets=\"2\"") && !reserved.contains("after=\"0\""), reserved);
        steps("Ctrl+Z");
        QCOMPARE(stock(), QString("1"));
        steps("Ctrl+Y Ctrl+W !No");
        QCOMPARE(stock(), QString("1"));
        QCOMPARE(testSupport::read(reservations), reserved);
        steps("<Ctrl+B|" SETS "#built !go");
        steps("Ctrl+S");
        const QByteArray saved = testSupport::read(reservations);
        QVERIFY2(saved.contains("before=\"1\" after=\"0\"") && saved.count("<board") == 1, saved);
        QVERIFY(testSupport::read(path("_files/db_warehouse.xml")).contains("<d_inWarehouse>0<"));
    }

    // What cannot be noted keeps the window modified until it is, and is there again after the program was killed.
    void builtBoardsLeft_data()
    {
        const testSupport::rows<QString> row;
        row("the record is spoilt", "Ctrl+S Return");
        row("killed before saving", "");
    }
    void builtBoardsLeft()
    {
        const auto [before] = testSupport::fetch<QString>();
        const QString reservations = path("_files/reservations.xml");
        steps("Ctrl+B|" SETS "#reserve !go");
        const QByteArray reserved = testSupport::read(reservations);
        steps("#built !go");
        testSupport::write(reservations, "<spoilt");
        work(before);
        look(before.isEmpty() ? "title ~ *" : "title ~ *; boxes ~ cannot be noted");
        restart("Return");
        boxes();
        testSupport::write(reservations, reserved);
        for (QMainWindow *shown : shownWindows())
            if (shown != &mainWindow())
                turnTo(*shown);
        look("title ~ db_warehouse.xml] *");
        work("Ctrl+S");
        look("title !~ *");
        const QByteArray saved = testSupport::read(reservations);
        QVERIFY2(saved.contains("before=\"1\" after=\"0\"") && saved.count("<board ") == 1, saved);
        QVERIFY(testSupport::read(path("_files/db_warehouse.xml")).contains("<d_inWarehouse>0<"));
    }

    // The left side of the baskets, the right one of a supplier, and what is said of both.
    void basketsTables()
    {
        materialStruct known;
        known.d_price = "2";
        for (const char *name : {"TME", "Mouser"}) {
            auto *supplier = testSupport::appendTo(known.suppliers);
            supplier->name = name;
            supplier->partNo = QString(name) + "-1";
        }
        const std::vector<supplierBasket::item> items{{"K", "part", &known, decimal::read("3"), "3", "R1"},
                                                      {"X", "none", nullptr, decimal::read("4"), "4", ""}};
        firmDetailsStruct form;
        form.discount = "50";
        basketsDialog dialog(
            items, [&form](const QString &) -> const firmDetailsStruct & { return form; }, {}, nullptr);
        const auto texts = [&dialog](const char *name) {
            QStringList all;
            const auto *table = dialog.findChild<QTreeWidget *>(name);
            for (int row = 0; row < table->topLevelItemCount(); ++row)
                for (int column = 0; column < table->columnCount(); ++column)
                    all.append(table->topLevelItem(row)->text(column));
            return all.join('|');
        };
        QCOMPARE(texts("suppliers"), QString("TME|1|50 %|3.00|no supplier|1|50 %|0.00"));
        QCOMPARE(texts("basketLines"), QString("part|K|TME-1|3||3.00|Mouser|"));
        const QString summary = dialog.findChild<QLabel *>("summary")->text();
        QVERIFY2(summary.startsWith("1 supplier") && summary.endsWith(", 1 without a supplier"), qPrintable(summary));
        QTest::keyClick(dialog.findChild<QTreeWidget *>("suppliers"), Qt::Key_Down);
        QCOMPARE(texts("basketLines"), QString("none|X||4||||in no database"));
        QVERIFY(!dialog.findChild<QPushButton *>("other")->isEnabled());
    }

    void needsTable()
    {
        kiv_mat_bomStruct bom;
        for (const char *quantity : {"3", "many"}) {
            bom.materials.push_back(std::make_unique<materialStruct>());
            bom.materials.back()->d_ktm = "NONE-1";
            bom.materials.back()->d_quantity = quantity;
        }
        const std::vector<bomSets> lists{{&bom, 2}};
        const ktmIndex &materials = programData::instance().materials();
        const auto of = bomOperations::demandOf(lists, materials);
        const kiv_mat_zpStruct order;
        needsDialog dialog(of, order, {}, nullptr);
        const auto *table = dialog.findChild<QTreeWidget *>("needs");
        QStringList texts;
        for (int row = 0; row < table->topLevelItemCount(); ++row)
            for (int column = 0; column < table->columnCount(); ++column)
                texts.append(table->topLevelItem(row)->text(column));
        QCOMPARE(texts.join('|'), QString("NONE-1||6||?|||6|||||||||"
                                          "NONE-1||many|||||||||||||"));
    }
};

KIVZP_TEST(tst_bomWindows)
#include "tst_bomWindows.moc"
