#include "testSupport.h"

#include "shell/logos.h"

using namespace testSupport;

class tst_logos : public QObject
{
    Q_OBJECT
private slots:
    void days_data()
    {
        const rows<QString, QString> row;
        row.each({"2026-11-24", "2017-05-01", "2018-03-01", "2018-04-07", "2019-04-10", "2026-10-01"}, "", "");
        row.each({"2026-12-01", "2017-12-31"}, "_christmas", "_christmas");
        row.each({"2017-04-24", "2018-03-26", "2018-04-06"}, "_christmas_3", "_christmas3");
        row.each({"2017-04-25", "2018-04-30"}, "_vacation_2", "");
        row.each({"2026-07-01", "2026-08-31"}, "_vacation", "");
        row("2026-09-30", "_back_to_school", "");
    }

    void days()
    {
        const auto [splash, logo] = fetch<QString, QString>();
        const QDate day = QDate::fromString(QTest::currentDataTag(), Qt::ISODate);
        QCOMPARE(logos::splashPath(day), ":/icons/icons/startup" + splash + "_logo_256.png");
        QCOMPARE(logos::logoPath(day), ":/icons/icons/logo_kiv_zp" + logo + "_128.png");
        QCOMPARE(QPixmap(logos::splashPath(day)).size(), QSize(256, 256));
        QCOMPARE(QPixmap(logos::logoPath(day)).size(), QSize(128, 128));
    }
};

KIVZP_TEST(tst_logos)
#include "tst_logos.moc"
