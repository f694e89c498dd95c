#include "data/xmlData.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <memory>

namespace {

// QStringRef::toString() may hand out the reader's own buffer, with its spare room.
QString copyOf(const QStringRef &text) { return QString(text.data(), text.size()); }

// Remembers one text for each hash value. A text that lost its place is stored again when it comes
// back, which costs memory but never more than without the table.
class recentTexts
{
public:
    QString share(const QStringRef &text)
    {
        QString &slot = m_slots[qHash(text) % m_slots.size()];
        if (slot != text)
            slot = copyOf(text);
        return slot;
    }

private:
    std::vector<QString> m_slots = std::vector<QString>(1 << 15);
};

std::unique_ptr<recentTexts> sharedTexts;

// Every name is looked for among all namespaces declared around it, and unknown elements may nest
// to any depth. No file of ours declares more than one.
class namespaceWatch
{
public:
    void unknownElement(QXmlStreamReader *reader)
    {
        constexpr int most = 1000;
        if (m_declaring <= most && !reader->namespaceDeclarations().isEmpty()
            && ++m_declaring > most)
            reader->raiseError(QCoreApplication::translate("data", "too many namespaces"));
    }

private:
    int m_declaring = 0;
};

} // namespace

namespace {

leftOutContent *watched = nullptr;

void noteLeftOut(qint64 line, const QString &what)
{
    constexpr int most = 5;
    if (!watched || ++watched->count > most)
        return;
    watched->first.append(QCoreApplication::translate("data", "%1 (line %2)").arg(what).arg(line));
}

} // namespace

QString leftOutContent::text() const
{
    QString all = first.join(QLatin1String(", "));
    if (count > first.size())
        all += QLatin1String(", ")
               + QCoreApplication::translate("data", "and %n more", nullptr, count - first.size());
    return all;
}

leftOutWatch::leftOutWatch(leftOutContent *content) { watched = content; }

leftOutWatch::~leftOutWatch() { watched = nullptr; }

void noteOtherAttributes(QXmlStreamReader *reader, const std::vector<QString> &names)
{
    const QXmlStreamAttributes attributes = reader->attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        if (attribute.namespaceUri() != QLatin1String("http://www.w3.org/2001/XMLSchema-instance")
            && std::none_of(names.begin(), names.end(),
                            [&](const QString &name) { return attribute.name() == name; }))
            noteLeftOut(reader->lineNumber(),
                        attribute.qualifiedName().toString() + QLatin1Char('='));
}

int xmlData::readXml(QXmlStreamReader *) { return 0; }

int xmlData::writeXml(QXmlStreamWriter *) const { return -1; }

QByteArray contentOf(const xmlData &record)
{
    QByteArray content;
    QXmlStreamWriter writer(&content);
    record.writeXml(&writer);
    return content;
}

int readChildren(QXmlStreamReader *reader, const tagHandlerList &handlers, const QString &endTag)
{
    const std::vector<QString> &tags = *handlers.tags;
    size_t expected = 0;
    namespaceWatch watch;
    int unknownAround = 0; // what an unknown element holds is not noted beside it
    reader->readNext();
    while (!reader->atEnd()) {
        if (reader->isEndElement() && reader->name() == endTag)
            return 1;
        size_t found = tags.size();
        if (reader->isStartElement())
            found = findFrom(expected, tags.size(),
                             [&](size_t i) { return reader->name() == tags[i]; });
        if (found < tags.size()) {
            expected = found + 1;
            handlers.handler->readTag(reader, found);
        } else {
            if (reader->isStartElement()) {
                watch.unknownElement(reader);
                if (unknownAround++ == 0)
                    noteLeftOut(reader->lineNumber(), reader->qualifiedName().toString());
            } else if (reader->isEndElement()) {
                unknownAround = std::max(0, unknownAround - 1);
            } else if (unknownAround == 0 && reader->isCharacters() && !reader->isWhitespace()) {
                noteLeftOut(reader->lineNumber(), QCoreApplication::translate("data", "text"));
            }
            reader->readNext();
        }
    }
    return -1;
}

bool readToElement(QXmlStreamReader *reader, const QString &name)
{
    namespaceWatch watch;
    while (!reader->atEnd()) {
        reader->readNext();
        if (reader->isDTD())
            reader->raiseError(documentTypeRefused());
        else if (reader->isStartElement() && (name.isEmpty() || reader->name() == name))
            return true;
        else if (reader->isStartElement())
            watch.unknownElement(reader);
    }
    return false;
}

QString tooManyAttributes()
{
    return QCoreApplication::translate("data", "a tag has too many attributes");
}

QString documentTypeRefused()
{
    return QCoreApplication::translate("data", "document type declarations are not allowed");
}

QString attributeValue(QXmlStreamReader *reader, const QString &localName)
{
    const QXmlStreamAttributes attributes = reader->attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        if (attribute.name() == localName)
            return sharedText(attribute.value());
    return {};
}

QString readText(QXmlStreamReader *reader)
{
    noteOtherAttributes(reader);
    // Nearly every text comes in one piece, and most of them came before: then nothing is copied.
    if (reader->readNext() == QXmlStreamReader::EndElement)
        return {};
    QString text;
    if (reader->isCharacters() && !reader->text().contains(QLatin1Char('\r'))) {
        text = sharedText(reader->text());
        if (reader->readNext() == QXmlStreamReader::EndElement)
            return text;
    }
    // The rest as the reader does it, with its refusal of elements.
    for (; !reader->isEndElement() && !reader->atEnd(); reader->readNext()) {
        if (reader->isCharacters() || reader->isEntityReference())
            text += reader->text();
        else if (reader->isStartElement())
            reader->raiseError(
                QCoreApplication::translate("data", "an element stands inside a text"));
    }
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

void readTextInto(QXmlStreamReader *reader, QString &field, const QString &fresh)
{
    if (field.isEmpty() || field == fresh) {
        field = readText(reader);
        return;
    }
    const QString name = reader->name().toString();
    const qint64 line = reader->lineNumber();
    const QString before = std::exchange(field, readText(reader));
    if (field != before)
        noteLeftOut(line, QCoreApplication::translate("data", "%1 a second time").arg(name));
}

QString sharedText(const QStringRef &text)
{
    if (text.isEmpty())
        return {};
    return sharedTexts ? sharedTexts->share(text) : copyOf(text);
}

textSharing::textSharing() { sharedTexts = std::make_unique<recentTexts>(); }

textSharing::~textSharing() { sharedTexts.reset(); }
