// How what two material databases differ in stands in a tree: a row for each material and group,
// and below it, made when it is opened, a row for each field. What is ticked is to be taken over.
#pragma once

#include "database/databaseMerge.h"
#include "tree/myModel.h"

#include <string>

class myTreeView;

class mergeTree : public QObject, public modelRecords
{
    Q_OBJECT
public:
    enum column
    {
        nameColumn,
        mineColumn,
        otherColumn
    };

    // Behind the model of a view.
    explicit mergeTree(myTreeView *view);

    // Shows what a comparison found but for what is absent. The other database lives until clear();
    // of the own one nothing is looked at later. What was ticked, left out, opened and current
    // stays so; else all is ticked that tells by itself what it belongs to.
    void show(const std::vector<materialDifference> &differences);
    void clear();

    // Hides rows that do not hold all words, in any case and without diacritics: a material's own
    // texts count for all of its rows.
    void setFilter(const QString &text);
    // Fields that are the same in both are rows, too, which are seen when this is set.
    void setEqualShown(bool shown);

    // Ticks or unticks all that is seen. One more of a KTM is not ticked with the others.
    void markShown(bool marked);
    // Ticks what the cells stand in, or unticks it when all of it is ticked.
    void toggle(const QModelIndexList &cells);

    // What a difference is found again by when its databases are compared again: a record of the
    // other one. Null for what is absent there.
    template <class Difference>
    static const void *recordOf(const Difference &of)
    {
        return of.kind == materialDifference::groupCpv ? static_cast<const void *>(of.otherGroup)
                                                       : of.other;
    }
    // By that, what is ticked: a bit for each place (see narrow()), any for what is taken whole.
    QHash<const void *, quint64> marked(bool shownOnly) const;

    struct counts
    {
        int all = 0;
        int shown = 0;
        int marked = 0;
        int markedHidden = 0; // with ticks on rows that the filter hides
    };
    counts count() const;
    // What there is to tell of the row that a cell stands in.
    QString describe(const QModelIndex &index) const;

    std::vector<myItem::row> childRows(myItem::myItemStandard *first) override;
    void cellChanged(myItem::myItemStandard *, myItem::myItemStandard *) override {}
    void rowInserted(QStandardItem *parent, int row, myItem::myItemStandard *first) override;
    void rowTaken(QStandardItem *parent, int row, myItem::myItemStandard *first) override;

signals:
    // Ticks, or what is seen.
    void changed();

private:
    struct entry
    {
        materialDifference::differenceKind kind;
        const materialStruct *other;
        const d_groupStruct *otherGroup;
        std::vector<std::pair<int, QString>> mine; // by place, of what differs
        quint64 differing = 0;                     // by place
        quint64 marked = 0;
        quint64 shown = 0; // of what differs
        bool leftOut = false;
        // Folded, once a filter wants them: of the material, and of each row that differs.
        std::string text = {};
        std::vector<std::pair<quint64, std::string>> rowTexts = {};
    };

    const entry *entryOf(const QModelIndex &index) const;
    myItem::row rowOf(const entry &of, int place) const;
    QString otherText(const entry &of, int place) const;
    QString mineText(const entry &of, int place) const;
    void fold(entry &of) const;
    bool holdsAll(const std::string &text, const std::string &more) const;
    void look(entry &of);
    void applyTo(int row);
    void applyToChild(const QModelIndex &parent, int row);
    void applyAll();
    void mark(entry &of, int row, quint64 marked);
    void itemChanged(QStandardItem *item);

    myTreeView *m_view;
    myModel *m_model;
    std::vector<entry> m_entries;
    std::vector<std::string> m_words;
    bool m_equalShown = false;
    bool m_writing = false; // what is written into the model comes from here
};
