#include "orders/offerComparison.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/vocabulary.h"
#include "order/deliveries.h"
#include "util/numbers.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <cmath>

namespace offerComparison {

namespace {

constexpr int mostDecimals = 6; // of a price, and of a percentage

decimal whole(qint64 number) { return decimal::read(QString::number(number)).value_or(decimal()); }

decimal hundred() { return whole(100); }

decimal rounded(const decimal &of) { return decimal::read(of.text(mostDecimals)).value_or(of); }

// Whole days, a part of one counting as one.
std::optional<int> daysOf(const QString &text)
{
    constexpr double most = 100000;
    const auto days = numbers::finite(text.trimmed());
    return days && *days > 0 && *days <= most ? std::optional(int(std::ceil(*days))) : std::nullopt;
}

// Whether a first lead time is better than a second one; one that is not known is worse than any.
bool isShorter(const std::optional<int> &first, const std::optional<int> &second)
{
    return first && (!second || *first < *second);
}

// The least whole number of steps that reach the quantity; nothing when they are too many to count.
std::optional<decimal> stepsUpTo(const decimal &quantity, const decimal &step)
{
    constexpr double most = 1e15;
    const double steps = quantity.text().toDouble() / step.text().toDouble();
    if (!(steps < most))
        return {};
    // A double may be one off.
    auto count = qint64(std::floor(steps));
    while (step * whole(count) < quantity)
        ++count;
    while (count > 1 && step * whole(count - 1) >= quantity)
        --count;
    return step * whole(count);
}

decimal inGrosz(const decimal &amount) { return decimal::read(amount.money()).value_or(amount); }

// As an invoice has it: of the amount in whole grosz, and in whole grosz.
decimal taxOf(const decimal &amount, const decimal &percent)
{
    return inGrosz((inGrosz(amount) * percent).dividedBy(100));
}

// --- The table

firm firmOf(const offerStruct &offer, const decimal &vat, const QDate &day)
{
    firm result;
    result.name = offer.firm;
    result.nip = offer.nip;
    result.request = offer.request;
    result.received = orderOffers::readDate(offer.received);
    result.currency = offer.currency.trimmed();
    if (result.currency.isEmpty())
        result.currency = QStringLiteral("PLN");
    result.rateDate = orderOffers::readDate(offer.rateDate);
    result.isGross = offer.gross == statusWord::yes;
    result.leadTime = daysOf(offer.leadTime);
    result.validity = orderOffers::readDate(offer.validity);
    result.isExpired = result.validity.isValid() && result.validity < day;
    result.remarks = offer.remarks;
    result.file = offer.file;

    const bool isHome = result.currency == QLatin1String("PLN");
    const auto rate = offer.rate.trimmed().isEmpty() && isHome ? std::optional(whole(1))
                                                               : decimal::read(offer.rate);
    if (rate && *rate > decimal())
        result.rate = *rate;
    else
        result.fault = QCoreApplication::translate("offerComparison", "There is no rate for %1")
                           .arg(result.currency);
    result.isVatDefault = offer.vat.trimmed().isEmpty();
    const auto percent = result.isVatDefault ? std::optional(vat) : decimal::read(offer.vat);
    if (percent && *percent >= decimal() && *percent <= hundred())
        result.vat = rounded(*percent);
    else
        result.fault =
            QCoreApplication::translate("offerComparison", "Its VAT is no percentage: %1")
                .arg(offer.vat);
    return result;
}

// Prices hold for smaller quantities than one, too, when they are those of the first piece.
const priceBreak *breakFor(const std::vector<priceBreak> &prices, const decimal &quantity)
{
    const priceBreak *found = nullptr;
    for (const priceBreak &one : prices)
        if (one.from <= quantity || (!found && one.from <= whole(1)))
            found = &one;
    return found;
}

class cellMaker
{
public:
    cellMaker(const orderOffers::need &need, const offeredStruct &row, const firm &of)
        : m_need(need)
        , m_row(row)
        , m_firm(of)
    {
    }

