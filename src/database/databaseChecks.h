// What is wrong, missing or worth knowing in a material database. Nothing is changed.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class kiv_mat_databaseStruct;
class materialStruct;

// Materials that share what should be one material's own.
struct duplicateSet
{
    QString key;                                   // the KTM, or "manufacturer part number"
    std::vector<const materialStruct *> materials; // two or more, in file order
};

// Each KTM that several materials have; materials without one are left out. In file order.
std::vector<duplicateSet> duplicateKtms(const kiv_mat_databaseStruct &database);

// Each part number that several materials have from the same manufacturer. Letter case and blanks
// around do not count; entries without a part number are left out.
std::vector<duplicateSet> duplicatePartNumbers(const kiv_mat_databaseStruct &database);

// What tells a material of a set from the others: its name, behind its KTM where that is not the
// key.
QString duplicateName(const duplicateSet &set, const materialStruct &material);

// An HTML line for each: the key in bold and those names in brackets.
QStringList duplicateLines(const std::vector<duplicateSet> &duplicates);

// What the user is told when no KTM stands twice.
QString allKtmsAreUnique();

// A material that lacks something.
struct incompleteMaterial
{
    const materialStruct *material;
    QStringList missing; // captions of the empty fields
};

// The materials without KTM, CPV, name, description, price, unit or status, or with neither a
// manufacturer nor a supplier. A field of blanks is empty. In file order.
std::vector<incompleteMaterial> incompleteMaterials(const kiv_mat_databaseStruct &database);

// Numbers of materials and groups, and of materials with a status, as one HTML text.
QString informationText(const kiv_mat_databaseStruct &database);
