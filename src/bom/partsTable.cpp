#include "bom/partsTable.h"

#include "bom/workbookReader.h"
#include "data/documentStruct.h"
#include "tools/officeConverter.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

// No list of parts is longer; what is, is some other file.
constexpr qint64 mostBytes = 64 << 20;

QString translated(const char *text) { return QCoreApplication::translate("partsTable", text); }

// The bytes as text, and what they were taken for. Half of the bytes of a UTF-16 text in a European
// language are zero.
QString decoded(const QByteArray &bytes, const QString &wanted, QString *encoding)
{
    const auto by = [&](const char *name) {
        *encoding = QString::fromLatin1(name);
        return QTextCodec::codecForName(name)->toUnicode(bytes);
    };
    if (!wanted.isEmpty()) {
        if (QTextCodec *codec = QTextCodec::codecForName(wanted.toLatin1())) {
            *encoding = wanted;
            return codec->toUnicode(bytes);
        }
    }
    if (bytes.startsWith("\xff\xfe"))
        return by("UTF-16LE");
    if (bytes.startsWith("\xfe\xff"))
        return by("UTF-16BE");
    const QByteArray start = bytes.left(1024);
    if (start.size() > 1 && start.count('\0') * 3 > start.size())
        return by(start.at(0) == '\0' ? "UTF-16BE" : "UTF-16LE");
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0) {
        *encoding = QStringLiteral("UTF-8");
        return text;
    }
    return by("windows-1250");
}

bool isText(const QStringList &row)
{
    return std::any_of(row.begin(), row.end(), [](const QString &cell) { return !cell.isEmpty(); });
}

// Cells without blanks around them, rows of one length, none without any text.
void tidy(partsTable *table, const QVector<QStringList> &rows, const QVector<int> &lines)
{
    int columns = 0;
    for (int i = 0; i < rows.size(); ++i) {
        QStringList row;
        for (const QString &cell : rows[i])
            row.append(cell.trimmed());
        if (!isText(row))
            continue;
        columns = std::max(columns, int(row.size()));
        table->rows.append(row);
        table->lines.append(i < lines.size() ? lines[i] : i + 1);
    }
    for (QStringList &row : table->rows)
        while (row.size() < columns)
            row.append(QString());
}

// A row for each component; what its fields are called are the captions.
bool readKicad(const QByteArray &xml, QVector<QStringList> *rows)
{
    QStringList captions{QStringLiteral("Reference"), QStringLiteral("Value"),
                         QStringLiteral("Footprint"), QStringLiteral("Datasheet")};
    const QHash<QString, QString> elements{{QStringLiteral("value"), captions[1]},
                                           {QStringLiteral("footprint"), captions[2]},
                                           {QStringLiteral("datasheet"), captions[3]}};
    QVector<QHash<QString, QString>> components;
    const auto put = [&](const QString &caption, const QString &text) {
        if (components.isEmpty() || caption.isEmpty())
            return;
        if (!captions.contains(caption))
            captions.append(caption);
        components.last().insert(caption, text);
    };
    QXmlStreamReader reader(xml);
    bool isInside = false;
    while (!reader.atEnd()) {
        reader.readNext();
        const QString name = reader.name().toString();
        if (name == QLatin1String("components"))
            isInside = reader.isStartElement();
        if (!isInside || !reader.isStartElement())
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (name == QLatin1String("comp")) {
            components.append(QHash<QString, QString>());
            put(captions[0], attributes.value(QLatin1String("ref")).toString());
        } else if (name == QLatin1String("field")) {
            const QString caption = attributes.value(QLatin1String("name")).toString();
            put(caption, reader.readElementText());
        } else if (name == QLatin1String("property")) {
            // A mark without a value, such as "dnp", means yes.
            put(attributes.value(QLatin1String("name")).toString(),
                attributes.hasAttribute(QLatin1String("value"))
                    ? attributes.value(QLatin1String("value")).toString()
                    : QStringLiteral("1"));
        } else if (elements.contains(name)) {
            put(elements.value(name), reader.readElementText());
        }
    }
    if (reader.hasError() || components.isEmpty())
        return false;
    rows->append(captions);
    for (const auto &component : qAsConst(components)) {
        QStringList row;
        for (const QString &caption : qAsConst(captions))
            row.append(component.value(caption));
        rows->append(row);
    }
    return true;
}

bool takeSheets(const QString &path, const QString &form, int wanted, partsTable *table,
                QString *fault)
{
    const auto sheets = workbookReader::read(path, fault);
    if (!sheets)
        return false;
    table->form = form;
    int chosen = wanted;
    for (int i = 0; i < sheets->size(); ++i) {
        table->sheets.append(sheets->at(i).name);
        if (chosen < 0 && sheets->at(i).rows.size() > 1)
            chosen = i;
    }
    table->sheet = std::max(0, chosen);
    if (table->sheet >= sheets->size()) {
        *fault =
            translated(QT_TRANSLATE_NOOP("partsTable", "has only %1 sheets")).arg(sheets->size());
        return false;
    }
    tidy(table, sheets->at(table->sheet).rows, {});
    return true;
}

