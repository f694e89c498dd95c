#include "util/desktop.h"

#include "util/paths.h"
#include "util/prompts.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrlQuery>

#include <algorithm>

namespace {

constexpr const char *documents[] = {"pdf", "html", "htm", "txt",  "xml", "csv", "xlsx",
                                     "xls", "ods",  "doc", "docx", "odt", "rtf", "png",
                                     "jpg", "jpeg", "gif", "bmp",  "tif", "tiff"};

// By what a link in the file system leads to, not by its own name.
bool isDocument(const QString &path)
{
    const QFileInfo file(QFileInfo(path).canonicalFilePath());
    return file.isFile()
           && std::any_of(std::begin(documents), std::end(documents), [&file](const char *suffix) {
                  return file.suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
              });
}

bool isBelow(const QString &path, const QString &folder)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    return !root.isEmpty()
           && QFileInfo(path).canonicalFilePath().startsWith(root + QLatin1Char('/'));
}

bool takesFilesAlong(const QUrl &mail)
{
    const auto items = QUrlQuery(mail).queryItems(QUrl::FullyDecoded);
    return std::any_of(items.begin(), items.end(), [](const auto &item) {
        return item.first.startsWith(QLatin1String("attach"), Qt::CaseInsensitive);
    });
}

} // namespace

namespace desktop {

bool mayFollow(const QUrl &link)
{
    const QString scheme = link.scheme();
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https"))
        return link.isValid() && !link.host().isEmpty();
    if (scheme == QLatin1String("mailto"))
        return !takesFilesAlong(link);
    // A file address with a host is a share on the network.
    if (scheme != QLatin1String("file") || !link.host().isEmpty())
        return false;
    const QString path = link.toLocalFile();
    return isDocument(path)
           && (isBelow(path, paths::programDir()) || isBelow(path, paths::dataDir()));
}

bool followLink(const QUrl &link)
{
    if (mayFollow(link))
        return QDesktopServices::openUrl(link);
    userPrompts().showError(
        QCoreApplication::translate(
            "desktop", "This link is not opened. Only web and mail addresses are, and documents in "
                       "the program's folders:")
        + QLatin1String("<br><br>") + link.toString().toHtmlEscaped());
    return false;
}

bool openFile(const QString &path)
{
    return isDocument(path) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

bool openFolder(const QString &path)
{
    return QFileInfo(path).isDir() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace desktop
