// What boards take of the stock, before it is reserved or taken out.
#pragma once

#include "bom/boardStock.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;
class QTreeWidget;

class boardStockDialog : public QDialog
{
    Q_OBJECT
public:
    enum purpose
    {
        reserving,
        takingOut
    };
    // Demand and materials outlive it. boards: what is built, for the user.
    boardStockDialog(purpose wanted, const bomOperations::demand &of, const ktmIndex &materials,
                     const QString &boards, QWidget *parent);

    // Whether what gets lost counts too.
    bool withExtra() const;
    const std::vector<boardStock::taking> &takings() const { return m_takings; }

private:
    void showRows();
    void copy();

    purpose m_wanted;
    const bomOperations::demand &m_of;
    const ktmIndex &m_materials;
    QString m_boards;
    std::vector<boardStock::taking> m_takings;
    QCheckBox *m_extra;
    QTreeWidget *m_table;
    QLabel *m_sum;
    QPushButton *m_go;
};
