#include "database/Kiv_mat_databaseWindow.h"

#include "commands/editCommands.h"
#include "database/Kiv_mat_databaseMergeWindow.h"
#include "database/databaseDrop.h"
#include "database/databaseRowsTarget.h"
#include "database/detailsPane.h"
#include "database/findingsWindow.h"
#include "database/linksWindow.h"
#include "database/materialChecks.h"
#include "database/materialWindow.h"

#include "data/vocabulary.h"
#include "tree/myModelDelegate.h"
#include "tree/myTreeView.h"
#include "util/prompts.h"
#include "window/searchLine.h"
#include "window/treeHint.h"
#include "window/workProgress.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QStatusBar>

using materialRows = databaseTree::rows;
using myItem::myItemStandard;

namespace {

const actionRow toolsSeparator{nullptr, "Tools", nullptr, nullptr, nullptr, nullptr, false};

const windowAction<Kiv_mat_databaseWindow> actionTable[] = {
    {usualActions::save, &Kiv_mat_databaseWindow::commandSave},
    {{"update", "File", QT_TRANSLATE_NOOP("actions", "Update"), "action_update", nullptr,
      QT_TRANSLATE_NOOP("actions", "Make this database like another file")},
     &Kiv_mat_databaseWindow::commandUpdate},
    {{"merge", "File", QT_TRANSLATE_NOOP("actions", "Merge"), "action_merge", nullptr,
      QT_TRANSLATE_NOOP("actions", "Compare with another file and take over changes")},
     &Kiv_mat_databaseWindow::commandMerge},
    {usualActions::fileSeparator, nullptr},
    {usualActions::synchronize, &Kiv_mat_databaseWindow::commandSynchronize},
    {usualActions::publish, &Kiv_mat_databaseWindow::commandPublish},
    {usualActions::versions, &Kiv_mat_databaseWindow::commandVersions},
    {usualActions::close, &Kiv_mat_databaseWindow::commandClose},

    {{"fullReport", QT_TRANSLATE_NOOP("actions", "Report"), QT_TRANSLATE_NOOP("actions", "Full"),
      "action_report", nullptr, QT_TRANSLATE_NOOP("actions", "Write a page of all materials")},
     &Kiv_mat_databaseWindow::commandFullReport},
    {{"shortReport", "Report", QT_TRANSLATE_NOOP("actions", "Short"), "action_report_short",
      nullptr, QT_TRANSLATE_NOOP("actions", "Write a short page of all materials")},
     &Kiv_mat_databaseWindow::commandShortReport},

    {usualActions::edit(QT_TRANSLATE_NOOP("actions", "Allow changes of the database")),
     &Kiv_mat_databaseWindow::commandEdit},
    {usualActions::undo, &Kiv_mat_databaseWindow::commandUndo},
    {usualActions::redo, &Kiv_mat_databaseWindow::commandRedo},
    {usualActions::editSeparator, nullptr},
    {{"copyText", "Edit", QT_TRANSLATE_NOOP("actions", "Copy text"), "data_copy_128", "Ctrl+C",
      QT_TRANSLATE_NOOP("actions", "Copy the selected cells as text")},
     &Kiv_mat_databaseWindow::commandCopyCells},
    {{"copyMaterials", "Edit", QT_TRANSLATE_NOOP("actions", "Copy"), "data_copy_element2_128",
      "Ctrl+Shift+C", QT_TRANSLATE_NOOP("actions", "Copy the selected materials")},
     &Kiv_mat_databaseWindow::commandCopyMaterials},
    {{"cutMaterials", "Edit", QT_TRANSLATE_NOOP("actions", "Cut"), "data_cut_128", "Ctrl+X",
      QT_TRANSLATE_NOOP("actions", "Cut the selected materials")},
     &Kiv_mat_databaseWindow::commandCutMaterials},
    {{"pasteMaterials", "Edit", QT_TRANSLATE_NOOP("actions", "Past"), "data_past_element2_128",
      "Ctrl+V",
      QT_TRANSLATE_NOOP("actions", "Paste the copied materials into this group, or the copied "
                                   "text into the cells from the current one on")},
     &Kiv_mat_databaseWindow::commandPasteMaterials},
    {usualActions::fillDown, &Kiv_mat_databaseWindow::commandFillDown},
    {{"changeMaterials", "Edit", QT_TRANSLATE_NOOP("actions", "Change selected materials ..."),
      "action_fill_down", "Ctrl+H",
      QT_TRANSLATE_NOOP("actions", "Set, replace or compose a field of many materials, move them "
                                   "or give them a firm")},
     &Kiv_mat_databaseWindow::commandChangeMaterials},
    {{"deleteMaterials", "Edit", QT_TRANSLATE_NOOP("actions", "Delete materials"), "action_delete",
      "Del", QT_TRANSLATE_NOOP("actions", "Delete the selected materials, or empty groups")},
     &Kiv_mat_databaseWindow::commandDeleteMaterials},
    {usualActions::editSeparator, nullptr},
    {{"addGroup", "Edit", QT_TRANSLATE_NOOP("actions", "Add. new group"), "zp_open_group_128",
      nullptr, nullptr},
     &Kiv_mat_databaseWindow::commandAddGroup},
    {{"addMaterial", "Edit", QT_TRANSLATE_NOOP("actions", "Add. new material"),
      "data_new_element2_128", "Ins", nullptr, true},
     &Kiv_mat_databaseWindow::commandAddMaterial},
    {{"editParameters", "Edit", QT_TRANSLATE_NOOP("actions", "Edit parameters"),
      "data_open_element2_128", "F4", nullptr},
     &Kiv_mat_databaseWindow::commandEditParameters},
    {{"editCpv", "Edit", QT_TRANSLATE_NOOP("actions", "Edit CPV"), "zp_cpv_edit_128", nullptr,
      nullptr},
     &Kiv_mat_databaseWindow::commandEditCpv},
    {{"expandGroup", "Edit", QT_TRANSLATE_NOOP("actions", "Expand"), "data_group_expanded1_128",
      nullptr, QT_TRANSLATE_NOOP("actions", "Open this group")},
     &Kiv_mat_databaseWindow::commandExpandGroup},
    {{"collapsGroup", "Edit", QT_TRANSLATE_NOOP("actions", "Collaps"), "data_group_collapsed1_128",
      nullptr, QT_TRANSLATE_NOOP("actions", "Close this group")},
     &Kiv_mat_databaseWindow::commandCollapsGroup},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"toOrder", "Edit", QT_TRANSLATE_NOOP("actions", "To the order: 1"), "action_add_material",
      "Ctrl+Return", QT_TRANSLATE_NOOP("actions", "Add the selected materials to the order")},
     &Kiv_mat_databaseWindow::commandToOrder},
    {{"toOrderN", "Edit", QT_TRANSLATE_NOOP("actions", "To the order: N ..."),
      "action_add_material", "Ctrl+Shift+Return",
      QT_TRANSLATE_NOOP("actions", "Add the selected materials to the order with a quantity")},
     &Kiv_mat_databaseWindow::commandToOrderN},
    {{"insertToBom", "Edit", QT_TRANSLATE_NOOP("actions", "Insert to BOM"),
      "data_insert_to_bom_128", nullptr, nullptr},
     &Kiv_mat_databaseWindow::commandInsertToBom},
    {{"openLink", "Edit", QT_TRANSLATE_NOOP("actions", "Open"), "zp_open_link_128", nullptr,
      QT_TRANSLATE_NOOP("actions", "Open the link of this material")},
     &Kiv_mat_databaseWindow::commandOpenLink},
    {{"openCopy", "Edit", QT_TRANSLATE_NOOP("actions", "Open the copy"), "action_local_copy",
      nullptr, QT_TRANSLATE_NOOP("actions", "Open the copy of the link's document")},
     &Kiv_mat_databaseWindow::commandOpenCopy},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"find", "Edit", QT_TRANSLATE_NOOP("actions", "Find"), "action_find", "Ctrl+F",
      QT_TRANSLATE_NOOP("actions", "Go to the search field"), true},
     &Kiv_mat_databaseWindow::commandFind},

    {{"expand", QT_TRANSLATE_NOOP("actions", "Tools"), QT_TRANSLATE_NOOP("actions", "Expand"),
      "action_expand", nullptr, QT_TRANSLATE_NOOP("actions", "Open all groups")},
     &Kiv_mat_databaseWindow::commandExpand},
    {{"expand2", nullptr, QT_TRANSLATE_NOOP("actions", "Expand"), "action_expand", nullptr,
      QT_TRANSLATE_NOOP("actions", "Open all groups"), true},
     &Kiv_mat_databaseWindow::commandExpand2},
    {{"collaps", "Tools", QT_TRANSLATE_NOOP("actions", "Collaps"), "action_collapse", nullptr,
      QT_TRANSLATE_NOOP("actions", "Close all groups"), true},
     &Kiv_mat_databaseWindow::commandCollaps},
    {{"columns", "Tools", QT_TRANSLATE_NOOP("actions", "Columns"), "action_list", nullptr,
      QT_TRANSLATE_NOOP("actions", "Choose the columns shown")},
     &Kiv_mat_databaseWindow::commandColumns},
    {{"details", "Tools", QT_TRANSLATE_NOOP("actions", "Details"), "action_preview", "Alt+Return",
      QT_TRANSLATE_NOOP("actions", "Show all of the current material beside the tree"), true, true},
     &Kiv_mat_databaseWindow::commandDetails},
    {{"goToDetails", "Tools", QT_TRANSLATE_NOOP("actions", "To the details"), "action_information",
      "F6", QT_TRANSLATE_NOOP("actions", "Have the keys go to the details; Escape goes back")},
     &Kiv_mat_databaseWindow::commandGoToDetails},
    {toolsSeparator, nullptr},
    {{"history", "Tools", QT_TRANSLATE_NOOP("actions", "History ..."), "action_dates",
      "Ctrl+Shift+J",
      QT_TRANSLATE_NOOP("actions", "Who changed what of this material in the shared store")},
     &Kiv_mat_databaseWindow::commandHistory},
    {{"gray", "Tools", QT_TRANSLATE_NOOP("actions", "Gray"), "led_gray", nullptr,
      QT_TRANSLATE_NOOP("actions", "Show only materials with this status"), true, true},
     &Kiv_mat_databaseWindow::commandGray},
    {{"green", "Tools", QT_TRANSLATE_NOOP("actions", "Green"), "led_green", nullptr,
      QT_TRANSLATE_NOOP("actions", "Show only materials with this status"), true, true},
     &Kiv_mat_databaseWindow::commandGreen},
    {{"violet", "Tools", QT_TRANSLATE_NOOP("actions", "Violet"), "led_purple", nullptr,
      QT_TRANSLATE_NOOP("actions", "Show only materials with this status"), true, true},
     &Kiv_mat_databaseWindow::commandViolet},
    {{"blue", "Tools", QT_TRANSLATE_NOOP("actions", "Blue"), "led_blue", nullptr,
      QT_TRANSLATE_NOOP("actions", "Show only materials with this status"), true, true},
     &Kiv_mat_databaseWindow::commandBlue},
    {{"edited", "Tools", QT_TRANSLATE_NOOP("actions", "Edited"), "action_filter", nullptr,
      QT_TRANSLATE_NOOP("actions", "Show only materials marked as edited"), true, true},
     &Kiv_mat_databaseWindow::commandEdited},
    {toolsSeparator, nullptr},
    {{"checks", "Tools", QT_TRANSLATE_NOOP("actions", "Checks"), "action_checks", "Ctrl+Shift+K",
      QT_TRANSLATE_NOOP("actions", "Table of what is wrong with the materials, and where"), true},
     &Kiv_mat_databaseWindow::commandChecks},
    {{"findDuplicate", "Tools", QT_TRANSLATE_NOOP("actions", "Find Duplicate"), "action_duplicate",
      nullptr, QT_TRANSLATE_NOOP("actions", "List materials that share a KTM or a part number")},
     &Kiv_mat_databaseWindow::commandFindDuplicate},
    {{"findEmpty", "Tools", QT_TRANSLATE_NOOP("actions", "Find empty"), "action_empty", nullptr,
      QT_TRANSLATE_NOOP("actions", "List materials with empty fields")},
     &Kiv_mat_databaseWindow::commandFindEmpty},
    {{"checkUrls", "Tools", QT_TRANSLATE_NOOP("actions", "Check urls"), "action_links", nullptr,
      QT_TRANSLATE_NOOP("actions", "Test every link of the materials")},
     &Kiv_mat_databaseWindow::commandCheck_urls},
    {{"examineLinks", "Tools", QT_TRANSLATE_NOOP("actions", "Examine links"), "action_examine",
      nullptr, QT_TRANSLATE_NOOP("actions", "Find out what came of every link: moved, gone, ...")},
     &Kiv_mat_databaseWindow::commandExamineLinks},
    {{"parse", "Tools", QT_TRANSLATE_NOOP("actions", "Parse"), "action_parse", nullptr,
      QT_TRANSLATE_NOOP("actions", "Take stock and prices from a listing")},
     &Kiv_mat_databaseWindow::commandParse},
    {{"information", "Tools", QT_TRANSLATE_NOOP("actions", "Information"), "action_information",
      nullptr, QT_TRANSLATE_NOOP("actions", "Count materials and groups")},
     &Kiv_mat_databaseWindow::commandInformation},
    {{"replaceMaterial", "Tools", QT_TRANSLATE_NOOP("actions", "Replace material ..."),
      "action_replace", "Ctrl+R",
      QT_TRANSLATE_NOOP("actions", "Put another material in the place of this one in all BOM lists "
                                   "of the set and the open order")},
     &Kiv_mat_databaseWindow::commandReplaceMaterial},

    {{"altiumXlsx", QT_TRANSLATE_NOOP("actions", "Altium"),
      QT_TRANSLATE_NOOP("actions", "Create altium xlsx"), "action_xlsx", nullptr,
      QT_TRANSLATE_NOOP("actions", "Export the component library as a workbook")},
     &Kiv_mat_databaseWindow::commandAltiumXlsx},
    {{"altiumSqlite", "Altium", QT_TRANSLATE_NOOP("actions", "Create altium sqlite"),
      "action_sqlite", nullptr,
      QT_TRANSLATE_NOOP("actions", "Export the component library as a database")},
     &Kiv_mat_databaseWindow::commandAltiumSQLite},

    {{"groups", QT_TRANSLATE_NOOP("actions", "Others"), QT_TRANSLATE_NOOP("actions", "Groups"),
      "action_groups", nullptr, QT_TRANSLATE_NOOP("actions", "Export the list of groups")},
     &Kiv_mat_databaseWindow::commandGroups},
    {{"loadCpv", "Others", QT_TRANSLATE_NOOP("actions", "Load CPV for groups"), "action_cpv",
      nullptr, QT_TRANSLATE_NOOP("actions", "Read the groups' CPV codes from a text file")},
     &Kiv_mat_databaseWindow::commandLoadCPVForGroups},
    {{"moveCpv", "Others", QT_TRANSLATE_NOOP("actions", "Move CPV from group to materials"),
      "action_cpv", nullptr, nullptr},
     &Kiv_mat_databaseWindow::commandMoveCPVFromGroupToMaterials},
    {{"cpvIndex", "Others", QT_TRANSLATE_NOOP("actions", "CPV index"), "action_help", nullptr,
      nullptr},
     &Kiv_mat_databaseWindow::commandCPVIndex},
    {{"cpvIndexWww", "Others", QT_TRANSLATE_NOOP("actions", "CPV index www"), "action_link",
      nullptr, nullptr},
     &Kiv_mat_databaseWindow::commandCPVIndexWWW},
};

} // namespace

