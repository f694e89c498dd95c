// The web page that shows and prints reports: it runs no script and no plugin, and asks nothing of
// the network.
#pragma once

#include <QUrl>
#include <QWebPage>

class reportPage : public QWebPage
{
    Q_OBJECT
public:
    explicit reportPage(QObject *parent = nullptr);

    // Shows the HTML and waits, at most a few seconds, until it is laid out. baseUrl resolves
    // relative addresses of local pictures.
    void showHtml(const QString &html, const QUrl &baseUrl = {});

signals:
    // A link was clicked; the page itself stays.
    void linkActivated(const QUrl &url);

protected:
    bool acceptNavigationRequest(QWebFrame *frame, const QNetworkRequest &request,
                                 NavigationType type) override;

private:
    QUrl m_baseUrl;
};
