#include "database/templateLine.h"

#include "database/bulkEdit.h"
#include "window/completionList.h"

#include <QKeyEvent>

#include <algorithm>

templateLine::templateLine(QWidget *parent, QWidget *keys)
    : QLineEdit(parent)
    , m_list(new completionList(this))
{
    connect(m_list, &completionList::picked, this, &templateLine::take);
    connect(this, &QLineEdit::textEdited, this, &templateLine::offer);
    (keys ? keys : this)->installEventFilter(this);
}

int templateLine::nameBegin() const
{
    const QString before = text().left(cursorPosition());
    const int open = before.lastIndexOf(QLatin1Char('{'));
    return open < 0 || before.indexOf(QLatin1Char('}'), open) >= 0 ? -1 : open + 1;
}

void templateLine::offer()
{
    const int begin = nameBegin();
    m_names.clear();
    std::vector<searchSuggestion> offered;
    if (begin >= 0) {
        const QString typed = text().mid(begin, cursorPosition() - begin);
        for (const QString &name : bulkEdit::textTemplate::names())
            if (name.startsWith(typed, Qt::CaseInsensitive)) {
                m_names.append(name);
                offered.push_back({name, name, {}});
            }
    }
    m_list->offer(offered, cursorRect().left());
}

void templateLine::take(int number)
{
    const int begin = nameBegin();
    m_list->hide();
    if (begin < 0 || number >= m_names.size())
        return;
    setSelection(begin, cursorPosition() - begin);
    const bool isClosed = text().midRef(selectionEnd()).startsWith(QLatin1Char('}'));
    insert(isClosed ? m_names.at(number) : m_names.at(number) + QLatin1Char('}'));
    if (isClosed)
        cursorForward(false);
}

bool templateLine::isOffering() const { return m_list->isVisible(); }

bool templateLine::takesKey(int key)
{
    switch (key) {
    case Qt::Key_Down:
        m_list->move(1);
        return true;
    case Qt::Key_Up:
        m_list->move(-1);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        take(std::max(0, m_list->chosen()));
        return true;
    case Qt::Key_Escape:
        m_list->hide();
        return true;
    default:
        return false;
    }
}

bool templateLine::eventFilter(QObject *watched, QEvent *event)
{
    if (m_list->isVisible()) {
        if (event->type() == QEvent::KeyPress)
            return takesKey(static_cast<QKeyEvent *>(event)->key());
        if (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide)
            m_list->hide();
    }
    return QLineEdit::eventFilter(watched, event);
}
