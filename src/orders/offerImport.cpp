#include "orders/offerImport.h"

#include "bom/partsTexts.h"
#include "data/firmDetails.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/ktmIndex.h"
#include "data/vocabulary.h"
#include "orders/offerComparison.h"
#include "util/foldedText.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace offerImport {

using quotationForm::entryCount;

namespace {

constexpr int mostDecimals = 6;
// More remarks than a user reads: a supplier's whole catalogue may be a price list.
constexpr int mostRemarks = 200;

QString counted(const char *text, int number)
{
    return QCoreApplication::translate("offerImport", text, nullptr, number);
}

QString dayOf(const QDate &date) { return date.toString(labels::dateFormat()); }

bool hasPrices(const QVector<field> &fields)
{
    return fields.contains(price) || fields.contains(breaks);
}

// Among the first rows the one with the most known captions, prices and a number of materials
// among them; -1 when there is none.
int headerOf(const partsTable &cells)
{
    constexpr int looked = 60;
    int best = -1;
    int bestKnown = 0;
    for (int row = 0; row < std::min(looked, int(cells.rows.size())); ++row) {
        const QVector<field> fields = fieldsOf(cells.rows[row]);
        const int known = fields.size() - fields.count(none);
        if (known > bestKnown && hasPrices(fields)
            && (fields.contains(key) || fields.contains(partNumber))) {
            best = row;
            bestKnown = known;
        }
    }
    return best;
}

// What stands above the table: a caption, and right of it the value.
void readEntries(sheet *of)
{
    for (int row = 0; row < of->header; ++row) {
        const QStringList &cells = of->cells.rows[row];
        for (int column = 0; column < cells.size(); ++column) {
            const auto which = quotationForm::entryNamed(cells[column]);
            if (which == entryCount || !of->entries[which].isEmpty())
                continue;
            of->entryRows[which] = of->cells.lines[row];
            const auto value = std::find_if(cells.begin() + column + 1, cells.end(),
                                            [](const QString &one) { return !one.isEmpty(); });
            if (value != cells.end())
                of->entries[which] = *value;
            break;
        }
    }
    of->isForm = !of->entries[quotationForm::request].isEmpty();
}

QString numberText(const decimal &number) { return number.text(mostDecimals); }

std::optional<decimal> positive(const QString &text)
{
    const auto number = numberOf(text);
    return number && *number > decimal() ? number : std::nullopt;
}

// --- The offer

class reader
{
public:
    reader(const sheet &of, const terms &known, const order &asked)
        : m_sheet(of)
        , m_known(known)
        , m_asked(asked)
    {
    }

    result read()
    {
        m_result.offer = std::make_unique<offerStruct>();
        findRequest();
        readTerms();
        takeCurrency();
        readRows();
        readRate();
        if (m_result.faults.isEmpty() && m_result.offer->items.empty())
            m_result.faults.append(QCoreApplication::translate(
                "offerImport", "It offers nothing: no material of the order has a price"));
        for (const orderOffers::need &one : m_asked.needs.all)
            if (!m_seen.contains(one.key))
                m_result.notNamed.append(one.key);
        for (const auto &[list, more] : {std::pair(&m_result.faults, m_moreFaults),
                                         std::pair(&m_result.remarks, m_moreRemarks)})
            if (more > 0)
                list->append(counted(
                    QT_TRANSLATE_N_NOOP("offerImport", "%n more remark(s) of this kind"), more));
        if (!m_result.faults.isEmpty())
            m_result.offer.reset();
        return std::move(m_result);
    }

private:
    void fault(const QString &text)
    {
        if (m_result.faults.size() < mostRemarks)
            m_result.faults.append(text);
        else
            ++m_moreFaults;
    }
    void remark(const QString &text)
    {
        if (m_result.remarks.size() < mostRemarks)
            m_result.remarks.append(text);
        else
            ++m_moreRemarks;
    }