// --- Construction
// ---------------------------------------------------------------------------------

Kiv_mat_databaseWindow::Kiv_mat_databaseWindow(programData &files, programData::databaseKind kind)
    : editWindow(QStringLiteral("Kiv_mat_databaseWindow"), files)
    , m_kind(kind)
{
    buildWidgets();
    showDatabase();
}

Kiv_mat_databaseWindow::~Kiv_mat_databaseWindow() = default;

void Kiv_mat_databaseWindow::buildWidgets()
{
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_database.png")));
    addActions(actionTable);
    auto *page = new QWidget(this);
    m_view = addView(tr("Materials"), "materials", page);
    m_model = modelOf(m_view);
    m_model->setCheck([this](const myItemStandard &item, const QVariant &value) {
        return faultOf(item, value.toString());
    });

    keepJournal(fileKinds::database, [this] { return &m_rows->database(); }, {m_model});
    // Each takes up its own of it.
    m_built.changed = [this] { noteAside(m_built.text() + m_stocked.text()); };
    m_stocked.changed = m_built.changed;

    m_words = new searchLine(m_view);
    m_words->completeFrom(known().search(), [this] { return &m_rows->database(); });
    new databaseDrop(this);
    m_hint = treeHint::over(m_view, QStringLiteral("hint"));
    connect(m_hint, &QLabel::linkActivated, this, [this](const QString &link) {
        if (link == QLatin1String("all"))
            showAll();
        else
            action(link.toLatin1())->trigger();
    });
    const auto groupsChanged = [this](const QModelIndex &parent) {
        if (!parent.isValid() && m_rows)
            showHint();
    };
    connect(m_model, &QAbstractItemModel::rowsInserted, this, groupsChanged);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, groupsChanged);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    buildDetails(page);
    constexpr QSize usualSize(1280, 800);
    resize(usualSize);

    connect(m_words, &searchLine::wanted, this, &Kiv_mat_databaseWindow::applyFilter);
    connect(m_words, &QLineEdit::returnPressed, this, &Kiv_mat_databaseWindow::goToFound);
    connect(m_view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            &Kiv_mat_databaseWindow::itemTreeClicked);
    connect(m_view, &myTreeView::keyUpDown, this,
            [this] { itemTreeClicked({}, 0, m_view->currentIndex()); });
    connect(m_view, &QWidget::customContextMenuRequested, this,
            &Kiv_mat_databaseWindow::showContextMenu);
}

