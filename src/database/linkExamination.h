// What is known of the links of materials: what came of them and when, kept between runs, and which
// of them have moved.
#pragma once

#include "firm/firmOperations.h"
#include "util/linkExaminer.h"

#include <QDateTime>
#include <QHash>
#include <QSet>

#include <vector>

namespace linkExamination {

// One link of a material's manufacturers and suppliers.
struct materialLink
{
    QString ktm;
    QString name; // of the material
    QString kind; // of the file
    QString link; // as stored
};

// In file order; empty links are left out.
std::vector<materialLink> linksOf(const kiv_mat_databaseStruct &database);

// What came of a link, and when.
struct result
{
    linkReply reply;
    QDateTime date;
};
using results = QHash<QString, result>; // by link as stored

// How many days a result counts.
constexpr int usualDays = 30;

// The user's file of results, and its text: a line each, fields parted by tabs. A line that is
// none is left out in reading. Links with a user name or password are not written, nor what is
// older than a year at the time now.
QString file();
results read(const QString &text);
QString written(const results &known, const QDateTime &now);

results load();
// Puts newer results among those in the file, which another program may have added to. False when
// it cannot be written.
bool keep(const results &newer);

// Whether a result of so many days counts still. One that says no more than that nobody answered
// counts for a day.
bool isFresh(const result &known, int days, const QDateTime &now);

// The different links that have no fresh result.
QStringList toExamine(const std::vector<materialLink> &links, const results &known, int days,
                      const QDateTime &now);

// The different links to datasheets that answer, of which there is no copy.
QStringList toFetch(const std::vector<materialLink> &links, const results &known,
                    const QSet<QString> &copies);

bool doesAnswer(linkState state);

// A link that moved, but whose new address may be another document: a datasheet that became a web
// page, or the front page of its host.
bool isDoubtful(const linkReply &reply);

// In files and for other programs: "answers", "moved" ...; in the user's language, with the number
// or the reason.
QString word(linkState state);
QString caption(const linkReply &reply);

// A link of a material that gets another address.
struct replacement
{
    QString ktm;
    QString before;
    QString after;
};
// What replacements do to a database; nothing is changed yet. What is not there any more changes
// nothing.
std::vector<firmOperations::nameChange> changesOf(kiv_mat_databaseStruct &database,
                                                  const std::vector<replacement> &replacements);

} // namespace linkExamination
