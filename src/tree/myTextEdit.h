// A text field that tells of clicks.
#pragma once

#include <QTextEdit>

class myTextEdit : public QTextEdit
{
    Q_OBJECT
public:
    using QTextEdit::QTextEdit;

signals:
    void clicked(QPoint MousePos, uint b);
    void doubleClicked(QPoint MousePos, uint b);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};
