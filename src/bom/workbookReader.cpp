#include "bom/workbookReader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QXmlStreamReader>

#include <zip.h>

#include <cmath>
#include <memory>

namespace workbookReader {

namespace {

// More than any list of parts has, and less than what an archive bomb unpacks to.
constexpr zip_uint64_t mostBytes = 64 << 20;
constexpr int mostColumns = 1000;
constexpr int mostRows = 100'000;

QString translated(const char *text) { return QCoreApplication::translate("workbookReader", text); }

class archive
{
public:
    explicit archive(const QString &path)
        : m_zip(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr))
    {
    }
    bool isOpen() const { return m_zip != nullptr; }

    // Nothing when it is not there, is damaged or too large.
    std::optional<QByteArray> entry(const QString &name) const
    {
        zip_stat_t stat;
        const QByteArray utf8 = name.toUtf8();
        if (!m_zip || zip_stat(m_zip.get(), utf8.constData(), ZIP_FL_ENC_UTF_8, &stat) != 0
            || (stat.valid & ZIP_STAT_SIZE) == 0 || stat.size > mostBytes)
            return {};
        zip_file_t *file = zip_fopen(m_zip.get(), utf8.constData(), ZIP_FL_ENC_UTF_8);
        if (!file)
            return {};
        QByteArray bytes(int(stat.size), Qt::Uninitialized);
        const zip_int64_t read = zip_fread(file, bytes.data(), stat.size);
        zip_fclose(file);
        if (read != zip_int64_t(stat.size))
            return {};
        return bytes;
    }

private:
    struct closer
    {
        void operator()(zip_t *zip) const { zip_discard(zip); }
    };
    std::unique_ptr<zip_t, closer> m_zip;
};

// "B7" is the second column, counted from 0; -1 when it says nothing.
int columnOf(const QStringRef &reference)
{
    int column = 0;
    for (const QChar letter : reference) {
        if (letter < QLatin1Char('A') || letter > QLatin1Char('Z'))
            break;
        column = column * 26 + letter.unicode() - 'A' + 1;
        if (column > mostColumns)
            return mostColumns;
    }
    return column - 1;
}

// The text of a string item: its runs joined, without what is spoken of them.
QString textOfItem(QXmlStreamReader &reader)
{
    const QString end = reader.name().toString();
    QString text;
    int phonetic = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement() && reader.name() == end)
            break;
        if (reader.name() == QLatin1String("rPh"))
            phonetic += reader.isStartElement() ? 1 : reader.isEndElement() ? -1 : 0;
        else if (reader.isStartElement() && reader.name() == QLatin1String("t") && phonetic == 0)
            text += reader.readElementText();
    }
    return text;
}

QStringList sharedStrings(const QByteArray &xml)
{
    QStringList strings;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("si"))
            strings.append(textOfItem(reader));
    }
    return strings;
}

// 100.0 is written as 100, and 0.1 not as 0.10000000000000001.
QString plainNumber(const QString &text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    constexpr double exact = 1e15;
    if (!isNumber || std::abs(value) >= exact)
        return text;
    return QString::number(value, 'g', 15);
}

QString valueOf(const QString &type, const QString &value, const QStringList &strings)
{
    if (type == QLatin1String("s"))
        return strings.value(value.toInt());
    if (type == QLatin1String("b"))
        return value == QLatin1String("1") ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    if (type.isEmpty() || type == QLatin1String("n"))
        return plainNumber(value);
    return type == QLatin1String("e") ? QString() : value;
}