// The database as the program has it, which is how its file has it.
void Kiv_mat_databaseWindow::showDatabase()
{
    setClean();
    m_built.discard();
    m_stocked.discard();
    m_model->setRecords(nullptr);
    const bool first = !m_rows;
    m_reserved = reservedTotals(known().reservations().now());
    const auto reservedOf = [this](const QString &ktm) {
        const auto found = m_reserved.constFind(ktm);
        return found == m_reserved.constEnd() ? QString() : found->text();
    };
    m_rows = std::make_unique<materialRows>(
        &known().database(m_kind),
        databaseTree::columns(known().config(), reservedOf,
                              [this](const QString &ktm) { return known().orderedOf(ktm); }),
        &known().materials(), &known().search());
    m_rows->show(m_model);
    if (first) {
        QHeaderView *header = m_view->header();
        for (size_t c = 0; c < m_rows->columns().size(); ++c) {
            header->resizeSection(int(c), m_rows->columns()[c].width);
            header->setSectionHidden(int(c), int(c) >= databaseTree::usuallyShown());
        }
    }
    m_view->setFont(known().config().font());
    setUnlocked(false);
    applyFilter();
    if (m_findings)
        m_findings->databaseReplaced();
}

// Boards may have been reserved meanwhile, here or by another program.
void Kiv_mat_databaseWindow::showReserved()
{
    QHash<QString, decimal> now = reservedTotals(known().reservations().now());
    if (now == m_reserved)
        return;
    m_reserved = std::move(now);
    m_rows->readAgain(QLatin1String("reserved"));
    m_details->follow();
}

