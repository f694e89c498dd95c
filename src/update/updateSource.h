// Where updates come from: the files at an address.
#pragma once

#include "util/progress.h"

#include <QString>
#include <QUrl>

class updateSource
{
public:
    // Account of a server that is reached by secure copy.
    struct login
    {
        QString account;
        QString password;
        QString hostKey;
    };

    // address: http://, https://, scp://host/folder, file:// or a folder's path; a missing "/" at
    // the end is added. Anything else has a fault().
    explicit updateSource(const QString &address, login account = {});

    // An address as it may be shown and logged: an account in it, which has options of its own, is
    // left out.
    static QString shown(const QString &address);

    // Why nothing can be fetched from it; empty when it is an address.
    const QString &fault() const { return m_fault; }

    // The address of a file: of a name or a relative link that of the file at this address; of a
    // full link itself, of the same scheme only, so that no signed-off web address turns into a
    // file of this computer. Empty for any other.
    QUrl urlOf(const QString &link) const;

    // Gets a file into target, which is written in one piece; its folder is there. Handles events
    // meanwhile. The reason when it cannot be got, is larger than most bytes, or progress says no
    // (then isCancelled()); nothing stays at target then. progress is told bytes, of most when
    // nothing better is known.
    QString fetch(const QString &link, const QString &target, qint64 most,
                  const progressFunction &progress = {});
    bool isCancelled() const { return m_cancelled; }

private:
    QUrl m_base;
    login m_login;
    QString m_fault;
    bool m_cancelled = false;
};
