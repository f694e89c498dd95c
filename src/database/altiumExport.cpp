#include "database/altiumExport.h"

#include "data/kiv_mat_databaseStruct.h"
#include "database/exportNames.h"
#include "database/kicadLibrary.h"
#include "database/libraryDescription.h"
#include "util/files.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/safeFile.h"
#include "util/scratch.h"
#include "util/text.h"
#include "util/workbook.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QTemporaryDir>

namespace {

using material = materialStruct;

// A column of both exports. Without a field it shows the group's name when it has a caption; the
// one with neither stays empty.
struct exportColumn
{
    QString (*caption)();
    QString material::*field;
    kicadLibrary::columnUse use = kicadLibrary::parameter;
    const char *reserved = nullptr; // Altium's own name for it, when it has one
};

const std::vector<exportColumn> &exportColumns()
{
    static const std::vector<exportColumn> table{
        {labels::ktm, &material::d_ktm, kicadLibrary::key},
        {labels::group, nullptr},
        {labels::value, &material::d_value, kicadLibrary::value},
        {labels::power, &material::d_power, kicadLibrary::shown},
        {labels::voltage, &material::d_voltage, kicadLibrary::shown},
        {labels::current, &material::d_current, kicadLibrary::shown},
        {labels::tolerance, &material::d_tolerance, kicadLibrary::shown},
        {labels::otherParameters, &material::d_otherParameters},
        {labels::description, &material::d_description, kicadLibrary::description, "[Description]"},
        {labels::name, &material::d_name, kicadLibrary::shown},
        {labels::case_, &material::d_case, kicadLibrary::shown},
        {labels::quantity, &material::d_quantity},
        {labels::price, &material::d_price},
        {labels::averagePrice, &material::d_averagePrice},
        {labels::active, &material::d_active},
        {nullptr, nullptr, kicadLibrary::unused},
        {labels::libraryRef, &material::d_libraryRef, kicadLibrary::symbol, "[Library Ref]"},
        {labels::footprintRef, &material::d_footprintRef, kicadLibrary::footprint,
         "[Footprint Ref]"},
        {labels::footprintRef2, &material::d_footprintRef2, kicadLibrary::parameter,
         "[Footprint Ref 2]"},
        {labels::footprintRef3, &material::d_footprintRef3, kicadLibrary::parameter,
         "[Footprint Ref 3]"},
        {labels::footprintRef4, &material::d_footprintRef4, kicadLibrary::parameter,
         "[Footprint Ref 4]"},
        {labels::footprintRef5, &material::d_footprintRef5, kicadLibrary::parameter,
         "[Footprint Ref 5]"},
        {labels::footprintRef6, &material::d_footprintRef6, kicadLibrary::parameter,
         "[Footprint Ref 6]"},
    };
    return table;
}

QStringList captions()
{
    QStringList result;
    for (const exportColumn &column : exportColumns())
        result.append(exportNames::replaceCharacters(column.caption ? column.caption()
                                                                    : QStringLiteral("Comment")));
    return result;
}

QString cellOf(const exportColumn &column, const material &from, const d_groupStruct &group)
{
    if (column.field)
        return from.*column.field;
    return column.caption ? group.name : QString();
}

QStringList groupNames(const kiv_mat_databaseStruct &database)
{
    QStringList names;
    for (const auto &group : database.groups)
        names.append(group->name);
    return names;
}

QString withEnding(const QString &path, const QStringList &endings, const QString &replacement)
{
    for (const QString &ending : endings)
        if (path.endsWith(ending, Qt::CaseInsensitive))
            return path.left(path.size() - ending.size()) + replacement;
    return path + replacement;
}

// A line for the errors window. text: English source, context "altiumExport".
QString note(const char *text, const QString &subject, const QString &reason = {})
{
    return messages::failed(QCoreApplication::translate("altiumExport", text).toHtmlEscaped()
                                + QLatin1String("&nbsp;"),
                            subject, reason);
}

// Tells which groups got another name than the replacement of letters alone gives.
QStringList renameNotes(const QStringList &wanted, const QStringList &given)
{
    QStringList notes;
    for (int i = 0; i < wanted.size(); ++i)
        if (exportNames::replaceCharacters(wanted.at(i)) != given.at(i))
            notes.append(
                note(QT_TRANSLATE_NOOP("altiumExport", "Name changed"), wanted.at(i), given.at(i)));
    return notes;
}

// Tells which tables a CAD tool will not see by its description.
QStringList undescribedNotes(const QStringList &tables, bool (*canDescribe)(const QString &),
                             const QString &description)
{
    QStringList notes;
    for (const QString &table : tables)
        if (!canDescribe(table))
            notes.append(
                note(QT_TRANSLATE_NOOP("altiumExport", "Left out of the library description"),
                     table, text::fileNameOfPath(description)));
    return notes;
}

// The description had the name of both kinds of export once, which a tool may still have installed.
QStringList oldDescriptionNotes(const QString &path)
{
    const QString old = withEnding(path, {QStringLiteral(".sqlite"), QStringLiteral(".xlsx")},
                                   QStringLiteral(".DbLib"));
    if (!QFile::exists(old))
        return {};
    return {note(QT_TRANSLATE_NOOP("altiumExport", "No longer updated; install instead"),
                 text::fileNameOfPath(old), text::fileNameOfPath(libraryPath(path)))};
}

QString cutNote(const QString &caption, const QString &subject)
{
    return note(QT_TRANSLATE_NOOP("altiumExport", "Text too long for a cell, cut"), subject,
                caption);
}

QString notWritten(const QString &path)
{
    return messages::because(
        QCoreApplication::translate("altiumExport", "%1 cannot be written").arg(path), path);
}

exportResult &fail(exportResult &result, const QString &error)
{
    result.result = exportResult::failed;
    result.error = error;
    return result;
}

// A sheet being filled row by row, with a note for every text that was cut.
class sheetWriter
{
public:
    sheetWriter(workbook &book, const QStringList &columnCaptions, QStringList &notes)
        : m_book(book)
        , m_captions(columnCaptions)
        , m_notes(notes)
    {
    }

