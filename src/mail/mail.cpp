#include "mail/mail.h"

#include "data/configStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "tools/zip_compress.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/scratch.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>
#include <QUrl>

namespace mail {

namespace {

struct dataMessage
{
    const char *archive;
    const char *body; // resource
    const char *subject;
};
// In the order of contents.
constexpr dataMessage dataMessages[] = {
    {"/database_", ":/file/files/email_database_template_POL.html",
     QT_TRANSLATE_NOOP("mail", "Database")},
    {"/boms_", ":/file/files/email_boms_template_POL.html", QT_TRANSLATE_NOOP("mail", "Boms")},
};

// One value of the description is one line.
QString oneLine(QString value)
{
    for (QChar &c : value)
        if (c < QLatin1Char(' '))
            c = QLatin1Char(' ');
    return value;
}

// The only person of a role; null when it has none or several.
const personStruct *onlyPerson(const configStruct &config, const QString &role)
{
    const personStruct *found = nullptr;
    for (const auto &person : config.persons.items) {
        if (person->type != role)
            continue;
        if (found)
            return nullptr;
        found = person.get();
    }
    return found;
}

void log(const QString &html) { userPrompts().log(html); }

void logFailure(const QString &path)
{
    log(messages::failed(messages::error() + QLatin1Char(' '), path,
                         QCoreApplication::translate("mail", "cannot be written")));
}

// Where the file system takes no ":" in names, "-" stands for it.
QString timeOfName(const QString &folder, const QDateTime &time)
{
    const QString text = time.toString(QStringLiteral("yyyy.MM.dd_hh:mm:ss"));
#ifndef Q_OS_WIN
    QFile probe(folder + QLatin1String("/probe:"));
    if (probe.open(QIODevice::WriteOnly)) {
        probe.remove();
        return text;
    }
#else
    Q_UNUSED(folder)
#endif
    return QString(text).replace(QLatin1Char(':'), QLatin1Char('-'));
}

// Copies files into a folder to pack, each under its place in the program's data folder, those from
// elsewhere under their names. Two never land on one.
bool stage(const QStringList &sources, const QString &target, const progressFunction &progress)
{
    const QDir data(paths::dataDir());
    for (const QString &source : sources) {
        QString name = data.relativeFilePath(source);
        if (name.startsWith(QLatin1String("..")) || QDir::isAbsolutePath(name))
            name = QFileInfo(source).fileName();
        QString copy = target + QLatin1Char('/') + name;
        for (int n = 2; QFileInfo::exists(copy); ++n)
            copy = QStringLiteral("%1/%2_%3").arg(target).arg(n).arg(QFileInfo(name).fileName());
        if (!QDir().mkpath(QFileInfo(copy).absolutePath()) || !QFile::copy(source, copy)) {
            logFailure(copy);
            return false;
        }
        if (progress && !progress(0, 0))
            return false;
    }
    return true;
}

bool pack(const QString &from, const QString &archive, const QString &password,
          const progressFunction &progress)
{
    zip_compress zip;
    QObject::connect(&zip, &zip_compress::updateProgress, &zip, [](const QString &text) {
        log(text.toHtmlEscaped() + QLatin1String("<br>"));
    });
    QTimer asking;
    QObject::connect(&asking, &QTimer::timeout, &zip, [&] {
        if (!progress(0, 0))
            zip.stop();
    });
    zip.compress(from, archive, password);
    if (progress)
        asking.start(20);
    return zip.wait() == 0 && QFileInfo(archive).isFile();
}

} // namespace

QString folder() { return paths::data(QStringLiteral("_e-mail")); }

QString templatePath() { return folder() + QLatin1String("/msg_template.htm"); }

QStringList addresses(const QString &configured)
{
    const QLatin1String scheme("mailto:");
    QStringList list;
    for (QString part : configured.split(QRegularExpression(QStringLiteral("[;,]")))) {
        part = part.trimmed();
        if (part.startsWith(scheme, Qt::CaseInsensitive))
            part = QUrl::fromPercentEncoding(
                       part.mid(scheme.size()).section(QLatin1Char('?'), 0, 0).toUtf8())
                       .trimmed();
        part = oneLine(part);
        if (part.contains(QLatin1Char('@')) && !list.contains(part))
            list.append(part);
    }
    return list;
}

QStringList recipients(const configStruct &config, const QString &role, const QString &name)
{
    for (const auto &person : config.persons.items)
        if (person->type == role && person->name.trimmed() == name.trimmed())
            return addresses(person->link);
    const personStruct *only = onlyPerson(config, role);
    return only ? addresses(only->link) : QStringList();
}

QString description(const message &of)
{
    const auto field = [](const char *key, const QString &value) {
        return QLatin1String(key) + QLatin1Char('[') + oneLine(value) + QLatin1String("]\n");
    };
    QString text;
    for (const QString &address : of.to)
        text += field("to \t\t\t", address);
    text += field("subject \t", of.subject) + field("body \t\t", of.body);
    for (const QString &attachment : of.attachments)
        text += field("attachment \t", attachment);
    return text;
}

QString programFor(const configStruct &config)
{
    const QString name = config.options.findOption(optionKey::emailMapi)
                             ? QStringLiteral("_e-mail/KIV_EMAIL_MAPI.exe")
                             : QStringLiteral("_e-mail/KIV_EMAIL.exe");
    // The one that came with the program, not a copy that an update left behind.
    const QString shipped = paths::beside(name);
    return QFileInfo::exists(shipped) ? shipped : paths::data(name);
}

bool start(const QString &descriptionPath, const configStruct &config)
{
    QProcess process;
    process.setProgram(programFor(config));
    process.setArguments({QDir::toNativeSeparators(descriptionPath)});
    // Where a launcher leaves the message when no desktop takes it.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("KIVZP_MAIL_FOLDER"), folder());
    process.setProcessEnvironment(environment);
    return process.startDetached();
}

QString messageName(const kiv_mat_zpStruct &order)
{
    const QString identity = order.options.value(optionKey::orderNumber) + QLatin1Char(' ')
                             + order.options.value(optionKey::orderDate);
    const QStringList parts =
        identity.split(QRegularExpression(QStringLiteral("[^\\w.-]+"),
                                          QRegularExpression::UseUnicodePropertiesOption),
                       Qt::SkipEmptyParts);
    constexpr int longest = 80;
    return parts.isEmpty() ? QStringLiteral("order") : parts.join(QLatin1Char('_')).left(longest);
}

QString pdfPath(const kiv_mat_zpStruct &order)
{
    scratch::folder();
    return paths::temporaryDir() + QLatin1Char('/') + messageName(order) + QLatin1String(".pdf");
}

void removeOldMessages()
{
    QDir old(folder());
    for (const QString &name :
         old.entryList({QStringLiteral("*.cmd"), QStringLiteral("*.html")}, QDir::Files))
        old.remove(name);
}

QString writeOrder(const kiv_mat_zpStruct &order, const configStruct &config,
                   const QString &orderPath, const QString &pdf)
{
    removeOldMessages();
    const QString number = order.options.value(optionKey::orderNumber);
    const QString base = folder() + QLatin1String("/msg_") + messageName(order);
    message sent;
    sent.to = recipients(config, optionKey::personContractor,
                         order.options.value(optionKey::personContractor));
    sent.subject =
        QCoreApplication::translate("mail", "DD - Order").trimmed() + QLatin1Char(' ') + number;
    sent.body = base + QLatin1String(".html");
    sent.attachments = QStringList{orderPath, pdf};
    QString body = files::readText(templatePath());
    body.replace(QLatin1String("{Do_no}"), number.toHtmlEscaped());
    const QString path = base + QLatin1String(".cmd");
    return files::writeText(sent.body, body) && files::writeText(path, description(sent))
               ? path
               : QString();
}

QStringList filesToSend(contents what, const configStruct &config)
{
    QStringList list;
    const auto add = [&list](const QString &path) {
        if (QFileInfo(path).isFile() && !list.contains(path))
            list.append(path);
    };
    const auto configured = [&config](const QString &key) {
        const QString name = config.options.value(key);
        return name.isEmpty() ? QString() : QDir::cleanPath(paths::data(name));
    };
    if (what == contents::databases) {
        for (const QLatin1String key : {optionKey::fileDbWarehouse, optionKey::fileDbService,
                                        optionKey::fileDbMechanics, optionKey::fileDbAuthor})
            add(configured(key));
        return list;
    }
    const QString set = configured(optionKey::fileBoms);
    kiv_mat_bomsStruct boms;
    loadBoms(set, &boms);
    add(set);
    for (const QString &path : filesOf(boms, set))
        add(path);
    return list;
}

QString writeData(contents what, const configStruct &config, const removeLater &later,
                  const progressFunction &progress)
{
    const dataMessage &kind = dataMessages[int(what)];
    const bool made = !scratch::folder().isEmpty();
    const QString temporary = paths::temporaryDir();
    const QString packed = temporary + QLatin1String("/packed");
    if (!made || !files::removeFolder(packed) || !QDir().mkpath(packed)) {
        log(messages::failed(messages::temporaryFolderError(), temporary));
        return {};
    }
    const QStringList sources = filesToSend(what, config);
    if (sources.isEmpty()) {
        log(QCoreApplication::translate("mail", "There are no files to send.").toHtmlEscaped()
            + QLatin1String("<br>"));
        return {};
    }
    const QString archive = temporary + QLatin1String(kind.archive)
                            + timeOfName(temporary, QDateTime::currentDateTime())
                            + QLatin1String(".zip");
    const bool filled =
        stage(sources, packed, progress)
        && pack(packed, archive, config.options.value(optionKey::archivePassword), progress);
    files::removeFolder(packed);
    if (!filled) {
        files::removeFile(archive);
        if (!progress || progress(0, 0))
            logFailure(archive);
        return {};
    }

    message sent;
    sent.to =
        recipients(config, optionKey::personAdmin, config.options.value(optionKey::personAdmin));
    sent.subject = QCoreApplication::translate("mail", kind.subject);
    sent.body = temporary + QLatin1String("/body.html");
    sent.attachments = QStringList{archive};
    const QString path = temporary + QLatin1String("/msg_database.cmd");
    for (const QString &file : {archive, sent.body, path})
        later(file);
    if (files::writeText(sent.body, files::readText(QLatin1String(kind.body)))
        && files::writeText(path, description(sent)))
        return path;
    logFailure(path);
    return {};
}

} // namespace mail
