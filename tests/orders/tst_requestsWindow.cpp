// Requests for quotation, worked with keys: firms are found and ticked, requests sent, firms reminded, and who answered
// is shown.
#include "orders/requestsWindow.h"

#include "data/firmDetails.h"
#include "data/programData.h"
#include "hands.h"
#include "mail/mail.h"
#include "testSupport.h"
#include "util/text.h"

#include <QApplication>
#include <QClipboard>
#include <QDateEdit>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

using namespace testSupport;

class tst_requestsWindow : public folderTest
{
    Q_OBJECT
    QString orderPath() { return m_folder->path("zp/zp_13.xml"); }
    void addFirm(kiv_mat_firmDetailsStruct &details, const QString &name, const QString &email, const QString &language)
    {
        appendTo(programData::instance().firm().suppliers)->name = name;
        firmDetailsStruct its;
        its.name = name;
        its.email = email;
        its.language = language;
        its.address = name + "\nStreet";
        firmDetails::put(&details, name, {}, its);
    }
    std::unique_ptr<kiv_mat_offersStruct> offers()
    {
        auto all = std::make_unique<kiv_mat_offersStruct>();
        const QString path = orderOffers::fileOf(orderPath());
        if (QFileInfo::exists(path) && !readChecked(path, all.get()))
            QTest::qFail("the file of offers is not valid", __FILE__, __LINE__);
        return all;
    }
    // Changes the file of offers as another program would.
    void change(const std::function<void(kiv_mat_offersStruct &)> &edit)
    {
        auto all = offers();
        edit(*all);
        QVERIFY(saveXmlNoEvents(orderOffers::fileOf(orderPath()), all.get()) == 0);
    }
    void work(const QString &steps) { (*m_hands)(steps); }
    QString cells(const std::vector<int> &columns)
    {
        const auto *table = m_window->findChild<QTreeWidget *>("requests");
        QStringList all;
        for (int row = 0; row < table->topLevelItemCount(); ++row) {
            QStringList texts;
            for (const int column : columns)
                texts.append(table->topLevelItem(row)->text(column));
            all.append(texts.join(' '));
        }
        return all.join("; ");
    }
    QString counts() { return m_window->findChild<QLabel *>("counts")->text(); }
    // What stands in the dialog, once the steps before are done in it.
    QString seenInDialog(const QString &steps, const std::function<QString(QDialog &)> &look)
    {
        QString seen;
        QTimer watch;
        // The dialog goes with its answer.
        connect(&watch, &QTimer::timeout, this, [&] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                seen = look(*dialog);
        });
        watch.start(5);
        work("Ctrl+N " + steps + " ~40 Escape");
        return seen;
    }
    static QString ticked(QDialog &dialog)
    {
        const auto *table = dialog.findChild<QTreeWidget *>("firms");
        QStringList all;
        for (int row = 0; row < table->topLevelItemCount(); ++row)
            if (table->topLevelItem(row)->checkState(0) == Qt::Checked)
                all.append(table->topLevelItem(row)->text(0));
        const QString count = dialog.findChild<QLabel *>("count")->text();
        return all.join('|') + ": " + (count[0].isDigit() ? count.section(' ', 0, 0) : count);
    }

    std::unique_ptr<kiv_mat_zpStruct> m_order;
    std::unique_ptr<materialStruct> m_material;
    std::unique_ptr<seenPrompts> m_seen;
    std::unique_ptr<requestsWindow> m_window;
    std::unique_ptr<hands> m_hands;

protected slots:
    void init() override
    {
        folderTest::init();
        QDir().mkpath(m_folder->path("zp"));
        m_folder->script("_e-mail/KIV_EMAIL.exe", "echo \"$1\" >> \"$KIVZP_MAIL_FOLDER/started.txt\"");
        programData &known = programData::instance();
        known.config().setDefaults();
        known.config().options.findOption(optionKey::fileFirm)->value1 = "_files/firms.xml";
        kiv_mat_firmDetailsStruct details;
        addFirm(details, "Anonim", "", "pl");
        addFirm(details, "Mouser", "sales@mouser.example", "en");
        addFirm(details, "TME", "tme@tme.example", "pl");
        addFirm(details, "Zeta", "z@zeta.example", "de");
        QDir().mkpath(m_folder->path("_files"));
        QVERIFY(saveXmlNoEvents(m_folder->path("_files/firm_details.xml"), &details) == 0);
        m_material = std::make_unique<materialStruct>();
        m_material->d_ktm = "R-1";
        appendTo(m_material->suppliers)->name = "TME";
        known.materials().insert({m_material.get(), nullptr, nullptr});
        m_order = std::make_unique<kiv_mat_zpStruct>();
        m_order->options.findOption(optionKey::orderNumber)->value1 = "ZP/13/2026";
        for (const char *quantity : {"5", "x"}) {
            auto *line = appendTo(m_order->orderItems);
            line->ktm = "R-1";
            line->quantity = quantity;
        }
        m_seen = std::make_unique<seenPrompts>();
        m_window = std::make_unique<requestsWindow>(known);
        connect(m_window.get(), &requestsWindow::newWanted, m_window.get(), [this] { m_window->askFirms(*m_order); });
        m_window->showFor(orderPath());
        m_hands = std::make_unique<hands>(*m_window);
    }
    void cleanup() override
    {
        m_hands.reset();
        m_window.reset();
        m_seen.reset();
        programData::instance().clear();
        folderTest::cleanup();
    }

