#include "store/storeBase.h"

#include "util/safeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QUuid>

namespace store {

namespace {

const QByteArray firstLine = "KivZP shared 1";
constexpr int numberBase = 16;

// A text of one line, without tabs.
QByteArray escaped(const QString &text)
{
    QString line = text;
    line.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\n'), QLatin1String("\\n"))
        .replace(QLatin1Char('\t'), QLatin1String("\\t"));
    return line.toUtf8();
}

QString unescaped(const QByteArray &line)
{
    if (!line.contains('\\'))
        return QString::fromUtf8(line);
    QString text;
    const QString from = QString::fromUtf8(line);
    for (int i = 0; i < from.size(); ++i) {
        if (from[i] != QLatin1Char('\\') || i + 1 == from.size()) {
            text += from[i];
            continue;
        }
        const QChar next = from[++i];
        text += next == QLatin1Char('n')   ? QLatin1Char('\n')
                : next == QLatin1Char('t') ? QLatin1Char('\t')
                                           : next;
    }
    return text;
}

QByteArray stateText(const fileState &state)
{
    return QByteArray::number(state.size) + ' '
           + QByteArray::number(state.time.isValid() ? state.time.toMSecsSinceEpoch() : 0);
}

QString damaged(const QString &path, int line)
{
    return QCoreApplication::translate("store", "%1, line %2: this is no row of a shared document")
        .arg(QDir::toNativeSeparators(path))
        .arg(line);
}

// The copy that stands elsewhere is another one.
QByteArray placeOf(const QString &path) { return escaped(QFileInfo(path).absoluteFilePath()); }

bool readRow(const QByteArray &line, size_t rowsBefore, baseRow *row)
{
    const QList<QByteArray> parts = line.split('\t');
    constexpr int partCount = 7;
    if (parts.size() != partCount)
        return false;
    bool good[5];
    row->table = parts[0].toInt(&good[0]);
    row->id = QString::fromLatin1(parts[1]);
    row->below = parts[2].toInt(&good[1]);
    row->place = parts[3].toDouble(&good[2]);
    row->release = parts[4].toLongLong(&good[3]);
    row->hash = parts[5].toULongLong(&good[4], numberBase);
    row->key = unescaped(parts[6]);
    for (const bool one : good)
        if (!one)
            return false;
    return row->table >= 0 && !row->id.isEmpty() && row->below >= -1
           && (row->below < 0 || size_t(row->below) < rowsBefore);
}

base readFrom(const QString &path, bool withRows, QString *fault)
{
    base read;
    QFile file(base::fileOf(path));
    if (!file.exists())
        return read;
    if (!file.open(QIODevice::ReadOnly)) {
        *fault =
            QDir::toNativeSeparators(file.fileName()) + QLatin1String(": ") + file.errorString();
        return read;
    }
    int number = 1;
    if (file.readLine().trimmed() != firstLine) {
        *fault = damaged(file.fileName(), number);
        return read;
    }
    QHash<QByteArray, QByteArray> head;
    bool hasRows = false;
    while (!file.atEnd() && !hasRows) {
        QByteArray line = file.readLine();
        const bool isWhole = line.endsWith('\n');
        line.chop(isWhole ? 1 : 0);
        ++number;
        const int tab = line.indexOf('\t');
        hasRows = isWhole && line.startsWith("rows\t");
        head.insert(line.left(tab), tab < 0 ? QByteArray() : line.mid(tab + 1));
    }
    const int count = head.value("rows").toInt();
    read.store = unescaped(head.value("store"));
    read.document = unescaped(head.value("document"));
    read.kind = unescaped(head.value("kind"));
    read.mayWrite = head.value("may write") == "yes";
    read.release = head.value("release").toLongLong();
    read.program =
        head.value("place") == placeOf(path) ? unescaped(head.value("program")) : newId();
    const QList<QByteArray> state = head.value("file").split(' ');
    if (state.size() == 2)
        read.synced = {state[0].toLongLong(),
                       QDateTime::fromMSecsSinceEpoch(state[1].toLongLong())};
    if (!withRows)
        return read;
    read.rows.resize(size_t(qBound(0, count, int(file.size()))));
    for (size_t i = 0; i < read.rows.size(); ++i) {
        QByteArray line = file.readLine();
        ++number;
        // The last line ends, too, unless something was cut off.
        if (!line.endsWith('\n') || (line.chop(1), !readRow(line, i, &read.rows[i]))) {
            *fault = damaged(file.fileName(), number);
            return {};
        }
    }
    if (!hasRows) {
        *fault = damaged(file.fileName(), number);
        return {};
    }
    return read;
}

} // namespace

QString newId()
{
    return QString::fromLatin1(QUuid::createUuid().toRfc4122().toBase64(
        QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

QString base::fileOf(const QString &path) { return path + QLatin1String(".shared"); }

base base::read(const QString &path, QString *fault)
{
    fault->clear();
    return readFrom(path, true, fault);
}

base base::readHead(const QString &path)
{
    QString fault;
    return readFrom(path, false, &fault);
}

bool base::write(const QString &path, QString *fault) const
{
    QByteArray bytes = firstLine + '\n';
    const auto line = [&bytes](const char *name, const QByteArray &value) {
        bytes += name;
        bytes += '\t' + value + '\n';
    };
    line("store", escaped(store));
    line("document", escaped(document));
    line("kind", escaped(kind));
    line("program", escaped(program));
    line("place", placeOf(path));
    line("may write", mayWrite ? "yes" : "no");
    line("release", QByteArray::number(release));
    line("file", stateText(synced));
    line("rows", QByteArray::number(qlonglong(rows.size())));
    constexpr int usual = 96;  // bytes of a row
    constexpr int digits = 17; // give a double back exactly
    bytes.reserve(bytes.size() + int(rows.size()) * usual);
    for (const baseRow &row : rows) {
        bytes += QByteArray::number(row.table) + '\t' + row.id.toLatin1() + '\t'
                 + QByteArray::number(row.below) + '\t' + QByteArray::number(row.place, 'g', digits)
                 + '\t' + QByteArray::number(row.release) + '\t'
                 + QByteArray::number(row.hash, numberBase) + '\t' + escaped(row.key) + '\n';
    }
    safeFile file(fileOf(path));
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    *fault = QDir::toNativeSeparators(fileOf(path)) + QLatin1String(": ") + file.errorString();
    return false;
}

} // namespace store
