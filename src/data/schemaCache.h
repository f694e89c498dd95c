// Keeps compiled schemas between validations, until their file changes.
#pragma once

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>

template <class Compiled>
class schemaCache
{
public:
    // The compiled form of a schema file: the kept one while the file's size and time are the same,
    // else what compile(bytes of the file) returns. Compiled() when the file cannot be read.
    template <class Compile>
    Compiled get(const QString &path, Compile compile)
    {
        const QFileInfo info(path);
        const auto found = m_entries.constFind(path);
        if (found != m_entries.constEnd() && found->size == info.size()
            && found->changed == info.lastModified())
            return found->compiled;
        QFile file(path);
        if (!info.isFile() || !file.open(QIODevice::ReadOnly))
            return Compiled();
        Compiled compiled = compile(file.readAll());
        m_entries.insert(path, {info.size(), info.lastModified(), compiled});
        return compiled;
    }

private:
    struct entry
    {
        qint64 size;
        QDateTime changed;
        Compiled compiled;
    };
    QHash<QString, entry> m_entries;
};
