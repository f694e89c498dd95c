// Requests for quotation to several firms at once: who can be asked, what each gets, which firm got
// what and when, and reminders for those that did not answer.
#pragma once

#include "orders/orderOffers.h"
#include "util/progress.h"

#include <QDateTime>

class configStruct;
class kiv_mat_firmDetailsStruct;
class kiv_mat_firmStruct;
class ktmIndex;

namespace quotationRequests {

// --- What and whom to ask

// The needs of these lines of the order, from 0, under the keys that they have in the whole order;
// of all lines when none are given. Nobody is asked for shipment and service. Lines that the order
// does not have are left out.
orderOffers::needs asked(const kiv_mat_zpStruct &order,
                         const std::optional<std::vector<int>> &lines = {});

// A firm of the register.
struct candidate
{
    QString firm;
    QString nip;
    QStringList to;   // without an address it cannot be asked
    QString language; // as quotationForm knows it
    int named = 0;    // how many of the materials name it as supplier or maker
    QString before;   // number of the last request to it; empty when there was none
    QString address;  // of the post
};
// Each manufacturer and supplier once: those that the most materials name first, then by name.
std::vector<candidate> candidatesOf(const kiv_mat_firmStruct &firms,
                                    const kiv_mat_firmDetailsStruct &details,
                                    const orderOffers::needs &needs, const ktmIndex &materials,
                                    const kiv_mat_offersStruct &offers);
// Why a firm cannot be asked; empty when it can.
QString faultOf(const candidate &of);

// A week from that day.
QDate usualDeadline(const QDate &today);

// "ZP/7/2026/Z3": the order's number, or the name of its file when it has none, with one more than
// the highest in the file of offers.
QString nextNumber(const kiv_mat_zpStruct &order, const QString &orderPath,
                   const kiv_mat_offersStruct &offers);

// --- Sending

// What needs more than plain functions.
struct means
{
    // Prints a page to a file; title stands at the foot of each sheet. False with the reason.
    std::function<bool(const QString &html, const QString &path, const QString &title,
                       QString *fault)>
        print;
    // Starts the mail program with a description file; without it messages are only written, and
    // not noted as sent.
    std::function<bool(const QString &description)> start;
    // Asked between firms, and once more when nothing could be written for one, whose printing may
    // have been broken off; false leaves out the rest, and that one.
    progressFunction progress;
    // Addresses of these count before those that were noted with a request; may be null.
    const kiv_mat_firmDetailsStruct *details = nullptr;
    QDateTime now = QDateTime::currentDateTime();
};

struct batch
{
    const kiv_mat_zpStruct *order;
    QString orderPath;
    std::optional<std::vector<int>> lines; // of the order, from 0; all when not given
    std::vector<candidate> firms;
    QDate deadline; // null: none
    const ktmIndex *materials;
};

struct outcome
{
    QString firm;
    QString number;    // of the request
    QStringList files; // that were written, with their paths; the description of the message last
    bool isWritten = false;
    bool isStarted = false;
    QString fault; // why it is not written, or its message not started
};
struct result
{
    QString fault; // why nothing was done at all
    std::vector<outcome> firms;
    bool isCancelled = false; // the firms behind the last one were left out

    int written() const;
    int started() const;
    // "firm: fault" of each that has one.
    QStringList faults() const;
};

// Writes the documents and the message of each firm, and notes the request in the order's file of
// offers. Messages of earlier batches are removed first. Nothing is written when one of the firms
// has no address, or there is nothing to ask for. What fails with one firm leaves nothing of its
// request behind, and the others go on.
result send(const batch &of, const means &with, configStruct &config);

// Sends the documents of requests again, as they were kept. A reminder is refused where an offer
// came.
enum class occasion
{
    again,
    reminder
};
result sendKept(occasion why, const QString &orderPath, const QStringList &numbers,
                const means &with, configStruct &config);

// The path of a document or table of a request; empty when it is missing, and where the name leads
// out of the folder of the order's offers.
QString keptFile(const QString &orderPath, const QString &name);

// --- Who answered

enum class state
{
    waiting,
    overdue,
    answered,
    unsent
};
// Answered is a request that an offer of its firm has the number of; one whose deadline is past on
// that day is overdue, else one that nobody handed to the mail program is only written.
state stateOf(const requestStruct &of, const kiv_mat_offersStruct &offers, const QDate &today);
// "waiting", "overdue", "offer came", "written only"
QString stateText(state of);
// The requests without an offer, and those of them that are overdue.
std::vector<const requestStruct *> unanswered(const kiv_mat_offersStruct &offers);
std::vector<const requestStruct *> overdue(const kiv_mat_offersStruct &offers, const QDate &today);

} // namespace quotationRequests
