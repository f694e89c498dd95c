// What the windows and the command line do with BOM lists, as functions on the records: reading
// them, matching their lines with the databases, sums, and the lines that go into an order.
#pragma once

#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/lineSums.h"
#include "data/orderRules.h"
#include "data/orderedBefore.h"

#include <QDate>
#include <QStringList>

#include <functional>
#include <optional>

namespace bomOperations {

// --- Files ---

// Checks and reads the file of a BOM list. False when it cannot be read; error then gets the HTML
// line for the errors window, which tells a missing file from an invalid one.
bool readBom(const QString &path, kiv_mat_bomStruct *bom, QString *error);

// --- Lines ---

// A line beside what the databases know of its KTM.
struct bomLine
{
    const materialStruct *line;
    const materialStruct *material; // the database's, or the line itself when no database has it
    bool known;

    // As views, exports and reports show it: "!!!!!" stands before a KTM that no database has.
    QString shownKtm() const;
};
bomLine matched(const materialStruct &line, const ktmIndex &materials);

// A new line for one piece of a material, without designators; null when no database has it. The
// second says so, as a line for the errors window.
std::unique_ptr<materialStruct> newBomLine(const QString &ktm, const ktmIndex &materials);
QString doesNotExist(const QString &ktm);

// --- Sums ---

// A BOM list and how many sets of it are built; 0 and less are none.
struct bomSets
{
    const kiv_mat_bomStruct *bom;
    int sets;
};

// Of one set.
lineSums sumsOf(const kiv_mat_bomStruct &bom, const ktmIndex &materials);
// Of several lists, each times its sets. Lists that are not built do not count.
lineSums sumsOf(const std::vector<bomSets> &lists, const ktmIndex &materials);

// --- What is needed ---

// A material summed over all lines of all lists, times sets. Lines without a KTM are told apart by
// their name.
struct need
{
    QString ktm;
    QString name;
    const materialStruct *material = nullptr; // null when no database has it
    decimal needed;
    decimal extra;                  // that gets lost while the boards are built
    std::optional<decimal> inStock; // nothing when unknown, or when the stock is no number
    decimal reserved;               // of the stock, for other boards
    decimal onTheWay;               // in other orders, in the material's unit
    QString lastOrdered;            // date, price and order; empty when it never was
    QStringList designators;        // of its lines, each once

    bool isKnown() const { return material != nullptr; }
    decimal whole() const { return needed + extra; }
    // Needed and not in stock, or reserved there; an unknown stock, and one below nothing, count as
    // nothing.
    decimal shortage() const
    {
        return qMax(decimal(), whole() - qMax(decimal(), inStock.value_or(decimal()) - reserved));
    }
    bool isShort() const { return shortage() > decimal(); }
};

struct demand
{
    std::vector<need> needs; // in the order of their first lines
    // The lines whose quantity is no number or less than nothing: they are in no need.
    std::vector<const materialStruct *> uncounted;
    orderRules rules;
};
// Notes what other orders than the one at that path have of the needs.
void noteOrdered(demand *of, const orderedLookup &ordered, const QString &orderPath);
// Looks at the lists and the materials, which have to live as long as it is used.
demand demandOf(const std::vector<bomSets> &lists, const ktmIndex &materials,
                const orderRules &rules = {});

// The needs that stock does not cover, unknown materials among them.
std::vector<const need *> shortagesOf(const demand &of);

// --- Into the order ---

enum class amount
{
    needed,
    shortage,
    topUp // what is needed beyond what the order has already
};

// What becomes of a material that the order has already.
enum class present
{
    raise, // its line gets the amount on top
    add,   // the amount becomes a line of its own
    skip   // the order has enough of it
};

// A need beside the order that it goes into.
struct orderedNeed
{
    const need *of;
    decimal inOrder; // of the lines with the material's unit whose quantity is a number
    decimal wanted;
    // The part of it that is ordered: nothing of an unknown material, and of one that is skipped.
    decimal toOrder;
    bool isSkipped = false;

    decimal after() const { return inOrder + toOrder; }
};
// What of a need is ordered.
struct wish
{
    amount which = amount::needed;
    present existing = present::raise;
    bool neverTwice = false; // less what is on the way
};
// In the order of the needs.
std::vector<orderedNeed> orderedNeeds(const demand &of, const kiv_mat_zpStruct &order,
                                      const wish &wanted);

// One change of an order: another quantity for line number "line", or, when that is -1, a line to
// append. Lines are to be appended in the order of the changes.
struct orderChange
{
    int line = -1;
    QString quantity;
    std::unique_ptr<orderItemStruct> added;
};

struct orderPlan
{
    std::vector<orderChange> changes;
    std::vector<const need *> unknown; // in no database: not ordered
    int skipped = 0;                   // materials left as the order has them
};
// Changes nothing: a window applies the changes as one undo step. A line is raised only when its
// quantity is a number or empty and its unit is the material's; else the amount becomes a line of
// its own, as nothing else would be right. Materials of which an order takes one line (shipment,
// PCB) are never doubled. Amounts of nothing make no change. isChosen leaves needs out.
orderPlan planOf(const demand &of, const kiv_mat_zpStruct &order, const wish &wanted,
                 const QDate &wait, const std::function<bool(const need &)> &isChosen = {});

// Where a plan is carried out: on the order alone, or in a window, which keeps its rows and its
// undo history in step.
class orderTarget
{
public:
    orderTarget() = default;
    orderTarget(const orderTarget &) = delete;
    orderTarget &operator=(const orderTarget &) = delete;
    virtual ~orderTarget() = default;

    virtual void setQuantity(int line, const QString &quantity) = 0;
    virtual void append(std::unique_ptr<orderItemStruct> line) = 0;
};
// Return the number of changes carried out.
int apply(orderPlan plan, orderTarget &target);
int apply(orderPlan plan, kiv_mat_zpStruct *order);

} // namespace bomOperations
