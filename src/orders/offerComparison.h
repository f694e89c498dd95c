// The offers for an order beside each other: what each material costs at each firm, and which firm
// it had better be bought from.
#pragma once

#include "orders/orderOffers.h"

class configStruct;

namespace offerComparison {

// --- Prices by quantity ---

struct priceBreak
{
    decimal from; // quantity from which on it holds
    decimal price;
};
// "1: 0.50; 100: 0.42", as offers have them.
QString textOf(const std::vector<priceBreak> &prices);
// Nothing for any other text, for quantities that do not ascend, and for prices that are not above
// 0.
std::optional<std::vector<priceBreak>> readPrices(const QString &text);

// The quantity to buy: at least the minimum, and a multiple of the multiple. Empty texts bound
// nothing. Nothing when one of them is no number above 0, or the multiple is too small to count.
std::optional<decimal> toBuy(const decimal &need, const QString &minimum, const QString &multiple);

// The price without the tax in PLN, at most six decimals. vat: percent, 0 or more.
decimal netPrice(const decimal &price, const decimal &rate, bool isGross, const decimal &vat);

// --- The table ---

// One material at one firm. Amounts in PLN without tax.
struct cell
{
    bool isOffered = false;
    QString prices;              // as offered, in the offer's currency
    decimal price;               // for one, of the break that counts
    decimal bought;              // the need raised to what can be bought
    decimal cost;                // bought x price
    std::optional<int> leadTime; // days
    bool isBest = false;
    // Why it is not offered, or that more would cost less in total; text for the user.
    QString remark;
    QString offerRemarks; // of the firm on this material
};

// A firm with the data and the totals of its latest offer.
struct firm
{
    QString name;
    QString nip;
    QString request; // its number; empty when nobody asked
    QDate received;
    QString currency;
    decimal rate; // 1 for PLN
    QDate rateDate;
    bool isGross = false;
    decimal vat;               // percent; the offer's, else the default
    bool isVatDefault = false; // the offer does not say it
    std::optional<int> leadTime;
    QDate validity;         // null: not said
    bool isExpired = false; // on the day of comparing: it is shown, never proposed
    QString remarks;
    QString file;  // what came, in the folder of the offers file
    QString fault; // why the whole offer cannot be counted: its rate is no number; else empty

    int offered = 0;
    int missing = 0;
    std::optional<int> longestLeadTime; // of what it offers
    decimal cost;
    decimal tax;           // of the cost in whole grosz, in whole grosz
    decimal gross() const; // in whole grosz, so that the sums add up as they are shown
};

struct material
{
    orderOffers::need need;
    std::vector<cell> cells; // of each firm
    int best = -1;           // firm; of those that have not expired
};

struct comparison
{
    QString number;          // of the order
    QDate day;               // on which it was made
    std::vector<firm> firms; // by name
    std::vector<material> materials;
    std::vector<int> uncounted; // lines of the order whose quantity is no number above 0

    // Whether a material may be chosen from a firm at all; an expired offer by hand only.
    bool isOffered(int material, int firm) const;
};
// vat: percent, for offers that do not say it.
comparison comparisonOf(const kiv_mat_zpStruct &order, const kiv_mat_offersStruct &offers,
                        const decimal &vat = decimal::read(QStringLiteral("23")).value(),
                        const QDate &day = QDate::currentDate());

// --- Selections ---

enum class mode
{
    cheapest,    // firm for each material
    oneFirm,     // for all: the cheapest of those that offer all, else of those that offer most
    fewestFirms, // whose total is not above the cheapest by more than a share
    byDate       // only what comes in time
};
struct question
{
    mode by = mode::cheapest;
    decimal within; // percent of the cheapest total; fewestFirms only
    QDate until;    // byDate only: the last day
};

// Which firm each material is bought from. Amounts in PLN.
struct selection
{
    std::vector<int> firmOf;  // of each material: place of the firm; -1: none
    std::vector<int> firms;   // that are chosen for anything, in the order of the comparison
    std::vector<int> missing; // materials without a firm
    decimal net;
    decimal tax;           // at the rate of each firm, in whole grosz
    decimal gross() const; // in whole grosz
};
selection propose(const comparison &of, const question &what);
// The totals of a selection that the user made or changed: pass firmOf with single firms set. A
// firm that does not offer the material counts as none.
selection selectionOf(const comparison &of, std::vector<int> firmOf);
// What was chosen before, as the offers file has it.
selection chosenBefore(const comparison &of, const kiv_mat_offersStruct &offers);

// --- Taking it over ---

// What becomes of a line of the order; empty texts stay as they are.
struct lineChange
{
    int line; // from 0
    QString price;
    QString quantity;
};
// The prices of all lines of each chosen material and, with raisesQuantities, the quantity of its
// last line, so that all of them are what has to be bought. Lines are looked up by their material
// in the order as it is now. Only what changes.
std::vector<lineChange> changesOf(const kiv_mat_zpStruct &order, const comparison &of,
                                  const selection &chosen, bool raisesQuantities);
struct applied
{
    int prices = 0; // lines
    int quantities = 0;
};
applied applyChoice(kiv_mat_zpStruct *order, const comparison &of, const selection &chosen,
                    bool raisesQuantities);

using choiceList = std::vector<std::unique_ptr<choiceStruct>>;
choiceList choicesOf(const comparison &of, const selection &chosen, const QString &reason,
                     const QDate &date, const QString &by);
// Writes them into the offers file of the order, in place of those before: what is
// bought from nobody now has no firm any more. False,
// with the file as it was and the reason in fault, when it cannot be written.
bool storeChoices(const QString &orderPath, const QString &orderNumber, const choiceList &choices,
                  configStruct &config, QString *fault);

} // namespace offerComparison
