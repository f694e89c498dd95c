#include "orders/offerColumns.h"

#include "orders/quotationForm.h"
#include "util/foldedText.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

namespace offerImport {

namespace {

constexpr int mostDecimals = 6;

struct fieldRow
{
    const char *name;
    const char *caption; // English source text, context "offerImport"
    // As they stand in price lists, folded to letters and digits; a blank parts them.
    const char *captions;
};

const std::array<fieldRow, fieldCount> table{{
    {"none", QT_TRANSLATE_NOOP("offerImport", "(not used)"), ""},
    {"key", QT_TRANSLATE_NOOP("offerImport", "Our number"),
     "ktm ournumber yournumber customernumber customerpartnumber customerpart indeks indeksklienta "
     "indeksmaterialowy indekszamawiajacego nasznumer nrklienta kundennummer kundenartikelnummer "
     "unserenummer ihrenummer"},
    {"part_number", QT_TRANSLATE_NOOP("offerImport", "Part number"),
     "partnumber partno partnr mpn mfrpn mfgpn mfrpartnumber mfgpartnumber manufacturerpartnumber "
     "manufacturerpartno manufacturerpn manufacturerpart pn symbol symbolproducenta numerczesci "
     "nrczesci numerproducenta nrproducenta kodproducenta numerkatalogowy nrkatalogowy "
     "catalognumber orderingcode typ type teilenummer herstellernummer herstellerteilenummer "
     "herstellernr bestellbezeichnung"},
    {"from", QT_TRANSLATE_NOOP("offerImport", "From quantity"),
     "from fromquantity fromqty breakqty qtybreak quantitybreak pricebreakqty pricebreakquantity "
     "od odilosci odszt prog progilosci progilosciowy iloscod ab abmenge abstuck staffelmenge "
     "mengeab"},
    {"price", QT_TRANSLATE_NOOP("offerImport", "Unit price"),
     "price unitprice netprice unitnetprice priceperunit priceeach pricenet unitcost cena "
     "cenajednostkowa cenajedn cenanetto cenajednostkowanetto cenajednnetto cenazaszt "
     "cenabrutto preis stuckpreis einzelpreis preisprostuck nettopreis preisnetto ep"},
    {"prices", QT_TRANSLATE_NOOP("offerImport", "Prices by quantity"),
     "prices pricebreaks breaks pricesbyquantity pricelist ceny progicenowe progi cenyilosciowe "
     "preise staffelpreise staffel preisstaffel"},
    {"minimum", QT_TRANSLATE_NOOP("offerImport", "Minimum quantity"),
     "minimum min moq minqty minquantity minimumquantity minimumorder minimumorderquantity "
     "minorderqty minorder minimalnailosc minilosc minimalnezamowienie iloscminimalna "
     "mindestmenge mindestbestellmenge mindestabnahme"},
    {"multiple", QT_TRANSLATE_NOOP("offerImport", "Multiple"),
     "multiple ordermultiple multiples spq mpq packqty packquantity packsize packagequantity "
     "standardpack standardpackquantity standardpackqty wielokrotnosc krotnosc iloscwopakowaniu "
     "opakowanie vielfaches vpe verpackungseinheit packungsgrosse"},
    {"lead_time", QT_TRANSLATE_NOOP("offerImport", "Lead time"),
     "leadtime lt deliverytime leadtimedays deliverydays czasdostawy termindostawy "
     "czasrealizacji terminrealizacji lieferzeit lieferfrist"},
    {"remarks", QT_TRANSLATE_NOOP("offerImport", "Remarks"),
     "remarks remark notes note comments comment uwagi uwaga komentarz bemerkungen bemerkung "
     "anmerkungen anmerkung hinweis"},
    {"currency", QT_TRANSLATE_NOOP("offerImport", "Currency"),
     "currency pricecurrency waluta walutaceny walutacen wahrung preiswahrung"},
}};

// "per 100", "za 1000 szt.", "/ 10 pcs"
const QRegularExpression &severalPieces()
{
    static const QRegularExpression form(
        QStringLiteral("(?:\\b(?:per|za|je|pro|for)\\b|/)\\s*"
                       "(?:\\d{2,}|[2-9]\\b|tys|tsd|thousand|hundred|sto\\b|hundert|tausend|k\\b)"
                       "[.\\s]*(?:(?:pcs|szt|st)\\w*)?"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return form;
}

// Letters and digits without what stands in brackets, a number of pieces, and a currency and a
// number behind them: "Unit price (2) [EUR]".
QString folded(QString caption)
{
    static const QRegularExpression brackets(QStringLiteral("\\([^)]*\\)|\\[[^\\]]*\\]"));
    static const QRegularExpression end(QStringLiteral("(pln|eur|usd|gbp|chf|zl)?[0-9]*$"));
    caption.remove(brackets);
    caption.remove(severalPieces());
    QString letters;
    const QString plain = QString::fromStdString(text::folded(caption));
    for (const QChar c : plain)
        if (c.isLetterOrNumber())
            letters += c;
    return letters.remove(end);
}

field fieldNamed(const QString &caption)
{
    static const QHash<QString, field> fields = [] {
        QHash<QString, field> all;
        for (int i = 1; i < fieldCount; ++i)
            for (const QString &one :
                 QString::fromLatin1(table[size_t(i)].captions).split(QLatin1Char(' ')))
                all.insert(one, field(i));
        return all;
    }();
    switch (quotationForm::columnNamed(caption)) {
    case quotationForm::key:
        return key;
    case quotationForm::price:
    case quotationForm::price2:
    case quotationForm::price3:
        return price;
    case quotationForm::from2:
    case quotationForm::from3:
        return from;
    case quotationForm::minimum:
        return minimum;
    case quotationForm::multiple:
        return multiple;
    case quotationForm::leadTime:
        return leadTime;
    case quotationForm::remarks:
        return remarks;
    case quotationForm::columnCount:
        return fields.value(folded(caption), none);
    default:
        return none;
    }
}

bool isRepeated(field of) { return of == none || of == price || of == from || of == breaks; }

QString withoutBlanks(const QString &text)
{
    QString result;
    for (const QChar c : text)
        if (!c.isSpace())
            result += c;
    return result;
}

} // namespace

QString captionOf(field of)
{
    return QCoreApplication::translate("offerImport", table[size_t(of)].caption);
}

QString nameOf(field of) { return QLatin1String(table[size_t(of)].name); }

field fieldCalled(const QString &name)
{
    for (size_t i = 0; i < table.size(); ++i)
        if (name == QLatin1String(table[i].name))
            return field(i);
    return fieldCount;
}

QVector<field> fieldsOf(const QStringList &captions)
{
    QVector<field> fields;
    for (const QString &caption : captions) {
        const field of = fieldNamed(caption);
        fields.append(isRepeated(of) || !fields.contains(of) ? of : none);
    }
    return fields;
}

// --- Captions of prices

QString currencyOf(const QString &text)
{
    const QString word = text.trimmed().toUpper();
    static const QHash<QString, QString> signs{{QStringLiteral("ZŁ"), QStringLiteral("PLN")},
                                               {QStringLiteral("ZL"), QStringLiteral("PLN")},
                                               {QStringLiteral("€"), QStringLiteral("EUR")},
                                               {QStringLiteral("EURO"), QStringLiteral("EUR")},
                                               {QStringLiteral("$"), QStringLiteral("USD")},
                                               {QStringLiteral("£"), QStringLiteral("GBP")}};
    return signs.value(word, word);
}

QString currencyIn(const QString &caption)
{
    static const QRegularExpression form(
        QStringLiteral("(PLN|EURO?|USD|GBP|CHF|zł|€|\\$|£)(?![a-z])"),
        QRegularExpression::CaseInsensitiveOption);
    if (const auto match = form.match(caption); match.hasMatch())
        return currencyOf(match.captured(1));
    // Any other one has to stand by itself, so that no word is taken for it.
    static const QRegularExpression code(QStringLiteral("[\\[(/]\\s*([A-Z]{3})\\s*(?:[\\])/]|$)"));
    static const QStringList others{QStringLiteral("PCS"), QStringLiteral("SZT"),
                                    QStringLiteral("STK"), QStringLiteral("VAT"),
                                    QStringLiteral("NET"), QStringLiteral("UNI")};
    const auto match = code.match(caption);
    return match.hasMatch() && !others.contains(match.captured(1)) ? match.captured(1) : QString();
}

bool saysGross(const QString &caption)
{
    return caption.contains(QLatin1String("brutto"), Qt::CaseInsensitive)
           || caption.contains(QLatin1String("gross"), Qt::CaseInsensitive);
}

bool isOfSeveral(const QString &caption) { return severalPieces().match(caption).hasMatch(); }

QString breakIn(const QString &caption)
{
    static const QRegularExpression form(QStringLiteral("(?<![\\d.,])(\\d+)\\s*\\+"));
    return form.match(caption).captured(1);
}

// --- Texts

std::optional<decimal> numberOf(const QString &text)
{
    // Thousands are parted by a blank, which may be one that does not break.
    static const QRegularExpression form(
        QStringLiteral("^([+-]?)(\\d{1,3}(?:[ \\x{A0}\\x{2009}\\x{202F}]\\d{3})+|\\d*)"
                       "(?:[.,](\\d*))?([eE][+-]?\\d{1,3})?$"));
    const auto match = form.match(text.trimmed());
    if (!match.hasMatch())
        return {};
    const QString sign = match.captured(1);
    const QString integer = withoutBlanks(match.captured(2));
    const QString fraction = match.captured(3);
    if (integer.isEmpty() && fraction.isEmpty())
        return {};
    QString plain = sign + integer + QLatin1Char('.') + fraction;
    constexpr int room = 18; // digits that a decimal has behind the point
    // A workbook writes small numbers with an exponent.
    if (!match.captured(4).isEmpty())
        plain = QString::number((plain + match.captured(4)).toDouble(), 'f', mostDecimals);
    else
        plain = sign + integer + QLatin1Char('.') + fraction.left(room);
    const auto exact = decimal::read(plain);
    return exact ? decimal::read(exact->text(mostDecimals)) : std::nullopt;
}

QDate dateOf(const QString &text)
{
    static const QRegularExpression dayFirst(
        QStringLiteral("^(\\d{1,2})\\.(\\d{1,2})\\.(\\d{4})$"));
    static const QRegularExpression yearFirst(
        QStringLiteral("^(\\d{4})([-.])(\\d{1,2})\\2(\\d{1,2})$"));
    static const QRegularExpression number(QStringLiteral("^(\\d{5})(?:\\.\\d+)?$"));
    const QString plain = text.trimmed();
    if (const auto match = dayFirst.match(plain); match.hasMatch())
        return {match.captured(3).toInt(), match.captured(2).toInt(), match.captured(1).toInt()};
    if (const auto match = yearFirst.match(plain); match.hasMatch())
        return {match.captured(1).toInt(), match.captured(3).toInt(), match.captured(4).toInt()};
    // Days of a workbook, of this century.
    if (const auto match = number.match(plain); match.hasMatch()) {
        constexpr int firstDay = 36526; // 01.01.2000
        const int days = match.captured(1).toInt();
        return days >= firstDay ? QDate(1899, 12, 30).addDays(days) : QDate();
    }
    return {};
}

} // namespace offerImport
