// Update and clean-up scripts: commands with two arguments, carried out in file order.
#pragma once

#include "data/documentStruct.h"
#include "data/fieldTable.h"

class commandStruct : public textRecord<commandStruct>
{
public:
    static inline const QString element = QStringLiteral("command");
    static const fieldTable<commandStruct> &fields();

    QString name; // one of updateCommand
    QString from; // source path, link or file
    QString to;   // target path; empty when unused
};

class kiv_UpdateStruct : public documentStruct
{
public:
    kiv_UpdateStruct();

    std::vector<std::unique_ptr<commandStruct>> commands;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