private slots:
    // Those that the materials name come first; who has no address is not ticked.
    void firmsAreTicked_data()
    {
        const rows<QString> row;
        row("", ": 0");
        row("Return Space", "TME: 1");
        row("Return Space Space", ": 0");
        row("'mou' Return Space", "Mouser: 1");
        row("Down Ctrl+A Space", "TME|Mouser|Zeta: 3");
        row("'zeta.exam' Return Space Alt+S Ctrl+A Delete Return Down Down Space", "Mouser|Zeta: 2");
        row("'anon' Return Space", ": Anonim has no e-mail address");
        row("'mouser street' Return Space", "Mouser: 1");
        // Nothing is sent by Return.
        row("Return Space Return Return", "TME: 1");
    }
    void firmsAreTicked()
    {
        const auto [seen] = fetch<QString>();
        QCOMPARE(seenInDialog(tag(), ticked), seen);
        QVERIFY(offers()->requests.empty());
    }

    void theDialogSaysWhy()
    {
        QCOMPARE(seenInDialog("",
                              [](QDialog &dialog) {
                                  const auto *write = dialog.findChild<QPushButton *>("write");
                                  const auto *table = dialog.findChild<QTreeWidget *>("firms");
                                  const auto *last = dialog.findChild<QDateEdit *>("deadline");
                                  if (!dialog.findChild<QLabel *>("count")->text().contains(" 1 material")
                                      || !dialog.findChild<QLabel *>("count")->text().contains("; 1 line"))
                                      return QString("not counted");
                                  return write->toolTip() + (write->isEnabled() ? "+|" : "-|")
                                         + text::htmlToPlain(table->topLevelItem(1)->toolTip(0)) + '|'
                                         + table->topLevelItem(0)->text(3) + '|'
                                         + QString::number(QDate::currentDate().daysTo(last->date()));
                              }),
                 QString("No firm is ticked-|Anonim has no e-mail address|1|7"));
    }

    void tabGoesWhereTheEyeGoes_data()
    {
        const rows<QString> row;
        row("Tab", "deadline");
        row("Return Shift+Tab", "deadline");
        row("Return Space Tab", "write");
    }
    void tabGoesWhereTheEyeGoes()
    {
        const auto [name] = fetch<QString>();
        QCOMPARE(seenInDialog(tag(),
                              [](QDialog &dialog) {
                                  const QWidget *focus = dialog.focusWidget();
                                  return focus ? focus->objectName() : QString();
                              }),
                 name);
    }

    // From the firms to the messages, the files and the rows.
    void requestsAreSent()
    {
        QCOMPARE(counts(), QString("No firm was asked yet: New requests (Ctrl+N)"));
        work("#-remind Ctrl+N Return Space Down Down Space Alt+W ~300");
        QVERIFY(m_hands->boxes().value(0).contains("no request is selected"));
        const QString day = QDate::currentDate().toString("dd.MM.yyyy");
        const QString week = QDate::currentDate().addDays(7).toString("dd.MM.yyyy");
        QCOMPARE(cells({0, 1, 3, 4, 5, 6, 7}), "ZP/13/2026/Z1 TME " + week
                                                   + " waiting  tme@tme.example 1; ZP/13/2026/Z2 Mouser " + week
                                                   + " waiting  sales@mouser.example 1");
        QVERIFY2(cells({2}).startsWith(day), qPrintable(cells({2})));
        QVERIFY2(m_hands->status().startsWith("2 message"), qPrintable(m_hands->status()));
        const QString folder = orderOffers::folderOf(orderPath());
        QVERIFY(read(folder + "/ZP_13_2026_Z1_TME.pdf").startsWith("%PDF"));
        QVERIFY(QFile::exists(folder + "/ZP_13_2026_Z2_Mouser.xlsx"));
        QTRY_COMPARE(read(mail::folder() + "/started.txt").count('\n'), 2);
        QVERIFY(QFile::exists(mail::folder() + "/msg_ZP_13_2026_Z1_TME.cmd"));
        work("requests@1,0 Ctrl+C");
        QVERIFY2(QApplication::clipboard()->text().startsWith("ZP/13/2026/Z2\tMouser\t"),
                 qPrintable(QApplication::clipboard()->text()));
    }

    void firmsAreRemindedAndSentAgain()
    {
        work("Ctrl+N Return Ctrl+A Space Alt+W ~300");
        change([](kiv_mat_offersStruct &all) {
            auto offer = std::make_unique<offerStruct>();
            offer->firm = "TME";
            offer->request = "ZP/13/2026/Z1";
            all.offers.push_back(std::move(offer));
            all.requests[1]->deadline = "2020.01.01";
            for (const auto &one : all.requests)
                one->sent = "2020.01.01 10:00";
        });
        work("F5");
        QCOMPARE(cells({1, 3, 4}).section("; ", 0, 1), "TME " + QDate::currentDate().addDays(7).toString("dd.MM.yyyy")
                                                           + " offer came; Mouser 01.01.2020 overdue");
        QVERIFY2(counts().startsWith("3 ") && counts().contains("2 without an offer") && counts().endsWith("1 overdue"),
                 qPrintable(counts()));
        work("requests@0,0 #-remind");
        QVERIFY(m_hands->boxes().join(' ').contains("an offer has come"));
        work("requests@1,0 Ctrl+A Ctrl+M");
        const QString today = QDate::currentDate().toString("yyyy.MM.dd");
        const auto reminded = offers();
        QVERIFY(reminded->requests[0]->reminded.isEmpty());
        for (const int place : {1, 2})
            QVERIFY2(reminded->requests[size_t(place)]->reminded.startsWith(today),
                     qPrintable(m_hands->status() + m_hands->boxes().join('|') + cells({1, 2, 5})));
        QVERIFY(QFile::exists(mail::folder() + "/msg_ZP_13_2026_Z2_Mouser.cmd")
                && !QFile::exists(mail::folder() + "/msg_ZP_13_2026_Z1_TME.cmd"));
        work("#-sendAgain");
        QVERIFY(m_hands->boxes().join(' ').contains("several requests are selected"));
        work("requests@0,0 #sendAgain");
        QVERIFY(offers()->requests[0]->sent.startsWith(today));
        QCOMPARE(offers()->requests[1]->sent, QString("2020.01.01 10:00"));
        // What is missing is told, and nothing noted.
        QVERIFY(QFile::remove(orderOffers::folderOf(orderPath()) + "/ZP_13_2026_Z2_Mouser.pdf"));
        change([](kiv_mat_offersStruct &all) { all.requests[1]->reminded = "2020.01.02 10:00"; });
        work("F5 requests@1,0 Ctrl+M Return Ctrl+O Return");
        const QStringList boxes = m_hands->boxes();
        QVERIFY2(boxes.filter("is missing").size() == 2, qPrintable(boxes.join('|')));
        QCOMPARE(offers()->requests[1]->reminded, QString("2020.01.02 10:00"));
    }

    // A mail program that is not there leaves the messages, and requests that are not sent.
    void nobodyTakesTheMessages()
    {
        QVERIFY(QFile::remove(m_folder->path("_e-mail/KIV_EMAIL.exe")));
        work("Ctrl+N Return Space Alt+W ~300 Return");
        QVERIFY2(m_hands->boxes().join(' ').contains("TME: The mail program cannot be started"), "not told");
        QCOMPARE(cells({1, 2, 4}), QString("TME not sent written only"));
        QVERIFY2(m_hands->status().contains("1 only written"), qPrintable(m_hands->status()));
        work("Ctrl+W");
        QVERIFY(!m_window->isVisible());
    }

    void aFileThatCannotBeReadIsNotWritten()
    {
        m_folder->write("zp/offers/zp_13/offers.xml", "<x");
        work("F5");
        QVERIFY2(counts().contains("offers.xml: "), qPrintable(counts()));
        work("Ctrl+N Return Space Alt+W ~300 Return");
        QVERIFY(m_hands->boxes().join(' ').contains("offers.xml"));
        QCOMPARE(read(orderOffers::fileOf(orderPath())), QByteArray("<x"));
        // Another order has requests of its own.
        m_window->showFor(m_folder->path("zp/zp_14.xml"));
        QCOMPARE(counts(), QString("No firm was asked yet: New requests (Ctrl+N)"));
    }
};

KIVZP_TEST(tst_requestsWindow)
#include "tst_requestsWindow.moc"
