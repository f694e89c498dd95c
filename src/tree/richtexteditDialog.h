// The editor of formatted texts: remarks on an order, comments, templates of messages.
#pragma once

#include <QDialog>
#include <QTextCursor>

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

    // Asks about changes, which Escape must not lose.
    void reject() override;

private:
    void buildToolBar(QToolBar *bar);
    void chooseColour();
    void editLink();
    QTextCursor linkAtCursor() const;
    void makeList(int style);
    void showFormat();

    QTextEdit *m_edit;
    QString m_given;
    QAction *m_bold = nullptr;
    QAction *m_italic = nullptr;
    QAction *m_underline = nullptr;
};
