#include "data/documentStruct.h"

#include "util/progressFile.h"

#include <QFileInfo>

namespace fileKinds {

const fileKind *ofFile(const QString &filePath)
{
    progressFile file(filePath, {});
    // A pipe or a device would be waited for.
    if (!QFileInfo(filePath).isFile() || !file.open(QIODevice::ReadOnly))
        return nullptr;
    QXmlStreamReader reader(&file);
    if (!readToElement(&reader))
        return nullptr;
    for (const fileKind *kind : {&order, &database, &firm, &config, &bom, &boms, &info, &update})
        if (reader.name() == kind->root)
            return kind;
    return nullptr;
}

} // namespace fileKinds

documentStruct::documentStruct(const fileKind &kind)
    : schemaLocation(kind.schema)
    , xsiNamespace(fileKinds::xsiNamespace)
    , xsiType(kind.xsiType)
    , m_kind(kind)
{
}

int documentStruct::writeXml(QXmlStreamWriter *writer) const
{
    writer->writeStartElement(m_kind.root);
    writer->writeAttribute(QStringLiteral("xsi:noNamespaceSchemaLocation"), schemaLocation);
    writer->writeAttribute(QStringLiteral("xmlns:xsi"), xsiNamespace);
    writer->writeAttribute(QStringLiteral("xsi:type"), xsiType);
    const int result = writeContent(writer);
    if (result >= 0)
        writer->writeEndElement();
    return result;
}
