// Asks for a material and the one that takes its place, and shows beforehand what that changes: the
// documents with their lines, of which the ticked ones are changed.
#pragma once

#include "bom/materialReplacement.h"

#include <QDialog>
#include <QSet>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class programData;

class replaceMaterialDialog : public QDialog
{
    Q_OBJECT
public:
    // The documents outlive it.
    replaceMaterialDialog(programData &known,
                          const std::vector<materialReplacement::document> &documents,
                          QWidget *parent);

    // What stands in the fields, as KTMs.
    void setMaterials(const QString &before, const QString &after);
    QString before() const;
    QString after() const;
    // Paths of documents that are left out.
    void setLeftOut(const QSet<QString> &paths);
    const QSet<QString> &leftOut() const { return m_leftOut; }

    materialReplacement::replacement wanted() const { return m_what; }
    // The numbers of the documents that are ticked and have something to change.
    std::vector<int> chosen() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // A field for a KTM, with its search and what the databases know of it.
    struct materialField
    {
        QLineEdit *ktm = nullptr;
        QPushButton *search = nullptr;
        QLabel *known = nullptr;
    };
    materialField addField(QGridLayout *to, const QString &caption, const char *name,
                           const QString &search);
    void searchFor(const materialField &field);
    void takeReturn(const materialField &field);
    bool isUsed(const QString &ktm) const;
    void showKnown(const materialField &field, const materialStruct *material) const;
    void showChanges();
    QTreeWidgetItem *rowOf(int document, const materialReplacement::change &of) const;
    void showState();
    void tick(bool all);

    programData &m_known;
    const std::vector<materialReplacement::document> &m_documents;
    materialReplacement::replacement m_what;
    QString m_fault; // why nothing can be replaced
    QSet<QString> m_leftOut;
    QTreeWidget *m_table;
    QLabel *m_summary;
    QPushButton *m_go;
    materialField m_before;
    materialField m_after;
};
