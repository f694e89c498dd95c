// Helpers in a program folder, and the output of their runner.
#pragma once

#include "testSupport.h"

#include "tools/childRunner.h"

// A program folder whose helpers are scripts, or the ones that ship.
class helperFolder : public testSupport::programFolder
{
public:
    QString script(const QString &name, const QByteArray &body) const
    {
        return programFolder::script(QStringLiteral("_bin/") + name, body);
    }
    void ship() const { programFolder::ship({QStringLiteral("_bin")}); }
};

// What a runner logs while the object lives; its bytes are UTF-8 where the helper wrote that.
class runnerLog : public QObject
{
public:
    template <class Runner>
    runnerLog(Runner *runner, void (Runner::*signal)(const QString &))
    {
        connect(runner, signal, this, [this](const QString &run) { runs.append(run); });
    }
    QString text() const { return runs.join(QString()); }
    QByteArray bytes() const { return text().toLatin1(); }

    QStringList runs;
};