void Kiv_mat_databaseWindow::ordersChanged()
{
    for (const char *column : {"on_the_way", "last_ordered"})
        m_rows->readAgain(QLatin1String(column));
    m_details->follow();
}

void Kiv_mat_databaseWindow::changeEvent(QEvent *event)
{
    editWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_rows)
        showReserved();
}

QString Kiv_mat_databaseWindow::filePath() const { return known().database(m_kind).filePath; }

documentStruct *Kiv_mat_databaseWindow::record() { return &m_rows->database(); }

fileState &Kiv_mat_databaseWindow::onDisk() { return known().fileOf(m_kind); }

QLatin1String Kiv_mat_databaseWindow::editOption() const { return optionKey::editDatabase; }

QString Kiv_mat_databaseWindow::title() const
{
    const QString title = tr("Database of material") + QLatin1String(" [")
                          + QDir::toNativeSeparators(filePath()) + QLatin1Char(']');
    return isLocked() ? title + QLatin1Char(' ') + tr("Editing locked") : title;
}

void Kiv_mat_databaseWindow::begin()
{
    showDatabase();
    // Else the first key in the search field would wait for it.
    known().search().prepare();
    m_words->setFocus();
}

void Kiv_mat_databaseWindow::updateActions()
{
    // The history is made clean before there are any rows; this is called again once there are.
    if (!m_rows)
        return;
    allowWhenUnlocked({"update", "changeMaterials", "cutMaterials", "deleteMaterials", "addGroup",
                       "addMaterial", "editParameters", "editCpv", "fillDown", "parse", "loadCpv",
                       "moveCpv"});
    const bool onMaterial = m_rows->materialAt(m_view->markedCell());
    setAvailable("openLink", onMaterial, tr("no material is selected"));
    setAvailable("replaceMaterial", onMaterial, tr("no material is selected"));
    for (const char *name : {"insertToBom", "toOrder", "toOrderN"})
        setAvailable(name, onMaterial || m_view->selectionModel()->hasSelection(),
                     tr("no material is selected"));
    allowWhenUnlocked({"pasteMaterials"});
    m_details->follow();
    if (m_merge)
        m_merge->updateActions();
    updateLinkActions();
}

