// What the runners of helper programs have in common: one child process, its output passed on as
// text, its end told once. A runner is made for one job and started once. GUI thread only.
#pragma once

#include <QObject>
#include <QString>

class childProcess;
class QTimer;

class childRunner : public QObject
{
    Q_OBJECT
public:
    // Results beside the child's own exit codes.
    enum : int
    {
        notStarted = -1001, // before the start, and for ever when the child could not be started
        timedOut = -1003    // the child was killed
    };

    bool isDone() const { return m_done; }
    // The child's exit code once it is done, or one of the two above. A child that crashed has the
    // number of its signal (on Windows of its fault), which is not 0 either.
    int result() const { return m_result; }

    // Handles events until the child is done, sleeping 10 ms between; returns the result.
    // notStarted at once when there is nothing to wait for, also when the runner is deleted
    // meanwhile.
    int wait();

    // Ends a running child before its time, as when the user cancels; the result is timedOut.
    void stop();

public slots:
    void finished(int code);
    void standardError();
    void standardOutput();

protected:
    explicit childRunner(QObject *parent);

    // Starts the child in a folder (empty: the program's current one) with a command text: its
    // first word names a helper, see helpers.h. The child reads nothing. One that cannot be started
    // leaves a line of the log and is done at once with notStarted. A second start does nothing.
    void startChild(const QString &command, const QString &folder = {});

    // A job that cannot be begun: a line of the log, with what it is about in brackets; done with
    // notStarted. Does nothing after a start.
    void refuse(const QString &reason, const QString &subject = {});
    bool isStarted() const { return m_started; }

    // A text that is masked wherever the child's output repeats it.
    void keepSecret(const QString &secret);

    // Emits the runner's log signal.
    virtual void log(const QString &text) = 0;

    // The end, whichever it was: called once, with the result. An override calls this.
    virtual void conclude(int result);

    childProcess *process() const { return m_process; }

    // What was held back of a channel because it may be the beginning of the secret.
    struct channel
    {
        QString held;
    };
    // Logs what came on a channel, with the secret masked; last: no more will come.
    void passOn(channel &from, const QByteArray &bytes, bool last = false);

private:
    void fail(const QString &reason, const QString &subject);

    childProcess *m_process;
    QString m_secret;
    channel m_output;
    channel m_error;
    bool m_started = false;
    bool m_done = false;
    int m_result = notStarted;
};

// One that kills a child which does not end in time.
class timedRunner : public childRunner
{
    Q_OBJECT
public slots:
    void timeoutOccured();

protected:
    explicit timedRunner(QObject *parent);

    // timeoutMs: how long the child may run, in milliseconds; more than 0.
    void startChild(const QString &command, int timeoutMs, const QString &folder = {});

    void conclude(int result) override;

private:
    QTimer *m_timer;
};
