#include "store/storeSync.h"

#include "data/loaders.h"
#include "store/storeLocal.h"
#include "store/storeRows.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace store {

namespace {

QString cancelledMark() { return QStringLiteral("\n"); }

// Whom a picked side belongs to: the row, the column, and what stood in the store when it was
// picked.
struct pickedSide
{
    QString theirs;
    bool takeTheirs = false;
};
using picks = QHash<QPair<QString, int>, pickedSide>;

constexpr int wholeRow = -1;
constexpr int belowColumn = -2;

// One row in the making: what it was, what it is here and in the store, and what comes of it.
struct meeting
{
    QString id;
    int table = 0;
    int local = -1; // of localRows(); -1: not in the document
    bool isMineChanged = false;
    bool isMineGone = false;
    bool isPlaceMine = false;          // moved here
    bool isFirst = false;              // nobody knows what it was
    const storedRow *theirs = nullptr; // as the store has it now; null: it has none
    bool isTheirsChanged = false;
    storedRow was;
    storedRow result;
    std::vector<size_t> sent; // columns
};

class synchronization
{
public:
    synchronization(connection &with, documentStruct &document, const base &known,
                    const QString &author, const progressFunction &progress)
        : m_with(with)
        , m_known(known)
        , m_author(author)
        , m_progress(progress)
        , m_kind(document.kind())
        , m_tables(tablesOf(m_kind))
        , m_rows(localRows(document))
    {
        matchRows(&m_rows, known);
        dropWrongGuesses();
        setPlaces(&m_rows, known);
        m_ids.resize(m_rows.size());
        for (size_t i = 0; i < m_rows.size(); ++i)
            m_ids[i] = m_rows[i].base < 0 ? newId() : known.rows[size_t(m_rows[i].base)].id;
        findOwnChanges();
    }

    syncResult run(const conflictsSettled &settle)
    {
        syncResult result;
        while (true) {
            std::vector<mergeRow> conflicts;
            std::vector<QPair<QString, int>> where;
            if (!attempt(&result, &conflicts, &where)) {
                m_with.rollback();
                result.cancelled = result.fault == cancelledMark();
                if (result.cancelled)
                    result.fault.clear();
                return result;
            }
            if (result.done)
                return result;
            m_with.rollback();
            std::vector<QString> theirs;
            for (const mergeRow &row : conflicts)
                theirs.push_back(row.theirs);
            if (!settle || !settle(conflicts)) {
                result.cancelled = true;
                return result;
            }
            for (size_t i = 0; i < conflicts.size(); ++i)
                m_picks.insert(where[i], {theirs[i], conflicts[i].takeTheirs});
        }
    }

private:
    bool failed(syncResult *result) const
    {
        result->fault = m_with.fault();
        if (result->fault.isEmpty())
            result->fault = QCoreApplication::translate(
                "store", "the shared store was changed by somebody else meanwhile");
        return false;
    }

    bool isGoing(syncResult *result, qint64 done, qint64 total) const
    {
        if (!m_progress || m_progress(done, total))
            return true;
        result->fault = cancelledMark();
        return false;
    }

    // A record has another KTM, or another one stands where it was: at least half of its texts
    // tell. What cannot be asked is found out when the work begins.
    void dropWrongGuesses()
    {
        std::map<int, QStringList> guesses;
        for (const localRow &row : m_rows)
            if (row.isGuess)
                guesses[row.table].append(m_known.rows[size_t(row.base)].id);
        if (guesses.empty())
            return;
        QHash<QString, QStringList> texts;
        for (const auto &[table, ids] : guesses)
            fetchRows(m_with, m_kind, table, ids, [&texts](storedRow &&row) {
                texts.insert(row.id, row.texts);
                return true;
            });
        for (size_t i = 0; i < m_rows.size(); ++i)
            if (localRow &row = m_rows[i];
                row.isGuess
                && !holdsTheSame(int(i)).value_or(
                    isAlike(row, texts.value(m_known.rows[size_t(row.base)].id))))
                row.base = -1;
    }

