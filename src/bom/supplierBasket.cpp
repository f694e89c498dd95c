#include "bom/supplierBasket.h"

#include "data/firmDetails.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/vocabulary.h"
#include "util/safeFile.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace supplierBasket {

using namespace bomOperations;

namespace {

QString translated(const char *source)
{
    return QCoreApplication::translate("supplierBasket", source);
}

std::optional<decimal> countOf(const QString &quantity)
{
    const auto count = decimal::read(quantity);
    return count && *count > decimal() ? count : std::nullopt;
}

// The one that names a part number, with the number; of several the first.
template <class Source, class Matches>
QString numberOf(const std::vector<std::unique_ptr<Source>> &sources, const Matches &matches,
                 QString *name = nullptr)
{
    for (const auto &source : sources)
        if (const QString number = source->partNo.trimmed();
            !number.isEmpty() && matches(*source)) {
            if (name)
                *name = source->name;
            return number;
        }
    return {};
}

line lineOf(const item &of, const QString &supplier)
{
    line made{of, supplier, {}, {}, {}};
    if (of.material) {
        const auto &makers = of.material->manufacturers.items;
        const QString fallback = numberOf(
            makers, [](const auto &) { return true; }, &made.manufacturer);
        if (made.manufacturer.isEmpty() && !makers.empty())
            made.manufacturer = makers.front()->name;
        made.partNumber = numberOf(of.material->suppliers.items, [&supplier](const auto &source) {
            return firmDetails::isSameName(source.name, supplier);
        });
        if (made.partNumber.isEmpty())
            made.partNumber = fallback;
    }
    made.fault =
        !of.quantity   ? translated(QT_TRANSLATE_NOOP(
              "supplierBasket", "the quantity is no number above 0; the line is left out"))
        : !of.material ? translated(QT_TRANSLATE_NOOP("supplierBasket", "in no database"))
        : supplier.isEmpty()
            ? translated(QT_TRANSLATE_NOOP("supplierBasket", "the material has no supplier"))
        : made.partNumber.isEmpty()
            ? translated(QT_TRANSLATE_NOOP("supplierBasket", "no part number"))
            : QString();
    return made;
}

QString supplierOf(const item &of, const QString &chosen, const QString &preferred)
{
    const QStringList all = suppliersOf(of);
    for (const QString &wanted : {chosen, preferred})
        for (const QString &one : all)
            if (firmDetails::isSameName(one, wanted))
                return one;
    return all.value(0);
}

// What a file may be called on every system.
QString fileNameOf(const QString &firm)
{
    QString name = firm.simplified();
    for (QChar &c : name)
        if (c < QLatin1Char(' ') || QStringLiteral("<>:\"/\\|?*").contains(c))
            c = QLatin1Char('_');
    while (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        name.chop(1);
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    constexpr int longest = 60;
    name = text::firstUnits(name, longest);
    return name.isEmpty() ? QStringLiteral("no_supplier") : name;
}

} // namespace

std::vector<item> itemsOf(const demand &of, const std::vector<orderedNeed> &rows,
                          const std::function<bool(const need &)> &isChosen)
{
    std::vector<item> items;
    for (const orderedNeed &row : rows) {
        const need &one = *row.of;
        const decimal count = one.isKnown() ? row.toOrder : row.wanted;
        if (count > decimal() && (!isChosen || isChosen(one)))
            items.push_back({one.ktm, one.name, one.material, count, count.text(),
                             one.designators.join(QLatin1String(", "))});
    }
    for (const materialStruct *line : of.uncounted)
        items.push_back(
            {line->d_ktm, line->d_name, nullptr, {}, line->d_quantity, line->d_designator});
    return items;
}

std::vector<item> itemsOf(const kiv_mat_zpStruct &order, const ktmIndex &materials)
{
    std::vector<item> items;
    QHash<QString, size_t> places;
    for (const auto &line : order.orderItems.items) {
        const auto count = countOf(line->quantity);
        // Without a KTM lines are told apart by their names; no KTM holds a line end.
        const QString key = (line->ktm.isEmpty() ? QLatin1Char('\n') + line->name : line->ktm)
                            + QLatin1String("\n\n") + line->unit;
        const auto place = places.constFind(key);
        if (count && place != places.constEnd()) {
            item &same = items[*place];
            same.quantity = *same.quantity + *count;
            same.writtenQuantity = same.quantity->text();
            continue;
        }
        if (count)
            places.insert(key, items.size());
        const ktmIndex::entry *found = materials.find(line->ktm);
        items.push_back({line->ktm,
                         line->name,
                         found ? found->material : nullptr,
                         count,
                         count ? count->text() : line->quantity,
                         {}});
    }
    return items;
}

QStringList suppliersOf(const item &of)
{
    QStringList names;
    if (of.material)
        for (const auto &supplier : of.material->suppliers.items)
            if (!supplier->name.trimmed().isEmpty()
                && std::none_of(names.cbegin(), names.cend(), [&supplier](const QString &name) {
                       return firmDetails::isSameName(name, supplier->name);
                   }))
                names.append(supplier->name);
    return names;
}

basketForm::values line::values() const
{
    return {partNumber, of.quantity ? of.quantity->text() : QString(),
            of.ktm,     manufacturer,
            of.name,    of.designators};
}

std::optional<decimal> line::amount(const decimal &share) const
{
    const auto price = of.material ? decimal::read(of.material->d_price) : std::nullopt;
    return price && of.quantity ? std::optional(*price * *of.quantity * share) : std::nullopt;
}

int basket::faults() const
{
    return int(std::count_if(lines.begin(), lines.end(),
                             [](const line &one) { return !one.fault.isEmpty(); }));
}

decimal basket::sum(const decimal &share) const
{
    decimal all;
    for (const line &one : lines)
        all += one.amount(share).value_or(decimal());
    return all;
}

QString keyOf(const item &of) { return of.ktm.isEmpty() ? of.name : of.ktm; }

std::vector<basket> basketsOf(const std::vector<item> &items, const choices &chosen,
                              const QString &preferred)
{
    std::vector<basket> baskets;
    basket none;
    for (const item &one : items) {
        const QString supplier = supplierOf(one, chosen.value(keyOf(one)), preferred);
        if (supplier.isEmpty()) {
            none.lines.push_back(lineOf(one, {}));
            continue;
        }
        auto its = std::find_if(baskets.begin(), baskets.end(), [&supplier](const basket &other) {
            return firmDetails::isSameName(other.supplier, supplier);
        });
        if (its == baskets.end())
            its = baskets.insert(baskets.end(), {supplier, {}});
        its->lines.push_back(lineOf(one, its->supplier));
    }
    if (!none.lines.empty())
        baskets.push_back(std::move(none));
    return baskets;
}

QString fileText(const basket &of, const firmDetailsStruct &form)
{
    std::vector<basketForm::values> lines;
    for (const line &one : of.lines)
        if (one.isWritten())
            lines.push_back(one.values());
    return basketForm::text(form, lines);
}

QString tabbedText(const basket &of, const firmDetailsStruct &form)
{
    QString all;
    if (form.captions != statusWord::no)
        all += text::tabbedRow(basketForm::captionsOf(form)) + QLatin1Char('\n');
    for (const line &one : of.lines)
        if (one.isWritten())
            all += text::tabbedRow(basketForm::cellsOf(form, one.values())) + QLatin1Char('\n');
    return all;
}

bool write(const basket &of, const firmDetailsStruct &form, const QString &path, QString *fault)
{
    const QString content = fileText(of, form);
    const bool isPlain =
        std::all_of(content.cbegin(), content.cend(), [](QChar c) { return c.unicode() < 0x80; });
    safeFile file(path);
    const bool good = file.open(QIODevice::WriteOnly)
                      && (isPlain || file.write("\xef\xbb\xbf") >= 0)
                      && file.write(content.toUtf8()) >= 0 && file.commit();
    *fault = good ? QString() : file.errorString();
    return good;
}

formOf formsOf(const kiv_mat_firmDetailsStruct &details, const kiv_mat_firmStruct &firms)
{
    return [&details, &firms](const QString &supplier) -> const firmDetailsStruct & {
        static const firmDetailsStruct usual;
        const firmDetailsStruct *found = firmDetails::ofSupplier(details, firms, supplier);
        return found ? *found : usual;
    };
}

QStringList fileNames(const std::vector<basket> &baskets, const formOf &forms)
{
    QStringList names;
    QSet<QString> taken; // file names differ in more than their letters' case
    for (const basket &one : baskets) {
        const QString base = fileNameOf(one.supplier);
        const QString ending = QLatin1Char('.') + basketForm::suffix(forms(one.supplier));
        QString name = base + ending;
        for (int number = 2; taken.contains(name.toCaseFolded()); ++number)
            name = base + QLatin1Char('_') + QString::number(number) + ending;
        taken.insert(name.toCaseFolded());
        names.append(name);
    }
    return names;
}

} // namespace supplierBasket
