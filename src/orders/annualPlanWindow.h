// The annual plan of purchases: what the orders of a year come to, by code, target or supplier, as
// a table and as bars.
#pragma once

#include "orders/annualPlan.h"
#include "orders/orderRegister.h"
#include "window/baseWindow.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QTimer>

class barChart;
class programData;
class QComboBox;
class QLabel;
class QSpinBox;
class QTreeView;

// The rows of a plan.
class planRows : public QAbstractTableModel
{
    Q_OBJECT
public:
    // What a column is sorted by.
    static constexpr int sortRole = Qt::UserRole;
    static int widthOf(int column);

    void show(annualPlan::plan plan);
    const annualPlan::plan &shown() const { return m_plan; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    annualPlan::plan m_plan;
};

// Its lines without a code.
class withoutCodeRows : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum column
    {
        order,
        line,
        ktm,
        name,
        cpv,
        columns
    };
    static int widthOf(int column);

    void show(std::vector<annualPlan::lineWithoutCode> lines);
    const annualPlan::lineWithoutCode &at(int row) const { return m_lines[size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override { return columns; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<annualPlan::lineWithoutCode> m_lines;
};

class annualPlanWindow : public baseWindow
{
    Q_OBJECT
public:
    annualPlanWindow(programData &known, orderRegister &orders);

    // Comes to the front with the orders as their files are now.
    void showNow();

public slots:
    void commandSaveReport(bool);
    void commandOpen(bool);
    void commandCopy(bool);
    void commandReadAgain(bool);
    void commandClose(bool) { close(); }

signals:
    // An order is to be opened, at a line from 0 of a material; ktm is empty for the whole order.
    void openWanted(const QString &path, const QString &ktm, int line);

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildWidgets();
    QWidget *newChoices();
    QTreeView *newTable(const char *name, const QString &accessibleName, QAbstractItemModel *model);
    void readAgain();
    // What the choices ask for, and the choices as a plan has them.
    annualPlan::question asked() const;
    void choose(const annualPlan::question &what);
    void offerYears();
    void compute();
    void showPlan();
    void showChart();
    void updateActions();
    void tell(const QString &text);
    // The table that one is in.
    QTreeView *view() const;
    annualPlan::plan planAsSorted() const;

    programData &m_known;
    orderRegister &m_orders;
    planRows m_rows;
    QSortFilterProxyModel m_sorted;
    withoutCodeRows m_without;
    annualPlan::thresholds m_limits;
    QTimer m_again;
    QComboBox *m_year;
    QComboBox *m_grouping;
    QSpinBox *m_digits;
    QTreeView *m_table;
    barChart *m_chart;
    QLabel *m_thresholds;
    QLabel *m_sums;
    QLabel *m_heading; // of the lines without a code
    QTreeView *m_lines = nullptr;
    int m_shownRevision = -1;
    QString m_shownLimits;
    bool m_reading = false;
};