    // A group of another name is known by what stands in it; nothing for one that was empty.
    std::optional<bool> holdsTheSame(int place) const
    {
        QSet<QString> before;
        for (const baseRow &row : m_known.rows)
            if (row.below == m_rows[size_t(place)].base)
                before.insert(row.key);
        if (before.isEmpty())
            return {};
        int equal = 0;
        for (const localRow &row : m_rows)
            equal += row.below == place && before.contains(row.key) ? 1 : 0;
        return 2 * equal >= before.size();
    }

    bool isAlike(const localRow &row, const QStringList &theirs) const
    {
        const table &of = *m_tables[size_t(row.table)];
        const QStringList mine = of.texts(row.record);
        int all = 0;
        int equal = 0;
        for (int i = 0; i < mine.size() && i < theirs.size(); ++i) {
            all += mine[i].isEmpty() && theirs[i].isEmpty() ? 0 : 1;
            equal += !mine[i].isEmpty() && mine[i] == theirs[i] ? 1 : 0;
        }
        return 2 * equal >= all && equal > 0;
    }

    // Those of the rows that others changed, and of those that others lie below: few of a large
    // document.
    void findPlaces()
    {
        std::vector<bool> isFolder(m_tables.size());
        for (const auto &of : m_tables)
            if (of->above >= 0)
                isFolder[size_t(of->above)] = true;
        m_places.clear();
        for (size_t i = 0; i < m_ids.size(); ++i)
            if (isFolder[size_t(m_rows[i].table)] || m_theirs.contains(m_ids[i]))
                m_places.insert(m_ids[i], int(i));
    }

    // By the marks of the contents only: what exactly changed is asked of the store.
    void findOwnChanges()
    {
        std::vector<bool> seen(m_known.rows.size());
        for (size_t i = 0; i < m_rows.size(); ++i) {
            const localRow &row = m_rows[i];
            if (row.base < 0) {
                m_own.push_back(int(i));
                continue;
            }
            const baseRow &was = m_known.rows[size_t(row.base)];
            seen[size_t(row.base)] = true;
            const int below = row.below < 0 ? -1 : m_rows[size_t(row.below)].base;
            // Places are counted anew where a record lies below another one.
            if (was.hash != row.hash || was.key != row.key || was.place != row.place
                || was.below != below)
                m_own.push_back(int(i));
        }
        for (size_t i = 0; i < seen.size(); ++i)
            if (!seen[i])
                m_gone.push_back(int(i));
    }

    QString belowId(const localRow &row) const
    {
        return row.below < 0 ? QString() : m_ids[size_t(row.below)];
    }

    // False when it failed. True with conflicts, or done.
    bool attempt(syncResult *result, std::vector<mergeRow> *conflicts,
                 std::vector<QPair<QString, int>> *where)
    {
        *result = {};
        m_meetings.clear();
        m_order.clear();
        m_theirs.clear();
        m_takenPlaces.clear();
        const bool sends = !m_own.empty() || !m_gone.empty();
        result->mayWrite = mayWrite(m_with);
        if (!m_with.begin(sends && result->mayWrite)) {
            if (!m_with.wasGivenUp())
                return failed(result);
            result->fault = cancelledMark();
            return false;
        }
        const qint64 now = m_with.askOne(QStringLiteral("select release from about")).toLongLong();
        if (now < m_known.release)
            return m_with.fault().isEmpty() ? (result->fault = QCoreApplication::translate(
                                                   "store", "the shared store is older than this "
                                                            "document: it was restored from an "
                                                            "earlier state. Clone it anew"),
                                               false)
                                            : failed(result);
        if (now > m_known.release && !fetch(result))
            return false;
        joinFresh();
        findPlaces();
        if (!meet(result) || !reconstruct(result))
            return false;
        merge(conflicts, where);
        if (!conflicts->empty())
            return true;
        reviveParents();
        return finish(result, now);
    }

