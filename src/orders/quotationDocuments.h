// What a firm gets that is asked for a quotation: the table to fill in and the page to print, with
// its own request and nothing else, in its own language.
#pragma once

#include "util/decimal.h"

#include <QDate>
#include <QString>

#include <vector>

namespace quotationDocuments {

struct material
{
    QString key; // under which offers name it again
    QString name;
    QString partNumbers; // makers with theirs
    decimal quantity;
    QString unit;
    QDate wait; // by which it is needed; null when none is said
};
// All that a firm is told.
struct content
{
    QString number; // of the request
    QString customer;
    QString firm;
    QString language; // as quotationForm knows it
    QDate deadline;   // null: none
    std::vector<material> materials;
};

// "Request for quotation ZP/7/2026/Z1", which also stands at the foot of printed pages.
QString title(const content &of);

// The request as an HTML page that loads nothing, for printing.
QString page(const content &of);

// Writes the table as a workbook, with empty cells where the firm has to fill in. False, with the
// reason in fault and a file there as it was, when it cannot be written.
bool writeTable(const content &of, const QString &path, QString *fault);

// A plain text as the body of a message.
QString messagePage(const QString &subject, const QString &text);

} // namespace quotationDocuments