    cell make()
    {
        cell result;
        result.prices = m_row.prices;
        result.offerRemarks = m_row.remarks;
        const auto own = daysOf(m_row.leadTime);
        result.leadTime = own ? own : m_firm.leadTime;
        const auto prices = readPrices(m_row.prices);
        const auto bought = toBuy(m_need.quantity, m_row.minimum, m_row.multiple);
        if (!m_firm.fault.isEmpty())
            result.remark = m_firm.fault;
        else if (!prices)
            result.remark =
                QCoreApplication::translate("offerComparison", "Its prices cannot be read: %1")
                    .arg(m_row.prices);
        else if (!bought)
            result.remark = QCoreApplication::translate("offerComparison",
                                                        "Its minimum or multiple cannot be read");
        else if (const priceBreak *counting = breakFor(*prices, *bought)) {
            result.isOffered = true;
            result.price = net(counting->price);
            result.bought = *bought;
            result.cost = *bought * result.price;
            remarkCheaper(*prices, &result);
        } else {
            result.remark = QCoreApplication::translate("offerComparison", "It is sold from %1 on")
                                .arg(prices->front().from.text());
        }
        return result;
    }

private:
    decimal net(const decimal &price) const
    {
        return netPrice(price, m_firm.rate, m_firm.isGross, m_firm.vat);
    }
    void remarkCheaper(const std::vector<priceBreak> &prices, cell *of) const
    {
        decimal least = of->cost;
        for (const priceBreak &one : prices) {
            if (one.from <= of->bought)
                continue;
            const auto more = toBuy(one.from, m_row.minimum, m_row.multiple);
            const priceBreak *counting = more ? breakFor(prices, *more) : nullptr;
            if (!counting || *more * net(counting->price) >= least)
                continue;
            least = *more * net(counting->price);
            of->remark = QCoreApplication::translate("offerComparison",
                                                     "%1 would cost less in total: %2 PLN")
                             .arg(more->text(), least.money());
        }
    }

    const orderOffers::need &m_need;
    const offeredStruct &m_row;
    const firm &m_firm;
};

QHash<QString, const offeredStruct *> rowsOf(const offerStruct &offer)
{
    QHash<QString, const offeredStruct *> rows;
    for (const auto &row : offer.items)
        if (!rows.contains(row->key))
            rows.insert(row->key, row.get());
    return rows;
}

bool isBetter(const cell &one, const cell &other)
{
    return one.cost < other.cost
           || (one.cost == other.cost && isShorter(one.leadTime, other.leadTime));
}

bool isProposed(const comparison &of, int material, int firm)
{
    return of.isOffered(material, firm) && !of.firms[size_t(firm)].isExpired;
}

const cell &cellAt(const comparison &of, int material, int firm)
{
    return of.materials[size_t(material)].cells[size_t(firm)];
}

// The firm whose cell is the best of those for which something holds; -1 when it holds for none.
// Firms are by name, so that of equal ones the first counts.
template <class Holds>
int bestOf(const comparison &of, int material, const Holds &holds)
{
    int best = -1;
    for (int i = 0; i < int(of.firms.size()); ++i)
        if (isProposed(of, material, i) && holds(i)
            && (best < 0 || isBetter(cellAt(of, material, i), cellAt(of, material, best))))
            best = i;
    return best;
}

template <class Holds>
selection bestSelection(const comparison &of, const Holds &holds)
{
    std::vector<int> firmOf;
    for (int i = 0; i < int(of.materials.size()); ++i)
        firmOf.push_back(bestOf(of, i, [&](int firm) { return holds(i, firm); }));
    return selectionOf(of, std::move(firmOf));
}

void addUp(comparison *of)
{
    for (size_t i = 0; i < of->firms.size(); ++i) {
        firm &one = of->firms[i];
        for (const material &line : of->materials) {
            const cell &at = line.cells[i];
            if (!at.isOffered) {
                ++one.missing;
                continue;
            }
            ++one.offered;
            one.cost += at.cost;
            if (at.leadTime)
                one.longestLeadTime = std::max(one.longestLeadTime.value_or(0), *at.leadTime);
        }
        one.tax = taxOf(one.cost, one.vat);
    }
}

// --- Selections

selection oneFirm(const comparison &of)
{
    std::vector<selection> each;
    std::vector<std::optional<int>> longest;
    for (int i = 0; i < int(of.firms.size()); ++i) {
        each.push_back(bestSelection(of, [i](int, int firm) { return firm == i; }));
        longest.push_back(of.firms[size_t(i)].longestLeadTime);
    }
    int best = -1;
    for (int i = 0; i < int(each.size()); ++i) {
        if (each[size_t(i)].firms.empty())
            continue;
        if (best < 0) {
            best = i;
            continue;
        }
        const selection &one = each[size_t(i)];
        const selection &other = each[size_t(best)];
        if (one.missing.size() != other.missing.size()
                ? one.missing.size() < other.missing.size()
                : one.net < other.net
                      || (one.net == other.net
                          && isShorter(longest[size_t(i)], longest[size_t(best)])))
            best = i;
    }
    return best < 0 ? selectionOf(of, {}) : each[size_t(best)];
}

// Looks for few firms that together offer all that any firm offers.
class fewFirms
{
public:
    fewFirms(const comparison &of, const decimal &within)
        : m_of(of)
        , m_cheapest(bestSelection(of, [](int, int) { return true; }))
        , m_limit(m_cheapest.net * (hundred() + within)) // in hundredths
    {
        for (int i = 0; i < int(of.firms.size()); ++i)
            for (int j = 0; j < int(of.materials.size()); ++j)
                if (isProposed(of, j, i)) {
                    m_firms.push_back(i);
                    break;
                }
        for (int j = 0; j < int(of.materials.size()); ++j) {
            std::vector<int> sorted;
            for (const int one : m_firms)
                if (isProposed(of, j, one))
                    sorted.push_back(one);
            std::stable_sort(sorted.begin(), sorted.end(), [&](int a, int b) {
                return isBetter(cellAt(of, j, a), cellAt(of, j, b));
            });
            m_byCost.push_back(std::move(sorted));
        }
    }