void Kiv_mat_databaseWindow::showContextMenu(const QPoint &position)
{
    QMenu menu(this);
    for (const char *name :
         {"copyText", "openLink", "openCopy", "editParameters", "changeMaterials", "copyMaterials",
          "cutMaterials", "pasteMaterials", "addMaterial", "editCpv", "addGroup", "expandGroup",
          "collapsGroup", "insertToBom", "replaceMaterial", "", "toOrder", "toOrderN"})
        if (*name)
            menu.addAction(action(name));
        else
            menu.addSeparator();
    menu.exec(m_view->viewport()->mapToGlobal(position));
}

void Kiv_mat_databaseWindow::itemTreeClicked(QPoint, uint, const QModelIndex &index)
{
    if (const materialStruct *material = m_rows->materialAt(index))
        tell(material->d_ktm + QLatin1String("  ") + material->d_name + QLatin1String("  ")
             + material->d_description);
}

// --- Life
// -----------------------------------------------------------------------------------------

// Boards that are built but not noted are noted with the next saving, which has to come.
bool Kiv_mat_databaseWindow::isModified() const
{
    return editWindow::isModified() || m_built.areOverdue() || m_stocked.areOverdue();
}

bool Kiv_mat_databaseWindow::takeNote(const QString &note)
{
    const bool hasBoards = m_built.takeUp(note);
    return m_stocked.takeUp(note) || hasBoards;
}

