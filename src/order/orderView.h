// The page on which an order is edited: its options, its lines and its attentions. Every change of
// options and lines is a step of one undo history; the attentions have the editor's own.
#pragma once

#include "commands/commandStack.h"
#include "order/orderTree.h"

#include <QWidget>

class QLabel;
class myTextEdit;
class myTreeView;
class programData;

class orderView : public QWidget
{
    Q_OBJECT
public:
    // The history outlives the page.
    orderView(programData &known, commandStack &stack, QWidget *parent);

    // What other orders have of a KTM; to be given before an order is shown.
    void setOrderedLookup(orderTree::orderedOfKtm lookup) { m_ordered = std::move(lookup); }

    // Shows an order, which outlives its use here, from its beginning: the history is empty.
    void show(kiv_mat_zpStruct &order);

    myModel *lines() { return m_lines; }
    myModel *options() { return m_options; }
    myTreeView *linesView() { return m_linesView; }
    myTreeView *optionsView() { return m_optionsView; }
    myTextEdit *attentions() { return m_attentions; }
    const listRows<orderItemStruct> &lineRows() const { return *m_lineRows; }

    // The lines with a selected cell, from the top down; all lines when none has one.
    std::vector<int> selectedRows() const;
    std::vector<int> allRows() const;
    // The cells of a column in some rows.
    QList<myItem::myItemStandard *> cells(const std::vector<int> &rows, int column) const;
    std::vector<const orderItemStruct *> records(const std::vector<int> &rows) const;

    // Takes the attentions to the order where they were changed.
    void takeAttentions();
    // What the formatted text's dialog gives back, as one step of the editor's history.
    void replaceAttentions(const QString &html);

    // Makes the order like another one, which is used up: options and lines as one step, applied
    // already; the attentions as one of the editor's history.
    std::unique_ptr<command> become(kiv_mat_zpStruct &wanted);

    // Numbers the lines from 1, in the tree and in their records.
    void renumber();
    // Takes fonts and thresholds from the configuration again.
    void refreshSettings();
    // Brings pictures that depend on the databases up to date.
    void refreshLooks();

signals:
    // Something in the order changed.
    void changed();
    // A link of the text that stands in place of lines: the name of an action.
    void actionWanted(const QString &name);

private:
    void buildOptions();
    void buildLines();
    void showHint();

    programData &m_known;
    commandStack &m_stack;
    myModel *m_options;
    myModel *m_lines;
    myTreeView *m_optionsView;
    myTreeView *m_linesView;
    myTextEdit *m_attentions;
    QLabel *m_hint;
    orderTree::optionRows m_optionRows;
    std::unique_ptr<listRows<orderItemStruct>> m_lineRows;
    orderTree::orderedOfKtm m_ordered;
    kiv_mat_zpStruct *m_order = nullptr;
    bool m_loading = false;
    bool m_attentionsTouched = false;
};
