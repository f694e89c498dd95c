// A BOM list: the materials of one board with their quantities and designators.
#pragma once

#include "data/kiv_mat_databaseStruct.h"

class kiv_mat_bomStruct : public documentStruct
{
public:
    kiv_mat_bomStruct();
    static const fieldTable<kiv_mat_bomStruct> &fields();

    QString update;
    // One per line; the full reader of materials fills them, only the short form is written.
    std::vector<std::unique_ptr<materialStruct>> materials;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
