// What the requests for quotation and the offers of an order have in common: where their file lies,
// and what the order needs, material by material.
#pragma once

#include "data/kiv_mat_offersStruct.h"
#include "data/sharedFile.h"
#include "util/decimal.h"

#include <QDate>

#include <optional>
#include <vector>

class kiv_mat_zpStruct;

using offersFile = sharedDocument<kiv_mat_offersStruct>;

namespace orderOffers {

// "offers/zp_7" beside the order zp_7.xml: the folder of what was sent to firms and came back, and
// the file in it that says what was asked, offered and chosen.
QString folderOf(const QString &orderPath);
QString fileOf(const QString &orderPath);

// Whether these are one firm: the same name, and where both have one the same tax number.
bool isSameFirm(const QString &name, const QString &nip, const QString &otherName,
                const QString &otherNip);

// A file name for something of a firm in that folder: letters, digits, points and dashes of the
// parts, joined by "_". Not one that is there already.
QString freeName(const QString &folder, const QStringList &parts, const QString &ending);

// Dates in the file, "yyyy.MM.dd"; null for any other text.
QString dateText(const QDate &date);
QDate readDate(const QString &text);

// What is bought of one material: its lines in one unit together, since prices go by the quantity.
// Nobody is asked for shipment and service.
struct need
{
    QString key; // the KTM, or the name of lines without one; with the unit behind it where the
                 // lines before have another unit
    QString ktm;
    QString name;
    QString unit;
    decimal quantity;
    QDate wait;             // the earliest date of its lines; null when none has one
    std::vector<int> lines; // of the order, from 0
};
struct needs
{
    std::vector<need> all;
    std::vector<int> uncounted; // lines whose quantity is no number above 0
    const need *find(const QString &key) const;
};
// Of these lines of the order, from 0; of all when nothing is given.
needs needsOf(const kiv_mat_zpStruct &order, const std::optional<std::vector<int>> &lines = {});

// The firm chosen for a line of that KTM (or name); null when none was.
const choiceStruct *choiceFor(const kiv_mat_offersStruct &offers, const QString &key);
// The latest request to a firm, and its latest offer; null when there is none.
const requestStruct *requestTo(const kiv_mat_offersStruct &offers, const QString &firm,
                               const QString &nip);
const offerStruct *offerOf(const kiv_mat_offersStruct &offers, const QString &firm,
                           const QString &nip);
// Its offers, the latest first.
std::vector<const offerStruct *> offersOf(const kiv_mat_offersStruct &offers, const QString &firm,
                                          const QString &nip);
// Its offer on that request, or on none when the number is empty; null when there is none.
const offerStruct *offerOn(const kiv_mat_offersStruct &offers, const QString &firm,
                           const QString &nip, const QString &request);

} // namespace orderOffers
