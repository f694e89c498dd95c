#include "firm/firmMerge.h"

#include "data/firmDetails.h"
#include "data/kiv_mat_databaseStruct.h"
#include "util/labels.h"

#include <QCoreApplication>

#include <algorithm>

namespace firmOperations {

namespace {

// What a firm that stays takes from one that goes, when it has nothing there but what a new firm
// has.
const std::vector<QString firmStruct::*> &takenFields()
{
    static const std::vector<QString firmStruct::*> fields{
        &firmStruct::fullname, &firmStruct::business, &firmStruct::homepage, &firmStruct::nip};
    return fields;
}

bool isBlank(const QString &text, QString firmStruct::*field)
{
    static const firmStruct fresh;
    return text.trimmed().isEmpty() || text == fresh.*field;
}

void planList(const firmList &firms, firmKind kind, size_t stays, const std::vector<size_t> &going,
              const QString &name, mergePlan &plan)
{
    const firmStruct &remains = *firms[stays];
    if (remains.name != name)
        plan.changes.push_back({kind, stays, &firmStruct::name, remains.name, name});
    for (const auto field : takenFields()) {
        if (!isBlank(remains.*field, field))
            continue;
        for (const size_t place : going)
            if (const QString text = (*firms[place]).*field; !isBlank(text, field)) {
                plan.changes.push_back({kind, stays, field, remains.*field, text});
                break;
            }
    }
    for (const size_t place : going)
        plan.changes.push_back({kind, place, nullptr, firms[place]->name, {}});
}

} // namespace

bool isSameFirm(const QString &name, const QString &other)
{
    return firmDetails::isSameName(name, other);
}

firmList &listOf(kiv_mat_firmStruct &firms, firmKind kind)
{
    return kind == manufacturer ? firms.manufacturers.items : firms.suppliers.items;
}

const firmList &listOf(const kiv_mat_firmStruct &firms, firmKind kind)
{
    return kind == manufacturer ? firms.manufacturers.items : firms.suppliers.items;
}

std::optional<size_t> placeOf(const firmList &firms, const QString &name)
{
    auto found = std::find_if(firms.begin(), firms.end(),
                              [&name](const auto &firm) { return firm->name == name; });
    if (found == firms.end())
        found = std::find_if(firms.begin(), firms.end(),
                             [&name](const auto &firm) { return isSameFirm(firm->name, name); });
    return found == firms.end() ? std::nullopt : std::optional(size_t(found - firms.begin()));
}

mergePlan planMerge(const kiv_mat_firmStruct &firms, firmKind kind, size_t stays,
                    const std::vector<size_t> &going,
                    const std::vector<const kiv_mat_databaseStruct *> &databases,
                    const renameList &renames)
{
    mergePlan plan;
    const firmList &list = listOf(firms, kind);
    plan.stays = list[stays]->name;
    planList(list, kind, stays, going, plan.stays, plan);

    QSet<QString> lost;
    for (const size_t place : going)
        lost.insert(list[place]->name);
    lost.remove(plan.stays);
    lost.remove(QString());

    const firmKind otherKind = kind == manufacturer ? supplier : manufacturer;
    const firmList &other = listOf(firms, otherKind);
    std::vector<size_t> there;
    std::optional<size_t> remains;
    for (size_t place = 0; place < other.size(); ++place) {
        if (!remains && other[place]->name == plan.stays)
            remains = place;
        else if (lost.contains(other[place]->name))
            there.push_back(place);
    }
    if (!there.empty()) {
        if (!remains) {
            remains = there.front();
            there.erase(there.begin());
        }
        planList(other, otherKind, *remains, there, plan.stays, plan);
    }

    for (const firmKind each : {manufacturer, supplier}) {
        for (const QString &name : qAsConst(lost))
            plan.names[each].insert(name, plan.stays);
        for (const firmUse &use : usesOf(lost, each, databases, renames))
            plan.uses.push_back({each, use});
    }
    return plan;
}

void mergeFirms(kiv_mat_firmStruct &firms, const mergePlan &plan)
{
    std::array<std::vector<size_t>, firmKindCount> going;
    for (const mergePlan::registerChange &change : plan.changes)
        if (change.field)
            (*listOf(firms, change.kind)[change.place]).*change.field = change.after;
        else
            going[change.kind].push_back(change.place);
    for (const firmKind kind : {manufacturer, supplier}) {
        std::sort(going[kind].begin(), going[kind].end(), std::greater<>());
        firmList &list = listOf(firms, kind);
        for (const size_t place : going[kind])
            list.erase(list.begin() + std::ptrdiff_t(place));
    }
}

QStringList mergeCaptions()
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("firmMerge", source);
    };
    return {text(QT_TRANSLATE_NOOP("firmMerge", "Where")),
            labels::ktm(),
            labels::name(),
            text(QT_TRANSLATE_NOOP("firmMerge", "Field")),
            text(QT_TRANSLATE_NOOP("firmMerge", "Before")),
            text(QT_TRANSLATE_NOOP("firmMerge", "After"))};
}

QList<QStringList> mergeRows(const mergePlan &plan)
{
    QList<QStringList> rows;
    for (const mergePlan::registerChange &change : plan.changes) {
        const QString where =
            change.kind == manufacturer ? labels::manufacturers() : labels::suppliers();
        QString field;
        for (const auto &each : firmStruct::fields())
            if (each.member == change.field)
                field = each.label();
        rows.append({where,
                     {},
                     change.field ? plan.stays : change.before,
                     change.field ? field : QCoreApplication::translate("firmMerge", "goes"),
                     change.field ? change.before : QString(),
                     change.after});
    }
    for (const mergePlan::use &use : plan.uses)
        rows.append({use.at.database->fileName, use.at.material->d_ktm, use.at.material->d_name,
                     use.kind == manufacturer ? labels::manufacturer() : labels::supplier(),
                     use.at.firm, plan.stays});
    return rows;
}

std::unique_ptr<kiv_mat_firmStruct> copyOf(const kiv_mat_firmStruct &firms)
{
    auto copy = std::make_unique<kiv_mat_firmStruct>();
    copy->serverRelease = firms.serverRelease;
    for (const firmKind kind : {manufacturer, supplier})
        for (const auto &firm : listOf(firms, kind)) {
            auto &added = listOf(*copy, kind).emplace_back(std::make_unique<firmStruct>());
            copyFields(*added, *firm, firmStruct::fields());
        }
    return copy;
}

} // namespace firmOperations
