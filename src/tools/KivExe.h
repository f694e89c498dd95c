// Runs any helper program with a time-out, such as the document converters.
#pragma once

#include "tools/childRunner.h"

#include <QStringList>

namespace KivExe {

class exe : public timedRunner
{
    Q_OBJECT
public:
    explicit exe(QObject *parent = nullptr);

    // Joins the arguments with blanks to the command text and starts it, in the folder of what
    // users change. The first is the helper's name; those that may hold blanks or quotes are
    // written with helpers::quoted(). timeoutMs: more than 0.
    void start(const QStringList &arguments, int timeoutMs);

signals:
    // A run of the child's output.
    void updateLog(const QString &text);
    // The end by itself, with the exit code, or notStarted. Emitted once, unless timeout() is.
    void complete(int result);
    // The end by the clock or stop(), with timedOut.
    void timeout(int result);

protected:
    void log(const QString &text) override { emit updateLog(text); }
    void conclude(int result) override;
};

} // namespace KivExe
