#include "report/myWebView.h"

#include "report/reportPage.h"
#include "util/desktop.h"

#include <QWebFrame>
#include <QWheelEvent>

myWebView::myWebView(QWidget *parent)
    : QWebView(parent)
    , m_page(new reportPage(this))
{
    setPage(m_page);
    connect(m_page, &reportPage::linkActivated, this,
            [](const QUrl &url) { desktop::followLink(url); });
}

void myWebView::showReport(const QString &html)
{
    const QPoint place = m_page->mainFrame()->scrollPosition();
    m_page->showHtml(html);
    m_page->mainFrame()->setScrollPosition(place);
}

void myWebView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QWebView::wheelEvent(event);
        event->accept();
        return;
    }
    constexpr int notch = 120;
    constexpr qreal stepsForDouble = 10.0;
    m_zoomSteps += event->angleDelta().y() / notch;
    setZoomFactor(m_zoomSteps / stepsForDouble + 1.0);
    event->accept();
}
