// The links stored with materials: do they answer?
#pragma once

#include "database/exportResult.h"
#include "util/progress.h"

#include <QUrl>

#include <vector>

class kiv_mat_databaseStruct;
class materialStruct;

struct checkedLink
{
    const materialStruct *material;
    QString link; // as stored
    bool answers;
};

struct linkCheckResult
{
    std::vector<checkedLink> links; // in file order; those checked so far when cancelled
    bool cancelled = false;
};

// Asks one address; keepGoing is to be asked while waiting, false means give up.
using linkProbe = std::function<bool(const QUrl &url, const std::function<bool()> &keepGoing)>;

// Checks the links of all files of manufacturers and suppliers, one after the other, over plain
// HTTP. A link that stands several times is asked for once. An empty or malformed link does not
// answer. progress is told links, also while waiting for one, and lets events through and cancels.
// probe: linkCheck::answers() unless a test brings its own.
linkCheckResult checkUrls(const kiv_mat_databaseStruct &database,
                          const progressFunction &progress = {}, const linkProbe &probe = {});

// An HTML line for each link that does not answer.
QStringList linkErrorLines(const linkCheckResult &result);

// All checked links as a workbook: KTM, name, link, result. progress is asked while it is packed.
exportResult exportLinks(const linkCheckResult &checked, const QString &path,
                         const progressFunction &progress = {});
