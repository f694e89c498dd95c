// What is bought in a year: sums over the lines of its orders, and the thresholds that they are
// held against, by CPV code.
#pragma once

#include "data/purchaseThresholds.h"
#include "orders/orderIndex.h"
#include "util/progress.h"

#include <QStringList>

#include <optional>

class orderRegister;

namespace annualPlan {

// --- The plan

enum class grouping
{
    cpv,   // the whole code
    group, // its first digits
    target,
    firm
};
constexpr int fewestDigits = 3;
constexpr int mostDigits = 8;

struct question
{
    int year = 0;
    grouping by = grouping::group;
    int digits = fewestDigits; // of groups
};

// What the orders' files do not say by themselves. An order that is parted does not count, since
// others are in its place. firmOf is asked by the KTM, or the name of lines without one, with the
// unit behind it where lines before have another one.
struct options
{
    std::function<bool(const orderIndex::order &)> isOrdered = [](const orderIndex::order &order) {
        return order.stage != orderStage::edited;
    };
    std::function<bool(const orderIndex::order &)> isParted = [](const orderIndex::order &) {
        return false;
    };
    std::function<QString(const orderIndex::order &, const QString &)> firmOf =
        [](const orderIndex::order &, const QString &) { return QString(); };
};
// Of a register, as it is now: for one plan, and as long as the register lives.
options optionsOf(orderRegister &orders);

struct sums
{
    decimal estimated; // PLN, price times quantity, orders that are being prepared among them
    decimal ordered;   // the same of those that are ordered
    int lines = 0;
    int leftOut = 0; // of these, whose price or quantity is no number
    int orders = 0;

    decimal rest() const { return estimated - ordered; }
};

enum class rowKind
{
    code, // CPV, whole or its first digits
    noCode,
    badCode,
    target,
    noTarget,
    firm,
    noFirm
};

struct row
{
    rowKind kind;
    QString text; // code, target, firm, or what stands in place of a code
    sums of;
    QStringList categories;           // of its codes, where there are thresholds for them
    standing state;                   // that of the worst of these
    QStringList worst;                // which these are
    std::optional<decimal> threshold; // when the row is one category, no less and no more
};
// As the user reads it: "without a CPV code".
QString nameOf(const row &of);
// In percent with one decimal; empty when there is no sum.
QString shareOf(const row &of, const sums &total);

// Codes with one threshold.
struct category
{
    QString digits;
    decimal threshold;
    sums of;

    standing state() const { return standingOf(of.estimated, threshold); }
};

// A line that no threshold can be held against.
struct lineWithoutCode
{
    QString path;
    QString order; // its number, or its file's name
    int line;      // from 0
    QString ktm;
    QString name;
    QString cpv; // what stands in place of a code
};

struct plan
{
    question what;
    std::vector<row> rows;
    sums total;
    std::vector<category> categories; // those of the year, by their digits
    std::vector<lineWithoutCode> withoutCode;
    int parted = 0;       // orders that were left out for those in their place
    bool complete = true; // progress did not cancel it
};
// By name, or the greatest sums first.
void sortRows(std::vector<row> &rows, bool byName);
// The years in which there are orders, the newest first.
std::vector<int> yearsOf(const orderIndex &index);
// The greatest sums first. progress is told orders.
plan planOf(const orderIndex &index, const question &what, const thresholds &limits,
            const options &by, const progressFunction &progress = {});

// --- The order that is open

// The sums of each year by code, made once for each revision of the register.
class yearSums
{
public:
    const QHash<QString, decimal> &of(int year, const orderIndex &index, int revision,
                                      const options &by);

private:
    std::optional<int> m_revision;
    QHash<int, QHash<QString, decimal>> m_years;
};

struct thresholdWarning
{
    QString category; // digits
    int year = 0;
    decimal sum;
    decimal threshold;
    std::vector<int> lines; // of the open order, from 0
};
// "CPV 302: 60 000.00 PLN in 2026, above the threshold of 50 000.00 PLN"
QString warningText(const thresholdWarning &of);

// The categories of lines of the open order that are above their thresholds in the order's year.
// Its lines as they are count in place of those of its file, path; they do not count when it was
// parted. today is for orders without a date.
std::vector<thresholdWarning> thresholdWarnings(const kiv_mat_zpStruct &order, const QString &path,
                                                const thresholds &limits, yearSums &known,
                                                const orderIndex &index, int revision,
                                                const options &by,
                                                const QDate &today = QDate::currentDate());
// The same with a register, which is not read again.
std::vector<thresholdWarning> thresholdWarnings(const kiv_mat_zpStruct &order, const QString &path,
                                                const thresholds &limits, yearSums &known,
                                                orderRegister &orders);

} // namespace annualPlan
