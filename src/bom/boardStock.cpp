#include "bom/boardStock.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/reservationsFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace boardStock {

using namespace bomOperations;

namespace {

QString tr(const char *text) { return QCoreApplication::translate("boardStock", text); }

decimal wantedOf(const need &one, bool withExtra) { return withExtra ? one.whole() : one.needed; }

std::unique_ptr<boardStruct> newBoard(const bomSets &list, const QString &reservationsPath,
                                      const occasion &when)
{
    auto board = std::make_unique<boardStruct>();
    board->id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QDir folder = QFileInfo(reservationsPath).absoluteDir();
    const QString path = QFileInfo(list.bom->filePath).absoluteFilePath();
    const QString relative = folder.relativeFilePath(path);
    board->list = relative.startsWith(QLatin1String("..")) ? path : relative;
    board->sets = QString::number(list.sets);
    board->date = when.time.toString(QStringLiteral("yyyy.MM.dd hh:mm"));
    board->author = when.author;
    return board;
}

boardLineStruct *appendLine(boardStruct *board, const need &one, const decimal &quantity)
{
    auto line = std::make_unique<boardLineStruct>();
    line->ktm = one.ktm;
    line->name = one.name;
    line->quantity = quantity.text();
    return board->append(std::move(line));
}

} // namespace

std::unique_ptr<boardStruct> boardOf(const bomSets &list, const ktmIndex &materials,
                                     const orderRules &rules, const QString &reservationsPath,
                                     const occasion &when)
{
    auto board = newBoard(list, reservationsPath, when);
    for (const need &one : demandOf({list}, materials, rules).needs)
        if (one.isKnown())
            appendLine(board.get(), one, wantedOf(one, when.withExtra));
    return board;
}

void noteReserved(demand *of, const std::vector<bomSets> &lists, const ktmIndex &materials,
                  const kiv_mat_reservationsStruct &reservations)
{
    QHash<QString, QHash<QString, decimal>> own;
    for (const bomSets &list : lists)
        for (const need &one : demandOf({list}, materials, of->rules).needs)
            own[comparableFile(list.bom->filePath)][one.ktm] += one.whole();
    QHash<QString, decimal> reserved;
    for (const auto &board : reservations.reserved.items) {
        const auto needs = own.find(comparableFile(listOf(*board, reservations.filePath)));
        for (const auto &line : board->items) {
            decimal quantity = decimal::read(line->quantity).value_or(decimal());
            if (needs != own.end()) {
                decimal &left = (*needs)[line->ktm];
                const decimal used = std::min(left, quantity);
                left = left - used;
                quantity = quantity - used;
            }
            reserved[line->ktm] += quantity;
        }
    }
    for (need &one : of->needs)
        if (one.isKnown())
            one.reserved = reserved.value(one.ktm);
}

std::vector<taking> takingsOf(const demand &of, const ktmIndex &materials, bool withExtra)
{
    std::vector<taking> takings;
    for (const need &one : of.needs) {
        taking &added = takings.emplace_back();
        added.of = &one;
        added.wanted = wantedOf(one, withExtra);
        if (const ktmIndex::entry *found = one.isKnown() ? materials.find(one.ktm) : nullptr)
            added.from = *found;
        if (!added.from.material) {
            added.lacking = added.wanted;
            added.fault = tr("in no database");
            continue;
        }
        if (!one.inStock) {
            added.lacking = added.wanted;
            added.fault = tr("the stock is no number");
            continue;
        }
        added.before = *one.inStock;
        added.after = std::max(std::min(added.before, decimal()), added.before - added.wanted);
        added.lacking = added.wanted - (added.before - added.after);
        if (added.lacking > decimal())
            added.fault = tr("not enough in stock");
        else if (added.after < one.reserved)
            added.fault = tr("some of it is reserved for other boards");
    }
    return takings;
}

std::vector<withdrawal> withdrawalsOf(const std::vector<taking> &takings,
                                      const std::vector<bomSets> &lists, const ktmIndex &materials,
                                      const orderRules &rules, const QString &reservationsPath,
                                      const occasion &when)
{
    std::vector<withdrawal> all;
    QHash<QString, const taking *> byKtm;
    for (const taking &one : takings) {
        byKtm.insert(one.of->ktm, &one);
        if (!one.isTaken())
            continue;
        auto to = std::find_if(all.begin(), all.end(), [&one](const withdrawal &known) {
            return known.database == one.from.database;
        });
        if (to == all.end()) {
            all.push_back({one.from.database, {}, {}});
            to = all.end() - 1;
        }
        to->changes.push_back({one.from.material, one.after.text()});
    }
    for (const bomSets &list : lists) {
        if (list.sets <= 0)
            continue;
        bool isReleased = false;
        const demand own = demandOf({list}, materials, rules);
        for (withdrawal &to : all) {
            auto board = newBoard(list, reservationsPath, when);
            board->database = QFileInfo(to.database->filePath).fileName();
            for (const need &one : own.needs) {
                const taking *taken = byKtm.value(one.ktm);
                if (!taken || taken->from.database != to.database)
                    continue;
                boardLineStruct *line = appendLine(board.get(), one, wantedOf(one, when.withExtra));
                line->before = taken->of->inStock ? taken->before.text() : QString();
                line->after = taken->of->inStock ? taken->after.text() : QString();
            }
            if (board->items.empty())
                continue;
            board->released = std::exchange(isReleased, true) ? QStringLiteral("0") : board->sets;
            to.boards.push_back(std::move(board));
        }
    }
    return all;
}

} // namespace boardStock
