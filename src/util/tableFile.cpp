#include "util/tableFile.h"

#include "util/decimal.h"
#include "util/safeFile.h"
#include "util/text.h"
#include "util/workbook.h"

namespace tableFile {

namespace {

bool writeCell(workbook &book, int row, int column, const QString &text, bool isNumber)
{
    bool good = false;
    const QString plain = QString(text).remove(QChar::Nbsp);
    const double number = isNumber && decimal::read(plain) ? plain.toDouble(&good) : 0;
    return good ? book.write(row, column, number) : book.write(row, column, text);
}

} // namespace

result write(const content &table, const QString &path, QString *fault,
             const progressFunction &progress)
{
    progressSteps steps(progress, table.rows + 1);
    bool stopped = false;
    // The captions, then each row; false when writing one fails or the user cancels.
    const auto writeAll = [&](const std::function<bool(int row, const QStringList &)> &put) {
        for (int row = -1; row < table.rows; ++row) {
            if (!put(row, row < 0 ? table.captions : table.cells(row)))
                return false;
            stopped = !steps.next();
            if (stopped)
                return false;
        }
        return true;
    };
    if (path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) {
        safeFile file(path);
        const bool good =
            file.open(QIODevice::WriteOnly) && file.write("\xef\xbb\xbf") >= 0
            && writeAll([&file](int, const QStringList &cells) {
                   return file.write((text::csvRow(cells) + QLatin1String("\r\n")).toUtf8()) >= 0;
               })
            && file.commit();
        *fault = good ? QString() : file.errorString();
        return good ? written : stopped ? cancelled : failed;
    }
    workbook book;
    const bool good = book.addSheet(table.sheet)
                      && writeAll([&](int row, const QStringList &cells) {
                             for (int column = 0; column < cells.size(); ++column)
                                 if (!writeCell(book, row + 2, column + 1, cells.at(column),
                                                row >= 0 && table.numbers.contains(column)))
                                     return false;
                             return true;
                         })
                      && book.saveAs(path, progress);
    *fault = good ? QString() : book.error();
    return good ? written : stopped || book.isCancelled() ? cancelled : failed;
}

} // namespace tableFile
