#include "update/fileSums.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

// Nothing, with the reason, when it cannot be read.
std::optional<fileSum> sumOf(const QString &path, QString *fault)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file)) {
        *fault = QDir::toNativeSeparators(path) + QLatin1String(": ") + file.errorString();
        return {};
    }
    return fileSum{QFileInfo(path).fileName(), file.size(), hash.result().toHex()};
}

} // namespace

std::optional<fileSums> fileSums::read(const QByteArray &text, QString *fault)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9a-f]{64}) (\\d{1,15}) ([^/\\\\\\x00-\\x1f]+)$"));
    fileSums all;
    QSet<QString> names; // a long list takes no longer for each of its lines
    int number = 0;
    for (const QByteArray &line : text.split('\n')) {
        ++number;
        const QString plain = QString::fromUtf8(line);
        if (plain.trimmed().isEmpty() || plain.startsWith(QLatin1Char('#')))
            continue;
        const auto match = form.match(plain);
        if (!match.hasMatch() || names.contains(match.captured(3))) {
            *fault =
                QCoreApplication::translate("updates", "Line %1 of the list of files is damaged")
                    .arg(number);
            return {};
        }
        names.insert(match.captured(3));
        all.m_all.push_back(
            {match.captured(3), match.captured(2).toLongLong(), match.captured(1).toLatin1()});
    }
    return all;
}

QByteArray fileSums::text() const
{
    QByteArray text;
    for (const fileSum &one : m_all)
        text += one.sha256 + ' ' + QByteArray::number(one.size) + ' ' + one.name.toUtf8() + '\n';
    return text;
}

bool fileSums::add(const QString &path, QString *fault)
{
    auto made = sumOf(path, fault);
    if (!made)
        return false;
    std::erase_if(m_all, [&made](const fileSum &one) { return one.name == made->name; });
    m_all.push_back(std::move(*made));
    return true;
}

const fileSum *fileSums::find(const QString &name) const
{
    const auto found = std::find_if(m_all.begin(), m_all.end(),
                                    [&name](const fileSum &one) { return one.name == name; });
    return found == m_all.end() ? nullptr : &*found;
}

QString fileSums::faultOf(const QString &name, const QString &path) const
{
    const fileSum *wanted = find(name);
    if (!wanted)
        return QCoreApplication::translate("updates", "%1 is not in the list of files").arg(name);
    QString fault;
    const auto is = sumOf(path, &fault);
    if (!is)
        return fault;
    return is->size == wanted->size && is->sha256 == wanted->sha256
               ? QString()
               : QCoreApplication::translate("updates",
                                             "%1 is not the file that the list of files names")
                     .arg(name);
}
