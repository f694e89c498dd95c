#include "shell/cleanScript.h"

#include "data/kiv_UpdateStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "util/desktop.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace {

using cleanScript::environment;

// Where a path leads, links of its folders followed; a link itself goes by its own place. Without a
// slash at the end, empty when the folder does not exist.
QString placeOf(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + info.fileName();
}

bool isWithin(const QString &place, const QString &folder)
{
    return !folder.isEmpty() && place.startsWith(folder + QLatin1Char('/'));
}

// What lies within the program's or the temporary folder, but neither the program's folder nor one
// that holds it.
bool mayRemove(const QString &path, const environment &env)
{
    const QString place = placeOf(path);
    const QString program = placeOf(env.programDir);
    return (isWithin(place, program) || isWithin(place, placeOf(env.temporaryDir)))
           && place != program && !isWithin(program, place);
}

QString removed(bool exists, const QString &path, const environment &env,
                bool (*removePath)(const QString &))
{
    if (!exists)
        return messages::notExists();
    return mayRemove(path, env) && removePath(path) ? messages::ok() : messages::error();
}

QString removeFile(const QString &path, const environment &env)
{
    const QFileInfo info(path);
    // A link is removed itself, wherever it leads.
    return removed(info.isFile() || info.isSymLink(), path, env,
                   [](const QString &file) { return QFile::remove(file); });
}

QString removeDirectory(const QString &path, const environment &env)
{
    return removed(!path.isEmpty() && QDir(path).exists(), path, env, [](const QString &folder) {
        // What a link leads to is not removed through it.
        return !QFileInfo(folder).isSymLink() && files::removeFolder(folder);
    });
}

QString openHelp(const QString &path, const environment &env)
{
    return QFileInfo(path).isFile() && env.openLink(QLatin1String("file:///") + path)
               ? messages::ok()
               : messages::error();
}

QString loadPreviousConfig(const QString &path, const environment &env)
{
    return !path.isEmpty() && env.loadConfig(path) ? messages::ok() : messages::error();
}

struct handler
{
    QLatin1String command;
    const char *text;
    QString (*run)(const QString &path, const environment &env);
};

constexpr handler handlers[] = {
    {updateCommand::removeFile, QT_TRANSLATE_NOOP("log", "Remove file"), removeFile},
    {updateCommand::removeDirectory, QT_TRANSLATE_NOOP("log", "Remove directory"), removeDirectory},
    {updateCommand::openHelp, QT_TRANSLATE_NOOP("log", "Open link"), openHelp},
    {updateCommand::loadPrevConfig, QT_TRANSLATE_NOOP("log", "Load config file"),
     loadPreviousConfig},
};

} // namespace

namespace cleanScript {

environment ofProgram()
{
    return {paths::programDir(), QDir::tempPath(),
            [](const QString &url) {
                return desktop::mayFollow(QUrl(url)) && desktop::followLink(QUrl(url));
            },
            [](const QString &path) { return programData::instance().replaceConfiguration(path); }};
}

void run(const environment &env)
{
    const QString script = env.programDir + QLatin1String("/cleanScript.xml");
    if (!QFileInfo::exists(script))
        return;
    userPrompts().log(QCoreApplication::translate("log", "Clean after update")
                      + QLatin1String("<br>"));
    kiv_UpdateStruct commands;
    loadUpdate(script, &commands);
    for (const auto &command : commands.commands) {
        for (const handler &known : handlers) {
            if (command->name != known.command)
                continue;
            const QString path = command->from.isEmpty()
                                     ? QString()
                                     : QDir(env.programDir).absoluteFilePath(command->from);
            userPrompts().log(QCoreApplication::translate("log", known.text) + QLatin1String("<b>")
                              + path.toHtmlEscaped() + QLatin1String("</b> ") + known.run(path, env)
                              + QLatin1String(" <br>"));
        }
    }
    files::removeFile(script);
}

} // namespace cleanScript
