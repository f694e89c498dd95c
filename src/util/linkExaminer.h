// Asks web addresses what has become of them: several at once, but gently with each host, over HTTP
// and HTTPS, redirects followed one by one. It can also fetch a document into a file.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <deque>
#include <map>
#include <memory>
#include <vector>

// What came of an address. The last three only come of fetching.
enum class linkState
{
    answers,
    moved,      // for good, and answers there
    redirected, // for now, and answers there
    missing,
    refused,     // the server wants a name and password, or does not give it for another reason
    failing,     // the server is at fault, or asks to come later
    silent,      // no answer in time
    unreachable, // host unknown, connection refused or cut
    untrusted,   // no certificate that can be trusted
    circular,    // redirected again and again
    notWeb,      // neither http nor https, so nobody was asked
    tooLarge,
    wrongType, // none of the kinds of document that are kept
    notSaved   // the file could not be written
};

struct linkReply
{
    QString link; // as it was given
    linkState state = linkState::notWeb;
    int status = 0;   // of HTTP, from the last server; 0 when none came
    QString movedTo;  // where redirects for good lead, encoded; only when that answers
    QString type;     // "application/pdf", in small letters; empty when not told
    qint64 size = -1; // bytes; -1 when not told
    // Where state and status do not say it: a source text of the context "linkReasons", or the
    // network's own words.
    QString reason;
    QString file; // the path of what was fetched
};

struct linkLimits
{
    int together = 8;      // requests at once
    int perHost = 2;       // of these to one host
    int pauseMs = 250;     // between the beginnings of two requests to a host
    int timeoutMs = 15000; // for an answer, and when fetching, without a further byte
    int fetchMs = 600000;  // for a whole document
    int redirects = 10;    // that are followed
    qint64 mostBytes = 50LL * 1024 * 1024; // of a document
};

namespace webLinks {

// The address of a link over HTTP or HTTPS; an invalid one for any other.
QUrl addressOf(const QString &link);

// The link without the user name and password that it may hold, to be shown, kept or logged.
QString withoutPassword(const QString &link);

} // namespace webLinks

// Lives in a thread with an event loop. What is asked for is answered by told(), once each, in no
// order.
class linkExaminer : public QObject
{
    Q_OBJECT
public:
    explicit linkExaminer(const linkLimits &limits = {}, QObject *parent = nullptr);
    ~linkExaminer() override;

    // Asks for the head of an address, and where a server refuses that, for the address itself,
    // whose content is not taken.
    void examine(const QString &link);

    // Fetches a document into the path base and a suffix that its content decides (".pdf", ".png",
    // ".jpg", ".gif"); nothing else is kept. A file that stands there stays and counts as fetched.
    void fetch(const QString &link, const QString &base);

    // Gives up what is not answered yet; nothing more is told of it.
    void stop();

    bool isIdle() const;

signals:
    void told(const linkReply &reply);
    // Everything asked for is answered.
    void finished();

private:
    struct job;
    struct host
    {
        std::deque<std::unique_ptr<job>> waiting;
        int active = 0;
        qint64 readyAt = 0; // on the clock
    };

    void queue(std::unique_ptr<job> asked, bool inFront);
    void schedule();
    void start(std::unique_ptr<job> asked);
    bool isActive(const job *asked) const;
    std::unique_ptr<job> release(job *asked);
    void answered(job *asked);
    void follow(job *asked, int status, const QUrl &to);
    void askInFull(job *asked);
    void take(job *asked, bool isLast);
    void ended(job *asked);
    void conclude(job *asked, linkState state, const QString &reason = {});

    linkLimits m_limits;
    class QNetworkAccessManager *m_network;
    std::map<QString, host> m_hosts;
    std::vector<std::unique_ptr<job>> m_active;
    QElapsedTimer m_clock;
    QTimer m_next;
};
