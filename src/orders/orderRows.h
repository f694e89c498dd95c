// The tables of the register's window: all orders, and the lines that a search found. They hold
// what they show: the register may be read again behind them.
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

    struct row
    {
        QString path;
        QString number;
        QDate date;
        orderStage stage;
        QString target;
        QString author;
        int lines;
        decimal sum;
        int leftOut;
    };

    // The register was read again.
    void showAgain();
    const row &at(int place) const { return m_rows[size_t(place)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override { return columns; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    orderRegister *m_orders;
    std::vector<row> m_rows;
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

    struct row
    {
        QString path; // of the order
        int line;     // from 0
        std::array<QString, columns> texts;
    };

    explicit foundLineRows(QObject *parent)
        : QAbstractTableModel(parent)
    {
    }

    void show(const orderIndex &index, const std::vector<orderIndex::place> &places);
    const row &at(int place) const { return m_rows[size_t(place)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override { return columns; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<row> m_rows;
};
