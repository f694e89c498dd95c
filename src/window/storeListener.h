// Listens to the shared store while the program runs: which of its documents others changed, and
// who edits which material now. Advisory: nobody is kept from anything.
#pragma once

#include "store/storeConnection.h"

#include <QDateTime>
#include <QHash>
#include <QObject>

#include <memory>

namespace store {
struct base;
}

class storeListener : public QObject
{
    Q_OBJECT
public:
    static storeListener &instance();

    // Listens with this connection, in place of another one.
    void listen(std::unique_ptr<store::connection> with);
    bool isListening() const { return m_with && m_with->isOpen(); }
    void stop() { m_with.reset(); }

    // How many rows of a document others changed since.
    int changesOf(const store::base &known);
    // Tells others that a record is edited here; once in a while for the same one.
    void tellEditing(const QString &document, const QString &program, const QString &key);
    // Who told so some minutes ago at most; empty when nobody did.
    QString editorOf(const QString &document, const QString &key) const;

signals:
    void changed(const QString &document);
    void edited(const QString &document, const QString &key);

private:
    void take(const QString &payload);

    struct editing
    {
        QString who;
        QDateTime at;
    };
    std::unique_ptr<store::connection> m_with;
    QHash<QString, editing> m_editors; // by document and key
    QHash<QString, QDateTime> m_told;
};
