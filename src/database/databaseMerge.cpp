#include "database/databaseMerge.h"

#include "data/documentDiff.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/recordMatching.h"
#include "database/materialFiles.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QHash>

namespace {

template <class List>
QString sourcesText(const List &list)
{
    QStringList lines;
    for (const auto &source : list.items) {
        QStringList parts{source->name, source->partNo};
        parts.removeAll(QString());
        if (!source->description.isEmpty())
            parts.append(QLatin1Char('(') + source->description + QLatin1Char(')'));
        lines.append(parts.join(QLatin1Char(' ')));
        for (const auto &file : source->files.items)
            lines.append(file->name + QLatin1String(" [") + labels::shown(file->type)
                         + QLatin1Char(']'));
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

struct placedMaterial
{
    materialStruct *material;
    d_groupStruct *group;
};

std::vector<placedMaterial> placesIn(const kiv_mat_databaseStruct &database)
{
    std::vector<placedMaterial> places;
    places.reserve(size_t(database.materialCount()));
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            places.push_back({material.get(), group.get()});
    return places;
}

std::vector<QString> keysOf(const std::vector<placedMaterial> &places)
{
    std::vector<QString> keys;
    keys.reserve(places.size());
    for (const placedMaterial &place : places)
        keys.push_back(keyOf(*place.material));
    return keys;
}

std::vector<int> differingFields(const materialStruct &mine, const materialStruct &other)
{
    std::vector<int> fields;
    const std::vector<comparedField> &table = comparedFields();
    for (size_t i = 0; i < table.size(); ++i)
        if (!table[i].equal(mine, other))
            fields.push_back(int(i));
    return fields;
}

// The first group of each name.
template <class Group, class Database>
QHash<QString, Group *> groupsOf(const Database &database)
{
    QHash<QString, Group *> groups;
    for (auto group = database.groups.rbegin(); group != database.groups.rend(); ++group)
        groups.insert((*group)->name, group->get());
    return groups;
}

// The groups of a database by name, of several with one name the first; missing ones are made.
class groupFinder
{
public:
    groupFinder(const kiv_mat_databaseStruct &database, databaseTarget &target)
        : m_target(target)
        , m_groups(groupsOf<d_groupStruct>(database))
    {
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
    materialStruct *replace(d_groupStruct *, materialStruct *material,
                            std::unique_ptr<materialStruct> content) override
    {
        for (const comparedField &field : comparedFields())
            field.take(*material, *content);
        return material;
    }
    void setCpv(d_groupStruct *group, const QString &cpv) override { group->cpv = cpv; }
    void remove(d_groupStruct *group, const QSet<const materialStruct *> &materials) override
    {
        std::erase_if(group->items, [&materials](const auto &material) {
            return materials.contains(material.get());
        });
    }

private:
    kiv_mat_databaseStruct *m_database;
};

void addGroups(const kiv_mat_databaseStruct &mine, const kiv_mat_databaseStruct &other,
               std::vector<materialDifference> *differences)
{
    const auto theirs = groupsOf<const d_groupStruct>(other);
    QSet<QString> seen;
    for (const auto &group : mine.groups) {
        const d_groupStruct *found = theirs.value(group->name);
        if (!found || found->cpv == group->cpv || seen.contains(group->name))
            continue;
        seen.insert(group->name);
        differences->push_back(
            {materialDifference::groupCpv, nullptr, group.get(), nullptr, found, {}});
    }
}

// By group, in the order in which they are named.
class doomedMaterials
{
public:
    void add(d_groupStruct *group, const materialStruct *material)
    {
        if (!m_places.contains(group)) {
            m_places.insert(group, m_groups.size());
            m_groups.push_back({group, {}});
        }
        m_groups[m_places.value(group)].second.insert(material);
    }
    // next is asked before each that goes; false when it said so.
    bool remove(databaseTarget &target, const std::function<bool(qint64 more)> &next) const
    {
        for (const auto &[group, materials] : m_groups) {
            target.remove(group, materials);
            if (!next(materials.size()))
                return false;
        }
        return true;
    }

private:
    std::vector<std::pair<d_groupStruct *, QSet<const materialStruct *>>> m_groups;
    QHash<const d_groupStruct *, size_t> m_places;
};

// A copy with what a difference gives it.
std::unique_ptr<materialStruct> taken(const materialStruct &material,
                                      const materialDifference &difference)
{
    auto content = material.copy();
    for (int field : difference.fields)
        comparedFields()[size_t(field)].take(*content, *difference.other);
    return content;
}

// What is known of a database's materials beside their matches.
struct knownMaterials
{
    QHash<QString, int> firsts; // by KTM
    QSet<quint64> contents;

    explicit knownMaterials(const std::vector<placedMaterial> &places)
    {
        for (size_t i = places.size(); i-- > 0;) {
            firsts.insert(places[i].material->d_ktm, int(i));
            contents.insert(contentHash(*places[i].material));
        }
    }
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

int groupPlace() { return int(comparedFields().size()); }

std::optional<int> placeOf(const QString &fieldName)
{
    const std::vector<comparedField> &table = comparedFields();
    for (size_t i = 0; i < table.size(); ++i)
        if (table[i].name == fieldName)
            return int(i);
    return {};
}

bool narrow(materialDifference &difference, const std::function<bool(int place)> &wanted)
{
    if (difference.kind != materialDifference::changed
        && difference.kind != materialDifference::repeated)
        return true;
    std::erase_if(difference.fields, [&wanted](int place) { return !wanted(place); });
    difference.moved = difference.moved && wanted(groupPlace());
    return difference.moved || !difference.fields.empty();
}

comparison compareDatabases(kiv_mat_databaseStruct &mine, const kiv_mat_databaseStruct &other,
                            const progressFunction &progress)
{
    comparison result;
    const std::vector<placedMaterial> my = placesIn(mine);
    const std::vector<placedMaterial> their = placesIn(other);
    const auto content = [&](bool later, int place) {
        return contentHash(*(later ? their : my)[size_t(place)].material);
    };
    const auto contentInGroup = [&](bool later, int place) {
        return content(later, place) ^ qHash((later ? their : my)[size_t(place)].group->name, 1);
    };
    const std::vector<int> known =
        matchRecords(keysOf(my), keysOf(their), {contentInGroup, content}).before;
    std::optional<knownMaterials> all; // once one has no match
    std::vector<bool> isMet(my.size());
    progressSteps steps(progress, qint64(their.size()));
    for (size_t i = 0; i < their.size(); ++i) {
        const auto [material, group] = their[i];
        if (known[i] >= 0) {
            const placedMaterial &old = my[size_t(known[i])];
            isMet[size_t(known[i])] = true;
            const bool moved = old.group->name != group->name;
            if (moved || !(*old.material == *material))
                result.differences.push_back({materialDifference::changed, old.material, old.group,
                                              material, group,
                                              differingFields(*old.material, *material), moved});
        } else {
            if (!all)
                all.emplace(my);
            const int first =
                material->d_ktm.isEmpty() ? -1 : all->firsts.value(material->d_ktm, -1);
            if (first < 0)
                result.differences.push_back(
                    {materialDifference::added, nullptr, nullptr, material, group, {}});
            else if (!all->contents.contains(contentHash(*material)))
                result.differences.push_back(
                    {materialDifference::repeated, my[size_t(first)].material,
                     my[size_t(first)].group, material, group,
                     differingFields(*my[size_t(first)].material, *material)});
        }
        if (!steps.next())
            return cancelledComparison();
    }
    for (size_t i = 0; i < my.size(); ++i)
        if (!isMet[i])
            result.differences.push_back(
                {materialDifference::absent, my[i].material, my[i].group, nullptr, nullptr, {}});
    addGroups(mine, other, &result.differences);
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
    const auto next = [&](qint64 more) { return !progress || progress(done += more, total); };
    groupFinder groups(mine, target);
    doomedMaterials doomed;
    // Where those are now that more than one difference belongs to.
    QHash<const materialStruct *, std::pair<d_groupStruct *, materialStruct *>> now;
    for (const materialDifference &difference : plan) {
        auto [group, material] = now.value(difference.mine, {difference.myGroup, difference.mine});
        switch (difference.kind) {
        case materialDifference::repeated:
            if (absent == absentOnes::keep) {
                now[difference.mine] = {
                    group, target.replace(group, material, taken(*material, difference))};
                break;
            }
            [[fallthrough]];
        case materialDifference::added:
            target.add(groups.like(*difference.otherGroup), difference.other->copy());
            break;
        case materialDifference::changed: {
            auto content = taken(*material, difference);
            if (difference.moved) {
                doomed.add(group, material);
                group = groups.like(*difference.otherGroup);
                material = content.get();
                target.add(group, std::move(content));
            } else {
                material = target.replace(group, material, std::move(content));
            }
            now[difference.mine] = {group, material};
            break;
        }
        case materialDifference::absent:
            if (absent == absentOnes::remove)
                doomed.add(difference.myGroup, difference.mine);
            continue;
        case materialDifference::groupCpv:
            target.setCpv(difference.myGroup, difference.otherGroup->cpv);
            break;
        }
        if (!next(1))
            return false;
    }
    return doomed.remove(target, next);
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
