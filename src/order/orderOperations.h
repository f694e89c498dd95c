// What the main window does with the lines of an order, as functions on the records.
#pragma once

#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"

#include <QDate>
#include <QStringList>

class configStruct;

// KTMs of materials, as windows send them to each other.
using materialKtms_list = QStringList;

namespace orderOperations {

// --- The state of lines ---

enum class stock
{
    unknown, // quantity or stock is no number
    enough,
    tooLittle
};

struct lineState
{
    bool known = false; // a loaded database has the KTM
    QString status;     // the status word of the material, empty when unknown
    stock inStock = stock::unknown;
    double share = 0; // of the quantity that is in stock, from 0 to 1
};
lineState stateOf(const orderItemStruct &line, const ktmIndex &materials);

// A material may be ordered once somebody has looked at it: with any status but none and SZARY.
bool isOrderable(const QString &status);

// The KTMs of lines that no database holds, and of those whose material may not be ordered; each
// once, in the order of the lines.
struct lineFaults
{
    QStringList unknown;
    QStringList withoutStatus;
};
lineFaults faultsOf(const kiv_mat_zpStruct &order, const ktmIndex &materials);

// --- New lines ---

// The KTMs of lines that an order takes once each: ten of shipment, one of PCB, one of service.
const QString &pcbKtm();
// The first shipment KTM that the order does not hold; empty when it holds all ten.
QString freeShipmentKtm(const kiv_mat_zpStruct &order);
// Whether a KTM is one of shipment or service.
bool isShipment(const QString &ktm);
// Whether an order takes one line of the material at most.
bool isTakenOnce(const QString &ktm);
bool holds(const kiv_mat_zpStruct &order, const QString &ktm);

// A line for a material, its price and stock as they are now. The target is the order's.
std::unique_ptr<orderItemStruct> newLine(const materialStruct &material,
                                         const kiv_mat_zpStruct &order, const QString &quantity,
                                         const QDate &wait);
// Copies lines to the end of another order's file, with the texts of these columns (their numbers
// in the order of the record). An earlier version goes to the configuration's backup folder. False,
// with the file as it was and the reason told, when it cannot be read or written, or is open
// elsewhere.
bool appendToFile(const QString &path, const std::vector<const orderItemStruct *> &lines,
                  const std::vector<int> &columns, configStruct &config, QString *reason);

// The same options, lines and remarks.
std::unique_ptr<kiv_mat_zpStruct> copyOf(const kiv_mat_zpStruct &other);

// A new order with the options, lines and remarks of another one: with that number and today's
// date, its lines needed by that day, and nothing delivered or invoiced yet.
std::unique_ptr<kiv_mat_zpStruct> newOrderLike(const kiv_mat_zpStruct &other, const QString &number,
                                               const QDate &today, const QDate &wait);

// The day by which ordinary lines are needed: today and ORDER_DATE_ADD days.
QDate usualDate(const configStruct &config);

// --- Lists to choose from ---

// The units offered: the stored unit names.
QStringList units();
// The names of the configuration's targets, and the order's own one.
QStringList targets(const configStruct &config, const kiv_mat_zpStruct &order);

} // namespace orderOperations
