// Asks which of several firms stays, and shows what making one of them changes.
#pragma once

#include "firm/firmMerge.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QLabel;
class QTreeWidget;

class mergeFirmsDialog : public QDialog
{
    Q_OBJECT
public:
    using planner = std::function<firmOperations::mergePlan(int stays)>;

    // names: the firms; usual: the one that stays unless another one is chosen. plan is asked for
    // every choice.
    mergeFirmsDialog(const QStringList &names, int usual, planner plan, QWidget *parent);

    // What was shown last.
    const firmOperations::mergePlan &plan() const { return m_plan; }

private:
    void show(int stays);

    planner m_planner;
    firmOperations::mergePlan m_plan;
    QComboBox *m_names;
    QLabel *m_summary;
    QTreeWidget *m_rows;
};
