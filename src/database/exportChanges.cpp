#include "database/exportChanges.h"

#include "data/kiv_mat_databaseStruct.h"
#include "util/gzipFile.h"
#include "util/labels.h"
#include "util/scratch.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTemporaryFile>

namespace {

// The first word of each line says what the line is.
constexpr char head[] = "KivZP export 1";
constexpr int headSize = sizeof(head) - 1;
constexpr char fieldsMark = 'F';
constexpr char tableMark = 'T';
constexpr char materialMark = 'M';

// More than any export has.
constexpr qint64 largest = qint64(1) << 30;

// Texts in one line with tabs between them.
QByteArray lineOfTexts(const QStringList &texts)
{
    QByteArray line;
    for (int i = 0; i < texts.size(); ++i) {
        if (i > 0)
            line += '\t';
        for (const char c : texts.at(i).toUtf8()) {
            if (c == '\\')
                line += "\\\\";
            else if (c == '\t')
                line += "\\t";
            else if (c == '\n')
                line += "\\n";
            else if (c == '\r')
                line += "\\r";
            else
                line += c;
        }
    }
    return line;
}

QStringList textsOfLine(const QByteArray &line)
{
    QStringList texts;
    for (const QByteArray &part : line.split('\t')) {
        QByteArray text;
        for (int i = 0; i < part.size(); ++i) {
            if (part.at(i) != '\\' || i + 1 == part.size()) {
                text += part.at(i);
                continue;
            }
            const char c = part.at(++i);
            text += c == 't' ? '\t' : c == 'n' ? '\n' : c == 'r' ? '\r' : c;
        }
        texts.append(QString::fromUtf8(text));
    }
    return texts;
}

// What a material is known by among all: its KTM, and which one of those that have it.
class materialKeys
{
public:
    QByteArray next(const QByteArray &line)
    {
        const QByteArray ktm = line.left(line.indexOf('\t'));
        const int number = m_seen[ktm]++;
        return number == 0 ? ktm : ktm + '\t' + QByteArray::number(number);
    }

private:
    QHash<QByteArray, int> m_seen;
};

QString keyOf(QString materialStruct::*member)
{
    for (const auto &field : materialStruct::fields())
        if (field.member == member)
            return field.name;
    return {};
}

QString translated(const char *text, int count = -1)
{
    return QCoreApplication::translate("exportChanges", text, nullptr, count);
}

// What happened, in a table, and how often, in a sentence; with the sign of a line.
struct kindText
{
    const char *what;
    const char *count;
    char sign;
};
constexpr kindText kindTexts[exportChange::changeKindCount] = {
    {QT_TRANSLATE_NOOP("exportChanges", "Table added"),
     QT_TRANSLATE_N_NOOP("exportChanges", "%n table(s) added"), '+'},
    {QT_TRANSLATE_NOOP("exportChanges", "Table removed"),
     QT_TRANSLATE_N_NOOP("exportChanges", "%n table(s) removed"), '-'},
    {QT_TRANSLATE_NOOP("exportChanges", "Table renamed"),
     QT_TRANSLATE_N_NOOP("exportChanges", "%n table(s) renamed"), '>'},
    {QT_TRANSLATE_NOOP("exportChanges", "Material added"),
     QT_TRANSLATE_N_NOOP("exportChanges", "%n material(s) added"), '+'},
    {QT_TRANSLATE_NOOP("exportChanges", "Material removed"),
     QT_TRANSLATE_N_NOOP("exportChanges", "%n material(s) removed"), '-'},
    {QT_TRANSLATE_NOOP("exportChanges", "Material changed"),
     QT_TRANSLATE_N_NOOP("exportChanges", "%n material(s) changed"), '~'},
    {QT_TRANSLATE_NOOP("exportChanges", "Material moved"),
     QT_TRANSLATE_N_NOOP("exportChanges", "%n material(s) moved"), '>'},
};

} // namespace

QStringList changeCaptions()
{
    return {translated(QT_TRANSLATE_NOOP("exportChanges", "Change")),
            translated(QT_TRANSLATE_NOOP("exportChanges", "Table")),
            labels::ktm(),
            labels::name(),
            translated(QT_TRANSLATE_NOOP("exportChanges", "Field")),
            translated(QT_TRANSLATE_NOOP("exportChanges", "Before")),
            translated(QT_TRANSLATE_NOOP("exportChanges", "Now"))};
}

QStringList cellsOf(const exportChange &change)
{
    return {translated(kindTexts[change.kind].what),
            change.table,
            change.ktm,
            change.name,
            change.field,
            change.before,
            change.after};
}

