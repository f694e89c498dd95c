// Offers all work that was left unsaved, in one list: to open it, to keep it, to delete what is not
// wanted.
#pragma once

#include <QDateTime>
#include <QDialog>

#include <functional>
#include <vector>

class QPushButton;
class QTreeWidget;

struct leftWork
{
    QString file; // as it is shown
    QDateTime time;
    QString content;
    bool isOrder; // of which one can be open at a time
    std::function<void()> remove;
};

class recoveryDialog : public QDialog
{
    Q_OBJECT
public:
    recoveryDialog(const std::vector<leftWork> &left, QWidget *parent);

    // What is to be opened, as places in the list; empty when it was closed otherwise. What was
    // deleted is gone by then.
    std::vector<size_t> chosen() const;
    // How many are still there.
    int remaining() const;

private:
    void deleteSelected();
    void follow();

    std::vector<leftWork> m_left;
    QTreeWidget *m_list;
    QPushButton *m_open;
    QPushButton *m_delete;
};
