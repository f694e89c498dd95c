#include "bom/bomOperations.h"

#include "data/programData.h"
#include "order/orderOperations.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace bomOperations {

namespace {

// The line's quantity; nothing when no count can be made of it.
std::optional<decimal> quantityOf(const materialStruct &line)
{
    const std::optional<decimal> quantity = decimal::read(line.d_quantity);
    return quantity && *quantity >= decimal() ? quantity : std::nullopt;
}

// The lines of an order by KTM, found without walking the order for each material.
using lineIndex = QHash<QString, std::vector<int>>;

lineIndex indexOf(const kiv_mat_zpStruct &order)
{
    lineIndex index;
    for (size_t i = 0; i < order.orderItems.items.size(); ++i)
        index[order.orderItems.items[i]->ktm].push_back(int(i));
    return index;
}

// The first of some lines that can get an amount on top, with its new quantity.
std::optional<orderChange> raise(const kiv_mat_zpStruct &order, const std::vector<int> &lines,
                                 const materialStruct &material, const decimal &by)
{
    for (const int i : lines) {
        const orderItemStruct &line = *order.orderItems.items[size_t(i)];
        const bool sameUnit =
            line.unit.isEmpty() || line.unit == labels::unitOrPieces(material.d_unit);
        const std::optional<decimal> before =
            line.quantity.isEmpty() ? std::optional(decimal()) : decimal::read(line.quantity);
        if (sameUnit && before)
            return orderChange{i, (*before + by).text(), nullptr};
    }
    return std::nullopt;
}

class recordTarget final : public orderTarget
{
public:
    explicit recordTarget(kiv_mat_zpStruct *order)
        : m_order(order)
    {
    }
    void setQuantity(int line, const QString &quantity) override
    {
        m_order->orderItems.items[size_t(line)]->quantity = quantity;
    }
    void append(std::unique_ptr<orderItemStruct> line) override
    {
        m_order->orderItems.append(std::move(line));
    }

private:
    kiv_mat_zpStruct *m_order;
};

} // namespace

bool readBom(const QString &path, kiv_mat_bomStruct *bom, QString *error)
{
    QString reason;
    if (readChecked(path, bom, &reason))
        return true;
    const QFileInfo file(path);
    *error = messages::failed(file.isFile() && file.isReadable() ? messages::fileInvalid()
                                                                 : messages::fileCorrupted(),
                              path, reason);
    return false;
}

QString bomLine::shownKtm() const
{
    return known ? line->d_ktm : QLatin1String("!!!!!") + line->d_ktm;
}

bomLine matched(const materialStruct &line, const ktmIndex &materials)
{
    const ktmIndex::entry *found = materials.find(line.d_ktm);
    return {&line, found ? found->material : &line, found != nullptr};
}

std::unique_ptr<materialStruct> newBomLine(const QString &ktm, const ktmIndex &materials)
{
    const ktmIndex::entry *found = materials.find(ktm);
    if (!found)
        return nullptr;
    auto line = std::make_unique<materialStruct>();
    line->d_ktm = ktm;
    line->d_name = found->material->d_name;
    line->d_quantity = QStringLiteral("1");
    return line;
}

QString doesNotExist(const QString &ktm)
{
    return labels::material() + QLatin1String(" [ ") + ktm.toHtmlEscaped() + QLatin1String(" ] ")
           + QCoreApplication::translate("bom", "does not exist") + QLatin1String("<br>");
}

lineSums sumsOf(const kiv_mat_bomStruct &bom, const ktmIndex &materials)
{
    lineSums sums;
    for (const auto &line : bom.materials) {
        const bomLine of = matched(*line, materials);
        sums.add(quantityOf(*line), of.material->d_price, of.material->d_averagePrice, of.known);
    }
    return sums;
}

lineSums sumsOf(const std::vector<bomSets> &lists, const ktmIndex &materials)
{
    lineSums all;
    for (const bomSets &list : lists)
        if (list.sets > 0)
            all += sumsOf(*list.bom, materials).times(list.sets);
    return all;
}

namespace {

void addDesignators(const materialStruct &line, need *to)
{
    const QString designators = line.d_designator.simplified();
    if (!designators.isEmpty() && !to->designators.contains(designators))
        to->designators.append(designators);
}

} // namespace

