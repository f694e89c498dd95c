// The database window and the merge view, worked with hands on a small warehouse.
#include "scenarioFixture.h"

#include "data/loaders.h"
#include "database/Kiv_mat_databaseWindow.h"

#define OPEN "Ctrl+D Return|Ctrl+E materials@0,0 Right materials@0/0,0 "
#define REFUSED "Return ~100"
#define NAME "F2 Ctrl+A 'Nowy' Return"

using enum lockRule;

const scenario databaseActions[] = {
    {NAME, "#save", "status ~ Saved; saved ~ <d_name>Nowy</d_name>; saved !~ <d_name>M0", same},
    {"materials@1,0 Right", "#update 'other.xml' Return Return",
     "materials@1/0,1 = 317111-01.02-00099; saved ~ <d_price>77.00; saved !~ 317111-01.01-00002; errors ~ "
     "317111-01.02-00001",
     edits},
    {"", "#merge 'other.xml' Return", "front ~ other.xml]; focus = differences", same},
    {"", "#merge 'copy.xml' Return Escape", "boxes ~ All materials in database", same},
    {"", "#merge 'cpv.txt' Return", "errors ~ cpv.txt</b>", same},
    {"", "#versions", "front = Versions and unsaved orders", same},
    {"", "#close", "title = closed; boxes ="},
    {"", "#fullReport !Yes", "boxes ~ Do you want create ?; file _files/db_warehouse_full.html ~ M3", reads},
    {"", "#shortReport !Yes", "status ~ 4 materials written; file _files/db_warehouse_short.html ~ M3", reads},
    {"", "#edit", "status = Editing is locked"},
    {"materials@0/0,0 Shift+Down", "#fillDown", "status = Fill down; materials@0/1,0 = M0; saved !~ M1", edits},
    {"materials@0/0,1 Shift+Down", "#fillDown Escape", "boxes ~ Another material has this KTM"},
    {NAME, "#undo", "status ~ Undone: ; at = M0", guards},
    {NAME " Ctrl+Z", "#redo", "status ~ Done again: ; saved ~ <d_name>Nowy", guards},
    {"", "#copyText", "status = 1 cell copied; clipboard = M0", reads},
    {"", "#copyMaterials", "status ~ 1 material copied", reads},
    {"", "#cutMaterials", "status ~ 1 material deleted; saved !~ <d_name>M0", edits},
    {"Ctrl+X materials@1,0 Right", "#pasteMaterials", "status ~ 1 material pasted; materials@1/1,0 = M0", edits},
    {"Ctrl+Shift+C", "#pasteMaterials", "status ~ 1 of them needs a new KTM; saved ~ <d_ktm></d_ktm>", edits},
    {"", "#changeMaterials 'Nowy' Return",
     "status = 1 material changed; materials@0/0,0 = Nowy; saved ~ <d_name>Nowy; saved !~ <d_name>M0", edits},
    {"", "#deleteMaterials", "status ~ 1 material deleted; saved !~ <d_name>M0", edits},
    {"materials@1,0", "#deleteMaterials", "status ~ Only empty groups are deleted; materials = 2", guards},
    {"", "#replaceMaterial Escape", "boxes = Replace material", same},
    {"", "#addGroup 'Nowa' Return", "materials = 3; saved ~ <d_group name=\"Nowa\"", edits},
    {"", "#addGroup 'Rezystory SMD 0805' Return Escape", "boxes ~ Group already exists; materials = 2", guards},
    {"", "#addMaterial", "front = New material", guards},
    {"", "#editParameters !Yes", "front = Edit parameters [317111-01.01-00001]", guards},
    {"materials@1,0", "#editCpv '31712114-2' Return", "saved ~ SMD 0805\" cpv=\"31712114-2\">", edits},
    {"", "#editCpv 'none' Return Escape", "boxes ~ Error: CPV syntax error", guards},
    {"", "#find '00002' Return", "status = 1 of 4 materials shown; materials! ~ |M1; materials! !~ M0", same},
    {"materials@0,0 Left", "#expand", "materials! ~ M0|M1|M2; materials! ~ |M3", same},
    {"materials@0,0 Left", "!Expand", "materials! ~ M0|M1|M2; materials! ~ |M3", same},
    {"", "#collaps", "materials! !~ M0", reads},
    {"", "#columns Down Return", "materials^ = 9", reads},
    {"", "#details #details ~100", "focus = materials; details ~ 317111-01.01-00001; details ~ \u25cf GREEN",
     reads},
    // What is in no shared store, and where none is.
    {"", "#synchronize", "status = This file is not shared: put it into the shared store first", reads},
    {"", "#publish 'db' Return Escape",
     "boxes ~ Error: The shared store cannot be reached. the configuration names no shared store", reads},
    {"", "#history", "status = This file is not shared: there is no history", reads},
    {"", "#goToDetails ~300 Tab Return", "focus = details; desktop = https://www.yageo.com", reads},
    {"#goToDetails", "Escape ", "focus = materials", reads},
    {"materials@0/0,3", "#copyText", "clipboard = GREEN", reads},
    {"", "#gray", "status = 1 of 4 materials shown; materials! ~ |M1; materials! !~ M0", same},
    // Only one status at a time; the active one again shows all.
    {"#gray", "#green", "status = 1 of 4 materials shown; materials! ~ |M0; materials! !~ M1", same},
    {"#green", "#green", "status = 4 materials; materials! ~ M0|M1|M2", same},
    // What is fetched later is filtered when it comes.
    {"#blue", "#expand", "materials! ~ |M3; materials! !~ M0", same},
    {"", "#blue", "status = 1 of 4 materials shown", same},
    {"", "#violet", "status = 1 of 4 materials shown; materials! ~ |M2; materials! !~ M0", same},
    {"", "#edited", "status = 1 of 4 materials shown; materials! ~ |M2; materials! !~ M0", same},
    {"", "#findDuplicate Escape", "boxes = Information: All materials has unique KTM", reads},
    {"", "#checks", "front ~ Checks [", same},
    {"", "#findEmpty", "front ~ Checks [; errors !~ empty", same},
    {"", "#checkUrls 'links.xlsx' Return", "errors ~ [Error] http://127; file _files/links.xlsx ~ PK", reads},
    {"", "#examineLinks", "front ~ Links of materials ["},
    {"", "#parse 'stock.txt' Return Return",
     "errors ~ ABCDEF-01.01-00001</b>&nbsp;Does not exist in databases; saved ~ <d_inWarehouse>1234; saved ~ "
     "<d_averagePrice>2.00",
     edits},
    {"", "#information Escape", "boxes ~ Information: Materials count [ 4 ]", reads},
    {"", "#altiumXlsx 'a.xlsx' Return", "file _files/a.xlsx ~ PK", reads},
    {"", "#altiumSqlite 'a.sqlite' Return", "files _files/a.sqlite = a.sqlite", reads},
    {"", "#groups 'g.xlsx' Return", "status ~ g.xlsx; file _files/g.xlsx ~ PK", reads},
    {"", "#loadCpv 'cpv.txt' Return", "errors ~ CPV syntax error; saved ~ SMD 0805\" cpv=\"31712114-2\">", edits},
    {"", "#moveCpv Return", "saved ~ <d_cpv>31712114-2</d_cpv>", edits},
    {"", "#cpvIndex", "status ~ The dictionary of CPV codes is not there", reads},
    {"", "#cpvIndexWww", "desktop ~ https://ted.europa.eu", reads},
    {"", "materials@?0/0,0 #openLink", "desktop = http://127.0.0.1/a.pdf", reads},
    {"", "#-openCopy", "boxes ~ its document was not fetched", reads},
    {"", "materials@?1,0 #expandGroup", "materials! ~ M0|M1|M2; materials! ~ |M3", same},
    {"", "materials@?0,0 #collapsGroup", "materials! !~ M0", reads},
    {"", "materials@?0/0,0 #insertToBom Escape", "boxes ~ No BOM list is open", reads},
    {"", "materials@?0/0,0 #toOrder", "status ~ 1 line added; orderLines@21,11 = 317111-01.01-00001", reads},
    {"", "materials@?0/0,0 #toOrderN Ctrl+A '12' Return", "orderLines@21,5 = 12", reads},
};

