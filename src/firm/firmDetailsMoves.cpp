#include "firm/firmDetailsMoves.h"

#include "data/firmDetails.h"
#include "firm/firmMerge.h"

#include <algorithm>
#include <map>

namespace firmOperations {

namespace {

struct firmKey
{
    QString name;
    QString nip;

    bool operator==(const firmKey &other) const
    {
        return firmDetails::isSameName(name, other.name) && firmDetails::isSameNip(nip, other.nip);
    }
};

// Details under the name that they get. Of several with one name the lowest rank counts first.
struct movedDetails
{
    enum rank
    {
        keepsName,
        renamed,
        nobodys
    };
    firmKey key;
    rank of;
    bool isMoved;
    std::unique_ptr<firmDetailsStruct> details;
};

void fillIn(firmDetailsStruct &to, const firmDetailsStruct &from)
{
    for (const auto member : {&firmDetailsStruct::address, &firmDetailsStruct::email,
                              &firmDetailsStruct::language, &firmDetailsStruct::discount})
        if ((to.*member).trimmed().isEmpty())
            to.*member = from.*member;
    if (!to.basket.items.empty() || from.basket.items.empty())
        return;
    const auto columns = from.copy();
    to.basket.items = std::move(columns->basket.items);
    to.separator = from.separator;
    to.captions = from.captions;
}

// Where the firms of each of the details go.
std::map<const firmDetailsStruct *, std::vector<movedDetails>> targetsOf(
    const kiv_mat_firmDetailsStruct &details, const kiv_mat_firmStruct &before,
    const kiv_mat_firmStruct &after, const renameList &steps)
{
    std::map<const firmDetailsStruct *, std::vector<movedDetails>> targets;
    for (const firmKind kind : {manufacturer, supplier})
        for (const auto &firm : listOf(before, kind)) {
            const firmDetailsStruct *its = firmDetails::find(details, firm->name, firm->nip);
            const auto place = placeOf(listOf(after, kind), nameAfter(steps, kind, firm->name));
            if (!its || !place)
                continue;
            const firmStruct &now = *listOf(after, kind)[*place];
            auto &known = targets[its];
            const auto rank =
                now.name == firm->name ? movedDetails::keepsName : movedDetails::renamed;
            movedDetails target{
                {now.name, now.nip}, rank, now.name != firm->name || now.nip != firm->nip, nullptr};
            // A firm of both lists that keeps its name keeps one set of details, under the number
            // that they had.
            const auto same =
                std::find_if(known.begin(), known.end(), [&target](const movedDetails &one) {
                    return one.key == target.key
                           || (one.of == movedDetails::keepsName && one.of == target.of);
                });
            if (same == known.end())
                known.push_back(std::move(target));
            else if (target.isMoved && firmDetails::isSameNip(its->nip, firm->nip))
                *same = std::move(target);
        }
    return targets;
}

} // namespace

bool moveDetails(kiv_mat_firmDetailsStruct *details, const kiv_mat_firmStruct &before,
                 const kiv_mat_firmStruct &after, const renameList &steps)
{
    auto targets = targetsOf(*details, before, after, steps);
    std::vector<movedDetails> all;
    bool anyMoved = false;
    for (auto &one : details->details) {
        auto found = targets.find(one.get());
        if (found == targets.end()) {
            all.push_back({{one->name, one->nip}, movedDetails::nobodys, false, one->copy()});
            continue;
        }
        for (movedDetails &target : found->second) {
            target.details = one->copy();
            if (target.isMoved) {
                target.details->name = target.key.name;
                target.details->nip = target.key.nip;
                anyMoved = true;
            }
            all.push_back(std::move(target));
        }
    }
    if (!anyMoved)
        return false;
    // What lies under one name by now, unless it did before.
    std::vector<std::unique_ptr<firmDetailsStruct>> result;
    std::vector<bool> isTaken(all.size());
    for (size_t first = 0; first < all.size(); ++first) {
        if (isTaken[first])
            continue;
        std::vector<movedDetails *> same;
        for (size_t i = first; i < all.size(); ++i)
            if (i == first
                || (all[i].key == all[first].key && (all[i].isMoved || all[first].isMoved))) {
                isTaken[i] = true;
                same.push_back(&all[i]);
            }
        std::stable_sort(same.begin(), same.end(),
                         [](const auto *a, const auto *b) { return a->of < b->of; });
        for (size_t i = 1; i < same.size(); ++i)
            fillIn(*same.front()->details, *same[i]->details);
        result.push_back(std::move(same.front()->details));
    }
    details->details = std::move(result);
    return true;
}

} // namespace firmOperations
