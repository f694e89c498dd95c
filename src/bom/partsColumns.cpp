#include "bom/partsColumns.h"

#include "bom/partsTexts.h"
#include "data/XmlValidator.h"
#include "util/foldedText.h"
#include "util/quantity.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <array>

namespace partsColumns {

namespace {

struct fieldRow
{
    const char *name;
    const char *caption; // English source text, context "partsColumns"
    // Captions as they are written in lists, folded to letters and digits; a blank parts them.
    const char *captions;
};

const std::array<fieldRow, fieldCount> table{{
    {"none", QT_TRANSLATE_NOOP("partsColumns", "(not used)"), ""},
    {"designator", QT_TRANSLATE_NOOP("partsColumns", "Designators"),
     "designator designators designation reference references ref refs refdes referencedesignator "
     "referencedesignators oznaczenie oznaczenia desygnator desygnatory "
     "element elementy bezeichner bauteil bauteile referenz position positionen bestuckung"},
    {"quantity", QT_TRANSLATE_NOOP("partsColumns", "Quantity"),
     "quantity qty qnty quant count amount number pcs qtyperboard quantityperboard qtypcb ilosc "
     "liczba "
     "szt sztuk iloscszt ilsz anzahl menge stuck stk stuckzahl"},
    {"ktm", QT_TRANSLATE_NOOP("partsColumns", "KTM"),
     "ktm indeks indeksmaterialowy index indeksktm ktmindex dktm"},
    {"part_number", QT_TRANSLATE_NOOP("partsColumns", "Part number"),
     "partnumber partno partnr part# mpn mfrpn mfgpn mfrpart mfrpartnumber mfgpartnumber mfrpart# "
     "mfrpartno manufacturerpartnumber manufacturerpartnumber1 manufacturerpartno manufacturerpn "
     "manufacturerpart pn "
     "symbol numerkatalogowy nrkatalogowy nrczesciproducenta numerczesciproducenta nrproducenta "
     "catalognumber cataloguenumber katalognummer "
     "partsymbol orderingcode ordercode numerczesci nrczesci numerproducenta symbolproducenta "
     "kodproducenta typ type herstellernummer herstellerteilenummer herstellernr teilenummer "
     "typbezeichnung bestellbezeichnung componentname"},
    {"manufacturer", QT_TRANSLATE_NOOP("partsColumns", "Manufacturer"),
     "manufacturer mfr mfg mnf maker vendorname brand manufacturername producent wytworca "
     "hersteller"},
    {"value", QT_TRANSLATE_NOOP("partsColumns", "Value"),
     "value val comment wartosc wert bauteilwert"},
    {"case", QT_TRANSLATE_NOOP("partsColumns", "Case"),
     "case package footprint size pattern pcbfootprint casecode packagereference obudowa rozmiar "
     "gehause bauform footprintname"},
    {"description", QT_TRANSLATE_NOOP("partsColumns", "Description"),
     "description desc descr name details characteristics parameters notes opis nazwa uwagi "
     "parametry "
     "beschreibung bezeichnung benennung bemerkung"},
    {"supplier", QT_TRANSLATE_NOOP("partsColumns", "Supplier"),
     "supplier distributor vendor supplier1 dostawca dystrybutor lieferant"},
    {"supplier_number", QT_TRANSLATE_NOOP("partsColumns", "Supplier's number"),
     "supplierpartnumber supplierpn supplierpartno suppliernumber supplierpart supplierpartnumber1 "
     "distributorpartnumber distributorpn vendorpartnumber vendorpn vendorpart digikey digikeypn "
     "digikeypartnumber mouser mouserpn mouserpartnumber farnell lcsc lcscpart lcscpartnumber "
     "jlcpcbpart jlcpcbpartnumber lcscnumber supplierpartnumber2 tme numerdostawcy kodtowaru "
     "kodproduktu symboldostawcy bestellnummer bestellnr "
     "lieferantennummer sku ordernumber"},
    {"tolerance", QT_TRANSLATE_NOOP("partsColumns", "Tolerance"),
     "tolerance tol tolerancja toleranz"},
    {"voltage", QT_TRANSLATE_NOOP("partsColumns", "Voltage"),
     "voltage volt voltagerating ratedvoltage napiecie spannung"},
    {"power", QT_TRANSLATE_NOOP("partsColumns", "Power"),
     "power powerrating wattage rating moc leistung"},
    {"dnp", QT_TRANSLATE_NOOP("partsColumns", "Not fitted"),
     "dnp dnf dni dnm nofit notfitted donotmount donotpopulate donotplace donotfit nostuff "
     "excludefrombom niemontowac niemontuj nichtbestucken"},
    {"fitted", QT_TRANSLATE_NOOP("partsColumns", "Fitted"),
     "fitted mount mounted populate populated place assemble montaz montowac montowany bestuckt "
     "bestucken"},
}};

QString folded(const QString &caption)
{
    QString letters;
    const QString plain = QString::fromStdString(text::folded(caption));
    for (const QChar c : plain)
        if (c.isLetterOrNumber())
            letters += c;
        else if (c == QLatin1Char('#'))
            letters += QLatin1String("number");
    return letters;
}

const QHash<QString, field> &fieldOfCaption()
{
    static const QHash<QString, field> fields = [] {
        QHash<QString, field> all;
        for (size_t i = 1; i < table.size(); ++i)
            for (const QString &caption :
                 QString::fromLatin1(table[i].captions).split(QLatin1Char(' ')))
                if (!all.contains(folded(caption)))
                    all.insert(folded(caption), field(i));
        return all;
    }();
    return fields;
}

// Among the first rows the one with the most known captions, two at least, or all of its few.
int headerOf(const partsTable &list)
{
    constexpr int looked = 40;
    int best = -1;
    int bestKnown = 1;
    for (int row = 0; row < std::min(looked, int(list.rows.size())); ++row) {
        int known = 0;
        for (const QString &cell : list.rows[row])
            known += fieldOfCaption().contains(folded(cell));
        if (known > bestKnown) {
            best = row;
            bestKnown = known;
        }
    }
    return best;
}

// The share of a column's texts for which something holds; less than nothing when it has none.
template <class Holds>
double share(const partsTable &list, int header, int column, const Holds &holds)
{
    constexpr int looked = 500;
    int texts = 0;
    int held = 0;
    for (int row = header + 1; row < std::min(header + 1 + looked, int(list.rows.size())); ++row) {
        const QString &cell = list.rows[row][column];
        if (cell.isEmpty())
            continue;
        ++texts;
        held += holds(cell);
    }
    return texts > 0 ? double(held) / texts : -1;
}

bool isCount(const QString &text)
{
    bool isNumber = false;
    const double number =
        QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    constexpr double most = 1e6;
    return isNumber && number >= 0 && number < most;
}

// What only the content tells, for columns without a known caption.
void guessByContent(const partsTable &list, guess *of)
{
    const auto take = [&](field wanted, double least, const auto &holds) {
        if (of->columnOf(wanted) >= 0)
            return;
        int best = -1;
        double bestShare = least;
        for (int column = 0; column < of->fields.size(); ++column) {
            if (of->fields[column] != none)
                continue;
            const double held = share(list, of->header, column, holds);
            if (held >= bestShare && (best < 0 || held > bestShare)) {
                best = column;
                bestShare = held;
            }
        }
        if (best >= 0)
            of->fields[best] = wanted;
    };
    constexpr double nearlyAll = 0.9;
    constexpr double most = 0.6;
    take(ktm, nearlyAll, [](const QString &text) { return checkKtm(text); });
    take(designator, nearlyAll,
         [](const QString &text) { return partsTexts::areDesignators(text); });
    // Without captions one column of numbers is as good as another; beside known captions an
    // unknown one has to hold little else.
    const bool isAlone = of->header < 0;
    if (isAlone)
        take(quantity, 1, isCount);
    const double enough = isAlone ? most : nearlyAll;
    take(package, enough, [](const QString &text) { return !partsTexts::caseIn(text).isEmpty(); });
    take(value, enough, [isAlone](const QString &text) {
        const auto read = ::quantity::parse(text);
        return read && (isAlone || !read->bare);
    });
    take(partNumber, enough,
         [](const QString &text) { return partsTexts::looksLikePartNumber(text); });
}

} // namespace

QString nameOf(field of) { return QLatin1String(table[of].name); }

QString captionOf(field of)
{
    return QCoreApplication::translate("partsColumns", table[of].caption);
}

bool mayBeSeveral(field of)
{
    return of == none || of == partNumber || of == supplierNumber || of == description
           || of == notFitted;
}

field fieldNamed(const QString &name)
{
    for (size_t i = 0; i < table.size(); ++i)
        if (name == QLatin1String(table[i].name))
            return field(i);
    return none;
}

guess guessed(const partsTable &list, const QMap<QString, QString> &remembered)
{
    guess of;
    const int columns = list.rows.value(0).size();
    of.header = headerOf(list);
    of.fields.fill(none, columns);
    const QString known = remembered.value(captionSet(list, of.header));
    if (of.header >= 0 && !known.isEmpty()) {
        of.fields = fromText(known, columns);
        return of;
    }
    if (of.header >= 0)
        for (int column = 0; column < columns; ++column) {
            field named = fieldOfCaption().value(folded(list.rows[of.header][column]), none);
            // "Position" may be the running number of the row.
            constexpr double nearlyAll = 0.9;
            if (named == designator && share(list, of.header, column, isCount) >= nearlyAll)
                named = none;
            // Of two columns of one field the first counts, unless it is empty.
            const int before = mayBeSeveral(named) ? -1 : of.columnOf(named);
            const auto isAny = [](const QString &) { return true; };
            if (named != none && before >= 0 && share(list, of.header, before, isAny) < 0)
                of.fields[before] = none;
            if (mayBeSeveral(named) || of.columnOf(named) < 0)
                of.fields[column] = named;
        }
    guessByContent(list, &of);
    return of;
}

QString captionSet(const partsTable &list, int header)
{
    if (header < 0)
        return {};
    QStringList captions;
    for (const QString &cell : list.rows[header])
        captions.append(folded(cell));
    return captions.join(QLatin1Char('|'));
}

QString asText(const QVector<field> &fields)
{
    QStringList names;
    for (const field of : fields)
        names.append(nameOf(of));
    return names.join(QLatin1Char('|'));
}

QVector<field> fromText(const QString &text, int columns)
{
    QVector<field> fields(columns, none);
    const QStringList names = text.split(QLatin1Char('|'));
    for (int i = 0; i < std::min(columns, int(names.size())); ++i)
        fields[i] = fieldNamed(names[i]);
    return fields;
}

} // namespace partsColumns
