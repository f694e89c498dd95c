// What a script may do, and what becomes of files that users changed too.
#include "update/updatePlan.h"

#include "testSupport.h"
#include "update/updateMerge.h"
#include "util/fileLock.h"

using namespace testSupport;
using namespace updates;

class tst_updatePlan : public folderTest
{
    Q_OBJECT
    kiv_UpdateStruct m_script;
    QString m_scratch;

    QString root() { return m_folder->path("root"); }
    // "name from to; name from to"
    void commands(const QString &text)
    {
        m_script.commands.clear();
        for (const QString &one : text.split("; ", Qt::SkipEmptyParts)) {
            m_script.commands.push_back(std::make_unique<commandStruct>());
            commandStruct &command = *m_script.commands.back();
            command.name = one.section(' ', 0, 0);
            command.from = one.section(' ', 1, 1);
            command.to = one.section(' ', 2);
        }
    }
    plan planned(const QString &text)
    {
        commands(text);
        planMeans with;
        with.root = root();
        with.scratch = m_scratch;
        with.unwanted = {"unwanted.zip"};
        with.fetch = [this](const QString &link, const QString &target) {
            const QString path = m_folder->path("server/" + link);
            return QFile::copy(path, target) ? QString() : "no " + link;
        };
        return planOf(m_script, with);
    }
    QString changesOf(const plan &of)
    {
        QStringList all;
        for (const auto &one : of.changes)
            all.append(one.place + '=' + (one.source.isEmpty() ? "-" : read(one.source)) + (one.goesBack ? "" : "*"));
        return all.join(' ');
    }
    void zip(const QString &name, const QStringList &files)
    {
        QProcess process;
        process.setWorkingDirectory(m_folder->path("packed"));
        process.start("zip", QStringList{"-q", "-y", m_folder->path("server/" + name)} + files);
        QVERIFY2(process.waitForFinished() && process.exitCode() == 0, process.readAllStandardError());
    }

private slots:
    void init() override
    {
        folderTest::init();
        m_folder->ship({"_bin"});
        m_folder->write("root/KivZP", "old");
        m_folder->write("root/lib/a.txt", "a");
        m_folder->write("root/lib/deep/b.txt", "b");
        m_folder->write("root/_files/own.txt", "own");
        m_folder->write("outside.txt", "outside");
        m_folder->write("server/new.txt", "new");
        m_folder->write("packed/KivZP", "packed");
        m_folder->write("packed/lib/c.txt", "c");
        QFile::link(m_folder->path("outside.txt"), m_folder->path("root/out.txt"));
        QFile::link(m_folder->path(), m_folder->path("root/up"));
        QFile::link(m_folder->path("root/lib"), m_folder->path("root/near"));
        m_scratch = m_folder->path("root/update/1");
        QDir().mkpath(m_scratch + "/new");
    }

    void scripts_data()
    {
        const rows<QString> row;
        row("download_file new.txt lib/n.txt", "lib/n.txt=new");
        row("download_file new.txt {temp}/n; copy_file {temp}/n lib/x; copy_file lib/x lib/y", "lib/x=new lib/y=new");
        row("copy_file lib/a.txt lib/x; remove_file lib/a.txt", "lib/a.txt=- lib/x=a");
        row("remove_file lib/a.txt; copy_file lib/deep/b.txt lib/a.txt", "lib/a.txt=b");
        row("remove_file none.txt; remove_directory none", "");
        row("remove_directory lib", "lib/a.txt=- lib/deep/b.txt=-");
        row("copy_file lib/a.txt lib/deep/n; remove_directory lib/deep", "lib/deep/b.txt=-");
        row("download_file p.zip {temp}/p.zip; extract_zip {temp}/p.zip ; close_and_run_exe KivZP",
            "lib/c.txt=c KivZP=packed");
        row("download_file p.zip {temp}/p.zip; extract_zip {temp}/p.zip lib\\deep",
            "lib/deep/KivZP=packed lib/deep/lib/c.txt=c");
        row("download_file unwanted.zip {temp}/u.zip; extract_zip {temp}/u.zip lib; copy_file {temp}/u.zip x", "");
        row("download_file new.txt _files/own.txt", "_files/own.txt=new*");
        row("copy_file lib/a.txt near/x", "near/x=a");
    }
    void scripts()
    {
        const auto [changes] = fetch<QString>();
        zip("p.zip", {"KivZP", "lib/c.txt"});
        const plan made = planned(tag());
        QCOMPARE(made.faults, QStringList());
        QCOMPARE(changesOf(made), changes);
        QCOMPARE(read(root() + "/KivZP"), "old");
        QCOMPARE(read(root() + "/lib/a.txt"), "a");
    }

