#include "database/templateLine.h"

#include "database/bulkEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QScrollBar>

templateLine::templateLine(QWidget *parent)
    : QLineEdit(parent)
    , m_names(new QCompleter(bulkEdit::textTemplate::names(), this))
{
    m_names->setWidget(this);
    m_names->setCaseSensitivity(Qt::CaseInsensitive);
    m_names->popup()->setObjectName(QStringLiteral("fieldNames"));
    connect(m_names, qOverload<const QString &>(&QCompleter::activated), this, &templateLine::take);
    connect(this, &QLineEdit::textEdited, this, &templateLine::offer);
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
    QAbstractItemView *list = m_names->popup();
    if (begin < 0) {
        list->hide();
        return;
    }
    m_names->setCompletionPrefix(text().mid(begin, cursorPosition() - begin));
    if (m_names->completionCount() == 0) {
        list->hide();
        return;
    }
    list->setCurrentIndex(m_names->completionModel()->index(0, 0));
    QRect place = cursorRect();
    constexpr int sparePixels = 20;
    place.setWidth(list->sizeHintForColumn(0) + list->verticalScrollBar()->sizeHint().width()
                   + sparePixels);
    m_names->complete(place);
}

void templateLine::take(const QString &name)
{
    const int begin = nameBegin();
    if (begin < 0)
        return;
    setSelection(begin, cursorPosition() - begin);
    const bool isClosed = text().midRef(selectionEnd()).startsWith(QLatin1Char('}'));
    insert(isClosed ? name : name + QLatin1Char('}'));
    if (isClosed)
        cursorForward(false);
}
