// The database window and the merge view, worked with hands on a small warehouse.
#include "pressedActions.h"

#include "data/loaders.h"
#include "database/Kiv_mat_databaseWindow.h"

const std::vector<pressedAction> databaseActions = {
    {"save", "F2 Ctrl+A 'Nowy' Return #save", "Saved|+<d_name>Nowy</d_name>|-<d_name>M0"},
    {"update", "#update 'other.xml' Return Return", "-<d_ktm>317111-01.01-00002|+<d_price>77.00|317111-01.02-00001",
     true},
    {"merge", "#merge 'other.xml' Return", "shown Merge ["},
    {"merge, no database", "#merge 'cpv.txt' Return", "cpv.txt</b>"},
    {"close", "#close", "closed"},
    {"fullReport", "#fullReport !Yes", "Do you want create ?|4 materials written|new _files/db_warehouse_full.html"},
    {"shortReport", "#shortReport !Yes", "4 materials written|new _files/db_warehouse_short.html"},
    {"edit", "#edit", "Editing is "},
    {"undo", "F2 Ctrl+A 'Nowy' Return Up #undo", "Undone: |at M0", true},
    {"redo", "F2 Ctrl+A 'Nowy' Return Ctrl+Z #redo", "Done again: |+<d_name>Nowy", true},
    {"copyText", "#copyText", "1 cell copied|clipboard M0"},
    {"copyMaterials", "#copyMaterials", "1 material copied"},
    {"cutMaterials", "#cutMaterials", "1 material deleted|-<d_name>M0", true},
    {"cutMaterials, moved", "#cutMaterials materials@1,0 Ctrl+V", "1 material pasted|below M1 M2 M3 M0", true},
    {"pasteMaterials", "Ctrl+Shift+C #pasteMaterials",
     "1 of them needs a new KTM|+<d_name>M0|+<d_ktm></d_ktm>|below M0 M1 M2 M0", true},
    {"fillDown", "materials@0/0,0 Shift+Down #fillDown", "Fill down|below M0 M0 M2|+<d_name>M0|-<d_name>M1", true},
    {"fillDown, unique", "materials@0/0,1 Shift+Down #fillDown Escape", "Error: Another material has this KTM", true},
    {"deleteMaterials", "#deleteMaterials", "1 material deleted|-<d_name>M0", true},
    {"deleteMaterials, group", "materials@1,0 #deleteMaterials", "Only empty groups are deleted", true},
    {"addGroup", "#addGroup 'Nowa' Return", "rows 3|+<d_group name=\"Nowa\"", true},
    {"addGroup, known", "#addGroup 'Rezystory SMD 0805' Return Escape", "Warning: Group already exists|rows 2", true},
    {"addMaterial", "#addMaterial", "shown New material", true},
    {"editParameters", "#editParameters !Yes",
     "Do you want to edit material ?|shown Edit parameters [317111-01.01-00001]", true},
    {"editCpv", "materials@1,0 #editCpv '31712114-2' Return",
     "+<d_group name=\"Rezystory SMD 0805\" cpv=\"31712114-2\">", true},
    {"editCpv, wrong", "#editCpv 'none' Return Escape", "Error: CPV syntax error", true},
    {"find", "#find '00002' Return", "1 of 4 materials shown|below M1\n"},
    {"expand", "materials@0,0 Left #expand", "open 2|below M0 M1 M2 M3"},
    {"expand2", "materials@0,0 Left !Expand", "open 2"},
    {"collaps", "#collaps", "open 0"},
    {"columns", "#columns Down Return", "columns 9"},
    {"gray", "#gray", "1 of 4 materials shown|below M1\n"},
    // Only one status at a time; the active one again shows all.
    {"green", "#gray #green", "1 of 4 materials shown|below M0\n"},
    {"green, again", "#green #green", "4 materials\n|below M0 M1 M2\n"},
    // What is fetched later is filtered when it comes.
    {"blue", "#blue #expand", "open 2|below M3\n"},
    {"violet", "#violet", "1 of 4 materials shown|below M2\n"},
    {"edited", "#edited", "1 of 4 materials shown|below M2\n"},
    {"findDuplicate", "#findDuplicate Escape", "Information: All materials has unique KTM"},
    {"findEmpty", "#findEmpty", "Materials with empty fields:|317111-01.02-00001"},
    {"checkUrls", "#checkUrls 'links.xlsx' Return", "[Error] http://127.0.0.1/a.pdf<br>|new _files/links.xlsx"},
    {"parse", "#parse 'stock.txt' Return Return",
     "ABCDEF-01.01-00001</b>&nbsp;Does not exist in databases|"
     "+<d_inWarehouse>1234|+<d_averagePrice>2.00",
     true},
    {"information", "#information Escape", "Information: Materials count [ 4 ]"},
    {"altiumXlsx", "#altiumXlsx 'a.xlsx' Return", "new _files/a.xlsx"},
    {"altiumSqlite", "#altiumSqlite 'a.sqlite' Return", "new _files/a.sqlite"},
    {"groups", "#groups 'g.xlsx' Return", "g.xlsx|new _files/g.xlsx"},
    {"loadCpv", "#loadCpv 'cpv.txt' Return",
     "CPV syntax error|+<d_group name=\"Rezystory SMD 0805\" cpv=\"31712114-2\">", true},
    {"moveCpv", "#moveCpv Return", "+<d_cpv>31712114-2</d_cpv>", true},
    {"cpvIndex", "#cpvIndex", "The dictionary of CPV codes is not there"},
    {"cpvIndexWww", "#cpvIndexWww", "opened https://ted.europa.eu"},
    {"openLink", "materials@?0/0,0 #openLink", "opened http://127.0.0.1/a.pdf"},
    {"expandGroup", "materials@?1,0 #expandGroup", "open 2"},
    {"collapsGroup", "materials@?0,0 #collapsGroup", "open 0"},
    {"insertToBom", "materials@?0/0,0 #insertToBom Escape", "No BOM list is open"},
    {"toOrder", "materials@?0/0,0 #toOrder", "1 line added|last 1 of 317111-01.01-00001"},
    {"toOrderN", "materials@?0/0,0 #toOrderN Ctrl+A '12' Return", "1 line added|last 12 of 317111-01.01-00001"},
};