bool readInto(partsTable *table, const QString &path, const partsTableOptions &options,
              QString *fault)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        *fault = openingFault(file);
        return false;
    }
    if (file.size() > mostBytes) {
        *fault = translated(QT_TRANSLATE_NOOP("partsTable", "is larger than 64 MB"));
        return false;
    }
    const QByteArray bytes = file.readAll();
    const bool isArchive = bytes.startsWith("PK\x03\x04");
    if (isArchive && workbookReader::isWorkbook(path))
        return takeSheets(path, QStringLiteral("XLSX"), options.sheet, table, fault);
    const bool isOds = isArchive && bytes.left(200).contains("opendocument.spreadsheet");
    if (isOds || bytes.startsWith("\xd0\xcf\x11\xe0")) {
        const officeConverter::converted workbook =
            officeConverter::convert(path, QStringLiteral("xlsx"));
        if (workbook.path.isEmpty()) {
            *fault = workbook.fault;
            return false;
        }
        return takeSheets(workbook.path, isOds ? QStringLiteral("ODS") : QStringLiteral("XLS"),
                          options.sheet, table, fault);
    }
    if (isArchive) {
        *fault = translated(QT_TRANSLATE_NOOP("partsTable", "is an archive without a table"));
        return false;
    }
    QVector<QStringList> rows;
    QVector<int> lines;
    if (bytes.left(200).trimmed().startsWith("<")) {
        table->form = QStringLiteral("KiCad XML");
        if (!readKicad(bytes, &rows)) {
            *fault = translated(
                QT_TRANSLATE_NOOP("partsTable", "is XML, but no list of parts of KiCad"));
            return false;
        }
    } else {
        table->form = QStringLiteral("CSV");
        QString text = decoded(bytes, options.encoding, &table->encoding);
        if (text.startsWith(QChar(QChar::ByteOrderMark)))
            text.remove(0, 1);
        if (text.contains(QChar::Null)) {
            *fault = translated(QT_TRANSLATE_NOOP("partsTable", "is no text"));
            return false;
        }
        table->separator = options.separator.isNull() ? likelySeparator(text) : options.separator;
        int unclosed = 0;
        rows = splitTable(text, table->separator, &lines, &unclosed);
        // All that follows would be one cell.
        if (unclosed > 0) {
            *fault = translated(QT_TRANSLATE_NOOP("partsTable", "line %1: the quote is not closed"))
                         .arg(unclosed);
            return false;
        }
    }
    tidy(table, rows, lines);
    return true;
}

} // namespace

QVector<QStringList> splitTable(const QString &text, QChar separator, QVector<int> *lines,
                                int *unclosed)
{
    QVector<QStringList> rows;
    QStringList row;
    QString field;
    bool isQuoted = false;
    bool wasQuoted = false; // the field began with a quote
    int line = 1;
    int firstLine = 1;
    int quoteLine = 0;
    const auto endField = [&] {
        row.append(field);
        field.clear();
        wasQuoted = false;
    };
    const auto endRow = [&] {
        endField();
        rows.append(row);
        row.clear();
        if (lines)
            lines->append(firstLine);
        firstLine = line;
    };
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isLineEnd =
            c == QLatin1Char('\n')
            || (c == QLatin1Char('\r') && text.midRef(i + 1, 1) != QLatin1String("\n"));
        line += isLineEnd;
        if (isQuoted) {
            if (c != QLatin1Char('"'))
                field += c;
            else if (text.midRef(i + 1, 1) == QLatin1String("\""))
                field += text[++i];
            else
                isQuoted = false;
        } else if (c == QLatin1Char('"') && !wasQuoted && field.trimmed().isEmpty()) {
            field.clear();
            isQuoted = wasQuoted = true;
            quoteLine = line;
        } else if (c == separator) {
            endField();
        } else if (isLineEnd) {
            endRow();
        } else if (c != QLatin1Char('\r')) {
            field += c;
        }
    }
    if (!field.isEmpty() || !row.isEmpty())
        endRow();
    if (unclosed)
        *unclosed = isQuoted ? quoteLine : 0;
    return rows;
}

QChar likelySeparator(const QString &text)
{
    // What stands before the table is looked at too, and outvoted.
    const QString start = text.left(1 << 16);
    QChar best = QLatin1Char(',');
    int bestScore = 0;
    for (const char candidate : {',', ';', '\t', '|'}) {
        const QVector<QStringList> rows = splitTable(start, QLatin1Char(candidate));
        QHash<int, int> counts;
        for (const QStringList &row : rows)
            if (row.size() > 1)
                ++counts[row.size()];
        int score = 0;
        for (auto count = counts.constBegin(); count != counts.constEnd(); ++count)
            score = std::max(score, count.value() * 100 + std::min(count.key(), 99));
        if (score > bestScore) {
            bestScore = score;
            best = QLatin1Char(candidate);
        }
    }
    return best;
}

std::optional<partsTable> readPartsTable(const QString &path, const partsTableOptions &options,
                                         QString *fault)
{
    partsTable table;
    if (!readInto(&table, path, options, fault))
        return {};
    if (table.rows.isEmpty()) {
        *fault = translated(QT_TRANSLATE_NOOP("partsTable", "holds no table"));
        return {};
    }
    return table;
}