    bool begin(const QString &name)
    {
        m_row = 0;
        return m_book.addSheet(name)
               && row([this](int column) { return m_captions.at(column); }, QString());
    }

    // cell(column), columns from 0, gives the texts; subject names the row in notes.
    template <class Cell>
    bool row(const Cell &cell, const QString &subject)
    {
        ++m_row;
        for (int column = 0; column < m_captions.size(); ++column) {
            const QString content = cell(column);
            if (content.size() > workbook::maximumText)
                m_notes.append(cutNote(m_captions.at(column), subject));
            if (!m_book.write(m_row, column + 1, content))
                return false;
        }
        return true;
    }

private:
    workbook &m_book;
    QStringList m_captions;
    QStringList &m_notes;
    int m_row = 0;
};

bool save(workbook &book, const QString &path, exportResult &result,
          const progressFunction &progress)
{
    if (book.saveAs(path, progress))
        return true;
    if (book.isCancelled())
        result.result = exportResult::cancelled;
    else
        fail(result, path + QLatin1String(": ") + book.error());
    return false;
}

QByteArray descriptionOf(libraryDescription::source kind, const QString &path,
                         const QStringList &tables, const QStringList &columnNames)
{
    const std::vector<exportColumn> &table = exportColumns();
    QList<libraryDescription::column> columns;
    for (int i = 0; i < columnNames.size(); ++i)
        columns.append({columnNames.at(i), table[size_t(i)].reserved
                                               ? QString::fromLatin1(table[size_t(i)].reserved)
                                               : columnNames.at(i)});
    return libraryDescription::text(kind, QFileInfo(path).fileName(), tables, columns, 0);
}

QByteArray kicadDescriptionOf(const QString &path, const QStringList &tables,
                              const QStringList &columnNames)
{
    QList<kicadLibrary::column> columns;
    for (int i = 0; i < columnNames.size(); ++i)
        columns.append({columnNames.at(i), exportColumns()[size_t(i)].use});
    return kicadLibrary::text(QFileInfo(path).fileName(), tables, columns);
}

// Tells what has changed since the last export, once the files are written.
void follow(exportMemory &memory, const kiv_mat_databaseStruct &database, const QStringList &tables,
            const QString &path, exportResult &result, const progressFunction &progress)
{
    std::vector<exportMemory::column> columns;
    for (const exportColumn &column : exportColumns())
        if (column.field)
            columns.push_back({column.caption(), column.field});
    if (!memory.follow(database, tables, columns, result.changes, progress))
        result.notes.append(note(
            QT_TRANSLATE_NOOP("altiumExport", "The next export will have nothing to compare with"),
            notWritten(exportMemory::pathOf(path))));
}

// Texts in UTF-8, for the script.
void appendQuoted(QByteArray &script, const QString &value)
{
    script += '\'';
    const QByteArray bytes = value.toUtf8();
    if (bytes.contains('\''))
        script += QByteArray(bytes).replace('\'', "''");
    else
        script += bytes;
    script += '\'';
}

QByteArray createTable(const QByteArray &table, const QStringList &columnNames)
{
    QByteArray statement = "create table " + table + "(id integer primary key, ";
    for (int i = 0; i < columnNames.size(); ++i)
        statement += exportNames::quoted(columnNames.at(i)).toUtf8()
                     + (i + 1 < columnNames.size() ? " varchar(128), " : " varchar(128) ");
    return statement + ");\n";
}

// What the SQLite driver makes of a new file.
bool newSqliteFile(QByteArray *content)
{
    const QTemporaryDir folder(scratch::pattern());
    const QString path = folder.filePath(QStringLiteral("new.sqlite"));
    const QString connection = QStringLiteral("SQLITE");
    bool opened = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        opened = database.open();
        database.close();
    }
    QSqlDatabase::removeDatabase(connection);
    QFile file(path);
    if (!opened || !file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return true;
}

// Writes the statements of all groups; false when the work was cancelled or the file refused them.
bool writeScript(const kiv_mat_databaseStruct &database, const QStringList &tables,
                 const QStringList &columnNames, QIODevice &file, exportResult &result,
                 const progressFunction &progress)
{
    progressSteps steps(progress, database.materialCount());
    QByteArray script = "BEGIN TRANSACTION;\n";
    for (size_t i = 0; i < database.groups.size(); ++i) {
        const d_groupStruct &group = *database.groups[i];
        const QByteArray table = exportNames::quoted(tables.at(int(i))).toUtf8();
        script += createTable(table, columnNames);
        const QByteArray insert = "insert into " + table + " values(";
        int row = 0;
        for (const auto &item : group.items) {
            script += insert;
            script += QByteArray::number(++row);
            for (const exportColumn &column : exportColumns()) {
                script += script.endsWith('\'') ? "," : ", ";
                appendQuoted(script, cellOf(column, *item, group));
            }
            script += ");\n";
            ++result.materials;
            if (!steps.next()) {
                result.result = exportResult::cancelled;
                return false;
            }
            if (script.size() > 1 << 18) {
                if (file.write(script) != script.size())
                    return false;
                script.resize(0);
            }
        }
    }
    script += "\nCOMMIT;\n";
    return file.write(script) == script.size();
}

} // namespace

