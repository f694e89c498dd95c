// What a material must have before it goes to its database.
#pragma once

#include <QString>

#include <memory>
#include <optional>

class materialStruct;

namespace materialChecks {

// A material as the editor begins it: prices 0.00, counted in pieces, added today, status grey,
// neither checked nor approved.
std::unique_ptr<materialStruct> newMaterial();

struct fault
{
    QString text;  // in the user's language
    QString field; // the field at fault; "manufacturers" when a firm is missing
};

// The first of six checks that fails: KTM, CPV and name are there (blanks are nothing), there is a
// manufacturer or supplier with a name, the KTM and then the CPV is written as the schema asks.
// Nothing when all pass.
std::optional<fault> firstFault(const materialStruct &material);

// Takes away what was typed without a meaning: blanks around KTM, CPV and name, and rows of
// manufacturers, suppliers and files that hold no text.
void tidy(materialStruct *material);

} // namespace materialChecks
