// How much more than what boards need is ordered: what gets lost while they are built, and whole
// packages. Both are options of the configuration.
#pragma once

#include "util/decimal.h"

#include <QStringList>

#include <vector>

class configStruct;
class materialStruct;

class orderRules
{
public:
    orderRules() = default; // nothing more
    explicit orderRules(const configStruct &config);

    // Of BOM_ATTRITION, "0402: 5% 10; 0603: 3%; *: 2": for materials of that case so much of the
    // need, and at least so many; "*" is every other case. A case matches letter case and blanks
    // aside. Of BOM_MULTIPLE, "reel: 5; tray: 12": materials of that unit, as files or the user's
    // language have it, are ordered in multiples of so many. Returns what is not understood, each
    // part as it stands; it is left out.
    QStringList readAttrition(const QString &text);
    QStringList readMultiples(const QString &text);

    // What is ordered beyond a need; whole pieces of counted units.
    decimal extra(const materialStruct &material, const decimal &needed) const;
    // An amount raised to the next multiple of the material's unit.
    decimal raised(const materialStruct &material, const decimal &amount) const;

private:
    struct attrition
    {
        QString casing; // folded; "*": any
        decimal share;
        decimal least;
    };
    struct multiple
    {
        QString unit; // as files have it
        long long of;
    };
    std::vector<attrition> m_attrition;
    std::vector<multiple> m_multiples;
};
