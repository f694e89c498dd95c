// One change of many materials at once: what it would make of each of them, and carrying that out.
#pragma once

#include "data/kiv_mat_databaseStruct.h"
#include "data/ktmIndex.h"
#include "util/progress.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

struct searchField;

namespace bulkEdit {

// A material with its group and database.
using place = ktmIndex::entry;

// A text of a material that can be given to many.
struct field
{
    enum fieldKind
    {
        text,
        ktm,
        cpv,
        price,
        stock, // in the material's unit
        unit,  // one of the stored units, or any other text
        word   // one of the words
    };
    QString name; // as in files: "d_value", "status"
    QString (*caption)();
    fieldKind kind;
    QString materialStruct::*own; // null: a text of the information block
    QString informationsStruct::*information;
    QStringList words; // as files hold them

    QString &of(materialStruct &material) const;
    const QString &of(const materialStruct &material) const;
};
const std::vector<field> &fields();
// By its name in files, or by one that a search knows it by; null when there is none.
const field *findField(const QString &name);

// Names of fields in braces: "{value} {case}", by the names that a search knows. "{{" and "}}" are
// braces.
class textTemplate
{
public:
    // fault gets what is wrong with it, for the user; empty when nothing is.
    textTemplate(const QString &typed, QString *fault);

    // The texts in their places, blanks between them reduced to one. Of a field with several texts
    // the first one that is not empty. Nothing when it names fields and all of them are empty.
    std::optional<QString> textFor(const place &at) const;

    // The names to offer, in the user's language.
    static QStringList names();

private:
    struct piece
    {
        QString text;
        const searchField *field; // null: the text itself
    };
    std::vector<piece> m_pieces;
};

struct request
{
    enum requestKind
    {
        set,        // target gets text
        replace,    // what is text in target becomes with
        paste,      // target gets the lines of text
        compose,    // target gets what the template in text gives
        toGroup,    // to the group named text
        addMaker,   // the manufacturer named text, with the part number that the template in with
        addSupplier // gives; the supplier likewise
    };
    requestKind kind = set;
    const field *target = nullptr; // of the first four
    QString text;
    // Of a pattern: $1 or \1 is what its first bracket found, $0 all of it, $$ a dollar sign.
    QString with;
    bool isPattern = false; // text is a regular expression
    bool matchCase = true;
};

// What is wrong with the texts of a request whatever the materials are, for the user.
struct faults
{
    QString text;
    QString with;
    bool none() const { return text.isEmpty() && with.isEmpty(); }
};
faults faultsOf(const request &wanted, const kiv_mat_databaseStruct &database);

struct row
{
    place at;
    // As they are stored. Of a firm, before are those that are there, and after is the part number.
    QString before;
    QString after;
    QString refusal; // why it cannot be made, for the user
};

struct plan
{
    request made; // of what
    std::vector<row> changes;
    std::vector<row> refused;
    int unchanged = 0; // materials that have it already
    QString note;      // for the user, beside the counts
    bool cancelled = false;
};

// What a request makes of materials, in their order; nothing is changed yet. Two ways of writing a
// number are no change when it is set or pasted. Pasted lines go to the materials one after the
// other; lines of a KTM, a tab and a text to the materials of those KTMs. A pattern that takes too
// long on a text is refused for that material, and as a whole when that happens often. known: where
// the KTMs in use are. progress is told materials. A request with faults makes nothing.
plan planOf(const request &wanted, const std::vector<place> &materials, const ktmIndex &known,
            const progressFunction &progress = {});

// Takes those rows out of changes that would give a KTM in use, as it stands when only the others
// are made; returned with their refusals.
std::vector<row> takenKtms(std::vector<row> &changes, const ktmIndex &known);

// A row's texts as the user sees them.
QString shownBefore(const request &wanted, const row &one);
QString shownAfter(const request &wanted, const row &one);

// Rows of a plan carried out on the records; all but moving, which is for whoever holds the groups.
class changes
{
public:
    // chosen: numbers of the plan's changes.
    changes(const plan &made, const std::vector<int> &chosen);

    // Called around each material's change.
    using told = std::function<void(const place &)>;
    // Makes them. False when progress cancelled, with those taken back that were made.
    bool apply(const told &before, const told &after, const progressFunction &progress = {});
    void revert(const told &before, const told &after, const progressFunction &progress = {});

    size_t size() const { return m_all.size(); }
    const place &at(size_t i) const { return m_all[i].at; }
    const field *target() const { return m_target; }

private:
    struct one
    {
        place at;
        QString text; // which the material does not have now
        // While it is not the material's.
        std::unique_ptr<manufacturerStruct> manufacturer;
        std::unique_ptr<supplierStruct> supplier;
    };
    void exchange(one &change, bool forth) const;

    const field *m_target;
    request::requestKind m_kind;
    std::vector<one> m_all;
};

} // namespace bulkEdit