void Kiv_mat_databaseWindow::historyMoved()
{
    m_rows->follow();
    showGroups();
}

bool Kiv_mat_databaseWindow::write(const QString &path)
{
    kiv_mat_databaseStruct &database = m_rows->database();
    const QString before = database.update;
    database.update = QDateTime::currentDateTime().toString(QStringLiteral("yyyy.MM.dd hh:mm:ss"));
    const bool saved = writeDocument(path, database, [this](const auto &writing) {
        workProgress::scope work(progress(), tr("Saving"));
        writing(work.function());
    });
    if (!saved)
        database.update = before;
    QString fault;
    if (saved && !m_built.settle(known().reservations(), known().config(), &fault))
        userPrompts().showError(
            tr("The database is saved, but the boards that were built cannot be noted in %1; "
               "saving again tries it again")
                .arg(QDir::toNativeSeparators(known().reservations().path()))
                .toHtmlEscaped()
            + QLatin1String("<br>") + fault.toHtmlEscaped());
    if (saved && !m_stocked.settle(known().config(), &fault))
        userPrompts().showError(
            tr("The database is saved, but the deliveries that went into its stock cannot be noted "
               "beside the orders; saving again tries it again")
                .toHtmlEscaped()
            + QLatin1String("<br>") + fault.toHtmlEscaped());
    showReserved();
    return saved;
}