const scenario mergeActions[] = {
    {"", "#open 'copy.xml' Return Escape", "boxes ~ Information: All materials in database; differences = 0"},
    // A changed one names its fields; a new one and it are marked from the start.
    {"", "#set",
     "status ~ 2 materials taken over; differences = 0; saved ~ <d_price>77.00; saved ~ 317111-01.02-00099"},
    // The price of the changed one; its description stays in the list.
    {"#markNone differences@0,0 Right differences@0/11,1 #mark", "#set",
     "status ~ 1 material; differences = 2; differences@0,2 = Description; counts = 0 of 2 differences marked; "
     "saved ~ <d_price>77.00"},
    {"#markNone", "#-set", "boxes ~ nothing is marked"},
    {"", "#mark", "counts = 1 of 2 differences marked; differences@0,2 = Description, Price"},
    {"", "#markNone", "counts = 0 of 2 differences marked"},
    {"#markNone", "#markAll", "counts = 2 of 2 differences marked"},
    // Only what the filter lets be seen is marked; what it hides is asked for.
    {"", "#filter 'PRICE ' ~100",
     "differences! = M0; counts = 2 of 2 differences marked, 1 shown, 2 marked but not shown"},
    {"#filter 'price' ~100 differences@0,0 #markNone", "#set !All_that_is_marked",
     "boxes ~ hides marks of 2 differences; status ~ 2 materials taken; differences = 1; differences@0,2 = Price"},
    {"#filter 'price' ~100", "#set !Only_what_is_shown", "differences@0,2 = Description; saved ~ <d_price>77.00"},
    {"#expand", "#showEqual", "differences! ~ |KTM|; differences@0/3,0 = Description"},
    {"#showEqual #expand", "#filter 'price' ~100", "differences! = M0|Price|Average price"},
    {"#showEqual #expand #filter 'price' ~100", "#showEqual", "differences! = M0|Price"},
    {"", "#close", "title = closed"},
    {"differences@0,0 Del", "#undo", "status ~ Undone: ; differences = 2"},
    {"differences@0,0 Del Ctrl+Z", "#redo", "status ~ Done again: ; differences = 1"},
    {"differences@0,0", "#leaveOut", "differences = 1", edits},
    {"", "#expand", "differences! ~ M0|Description|Price|"},
    {"#expand", "#collaps", "differences! !~ |Price|"},
};

