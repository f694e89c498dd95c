#include "report/docExport.h"

#include "tools/KivExe.h"
#include "tools/helpers.h"
#include "util/files.h"
#include "util/prompts.h"
#include "util/scratch.h"

#include <QFileInfo>

namespace {

constexpr int timeoutMs = 10000;

bool convert(const QStringList &arguments, const std::function<void(childRunner *)> &running)
{
    KivExe::exe converter;
    QObject::connect(&converter, &KivExe::exe::updateLog, &converter, [](const QString &text) {
        userPrompts().log(text.toHtmlEscaped() + QLatin1String("<br>"));
    });
    converter.start(arguments, timeoutMs);
    if (running)
        running(&converter);
    const int result = converter.wait();
    if (running)
        running(nullptr);
    return result == 0;
}

} // namespace

bool writeDoc(const QString &html, const QString &path, const QString &templateFile,
              const std::function<void(childRunner *)> &running)
{
    scratch::folder();
    const QString page = files::temporaryFileName() + QLatin1String(".html");
    // The converters work in another folder.
    const QString document = helpers::quoted(QFileInfo(path).absoluteFilePath());
    const bool converted = files::writeText(page, html)
                           && convert({helpers::htmlToDocPdf, QStringLiteral("--type"),
                                       QStringLiteral("doc"), QStringLiteral("--out"), document,
                                       QStringLiteral("--in"), helpers::quoted(page)},
                                      running);
    files::removeFile(page);
    if (!converted)
        return false;
    convert({helpers::templateDoc, QStringLiteral("--temp"), helpers::quoted(templateFile),
             QStringLiteral("--out"), document, QStringLiteral("--in"), document},
            running);
    return true;
}