    selection find() const
    {
        constexpr size_t mostExact = 12;
        return m_firms.size() <= mostExact ? exact() : greedy();
    }

private:
    using firmSet = std::vector<bool>; // by place in the comparison

    // What some firms offer, each material from the best of them.
    struct share
    {
        std::vector<int> firmOf;
        int missing = 0; // of what any firm offers
        decimal cost;
    };
    share shareOf(const firmSet &taken) const
    {
        share result;
        for (size_t j = 0; j < m_byCost.size(); ++j) {
            const auto found = std::find_if(m_byCost[j].begin(), m_byCost[j].end(),
                                            [&](int firm) { return taken[size_t(firm)]; });
            const bool isFound = found != m_byCost[j].end();
            result.firmOf.push_back(isFound ? *found : -1);
            if (isFound)
                result.cost += cellAt(m_of, int(j), *found).cost;
            else
                result.missing += !m_byCost[j].empty();
        }
        return result;
    }
    // Of those firms only; nothing when they do not offer all, or it costs too much.
    std::optional<selection> of(const firmSet &taken) const
    {
        share all = shareOf(taken);
        if (all.missing > 0 || all.cost.times(100) > m_limit)
            return {};
        return selectionOf(m_of, std::move(all.firmOf));
    }

    selection exact() const
    {
        const size_t count = m_firms.size();
        for (size_t size = 1; size <= count; ++size) {
            std::optional<selection> best;
            // From the first names on, so that of equal ones the first counts.
            std::vector<bool> places(count, false);
            std::fill_n(places.begin(), size, true);
            do {
                firmSet taken(m_of.firms.size(), false);
                for (size_t i = 0; i < count; ++i)
                    taken[size_t(m_firms[i])] = places[i];
                auto found = of(taken);
                if (found && (!best || found->net < best->net))
                    best = std::move(found);
            } while (std::prev_permutation(places.begin(), places.end()));
            if (best)
                return *best;
        }
        return m_cheapest;
    }