    bool fetch(syncResult *result)
    {
        QString fault;
        const bool isGood =
            fetchRows(m_with, m_kind, m_known.document, m_known.release, [&](storedRow &&row) {
                const QString id = row.id;
                m_theirs.insert(id, row);
                return m_theirs.size() % 256 != 0 || isGoing(result, m_theirs.size(), 0);
            });
        return isGood || (result->fault.isEmpty() ? failed(result) : false);
    }

    // Records that are new on both sides and known by the same are one: two people added the same
    // material, or the answer to what was sent got lost.
    void joinFresh()
    {
        QHash<QPair<int, QString>, int> fresh;
        for (const int place : m_own)
            if (m_rows[size_t(place)].base < 0)
                fresh.insert({m_rows[size_t(place)].table, m_rows[size_t(place)].key}, place);
        if (fresh.isEmpty())
            return;
        QSet<QString> known;
        for (const baseRow &row : m_known.rows)
            known.insert(row.id);
        for (auto row = m_theirs.cbegin(); row != m_theirs.cend(); ++row) {
            if (row->gone || known.contains(row.key()))
                continue;
            const auto found = fresh.find({row->table, keyOf(*row)});
            if (found == fresh.end())
                continue;
            m_ids[size_t(*found)] = row.key();
            fresh.erase(found);
        }
    }

    // What a record of these texts would be known by.
    QString keyOf(const storedRow &row) const
    {
        const table &of = *m_tables[size_t(row.table)];
        const std::unique_ptr<xmlData> record = of.make();
        if (!record)
            return QStringLiteral("document");
        for (size_t i = 0; i < of.columns.size(); ++i)
            if (!of.columns[i].nested)
                of.setText(record.get(), i, row.texts[int(i)]);
        return of.key(record.get());
    }

    meeting &meetingOf(const QString &id, int table)
    {
        const auto found = m_meetings.find(id);
        if (found != m_meetings.end())
            return *found;
        m_order.push_back(id);
        meeting &made = *m_meetings.insert(id, {});
        made.id = id;
        made.table = table;
        const auto theirs = m_theirs.constFind(id);
        if (theirs != m_theirs.constEnd()) {
            made.theirs = &*theirs;
            made.isTheirsChanged = true;
        }
        return made;
    }

    // Everything that either side changed.
    bool meet(syncResult *result)
    {
        const bool isAnswerLost =
            !m_theirs.isEmpty()
            && m_with.askOne(QStringLiteral("select count(*) from release where program = ? and "
                                            "number > ?"),
                             {m_known.program, m_known.release})
                       .toInt()
                   > 0;
        for (const int place : m_own) {
            const localRow &row = m_rows[size_t(place)];
            meeting &of = meetingOf(m_ids[size_t(place)], row.table);
            of.local = place;
            of.isMineChanged = true;
            of.isFirst = row.base < 0;
            of.isPlaceMine = row.base < 0 || m_known.rows[size_t(row.base)].place != row.place;
        }
        for (const int place : m_gone) {
            const baseRow &row = m_known.rows[size_t(place)];
            meetingOf(row.id, row.table).isMineGone = true;
        }
        for (auto row = m_theirs.cbegin(); row != m_theirs.cend(); ++row) {
            meeting &of = meetingOf(row.key(), row->table);
            if (of.local < 0)
                of.local = m_places.value(row.key(), -1);
            // What was sent may have been set back to what it was before.
            if (of.local >= 0 && isAnswerLost)
                of.isMineChanged = true;
        }
        // What only this side changed is compared with what the store has.
        QHash<int, QStringList> missing;
        for (const QString &id : m_order) {
            const meeting &of = m_meetings[id];
            if (!of.theirs && !of.isFirst)
                missing[of.table].append(id);
        }
        for (auto list = missing.cbegin(); list != missing.cend(); ++list)
            if (!fetchRows(m_with, m_kind, list.key(), list.value(), [&](storedRow &&row) {
                    const QString id = row.id;
                    m_present.insert(id, row);
                    return true;
                }))
                return failed(result);
        for (const QString &id : m_order) {
            meeting &of = m_meetings[id];
            const auto present = m_present.constFind(id);
            if (!of.theirs && present != m_present.constEnd())
                of.theirs = &*present;
        }
        return true;
    }

