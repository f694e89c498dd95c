#include "orders/quotationForm.h"

#include <iterator>

namespace quotationForm {

namespace {

// In the order of languages(). These are no texts of the program's windows: a firm gets its own
// language whatever the user's is.
using wording = const char *[3];

constexpr wording columnCaptions[] = {
    {"No.", "Lp.", "Nr."},
    {"Our number", "Nasz numer", "Unsere Nummer"},
    {"Name", "Nazwa", "Bezeichnung"},
    {"Manufacturer, part number", "Producent, numer części", "Hersteller, Teilenummer"},
    {"Quantity", "Ilość", "Menge"},
    {"Unit", "Jednostka", "Einheit"},
    {"Needed by", "Potrzebne do", "Benötigt bis"},
    {"Unit price", "Cena jednostkowa", "Stückpreis"},
    {"From quantity (2)", "Od ilości (2)", "Ab Menge (2)"},
    {"Unit price (2)", "Cena jednostkowa (2)", "Stückpreis (2)"},
    {"From quantity (3)", "Od ilości (3)", "Ab Menge (3)"},
    {"Unit price (3)", "Cena jednostkowa (3)", "Stückpreis (3)"},
    {"Minimum quantity", "Minimalna ilość", "Mindestmenge"},
    {"Multiple", "Wielokrotność", "Vielfaches"},
    {"Lead time [days]", "Czas dostawy [dni]", "Lieferzeit [Tage]"},
    {"Remarks", "Uwagi", "Bemerkungen"},
};
static_assert(std::size(columnCaptions) == columnCount);

constexpr wording entryCaptions[] = {
    {"Request for quotation", "Zapytanie ofertowe", "Angebotsanfrage"},
    {"From", "Zamawiający", "Von"},
    {"Offer expected by", "Termin składania ofert", "Angebot erbeten bis"},
    {"To", "Oferent", "An"},
    {"Currency of the prices", "Waluta cen", "Währung der Preise"},
    {"Prices are (net or gross)", "Ceny są (netto lub brutto)", "Preise sind (netto oder brutto)"},
    {"VAT [%]", "VAT [%]", "MwSt. [%]"},
    {"Usual lead time [days]", "Zwykły czas dostawy [dni]", "Übliche Lieferzeit [Tage]"},
    {"Offer valid until", "Oferta ważna do", "Angebot gültig bis"},
    {"Remarks on the offer", "Uwagi do oferty", "Bemerkungen zum Angebot"},
};
static_assert(std::size(entryCaptions) == entryCount);

constexpr wording texts[] = {
    {"Request for quotation", "Zapytanie ofertowe", "Angebotsanfrage"},
    {"Request for quotation %1", "Zapytanie ofertowe %1", "Angebotsanfrage %1"},
    {"Please let us have your offer for the materials in the attached table (%1) by %2. You may "
     "fill in the table and send it back.",
     "Prosimy o ofertę na materiały z załączonej tabeli (%1) do dnia %2. Tabelę można wypełnić i "
     "odesłać.",
     "Wir bitten um Ihr Angebot für die Materialien der beigefügten Tabelle (%1) bis zum %2. Sie "
     "können die Tabelle ausfüllen und zurücksenden."},
    {"Please let us have your offer for the materials in the attached table (%1). You may fill in "
     "the table and send it back.",
     "Prosimy o ofertę na materiały z załączonej tabeli (%1). Tabelę można wypełnić i odesłać.",
     "Wir bitten um Ihr Angebot für die Materialien der beigefügten Tabelle (%1). Sie können die "
     "Tabelle ausfüllen und zurücksenden."},
    {"Reminder: request for quotation %1", "Przypomnienie: zapytanie ofertowe %1",
     "Erinnerung: Angebotsanfrage %1"},
    {"We have not received your offer for our request %1 yet. The request is attached once more.",
     "Nie otrzymaliśmy jeszcze Państwa oferty na nasze zapytanie %1. Zapytanie załączamy ponownie.",
     "Ihr Angebot auf unsere Anfrage %1 liegt uns noch nicht vor. Die Anfrage ist noch einmal "
     "beigefügt."},
    {"Please fill in the columns from the unit price on.",
     "Prosimy wypełnić kolumny od ceny jednostkowej.",
     "Bitte füllen Sie die Spalten ab dem Stückpreis aus."},
    {"net", "netto", "netto"},
    {"gross", "brutto", "brutto"},
};
static_assert(std::size(texts) == textCount);

QString inLanguage(const wording &of, const QString &language)
{
    const int place = languages().indexOf(known(language));
    return QString::fromUtf8(of[place]);
}

template <size_t Count>
int placeOf(const wording (&all)[Count], const QString &caption)
{
    const QString wanted = caption.simplified();
    for (size_t i = 0; i < Count; ++i)
        for (const char *one : all[i])
            if (QString::fromUtf8(one).compare(wanted, Qt::CaseInsensitive) == 0)
                return int(i);
    return int(Count);
}

} // namespace

bool isNumber(column of)
{
    return of == ordinal || of == quantity || (of >= price && of <= leadTime);
}

const QStringList &languages()
{
    static const QStringList all{QStringLiteral("en"), QStringLiteral("pl"), QStringLiteral("de")};
    return all;
}

QString known(const QString &language)
{
    const QString wanted = language.trimmed().toLower();
    return languages().contains(wanted) ? wanted : languages().first();
}

QString captionOf(column of, const QString &language)
{
    return inLanguage(columnCaptions[of], language);
}

QString captionOf(entry of, const QString &language)
{
    return inLanguage(entryCaptions[of], language);
}

QString textOf(phrase which, const QString &language) { return inLanguage(texts[which], language); }

column columnNamed(const QString &caption) { return column(placeOf(columnCaptions, caption)); }

entry entryNamed(const QString &caption) { return entry(placeOf(entryCaptions, caption)); }

taxed taxedBy(const QString &value)
{
    const QString word = value.simplified();
    for (const auto &[which, says] :
         {std::pair(net, taxed::net), std::pair(quotationForm::gross, taxed::gross)})
        for (const char *one : texts[which])
            if (QString::fromUtf8(one).compare(word, Qt::CaseInsensitive) == 0)
                return says;
    return taxed::unsaid;
}

} // namespace quotationForm
