// Finds the materials that the lines of a list of parts mean.
#pragma once

#include "bom/partsLines.h"
#include "data/ktmIndex.h"
#include "util/quantity.h"

#include <QHash>

// Why a material is thought to be meant, the surest first.
enum class matchReason : quint8
{
    decided, // the user said so before
    byKtm,
    byMakerAndNumber,
    byNumber,
    byNumberWithoutPackaging,
    bySupplierNumber,
    byValue,
    byWords, // never taken without a question
    chosen   // by the user now
};
// For the user, and for files.
QString reasonText(matchReason reason);
QString reasonName(matchReason reason);
// In percent, for the user to look at the doubtful ones first.
int confidenceOf(matchReason reason);

struct matchCandidate
{
    // Of the material, which itself may change or go while the user thinks.
    QString ktm;
    QString name;
    matchReason reason = matchReason::byWords;
    // What of the line it does not meet, or says nothing of: "tolerance 5 %, not 1 %".
    QStringList differences;
};

struct matchResult
{
    bool isMatched = false; // then there is one candidate
    std::vector<matchCandidate> candidates;
};

// What the user decided for a line's key(): the KTM of a material.
using matchDecisions = QHash<QString, QString>;

class partsMatcher
{
public:
    // Takes in every material that has a KTM, the first one of each; takes as long as looking at
    // each once. They have to stay as they are as long as it is used.
    explicit partsMatcher(const std::vector<ktmIndex::entry> &materials);

    // A line that is left out gets no result. Of several materials that are meant equally none is
    // taken; an own KTM, a decision, a part number, a supplier's number, or value and case with
    // every stated parameter lead to a match of one material.
    matchResult match(const partsLine &line, const matchDecisions &decisions = {}) const;

    bool has(const QString &ktm) const { return m_byKtm.contains(ktm); }

private:
    struct number
    {
        int material;
        QString firm; // folded name
    };
    // Parameters as numbers, of a material or of a line; "none" where nothing is said.
    struct parameters
    {
        std::optional<quantity> tolerance;
        std::optional<quantity> voltage;
        std::optional<quantity> power;
        std::optional<quantity> current;
        QString dielectric;
    };
    using numberIndex = QMultiHash<QString, number>;

    // What stands in the fields for it, also without a unit, and in further texts.
    static parameters parametersIn(const QString &tolerance, const QString &voltage,
                                   const QString &power, const QString &current,
                                   const QStringList &texts);
    // Whether the material is one of the kind that a value of its unit is of: a bead of 600 ohm is
    // no resistor.
    bool isOfKind(int place, quantity::unitKind unit) const;
    // Of the materials that one of the numbers, as it stands in one of the indexes, leads to.
    matchResult byNumbers(std::initializer_list<const numberIndex *> indexes,
                          const QStringList &numbers, const partsLine &line,
                          matchReason reason) const;
    matchResult byValue(const partsLine &line) const;
    static QStringList differences(const parameters &wanted, const parameters &has);
    matchResult one(int place, matchReason reason) const;
    matchCandidate candidate(int place, matchReason reason) const;

    std::vector<ktmIndex::entry> m_all;
    QHash<QString, int> m_byKtm;
    numberIndex m_byNumber;
    numberIndex m_byBase; // without packaging, of numbers that have one
    numberIndex m_bySupplier;
    QHash<QString, QVector<int>> m_byValue; // "unit number", whatever the materials are
};

// The number and kind of a value as lists write it, by the kind of its designators where it names
// no unit: "u1" of C7 is 100 nF. Nothing when that is not certain.
std::optional<quantity> valueOf(const partsLine &line);
