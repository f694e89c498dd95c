// The editor of dates: a calendar with a button that takes the marked day.
#pragma once

#include <QCalendarWidget>
#include <QWidget>

class QPushButton;

class myCalendarWidget : public QWidget
{
    Q_OBJECT
public:
    explicit myCalendarWidget(QWidget *parent = nullptr);

    QDate selectedDate() const { return m_calendar->selectedDate(); }
    void setSelectedDate(const QDate &date);
    void setRange(const QDate &first, const QDate &last);

    // Whether the user took a day: only then does the calendar's date count, since a day out of its
    // range is shown as the nearest one.
    bool isChosen() const { return m_chosen; }

    QCalendarWidget *calendar() const { return m_calendar; }

signals:
    void chosen();

public slots:
    // Sends the calendar an Enter, on which the view takes the date.
    void clickedExit(bool);

private:
    QCalendarWidget *m_calendar;
    QPushButton *m_set;
    bool m_chosen = false;
};
