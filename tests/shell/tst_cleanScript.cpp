// The clean-up after an update: what it removes, what it refuses, and what it says.
#include "testSupport.h"

#include "data/kiv_UpdateStruct.h"
#include "data/loaders.h"
#include "shell/cleanScript.h"

#include <QDir>

class tst_cleanScript : public QObject
{
    Q_OBJECT
private slots:
    void commands_data();
    void commands();
    void scriptRunsOnceInFileOrder();
};

void tst_cleanScript::commands_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("word"); // empty: no line
    QTest::addColumn<QString>("gone"); // what must be gone afterwards
    const auto row = [](const char *tag, const char *name, const char *from, const char *word,
                        const char *gone = "") {
        QTest::newRow(tag) << QString(name) << QString(from) << QString(word) << QString(gone);
    };
    row("file", "remove_file", "old/a.txt", "Ok", "program/old/a.txt");
    row("no file", "remove_file", "old/none", "Not exists");
    row("file that is a folder", "remove_file", "old", "Not exists");
    row("file by no name", "remove_file", "", "Not exists");
    row("file outside", "remove_file", "../outside/kept", "Error");
    row("absolute file outside", "remove_file", "@/outside/kept", "Error");
    row("file behind a link", "remove_file", "link/kept", "Error");
    row("link to a file", "remove_file", "filelink", "Ok", "program/filelink");
    row("temporary file", "remove_file", "@/temporary/t", "Ok", "temporary/t");
    row("folder", "remove_directory", "old", "Ok", "program/old");
    row("folder with a slash", "remove_directory", "old/", "Ok", "program/old");
    row("no folder", "remove_directory", "none", "Not exists");
    row("folder by no name", "remove_directory", "", "Not exists");
    row("the program itself", "remove_directory", ".", "Error");
    row("the program by its path", "remove_directory", "@/program", "Error");
    row("above the program", "remove_directory", "..", "Error");
    row("above by a way around", "remove_directory", "old/../..", "Error");
    row("folder outside", "remove_directory", "../outside", "Error");
    row("link to a folder", "remove_directory", "link", "Error");
    row("the temporary folder itself", "remove_directory", "@/temporary", "Error");
    row("temporary folder", "remove_directory", "@/temporary/d", "Ok", "temporary/d");
    row("help", "open_help", "old/a.txt", "Ok");
    row("missing help", "open_help", "old/none", "Error");
    row("help by no name", "open_help", "", "Error");
    row("configuration", "load_prev_config", "old/a.txt", "Ok");
    row("configuration by no name", "load_prev_config", "", "Error");
    row("another command", "copy_file", "old/a.txt", "");
}

void tst_cleanScript::commands()
{
    QFETCH(QString, name);
    QFETCH(QString, from);
    QFETCH(QString, word);
    QFETCH(QString, gone);
    const testSupport::programFolder folder;
    for (const char *file : {"program/old/a.txt", "outside/kept", "temporary/t", "temporary/d/x"})
        folder.write(file, "x");
    QFile::link(folder.path("outside"), folder.path("program/link"));
    QFile::link(folder.path("outside/kept"), folder.path("program/filelink"));
    from.replace("@", folder.path());
    kiv_UpdateStruct script;
    script.commands.push_back(std::make_unique<commandStruct>());
    script.commands.back()->name = name;
    script.commands.back()->from = from;
    QCOMPARE(saveXml(folder.path("program/cleanScript.xml"), &script), 0);

    testSupport::recordingPrompts shown;
    QString opened;
    cleanScript::run({folder.path("program"), folder.path("temporary"),
                      [&](const QString &url) { return !(opened = url).isEmpty(); },
                      [](const QString &path) { return QFile::exists(path); }});
    const QString heading = "Clean after update<br>";
    QVERIFY(shown.logged.startsWith(heading));
    const QString line = shown.logged.mid(heading.size());
    QVERIFY2(word.isEmpty() ? line.isEmpty() : line.endsWith("</b> " + word + " <br>"),
             qPrintable(line));
    if (name == "open_help" && word == "Ok")
        QCOMPARE(opened, "file:///" + folder.path("program/old/a.txt"));
    for (const char *file : {"program/old/a.txt", "outside/kept", "temporary/t", "temporary/d/x"})
        QCOMPARE(QFile::exists(folder.path(file)),
                 gone.isEmpty() || !QString(file).startsWith(gone));
    QVERIFY(gone.isEmpty() || !QFileInfo(folder.path(gone)).isSymLink());
}

void tst_cleanScript::scriptRunsOnceInFileOrder()
{
    const testSupport::programFolder folder;
    folder.write("a", "");
    folder.write(
        "cleanScript.xml",
        testSupport::document("kiv_update", "KIV_UPDATE_1", "kiv_update.xsd",
                              "<command><name>remove_file</name><from>none</from></command>"
                              "<command><name>remove_file</name><from>a</from></command>"));
    testSupport::recordingPrompts shown;
    const cleanScript::environment environment{folder.path(), "/none", {}, {}};
    cleanScript::run(environment);
    QVERIFY(shown.logged.indexOf("Not exists") < shown.logged.indexOf("Ok"));
    QVERIFY(!QFile::exists(folder.path("a")));
    QVERIFY(!QFile::exists(folder.path("cleanScript.xml")));
    shown.logged.clear();
    cleanScript::run(environment);
    QCOMPARE(shown.logged, QString());
}

KIVZP_TEST(tst_cleanScript)
#include "tst_cleanScript.moc"
