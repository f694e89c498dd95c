// What others changed in a shared database, put into its window: only the rows that changed are
// touched, of a hundred thousand.
#include "database/Kiv_mat_databaseWindow.h"

#include "data/programData.h"
#include "database/databaseRowsTarget.h"
#include "database/historyDialog.h"
#include "store/storeHistory.h"
#include "store/storeLocal.h"
#include "store/storeSync.h"

#include "tree/myTreeView.h"
#include "util/prompts.h"
#include "window/storeAccess.h"
#include "window/workProgress.h"

#include <QHash>

#include <algorithm>
#include <map>

namespace {

using store::rowChange;

enum tablePlace
{
    groupTable,
    materialTable
};

class rowTaking
{
public:
    rowTaking(const store::syncResult &result, kiv_mat_databaseStruct &database,
              databaseRowsTarget &target)
        : m_result(result)
        , m_rows(store::localRows(database, store::withHashes::no))
        , m_target(target)
    {
        for (size_t i = 0; i < m_rows.size(); ++i) {
            m_known.insert(m_rows[i].record, result.known[i]);
            if (m_rows[i].table == groupTable)
                m_groups.insert(result.known[i].id, static_cast<d_groupStruct *>(m_rows[i].record));
        }
    }

    // What leaves a place goes first, then what comes is put between what is there.
    void run()
    {
        for (const rowChange &change : m_result.changes)
            if (change.table == groupTable && !change.gone)
                takeGroup(change);
        std::vector<const rowChange *> coming;
        for (const rowChange &change : m_result.changes)
            if (change.table == materialTable)
                takeMaterial(change, &coming);
        for (const auto &[group, doomed] : m_doomed)
            m_target.remove(group, doomed);
        std::stable_sort(coming.begin(), coming.end(), [](const rowChange *a, const rowChange *b) {
            return a->place != b->place ? a->place < b->place : a->id < b->id;
        });
        for (const rowChange *change : coming)
            put(*change);
        for (const rowChange &change : m_result.changes)
            if (change.table == groupTable && change.gone && change.local >= 0)
                m_target.removeGroup(
                    static_cast<d_groupStruct *>(m_rows[size_t(change.local)].record));
    }

    const QHash<const xmlData *, store::knownRow> &known() const { return m_known; }

private:
    static const store::table &tableOf(int place)
    {
        return *store::tablesOf(fileKinds::database)[size_t(place)];
    }

    template <class Record>
    static std::unique_ptr<Record> recordOf(const rowChange &change)
    {
        const store::table &of = tableOf(change.table);
        std::unique_ptr<Record> record(static_cast<Record *>(of.make().release()));
        for (size_t i = 0; i < of.columns.size(); ++i)
            of.setText(record.get(), i, change.texts[int(i)]);
        return record;
    }

    void takeGroup(const rowChange &change)
    {
        if (change.local < 0) {
            d_groupStruct *added = m_target.addGroup(recordOf<d_groupStruct>(change));
            m_groups.insert(change.id, added);
            m_known.insert(added, {change.id, change.release, change.place});
            return;
        }
        auto *group = static_cast<d_groupStruct *>(m_rows[size_t(change.local)].record);
        m_known[group].place = change.place;
        if (change.texts.isEmpty())
            return;
        const auto wanted = recordOf<d_groupStruct>(change);
        if (group->name != wanted->name)
            m_target.setName(group, wanted->name);
        if (group->cpv != wanted->cpv)
            m_target.setCpv(group, wanted->cpv);
    }

    void takeMaterial(const rowChange &change, std::vector<const rowChange *> *coming)
    {
        if (change.local < 0) {
            coming->push_back(&change);
            return;
        }
        const store::localRow &row = m_rows[size_t(change.local)];
        auto *material = static_cast<materialStruct *>(row.record);
        auto *home = static_cast<d_groupStruct *>(m_rows[size_t(row.below)].record);
        if (!change.gone && !change.moved) {
            if (change.texts.isEmpty())
                return;
            materialStruct *replaced =
                m_target.replace(home, material, recordOf<materialStruct>(change));
            m_known.insert(replaced, m_known.take(material));
            return;
        }
        if (!change.gone) {
            coming->push_back(&change);
            if (change.texts.isEmpty())
                m_moved.emplace(&change, material->copy());
        }
        m_doomed[home].insert(material);
        m_known.remove(material);
    }

