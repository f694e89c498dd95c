#include "orders/annualPlan.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/vocabulary.h"
#include "orders/orderOffers.h"
#include "orders/orderRegister.h"
#include "util/numbers.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace annualPlan {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("annualPlan", text); }

std::optional<decimal> amountOf(const QString &price, const QString &quantity)
{
    const auto one = decimal::read(price);
    const auto many = decimal::read(quantity);
    return one && many ? std::optional(*one * *many) : std::nullopt;
}

std::optional<decimal> amountOf(const orderIndex &index, const orderIndex::line &line)
{
    return amountOf(index.textOf(line, orderIndex::price),
                    index.textOf(line, orderIndex::quantity));
}

QString money(const decimal &amount) { return numbers::grouped(amount.money()); }

// The keys by which firms were chosen for the lines of one order, asked in their order.
class firmKeys
{
public:
    QString of(const orderIndex &index, const orderIndex::line &line)
    {
        const QString ktm = index.textOf(line, orderIndex::ktm).trimmed();
        const QString plain = ktm.isEmpty() ? index.textOf(line, orderIndex::name).trimmed() : ktm;
        const QString unit = index.textOf(line, orderIndex::unit).trimmed();
        const auto quantity = decimal::read(index.textOf(line, orderIndex::quantity));
        // Nothing was asked for the others.
        if (quantity && *quantity > decimal() && !m_units.contains(plain))
            m_units.insert(plain, unit);
        return m_units.value(plain, unit) == unit ? plain : plain + QLatin1Char(' ') + unit;
    }

private:
    QHash<QString, QString> m_units; // the first of each material
};

void add(sums &to, const std::optional<decimal> &amount, bool isOrdered)
{
    ++to.lines;
    if (!amount) {
        ++to.leftOut;
        return;
    }
    to.estimated += *amount;
    if (isOrdered)
        to.ordered += *amount;
}

// Makes a plan, order by order.
class planner
{
public:
    planner(const orderIndex &index, const question &what, const thresholds &limits,
            const options &by)
        : m_index(index)
        , m_limits(limits)
        , m_by(by)
    {
        m_plan.what = what;
    }

    void addOrder(const orderIndex::order &order);
    plan finish();

private:
    struct key
    {
        rowKind kind;
        QString text;
    };
    key keyOf(const orderIndex::order &order, const orderIndex::line &line, const QString &code,
              firmKeys &firms) const;
    row &rowOf(const key &of);
    category *categoryOf(const QString &code);
    void noteWithoutCode(const orderIndex::order &order, int line);

    const orderIndex &m_index;
    const thresholds &m_limits;
    const options &m_by;
    plan m_plan;
    QHash<QString, size_t> m_rows;
    QHash<QString, size_t> m_categories;
};

planner::key planner::keyOf(const orderIndex::order &order, const orderIndex::line &line,
                            const QString &code, firmKeys &firms) const
{
    switch (m_plan.what.by) {
    case grouping::target: {
        const QString target = m_index.textOf(line, orderIndex::target).simplified();
        return {target.isEmpty() ? rowKind::noTarget : rowKind::target, target};
    }
    case grouping::firm: {
        const QString firm = m_by.firmOf(order, firms.of(m_index, line)).simplified();
        return {firm.isEmpty() ? rowKind::noFirm : rowKind::firm, firm};
    }
    default:
        break;
    }
    if (!code.isEmpty())
        return {rowKind::code,
                m_plan.what.by == grouping::group ? code.left(m_plan.what.digits) : code};
    const QString text = m_index.textOf(line, orderIndex::cpv).simplified();
    return {text.isEmpty() ? rowKind::noCode : rowKind::badCode, text};
}

row &planner::rowOf(const key &of)
{
    const QString name = QChar('a' + int(of.kind)) + of.text;
    auto found = m_rows.find(name);
    if (found == m_rows.end()) {
        found = m_rows.insert(name, m_plan.rows.size());
        m_plan.rows.push_back({of.kind, of.text, {}, {}, standing::none, {}, {}});
    }
    return m_plan.rows[*found];
}

category *planner::categoryOf(const QString &code)
{
    const auto limit = code.isEmpty() ? std::nullopt : m_limits.categoryOf(code);
    if (!limit)
        return nullptr;
    auto found = m_categories.find(limit->digits);
    if (found == m_categories.end()) {
        found = m_categories.insert(limit->digits, m_plan.categories.size());
        m_plan.categories.push_back({limit->digits, limit->amount, {}});
    }
    return &m_plan.categories[*found];
}

