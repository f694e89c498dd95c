// Changes of many materials: what a plan says, and what carrying it out leaves.
#include "database/bulkEdit.h"
#include "testSupport.h"

#include <numeric>

using namespace testSupport;
using bulkEdit::request;

namespace {

QByteArray saved(const kiv_mat_databaseStruct &database)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    for (const auto &group : database.groups)
        group->writeXml(&writer);
    return bytes;
}

std::vector<bulkEdit::place> all(kiv_mat_databaseStruct &database)
{
    std::vector<bulkEdit::place> places;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            places.push_back({material.get(), group.get(), &database});
    return places;
}

bulkEdit::plan planOf(const request &wanted, kiv_mat_databaseStruct &database)
{
    ktmIndex index;
    index.add(&database);
    return bulkEdit::planOf(wanted, all(database), index);
}

std::vector<int> every(const bulkEdit::plan &plan)
{
    std::vector<int> rows(plan.changes.size());
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

// "after" of what changes, "! reason" of what is refused, "=" of what stays.
QString resultOf(const bulkEdit::plan &plan)
{
    QStringList texts;
    for (const bulkEdit::row &row : plan.changes)
        texts.append(row.after);
    for (const bulkEdit::row &row : plan.refused)
        texts.append("! " + row.refusal);
    for (int i = 0; i < plan.unchanged; ++i)
        texts.append("=");
    return texts.join('|');
}

QString ktm(int number) { return QString("317111-01.01-%1").arg(number, 5, 10, QChar('0')); }

} // namespace

class tst_bulkEdit : public folderTest
{
    Q_OBJECT
private slots:
    void set_data()
    {
        const rows<QString, QString, QString, QString> row; // field, before, set, result
        row("price", "d_price", "", "1 234,5 zł", "1234.50");
        row("written otherwise", "d_price", "0,10", "0.1", "=");
        row("no price", "price", "0,10", "ten", "! ten is not a number");
        row("empty price", "cena", "0,10", " ", "");
        row("no number before", "d_price", "ask", "0", "0.00");
        row("pieces", "stock", "1", "1.5", "! 1.5: only a whole number makes sense here");
        row("cpv", "cpv", "", "31712114-2", "31712114-2");
        row("no cpv", "cpv", "31712114-2", "31712114", "! CPV syntax error");
        row("cpv away", "cpv", "31712114-2", "", "");
        row("colour", "status", "SZARY", "green", "ZIELONY");
        row("same colour", "status", "ZIELONY", "Zielony", "=");
        row("no colour", "status", "", "red", "! \"red\" is not in the list");
        row("yes", "d_active", "NIE", "yes", "TAK");
        row("other unit", "unit", "pcs.", " blister ", "blister");
        row("lines", "d_description", "", "a\nb\x01", "a b");
        row("ktm", "ktm", "", ktm(7), ktm(7));
        row("no ktm", "ktm", ktm(1), "", "! Ktm syntax error");
        row("endless", "d_name", "", QString(40000, 'a'), "! The text would be too long");
    }
    void set()
    {
        const auto [name, before, text, result] = fetch<QString, QString, QString, QString>();
        kiv_mat_databaseStruct database;
        materialStruct *only = material(database, "G", "", "N");
        only->d_unit = "pcs.";
        const bulkEdit::field *field = bulkEdit::findField(name);
        QVERIFY(field);
        field->of(*only) = before;
        QCOMPARE(resultOf(planOf({request::set, field, text, {}}, database)), result);
    }

    void replace_data()
    {
        const rows<QString, QString, QString, QString, QString> row; // options, before, text, with, result
        row("text", "", "10k 10K", "10k", "4k7", "4k7 10K");
        row("case", "i", "10k 10K", "10k", "4k7", "4k7 4k7");
        row("signs", "", "a.b*", ".b*", "$1", "a$1");
        row("not there", "", "abc", "x", "y", "=");
        row("groups", "p", "R 0603 1%", "^R (\\d+) (.*)$", "$2/\\1 $$ $0", "1%/0603 $ R 0603 1%");
        row("group that found nothing", "p", "b", "(a)?b", "[$1]", "[]");
        row("letters", "pi", "Żółty ŻÓŁTY", "ż(\\w+)", "$1", "ółty ÓŁTY");
        row("nothing", "p", "ab", "x*", "-", "-a-b-");
        row("pairs", "p", QString::fromUtf8("\xf0\x9f\x94\x8b"), "x*", "-", QString::fromUtf8("-\xf0\x9f\x94\x8b-"));
        row("behind", "p", "aab", "(?<=a)a", "x", "axb");
        row("slow", "p", QString(40, 'a') + "b", "(a+)+$", "", "! The pattern takes too long on this text");
    }
    void replace()
    {
        const auto [options, before, text, with, result] = fetch<QString, QString, QString, QString, QString>();
        kiv_mat_databaseStruct database;
        material(database, "G", "", before);
        const request wanted{request::replace,      bulkEdit::findField("d_name"), text, with,
                             options.contains('p'), !options.contains('i')};
        QVERIFY(bulkEdit::faultsOf(wanted, database).none());
        QCOMPARE(resultOf(planOf(wanted, database)), result);
    }