bool readSheet(const QByteArray &xml, const QStringList &strings, QVector<QStringList> *rows)
{
    QXmlStreamReader reader(xml);
    int row = 0;
    int column = 0;
    QString type;
    const auto put = [&](const QString &text) {
        if (text.isEmpty() || row < 1 || row > mostRows || column < 0 || column >= mostColumns)
            return;
        while (rows->size() < row)
            rows->append(QStringList());
        QStringList &cells = (*rows)[row - 1];
        while (cells.size() <= column)
            cells.append(QString());
        cells[column] = text;
    };
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        const QStringRef name = reader.name();
        const QXmlStreamAttributes attributes = reader.attributes();
        if (name == QLatin1String("row")) {
            // Neither rows nor cells have to say where they are.
            const int said = attributes.value(QLatin1String("r")).toInt();
            row = said > 0 ? said : row + 1;
            column = -1;
        } else if (name == QLatin1String("c")) {
            const int said = columnOf(attributes.value(QLatin1String("r")));
            column = said >= 0 ? said : column + 1;
            type = attributes.value(QLatin1String("t")).toString();
        } else if (name == QLatin1String("v")) {
            put(valueOf(type, reader.readElementText(), strings));
        } else if (name == QLatin1String("is")) {
            put(textOfItem(reader));
        }
    }
    return !reader.hasError();
}

// Targets of relations are relative to the folder of their source, or absolute in the archive.
QString placeOf(const QString &folder, const QString &target)
{
    if (target.startsWith(QLatin1Char('/')))
        return target.mid(1);
    return QDir::cleanPath(folder.isEmpty() ? target : folder + QLatin1Char('/') + target);
}

struct relation
{
    QString type; // the last part of its address
    QString target;
};

QHash<QString, relation> relationsOf(const archive &zip, const QString &part)
{
    QHash<QString, relation> relations;
    const QString folder = part.section(QLatin1Char('/'), 0, -2);
    const QString name = part.section(QLatin1Char('/'), -1);
    const QString prefix = folder.isEmpty() ? QString() : folder + QLatin1Char('/');
    QXmlStreamReader reader(
        zip.entry(prefix + QLatin1String("_rels/") + name + QLatin1String(".rels"))
            .value_or(QByteArray()));
    while (!reader.atEnd()) {
        reader.readNext();
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.isStartElement() && reader.name() == QLatin1String("Relationship"))
            relations.insert(
                attributes.value(QLatin1String("Id")).toString(),
                {attributes.value(QLatin1String("Type")).toString().section(QLatin1Char('/'), -1),
                 placeOf(folder, attributes.value(QLatin1String("Target")).toString())});
    }
    return relations;
}

QString workbookPart(const archive &zip)
{
    for (const relation &one : relationsOf(zip, QString()))
        if (one.type == QLatin1String("officeDocument"))
            return one.target;
    return {};
}

} // namespace

bool isWorkbook(const QString &path)
{
    const archive zip(path);
    return zip.isOpen() && workbookPart(zip).endsWith(QLatin1String("workbook.xml"));
}

std::optional<QVector<sheet>> read(const QString &path, QString *fault)
{
    const archive zip(path);
    const QString book = workbookPart(zip);
    const std::optional<QByteArray> content = zip.entry(book);
    if (book.isEmpty() || !content) {
        *fault =
            translated(QT_TRANSLATE_NOOP("workbookReader", "is no workbook, or a damaged one"));
        return {};
    }
    const QHash<QString, relation> relations = relationsOf(zip, book);
    QStringList strings;
    for (const relation &one : relations)
        if (one.type == QLatin1String("sharedStrings"))
            strings = sharedStrings(zip.entry(one.target).value_or(QByteArray()));
    QVector<sheet> sheets;
    QXmlStreamReader reader(*content);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != QLatin1String("sheet"))
            continue;
        QString id;
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes)
            if (attribute.name() == QLatin1String("id") && !attribute.namespaceUri().isEmpty())
                id = attribute.value().toString();
        const relation part = relations.value(id);
        if (part.type != QLatin1String("worksheet"))
            continue; // charts are sheets, too
        sheet one{attributes.value(QLatin1String("name")).toString(), {}};
        const std::optional<QByteArray> cells = zip.entry(part.target);
        if (!cells || !readSheet(*cells, strings, &one.rows)) {
            *fault = translated(QT_TRANSLATE_NOOP("workbookReader",
                                                  "the sheet %1 is damaged, or too large"))
                         .arg(one.name);
            return {};
        }
        sheets.append(one);
    }
    if (sheets.isEmpty()) {
        *fault = translated(QT_TRANSLATE_NOOP("workbookReader", "holds no sheet"));
        return {};
    }
    return sheets;
}

} // namespace workbookReader