    // Which request it answers, and whose offer it is.
    void findRequest()
    {
        const kiv_mat_offersStruct &offers = m_asked.offers;
        m_result.offer->firm = m_known.firm.trimmed();
        m_result.offer->nip = m_known.nip.trimmed();
        if (m_sheet.isForm) {
            const QString number = m_sheet.entry(quotationForm::request);
            for (const auto &one : offers.requests)
                if (one->number.trimmed() == number)
                    m_request = one.get();
            if (!m_request) {
                entryFault(
                    quotationForm::request,
                    QCoreApplication::translate("offerImport", "%1 is no request for this order")
                        .arg(number));
                return;
            }
        } else if (!m_result.offer->firm.isEmpty()) {
            m_request = orderOffers::requestTo(offers, m_result.offer->firm, m_result.offer->nip);
        }
        takeFirm();
        if (!m_known.received.isValid()) {
            fault(QCoreApplication::translate("offerImport",
                                              "The day on which it was received is missing"));
            return;
        }
        m_result.offer->received = orderOffers::dateText(m_known.received);
        const QDate deadline = m_request ? orderOffers::readDate(m_request->deadline) : QDate();
        if (deadline.isValid() && m_known.received > deadline)
            fault(QCoreApplication::translate("offerImport",
                                              "It is late: received on %1, expected by %2")
                      .arg(dayOf(m_known.received), dayOf(deadline)));
    }
    // The tax numbers of the firms of that name that were asked or have sent offers.
    QStringList nipsOf(const QString &firm) const
    {
        QStringList all;
        const auto note = [&](const auto &one) {
            const bool isKnown = std::any_of(all.begin(), all.end(), [&one](const QString &nip) {
                return firmDetails::isSameNip(nip, one->nip);
            });
            if (!isKnown && !one->nip.trimmed().isEmpty()
                && firmDetails::isSameName(one->firm, firm))
                all.append(one->nip.trimmed());
        };
        for (const auto &one : m_asked.offers.requests)
            note(one);
        for (const auto &one : m_asked.offers.offers)
            note(one);
        return all;
    }
    void takeFirm()
    {
        offerStruct &offer = *m_result.offer;
        const QStringList nips = nipsOf(offer.firm);
        if (!m_sheet.isForm && offer.nip.isEmpty() && nips.size() > 1)
            fault(QCoreApplication::translate(
                      "offerImport", "Several firms are called %1: the tax number has to say which "
                                     "it is, of %2")
                      .arg(offer.firm, nips.join(QLatin1String(", "))));
        if (m_request) {
            const bool isOther =
                !offer.firm.isEmpty()
                && !orderOffers::isSameFirm(offer.firm, offer.nip, m_request->firm, m_request->nip);
            if (isOther)
                fault(QCoreApplication::translate("offerImport",
                                                  "The request %1 went to %2, not to %3")
                          .arg(m_request->number, m_request->firm, offer.firm));
            offer.firm = m_request->firm;
            if (offer.nip.isEmpty())
                offer.nip = m_request->nip;
            offer.request = m_request->number;
        }
        if (offer.firm.isEmpty())
            fault(QCoreApplication::translate("offerImport", "The firm is missing"));
    }

    QString given(const QString &text, quotationForm::entry of) const
    {
        return (text.trimmed().isEmpty() ? m_sheet.entry(of) : text).trimmed();
    }
    // Of what stands above the table, or was given beside the file.
    void entryFault(quotationForm::entry of, const QString &text)
    {
        const QString caption = quotationForm::captionOf(of, QStringLiteral("en"));
        const int row = m_sheet.entryRows[of];
        fault(row > 0 ? QCoreApplication::translate("offerImport", "Row %1, \"%2\": %3")
                            .arg(QString::number(row), entryCaption(of), text)
                      : QStringLiteral("%1: %2").arg(caption, text));
    }
    QString entryCaption(quotationForm::entry of) const
    {
        for (int row = 0; row < m_sheet.header; ++row)
            if (m_sheet.cells.lines[row] == m_sheet.entryRows[of])
                for (const QString &cell : m_sheet.cells.rows[row])
                    if (quotationForm::entryNamed(cell) == of)
                        return cell;
        return quotationForm::captionOf(of, QStringLiteral("en"));
    }

