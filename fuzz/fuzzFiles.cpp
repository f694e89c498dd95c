// Any bytes as a file: no loader, validator or repair crashes or hangs, and what is valid is read,
// saved, still valid, and saved the same way again.
#include "data/XmlValidator.h"
#include "data/documentStruct.h"
#include "data/loaders.h"
#include "data/repair.h"
#include "fuzzSupport.h"
#include "util/cleanHtml.h"

#include <QGuiApplication>

namespace {

using fuzzSupport::require;

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzzSupport::begin<QGuiApplication>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path =
        fuzzSupport::written("f.xml", QByteArray(reinterpret_cast<const char *>(data), int(size)));

    const fileKind *kind = fileKinds::ofFile(path);
    if (!kind)
        kind = &fileKinds::order;
    const QString schema = paths::schema(kind->schema);
    const bool valid = validateXml(path, schema, false);
    const auto document = newDocument(*kind);
    const int loaded = loadDocument(path, document.get());
    const repairedFile repaired = repairFile(path);
    if (repaired.document)
        require(saveXmlNoEvents(fuzzSupport::folder() + QLatin1String("/r.xml"),
                                repaired.document.get(), nullptr, {}, saveRule::onlyGood)
                    == 0,
                "what was repaired can be saved");
    cleanHtml(QString::fromUtf8(reinterpret_cast<const char *>(data), int(size)));
    // A configuration may name another schema and be refused by that.
    if (!valid || loaded == 1)
        return 0;

    require(loaded == 0, "what is valid is read");
    // A field that stands twice is valid, and one of the two is lost.
    document->leftOut = {};
    const QString saved = fuzzSupport::folder() + QLatin1String("/1.xml");
    const QString again = fuzzSupport::folder() + QLatin1String("/2.xml");
    require(saveXml(saved, document.get()) == 0, "what was read is saved");
    require(validateXml(saved, schema, false), "what was saved is valid");
    const auto second = newDocument(*kind);
    require(loadDocument(saved, second.get()) == 0, "what was saved is read");
    require(saveXml(again, second.get()) == 0, "it is saved again");
    require(read(saved) == read(again), "twice saved is the same");
    return 0;
}
