// The set of BOM lists: their files, arranged in categories and groups.
#pragma once

#include "data/documentStruct.h"
#include "data/sharedRecords.h"

class fileGroup : public listRecord<fileGroup, fileStruct>
{
public:
    static inline const QString element = QStringLiteral("group");
    static const fieldTable<fileGroup> &fields();

    QString name;
};

class fileCategory : public listRecord<fileCategory, fileGroup>
{
public:
    static inline const QString element = QStringLiteral("category");
    static const fieldTable<fileCategory> &fields();

    QString name;
};

class kiv_mat_bomsStruct : public documentStruct
{
public:
    kiv_mat_bomsStruct();

    QString update;
    QString serverRelease;
    std::vector<std::unique_ptr<fileCategory>> categories;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
