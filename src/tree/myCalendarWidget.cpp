#include "tree/myCalendarWidget.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

myCalendarWidget::myCalendarWidget(QWidget *parent)
    : QWidget(parent)
    , m_calendar(new QCalendarWidget(this))
    , m_set(new QPushButton(tr("Set"), this))
{
    setAutoFillBackground(true);
    m_calendar->setObjectName(QStringLiteral("calendar"));
    m_calendar->setAccessibleName(tr("Date"));
    m_calendar->setNavigationBarVisible(true);
    m_calendar->setGridVisible(false);
    // Compact, so that six weeks fit above the button.
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_calendar->setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
    QFont font = m_calendar->font();
    constexpr int pixelSize = 11;
    font.setPixelSize(pixelSize);
    m_calendar->setFont(font);
    if (auto *days = m_calendar->findChild<QTableView *>())
        days->setMinimumSize(0, 0);
    for (QToolButton *button : m_calendar->findChildren<QToolButton *>()) {
        constexpr int iconSize = 12;
        button->setIconSize(QSize(iconSize, iconSize));
    }
    m_set->setObjectName(QStringLiteral("set"));
    m_set->setFont(font);
    m_set->setFocusPolicy(Qt::NoFocus);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(1);
    layout->addWidget(m_calendar, 1);
    layout->addWidget(m_set);
    setFocusProxy(m_calendar);

    connect(m_set, &QPushButton::clicked, this, &myCalendarWidget::clickedExit);
    const auto choose = [this] {
        m_chosen = true;
        emit chosen();
    };
    connect(m_calendar, &QCalendarWidget::selectionChanged, this, choose);
    connect(m_calendar, &QCalendarWidget::clicked, this, choose);
}

void myCalendarWidget::setSelectedDate(const QDate &date)
{
    const QSignalBlocker quiet(m_calendar);
    m_calendar->setSelectedDate(date);
    m_chosen = false;
}

void myCalendarWidget::setRange(const QDate &first, const QDate &last)
{
    const QSignalBlocker quiet(m_calendar);
    m_calendar->setDateRange(first, last);
}

void myCalendarWidget::clickedExit(bool)
{
    m_chosen = true;
    QCoreApplication::postEvent(m_calendar,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier));
}
