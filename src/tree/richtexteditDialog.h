// The editor of formatted texts: remarks on an order, comments, templates of messages.
#pragma once

#include <QDialog>

class QAction;
class QTextEdit;
class QToolBar;

class richtexteditDialog : public QDialog
{
    Q_OBJECT
public:
    explicit richtexteditDialog(QWidget *parent = nullptr);

    // HTML goes in and comes out as plain markup: bold, italic, underlined, colour, lists,
    // alignment, links; nothing else is kept. A text that was not changed comes out as it went in.
    void setHtml(const QString &html);
    QString html() const;

private:
    void buildToolBar(QToolBar *bar);
    void chooseColour();
    void editLink();
    void makeList(int style);
    void showFormat();

    QTextEdit *m_edit;
    QString m_given;
    QAction *m_bold = nullptr;
    QAction *m_italic = nullptr;
    QAction *m_underline = nullptr;
};
