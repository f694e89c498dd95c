#include "data/reservationsFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>

namespace {

bool isWhole(const decimal &number) { return decimal::read(number.text(0)) == number; }

// So many of the sets' share of a quantity; of whole ones a whole one, rather more than less.
decimal shareOf(const decimal &quantity, int sets, int ofSets)
{
    constexpr int decimals = 6;
    const decimal exact = quantity.times(sets).dividedBy(ofSets);
    if (!isWhole(quantity))
        return decimal::read(exact.text(decimals)).value_or(exact);
    const decimal rounded = decimal::read(exact.text(0)).value_or(exact);
    const decimal one = decimal::read(QStringLiteral("1")).value_or(decimal());
    return rounded < exact ? rounded + one : rounded;
}

} // namespace

QString reservationsFile::beside(const QString &setPath)
{
    return setPath.isEmpty()
               ? QString()
               : QFileInfo(setPath).absoluteDir().filePath(QStringLiteral("reservations.xml"));
}

QHash<QString, decimal> reservedTotals(const kiv_mat_reservationsStruct &of)
{
    QHash<QString, decimal> totals;
    for (const auto &board : of.reserved.items)
        for (const auto &line : board->items)
            totals[line->ktm] += decimal::read(line->quantity).value_or(decimal());
    return totals;
}

std::vector<reservedPart> reservedParts(const kiv_mat_reservationsStruct &of, const QString &ktm)
{
    std::vector<reservedPart> parts;
    if (ktm.isEmpty())
        return parts;
    for (const auto &board : of.reserved.items) {
        decimal sum;
        for (const auto &line : board->items)
            if (line->ktm == ktm)
                sum += decimal::read(line->quantity).value_or(decimal());
        if (sum > decimal())
            parts.push_back({board.get(), sum});
    }
    return parts;
}

QString listOf(const boardStruct &board, const QString &filePath)
{
    const QDir folder = QFileInfo(filePath).absoluteDir();
    return QDir::cleanPath(folder.absoluteFilePath(board.list));
}

QString captionOf(const boardStruct &board)
{
    return QFileInfo(board.list).completeBaseName() + QLatin1String(", ")
           + QCoreApplication::translate("data", "%n set(s)", nullptr, board.sets.toInt());
}

QString comparableFile(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : canonical;
}

std::vector<std::unique_ptr<boardStruct>> releaseReserved(kiv_mat_reservationsStruct *reservations,
                                                          const QString &list, int sets)
{
    std::vector<std::unique_ptr<boardStruct>> released;
    auto &boards = reservations->reserved.items;
    const QString wanted = comparableFile(list);
    for (auto board = boards.begin(); board != boards.end() && sets > 0;) {
        const int reserved = (*board)->sets.toInt();
        if (reserved <= 0 || comparableFile(listOf(**board, reservations->filePath)) != wanted) {
            ++board;
            continue;
        }
        const int now = std::min(sets, reserved);
        sets -= now;
        if (now == reserved) {
            released.push_back(std::move(*board));
            board = boards.erase(board);
            continue;
        }
        auto part = (*board)->copy();
        part->id = QUuid::createUuid().toString(QUuid::WithoutBraces);
        part->sets = QString::number(now);
        (*board)->sets = QString::number(reserved - now);
        for (size_t i = 0; i < part->items.size(); ++i) {
            QString &rest = (*board)->items[i]->quantity;
            const decimal before = decimal::read(rest).value_or(decimal());
            const decimal left = shareOf(before, reserved - now, reserved);
            rest = left.text();
            part->items[i]->quantity = (before - left).text();
        }
        released.push_back(std::move(part));
        ++board;
    }
    return released;
}

void noteBuilt(kiv_mat_reservationsStruct *reservations, const boardStruct &board)
{
    int sets = 0;
    for (const auto &part : releaseReserved(reservations, listOf(board, reservations->filePath),
                                            board.released.toInt()))
        sets += part->sets.toInt();
    auto noted = board.copy();
    noted->released = QString::number(sets);
    reservations->built.append(std::move(noted));
}
