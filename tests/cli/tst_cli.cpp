// kivzp-cli from outside: exit codes, output and files.
#include "testSupport.h"

using namespace testSupport;

class tst_cli : public folderTest
{
    Q_OBJECT
private slots:
    void init() override
    {
        folderTest::init();
        QVERIFY(QFile::copy(KIVZP_CLI, m_folder->path("kivzp-cli")));
        m_folder->write("good.xml", order("<order_items><order_item><ktm>K</ktm><price>2</price>"
                                          "<quantity>3</quantity></order_item></order_items>"));
        // Of the helpers only one is there, and that cannot be started.
        QFile::setPermissions(m_folder->write("_bin/zip.exe", "#!/none/sh\n"), QFile::ReadOwner | QFile::ExeOwner);
        m_folder->write("bad.xml", order("\n<colour/>"));
        m_folder->write("cut.xml", order("<options>"));
        m_folder->write("bom.xml", document("kiv_mat_bom", "KIV_MAT_BOM_1", "kiv_mat.xsd",
                                            "<update/><material><d_ktm>K</d_ktm><d_quantity>2</d_quantity></material>"
                                            "<material><d_ktm>X</d_ktm><d_quantity>1</d_quantity></material>"
                                            "<material><d_ktm>Y</d_ktm></material>"));
        m_folder->write("twice.xml", document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd",
                                              "<d_group><material><d_ktm>K</d_ktm></material><material>"
                                              "<d_ktm>K</d_ktm></material></d_group>"));
        m_folder->write("cpv.txt", "G\t31712340-5 Diody\nX\t31712340-5\n");
        m_folder->write("firms.xml",
                        document("kiv_mat_firm", "KIV_MAT_FIRM_1", "kiv_mat.xsd",
                                 "<suppliers><firm><name>Wrong</name><nip>5260250275</nip></firm></suppliers>"));
        m_folder->write("stock.txt", "Towar: K\nIlosc: 2\nWartosc: 5\nTowar: brak\n");
        m_folder->write("other.xml",
                        document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd",
                                 "<d_group "
                                 "name=\"G\" cpv=\"31711130-3\"><material><d_ktm>K</d_ktm><d_price>5</d_price></"
                                 "material><material><d_ktm>L</d_ktm></material></d_group>"));
        m_folder->write("one.xml", document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd",
                                            "<d_group name=\"G\"><material><d_ktm>K</d_ktm></material></d_group>"));
        m_folder->write("sources.xml", document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd",
                                                "<d_group name=\"G\"><material><d_ktm>K</d_ktm><manufacturers>"
                                                "<manufacturer><name>A</name></manufacturer></manufacturers>"
                                                "<suppliers><supplier><name>A</name></supplier></suppliers>"
                                                "</material></d_group>"));
    }

    void calls_data()
    {
        const rows<int, QString, QString> row;
        row("", 2, "", "Usage");
        row("--help", 0, "validate", "");
        row("unknown", 2, "", "unknown command: unknown");
        row("--language xx info", 2, "", "xx");
        row("validate", 2, "", "argument is missing");
        row("validate --help", 0, "FILE...", "");
        row("validate --colour good.xml", 2, "", "colour");
        row("validate good.xml", 0, "good.xml: valid", "");
        row("validate good.xml bad.xml", 1, "good.xml: valid", "bad.xml:3:");
        row("validate none.xml", 1, "", "none.xml: the file cannot be read");
        row("validate .", 1, "", "cannot be read");
        row("validate cut.xml", 1, "", "cut.xml:2:");
        row("info good.xml", 0, "kind: kiv_mat_zp\nversion: KIV_MAT_ZP_1\noptions: 6\nlines: 1\nsum: 6.00", "");
        row("info bad.xml", 0, "lines: 0", "");
        row("info --validate bad.xml", 1, "", "bad.xml:3:");
        row("info cut.xml", 1, "", "cut.xml:");
        row("info twice.xml", 0, "materials: 2\nktms: 1\nduplicates: 1", "");
        row("info good.xml bad.xml", 2, "", "too many");
        row("info none.xml", 1, "", "cannot be read");
        row("resave good.xml new/out.xml", 0, "", "");
        row("resave cut.xml out.xml", 1, "", "cut.xml: line 2");
        row("resave good.xml _validator", 3, "", "cannot be written");
        row("report good.xml -o out.html", 0, "", "");
        row("report good.xml -o out.txt", 2, "", ".html or .pdf");
        row("report good.xml", 2, "", ".html or .pdf");
        row("report bad.xml -o out.html", 1, "", "bad.xml:3:");
        row("report twice.xml -o out.html", 1, "", "is no order");
        row("report good.xml -d none.xml -o out.html", 1, "", "none.xml");
        row("report good.xml -d good.xml -o out.html", 1, "", "is no material database");
        row("report good.xml -o new/sub/out.html", 0, "", "");
        row("find ktm:k -d twice.xml", 0, "K\t", "");
        row("find K -n 1 -d twice.xml", 0, "K\t", "1 of 2 materials shown");
        row("find K -n 0 -d twice.xml -d twice.xml", 0, "K\t", "");
        row("find none -d twice.xml", 1, "", "nothing found");
        row("find colour:red -d twice.xml", 2, "", "There is no field colour");
        row("find K", 2, "", "-d");
        row("find K -n x -d twice.xml", 2, "", "x is no number");
        row("find -d twice.xml", 2, "", "argument is missing");
        row("find K -d good.xml", 1, "", "is no material database");
        row("check-materials twice.xml", 1, "K\t\tCPV empty\nK\t\tCPV empty\n", "");
        row("check-materials good.xml", 1, "", "is no material database");
        row("check-materials", 2, "", "argument is missing");
        row("report good.xml -o good.xml/out.pdf", 3, "", "cannot be written");
        row("bom-csv bom.xml -d twice.xml -o out.csv", 0, "", "");
        row("bom-csv bom.xml", 2, "", "-o");
        row("bom-csv good.xml -o out.csv", 1, "", "is no BOM list");
        row("bom-csv bom.xml -o good.xml/out.csv", 3, "", "cannot be written");
        row("bom-report bom.xml -d twice.xml -o out.pdf", 0, "", "");
        row("bom-report bom.xml -o out.doc", 2, "", ".html or .pdf");
        row("bom-order bom.xml=2 -d twice.xml -o out.xml", 0, "", "in no database, left out: X");
        row("bom-order bom.xml -d twice.xml -o out.xml", 2, "", "is not BOM=SETS");
        row("bom-order bom.xml=-1 -o out.xml", 2, "", "is not BOM=SETS");
        row("bom-order bom.xml=1 --existing twice -o out.xml", 2, "", "none of raise");
        row("bom-order bom.xml=1 --from bom.xml -o out.xml", 1, "", "is no order");
        row("bom-order bom.xml=1 -o good.xml/out.xml", 3, "", "cannot be written");
        row("bom-shortage bom.xml=2 -d twice.xml", 1, "K\t\t4\t?\t4\tYes\nX\t", "left out: Y");
        row("bom-shortage bom.xml=0", 0, "", "");
        row("mail", 2, "", "give one of");
        row("mail good.xml --boms", 2, "", "give one of");
        row("mail good.xml", 1, "", "_config/kiv_mat_config.xml: cannot be read");
        row("helpers", 1, "_bin/zip.exe: found", "KIV_TEMPLATE_DOC.exe: not found");
        row("pack _validator out.zip", 1, "", "cannot be started");
        row("pack none new.zip", 1, "", "Folder does not exist [none]");
        row("unpack good.xml out", 1, "", "Archive cannot be read [good.xml]");
        row("unpack good.xml", 2, "", "argument is missing");
        row("download http://127.0.0.1:1/ out.bin", 1, "", "cannot be started");
        row("altium twice.xml -o out.xlsx", 0, "out.xlsx\nout.DbLib", "[Group]");
        row("altium twice.xml -o out.SQLITE", 0, "out.SQLITE\nout.txt\nout.DbLib", "[Group]");
        row("altium twice.xml -o out.txt", 2, "", ".xlsx / .sqlite");
        row("altium good.xml -o out.xlsx", 1, "", "is no material database");
        row("altium twice.xml -o good.xml/out.sqlite", 3, "", "cannot be written");
        row("groups twice.xml -o out.xlsx", 0, "out.xlsx", "[Group]");
        row("groups twice.xml -o out.sqlite", 2, "", "ends in .xlsx");
        row("duplicates twice.xml", 1, "The same KTM:\nK\t[] []", "");
        row("duplicates one.xml", 0, "All materials has unique KTM", "");
        row("duplicates bad.xml", 1, "", "bad.xml:3:");
        row("empty one.xml", 1, "K\t\tCPV, Name", "");
        row("check-urls one.xml -o out.xlsx", 0, "", "");
        row("check-urls one.xml -o _validator", 3, "", "cannot be written");
        row("db-report one.xml -o out.html", 0, "", "");
        row("db-report one.xml -f good.xml -o out.html", 1, "", "is no firm register");
        row("parse-listing stock.txt -d one.xml", 0, "K\td_inWarehouse\t\t2\nK\td_averagePrice\t\t2.50",
            "brak Error in KTM line");
        row("parse-listing stock.txt -d one.xml -o out.xml", 0, "d_averagePrice", "brak");
        row("parse-listing stock.txt -d one.xml -o _validator", 3, "d_averagePrice", "cannot be written");
        row("parse-listing stock.txt", 2, "", "-d");
        row("parse-listing none.txt -d one.xml", 1, "", "corrupted");
        row("parse-listing good.xml -d one.xml", 1, "", "good.xml");
        row("merge one.xml one.xml", 0, "All materials in database", "");
        row("merge one.xml other.xml", 0, "changed\tK\t\n\td_price\t\t5\nnew\tL\t\n", "");
        row("merge one.xml other.xml --apply -o out.xml", 0, "new\tL", "");
        row("merge other.xml one.xml --update", 0, "changed\tK\t\n\td_price\t5\t\nabsent\tL", "");
        row("merge one.xml other.xml --apply", 2, "", "belong together");
        row("merge one.xml other.xml --apply -o _validator", 3, "new\tL", "cannot be written");
        row("merge one.xml good.xml", 1, "", "is no material database");
        row("load-cpv cpv.txt -d one.xml", 0, "G\t\t31712340-5", "X");
        row("load-cpv cpv.txt -d one.xml -o _validator", 3, "31712340-5", "cannot be written");
        row("load-cpv cpv.txt", 2, "", "-d");
        row("load-cpv none.txt -d one.xml", 1, "", "none.txt");
        row("move-cpv other.xml -o out.xml", 0, "L\td_cpv\t\t31711130-3", "");
        row("check-nip firms.xml", 1, "Wrong\t5260250275", "");
        row("check-nip one.xml", 1, "", "is no firm register");
        row("firm-uses sources.xml A", 0, "manufacturer\tK\t\nsupplier\tK\t\n", "");
        row("firm-uses sources.xml A --rename B -o out.xml", 0, "supplier\tK", "");
        row("firm-uses sources.xml A --rename B -o _validator", 3, "supplier\tK", "cannot be written");
        row("firm-uses sources.xml a", 1, "", "no material names a");
        row("firm-uses sources.xml A --rename B", 2, "", "belong together");
        row("firm-uses good.xml A", 1, "", "is no material database");
        row("db-report one.xml --short -o _validator", 3, "", "cannot be written");
    }

    void calls()
    {
        const auto [code, out, err] = fetch<int, QString, QString>();
        const result called = run(tag().split(' ', Qt::SkipEmptyParts));
        QVERIFY2(called.out.contains(out) && called.out.isEmpty() == out.isEmpty(), qPrintable(called.out));
        QVERIFY2(called.err.contains(err) && called.err.isEmpty() == err.isEmpty(), qPrintable(called.err));
        QCOMPARE(called.code, code);
        // Only a call that succeeded leaves a file.
        if (code != 0)
            QVERIFY(QDir(m_folder->path()).entryList({"out*"}).isEmpty());
    }

    void faultsHaveTheirPlace()
    {
        const QString path = m_folder->write("f.xml", order("\n<options>\n <option colour=\"1\"/>\n"
                                                            " <colour>\n</colour></options>"));
        const result called = run({"validate", path});
        QCOMPARE(called.code, 1);
        const QStringList lines = called.err.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QVERIFY(QRegularExpression("^" + QRegularExpression::escape(path) + ":4:[0-9]+: .*colour.*")
                    .match(lines[0])
                    .hasMatch());
        QVERIFY(lines[1].startsWith(path + ":5:"));
    }

    void longListsAreCut()
    {
        const QString path =
            m_folder->write("f.xml", order("<order_items>" + QByteArray("<order_item><x/></order_item>\n").repeated(250)
                                           + "</order_items>"));
        const QStringList lines = run({"validate", path}).err.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 101);
        QVERIFY(lines.last().endsWith("and 150 more"));
    }

    void reportWithDatabases()
    {
        const auto database = [this](const char *name, const QByteArray &maker) {
            return m_folder->write(name, document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd",
                                                  "<d_group><material><d_ktm>K</d_ktm><manufacturers>"
                                                  "<manufacturer><name>"
                                                      + maker
                                                      + "</name></manufacturer>"
                                                        "</manufacturers></material></d_group>"));
        };
        const QStringList call{
            "report", "good.xml", "-d", database("1.xml", "First"), "-d", database("2.xml", "Second"), "-o"};
        QCOMPARE(run(call + QStringList("r.html")).code, 0);
        const QByteArray page = read(m_folder->path("r.html"));
        QVERIFY(page.contains("First"));
        QVERIFY(!page.contains("Second"));
        QCOMPARE(run(call + QStringList("r.pdf")).code, 0);
        QVERIFY(read(m_folder->path("r.pdf")).startsWith("%PDF"));
    }

    // What merge and parse-listing write is what they said.
    void changesAreWritten()
    {
        QCOMPARE(run({"merge", "one.xml", "other.xml", "--apply", "-o", "m.xml"}).code, 0);
        QVERIFY(run({"merge", "m.xml", "other.xml", "--update"}).out.startsWith("All materials"));
        QCOMPARE(run({"merge", "m.xml", "one.xml", "--update", "--apply", "-o", "u.xml"}).code, 0);
        QVERIFY(run({"merge", "u.xml", "one.xml", "--update"}).out.startsWith("All materials"));
        QCOMPARE(run({"parse-listing", "stock.txt", "-d", "one.xml", "-o", "s.xml"}).code, 0);
        QCOMPARE(run({"parse-listing", "stock.txt", "-d", "s.xml"}).out, QString());
        QVERIFY(read(m_folder->path("s.xml")).contains("<d_averagePrice>2.50</d_averagePrice>"));
        QCOMPARE(run({"firm-uses", "sources.xml", "A", "--rename", "B", "-o", "f.xml"}).code, 0);
        QCOMPARE(run({"firm-uses", "f.xml", "A"}).code, 1);
        QCOMPARE(run({"firm-uses", "f.xml", "B"}).out, run({"firm-uses", "sources.xml", "A"}).out);
    }

    void polishPathsAndLanguage()
    {
        const QString path =
            m_folder->write("za\u017c\u00f3\u0142\u0107 g\u0119\u015bl\u0105/o.xml", order("<colour/>"));
        const result polish = run({"--language", "pl", "resave", path, path + "-2"});
        QCOMPARE(polish.err, QString());
        QVERIFY(QFile::exists(path + "-2"));
        QVERIFY(run({"--language=pl", "validate", "good.xml"}).out.contains("poprawny"));
        QVERIFY(run({"validate", path}).err.startsWith(path));
    }

    void runsWithoutDisplayAndHome()
    {
        const result called =
            run({"report", "good.xml", "-o", "r.pdf"}, {"DISPLAY", "HOME", "XDG_RUNTIME_DIR", "WAYLAND_DISPLAY"});
        QCOMPARE(called.err, QString());
        QCOMPARE(called.code, 0);
    }

    void archives()
    {
        QFile::remove(m_folder->path("_bin/zip.exe"));
        copyFolder(source("_bin"), m_folder->path("_bin"));
        QCOMPARE(run({"helpers"}).code, 0);
        qputenv("KIVZP_ARCHIVE_PASSWORD", "two words");
        const result packed = run({"pack", "_validator", "a.zip"});
        const result unpacked = run({"unpack", "a.zip", "out"});
        qputenv("KIVZP_ARCHIVE_PASSWORD", "wrong");
        const result refused = run({"unpack", "a.zip", "out2"});
        qunsetenv("KIVZP_ARCHIVE_PASSWORD");
        QVERIFY2(packed.code == 0 && packed.err.contains("Compression complete"), qPrintable(packed.err));
        QVERIFY2(unpacked.code == 0, qPrintable(unpacked.err));
        QCOMPARE(read(m_folder->path("out/kiv.xsd")), read(m_folder->path("_validator/kiv.xsd")));
        QCOMPARE(refused.code, 1);
        QVERIFY(!QFile::exists(m_folder->path("out2/kiv.xsd")));
    }

    void bomsToOrder()
    {
        const QStringList call{"bom-order", "bom.xml=2", "-d", "twice.xml", "-o", "good.xml"};
        QCOMPARE(run(call + QStringList({"--from", "good.xml"})).code, 0);
        QVERIFY(read(m_folder->path("good.xml")).contains("<quantity>7</quantity>"));
        QVERIFY(run({"info", "good.xml"}).out.contains("lines: 1\n"));
        QCOMPARE(run(call + QStringList({"--from", "good.xml", "--existing", "add"})).code, 0);
        QVERIFY(run({"info", "good.xml"}).out.contains("lines: 2\n"));
        QCOMPARE(run({"validate", "good.xml"}).code, 0);
        QCOMPARE(run({"bom-csv", "bom.xml", "-d", "twice.xml", "-o", "b.csv"}).code, 0);
        QCOMPARE(read(m_folder->path("b.csv")), QByteArray("K\t2\n!!!!!X\t1\n!!!!!Y\t\n"));
    }

    void mail()
    {
        QFile::remove(m_folder->path("_bin/zip.exe"));
        for (const char *dir : {"_bin", "_config", "_e-mail", "_files"})
            copyFolder(source(dir), m_folder->path(dir));
        const result order = run({"mail", "good.xml"}, {"DISPLAY", "WAYLAND_DISPLAY"});
        QVERIFY2(order.code == 0, qPrintable(order.err));
        const QString message = order.out.trimmed().chopped(3) + "eml";
        QVERIFY(QTest::qWaitFor([&] { return read(message).endsWith("--\r\n"); }));
        QVERIFY(read(message).contains("filename=\"good.xml\""));
        QVERIFY(read(message).contains(".pdf"));

        const result boms = run({"mail", "--boms", "--only-write"});
        QVERIFY2(boms.code == 0 && boms.err.contains("Compression complete"), qPrintable(boms.err));
        const QByteArray description = read(boms.out.trimmed());
        QVERIFY2(description.contains("[m.dab@example.com]"), description.constData());
    }

private:
    struct result
    {
        int code;
        QString out;
        QString err;
    };
    result run(const QStringList &arguments, const QStringList &unset = {}) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "C");
        environment.insert("TMPDIR", m_folder->path());
        for (const QString &name : unset)
            environment.remove(name);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder->path());
        // The program finds its schemas beside itself.
        process.start(m_folder->path("kivzp-cli"), arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, {}, "crashed or hung"};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
};

KIVZP_TEST(tst_cli)
#include "tst_cli.moc"
