#include "data/loaders.h"

#include "data/XmlValidator.h"
#include "data/configStruct.h"
#include "data/kiv_UpdateStruct.h"
#include "data/kiv_infoStruct.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "util/paths.h"
#include "util/progressFile.h"
#include "util/safeFile.h"

#include <QCoreApplication>
#include <QFileInfo>

int loadDocument(const QString &filePath, documentStruct *record, QString *error,
                 const progressFunction &progress)
{
    record->fileName = QFileInfo(filePath).fileName();
    record->filePath = filePath;
    // Not in text mode: that would drop bytes of UTF-16 files, and XML settles line ends itself.
    progressFile file(filePath, progress);
    if (QFileInfo::exists(filePath) && !QFileInfo(filePath).isFile()) {
        if (error)
            *error = QCoreApplication::translate("data", "is no file");
        return -1;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = file.errorString();
        return -1;
    }
    const textSharing sharing;
    QXmlStreamReader reader(&file);
    const QString &root = record->kind().root;
    if (readToElement(&reader, root)) {
        record->schemaLocation =
            attributeValue(&reader, QStringLiteral("noNamespaceSchemaLocation"));
        record->xsiNamespace = fileKinds::xsiNamespace;
        record->xsiType = attributeValue(&reader, QStringLiteral("type"));
        if (&record->kind() == &fileKinds::config
            && !validateXml(filePath, paths::schema(record->schemaLocation), true))
            return 1;
        readChildren(&reader, record->tagHandlers(), root);
    }
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError() && error)
        *error = QCoreApplication::translate("data", "line %1, column %2: %3")
                     .arg(reader.lineNumber())
                     .arg(reader.columnNumber())
                     .arg(file.tooManyAttributes() ? tooManyAttributes() : reader.errorString());
    return reader.hasError() ? -1 : 0;
}

int loadZp(const QString &filePath, kiv_mat_zpStruct *record)
{
    return loadDocument(filePath, record);
}

int loadDatabase(const QString &filePath, kiv_mat_databaseStruct *record)
{
    return loadDocument(filePath, record);
}

int loadFirm(const QString &filePath, kiv_mat_firmStruct *record)
{
    return loadDocument(filePath, record);
}

int loadConfig(const QString &filePath, configStruct *record)
{
    return loadDocument(filePath, record);
}

int loadBom(const QString &filePath, kiv_mat_bomStruct *record)
{
    return loadDocument(filePath, record);
}

int loadBoms(const QString &filePath, kiv_mat_bomsStruct *record)
{
    return loadDocument(filePath, record);
}

int loadInfo(const QString &filePath, kiv_infoStruct *record)
{
    return loadDocument(filePath, record);
}

int loadUpdate(const QString &filePath, kiv_UpdateStruct *record)
{
    return loadDocument(filePath, record);
}

std::unique_ptr<documentStruct> newDocument(const fileKind &kind)
{
    if (&kind == &fileKinds::order)
        return std::make_unique<kiv_mat_zpStruct>();
    if (&kind == &fileKinds::database)
        return std::make_unique<kiv_mat_databaseStruct>();
    if (&kind == &fileKinds::firm)
        return std::make_unique<kiv_mat_firmStruct>();
    if (&kind == &fileKinds::config)
        return std::make_unique<configStruct>();
    if (&kind == &fileKinds::bom)
        return std::make_unique<kiv_mat_bomStruct>();
    if (&kind == &fileKinds::boms)
        return std::make_unique<kiv_mat_bomsStruct>();
    if (&kind == &fileKinds::info)
        return std::make_unique<kiv_infoStruct>();
    return std::make_unique<kiv_UpdateStruct>();
}

int saveXmlNoEvents(const QString &filePath, const xmlData *record)
{
    safeFile file(filePath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return -1;
    QXmlStreamWriter writer(&file);
    writer.setCodec("UTF-8");
    writer.setAutoFormatting(true);
    writer.writeStartDocument(QStringLiteral("1.0"));
    const int result = record->writeXml(&writer);
    writer.writeEndDocument();
    if (result < 0)
        return result;
    // A character that XML cannot hold silences the writer for the rest of the document.
    if (writer.hasError() || !file.commit())
        return -1;
    return result;
}

int saveXml(const QString &filePath, const xmlData *record, const progressFunction &progress)
{
    const int result = saveXmlNoEvents(filePath, record);
    if (progress)
        progress(1, 1);
    return result;
}