void planner::noteWithoutCode(const orderIndex::order &order, int line)
{
    const orderIndex::line &of = order.lines[size_t(line)];
    const QString number = order.number.trimmed();
    m_plan.withoutCode.push_back(
        {order.path, number.isEmpty() ? QFileInfo(order.path).fileName() : number, line,
         m_index.textOf(of, orderIndex::ktm), m_index.textOf(of, orderIndex::name),
         m_index.textOf(of, orderIndex::cpv).simplified()});
}

void planner::addOrder(const orderIndex::order &order)
{
    if (m_by.isParted(order)) {
        ++m_plan.parted;
        return;
    }
    const bool isOrdered = m_by.isOrdered(order);
    firmKeys firms;
    QSet<size_t> rows;
    QSet<QString> categories;
    for (int i = 0; i < int(order.lines.size()); ++i) {
        const orderIndex::line &line = order.lines[size_t(i)];
        const QString code = codeOf(m_index.textOf(line, orderIndex::cpv));
        const auto amount = amountOf(m_index, line);
        const key at = keyOf(order, line, code, firms);
        row &to = rowOf(at);
        const size_t place = size_t(&to - m_plan.rows.data());
        add(m_plan.total, amount, isOrdered);
        add(to.of, amount, isOrdered);
        if (!rows.contains(place)) {
            rows.insert(place);
            ++to.of.orders;
        }
        if (category *of = categoryOf(code)) {
            add(of->of, amount, isOrdered);
            if (!categories.contains(of->digits)) {
                categories.insert(of->digits);
                ++of->of.orders;
            }
            if (at.kind == rowKind::code && !to.categories.contains(of->digits))
                to.categories.append(of->digits);
        }
        if (code.isEmpty())
            noteWithoutCode(order, i);
    }
    m_plan.total.orders += order.lines.empty() ? 0 : 1;
}

plan planner::finish()
{
    for (row &one : m_plan.rows) {
        one.categories.sort();
        for (const QString &digits : qAsConst(one.categories)) {
            const category &of = m_plan.categories[m_categories.value(digits)];
            if (of.state() > one.state)
                one.worst.clear();
            one.state = std::max(one.state, of.state());
            if (of.state() == one.state)
                one.worst.append(digits);
            if (one.categories.size() == 1 && of.of.lines == one.of.lines)
                one.threshold = of.threshold;
        }
    }
    sortRows(m_plan.rows, false);
    std::sort(m_plan.categories.begin(), m_plan.categories.end(),
              [](const category &a, const category &b) { return a.digits < b.digits; });
    return std::move(m_plan);
}

} // namespace

// --- The plan
// -------------------------------------------------------------------------------------

options optionsOf(orderRegister &orders)
{
    options of;
    of.isOrdered = [&orders](const orderIndex::order &order) { return orders.isOrdered(order); };
    of.isParted = [&orders](const orderIndex::order &order) { return orders.isParted(order); };
    // Most orders have no offers: one look for each of them, not for each line.
    of.firmOf = [&orders, path = QString(), hasOffers = false](const orderIndex::order &order,
                                                               const QString &key) mutable {
        if (order.path != path) {
            path = order.path;
            hasOffers = QFileInfo::exists(orderOffers::fileOf(path));
        }
        return hasOffers ? orders.firmOf(order, key) : QString();
    };
    return of;
}

QString nameOf(const row &of)
{
    switch (of.kind) {
    case rowKind::noCode:
        return tr("without a CPV code");
    case rowKind::badCode:
        return tr("not a CPV code: %1").arg(of.text);
    case rowKind::noTarget:
        return tr("without a target");
    case rowKind::noFirm:
        return tr("supplier not known");
    default:
        return of.text;
    }
}

QString shareOf(const row &of, const sums &total)
{
    if (total.estimated <= decimal())
        return {};
    constexpr double percent = 100;
    return QString::number(
        of.of.estimated.text().toDouble() * percent / total.estimated.text().toDouble(), 'f', 1);
}

void sortRows(std::vector<row> &rows, bool byName)
{
    std::sort(rows.begin(), rows.end(), [byName](const row &a, const row &b) {
        if (!byName && a.of.estimated != b.of.estimated)
            return a.of.estimated > b.of.estimated;
        const int names = QString::compare(nameOf(a), nameOf(b), Qt::CaseInsensitive);
        return names != 0 ? names < 0 : nameOf(a) < nameOf(b);
    });
}

std::vector<int> yearsOf(const orderIndex &index)
{
    std::vector<int> years;
    for (const orderIndex::order &order : index.orders())
        if (order.date.isValid())
            years.push_back(order.date.year());
    std::sort(years.begin(), years.end(), std::greater<>());
    years.erase(std::unique(years.begin(), years.end()), years.end());
    return years;
}