demand demandOf(const std::vector<bomSets> &lists, const ktmIndex &materials,
                const orderRules &rules)
{
    demand result;
    result.rules = rules;
    QHash<QString, size_t> places;
    for (const bomSets &list : lists) {
        if (list.sets <= 0)
            continue;
        for (const auto &line : list.bom->materials) {
            const std::optional<decimal> quantity = quantityOf(*line);
            if (!quantity) {
                result.uncounted.push_back(line.get());
                continue;
            }
            const decimal needed = quantity->times(list.sets);
            // No KTM holds a line end.
            const QString key =
                line->d_ktm.isEmpty() ? QLatin1Char('\n') + line->d_name : line->d_ktm;
            const auto place = places.constFind(key);
            if (place != places.constEnd()) {
                result.needs[*place].needed += needed;
                addDesignators(*line, &result.needs[*place]);
                continue;
            }
            places.insert(key, result.needs.size());
            need &added = result.needs.emplace_back();
            const bomLine of = matched(*line, materials);
            added.ktm = line->d_ktm;
            added.name = of.material->d_name;
            added.needed = needed;
            addDesignators(*line, &added);
            if (of.known) {
                added.material = of.material;
                added.inStock = decimal::read(of.material->d_inWarehouse);
            }
        }
    }
    for (need &one : result.needs)
        if (one.isKnown())
            one.extra = rules.extra(*one.material, one.needed);
    return result;
}

void noteOrdered(demand *of, const orderedLookup &ordered, const QString &orderPath)
{
    if (!ordered)
        return;
    for (need &one : of->needs) {
        if (!one.isKnown())
            continue;
        const orderedBefore before = ordered(one.ktm, orderPath);
        one.onTheWay = before.onTheWayIn(labels::unitOrPieces(one.material->d_unit));
        one.lastOrdered = before.lastText();
    }
}

std::vector<const need *> shortagesOf(const demand &of)
{
    std::vector<const need *> list;
    for (const need &one : of.needs)
        if (one.isShort())
            list.push_back(&one);
    return list;
}

namespace {

// What becomes of a need, with the line that it raises.
struct decision
{
    orderedNeed row;
    std::optional<orderChange> raising;
};

decision decide(const need &one, const orderRules &rules, const kiv_mat_zpStruct &order,
                const std::vector<int> &there, const wish &wanted)
{
    decision made;
    orderedNeed &row = made.row;
    row.of = &one;
    if (one.isKnown())
        for (const int i : there) {
            const orderItemStruct &line = *order.orderItems.items[size_t(i)];
            const auto quantity = decimal::read(line.quantity);
            if (quantity
                && (line.unit.isEmpty() || line.unit == labels::unitOrPieces(one.material->d_unit)))
                row.inOrder += *quantity;
        }
    row.wanted = wanted.which == amount::needed     ? one.whole()
                 : wanted.which == amount::shortage ? one.shortage()
                                                    : qMax(decimal(), one.whole() - row.inOrder);
    if (wanted.neverTwice)
        row.wanted = qMax(decimal(), row.wanted - one.onTheWay);
    if (one.isKnown())
        row.wanted = rules.raised(*one.material, row.wanted);
    if (row.wanted == decimal() || !one.isKnown())
        return made;
    if (wanted.existing == present::raise)
        made.raising = raise(order, there, *one.material, row.wanted);
    row.isSkipped = !made.raising && !there.empty()
                    && (wanted.existing == present::skip || orderOperations::isTakenOnce(one.ktm));
    row.toOrder = row.isSkipped ? decimal() : row.wanted;
    return made;
}

} // namespace

std::vector<orderedNeed> orderedNeeds(const demand &of, const kiv_mat_zpStruct &order,
                                      const wish &wanted)
{
    const lineIndex lines = indexOf(order);
    std::vector<orderedNeed> rows;
    rows.reserve(of.needs.size());
    for (const need &one : of.needs)
        rows.push_back(decide(one, of.rules, order, lines.value(one.ktm), wanted).row);
    return rows;
}

orderPlan planOf(const demand &of, const kiv_mat_zpStruct &order, const wish &wanted,
                 const QDate &wait, const std::function<bool(const need &)> &isChosen)
{
    orderPlan plan;
    const lineIndex lines = indexOf(order);
    size_t count = order.orderItems.items.size();
    for (const need &one : of.needs) {
        if (isChosen && !isChosen(one))
            continue;
        decision made = decide(one, of.rules, order, lines.value(one.ktm), wanted);
        if (made.row.wanted == decimal())
            continue;
        if (!one.isKnown()) {
            plan.unknown.push_back(&one);
        } else if (made.raising) {
            plan.changes.push_back(std::move(*made.raising));
        } else if (made.row.isSkipped) {
            ++plan.skipped;
        } else {
            orderChange &change = plan.changes.emplace_back();
            change.quantity = made.row.toOrder.text();
            change.added = orderOperations::newLine(*one.material, order, change.quantity, wait);
            change.added->index = QString::number(++count);
        }
    }
    return plan;
}

int apply(orderPlan plan, orderTarget &target)
{
    for (orderChange &change : plan.changes) {
        if (change.line >= 0)
            target.setQuantity(change.line, change.quantity);
        else
            target.append(std::move(change.added));
    }
    return int(plan.changes.size());
}

int apply(orderPlan plan, kiv_mat_zpStruct *order)
{
    recordTarget target(order);
    return apply(std::move(plan), target);
}

} // namespace bomOperations
