#include "shell/startupDialog.h"

#include "shell/logos.h"

#include <QBitmap>
#include <QCoreApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionProgressBar>

startupDialog::startupDialog()
    : QSplashScreen(QPixmap())
{
    setPixmap(logos::splash());
    setWindowFlags(Qt::SplashScreen | Qt::WindowStaysOnTopHint);
    setCursor(Qt::BusyCursor);
    setMask(pixmap().mask());
}

void startupDialog::setProgress(int value, int maximum)
{
    m_progress = value;
    m_maximum = maximum;
    update();
    repaint();
}

void startupDialog::drawContents(QPainter *painter)
{
    QSplashScreen::drawContents(painter);
    QStyleOptionProgressBar bar;
    bar.rect = QRect(QPoint(32, 168), QPoint(227, 183));
    bar.state = QStyle::State_Enabled | QStyle::State_Horizontal;
    bar.minimum = 0;
    bar.maximum = m_maximum;
    bar.progress = m_progress;
    bar.textVisible = false;
    bar.invertedAppearance = false;
    style()->drawControl(QStyle::CE_ProgressBar, &bar, painter, this);
}

namespace splash {

namespace {

startupDialog *held = nullptr;

} // namespace

void hold(startupDialog *dialog) { held = dialog; }

void show()
{
    if (held)
        held->show();
}

void setProgress(int value, int maximum)
{
    if (held)
        held->setProgress(value, maximum);
}

void keepPainted()
{
    if (!held)
        return;
    held->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace splash
