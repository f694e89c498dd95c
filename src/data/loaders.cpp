#include "data/loaders.h"

#include "data/XmlValidator.h"
#include "data/configStruct.h"
#include "data/kiv_UpdateStruct.h"
#include "data/kiv_infoStruct.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_offersStruct.h"
#include "data/kiv_mat_orderStatesStruct.h"
#include "data/kiv_mat_reservationsStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/progressFile.h"
#include "util/prompts.h"
#include "util/safeFile.h"
#include "util/scratch.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

// What the root is silent about keeps its default: an empty version would not open again.
void readRootAttributes(QXmlStreamReader &reader, documentStruct *record)
{
    const auto take = [attributes = reader.attributes()](const QString &name, QString &value) {
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (attribute.name() == name) {
                value = attribute.value().toString();
                return;
            }
        }
    };
    take(QStringLiteral("noNamespaceSchemaLocation"), record->schemaLocation);
    take(QStringLiteral("type"), record->xsiType);
    noteOtherAttributes(&reader,
                        {QStringLiteral("noNamespaceSchemaLocation"), QStringLiteral("type")});
}

} // namespace

int loadQuietly(const QString &filePath, documentStruct *record, QString *error,
                const progressFunction &progress)
{
    record->fileName = QFileInfo(filePath).fileName();
    record->filePath = filePath;
    // Not in text mode: that would drop bytes of UTF-16 files, and XML settles line ends itself.
    progressFile file(filePath, progress);
    if ((QFileInfo::exists(filePath) && !QFileInfo(filePath).isFile())
        || !file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = openingFault(file);
        return -1;
    }
    const QString fault = beginningFault(file);
    if (!fault.isEmpty()) {
        if (error)
            *error = fault;
        return -1;
    }
    const textSharing sharing;
    record->leftOut = {};
    const leftOutWatch watch(&record->leftOut);
    QXmlStreamReader reader(&file);
    const QString &root = record->kind().root;
    if (readToElement(&reader, root)) {
        readRootAttributes(reader, record);
        if (&record->kind() == &fileKinds::config
            && !validateXml(filePath, paths::schema(record->schemaLocation), true))
            return 1;
        readChildren(&reader, record->tagHandlers(), root);
    }
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError() && error)
        *error = readerFault(reader, file, record->kind().schema);
    return reader.hasError() ? -1 : 0;
}

int loadDocument(const QString &filePath, documentStruct *record, QString *error,
                 const progressFunction &progress)
{
    record->leftOut = {};
    const int result = loadQuietly(filePath, record, error, progress);
    if (record->leftOut.count > 0)
        userPrompts().listError(messages::failed(
            QCoreApplication::translate("data", "Unknown content, lost when saved: "), filePath,
            record->leftOut.text()));
    return result;
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
    if (&kind == &fileKinds::firmDetails)
        return std::make_unique<kiv_mat_firmDetailsStruct>();
    if (&kind == &fileKinds::config)
        return std::make_unique<configStruct>();
    if (&kind == &fileKinds::bom)
        return std::make_unique<kiv_mat_bomStruct>();
    if (&kind == &fileKinds::boms)
        return std::make_unique<kiv_mat_bomsStruct>();
    if (&kind == &fileKinds::reservations)
        return std::make_unique<kiv_mat_reservationsStruct>();
    if (&kind == &fileKinds::orderStates)
        return std::make_unique<kiv_mat_orderStatesStruct>();
    if (&kind == &fileKinds::offers)
        return std::make_unique<kiv_mat_offersStruct>();
    if (&kind == &fileKinds::info)
        return std::make_unique<kiv_infoStruct>();
    return std::make_unique<kiv_UpdateStruct>();
}

namespace {

int writeFile(const QString &filePath, const xmlData *record, QString *error,
              const progressFunction &progress,
              const std::function<bool(const QString &temporaryPath)> &check)
{
    scratch::clearLeftSaves(filePath);
    safeFile file(filePath, progress);
    const auto failed = [&] {
        if (error && error->isEmpty())
            *error = file.errorString();
        return -1;
    };
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return failed();
    QXmlStreamWriter writer(&file);
    writer.setCodec("UTF-8");
    writer.setAutoFormatting(true);
    writer.writeStartDocument(QStringLiteral("1.0"));
    const int result = record->writeXml(&writer);
    writer.writeEndDocument();
    if (result < 0)
        return result;
    // A character that XML cannot hold silences the writer for the rest of the document.
    if (writer.hasError() && !file.failed() && error)
        *error =
            QCoreApplication::translate("data", "a text has a character that no file can hold");
    if (writer.hasError() || !file.commit(check))
        return failed();
    return result;
}

// What keeps a file from opening; nothing when it opens. Without a schema nothing opens, and
// nothing can be said against the file.
QString faultOf(const QString &path, const documentStruct &document,
                const progressFunction &progress)
{
    const QString schema = paths::schema(
        &document.kind() == &fileKinds::config ? document.schemaLocation : document.kind().schema);
    XmlValidator validator;
    if (validator.validate(path, schema, false, progress) || !validator.details().schemaLoaded)
        return {};
    return validator.fault();
}

} // namespace

int saveXmlNoEvents(const QString &filePath, const xmlData *record, QString *error,
                    const progressFunction &progress, saveRule rule)
{
    const auto *document = dynamic_cast<const documentStruct *>(record);
    if (!document || rule == saveRule::whatever)
        return writeFile(filePath, record, error, progress, {});
    if (document->leftOut.count > 0) {
        if (error)
            *error = QCoreApplication::translate("data", "it would lose %1")
                         .arg(document->leftOut.text());
        return -1;
    }
    // Writing and checking take about the same time.
    const auto half = [&progress](int before) {
        if (!progress)
            return progressFunction();
        return progressFunction([&progress, before](long long done, long long total) {
            return progress(before * total + done, 2 * total);
        });
    };
    return writeFile(filePath, record, error, half(0), [&](const QString &path) {
        const QString fault = faultOf(path, *document, half(1));
        const bool good =
            fault.isEmpty()
            || (rule == saveRule::notOverGood
                && (!QFileInfo::exists(filePath) || !faultOf(filePath, *document, {}).isEmpty()));
        if (!good && error)
            *error = QCoreApplication::translate("data", "it would not open again: %1").arg(fault);
        return good;
    });
}

int saveXml(const QString &filePath, const xmlData *record, const progressFunction &progress)
{
    const int result = saveXmlNoEvents(filePath, record, nullptr, progress);
    if (progress)
        progress(1, 1);
    return result;
}
