// The file of what boards take of the stock, beside the set of BOM lists. Several windows, programs
// and kivzp-cli share it: it is read again whenever it changed, and each change is made to what it
// holds at that moment.
#pragma once

#include "data/documentSaving.h"
#include "data/kiv_mat_reservationsStruct.h"
#include "util/decimal.h"

#include <QHash>

#include <functional>

class reservationsFile
{
public:
    explicit reservationsFile(QString path = {})
        : m_path(std::move(path))
    {
    }
    // The path of the one that belongs to a set of BOM lists; empty without a set.
    static QString beside(const QString &setPath);

    const QString &path() const { return m_path; }

    // What the file holds now; nothing where there is no file, and where fault() says why it cannot
    // be read.
    const kiv_mat_reservationsStruct &now();
    const QString &fault() const { return m_fault; }

    // Makes a change and writes the file, whose earlier version is kept. False, with the file as it
    // was and the reason in fault, when it cannot be read or written. What edit refuses by false is
    // not written, and no fault.
    bool change(const std::function<bool(kiv_mat_reservationsStruct &)> &edit, configStruct &config,
                QString *fault);

private:
    QString m_path;
    fileState m_state;
    std::unique_ptr<kiv_mat_reservationsStruct> m_content =
        std::make_unique<kiv_mat_reservationsStruct>();
    QString m_fault;
    bool m_read = false;
};

// What is reserved of each KTM, by all boards.
QHash<QString, decimal> reservedTotals(const kiv_mat_reservationsStruct &of);

// What one board has reserved of a KTM.
struct reservedPart
{
    const boardStruct *board;
    decimal quantity;
};
std::vector<reservedPart> reservedParts(const kiv_mat_reservationsStruct &of, const QString &ktm);

// The file of a board's BOM list, as an absolute path; filePath is that of the reservations.
QString listOf(const boardStruct &board, const QString &filePath);
// A line "LED board, 20 sets" for the user.
QString captionOf(const boardStruct &board);
// A path to be compared with others: one file may be named by several.
QString comparableFile(const QString &path);

// Takes so many sets of a board's reservations away, the oldest first, and returns what was taken
// of each; quantities that were whole stay whole.
std::vector<std::unique_ptr<boardStruct>> releaseReserved(kiv_mat_reservationsStruct *reservations,
                                                          const QString &list, int sets);

// Notes a board as built, and releases so many sets of its reservations as it says.
void noteBuilt(kiv_mat_reservationsStruct *reservations, const boardStruct &board);
