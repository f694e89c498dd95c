// Offers, worked with keys: compared, chosen from, taken in, taken into the order and the order parted.
#include "orders/offersWindow.h"

#include "data/loaders.h"
#include "data/programData.h"
#include "hands.h"
#include "orders/orderRegister.h"
#include "testSupport.h"

#include <QLabel>
#include <QTreeView>

using namespace testSupport;

class tst_offersWindow : public folderTest
{
    Q_OBJECT
    QString orderPath() { return m_folder->path("zp/zp_7.xml"); }
    static void offer(kiv_mat_offersStruct &offers, const QString &firm, const QStringList &prices)
    {
        auto one = std::make_unique<offerStruct>();
        one->firm = firm;
        one->received = "2026.06.02";
        one->vat = "23";
        one->leadTime = firm == "A" ? "7" : "30";
        for (int i = 0; i < prices.size(); ++i) {
            auto *row = one->append(std::make_unique<offeredStruct>());
            row->key = QString("K-%1").arg(i + 1);
            row->prices = prices.at(i);
        }
        offers.offers.push_back(std::move(one));
    }
    void work(const QString &steps) { (*m_hands)(steps); }
    QString chosen()
    {
        const auto *model = m_window->findChild<QTreeView *>("materials")->model();
        QStringList all;
        for (int row = 0; row < model->rowCount(); ++row)
            all.append(model->index(row, offerRows::from).data().toString());
        return all.join(' ');
    }
    QString sum() { return m_window->findChild<QLabel *>("sum")->text().replace(QChar(0xA0), ' '); }
    QString lines()
    {
        QStringList all;
        for (const auto &line : m_order->orderItems.items)
            all.append(line->ktm + ' ' + line->quantity + ' ' + line->price);
        return all.join("; ");
    }

    std::unique_ptr<kiv_mat_zpStruct> m_order;
    std::unique_ptr<seenPrompts> m_seen;
    std::unique_ptr<orderRegister> m_orders;
    std::unique_ptr<offersWindow> m_window;
    std::unique_ptr<hands> m_hands;

protected slots:
    void init() override
    {
        folderTest::init();
        programData &known = programData::instance();
        known.config().setDefaults();
        m_order = std::make_unique<kiv_mat_zpStruct>();
        m_order->options.findOption(optionKey::orderNumber)->value1 = "ZP/7/2026";
        for (const char *ktm : {"K-1", "K-2", "K-3"}) {
            auto *line = appendTo(m_order->orderItems);
            line->ktm = ktm;
            line->quantity = "10";
            line->unit = "pcs.";
        }
        QDir().mkpath(orderOffers::folderOf(orderPath()));
        QVERIFY(saveXmlNoEvents(orderPath(), m_order.get()) == 0);
        kiv_mat_offersStruct offers;
        offer(offers, "A", {"1: 2", "1: 5"});
        offer(offers, "B", {"1: 3; 20: 1", "1: 4"});
        QVERIFY(saveXmlNoEvents(orderOffers::fileOf(orderPath()), &offers) == 0);
        m_seen = std::make_unique<seenPrompts>();
        m_orders = std::make_unique<orderRegister>();
        m_window = std::make_unique<offersWindow>(known, *m_orders);
        m_window->openOrder = [this](QString *path) {
            *path = orderPath();
            return m_order.get();
        };
        m_window->isOrderSaved = [] { return true; };
        m_window->takeOver = [this](const offerComparison::comparison &of, const offerComparison::selection &wanted,
                                    bool raises) {
            offerComparison::applyChoice(m_order.get(), of, wanted, raises);
            return true;
        };
        m_window->showNow();
        m_hands = std::make_unique<hands>(*m_window);
        work("~50"); // as it was shown, it is looked at
    }
    void cleanup() override
    {
        m_hands.reset();
        m_window.reset();
        m_orders.reset();
        m_seen.reset();
        programData::instance().clear();
        folderTest::cleanup();
    }

private slots:
    // Proposals by the choices above the table; Space and Return choose by hand, in the current column.
    void firmsAreChosen_data()
    {
        const rows<QString, QString> row;
        row("", "A B nobody", "60.00 PLN net");
        row("Alt+P Down", "A A nobody", "70.00 PLN net");
        row("Alt+P Down Down Alt+A Ctrl+A '20' Tab", "A A nobody", "70.00 PLN net");
        row("materials@0,6 Space", "B B nobody", "70.00 PLN net");
        row("materials@0,6 Return Return", "nobody B nobody", "40.00 PLN net");
        row("materials@2,5 Space", "A B nobody", "60.00 PLN net");
        row("materials@0,3 Space", "A B nobody", "60.00 PLN net");
    }
    void firmsAreChosen()
    {
        const auto [firms, net] = fetch<QString, QString>();
        work(tag());
        QCOMPARE(chosen(), firms);
        QVERIFY2(sum().contains(net), qPrintable(sum()));
    }

    // An order that was changed behind the comparison is compared again before anything is taken.
    void changedOrdersAreComparedAgain()
    {
        m_order->orderItems.items[0]->quantity = "40";
        work("Ctrl+Return");
        QCOMPARE(lines(), QString("K-1 40 ; K-2 10 ; K-3 10 "));
        QCOMPARE(chosen(), QString("B B nobody"));
        QVERIFY(m_seen && m_hands->status().contains("changed meanwhile"));
    }

