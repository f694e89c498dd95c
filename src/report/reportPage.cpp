#include "report/reportPage.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QTimer>
#include <QWebFrame>
#include <QWebSettings>

namespace {

constexpr int loadTimeoutMs = 10000;

class localOnly : public QNetworkAccessManager
{
public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *data) override
    {
        const QUrl url = request.url();
        const QString scheme = url.scheme().toLower();
        // A file address with a host is a share on the network.
        const bool local = scheme == QLatin1String("qrc") || scheme == QLatin1String("data")
                           || (scheme == QLatin1String("file") && url.host().isEmpty());
        return local
                   ? QNetworkAccessManager::createRequest(operation, request, data)
                   : QNetworkAccessManager::createRequest(GetOperation, QNetworkRequest(), nullptr);
    }
};

} // namespace

reportPage::reportPage(QObject *parent)
    : QWebPage(parent)
{
    setNetworkAccessManager(new localOnly(this));
    QWebSettings *set = settings();
    for (QWebSettings::WebAttribute off :
         {QWebSettings::JavascriptEnabled, QWebSettings::JavaEnabled, QWebSettings::PluginsEnabled,
          QWebSettings::DnsPrefetchEnabled, QWebSettings::LocalStorageEnabled,
          QWebSettings::OfflineStorageDatabaseEnabled,
          QWebSettings::OfflineWebApplicationCacheEnabled, QWebSettings::XSSAuditingEnabled,
          QWebSettings::HyperlinkAuditingEnabled, QWebSettings::LocalContentCanAccessRemoteUrls})
        set->setAttribute(off, false);
}

void reportPage::showHtml(const QString &html, const QUrl &baseUrl)
{
    QEventLoop loop;
    connect(this, &QWebPage::loadFinished, &loop, &QEventLoop::quit);
    QTimer::singleShot(loadTimeoutMs, &loop, &QEventLoop::quit);
    bool finished = false;
    connect(this, &QWebPage::loadFinished, &loop, [&finished] { finished = true; });
    m_baseUrl = baseUrl;
    mainFrame()->setHtml(html, baseUrl);
    if (!finished)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

bool reportPage::acceptNavigationRequest(QWebFrame *frame, const QNetworkRequest &request,
                                         NavigationType type)
{
    if (type == NavigationTypeLinkClicked) {
        emit linkActivated(request.url());
        return false;
    }
    // Only what showHtml() puts there; no form, no refresh to elsewhere, no frame of a page.
    const QUrl url = request.url();
    return frame == mainFrame() && type == NavigationTypeOther
           && (url == m_baseUrl || url.isEmpty() || url == QUrl(QStringLiteral("about:blank")));
}
