// Copies a file to the file server by secure copy.
#pragma once

#include "tools/childRunner.h"

namespace KivScp {

struct upload
{
    QString account;
    QString password;
    QString host;
    QString source; // a file here
    QString target; // a path on the server
    // The server's key as pscp's -hostkey takes it ("SHA256:..."); empty: a key that was accepted
    // on this computer before.
    QString hostKey;
};

// pscp with what is the same for all copies, up to and with "--".
QString commandStart(const QString &password, const QString &hostKey);

class scp : public timedRunner
{
    Q_OBJECT
public:
    explicit scp(QObject *parent = nullptr);

    // The port is always 22. An upload without account, password, host, source or target is
    // refused. The result is 0 when the file was copied. timeoutMs: more than 0.
    void start(const upload &job, int timeoutMs);

    // After a failed end: the key of a server that was refused because nobody has accepted a key of
    // it, as upload::hostKey takes it; empty otherwise.
    QString offeredKey() const;
    // And whether the server has another key than the accepted one.
    bool keyChanged() const;

    static QString command(const upload &job);

signals:
    void updateLog(const QString &text);

protected:
    void log(const QString &text) override;

private:
    QString m_said; // its beginning
};

} // namespace KivScp