    void readTerms()
    {
        readTax();
        offerStruct &offer = *m_result.offer;
        offer.leadTime = given(m_known.leadTime, quotationForm::generalLeadTime);
        if (!offer.leadTime.isEmpty()) {
            if (const auto days = positive(offer.leadTime))
                offer.leadTime = numberText(*days);
            else
                entryFault(
                    quotationForm::generalLeadTime,
                    QCoreApplication::translate("offerImport", "%1 is no number of days above 0")
                        .arg(offer.leadTime));
        }
        const QString validity = given(m_known.validity, quotationForm::validity);
        if (!validity.isEmpty()) {
            const QDate date = dateOf(validity);
            if (!date.isValid())
                entryFault(
                    quotationForm::validity,
                    QCoreApplication::translate("offerImport", "%1 is no date").arg(validity));
            else if (m_known.received.isValid() && date < m_known.received)
                entryFault(quotationForm::validity,
                           QCoreApplication::translate(
                               "offerImport", "it was valid until %1, but was received on %2")
                               .arg(dayOf(date), dayOf(m_known.received)));
            offer.validity = orderOffers::dateText(date);
        }
        offer.remarks = given(m_known.remarks, quotationForm::generalRemarks);
    }
    // As far as it is said above the rows.
    void takeCurrency()
    {
        offerStruct &offer = *m_result.offer;
        offer.currency = currencyOf(given(m_known.currency, quotationForm::currency));
        for (const int column : priceColumns()) {
            const QString named = currencyIn(captionAt(column));
            if (offer.currency.isEmpty())
                offer.currency = named;
            else if (!named.isEmpty() && named != offer.currency)
                fault(QCoreApplication::translate("offerImport", "The column \"%1\" is not in %2")
                          .arg(captionAt(column), offer.currency));
            // The table of a request has captions of our own.
            if (!m_sheet.isForm && isOfSeveral(captionAt(column)))
                fault(QCoreApplication::translate(
                          "offerImport", "The prices of the column \"%1\" are not of one piece")
                          .arg(captionAt(column)));
        }
    }
    static bool isCurrency(const QString &code)
    {
        static const QRegularExpression form(QStringLiteral("^[A-Z]{3}$"));
        return form.match(code).hasMatch();
    }
    // Of a row whose price counts. An offer has one rate, so that all rows have to agree.
    void readRowCurrency(const QStringList &row)
    {
        const QString named = currencyOf(cellOf(row, currency));
        QString &ofAll = m_result.offer->currency;
        if (named.isEmpty())
            return;
        if (!isCurrency(named)) {
            cellFault(currency,
                      QCoreApplication::translate("offerImport", "%1 is no currency").arg(named));
        } else if (ofAll.isEmpty()) {
            ofAll = named;
            m_currencyLine = m_line;
        } else if (named != ofAll) {
            cellFault(currency, QCoreApplication::translate(
                                    "offerImport", "the price is in %1, those before in %2")
                                    .arg(named, ofAll));
        }
    }
    // Behind the rows, the first of which may say the currency.
    void readRate()
    {
        offerStruct &offer = *m_result.offer;
        if (offer.currency.isEmpty())
            offer.currency = QStringLiteral("PLN");
        const QString rate = m_known.rate.trimmed();
        if (!isCurrency(offer.currency)) {
            entryFault(quotationForm::currency,
                       QCoreApplication::translate("offerImport", "%1 is no currency")
                           .arg(offer.currency));
        } else if (offer.currency == QLatin1String("PLN")) {
            if (!rate.isEmpty() && numberOf(rate) != decimal::read(QStringLiteral("1")))
                m_result.remarks.prepend(
                    QCoreApplication::translate("offerImport",
                                                "The prices are in PLN: the rate %1 does not count")
                        .arg(rate));
        } else if (rate.isEmpty() && m_currencyLine > 0) {
            m_line = m_currencyLine;
            cellFault(currency,
                      QCoreApplication::translate("offerImport", "the rate of %1 is missing")
                          .arg(offer.currency));
        } else if (rate.isEmpty()) {
            entryFault(quotationForm::currency,
                       QCoreApplication::translate("offerImport", "the rate of %1 is missing")
                           .arg(offer.currency));
        } else if (const auto number = positive(rate)) {
            offer.rate = numberText(*number);
            offer.rateDate = orderOffers::dateText(m_known.rateDate);
        } else {
            fault(QCoreApplication::translate("offerImport", "%1 is no rate above 0").arg(rate));
        }
    }
    void readTax()
    {
        offerStruct &offer = *m_result.offer;
        const QString word = m_sheet.entry(quotationForm::pricesAre);
        bool isGross = m_known.isGross.value_or(false);
        if (!m_known.isGross && !word.isEmpty()) {
            const auto says = quotationForm::taxedBy(word);
            isGross = says == quotationForm::taxed::gross;
            if (says == quotationForm::taxed::unsaid)
                entryFault(quotationForm::pricesAre,
                           QCoreApplication::translate("offerImport", "%1 is neither net nor gross")
                               .arg(word));
        } else if (!m_known.isGross) {
            const QVector<int> columns = priceColumns();
            isGross = std::any_of(columns.begin(), columns.end(),
                                  [this](int column) { return saysGross(captionAt(column)); });
        }
        offer.gross = isGross ? statusWord::yes : statusWord::no;
        QString percent = given(m_known.vat, quotationForm::vat);
        if (percent.isEmpty())
            return;
        if (percent.endsWith(QLatin1Char('%')))
            percent.chop(1);
        const auto number = numberOf(percent);
        if (!number || *number < decimal() || *number > *decimal::read(QStringLiteral("100")))
            entryFault(quotationForm::vat, QCoreApplication::translate(
                                               "offerImport", "%1 is no percentage from 0 to 100")
                                               .arg(percent.trimmed()));
        else
            offer.vat = numberText(*number);
        // A cell that shows 23 % may hold 0.23.
        if (number && *number > decimal() && *number < *decimal::read(QStringLiteral("1")))
            remark(
                QCoreApplication::translate("offerImport", "The VAT is less than one percent: %1 %")
                    .arg(numberText(*number)));
    }

