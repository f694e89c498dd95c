#include "database/Kiv_mat_databaseMergeWindow.h"

#include "commands/editCommands.h"
#include "data/programData.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "tree/myModel.h"
#include "tree/myTreeView.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "window/workProgress.h"

#include <QDir>
#include <QHeaderView>
#include <QStatusBar>

#include <map>
#include <set>

using myItem::myItemStandard;

namespace {

const windowAction<Kiv_mat_databaseMergeWindow> actionTable[] = {
    {{"open", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Open"),
      "action_open", "Ctrl+O", QT_TRANSLATE_NOOP("actions", "Compare with another file"), true},
     &Kiv_mat_databaseMergeWindow::commandOpen},
    {{"set", "File", QT_TRANSLATE_NOOP("actions", "Set"), "action_set", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Take over the selected materials or fields, or all"), true},
     &Kiv_mat_databaseMergeWindow::commandSet},
    {usualActions::fileSeparator, nullptr},
    {usualActions::close, &Kiv_mat_databaseMergeWindow::commandClose},
    {usualActions::undo, &Kiv_mat_databaseMergeWindow::commandUndo},
    {usualActions::redo, &Kiv_mat_databaseMergeWindow::commandRedo},
    {{"leaveOut", "Edit", QT_TRANSLATE_NOOP("actions", "Leave out"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Take the selected materials out of the list"), true},
     &Kiv_mat_databaseMergeWindow::commandLeaveOut},
    {{"expand", QT_TRANSLATE_NOOP("actions", "Tools"), QT_TRANSLATE_NOOP("actions", "Expand"),
      "action_expand", nullptr, nullptr, true},
     &Kiv_mat_databaseMergeWindow::commandExpand},
    {{"collaps", "Tools", QT_TRANSLATE_NOOP("actions", "Collaps"), "action_collapse", nullptr,
      nullptr, true},
     &Kiv_mat_databaseMergeWindow::commandCollaps},
};

// In the first cell of a row: the place of its difference, or of its field.
constexpr int placeRole = Qt::UserRole + 2;

myItem::row rowOf(const QString &name, const QString &mine, const QString &other, int place)
{
    myItem::row row;
    for (const QString &text : {name, mine, other}) {
        auto *item = new myItemStandard(QString());
        item->setText(text);
        item->setToolTip(text);
        item->setEditable(false);
        row.append(item);
    }
    row.first()->setData(place, placeRole);
    return row;
}

// Stands behind the fields of a material.
int groupPlace() { return int(comparedFields().size()); }

// What a difference is found again by: the other file's records stay. Null for an absent material.
const void *recordOf(const materialDifference &difference)
{
    if (difference.kind == materialDifference::groupCpv)
        return difference.otherGroup;
    return difference.other;
}

// A difference is told by the type's weight, and by colour.
void mark(const myItem::row &row)
{
    static const QBrush colour(QColor(0xA0, 0x20, 0x20));
    QFont font;
    font.setBold(true);
    for (QStandardItem *item : row)
        item->setForeground(colour);
    myItem::setFont(row, font);
}

} // namespace

Kiv_mat_databaseMergeWindow::Kiv_mat_databaseMergeWindow(Kiv_mat_databaseWindow *database)
    : editWindow(QStringLiteral("Kiv_mat_databaseMergeWindow"), database->known())
    , m_database(database)
{
    addActions(actionTable);
    m_view = addView(tr("Differences"), "differences", this);
    m_view->setSortingEnabled(false);
    model()->setHorizontalHeaderLabels({labels::name(), tr("Value [orgin]"), tr("Value [new]")});
    constexpr int columnWidth = 300;
    m_view->header()->resizeSection(0, columnWidth);
    m_view->header()->resizeSection(1, columnWidth);
    m_view->header()->setStretchLastSection(true);
    connect(m_view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            &Kiv_mat_databaseMergeWindow::itemTreeClicked);
    setCentralWidget(m_view);
    m_again.setSingleShot(true);
    constexpr int restMs = 300;
    m_again.setInterval(restMs);
    connect(&m_again, &QTimer::timeout, this, &Kiv_mat_databaseMergeWindow::compareAgain);
    constexpr QSize usualSize(1000, 680);
    resize(usualSize);
    showState();
}

Kiv_mat_databaseMergeWindow::~Kiv_mat_databaseMergeWindow() = default;

QString Kiv_mat_databaseMergeWindow::title() const
{
    return m_path.isEmpty() ? tr("Merge")
                            : tr("Merge") + QLatin1String(" [") + QDir::toNativeSeparators(m_path)
                                  + QLatin1Char(']');
}

void Kiv_mat_databaseMergeWindow::commandOpen(bool)
{
    const QString path = userPrompts().openFile(tr("Open File"), paths::programDir(),
                                                tr("Xml File") + QLatin1String(" (*.xml)"));
    if (!path.isEmpty())
        open(path);
}

bool Kiv_mat_databaseMergeWindow::open(const QString &path)
{
    auto other = std::make_unique<kiv_mat_databaseStruct>();
    QString reason;
    workProgress::scope work(progress(), tr("Comparing"));
    if (!readChecked(path, other.get(), &reason, work.function())) {
        if (!work.cancelled()) {
            userPrompts().listError(messages::failed(messages::fileCorrupted(), path, reason));
            userPrompts().showErrors();
        }
        return false;
    }
    comparison found = compareDatabases(m_database->rows().database(), *other, work.function());
    if (found.cancelled)
        return false;
    m_path = path;
    m_other = std::move(other);
    m_comparison = std::move(found);
    showDifferences();
    raise();
    activateWindow();
    if (model()->rowCount() == 0)
        userPrompts().showInformation(allMaterialsInDatabase().toHtmlEscaped());
    return true;
}

void Kiv_mat_databaseMergeWindow::addRow(const materialDifference &difference, int place)
{
    if (difference.kind == materialDifference::groupCpv) {
        const myItem::row row = rowOf(labels::group() + QLatin1Char(' ') + difference.myGroup->name,
                                      difference.myGroup->cpv, difference.otherGroup->cpv, place);
        mark(row);
        model()->appendRow(row);
        return;
    }
    const bool isNew = difference.kind == materialDifference::added;
    const QString mine = isNew ? tr("new") : difference.mine->d_ktm;
    const bool isRepeated = difference.kind == materialDifference::repeated;
    const myItem::row row = rowOf(difference.other->d_name, mine,
                                  isRepeated ? tr("%1, once more").arg(difference.other->d_ktm)
                                             : difference.other->d_ktm,
                                  place);
    const auto below = [&](const QString &caption, const QString &before, const QString &after,
                           int field, bool differs) {
        const myItem::row cells = rowOf(caption, before, after, field);
        if (differs && !isNew)
            mark(cells);
        row.first()->appendRow(cells);
    };
    int field = -1;
    for (const comparedField &compared : comparedFields()) {
        ++field;
        below(compared.caption(), isNew ? QString() : compared.text(*difference.mine),
              compared.text(*difference.other), field,
              std::find(difference.fields.begin(), difference.fields.end(), field)
                  != difference.fields.end());
    }
    below(labels::group(), isNew ? QString() : difference.myGroup->name,
          difference.otherGroup->name, groupPlace(), difference.moved);
    model()->appendRow(row);
}

QSet<const void *> Kiv_mat_databaseMergeWindow::shown() const
{
    QSet<const void *> records;
    for (int row = 0; row < modelOf(m_view)->rowCount(); ++row)
        records.insert(recordOf(
            m_comparison.differences[size_t(modelOf(m_view)->item(row)->data(placeRole).toInt())]));
    return records;
}

void Kiv_mat_databaseMergeWindow::showDifferences()
{
    setClean();
    m_compared = m_database->stack().state();
    m_again.stop();
    model()->removeRows(0, model()->rowCount());
    int place = -1;
    for (const materialDifference &difference : m_comparison.differences) {
        ++place;
        if (difference.kind != materialDifference::absent)
            addRow(difference, place);
    }
    tell(tr("%n material(s) differ", nullptr, model()->rowCount()));
    updateActions();
}

void Kiv_mat_databaseMergeWindow::updateActions()
{
    const bool empty = model()->rowCount() == 0;
    for (const char *name : {"leaveOut", "expand", "collaps"})
        setAvailable(name, !empty, tr("nothing differs"));
    const bool locked = m_database->isLocked();
    setAvailable("set", !empty && !locked,
                 locked ? tr("editing of the database is locked") : tr("nothing differs"));
    if (m_other && m_database->stack().state() != m_compared)
        m_again.start();
}

void Kiv_mat_databaseMergeWindow::commandSet(bool)
{
    if (m_database->isLocked())
        return;
    // Of each material in the list: all of its fields, or those selected.
    std::map<int, std::set<int>> selected;
    for (const QModelIndex &cell : m_view->selectedCells()) {
        const QModelIndex first = cell.sibling(cell.row(), 0);
        if (first.parent().isValid())
            selected[first.parent().data(placeRole).toInt()].insert(first.data(placeRole).toInt());
        else
            selected[first.data(placeRole).toInt()];
    }
    if (selected.empty()
        && userPrompts().ask(tr("Nothing is selected. Take over all %n difference(s)?", nullptr,
                                model()->rowCount()),
                             false)
               != prompts::answer::yes)
        return;
    // Which one of a KTM's materials is meant only the user can tell.
    if (selected.empty())
        for (int row = 0; row < model()->rowCount(); ++row)
            if (const int place = model()->item(row)->data(placeRole).toInt();
                m_comparison.differences[size_t(place)].kind != materialDifference::repeated)
                selected[place];
    // The database may have other records by now: the differences are found anew, by the materials
    // of the other file, which stay.
    std::map<const void *, std::set<int>> chosen;
    for (const auto &[place, fields] : selected)
        chosen[recordOf(m_comparison.differences[size_t(place)])] = fields;
    std::vector<materialDifference> wanted;
    workProgress::scope work(progress(), tr("Merge"));
    comparison now = compareDatabases(m_database->rows().database(), *m_other, work.function());
    for (materialDifference &difference : now.differences) {
        const auto found = chosen.find(recordOf(difference));
        if (difference.kind == materialDifference::absent || found == chosen.end())
            continue;
        std::set<int> &fields = found->second;
        if (!fields.empty()
            && (difference.kind == materialDifference::changed
                || difference.kind == materialDifference::repeated)) {
            difference.moved = fields.erase(groupPlace()) > 0 && difference.moved;
            difference.fields.assign(fields.begin(), fields.end());
        }
        wanted.push_back(std::move(difference));
    }
    const int count = int(wanted.size());
    if (now.cancelled || !m_database->takeOver(wanted, false, tr("Merge"), work.function())) {
        tell(tr("Cancelled"));
        return;
    }
    compareAgain();
    tell(tr("%n material(s) taken over", nullptr, count));
}

// What was left out stays so; what is open and selected does, too.
void Kiv_mat_databaseMergeWindow::compareAgain()
{
    if (!m_other)
        return;
    const QSet<const void *> before = shown();
    QSet<const void *> leftOut;
    for (const materialDifference &difference : m_comparison.differences)
        if (const void *record = recordOf(difference); !before.contains(record))
            leftOut.insert(record);
    QSet<const void *> open;
    const void *current = nullptr;
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex first = model()->index(row, 0);
        const void *record =
            recordOf(m_comparison.differences[size_t(first.data(placeRole).toInt())]);
        if (m_view->isExpanded(first))
            open.insert(record);
        if (m_view->currentIndex().row() == row && !m_view->currentIndex().parent().isValid())
            current = record;
    }
    comparison found;
    {
        workProgress::scope work(progress(), tr("Comparing"));
        found = compareDatabases(m_database->rows().database(), *m_other, work.function());
    }
    if (found.cancelled)
        return;
    m_comparison = std::move(found);
    std::erase_if(m_comparison.differences, [&leftOut](const materialDifference &difference) {
        return leftOut.contains(recordOf(difference));
    });
    showDifferences();
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex first = model()->index(row, 0);
        const void *record =
            recordOf(m_comparison.differences[size_t(first.data(placeRole).toInt())]);
        m_view->setExpanded(first, open.contains(record));
        if (record == current)
            m_view->setCurrentIndex(first);
    }
}

void Kiv_mat_databaseMergeWindow::commandLeaveOut(bool)
{
    std::set<int> rows;
    for (const QModelIndex &cell : m_view->markedCells())
        rows.insert(cell.parent().isValid() ? cell.parent().row() : cell.row());
    std::vector<std::unique_ptr<command>> members;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        members.push_back(std::make_unique<deleteMaterial>(model(), model()->index(*row, 0)));
    if (!members.empty())
        push(std::make_unique<appendCommands>(std::move(members), model()), tr("Leave out"));
    updateActions();
}

void Kiv_mat_databaseMergeWindow::commandCollaps(bool) { m_view->collapseAll(); }

void Kiv_mat_databaseMergeWindow::commandExpand(bool) { m_view->expandAll(); }

void Kiv_mat_databaseMergeWindow::itemTreeClicked(QPoint, uint, const QModelIndex &index)
{
    const QModelIndex row = index.sibling(index.row(), 0);
    const QModelIndex material = row.parent().isValid() ? row.parent() : row;
    const materialDifference &difference =
        m_comparison.differences[size_t(material.data(placeRole).toInt())];
    tell(difference.kind == materialDifference::added
             ? tr("New in the other file")
             : tr("%n field(s) differ", nullptr,
                  difference.kind == materialDifference::groupCpv
                      ? 1
                      : int(difference.fields.size()) + int(difference.moved)));
}
