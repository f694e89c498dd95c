#include "update/updateSource.h"

#include "tools/KivScp.h"
#include "tools/childRunner.h"
#include "tools/helpers.h"
#include "util/safeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QTimer>

namespace {

constexpr int silenceMs = 30 * 1000; // without a byte a server is given up
constexpr int askMs = 100;

QString tooLarge(const QUrl &url)
{
    return QCoreApplication::translate("updates", "%1 is larger than it should be")
        .arg(url.fileName());
}

bool isWeb(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

// --- Files of the web

class webFile : public QObject
{
public:
    webFile(const QUrl &url, safeFile *target, qint64 most, const progressFunction &progress)
        : m_target(target)
        , m_most(most)
        , m_progress(progress)
    {
        QNetworkRequest request(url);
        // Never from https to http.
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                             QNetworkRequest::NoLessSafeRedirectPolicy);
        constexpr int mostRedirections = 5;
        request.setMaximumRedirectsAllowed(mostRedirections);
        // What is counted is what comes.
        request.setRawHeader("Accept-Encoding", "identity");
        m_reply = m_network.get(request);
        connect(m_reply, &QNetworkReply::readyRead, this, [this] { take(); });
        connect(m_reply, &QNetworkReply::finished, &m_loop, &QEventLoop::quit);
        m_asking.setInterval(askMs);
        connect(&m_asking, &QTimer::timeout, this, [this] { look(); });
    }
    ~webFile() override { delete m_reply; }

    // The reason when it did not come whole.
    QString run(bool *isCancelled)
    {
        m_silence.start();
        m_asking.start();
        if (!m_reply->isFinished())
            m_loop.exec();
        take();
        *isCancelled = m_cancelled;
        if (!m_fault.isEmpty() || m_cancelled)
            return m_fault;
        if (m_reply->error() != QNetworkReply::NoError)
            return m_reply->url().toDisplayString() + QLatin1String(": ") + m_reply->errorString();
        const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
        return length.isValid() && length.toLongLong() != m_done
                   ? QCoreApplication::translate("updates", "%1 broke off")
                         .arg(m_reply->url().toDisplayString())
                   : QString();
    }

private:
    void take()
    {
        if (!m_fault.isEmpty() || m_cancelled)
            return;
        const QByteArray came = m_reply->readAll();
        if (came.isEmpty())
            return;
        m_silence.restart();
        m_done += came.size();
        if (m_done > m_most)
            stop(tooLarge(m_reply->url()));
        else if (m_target->write(came) != came.size())
            stop(m_target->errorString());
    }
    void look()
    {
        if (m_progress && !m_progress(m_done, m_most)) {
            m_cancelled = true;
            stop({});
        } else if (m_silence.elapsed() > silenceMs) {
            stop(QCoreApplication::translate("updates", "%1 does not answer")
                     .arg(m_reply->url().host()));
        }
    }
    void stop(const QString &fault)
    {
        m_fault = fault;
        m_reply->abort(); // which ends the loop
    }

    QNetworkAccessManager m_network;
    QNetworkReply *m_reply = nullptr;
    safeFile *m_target;
    qint64 m_most;
    const progressFunction &m_progress;
    QEventLoop m_loop;
    QTimer m_asking;
    QElapsedTimer m_silence;
    qint64 m_done = 0;
    QString m_fault;
    bool m_cancelled = false;
};

// --- Files of a server that is reached by secure copy

class secureFile : public timedRunner
{
public:
    secureFile()
        : timedRunner(nullptr)
    {
    }

    QString run(const QUrl &url, const updateSource::login &account, const QString &target,
                qint64 most, const progressFunction &progress, bool *isCancelled)
    {
        if (account.account.isEmpty() || account.password.isEmpty())
            return QCoreApplication::translate("updates",
                                               "The configuration has no account of the server");
        keepSecret(account.password);
        constexpr int timeoutMs = 30 * 60 * 1000;
        startChild(command(url, account, target), timeoutMs);
        while (!isDone()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, askMs);
            const qint64 size = QFileInfo(target).size();
            *isCancelled = progress && !progress(size, most);
            if (*isCancelled || size > most)
                stop();
        }
        if (*isCancelled)
            return {};
        if (QFileInfo(target).size() > most)
            return tooLarge(url);
        return result() == 0 ? QString()
                             : url.toDisplayString() + QLatin1String(": ") + m_said.simplified();
    }

protected:
    void log(const QString &text) override { m_said += text; }

private:
    // The target is absolute, so that no colon in it is taken for a host.
    static QString command(const QUrl &url, const updateSource::login &account,
                           const QString &target)
    {
        return KivScp::commandStart(account.password, account.hostKey)
               + helpers::quoted(account.account + QLatin1Char('@') + url.host() + QLatin1Char(':')
                                 + url.path(QUrl::FullyDecoded))
               + QLatin1Char(' ') + helpers::quoted(QFileInfo(target).absoluteFilePath());
    }