    // So are offers that came meanwhile: nobody takes over what is not shown.
    void offersComeMeanwhile()
    {
        kiv_mat_offersStruct offers;
        offer(offers, "A", {"1: 2", "1: 5"});
        offer(offers, "C", {"1: 1", "1: 1"});
        auto choice = std::make_unique<choiceStruct>();
        choice->key = "K-1";
        choice->firm = "C";
        offers.choices.push_back(std::move(choice));
        offer(offers, "D", {"1: 9"});
        QVERIFY(saveXmlNoEvents(orderOffers::fileOf(orderPath()), &offers) == 0);
        work("Ctrl+Return");
        QCOMPARE(lines(), QString("K-1 10 ; K-2 10 ; K-3 10 "));
        QCOMPARE(chosen(), QString("C nobody nobody"));
        QVERIFY(m_hands->status().contains("changed meanwhile"));
        offers.offers.pop_back();
        QVERIFY(saveXmlNoEvents(orderOffers::fileOf(orderPath()), &offers) == 0);
        work("#split");
        QCOMPARE(m_window->findChild<QTreeView *>("firms")->model()->rowCount(), 2);
    }

    // Prices go to the order, firms with the reason to the file of offers; then each firm gets its order.
    void theChoiceIsTakenOverAndParted()
    {
        work("Ctrl+Return Ctrl+A 'bo tak' Return");
        QCOMPARE(lines(), QString("K-1 10 2.00; K-2 10 4.00; K-3 10 "));
        QVERIFY(saveXmlNoEvents(orderPath(), m_order.get()) == 0);
        kiv_mat_offersStruct kept;
        QVERIFY(readChecked(orderOffers::fileOf(orderPath()), &kept));
        QCOMPARE(kept.choices.size(), size_t(2));
        QCOMPARE(kept.choices.front()->reason, QString("bo tak"));
        work("#split Escape");
        QCOMPARE(QDir(m_folder->path("zp")).entryList({"zp_7_*"}, QDir::Files).size(), 0);
        work("#split !Write_them Return");
        const QStringList files = QDir(m_folder->path("zp")).entryList({"zp_7_*"}, QDir::Files, QDir::Name);
        QCOMPARE(files, QStringList({"zp_7_A.xml", "zp_7_B.xml", "zp_7_rest.xml"}));
        m_orders->update({m_folder->path("zp")});
        QStringList counted;
        for (const auto &order : m_orders->index().orders())
            counted.append(QFileInfo(order.path).baseName() + (m_orders->isParted(order) ? " parted " : " ")
                           + m_orders->firmOf(order, "K-1") + ' ' + order.sum.text());
        counted.sort();
        QCOMPARE(counted.join("; "), QString("zp_7 parted A 60; zp_7_A A 20; zp_7_B  40; zp_7_rest  0"));
    }

    // A price list is taken in with what the user tells of it; what is wrong keeps it out.
    void priceListsAreTakenIn()
    {
        appendTo(programData::instance().firm().suppliers)->name = "C";
        const QString path = m_folder->write("list.csv", "KTM;Cena;Ilość min\nK-1;1,50;5\nK-3;2;\nX;1;\n");
        work("Ctrl+O '" + path + "' Return Alt+C 'EUR' ~400 Escape");
        QCOMPARE(m_window->findChild<QTreeView *>("firms")->model()->rowCount(), 2);
        work("Ctrl+O '" + path + "' Return Alt+C 'EUR' Alt+T '4' ~400 Alt+I");
        QCOMPARE(m_window->findChild<QTreeView *>("firms")->model()->rowCount(), 3);
        kiv_mat_offersStruct kept;
        QVERIFY(readChecked(orderOffers::fileOf(orderPath()), &kept));
        const offerStruct &offer = *kept.offers.back();
        QCOMPARE(offer.firm + ' ' + offer.currency + ' ' + offer.rate, QString("C EUR 4"));
        QVERIFY(QFile::exists(orderOffers::folderOf(orderPath()) + '/' + offer.file));
        // Nothing was taken over yet: it is proposed where it is the cheapest.
        QCOMPARE(chosen(), QString("A B C"));
    }

    // Of two firms of one name the tax number says which it is.
    void namesakesAreTwoFirms()
    {
        for (const char *nip : {"111", "222"}) {
            auto *firm = appendTo(programData::instance().firm().suppliers);
            firm->name = "C";
            firm->nip = nip;
        }
        const QString path = m_folder->write("list.csv", "KTM;Cena\nK-1;1,50\n");
        for (const char *steps : {"", "Down "})
            work("Ctrl+O '" + path + "' Return ~100 " + steps + "~400 Alt+I");
        kiv_mat_offersStruct kept;
        QVERIFY(readChecked(orderOffers::fileOf(orderPath()), &kept));
        QStringList nips;
        for (const auto &one : kept.offers)
            nips.append(one->nip);
        QCOMPARE(nips.join(' ').trimmed(), QString("111 222"));
    }
};

KIVZP_TEST(tst_offersWindow)
#include "tst_offersWindow.moc"
