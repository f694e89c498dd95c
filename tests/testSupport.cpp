#include "testSupport.h"

#include "util/text.h"

namespace testSupport {

using testClass = std::pair<QByteArray, std::function<QObject *()>>;

static std::vector<testClass> &classes()
{
    static std::vector<testClass> list;
    return list;
}

bool add(const char *name, const std::function<QObject *()> &create)
{
    classes().emplace_back(name, create);
    return true;
}

// "tests NAME [QtTest arguments]" runs one class, "tests" runs all.
int run(int argc, char **argv)
{
    const QByteArray wanted = argc > 1 ? argv[1] : "";
    int failures = 0;
    bool found = false;
    for (const auto &[name, create] : classes()) {
        if (wanted.isEmpty() || wanted == name) {
            found = true;
            const std::unique_ptr<QObject> object(create());
            const int skip = wanted.isEmpty() ? 0 : 1;
            failures += QTest::qExec(object.get(), argc - skip, argv + skip);
        }
    }
    return found ? failures : 2;
}

programFolder::programFolder()
{
    QVERIFY2(m_dir.isValid(), "no temporary folder");
    paths::setProgramDir(m_dir.path());
    copyFolder(source(QStringLiteral("_validator")), path(QStringLiteral("_validator")));
}

programFolder::~programFolder() { paths::setProgramDir({}); }

QString programFolder::path(const QString &relative) const
{
    return relative.isEmpty() ? m_dir.path() : m_dir.path() + QLatin1Char('/') + relative;
}

QString programFolder::write(const QString &relative, const QByteArray &content) const
{
    QString target = path(relative);
    QDir().mkpath(QFileInfo(target).absolutePath());
    testSupport::write(target, content);
    return target;
}

QString programFolder::script(const QString &relative, const QByteArray &body) const
{
    QString file = write(relative, "#!/bin/sh\n" + body + "\n");
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file;
}

void programFolder::ship(const QStringList &folders) const
{
    for (const QString &folder : folders)
        copyFolder(source(folder), path(folder));
}

void folderTest::init()
{
    m_folder = std::make_unique<programFolder>();
    m_shown = std::make_unique<recordingPrompts>();
}

void folderTest::cleanup()
{
    m_shown.reset();
    m_folder.reset();
}

void recordingPrompts::showError(const QString &html) { errors.append(text::htmlToPlain(html)); }

webServer::webServer(const std::function<QByteArray(const QByteArray &)> &replyFor)
{
    connect(this, &QTcpServer::newConnection, this, [this, replyFor] {
        QTcpSocket *socket = nextPendingConnection();
        request.clear();
        connect(socket, &QTcpSocket::readyRead, socket, [this, replyFor, socket] {
            request += socket->readAll();
            const bool whole = request.endsWith("\r\n\r\n");
            const QByteArray reply = whole ? replyFor(request.split(' ').value(1)) : QByteArray();
            if (reply.isEmpty())
                return;
            socket->write(reply);
            socket->disconnectFromHost();
        });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
    listen(QHostAddress::LocalHost);
}

ended run(const QString &program, const QStringList &arguments, const QStringList &environment, const QString &folder,
          const QString &input)
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : environment) {
        if (variable.contains('='))
            variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
        else
            variables.remove(variable);
    }
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(folder);
    if (!input.isEmpty())
        process.setStandardInputFile(input);
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, "crashed or hung: " + program};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

void copyFolder(const QString &from, const QString &to)
{
    for (QDirIterator it(from, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString target = to + '/' + QDir(from).relativeFilePath(it.next());
        QDir().mkpath(QFileInfo(target).absolutePath());
        if (!QFile::copy(it.filePath(), target))
            qFatal("cannot copy %s", qPrintable(it.filePath()));
    }
}

QString source(const QString &relative) { return QStringLiteral(KIVZP_SOURCE_DIR "/") + relative; }

QStringList sources(const QStringList &folders, const QStringList &patterns)
{
    QStringList found;
    for (const QString &folder : folders) {
        const QStringList files = files::list(source(folder), patterns);
        if (files.isEmpty())
            qFatal("no file in %s", qPrintable(folder));
        found += files;
    }
    return found;
}

QByteArray document(const char *root, const char *type, const char *schema, const QByteArray &content)
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<") + root + " xsi:noNamespaceSchemaLocation=\""
           + schema + "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:type=\"" + type + "\">" + content
           + "</" + root + ">\n";
}

QByteArray database(const QByteArray &content)
{
    return document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd", content);
}

QByteArray bom(const QByteArray &content) { return document("kiv_mat_bom", "KIV_MAT_BOM_1", "kiv_mat.xsd", content); }

QByteArray order(const QByteArray &content) { return document("kiv_mat_zp", "KIV_MAT_ZP_1", "kiv_mat.xsd", content); }

} // namespace testSupport
