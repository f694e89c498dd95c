// Messages: what the program writes, and what the launchers make of it.
#include "testSupport.h"

#include "mail/mail.h"
#include "tools/zip_compress.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace testSupport;

class numberedOrder : public kiv_mat_zpStruct
{
public:
    explicit numberedOrder(const QString &number) { options.findOption(optionKey::orderNumber)->value1 = number; }
};

class tst_mail : public folderTest
{
    Q_OBJECT
private slots:
    void init() override
    {
        folderTest::init();
        m_folder->ship({"_bin", "_e-mail", "_files"});
    }

    void cleanup() override
    {
        folderTest::cleanup();
        files::removeFolder(paths::temporaryDir());
    }

    void texts_data()
    {
        const rows<QString, QString> row;
        const auto counted = [](const QStringList &list) {
            return QString::number(list.size()) + ' ' + list.join('|');
        };
        const auto addresses = [&](const QString &configured) { return counted(mail::addresses(configured)); };
        row("link", addresses("mailto:a@x.pl"), "1 a@x.pl");
        row("several", addresses(" mailto:a@x.pl; b@x.pl ,MAILTO:c@x.pl;;"), "3 a@x.pl|b@x.pl|c@x.pl");
        row("query", addresses("mailto:a@x.pl?subject=b@x"), "1 a@x.pl");
        row("encoded", addresses("mailto:a%2Bb@x.pl"), "1 a+b@x.pl");
        row("twice", addresses("a@x.pl;a@x.pl"), "1 a@x.pl");
        row("none", addresses("http://x.pl"), "0 ");
        row("line end", addresses("a@x.pl\nsubject [x]"), "1 a@x.pl subject [x]");

        configStruct config;
        const auto recipients = [&](const QString &role, const QString &name) {
            return counted(mail::recipients(config, role, name));
        };
        addPerson(config, "PERSON_CONTRACTOR", "Ewa", "mailto:e@x.pl");
        row("only one of the role", recipients("PERSON_CONTRACTOR", "nobody"), "1 e@x.pl");
        addPerson(config, "PERSON_CONTRACTOR", "Jan", "j@x.pl;k@x.pl");
        addPerson(config, "PERSON_ADMIN", "Ewa", "admin@x.pl");
        row("by name", recipients("PERSON_CONTRACTOR", " Jan"), "2 j@x.pl|k@x.pl");
        row("nobody", recipients("PERSON_CONTRACTOR", "nobody"), "0 ");
        row("by role", recipients("PERSON_ADMIN", "Ewa"), "1 admin@x.pl");

        const auto messageName = [](const QString &number) { return mail::messageName(numberedOrder(number)); };
        row("slashes", messageName("ZP/13/2026"), "ZP_13_2026");
        row("upwards", messageName("../../x\\y:z"), ".._.._x_y_z");
        row("letters", messageName("źdźbło [1]"), "źdźbło_1");
        row("nothing", messageName(" // "), "order");
        row("long", messageName(QString(500, 'x')), QString(80, 'x'));
        row("description", mail::description({{"a@x", "b@x"}, "s\nto [c@x]", "/b.html", {"/1", "/2"}}),
            "to \t\t\t[a@x]\nto \t\t\t[b@x]\nsubject \t[s to [c@x]]\n"
            "body \t\t[/b.html]\nattachment \t[/1]\nattachment \t[/2]\n");
    }

    void texts()
    {
        const auto [text, expected] = fetch<QString, QString>();
        QCOMPARE(text, expected);
    }

