#include "database/workbook.h"

#include "util/messages.h"
#include "util/safeFile.h"
#include "util/scratch.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFile>

#include <xlsxwriter.h>

workbook::workbook()
    : m_scratch(scratch::pattern())
    , m_book(workbook_new(QFile::encodeName(m_scratch.filePath(QStringLiteral("book.xlsx")))))
{
}

workbook::~workbook()
{
    if (m_book)
        lxw_workbook_free(m_book);
}

bool workbook::good(int libraryError)
{
    if (libraryError == LXW_NO_ERROR)
        return true;
    m_error = QString::fromUtf8(lxw_strerror(lxw_error(libraryError)));
    return false;
}

bool workbook::addSheet(const QString &name)
{
    const QByteArray text = name.toUtf8();
    if (!m_book || !good(workbook_validate_sheet_name(m_book, text)))
        return false;
    m_sheet = workbook_add_worksheet(m_book, text);
    return m_sheet || good(LXW_ERROR_MEMORY_MALLOC_FAILED);
}

bool workbook::write(int row, int column, const QString &content)
{
    if (content.isEmpty())
        return true;
    return good(worksheet_write_string(m_sheet, lxw_row_t(row - 1), lxw_col_t(column - 1),
                                       text::firstUnits(content, maximumText).toUtf8(), nullptr));
}

bool workbook::saveAs(const QString &path)
{
    if (!m_book)
        return false;
    const bool closed = good(workbook_close(m_book));
    m_book = nullptr; // closing frees it, also when it fails
    m_sheet = nullptr;
    if (!closed)
        return false;
    QFile made(m_scratch.filePath(QStringLiteral("book.xlsx")));
    safeFile file(path);
    bool copied = made.open(QIODevice::ReadOnly) && file.open(QIODevice::WriteOnly);
    while (copied && !made.atEnd()) {
        const QByteArray block = made.read(1 << 18);
        copied = !block.isEmpty() && file.write(block) == block.size();
    }
    if (copied && file.commit())
        return true;
    m_error = messages::because(
        QCoreApplication::translate("workbook", "the file cannot be written"), path);
    return false;
}
