#include "bom/bomOperations.h"

#include "data/programData.h"
#include "order/orderOperations.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/numbers.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace bomOperations {

namespace {

// The line's quantity; nothing when no count can be made of it.
std::optional<double> quantityOf(const materialStruct &line)
{
    const std::optional<double> quantity = numbers::finite(line.d_quantity);
    return quantity && *quantity >= 0 ? quantity : std::nullopt;
}

constexpr double bomSums::*amounts[] = {&bomSums::quantity, &bomSums::price,
                                        &bomSums::averagePrice};

const QString &unitOf(const materialStruct &material)
{
    return material.d_unit.isEmpty() ? labels::storedUnits().first() : material.d_unit;
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
                                 const materialStruct &material, double by)
{
    for (const int i : lines) {
        const orderItemStruct &line = *order.orderItems.items[size_t(i)];
        const bool sameUnit = line.unit.isEmpty() || line.unit == unitOf(material);
        const std::optional<double> before =
            line.quantity.isEmpty() ? std::optional(0.0) : numbers::finite(line.quantity);
        double after = before.value_or(0);
        if (sameUnit && before && numbers::addProduct(&after, by, 1))
            return orderChange{i, numbers::plain(after), nullptr};
    }
    return std::nullopt;
}

bool isTakenOnce(const QString &ktm)
{
    return orderOperations::isShipment(ktm) || ktm == orderOperations::pcbKtm();
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

bomSums sumsOf(const kiv_mat_bomStruct &bom, const ktmIndex &materials)
{
    bomSums sums;
    for (const auto &line : bom.materials) {
        const bomLine of = matched(*line, materials);
        ++sums.lines;
        sums.unknown += !of.known;
        const std::optional<double> quantity = quantityOf(*line);
        if (!quantity) {
            ++sums.uncounted;
            continue;
        }
        numbers::addProduct(&sums.quantity, *quantity, 1);
        if (!numbers::addProduct(&sums.price, *quantity, of.material->d_price))
            ++sums.uncounted;
        numbers::addProduct(&sums.averagePrice, *quantity, of.material->d_averagePrice);
    }
    return sums;
}

bomSums timesSets(const bomSums &sums, int sets)
{
    bomSums result = sums;
    const int times = qMax(0, sets);
    for (double bomSums::*amount : amounts) {
        result.*amount = 0;
        if (!numbers::addProduct(&(result.*amount), sums.*amount, times))
            result.uncounted = result.lines;
    }
    return result;
}

bomSums sumsOf(const std::vector<bomSets> &lists, const ktmIndex &materials)
{
    bomSums all;
    for (const bomSets &list : lists) {
        if (list.sets <= 0)
            continue;
        const bomSums sums = timesSets(sumsOf(*list.bom, materials), list.sets);
        bool counted = true;
        for (double bomSums::*amount : amounts)
            counted = numbers::addProduct(&(all.*amount), sums.*amount, 1) && counted;
        all.lines += sums.lines;
        all.unknown += sums.unknown;
        all.uncounted += counted ? sums.uncounted : sums.lines;
    }
    return all;
}

demand demandOf(const std::vector<bomSets> &lists, const ktmIndex &materials)
{
    demand result;
    QHash<QString, size_t> places;
    for (const bomSets &list : lists) {
        if (list.sets <= 0)
            continue;
        for (const auto &line : list.bom->materials) {
            const std::optional<double> quantity = quantityOf(*line);
            double needed = 0;
            if (!quantity || !numbers::addProduct(&needed, *quantity, list.sets)) {
                result.uncounted.push_back(line.get());
                continue;
            }
            // No KTM holds a line end.
            const QString key =
                line->d_ktm.isEmpty() ? QLatin1Char('\n') + line->d_name : line->d_ktm;
            const auto place = places.constFind(key);
            if (place != places.constEnd()) {
                if (!numbers::addProduct(&result.needs[*place].needed, needed, 1))
                    result.uncounted.push_back(line.get());
                continue;
            }
            places.insert(key, result.needs.size());
            need &added = result.needs.emplace_back();
            const bomLine of = matched(*line, materials);
            added.ktm = line->d_ktm;
            added.name = of.material->d_name;
            added.needed = needed;
            if (of.known) {
                added.material = of.material;
                added.inStock = numbers::finite(of.material->d_inWarehouse);
            }
        }
    }
    return result;
}

std::vector<const need *> shortagesOf(const demand &of)
{
    std::vector<const need *> list;
    for (const need &one : of.needs)
        if (one.shortage() > 0)
            list.push_back(&one);
    return list;
}

orderPlan planOf(const demand &of, const kiv_mat_zpStruct &order, amount which, present existing,
                 const QDate &wait)
{
    orderPlan plan;
    const lineIndex lines = indexOf(order);
    size_t count = order.orderItems.items.size();
    for (const need &one : of.needs) {
        const double wanted = which == amount::needed ? one.needed : one.shortage();
        // Less than what is written of a quantity.
        if (numbers::plain(wanted) == QLatin1String("0"))
            continue;
        if (!one.isKnown()) {
            plan.unknown.push_back(&one);
            continue;
        }
        const std::vector<int> there = lines.value(one.ktm);
        std::optional<orderChange> raising;
        if (existing == present::raise)
            raising = raise(order, there, *one.material, wanted);
        if (raising) {
            plan.changes.push_back(std::move(*raising));
            continue;
        }
        if (!there.empty() && (existing == present::skip || isTakenOnce(one.ktm))) {
            ++plan.skipped;
            continue;
        }
        orderChange &change = plan.changes.emplace_back();
        change.quantity = numbers::plain(wanted);
        change.added = orderOperations::newLine(*one.material, order, change.quantity, wait);
        change.added->index = QString::number(++count);
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
