#include "tree/myCalendarWidget.h"

#include "util/labels.h"
#include "util/translation.h"
#include "util/typed.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

void myCalendarWidget::prepare(QCalendarWidget *calendar)
{
    // The names of days and months in the program's language, whatever the environment says.
    calendar->setLocale(QLocale(translation::current()));
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setGridVisible(false);
}

myCalendarWidget::myCalendarWidget(QWidget *parent)
    : QWidget(parent)
    , m_calendar(new QCalendarWidget(this))
    , m_line(new QLineEdit(this))
    , m_set(new QPushButton(tr("Set"), this))
{
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    prepare(m_calendar);
    m_calendar->setObjectName(QStringLiteral("calendar"));
    m_calendar->setAccessibleName(tr("Date"));
    m_calendar->setNavigationBarVisible(true);
    m_calendar->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    m_calendar->setDateEditEnabled(false);
    // Compact, so that names of days and six weeks fit above the button.
    QFont small = m_calendar->font();
    constexpr int pixelSize = 10;
    small.setPixelSize(pixelSize);
    m_calendar->setFont(small);
    // Seven names of days side by side.
    QTextCharFormat names;
    QFont narrow = small;
    narrow.setPixelSize(pixelSize - 1);
    narrow.setStretch(QFont::SemiCondensed);
    names.setFont(narrow);
    m_calendar->setHeaderTextFormat(names);
    m_calendar->setStyleSheet(QStringLiteral(
        "QToolButton { padding: 0px; margin: 0px; } QTableView { padding: 0px; margin: 0px; }"));
    if (auto *days = m_calendar->findChild<QTableView *>()) {
        days->setMinimumSize(0, 0);
        days->horizontalHeader()->setMinimumSectionSize(1);
        days->verticalHeader()->setMinimumSectionSize(1);
    }
    for (QToolButton *button : m_calendar->findChildren<QToolButton *>()) {
        constexpr int iconSize = 12;
        button->setIconSize(QSize(iconSize, iconSize));
    }
    // The keyboard stays with the editor itself, also after a click into the calendar.
    for (QWidget *part : findChildren<QWidget *>())
        part->setFocusPolicy(Qt::NoFocus);
    m_line->setObjectName(QStringLiteral("typedDate"));
    m_line->setAccessibleName(tr("Typed date"));
    m_line->setPlaceholderText(tr("24.12 or +14"));
    m_line->setFont(small);
    m_set->setObjectName(QStringLiteral("set"));
    m_set->setFont(small);

    auto *below = new QHBoxLayout;
    below->setSpacing(1);
    below->addWidget(m_line, 1);
    below->addWidget(m_set);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(1);
    layout->addWidget(m_calendar, 1);
    layout->addLayout(below);

    connect(m_set, &QPushButton::clicked, this, &myCalendarWidget::clickedExit);
    const auto choose = [this] {
        m_chosen = true;
        m_typed = false;
        m_line->setText(selectedDate().toString(labels::dateFormat()));
        emit chosen();
    };
    connect(m_calendar, &QCalendarWidget::selectionChanged, this, choose);
    connect(m_calendar, &QCalendarWidget::clicked, this, choose);
    // A double click.
    connect(m_calendar, &QCalendarWidget::activated, this, [this] { clickedExit(true); });
    connect(m_line, &QLineEdit::textEdited, this, &myCalendarWidget::showTyped);
}

void myCalendarWidget::setSelectedDate(const QDate &date)
{
    const QSignalBlocker quiet(m_calendar);
    m_calendar->setSelectedDate(date.isValid() ? date : QDate::currentDate());
    m_line->setText(date.toString(labels::dateFormat()));
    m_line->selectAll();
    m_loaded = selectedDate();
    m_chosen = false;
    m_typed = false;
}

void myCalendarWidget::hideButton() { m_set->hide(); }

void myCalendarWidget::setRange(const QDate &first, const QDate &last)
{
    const QSignalBlocker quiet(m_calendar);
    m_calendar->setDateRange(first, last);
}

QString myCalendarWidget::typedText() const { return m_typed ? m_line->text() : QString(); }

void myCalendarWidget::clickedExit(bool)
{
    m_chosen = true;
    QCoreApplication::postEvent(m_calendar,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier));
}

void myCalendarWidget::moveTo(const QDate &date)
{
    m_calendar->setSelectedDate(
        std::clamp(date, m_calendar->minimumDate(), m_calendar->maximumDate()));
    m_line->setText(selectedDate().toString(labels::dateFormat()));
    m_line->selectAll();
    m_chosen = true;
    m_typed = false;
}

// The day that the typed text means is marked, the one from before while it means none.
void myCalendarWidget::showTyped()
{
    m_typed = true;
    const QDate date = typed::readDay(m_line->text(), QDate::currentDate(),
                                      m_calendar->minimumDate(), m_calendar->maximumDate())
                           .date;
    const QSignalBlocker quiet(m_calendar);
    m_calendar->setSelectedDate(date.isValid() ? date : m_loaded);
}

void myCalendarWidget::keyPressEvent(QKeyEvent *event)
{
    const QDate day = selectedDate();
    constexpr int week = 7;
    switch (event->key()) {
    case Qt::Key_Left:
        moveTo(day.addDays(-1));
        break;
    case Qt::Key_Right:
        moveTo(day.addDays(1));
        break;
    case Qt::Key_Up:
        moveTo(day.addDays(-week));
        break;
    case Qt::Key_Down:
        moveTo(day.addDays(week));
        break;
    case Qt::Key_PageUp:
        moveTo(day.addMonths(-1));
        break;
    case Qt::Key_PageDown:
        moveTo(day.addMonths(1));
        break;
    case Qt::Key_Home:
        moveTo(QDate(day.year(), day.month(), 1));
        break;
    case Qt::Key_End:
        moveTo(QDate(day.year(), day.month(), day.daysInMonth()));
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        // Of the tree's delegate, or of a dialog.
        event->ignore();
        return;
    default:
        // Typing replaces the day that is shown.
        if (!m_typed)
            m_line->selectAll();
        static_cast<QObject *>(m_line)->event(event);
    }
    event->accept();
}
