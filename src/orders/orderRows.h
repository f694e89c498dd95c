// The tables of the register's window: all orders, and the lines that a search found.
#pragma once

#include "orders/orderRegister.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

class orderRows : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum column
    {
        number,
        date,
        state,
        target,
        author,
        lines,
        sum,
        file,
        columns
    };
    // What a column is sorted by.
    static constexpr int sortRole = Qt::UserRole;
    static int widthOf(int column);

    orderRows(orderRegister *orders, QObject *parent);

    // The register was read again.
    void showAgain();
    const orderIndex::order &at(int row) const { return m_orders->index().orders()[size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override { return columns; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    orderRegister *m_orders;
    std::vector<orderStage> m_stages; // of the rows
};

class foundLineRows : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum column
    {
        order,
        date,
        ktm,
        name,
        quantity,
        unit,
        price,
        target,
        delivery,
        invoice,
        columns
    };
    static int widthOf(int column);

    foundLineRows(const orderIndex *index, QObject *parent);

    void show(std::vector<orderIndex::place> places);
    const orderIndex::place &at(int row) const { return m_places[size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override { return columns; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const orderIndex *m_index;
    std::vector<orderIndex::place> m_places;
};
