#include "cli/arguments.h"

#include "data/XmlValidator.h"
#include "data/configStruct.h"
#include "data/documentSaving.h"
#include "data/documentStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/loaders.h"
#include "data/materialUses.h"
#include "util/fileLock.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

namespace cli {

namespace {

QTextStream &utf8(QTextStream &stream)
{
    stream.setCodec("UTF-8");
    return stream;
}

} // namespace

QTextStream &out()
{
    static QTextStream stream(stdout);
    return utf8(stream);
}

QTextStream &err()
{
    static QTextStream stream(stderr);
    return utf8(stream);
}

parser::parser(const subcommand &command, const QString &fileNames, int minimum, int maximum)
    : m_name(QLatin1String(command.name))
    , m_minimum(minimum)
    , m_maximum(maximum)
{
    setApplicationDescription(QCoreApplication::translate("cli", command.summary));
    addPositionalArgument(m_name, {}, m_name + QLatin1Char(' ') + fileNames);
    addHelpOption();
}

bool parser::accept(const QStringList &arguments)
{
    const bool parsed = parse(QStringList{QStringLiteral("kivzp-cli")} + arguments);
    if (parsed && isSet(QStringLiteral("help"))) {
        out() << helpText() << Qt::flush;
        return false;
    }
    QString fault;
    const int count = positionalArguments().size();
    if (!parsed)
        fault = errorText();
    else if (count < m_minimum)
        fault = QCoreApplication::translate("cli", "an argument is missing");
    else if (m_maximum >= 0 && count > m_maximum)
        fault = QCoreApplication::translate("cli", "too many arguments");
    if (fault.isEmpty())
        return true;
    err() << m_name << ": " << fault << '\n'
          << QCoreApplication::translate("cli", "Try: kivzp-cli %1 --help").arg(m_name) << '\n'
          << Qt::flush;
    m_code = wrongCall;
    return false;
}

void printFaults(const QString &path, const QVector<fileFault> &faults, int count)
{
    for (const fileFault &fault : faults) {
        err() << path << ':';
        if (fault.line > 0)
            err() << fault.line << ':';
        if (fault.column > 0)
            err() << fault.column << ':';
        err() << ' ' << fault.sentence() << '\n';
    }
    const int rest = count - faults.size();
    if (rest > 0)
        err() << path << ": " << QCoreApplication::translate("cli", "and %n more", nullptr, rest)
              << '\n';
    err() << Qt::flush;
}

bool validateFile(const QString &path)
{
    // A file of no known kind is told by the schema with the most kinds.
    const QString named = fileKinds::headOf(path).schema;
    const QString schema = paths::schema(named.isEmpty() ? QStringLiteral("kiv_mat.xsd") : named);
    XmlValidator validator;
    if (validator.validate(path, schema, false))
        return true;
    const validationResult &details = validator.details();
    if (!details.schemaLoaded) {
        err() << QCoreApplication::translate("cli", "The schema %1 cannot be loaded").arg(schema)
              << '\n'
              << Qt::flush;
        return false;
    }
    printFaults(path, details.messages, details.messageCount);
    return false;
}

int writeDocument(const QString &path, const documentStruct &document)
{
    if (QFileInfo::exists(path)) {
        for (const QString &other : fileLock::othersOf(path))
            err() << path << ": "
                  << QCoreApplication::translate("cli", "is open in %1, which will be told")
                         .arg(other)
                  << '\n';
        // Without one the usual folders take it.
        configStruct config;
        config.load(paths::config());
        keepVersion(path, config);
        if (!versionFault().isEmpty())
            err() << path << ": " << versionFault() << '\n';
        err() << Qt::flush;
    }
    QString reason;
    return saveXmlNoEvents(path, &document, &reason) >= 0 ? int(done) : cannotWrite(path, reason);
}

bool loadConfiguration(configStruct *config)
{
    if (config->load(paths::config()))
        return true;
    err() << paths::config() << ": "
          << QCoreApplication::translate("cli", "cannot be read or is invalid") << '\n'
          << Qt::flush;
    return false;
}

std::unique_ptr<kiv_mat_databaseStruct> readDatabase(const QString &path)
{
    auto database = std::make_unique<kiv_mat_databaseStruct>();
    if (!readFile(path, database.get(),
                  QCoreApplication::translate("cli", "is no material database")))
        return nullptr;
    return database;
}

bool readFile(const QString &path, documentStruct *record, const QString &isNot)
{
    if (!validateFile(path))
        return false;
    QString error;
    if (fileKinds::ofFile(path) != &record->kind())
        error = isNot;
    else
        loadDocument(path, record, &error);
    if (error.isEmpty())
        return true;
    err() << path << ": " << error << '\n' << Qt::flush;
    return false;
}

bool listedFiles(const QStringList &paths, QStringList *files)
{
    for (const QString &path : paths) {
        if (fileKinds::ofFile(path) != &fileKinds::boms) {
            files->append(path);
            continue;
        }
        kiv_mat_bomsStruct set;
        if (!readFile(path, &set, QCoreApplication::translate("cli", "is no set of BOM lists")))
            return false;
        *files += filesOf(set, QFileInfo(path).absoluteFilePath());
    }
    return true;
}

bool readUses(const QStringList &paths, materialUses *uses)
{
    QStringList files;
    if (!listedFiles(paths, &files))
        return false;
    uses->follow(files, {});
    while (uses->readNext())
        ;
    for (const QString &fault : uses->faults())
        err() << fault << '\n' << Qt::flush;
    return uses->faults().isEmpty();
}

int refuseCall(const subcommand &command, const QString &fault)
{
    err() << command.name << ": " << fault << '\n' << Qt::flush;
    return wrongCall;
}

QCommandLineOption databaseOption(const QString &help)
{
    return {{QStringLiteral("d"), QStringLiteral("database")}, help, QStringLiteral("DB")};
}

bool databaseSet::load(const QStringList &databasePaths)
{
    for (const QString &path : databasePaths) {
        auto database = readDatabase(path);
        if (!database)
            return false;
        m_index.add(database.get());
        m_databases.push_back(std::move(database));
    }
    return true;
}

QCommandLineOption databaseOption(const char *description)
{
    return databaseOption(QCoreApplication::translate("cli", description));
}

QCommandLineOption outputOption(const char *description)
{
    return {{QStringLiteral("o"), QStringLiteral("output")},
            QCoreApplication::translate("cli", description),
            QStringLiteral("OUT")};
}

int cannotWrite(const QString &path, const QString &reason)
{
    const QString fault = QCoreApplication::translate("cli", "cannot be written");
    err() << path << ": "
          << (reason.isEmpty() ? messages::because(fault, path)
                               : fault + QLatin1String(": ") + reason)
          << '\n'
          << Qt::flush;
    return notWritten;
}

void printNotes(const QStringList &htmlLines)
{
    if (htmlLines.isEmpty())
        return;
    const QString plain = text::htmlToPlain(htmlLines.join(QString()));
    err() << plain.trimmed().replace(QChar::Nbsp, QLatin1Char(' ')) << '\n' << Qt::flush;
}

} // namespace cli
