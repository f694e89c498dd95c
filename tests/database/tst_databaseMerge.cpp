// Two databases compared, merged and updated.
#include "testSupport.h"

#include "database/databaseMerge.h"

using namespace testSupport;

namespace {

// One letter a difference: + new, ~ changed or = once more with the fields, - absent, c the CPV of a group.
QStringList summary(const comparison &result)
{
    QStringList lines;
    for (const materialDifference &d : result.differences) {
        QStringList fields;
        for (int field : d.fields)
            fields.append(comparedFields()[size_t(field)].name);
        if (d.moved)
            fields.append("group");
        const materialStruct *m = d.other ? d.other : d.mine;
        if (!m) {
            lines.append('c' + d.myGroup->name);
            continue;
        }
        lines.append(QString("%1%2 %3").arg("+~-=c"[d.kind]).arg(m->d_ktm, fields.join(' ')));
    }
    return lines;
}

} // namespace

class tst_databaseMerge : public QObject
{
    Q_OBJECT
private slots:
    // A difference in any field of the file, and in that one only, is found and taken over.
    void everyFieldCounts()
    {
        QCOMPARE(int(comparedFields().size()), 24 + 8 + 2);
        for (size_t i = 0; i < comparedFields().size(); ++i) {
            const comparedField &field = comparedFields()[i];
            kiv_mat_databaseStruct mine;
            material(mine, "A", "K", "n");
            kiv_mat_databaseStruct other;
            materialStruct *o = material(other, "A", "K", "n");
            if (field.name == "d_ktm")
                continue;
            if (field.name == "manufacturers") {
                manufacturer(o, "Y", "1", "link");
            } else if (field.name == "suppliers") {
                o->suppliers.append(std::make_unique<supplierStruct>())->partNo = "2";
            } else {
                for (const auto &f : materialStruct::fields())
                    if (f.name == field.name)
                        o->*f.member = "x";
                for (const auto &f : informationsStruct::fields())
                    if (f.name == field.name)
                        o->information.*f.member = "x";
            }
            comparison found = compareDatabases(mine, other);
            QCOMPARE(summary(found), QStringList("~K " + field.name));
            QVERIFY(field.text(*o) != field.text(*found.differences[0].mine));
            carryOut(found.differences, absentOnes::keep, &mine);
            QVERIFY(compareDatabases(mine, other).differences.empty());
            // A copy, not the other's own.
            o->manufacturers.items.clear();
            QCOMPARE(int(mine.groups[0]->items[0]->manufacturers.items.size()), field.name == "manufacturers" ? 1 : 0);
        }
    }

    void differencesInFileOrder()
    {
        kiv_mat_databaseStruct mine;
        material(mine, "A", "1");
        material(mine, "A", "2")->d_description = "Text";
        material(mine, "B", "3");
        kiv_mat_databaseStruct other;
        material(other, "C", "4");
        material(other, "C", "2")->d_description = "text";
        material(other, "C", "1");
        QCOMPARE(summary(compareDatabases(mine, other)),
                 QStringList({"+4 ", "~2 d_description group", "~1 group", "-3 "}));
        QCOMPARE(deletedLines(compareDatabases(mine, other).differences),
                 QStringList({"Materials deleted<br>", "<b>3</b> &nbsp;[B]<br>"}));
        QVERIFY(deletedLines(compareDatabases(mine, mine).differences).isEmpty());
    }

    void repeatedAndMissingKtms()
    {
        const auto fill = [](kiv_mat_databaseStruct &database) {
            material(database, "A", "1", "first");
            material(database, "A", "1", "second");
            material(database, "A", "", "nameless key");
            material(database, "A", "", "another");
        };
        kiv_mat_databaseStruct mine;
        kiv_mat_databaseStruct other;
        fill(mine);
        fill(other);
        QCOMPARE(summary(compareDatabases(mine, other)), QStringList());
        material(other, "A", "1", "third");
        material(other, "A", "", "new");
        other.groups[0]->items[1]->d_name = "changed";
        other.groups[0]->items.erase(other.groups[0]->items.begin() + 2);
        QCOMPARE(summary(compareDatabases(mine, other)), QStringList({"~1 d_name", "=1 d_name", "+ ", "- "}));
    }

    // What stands elsewhere goes there with its fields, its old place goes, and a group gets its CPV.
    void groupsCount()
    {
        kiv_mat_databaseStruct mine;
        materialStruct *m = material(mine, "A", "1", "name");
        material(mine, "A", "2");
        mine.groups[0]->cpv = "31712114-2";
        kiv_mat_databaseStruct other;
        material(other, "B", "1", "new name");
        material(other, "A", "2");
        const comparison found = compareDatabases(mine, other);
        QCOMPARE(summary(found), QStringList({"~1 d_name group", "cA"}));
        QCOMPARE(found.differences[0].mine, m);
        carryOut(found.differences, absentOnes::keep, &mine);
        QCOMPARE(summary(compareDatabases(mine, other)), QStringList());
        QCOMPARE(mine.materialCount(), 2);
        QCOMPARE(mine.groups[0]->cpv, QString());
    }