    void orderMessage()
    {
        for (const char *name : {"msg_old.cmd", "old.html", "msg_old.eml"})
            m_folder->write(QString("_e-mail/") + name, "old");
        m_folder->write("_e-mail/msg_template.htm", "<b>{Do_no}</b> {Do_no}");
        configStruct config;
        addPerson(config, "PERSON_CONTRACTOR", "Ewa", "mailto:e@x.pl");
        numberedOrder order("ZP/1<3>/26");
        order.options.findOption(optionKey::orderDate)->value1 = "24.11.2026";
        const QString path = mail::writeOrder(order, config, "/o/zp.xml", "/o/zp.pdf");
        const QString base = m_folder->path("_e-mail/msg_ZP_1_3_26_24.11.2026");
        QCOMPARE(path, base + ".cmd");
        QCOMPARE(QString(read(path)), "to \t\t\t[e@x.pl]\nsubject \t[DD - Order ZP/1<3>/26]\nbody \t\t[" + base
                                          + ".html]\nattachment \t[/o/zp.xml]\nattachment \t[/o/zp.pdf]\n");
        QCOMPARE(read(base + ".html"), QByteArray("<b>ZP/1&lt;3&gt;/26</b> ZP/1&lt;3&gt;/26"));
        QStringList left = QDir(mail::folder()).entryList(QDir::Files);
        left.removeAll("msg_ZP_1_3_26_24.11.2026.cmd");
        left.removeAll("msg_ZP_1_3_26_24.11.2026.html");
        QCOMPARE(left, QStringList({"KIV_EMAIL.exe", "KIV_EMAIL_MAPI.exe", "msg_old.eml", "msg_template.htm"}));
        // Without a template the body is empty.
        QFile::remove(mail::templatePath());
        QVERIFY(!mail::writeOrder(order, config, "/o/zp.xml", "/o/zp.pdf").isEmpty());
        QCOMPARE(read(base + ".html"), QByteArray());
    }

    void dataMessage_data()
    {
        const rows<int, QString, QString, QString, QStringList> row;
        row("databases", int(mail::contents::databases), "Database", "database_", "",
            QStringList({"_files/db_author.xml", "_files/db_mechanics.xml", "_files/db_service.xml",
                         "_files/db_warehouse.xml"}));
        row("boms, secret", int(mail::contents::boms), "Boms", "boms_", "two words",
            QStringList({"_files/boms.xml", "_files/boms/konwerter_rs232_usb.xml", "_files/boms/modul_stm32f103.xml",
                         "_files/boms/przedwzmacniacz_audio.xml", "_files/boms/sterownik_przekaznikow.xml",
                         "_files/boms/zasilacz_liniowy_5v.xml"}));
    }

    void dataMessage()
    {
        const auto [what, subject, archive, password, files] = fetch<int, QString, QString, QString, QStringList>();
        configStruct config;
        config.setDefaults();
        config.options.findOption(optionKey::archivePassword)->value1 = password;
        addPerson(config, "PERSON_ADMIN", "Adam", "mailto:adam@x.pl");
        QStringList later;
        const QString path =
            mail::writeData(mail::contents(what), config, [&](const QString &file) { later.append(file); });
        QVERIFY2(path.endsWith("/msg_database.cmd"), qPrintable(m_shown->logged));
        const QStringList lines = QString(read(path)).split('\n');
        QCOMPARE(lines[0], QString("to \t\t\t[adam@x.pl]"));
        QCOMPARE(lines[1].section('[', 1).chopped(1), subject);
        const QString packed = lines[3].section('[', 1).chopped(1);
        QVERIFY2(
            QRegularExpression('/' + archive + R"(\d{4}\.\d\d\.\d\d_\d\d:\d\d:\d\d\.zip$)").match(packed).hasMatch(),
            qPrintable(packed));
        later.sort();
        QStringList made = files::list(paths::temporaryDir(), {});
        QCOMPARE(later, made);
        QVERIFY(read(lines[2].section('[', 1).chopped(1)).contains("charset=\"UTF-8\""));

        if (!password.isEmpty()) {
            zip_compress open;
            open.decompress(packed, m_folder->path("open"), "");
            QVERIFY(open.wait() != 0);
        }
        zip_compress unzip;
        unzip.decompress(packed, m_folder->path("out"), password);
        QCOMPARE(unzip.wait(), 0);
        QStringList found;
        for (const QString &file : files::list(m_folder->path("out"), {})) {
            found.append(QDir(m_folder->path("out")).relativeFilePath(file));
            QCOMPARE(read(file), read(m_folder->path(found.last())));
        }
        QCOMPARE(found, files);
    }

