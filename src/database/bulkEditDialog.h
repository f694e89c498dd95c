// Asks what is to be changed of many materials, and shows what would become of each.
#pragma once

#include "database/bulkEdit.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTreeView;
class bulkPreview;
class kiv_mat_firmStruct;
class searchableBox;
class templateLine;

class bulkEditDialog : public QDialog
{
    Q_OBJECT
public:
    // What the materials may be taken from; all but the lists outlives the dialog.
    struct source
    {
        std::vector<bulkEdit::place> selected;
        std::vector<bulkEdit::place> shown;
        bool isFiltered; // there are others than those shown
        const kiv_mat_databaseStruct &database;
        const ktmIndex &known;
        const kiv_mat_firmStruct &firms;
        const materialStruct *current; // whose texts are proposed; null for none
    };
    // fieldName: the one to begin with.
    bulkEditDialog(source from, const QString &fieldName, QWidget *parent);

    // Once it was accepted: the plan, and the numbers of its changes that are left marked.
    const bulkEdit::plan &plan() const;
    const std::vector<int> &chosen() const { return m_chosen; }

    void accept() override;
    void done(int result) override;

private:
    void buildWidgets(const QString &fieldName);
    QWidget *addMaterials();
    QWidget *addTemplates();
    void addRow(const QString &caption, QWidget *widget, const char *name,
                std::initializer_list<bulkEdit::request::requestKind> kinds);
    bulkEdit::request::requestKind kind() const;
    const bulkEdit::field *target() const;
    void kindChosen();
    void targetChosen();
    void showKept();
    void keepOrForget();
    bulkEdit::request wanted() const;
    QString firmFault(const bulkEdit::request &request) const;
    void previewSoon();
    void preview();
    void markFaults(const bulkEdit::faults &found);
    void showCounts(const QString &before = {});

    source m_from;
    std::vector<int> m_chosen;
    QTimer *m_delay;
    struct formRow
    {
        QLabel *caption;
        QWidget *widget;
        std::vector<bulkEdit::request::requestKind> kinds; // none: all
    };
    QGridLayout *m_form;
    std::vector<formRow> m_rows;
    QRadioButton *m_selected;
    QRadioButton *m_shown;
    QComboBox *m_kind;
    QComboBox *m_field;
    QComboBox *m_value;
    QLineEdit *m_searched;
    QLineEdit *m_with;
    QCheckBox *m_isPattern;
    QCheckBox *m_matchCase;
    QPlainTextEdit *m_lines;
    QComboBox *m_template;
    templateLine *m_templateLine; // of it
    QPushButton *m_keep;
    searchableBox *m_group;
    searchableBox *m_firm;
    templateLine *m_partNumber;
    QLabel *m_counts;
    bulkPreview *m_preview;
    QTreeView *m_view;
    QDialogButtonBox *m_buttons;
    QPushButton *m_change;
    QPushButton *m_all;
    QPushButton *m_none;
};
