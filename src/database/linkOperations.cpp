#include "database/linkOperations.h"

#include "data/kiv_mat_databaseStruct.h"
#include "util/workbook.h"
#include "util/labels.h"
#include "util/linkCheck.h"

#include <QCoreApplication>
#include <QHash>

namespace {

template <class List>
void collect(std::vector<checkedLink> &links, const materialStruct *material, const List &sources)
{
    for (const auto &source : sources.items)
        for (const auto &file : source->files.items)
            links.push_back({material, file->name, false});
}

std::vector<checkedLink> linksOf(const kiv_mat_databaseStruct &database)
{
    std::vector<checkedLink> links;
    for (const auto &group : database.groups) {
        for (const auto &material : group->items) {
            collect(links, material.get(), material->manufacturers);
            collect(links, material.get(), material->suppliers);
        }
    }
    return links;
}

} // namespace

linkCheckResult checkUrls(const kiv_mat_databaseStruct &database, const progressFunction &progress,
                          const linkProbe &probe)
{
    const linkProbe ask =
        probe ? probe : [](const QUrl &url, const std::function<bool()> &keepGoing) {
            return linkCheck::answers(url, 80, 10000, keepGoing);
        };
    linkCheckResult result;
    result.links = linksOf(database);
    const qint64 total = qint64(result.links.size());
    QHash<QString, bool> known;
    for (size_t i = 0; i < result.links.size(); ++i) {
        const auto keepGoing = [&] {
            result.cancelled = result.cancelled || (progress && !progress(qint64(i), total));
            return !result.cancelled;
        };
        checkedLink &link = result.links[i];
        if (keepGoing() && !known.contains(link.link)) {
            QString address = link.link;
            const QUrl url(address.replace(QLatin1String("https:"), QLatin1String("http:")));
            known.insert(link.link, !url.isEmpty() && url.isValid() && ask(url, keepGoing));
        }
        // The answer of a link that was given up is unknown.
        if (result.cancelled) {
            result.links.resize(i);
            return result;
        }
        link.answers = known.value(link.link);
    }
    if (progress)
        progress(total, total);
    return result;
}

QStringList linkErrorLines(const linkCheckResult &result)
{
    QStringList lines;
    for (const checkedLink &link : result.links)
        if (!link.answers)
            lines.append(QLatin1String("[Error] ") + link.link.toHtmlEscaped()
                         + QLatin1String("<br>"));
    return lines;
}

exportResult exportLinks(const linkCheckResult &checked, const QString &path,
                         const progressFunction &progress)
{
    exportResult result;
    workbook book;
    int row = 0;
    const auto write = [&book, &row](const QStringList &cells) {
        ++row;
        for (int column = 0; column < cells.size(); ++column)
            if (!book.write(row, column + 1, cells.at(column)))
                return false;
        return true;
    };
    bool good = book.addSheet(QStringLiteral("Links"))
                && write({labels::ktm(), labels::name(), labels::address(), labels::results()});
    for (const checkedLink &link : checked.links)
        good = good
               && write({link.material->d_ktm, link.material->d_name, link.link,
                         link.answers ? QStringLiteral("Ok") : QStringLiteral("Error")});
    if (good && book.saveAs(path, progress)) {
        result.files.append(path);
        return result;
    }
    result.result = book.isCancelled() ? exportResult::cancelled : exportResult::failed;
    result.error = path + QLatin1String(": ") + book.error();
    return result;
}