    QVector<int> priceColumns() const
    {
        QVector<int> columns;
        for (int i = 0; i < m_sheet.fields.size(); ++i)
            if (m_sheet.fields[i] == price || m_sheet.fields[i] == breaks)
                columns.append(i);
        return columns;
    }

    // --- Rows

    QString cellOf(const QStringList &row, field of) const
    {
        const int column = m_sheet.fields.indexOf(of);
        return column < 0 ? QString() : row.value(column).trimmed();
    }
    QString captionAt(int column) const
    {
        const QString caption = m_sheet.header < 0
                                    ? QString()
                                    : m_sheet.cells.rows[m_sheet.header].value(column).simplified();
        return caption.isEmpty() ? captionOf(m_sheet.fields.value(column, none)) : caption;
    }
    void cellFault(int column, const QString &text)
    {
        fault(QCoreApplication::translate("offerImport", "Row %1, \"%2\": %3")
                  .arg(QString::number(m_line), captionAt(column), text));
    }
    void cellFault(field of, const QString &text) { cellFault(m_sheet.fields.indexOf(of), text); }
    void rowRemark(const QString &text)
    {
        remark(QCoreApplication::translate("offerImport", "Row %1: %2")
                   .arg(QString::number(m_line), text));
    }

    void readRows()
    {
        if (!hasPrices(m_sheet.fields)) {
            fault(QCoreApplication::translate("offerImport", "No column has prices"));
            return;
        }
        if (!m_sheet.fields.contains(key) && !m_sheet.fields.contains(partNumber)) {
            fault(QCoreApplication::translate("offerImport",
                                              "No column has our numbers, or part numbers"));
            return;
        }
        if (!pairColumns())
            return;
        readOurNumbers();
        readPartNumbers();
        for (int row = m_sheet.header + 1; row < m_sheet.cells.rows.size(); ++row) {
            m_line = m_sheet.cells.lines[row];
            readRow(m_sheet.cells.rows[row]);
        }
    }

