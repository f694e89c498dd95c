#include "bom/bomDiff.h"

#include "bom/partsTexts.h"
#include "util/decimal.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QHash>
#include <QMap>

#include <array>

namespace {

// A material of a list, its lines added up. Lines without a KTM are told apart by their name.
struct part
{
    QString ktm;
    QString name;
    QStringList designators;
    decimal quantity;
    bool isNumber = true;
    QString stated; // where it is no number

    QString shown() const { return isNumber ? quantity.text() : stated; }
    // What stands in no designator.
    decimal beside() const
    {
        return quantity - decimal::read(QString::number(designators.size())).value_or(decimal());
    }
};

struct board
{
    std::vector<part> parts;
    QHash<QString, int> byKey;
    QHash<QString, int> byDesignator; // place among the parts
    QStringList designators;          // in the order of the list
};

QString keyOf(const materialStruct &line)
{
    return line.d_ktm.isEmpty() ? QLatin1Char('\n') + line.d_name : line.d_ktm;
}

board boardOf(const kiv_mat_bomStruct &bom)
{
    board all;
    for (const auto &line : bom.materials) {
        const QString key = keyOf(*line);
        auto place = all.byKey.constFind(key);
        if (place == all.byKey.constEnd()) {
            place = all.byKey.insert(key, int(all.parts.size()));
            all.parts.push_back({line->d_ktm, line->d_name, {}, {}, true, {}});
        }
        part &of = all.parts[size_t(*place)];
        const std::optional<decimal> number = decimal::read(line->d_quantity);
        of.quantity += number.value_or(decimal());
        of.isNumber = of.isNumber && number;
        of.stated = line->d_quantity;
        for (const QString &designator : partsTexts::designatorsIn(line->d_designator)) {
            if (all.byDesignator.contains(designator))
                continue; // the first one counts
            all.byDesignator.insert(designator, *place);
            all.designators.append(designator);
            of.designators.append(designator);
        }
    }
    return all;
}

bomDifference differenceOf(bomDifference::kind kind, const part *before, const part *after)
{
    bomDifference row{kind, {}, {}, {}, {}, {}, {}, {}};
    if (before) {
        row.ktmBefore = before->ktm;
        row.nameBefore = before->name;
    }
    if (after) {
        row.ktmAfter = after->ktm;
        row.nameAfter = after->name;
    }
    return row;
}

// Designators in one list only, a row for each material.
void addAlone(const board &of, const board &other, bomDifference::kind kind,
              std::vector<bomDifference> *rows)
{
    for (const part &one : of.parts) {
        QStringList alone;
        for (const QString &designator : one.designators)
            if (!other.byDesignator.contains(designator))
                alone.append(designator);
        if (alone.isEmpty())
            continue;
        const bool isAdded = kind == bomDifference::added;
        bomDifference row = differenceOf(kind, isAdded ? nullptr : &one, isAdded ? &one : nullptr);
        row.designators = alone;
        partsTexts::sortDesignators(&row.designators);
        (isAdded ? row.quantityAfter : row.quantityBefore) = QString::number(alone.size());
        rows->push_back(row);
    }
}

} // namespace

