// Platform code: a child process that can be ended together with what it started itself.
#pragma once

#include <QProcess>

// On Unix the child leads a session of its own: a launcher script goes together with the program
// that it waits for, and no helper can ask for a password on the terminal the program was started
// from. On Linux it also goes when the program does. On Windows it is a plain child.
class childProcess : public QProcess
{
    Q_OBJECT
public:
    using QProcess::QProcess;
    // Kills it and waits until it is gone.
    ~childProcess() override;

    // Ends it at once. finished() follows as for any other end.
    void killAll();

protected:
    void setupChildProcess() override;
};