    void dataMessageFails()
    {
        configStruct config;
        const auto never = [](const QString &) { QFAIL("nothing was written"); };
        QCOMPARE(mail::writeData(mail::contents::databases, config, never), QString());
        QVERIFY(m_shown->logged.contains("There are no files to send."));
        config.setDefaults();
        QFile::remove(m_folder->path("_bin/zip.exe"));
        QCOMPARE(mail::writeData(mail::contents::databases, config, never), QString());
        QVERIFY(m_shown->logged.contains("cannot be written"));
        files::removeFolder(paths::temporaryDir());
        files::writeText(paths::temporaryDir(), "no folder");
        QCOMPARE(mail::writeData(mail::contents::databases, config, never), QString());
        QVERIFY(m_shown->logged.contains("Temporary folder error"));
        QFile::remove(paths::temporaryDir());
    }

    void startsTheRightProgram()
    {
        configStruct config;
        for (const char *name : {"KIV_EMAIL.exe", "KIV_EMAIL_MAPI.exe"})
            m_folder->script(QString("_e-mail/") + name,
                             "printf '%s %s %s;' ${0##*/} \"$1\" \"$KIVZP_MAIL_FOLDER\" > \"$1.started\"\n");
        const QString description = m_folder->write("a b.cmd", "");
        const auto started = [&] {
            QFile::remove(description + ".started");
            if (!mail::start(description, config))
                return QByteArray("not started");
            const bool wrote = QTest::qWaitFor([&] { return read(description + ".started").endsWith(';'); });
            if (!wrote)
                return QByteArray("not run");
            return read(description + ".started");
        };
        const QByteArray arguments = (' ' + description + ' ' + mail::folder() + ';').toUtf8();
        QCOMPARE(started(), "KIV_EMAIL.exe" + arguments);
        appendTo(config.options)->type = optionKey::emailMapi;
        QCOMPARE(started(), "KIV_EMAIL_MAPI.exe" + arguments);
        QFile::remove(m_folder->path("_e-mail/KIV_EMAIL_MAPI.exe"));
        QCOMPARE(started(), QByteArray("not started"));
    }

    // From the order to a message as another mail reader understands it.
    void emlHoldsEverything()
    {
        configStruct config;
        addPerson(config, "PERSON_CONTRACTOR", "Ewa", "mailto:e@x.pl; Jan Żak <j@x.pl>; <broken@");
        const QString number = "ZP/żółć]/13 [a]" + QString(100, 'x');
        QByteArray bytes;
        for (int i = 0; i < 100000; ++i)
            bytes.append(char(unsigned(i) * unsigned(i) / 7));
        const QString first = m_folder->write("zam ówienie].xml", "<a>\r\n\xc5\xbc</a>");
        const QString second = m_folder->write("b\"'.pdf", bytes);
        const QString description = mail::writeOrder(numberedOrder(number), config, first, second);
        const ended called = launch("KIV_EMAIL_MAPI.exe", description);
        QVERIFY2(called.code == 0 && called.err.contains("No address: <broken@"), qPrintable(called.err));
        QCOMPARE(called.out, description.chopped(3) + "eml");

        const ended reader = run("python3", {source("tests/files/readMail.py"), called.out});
        const QJsonObject message = QJsonDocument::fromJson(reader.out.toUtf8()).object();
        QVERIFY2(!message.isEmpty(), qPrintable(reader.err));
        QCOMPARE(message["subject"].toString(), "DD - Order " + number);
        QCOMPARE(message["to"].toArray(), QJsonArray({QJsonArray({"", "e@x.pl"}), QJsonArray({"Jan Żak", "j@x.pl"})}));
        QCOMPARE(message["unsent"].toString(), QString("1"));
        QString body = QString::fromUtf8(read(description.chopped(3) + "html"));
        QCOMPARE(message["html"].toString(), body);
        QVERIFY(body.contains(number));
        QVERIFY(message["plain"].toString().contains(number));
        QVERIFY(!message["plain"].toString().contains('<'));
        const auto digest = [](const QString &path) {
            return QString(QCryptographicHash::hash(read(path), QCryptographicHash::Md5).toHex());
        };
        QCOMPARE(message["files"].toArray(), QJsonArray({QJsonArray({QFileInfo(first).fileName(), digest(first)}),
                                                         QJsonArray({QFileInfo(second).fileName(), digest(second)})}));
        // A second one does not take the first one's place.
        QVERIFY(launch("KIV_EMAIL.exe", description).out.endsWith("_2.eml"));
    }

