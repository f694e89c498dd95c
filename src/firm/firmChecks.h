// What can be checked of the firms in the register.
#pragma once

#include <QString>

#include <vector>

class firmStruct;
class kiv_mat_firmStruct;

enum class taxNumberState
{
    none,    // empty
    good,    // a Polish number (NIP) whose check digit is right
    foreign, // begins with another country's two letters: not checked
    wrong
};

// Checks a tax number: ten digits, with or without "PL" before them; hyphens and blanks do not
// count. A wrong one is worth a warning, never a refusal.
taxNumberState checkTaxNumber(const QString &number);

// The warning for a number as plain text; empty when there is nothing to warn of.
QString taxNumberWarning(const QString &number);

// The firms with a wrong tax number, manufacturers first. A firm in both lists stands twice.
std::vector<const firmStruct *> firmsWithWrongTaxNumber(const kiv_mat_firmStruct &firms);
