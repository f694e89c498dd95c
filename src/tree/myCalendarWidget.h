// The editor of dates: a calendar worked by keys or mouse, a line that shows what is typed
// meanwhile, and a button that takes the marked day.
#pragma once

#include <QCalendarWidget>
#include <QWidget>

class QLineEdit;
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
    // What was typed instead; empty when the marked day counts.
    QString typedText() const;

    QCalendarWidget *calendar() const { return m_calendar; }
    QLineEdit *line() const { return m_line; }

    // For dialogs, which have a button of their own.
    void hideButton();
signals:
    void chosen();

public slots:
    // Sends the calendar an Enter, on which the view takes the date.
    void clickedExit(bool);

protected:
    // Arrows move the marked day, anything else is typed; no key goes on to the tree behind.
    void keyPressEvent(QKeyEvent *event) override;

private:
    static void prepare(QCalendarWidget *calendar);
    void moveTo(const QDate &date);
    void showTyped();

    QCalendarWidget *m_calendar;
    QLineEdit *m_line;
    QPushButton *m_set;
    QDate m_loaded;
    bool m_chosen = false;
    bool m_typed = false;
};
