// Sizes and SHA-256 of an update's files, as the list that is signed holds them: a line each,
// "<64 hex digits> <bytes> <name>".
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

struct fileSum
{
    QString name; // without a folder
    qint64 size = 0;
    QByteArray sha256; // hexadecimal, lower case
};

class fileSums
{
public:
    // Nothing, with the line in fault, when the text is no such list: a line of another form, a
    // name twice or with a folder. Empty lines and those that begin with "#" do not count.
    static std::optional<fileSums> read(const QByteArray &text, QString *fault);
    QByteArray text() const;

    // Adds a file under its own name, in the place of an earlier one. False, with the reason in
    // fault, when it cannot be read.
    bool add(const QString &path, QString *fault);

    const std::vector<fileSum> &all() const { return m_all; }
    // Null when the list does not name it.
    const fileSum *find(const QString &name) const;
    // Why the file is not the one that the list names; empty when it is. Reads all of it.
    QString faultOf(const QString &name, const QString &path) const;

private:
    std::vector<fileSum> m_all;
};