// M3's description is empty, and M2 and M3 have a KTM that another database has, too.
const scenario checkActions[] = {
    {"", "#export 'c.csv' Return", "status ~ c.csv written; file _files/c.csv ~ Empty field;317111-01.02-00001;M3"},
    {"", "#again", "status ~ 1 finding; findings = 1"},
    {"", "#close", "title = closed"},
    {"findings@0,1", "#replaceMaterial Escape", "boxes ~ Replace material"},
    {"findings@0,1", "#copyRows", "status ~ 1 row; clipboard ~ 317111-01.02-00001\tM3\t"},
    {"", "findings@0,0 #goTo", "front ~ Database of material"},
    {"", "#find 'none' Return", "status ~ 0 of 1 finding; findings = 0"},
};

// What must not be stored is refused in the cell, too.
const scenario refused[] = {
    {"syntax", OPEN "materials@0/0,1 F2 Ctrl+A 'wrong' " REFUSED, "status = Ktm syntax error; title !~ *"},
    {"taken", OPEN "materials@0/0,1 F2 Ctrl+A '317111-01.02-00001' " REFUSED,
     "status ~ Another material has; title !~ *"},
    {"code", OPEN "materials@1,2 F2 Ctrl+A '317' " REFUSED, "status = CPV syntax error; title !~ *"},
    {"group", OPEN "materials@1,0 F2 Ctrl+A 'Rezystory SMD 0603' " REFUSED,
     "status = Group already exists; title !~ *"},
};

// Files dropped on the second material; % is the program's folder.
const scenario dropped[] = {
    {"database", OPEN "<%/other.xml>materials@0/1,0", "front ~ other.xml]"},
    {"listing", OPEN "<%/stock.txt>materials@0/1,0 Return",
     "boxes ~ dragging: Take stock and prices from stock.txt; saved ~ <d_inWarehouse>1234"},
    {"table", OPEN "<%/cpv.txt>materials@0/1,0",
     "status = 1 group with another CPV now; boxes ~ dragging: Take the groups' CPV codes; saved ~ SMD 0805\" cpv=\"31712114-2\">"},
    {"datasheet", OPEN "<%/../in/a.pdf>materials@0/1,0 Return",
     "boxes = dragging: Attach a.pdf to M1 | Attach a file; status = 1 file attached to M1; "
     "files _files/datasheets/* = a.pdf; at = M1; saved ~ <file type=\"FILE_DATASHEET\" "
     "name=\"_files/datasheets/a.pdf\"/>"},
    {"taken back", OPEN "<%/../in/a.pdf>materials@0/1,0 Return ~50 Ctrl+Z", "status ~ Undone: Attach; title !~ *"},
    {"opened", OPEN "<%/../in/a.pdf>materials@0/2,0 Return ~50 #openLink", "desktop ~ datasheets/a.pdf"},
    {"twice", OPEN "<%/../in/a.pdf>materials@0/1,0 Return ~50 <%/../in/a.pdf>materials@0/1,0 Return",
     "status ~ attached to this material already"},
    {"cancelled", OPEN "<%/../in/a.pdf>materials@0/1,0 Escape", "title !~ *; files _files/datasheets/* ="},
    {"on a group", OPEN "<%/../in/a.pdf>materials@0,0 Escape", "boxes ~ Error: A datasheet is dropped on; title !~ *"},
    {"order", OPEN "<%/_zp/zp_0.xml>materials@0/1,0 Escape", "boxes ~ Error: zp_0.xml is no material; title !~ *"},
    {"folder", OPEN "<%/_zp>materials@0/1,0 Escape", "boxes ~ it is a folder; title !~ *"},
    {"locked", "Ctrl+D Return|materials@0,0 Right <%/../in/a.pdf>materials@0/1,0 Escape",
     "boxes ~ dragging: Editing of the database is locked | Error: Editing; files _files/datasheets/* ="},
};