    // From the cheapest, and from the firms that together offer all: whichever are fewer.
    selection greedy() const
    {
        const selection fromCheapest = fewer(m_cheapest);
        const std::optional<selection> gathered = gather();
        if (!gathered)
            return fromCheapest;
        const selection fromGathered = fewer(*gathered);
        const size_t one = fromGathered.firms.size();
        const size_t other = fromCheapest.firms.size();
        return one < other || (one == other && fromGathered.net < fromCheapest.net) ? fromGathered
                                                                                    : fromCheapest;
    }
    // Takes a firm after the other, each time the one with which least is missing, then what costs
    // least, until they offer all and it does not cost too much.
    std::optional<selection> gather() const
    {
        firmSet taken(m_of.firms.size(), false);
        for (size_t i = 0; i < m_firms.size(); ++i) {
            int next = -1;
            share best;
            for (const int one : m_firms) {
                if (taken[size_t(one)])
                    continue;
                taken[size_t(one)] = true;
                share with = shareOf(taken);
                taken[size_t(one)] = false;
                if (next < 0 || with.missing < best.missing
                    || (with.missing == best.missing && with.cost < best.cost)) {
                    next = one;
                    best = std::move(with);
                }
            }
            taken[size_t(next)] = true;
            if (auto found = of(taken))
                return found;
        }
        return {};
    }
    // Leaves out a firm after the other, each time the one that costs least to be without.
    selection fewer(selection best) const
    {
        for (;;) {
            std::optional<selection> next;
            for (const int without : best.firms) {
                firmSet taken(m_of.firms.size(), false);
                for (const int one : best.firms)
                    taken[size_t(one)] = one != without;
                auto found = of(taken);
                if (found && (!next || found->net < next->net))
                    next = std::move(found);
            }
            if (!next)
                return best;
            best = std::move(*next);
        }
    }

