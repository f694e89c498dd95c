// What another program changed in a file that is edited here, beside what was changed here: the
// user picks where both changed the same.
#pragma once

#include "data/documentMerge.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

class mergeDialog : public QDialog
{
    Q_OBJECT
public:
    // The rows outlive the dialog and get what is picked. mayTake: false shows only.
    mergeDialog(std::vector<mergeRow> &rows, bool mayTake, QWidget *parent);

private:
    void take(bool theirs);
    void showChoice(int row);
    void showCount();

    std::vector<mergeRow> &m_rows;
    QTreeWidget *m_view;
    QLabel *m_count;
    QPushButton *m_merge;
    bool m_mayTake;
};
