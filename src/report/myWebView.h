// The HTML preview: Ctrl and the wheel zoom it, links open on the desktop.
#pragma once

#include <QWebView>

class reportPage;

class myWebView : public QWebView
{
    Q_OBJECT
public:
    explicit myWebView(QWidget *parent = nullptr);

    // Shows a report; the place it was scrolled to is kept.
    void showReport(const QString &html);

protected:
    // With Ctrl each notch of the wheel is 10 %, without bounds. With other modifiers as without.
    void wheelEvent(QWheelEvent *event) override;

private:
    reportPage *m_page;
    int m_zoomSteps = 0;
};
