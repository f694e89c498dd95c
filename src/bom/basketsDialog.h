// Baskets for the shops of suppliers: the suppliers on the left, what each of them gets on the
// right; copied, or written to files.
#pragma once

#include "bom/supplierBasket.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

class basketsDialog : public QDialog
{
    Q_OBJECT
public:
    // What the items look at, and the forms, outlive it. folder is proposed for files.
    basketsDialog(std::vector<supplierBasket::item> items, supplierBasket::formOf forms,
                  const QString &folder, QWidget *parent);

private:
    void makeTables();
    // Parts the items anew, and goes to a supplier's basket.
    void part(const QString &supplier);
    void showLines();
    const supplierBasket::basket *current() const;
    QString called(const supplierBasket::basket &of) const;
    void chooseSupplier();
    void copy();
    void saveOne();
    void saveAll();
    bool write(const supplierBasket::basket &of, const QString &path);
    void tell(const QString &text);

    std::vector<supplierBasket::item> m_items;
    supplierBasket::formOf m_forms;
    QString m_folder;
    supplierBasket::choices m_chosen;
    std::vector<supplierBasket::basket> m_baskets;
    QTreeWidget *m_suppliers;
    QTreeWidget *m_lines;
    QLabel *m_summary;
    QLabel *m_told; // what was done last
    QPushButton *m_other;
    QPushButton *m_copy;
    QPushButton *m_saveOne;
    QPushButton *m_saveAll;
};
