// What the firm register means to the materials, which name their manufacturers and suppliers by
// the firms' short names.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <array>
#include <vector>

class kiv_mat_databaseStruct;
class materialStruct;

namespace firmOperations {

enum firmKind
{
    manufacturer,
    supplier,
    firmKindCount
};

// New names by old ones, given at once, so that two firms can change their names with each other.
using renameStep = std::array<QHash<QString, QString>, firmKindCount>;
// Steps given one after the other.
using renameList = std::vector<renameStep>;

// What a name becomes; names are compared exactly.
QString nameAfter(const renameList &renames, firmKind kind, const QString &name);

struct firmUse
{
    QString firm;
    const materialStruct *material;
    const kiv_mat_databaseStruct *database;
};

// The materials that name one of the firms, or will once the renames are done, in file order. A
// material that names two of them stands twice. Empty names are no firms.
std::vector<firmUse> usesOf(const QSet<QString> &firms, firmKind kind,
                            const std::vector<const kiv_mat_databaseStruct *> &databases,
                            const renameList &renames = {});

// An HTML line for each: firm, KTM, name and file.
QStringList useLines(const std::vector<firmUse> &uses);

// One manufacturer's or supplier's name in a material, and the one that it gets.
struct nameChange
{
    materialStruct *material;
    QString *name;
    QString before;
    QString after;
};
// What renames do to a database, in file order; nothing is changed yet.
std::vector<nameChange> changesOf(kiv_mat_databaseStruct &database, const renameList &renames);
void applyNames(const std::vector<nameChange> &changes);
void revertNames(const std::vector<nameChange> &changes);

// The address of a home page as typed, with or without "http://"; invalid when the text is none.
QUrl homePage(const QString &text);

} // namespace firmOperations
