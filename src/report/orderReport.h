// The page of an order: what the main window previews, saves beside the order, and prints.
#pragma once

#include <QString>

class kiv_mat_zpStruct;
class ktmIndex;

// The order as a complete HTML page that loads nothing: a header with number, date, target and
// persons, one row a line, the sums and the attentions. Manufacturers and suppliers come from the
// materials of the index; a line that it does not hold is shown without. Every text of the order is
// escaped; with a rate of VAT, in percent, the tax on the sum and both together follow it. The
// attentions, which are HTML, are reduced to plain markup.
QString orderReport(const kiv_mat_zpStruct &order, const ktmIndex &materials,
                    const QString &vat = {});

// "number / date" of the order, the text at the foot of every printed page.
QString orderTitle(const kiv_mat_zpStruct &order);