class tst_databaseWindow : public scenarioFixture
{
    Q_OBJECT

    QString file() override { return path("_files/db_warehouse.xml"); }
    Kiv_mat_databaseWindow &databaseWindow() { return mainWindow().databaseWindow(programData::warehouse); }
    static const ktmIndex &known() { return programData::instance().materials(); }

    // Two groups of three materials and one. In "other.xml" the first one has other texts, the
    // second and the last are missing, and there is a new one.
    void prepare() override
    {
        scenarioFixture::prepare();
        userState::instance().altiumDir.clear();
        kiv_mat_databaseStruct all;
        QCOMPARE(loadDatabase(file(), &all), 0);
        all.groups.resize(2);
        all.groups[0]->items.resize(3);
        all.groups[1]->items.resize(1);
        all.groups[0]->cpv = "31712114-2";
        const char *const statuses[] = {"ZIELONY", "SZARY", "FIOLETOWY", "NIEBIESKI"};
        for (int i = 0; i < 4; ++i) {
            materialStruct &material = i < 3 ? *all.groups[0]->items[i] : *all.groups[1]->items[0];
            material.d_name = QString("M%1").arg(i);
            material.information.status = statuses[i];
            material.information.edited = i == 2 ? "TAK" : "NIE";
            material.d_description = i == 3 ? "" : "text";
            for (const auto &maker : material.manufacturers.items)
                maker->files.items.resize(0);
            for (const auto &supplier : material.suppliers.items)
                supplier->files.items.resize(0);
        }
        materialStruct &first = *all.groups[0]->items[0];
        first.manufacturers.items[0]->files.append(std::make_unique<fileStruct>())->name = "http://127.0.0.1/a.pdf";
        QCOMPARE(saveXmlNoEvents(file(), &all), 0);
        QCOMPARE(saveXmlNoEvents(path("copy.xml"), &all), 0);
        first.d_price = "77.00";
        first.d_description = "other";
        all.groups[0]->items.erase(all.groups[0]->items.begin() + 1);
        all.groups[1]->items[0]->d_ktm = "317111-01.02-00099";
        QCOMPARE(saveXmlNoEvents(path("other.xml"), &all), 0);
        folder().write("stock.txt", "Towar: 317111-01.01-00001 x\nIlosc: 1 234\nWartosc: 2468,00\n"
                                    "Towar: ABCDEF-01.01-00001 y\nIlosc: 1\nWartosc: 1\n");
        folder().write("../in/a.pdf", "%PDF-1.4");
        folder().write("cpv.txt", "Rezystory SMD 0805\t31712114-2 x\nRezystory SMD 0603\t7\n");
    }
    std::vector<scenarioTable> tables() override
    {
        return {{OPEN, true, databaseActions},
                {"Ctrl+D Return|Ctrl+E|#merge 'other.xml' Return", false, mergeActions},
                {"Ctrl+D Return|#checks", false, checkActions},
                {nullptr, false, refused},
                {nullptr, false, dropped}};
    }

private slots:
    void editsReachTheIndexes()
    {
        const QString before = "317111-01.01-00001";
        openWindow(OPEN);
        work("materials@0/0,1 F2 Ctrl+A 'ABCDEF-01.01-00001' Return");
        QVERIFY(!known().find(before) && known().find("ABCDEF-01.01-00001"));
        work("#find 'ktm:ABCDEF-01.01-00001' Return ");
        QCOMPARE(databaseWindow().shownCount(), 1);
        work("Ctrl+Z #find Ctrl+A ' ' Return materials@0/0,0 Ctrl+X");
        QVERIFY(!known().find(before) && known().size() > 0);
        work("materials@1,0 Ctrl+V");
        QCOMPARE(known().find(before)->group, databaseWindow().rows().database().groups[1].get());
        work("Ctrl+Z Ctrl+Z");
        QVERIFY(known().find(before) && !databaseWindow().isModified());
        // Given up, what was deleted is there again.
        const QByteArray content = testSupport::read(file());
        work("materials@0/0,0 Del Ctrl+W !No");
        QCOMPARE(boxes(), QStringList("Asking: Save database"));
        QVERIFY(known().find(before));
        QCOMPARE(testSupport::read(file()), content);
    }

