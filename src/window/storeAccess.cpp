#include "window/storeAccess.h"

#include "data/configStruct.h"
#include "store/storeFiles.h"
#include "util/prompts.h"
#include "window/mergeDialog.h"
#include "window/storeListener.h"
#include "window/workProgress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHash>
#include <QTcpSocket>
#include <QTimer>

#include <qt5keychain/keychain.h>

namespace storeAccess {

namespace {

QString secretsOf() { return QStringLiteral("KivZP"); }

void wait(QKeychain::Job *job)
{
    // A desktop that asks for its own password takes its time.
    constexpr int mostMs = 60000;
    QEventLoop loop;
    QObject::connect(job, &QKeychain::Job::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(mostMs, &loop, &QEventLoop::quit);
    job->setAutoDelete(false);
    job->start();
    loop.exec();
}

QString readSecret(const QString &key)
{
    QKeychain::ReadPasswordJob job(secretsOf());
    job.setKey(key);
    wait(&job);
    return job.error() == QKeychain::NoError ? job.textData() : QString();
}

bool writeSecret(const QString &key, const QString &secret)
{
    QKeychain::WritePasswordJob job(secretsOf());
    job.setKey(key);
    job.setTextData(secret);
    wait(&job);
    return job.error() == QKeychain::NoError;
}

// The driver would stand still for a server that does not answer.
bool isReached(const store::address &to, const progressFunction &go, QString *fault)
{
    constexpr int usualPort = 5432;
    constexpr int mostMs = 6000;
    constexpr int stepMs = 30;
    if (!to.isServer || to.host.isEmpty() || to.host.startsWith(QLatin1Char('/')))
        return true;
    QTcpSocket socket;
    socket.connectToHost(to.host, quint16(to.port > 0 ? to.port : usualPort));
    QElapsedTimer since;
    since.start();
    while (socket.state() != QAbstractSocket::ConnectedState) {
        if (!go(since.elapsed(), mostMs))
            return false;
        QEventLoop loop;
        QTimer::singleShot(stepMs, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        if (since.hasExpired(mostMs) || socket.state() == QAbstractSocket::UnconnectedState) {
            *fault = socket.errorString();
            return false;
        }
    }
    return true;
}

// Of this run, by address.
QHash<QString, QString> &known()
{
    static QHash<QString, QString> passwords;
    return passwords;
}

bool openAsking(store::connection *with, const store::address &to)
{
    const QString key = to.shown();
    if (known().contains(key) && with->open(to, known().value(key)))
        return true;
    if (const QString secret = readSecret(key); !secret.isEmpty() && with->open(to, secret))
        return true;
    bool isWrong = false;
    while (with->wantsPassword()) {
        const auto given = userPrompts().inputPassword(
            QCoreApplication::translate("storeAccess", "Shared store"),
            isWrong ? QCoreApplication::translate("storeAccess",
                                                  "This password is wrong. Password for %1:")
                          .arg(key)
                    : QCoreApplication::translate("storeAccess", "Password for %1:").arg(key));
        if (!given)
            return false;
        if (with->open(to, given->text)) {
            known().insert(key, given->text);
            if (given->keep && !writeSecret(key, given->text))
                userPrompts().showWarning(QCoreApplication::translate(
                    "storeAccess",
                    "The password cannot be kept: this desktop has no store of secrets."));
            return true;
        }
        isWrong = true;
    }
    return false;
}

// Work that ends while the user is asked something.
class pausedWork
{
public:
    explicit pausedWork(workProgress &progress)
        : m_progress(progress)
    {
        goOn();
    }
    void goOn()
    {
        m_scope.emplace(m_progress, QCoreApplication::translate("storeAccess", "Synchronising"));
    }
    void pause() { m_scope.reset(); }
    bool tell(qint64 done, qint64 total) { return !m_scope || m_scope->function()(done, total); }

private:
    workProgress &m_progress;
    std::optional<workProgress::scope> m_scope;
};

} // namespace

std::unique_ptr<store::connection> open(const configStruct &config, workProgress &progress,
                                        bool asks)
{
    QString fault;
    const auto to = store::addressOf(config, {}, &fault);
    auto with = std::make_unique<store::connection>();
    bool isReachable = false;
    if (to) {
        workProgress::scope work(
            progress, QCoreApplication::translate("storeAccess", "Looking for the shared store"));
        isReachable = isReached(*to, work.function(), &fault);
        if (isReachable && with->open(*to))
            return with;
        if (work.cancelled())
            return nullptr;
    }
    if (!asks)
        return nullptr;
    if (isReachable) {
        const bool wants = with->wantsPassword();
        if (wants && openAsking(with.get(), *to))
            return with;
        // The user gave it up.
        if (wants && with->wantsPassword())
            return nullptr;
        fault = with->fault();
    }
    const QString where = to ? to->shown() + QLatin1String(": ") : QString();
    userPrompts().showError(
        QCoreApplication::translate("storeAccess", "The shared store cannot be reached. ")
        + (where + fault).toHtmlEscaped());
    return nullptr;
}

store::syncResult bringTogether(
    store::connection &with, workProgress &progress, QWidget *window,
    const std::function<store::syncResult(const store::conflictsSettled &settle,
                                          const progressFunction &progress)> &work)
{
    pausedWork shown(progress);
    const progressFunction go = [&shown](long long done, long long total) {
        return shown.tell(done, total);
    };
    with.setWaiting([&go] { return go(0, 0); });
    store::syncResult result = work(
        [&shown, window](std::vector<mergeRow> &rows) {
            shown.pause();
            mergeDialog dialog(rows, true, window);
            dialog.setWindowTitle(
                QCoreApplication::translate("storeAccess", "Changes here and by others"));
            const bool isSettled = dialog.exec() == QDialog::Accepted;
            shown.goOn();
            return isSettled;
        },
        go);
    with.setWaiting({});
    return result;
}

QString put(const configStruct &config, workProgress &progress, const QString &path,
            const std::function<bool()> &isSaved)
{
    const QString nothing =
        QCoreApplication::translate("storeAccess", "Nothing was put into the shared store");
    const auto name = userPrompts().inputText(
        QCoreApplication::translate("storeAccess", "Put into the shared store"),
        QCoreApplication::translate("storeAccess", "&Name that others find it by:"),
        store::usualName(path));
    if (!name || name->trimmed().isEmpty() || !isSaved())
        return nothing;
    const std::unique_ptr<store::connection> with = open(config, progress);
    if (!with)
        return nothing;
    workProgress::scope work(
        progress, QCoreApplication::translate("storeAccess", "Putting it into the shared store"));
    const progressFunction go = work.function();
    with->setWaiting([&go] { return go(0, 0); });
    const store::syncResult result = store::publishFile(*with, path, name->trimmed(), go);
    if (!result.fault.isEmpty())
        userPrompts().showError(result.fault.toHtmlEscaped());
    return result.done ? QCoreApplication::translate(
               "storeAccess", "%n record(s) are in the shared store", nullptr, result.sent)
                       : nothing;
}

void listen(std::unique_ptr<store::connection> with)
{
    if (!storeListener::instance().isListening())
        storeListener::instance().listen(std::move(with));
}

} // namespace storeAccess
