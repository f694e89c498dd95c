#include "orders/orderIndex.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/lineSums.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "util/foldedText.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <cstring>

namespace {

struct stageRow
{
    const char *name;
    const char *text; // English source text, context "orders"
};
const std::array<stageRow, 6> stages{{
    {"edited", QT_TRANSLATE_NOOP("orders", "being prepared")},
    {"sent", QT_TRANSLATE_NOOP("orders", "sent")},
    {"partly_delivered", QT_TRANSLATE_NOOP("orders", "partly delivered")},
    {"delivered", QT_TRANSLATE_NOOP("orders", "delivered")},
    {"invoiced", QT_TRANSLATE_NOOP("orders", "invoiced")},
    {"parted", QT_TRANSLATE_NOOP("orders", "parted by firm")},
}};

using textField = QString orderItemStruct::*;
const std::array<textField, orderIndex::fieldCount> fields{
    &orderItemStruct::ktm,    &orderItemStruct::name,  &orderItemStruct::quantity,
    &orderItemStruct::unit,   &orderItemStruct::price, &orderItemStruct::cpv,
    &orderItemStruct::target, &orderItemStruct::wait,  &orderItemStruct::delivery,
    &orderItemStruct::invoice};

// What a search looks at.
constexpr std::array<orderIndex::field, 5> searched{orderIndex::ktm, orderIndex::name,
                                                    orderIndex::target, orderIndex::delivery,
                                                    orderIndex::invoice};

QDate dateOf(const QString &text)
{
    return QDate::fromString(text.trimmed(), QStringLiteral("dd.MM.yyyy"));
}

} // namespace

QString stageText(orderStage stage)
{
    return QCoreApplication::translate("orders", stages[size_t(stage)].text);
}

QString stageName(orderStage stage) { return QLatin1String(stages[size_t(stage)].name); }

orderStage stageOf(int lines, int delivered, int invoiced)
{
    if (lines == 0 || (delivered == 0 && invoiced == 0))
        return orderStage::edited;
    return invoiced == lines    ? orderStage::invoiced
           : delivered == lines ? orderStage::delivered
                                : orderStage::partlyDelivered;
}

// --- The cache
// ------------------------------------------------------------------------------------

// Texts by number, and files with their lines as these numbers. Whatever it cannot do it leaves:
// then the files are read again.
class orderIndex::store
{
public:
    explicit store(QString path)
        : m_path(std::move(path))
        , m_connection(QStringLiteral("orders-%1").arg(quintptr(this)))
    {
        if (!open() || version() != form) {
            close();
            QFile::remove(m_path);
            if (open())
                create();
        }
    }
    ~store() { close(); }
    store(const store &) = delete;
    store &operator=(const store &) = delete;

    bool readTexts(std::vector<QString> *texts)
    {
        QSqlQuery query(database());
        query.setForwardOnly(true);
        query.exec(QStringLiteral("SELECT id, text FROM texts ORDER BY id"));
        while (query.next()) {
            if (query.value(0).toULongLong() != texts->size())
                return false;
            texts->push_back(query.value(1).toString());
        }
        m_stored = texts->size();
        return !texts->empty();
    }

    bool readFiles(size_t texts, const std::function<void(file &&)> &take)
    {
        QSqlQuery query(database());
        query.setForwardOnly(true);
        query.exec(
            QStringLiteral("SELECT path, size, time, is_order, number, date, target, author, "
                           "sum, left_out, stage, lines FROM files"));
        while (query.next()) {
            file one;
            order &content = one.content;
            content.path = query.value(0).toString();
            one.state.size = query.value(1).toLongLong();
            one.state.time = QDateTime::fromMSecsSinceEpoch(query.value(2).toLongLong());
            one.isOrder = query.value(3).toBool();
            content.state = one.state;
            content.number = query.value(4).toString();
            content.date = QDate::fromJulianDay(query.value(5).toLongLong());
            content.target = query.value(6).toString();
            content.author = query.value(7).toString();
            content.sum = decimal::read(query.value(8).toString()).value_or(decimal());
            content.leftOut = query.value(9).toInt();
            content.stage =
                orderStage(std::clamp(query.value(10).toInt(), 0, int(orderStage::invoiced)));
            const QByteArray lines = query.value(11).toByteArray();
            content.lines.resize(size_t(lines.size()) / sizeof(line));
            if (!content.lines.empty())
                std::memcpy(content.lines.data(), lines.constData(),
                            content.lines.size() * sizeof(line));
            for (const line &ofOrder : content.lines)
                for (const quint32 number : ofOrder)
                    if (number >= texts)
                        return false;
            take(std::move(one));
        }
        return true;
    }