QString scriptPath(const QString &path)
{
    return withEnding(path, {QStringLiteral(".sqlite")}, QStringLiteral(".txt"));
}

QString libraryPath(const QString &path) { return path + QLatin1String(".DbLib"); }

QString kicadPath(const QString &path)
{
    return withEnding(path, {QStringLiteral(".sqlite")}, QStringLiteral(".kicad_dbl"));
}

QString proposedExportPath(const QString &databasePath, const QString &folder,
                           const QString &ending)
{
    const QFileInfo database(databasePath);
    const QString name = database.fileName();
    return (QFileInfo(folder).isDir() ? folder : database.absolutePath()) + QLatin1Char('/')
           + withEnding(name, {QStringLiteral(".xml")}, ending);
}

exportResult exportAltiumXlsx(const kiv_mat_databaseStruct &database, const QString &path,
                              const progressFunction &progress)
{
    exportResult result;
    exportMemory memory(path);
    const QStringList wanted = groupNames(database);
    const QStringList sheets = exportNames::sheetNames(wanted, {}, memory.tableNames());
    const QString library = libraryPath(path);
    result.notes = renameNotes(wanted, sheets)
                   + undescribedNotes(sheets, libraryDescription::canDescribe, library)
                   + oldDescriptionNotes(path);
    const QStringList columnNames = captions();
    const std::vector<exportColumn> &columns = exportColumns();
    workbook book;
    sheetWriter sheet(book, columnNames, result.notes);
    progressSteps steps(progress, database.materialCount());
    for (size_t i = 0; i < database.groups.size(); ++i) {
        const d_groupStruct &group = *database.groups[i];
        if (!sheet.begin(sheets.at(int(i))))
            return fail(result, book.error());
        for (const auto &item : group.items) {
            const auto cell = [&](int column) {
                return cellOf(columns[size_t(column)], *item, group);
            };
            if (!sheet.row(cell, item->d_ktm))
                return fail(result, book.error());
            ++result.materials;
            if (!steps.next()) {
                result.result = exportResult::cancelled;
                return result;
            }
        }
    }
    const QByteArray description =
        descriptionOf(libraryDescription::workbookFile, path, sheets, columnNames);
    safeFile libraryFile(library);
    if (!libraryFile.open(QIODevice::WriteOnly)
        || libraryFile.write(description) != description.size())
        return fail(result, notWritten(library));
    if (!save(book, path, result, progress))
        return result;
    if (!libraryFile.commit())
        return fail(result, notWritten(library));
    result.files = QStringList{path, library};
    follow(memory, database, sheets, path, result, progress);
    return result;
}

