#include "database/databaseMerge.h"

#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QHash>

namespace {

template <class List>
QString sourcesText(const List &list)
{
    QStringList lines;
    for (const auto &source : list.items) {
        QStringList parts{source->name, source->partNo, source->description};
        parts.removeAll(QString());
        lines.append(parts.join(QLatin1Char(' ')));
        for (const auto &file : source->files.items)
            lines.append(file->name);
    }
    return lines.join(QLatin1Char('\n'));
}

template <class List>
comparedField sourcesField(const QString &name, QString (*caption)(), List materialStruct::*list)
{
    return {name, caption, [list](const materialStruct &m) { return sourcesText(m.*list); },
            [list](const materialStruct &a, const materialStruct &b) { return a.*list == b.*list; },
            [list](materialStruct &to, const materialStruct &from) {
                (to.*list).items.clear();
                for (const auto &source : (from.*list).items)
                    (to.*list).append(source->copy());
            }};
}

std::vector<comparedField> makeFields()
{
    std::vector<comparedField> result;
    for (const auto &field : materialStruct::fields()) {
        const auto member = field.member;
        result.push_back({field.name, field.label,
                          [member](const materialStruct &m) { return m.*member; },
                          [member](const materialStruct &a, const materialStruct &b) {
                              return a.*member == b.*member;
                          },
                          [member](materialStruct &to, const materialStruct &from) {
                              to.*member = from.*member;
                          }});
    }
    for (const auto &field : informationsStruct::fields()) {
        const auto member = field.member;
        result.push_back({field.name, field.label,
                          [member](const materialStruct &m) { return m.information.*member; },
                          [member](const materialStruct &a, const materialStruct &b) {
                              return a.information.*member == b.information.*member;
                          },
                          [member](materialStruct &to, const materialStruct &from) {
                              to.information.*member = from.information.*member;
                          }});
    }
    result.push_back(sourcesField(manufacturersStruct::element, labels::manufacturers,
                                  &materialStruct::manufacturers));
    result.push_back(
        sourcesField(suppliersStruct::element, labels::suppliers, &materialStruct::suppliers));
    return result;
}

// What a material is found again by: its KTM, else its name, told apart by a character that no KTM
// has.
QString keyOf(const materialStruct &material)
{
    return material.d_ktm.isEmpty() ? QLatin1Char('\n') + material.d_name : material.d_ktm;
}

// The materials of a database by key. Each is met once, in file order.
class materialPool
{
public:
    struct place
    {
        materialStruct *material;
        d_groupStruct *group;
        int next = -1; // the next with the same key
        bool met = false;
    };

    explicit materialPool(kiv_mat_databaseStruct &database)
    {
        const int count = database.materialCount();
        m_places.reserve(size_t(count));
        for (const auto &group : database.groups)
            for (const auto &material : group->items)
                m_places.push_back({material.get(), group.get()});
        m_first.reserve(count);
        for (int i = count - 1; i >= 0; --i) {
            place &p = m_places[size_t(i)];
            int &first =
                m_first.insert(keyOf(*p.material), m_first.value(keyOf(*p.material), -1)).value();
            p.next = first;
            first = i;
        }
    }

    // The first one with that key that was not met and is accepted; null when there is none.
    template <class Accept>
    const place *meet(const QString &key, const Accept &accept)
    {
        const auto first = m_first.find(key);
        if (first == m_first.end())
            return nullptr;
        for (int *link = &*first; *link >= 0;) {
            place &p = m_places[size_t(*link)];
            if (accept(*p.material)) {
                p.met = true;
                *link = p.next;
                return &p;
            }
            link = &p.next;
        }
        return nullptr;
    }

    const std::vector<place> &places() const { return m_places; }

private:
    std::vector<place> m_places;
    QHash<QString, int> m_first;
};

std::vector<int> differingFields(const materialStruct &mine, const materialStruct &other)
{
    std::vector<int> fields;
    const std::vector<comparedField> &table = comparedFields();
    for (size_t i = 0; i < table.size(); ++i)
        if (!table[i].equal(mine, other))
            fields.push_back(int(i));
    return fields;
}

// The groups of a database by name, of several with one name the first; missing ones are made.
class groupFinder
{
public:
    groupFinder(const kiv_mat_databaseStruct &database, databaseTarget &target)
        : m_target(target)
    {
        m_groups.reserve(int(database.groups.size()));
        for (auto group = database.groups.rbegin(); group != database.groups.rend(); ++group)
            m_groups.insert((*group)->name, group->get());
    }

    d_groupStruct *like(const d_groupStruct &other)
    {
        d_groupStruct *&found = m_groups[other.name];
        if (!found) {
            auto made = std::make_unique<d_groupStruct>();
            made->name = other.name;
            made->cpv = other.cpv;
            found = m_target.addGroup(std::move(made));
        }
        return found;
    }

private:
    databaseTarget &m_target;
    QHash<QString, d_groupStruct *> m_groups;
};

class recordTarget final : public databaseTarget
{
public:
    explicit recordTarget(kiv_mat_databaseStruct *database)
        : m_database(database)
    {
    }
    d_groupStruct *addGroup(std::unique_ptr<d_groupStruct> group) override
    {
        m_database->groups.push_back(std::move(group));
        return m_database->groups.back().get();
    }
    void add(d_groupStruct *group, std::unique_ptr<materialStruct> material) override
    {
        group->append(std::move(material));
    }
    void replace(d_groupStruct *, materialStruct *material,
                 std::unique_ptr<materialStruct> content) override
    {
        for (const comparedField &field : comparedFields())
            field.take(*material, *content);
    }
    void remove(d_groupStruct *group, const QSet<const materialStruct *> &materials) override
    {
        std::erase_if(group->items, [&materials](const auto &material) {
            return materials.contains(material.get());
        });
    }

private:
    kiv_mat_databaseStruct *m_database;
};

comparison cancelledComparison()
{
    comparison result;
    result.cancelled = true;
    return result;
}

QString useLine(const QString &ktm, const QString &name, const QString &path)
{
    return QLatin1String("<b>") + ktm.toHtmlEscaped() + QLatin1String("</b> ")
           + name.toHtmlEscaped() + QLatin1String("&nbsp;[") + path.toHtmlEscaped()
           + QLatin1String("]<br>");
}

} // namespace