    void put(const rowChange &change)
    {
        d_groupStruct *group = m_groups.value(change.below);
        if (!group)
            return;
        const auto moved = m_moved.find(&change);
        std::unique_ptr<materialStruct> material =
            moved == m_moved.end() ? recordOf<materialStruct>(change) : std::move(moved->second);
        const auto before = std::find_if(
            group->items.begin(), group->items.end(), [this, &change](const auto &other) {
                const auto place = m_known.constFind(other.get());
                return place != m_known.constEnd()
                       && (place->place > change.place
                           || (place->place == change.place && place->id > change.id));
            });
        const qint64 release =
            change.local < 0 ? change.release : m_result.known[size_t(change.local)].release;
        m_known.insert(material.get(), {change.id, release, change.place});
        m_target.addAt(group, std::move(material), int(before - group->items.begin()));
    }

    const store::syncResult &m_result;
    std::vector<store::localRow> m_rows;
    databaseRowsTarget &m_target;
    QHash<QString, d_groupStruct *> m_groups;
    QHash<const xmlData *, store::knownRow> m_known;
    std::map<d_groupStruct *, QSet<const materialStruct *>> m_doomed;
    std::map<const rowChange *, std::unique_ptr<materialStruct>> m_moved;
};

} // namespace

std::unique_ptr<command> Kiv_mat_databaseWindow::takeRows(const store::syncResult &result,
                                                          store::base *known)
{
    const changeBatch batch(m_model);
    kiv_mat_databaseStruct &database = m_rows->database();
    databaseRowsTarget target(m_model, m_rows.get());
    rowTaking taking(result, database, target);
    const QModelIndex current = m_view->currentIndex();
    const QString currentRow = taking.known().value(m_rows->materialAt(current)).id;
    taking.run();
    *known = store::knownOf(database, taking.known(), std::move(*known), result);
    // Whoever stands on a row that others changed goes on standing there.
    if (!currentRow.isEmpty())
        for (auto row = taking.known().cbegin(); row != taking.known().cend(); ++row)
            if (row->id == currentRow)
                keepCurrent(static_cast<const materialStruct *>(row.key()), current.column());
    return target.step();
}

void Kiv_mat_databaseWindow::keepCurrent(const materialStruct *material, int column)
{
    const QStandardItem *first = m_rows->bring(material);
    if (first && m_rows->materialAt(m_view->currentIndex()) != material)
        m_view->setCurrentIndex(first->index().siblingAtColumn(column));
}

// What a material was is made of what it is now and its history.
void Kiv_mat_databaseWindow::commandHistory(bool)
{
    if (!finishEditing())
        return;
    materialStruct *material = m_rows->materialAt(m_view->currentIndex());
    if (!material || !isShared()) {
        tell(material ? tr("This file is not shared: there is no history")
                      : tr("Select a material first"));
        return;
    }
    const std::unique_ptr<store::connection> with = storeAccess::open(known().config(), progress());
    if (!with)
        return;
    std::vector<store::materialHistory> found;
    {
        workProgress::scope work(progress(), tr("Reading the history"));
        found =
            store::historyOf(*with, material->d_ktm, store::base::readHead(filePath()).document);
    }
    if (found.empty()) {
        if (with->fault().isEmpty())
            tell(tr("The shared store does not know this material yet"));
        else
            userPrompts().showError(with->fault().toHtmlEscaped());
        return;
    }
    historyDialog dialog(std::move(found), !isLocked(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString fault;
    const auto texts = store::textsAt(*with, dialog.picked().row, dialog.picked().release, &fault);
    if (!texts) {
        userPrompts().showError(fault.toHtmlEscaped());
        return;
    }
    takeTexts(material, *texts);
}

void Kiv_mat_databaseWindow::takeTexts(materialStruct *material, const QStringList &texts)
{
    const store::table &of = *store::tablesOf(fileKinds::database)[materialTable];
    auto wanted = std::make_unique<materialStruct>();
    for (size_t i = 0; i < of.columns.size(); ++i)
        of.setText(wanted.get(), i, texts[int(i)]);
    if (*wanted == *material) {
        tell(tr("The material is as it was then"));
        return;
    }
    const changeBatch batch(m_model);
    databaseRowsTarget target(m_model, m_rows.get());
    const int column = m_view->currentIndex().column();
    const materialStruct *changed =
        target.replace(m_rows->homeOf(material), material, std::move(wanted));
    push(target.step(), tr("Back to an earlier state"));
    keepCurrent(changed, column);
}

QString Kiv_mat_databaseWindow::editedKey() const
{
    const materialStruct *material = m_rows->materialAt(m_view->currentIndex());
    return material ? material->d_ktm : QString();
}