    // Which column has the quantity for which column of prices: the one beside it.
    bool pairColumns()
    {
        QVector<int> columns;
        for (int i = 0; i < m_sheet.fields.size(); ++i)
            if (m_sheet.fields[i] == price || m_sheet.fields[i] == from)
                columns.append(i);
        const auto count = [&](field of) {
            return std::count_if(columns.begin(), columns.end(),
                                 [&](int column) { return m_sheet.fields[column] == of; });
        };
        // "price, from, price, from": each quantity is right of its price.
        const bool isRight = !columns.isEmpty() && m_sheet.fields[columns.first()] == price
                             && count(price) == count(from);
        int open = -1;
        for (int i = 0; i < columns.size(); ++i) {
            const bool isPrice = m_sheet.fields[columns[i]] == price;
            if (isRight ? isPrice : !isPrice) {
                if (open >= 0)
                    return unpaired(open);
                open = columns[i];
            } else if (isRight) {
                if (open < 0)
                    return unpaired(columns[i]);
                m_pairs.push_back({columns[i], open});
                open = -1;
            } else {
                m_pairs.push_back({open, columns[i]});
                open = -1;
            }
        }
        return open < 0 || unpaired(open);
    }
    bool unpaired(int column)
    {
        fault(m_sheet.fields[column] == from
                  ? QCoreApplication::translate(
                        "offerImport",
                        "The column \"%1\" has quantities without a column of prices beside it")
                        .arg(captionAt(column))
                  : QCoreApplication::translate(
                        "offerImport",
                        "The column \"%1\" has prices without a column of quantities beside it")
                        .arg(captionAt(column)));
        return false;
    }

    // What is asked for, and the needs by their KTM or name: those in several units are several.
    void readOurNumbers()
    {
        for (const orderOffers::need &one : m_asked.needs.all) {
            m_askedKeys.insert(one.key);
            m_byOurNumber[one.ktm.isEmpty() ? one.name : one.ktm].append(one.key);
        }
        if (m_request)
            for (const auto &one : m_request->items)
                m_askedKeys.insert(one->key);
    }
    // The needs by the part numbers of their materials.
    void readPartNumbers()
    {
        if (!m_asked.materials || !m_sheet.fields.contains(partNumber))
            return;
        for (const orderOffers::need &one : m_asked.needs.all) {
            const ktmIndex::entry *found =
                one.ktm.isEmpty() ? nullptr : m_asked.materials->find(one.ktm);
            if (!found)
                continue;
            const auto note = [&](const QString &number) {
                const QString plain = partsTexts::partNumber(number).folded();
                if (!plain.isEmpty() && !m_byPartNumber[plain].contains(one.key))
                    m_byPartNumber[plain].append(one.key);
            };
            for (const auto &maker : found->material->manufacturers.items)
                note(maker->partNo);
            for (const auto &supplier : found->material->suppliers.items)
                note(supplier->partNo);
        }
    }

    // The key of the material that a row is of; empty when it is of none, which is told.
    QString keyOf(const QStringList &row, bool hasPrice)
    {
        const QString ours = cellOf(row, key);
        // In a price list a KTM says no unit; in the table of a request it is what was asked under.
        const QStringList units = m_sheet.isForm ? QStringList() : m_byOurNumber.value(ours);
        if (units.size() > 1) {
            if (hasPrice)
                rowRemark(QCoreApplication::translate("offerImport",
                                                      "%1 may be any of %2, and is left out")
                              .arg(ours, units.join(QLatin1String(", "))));
            return {};
        }
        if (!ours.isEmpty() && m_askedKeys.contains(ours))
            return ours;
        if (!ours.isEmpty() && m_sheet.isForm) {
            cellFault(key,
                      QCoreApplication::translate("offerImport", "%1 was not asked for").arg(ours));
            return {};
        }
        const QString number = cellOf(row, partNumber);
        const QStringList found = m_byPartNumber.value(partsTexts::partNumber(number).folded());
        if (found.size() == 1)
            return found.first();
        if (!hasPrice)
            return {};
        const QString name = number.isEmpty() ? ours : number;
        if (found.size() > 1)
            rowRemark(
                QCoreApplication::translate("offerImport", "%1 may be any of %2, and is left out")
                    .arg(name, found.join(QLatin1String(", "))));
        else
            rowRemark(name.isEmpty() ? QCoreApplication::translate(
                          "offerImport", "it has a price, but names no material")
                                     : QCoreApplication::translate(
                                           "offerImport", "%1 is nothing that the order needs")
                                           .arg(name));
        return {};
    }
    bool hasPrice(const QStringList &row) const
    {
        const QVector<int> columns = priceColumns();
        return std::any_of(columns.begin(), columns.end(),
                           [&row](int column) { return !row.value(column).trimmed().isEmpty(); });
    }