    // Of a group's materials and of those that are selected: what is found by the old texts is found by the new ones.
    void changesMany()
    {
        openWindow(OPEN);
        const auto order = [this] {
            QStringList names;
            for (const auto &group : databaseWindow().rows().database().groups)
                for (const auto &material : group->items)
                    names.append(material->d_name);
            return names.join(' ');
        };
        // "Replace", in the first field.
        work("materials@0,0 Ctrl+H Shift+Tab Shift+Tab Down Tab Home Tab '01.01-0' Tab '01.01-9' Return");
        QCOMPARE(status(), QString("3 materials changed"));
        QVERIFY(known().find("317111-01.01-90001") && !known().find("317111-01.01-00001"));
        look("materials@0/0,1 = 317111-01.01-90001");
        QVERIFY(known().find("317111-01.02-00001"));
        // A faulty pattern is told where it is typed, and Return does nothing.
        work("Ctrl+H Shift+Tab Shift+Tab Down Tab Tab '(' !isPattern Return ~50 Escape");
        QCOMPARE(status(), QString("3 materials changed"));
        // "Move", with one row left out.
        work("materials@0/0,0 Shift+Down Shift+Down Ctrl+H Shift+Tab Shift+Tab End Up Up Tab 'SMD 0805' ~300 Return "
             "~300 Tab Down Space Return");
        QCOMPARE(status(), QString("2 materials changed"));
        QCOMPARE(order(), QString("M1 M3 M0 M2"));
        QCOMPARE(known().find("317111-01.01-90003")->group->name, QString("Rezystory SMD 0805"));
        work("Ctrl+Z");
        QCOMPARE(order(), QString("M0 M1 M2 M3"));
        look("materials@0/0,0 = M0; materials@0/2,0 = M2; materials@1/0,0 = M3");
        // "Compose": the list below the line takes Tab and Return.
        work("materials@0/0,0 Shift+Down Ctrl+H Shift+Tab Shift+Tab Down Down Down Tab Tab '{kt' Tab '/{nam' Return "
             "'!' ~300 Return");
        QCOMPARE(status(), QString("2 materials changed"));
        look("materials@0/0,0 = 317111-01.01-90001/M0!");
        work("Ctrl+Z ");
        work("Ctrl+Y Ctrl+Z Ctrl+Z");
        QVERIFY(known().find("317111-01.01-00001") && !databaseWindow().isModified());
        QCOMPARE(boxes().size(), 4);
    }

    // What is unticked stays, and lines that lose their material are named before and listed after.
    void updateDeletesWhatIsTicked()
    {
        openWindow(OPEN);
        work("materials@?0/1,0 #toOrder materials@1,0 Right materials@?1/0,0 #toOrder");
        const QString bom = path("_files/boms/modul_stm32f103.xml");
        testSupport::write(bom, testSupport::read(bom).replace("317121-03.01-00001", "317111-01.01-00002"));
        // Changed, new, and the two that are absent.
        work("#update 'other.xml' Return Down Down Down Space Return Return");
        const QString asked = boxes().join(' ');
        QVERIFY2(asked.contains("Update") && asked.contains("modul_stm32f103.xml") && asked.contains("zp_0.xml"),
                 qPrintable(asked));
        QVERIFY(!window().windowTitle().endsWith('*'));
        work("#update 'other.xml' Return Down Down Down Space Return !Delete_them_all_the_same");
        work("Ctrl+S");
        kiv_mat_databaseStruct saved;
        QCOMPARE(loadDatabase(file(), &saved), 0);
        QCOMPARE(saved.materialCount(), 4);
        const QByteArray content = testSupport::read(file());
        QVERIFY(!content.contains("317111-01.01-00002") && content.contains("317111-01.02-00001"));
        QVERIFY(content.contains("317111-01.02-00099") && content.contains("<d_price>77.00"));
        QVERIFY(saved.update.startsWith(QDate::currentDate().toString("yyyy.MM.dd")));
        // In the list of the deleted ones and in that of their uses.
        QCOMPARE(seen().listed.count("317111-01.01-00002"), 3);
        QCOMPARE(seen().listed.count("317111-01.02-00001"), 0);
        QVERIFY(seen().listed.contains("The open order or BOM lists use deleted materials:"));
    }

