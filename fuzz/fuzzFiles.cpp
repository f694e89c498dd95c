// Any bytes as a file: no loader, validator or repair crashes or hangs, and what is valid is read,
// saved, still valid, and saved the same way again.
#include "data/XmlValidator.h"
#include "data/documentStruct.h"
#include "data/loaders.h"
#include "data/repair.h"
#include "util/cleanHtml.h"
#include "util/paths.h"
#include "util/prompts.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdio>

namespace {

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void silence(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(silence);
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static QGuiApplication application(argc, argv);
    static prompts nothingShown;
    installPrompts(&nothingShown);
    paths::setProgramDir(QStringLiteral(KIVZP_SOURCE_DIR));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("f.xml"));
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "the input can be written");
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.close();

    const fileKind *kind = fileKinds::ofFile(path);
    if (!kind)
        kind = &fileKinds::order;
    const QString schema = paths::schema(kind->schema);
    const bool valid = validateXml(path, schema, false);
    const auto document = newDocument(*kind);
    const int loaded = loadDocument(path, document.get());
    const repairedFile repaired = repairFile(path);
    if (repaired.document)
        require(saveXmlNoEvents(folder.filePath(QStringLiteral("r.xml")), repaired.document.get(),
                                nullptr, {}, saveRule::onlyGood)
                    == 0,
                "what was repaired can be saved");
    cleanHtml(QString::fromUtf8(reinterpret_cast<const char *>(data), int(size)));
    // A configuration may name another schema and be refused by that.
    if (!valid || loaded == 1)
        return 0;

    require(loaded == 0, "what is valid is read");
    require(document->leftOut.count == 0, "what is valid is taken by the records");
    const QString saved = folder.filePath(QStringLiteral("1.xml"));
    const QString again = folder.filePath(QStringLiteral("2.xml"));
    require(saveXml(saved, document.get()) == 0, "what was read is saved");
    require(validateXml(saved, schema, false), "what was saved is valid");
    const auto second = newDocument(*kind);
    require(loadDocument(saved, second.get()) == 0, "what was saved is read");
    require(saveXml(again, second.get()) == 0, "it is saved again");
    require(read(saved) == read(again), "twice saved is the same");
    return 0;
}
