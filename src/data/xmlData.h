// The base of every record stored in a data file, and the reading loop that all of them share.
#pragma once

#include <QString>
#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <vector>

class xmlData
{
public:
    xmlData() = default;
    // Records are held by pointer: trees and indexes look at them.
    xmlData(const xmlData &) = delete;
    xmlData &operator=(const xmlData &) = delete;
    virtual ~xmlData() = default;

    // Called with the reader on the start element of a tag that this record registered. Takes that
    // element and returns 1. The base takes nothing and returns 0.
    virtual int readXml(QXmlStreamReader *reader);

    // Writes the record's element. Negative on failure, else 0 or the last child's result. The base
    // returns -1.
    virtual int writeXml(QXmlStreamWriter *writer) const;

    // readXml() for a reader on the tag that stands at this place of the registered ones: where a
    // record with a table of fields looks first.
    virtual int readTag(QXmlStreamReader *reader, size_t) { return readXml(reader); }
};

// The record's element as it stands in a file.
QByteArray contentOf(const xmlData &record);

// Which child elements a record accepts, in the order of the format, and the record whose readXml()
// takes them. The names are the same for every record of a class, so all share one list: a database
// holds a million records.
struct tagHandlerList
{
    const std::vector<QString> *tags;
    xmlData *handler;
};

// Reads on from the start element of a record until the end element endTag: every start element
// that is in the list goes to the handler, any other is walked through token by token, so that its
// own children are matched too. Returns 1 at endTag, -1 when the document ended first or the
// reader found an error.
int readChildren(QXmlStreamReader *reader, const tagHandlerList &handlers, const QString &endTag);

// The first index from 0 to count for which matches(index) holds, or count. Looks at start first
// and goes on from there, since elements mostly stand in the order of their table.
template <class Matches>
size_t findFrom(size_t start, size_t count, const Matches &matches)
{
    for (size_t i = start; i < count; ++i)
        if (matches(i))
            return i;
    for (size_t i = 0; i < start && i < count; ++i)
        if (matches(i))
            return i;
    return count;
}

// Reads on until a start element of that name, or until any when the name is empty; false when the
// document ended first or the reader found an error. A document type declaration is made an error:
// the program's files carry none, and refusing it keeps entity bombs and outside entities away.
bool readToElement(QXmlStreamReader *reader, const QString &name = {});

// The message of that refusal.
QString documentTypeRefused();
// What to say of a file in which a tag has thousands of attributes.
QString tooManyAttributes();

// The value of the first attribute with that local name, whatever its prefix; empty if none.
QString attributeValue(QXmlStreamReader *reader, const QString &localName);

// What a file holds that no record takes: saving what was read would lose it.
struct leftOutContent
{
    int count = 0;
    QStringList first; // the first few, each with its line

    // These, and how many more there are.
    QString text() const;
};

// While one lives, what readers leave out is noted in the content. Not nestable.
class leftOutWatch
{
public:
    explicit leftOutWatch(leftOutContent *content);
    ~leftOutWatch();
    leftOutWatch(const leftOutWatch &) = delete;
    leftOutWatch &operator=(const leftOutWatch &) = delete;
};

// Note the attributes of the element the reader stands on that have none of the names. Those of XML
// Schema say nothing about the content.
void noteOtherAttributes(QXmlStreamReader *reader, const std::vector<QString> &names = {});

// The text of the element the reader stands on, with line ends as LF, shared as below.
QString readText(QXmlStreamReader *reader);

// The same into a field. Of several such elements the last one counts; what another one of them
// gave the field, which has a text of its own to begin with, is noted as left out.
void readTextInto(QXmlStreamReader *reader, QString &field, const QString &fresh = {});

// The text, as a copy that is shared with earlier equal texts while a textSharing lives.
QString sharedText(const QStringRef &text);

// While one lives, the texts of a file that repeat (units, cases, codes, status words) take their
// memory once. Costs a fixed table; not nestable.
class textSharing
{
public:
    textSharing();
    ~textSharing();
    textSharing(const textSharing &) = delete;
    textSharing &operator=(const textSharing &) = delete;
};