    // Nothing outside the folder is written, read or removed, and nothing that is no plain file.
    void refusals_data()
    {
        const rows<QString> row;
        for (const char *path : {"../x", "lib/../../x", "/tmp/x", "\\x", "\\\\host\\x", "up/x", "up/root/../x"})
            row(path, "leads out of the folder");
        for (const char *path : {"C:\\x", "lib/x:y", "lib/CON", "nul.txt", "lib/x.", "com1"})
            row(path, "is no name of a file");
        row("out.txt", "leads out of the folder");
        row("update/journal.json", "may not be changed");
        row("Update/x", "may not be changed");
        row("", "may not be changed");
        row(".", "may not be changed");
    }
    void refusals()
    {
        const auto [said] = fetch<QString>();
        for (const char *name :
             {"copy_file lib/a.txt %1", "download_file new.txt %1", "remove_file %1 ", "remove_directory %1 ",
              "copy_file %1 lib/x", "close_and_run_exe %1 ", "open_file %1 ", "load_prev_config %1 "}) {
            const plan made = planned(QString("copy_file lib/a.txt lib/z; ") + QString(name).arg(tag()));
            QVERIFY2(made.faults.size() == 1, name);
            QVERIFY2(made.faults.first().startsWith("Command 2, ") && made.faults.first().contains(said),
                     qPrintable(made.faults.first()));
        }
        QCOMPARE(read(m_folder->path("outside.txt")), "outside");
    }
    void archivesStayInside()
    {
        m_folder->write("packed/x", "x");
        QFile::link("/etc/passwd", m_folder->path("packed/link"));
        zip("link.zip", {"x", "link"});
        const plan linked = planned("download_file link.zip {temp}/p; extract_zip {temp}/p lib");
        QVERIFY2(linked.faults.size() == 1 && linked.faults.first().contains("cannot be unpacked"),
                 qPrintable(linked.faults.join('|')));
        // Nor over a link that is here.
        m_folder->write("packed/up/y", "y");
        QVERIFY(QFile::exists(m_folder->path("packed/up/y")));
        zip("over.zip", {"up/y"});
        const plan made = planned("download_file over.zip {temp}/q; extract_zip {temp}/q ");
        QVERIFY2(made.faults.join("").contains("leads out of the folder"), qPrintable(made.faults.join('|')));
    }
    void wrongCommands()
    {
        QCOMPARE(planned("format_disk C x").faults, QStringList{"Command 1, \"format_disk\": it is not known"});
        QCOMPARE(planned("download_file none x").faults, QStringList{"Command 1, \"download_file\": no none"});
        QCOMPARE(planned("copy_file none x; remove_file lib/a.txt").faults.size(), 1);
        const plan later = planned("open_help _help/a.html ; load_prev_config _config/c.xml ; open_file news.html ");
        QCOMPARE(later.afterwards.size(), size_t(2));
        QCOMPARE(later.toOpen, QStringList{"news.html"});
    }

    // --- What users changed

