// Two material databases compared, and what of the other one is taken over.
#pragma once

#include "util/progress.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class d_groupStruct;
class kiv_mat_bomStruct;
class kiv_mat_databaseStruct;
class kiv_mat_zpStruct;
class materialStruct;

// One field of the comparison: the text fields and the information block of a material, then its
// manufacturers and its suppliers, each as a whole with their files.
struct comparedField
{
    QString name; // as in files
    QString (*caption)();
    std::function<QString(const materialStruct &)>
        text; // one line a manufacturer, supplier or file
    std::function<bool(const materialStruct &, const materialStruct &)> equal;
    std::function<void(materialStruct &to, const materialStruct &from)> take;
};
const std::vector<comparedField> &comparedFields();

struct materialDifference
{
    enum differenceKind
    {
        added,    // only the other database has it
        changed,  // both have it, and fields differ or it stands in another group
        absent,   // the other database lacks it
        repeated, // one more of a KTM that both have
        groupCpv  // both have the group, and its CPV differs; there is no material
    };
    differenceKind kind;
    materialStruct *mine; // null when added
    d_groupStruct *myGroup;
    const materialStruct *other; // null when absent
    const d_groupStruct *otherGroup;
    std::vector<int> fields; // changed, repeated: places in comparedFields() that differ
    bool moved = false;      // changed: it stands in a group of another name
};

struct comparison
{
    // In the other's file order, behind them the absent ones and then the groups.
    std::vector<materialDifference> differences;
    bool cancelled = false; // by the progress function; then there are none
};

// Compares by KTM, texts exactly as they are; materials without a KTM by name. Of several materials
// with one KTM those that are equal belong together, first in groups of one name, then the others
// in file order; what is left of the other database's is repeated, and belongs to the first one.
// progress is told the other's materials.
comparison compareDatabases(kiv_mat_databaseStruct &mine, const kiv_mat_databaseStruct &other,
                            const progressFunction &progress = {});

// Stands behind the places in comparedFields(): the group that a material stands in.
int groupPlace();
// The place of a field by its name as in files; nothing when there is none.
std::optional<int> placeOf(const QString &fieldName);
// Leaves of what changed or is repeated only the places that are wanted; false when nothing of it
// is left. Whatever else differs is left as it is.
bool narrow(materialDifference &difference, const std::function<bool(int place)> &wanted);

// What the user is told when nothing is new or changed.
QString allMaterialsInDatabase();

// Where a plan is carried out: on the records alone, or in a window, which keeps its rows and its
// undo history in step with them.
class databaseTarget
{
public:
    databaseTarget() = default;
    databaseTarget(const databaseTarget &) = delete;
    databaseTarget &operator=(const databaseTarget &) = delete;
    virtual ~databaseTarget() = default;

    // Behind the last group. Returns it where it stays.
    virtual d_groupStruct *addGroup(std::unique_ptr<d_groupStruct> group) = 0;
    // Behind the last material of the group.
    virtual void add(d_groupStruct *group, std::unique_ptr<materialStruct> material) = 0;
    // Gives a material of the group the content of another one. Returns it where it is then.
    virtual materialStruct *replace(d_groupStruct *group, materialStruct *material,
                                    std::unique_ptr<materialStruct> content) = 0;
    virtual void setCpv(d_groupStruct *group, const QString &cpv) = 0;
    // Takes materials of the group away. Their records are not looked at any more.
    virtual void remove(d_groupStruct *group, const QSet<const materialStruct *> &materials) = 0;
};

enum class absentOnes
{
    keep,
    remove // the other database wins
};

// Takes over differences, of which a caller leaves out what shall not be. A new material goes to
// the group of its group's name, which is made with its CPV when it is missing, and so does one
// that moved; a changed one gets the listed fields only; the absent ones are removed last, if at
// all. A repeated one is added where the other database wins, else it is taken as a change.
// progress is told differences; false when it cancelled: what was done until then stays done.
bool carryOut(const std::vector<materialDifference> &plan, absentOnes absent,
              const kiv_mat_databaseStruct &mine, databaseTarget &target,
              const progressFunction &progress = {});
// On the records alone: indexes over mine are the caller's to keep in step, and the pointers to
// removed materials in the plan are dangling afterwards.
void carryOut(const std::vector<materialDifference> &plan, absentOnes absent,
              kiv_mat_databaseStruct *mine);

// HTML lines for the absent ones, below the caption "Materials deleted"; none when there are none.
QStringList deletedLines(const std::vector<materialDifference> &differences);

// The KTMs of the absent ones.
QSet<QString> deletedKtms(const std::vector<materialDifference> &differences);

// HTML lines for the lines of an order or a BOM list that name one of the KTMs: what a deletion
// would leave without a material.
QStringList usesOf(const QSet<QString> &ktms, const kiv_mat_zpStruct &order);
QStringList usesOf(const QSet<QString> &ktms, const kiv_mat_bomStruct &bom);
