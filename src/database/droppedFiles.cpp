#include "database/droppedFiles.h"

#include "data/documentStruct.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace droppedFiles {

namespace {

// How the documents that the desktop opens begin.
struct documentKind
{
    const char *suffix;
    QByteArray begin;
    int mostBefore = 0; // bytes, such as a byte order mark and blanks
};
constexpr int mostBeforePdf = 1024;
constexpr int mostBeforeHtml = 64;
const QByteArray zip = QByteArrayLiteral("PK\x03\x04");
const QByteArray ole = QByteArrayLiteral("\xD0\xCF\x11\xE0");
const documentKind documentKinds[] = {
    {"pdf", QByteArrayLiteral("%PDF-"), mostBeforePdf},
    {"png", QByteArrayLiteral("\x89PNG")},
    {"jpg", QByteArrayLiteral("\xFF\xD8\xFF")},
    {"jpeg", QByteArrayLiteral("\xFF\xD8\xFF")},
    {"gif", QByteArrayLiteral("GIF8")},
    {"bmp", QByteArrayLiteral("BM")},
    {"tif", QByteArrayLiteral("II*")},
    {"tif", QByteArrayLiteral("MM")},
    {"tiff", QByteArrayLiteral("II*")},
    {"tiff", QByteArrayLiteral("MM")},
    {"html", QByteArrayLiteral("<"), mostBeforeHtml},
    {"htm", QByteArrayLiteral("<"), mostBeforeHtml},
    {"rtf", QByteArrayLiteral("{\\rtf")},
    {"docx", zip},
    {"xlsx", zip},
    {"odt", zip},
    {"ods", zip},
    {"doc", ole},
    {"xls", ole},
};

QString translated(const char *text) { return QCoreApplication::translate("droppedFiles", text); }

// Whether the name is that of a document; then, in fault, why it is none.
bool isNamedDocument(const QString &suffix, const QByteArray &head, QString *fault)
{
    bool isNamed = false;
    for (const documentKind &kind : documentKinds)
        if (suffix == QLatin1String(kind.suffix)) {
            isNamed = true;
            const int at = head.indexOf(kind.begin);
            if (at >= 0 && at <= kind.mostBefore) {
                fault->clear();
                return true;
            }
        }
    if (isNamed)
        *fault =
            translated(QT_TRANSLATE_NOOP("droppedFiles", "it does not hold what its name says"));
    return isNamed;
}

content textOf(const QByteArray &head, QString *fault)
{
    if (head.contains('\0')) {
        *fault = translated(QT_TRANSLATE_NOOP("droppedFiles", "files of its kind are not known"));
        return other;
    }
    if (head.contains("Towar:"))
        return listing;
    static const QRegularExpression line(
        QStringLiteral("^(?!\\d{8}-\\d\\t)[^\\t\\r\\n]+\\t *\\d{8}-\\d(?=[ \\t\\r\\n]|$)"),
        QRegularExpression::MultilineOption);
    if (line.match(QString::fromUtf8(head)).hasMatch())
        return cpvTable;
    *fault = translated(QT_TRANSLATE_NOOP(
        "droppedFiles", "it is neither a listing of the warehouse nor a table of groups and their "
                        "CPV codes"));
    return other;
}

QString nameOf(const file &of) { return QFileInfo(of.path).fileName(); }

} // namespace

file recognise(const QString &path)
{
    file result{path, other, {}};
    if (QFileInfo(path).isDir()) {
        result.fault = translated(QT_TRANSLATE_NOOP("droppedFiles", "it is a folder"));
        return result;
    }
    // A pipe or a device would be waited for.
    constexpr qint64 most = 1 << 20;
    QFile opened(path);
    if (!QFileInfo(path).isFile() || !opened.open(QIODevice::ReadOnly)) {
        result.fault = translated(QT_TRANSLATE_NOOP("droppedFiles", "it cannot be read"));
        return result;
    }
    const QByteArray head = opened.read(most);
    if (head.isEmpty()) {
        result.fault = translated(QT_TRANSLATE_NOOP("droppedFiles", "it is empty"));
        return result;
    }
    const QString suffix = QFileInfo(path).suffix().toLower();
    const fileKind *kind = fileKinds::ofFile(path);
    if (kind == &fileKinds::database)
        result.is = database;
    else if (kind)
        result.fault = translated(QT_TRANSLATE_NOOP(
            "droppedFiles", "it is a file of this program, but no material database"));
    else if (isNamedDocument(suffix, head, &result.fault))
        result.is = result.fault.isEmpty() ? datasheet : other;
    else if (suffix == QLatin1String("xml"))
        result.fault = fileKinds::headOf(path).fault;
    else
        result.is = textOf(head, &result.fault);
    return result;
}

plan planOf(const std::vector<file> &files, const place &on)
{
    const auto refused = [](const QString &why) { return plan{refuse, why}; };
    if (files.empty())
        return refused(translated(QT_TRANSLATE_NOOP("droppedFiles", "There is no file")));
    for (const file &of : files)
        if (of.is == other)
            return refused(translated(QT_TRANSLATE_NOOP(
                                          "droppedFiles",
                                          "%1 is no material database, listing of the warehouse, "
                                          "CPV table or datasheet: %2"))
                               .arg(nameOf(of), of.fault));
    const bool areDatasheets =
        std::all_of(files.begin(), files.end(), [](const file &of) { return of.is == datasheet; });
    if (files.size() > 1 && !areDatasheets)
        return refused(translated(
            QT_TRANSLATE_NOOP("droppedFiles", "Only datasheets can be dropped several at once")));
    const file &first = files.front();
    // It changes nothing by itself.
    if (first.is == database)
        return {merge, translated(QT_TRANSLATE_NOOP("droppedFiles",
                                                    "Compare with %1 and take over changes"))
                           .arg(nameOf(first))};
    if (on.isLocked)
        return refused(
            translated(QT_TRANSLATE_NOOP("droppedFiles", "Editing of the database is locked")));
    if (first.is == listing)
        return {takeListing,
                translated(QT_TRANSLATE_NOOP("droppedFiles", "Take stock and prices from %1"))
                    .arg(nameOf(first))};
    if (first.is == cpvTable)
        return {loadCpv,
                translated(QT_TRANSLATE_NOOP("droppedFiles", "Take the groups' CPV codes from %1"))
                    .arg(nameOf(first))};
    if (on.material.isEmpty())
        return refused(translated(QT_TRANSLATE_NOOP(
            "droppedFiles", "A datasheet is dropped on the material that it belongs to")));
    if (!on.hasFirm)
        return refused(
            translated(QT_TRANSLATE_NOOP("droppedFiles",
                                         "%1 has no manufacturer or supplier that the file could "
                                         "belong to"))
                .arg(on.material));
    return {attach, files.size() == 1
                        ? translated(QT_TRANSLATE_NOOP("droppedFiles", "Attach %1 to %2"))
                              .arg(nameOf(first), on.material)
                        : QCoreApplication::translate("droppedFiles", "Attach %n file(s) to %1",
                                                      nullptr, int(files.size()))
                              .arg(on.material)};
}

} // namespace droppedFiles
