#include "data/repair.h"

#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/loaders.h"
#include "data/schemaElements.h"
#include "util/paths.h"
#include "util/scratch.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QTextCodec>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

namespace {

constexpr int keptChanges = 200;

QString text(const char *source) { return QCoreApplication::translate("data", source); }

QByteArray shortened(const QByteArray &value)
{
    constexpr int longest = 60;
    return (value.size() <= longest ? value : value.left(longest) + "...").simplified();
}

bool isBlank(const QByteArray &value)
{
    return std::all_of(value.begin(), value.end(),
                       [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
}

bool isNameByte(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'
           || c == '-' || c == '.' || c == ':' || uchar(c) >= 0x80;
}

// --- Bytes to text
// -----------------------------------------------------------------------------------

// The length of the UTF-8 character that begins at a byte; 0 when none does.
int utf8Length(const uchar *at, const uchar *end)
{
    const uchar first = *at;
    if (first < 0x80)
        return 1;
    const int length = first >= 0xf0 && first <= 0xf4   ? 4
                       : first >= 0xe0 && first <= 0xef ? 3
                       : first >= 0xc2 && first <= 0xdf ? 2
                                                        : 0;
    if (length == 0 || end - at < length)
        return 0;
    for (int i = 1; i < length; ++i)
        if ((at[i] & 0xc0) != 0x80)
            return 0;
    const bool outside = (first == 0xe0 && at[1] < 0xa0) || (first == 0xed && at[1] > 0x9f)
                         || (first == 0xf0 && at[1] < 0x90) || (first == 0xf4 && at[1] > 0x8f);
    return outside ? 0 : length;
}

// Whether XML has no place for the UTF-8 character.
bool isForbidden(const uchar *at, int length)
{
    if (length == 1)
        return *at < 0x20 && *at != '\t' && *at != '\n' && *at != '\r';
    return length == 3 && at[0] == 0xef && at[1] == 0xbf && at[2] >= 0xbe;
}

struct decoded
{
    QByteArray utf8;
    QString change; // what had to be done to it; empty when nothing
    int line = 0;   // where first
    int dropped = 0;
    int droppedLine = 0;
};

// The codec that the file's beginning speaks for; null for UTF-8.
QTextCodec *codecOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\xff\xfe") || bytes.startsWith(QByteArray("<\0", 2)))
        return QTextCodec::codecForName("UTF-16LE");
    if (bytes.startsWith("\xfe\xff") || bytes.startsWith(QByteArray("\0<", 2)))
        return QTextCodec::codecForName("UTF-16BE");
    const QByteArray declaration = bytes.left(bytes.indexOf("?>")).left(200);
    const int at = declaration.indexOf("encoding=");
    const QByteArray name =
        at < 0 ? QByteArray() : declaration.mid(at + 10).split(declaration.at(at + 9)).at(0);
    QTextCodec *const codec = QTextCodec::codecForName(name);
    constexpr int utf8 = 106; // its number among the registered names
    // Bytes that were no wide characters at the beginning are none later.
    return !codec || codec->mibEnum() == utf8 || codec->name().startsWith("UTF") ? nullptr : codec;
}

decoded decode(const QByteArray &bytes)
{
    decoded result;
    QByteArray source = bytes;
    if (QTextCodec *codec = codecOf(bytes)) {
        source = codec->toUnicode(bytes).toUtf8();
        result.change = text(QT_TRANSLATE_NOOP("data", "the file was read as %1"))
                            .arg(QString::fromLatin1(codec->name()));
    }
    if (source.startsWith("\xef\xbb\xbf"))
        source.remove(0, 3);
    static QTextCodec *const windows = QTextCodec::codecForName("windows-1250");
    result.utf8.reserve(source.size() + source.size() / 16);
    int line = 1;
    int foreign = 0;
    const auto *at = reinterpret_cast<const uchar *>(source.constData());
    const uchar *const end = at + source.size();
    while (at < end) {
        const int length = utf8Length(at, end);
        if (*at == '\n')
            ++line;
        if (length == 0) {
            if (foreign++ == 0)
                result.line = line;
            const QByteArray one =
                windows->toUnicode(reinterpret_cast<const char *>(at), 1).toUtf8();
            result.utf8 += one.startsWith("\xef\xbf\xbd") ? QByteArray("?") : one;
        } else if (isForbidden(at, length)) {
            if (result.dropped++ == 0)
                result.droppedLine = line;
        } else {
            result.utf8.append(reinterpret_cast<const char *>(at), length);
        }
        at += std::max(length, 1);
    }
    if (foreign > 0)
        result.change = QCoreApplication::translate(
            "data", "%n byte(s) that are no UTF-8 were read as Windows-1250", nullptr, foreign);
    return result;
}

// --- Text to records
// ---------------------------------------------------------------------------------

// Reads what looks like XML and writes what is. Elements may stand where the schema has them.
class mender
{
public:
    mender(const QByteArray &xml, const fileKind &kind, const schemaElements &schema,
           faultTrail *changes, const progressFunction &progress)
        : m_xml(xml)
        , m_kind(kind)
        , m_schema(schema)
        , m_changes(*changes)
        , m_progress(progress)
        , m_writer(&m_out)
    {
    }

    // False when it was cancelled.
    bool run();
    const QByteArray &mended() const { return m_out; }

private:
    struct level
    {
        QByteArray name;
        const schemaElements::type *type;
        QSet<QByteArray> texts{}; // the elements that it has had
    };

    void change(const QString &what)
    {
        // Changes come in the file's order.
        for (; m_countedTo < m_markup; ++m_countedTo)
            if (m_xml.at(m_countedTo) == '\n') {
                ++m_line;
                m_lineStart = m_countedTo + 1;
            }
        m_changes.add(m_line, m_markup - m_lineStart + 1, what);
    }
    void change(const char *what, const QByteArray &name)
    {
        change(text(what).arg(QString::fromUtf8(shortened(name))));
    }

    bool inText() const { return m_open.back().type->isText; }
    void takeMarkup();
    bool takeSpecial();
    bool takeEnd();
    bool takeStart();
    QByteArray nameAt(int at) const;
    int endOfValue(int quote) const;
    bool knownMarkupFollows(int at) const;
    QList<QPair<QByteArray, QByteArray>> takeAttributes(int *at, bool *isEmpty, bool *broken);
    QByteArray unescaped(const QByteArray &escaped);
    void open(const QByteArray &name, const schemaElements::type *type);
    bool makeRoomFor(const QByteArray &name);
    void close();
    void flushText();

    const QByteArray &m_xml;
    const fileKind &m_kind;
    const schemaElements &m_schema;
    faultTrail &m_changes;
    const progressFunction &m_progress;
    QByteArray m_out;
    QXmlStreamWriter m_writer;
    std::vector<level> m_open;
    QByteArray m_text;
    std::array<bool, 4> m_hasNoEnd{}; // of the special markup
    bool m_hasRoot = false;
    int m_at = 0;
    int m_markup = 0; // where what is being looked at begins
    int m_countedTo = 0;
    int m_line = 1;
    int m_lineStart = 0;
};

bool mender::run()
{
    m_writer.writeStartDocument();
    m_writer.writeStartElement(m_kind.root);
    m_open.push_back({m_kind.root.toUtf8(), m_schema.root(m_kind.root.toUtf8()), {}});
    m_changes.start("");
    int told = 0;
    while (m_at < m_xml.size()) {
        int next = m_xml.indexOf('<', m_at);
        if (next < 0)
            next = m_xml.size();
        m_markup = m_at;
        m_text += unescaped(m_xml.mid(m_at, next - m_at));
        m_at = next;
        if (m_at < m_xml.size())
            takeMarkup();
        constexpr int step = 1 << 20;
        if (m_progress && m_at - told > step) {
            told = m_at;
            if (!m_progress(m_at, m_xml.size()))
                return false;
        }
    }
    m_markup = m_xml.size();
    if (m_open.size() > 1)
        change(QT_TRANSLATE_NOOP("data", "the file ends in %1"), m_open.back().name);
    while (!m_open.empty())
        close();
    m_writer.writeEndDocument();
    return true;
}

void mender::takeMarkup()
{
    m_markup = m_at;
    if (takeSpecial() || takeEnd() || takeStart())
        return;
    // A "<" that begins nothing.
    change(text(QT_TRANSLATE_NOOP("data", "\"<\" stands alone; it is written &lt;")));
    m_text += '<';
    ++m_at;
}

// Comments, instructions and CDATA.
bool mender::takeSpecial()
{
    struct special
    {
        const char *start;
        const char *end;
    };
    constexpr special all[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}, {"<!", ">"}};
    for (const special &one : all) {
        const int length = int(std::strlen(one.start));
        if (m_xml.mid(m_at, length) != one.start)
            continue;
        bool &hasNoEnd = m_hasNoEnd[size_t(&one - all)];
        const int end = hasNoEnd ? -1 : m_xml.indexOf(one.end, m_at + length);
        if (end < 0) {
            hasNoEnd = true; // nor has any that follows
            return false;
        }
        if (one.start[2] == '[')
            m_text += m_xml.mid(m_at + length, end - m_at - length);
        else if (one.start[1] == '!' && one.start[2] != '-')
            change(documentTypeRefused());
        m_at = end + int(std::strlen(one.end));
        return true;
    }
    return false;
}

QByteArray mender::nameAt(int at) const
{
    int end = at;
    while (end < m_xml.size() && isNameByte(m_xml.at(end)))
        ++end;
    return m_xml.mid(at, end - at);
}

// Whether a start or an end of an element that some record has comes next, blanks apart; the end of
// the one that is open is none, since then what stands here is not.
bool mender::knownMarkupFollows(int at) const
{
    while (at < m_xml.size() && std::strchr(" \t\r\n", m_xml.at(at)))
        ++at;
    if (at >= m_xml.size())
        return true;
    if (m_xml.at(at) != '<')
        return false;
    const bool isEnd = at + 1 < m_xml.size() && m_xml.at(at + 1) == '/';
    const QByteArray name = nameAt(at + (isEnd ? 2 : 1));
    return m_schema.contains(name) && !(isEnd && name == m_open.back().name);
}

bool mender::takeEnd()
{
    if (m_xml.mid(m_at, 2) != "</")
        return false;
    const QByteArray name = nameAt(m_at + 2);
    int end = m_at + 2 + name.size();
    while (end < m_xml.size() && std::strchr(" \t\r\n", m_xml.at(end)))
        ++end;
    const bool ended = end < m_xml.size() && m_xml.at(end) == '>';
    if (name.isEmpty() || (!ended && !m_schema.contains(name)))
        return false;
    end += ended ? 1 : 0;
    // The root ends with the file: nothing behind it is lost.
    const auto wanted = std::find_if(m_open.rbegin(), m_open.rend(),
                                     [&](const level &one) { return one.name == name; });
    const bool isOpen = wanted != m_open.rend();
    if (isOpen) {
        if (!ended)
            change(QT_TRANSLATE_NOOP("data", "\">\" was missing behind %1"), name);
        for (auto n = wanted - m_open.rbegin(); n > 0; --n) {
            change(QT_TRANSLATE_NOOP("data", "the end of %1 was missing"), m_open.back().name);
            close();
        }
        if (m_open.size() > 1)
            close();
        else
            flushText();
    } else if (inText() && knownMarkupFollows(end)) {
        change(text(QT_TRANSLATE_NOOP("data", "%1 ended as %2"))
                   .arg(QString::fromUtf8(m_open.back().name), QString::fromUtf8(shortened(name))));
        close();
    } else if (inText()) {
        return false;
    } else {
        flushText();
        if (m_schema.contains(name))
            change(QT_TRANSLATE_NOOP("data", "an end of %1 without its beginning was dropped"),
                   name);
    }
    m_at = end;
    return true;
}

// Where the quote that stands there has its other one; -1 when the next tag comes before.
int mender::endOfValue(int quote) const
{
    for (int at = quote + 1; at < m_xml.size(); ++at) {
        if (m_xml.at(at) == m_xml.at(quote))
            return at;
        if (m_xml.at(at) == '<' && at + 1 < m_xml.size()
            && (m_xml.at(at + 1) == '/' || isNameByte(m_xml.at(at + 1))))
            return -1;
    }
    return -1;
}

// at stands behind the element's name; ends behind the tag. A broken tag ends before the next one.
QList<QPair<QByteArray, QByteArray>> mender::takeAttributes(int *at, bool *isEmpty, bool *broken)
{
    QList<QPair<QByteArray, QByteArray>> found;
    int &i = *at;
    const auto skipBlanks = [&] {
        while (i < m_xml.size() && std::strchr(" \t\r\n", m_xml.at(i)))
            ++i;
    };
    for (;;) {
        skipBlanks();
        *isEmpty = m_xml.mid(i, 2) == "/>";
        if (*isEmpty || (i < m_xml.size() && m_xml.at(i) == '>')) {
            i += *isEmpty ? 2 : 1;
            return found;
        }
        const QByteArray name = nameAt(i);
        int value = i + name.size();
        while (value < m_xml.size() && std::strchr(" \t\r\n=", m_xml.at(value)))
            ++value;
        const char quote = value < m_xml.size() ? m_xml.at(value) : 0;
        const int end = quote == '"' || quote == '\'' ? endOfValue(value) : -1;
        constexpr int most = 100;
        if (name.isEmpty() || end < 0 || found.size() >= most)
            break;
        const bool twice = std::any_of(found.begin(), found.end(),
                                       [&](const auto &one) { return one.first == name; });
        if (twice)
            change(QT_TRANSLATE_NOOP("data", "the attribute %1 stands twice"), name);
        else
            found.append({name, unescaped(m_xml.mid(value + 1, end - value - 1))});
        i = end + 1;
    }
    *broken = true;
    const int rest = i;
    while (i < m_xml.size() && m_xml.at(i) != '>' && m_xml.at(i) != '<')
        ++i;
    *isEmpty = i > rest && m_xml.at(i - 1) == '/';
    change(QT_TRANSLATE_NOOP("data", "a broken tag: %1 was dropped"), m_xml.mid(rest, i - rest));
    if (i < m_xml.size() && m_xml.at(i) == '>')
        ++i;
    return found;
}

bool mender::takeStart()
{
    const QByteArray name = nameAt(m_at + 1);
    const bool known = m_schema.contains(name);
    // In a text, what is no element of the program's is text.
    if (name.isEmpty() || (!known && inText()))
        return false;
    int end = m_at + 1 + name.size();
    bool isEmpty = false;
    bool broken = false;
    const auto attributes = takeAttributes(&end, &isEmpty, &broken);
    if (name == m_open.front().name) {
        flushText();
        if (std::exchange(m_hasRoot, true))
            change(QT_TRANSLATE_NOOP("data", "%1 begins a second time"), name);
    } else if (!known || !makeRoomFor(name)) {
        flushText();
        change(QT_TRANSLATE_NOOP("data", "unknown field %1"), name);
    } else {
        const schemaElements::type *type = m_open.back().type->children.value(name);
        if (type->isText && m_open.back().texts.contains(name))
            change(QT_TRANSLATE_NOOP("data", "%1 stands twice; the last one was taken"), name);
        m_open.back().texts.insert(name);
        open(name, type);
        for (const auto &[attribute, value] : attributes) {
            if (type->attributes.contains(attribute)) {
                m_writer.writeAttribute(QString::fromUtf8(attribute), QString::fromUtf8(value));
                m_changes.attribute({attribute.constData(), size_t(attribute.size())},
                                    {value.constData(), size_t(value.size())});
            } else {
                change(text(QT_TRANSLATE_NOOP("data", "unknown attribute %1 of %2"))
                           .arg(QString::fromUtf8(shortened(attribute + "=\"" + value + '"')),
                                QString::fromUtf8(name)));
            }
        }
        if (isEmpty)
            close();
    }
    m_at = end;
    return true;
}

// Ends what has no end, and begins what has no beginning, until the element may stand here. Only a
// record is worth ending others for: a field that stands wrong would tear its record apart.
bool mender::makeRoomFor(const QByteArray &name)
{
    const auto accepts = [&](const level &one) { return one.type->children.contains(name); };
    size_t depth = m_open.size() - (inText() ? 1 : 0);
    const bool isRecord = recordTrail::isRecord({name.constData(), size_t(name.size())});
    while (depth > 1 && isRecord && !accepts(m_open[depth - 1]))
        --depth;
    if (accepts(m_open[depth - 1])) {
        while (m_open.size() > depth) {
            change(QT_TRANSLATE_NOOP("data", "the end of %1 was missing"), m_open.back().name);
            close();
        }
        return true;
    }
    if (!isRecord)
        return false;
    // The search came down to the root: one of its lists takes the record.
    const auto &lists = m_open.front().type->children;
    for (auto list = lists.begin(); list != lists.end(); ++list) {
        if (!list.value()->children.contains(name))
            continue;
        while (m_open.size() > 1) {
            change(QT_TRANSLATE_NOOP("data", "the end of %1 was missing"), m_open.back().name);
            close();
        }
        change(QT_TRANSLATE_NOOP("data", "the beginning of %1 was missing"), list.key());
        open(list.key(), list.value());
        return true;
    }
    return false;
}

void mender::open(const QByteArray &name, const schemaElements::type *type)
{
    flushText();
    m_open.push_back({name, type, {}});
    m_writer.writeStartElement(QString::fromUtf8(name));
    m_changes.start({m_open.back().name.constData(), size_t(name.size())});
}

void mender::close()
{
    const QByteArray content = m_text;
    flushText();
    m_changes.end(content);
    m_writer.writeEndElement();
    m_open.pop_back();
}

// What stands before a tag: the text of a field, or nothing but blanks.
void mender::flushText()
{
    if (inText())
        m_writer.writeCharacters(QString::fromUtf8(m_text));
    else if (!isBlank(m_text))
        change(QT_TRANSLATE_NOOP("data", "text that belongs to no field was dropped: %1"),
               m_text.trimmed());
    m_text.clear();
}

QByteArray mender::unescaped(const QByteArray &escaped)
{
    int at = escaped.indexOf('&');
    if (at < 0)
        return escaped;
    QByteArray result;
    int done = 0;
    for (; at >= 0; at = escaped.indexOf('&', at + 1)) {
        constexpr int longest = 10;
        const int inside = escaped.mid(at, longest + 1).indexOf(';');
        const int end = inside < 0 ? -1 : at + inside;
        const QByteArray name = end < 0 ? QByteArray() : escaped.mid(at + 1, end - at - 1);
        QByteArray value;
        constexpr struct
        {
            const char *name;
            const char *text;
        } known[] = {{"amp", "&"},        {"lt", "<"},           {"gt", ">"},
                     {"quot", "\""},      {"apos", "'"},         {"nbsp", "\xc2\xa0"},
                     {"deg", "\xc2\xb0"}, {"micro", "\xc2\xb5"}, {"plusmn", "\xc2\xb1"}};
        for (const auto &one : known)
            if (name == one.name)
                value = one.text;
        if (name.startsWith('#')) {
            bool isNumber = false;
            const uint code = name.startsWith("#x") ? name.mid(2).toUInt(&isNumber, 16)
                                                    : name.mid(1).toUInt(&isNumber);
            const bool stands = isNumber
                                && (code >= ' ' || code == '\t' || code == '\n' || code == '\r')
                                && code <= 0x10ffff && (code < 0xd800 || code > 0xdfff)
                                && code != 0xfffe && code != 0xffff;
            value = stands ? QString::fromUcs4(&code, 1).toUtf8() : QByteArray(" ");
            if (!stands)
                change(QT_TRANSLATE_NOOP("data", "&%1; stands for nothing and became a blank"),
                       name);
        }
        result += escaped.mid(done, at - done);
        if (value.isEmpty()) {
            change(text(QT_TRANSLATE_NOOP("data", "\"&\" stands alone; it is written &amp;")));
            value = "&";
            done = at + 1;
        } else {
            done = end + 1;
            at = end;
            if (uchar(value.at(0)) >= 0x80 && !name.startsWith('#'))
                change(QT_TRANSLATE_NOOP("data", "&%1; was read as its character"), name);
        }
        result += value;
    }
    return result + escaped.mid(done);
}

// The kind of a file of which the beginning may be missing, by its root or by its records.
const fileKind *kindOf(const QByteArray &xml)
{
    struct mark
    {
        const fileKind *kind;
        const char *record;
    };
    const mark marks[] = {{&fileKinds::boms, "<category"}, {&fileKinds::database, "<d_group"},
                          {&fileKinds::firm, "<firm>"},    {&fileKinds::firmDetails, "<details"},
                          {&fileKinds::config, "<person"}, {&fileKinds::reservations, "<board "},
                          {&fileKinds::info, "<kiv_ver"},  {&fileKinds::update, "<command>"},
                          {&fileKinds::order, "<order_"},  {&fileKinds::bom, "<material"}};
    const fileKind *first = nullptr;
    int firstAt = xml.size();
    for (const mark &one : marks) {
        const QByteArray root = '<' + one.kind->root.toUtf8();
        int at = xml.indexOf(root);
        while (at >= 0 && at + root.size() < xml.size() && isNameByte(xml.at(at + root.size())))
            at = xml.indexOf(root, at + 1);
        if (at >= 0 && at < firstAt) {
            first = one.kind;
            firstAt = at;
        }
    }
    for (const mark &one : marks)
        if (!first && xml.contains(one.record))
            first = one.kind;
    return first;
}

} // namespace

