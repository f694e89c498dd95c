// What the fuzz targets have in common.
#pragma once

#include "data/xmlData.h"
#include "util/paths.h"
#include "util/prompts.h"

#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamWriter>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace fuzzSupport {

// Ends the run as a finding.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

// The one application; its program folder is the source tree, and nothing is shown.
template <class Application>
void begin()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static Application application(argc, argv);
    static prompts nothingShown;
    installPrompts(&nothingShown);
    paths::setProgramDir(QStringLiteral(KIVZP_SOURCE_DIR));
}

inline QString folder()
{
    static const QTemporaryDir made;
    return made.path();
}

// The path of a file with that content.
inline QString written(const char *name, const QByteArray &content)
{
    QString path = folder() + QLatin1Char('/') + QLatin1String(name);
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
            "the input can be written");
    return path;
}

// A record as it would stand in its file.
inline QByteArray saved(const xmlData &record)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    record.writeXml(&writer);
    return bytes;
}

} // namespace fuzzSupport