    void mergeTakesWhatIsSelected()
    {
        kiv_mat_databaseStruct mine;
        materialStruct *m = material(mine, "A", "1", "old name");
        m->d_price = "1";
        material(mine, "A", "absent");
        kiv_mat_databaseStruct other;
        material(other, "A", "1", "new name")->d_price = "2";
        material(other, "A", "2");
        material(other, "New", "3");
        other.groups[1]->cpv = "31711130-3";
        comparison found = compareDatabases(mine, other);
        QCOMPARE(int(found.differences.size()), 4);
        // The name is kept, the second material is left out.
        std::vector<materialDifference> selected{found.differences[0], found.differences[2], found.differences[3]};
        std::erase_if(selected[0].fields, [](int f) { return comparedFields()[size_t(f)].name == "d_name"; });
        carryOut(selected, absentOnes::keep, &mine);
        QCOMPARE(m->d_name, QString("old name"));
        QCOMPARE(m->d_price, QString("2"));
        QCOMPARE(int(mine.groups[0]->items.size()), 2);
        QCOMPARE(mine.groups[1]->cpv, QString("31711130-3"));
        QCOMPARE(mine.groups[1]->items[0]->d_ktm, QString("3"));
        QVERIFY(mine.groups[1]->items[0].get() != other.groups[1]->items[0].get());
    }

    // A part of what changed: fields, the place, both or nothing; whatever else differs stays whole.
    void parts_data()
    {
        const rows<QString, QStringList> row;
        row("all", "d_name d_price group", {"+2 ", "~1 d_name d_price group", "cA"});
        row("a field", "d_price", {"+2 ", "~1 d_price", "cA"});
        row("the place", "group", {"+2 ", "~1 group", "cA"});
        row("nothing of it", "d_value", {"+2 ", "cA"});
    }
    void parts()
    {
        const auto [names, left] = fetch<QString, QStringList>();
        kiv_mat_databaseStruct mine;
        material(mine, "A", "1", "name");
        kiv_mat_databaseStruct other;
        material(other, "A", "2");
        material(other, "B", "1", "new name")->d_price = "2";
        other.groups[0]->cpv = "31712114-2";
        comparison found = compareDatabases(mine, other);
        std::erase_if(found.differences, [names = names](materialDifference &d) {
            return !narrow(d, [&](int place) {
                return names.split(' ').contains(place == groupPlace() ? "group"
                                                                       : comparedFields()[size_t(place)].name);
            });
        });
        QCOMPARE(summary(found), left);
        carryOut(found.differences, absentOnes::keep, &mine);
        const QString group = names.contains("group") ? "B" : "A";
        const materialStruct &m = *testSupport::group(mine, group)->items.at(0);
        QCOMPARE(m.d_name, QString(names.contains("d_name") ? "new name" : "name"));
        QCOMPARE(m.d_price, QString(names.contains("d_price") ? "2" : ""));
    }

    void usesAreListed()
    {
        kiv_mat_zpStruct order;
        order.filePath = "o.xml";
        for (const char *ktm : {"1", "2", "1"})
            order.orderItems.append(std::make_unique<orderItemStruct>())->ktm = ktm;
        QCOMPARE(usesOf({"1", "3"}, order), QStringList({"<b>1</b> &nbsp;[o.xml]<br>", "<b>1</b> &nbsp;[o.xml]<br>"}));
        kiv_mat_bomStruct bom;
        bom.filePath = "b.xml";
        bom.materials.push_back(std::make_unique<materialStruct>());
        bom.materials[0]->d_ktm = "3";
        bom.materials[0]->d_name = "<n>";
        QCOMPARE(usesOf({"1", "3"}, bom), QStringList("<b>3</b> &lt;n&gt;&nbsp;[b.xml]<br>"));
    }

    void cancelled()
    {
        kiv_mat_databaseStruct mine;
        kiv_mat_databaseStruct other;
        for (int i = 0; i < 200; ++i)
            material(other, "A", QString::number(i));
        const comparison result = compareDatabases(mine, other, [](long long done, long long) { return done < 100; });
        QVERIFY(result.cancelled);
        QVERIFY(result.differences.empty());
    }
};

KIVZP_TEST(tst_databaseMerge)
#include "tst_databaseMerge.moc"