    void usersFilesAreMerged_data()
    {
        // what the last update brought, is here now, and comes: "KTM description, ..."; what it becomes, what is told
        const rows<QString, QString, QString, QString, QString> row;
        row("as it was", "A 1, B 2", "A 1, B 2", "A 3, C 4", "A 3, C 4", "");
        row("the same", "A 1", "A 2", "A 2", "", "");
        row("both", "A 1, B 2", "A 1, B 5, D 6", "A 3, B 2, C 4", "A 3, B 5, C 4, D 6", "and merged");
        row("one text", "A 1", "A 2", "A 3", "A 2", "1 text stays yours");
        row("removed there", "A 1, B 2", "A 7, B 2", "A 1", "A 7", "and merged");
        row("unknown", "", "A 2, B 5", "A 3, C 4", "A 2, C 4, B 5", "merged; ");
        row("missing", "A 1", "", "A 3", "A 3", "");
    }
    static QByteArray materials(const QString &text)
    {
        QByteArray all;
        for (const QString &one : text.split(", ", Qt::SkipEmptyParts))
            all += QString("<material><d_ktm>%1</d_ktm><d_description>%2</d_description></material>")
                       .arg(one.section(' ', 0, 0), one.section(' ', 1))
                       .toUtf8();
        return database("<d_group name=\"G\">" + all + "</d_group>");
    }
    static QString shown(const QString &path)
    {
        kiv_mat_databaseStruct database;
        loadDatabase(path, &database);
        QStringList all;
        for (const auto &group : database.groups)
            for (const auto &material : group->items)
                all.append(material->d_ktm + ' ' + material->d_description);
        all.sort();
        return all.join(", ");
    }
    void usersFilesAreMerged()
    {
        const auto [base, mine, theirs, becomes, said] = fetch<QString, QString, QString, QString, QString>();
        const QString place = "_files/db.xml";
        if (!base.isEmpty())
            m_folder->write("root/update/base/" + place, materials(base));
        if (!mine.isEmpty())
            m_folder->write("root/" + place, materials(mine));
        std::vector<updateJournal::change> changes{
            {place, m_folder->write("root/update/1/new/t", materials(theirs)), false}};
        QStringList told;
        QCOMPARE(mergeUsers(root(), m_scratch, &changes, &told), QString());
        QStringList wanted = becomes.split(", ", Qt::SkipEmptyParts);
        wanted.sort();
        QString found;
        for (const auto &one : changes)
            if (one.place == place)
                found = shown(one.source);
            else // what came is what the next one is compared with
                QCOMPARE(read(one.source), materials(theirs));
        QCOMPARE(found, wanted.join(", "));
        QVERIFY2(said.isEmpty() ? told.isEmpty() : told.join("").contains(said), qPrintable(told.join('|')));
        QCOMPARE(QFile::exists(root() + '/' + place), !mine.isEmpty());
    }
    void otherUsersFilesStay()
    {
        const QString came = m_folder->write("root/update/1/new/t", "came");
        m_folder->write("root/_zp/broken.xml", order("<order_items>").chopped(16));
        std::vector<updateJournal::change> changes{
            {"_files/own.txt", came, false}, {"_files/none.txt", {}, false}, {"lib/a.txt", {}, true}};
        QStringList told;
        QCOMPARE(mergeUsers(root(), m_scratch, &changes, &told), QString());
        QCOMPARE(told, QStringList{"_files/own.txt was changed here, and stays as it is"});
        QCOMPARE(changes.back().place, "lib/a.txt");
        changes = {{"_files/own.txt", {}, false}};
        told.clear();
        mergeUsers(root(), m_scratch, &changes, &told);
        QVERIFY(changes.empty() && told.join("").contains("is not removed"));
        // What cannot be read is told of with its place, and nothing is done.
        changes = {{"_zp/broken.xml", m_folder->write("root/update/1/new/o", order("")), false}};
        told.clear();
        const QString fault = mergeUsers(root(), m_scratch, &changes, &told);
        QVERIFY2(fault.contains("line "), qPrintable(fault + told.join('|')));
    }
};

KIVZP_TEST(tst_updatePlan)
#include "tst_updatePlan.moc"
