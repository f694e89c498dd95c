// Documents made by the converters, for which scripts stand here.
#include "testSupport.h"

#include "report/docExport.h"
#include "tools/childRunner.h"
#include "util/files.h"
#include "util/paths.h"

class tst_docExport : public QObject
{
    Q_OBJECT
private slots:
    void converted();
    void stopped();
    void refused();

private:
    void script(const QString &name, const QByteArray &does)
    {
        const QString file = m_folder.write("_bin/" + name, "#!/bin/sh\n" + does);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    testSupport::programFolder m_folder;
    testSupport::recordingPrompts m_shown;
};

void tst_docExport::converted()
{
    script("KIV_HTML_TO_DOC_PDF.exe", "[ $1$2 = --typedoc ] && cp \"$6\" \"$4\"; echo 'a<b'\n");
    script("KIV_TEMPLATE_DOC.exe", "printf ' in %s' \"$2\" >> \"$4\"; [ \"$4\" = \"$6\" ]\n");
    m_folder.write("_files/t x.dotx", "");
    const QString path = m_folder.path("a \"b\".doc");
    QVERIFY(writeDoc("<p>", path, "_files/t x.dotx"));
    QCOMPARE(testSupport::read(path), QByteArray("<p> in _files/t x.dotx"));
    QCOMPARE(m_shown.logged, QString("a&lt;b<br>"));
    // A template that fails leaves the document.
    script("KIV_TEMPLATE_DOC.exe", "exit 1\n");
    QVERIFY(writeDoc("<p>", path, "none"));
    QCOMPARE(testSupport::read(path), QByteArray("<p>"));
}

void tst_docExport::stopped()
{
    script("KIV_HTML_TO_DOC_PDF.exe", "exec sleep 60\n");
    int told = 0;
    const QString path = m_folder.write("kept.doc", "old");
    QVERIFY(!writeDoc("", path, "t", [&told](childRunner *runner) {
        ++told;
        if (runner)
            QMetaObject::invokeMethod(runner, &childRunner::stop, Qt::QueuedConnection);
    }));
    QCOMPARE(told, 2);
    QCOMPARE(testSupport::read(path), QByteArray("old"));
}

void tst_docExport::refused()
{
    script("KIV_HTML_TO_DOC_PDF.exe", "exit 7\n");
    QVERIFY(!writeDoc("", m_folder.path("no.doc"), "t"));
    QFile::remove(m_folder.path("_bin/KIV_HTML_TO_DOC_PDF.exe"));
    QVERIFY(!writeDoc("", m_folder.path("no.doc"), "t"));
    QVERIFY(!QFile::exists(m_folder.path("no.doc")));
}

KIVZP_TEST(tst_docExport)
#include "tst_docExport.moc"
