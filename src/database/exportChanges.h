// What an export has changed against the one before it to the same file. For that, each export
// keeps what it wrote packed beside its file.
#pragma once

#include "util/progress.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class kiv_mat_databaseStruct;
class materialStruct;

struct exportChange
{
    enum changeKind
    {
        tableAdded,
        tableRemoved,
        tableRenamed,
        materialAdded,
        materialRemoved,
        materialChanged, // one field of it
        materialMoved,   // to another table
        changeKindCount
    };
    changeKind kind = tableAdded;
    QString table; // where it is now; removed: where it was
    QString ktm;
    QString name;
    QString field; // as captioned
    QString before;
    QString after;
};

struct exportChanges
{
    bool compared = false;          // false: no earlier export is known
    QString since;                  // when that was, "yyyy.MM.dd hh:mm:ss"
    std::vector<exportChange> rows; // tables first, then materials in the order of the file
};

// The captions and the cells of a change as a table shows it: what happened, table, KTM, name,
// field, before, after.
QStringList changeCaptions();
QStringList cellsOf(const exportChange &change);
// One line for a reader: sign (+ - ~ >), table, material, field, texts.
QString lineOf(const exportChange &change);
// How much of what has changed, and since when, in one sentence; that nothing is known or has
// changed, too.
QString summaryOf(const exportChanges &changes);

// What was exported last to a file.
class exportMemory
{
public:
    struct column
    {
        QString caption;
        QString materialStruct::*field;
    };

    // Reads what is known of the last export to the path; nothing when it cannot be read.
    explicit exportMemory(const QString &path);

    // Names of tables or sheets by their groups.
    QHash<QString, QString> tableNames() const;

    // Compares with what has just been exported and keeps that in place of the last one. tables:
    // one for each group. progress is only told. False when it could not be kept.
    bool follow(const kiv_mat_databaseStruct &database, const QStringList &tables,
                const std::vector<column> &columns, exportChanges &changes,
                const progressFunction &progress = {});

    // Where it is kept: the path with ".last.gz" behind it.
    static QString pathOf(const QString &path);

private:
    struct exportedTable
    {
        QString group;
        QString name;
    };
    struct exportedMaterial
    {
        QByteArray line; // its texts in the order of m_keys
        int table;
    };

    void take(const QByteArray &content);

    QString m_path;
    bool m_isKnown = false;
    QString m_since;
    QStringList m_keys; // of the fields kept, as files name them
    std::vector<exportedTable> m_tables;
    std::vector<exportedMaterial> m_materials;
};