    // A pattern that is slow everywhere ends soon.
    void slowEverywhere()
    {
        kiv_mat_databaseStruct database;
        for (int i = 0; i < 2000; ++i)
            material(database, "G", "", QString(60, 'a') + 'b');
        const auto plan = planOf({request::replace, bulkEdit::findField("d_name"), "(a+)+$", "", true}, database);
        QVERIFY(plan.changes.empty() && plan.refused.empty() && !plan.cancelled);
        QCOMPARE(plan.note, QString("The pattern takes too long: make it simpler"));
    }

    void faults_data()
    {
        const rows<int, QString, QString, QString, QString> row; // kind, text, with, fault of each
        row("nothing", request::replace, "", "x", "Type what is to be replaced", "");
        row("bracket", request::replace, "ab(c", "", "Character 5: missing closing parenthesis", "");
        row("limit", request::replace, "(*LIMIT_MATCH=4000000000)a", "", "", "");
        row("group", request::replace, "(a)", "$2", "", "The pattern has 1 bracket");
        row("no template", request::compose, " ", "", "Type a template", "");
        row("open", request::compose, "{value} {case", "", "A \"{\" has no \"}\" behind it", "");
        row("close", request::compose, "value}", "", "A \"}\" has no \"{\" before it", "");
        row("field", request::compose, "{value} {colour}", "", "There is no field \"colour\"", "");
        row("good", request::compose, "{{{Wartość}}} { d }", "", "There is no field \"d\"", "");
        row("no group", request::toGroup, "H", "", "There is no group of this name", "");
        row("no firm", request::addSupplier, "", "{x}", "Choose a firm", "There is no field \"x\"");
    }
    void faults()
    {
        const auto [kind, text, with, fault, faultWith] = fetch<int, QString, QString, QString, QString>();
        kiv_mat_databaseStruct database;
        material(database, "G", "");
        const request wanted{request::requestKind(kind), bulkEdit::findField("name"), text, with, true};
        const bulkEdit::faults found = bulkEdit::faultsOf(wanted, database);
        QCOMPARE(found.text.left(qMax(fault.size(), 1)), fault);
        QCOMPARE(found.with.left(qMax(faultWith.size(), 1)), faultWith);
    }

    void compose_data()
    {
        const rows<QString, QString> row;
        row("fields", "Rezystor {value}  {obudowa} {power}", "Rezystor 10k 0603");
        row("braces", "{{{value}}}", "{10k}");
        row("first of several", "{part} {manufacturer} {group}", "RC-1 Yageo G");
        row("only text", "Rezystor", "Rezystor");
        row("all empty", "R {power} {voltage}", "! The fields of the template are empty");
        row("same", "{name}", "=");
    }
    void compose()
    {
        const auto [text, result] = fetch<QString, QString>();
        kiv_mat_databaseStruct database;
        materialStruct *only = material(database, "G", "", "N");
        only->d_value = "10k";
        only->d_case = "0603";
        manufacturer(only, "", "");
        manufacturer(only, "Yageo", "RC-1");
        supplier(only, "TME", "T-2");
        QCOMPARE(resultOf(planOf({request::compose, bulkEdit::findField("name"), text, {}}, database)), result);
    }

    void paste_data()
    {
        const rows<QString, QString, QString> row;
        row("a line each", "a\r\nb\r\nc\r\n", "a|b|c", "");
        row("too few", "a\nb", "a|b|=", "2 line");
        row("empty line", "a\n\nc", "a||c", "");
        row("by ktm", ktm(3) + "\tz\n" + ktm(9) + "\ty\n" + ktm(1) + "\tx", "x|z|=", "1 KTM");
        row("tab in one line", "a\nb\tc\nd", "a|b\tc|d", "");
    }
    void paste()
    {
        const auto [text, result, note] = fetch<QString, QString, QString>();
        kiv_mat_databaseStruct database;
        for (int i = 1; i <= 3; ++i)
            material(database, "G", ktm(i), "N");
        const auto plan = planOf({request::paste, bulkEdit::findField("name"), text, {}}, database);
        QCOMPARE(resultOf(plan), result);
        QCOMPARE(plan.note.left(qMax(note.size(), 1)), note);
    }

