// The firm register: the firms known as manufacturers and those known as suppliers. Materials name
// firms by their short name; the register holds no link to them.
#pragma once

#include "data/documentStruct.h"
#include "data/fieldTable.h"

class firmStruct : public textRecord<firmStruct>
{
public:
    static inline const QString element = QStringLiteral("firm");
    static const fieldTable<firmStruct> &fields();

    QString name = QStringLiteral("FIRM");
    QString fullname = QStringLiteral("FIRM SA");
    QString status = QStringLiteral("SZARY"); // SZARY, NIEBIESKI, ZIELONY or FIOLETOWY
    QString business;
    QString homepage = QStringLiteral("http://www");
    QString awatar = QStringLiteral("1"); // number of the picture
    QString nip;                          // tax number
};

class firmManufacturersStruct : public listRecord<firmManufacturersStruct, firmStruct>
{
public:
    static inline const QString element = QStringLiteral("manufacturers");
};

class firmSuppliersStruct : public listRecord<firmSuppliersStruct, firmStruct>
{
public:
    static inline const QString element = QStringLiteral("suppliers");
};

class kiv_mat_firmStruct : public documentStruct
{
public:
    kiv_mat_firmStruct();
    static const fieldTable<kiv_mat_firmStruct> &fields();

    firmManufacturersStruct manufacturers;
    firmSuppliersStruct suppliers;
    QString serverRelease;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
