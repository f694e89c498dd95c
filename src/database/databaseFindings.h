// What is wrong with the materials of a database, a finding a fault and cell: for the table of
// checks, its files and other programs. Nothing is changed, and no network is asked.
#pragma once

#include "database/exportResult.h"
#include "util/progress.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class d_groupStruct;
class kiv_mat_databaseStruct;
class kiv_mat_firmStruct;
class materialStruct;
class xmlData;

enum class findingKind
{
    duplicate, // a KTM, or a manufacturer's part number, that several materials have
    empty,     // what every material is to have
    ktm,       // not of the form that the schema asks
    cpv,       // the same; also that of a group
    link,      // no address, or one that did not answer when it was asked
    file,      // a file that is not there
    firm,      // not in the register
    status     // not valid for ordering, of a material that BOM lists use
};
constexpr int findingKinds = 8;

struct finding
{
    findingKind kind = findingKind::empty;
    // Where it was found. The texts are copies, so that a finding can be shown when these are gone.
    const materialStruct *material = nullptr; // null: the group's own field
    const d_groupStruct *group = nullptr;
    QString ktm;
    QString name;
    QString groupName;
    QLatin1String field;          // the key of its column: "d_ktm", "status", "manufacturers"
    const char *reason = nullptr; // source text
    QString detail;               // what stands in it as %1
    int place = 0;                // of the record in the file

    // What it is of: found again when the same is checked anew.
    const xmlData *record() const;
    bool isSameFault(const finding &other) const;
};

namespace findingText {

// A kind as other programs know it ("duplicate"), and as the user does.
QString key(findingKind kind);
QString kind(findingKind kind);
// The kind that other programs call so.
std::optional<findingKind> kindOf(const QString &key);
QString field(const finding &of);
// The caption of a field that every material is to have.
QString emptyField(QLatin1String key);
QString reason(const finding &of);

// The captions of the columns of tables and files: kind, KTM, material, group, field, reason.
QStringList captions();
QStringList cells(const finding &of);

} // namespace findingText

// Writes findings in their order as a workbook, or as CSV when the path ends so: UTF-8 with its
// mark, parted by semicolons.
exportResult exportFindings(const std::vector<const finding *> &findings, const QString &path,
                            const progressFunction &progress = {});

// The fields that every material is to have and this one lacks, by the keys of their columns; a
// field of blanks is empty. "manufacturers" stands for neither a manufacturer nor a supplier.
std::vector<QLatin1String> emptyFieldsOf(const materialStruct &material);

// Checks a database, and then only what changes in it: it is told of every change, and keeps an
// index of what is to be one material's own.
class databaseFindings
{
public:
    // Where file names without a folder are looked for.
    explicit databaseFindings(QStringList folders = {});
    ~databaseFindings();

    // The register that manufacturers and suppliers are to stand in; one without firms, as none at
    // all, keeps them from being checked. What another one than before changes is a change.
    void setFirms(const kiv_mat_firmStruct &firms);
    bool checksFirms() const;
    // Links that did not answer, and what is told of them. Another answer than before is a change.
    void setDeadLinks(const QHash<QString, QString> &links);
    const QHash<QString, QString> &deadLinks() const { return m_deadLinks; }

    // The BOM lists that use materials, by KTM; their materials are to be such as may be ordered.
    // Other lists than before are a change.
    void setLists(const QHash<QString, QStringList> &lists);

    // All findings in file order; nothing when progress, which is told materials, cancelled: then
    // nothing is followed.
    std::optional<std::vector<finding>> check(const kiv_mat_databaseStruct &database,
                                              const progressFunction &progress = {});
    // Follows nothing any more.
    void clear();

    // Tell what becomes of the records: before a material's content changes, and before it leaves
    // the database; after a material or a group of materials came into it; after a group's own
    // texts changed. Materials that are not known are left alone.
    void willChange(const materialStruct *material);
    void willBeTaken(const materialStruct *material);
    void inserted(const materialStruct *material, const d_groupStruct *group);
    void inserted(const d_groupStruct *group);
    void changed(const d_groupStruct *group);
    void willBeTaken(const d_groupStruct *group);

    struct changes
    {
        QSet<const xmlData *> records; // materials and groups whose earlier findings count no more
        std::vector<finding> found;    // in their place, in file order
    };
    bool hasChanges() const;
    // What changed, at most so many records of it; the others wait for the next call.
    changes takeChanges(int most);

private:
    class lookUps;
    struct place
    {
        const d_groupStruct *group;
        int number;
    };
    using sameKey = QHash<QString, std::vector<const materialStruct *>>;

    void putIn(const materialStruct *material);
    void takeOut(const materialStruct *material);
    void touch(const std::vector<const materialStruct *> &materials);
    void touchAll(const std::function<bool(const materialStruct &)> &isConcerned);
    void find(const materialStruct *material, lookUps &known, std::vector<finding> &found) const;
    void find(const d_groupStruct *group, std::vector<finding> &found) const;
    QString othersOf(const std::vector<const materialStruct *> &all, const materialStruct *one,
                     bool withKtm) const;

    QStringList m_folders;
    QSet<QString> m_firms[2];            // manufacturers, suppliers
    QHash<QString, QString> m_likely[2]; // the same by how they are compared loosely
    QHash<QString, QString> m_deadLinks;
    QHash<QString, QStringList> m_lists;

    QHash<const materialStruct *, place> m_places;
    QHash<const d_groupStruct *, int> m_groups;
    int m_next = 0;
    sameKey m_sameKtm;
    sameKey m_samePart;

    QSet<const materialStruct *> m_out; // changing: not in the index until changes are taken
    QSet<const materialStruct *> m_touched;
    QSet<const d_groupStruct *> m_touchedGroups;
    QSet<const xmlData *> m_gone;
};
