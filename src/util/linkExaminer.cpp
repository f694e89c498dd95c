#include "util/linkExaminer.h"

#include "util/safeFile.h"

#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSslError>

#include <algorithm>
#include <limits>

namespace {

constexpr int firstError = 400;
constexpr int readAtOnce = 1 << 18;
// A PDF file may have something before its mark.
constexpr int beginLength = 1024;

struct documentKind
{
    const char *suffix;
    QByteArray mark;
};

// The suffix of a document by its first bytes; empty for what is not kept: web pages, programs,
// archives. What a server or a link calls it does not count.
QString suffixOf(const QByteArray &begin)
{
    static const documentKind kinds[] = {{".png", QByteArrayLiteral("\x89PNG\r\n\x1a\n")},
                                         {".jpg", QByteArrayLiteral("\xff\xd8\xff")},
                                         {".gif", QByteArrayLiteral("GIF8")}};
    if (begin.left(beginLength).contains("%PDF-"))
        return QStringLiteral(".pdf");
    for (const documentKind &kind : kinds)
        if (begin.startsWith(kind.mark))
            return QLatin1String(kind.suffix);
    return {};
}

bool isWeb(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty()
           && (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

bool isForGood(int status) { return status == 301 || status == 308; }

// Many servers refuse to tell the head of what they give.
bool wantsFullRequest(int status)
{
    return status >= firstError && status != 401 && status != 410 && status != 429;
}

linkState stateOf(int status)
{
    if (status == 404 || status == 410)
        return linkState::missing;
    if (status == 408 || status == 429)
        return linkState::failing;
    return status >= firstError && status < 500 ? linkState::refused : linkState::failing;
}

int statusOf(const QNetworkReply *answer)
{
    return answer->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace

namespace webLinks {

QUrl addressOf(const QString &link)
{
    const QUrl url(link.trimmed());
    return isWeb(url) ? url : QUrl();
}

QString withoutPassword(const QString &link)
{
    // By its text, so that a malformed address does not give its password away.
    static const QRegularExpression account(QStringLiteral("^(\\s*[^:/?#]*:?//)[^/?#]*@"));
    QString shown = link;
    return shown.replace(account, QStringLiteral("\\1"));
}

} // namespace webLinks

struct linkExaminer::job
{
    linkReply reply;
    QUrl at;
    QString base; // where it is fetched to; empty when it is only examined
    int redirects = 0;
    bool forGood = true; // every redirect up to here
    bool inFull = false; // by GET
    bool isTaking = false;
    QNetworkReply *answer = nullptr;
    QTimer *limit = nullptr; // until the request ends
    QElapsedTimer since;
    QByteArray begin;
    qint64 received = 0;
    std::unique_ptr<safeFile> file;
};

linkExaminer::linkExaminer(const linkLimits &limits, QObject *parent)
    : QObject(parent)
    , m_limits(limits)
    , m_network(new QNetworkAccessManager(this))
{
    m_clock.start();
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &linkExaminer::schedule);
}

linkExaminer::~linkExaminer() { stop(); }

void linkExaminer::examine(const QString &link) { fetch(link, {}); }

void linkExaminer::fetch(const QString &link, const QString &base)
{
    auto asked = std::make_unique<job>();
    asked->reply.link = link;
    asked->at = webLinks::addressOf(link);
    asked->base = base;
    asked->inFull = !base.isEmpty();
    queue(std::move(asked), false);
}

bool linkExaminer::isIdle() const
{
    return m_active.empty() && std::all_of(m_hosts.begin(), m_hosts.end(), [](const auto &one) {
               return one.second.waiting.empty();
           });
}

void linkExaminer::stop()
{
    while (!m_active.empty())
        release(m_active.back().get());
    m_hosts.clear();
    m_next.stop();
}

// --- Whose turn it is
// -----------------------------------------------------------------------------

void linkExaminer::queue(std::unique_ptr<job> asked, bool inFront)
{
    std::deque<std::unique_ptr<job>> &waiting = m_hosts[asked->at.host()].waiting;
    waiting.insert(inFront ? waiting.begin() : waiting.end(), std::move(asked));
    m_next.start(0);
}

// The host with most left to ask goes first: it takes longest.
void linkExaminer::schedule()
{
    while (int(m_active.size()) < m_limits.together) {
        host *best = nullptr;
        qint64 pause = std::numeric_limits<qint64>::max();
        for (auto &[name, one] : m_hosts) {
            if (one.waiting.empty() || one.active >= m_limits.perHost)
                continue;
            const qint64 left = one.readyAt - m_clock.elapsed();
            if (left > 0)
                pause = std::min(pause, left);
            else if (!best || one.waiting.size() > best->waiting.size())
                best = &one;
        }
        if (!best) {
            if (pause < std::numeric_limits<qint64>::max())
                m_next.start(int(pause));
            break;
        }
        std::unique_ptr<job> asked = std::move(best->waiting.front());
        best->waiting.pop_front();
        ++best->active;
        best->readyAt = m_clock.elapsed() + m_limits.pauseMs;
        start(std::move(asked));
    }
    if (isIdle())
        emit finished();
}

bool linkExaminer::isActive(const job *asked) const
{
    return std::any_of(m_active.begin(), m_active.end(),
                       [asked](const auto &one) { return one.get() == asked; });
}

// Ends the request of a job, which goes to the caller.
std::unique_ptr<linkExaminer::job> linkExaminer::release(job *asked)
{
    const auto at = std::find_if(m_active.begin(), m_active.end(),
                                 [asked](const auto &one) { return one.get() == asked; });
    std::unique_ptr<job> released = std::move(*at);
    m_active.erase(at);
    --m_hosts[released->at.host()].active;
    if (QTimer *limit = std::exchange(released->limit, nullptr)) {
        limit->disconnect();
        limit->deleteLater();
    }
    if (QNetworkReply *answer = std::exchange(released->answer, nullptr)) {
        answer->disconnect();
        answer->abort();
        answer->deleteLater();
    }
    m_next.start(0);
    return released;
}

// --- One address
// ----------------------------------------------------------------------------------

void linkExaminer::start(std::unique_ptr<job> one)
{
    job *asked = one.get();
    m_active.push_back(std::move(one));
    if (!asked->at.isValid()) {
        conclude(asked, linkState::notWeb);
        return;
    }
    QNetworkRequest request(asked->at);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      QStringLiteral("Mozilla/5.0 (compatible; KivZP)"));
    request.setRawHeader("Accept", "*/*");
    // Packed content has no size that means anything, and could be unpacked without end.
    request.setRawHeader("Accept-Encoding", "identity");
    asked->answer = asked->inFull ? m_network->get(request) : m_network->head(request);
    asked->answer->setReadBufferSize(readAtOnce);
    if (asked->inFull) {
        connect(asked->answer, &QNetworkReply::metaDataChanged, this,
                [this, asked] { answered(asked); });
        if (!asked->base.isEmpty())
            connect(asked->answer, &QNetworkReply::readyRead, this, [this, asked] {
                if (asked->isTaking)
                    take(asked, false);
            });
    }
    connect(asked->answer, &QNetworkReply::sslErrors, this,
            [asked](const QList<QSslError> &errors) {
                QStringList reasons;
                for (const QSslError &error : errors)
                    reasons.append(error.errorString());
                reasons.removeDuplicates();
                asked->reply.reason = reasons.join(QLatin1String("; "));
            });
    connect(asked->answer, &QNetworkReply::finished, this, [this, asked] { ended(asked); });
    asked->limit = new QTimer(this);
    asked->limit->setSingleShot(true);
    connect(asked->limit, &QTimer::timeout, this,
            [this, asked] { conclude(asked, linkState::silent); });
    asked->limit->start(m_limits.timeoutMs);
}

// The head of an answer is there.
void linkExaminer::answered(job *asked)
{
    const QNetworkReply &answer = *asked->answer;
    const int status = statusOf(&answer);
    asked->reply.status = status;
    if (isRedirect(status)) {
        const QUrl to = answer.attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        follow(asked, status, to);
        return;
    }
    if (status >= firstError || status < 200 || status >= 300) {
        if (!asked->inFull && wantsFullRequest(status))
            askInFull(asked);
        else
            conclude(asked, stateOf(status));
        return;
    }
    linkReply &reply = asked->reply;
    reply.type = QString::fromLatin1(answer.rawHeader("Content-Type"))
                     .section(QLatin1Char(';'), 0, 0)
                     .simplified()
                     .toLower();
    bool isNumber = false;
    const qint64 size = answer.rawHeader("Content-Length").toLongLong(&isNumber);
    reply.size = isNumber && size >= 0 ? size : -1;
    if (asked->base.isEmpty()) {
        conclude(asked, linkState::answers);
    } else if (reply.size > m_limits.mostBytes) {
        conclude(asked, linkState::tooLarge);
    } else {
        asked->isTaking = true;
        asked->since.start();
    }
}

void linkExaminer::follow(job *asked, int status, const QUrl &target)
{
    QUrl to = asked->at.resolved(target);
    to.setUserInfo({});
    if (target.isEmpty() || !isWeb(to)) {
        conclude(asked, linkState::refused,
                 QLatin1String(QT_TRANSLATE_NOOP("linkReasons", "it leads to no web address")));
        return;
    }
    if (++asked->redirects > m_limits.redirects) {
        conclude(asked, linkState::circular);
        return;
    }
    if (!to.hasFragment())
        to.setFragment(asked->at.fragment());
    // An address that was safe is not given up for one that is not.
    asked->forGood =
        asked->forGood && isForGood(status)
        && (to.scheme() == asked->at.scheme() || to.scheme() == QLatin1String("https"));
    if (asked->forGood)
        asked->reply.movedTo = to.toString(QUrl::FullyEncoded);
    std::unique_ptr<job> goingOn = release(asked);
    goingOn->at = to;
    queue(std::move(goingOn), true);
}

void linkExaminer::askInFull(job *asked)
{
    std::unique_ptr<job> again = release(asked);
    again->inFull = true;
    queue(std::move(again), true);
}

// Writes what has come of a document; the last part may be empty.
void linkExaminer::take(job *asked, bool isLast)
{
    const QByteArray bytes = asked->answer->readAll();
    asked->limit->start(m_limits.timeoutMs);
    asked->received += bytes.size();
    if (asked->received > m_limits.mostBytes) {
        conclude(asked, linkState::tooLarge);
        return;
    }
    if (asked->since.elapsed() > m_limits.fetchMs) {
        conclude(asked, linkState::silent);
        return;
    }
    if (asked->file) {
        asked->file->write(bytes);
    } else {
        asked->begin += bytes;
        if (asked->begin.size() < beginLength && !isLast)
            return;
        const QString suffix = suffixOf(asked->begin);
        asked->reply.file = asked->base + suffix;
        if (suffix.isEmpty()) {
            conclude(asked, linkState::wrongType);
            return;
        }
        if (QFileInfo::exists(asked->reply.file)) {
            conclude(asked, linkState::answers);
            return;
        }
        asked->file = std::make_unique<safeFile>(asked->reply.file);
        if (asked->file->open(QIODevice::WriteOnly))
            asked->file->write(asked->begin);
    }
    if (!asked->file->isOpen() || asked->file->failed())
        conclude(asked, linkState::notSaved, asked->file->errorString());
}

void linkExaminer::ended(job *asked)
{
    const QNetworkReply &answer = *asked->answer;
    const QNetworkReply::NetworkError error = answer.error();
    if (!asked->isTaking && statusOf(&answer) > 0) {
        answered(asked);
        // A short document is told of only now that it is here.
        if (!isActive(asked))
            return;
    }
    switch (error) {
    case QNetworkReply::NoError: {
        take(asked, true);
        if (!isActive(asked))
            return;
        // Somebody else may have fetched it meanwhile.
        const bool isSaved = QFileInfo::exists(asked->reply.file) || asked->file->commit();
        conclude(asked, isSaved ? linkState::answers : linkState::notSaved,
                 isSaved ? QString() : asked->file->errorString());
        return;
    }
    case QNetworkReply::SslHandshakeFailedError:
        conclude(asked, linkState::untrusted,
                 asked->reply.reason.isEmpty() ? answer.errorString() : asked->reply.reason);
        return;
    case QNetworkReply::TimeoutError:
        conclude(asked, linkState::silent);
        return;
    case QNetworkReply::HostNotFoundError:
        conclude(asked, linkState::unreachable,
                 QLatin1String(QT_TRANSLATE_NOOP("linkReasons", "nobody knows the host")));
        return;
    case QNetworkReply::ConnectionRefusedError:
        conclude(asked, linkState::unreachable,
                 QLatin1String(QT_TRANSLATE_NOOP("linkReasons", "no web server is there")));
        return;
    case QNetworkReply::RemoteHostClosedError:
        if (!asked->inFull)
            askInFull(asked);
        else
            conclude(
                asked, linkState::unreachable,
                QLatin1String(QT_TRANSLATE_NOOP("linkReasons", "the server cut the connection")));
        return;
    default:
        // Some of these texts hold the address.
        conclude(asked, linkState::unreachable,
                 answer.errorString().replace(asked->at.toString(),
                                              asked->at.toString(QUrl::RemoveUserInfo)));
    }
}

void linkExaminer::conclude(job *asked, linkState state, const QString &reason)
{
    const std::unique_ptr<job> done = release(asked);
    linkReply &reply = done->reply;
    reply.state = state;
    reply.reason = reason;
    if (state != linkState::answers) {
        reply.movedTo.clear();
        reply.file.clear();
    } else if (done->redirects > 0) {
        reply.state = reply.movedTo.isEmpty() ? linkState::redirected : linkState::moved;
    }
    emit told(reply);
}