    void ktms_data()
    {
        const rows<QString, QString> row; // the new numbers of 1, 2, 3, 4; the result
        row("free", "5 6 7 8", "5|6|7|8");
        row("turned", "2 3 4 1", "2|3|4|1");
        row("moved up", "2 3 4 5", "2|3|4|5");
        row("twice", "5 5 6 7", "5|6|7|! Another selected material gets this KTM");
        row("of one that stays", "2 2 6 7", "6|7|! Another material has this KTM|=");
        // 4 may not, so that 3 may not, and so on.
        row("chain", "2 3 4 9",
            "! Another material has this KTM|! Another material has this KTM|! Another material "
            "has this KTM|! Another material has this KTM");
        row("not chosen", "9 6 7 8", "6|7|8|! Another material has this KTM");
    }
    void ktms()
    {
        const auto [numbers, result] = fetch<QString, QString>();
        kiv_mat_databaseStruct database;
        for (int i = 1; i <= 4; ++i)
            material(database, "G", ktm(i));
        material(database, "H", ktm(9));
        QStringList lines;
        for (const QString &number : numbers.split(' '))
            lines.append(ktm(number.toInt()));
        ktmIndex index;
        index.add(&database);
        auto places = all(database);
        places.pop_back();
        const auto plan =
            bulkEdit::planOf({request::paste, bulkEdit::findField("ktm"), lines.join('\n'), {}}, places, index);
        QCOMPARE(resultOf(plan).remove("317111-01.01-0000"), result);
    }

    // Whatever is asked for, no two materials have one KTM afterwards, and what is refused would have had one.
    void anyKtms()
    {
        QRandomGenerator random(20261125);
        for (int round = 0; round < 300; ++round) {
            kiv_mat_databaseStruct database;
            QStringList lines;
            for (int i = 0; i < 12; ++i) {
                material(database, "G", ktm(i));
                lines.append(ktm(random.bounded(16)));
            }
            const auto plan = planOf({request::paste, bulkEdit::findField("ktm"), lines.join('\n'), {}}, database);
            bulkEdit::changes(plan, every(plan)).apply({}, {});
            QSet<QString> seen;
            for (const auto &one : database.groups[0]->items)
                seen.insert(one->d_ktm);
            QCOMPARE(seen.size(), 12);
            for (const bulkEdit::row &row : plan.refused)
                QVERIFY(seen.contains(row.after));
        }
    }

    void firms()
    {
        kiv_mat_databaseStruct database;
        manufacturer(material(database, "G", ktm(1)), "Yageo", "RC-1");
        supplier(material(database, "G", ktm(2)), "TME", "T-2");
        const auto plan = planOf({request::addSupplier, nullptr, "TME", "{part}"}, database);
        QCOMPARE(resultOf(plan), QString("RC-1|="));
        QCOMPARE(bulkEdit::shownAfter(plan.made, plan.changes[0]), QString("TME RC-1"));
        bulkEdit::changes changes(plan, {0});
        changes.apply({}, {});
        const supplierStruct *added = all(database)[0].material->suppliers.items.at(0).get();
        QCOMPARE(added->name, QString("TME"));
        // The same record comes back, which later steps may point to.
        changes.revert({}, {});
        QVERIFY(all(database)[0].material->suppliers.items.empty());
        changes.apply({}, {});
        QCOMPARE(all(database)[0].material->suppliers.items.at(0).get(), added);
    }

    void groups()
    {
        kiv_mat_databaseStruct database;
        material(database, "G", ktm(1));
        material(database, "H", ktm(2));
        QCOMPARE(resultOf(planOf({request::toGroup, nullptr, "H", {}}, database)), QString("H|="));
    }

    // Cancelled in the middle, or taken back, nothing is changed; each is told before and after.
    void carriedOut()
    {
        kiv_mat_databaseStruct database;
        for (int i = 0; i < 200; ++i)
            material(database, "G", ktm(i), QString::number(i));
        const QByteArray before = saved(database);
        const auto plan = planOf({request::set, bulkEdit::findField("name"), "7", {}}, database);
        QCOMPARE(int(plan.changes.size()), 199);
        QCOMPARE(saved(database), before);
        bulkEdit::changes changes(plan, every(plan));
        int open = 0;
        int told = 0;
        const auto begins = [&](const bulkEdit::place &) { QCOMPARE(open++, 0); };
        const auto ends = [&](const bulkEdit::place &) { --open, ++told; };
        QVERIFY(!changes.apply(begins, ends, [](qint64 done, qint64) { return done < 100; }));
        QCOMPARE(saved(database), before);
        QCOMPARE(told, 2 * 128);
        QVERIFY(changes.apply(begins, ends));
        QCOMPARE(saved(database).count("<d_name>7</d_name>"), 200);
        changes.revert(begins, ends);
        QCOMPARE(saved(database), before);
        QVERIFY(bulkEdit::planOf(plan.made, all(database), {}, [](qint64, qint64) { return false; }).cancelled);
    }

    // Each can be named as in files, and its text is its own.
    void fieldNames()
    {
        QSet<const QString *> texts;
        const materialStruct none;
        for (const bulkEdit::field &field : bulkEdit::fields()) {
            QCOMPARE(bulkEdit::findField(field.name), &field);
            texts.insert(&field.of(none));
        }
        QCOMPARE(texts.size(), int(bulkEdit::fields().size()));
        QCOMPARE(bulkEdit::findField("inne")->name, QString("d_otherParameters"));
        QVERIFY(!bulkEdit::findField("manufacturer") && !bulkEdit::findField("d_quantity"));
    }
};

KIVZP_TEST(tst_bulkEdit)
#include "tst_bulkEdit.moc"
