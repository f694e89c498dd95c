#include "database/databaseMerge.h"

#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QHash>

namespace {

template <class List>
void copySources(List &to, const List &from)
{
    to.items.clear();
    for (const auto &source : from.items) {
        auto copy = std::make_unique<std::decay_t<decltype(*source)>>();
        for (const auto &field : copy->fields())
            (*copy).*field.member = (*source).*field.member;
        for (const auto &file : source->files.items) {
            fileStruct *added = copy->files.append(std::make_unique<fileStruct>());
            added->type = file->type;
            added->name = file->name;
        }
        to.append(std::move(copy));
    }
}

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
                copySources(to.*list, from.*list);
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

d_groupStruct *groupNamed(kiv_mat_databaseStruct &database, const d_groupStruct &like)
{
    for (const auto &group : database.groups)
        if (group->name == like.name)
            return group.get();
    database.groups.push_back(std::make_unique<d_groupStruct>());
    d_groupStruct *made = database.groups.back().get();
    made->name = like.name;
    made->cpv = like.cpv;
    return made;
}

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

void mergeDatabase(kiv_mat_databaseStruct &mine, const std::vector<materialDifference> &selected)
{
    const std::vector<comparedField> &table = comparedFields();
    for (const materialDifference &difference : selected) {
        if (difference.kind == materialDifference::added)
            groupNamed(mine, *difference.otherGroup)->append(copyOf(*difference.other));
        else if (difference.kind == materialDifference::changed)
            for (int field : difference.fields)
                table[size_t(field)].take(*difference.mine, *difference.other);
    }
}

void updateDatabase(kiv_mat_databaseStruct &mine,
                    const std::vector<materialDifference> &differences)
{
    mergeDatabase(mine, differences);
    QSet<const materialStruct *> doomed;
    for (const materialDifference &difference : differences)
        if (difference.kind == materialDifference::absent)
            doomed.insert(difference.mine);
    if (doomed.isEmpty())
        return;
    for (const auto &group : mine.groups)
        std::erase_if(group->items,
                      [&doomed](const auto &material) { return doomed.contains(material.get()); });
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

std::unique_ptr<materialStruct> copyOf(const materialStruct &material)
{
    auto copy = std::make_unique<materialStruct>();
    for (const comparedField &field : comparedFields())
        field.take(*copy, material);
    copy->d_designator = material.d_designator;
    return copy;
}
