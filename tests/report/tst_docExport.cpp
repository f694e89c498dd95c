// Documents made by the converters, for which scripts stand here.
#include "testSupport.h"

#include "report/docExport.h"
#include "tools/childRunner.h"

using namespace testSupport;

class tst_docExport : public folderTest
{
    Q_OBJECT
private slots:
    void converted()
    {
        m_folder->script("_bin/KIV_HTML_TO_DOC_PDF.exe", "[ $1$2 = --typedoc ] && cp \"$6\" \"$4\"; echo 'a<b'");
        m_folder->script("_bin/KIV_TEMPLATE_DOC.exe", "printf ' in %s' \"$2\" >> \"$4\"; [ \"$4\" = \"$6\" ]");
        m_folder->write("_files/t x.dotx", "");
        const QString path = m_folder->path("a \"b\".doc");
        QVERIFY(writeDoc("<p>", path, "_files/t x.dotx"));
        QCOMPARE(read(path), QByteArray("<p> in _files/t x.dotx"));
        QCOMPARE(m_shown->logged, QString("a&lt;b<br>"));
        // A template that fails leaves the document.
        m_folder->script("_bin/KIV_TEMPLATE_DOC.exe", "exit 1");
        QVERIFY(writeDoc("<p>", path, "none"));
        QCOMPARE(read(path), QByteArray("<p>"));
    }

    void stopped()
    {
        m_folder->script("_bin/KIV_HTML_TO_DOC_PDF.exe", "exec sleep 60");
        int told = 0;
        const QString path = m_folder->write("kept.doc", "old");
        QVERIFY(!writeDoc("", path, "t", [&told](childRunner *runner) {
            ++told;
            if (runner)
                QMetaObject::invokeMethod(runner, &childRunner::stop, Qt::QueuedConnection);
        }));
        QCOMPARE(told, 2);
        QCOMPARE(read(path), QByteArray("old"));
    }

    void refused()
    {
        m_folder->script("_bin/KIV_HTML_TO_DOC_PDF.exe", "exit 7");
        QVERIFY(!writeDoc("", m_folder->path("no.doc"), "t"));
        QFile::remove(m_folder->path("_bin/KIV_HTML_TO_DOC_PDF.exe"));
        QVERIFY(!writeDoc("", m_folder->path("no.doc"), "t"));
        QVERIFY(!QFile::exists(m_folder->path("no.doc")));
    }
};

KIVZP_TEST(tst_docExport)
#include "tst_docExport.moc"
