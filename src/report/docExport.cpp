#include "report/docExport.h"

#include "tools/KivExe.h"
#include "tools/helpers.h"
#include "tools/officeConverter.h"
#include "util/files.h"
#include "util/prompts.h"
#include "util/scratch.h"

#include <QCoreApplication>
#include <QDir>
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

QString missingConverter()
{
    const QFileInfo converter(helpers::path(helpers::htmlToDocPdf));
    if (!converter.exists())
        return QCoreApplication::translate("docExport",
                                           "The converter %1 is not there, which makes documents. "
                                           "Installing the program again brings it back.")
            .arg(QDir::toNativeSeparators(converter.filePath()));
    // What all launchers of LibreOffice share lies beside them; a converter of somebody's own needs
    // none of it.
    const bool isLauncher = converter.dir().exists(QStringLiteral("libreoffice.sh"));
    if (isLauncher && officeConverter::program().isEmpty())
        return QCoreApplication::translate(
            "docExport", "Documents are made by LibreOffice, which is not installed: install the "
                         "package libreoffice-writer. A report as PDF or HTML needs nothing.");
    return {};
}

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
