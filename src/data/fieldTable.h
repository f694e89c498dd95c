// A record says its text fields once, in a table in file order; reading, writing, comparing, tree
// rows, export columns and report cells all walk that table. The templates below make the four
// shapes of record out of such tables: text elements, attributes, lists, and both of the latter.
#pragma once

#include "data/xmlData.h"

#include <memory>

// One text field: its element or attribute name in files, where it is kept, and the function that
// returns its caption (null where nothing shows one).
template <class Record>
struct textField
{
    QString name;
    QString Record::*member;
    QString (*label)() = nullptr;
};

template <class Record>
using fieldTable = std::vector<textField<Record>>;

// The names of a table's fields, followed by those of child records: what a record registers.
template <class Record>
std::vector<QString> tagsOf(const fieldTable<Record> &fields,
                            const std::vector<QString> &children = {})
{
    std::vector<QString> tags;
    for (const auto &field : fields)
        tags.push_back(field.name);
    tags.insert(tags.end(), children.begin(), children.end());
    return tags;
}

// Takes the element the reader stands on into its field, which is looked for from place on; false,
// with nothing read, when no field has that name.
template <class Record>
bool readField(QXmlStreamReader *reader, Record &record, const fieldTable<Record> &fields,
               size_t place)
{
    const size_t found =
        findFrom(place, fields.size(), [&](size_t i) { return reader->name() == fields[i].name; });
    if (found == fields.size())
        return false;
    static const Record fresh;
    readTextInto(reader, record.*fields[found].member, fresh.*fields[found].member);
    return true;
}

template <class Record>
void writeFields(QXmlStreamWriter *writer, const Record &record, const fieldTable<Record> &fields)
{
    for (const auto &field : fields)
        writer->writeTextElement(field.name, record.*field.member);
}

// Reads the fields from the attributes of the element the reader stands on.
template <class Record>
void readAttributes(QXmlStreamReader *reader, Record &record, const fieldTable<Record> &fields)
{
    for (const auto &field : fields)
        record.*field.member = attributeValue(reader, field.name);
}

template <class Record>
void writeAttributes(QXmlStreamWriter *writer, const Record &record,
                     const fieldTable<Record> &fields)
{
    for (const auto &field : fields)
        writer->writeAttribute(field.name, record.*field.member);
}

template <class Record>
bool equalFields(const Record &a, const Record &b, const fieldTable<Record> &fields)
{
    for (const auto &field : fields)
        if (a.*field.member != b.*field.member)
            return false;
    return true;
}

template <class Record>
void copyFields(Record &to, const Record &from, const fieldTable<Record> &fields)
{
    for (const auto &field : fields)
        to.*field.member = from.*field.member;
}

// A new child at the end of the list, filled from the element the reader stands on.
template <class Child>
void readAppended(QXmlStreamReader *reader, std::vector<std::unique_ptr<Child>> &list)
{
    list.push_back(std::make_unique<Child>());
    list.back()->readElement(reader);
}

// Writes the children in order; stops at the first negative result. Returns the last result.
template <class Child>
int writeAll(QXmlStreamWriter *writer, const std::vector<std::unique_ptr<Child>> &list)
{
    int result = 0;
    for (const auto &child : list) {
        result = child->writeXml(writer);
        if (result < 0)
            break;
    }
    return result;
}

// A record whose element holds text elements only.
// Self has: static const QString element; static const fieldTable<Self> &fields();
template <class Self>
class textRecord : public xmlData
{
public:
    tagHandlerList tagHandlers()
    {
        static const std::vector<QString> tags = tagsOf(Self::fields());
        return {&tags, this};
    }
    // Takes the whole element, the reader standing on its start.
    void readElement(QXmlStreamReader *reader)
    {
        noteOtherAttributes(reader);
        readChildren(reader, tagHandlers(), Self::element);
    }
    int readXml(QXmlStreamReader *reader) override { return readTag(reader, 0); }
    int readTag(QXmlStreamReader *reader, size_t place) override
    {
        if (!readField(reader, static_cast<Self &>(*this), Self::fields(), place))
            reader->readNext();
        return 1;
    }
    int writeXml(QXmlStreamWriter *writer) const override
    {
        writer->writeStartElement(Self::element);
        writeFields(writer, static_cast<const Self &>(*this), Self::fields());
        writer->writeEndElement();
        return 0;
    }
};

// A record whose element is empty and keeps its fields as attributes. Self as above.
template <class Self>
class attributeRecord : public xmlData
{
public:
    void readElement(QXmlStreamReader *reader) { readXml(reader); }
    int readXml(QXmlStreamReader *reader) override
    {
        static const std::vector<QString> names = tagsOf(Self::fields());
        noteOtherAttributes(reader, names);
        readAttributes(reader, static_cast<Self &>(*this), Self::fields());
        reader->readNext();
        return 1;
    }
    int writeXml(QXmlStreamWriter *writer) const override
    {
        writer->writeEmptyElement(Self::element);
        writeAttributes(writer, static_cast<const Self &>(*this), Self::fields());
        return 0;
    }
};

// A record whose element holds a list of child records of one kind, and may carry attributes.
// Self has: static const QString element, and optionally static const fieldTable<Self> &fields()
// (the attributes written) and static const fieldTable<Self> &readOnlyFields() (attributes that
// older files carry: read, never written).
template <class Self, class Child>
class listRecord : public xmlData
{
public:
    std::vector<std::unique_ptr<Child>> items;

    Child *append(std::unique_ptr<Child> child)
    {
        items.push_back(std::move(child));
        return items.back().get();
    }
    tagHandlerList tagHandlers()
    {
        static const std::vector<QString> tags{Child::element};
        return {&tags, this};
    }
    void readElement(QXmlStreamReader *reader)
    {
        static const std::vector<QString> names = attributeNames();
        noteOtherAttributes(reader, names);
        if constexpr (requires { Self::fields(); })
            readAttributes(reader, self(), Self::fields());
        if constexpr (requires { Self::readOnlyFields(); })
            readAttributes(reader, self(), Self::readOnlyFields());
        readChildren(reader, tagHandlers(), Self::element);
    }
    int readXml(QXmlStreamReader *reader) override
    {
        if (reader->name() == Child::element)
            readAppended(reader, items);
        else
            reader->readNext();
        return 1;
    }
    int writeXml(QXmlStreamWriter *writer) const override
    {
        writer->writeStartElement(Self::element);
        if constexpr (requires { Self::fields(); })
            writeAttributes(writer, static_cast<const Self &>(*this), Self::fields());
        const int result = writeAll(writer, items);
        if (result >= 0)
            writer->writeEndElement();
        return result;
    }

private:
    static std::vector<QString> attributeNames()
    {
        if constexpr (requires { Self::readOnlyFields(); })
            return tagsOf(Self::fields(), tagsOf(Self::readOnlyFields()));
        else if constexpr (requires { Self::fields(); })
            return tagsOf(Self::fields());
        else
            return {};
    }
    Self &self() { return static_cast<Self &>(*this); }
};

// The field-by-field and child-by-child equality of two lists.
template <class List>
bool equalLists(const List &a, const List &b)
{
    if (a.items.size() != b.items.size())
        return false;
    for (size_t i = 0; i < a.items.size(); ++i)
        if (!(*a.items[i] == *b.items[i]))
            return false;
    return true;
}