repairedFile repairFile(const QString &path, const progressFunction &progress)
{
    repairedFile result;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        result.fault = openingFault(file);
        return result;
    }
    const decoded xml = decode(file.readAll());
    const fileKind *kind = kindOf(xml.utf8);
    if (!kind) {
        result.fault = text(QT_TRANSLATE_NOOP("data", "holds no record of this program"));
        return result;
    }
    const schemaElements schema(paths::schema(kind->schema));
    if (!schema.root(kind->root.toUtf8())) {
        result.fault =
            text(QT_TRANSLATE_NOOP("data", "The schema %1 cannot be loaded")).arg(kind->schema);
        return result;
    }
    faultTrail changes(keptChanges);
    if (!xml.change.isEmpty())
        changes.add(xml.line, 0, xml.change);
    if (xml.dropped > 0)
        changes.add(xml.droppedLine, 0,
                    QCoreApplication::translate(
                        "data", "%n character(s) that no file can hold were dropped", nullptr,
                        xml.dropped));
    mender mend(xml.utf8, *kind, schema, &changes, progress);
    if (!mend.run())
        return result;
    changes.finish();

    QTemporaryFile mended(scratch::pattern(QStringLiteral(".xml")));
    if (!mended.open() || mended.write(mend.mended()) != mend.mended().size() || !mended.flush()) {
        result.fault = mended.errorString();
        return result;
    }
    auto document = newDocument(*kind);
    if (loadQuietly(mended.fileName(), document.get(), &result.fault) != 0)
        return result;
    // Only what stands twice is left out of the mended text, and the changes tell it.
    document->leftOut = {};
    document->fileName = QFileInfo(path).fileName();
    document->filePath = path;
    result.document = std::move(document);
    result.changes = changes.faults();
    result.changeCount = changes.count();
    return result;
}
