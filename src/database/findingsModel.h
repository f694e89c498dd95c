// The findings of a database as a table: sorted and filtered here, because tens of thousands of
// them are to answer each key, and kept in step with what is checked anew.
#pragma once

#include "database/databaseFindings.h"

#include <QAbstractTableModel>
#include <QCollator>

#include <array>
#include <memory>
#include <string>

class findingsModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum column
    {
        kindColumn,
        ktmColumn,
        materialColumn,
        groupColumn,
        fieldColumn,
        reasonColumn
    };

    explicit findingsModel(QObject *parent);
    ~findingsModel() override;

    // All findings in place of those before.
    void set(std::vector<finding> findings);
    // What was checked anew. A finding that is there still keeps its row.
    void apply(databaseFindings::changes changes);

    // Shows those of one kind, or of all, in which each word stands, whatever its letters' case.
    void filter(std::optional<findingKind> kind, const QString &words);

    int count() const { return int(m_all.size()); }
    int countOf(findingKind kind) const { return m_counts[size_t(kind)]; }
    const finding &at(int row) const;
    // Those that are shown, as they are.
    std::vector<const finding *> shown() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // A column; -1 is the order of the file.
    void sort(int by, Qt::SortOrder direction) override;

private:
    struct line;
    using lines = std::vector<std::unique_ptr<line>>;

    bool isShown(line &of) const;
    void fold(line &of) const;
    bool isBefore(const line &a, const line &b) const;
    static QString textOf(const finding &of, int in);
    void show();
    void order();
    void takeLine(const line *gone);
    void putLine(line *added);
    void count(findingKind kind, int more) { m_counts[size_t(kind)] += more; }

    lines m_all;
    std::vector<line *> m_shown;
    std::array<int, findingKinds> m_counts{};
    std::optional<findingKind> m_kind;
    std::vector<std::string> m_words;             // folded
    mutable QHash<QString, std::string> m_folded; // texts of many findings
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QCollator m_collator;
};
