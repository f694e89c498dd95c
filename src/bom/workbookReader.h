// Reads the values of an XLSX workbook: no formats, no formulas.
#pragma once

#include <QStringList>
#include <QVector>

#include <optional>

namespace workbookReader {

struct sheet
{
    QString name;
    QVector<QStringList> rows; // from the first row of the sheet on; empty cells are empty texts
};

// Whether the file is a ZIP archive that holds a workbook.
bool isWorkbook(const QString &path);

// All sheets, in the workbook's order; numbers as the file has them, dates as numbers. Nothing,
// with the reason in fault, when the file is none, is damaged, or is larger than a parts list can
// be.
std::optional<QVector<sheet>> read(const QString &path, QString *fault);

} // namespace workbookReader
