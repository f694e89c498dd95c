#include "database/linkOperations.h"

#include "data/kiv_mat_databaseStruct.h"
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
    const tableFile::content table{
        QStringLiteral("Links"),
        {labels::ktm(), labels::name(), labels::address(), labels::results()},
        int(checked.links.size()),
        [&checked](int row) {
            const checkedLink &link = checked.links[size_t(row)];
            return QStringList{link.material->d_ktm, link.material->d_name, link.link,
                               link.answers ? QStringLiteral("Ok") : QStringLiteral("Error")};
        },
        {}};
    return exportTable(table, path, progress);
}