    // What those rows were that both changed.
    bool reconstruct(syncResult *result)
    {
        QHash<QString, qint64> since;
        QHash<QString, storedRow> rows;
        QSet<QString> young;
        for (const QString &id : m_order) {
            meeting &of = m_meetings[id];
            if (!of.theirs)
                continue;
            of.was = *of.theirs;
            if (!of.isTheirsChanged || !(of.isMineChanged || of.isMineGone))
                continue;
            const int place = of.local < 0 ? -1 : m_rows[size_t(of.local)].base;
            since.insert(id, place < 0 ? releaseOf(id) : m_known.rows[size_t(place)].release);
            rows.insert(id, *of.theirs);
        }
        if (since.isEmpty())
            return true;
        if (!goBack(m_with, m_kind, since, m_known.program, &rows, &young))
            return failed(result);
        for (auto row = rows.begin(); row != rows.end(); ++row)
            m_meetings[row.key()].was = *row;
        // Also what was added by this program, which never got the answer.
        for (auto row = since.cbegin(); row != since.cend(); ++row)
            m_meetings[row.key()].isFirst = young.contains(row.key());
        return true;
    }

    qint64 releaseOf(const QString &id)
    {
        if (m_releases.isEmpty())
            for (const baseRow &row : m_known.rows)
                m_releases.insert(row.id, row.release);
        return m_releases.value(id);
    }

    QString lineOf(const meeting &of) const
    {
        const table &rows = *m_tables[size_t(of.table)];
        QString line;
        int above = -1;
        if (of.local >= 0) {
            const localRow &row = m_rows[size_t(of.local)];
            line = rows.caption(row.record);
            above = row.below;
        } else if (const std::unique_ptr<xmlData> record = rows.make()) {
            for (size_t i = 0; i < rows.columns.size(); ++i)
                if (!rows.columns[i].nested)
                    rows.setText(record.get(), i, of.theirs->texts[int(i)]);
            line = rows.caption(record.get());
            above = m_places.value(of.theirs->below, -1);
        }
        const QString below =
            above < 0 ? QString()
                      : m_tables[size_t(rows.above)]->caption(m_rows[size_t(above)].record);
        return below.isEmpty() ? line : below + QLatin1String(" / ") + line;
    }

    static QString lineText(const QStringList &texts)
    {
        QStringList some;
        for (const QString &text : texts)
            if (!text.isEmpty())
                some.append(text.startsWith(QLatin1Char('<')) ? readable(text) : text);
        return some.isEmpty() ? QLatin1String("") : some.join(QLatin1String("; "));
    }

    // Whether theirs is taken; asks when nobody picked yet.
    bool pick(const meeting &of, int place, const QString &field, const QString &was,
              const QString &mine, const QString &theirs, std::vector<mergeRow> *conflicts,
              std::vector<QPair<QString, int>> *where)
    {
        const auto picked = m_picks.constFind({of.id, place});
        if (picked != m_picks.constEnd() && picked->theirs == theirs)
            return picked->takeTheirs;
        mergeRow row;
        row.line = lineOf(of);
        row.field = field;
        row.opened = was;
        row.mine = mine;
        row.theirs = theirs;
        row.who = mergeRow::both;
        conflicts->push_back(row);
        where->push_back({of.id, place});
        return false;
    }

    void merge(std::vector<mergeRow> *conflicts, std::vector<QPair<QString, int>> *where)
    {
        for (const QString &id : m_order) {
            meeting &of = m_meetings[id];
            of.sent.clear();
            const table &rows = *m_tables[size_t(of.table)];
            const QStringList mine =
                of.local < 0 ? QStringList() : rows.texts(m_rows[size_t(of.local)].record);
            if (!of.theirs) {
                // New here; or the store lost it, and it is sent once more.
                of.result = {of.table, id, {}, 0, 0, of.isMineGone, mine};
                place(&of, conflicts, where);
                continue;
            }
            of.result = *of.theirs;
            if (of.isMineGone) {
                mergeRemoval(&of, conflicts, where);
                continue;
            }
            if (of.local < 0 || !of.isMineChanged) {
                continue;
            }
            if (of.theirs->gone) {
                mergeRevival(&of, mine, conflicts, where);
                continue;
            }
            for (size_t i = 0; i < rows.columns.size(); ++i)
                mergeText(&of, i, mine[int(i)], conflicts, where);
            place(&of, conflicts, where);
        }
    }

