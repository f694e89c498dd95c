// What is known of firms beside their register, in a file of its own beside it: address, terms, and
// how a basket is written that a supplier's shop takes in. A firm is known by its name and, where
// several have it, by its tax number.
#pragma once

#include "data/documentStruct.h"
#include "data/fieldTable.h"

namespace fileKinds {
inline const fileKind firmDetails{QStringLiteral("kiv_mat_firm_details"),
                                  QStringLiteral("KIV_MAT_FIRM_DETAILS_1"),
                                  QStringLiteral("kiv_mat_firm_details.xsd")};
} // namespace fileKinds

// One column of a basket.
class basketColumnStruct : public attributeRecord<basketColumnStruct>
{
public:
    static inline const QString element = QStringLiteral("column");
    static const fieldTable<basketColumnStruct> &fields();
    bool operator==(const basketColumnStruct &other) const
    {
        return equalFields(*this, other, fields());
    }

    QString kind;    // what stands in it: a word of basketForm::kinds()
    QString caption; // in the first line, where there are captions
    QString text;    // of a column of kind "text", the same in each line
};

class basketColumnsStruct : public listRecord<basketColumnsStruct, basketColumnStruct>
{
public:
    static inline const QString element = QStringLiteral("basket");
    bool operator==(const basketColumnsStruct &other) const { return equalLists(*this, other); }
};

class firmDetailsStruct : public xmlData
{
public:
    static inline const QString element = QStringLiteral("details");
    static const fieldTable<firmDetailsStruct> &fields();

    QString name; // as in the register
    QString nip;  // tax number
    QString address;
    QString email;
    QString language;                            // of letters: pl, en, de, ...
    QString discount;                            // percent, from 0 to 100; none when empty
    QString separator = QStringLiteral("comma"); // comma, semicolon or tab
    QString captions = QStringLiteral("TAK");    // TAK: the first line holds the captions
    basketColumnsStruct basket;                  // the usual columns when there are none

    tagHandlerList tagHandlers();
    void readElement(QXmlStreamReader *reader);
    int readXml(QXmlStreamReader *reader) override { return readTag(reader, 0); }
    int readTag(QXmlStreamReader *reader, size_t place) override;
    int writeXml(QXmlStreamWriter *writer) const override;

    // Takes over all that the other one holds.
    void become(const firmDetailsStruct &other);
    std::unique_ptr<firmDetailsStruct> copy() const;
    bool operator==(const firmDetailsStruct &other) const
    {
        return equalFields(*this, other, fields()) && basket == other.basket;
    }
};

class kiv_mat_firmDetailsStruct : public documentStruct
{
public:
    kiv_mat_firmDetailsStruct();
    // It has no texts of its own.
    static const fieldTable<kiv_mat_firmDetailsStruct> &fields();

    std::vector<std::unique_ptr<firmDetailsStruct>> details;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
