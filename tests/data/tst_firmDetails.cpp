// The details of firms: whose they are, what becomes of them with their firms, and how they write a basket.
#include "testSupport.h"

#include "data/basketForm.h"
#include "data/firmDetails.h"
#include "firm/firmDetailsMoves.h"

using namespace testSupport;

namespace {

// "NAME/NIP/ADDRESS/COLUMNS", parted by commas; of columns only the number is told.
void fill(kiv_mat_firmDetailsStruct &all, const QString &texts)
{
    for (const QString &text : texts.split(',', Qt::SkipEmptyParts)) {
        auto &one = all.details.emplace_back(std::make_unique<firmDetailsStruct>());
        one->name = text.section('/', 0, 0);
        one->nip = text.section('/', 1, 1);
        one->address = text.section('/', 2, 2);
        for (int column = 0; column < text.section('/', 3, 3).toInt(); ++column)
            one->basket.append(std::make_unique<basketColumnStruct>())->kind = "empty";
    }
}

QString shown(const kiv_mat_firmDetailsStruct &all)
{
    QStringList texts;
    for (const auto &one : all.details) {
        const size_t columns = one->basket.items.size();
        QString text =
            one->name + "/" + one->nip + "/" + one->address + "/" + (columns > 0 ? QString::number(columns) : "");
        while (text.endsWith('/'))
            text.chop(1);
        texts.append(text);
    }
    return texts.join(',');
}

// Makers and sellers, parted by "|": "NAME/NIP,NAME".
void fill(kiv_mat_firmStruct &firms, const QString &lists)
{
    for (const auto kind : {firmOperations::manufacturer, firmOperations::supplier})
        for (const QString &text : lists.section('|', kind, kind).split(',', Qt::SkipEmptyParts)) {
            auto *firm =
                kind == firmOperations::manufacturer ? appendTo(firms.manufacturers) : appendTo(firms.suppliers);
            firm->name = text.section('/', 0, 0);
            firm->nip = text.section('/', 1, 1);
        }
}

} // namespace

class tst_firmDetails : public folderTest
{
    Q_OBJECT
private slots:
    // What is wrong is told with its place, and nothing is made of it.
    void unreadable_data()
    {
        const rows<QByteArray, QString> row;
        row("cut", "\n<details><name>A</name>", "line 3, column");
        row("unknown field", "\n<details><name>A</name><fax/></details>", "column 28: firm A: unknown field fax");
    }
    void unreadable()
    {
        const auto [content, told] = fetch<QByteArray, QString>();
        QByteArray text =
            document("kiv_mat_firm_details", "KIV_MAT_FIRM_DETAILS_1", "kiv_mat_firm_details.xsd", content);
        if (tag() == "cut")
            text.chop(24);
        kiv_mat_firmDetailsStruct all;
        QString fault;
        QVERIFY(!firmDetails::read(m_folder->write("firm_details.xml", text), &all, &fault));
        QVERIFY2(fault.contains(told), qPrintable(fault));
    }

    void missingIsEmpty()
    {
        kiv_mat_firmDetailsStruct all;
        QString fault;
        const QString path = firmDetails::pathBeside(m_folder->path("_files/firms.xml"));
        QCOMPARE(path, m_folder->path("_files/firm_details.xml"));
        QVERIFY(firmDetails::read(path, &all, &fault));
        QVERIFY(fault.isEmpty() && all.details.empty() && m_shown->listed.isEmpty());
        // One that is there and is no file is no missing one.
        QVERIFY(QDir().mkpath(path));
        QVERIFY(!firmDetails::read(path, &all, &fault));
    }

    // The address found for a name and a number.
    void found_data()
    {
        const rows<QString, QString, QString, QString> row;
        row("by its name", "B//b,A//a", "a ", "", "a");
        row("whatever its number", "A/1/a", "A", "2", "a");
        row("by its number", "A/1/a,A/2/b", "A", "2", "b");
        row("as it is written", "A/525-025-02-74/a,A/2/b", "A", "PL 5250250274", "a");
        row("without one", "A/1/a,A//b", "A", "3", "b");
        row("not by another one", "A/1/a,A/2/b", "A", "3", "");
        row("no name", "//a", "", "", "");
    }
    void found()
    {
        const auto [texts, name, nip, address] = fetch<QString, QString, QString, QString>();
        kiv_mat_firmDetailsStruct all;
        fill(all, texts);
        const firmDetailsStruct *one = firmDetails::find(all, name, nip);
        QCOMPARE(one ? one->address : QString(), address);
    }

    void put()
    {
        kiv_mat_firmDetailsStruct all;
        fill(all, "A/1/a,A/2/b");
        firmDetailsStruct one;
        one.name = "A";
        one.nip = "2";
        one.email = "x@y.example";
        firmDetails::put(&all, "a", "2", one);
        QCOMPARE(shown(all), QString("A/1/a,A/2"));
        QCOMPARE(all.details[1]->email, one.email);
        one.name = "C";
        firmDetails::put(&all, "C", "2", one);
        QCOMPARE(shown(all), QString("A/1/a,A/2,C/2"));
        // What says nothing any more goes.
        one.email.clear();
        firmDetails::put(&all, "C", "2", one);
        firmDetails::put(&all, "D", "", one);
        QCOMPARE(shown(all), QString("A/1/a,A/2"));
    }

