#include "data/documentMerge.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_zpStruct.h"

#include "util/labels.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <optional>

namespace {

// An element, or an attribute, whose name then begins with "@".
struct node
{
    QString name;
    QString text;
    std::vector<node> children;

    bool operator==(const node &) const = default;
    const node *child(const QString &wanted) const
    {
        const auto found = std::find_if(children.begin(), children.end(),
                                        [&](const node &c) { return c.name == wanted; });
        return found == children.end() ? nullptr : &*found;
    }
};

class nodeReader
{
public:
    nodeReader(const QStringList &paths, const progressFunction &progress)
        : m_progress(progress)
    {
        for (const QString &path : paths)
            m_total += QFileInfo(path).size();
    }

    // Nothing when the file cannot be read, or reading was cancelled.
    std::optional<node> read(const QString &path)
    {
        QFile file(path);
        if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
            return {};
        QXmlStreamReader reader(&file);
        reader.setNamespaceProcessing(false);
        if (!reader.readNextStartElement())
            return {};
        node root = element(reader);
        while (!reader.atEnd())
            reader.readNext();
        m_done += file.size();
        return reader.hasError() ? std::nullopt : std::optional(std::move(root));
    }

private:
    // Names repeat a million times.
    QString shared(const QString &name) { return *m_names.insert(name); }

    node element(QXmlStreamReader &reader)
    {
        constexpr int often = 4096;
        if (m_progress && ++m_count % often == 0
            && !m_progress(m_done + reader.device()->pos(), m_total))
            reader.raiseError();
        node read;
        read.name = shared(reader.qualifiedName().toString());
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes)
            read.children.push_back(
                {shared(QLatin1Char('@') + attribute.qualifiedName().toString()),
                 attribute.value().toString(),
                 {}});
        bool hasElements = false;
        while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::EndElement) {
            if (reader.isStartElement()) {
                hasElements = true;
                read.children.push_back(element(reader));
            } else if (reader.isCharacters()) {
                read.text += reader.text();
            }
        }
        // Between elements there are only blanks.
        if (hasElements)
            read.text.clear();
        return read;
    }

    progressFunction m_progress;
    QSet<QString> m_names;
    qint64 m_total = 0;
    qint64 m_done = 0;
    int m_count = 0;
};

void write(QXmlStreamWriter &writer, const node &of)
{
    writer.writeStartElement(of.name);
    for (const node &child : of.children)
        if (child.name.startsWith(QLatin1Char('@')))
            writer.writeAttribute(child.name.mid(1), child.text);
    writer.writeCharacters(of.text);
    for (const node &child : of.children)
        if (!child.name.startsWith(QLatin1Char('@')))
            write(writer, child);
    writer.writeEndElement();
}

// What a line is known by; empty for what stands once.
QString idOf(const node &of)
{
    static const QString keys[] = {QStringLiteral("d_ktm"),  QStringLiteral("ktm"),
                                   QStringLiteral("@type"),  QStringLiteral("d_name"),
                                   QStringLiteral("name"),   QStringLiteral("@name"),
                                   QStringLiteral("part_no")};
    const bool isFile = of.child(QStringLiteral("@name")) && of.child(QStringLiteral("@type"));
    for (const QString &key : keys) {
        const node *found = of.child(key);
        if (found && !found->text.isEmpty() && !(isFile && key == QLatin1String("@type")))
            return found->text;
    }
    return {};
}

// For the user: KTM and name.
QString captionOf(const node &of)
{
    const QString id = idOf(of);
    QStringList parts{id};
    for (const char *key : {"d_name", "name"})
        if (const node *name = of.child(QLatin1String(key)); name && name->text != id)
            parts.append(name->text);
    return parts.join(QLatin1Char(' ')).trimmed();
}

// All texts, in one line.
QString textOf(const node &of)
{
    QStringList texts;
    if (!of.text.trimmed().isEmpty())
        texts.append(of.text.trimmed());
    for (const node &child : of.children)
        if (const QString text = textOf(child); !text.isEmpty())
            texts.append(text);
    return texts.join(QLatin1String("; "));
}

