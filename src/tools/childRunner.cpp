#include "tools/childRunner.h"

#include "tools/childProcess.h"
#include "tools/helpers.h"
#include "util/scratch.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int pauseMs = 10;

} // namespace

childRunner::childRunner(QObject *parent)
    : QObject(parent)
    , m_process(new childProcess(this))
{
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &childRunner::finished, Qt::QueuedConnection);
    connect(m_process, &QProcess::readyReadStandardError, this, &childRunner::standardError,
            Qt::QueuedConnection);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &childRunner::standardOutput,
            Qt::QueuedConnection);
}

void childRunner::startChild(const QString &command, const QString &folder)
{
    if (m_started)
        return;
    m_started = true;
    m_result = 0;
    QStringList words = QProcess::splitCommand(command);
    const QString name = words.isEmpty() ? QString() : words.takeFirst();
    m_process->setWorkingDirectory(folder);
    m_process->setStandardInputFile(QProcess::nullDevice());
    // A helper that is killed leaves its own scratch files in ours.
    if (const QString own = scratch::folder(); !own.isEmpty()) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), own);
        m_process->setProcessEnvironment(environment);
    }
    m_process->start(helpers::path(name), words);
    // A child that cannot be started never emits finished().
    m_process->waitForStarted();
    if (m_process->error() == QProcess::FailedToStart)
        fail(tr("The program cannot be started"), name);
}

void childRunner::refuse(const QString &reason, const QString &subject)
{
    if (m_started)
        return;
    m_started = true;
    fail(reason, subject);
}

void childRunner::fail(const QString &reason, const QString &subject)
{
    log(subject.isEmpty() ? reason : reason + QLatin1String(" [") + subject + QLatin1Char(']'));
    conclude(notStarted);
}

void childRunner::keepSecret(const QString &secret)
{
    // Output is compared byte by byte.
    m_secret = QString::fromLatin1(secret.toLocal8Bit());
}

int childRunner::wait()
{
    const QPointer<childRunner> alive(this);
    while (m_result != notStarted && !m_done) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, pauseMs);
        if (!alive)
            return notStarted;
        QThread::msleep(pauseMs);
    }
    return m_result;
}

void childRunner::stop()
{
    if (!m_started || m_done)
        return;
    m_process->killAll();
    conclude(timedOut);
}

void childRunner::finished(int code)
{
    // A killed child ends too.
    if (m_done)
        return;
    standardOutput();
    standardError();
    conclude(code);
}

void childRunner::standardError() { passOn(m_error, m_process->readAllStandardError()); }

void childRunner::standardOutput() { passOn(m_output, m_process->readAllStandardOutput()); }

void childRunner::conclude(int result)
{
    m_result = result;
    m_done = true;
    passOn(m_output, {}, true);
    passOn(m_error, {}, true);
}

// Helpers write in whatever character set they like, so every byte is one character.
void childRunner::passOn(channel &from, const QByteArray &bytes, bool last)
{
    QString text;
    text.swap(from.held);
    for (const char byte : bytes)
        if (byte != '\r' && byte != '\n')
            text += QLatin1Char(byte);
    if (!m_secret.isEmpty()) {
        text.replace(m_secret, QLatin1String("***"));
        int begun = last ? 0 : std::min(text.size(), m_secret.size() - 1);
        while (begun > 0 && text.rightRef(begun) != m_secret.leftRef(begun))
            --begun;
        from.held = text.right(begun);
        text.chop(begun);
    }
    if (!text.isEmpty())
        log(text);
}

timedRunner::timedRunner(QObject *parent)
    : childRunner(parent)
    , m_timer(new QTimer(this))
{
    connect(m_timer, &QTimer::timeout, this, &timedRunner::timeoutOccured, Qt::QueuedConnection);
}

void timedRunner::startChild(const QString &command, int timeoutMs, const QString &folder)
{
    if (isStarted())
        return;
    m_timer->setInterval(timeoutMs);
    m_timer->start();
    childRunner::startChild(command, folder);
}

void timedRunner::timeoutOccured() { stop(); }

void timedRunner::conclude(int result)
{
    m_timer->stop();
    childRunner::conclude(result);
}
