// helpers: where the helper programs are. download, upload, pack, unpack: what they do for the
// program.
#include "cli/arguments.h"

#include "data/configStruct.h"
#include "database/materialFiles.h"
#include "tools/KivScp.h"
#include "tools/curl_download.h"
#include "tools/helpers.h"
#include "tools/hostKeys.h"
#include "tools/zip_compress.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace cli {

namespace {

// Exit codes of curl and unzip that say the target could not be written.
constexpr int curlNotWritten = 23;
constexpr int unzipDiskFull = 50;

// What the helper says goes to standard error as it comes.
template <class Runner>
void showProgress(const Runner &runner)
{
    QObject::connect(&runner, &Runner::updateProgress, &runner, [](const QString &text) {
        err() << text << '\n' << Qt::flush;
    });
}

// From the environment, where other users do not see it.
QString archivePassword() { return qEnvironmentVariable("KIVZP_ARCHIVE_PASSWORD"); }

int runHelpers(const QStringList &arguments)
{
    parser options(helpersCommand, QString(), 0, 0);
    if (!options.accept(arguments))
        return options.code();
    int result = done;
    for (const QString &name : helpers::all()) {
        const QString path = helpers::path(name);
        if (QFileInfo(path).isExecutable()) {
            out() << path << ": " << QCoreApplication::translate("cli", "found") << '\n';
        } else {
            err() << path << ": " << QCoreApplication::translate("cli", "not found") << '\n';
            result = refused;
        }
    }
    out() << Qt::flush;
    err() << Qt::flush;
    return result;
}

int runDownload(const QStringList &arguments)
{
    parser options(downloadCommand, QStringLiteral("ADDRESS FILE"), 2, 2);
    if (!options.accept(arguments))
        return options.code();
    curl_download runner;
    showProgress(runner);
    runner.start(options.positionalArguments().at(0), options.positionalArguments().at(1));
    if (runner.wait() == curlNotWritten)
        return notWritten;
    return runner.failed() ? refused : done;
}

int runPack(const QStringList &arguments)
{
    parser options(packCommand, QStringLiteral("FOLDER ARCHIVE"), 2, 2);
    if (!options.accept(arguments))
        return options.code();
    zip_compress runner;
    showProgress(runner);
    runner.compress(options.positionalArguments().at(0), options.positionalArguments().at(1),
                    archivePassword());
    const int result = runner.wait();
    if (result == childRunner::notStarted)
        return refused;
    return result == 0 ? done : notWritten;
}

int runUnpack(const QStringList &arguments)
{
    parser options(unpackCommand, QStringLiteral("ARCHIVE FOLDER"), 2, 2);
    if (!options.accept(arguments))
        return options.code();
    zip_compress runner;
    showProgress(runner);
    runner.decompress(options.positionalArguments().at(0), options.positionalArguments().at(1),
                      archivePassword());
    const int result = runner.wait();
    if (result == unzipDiskFull)
        return notWritten;
    return result == 0 ? done : refused;
}

int runUpload(const QStringList &arguments)
{
    parser options(uploadCommand, QStringLiteral("FILE LINK"), 2, 2);
    const QCommandLineOption hostKey(
        QStringLiteral("host-key"),
        QCoreApplication::translate(
            "cli", "The key of the server (SHA256:...), when none was accepted yet."),
        QStringLiteral("KEY"));
    options.addOption(hostKey);
    if (!options.accept(arguments))
        return options.code();
    configStruct config;
    if (!loadConfiguration(&config))
        return refused;
    const materialFiles::fileServer server = materialFiles::serverOf(config);
    const QString host = materialFiles::hostOf(server);
    const QString link = options.positionalArguments().at(1);
    const QString target = materialFiles::placeOnServer(server, link);
    if (target.isEmpty()) {
        err() << link << ": "
              << QCoreApplication::translate("cli", "leads to no file of the file server") << '\n'
              << Qt::flush;
        return refused;
    }
    KivScp::scp runner;
    QObject::connect(&runner, &KivScp::scp::updateLog, &runner, [](const QString &text) {
        err() << text << '\n' << Qt::flush;
    });
    constexpr int timeoutMs = 10 * 60 * 1000;
    runner.start({server.account, server.password, host, options.positionalArguments().at(0),
                  target, options.isSet(hostKey) ? options.value(hostKey) : hostKeys::keyOf(host)},
                 timeoutMs);
    if (runner.wait() == 0)
        return done;
    if (runner.keyChanged())
        err() << materialFiles::changedKey(host) << '\n' << Qt::flush;
    else if (!runner.offeredKey().isEmpty())
        err() << QCoreApplication::translate(
                     "cli",
                     "The server is not known. When its key is right, give it: --host-key %1")
                     .arg(runner.offeredKey())
              << '\n'
              << Qt::flush;
    return refused;
}

} // namespace

const subcommand helpersCommand{
    "helpers", QT_TRANSLATE_NOOP("cli", "Tells where the helper programs are."), runHelpers};
const subcommand downloadCommand{"download", QT_TRANSLATE_NOOP("cli", "Downloads a file."),
                                 runDownload};
const subcommand packCommand{
    "pack",
    QT_TRANSLATE_NOOP(
        "cli", "Packs a folder into a ZIP archive; KIVZP_ARCHIVE_PASSWORD may hold a password."),
    runPack};
const subcommand unpackCommand{
    "unpack",
    QT_TRANSLATE_NOOP("cli",
                      "Unpacks a ZIP archive; KIVZP_ARCHIVE_PASSWORD may hold its password."),
    runUnpack};

const subcommand uploadCommand{
    "upload", QT_TRANSLATE_NOOP("cli", "Copies a file to where its link leads on the file server."),
    runUpload};

} // namespace cli
