#include "benchSupport.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace benchSupport {

QString generatedDatabase(int materials)
{
    const QString path = QStringLiteral(KIVZP_BENCH_DIR "/db_%1.xml").arg(materials);
    if (!QFile::exists(path)
        && QProcess::execute(QStringLiteral("python3"),
                             {QStringLiteral(KIVZP_SOURCE_DIR "/tools/makeSampleData.py"),
                              QStringLiteral("--size"), QString::number(materials), path})
               != 0)
        qFatal("cannot make %s", qPrintable(path));
    return path;
}

void copyFolder(const QString &from, const QString &to)
{
    for (QDirIterator it(from, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString target = to + QLatin1Char('/') + QDir(from).relativeFilePath(it.next());
        QDir().mkpath(QFileInfo(target).absolutePath());
        if (!QFile::copy(it.filePath(), target))
            qFatal("cannot copy %s", qPrintable(it.filePath()));
    }
}

QString realDatabase(const QString &name)
{
    const QString folder = qEnvironmentVariable("KIVZP_REAL_DATA");
    const QString packed = folder + QLatin1Char('/') + name + QLatin1String(".xml.gz");
    if (folder.isEmpty() || !QFile::exists(packed))
        return {};
    const QString path = QStringLiteral(KIVZP_BENCH_DIR "/real_%1.xml").arg(name);
    if (!QFile::exists(path)) {
        QProcess gzip;
        gzip.setStandardOutputFile(path);
        gzip.start(QStringLiteral("gzip"), {QStringLiteral("-dc"), packed});
        if (!gzip.waitForFinished(-1) || gzip.exitCode() != 0)
            qFatal("cannot unpack %s", qPrintable(packed));
    }
    return path;
}

qint64 residentBytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

processCost measure(const QStringList &command)
{
    std::vector<QByteArray> texts;
    for (const QString &argument : command)
        texts.push_back(argument.toLocal8Bit());
    std::vector<char *> arguments;
    for (QByteArray &text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);

    QElapsedTimer timer;
    timer.start();
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_WRONLY);
        dup2(nothing, STDOUT_FILENO);
        dup2(nothing, STDERR_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return {double(timer.nsecsElapsed()) / 1e9, double(usage.ru_maxrss) / 1024,
            WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

} // namespace benchSupport