const std::vector<pressedAction> mergeActions = {
    {"open", "#open 'copy.xml' Return Escape", "Information: All materials in database|rows 0"},
    {"set", "#set", "2 materials taken over|rows 0|+<d_price>77.00|+<d_desc"},
    // A field of the changed one; the others stay in the list.
    {"set, a field", "differences@0,0 Right differences@0/11,1 #set", "1 material taken over|rows 2|+<d_price>77.00"},
    {"close", "#close", "closed"},
    {"undo", "differences@0,0 Del #undo", "Undone: |rows 2"},
    {"redo", "differences@0,0 Del Ctrl+Z #redo", "Done again: |rows 1"},
    {"leaveOut", "differences@0,0 #leaveOut", "rows 1"},
    {"expand", "#expand", "open 2"},
    {"collaps", "#expand #collaps", "open 0"},
};

class tst_databaseWindow : public actionFixture
{
    Q_OBJECT

    static constexpr const char *opened = "Ctrl+D Return|Ctrl+E materials@0,0 Right materials@0/0,0";
    QString file() { return path("_files/db_warehouse.xml"); }
    Kiv_mat_databaseWindow &databaseWindow() { return mainWindow().databaseWindow(programData::warehouse); }
    static const ktmIndex &known() { return programData::instance().materials(); }

    // Two groups of three materials and one. In "other.xml" the first one has other texts, the
    // second and the last are missing, and there is a new one.
    void prepare() override
    {
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
        folder().write("cpv.txt", "Rezystory SMD 0805\t31712114-2 x\nRezystory SMD 0603\t7\n");
    }
    QString look() override
    {
        const auto &lines = mainWindow().document().order().orderItems.items;
        return actionFixture::look()
               + QString("\norder: %1 lines, last %2 of %3\n")
                     .arg(lines.size())
                     .arg(lines.back()->quantity, lines.back()->ktm);
    }
    void saveAll() override
    {
        if (databaseWindow().isVisible() && databaseWindow().isModified())
            hands{databaseWindow()}("Ctrl+S Escape");
    }
    std::vector<pressedWindow> windows() override
    {
        return {
            {"database", opened, "Ctrl+E", databaseActions},
            {"merge", "Ctrl+D Return|Ctrl+E|#merge 'other.xml' Return", "", mergeActions},
        };
    }

private slots:
    // What must not be stored is refused in the cell, too.
    void refused_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("box");
        const char *const rows[][2] = {
            {"materials@0/0,1 F2 Ctrl+A 'wrong'", "Ktm syntax error"},
            {"materials@0/0,1 F2 Ctrl+A '317111-01.02-00001'", "Another material has this KTM"},
            {"materials@1,2 F2 Ctrl+A '317'", "CPV syntax error"},
            {"materials@1,0 F2 Ctrl+A 'Rezystory SMD 0603'", "Group already exists"}};
        for (const auto &[steps, box] : rows)
            QTest::newRow(box) << steps << QString("Error: ") + box;
    }
    void refused()
    {
        QFETCH(QString, steps);
        openWindow(opened);
        work(steps + " Return ~100 Escape");
        QTEST(boxes().join('|'), "box");
        QVERIFY(!databaseWindow().isModified());
    }

    void editsReachTheIndexes()
    {
        const QString before = "317111-01.01-00001";
        openWindow(opened);
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

    // What is unticked stays, and the order's lines that lose their material are listed.
    void updateDeletesWhatIsTicked()
    {
        openWindow(opened);
        work("materials@?0/1,0 #toOrder materials@1,0 Right materials@?1/0,0 #toOrder");
        // Changed, new, and the two that are absent.
        work("#update 'other.xml' Return Down Down Down Space Return");
        QVERIFY(boxes().contains("Update"));
        work("Ctrl+S");
        kiv_mat_databaseStruct saved;
        QCOMPARE(loadDatabase(file(), &saved), 0);
        QCOMPARE(saved.materialCount(), 4);
        const QByteArray content = testSupport::read(file());
        QVERIFY(!content.contains("317111-01.01-00002") && content.contains("317111-01.02-00001"));
        QVERIFY(content.contains("317111-01.02-00099") && content.contains("<d_price>77.00"));
        QVERIFY(saved.update.startsWith(QDate::currentDate().toString("yyyy.MM.dd")));
        // In the list of the deleted ones and in that of their uses.
        QCOMPARE(seen().listed.count("317111-01.01-00002"), 2);
        QCOMPARE(seen().listed.count("317111-01.02-00001"), 0);
        QVERIFY(seen().listed.contains("The open order uses deleted materials:"));
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
        work("#undo");
        QVERIFY(!databaseWindow().isModified());
    }
};

KIVZP_TEST(tst_databaseWindow)
#include "tst_databaseWindow.moc"