// A group that only the other one has, and most of whose materials stand in one that it lacks, is
// that one under another name.
std::unique_ptr<command> Kiv_mat_databaseWindow::become(documentStruct &wanted)
{
    const changeBatch batch(m_model);
    kiv_mat_databaseStruct &mine = m_rows->database();
    auto &theirs = static_cast<kiv_mat_databaseStruct &>(wanted);
    QHash<QString, d_groupStruct *> left;  // by name, without those that the other one has
    QHash<QString, d_groupStruct *> homes; // by KTM
    for (const auto &group : mine.groups)
        left.insert(group->name, group.get());
    for (const auto &group : theirs.groups)
        left.remove(group->name);
    for (d_groupStruct *group : qAsConst(left))
        for (const auto &material : group->items)
            homes.insert(material->d_ktm, group);
    std::vector<std::unique_ptr<command>> members;
    for (const auto &group : theirs.groups) {
        QHash<d_groupStruct *, int> votes;
        for (const auto &material : group->items)
            if (d_groupStruct *home = homes.value(material->d_ktm);
                left.contains(home ? home->name : QString()))
                ++votes[home];
        for (auto vote = votes.begin(); vote != votes.end(); ++vote)
            if (2 * vote.value() > int(group->items.size())) {
                left.remove(vote.key()->name);
                members.push_back(std::make_unique<changeValue>(
                    m_model, static_cast<myItemStandard *>(m_rows->groupItem(vote.key())),
                    group->name));
                break;
            }
    }
    databaseRowsTarget target(m_model, m_rows.get());
    carryOut(compareDatabases(mine, theirs).differences, absentOnes::remove, mine, target);
    if (auto step = target.step())
        members.push_back(std::move(step));
    for (const d_groupStruct *group : qAsConst(left))
        if (group->items.empty())
            members.push_back(
                std::make_unique<deleteMaterial>(m_model, m_rows->groupItem(group)->index()));
    return members.empty() ? nullptr
                           : std::make_unique<appendCommands>(std::move(members), m_model);
}

// What the program works with is what the file holds. False when it cannot be read: then what was
// edited is still there, and still not saved.
bool Kiv_mat_databaseWindow::load()
{
    programData::readDatabase read;
    {
        workProgress::scope work(progress(), tr("Reading"));
        read = known().readAgain(m_kind, work.function());
    }
    userPrompts().showErrors();
    if (!read.database)
        return false;
    setClean();
    m_model->setRecords(nullptr);
    m_model->removeRows(0, m_model->rowCount());
    remake(*read.database);
    known().putInUse(m_kind, std::move(read));
    showDatabase();
    if (m_merge)
        m_merge->compareAgain();
    return true;
}

// The rows of the groups that were opened go with their window; those of a large database take a
// gigabyte.
void Kiv_mat_databaseWindow::closed() { showDatabase(); }

bool Kiv_mat_databaseWindow::mayClose()
{
    return finishEditing() && (!m_editor || !m_editor->isVisible() || m_editor->close())
           && editWindow::mayClose();
}

void Kiv_mat_databaseWindow::closeEvent(QCloseEvent *event)
{
    editWindow::closeEvent(event);
    // It compares with what was shown here.
    if (event->isAccepted() && m_merge)
        m_merge->close();
    if (event->isAccepted() && m_findings)
        m_findings->close();
    if (event->isAccepted() && m_links)
        m_links->close();
}
