// Printed pages, read back with a PDF reader.
#include "testSupport.h"

#include "bom/bomReport.h"
#include "report/orderReport.h"
#include "report/pdfPrinter.h"
#include "report/reportPage.h"

#include <QWebElement>
#include <QWebFrame>
#include <QWebView>

using namespace testSupport;

class tst_pdfPrinter : public folderTest
{
    Q_OBJECT
private slots:
    void init() override
    {
        folderTest::init();
        m_view = std::make_unique<QWebView>();
        m_page = new reportPage(m_view.get());
        m_view->setPage(m_page);
    }

    void cleanup() override
    {
        m_view.reset();
        m_folder.reset();
    }

    void names()
    {
        QCOMPARE(pdfPath("a"), QString("a.pdf"));
        QCOMPARE(pdfPath("a.pdf"), QString("a.pdf"));
        QCOMPARE(pdfPath("a.pdf.old"), QString("a.pdf.old"));
    }

    void pagesRepeatCaptionsAndCutNoRow()
    {
        kiv_mat_zpStruct order;
        for (int i = 1; i <= 60; ++i) {
            orderItemStruct *item = appendTo(order.orderItems);
            item->name = QString("NAME%1").arg(i);
            item->description = QString("long description ").repeated(i % 7 * 4);
            item->ktm = QString("LAST%1X").arg(i);
        }
        order.attentions = "<p>the attentions</p>";
        m_page->showHtml(orderReport(order, {}));
        m_view->setZoomFactor(1.5);
        QVector<int> pages;
        const QString path = m_folder->path("new folder/o.pdf");
        QVERIFY(printPdf(m_view.get(), path, "the title", [&](int done, int total) {
            pages = {done, total};
            return true;
        }));
        QVERIFY(pages[0] > 3);
        QCOMPARE(pages[0], pages[1]);
        int lines = 0;
        for (int page = 1; page <= pages[1]; ++page) {
            const QString text = textOf(path, page);
            QVERIFY(text.contains("the title"));
            QVERIFY(text.contains(QRegularExpression(QString("Page no: %1\\b").arg(page))));
            const bool last = page == pages[1];
            QVERIFY2(last || text.contains("Ordinal"), qPrintable(text));
            // A row's first and last line stand on one page.
            for (int i = 1; i <= 60; ++i) {
                const bool first = text.contains(QRegularExpression(QString("NAME%1\\b").arg(i)));
                QCOMPARE(text.contains(QString("LAST%1X").arg(i)), first);
                lines += first;
            }
            if (last)
                QVERIFY(text.contains("the attentions"));
        }
        QCOMPARE(lines, 60);
        QVERIFY(textOf(path, pages[1] + 1).contains("failed"));
    }

    void everyTableIsParted()
    {
        kiv_mat_bomStruct bom;
        for (int i = 1; i <= 40; ++i) {
            auto line = std::make_unique<materialStruct>();
            line->d_ktm = QString("K%1X").arg(i);
            line->d_name = QString("NAME%1 ").arg(i);
            line->d_designator = QString("R%1, ").arg(i).repeated(i % 5 * 9);
            bom.materials.push_back(std::move(line));
        }
        m_page->showHtml(bomReport::page({{&bom, 1}, {&bom, 2}, {&bom, 1}}, {}));
        int pages = 0;
        const QString path = m_folder->path("b.pdf");
        QVERIFY(printPdf(m_view.get(), path, {}, [&pages](int, int total) { return pages = total; }));
        int lines = 0;
        for (int page = 1; page <= pages; ++page) {
            const QString text = textOf(path, page);
            for (int i = 1; i <= 40; ++i) {
                const int begun = text.count(QRegularExpression(QString("NAME%1\\b").arg(i)));
                QCOMPARE(text.count(QString("!!!!!K%1X").arg(i)), begun);
                lines += begun;
            }
            QVERIFY2(page == pages || text.contains("Ordinal"), qPrintable(text));
        }
        QCOMPARE(lines, 120);
    }

    void viewIsLeftAsItWas()
    {
        m_view->setMinimumWidth(100);
        m_view->setMaximumWidth(2000);
        m_view->resize(700, 500);
        m_view->setZoomFactor(1.5);
        kiv_mat_zpStruct order;
        for (int i = 0; i < 40; ++i)
            appendTo(order.orderItems);
        m_page->showHtml(orderReport(order, {}));
        const QString before = m_page->mainFrame()->toHtml();
        QVERIFY(printPdf(m_view.get(), m_folder->path("o.pdf"), {}));
        QCOMPARE(m_view->size(), QSize(700, 500));
        QCOMPARE(m_view->minimumWidth(), 100);
        QCOMPARE(m_view->maximumWidth(), 2000);
        QCOMPARE(m_view->zoomFactor(), 1.5);
        QCOMPARE(m_page->mainFrame()->toHtml(), before);
    }

    void cancelledOrRefusedKeepsTheOldFile()
    {
        const QString path = m_folder->write("o.pdf", "old");
        m_page->showHtml("<p>x</p>");
        QVERIFY(!printPdf(m_view.get(), path, {}, [](int, int) { return false; }));
        QCOMPARE(read(path), QByteArray("old"));
        QVERIFY(!printPdf(m_view.get(), path + "/below.pdf", {}));
        QDir(m_folder->path()).mkdir("d.pdf");
        QVERIFY(!printPdf(m_view.get(), m_folder->path("d.pdf"), {}));
        QVERIFY(printPdf(m_view.get(), path, {}));
        QVERIFY(read(path).startsWith("%PDF"));
    }

    void pageLoadsAndRunsNothing()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QString address = QString("http://127.0.0.1:%1/").arg(server.serverPort());
        m_page->showHtml("<p id='p'>kept</p><script>document.getElementById('p').innerHTML='run'</script>"
                         "<img src='"
                         + address + "i.png'><iframe src='" + address + "f'></iframe><link rel='stylesheet' href='"
                         + address + "s.css'><object data='" + address
                         + "o.swf'></object>"
                           "<meta http-equiv='refresh' content='0;url="
                         + address + "r'>");
        QTest::qWait(300);
        QCOMPARE(m_page->mainFrame()->findFirstElement("#p").toPlainText(), QString("kept"));
        QVERIFY(!server.hasPendingConnections());
    }

private:
    static QString textOf(const QString &pdf, int page)
    {
        const QString number = QString::number(page);
        const ended reader = run("pdftotext", {"-layout", "-f", number, "-l", number, pdf, "-"});
        return reader.code == 0 ? reader.out : "pdftotext failed";
    }
    std::unique_ptr<QWebView> m_view;
    reportPage *m_page = nullptr;
};

KIVZP_TEST(tst_pdfPrinter)
#include "tst_pdfPrinter.moc"