exportResult exportAltiumSqlite(const kiv_mat_databaseStruct &database, const QString &path,
                                const progressFunction &progress)
{
    exportResult result;
    exportMemory memory(path);
    const QStringList wanted = groupNames(database);
    const QStringList tables = exportNames::sqlNames(wanted, {}, memory.tableNames());
    // The file that a program may hold open comes first: when it cannot be replaced, none is.
    const QStringList paths{path, scriptPath(path), libraryPath(path), kicadPath(path)};
    result.notes = renameNotes(wanted, tables)
                   + undescribedNotes(tables, libraryDescription::canDescribe, paths.at(2))
                   + undescribedNotes(tables, kicadLibrary::canDescribe, paths.at(3))
                   + oldDescriptionNotes(path);
    // The first column, "id", numbers the rows.
    const QStringList columnNames = exportNames::sqlNames(captions(), {QStringLiteral("id")});

    QByteArray empty;
    if (!newSqliteFile(&empty))
        return fail(result, QCoreApplication::translate("altiumExport",
                                                        "The SQLite driver cannot be used"));
    const QByteArray description =
        descriptionOf(libraryDescription::sqliteFile, path, tables, columnNames);
    const QByteArray kicad = kicadDescriptionOf(path, tables, columnNames);
    safeFile data(paths.at(0));
    safeFile script(paths.at(1));
    safeFile library(paths.at(2));
    safeFile kicadFile(paths.at(3));
    if (!script.open(QIODevice::WriteOnly)
        || !writeScript(database, tables, columnNames, script, result, progress))
        return result.result == exportResult::cancelled ? result
                                                        : fail(result, notWritten(paths.at(1)));
    if (!data.open(QIODevice::WriteOnly) || data.write(empty) != empty.size())
        return fail(result, notWritten(path));
    if (!library.open(QIODevice::WriteOnly) || library.write(description) != description.size())
        return fail(result, notWritten(paths.at(2)));
    if (!kicadFile.open(QIODevice::WriteOnly) || kicadFile.write(kicad) != kicad.size())
        return fail(result, notWritten(paths.at(3)));
    const QList<safeFile *> written{&data, &script, &library, &kicadFile};
    for (int i = 0; i < written.size(); ++i)
        if (!written.at(i)->commit())
            return fail(result, notWritten(paths.at(i)));
    // What a program left beside the old file would be read into the new one.
    for (const char *ending : {"-journal", "-wal", "-shm"})
        files::removeFile(path + QLatin1String(ending));
    result.files = paths;
    follow(memory, database, tables, path, result, progress);
    return result;
}

exportResult exportGroups(const kiv_mat_databaseStruct &database, const QString &path,
                          const progressFunction &progress)
{
    exportResult result;
    const QStringList wanted = groupNames(database);
    const QString overview = QStringLiteral("Groups");
    const QStringList sheets = exportNames::sheetNames(wanted, {overview});
    result.notes = renameNotes(wanted, sheets);
    QStringList columnNames;
    for (const QString &caption : {labels::name(), labels::ktm(), labels::cpv()})
        columnNames.append(exportNames::replaceCharacters(caption));
    workbook book;
    sheetWriter sheet(book, columnNames, result.notes);
    const auto row = [&sheet](const QString &name, const QString &ktm, const QString &cpv) {
        const QStringList cells{name, ktm, cpv};
        return sheet.row([&cells](int column) { return cells.at(column); }, name);
    };
    bool good = sheet.begin(overview);
    for (const auto &group : database.groups)
        good = good && row(group->name, group->ktm, group->cpv);
    progressSteps steps(progress, database.materialCount());
    for (size_t i = 0; good && i < database.groups.size(); ++i) {
        good = sheet.begin(sheets.at(int(i)));
        for (const auto &item : database.groups[i]->items) {
            good = good && row(item->d_name, item->d_ktm, item->d_cpv);
            ++result.materials;
            if (!steps.next()) {
                result.result = exportResult::cancelled;
                return result;
            }
        }
    }
    if (!good)
        return fail(result, book.error());
    if (!save(book, path, result, progress))
        return result;
    result.files = QStringList(path);
    return result;
}
