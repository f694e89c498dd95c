#include "tools/hostKeys.h"

#include "util/files.h"
#include "util/paths.h"

#include <QStringList>

#include <algorithm>

namespace {

QStringList lines()
{
    QStringList all;
    files::readLines(hostKeys::file(), &all);
    return all;
}

bool isOf(const QString &line, const QString &host)
{
    return line.section(QLatin1Char(' '), 0, 0).compare(host, Qt::CaseInsensitive) == 0;
}

} // namespace

namespace hostKeys {

QString file() { return paths::userDir() + QLatin1String("/hostKeys.txt"); }

QString keyOf(const QString &host)
{
    for (const QString &line : lines())
        if (isOf(line, host))
            return line.section(QLatin1Char(' '), 1, 1).trimmed();
    return {};
}

bool keep(const QString &host, const QString &key)
{
    QStringList kept = lines();
    kept.erase(std::remove_if(kept.begin(), kept.end(),
                              [&host](const QString &line) {
                                  return line.trimmed().isEmpty() || isOf(line, host);
                              }),
               kept.end());
    kept.append(host + QLatin1Char(' ') + key);
    return files::writeText(file(), kept.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

} // namespace hostKeys
