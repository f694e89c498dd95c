// A program folder whose helpers are scripts, and the output of a runner with what it must not
// hold.
#pragma once

#include "testSupport.h"

#include "tools/childRunner.h"

class helperFolder : public testSupport::programFolder
{
public:
    // A helper under that name.
    QString script(const QString &name, const QByteArray &body) const
    {
        QString file = write(QStringLiteral("_bin/") + name, "#!/bin/sh\n" + body + "\n");
        QFile::setPermissions(file, QFile::permissions(file) | QFile::ExeOwner);
        return file;
    }

    // The helpers as they ship.
    void ship() const
    {
        testSupport::copyFolder(testSupport::source(QStringLiteral("_bin")),
                                path(QStringLiteral("_bin")));
    }
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