    const comparison &m_of;
    selection m_cheapest;
    decimal m_limit;
    std::vector<int> m_firms;               // that offer anything
    std::vector<std::vector<int>> m_byCost; // of each material, the best first
};

} // namespace

// --- Prices by quantity
// ---------------------------------------------------------------------------------

QString textOf(const std::vector<priceBreak> &prices)
{
    QStringList all;
    for (const priceBreak &one : prices)
        all.append(one.from.text() + QLatin1String(": ") + one.price.text(mostDecimals, 2));
    return all.join(QLatin1String("; "));
}

std::optional<std::vector<priceBreak>> readPrices(const QString &text)
{
    std::vector<priceBreak> prices;
    for (const QString &one : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        if (one.trimmed().isEmpty())
            continue;
        const int colon = one.indexOf(QLatin1Char(':'));
        const auto from = colon < 0 ? std::nullopt : decimal::read(one.left(colon).trimmed());
        const auto price = decimal::read(one.mid(colon + 1).trimmed());
        if (!from || !price || *from <= decimal() || *price <= decimal()
            || (!prices.empty() && *from <= prices.back().from))
            return {};
        prices.push_back({*from, *price});
    }
    return prices.empty() ? std::nullopt : std::optional(prices);
}

std::optional<decimal> toBuy(const decimal &need, const QString &minimum, const QString &multiple)
{
    decimal quantity = need;
    if (!minimum.trimmed().isEmpty()) {
        const auto least = decimal::read(minimum.trimmed());
        if (!least || *least <= decimal())
            return {};
        quantity = std::max(quantity, *least);
    }
    if (multiple.trimmed().isEmpty())
        return quantity;
    const auto step = decimal::read(multiple.trimmed());
    return step && *step > decimal() ? stepsUpTo(quantity, *step) : std::nullopt;
}

decimal netPrice(const decimal &price, const decimal &rate, bool isGross, const decimal &vat)
{
    const decimal amount = price * rate;
    if (!isGross)
        return rounded(amount);
    // (100 + vat) without its decimals, of which there are six at most.
    constexpr int million = 1000000;
    const int divisor = int(
        (hundred() + vat).text(mostDecimals, mostDecimals).remove(QLatin1Char('.')).toLongLong());
    return rounded(amount.times(100).times(million).dividedBy(divisor));
}

// --- The table
// ------------------------------------------------------------------------------------------

decimal firm::gross() const { return inGrosz(cost) + tax; }

decimal selection::gross() const { return inGrosz(net) + tax; }

bool comparison::isOffered(int material, int firm) const
{
    return material >= 0 && firm >= 0 && material < int(materials.size())
           && firm < int(firms.size()) && cellAt(*this, material, firm).isOffered;
}

namespace {

// An offer with its terms.
struct offerRowsOf
{
    firm terms;
    QHash<QString, const offeredStruct *> rows;
};

// By the firm's latest offer that has the material: an answer to a second request may be of other
// lines. Those before it have to be valid still.
cell cellOf(const orderOffers::need &need, const std::vector<offerRowsOf> &offers)
{
    for (const offerRowsOf &one : offers) {
        const offeredStruct *row = one.rows.value(need.key);
        if (row && (&one == &offers.front() || !one.terms.isExpired))
            return cellMaker(need, *row, one.terms).make();
    }
    return {};
}

} // namespace

comparison comparisonOf(const kiv_mat_zpStruct &order, const kiv_mat_offersStruct &offers,
                        const decimal &vat, const QDate &day)
{
    comparison result;
    result.number = order.options.value(optionKey::orderNumber);
    result.day = day;
    std::vector<const offerStruct *> latest;
    for (const auto &offer : offers.offers)
        if (orderOffers::offerOf(offers, offer->firm, offer->nip) == offer.get())
            latest.push_back(offer.get());
    std::stable_sort(latest.begin(), latest.end(),
                     [](const offerStruct *one, const offerStruct *other) {
                         const int names = one->firm.compare(other->firm, Qt::CaseInsensitive);
                         return names != 0 ? names < 0 : one->nip < other->nip;
                     });
    std::vector<std::vector<offerRowsOf>> rows;
    for (const offerStruct *offer : latest) {
        result.firms.push_back(firmOf(*offer, vat, day));
        rows.emplace_back();
        for (const offerStruct *one : orderOffers::offersOf(offers, offer->firm, offer->nip))
            rows.back().push_back({firmOf(*one, vat, day), rowsOf(*one)});
    }

    orderOffers::needs needs = orderOffers::needsOf(order);
    result.uncounted = std::move(needs.uncounted);
    for (orderOffers::need &need : needs.all) {
        material line;
        for (const auto &ofFirm : rows)
            line.cells.push_back(cellOf(need, ofFirm));
        line.need = std::move(need);
        result.materials.push_back(std::move(line));
    }
    for (int i = 0; i < int(result.materials.size()); ++i) {
        material &line = result.materials[size_t(i)];
        line.best = bestOf(result, i, [](int) { return true; });
        if (line.best >= 0)
            line.cells[size_t(line.best)].isBest = true;
    }
    addUp(&result);
    return result;
}

// --- Selections
// -----------------------------------------------------------------------------------------

selection propose(const comparison &of, const question &what)
{
    switch (what.by) {
    case mode::oneFirm:
        return oneFirm(of);
    case mode::fewestFirms:
        return fewFirms(of, what.within).find();
    case mode::byDate:
        return bestSelection(of, [&](int material, int firm) {
            const auto days = cellAt(of, material, firm).leadTime;
            return days && what.until.isValid() && of.day.addDays(*days) <= what.until;
        });
    default:
        return bestSelection(of, [](int, int) { return true; });
    }
}

selection selectionOf(const comparison &of, std::vector<int> firmOf)
{
    selection result;
    result.firmOf = std::move(firmOf);
    result.firmOf.resize(of.materials.size(), -1);
    std::vector<decimal> costs(of.firms.size());
    std::vector<bool> taken(of.firms.size(), false);
    for (int i = 0; i < int(of.materials.size()); ++i) {
        int &firm = result.firmOf[size_t(i)];
        if (!of.isOffered(i, firm)) {
            firm = -1;
            result.missing.push_back(i);
            continue;
        }
        taken[size_t(firm)] = true;
        costs[size_t(firm)] += cellAt(of, i, firm).cost;
    }
    for (int i = 0; i < int(of.firms.size()); ++i) {
        if (!taken[size_t(i)])
            continue;
        result.firms.push_back(i);
        result.net += costs[size_t(i)];
        result.tax += taxOf(costs[size_t(i)], of.firms[size_t(i)].vat);
    }
    return result;
}

selection chosenBefore(const comparison &of, const kiv_mat_offersStruct &offers)
{
    std::vector<int> firmOf;
    for (const material &line : of.materials) {
        firmOf.push_back(-1);
        const choiceStruct *choice = orderOffers::choiceFor(offers, line.need.key);
        for (int i = 0; choice && i < int(of.firms.size()) && firmOf.back() < 0; ++i)
            if (orderOffers::isSameFirm(of.firms[size_t(i)].name, of.firms[size_t(i)].nip,
                                        choice->firm, choice->nip))
                firmOf.back() = i;
    }
    return selectionOf(of, std::move(firmOf));
}

// --- Taking it over
// -------------------------------------------------------------------------------------

std::vector<lineChange> changesOf(const kiv_mat_zpStruct &order, const comparison &of,
                                  const selection &chosen, bool raisesQuantities)
{
    const orderOffers::needs now = orderOffers::needsOf(order);
    const auto &lines = order.orderItems.items;
    std::vector<lineChange> changes;
    for (int i = 0; i < int(of.materials.size()); ++i) {
        const orderOffers::need *need = now.find(of.materials[size_t(i)].need.key);
        if (!need || chosen.firmOf[size_t(i)] < 0)
            continue;
        const cell &at = cellAt(of, i, chosen.firmOf[size_t(i)]);
        // What came or was invoiced stays as it was bought.
        std::vector<int> open;
        for (const int line : need->lines)
            if (deliveries::isOpen(*lines[size_t(line)]))
                open.push_back(line);
        for (const int line : open) {
            const orderItemStruct &item = *lines[size_t(line)];
            lineChange change{line, {}, {}};
            if (decimal::read(item.price) != at.price)
                change.price = at.price.text(mostDecimals, 2);
            if (raisesQuantities && line == open.back() && at.bought > need->quantity)
                change.quantity =
                    (decimal::read(item.quantity).value_or(decimal()) + at.bought - need->quantity)
                        .text();
            if (!change.price.isEmpty() || !change.quantity.isEmpty())
                changes.push_back(change);
        }
    }
    return changes;
}

applied applyChoice(kiv_mat_zpStruct *order, const comparison &of, const selection &chosen,
                    bool raisesQuantities)
{
    applied done;
    for (const lineChange &change : changesOf(*order, of, chosen, raisesQuantities)) {
        orderItemStruct &line = *order->orderItems.items[size_t(change.line)];
        if (!change.price.isEmpty()) {
            line.price = change.price;
            ++done.prices;
        }
        if (!change.quantity.isEmpty()) {
            line.quantity = change.quantity;
            ++done.quantities;
        }
    }
    return done;
}

choiceList choicesOf(const comparison &of, const selection &chosen, const QString &reason,
                     const QDate &date, const QString &by)
{
    choiceList all;
    for (int i = 0; i < int(of.materials.size()); ++i) {
        const int place = chosen.firmOf[size_t(i)];
        if (place < 0)
            continue;
        auto choice = std::make_unique<choiceStruct>();
        choice->key = of.materials[size_t(i)].need.key;
        choice->firm = of.firms[size_t(place)].name;
        choice->nip = of.firms[size_t(place)].nip;
        choice->price = cellAt(of, i, place).price.text(mostDecimals, 2);
        choice->date = orderOffers::dateText(date);
        choice->by = by;
        choice->reason = reason;
        all.push_back(std::move(choice));
    }
    return all;
}

bool storeChoices(const QString &orderPath, const QString &orderNumber, const choiceList &choices,
                  configStruct &config, QString *fault)
{
    return offersFile(orderOffers::fileOf(orderPath))
        .change(
            [&](kiv_mat_offersStruct &offers) {
                if (offers.number.isEmpty())
                    offers.number = orderNumber;
                offers.choices.clear();
                for (const auto &choice : choices) {
                    auto own = std::make_unique<choiceStruct>();
                    copyFields(*own, *choice, choiceStruct::fields());
                    offers.choices.push_back(std::move(own));
                }
                return !choices.empty();
            },
            config, fault);
}

} // namespace offerComparison
