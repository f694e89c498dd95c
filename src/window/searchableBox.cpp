#include "window/searchableBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>

searchableBox::searchableBox(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    completer()->setFilterMode(Qt::MatchContains);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    connect(lineEdit(), &QLineEdit::editingFinished, this, [this] { chooseOnly(); });
}

int searchableBox::matches() const
{
    int count = 0;
    for (int i = 0; i < this->count(); ++i)
        count += itemText(i).contains(currentText(), Qt::CaseInsensitive) ? 1 : 0;
    return count;
}

void searchableBox::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !chooseOnly())
        QComboBox::keyPressEvent(event);
}

bool searchableBox::chooseOnly()
{
    const QString typed = currentText();
    if (typed.trimmed().isEmpty() || matches() != 1)
        return false;
    const int only = findText(typed, Qt::MatchContains);
    if (itemText(only) == typed)
        return false;
    setCurrentIndex(only);
    completer()->popup()->hide();
    return true;
}