    void composers_data()
    {
        const rows<QString, QString, QString> row;
        const QString plain("--utf8|--subject|DD - Order NUMBER|--body|Nr NUMBER|--attach|FOLDER/a b.xml|--attach|"
                            "FOLDER/c.pdf|e@x.pl|f@x.pl");
        row("any", "kmail.desktop", "1", plain);
        row("thunderbird", "org.mozilla.Thunderbird.desktop", "1",
            "-compose|to='e@x.pl,f@x.pl',subject='DD - Order 1',format=1,"
            "message='FOLDER/_e-mail/msg_1.html',"
            "attachment='file://FOLDER/a%20b.xml,file://FOLDER/c.pdf'");
        row("thunderbird, quote", "thunderbird.desktop", "1'", plain);
    }

    // Of programs that stand for the desktop's.
    void composers()
    {
        auto [handler, number, expected] = fetch<QString, QString, QString>();
        const QByteArray record = "printf '%s|' \"$@\" > \"$RECORD.new\" && mv \"$RECORD.new\" "
                                  "\"$RECORD\"\n";
        m_folder->script("bin/xdg-email", record);
        m_folder->script("bin/thunderbird", record);
        m_folder->script("bin/xdg-mime", "echo " + handler.toUtf8());
        m_folder->write("_e-mail/msg_template.htm", "<head><title>x</title></head><p>Nr {Do_no}</p>");
        m_folder->write("a b.xml", "");
        m_folder->write("c.pdf", "");
        configStruct config;
        addPerson(config, "PERSON_CONTRACTOR", "Ewa", "e@x.pl;f@x.pl");
        const QString description =
            mail::writeOrder(numberedOrder(number), config, m_folder->path("a b.xml"), m_folder->path("c.pdf"));
        const ended called = launch("KIV_EMAIL.exe", description, true);
        QCOMPARE(called.code, 0);
        QCOMPARE(called.out, QString());
        QVERIFY(QTest::qWaitFor([&] { return QFile::exists(m_folder->path("record")); }));
        const QString arguments = read(m_folder->path("record")).replace("\n|", "|");
        QCOMPARE(arguments.chopped(1), expected.replace("NUMBER", number).replace("FOLDER", m_folder->path()));
        // A composer that fails leaves the message as a file.
        m_folder->script("bin/xdg-email", "exit 3\n");
        m_folder->script("bin/xdg-mime", "exit 4\n");
        m_folder->script("bin/xdg-open", "true\n");
        QCOMPARE(launch("KIV_EMAIL.exe", description, true).out, description.chopped(3) + "eml");
    }

    void launcherRefuses()
    {
        const QString missing = m_folder->write("m.cmd", "subject \t[x]\nattachment \t[/none/y.pdf]\n");
        const ended called = launch("KIV_EMAIL.exe", missing);
        QCOMPARE(called.code, 1);
        QVERIFY(called.err.contains("does not exist: /none/y.pdf"));
        QVERIFY(!QFile::exists(m_folder->path("m.eml")));
        QCOMPARE(launch("KIV_EMAIL.exe", "/none/m.cmd").code, 1);
        QCOMPARE(launch("KIV_EMAIL.exe", m_folder->write("n.cmd", "\xff\xfe")).code, 1);
        // What is no field counts as nothing.
        QCOMPARE(launch("KIV_EMAIL.exe", m_folder->write("o.cmd", "cc [a@x]\nto a@x\n")).code, 0);
    }

private:
    static void addPerson(configStruct &config, const char *role, const QString &name, const QString &link)
    {
        personStruct *person = appendTo(config.persons);
        person->type = role;
        person->name = name;
        person->link = link;
    }
    // A launcher of the source tree, without a desktop unless the folder "bin" holds one.
    ended launch(const QString &name, const QString &description, bool desktop = false)
    {
        ended done = run(source("_e-mail/" + name), {description},
                         {"WAYLAND_DISPLAY", desktop ? "DISPLAY=:none" : "DISPLAY", "LC_ALL=C",
                          "PATH=" + m_folder->path("bin") + ':' + qEnvironmentVariable("PATH"),
                          "RECORD=" + m_folder->path("record")});
        done.out = done.out.trimmed();
        return done;
    }
};

KIVZP_TEST(tst_mail)
#include "tst_mail.moc"
