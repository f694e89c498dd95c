// Tells when a file, or the locks beside it, may have become others. Where the system sends no
// notice, as from network folders, it looks by itself now and then; looking never holds up the
// program.
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>

class fileWatch : public QObject
{
    Q_OBJECT
public:
    explicit fileWatch(QObject *parent);

    // Watches a file in place of the one before, also one that is not there; none for an empty
    // path.
    void watch(const QString &path);

    const QString &path() const { return m_path; }
    // Who else had the file open when it was looked at last.
    QStringList others() const { return m_seen ? m_seen->others : QStringList(); }

signals:
    // Size, time or locks are others than before; also after a file was replaced.
    void changed();

private:
    struct look
    {
        qint64 size = -1;
        QDateTime time;
        QStringList others;
        bool operator==(const look &) const = default;
    };

    void lookSoon();
    void begin();
    void take(const QString &path, const look &now);

    QFileSystemWatcher m_notices;
    QTimer m_soon;
    QTimer m_slow;
    QString m_path;
    std::optional<look> m_seen; // nothing before the first look
    bool m_looking = false;
    bool m_lookAgain = false;
};