    void readRow(const QStringList &row)
    {
        const bool isPriced = hasPrice(row);
        const QString material = keyOf(row, isPriced);
        if (material.isEmpty())
            return;
        if (m_seen.contains(material)) {
            cellFault(cellOf(row, key).isEmpty() ? partNumber : key,
                      QCoreApplication::translate("offerImport", "%1 is in row %2 already")
                          .arg(material)
                          .arg(m_seen.value(material)));
            return;
        }
        m_seen.insert(material, m_line);
        auto offered = std::make_unique<offeredStruct>();
        offered->key = material;
        const bool isOffered = readPrices(row, &offered->prices);
        if (!isPriced) {
            ++m_result.withoutPrice;
            return;
        }
        readRowCurrency(row);
        readNumber(row, minimum, &offered->minimum);
        readNumber(row, multiple, &offered->multiple);
        readNumber(row, leadTime, &offered->leadTime);
        offered->remarks = cellOf(row, remarks);
        if (!isOffered)
            return;
        if (!m_asked.needs.find(material))
            rowRemark(
                QCoreApplication::translate(
                    "offerImport", "%1 was asked for, but the order does not need it any more")
                    .arg(material));
        ++m_result.offered;
        m_result.offer->append(std::move(offered));
    }
    void readNumber(const QStringList &row, field of, QString *to)
    {
        const QString text = cellOf(row, of);
        if (text.isEmpty())
            return;
        if (const auto number = positive(text))
            *to = numberText(*number);
        else
            cellFault(
                of,
                QCoreApplication::translate("offerImport", "%1 is no number above 0").arg(text));
    }

    using breakList = std::vector<offerComparison::priceBreak>;

