// Updates, worked with keys: seen, looked into, put in place, and made.
#include "scenarioFixture.h"

#include "update/updateJournal.h"
#include "update/updateMaker.h"

#include <QSettings>

namespace {

const scenario rows[] = {
    {"", "~500 #update ~100|", "title = Update; parts = 1"},
    {"", "~500 #update ~100|Escape F5", "title = Update; parts = 1"},
};

} // namespace

class tst_updateWindow : public scenarioFixture
{
    Q_OBJECT
    QString file() override { return path("_files/firms.xml"); }
    void prepare() override
    {
        scenarioFixture::prepare();
        testSupport::copyFolder(testSupport::source("_bin"), path("_bin"));
        testSupport::copyFolder(path("_files"), path("next/_files"));
        const QString firms = path("next/_files/firms.xml");
        testSupport::write(firms,
                           testSupport::read(firms).replace("</suppliers>", "<firm><name>Nowy dostawca</name></firm>"
                                                                            "</suppliers>"));
        make({{updates::firms, "7"}}, path("next"));
        configStruct config;
        QVERIFY(config.load(path("_config/kiv_mat_config.xml")));
        for (const auto &[key, value] : {std::pair(optionKey::updateAddress, path("server")),
                                         std::pair(optionKey::updateUnsigned, QString("TAK"))}) {
            auto *option = testSupport::appendTo(config.options);
            option->type = key;
            option->value1 = value;
        }
        QVERIFY(config.save(path("_config/kiv_mat_config.xml")));
    }
    std::vector<scenarioTable> tables() override { return {{nullptr, false, rows}}; }
    void make(const std::map<updates::part, QString> &releases, const QString &from)
    {
        updateMaker::job job;
        job.folder = path("server");
        job.releases = releases;
        job.dataDir = from;
        job.files = {{updates::firms, from + "/_files/firms.xml"}};
        job.description = "<p>Nowi <b>dostawcy</b></p>";
        QCOMPARE(updateMaker::make(job).fault, QString());
    }

private slots:
    // What is newer is told after the start, too.
    void newerIsTold()
    {
        work("~500");
        look("status = An update is there: Register of firms 7; log ~ A newer version is available");
    }

    void isPutInPlace()
    {
        openWindow("~500 #update ~100");
        look("title = Update; state ~ There is something newer; state ~ nobody signed it; parts = 1; parts@0,2 = 7; "
             "parts@0,4 = newer; description ~ dostawcy; focus = parts");
        const QByteArray before = testSupport::read(file());
        work("Ctrl+Return ~200 Escape");
        look("changes ~ firms.xml: 1 added, 0 changed, 0 removed; boxes ~ Put the update in place");
        QCOMPARE(testSupport::read(file()), before);
        // Nothing is left of it when nothing is ticked any more.
        work("parts@0,0 Space");
        look("changes =");
        work("Space Ctrl+Return ~200 !Put_it_in_place ~200 !No");
        look("status = The update is in place; parts@0,1 = 7; parts@0,4 = as it is here");
        QVERIFY(testSupport::read(file()).contains("Nowy dostawca"));
        QVERIFY(testSupport::read(path("kiv_info.xml")).contains("<firm_server_release>7<"));
        QVERIFY(updateJournal::stageOf(path("")) == updateJournal::stage::installed);
        work("Ctrl+W");
        look("title = closed");
    }

    // What was merged is merged again when the file was changed since.
    void filesChangeMeanwhile()
    {
        openWindow("~500 #update ~100");
        work("Ctrl+Return ~200 Escape");
        const QByteArray now = testSupport::read(file());
        testSupport::write(file(),
                           QByteArray(now).replace("</suppliers>", "<firm><name>Wlasny</name></firm></suppliers>"));
        work("Ctrl+Return ~200 !Put_it_in_place ~200 !No");
        const QByteArray saved = testSupport::read(file());
        QVERIFY(saved.contains("Wlasny") && saved.contains("Nowy dostawca"));
    }

    // What another program changed meanwhile is refused, and nothing is changed.
    void damagedPackages()
    {
        openWindow("~500 #update ~100");
        const QByteArray before = testSupport::read(file());
        testSupport::write(path("server/firms_7.zip"), "PK");
        work("Ctrl+Return ~200 Return");
        look("boxes ~ is not the file that the list of files names; changes =");
        QCOMPARE(testSupport::read(file()), before);
    }

    // An update of what is here, with the next release.
    void isMade()
    {
        QSettings().setValue("updates/folder", path("server"));
        work("#createUpdate parts@2,0 Space Alt+M ~300");
        look("status ~ The update is in ; file server/kiv_info.xml ~ <firm_server_release>8<");
        work("#createUpdate parts@2,0 Space F2 Ctrl+A '3' Return Alt+M ~300 Return");
        look("boxes ~ 3 is not newer than 8");
    }
};

KIVZP_TEST(tst_updateWindow)
#include "tst_updateWindow.moc"
