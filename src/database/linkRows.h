// The links of a database as rows: the material, its link, what came of it and when, the new
// address, the copy. A row that has a new address can be marked.
#pragma once

#include "database/linkExamination.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

class linkRows : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum columns
    {
        ktmColumn, // with the mark
        nameColumn,
        linkColumn,
        stateColumn,
        dateColumn,
        addressColumn,
        copyColumn,
        allColumns
    };
    static constexpr int sortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    // Shows these links. Marks that the user set or took away stay so.
    void show(std::vector<linkExamination::materialLink> links);
    const std::vector<linkExamination::materialLink> &links() const { return m_links; }

    // What is known of them; changes are seen after refresh().
    linkExamination::results known;
    QSet<QString> copies;                 // the names of all
    QHash<QString, linkReply> notFetched; // by link
    void refresh();

    const linkExamination::result *resultOf(int row) const;
    QString linkOf(int row) const { return m_links[size_t(row)].link; }
    QString copyOf(int row) const;
    // Whether the row tells of something that a user may want to see to.
    bool isFinding(int row) const;
    bool canBeMarked(int row) const;
    bool isMarked(int row) const;
    void mark(const std::vector<int> &rows, bool on);
    std::vector<linkExamination::replacement> marked() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString textOf(int row, int column) const;

    bool isDoubtful(int row) const;

    std::vector<linkExamination::materialLink> m_links;
    QHash<QPair<QString, QString>, bool> m_choices; // by KTM and link
    // By link, until something changes: many materials share one.
    mutable QHash<QString, QString> m_copyPaths;
    mutable QHash<QString, bool> m_doubts;
};

// Which of them are seen.
class linkFilter : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    explicit linkFilter(linkRows *rows, QObject *parent);

    void set(const QString &part, bool onlyFindings);
    // After the rows were refreshed.
    void follow();

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    bool matches(int row, std::initializer_list<int> columns) const;

    linkRows *m_rows;
    QString m_part;
    bool m_onlyFindings = false;
    mutable QHash<QString, bool> m_matching; // by link, for the part
};
