// The set of BOM lists: their files, arranged in categories and groups.
#pragma once

#include "data/documentStruct.h"
#include "data/sharedRecords.h"

#include <QStringList>

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
    static const fieldTable<kiv_mat_bomsStruct> &fields();

    QString update;
    QString serverRelease;
    std::vector<std::unique_ptr<fileCategory>> categories;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};

// --- The files of a set ---

// The file that an entry of a set of BOM lists names: relative names start at the folder of the
// set's own file, setPath. Empty when the entry has no name.
QString pathOf(const fileStruct &entry, const QString &setPath);
// The files of all its groups, in the order of the set, each once.
QStringList filesOf(const kiv_mat_bomsStruct &boms, const QString &setPath);