    // Details, the register before and after, the new names of makers and of sellers, details afterwards.
    void moved_data()
    {
        const rows<QString, QString, QString, QString, QString> row;
        row("renamed", "A//a,B//b", "|A,B", "|C,B", "|A>C", "C//a,B//b");
        row("not renamed", "A//a", "A|", "A|", "", "A//a");
        row("another number", "A/1/a", "|A/1", "|A/2", "", "A/2/a");
        row("number and name", "A//a", "|A", "|B/7", "|A>B", "B/7/a");
        row("changed with each other", "A//a,B//b", "A,B|", "B,A|", "A>B B>A|", "B//a,A//b");
        row("in steps", "A//a", "A|", "C|", "A>B|;B>C|", "C//a");
        row("in the other list, too", "A/1/a", "A/1|A/1", "B/1|A/1", "A>B|", "B/1/a,A/1/a");
        row("in both lists", "A/1/a", "A/1|A/1", "B/1|B/1", "A>B|A>B", "B/1/a");
        row("two numbers", "A/1/a,A/2/b", "A/1|A/2", "B/1|A/2", "A>B|", "B/1/a,A/2/b");
        row("both as they were", "A//a,B//b", "A,B|A/5", "A,C|A/5", "B>C|", "A//a,C//b");
        row("merged", "A//a/2,B//b", "A,B|", "B|", "A>B|A>B", "B//b/2");
        row("merged into none", "A//a/2", "A,B/9|", "B/9|", "A>B|A>B", "B/9/a/2");
        row("merged as listed later", "B/9/b,A/8/a/1", "A/8,B/9|", "B/9|", "A>B|A>B", "B/9/b/1");
        row("over what nobody has", "B//old,A//a", "A|", "B|", "A>B|", "B//a");
        row("gone", "A//a,B//b", "A,B|", "B|", "", "A//a,B//b");
        row("letters", "tme//a", "|TME", "|Tme", "|TME>Tme", "Tme//a");
    }
    void moved()
    {
        const auto [details, before, after, names, wanted] = fetch<QString, QString, QString, QString, QString>();
        kiv_mat_firmDetailsStruct all;
        fill(all, details);
        kiv_mat_firmStruct was;
        fill(was, before);
        kiv_mat_firmStruct is;
        fill(is, after);
        firmOperations::renameList steps;
        for (const QString &text : names.split(';', Qt::SkipEmptyParts)) {
            firmOperations::renameStep step;
            for (const auto kind : {firmOperations::manufacturer, firmOperations::supplier})
                for (const QString &name : text.section('|', kind, kind).split(' ', Qt::SkipEmptyParts))
                    step[kind].insert(name.section('>', 0, 0), name.section('>', 1));
            steps.push_back(step);
        }
        QCOMPARE(firmOperations::moveDetails(&all, was, is, steps), wanted != details);
        QCOMPARE(shown(all), wanted);
        // Nothing is left to be done.
        QVERIFY(!firmOperations::moveDetails(&all, is, is, {}));
    }

    void typedTexts_data()
    {
        const rows<bool, bool> row; // an e-mail address, a discount
        row("", true, true);
        row.each({"a@b.pl", "zakupy+kivzp@sklep.example.com", "\u017c@\u0142.pl"}, true, false);
        row.each({"a", "a@b", "@b.pl", "a@b.", "a b@c.pl", "a@b.pl, c@d.pl", "A <a@b.pl>", "-1", "100,1", "1e3", "5%"},
                 false, false);
        row.each({"0", "100", "2,5", "12.25"}, false, true);
    }
    void typedTexts()
    {
        const auto [isMail, isDiscount] = fetch<bool, bool>();
        QCOMPARE(firmDetails::emailFault(tag()).isEmpty(), isMail);
        QCOMPARE(firmDetails::discountFault(tag()).isEmpty(), isDiscount);
        QCOMPARE(firmDetails::shareAfterDiscount(tag()).text() != "1", isDiscount && tag() != "" && tag() != "0");
    }

    // Columns as "KIND CAPTION TEXT", parted by commas; captions or not; what is written of one line.
    void written_data()
    {
        const rows<QString, QString, bool, QString> row;
        row("usual", "comma", "", true, "Part number,Quantity,Customer reference|\"A,1\"\"\",2.5,K-1");
        row("no captions", "comma", "", false, "\"A,1\"\"\",2.5,K-1");
        row("semicolon", "semicolon", "part_number S;,empty,quantity Q", true, "\"S;\";;Q|\"A,1\"\"\";;2.5");
        row("tab", "tab", "quantity Q,own_reference R,text T x;y", true, "Q\tR\tT|2.5\tK-1\tx;y");
        row("line ends", "comma", "name N,manufacturer M,designators D", true,
            "N,M,D|\"a, b\",\"M \"\"q\"\"\",\"R1, R2\"");
        row("none that is known", "pipe", "colour C", true, "C|");
    }
    void written()
    {
        const auto [separator, columns, captions, text] = fetch<QString, QString, bool, QString>();
        firmDetailsStruct form;
        form.separator = separator;
        form.captions = captions ? "TAK" : "NIE";
        for (const QString &column : columns.split(',', Qt::SkipEmptyParts)) {
            auto *added = appendTo(form.basket);
            added->kind = column.section(' ', 0, 0);
            added->caption = column.section(' ', 1, 1);
            added->text = column.section(' ', 2);
        }
        const basketForm::values line{"A,1\"", "2.5", "K-1", "M \"q\"", "a,\n b", "R1, R2"};
        QString wanted = text;
        QCOMPARE(basketForm::text(form, {line}), wanted.replace('|', "\r\n") + "\r\n");
    }
};

KIVZP_TEST(tst_firmDetails)
#include "tst_firmDetails.moc"
