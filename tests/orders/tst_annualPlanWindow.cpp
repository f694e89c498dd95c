// The window of the annual plan, worked with keys: years, groupings, sorting, bars, and what is written.
#include "orders/annualPlanWindow.h"

#include "bom/workbookReader.h"
#include "data/programData.h"
#include "hands.h"
#include "orders/barChart.h"
#include "testSupport.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QSpinBox>
#include <QTreeView>

using namespace testSupport;

class tst_annualPlanWindow : public folderTest
{
    Q_OBJECT
    void order(const char *name, const QByteArray &date, const QByteArray &lines)
    {
        m_folder->write(QString("zp/%1.xml").arg(name),
                        testSupport::order("<options><option editable=\"YES\" type=\"ORDER_NUMBER\" value1=\"ZP/"
                                           + QByteArray(name)
                                           + "\"/><option editable=\"YES\" type=\"ORDER_DATE\" value1=\"" + date
                                           + "\"/></options><order_items>" + lines + "</order_items>"));
    }
    static QByteArray line(const char *name, const char *price, const char *quantity, const char *cpv,
                           const char *delivery = "")
    {
        return QByteArray("<order_item><name>") + name + "</name><price>" + price + "</price><quantity>" + quantity
               + "</quantity><target>312</target><ktm>K-" + name + "</ktm><cpv>" + cpv + "</cpv><delivery>" + delivery
               + "</delivery></order_item>";
    }
    void setThresholds(const QString &text)
    {
        configStruct &config = programData::instance().config();
        if (!config.options.findOption(QString(optionKey::orderThresholds)))
            appendTo(config.options)->type = QString(optionKey::orderThresholds);
        config.options.findOption(QString(optionKey::orderThresholds))->value1 = text;
    }
    void work(const QString &steps) { (*m_hands)(QString(steps).replace('%', m_folder->path())); }
    QString text(const char *label) { return m_window->findChild<QLabel *>(label)->text().replace(QChar::Nbsp, ' '); }
    // The texts of columns of all rows, as they are shown.
    QString cells(const char *table, const std::vector<int> &columns)
    {
        const QAbstractItemModel *model = m_window->findChild<QTreeView *>(table)->model();
        QStringList all;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList texts;
            for (const int column : columns)
                texts.append(model->index(row, column).data().toString().replace(QChar::Nbsp, ' '));
            all.append(texts.join(' '));
        }
        return all.join("; ");
    }
    QString sums() { return cells("plan", {0, 1, 2}); }
    barChart &chart() { return *m_window->findChild<barChart *>(); }

    std::unique_ptr<seenPrompts> m_seen;
    std::unique_ptr<orderRegister> m_orders;
    std::unique_ptr<annualPlanWindow> m_window;
    std::unique_ptr<hands> m_hands;