QString lineOf(const exportChange &change)
{
    QStringList parts;
    for (const QString &part : {change.table, change.ktm, change.name, change.field})
        if (!part.isEmpty())
            parts.append(part);
    QString line = parts.join(QLatin1String(", "));
    if (!change.before.isEmpty() || !change.after.isEmpty())
        line += QLatin1String(line.isEmpty() ? "" : ": ")
                + QStringLiteral("%1 -> %2").arg(change.before, change.after);
    line.prepend(QLatin1Char(kindTexts[change.kind].sign) + QLatin1String(" "));
    return line.replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

QString summaryOf(const exportChanges &changes)
{
    if (!changes.compared)
        return translated(QT_TRANSLATE_NOOP("exportChanges", "No earlier export to compare with"));
    if (changes.rows.empty())
        return translated(
                   QT_TRANSLATE_NOOP("exportChanges", "Nothing changed since the export of %1"))
            .arg(changes.since);
    int counts[exportChange::changeKindCount] = {};
    QString last;
    for (const exportChange &change : changes.rows) {
        // A material counts once, however many of its fields have changed.
        const QString subject = change.ktm + QLatin1Char('\t') + change.name;
        if (change.kind != exportChange::materialChanged || subject != last)
            ++counts[change.kind];
        last = change.kind == exportChange::materialChanged ? subject : QString();
    }
    QStringList parts;
    for (int kind = 0; kind < exportChange::changeKindCount; ++kind)
        if (counts[kind] > 0)
            parts.append(translated(kindTexts[kind].count, counts[kind]));
    return translated(QT_TRANSLATE_NOOP("exportChanges", "Since the export of %1: %2"))
        .arg(changes.since, parts.join(QLatin1String(", ")));
}

// --- The memory
// ---------------------------------------------------------------------------------------

QString exportMemory::pathOf(const QString &path) { return path + QLatin1String(".last.gz"); }

exportMemory::exportMemory(const QString &path)
    : m_path(pathOf(path))
{
    QTemporaryFile unpacked(scratch::pattern());
    if (!QFile::exists(m_path) || !unpacked.open())
        return;
    QFile file(unpacked.fileName());
    if (gzipFile::unpack(m_path, file.fileName(), largest) && file.open(QIODevice::ReadOnly))
        take(file.readAll());
}

void exportMemory::take(const QByteArray &content)
{
    int from = 0;
    for (int number = 0; from < content.size(); ++number) {
        const int end = content.indexOf('\n', from);
        const int size = (end < 0 ? content.size() : end) - from;
        const char mark = content.at(from);
        // Past the mark and its tab.
        const QByteArray line = size > 2 ? content.mid(from + 2, size - 2) : QByteArray();
        if (number == 0) {
            if (!content.startsWith(QByteArray(head) + '\t'))
                return;
            m_since = QString::fromUtf8(content.mid(headSize + 1, size - headSize - 1));
            m_isKnown = true;
        } else if (mark == fieldsMark) {
            m_keys = textsOfLine(line);
        } else if (mark == tableMark) {
            const QStringList texts = textsOfLine(line);
            m_tables.push_back({texts.value(1), texts.value(0)});
        } else if (mark == materialMark && !m_tables.empty()) {
            m_materials.push_back({line, int(m_tables.size()) - 1});
        }
        from += size + 1;
    }
}

QHash<QString, QString> exportMemory::tableNames() const
{
    QHash<QString, QString> names;
    for (const exportedTable &table : m_tables)
        names.insert(table.group, table.name);
    return names;
}

bool exportMemory::follow(const kiv_mat_databaseStruct &database, const QStringList &tables,
                          const std::vector<column> &columns, exportChanges &changes,
                          const progressFunction &progress)
{
    changes = {};
    changes.compared = m_isKnown;
    changes.since = m_since;
    QStringList keys;
    for (const column &c : columns)
        keys.append(keyOf(c.field));

    // Which table each of the last export's has become: that of the name, else that of the group.
    std::vector<int> become(m_tables.size(), -1);
    for (size_t i = 0; i < m_tables.size(); ++i)
        become[i] = tables.indexOf(m_tables[i].name);
    std::vector<bool> isNew(size_t(tables.size()), true);
    for (const int table : become)
        if (table >= 0)
            isNew[size_t(table)] = false;
    for (size_t i = 0; i < m_tables.size(); ++i)
        for (int table = 0; table < tables.size() && become[i] < 0; ++table)
            if (isNew[size_t(table)] && database.groups[size_t(table)]->name == m_tables[i].group) {
                become[i] = table;
                isNew[size_t(table)] = false;
            }

    QHash<QByteArray, int> places;
    places.reserve(int(m_materials.size()));
    materialKeys keysBefore;
    for (size_t i = 0; i < m_materials.size(); ++i)
        places.insert(keysBefore.next(m_materials[i].line), int(i));

    // The materials of now whose line or table is another one, with their place in the last export.
    struct difference
    {
        const materialStruct *material;
        int table;
        int before; // -1: none
    };
    std::vector<difference> differences;
    std::vector<bool> stillThere(m_materials.size());
    std::vector<QHash<int, int>> votes(m_tables.size());
    std::vector<int> sizes(m_tables.size());
    for (const exportedMaterial &material : m_materials)
        ++sizes[size_t(material.table)];

    QTemporaryFile file(scratch::pattern());
    if (!file.open())
        return false;
    QByteArray content(head);
    content +=
        '\t' + QDateTime::currentDateTime().toString(QStringLiteral("yyyy.MM.dd hh:mm:ss")).toUtf8()
        + '\n' + fieldsMark + '\t' + lineOfTexts(keys) + '\n';
    materialKeys keysNow;
    progressSteps steps(progress, database.materialCount());
    for (int table = 0; table < tables.size(); ++table) {
        const d_groupStruct &group = *database.groups[size_t(table)];
        content +=
            QByteArray(1, tableMark) + '\t' + lineOfTexts({tables.at(table), group.name}) + '\n';
        for (const auto &material : group.items) {
            QStringList texts;
            for (const column &c : columns)
                texts.append((*material).*c.field);
            const QByteArray line = lineOfTexts(texts);
            content += QByteArray(1, materialMark) + '\t' + line + '\n';
            const int place = places.value(keysNow.next(line), -1);
            if (place >= 0) {
                const exportedMaterial &before = m_materials[size_t(place)];
                stillThere[size_t(place)] = true;
                ++votes[size_t(before.table)][table];
                if (before.line == line && keys == m_keys
                    && become[size_t(before.table)] == table) {
                    steps.next();
                    continue;
                }
            }
            differences.push_back({material.get(), table, place});
            steps.next();
        }
        if (file.write(content) != content.size())
            return false;
        content.resize(0);
    }
    if (file.write(content) != content.size() || !file.flush())
        return false;

    if (m_isKnown) {
        // A table that is gone was renamed when most of its materials stand in one new table.
        for (size_t i = 0; i < m_tables.size(); ++i)
            for (auto vote = votes[i].cbegin(); become[i] < 0 && vote != votes[i].cend(); ++vote)
                if (isNew[size_t(vote.key())] && vote.value() * 2 > sizes[i]) {
                    become[i] = vote.key();
                    isNew[size_t(vote.key())] = false;
                }
        const auto add = [&changes](exportChange::changeKind kind) -> exportChange & {
            changes.rows.emplace_back().kind = kind;
            return changes.rows.back();
        };
        for (int table = 0; table < tables.size(); ++table)
            if (isNew[size_t(table)])
                add(exportChange::tableAdded).table = tables.at(table);
        for (size_t i = 0; i < m_tables.size(); ++i) {
            if (become[i] < 0) {
                add(exportChange::tableRemoved).table = m_tables[i].name;
            } else if (const QString &now = tables.at(become[i]); now != m_tables[i].name) {
                exportChange &change = add(exportChange::tableRenamed);
                change.before = m_tables[i].name;
                change.after = now;
            }
        }
        for (const difference &found : differences) {
            const QString &table = tables.at(found.table);
            const auto tell = [&](exportChange::changeKind kind, const QString &field,
                                  const QString &before, const QString &after) {
                changes.rows.push_back({kind, table, found.material->d_ktm, found.material->d_name,
                                        field, before, after});
            };
            if (found.before < 0) {
                tell(exportChange::materialAdded, {}, {}, {});
                continue;
            }
            const exportedMaterial &before = m_materials[size_t(found.before)];
            if (become[size_t(before.table)] != found.table)
                tell(exportChange::materialMoved, {}, m_tables[size_t(before.table)].name, table);
            const QStringList texts = textsOfLine(before.line);
            for (size_t i = 0; i < columns.size(); ++i) {
                const int at = m_keys.indexOf(keys.at(int(i)));
                const QString now = found.material->*columns[i].field;
                if (at >= 0 && texts.value(at) != now)
                    tell(exportChange::materialChanged, columns[i].caption, texts.value(at), now);
            }
        }
        const int ktmAt = m_keys.indexOf(keyOf(&materialStruct::d_ktm));
        const int nameAt = m_keys.indexOf(keyOf(&materialStruct::d_name));
        for (size_t i = 0; i < m_materials.size(); ++i)
            if (!stillThere[i]) {
                const QStringList texts = textsOfLine(m_materials[i].line);
                exportChange &change = add(exportChange::materialRemoved);
                change.table = m_tables[size_t(m_materials[i].table)].name;
                change.ktm = texts.value(ktmAt);
                change.name = texts.value(nameAt);
            }
    }
    return gzipFile::pack(file.fileName(), m_path, changes.since);
}
