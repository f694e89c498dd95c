// A table to be read: filtered, sorted and copied, with a sentence over it.
#pragma once

#include <QDialog>
#include <QList>

struct readTable
{
    QString title;
    QString summary; // plain text
    QStringList captions;
    QList<QStringList> rows; // a text for each caption
    QList<int> widths;       // of the columns, pixels; the last ones may be missing
};

class tableDialog : public QDialog
{
    Q_OBJECT
public:
    // Deletes itself when it is closed.
    tableDialog(readTable table, QWidget *parent);
};