std::vector<bomDifference> compareBoms(const kiv_mat_bomStruct &beforeList,
                                       const kiv_mat_bomStruct &afterList)
{
    const board before = boardOf(beforeList);
    const board after = boardOf(afterList);
    std::vector<bomDifference> rows;
    QMap<QPair<int, int>, size_t> exchanged;
    for (const QString &designator : before.designators) {
        const int was = before.byDesignator.value(designator);
        const int is = after.byDesignator.value(designator, -1);
        if (is < 0)
            continue;
        const part &old = before.parts[size_t(was)];
        const part &now = after.parts[size_t(is)];
        if (old.ktm == now.ktm && (!old.ktm.isEmpty() || old.name == now.name))
            continue;
        const QPair<int, int> pair(was, is);
        if (!exchanged.contains(pair)) {
            exchanged.insert(pair, rows.size());
            rows.push_back(differenceOf(bomDifference::exchanged, &old, &now));
        }
        rows[exchanged.value(pair)].designators.append(designator);
    }
    for (bomDifference &row : rows) {
        partsTexts::sortDesignators(&row.designators);
        row.quantityBefore = row.quantityAfter = QString::number(row.designators.size());
    }
    addAlone(after, before, bomDifference::added, &rows);
    addAlone(before, after, bomDifference::removed, &rows);
    // What is counted beside designators: wire, glue, screws.
    const auto quantityRow = [&](const part *old, const part *now) {
        const bool isEqual = old && now
                             && (old->isNumber && now->isNumber ? old->beside() == now->beside()
                                                                : old->stated == now->stated);
        const bool hasNone = (!old || (old->isNumber && old->beside() == decimal()))
                             && (!now || (now->isNumber && now->beside() == decimal()));
        if (isEqual || hasNone)
            return;
        bomDifference row = differenceOf(!old   ? bomDifference::added
                                         : !now ? bomDifference::removed
                                                : bomDifference::quantity,
                                         old, now);
        // What the rows of designators tell is not told again, unless these are the same.
        const bool areSame = old && now && old->designators == now->designators;
        const auto shown = [areSame](const part *of) {
            return !of ? QString() : of->isNumber && !areSame ? of->beside().text() : of->shown();
        };
        row.quantityBefore = shown(old);
        row.quantityAfter = shown(now);
        rows.push_back(row);
    };
    for (auto key = before.byKey.constBegin(); key != before.byKey.constEnd(); ++key) {
        const int place = after.byKey.value(key.key(), -1);
        quantityRow(&before.parts[size_t(*key)], place < 0 ? nullptr : &after.parts[size_t(place)]);
    }
    for (auto key = after.byKey.constBegin(); key != after.byKey.constEnd(); ++key)
        if (!before.byKey.contains(key.key()))
            quantityRow(nullptr, &after.parts[size_t(*key)]);
    return rows;
}

QString textOf(bomDifference::kind kind)
{
    static const std::array<const char *, 4> texts{
        QT_TRANSLATE_NOOP("bomDiff", "added"), QT_TRANSLATE_NOOP("bomDiff", "removed"),
        QT_TRANSLATE_NOOP("bomDiff", "another part"), QT_TRANSLATE_NOOP("bomDiff", "quantity")};
    return QCoreApplication::translate("bomDiff", texts[size_t(kind)]);
}

QString nameOf(bomDifference::kind kind)
{
    static const std::array<const char *, 4> names{"added", "removed", "exchanged", "quantity"};
    return QLatin1String(names[size_t(kind)]);
}

QStringList bomDifferenceCaptions()
{
    const auto translated = [](const char *text) {
        return QCoreApplication::translate("bomDiff", text);
    };
    const QString before = translated(QT_TRANSLATE_NOOP("bomDiff", "%1 before"));
    const QString after = translated(QT_TRANSLATE_NOOP("bomDiff", "%1 after"));
    QStringList captions{translated(QT_TRANSLATE_NOOP("bomDiff", "Difference")),
                         labels::designator()};
    for (const QString &form : {before, after})
        for (const QString &what : {labels::quantity(), labels::ktm(), labels::name()})
            captions.append(form.arg(what));
    return captions;
}

QStringList cellsOf(const bomDifference &row)
{
    return {textOf(row.what),   row.designators.join(QLatin1String(", ")),
            row.quantityBefore, row.ktmBefore,
            row.nameBefore,     row.quantityAfter,
            row.ktmAfter,       row.nameAfter};
}

QString lineOf(const bomDifference &row)
{
    const auto side = [](const QString &ktm, const QString &name) {
        return (ktm + QLatin1Char(' ') + name).trimmed();
    };
    const QString before = side(row.ktmBefore, row.nameBefore);
    const QString after = side(row.ktmAfter, row.nameAfter);
    const QString where = row.designators.isEmpty()
                              ? QString()
                              : row.designators.join(QLatin1String(", ")) + QLatin1String(": ");
    switch (row.what) {
    case bomDifference::added:
        return QStringLiteral("+ %1%2 x %3").arg(where, row.quantityAfter, after);
    case bomDifference::removed:
        return QStringLiteral("- %1%2 x %3").arg(where, row.quantityBefore, before);
    case bomDifference::exchanged:
        return QStringLiteral("~ %1%2 x %3 -> %4").arg(where, row.quantityAfter, before, after);
    default:
        return QStringLiteral("= %1: %2 -> %3").arg(after, row.quantityBefore, row.quantityAfter);
    }
}
