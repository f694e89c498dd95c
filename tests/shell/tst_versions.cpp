// Earlier versions and unsaved orders: listed, compared, opened and restored, with hands.
#include "scenarioFixture.h"

#define EDIT(cell) cell " F2 Ctrl+A 'Żuk' Return "
#define VERSIONS "Ctrl+Shift+H|~400 "

const scenario rows[] = {
    {"listed and compared", EDIT("orderLines@0,1") "Ctrl+S|" VERSIONS,
     "title = Versions and unsaved orders; versions = 1; versions@0,1 = zp_0.xml; versions@0,3 = 21; differences = 1; "
     "differences@0,0 = changed; differences@0,5 = Żuk; status = 1 difference from the file now"},
    {"with the version after it",
     EDIT("orderLines@0,1") "Ctrl+S " EDIT("orderLines@1,1") "Ctrl+S|" VERSIONS "versions@1,0 Ctrl+T ~400",
     "versions = 2; differences = 1; differences@0,5 = Żuk; status ~ from the version of "},
    {"only what is looked for", EDIT("orderLines@0,1") "Ctrl+S|" VERSIONS "!fileFilter Ctrl+A 'firms' ~400",
     "versions! =; status = No version is kept; differences = 0"},
    {"gone with the program", VERSIONS "|<Ctrl+Q ~100", "front =; title = closed"},
    {"an unsaved order", EDIT("orderLines@0,1") "Ctrl+S|" VERSIONS "Ctrl+O ~200",
     "orderLines@0,1 = STM32F103C8T6; title = Order *"},
    {"an order restored", EDIT("orderLines@0,1") "Ctrl+S #deleteAll !Yes !attentions 'Żuk' Ctrl+S|" VERSIONS "Ctrl+R",
     "orderLines = 21; orderLines@0,1 = Żuk; attentions !~ Żuk"},
    {"and undone", EDIT("orderLines@0,1") EDIT("orderOptions@0,1") "Ctrl+S|" VERSIONS "Ctrl+R|<Ctrl+Z",
     "orderLines@0,1 = Żuk; orderOptions@0,1 = Żuk; title = Order"},
    {"what was not saved is kept",
     EDIT("orderLines@0,1") "Ctrl+S " EDIT("orderLines@1,1") "|" VERSIONS "Ctrl+R|<" VERSIONS,
     "versions = 2; differences = 1; differences@0,4 = Żuk"},
    {"a database", "Ctrl+D Return|Ctrl+E " EDIT("materials@0,0") "Ctrl+S|" VERSIONS "Ctrl+R|<Ctrl+D Return|~50",
     "materials@0,0 !~ Żuk; title ~ *; status ~ Restored: db_warehouse.xml"},
    {"undone",
     "Ctrl+D Return|Ctrl+E " EDIT("materials@0,0") "Ctrl+S|" VERSIONS "Ctrl+R|<Ctrl+D Return|Ctrl+Z Ctrl+Y Ctrl+Z",
     "materials@0,0 = Żuk; title !~ *"},
    {"firms", "#firm|" EDIT("manufacturers@0,1") "Ctrl+S|" VERSIONS "Ctrl+R|<#firm|~50",
     "manufacturers@0,1 = Abracon LLC; title ~ *"},
    {"details of firms",
     "#firm|manufacturers@0,0 F4 'one' !OK F4 'two' !OK|" VERSIONS
     "!fileFilter Ctrl+A Del ~400 versions@0,0 Ctrl+R !Restore_them",
     "versions@0,1 = firm_details.xml; boxes ~ details of all firms; file _files/firm_details.xml ~ >one<"},
    {"a BOM list",
     "Ctrl+B|boms@0/0/0,0 Return|Ctrl+E " EDIT("lines@0,2") "Ctrl+S|" VERSIONS
                                                            "Ctrl+R|<Ctrl+B|boms@0/0/0,0 Return|Ctrl+S",
     "file _files/boms/modul_stm32f103.xml !~ Żuk"},
    {"the set of BOM lists", "Ctrl+B|" EDIT("boms@0,0") "#save|" VERSIONS "Ctrl+R|<Ctrl+B|#save",
     "file _files/boms.xml !~ Żuk; boms@0/0/0,0 ~ zasilacz"},
};

class tst_versions : public scenarioFixture
{
    Q_OBJECT
    std::vector<scenarioTable> tables() override { return {{nullptr, false, rows}}; }

private slots:
    void unsavedChanges_data()
    {
        QTest::addColumn<QString>("edit");
        QTest::addColumn<QString>("goThere");
        QTest::addColumn<QString>("seen");
        const QString database = "Ctrl+D Return|Ctrl+E ";
        QTest::addRow("database") << database + EDIT("materials@0,0") << "~50"
                                  << "materials@0,0 = Żuk";
        QTest::addRow("material not set yet")
            << database + "materials@0,0 Right materials@0/0,0|F4 !Yes|" EDIT("material@0/2,1") << "materials@0,0 Right"
            << "materials@0/0,0 = Żuk";
        QTest::addRow("firms") << "#firm|" EDIT("manufacturers@0,1") << "~50"
                               << "manufacturers@0,1 = Żuk";
    }
    // Listed by the next run, compared, and put back, after which they are the window's own.
    void unsavedChanges()
    {
        QFETCH(QString, edit);
        QFETCH(QString, goThere);
        QFETCH(QString, seen);
        steps(edit);
        endAndStart();
        steps(VERSIONS "!fileFilter Ctrl+A Del ~400");
        look("versions = 1; versions@0,2 = unsaved changes; differences = 1; differences@0,4 = Żuk");
        steps("versions@0,0 Ctrl+R");
        steps(goThere);
        look(seen + "; title ~ *");
        steps("Ctrl+Z");
        look("title !~ *");
        steps("<" VERSIONS "!fileFilter Ctrl+A Del");
        look("versions = 1; versions@0,2 = version");
    }
};

KIVZP_TEST(tst_versions)
#include "tst_versions.moc"