    // What a BOM list uses and may not be ordered is found, replaced from there, and found no more.
    void statusOfListedMaterials()
    {
        const QString bom = path("_files/boms/modul_stm32f103.xml");
        testSupport::write(bom, testSupport::read(bom).replace("317121-03.01-00001", "317111-01.01-00002"));
        openWindow("Ctrl+D Return|#checks");
        look(
            "findings = 2; findings@0,0 = Not to be ordered; findings@0,1 = 317111-01.01-00002; findings@0,4 = Status; "
            "findings@0,5 ~ BOM lists use it: modul_stm32f103");
        work("findings@?0,1 #replaceMaterial '317111-01.01-00001' Return Return ~200");
        look("findings = 1; findings@0,0 = Empty field; file _files/boms/modul_stm32f103.xml ~ 317111-01.01-00001");
        QVERIFY(!testSupport::read(bom).contains("317111-01.01-00002"));
        // A list that another program changes is looked at when the table comes to the front.
        QMainWindow &checks = window();
        testSupport::write(bom, testSupport::read(bom).replace("317111-01.01-00001", "317111-01.01-00002"));
        turnTo(mainWindow());
        turnTo(checks);
        work("~200");
        look("findings = 2");
    }

    // A finding leads to its cell, also to one that is not seen; put right, it vanishes until that is undone.
    void checksFollowTheDatabase()
    {
        openWindow("Ctrl+D Return|Ctrl+E #find 'M0' Return");
        QMainWindow &database = window();
        openWindow("#checks");
        QMainWindow &checks = window();
        const auto *table = checks.findChild<QTreeView *>("findings");
        QCOMPARE(table->model()->rowCount(), 1);
        work("findings@0,1 Return");
        QCOMPARE(QApplication::activeWindow(), &database);
        turnTo(database);
        look("at = ; status = 4 materials");
        work("F2 'text' Return ~50");
        QCOMPARE(table->model()->rowCount(), 0);
        work("Ctrl+Z ~50");
        QCOMPARE(table->model()->rowCount(), 1);
        // Both materials of a KTM or part are told of, and no more once one of them has another.
        work("materials@0,0 Right materials@0/0,0 Ctrl+Shift+C Ctrl+V ~50");
        turnTo(checks);
        look("findings:0 ~ Duplicate; findings:0 ~ Empty field");
        const int both = table->model()->rowCount();
        // A column that is hidden is shown for its cell.
        turnTo(database);
        look("materials^ = 10");
        turnTo(checks);
        work("!findingKinds Down Return ~50");
        look("findings = 2; findings:4 = Manufacturers");
        work("findings@1,0");
        QCOMPARE(QApplication::activeWindow(), &checks);
        turnTo(database);
        look("materials^ = 11");
        work("Ctrl+Z ~50");
        QCOMPARE(table->model()->rowCount(), 0);
        QVERIFY(both > 3);
        // Given up, the database is checked as its file has it; closed, the checks close.
        work("materials@0/0,0 Del ~50 Ctrl+W !No");
        boxes();
        QVERIFY(!checks.isVisible());
    }

    void mergeIsOneStep()
    {
        openWindow("Ctrl+D Return");
        QMainWindow &database = window();
        openWindow("#merge 'other.xml' Return|#-set");
        QMainWindow &merge = window();
        QVERIFY(boxes().join(' ').contains("editing of the database is locked"));
        turnTo(database);
        work("Ctrl+E");
        turnTo(merge);
        work("Ctrl+S");
        QVERIFY(known().find("317111-01.02-00099") && known().find("317111-01.01-00002"));
        turnTo(database);
        work("#undo ~600");
        QVERIFY(!databaseWindow().isModified());
        // The list follows.
        turnTo(merge);
        look("differences = 2");
    }
};

KIVZP_TEST(tst_databaseWindow)
#include "tst_databaseWindow.moc"