plan planOf(const orderIndex &index, const question &what, const thresholds &limits,
            const options &by, const progressFunction &progress)
{
    planner made(index, what, limits, by);
    progressSteps steps(progress, (long long)index.orders().size());
    bool complete = true;
    for (const orderIndex::order &order : index.orders()) {
        if (order.date.isValid() && order.date.year() == what.year)
            made.addOrder(order);
        complete = steps.next();
        if (!complete)
            break;
    }
    plan result = made.finish();
    result.complete = complete;
    return result;
}

// --- The order that is open
// -----------------------------------------------------------------------

namespace {

// Calls for each line with a code and an amount.
void eachAmount(const orderIndex &index, const orderIndex::order &order,
                const std::function<void(const QString &code, const decimal &amount)> &take)
{
    for (const orderIndex::line &line : order.lines) {
        const QString code = codeOf(index.textOf(line, orderIndex::cpv));
        if (code.isEmpty())
            continue;
        if (const auto amount = amountOf(index, line))
            take(code, *amount);
    }
}

const orderIndex::order *findOrder(const orderIndex &index, const QString &path)
{
    if (path.isEmpty())
        return nullptr;
    const QString file = QFileInfo(path).absoluteFilePath();
    for (const orderIndex::order &order : index.orders())
        if (order.path == file)
            return &order;
    return nullptr;
}

} // namespace

const QHash<QString, decimal> &yearSums::of(int year, const orderIndex &index, int revision,
                                            const options &by)
{
    if (m_revision != revision)
        m_years.clear();
    m_revision = revision;
    const auto known = m_years.find(year);
    if (known != m_years.end())
        return *known;
    QHash<QString, decimal> &sums = m_years[year];
    for (const orderIndex::order &order : index.orders())
        if (order.date.isValid() && order.date.year() == year && !by.isParted(order))
            eachAmount(index, order, [&sums](const QString &code, const decimal &amount) {
                sums[code] += amount;
            });
    return sums;
}

QString warningText(const thresholdWarning &of)
{
    return tr("CPV %1: %2 PLN in %3, above the threshold of %4 PLN")
        .arg(of.category, money(of.sum), QString::number(of.year), money(of.threshold));
}

std::vector<thresholdWarning> thresholdWarnings(const kiv_mat_zpStruct &order, const QString &path,
                                                const thresholds &limits, yearSums &known,
                                                const orderIndex &index, int revision,
                                                const options &by, const QDate &today)
{
    if (limits.limits.empty())
        return {};
    const orderIndex::order *file = findOrder(index, path);
    QDate date = QDate::fromString(order.options.value(optionKey::orderDate).trimmed(),
                                   QStringLiteral("dd.MM.yyyy"));
    if (!date.isValid())
        date = file ? file->date : today;
    const int year = date.year();

    QHash<QString, thresholdWarning> found; // those of the order's lines
    const bool counts = !file || !by.isParted(*file);
    for (size_t i = 0; i < order.orderItems.items.size(); ++i) {
        const orderItemStruct &line = *order.orderItems.items[i];
        const QString code = codeOf(line.cpv);
        const auto limit = code.isEmpty() ? std::nullopt : limits.categoryOf(code);
        if (!limit)
            continue;
        thresholdWarning &of = found[limit->digits];
        of.category = limit->digits;
        of.year = year;
        of.threshold = limit->amount;
        of.lines.push_back(int(i));
        if (const auto amount = counts ? amountOf(line.price, line.quantity) : std::nullopt)
            of.sum += *amount;
    }
    if (found.isEmpty())
        return {};
    const auto addTo = [&](const QString &code, const decimal &amount) {
        const auto limit = limits.categoryOf(code);
        const auto of = limit ? found.find(limit->digits) : found.end();
        if (of != found.end())
            of->sum += amount;
    };
    const QHash<QString, decimal> &all = known.of(year, index, revision, by);
    for (auto one = all.begin(); one != all.end(); ++one)
        addTo(one.key(), one.value());
    if (file && counts && file->date.year() == year)
        eachAmount(index, *file,
                   [&addTo](const QString &code, const decimal &amount) { addTo(code, -amount); });

    std::vector<thresholdWarning> warnings;
    for (const thresholdWarning &one : qAsConst(found))
        if (one.sum > one.threshold)
            warnings.push_back(one);
    std::sort(warnings.begin(), warnings.end(),
              [](const thresholdWarning &a, const thresholdWarning &b) {
                  return a.category < b.category;
              });
    return warnings;
}

std::vector<thresholdWarning> thresholdWarnings(const kiv_mat_zpStruct &order, const QString &path,
                                                const thresholds &limits, yearSums &known,
                                                orderRegister &orders)
{
    return thresholdWarnings(order, path, limits, known, orders.index(), orders.revision(),
                             optionsOf(orders));
}

} // namespace annualPlan