// The children by what they are known by, those of one name numbered.
using childKey = std::pair<QString, int>;
struct childList
{
    std::vector<childKey> order;
    QHash<childKey, const node *> byKey;

    explicit childList(const node *parent)
    {
        if (!parent)
            return;
        QHash<QString, int> counts;
        for (const node &child : parent->children) {
            const QString id = child.name + QLatin1Char('\n') + idOf(child);
            const childKey key(id, counts[id]++);
            order.push_back(key);
            byKey.insert(key, &child);
        }
    }
};

template <class Record>
void addCaptions(QHash<QString, QString (*)()> *all)
{
    for (const auto &field : Record::fields())
        if (field.label)
            all->insert(field.name, field.label);
}

// A group that got another name is known by what stands in it: it goes on under the key that it has
// in the other list.
void followRenames(childList *list, const childList &other)
{
    QHash<QString, childKey> homes; // of the lines of groups that only the other list has
    for (const childKey &key : other.order)
        if (!list->byKey.contains(key))
            for (const node &line : other.byKey.value(key)->children)
                if (const QString id = idOf(line); !id.isEmpty() && !line.children.empty())
                    homes.insert(line.name + QLatin1Char('\n') + id, key);
    if (homes.isEmpty())
        return;
    for (childKey &key : list->order) {
        const node *group = list->byKey.value(key);
        if (other.byKey.contains(key))
            continue;
        QHash<childKey, int> votes;
        int lines = 0;
        for (const node &line : group->children) {
            const QString id = idOf(line);
            if (id.isEmpty() || line.children.empty())
                continue;
            ++lines;
            if (const auto home = homes.find(line.name + QLatin1Char('\n') + id);
                home != homes.end())
                ++votes[*home];
        }
        for (auto vote = votes.begin(); vote != votes.end(); ++vote)
            if (2 * vote.value() > lines && !list->byKey.contains(vote.key())
                && other.byKey.value(vote.key())->name == group->name) {
                list->byKey.remove(key);
                key = vote.key();
                list->byKey.insert(key, group);
                break;
            }
    }
}

// What saving and the program itself write.
bool isOwn(const node &of, int depth)
{
    return of.name == QLatin1String("index")
           || (depth == 1 && of.children.empty() && of.name != QLatin1String("attentions"));
}

} // namespace

QString mergeCaption(const QString &field)
{
    static const auto captions = [] {
        QHash<QString, QString (*)()> all;
        addCaptions<manufacturerStruct>(&all);
        addCaptions<fileStruct>(&all);
        addCaptions<optionStruct>(&all);
        addCaptions<targetStruct>(&all);
        addCaptions<personStruct>(&all);
        addCaptions<firmStruct>(&all);
        addCaptions<informationsStruct>(&all);
        addCaptions<materialStruct>(&all);
        addCaptions<orderItemStruct>(&all);
        all.insert(d_groupStruct::element, labels::group);
        return all;
    }();
    const auto found = captions.value(field);
    return found ? found() : field;
}

struct documentMerge::state
{
    std::optional<node> asOpened;
    node ownRoot;
    node otherRoot;

    // One way through all three, which makes the rows, and later does what they say.
    struct run
    {
        std::vector<mergeRow> *made = nullptr;
        const std::vector<mergeRow> *said = nullptr;
        size_t next = 0;
        bool knowsOpened = false;

        // Whether theirs is taken.
        bool pick(const QString &line, const QString &field, const node *opened, const node *mine,
                  const node *theirs)
        {
            if (said)
                return (*said)[next++].takeTheirs;
            const auto text = [&](const node *of) {
                if (!of)
                    return QString();
                const QString all = textOf(*of);
                return line.contains(QLatin1String("PASSWORD")) ? QStringLiteral("***")
                       : all.isNull()                           ? QLatin1String("")
                                                                : all;
            };
            const auto same = [](const node *a, const node *b) {
                return a && b ? *a == *b : a == b;
            };
            mergeRow row{line, field, text(opened), text(mine), text(theirs)};
            if (knowsOpened && same(opened, mine))
                row.who = mergeRow::them;
            else if (knowsOpened && same(opened, theirs))
                row.who = mergeRow::me;
            row.picked = row.who != mergeRow::both;
            row.takeTheirs = row.who == mergeRow::them;
            made->push_back(row);
            return row.takeTheirs;
        }
    };

