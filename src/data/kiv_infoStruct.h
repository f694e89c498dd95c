// The information file of the update server: the releases that it offers and where to get them.
#pragma once

#include "data/documentStruct.h"
#include "data/fieldTable.h"

class kiv_infoStruct : public documentStruct
{
public:
    kiv_infoStruct();

    static const fieldTable<kiv_infoStruct> &fields();

    QString kivVersion;
    QString kivBuild;
    QString bomServerRelease;
    QString firmServerRelease;
    QString serviceServerRelease;
    QString wearhouseServerRelease; // so spelled in files
    QString mechanicsServerRelease;
    QString kivServerLink;
    QString bomServerLink;
    QString firmServerLink;
    QString serviceServerLink;
    QString wearhouseServerLink;
    QString mechanicsServerLink;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override { return readTag(reader, 0); }
    int readTag(QXmlStreamReader *reader, size_t place) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
