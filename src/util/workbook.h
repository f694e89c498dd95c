// An Excel workbook as it is written, sheet after sheet. The only place that knows the library.
#pragma once

#include "util/progress.h"

#include <QString>

#include <memory>

class QTemporaryDir;

struct lxw_workbook;
struct lxw_worksheet;

class workbook
{
public:
    // Excel's own bounds, in UTF-16 units.
    static constexpr int maximumName = 31;
    static constexpr int maximumText = 32767;

    workbook();
    ~workbook();
    workbook(const workbook &) = delete;
    workbook &operator=(const workbook &) = delete;

    // A new sheet at the end; what is written next goes there. The name is one that Excel accepts
    // (exportNames::sheetNames()); false, with error() set, when it is not.
    bool addSheet(const QString &name);

    // Writes a text cell; rows and columns count from 1. A number stays the text it is. Nothing is
    // written for an empty text. A text beyond maximumText is cut. False, with error() set, when
    // the sheet has no such row.
    bool write(int row, int column, const QString &content);
    // The same with a number.
    bool write(int row, int column, double number);

    // Makes a column as wide as so many characters of the usual font.
    void setWidth(int column, int characters);

    // Writes the file in one piece in the place of an older one, which stays as it was when that
    // fails: then false, with error() set. progress is asked while the library packs, which says
    // nothing of how far it is (a total of 0), and may cancel: then false, with isCancelled(). The
    // workbook is finished after that.
    bool saveAs(const QString &path, const progressFunction &progress = {});
    bool isCancelled() const { return m_cancelled; }

    // Why the last operation failed, as plain text.
    QString error() const { return m_error; }

private:
    bool good(int libraryError);
    bool pack(const progressFunction &progress);
    bool copyTo(const QString &path, const progressFunction &progress);
    QString packed() const;

    std::shared_ptr<QTemporaryDir> m_scratch; // packing that was given up goes on in it
    lxw_workbook *m_book = nullptr;
    lxw_worksheet *m_sheet = nullptr;
    QString m_error;
    bool m_cancelled = false;
};