protected slots:
    void init() override
    {
        folderTest::init();
        order("a", "02.03.2026",
              line("cpu", "30", "2000", "30213000-5", "WZ 1") + line("led", "0.5", "100", "31711100")
                  + line("cap", "1", "25", "31712000-1"));
        order("b", "05.03.2026",
              line("disk", "20", "1000", "30233000-1") + line("?", "1", "7", "") + line("glue", "x", "1", "brak"));
        order("c", "05.03.2025", line("old", "3", "3", "30213000-5"));
        configStruct &config = programData::instance().config();
        config.setDefaults();
        config.options.findOption(optionKey::ordersFolders)->value1 = m_folder->path("zp");
        config.options.findOption(optionKey::openReportHtml)->value1 = "NIE";
        setThresholds("302: 70000; *: 90");
        m_seen = std::make_unique<seenPrompts>();
        m_orders = std::make_unique<orderRegister>();
        m_window = std::make_unique<annualPlanWindow>(programData::instance(), *m_orders);
        m_window->showNow();
        m_hands = std::make_unique<hands>(*m_window);
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
    void theNewestYearIsShown()
    {
        QCOMPARE(sums(), QString("302 80 000.00 60 000.00; 317 75.00 75.00; without a CPV code 7.00 0.00; "
                                 "not a CPV code: brak 0.00 0.00"));
        QCOMPARE(cells("plan", {4, 5, 6, 7, 8, 9}),
                 QString("99.9 2 2  70 000.00 above; 0.1 2 1  90.00 80 % reached; 0.0 1 1   ; 0.0 1 1 1  "));
        QCOMPARE(text("thresholds"), QString("▲ CPV 302: 80 000.00 PLN, above the threshold of 70 000.00 PLN\n"
                                             "△ CPV 317: 75.00 PLN, near the threshold of 90.00 PLN"));
        const QStringList total = text("sums").split("; ");
        QCOMPARE(total.value(0), QString("Estimated 80 082.00 PLN, ordered 60 075.00 PLN, rest 20 007.00 PLN"));
        QVERIFY2(total.value(1).startsWith("6 line") && total.value(2).startsWith("1 line"), qPrintable(text("sums")));
        QCOMPARE(cells("withoutCode", {0, 1, 2, 3, 4}), QString("ZP/b 2 K-? ? ; ZP/b 3 K-glue glue brak"));
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("plan"));
    }

    void choicesAreWorkedWithKeys_data()
    {
        const rows<QString, bool> row;
        row("Alt+Y Down", "302 9.00 0.00", true);
        row("Alt+Y Down Up Alt+D Ctrl+A '5' Return",
            "30213 60 000.00 60 000.00; 30233 20 000.00 0.00; 31711 50.00 50.00; 31712 25.00 25.00; "
            "without a CPV code 7.00 0.00; not a CPV code: brak 0.00 0.00",
            true);
        row("Alt+S Down Alt+Y Down", "30213000 9.00 0.00", false);
        row("Alt+S Down Down", "312 80 082.00 60 075.00", false);
        row("Alt+S End", "supplier not known 80 082.00 60 075.00", false);
        // Escape does nothing that is to be feared.
        row("Escape Alt+Y Escape Alt+Y Down Escape", "302 9.00 0.00", true);
    }
    void choicesAreWorkedWithKeys()
    {
        const auto [seen, hasDigits] = fetch<QString, bool>();
        work(tag());
        QCOMPARE(sums(), seen);
        QCOMPARE(m_window->findChild<QSpinBox *>("digits")->isEnabled(), hasDigits);
        QVERIFY(m_window->isVisible());
    }

    // A click on a caption sorts, amounts by their size; the report follows.
    void captionsSort()
    {
        work("plan@^1");
        QVERIFY2(sums().startsWith("not a CPV code: brak 0.00"), qPrintable(sums()));
        work("plan@^0");
        QVERIFY2(sums().startsWith("302 "), qPrintable(sums()));
        work("plan@^0");
        QVERIFY2(sums().startsWith("without"), qPrintable(sums()));
        work("Ctrl+S Ctrl+A '%/p.html' Return");
        const QString page = read(m_folder->path("p.html"));
        QVERIFY(page.indexOf("brak") > page.indexOf("<td >317<"));
        QVERIFY(page.contains("<h1>Annual plan of purchases 2026</h1>"));
    }

    void reportsAreWritten()
    {
        work("Ctrl+S Ctrl+A '%/p.xlsx' Return");
        QString fault;
        const auto sheets = workbookReader::read(m_folder->path("p.xlsx"), &fault);
        QVERIFY2(sheets && sheets->size() == 3, qPrintable(fault));
        work("#saveReport Ctrl+A '%/p.pdf' Return");
        QVERIFY(read(m_folder->path("p.pdf")).startsWith("%PDF"));
        QVERIFY2(m_hands->status().contains("p.pdf"), qPrintable(m_hands->status()));
        work("Ctrl+S Escape");
        QCOMPARE(m_seen->logged.count("<br>"), 2);
    }

    // Return and a double click lead to the line.
    void linesAreOpened()
    {
        QStringList opened;
        connect(m_window.get(), &annualPlanWindow::openWanted, m_window.get(),
                [&](const QString &path, const QString &ktm, int line) {
                    opened.append(QFileInfo(path).fileName() + ' ' + ktm + ' ' + QString::number(line));
                });
        work("#-open withoutCode@1,0 Return withoutCode@@0,3 Down Ctrl+O");
        QVERIFY(m_hands->boxes().value(0).contains("no line without a CPV code is selected"));
        QCOMPARE(opened.join('|'), QString("b.xml K-glue 2|b.xml K-? 1|b.xml K-glue 2"));
        work("Ctrl+C");
        QCOMPARE(QApplication::clipboard()->text(), QString("ZP/b\t3\tK-glue\tglue\tbrak\n"));
        work("plan@0,0 Ctrl+C");
        QVERIFY(QApplication::clipboard()->text().startsWith("302\t"));
        QVERIFY(m_hands->status().startsWith("1 row"));
    }

    // Files and thresholds that changed are seen, and what was chosen stays.
    void readAgain()
    {
        work("Alt+Y Down plan@0,0");
        order("d", "01.01.2027", line("new", "1", "1", "30213000"));
        order("c", "05.03.2025", line("old", "3", "3", "30213000-5") + line("x", "5", "1", "24000000"));
        setThresholds("302: 5; 4; *: 1");
        work("F5");
        QCOMPARE(sums(), QString("302 9.00 0.00; 240 5.00 0.00"));
        QVERIFY2(text("thresholds").contains("is not understood: 4"), qPrintable(text("thresholds")));
        QCOMPARE(text("heading"), QString("All lines have a CPV code"));
        QVERIFY(!m_window->findChild<QTreeView *>("withoutCode")->isVisible());
        // No order is left.
        QVERIFY(QDir(m_folder->path("zp")).removeRecursively() && QDir().mkpath(m_folder->path("zp")));
        work("F5 #-saveReport");
        QCOMPARE(sums(), QString());
        QVERIFY(m_hands->boxes().value(0).contains("there are no orders of this year"));
        work("Ctrl+W");
        QVERIFY(!m_window->isVisible());
    }

    // Bars are as long as their sums, in colours of their own, whatever the size of the window and its palette.
    void barsShowTheSums()
    {
        for (const bool dark : {false, true}) {
            QPalette palette;
            palette.setColor(QPalette::Base, dark ? Qt::black : Qt::white);
            palette.setColor(QPalette::Text, dark ? Qt::white : Qt::black);
            barChart bars;
            bars.setPalette(palette);
            bars.setLegend("first", "second", "threshold", "none");
            bars.setRows({{"a", 400, 100, 300.0, "400", "100", ""},
                          {QString("long ").repeated(50), 200, 0, {}, "200", "0", ""},
                          {"far", 1, 1, 5000.0, "1", "1", ""}});
            for (const int width : {500, 1000}) {
                bars.resize(width, 400);
                const QImage image = bars.grab().toImage();
                const auto inRow = [&](const QRect &bar, const QColor &colour) {
                    int count = 0;
                    for (int x = 0; x < image.width(); ++x)
                        count += image.pixelColor(x, bar.center().y()) == colour;
                    return count;
                };
                QCOMPARE(bars.shownRows(), 3);
                const int whole = inRow(bars.firstBar(0), bars.firstColour());
                QVERIFY(whole > width / 4);
                QVERIFY(std::abs(inRow(bars.firstBar(1), bars.firstColour()) * 2 - whole) < 8);
                QVERIFY(inRow(bars.secondBar(0), bars.secondColour()) > 10);
                QCOMPARE(inRow(bars.secondBar(1), bars.secondColour()), 0);
                const QRect first = bars.firstBar(0);
                QVERIFY(std::abs((*bars.thresholdAt(0) - first.left()) * 4 - first.width() * 3) < 8);
                QVERIFY(!bars.thresholdAt(1) && !bars.thresholdAt(2));
                QVERIFY(first.right() < width && first.left() < width / 2);
            }
            QVERIFY(bars.accessibleDescription().contains("second: 100"));
            bars.resize(300, 10);
            QCOMPARE(bars.shownRows(), 0);
            bars.grab();
        }
        QVERIFY(!chart().accessibleName().isEmpty() && chart().accessibleDescription().contains("threshold"));
    }
};

KIVZP_TEST(tst_annualPlanWindow)
#include "tst_annualPlanWindow.moc"