    void mergeText(meeting *of, size_t column, const QString &mine,
                   std::vector<mergeRow> *conflicts, std::vector<QPair<QString, int>> *where)
    {
        const QString &theirs = of->theirs->texts[int(column)];
        const QString &was = of->isFirst ? QString() : of->was.texts[int(column)];
        if (mine == theirs || (!of->isFirst && mine == was) || (of->isFirst && mine.isEmpty()))
            return;
        const auto &description = m_tables[size_t(of->table)]->columns[column];
        bool takeTheirs = false;
        const bool isConflict = of->isFirst ? !theirs.isEmpty() : theirs != was;
        if (isConflict) {
            const auto shown = [&](const QString &text) {
                return description.nested && !text.isEmpty() ? readable(text) : text;
            };
            takeTheirs =
                pick(*of, int(column), description.name, of->isFirst ? QString() : shown(was),
                     shown(mine), shown(theirs), conflicts, where);
        }
        if (takeTheirs)
            return;
        of->result.texts[int(column)] = mine;
        of->sent.push_back(column);
    }

    void mergeRemoval(meeting *of, std::vector<mergeRow> *conflicts,
                      std::vector<QPair<QString, int>> *where)
    {
        if (of->theirs->gone)
            return;
        const bool isChanged = of->isTheirsChanged && of->theirs->texts != of->was.texts;
        const bool stays = isChanged
                           && pick(*of, wholeRow, {}, lineText(of->was.texts), {},
                                   lineText(of->theirs->texts), conflicts, where);
        of->result.gone = !stays;
    }

    void mergeRevival(meeting *of, const QStringList &mine, std::vector<mergeRow> *conflicts,
                      std::vector<QPair<QString, int>> *where)
    {
        const bool isChanged = mine != of->was.texts || isBelowAnother(of->local);
        if (!isChanged
            || pick(*of, wholeRow, {}, lineText(of->was.texts), lineText(mine), {}, conflicts,
                    where))
            return;
        of->result.gone = false;
        for (size_t i = 0; i < size_t(mine.size()); ++i)
            if (mine[int(i)] != of->was.texts[int(i)]
                && mine[int(i)] != of->theirs->texts[int(i)]) {
                of->result.texts[int(i)] = mine[int(i)];
                of->sent.push_back(i);
            }
        place(of, conflicts, where);
    }

    // Below what it stands is as a text of it; where among the others is nobody's to be asked
    // about: what was moved here stays so.
    void place(meeting *of, std::vector<mergeRow> *conflicts,
               std::vector<QPair<QString, int>> *where)
    {
        if (of->local < 0)
            return;
        const localRow &row = m_rows[size_t(of->local)];
        const bool isNew = !of->theirs;
        bool isBelowMine = isBelowAnother(of->local);
        if (isBelowMine && !isNew) {
            const QString &was = m_known.rows[size_t(m_known.rows[size_t(row.base)].below)].id;
            const QString &theirs = of->theirs->below;
            isBelowMine = theirs == was || theirs == belowId(row)
                          || !pick(*of, belowColumn, QStringLiteral("d_group"), nameOf(was),
                                   nameOf(belowId(row)), nameOf(theirs), conflicts, where);
        }
        if (isNew || isBelowMine)
            of->result.below = belowId(row);
        if (isNew || isBelowMine || (of->isPlaceMine && row.base >= 0))
            of->result.place = freePlace(of->result.below, row.place);
    }

