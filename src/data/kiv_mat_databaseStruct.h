// The material database: groups of materials, each material with its parameters, prices, stock,
// status, manufacturers and suppliers. Materials also stand in BOM lists, in a short form.
#pragma once

#include "data/documentStruct.h"
#include "data/sharedRecords.h"

class materialStruct : public xmlData
{
public:
    static inline const QString element = QStringLiteral("material");
    static const fieldTable<materialStruct> &fields();
    static const fieldTable<materialStruct> &shortFields(); // of a BOM line

    QString d_ktm; // the material's key
    QString d_cpv;
    QString d_name;
    QString d_description;
    QString d_value;
    QString d_case;
    QString d_power;
    QString d_voltage;
    QString d_current;
    QString d_tolerance;
    QString d_otherParameters;
    QString d_price;        // PLN
    QString d_averagePrice; // PLN
    QString d_inWarehouse;
    QString d_unit;
    QString d_active = QStringLiteral("NIE"); // TAK or NIE
    QString d_libraryRef;
    QString d_footprintRef;
    QString d_footprintRef2;
    QString d_footprintRef3;
    QString d_footprintRef4;
    QString d_footprintRef5;
    QString d_footprintRef6;
    QString d_quantity;
    QString d_designator; // read everywhere, written in BOM lists only

    informationsStruct information;
    manufacturersStruct manufacturers;
    suppliersStruct suppliers;

    tagHandlerList tagHandlers();
    void readElement(QXmlStreamReader *reader);
    int readXml(QXmlStreamReader *reader) override { return readTag(reader, 0); }
    int readTag(QXmlStreamReader *reader, size_t place) override;
    int writeXml(QXmlStreamWriter *writer) const override;

    // The form of a BOM line: its short fields only.
    int writeShortXml(QXmlStreamWriter *writer) const;

    // A material of its own with the same content.
    std::unique_ptr<materialStruct> copy() const;

    // Equality of everything that a database file holds of the material.
    bool operator==(const materialStruct &other) const;
};

class d_groupStruct : public listRecord<d_groupStruct, materialStruct>
{
public:
    static inline const QString element = QStringLiteral("d_group");
    static const fieldTable<d_groupStruct> &fields();
    static const fieldTable<d_groupStruct> &readOnlyFields();

    QString name;
    QString cpv;
    QString ktm; // read from old files, never written
};

class kiv_mat_databaseStruct : public documentStruct
{
public:
    kiv_mat_databaseStruct();
    static const fieldTable<kiv_mat_databaseStruct> &fields();

    QString update;        // date of the last change, free text
    QString serverRelease; // release number on the server
    std::vector<std::unique_ptr<d_groupStruct>> groups;
    bool writeEmptyGroups = true;

    // Number of materials in all groups.
    int materialCount() const;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