    QString m_said;
};

// --- Files of this computer

QString copyFile(const QUrl &url, safeFile *target, qint64 most, const progressFunction &progress,
                 bool *isCancelled)
{
    constexpr qint64 block = 1 << 20;
    QFile file(url.toLocalFile());
    const auto fault = [&] {
        return QDir::toNativeSeparators(file.fileName()) + QLatin1String(": ") + file.errorString();
    };
    if (!QFileInfo(file).isFile() && QFileInfo::exists(file.fileName()))
        return QCoreApplication::translate("updates", "%1 is no file").arg(url.toDisplayString());
    if (!file.open(QIODevice::ReadOnly))
        return fault();
    if (file.size() > most)
        return tooLarge(url);
    qint64 done = 0;
    while (!file.atEnd()) {
        const QByteArray bytes = file.read(block);
        if (bytes.isEmpty())
            return fault();
        done += bytes.size();
        if (target->write(bytes) != bytes.size())
            return target->errorString();
        *isCancelled = progress && !progress(done, most);
        if (*isCancelled)
            return {};
    }
    return {};
}

} // namespace

updateSource::updateSource(const QString &address, login account)
    : m_login(std::move(account))
{
    const QString plain = address.trimmed();
    m_base = QFileInfo(plain).isAbsolute() ? QUrl::fromLocalFile(QDir::cleanPath(plain))
                                           : QUrl(plain, QUrl::StrictMode);
    const bool isValid = m_base.isValid();
    if (!m_base.path().endsWith(QLatin1Char('/')))
        m_base.setPath(m_base.path() + QLatin1Char('/'));
    const bool hasHost = !m_base.host().isEmpty();
    const bool isGood =
        isValid && m_base.userInfo().isEmpty()
        && ((isWeb(m_base) && hasHost)
            // The port is always that of secure copy.
            || (m_base.scheme() == QLatin1String("scp") && hasHost && m_base.port() < 0)
            || (m_base.isLocalFile() && !hasHost));
    if (!isGood)
        m_fault =
            QCoreApplication::translate("updates", "%1 is no address of updates").arg(shown(plain));
}

QString updateSource::shown(const QString &address)
{
    // By its text: a password may have any characters where it does not belong.
    static const QRegularExpression account(QStringLiteral("//.*@"));
    return QString(address).replace(account, QStringLiteral("//"));
}

QUrl updateSource::urlOf(const QString &link) const
{
    const QUrl own(link, QUrl::StrictMode);
    if (!m_fault.isEmpty() || link.trimmed().isEmpty())
        return {};
    if (own.isValid() && !own.scheme().isEmpty()) {
        const bool isSafe =
            own.scheme() == m_base.scheme()
            || (m_base.scheme() == QLatin1String("http") && own.scheme() == QLatin1String("https"));
        // The password is for one server.
        if (own.scheme() == QLatin1String("scp") && own.host() != m_base.host())
            return {};
        return isSafe && !m_base.isLocalFile() && !own.host().isEmpty() ? own : QUrl();
    }
    // A name at the address, or below it.
    if (link.contains(QLatin1Char('\\')) || link.startsWith(QLatin1Char('/'))
        || link.split(QLatin1Char('/')).contains(QLatin1String("..")))
        return {};
    QUrl url = m_base;
    url.setPath(m_base.path(QUrl::FullyDecoded) + link, QUrl::DecodedMode);
    return url;
}

QString updateSource::fetch(const QString &link, const QString &target, qint64 most,
                            const progressFunction &progress)
{
    m_cancelled = false;
    const QUrl url = urlOf(link);
    if (url.isEmpty())
        return m_fault.isEmpty()
                   ? QCoreApplication::translate("updates", "%1 leads away from the address")
                         .arg(link)
                   : m_fault;
    if (url.scheme() == QLatin1String("scp")) {
        const QString fault = secureFile().run(url, m_login, target, most, progress, &m_cancelled);
        if (!fault.isEmpty() || m_cancelled)
            QFile::remove(target);
        return m_cancelled ? QCoreApplication::translate("updates", "It was cancelled") : fault;
    }
    safeFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return QDir::toNativeSeparators(target) + QLatin1String(": ") + file.errorString();
    QString fault = isWeb(url) ? webFile(url, &file, most, progress).run(&m_cancelled)
                               : copyFile(url, &file, most, progress, &m_cancelled);
    if (m_cancelled)
        return QCoreApplication::translate("updates", "It was cancelled");
    if (fault.isEmpty() && !file.commit())
        fault = QDir::toNativeSeparators(target) + QLatin1String(": ") + file.errorString();
    return fault;
}