    // Whether it was put below another record here.
    bool isBelowAnother(int local) const
    {
        if (local < 0)
            return false;
        const localRow &row = m_rows[size_t(local)];
        return row.base >= 0 && row.below >= 0
               && m_known.rows[size_t(row.base)].below != m_rows[size_t(row.below)].base;
    }

    // Of a record that others lie below.
    QString nameOf(const QString &id) const
    {
        if (const int local = m_places.value(id, -1); local >= 0)
            return m_tables[size_t(m_rows[size_t(local)].table)]->caption(
                m_rows[size_t(local)].record);
        const auto theirs = m_theirs.constFind(id);
        return theirs == m_theirs.constEnd() ? QString() : theirs->texts.first();
    }

    // Two records of one place would stand now this way, now that.
    double freePlace(const QString &below, double wanted)
    {
        if (m_takenPlaces.isEmpty())
            for (auto row = m_theirs.cbegin(); row != m_theirs.cend(); ++row)
                m_takenPlaces.insert({row->below, row->place});
        while (m_takenPlaces.contains({below, wanted}))
            wanted += 1;
        m_takenPlaces.insert({below, wanted});
        return wanted;
    }

    // What others put below something that was removed keeps it.
    void reviveParents()
    {
        for (size_t i = 0; i < m_order.size(); ++i) {
            const meeting &of = m_meetings[m_order[i]];
            if (of.result.gone || of.result.below.isEmpty())
                continue;
            const auto above = m_meetings.find(of.result.below);
            if (above != m_meetings.end() && above->result.gone && above->theirs)
                above->result.gone = false;
        }
        // Records that stay here, below something that others removed.
        for (auto of = m_meetings.begin(); of != m_meetings.end(); ++of) {
            if (!of->result.gone || of->local < 0 || !of->theirs || of->isMineGone)
                continue;
            for (size_t i = 0; i < m_rows.size(); ++i)
                if (m_rows[i].below == of->local && staysBelow(m_ids[i], of->id)) {
                    of->result.gone = false;
                    break;
                }
        }
    }

    bool staysBelow(const QString &id, const QString &above) const
    {
        const auto found = m_meetings.constFind(id);
        return found == m_meetings.constEnd()
               || (!found->result.gone && found->result.below == above);
    }

    bool isSent(const meeting &of) const
    {
        return !of.theirs || !of.sent.empty() || of.result.gone != of.theirs->gone
               || of.result.below != of.theirs->below || of.result.place != of.theirs->place;
    }

    std::vector<change> toldOf(const meeting &of) const
    {
        std::vector<change> told;
        if (of.result.gone != of.theirs->gone)
            told.push_back({of.result.gone ? QStringLiteral("removed") : QStringLiteral("restored"),
                            {},
                            {},
                            {}});
        if (of.result.below != of.theirs->below)
            told.push_back({QStringLiteral("moved"), {}, of.theirs->below, of.result.below});
        const auto &columns = m_tables[size_t(of.table)]->columns;
        for (const size_t place : of.sent)
            told.push_back({QStringLiteral("changed"), columns[place].name,
                            of.theirs->texts[int(place)], of.result.texts[int(place)]});
        return told;
    }

    bool send(syncResult *result)
    {
        std::vector<const meeting *> sent;
        for (const QString &id : m_order)
            if (const meeting &of = m_meetings[id]; isSent(of) && (of.theirs || !of.result.gone))
                sent.push_back(&of);
        if (sent.empty())
            return true;
        if (!result->mayWrite) {
            result->fault = QCoreApplication::translate(
                "store", "you may read the shared store, but not change it");
            return false;
        }
        rowWriter writer(m_with, m_kind, m_known.document);
        m_release = writer.open(m_author, m_known.program);
        if (m_release < 0)
            return failed(result);
        std::map<int, std::vector<const storedRow *>> fresh;
        size_t done = 0;
        for (const meeting *of : sent) {
            if (!of->theirs)
                fresh[of->table].push_back(&of->result);
            else if (!writer.set(of->result, of->theirs->release, of->sent, toldOf(*of)))
                return failed(result);
            m_written.insert(of->id);
            if (++done % 64 == 0 && !isGoing(result, qint64(done), qint64(sent.size())))
                return false;
        }
        for (const auto &[table, rows] : fresh)
            if (!writer.add(rows))
                return failed(result);
        result->sent = writer.written();
        return true;
    }