    // Null when nothing is left of it.
    static std::optional<node> merge(run &of, const node *opened, const node *mine,
                                     const node *theirs, const QString &line, int depth)
    {
        const node &any = mine ? *mine : *theirs;
        if (mine && (isOwn(any, depth) || (theirs && *mine == *theirs)))
            return *mine;
        if (!mine && !theirs)
            return {};
        if (!mine || !theirs || (mine->children.empty() && theirs->children.empty())) {
            const bool isLine = !any.children.empty();
            QString where = line;
            if (isLine)
                where += (line.isEmpty() ? QString() : QStringLiteral(" / ")) + captionOf(any);
            const QString field = isLine                                  ? QString()
                                  : any.name.startsWith(QLatin1Char('@')) ? any.name.mid(1)
                                                                          : any.name;
            const node *taken = of.pick(where, field, opened, mine, theirs) ? theirs : mine;
            return taken ? std::optional(*taken) : std::nullopt;
        }
        QString where = line;
        if (!idOf(any).isEmpty())
            where += (line.isEmpty() ? QString() : QStringLiteral(" / ")) + captionOf(any);
        return mergeChildren(of, opened, *mine, *theirs, where, depth);
    }

    static node mergeChildren(run &of, const node *opened, const node &mine, const node &theirs,
                              const QString &line, int depth)
    {
        const childList inOpened(opened);
        childList inMine(&mine);
        childList inTheirs(&theirs);
        if (opened)
            followRenames(&inMine, inOpened);
        followRenames(&inTheirs, opened ? inOpened : inMine);
        // Those that only theirs has, behind the one that they follow there.
        QHash<childKey, std::vector<childKey>> behind;
        childKey before;
        for (const childKey &key : inTheirs.order) {
            if (!inMine.byKey.contains(key))
                behind[before].push_back(key);
            else
                before = key;
        }
        node merged{mine.name, mine.text == theirs.text ? mine.text : QString(), {}};
        const auto add = [&](const childKey &key) {
            std::optional<node> child =
                merge(of, inOpened.byKey.value(key), inMine.byKey.value(key),
                      inTheirs.byKey.value(key), line, depth + 1);
            if (child)
                merged.children.push_back(std::move(*child));
        };
        const auto addBehind = [&](const childKey &key) {
            for (const childKey &theirsOnly : behind.value(key))
                add(theirsOnly);
        };
        addBehind({});
        for (const childKey &key : inMine.order) {
            add(key);
            addBehind(key);
        }
        return merged;
    }

    node merge(run &of) const
    {
        of.knowsOpened = asOpened.has_value();
        return mergeChildren(of, asOpened ? &*asOpened : nullptr, ownRoot, otherRoot, {}, 0);
    }
};

documentMerge::documentMerge(const QString &opened, const QString &mine, const QString &theirs,
                             const progressFunction &progress)
    : m_state(std::make_unique<state>())
{
    nodeReader reader({opened, mine, theirs}, progress);
    std::optional<node> own = reader.read(mine);
    std::optional<node> other = reader.read(theirs);
    m_readable = own && other && own->name == other->name;
    if (!m_readable)
        return;
    m_state->asOpened = reader.read(opened);
    m_state->ownRoot = std::move(*own);
    m_state->otherRoot = std::move(*other);
    state::run making;
    making.made = &rows;
    m_state->merge(making);
}

documentMerge::~documentMerge() = default;

QByteArray documentMerge::merged() const
{
    state::run saying;
    saying.said = &rows;
    node root = m_state->merge(saying);
    for (node &list : root.children) {
        int number = 0;
        for (node &line : list.children)
            for (node &field : line.children)
                if (line.name == QLatin1String("order_item")
                    && field.name == QLatin1String("index"))
                    field.text = QString::number(++number);
    }
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.setCodec("UTF-8");
    writer.writeStartDocument();
    write(writer, root);
    writer.writeEndDocument();
    return bytes;
}
