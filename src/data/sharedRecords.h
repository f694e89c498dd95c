// The small records that several documents nest: options, persons, targets, files, the information
// block of a material, its manufacturers and suppliers.
#pragma once

#include "data/fieldTable.h"

// One typed setting. editable is "YES" where the user may change the value; any other text locks
// it.
class optionStruct : public attributeRecord<optionStruct>
{
public:
    static inline const QString element = QStringLiteral("option");
    static const fieldTable<optionStruct> &fields();

    QString editable;
    QString type; // the option's key
    QString value1;
    QString value2;
    QString unit;
    QString description; // the caption shown

    // A copy with the same six texts.
    std::unique_ptr<optionStruct> copy() const;
};

class optionsStruct : public listRecord<optionsStruct, optionStruct>
{
public:
    static inline const QString element = QStringLiteral("options");

    // The first option whose type equals the key (case counts), or null.
    optionStruct *findOption(const QString &key) const;

    // value1 of that option; empty when there is none.
    QString value(const QString &key) const;
};

class personStruct : public attributeRecord<personStruct>
{
public:
    static inline const QString element = QStringLiteral("person");
    static const fieldTable<personStruct> &fields();

    QString type; // the PERSON_ key of the role
    QString workingBegin;
    QString position;
    QString etat;
    QString name;
    QString department;
    QString link;
    QString phone;
};

class personsStruct : public listRecord<personsStruct, personStruct>
{
public:
    static inline const QString element = QStringLiteral("persons");
};

class targetStruct : public attributeRecord<targetStruct>
{
public:
    static inline const QString element = QStringLiteral("target");
    static const fieldTable<targetStruct> &fields();

    QString priorytet;
    QString type;
    QString name;
    QString description;
};

class targetsStruct : public listRecord<targetsStruct, targetStruct>
{
public:
    static inline const QString element = QStringLiteral("targets");
};

// One attached file: its kind (FILE_DATASHEET, ...) and its file name or link.
class fileStruct : public attributeRecord<fileStruct>
{
public:
    static inline const QString element = QStringLiteral("file");
    static const fieldTable<fileStruct> &fields();
    bool operator==(const fileStruct &other) const { return equalFields(*this, other, fields()); }

    QString type;
    QString name;
};

class filesStruct : public listRecord<filesStruct, fileStruct>
{
public:
    static inline const QString element = QStringLiteral("files");
    bool operator==(const filesStruct &other) const { return equalLists(*this, other); }
};

// Status, dates and RoHS state of a material.
class informationsStruct : public textRecord<informationsStruct>
{
public:
    static inline const QString element = QStringLiteral("information");
    static const fieldTable<informationsStruct> &fields();
    bool operator==(const informationsStruct &other) const
    {
        return equalFields(*this, other, fields());
    }

    QString status;
    QString added;
    QString checked;
    QString approved;
    QString rohsRequired;
    QString rohsProbability;
    QString comment;
    QString edited;
};

// What a manufacturer or a supplier of a material has in common: a name as in the firm register, a
// part or order number, a description and files. Self has: static const QString element.
template <class Self>
class sourceRecord : public xmlData
{
public:
    static const fieldTable<Self> &fields();

    QString name;
    QString partNo;
    QString description;
    filesStruct files;

    tagHandlerList tagHandlers()
    {
        static const std::vector<QString> tags = tagsOf(fields(), {filesStruct::element});
        return {&tags, this};
    }
    void readElement(QXmlStreamReader *reader)
    {
        noteOtherAttributes(reader);
        readChildren(reader, tagHandlers(), Self::element);
    }
    int readXml(QXmlStreamReader *reader) override { return readTag(reader, 0); }
    int readTag(QXmlStreamReader *reader, size_t place) override;
    int writeXml(QXmlStreamWriter *writer) const override;
    // One with the same texts and files.
    std::unique_ptr<Self> copy() const;
    friend bool operator==(const Self &a, const Self &b)
    {
        return equalFields(a, b, fields()) && a.files == b.files;
    }
};

class manufacturerStruct : public sourceRecord<manufacturerStruct>
{
public:
    static inline const QString element = QStringLiteral("manufacturer");
};

class manufacturersStruct : public listRecord<manufacturersStruct, manufacturerStruct>
{
public:
    static inline const QString element = QStringLiteral("manufacturers");
    bool operator==(const manufacturersStruct &other) const { return equalLists(*this, other); }
};

class supplierStruct : public sourceRecord<supplierStruct>
{
public:
    static inline const QString element = QStringLiteral("supplier");
};

class suppliersStruct : public listRecord<suppliersStruct, supplierStruct>
{
public:
    static inline const QString element = QStringLiteral("suppliers");
    bool operator==(const suppliersStruct &other) const { return equalLists(*this, other); }
};

extern template class sourceRecord<manufacturerStruct>;
extern template class sourceRecord<supplierStruct>;
