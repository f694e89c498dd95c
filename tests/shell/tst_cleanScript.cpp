// The clean-up after an update: what it removes, what it refuses, and what it says.
#include "testSupport.h"

#include "data/kiv_UpdateStruct.h"
#include "shell/cleanScript.h"

using namespace testSupport;

class tst_cleanScript : public folderTest
{
    Q_OBJECT
private slots:
    void commands_data()
    {
        const rows<QString, QString, QString, QString> row;
        row("file", "remove_file", "old/a.txt", "Ok", "program/old/a.txt");
        row("no file", "remove_file", "old/none", "Not exists", "");
        row("file that is a folder", "remove_file", "old", "Not exists", "");
        row("file by no name", "remove_file", "", "Not exists", "");
        row("file outside", "remove_file", "../outside/kept", "Error", "");
        row("absolute file outside", "remove_file", "@/outside/kept", "Error", "");
        row("file behind a link", "remove_file", "link/kept", "Error", "");
        row("link to a file", "remove_file", "filelink", "Ok", "program/filelink");
        row("temporary file", "remove_file", "@/temporary/t", "Ok", "temporary/t");
        row("folder", "remove_directory", "old", "Ok", "program/old");
        row("folder with a slash", "remove_directory", "old/", "Ok", "program/old");
        row("no folder", "remove_directory", "none", "Not exists", "");
        row("folder by no name", "remove_directory", "", "Not exists", "");
        row("the program itself", "remove_directory", ".", "Error", "");
        row("the program by its path", "remove_directory", "@/program", "Error", "");
        row("above the program", "remove_directory", "..", "Error", "");
        row("above by a way around", "remove_directory", "old/../..", "Error", "");
        row("folder outside", "remove_directory", "../outside", "Error", "");
        row("link to a folder", "remove_directory", "link", "Error", "");
        row("the temporary folder itself", "remove_directory", "@/temporary", "Error", "");
        row("temporary folder", "remove_directory", "@/temporary/d", "Ok", "temporary/d");
        row("help", "open_help", "old/a.txt", "Ok", "");
        row("missing help", "open_help", "old/none", "Error", "");
        row("help by no name", "open_help", "", "Error", "");
        row("configuration", "load_prev_config", "old/a.txt", "Ok", "");
        row("configuration by no name", "load_prev_config", "", "Error", "");
        row("another command", "copy_file", "old/a.txt", "", "");
    }

    void commands()
    {
        auto [name, from, word, gone] = fetch<QString, QString, QString, QString>();
        for (const char *file : {"program/old/a.txt", "outside/kept", "temporary/t", "temporary/d/x"})
            m_folder->write(file, "x");
        QFile::link(m_folder->path("outside"), m_folder->path("program/link"));
        QFile::link(m_folder->path("outside/kept"), m_folder->path("program/filelink"));
        from.replace("@", m_folder->path());
        kiv_UpdateStruct script;
        script.commands.push_back(std::make_unique<commandStruct>());
        script.commands.back()->name = name;
        script.commands.back()->from = from;
        QCOMPARE(saveXml(m_folder->path("program/cleanScript.xml"), &script), 0);

        QString opened;
        cleanScript::run({m_folder->path("program"), m_folder->path("temporary"),
                          [&](const QString &url) { return !(opened = url).isEmpty(); },
                          [](const QString &path) { return QFile::exists(path); }});
        const QString heading = "Clean after update<br>";
        QVERIFY(m_shown->logged.startsWith(heading));
        const QString line = m_shown->logged.mid(heading.size());
        QVERIFY2(word.isEmpty() ? line.isEmpty() : line.endsWith("</b> " + word + " <br>"), qPrintable(line));
        if (name == "open_help" && word == "Ok")
            QCOMPARE(opened, "file:///" + m_folder->path("program/old/a.txt"));
        for (const char *file : {"program/old/a.txt", "outside/kept", "temporary/t", "temporary/d/x"})
            QCOMPARE(QFile::exists(m_folder->path(file)), gone.isEmpty() || !QString(file).startsWith(gone));
        QVERIFY(gone.isEmpty() || !QFileInfo(m_folder->path(gone)).isSymLink());
    }

    void scriptRunsOnceInFileOrder()
    {
        m_folder->write("a", "");
        m_folder->write("cleanScript.xml", document("kiv_update", "KIV_UPDATE_1", "kiv_update.xsd",
                                                    "<command><name>remove_file</name><from>none</from></command>"
                                                    "<command><name>remove_file</name><from>a</from></command>"));
        const cleanScript::environment environment{m_folder->path(), "/none", {}, {}};
        cleanScript::run(environment);
        // With the tags: the folder's random name may hold the words.
        const int missing = m_shown->logged.indexOf("</b> Not exists ");
        QVERIFY(missing >= 0 && missing < m_shown->logged.indexOf("</b> Ok "));
        QVERIFY(!QFile::exists(m_folder->path("a")));
        QVERIFY(!QFile::exists(m_folder->path("cleanScript.xml")));
        m_shown->logged.clear();
        cleanScript::run(environment);
        QCOMPARE(m_shown->logged, QString());
    }
};

KIVZP_TEST(tst_cleanScript)
#include "tst_cleanScript.moc"