    // What was read anew, and the paths of what is there no more.
    void write(const std::vector<QString> &texts, const std::vector<const file *> &read,
               const QStringList &gone)
    {
        QSqlDatabase to = database();
        if (!to.isOpen() || !to.transaction())
            return;
        QSqlQuery query(to);
        query.prepare(QStringLiteral("INSERT INTO texts VALUES (?, ?)"));
        bool good = true;
        for (size_t number = m_stored; good && number < texts.size(); ++number) {
            query.bindValue(0, qulonglong(number));
            query.bindValue(1, texts[number]);
            good = query.exec();
        }
        query.prepare(QStringLiteral("DELETE FROM files WHERE path = ?"));
        for (const QString &path : gone) {
            query.bindValue(0, path);
            good = good && query.exec();
        }
        query.prepare(QStringLiteral(
            "INSERT OR REPLACE INTO files VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
        for (const file *one : read) {
            const order &content = one->content;
            int at = 0;
            const QVariant values[] = {
                content.path,
                one->state.size,
                one->state.time.toMSecsSinceEpoch(),
                one->isOrder,
                content.number,
                content.date.toJulianDay(),
                content.target,
                content.author,
                content.sum.text(),
                content.leftOut,
                int(content.stage),
                QByteArray(reinterpret_cast<const char *>(content.lines.data()),
                           int(content.lines.size() * sizeof(line)))};
            for (const QVariant &value : values)
                query.bindValue(at++, value);
            good = good && query.exec();
        }
        if (!good || !to.commit())
            to.rollback();
        else
            m_stored = texts.size();
    }

    // Throws away what it holds.
    void clear()
    {
        m_stored = 0;
        for (const char *statement : {"DELETE FROM texts", "DELETE FROM files"})
            QSqlQuery(database()).exec(QLatin1String(statement));
    }

private:
    static constexpr int form = 1; // of its tables

    QSqlDatabase database() const { return QSqlDatabase::database(m_connection, false); }

    bool open()
    {
        QSqlDatabase added = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
        added.setDatabaseName(m_path);
        // Another program of this user may be writing.
        added.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=2000"));
        if (!added.open())
            return false;
        for (const char *statement : {"PRAGMA journal_mode = WAL", "PRAGMA synchronous = NORMAL"})
            QSqlQuery(added).exec(QLatin1String(statement));
        return true;
    }

    void close()
    {
        {
            QSqlDatabase known = database();
            known.close();
        }
        QSqlDatabase::removeDatabase(m_connection);
    }

    int version() const
    {
        QSqlQuery query(QStringLiteral("PRAGMA user_version"), database());
        return query.next() ? query.value(0).toInt() : -1;
    }

    void create()
    {
        for (const QString &statement :
             {QStringLiteral("CREATE TABLE texts (id INTEGER PRIMARY KEY, text TEXT)"),
              QStringLiteral("CREATE TABLE files (path TEXT PRIMARY KEY, size, time, is_order, "
                             "number, date, target, author, sum, left_out, stage, lines)"),
              QStringLiteral("PRAGMA user_version = %1").arg(form)})
            QSqlQuery(database()).exec(statement);
    }

    QString m_path;
    QString m_connection;
    size_t m_stored = 0; // texts that it has
};

// --- Reading
// --------------------------------------------------------------------------------------

orderIndex::orderIndex(QString cache)
{
    if (!cache.isEmpty()) {
        QDir().mkpath(QFileInfo(cache).path());
        m_store = std::make_unique<store>(std::move(cache));
        const bool good =
            m_store->readTexts(&m_texts) && m_store->readFiles(m_texts.size(), [this](file &&one) {
                const QString path = one.content.path;
                if (one.isOrder)
                    m_orders.push_back(std::move(one.content));
                m_files.insert(path, {one.state, one.isOrder, {}});
            });
        if (!good) {
            m_texts.clear();
            m_files.clear();
            m_orders.clear();
            m_store->clear();
        }
    }
    m_numbers.reserve(int(m_texts.size()));
    for (size_t number = 0; number < m_texts.size(); ++number)
        m_numbers.insert(m_texts[number], quint32(number));
    numberOf({});
    arrange();
}

orderIndex::~orderIndex() = default;

QString orderIndex::usualCache()
{
    const QByteArray folder = QCryptographicHash::hash(
        QFileInfo(paths::dataDir()).absoluteFilePath().toUtf8(), QCryptographicHash::Md5);
    return paths::userDir() + QLatin1String("/orders-") + QString::fromLatin1(folder.toHex())
           + QLatin1String(".sqlite");
}

quint32 orderIndex::numberOf(const QString &text)
{
    const auto known = m_numbers.constFind(text);
    if (known != m_numbers.constEnd())
        return *known;
    const auto number = quint32(m_texts.size());
    m_texts.push_back(text);
    m_numbers.insert(text, number);
    return number;
}

orderIndex::order orderIndex::read(const QString &path, const fileState &state, bool *isOrder)
{
    order content;
    content.path = path;
    content.state = state;
    kiv_mat_zpStruct read;
    *isOrder = fileKinds::ofFile(path) == &fileKinds::order && loadQuietly(path, &read) == 0;
    if (!*isOrder)
        return content;
    content.number = read.options.value(optionKey::orderNumber);
    content.date = dateOf(read.options.value(optionKey::orderDate));
    if (!content.date.isValid())
        content.date = state.time.date();
    content.target = read.options.value(optionKey::orderTarget);
    content.author = read.options.value(optionKey::personAuthor);
    const lineSum sum = sumsOf(read).price;
    content.sum = sum.amount;
    int delivered = 0;
    int invoiced = 0;
    for (const auto &item : read.orderItems.items) {
        line one;
        for (size_t i = 0; i < fields.size(); ++i)
            one[i] = numberOf((*item).*fields[i]);
        content.lines.push_back(one);
        const bool isInvoiced = !item->invoice.trimmed().isEmpty();
        invoiced += isInvoiced;
        delivered += isInvoiced || !item->delivery.trimmed().isEmpty();
    }
    for (const int lines : sum.leftOut)
        content.leftOut += lines;
    content.stage = stageOf(int(content.lines.size()), delivered, invoiced);
    return content;
}

bool orderIndex::update(const QStringList &folders, const progressFunction &progress)
{
    QHash<QString, fileState> present;
    for (const QString &folder : folders) {
        const QFileInfoList found =
            QDir(folder).entryInfoList({QStringLiteral("*.xml")}, QDir::Files | QDir::Readable);
        for (const QFileInfo &info : found)
            present.insert(info.absoluteFilePath(), {info.size(), info.lastModified()});
    }
    QStringList gone;
    for (auto known = m_files.constBegin(); known != m_files.constEnd(); ++known)
        if (!present.contains(known.key()))
            gone.append(known.key());
    QStringList toRead;
    for (auto now = present.constBegin(); now != present.constEnd(); ++now) {
        const auto known = m_files.constFind(now.key());
        // A cache keeps thousandths of a second.
        if (known == m_files.constEnd() || known->state.size != now->size
            || known->state.time.toMSecsSinceEpoch() != now->time.toMSecsSinceEpoch())
            toRead.append(now.key());
    }
    if (gone.isEmpty() && toRead.isEmpty())
        return true;
    std::vector<file> read;
    long long done = 0;
    bool goesOn = true;
    for (const QString &path : qAsConst(toRead)) {
        file one;
        one.state = present.value(path);
        one.content = this->read(path, one.state, &one.isOrder);
        read.push_back(std::move(one));
        goesOn = !progress || progress(++done, toRead.size());
        if (!goesOn)
            break;
    }
    QSet<QString> replaced(gone.begin(), gone.end());
    for (const file &one : read)
        replaced.insert(one.content.path);
    m_orders.erase(std::remove_if(m_orders.begin(), m_orders.end(),
                                  [&](const order &one) { return replaced.contains(one.path); }),
                   m_orders.end());
    for (const QString &path : qAsConst(gone))
        m_files.remove(path);
    if (m_store) {
        std::vector<const file *> all;
        for (const file &one : read)
            all.push_back(&one);
        m_store->write(m_texts, all, gone);
    }
    for (file &one : read) {
        m_files.insert(one.content.path, {one.state, one.isOrder, {}});
        if (one.isOrder)
            m_orders.push_back(std::move(one.content));
    }
    arrange();
    return goesOn;
}

void orderIndex::arrange()
{
    ++m_revision;
    std::sort(m_orders.begin(), m_orders.end(), [](const order &a, const order &b) {
        return a.date != b.date ? a.date > b.date : a.path > b.path;
    });
    m_folded.clear();
    m_begins.clear();
    m_ktmBegins.clear();
    m_byKtm.clear();
}

// --- Searching
// ------------------------------------------------------------------------------------

void orderIndex::prepareSearch() const
{
    if (!m_begins.empty())
        return;
    std::vector<bool> isSearched(m_texts.size());
    for (const order &one : m_orders)
        for (const line &ofOrder : one.lines)
            for (const field which : searched)
                isSearched[ofOrder[which]] = true;
    m_begins.reserve(m_texts.size());
    for (size_t number = 0; number < m_texts.size(); ++number) {
        m_begins.push_back(m_folded.size());
        if (isSearched[number]) {
            text::appendFolded(m_texts[number], m_folded);
            const auto partNumbers = m_partNumbers.constFind(quint32(number));
            if (partNumbers != m_partNumbers.constEnd())
                m_folded += '\t' + *partNumbers;
        }
        m_folded += '\n';
    }
}

void orderIndex::setMaterials(const ktmIndex &materials)
{
    m_partNumbers.clear();
    std::vector<bool> isKtm(m_texts.size());
    for (const order &one : m_orders)
        for (const line &ofOrder : one.lines)
            isKtm[ofOrder[ktm]] = true;
    for (size_t number = 0; number < m_texts.size(); ++number) {
        const ktmIndex::entry *found = isKtm[number] ? materials.find(m_texts[number]) : nullptr;
        if (!found)
            continue;
        std::string all;
        const auto add = [&all](const auto &sources) {
            for (const auto &source : sources)
                if (!source->partNo.isEmpty()) {
                    text::appendFolded(source->partNo, all);
                    all += '\t';
                }
        };
        add(found->material->manufacturers.items);
        add(found->material->suppliers.items);
        if (!all.empty())
            m_partNumbers.insert(quint32(number), all);
    }
    m_folded.clear();
    m_begins.clear();
}

orderIndex::foundLines orderIndex::search(const QString &words, int most) const
{
    std::vector<std::string> wanted;
    for (const QString &word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        if (std::string plain = text::folded(word); !plain.empty() && plain != " ")
            wanted.push_back(std::move(plain));
    // A bit for each word.
    constexpr size_t wordsAtMost = 16;
    wanted.resize(std::min(wanted.size(), wordsAtMost));
    foundLines result;
    if (wanted.empty())
        return result;
    prepareSearch();
    std::vector<quint16> masks(m_texts.size());
    for (size_t w = 0; w < wanted.size(); ++w) {
        size_t number = 0;
        for (size_t at = m_folded.find(wanted[w]); at != std::string::npos;) {
            // The last text that begins at it or before it.
            number =
                size_t(std::upper_bound(m_begins.begin() + qptrdiff(number), m_begins.end(), at)
                       - m_begins.begin())
                - 1;
            masks[number] |= quint16(1U << w);
            if (number + 1 == m_begins.size())
                break;
            at = m_folded.find(wanted[w], m_begins[number + 1]);
        }
    }
    const auto all = quint16((1U << wanted.size()) - 1);
    for (size_t o = 0; o < m_orders.size(); ++o) {
        const order &one = m_orders[o];
        const std::string head = text::folded(
            one.number + QLatin1Char('\t') + one.date.toString(QStringLiteral("dd.MM.yyyy"))
            + QLatin1Char('\t') + one.target + QLatin1Char('\t') + one.author);
        quint16 ofOrder = 0;
        for (size_t w = 0; w < wanted.size(); ++w)
            if (head.find(wanted[w]) != std::string::npos)
                ofOrder |= quint16(1U << w);
        const int before = result.total;
        for (size_t l = 0; l < one.lines.size(); ++l) {
            quint16 mask = ofOrder;
            for (const field which : searched)
                mask |= masks[one.lines[l][which]];
            if (mask != all)
                continue;
            if (result.total++ < most)
                result.lines.push_back({int(o), int(l)});
        }
        result.orders += result.total > before;
    }
    return result;
}

void orderIndex::prepareKtms() const
{
    if (!m_ktmBegins.empty())
        return;
    m_ktmBegins.assign(m_texts.size() + 1, 0);
    for (const order &one : m_orders)
        for (const line &ofOrder : one.lines)
            ++m_ktmBegins[ofOrder[ktm] + 1];
    for (size_t i = 1; i < m_ktmBegins.size(); ++i)
        m_ktmBegins[i] += m_ktmBegins[i - 1];
    m_byKtm.resize(m_ktmBegins.back());
    std::vector<quint32> next(m_ktmBegins.begin(), m_ktmBegins.end() - 1);
    for (size_t o = 0; o < m_orders.size(); ++o)
        for (size_t l = 0; l < m_orders[o].lines.size(); ++l)
            m_byKtm[next[m_orders[o].lines[l][ktm]]++] = {int(o), int(l)};
}

std::vector<orderIndex::place> orderIndex::linesOf(const QString &of) const
{
    const auto number = m_numbers.constFind(of);
    if (of.isEmpty() || number == m_numbers.constEnd())
        return {};
    prepareKtms();
    return {m_byKtm.begin() + m_ktmBegins[*number], m_byKtm.begin() + m_ktmBegins[*number + 1]};
}

// --- Numbers and materials
// ------------------------------------------------------------------------

QString nextOrderNumber(const QStringList &used, const QDate &today)
{
    static const QRegularExpression numbers(QStringLiteral(
        "(?<!\\d)(?:(\\d{1,2}\\.\\d{1,2}\\.(?:19|20)\\d\\d)|((?:19|20)\\d\\d))(?!\\d)|(\\d+)"));
    enum kind
    {
        date = 1,
        year,
        number
    };
    for (const QString &pattern : used) {
        std::vector<QRegularExpressionMatch> parts;
        QRegularExpressionMatch counter; // the last number that is neither date nor year
        for (auto at = numbers.globalMatch(pattern); at.hasNext();) {
            parts.push_back(at.next());
            if (parts.back().lastCapturedIndex() == number)
                counter = parts.back();
        }
        if (!counter.hasMatch())
            continue;
        // The pattern with something in the place of each of these; text stands for what is
        // between.
        const auto made = [&](const QString &ofDate, const QString &ofYear,
                              const QString &ofCounter, QString (*text)(const QString &)) {
            QString result;
            int from = 0;
            for (const QRegularExpressionMatch &part : parts) {
                const bool isCounter = part.capturedStart() == counter.capturedStart();
                result += text(pattern.mid(from, part.capturedStart() - from));
                result += part.lastCapturedIndex() == date   ? ofDate
                          : part.lastCapturedIndex() == year ? ofYear
                          : isCounter                        ? ofCounter
                                                             : text(part.captured());
                from = part.capturedEnd();
            }
            return result + text(pattern.mid(from));
        };
        const QString thisYear = QString::number(today.year());
        const QRegularExpression form(
            QLatin1Char('^')
            + made(QStringLiteral("\\d{1,2}\\.\\d{1,2}\\.") + thisYear, thisYear,
                   QStringLiteral("(\\d{1,9})"),
                   [](const QString &text) { return QRegularExpression::escape(text); })
            + QLatin1Char('$'));
        int highest = 0;
        for (const QString &one : used)
            highest = std::max(highest, form.match(one).captured(1).toInt());
        const int width =
            counter.captured().startsWith(QLatin1Char('0')) ? counter.capturedLength() : 0;
        return made(today.toString(QStringLiteral("dd.MM.yyyy")), thisYear,
                    QStringLiteral("%1").arg(highest + 1, width, 10, QLatin1Char('0')),
                    [](const QString &text) { return text; });
    }
    return {};
}

orderedMaterial orderedOf(const orderIndex &index, const QString &ktm,
                          const std::function<bool(const orderIndex::order &)> &isOrdered,
                          const QString &except)
{
    orderedMaterial ordered;
    for (const orderIndex::place &at : index.linesOf(ktm)) {
        const orderIndex::order &order = index.orders()[size_t(at.order)];
        if (order.path == except || !isOrdered(order))
            continue;
        const orderIndex::line &line = order.lines[size_t(at.line)];
        const auto text = [&](orderIndex::field which) { return index.textOf(line, which); };
        const bool hasPrice =
            decimal::read(text(orderIndex::price)).value_or(decimal()) > decimal();
        if (!ordered.last && hasPrice)
            ordered.last = at;
        const auto quantity = decimal::read(text(orderIndex::quantity));
        if (!quantity || !text(orderIndex::invoice).trimmed().isEmpty())
            continue;
        ordered.open.push_back(at);
        const QString unit = text(orderIndex::unit);
        const auto same = std::find_if(ordered.onTheWay.begin(), ordered.onTheWay.end(),
                                       [&](const auto &one) { return one.first == unit; });
        if (same == ordered.onTheWay.end())
            ordered.onTheWay.emplace_back(unit, *quantity);
        else
            same->second += *quantity;
    }
    return ordered;
}
