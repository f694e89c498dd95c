#include "util/workbook.h"

#include "util/messages.h"
#include "util/safeFile.h"
#include "util/scratch.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <xlsxwriter.h>

#include <chrono>
#include <future>
#include <vector>

namespace {

constexpr std::chrono::milliseconds askEvery(20);

// The library cannot be interrupted: what was given up is packed to its end, in its own folder,
// which then goes. The program waits for it before it ends.
void leaveAlone(std::future<int> packing)
{
    static std::vector<std::future<int>> left;
    std::erase_if(left, [](const std::future<int> &one) {
        return one.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    });
    left.push_back(std::move(packing));
}

} // namespace

workbook::workbook()
    : m_scratch(std::make_shared<QTemporaryDir>(scratch::pattern()))
    , m_book(workbook_new(QFile::encodeName(packed())))
{
}

QString workbook::packed() const { return m_scratch->filePath(QStringLiteral("book.xlsx")); }

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

bool workbook::write(int row, int column, double number)
{
    return good(worksheet_write_number(m_sheet, lxw_row_t(row - 1), lxw_col_t(column - 1), number,
                                       nullptr));
}

void workbook::setWidth(int column, int characters)
{
    worksheet_set_column(m_sheet, lxw_col_t(column - 1), lxw_col_t(column - 1), characters,
                         nullptr);
}

bool workbook::pack(const progressFunction &progress)
{
    lxw_workbook *book = std::exchange(m_book, nullptr); // closing frees it, also when it fails
    m_sheet = nullptr;
    if (!progress)
        return good(workbook_close(book));
    std::future<int> packing = std::async(
        std::launch::async, [book, folder = m_scratch] { return int(workbook_close(book)); });
    while (packing.wait_for(askEvery) != std::future_status::ready)
        if (!progress(0, 0)) {
            leaveAlone(std::move(packing));
            m_cancelled = true;
            return false;
        }
    return good(packing.get());
}

bool workbook::copyTo(const QString &path, const progressFunction &progress)
{
    QFile made(packed());
    safeFile file(path);
    bool copied = made.open(QIODevice::ReadOnly) && file.open(QIODevice::WriteOnly);
    while (copied && !made.atEnd()) {
        const QByteArray block = made.read(1 << 18);
        copied = !block.isEmpty() && file.write(block) == block.size();
        m_cancelled = progress && !progress(0, 0);
        if (m_cancelled)
            return false;
    }
    return copied && file.commit();
}

bool workbook::saveAs(const QString &path, const progressFunction &progress)
{
    if (!m_book || !pack(progress))
        return false;
    if (copyTo(path, progress))
        return true;
    if (!m_cancelled)
        m_error = messages::because(
            QCoreApplication::translate("workbook", "the file cannot be written"), path);
    return false;
}
