// Shows what an operation would change, before anything is written; the user takes lines out.
#pragma once

#include <QDialog>
#include <QStringList>

#include <vector>

class QTreeWidget;

class changesDialog : public QDialog
{
    Q_OBJECT
public:
    changesDialog(const QString &title, const QStringList &captions, const QList<QStringList> &rows,
                  QWidget *parent);

    // Rows are marked until this is called.
    void unmark(int row);
    // The numbers of the rows that are left marked.
    std::vector<int> chosen() const;

private:
    QTreeWidget *m_rows;
};