const std::vector<comparedField> &comparedFields()
{
    static const std::vector<comparedField> fields = makeFields();
    return fields;
}

comparison compareDatabases(kiv_mat_databaseStruct &mine, const kiv_mat_databaseStruct &other,
                            const progressFunction &progress)
{
    comparison result;
    materialPool pool(mine);
    progressSteps steps(progress, 2 * qint64(other.materialCount()));
    // Equal ones meet first, so that of several with one KTM only those are left that differ.
    std::vector<std::pair<const materialStruct *, const d_groupStruct *>> left;
    for (const auto &group : other.groups) {
        for (const auto &material : group->items) {
            const auto equal = [&](const materialStruct &m) { return m == *material; };
            if (!pool.meet(keyOf(*material), equal))
                left.push_back({material.get(), group.get()});
            if (!steps.next())
                return cancelledComparison();
        }
    }
    for (const auto &[material, group] : left) {
        const materialPool::place *known =
            pool.meet(keyOf(*material), [](const materialStruct &) { return true; });
        if (known)
            result.differences.push_back({materialDifference::changed, known->material,
                                          known->group, material, group,
                                          differingFields(*known->material, *material)});
        else
            result.differences.push_back(
                {materialDifference::added, nullptr, nullptr, material, group, {}});
        if (!steps.next())
            return cancelledComparison();
    }
    for (const materialPool::place &p : pool.places())
        if (!p.met)
            result.differences.push_back(
                {materialDifference::absent, p.material, p.group, nullptr, nullptr, {}});
    return result;
}

QString allMaterialsInDatabase()
{
    return QCoreApplication::translate("databaseMerge", "All materials in database");
}

bool carryOut(const std::vector<materialDifference> &plan, absentOnes absent,
              const kiv_mat_databaseStruct &mine, databaseTarget &target,
              const progressFunction &progress)
{
    const auto total = qint64(plan.size());
    qint64 done = 0;
    // One of them may open a group, which takes a while: each is told.
    const auto next = [&] { return !progress || progress(++done, total); };
    groupFinder groups(mine, target);
    // By group, in the order in which the plan names them.
    std::vector<std::pair<d_groupStruct *, QSet<const materialStruct *>>> doomed;
    QHash<const d_groupStruct *, size_t> doomedPlaces;
    for (const materialDifference &difference : plan) {
        switch (difference.kind) {
        case materialDifference::added:
            target.add(groups.like(*difference.otherGroup), difference.other->copy());
            break;
        case materialDifference::changed: {
            auto content = difference.mine->copy();
            for (int field : difference.fields)
                comparedFields()[size_t(field)].take(*content, *difference.other);
            target.replace(difference.myGroup, difference.mine, std::move(content));
            break;
        }
        case materialDifference::absent:
            if (absent == absentOnes::keep)
                break;
            if (!doomedPlaces.contains(difference.myGroup)) {
                doomedPlaces.insert(difference.myGroup, doomed.size());
                doomed.push_back({difference.myGroup, {}});
            }
            doomed[doomedPlaces.value(difference.myGroup)].second.insert(difference.mine);
            continue;
        }
        if (!next())
            return false;
    }
    for (const auto &[group, materials] : doomed) {
        target.remove(group, materials);
        done += materials.size() - 1;
        if (!next())
            return false;
    }
    return true;
}

void carryOut(const std::vector<materialDifference> &plan, absentOnes absent,
              kiv_mat_databaseStruct *mine)
{
    recordTarget target(mine);
    carryOut(plan, absent, *mine, target);
}

QStringList deletedLines(const std::vector<materialDifference> &differences)
{
    QStringList lines;
    for (const materialDifference &difference : differences)
        if (difference.kind == materialDifference::absent)
            lines.append(
                useLine(difference.mine->d_ktm, difference.mine->d_name, difference.myGroup->name));
    if (!lines.isEmpty())
        lines.prepend(
            QCoreApplication::translate("databaseMerge", "Materials deleted").toHtmlEscaped()
            + QLatin1String("<br>"));
    return lines;
}

QSet<QString> deletedKtms(const std::vector<materialDifference> &differences)
{
    QSet<QString> ktms;
    for (const materialDifference &difference : differences)
        if (difference.kind == materialDifference::absent && !difference.mine->d_ktm.isEmpty())
            ktms.insert(difference.mine->d_ktm);
    return ktms;
}

QStringList usesOf(const QSet<QString> &ktms, const kiv_mat_zpStruct &order)
{
    QStringList lines;
    for (const auto &item : order.orderItems.items)
        if (ktms.contains(item->ktm))
            lines.append(useLine(item->ktm, item->name, order.filePath));
    return lines;
}

QStringList usesOf(const QSet<QString> &ktms, const kiv_mat_bomStruct &bom)
{
    QStringList lines;
    for (const auto &material : bom.materials)
        if (ktms.contains(material->d_ktm))
            lines.append(useLine(material->d_ktm, material->d_name, bom.filePath));
    return lines;
}
