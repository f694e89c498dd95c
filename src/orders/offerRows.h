// The tables of the offers window: materials down and firms across, and the firms with their terms
// and totals.
#pragma once

#include "orders/offerComparison.h"

#include <QAbstractTableModel>

// What each material costs at each firm, and from whom it is to be bought.
class offerRows : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum column
    {
        ktm,
        name,
        needed,
        unit,
        from, // the chosen firm
        firms // the first of them
    };
    static int widthOf(int section);

    void show(offerComparison::comparison compared, offerComparison::selection chosen);
    void choose(offerComparison::selection chosen);
    const offerComparison::comparison &compared() const { return m_of; }
    const offerComparison::selection &chosen() const { return m_chosen; }
    // The firm of a column; -1 when it is none's.
    int firmOf(int section) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString shown(int row, int section) const;
    QString toolTip(int row, int firm) const;

    offerComparison::comparison m_of;
    offerComparison::selection m_chosen;
};

// The terms of each firm's offer and what it comes to.
class offerFirmRows : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum column
    {
        name,
        received,
        currency,
        vat,
        leadTime,
        validity,
        offered,
        missing,
        cost,
        gross,
        remarks,
        columns
    };
    static int widthOf(int section);

    void show(std::vector<offerComparison::firm> firms);
    const offerComparison::firm &at(int row) const { return m_firms[size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override { return columns; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<offerComparison::firm> m_firms;
};
