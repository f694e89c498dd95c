#include "data/recordTrail.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

// A record, the text that names it, and the fields or attributes it is known by, the best first.
struct recordKind
{
    std::string_view element;
    const char *caption;  // with the name
    const char *nameless; // with its number among its sisters
    std::string_view names[2];
};

constexpr recordKind kinds[] = {
    {"material",
     QT_TRANSLATE_NOOP("data", "material %1"),
     QT_TRANSLATE_NOOP("data", "material no. %1"),
     {"d_ktm", "d_name"}},
    {"d_group",
     QT_TRANSLATE_NOOP("data", "group %1"),
     QT_TRANSLATE_NOOP("data", "group no. %1"),
     {"name", ""}},
    {"order_item",
     QT_TRANSLATE_NOOP("data", "line %1"),
     QT_TRANSLATE_NOOP("data", "line no. %1"),
     {"name", "ktm"}},
    {"option",
     QT_TRANSLATE_NOOP("data", "option %1"),
     QT_TRANSLATE_NOOP("data", "option no. %1"),
     {"type", ""}},
    {"person",
     QT_TRANSLATE_NOOP("data", "person %1"),
     QT_TRANSLATE_NOOP("data", "person no. %1"),
     {"name", ""}},
    {"target",
     QT_TRANSLATE_NOOP("data", "target %1"),
     QT_TRANSLATE_NOOP("data", "target no. %1"),
     {"name", ""}},
    {"firm",
     QT_TRANSLATE_NOOP("data", "firm %1"),
     QT_TRANSLATE_NOOP("data", "firm no. %1"),
     {"name", "fullname"}},
    {"details",
     QT_TRANSLATE_NOOP("data", "firm %1"),
     QT_TRANSLATE_NOOP("data", "firm no. %1"),
     {"name", "nip"}},
    {"manufacturer",
     QT_TRANSLATE_NOOP("data", "manufacturer %1"),
     QT_TRANSLATE_NOOP("data", "manufacturer no. %1"),
     {"name", "part_no"}},
    {"supplier",
     QT_TRANSLATE_NOOP("data", "supplier %1"),
     QT_TRANSLATE_NOOP("data", "supplier no. %1"),
     {"name", "part_no"}},
    {"file",
     QT_TRANSLATE_NOOP("data", "file %1"),
     QT_TRANSLATE_NOOP("data", "file no. %1"),
     {"name", "type"}},
    {"category",
     QT_TRANSLATE_NOOP("data", "category %1"),
     QT_TRANSLATE_NOOP("data", "category no. %1"),
     {"name", ""}},
    {"group",
     QT_TRANSLATE_NOOP("data", "group %1"),
     QT_TRANSLATE_NOOP("data", "group no. %1"),
     {"name", ""}},
    {"command",
     QT_TRANSLATE_NOOP("data", "command %1"),
     QT_TRANSLATE_NOOP("data", "command no. %1"),
     {"name", "from"}},
};

int kindOf(std::string_view element)
{
    for (int i = 0; i < int(std::size(kinds)); ++i)
        if (kinds[i].element == element)
            return i;
    return -1;
}

} // namespace

bool recordTrail::isRecord(std::string_view element) { return kindOf(element) >= 0; }

void recordTrail::start(std::string_view element)
{
    level next;
    next.element = element;
    next.kind = kindOf(element);
    // A line's "target" is a text.
    if (this->element() == "order_item")
        next.kind = -1;
    if (next.kind >= 0 && !m_open.empty())
        next.number = ++m_open.back().children;
    m_open.push_back(std::move(next));
}

void recordTrail::name(level &record, std::string_view field, std::string_view value)
{
    constexpr int longest = 80;
    if (record.kind < 0 || value.empty())
        return;
    for (int rank = 1; rank <= 2; ++rank) {
        if (kinds[record.kind].names[rank - 1] != field || (record.rank && record.rank < rank))
            continue;
        record.name = QByteArray(value.data(), int(std::min<size_t>(value.size(), longest)));
        record.rank = rank;
    }
}

void recordTrail::attribute(std::string_view name, std::string_view value)
{
    this->name(m_open.back(), name, value);
}

void recordTrail::end(const QByteArray &text)
{
    if (m_open.empty())
        return;
    const std::string_view ended = m_open.back().element;
    m_open.pop_back();
    if (!m_open.empty())
        name(m_open.back(), ended, {text.constData(), size_t(text.size())});
}

size_t recordTrail::recordDepth() const
{
    size_t depth = m_open.size();
    while (depth > 0 && m_open[depth - 1].kind < 0)
        --depth;
    return depth;
}

QString recordTrail::where() const
{
    QStringList records;
    for (auto open = m_open.rbegin(); open != m_open.rend(); ++open) {
        if (open->kind < 0)
            continue;
        const recordKind &kind = kinds[open->kind];
        records.append(open->name.isEmpty()
                           ? QCoreApplication::translate("data", kind.nameless).arg(open->number)
                           : QCoreApplication::translate("data", kind.caption)
                                 .arg(QString::fromUtf8(open->name).simplified()));
    }
    return records.join(QLatin1String(", "));
}

QString fileFault::sentence() const
{
    return record.isEmpty() ? text : record + QLatin1String(": ") + text;
}

QString fileFault::placed() const
{
    return line == 0 ? sentence()
                     : QCoreApplication::translate("data", "line %1, column %2: %3")
                           .arg(line)
                           .arg(column)
                           .arg(sentence());
}

void faultTrail::add(int line, int column, const QString &text)
{
    ++m_count;
    if (m_faults.size() >= m_most)
        return;
    m_faults.append({line, column, text, {}});
    if (const size_t depth = recordDepth())
        m_unnamed.emplace_back(m_faults.size() - 1, depth);
}

void faultTrail::forgetAfter(int count)
{
    m_count = std::min(m_count, count);
    m_faults.resize(std::min<int>(m_faults.size(), count));
    while (!m_unnamed.empty() && m_unnamed.back().first >= m_faults.size())
        m_unnamed.pop_back();
}

void faultTrail::nameFaults()
{
    for (const QString record = where(); !m_unnamed.empty() && m_unnamed.back().second >= depth();
         m_unnamed.pop_back())
        m_faults[m_unnamed.back().first].record = record;
}

void faultTrail::end(const QByteArray &text)
{
    if (!m_unnamed.empty())
        nameFaults();
    recordTrail::end(text);
}

void faultTrail::finish()
{
    while (!m_unnamed.empty() && depth() > 0)
        end({});
}
