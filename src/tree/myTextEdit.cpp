#include "tree/myTextEdit.h"

#include <QMouseEvent>

void myTextEdit::mousePressEvent(QMouseEvent *event)
{
    QTextEdit::mousePressEvent(event);
    emit clicked(event->pos(), uint(event->buttons()));
}

void myTextEdit::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTextEdit::mouseDoubleClickEvent(event);
    emit doubleClicked(event->pos(), uint(event->buttons()));
}
