#include "database/datasheetCopies.h"

#include "util/linkExaminer.h"
#include "util/paths.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QNetworkInterface>
#include <QRegularExpression>

#include <algorithm>

namespace datasheetCopies {

namespace {

constexpr const char *suffixes[] = {".pdf", ".png", ".jpg", ".gif"};

QString nameOf(const QString &link)
{
    constexpr int longest = 60;
    constexpr int markLength = 12;
    QUrl url = webLinks::addressOf(link);
    if (!url.isValid())
        return {};
    url.setUserInfo({});
    url.setFragment({});
    const QByteArray mark =
        QCryptographicHash::hash(url.toEncoded(), QCryptographicHash::Sha256).toHex();
    static const QRegularExpression odd(QStringLiteral("[^A-Za-z0-9_-]+"));
    QString name = QFileInfo(url.path()).completeBaseName();
    name = (name.isEmpty() ? url.host() : name).replace(odd, QStringLiteral("_"));
    return name.left(longest) + QLatin1Char('-') + QLatin1String(mark.left(markLength));
}

} // namespace

QString folder() { return paths::data(QStringLiteral("_files/datasheets")); }

QString baseOf(const QString &link)
{
    const QString name = nameOf(link);
    return name.isEmpty() ? QString() : folder() + QLatin1Char('/') + name;
}

QSet<QString> names()
{
    const QStringList all = QDir(folder()).entryList(QDir::Files);
    return {all.begin(), all.end()};
}

QString of(const QString &link, const QSet<QString> *known)
{
    const QString name = nameOf(link);
    if (name.isEmpty())
        return {};
    for (const char *suffix : suffixes) {
        const QString file = name + QLatin1String(suffix);
        QString path = folder() + QLatin1Char('/') + file;
        if (known ? known->contains(file) : QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QUrl toOpen(const QUrl &link, bool isOnline)
{
    const QString copy = isOnline ? QString() : of(link.toString(QUrl::FullyEncoded));
    return copy.isEmpty() ? link : QUrl::fromLocalFile(copy);
}

bool isOnline()
{
    const auto all = QNetworkInterface::allInterfaces();
    return std::any_of(all.begin(), all.end(), [](const QNetworkInterface &one) {
        const auto flags = one.flags();
        return flags.testFlag(QNetworkInterface::IsUp)
               && flags.testFlag(QNetworkInterface::IsRunning)
               && !flags.testFlag(QNetworkInterface::IsLoopBack) && !one.addressEntries().isEmpty();
    });
}

void follow(const QString &before, const QString &after)
{
    const QString copy = of(before);
    const QString base = baseOf(after);
    if (!copy.isEmpty() && !base.isEmpty() && of(after).isEmpty())
        QFile::copy(copy, base + QLatin1Char('.') + QFileInfo(copy).suffix());
}

} // namespace datasheetCopies