    bool finish(syncResult *result, qint64 now)
    {
        m_release = now;
        if (!send(result) || !notify(result) || !m_with.commit())
            return result->fault.isEmpty() ? failed(result) : false;
        result->done = true;
        result->release = m_release;
        result->known.resize(m_rows.size());
        for (size_t i = 0; i < m_rows.size(); ++i) {
            result->known[i].id = m_ids[i];
            result->known[i].hash = m_rows[i].hash;
            if (m_rows[i].base >= 0) {
                const baseRow &was = m_known.rows[size_t(m_rows[i].base)];
                result->known[i].release = was.release;
                result->known[i].place = was.place;
            }
        }
        for (const QString &id : m_order) {
            const meeting &of = m_meetings[id];
            if (of.isTheirsChanged)
                ++result->fetched;
            if (of.local >= 0) {
                knownRow &row = result->known[size_t(of.local)];
                row.release = m_written.contains(id) ? m_release
                              : of.theirs            ? of.theirs->release
                                                     : row.release;
                row.place = of.result.place;
                row.hash = 0;
            }
            noteChange(of, result);
        }
        return true;
    }

    // Tells listeners, when the server has taken it.
    bool notify(syncResult *result)
    {
        return !m_with.isServer() || result->sent == 0
               || m_with
                      .askOne(QStringLiteral("select pg_notify('kivzp', ?)"),
                              {QStringLiteral("changed %1 %2 %3")
                                   .arg(m_known.document, m_known.program)
                                   .arg(m_release)})
                      .isValid();
    }

    void noteChange(const meeting &of, syncResult *result)
    {
        if (of.local < 0 && of.result.gone)
            return;
        rowChange change;
        change.table = of.table;
        change.local = of.local;
        change.id = of.id;
        change.below = of.result.below;
        change.place = of.result.place;
        change.release = m_written.contains(of.id) ? m_release : of.result.release;
        change.gone = of.result.gone;
        if (of.local < 0) {
            change.texts = of.result.texts;
        } else if (!of.result.gone) {
            const localRow &row = m_rows[size_t(of.local)];
            const QStringList mine = m_tables[size_t(of.table)]->texts(row.record);
            if (mine != of.result.texts)
                change.texts = of.result.texts;
            change.moved = change.below != belowId(row) || change.place != row.place;
            if (change.texts.isEmpty() && !change.moved)
                return;
        }
        result->changes.push_back(std::move(change));
    }

    connection &m_with;
    const base &m_known;
    QString m_author;
    const progressFunction &m_progress;
    const fileKind &m_kind;
    const tables &m_tables;
    std::vector<localRow> m_rows;
    std::vector<QString> m_ids;          // of the rows
    QHash<QString, int> m_places;        // among the rows, as findPlaces() says
    std::vector<int> m_own;              // rows that were changed here, or are new
    std::vector<int> m_gone;             // places in the base
    QHash<QString, storedRow> m_theirs;  // changed since
    QHash<QString, storedRow> m_present; // as they are, of those that were not
    QHash<QString, meeting> m_meetings;
    std::vector<QString> m_order;
    QHash<QString, qint64> m_releases;
    QSet<QPair<QString, double>> m_takenPlaces;
    QSet<QString> m_written;
    qint64 m_release = 0;
    picks m_picks;
};

} // namespace

syncResult synchronize(connection &with, documentStruct &document, const base &known,
                       const QString &author, const conflictsSettled &settle,
                       const progressFunction &progress)
{
    syncResult result;
    const QString id = idOf(with, &result.fault);
    if (id.isEmpty())
        return result;
    if (id != known.store) {
        result.fault =
            QCoreApplication::translate("store", "this document belongs to another shared store");
        return result;
    }
    return synchronization(with, document, known, author, progress).run(settle);
}

} // namespace store