    // False when there are none, or they are wrong, which is told.
    bool readPrices(const QStringList &row, QString *to)
    {
        const int before = m_result.faults.size();
        breakList all;
        for (const auto &[fromColumn, priceColumn] : m_pairs)
            readPair(row, fromColumn, priceColumn, &all);
        for (int i = 0; i < m_sheet.fields.size(); ++i)
            if (m_sheet.fields[i] == breaks)
                readBreaks(row.value(i).trimmed(), i, &all);
        *to = offerComparison::textOf(all);
        return m_result.faults.size() == before && !all.empty();
    }
    void readPair(const QStringList &row, int fromColumn, int priceColumn, breakList *to)
    {
        const QString amount = row.value(priceColumn).trimmed();
        const QString quantity = fromColumn < 0 ? QString() : row.value(fromColumn).trimmed();
        if (amount.isEmpty() && quantity.isEmpty())
            return;
        if (amount.isEmpty())
            cellFault(priceColumn,
                      QCoreApplication::translate("offerImport", "the price from %1 on is missing")
                          .arg(quantity));
        else if (fromColumn >= 0 && quantity.isEmpty())
            cellFault(fromColumn,
                      QCoreApplication::translate(
                          "offerImport", "the quantity from which on the price %1 holds is missing")
                          .arg(amount));
        else
            addBreak(fromColumn < 0 ? firstOf(priceColumn) : quantity, amount, fromColumn,
                     priceColumn, to);
    }
    // The quantity from which on the prices of a column hold that has none beside it.
    QString firstOf(int priceColumn) const
    {
        const QString named = m_sheet.isForm ? QString() : breakIn(captionAt(priceColumn));
        return named.isEmpty() ? QStringLiteral("1") : named;
    }
    void readBreaks(const QString &text, int column, breakList *to)
    {
        static const QRegularExpression parts(QStringLiteral("[;|\\n]"));
        static const QRegularExpression between(QStringLiteral("\\s*[:=]\\s*"));
        for (const QString &one : text.split(parts, Qt::SkipEmptyParts)) {
            if (one.trimmed().isEmpty())
                continue;
            const QStringList both = one.trimmed().split(between);
            if (both.size() > 2)
                cellFault(column,
                          QCoreApplication::translate("offerImport", "%1 is no quantity and price")
                              .arg(one.trimmed()));
            else
                addBreak(both.size() == 1 ? QStringLiteral("1") : both.first(), both.last(), column,
                         column, to);
        }
    }
    void addBreak(const QString &quantity, const QString &amount, int fromColumn, int priceColumn,
                  breakList *to)
    {
        const auto least = positive(quantity);
        const auto each = positive(amount);
        if (!least)
            cellFault(fromColumn,
                      QCoreApplication::translate("offerImport", "%1 is no number above 0")
                          .arg(quantity));
        if (!each)
            cellFault(
                priceColumn,
                QCoreApplication::translate("offerImport", "%1 is no price above 0").arg(amount));
        if (!least || !each)
            return;
        if (!to->empty() && *least == to->back().from)
            cellFault(fromColumn < 0 ? priceColumn : fromColumn,
                      QCoreApplication::translate("offerImport", "there are two prices from %1 on")
                          .arg(quantity));
        else if (!to->empty() && *least < to->back().from)
            cellFault(fromColumn < 0 ? priceColumn : fromColumn,
                      QCoreApplication::translate("offerImport",
                                                  "the quantities do not ascend: %1 is behind %2")
                          .arg(quantity, to->back().from.text()));
        else
            to->push_back({*least, *each});
    }

    const sheet &m_sheet;
    const terms &m_known;
    const order &m_asked;
    const requestStruct *m_request = nullptr;
    std::vector<std::pair<int, int>> m_pairs; // columns of quantity (-1: from 1 on) and price
    QSet<QString> m_askedKeys;
    QHash<QString, QStringList> m_byOurNumber; // keys of needs
    QHash<QString, QStringList> m_byPartNumber;
    QHash<QString, int> m_seen; // rows in the file, by key
    int m_line = 0;
    int m_currencyLine = 0; // the row that said the currency first
    int m_moreFaults = 0;   // than are told
    int m_moreRemarks = 0;
    result m_result;
};

} // namespace

std::optional<sheet> readSheet(const QString &path, const partsTableOptions &options,
                               QString *fault)
{
    auto cells = readPartsTable(path, options, fault);
    if (!cells)
        return {};
    sheet result;
    result.path = path;
    result.cells = std::move(*cells);
    setHeader(&result, headerOf(result.cells));
    readEntries(&result);
    return result;
}

void setHeader(sheet *of, int row)
{
    of->header = row < of->cells.rows.size() ? row : -1;
    const int columns = of->cells.rows.isEmpty() ? 0 : of->cells.rows.first().size();
    of->fields =
        of->header < 0 ? QVector<field>(columns, none) : fieldsOf(of->cells.rows[of->header]);
}

bool setFields(sheet *of, const QVector<std::pair<int, field>> &columns)
{
    for (const auto &[column, what] : columns)
        if (column < 0 || column >= of->fields.size())
            return false;
    for (const auto &[column, what] : columns)
        std::replace(of->fields.begin(), of->fields.end(), what, none);
    for (const auto &[column, what] : columns)
        of->fields[column] = what;
    return true;
}

result offerOf(const sheet &of, const terms &known, const order &asked)
{
    return reader(of, known, asked).read();
}

} // namespace offerImport
