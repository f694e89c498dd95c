#include "bom/Kiv_bomWindow.h"

#include "bom/Kiv_bomViewWindow.h"
#include "bom/bomDiff.h"
#include "bom/bomImportWindow.h"
#include "commands/cellBlock.h"
#include "commands/editCommands.h"
#include "data/programData.h"
#include "dialogs/tableDialog.h"
#include "tree/myHeaderView.h"
#include "tree/myTreeView.h"
#include "util/labels.h"
#include "util/prompts.h"
#include "window/becomeList.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>

#include <QXmlStreamWriter>

#include <set>

using namespace bomOperations;
using myItem::myItemStandard;

namespace {

const windowAction<Kiv_bomWindow> actionTable[] = {
    {{"set", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Set"),
      "action_set", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Put the materials of all lists that are built into the order"),
      true},
     &Kiv_bomWindow::commandSet},
    {{"clear", "File", QT_TRANSLATE_NOOP("actions", "Clear"), "action_clear", nullptr,
      QT_TRANSLATE_NOOP("actions", "Build no list: all numbers of sets become 0"), true},
     &Kiv_bomWindow::commandClear},
    {{"allQuantities", "File", QT_TRANSLATE_NOOP("actions", "All Quantities ..."),
      "action_quantities", nullptr,
      QT_TRANSLATE_NOOP("actions", "Set the number of sets of all or the selected lists"), true},
     &Kiv_bomWindow::commandAllQuantities},
    {usualActions::fileSeparator, nullptr},
    {{"open", "File", QT_TRANSLATE_NOOP("actions", "Open"), "zp_open_link_128", nullptr,
      QT_TRANSLATE_NOOP("actions", "Open the file with the desktop's program")},
     &Kiv_bomWindow::commandOpen},
    {{"bom", "File", QT_TRANSLATE_NOOP("actions", "Bom"), "dialog_bom2_128", "Return",
      QT_TRANSLATE_NOOP("actions", "Look at the lines of the list")},
     &Kiv_bomWindow::commandBom},
    {{"csv", "File", QT_TRANSLATE_NOOP("actions", "CSV"), "dialog_bom2_128", nullptr,
      QT_TRANSLATE_NOOP("actions", "Export the KTMs and quantities of the list")},
     &Kiv_bomWindow::commandCsv},
    {{"doc", "File", QT_TRANSLATE_NOOP("actions", "DOC"), "dialog_bom2_128", nullptr,
      QT_TRANSLATE_NOOP("actions", "Export the report of the list as a document")},
     &Kiv_bomWindow::commandDoc},
    {usualActions::fileSeparator, nullptr},
    {{"report", "File", QT_TRANSLATE_NOOP("actions", "Report"), "action_report", nullptr,
      QT_TRANSLATE_NOOP("actions",
                        "Write a page or PDF of the selected lists, else of those that are built"),
      true},
     &Kiv_bomWindow::commandFullReport},
    {{"import", "File", QT_TRANSLATE_NOOP("actions", "Import list of parts ..."), "action_open",
      "Ctrl+I",
      QT_TRANSLATE_NOOP("actions",
                        "Make a BOM list of a list of parts of a CAD tool: CSV, XLSX, ODS, KiCad"),
      true},
     &Kiv_bomWindow::commandImport},
    // Ctrl+S is "Set" here.
    {{"save", "File", "Save", "action_save", "Ctrl+Shift+S",
      QT_TRANSLATE_NOOP("actions", "Write the set of BOM lists"), true},
     &Kiv_bomWindow::commandSave},
    {usualActions::versions, &Kiv_bomWindow::commandVersions},
    {usualActions::close, &Kiv_bomWindow::commandClose},
    {usualActions::undo, &Kiv_bomWindow::commandUndo},
    {usualActions::redo, &Kiv_bomWindow::commandRedo},
    {usualActions::editSeparator, nullptr},
    {usualActions::copyCells, &Kiv_bomWindow::commandCopyCells},
    {usualActions::pasteCells, &Kiv_bomWindow::commandPasteCells},
    {usualActions::fillDown, &Kiv_bomWindow::commandFillDown},
    {{"addFile", "Edit", QT_TRANSLATE_NOOP("actions", "Add. new file"), "data_new_element2_128",
      "Ins", QT_TRANSLATE_NOOP("actions", "Add a BOM list to this folder")},
     &Kiv_bomWindow::commandAddFile},
    {{"addGroup", "Edit", QT_TRANSLATE_NOOP("actions", "Add. new group"), "zp_open_group_128",
      nullptr, nullptr},
     &Kiv_bomWindow::commandAddGroup},
    {{"delete", "Edit", QT_TRANSLATE_NOOP("actions", "Delete"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Take the selected lists and empty folders out of the set; "
                                   "files stay on the disk")},
     &Kiv_bomWindow::commandDelete},
    {{"expand", QT_TRANSLATE_NOOP("actions", "Tools"), QT_TRANSLATE_NOOP("actions", "Expand"),
      "action_expand", nullptr, QT_TRANSLATE_NOOP("actions", "Open all groups"), true},
     &Kiv_bomWindow::commandExpand},
    {{"collaps", "Tools", QT_TRANSLATE_NOOP("actions", "Collaps"), "action_collapse", nullptr,
      QT_TRANSLATE_NOOP("actions", "Close all groups"), true},
     &Kiv_bomWindow::commandCollaps},
    {{"compare", "Tools", QT_TRANSLATE_NOOP("actions", "Compare lists ..."), "action_merge", "F7",
      QT_TRANSLATE_NOOP("actions", "What the second of two selected lists has otherwise than the "
                                   "first; with one selected a file is asked for")},
     &Kiv_bomWindow::commandCompare},
    {{"reserve", "Tools", QT_TRANSLATE_NOOP("actions", "Reserve stock ..."), "action_reserve", "F8",
      QT_TRANSLATE_NOOP("actions", "Keep stock for the lists that are going to be built")},
     &Kiv_bomWindow::commandReserve},
    {{"built", "Tools", QT_TRANSLATE_NOOP("actions", "Boards built ..."), "action_built",
      "Shift+F8",
      QT_TRANSLATE_NOOP("actions",
                        "Take the materials of the lists that were built out of the stock")},
     &Kiv_bomWindow::commandBuilt},
    {{"reservations", "Tools", QT_TRANSLATE_NOOP("actions", "Reservations ..."), "action_archive",
      nullptr, QT_TRANSLATE_NOOP("actions", "What is reserved for boards, and what was built")},
     &Kiv_bomWindow::commandReservations},
    {{"replaceMaterial", "Tools", QT_TRANSLATE_NOOP("actions", "Replace material ..."),
      "action_replace", "Ctrl+R",
      QT_TRANSLATE_NOOP("actions", "Put another material in the place of one in all BOM lists of "
                                   "the set and the open order")},
     &Kiv_bomWindow::commandReplaceMaterial},
    // "All Quantities ..." of the context menu.
    {{"setAll", nullptr, QT_TRANSLATE_NOOP("actions", "Set all quantities"), "zp_quantity_128",
      nullptr, nullptr},
     &Kiv_bomWindow::commandAllQuantities},
};

} // namespace

// --- Construction
// ---------------------------------------------------------------------------------

Kiv_bomWindow::Kiv_bomWindow(programData &files)
    : editWindow(QStringLiteral("Kiv_bomWindow"), files)
    , m_counts(new QLabel(this))
{
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_bom.png")));
    addActions(actionTable);
    m_view = addView(tr("BOM lists"), "boms", this);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    // Numbers are typed one below the other.
    m_view->setTabGoesDown(true);
    // On the tree alone: an editor takes the key for itself.
    action("bom")->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(action("bom"));
    m_view->setFont(files.config().font());
    setCentralWidget(m_view);
    m_counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(m_counts);
    constexpr QSize usualSize(860, 620);
    resize(usualSize);

    connect(m_view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            &Kiv_bomWindow::itemTreeClicked);
    connect(m_view, &myTreeView::keyUpDown, this, [this] { itemTreeClicked({}, 0, {}); });
    connect(m_view, &QWidget::customContextMenuRequested, this, &Kiv_bomWindow::showContextMenu);
    connect(static_cast<myHeaderView *>(m_view->header()), &myHeaderView::clicked, this,
            &Kiv_bomWindow::headerTreeClicked);
    keepJournal(fileKinds::boms, [this] { return &known().boms(); }, {model()});
    showSet({});
    constexpr int widths[] = {420, 90, 320};
    for (int column = 0; column < int(std::size(widths)); ++column)
        m_view->header()->resizeSection(column, widths[column]);
}

Kiv_bomWindow::~Kiv_bomWindow() = default;

// The set as the program has it.
void Kiv_bomWindow::showSet(const QHash<QString, int> &sets)
{
    setClean();
    m_rows = std::make_unique<bomTree::setRows>(&known().boms());
    m_rows->show(model(), sets);
    m_saved = contentOf(known().boms());
    m_view->expandAll();
    showState();
}

// Files may have come and gone meanwhile.
void Kiv_bomWindow::changeEvent(QEvent *event)
{
    editWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_rows)
        m_rows->refreshLooks(model());
}

QString Kiv_bomWindow::filePath() const { return known().boms().filePath; }

fileState &Kiv_bomWindow::onDisk() { return known().fileOfBoms(); }

documentStruct *Kiv_bomWindow::record() { return &known().boms(); }

void Kiv_bomWindow::forgetSaved()
{
    editWindow::forgetSaved();
    m_saved.clear();
}

// A set that could not be read is not written over.
QString Kiv_bomWindow::fault() const
{
    return filePath().isEmpty() ? tr("no set of BOM lists is loaded") : QString();
}

bool Kiv_bomWindow::isModified() const
{
    return editWindow::isModified() && contentOf(known().boms()) != m_saved;
}

bool Kiv_bomWindow::hasSets() const
{
    const auto files = bomTree::allFiles(model());
    return std::any_of(files.begin(), files.end(),
                       [](const QStandardItem *file) { return bomTree::setsOf(file) > 0; });
}

QString Kiv_bomWindow::nothingBuilt() { return tr("no list is built: all numbers of sets are 0"); }

void Kiv_bomWindow::updateActions()
{
    const QList<QStandardItem *> files = bomTree::allFiles(model());
    int built = 0;
    for (const QStandardItem *file : files)
        built += bomTree::setsOf(file) > 0;
    for (const char *name : {"addFile", "addGroup", "save", "reservations"})
        setAvailable(name, fault().isEmpty(), fault());
    setAvailable("clear", built > 0, nothingBuilt());
    // "set" takes a number that is still being typed.
    for (const char *name : {"set", "report", "allQuantities", "setAll", "reserve", "built"})
        setAvailable(name, !files.isEmpty(), tr("there is no list"));
    for (const char *name : {"open", "bom", "csv", "doc"})
        setAvailable(name, bomTree::fileOf(current()), tr("no list is selected"));
    const int selected = int(selectedFiles().size());
    setAvailable("compare", selected == 1 || selected == 2, tr("select one list, or two"));
    for (const char *name : {"delete", "fillDown", "copyCells", "pasteCells"})
        setAvailable(name, !m_view->markedCells().isEmpty(), tr("nothing is selected"));
    m_counts->setText(tr("%n list(s)", nullptr, int(files.size())) + QLatin1String(", ")
                      + tr("%n of them built", nullptr, built));
}

void Kiv_bomWindow::showContextMenu(const QPoint &position)
{
    QMenu menu(this);
    for (const char *name : {"addFile", "addGroup", "setAll", "", "open", "bom", "csv", "doc",
                             "compare", "", "delete"})
        if (*name)
            menu.addAction(action(name));
        else
            menu.addSeparator();
    menu.exec(m_view->viewport()->mapToGlobal(position));
}

// --- Rows
// -----------------------------------------------------------------------------------------

QStandardItem *Kiv_bomWindow::current() const
{
    const QModelIndex at = m_view->markedCell();
    return at.isValid() ? model()->itemFromIndex(at.siblingAtColumn(0)) : nullptr;
}

// The files of the selected rows, those below selected folders among them.
QList<QStandardItem *> Kiv_bomWindow::selectedFiles() const
{
    std::set<QStandardItem *> selected;
    for (const QModelIndex &cell : m_view->selectedCells())
        for (QStandardItem *file :
             bomTree::filesBelow(model()->itemFromIndex(cell.siblingAtColumn(0))))
            selected.insert(file);
    QList<QStandardItem *> files;
    for (QStandardItem *file : bomTree::allFiles(model()))
        if (selected.count(file) > 0)
            files.append(file);
    return files;
}

QString Kiv_bomWindow::pathOf(const QStandardItem *first) const
{
    const fileStruct *file = bomTree::fileOf(first);
    return file ? ::pathOf(*file, known().boms().filePath) : QString();
}

QString Kiv_bomWindow::currentPath() const { return pathOf(current()); }

void Kiv_bomWindow::itemTreeClicked(QPoint, uint, const QModelIndex &)
{
    tell(QDir::toNativeSeparators(currentPath()));
}

void Kiv_bomWindow::headerTreeClicked(QPoint, uint, int section)
{
    tell(tr("Sorted by %1").arg(model()->headerData(section, Qt::Horizontal).toString()));
}

void Kiv_bomWindow::selectItem(QTreeView *view, QStandardItem *item)
{
    static_cast<myTreeView *>(view)->goTo(item->index());
}

void Kiv_bomWindow::commandExpand(bool)
{
    for (int row = 0; row < model()->rowCount(); ++row)
        m_view->expandItem(model()->item(row));
}

void Kiv_bomWindow::commandExpand2(bool)
{
    if (QStandardItem *item = current())
        m_view->expandItem(item);
}

void Kiv_bomWindow::commandCollaps(bool) { m_view->collapseAll(); }

// --- Editing
// --------------------------------------------------------------------------------------

void Kiv_bomWindow::setSets(const QList<QStandardItem *> &files, int sets, const QString &what)
{
    QList<myItemStandard *> cells;
    for (const QStandardItem *file : files)
        cells.append(bomTree::setsCell(file));
    push(cellBlock::set(model(), cells, [sets](const myItemStandard &) { return sets; }), what);
}

void Kiv_bomWindow::commandAllQuantities(bool)
{
    QList<QStandardItem *> files = selectedFiles();
    const bool all = files.isEmpty();
    if (all)
        files = bomTree::allFiles(model());
    const QString which = all ? tr("all %n list(s)", nullptr, int(files.size()))
                              : tr("%n selected list(s)", nullptr, int(files.size()));
    const auto sets = userPrompts().inputNumber(
        labels::quantities(), labels::setAllQuantities() + QLatin1String(": ") + which, 1, 1,
        bomTree::setsMaximum);
    if (!sets)
        return;
    setSets(files, *sets, labels::setAllQuantities());
}

void Kiv_bomWindow::commandClear(bool)
{
    if (userPrompts().ask(tr("Set the numbers of sets of all lists to 0?"), false)
        == prompts::answer::yes)
        setSets(bomTree::allFiles(model()), 0, tr("Clear"));
}

// The group that the current row is, is in, or has first; made when there is none.
QStandardItem *Kiv_bomWindow::groupForNewFile(std::vector<std::unique_ptr<command>> &members)
{
    QStandardItem *item = current();
    if (bomTree::fileOf(item))
        return item->parent();
    if (!item && model()->rowCount() > 0)
        item = model()->item(0);
    if (!item) {
        auto category = std::make_unique<fileCategory>();
        category->name = tr("BOM lists");
        members.push_back(
            std::make_unique<appendNewMaterial>(model(), m_rows->makeRow(std::move(category))));
        item = model()->item(0);
    }
    if (item->parent())
        return item;
    if (!item->hasChildren()) {
        auto group = std::make_unique<fileGroup>();
        group->name = item->text();
        members.push_back(std::make_unique<appendItems>(item, m_rows->makeRow(std::move(group))));
    }
    return item->child(0);
}

void Kiv_bomWindow::commandAddFile(bool)
{
    const QDir folder = QFileInfo(known().boms().filePath).absoluteDir();
    const QString path = userPrompts().openFile(tr("Open File"), folder.path(),
                                                tr("Xml File") + QLatin1String(" (*.xml)"));
    if (path.isEmpty())
        return;
    kiv_mat_bomStruct bom;
    QString error;
    if (!readBom(path, &bom, &error)) {
        userPrompts().listError(error);
        userPrompts().showErrors();
        return;
    }
    addToSet(path);
}

// Below the current folder.
void Kiv_bomWindow::addToSet(const QString &path)
{
    const QDir folder = QFileInfo(known().boms().filePath).absoluteDir();
    auto file = std::make_unique<fileStruct>();
    file->type = QStringLiteral("FILE_XML");
    // A list beside the set moves with it.
    const QString relative = folder.relativeFilePath(path);
    file->name = relative.startsWith(QLatin1String("..")) ? path : relative;
    std::vector<std::unique_ptr<command>> members;
    QStandardItem *group = groupForNewFile(members);
    members.push_back(std::make_unique<appendItems>(group, m_rows->makeRow(std::move(file))));
    push(std::make_unique<appendCommands>(std::move(members), model()), tr("List added"));
    m_view->expandItem(group);
    selectItem(m_view, group->child(group->rowCount() - 1, bomTree::setsColumn));
}

// A list that the set has already is written anew, and stays where it is.
void Kiv_bomWindow::commandImport(bool)
{
    const QDir folder = QFileInfo(known().boms().filePath).absoluteDir();
    if (!m_import) {
        m_import = std::make_unique<bomImportWindow>(known(), folder.path());
        m_import->makeMaterial = makeMaterial;
        m_import->writeList = [this](const QString &path, kiv_mat_bomStruct &bom) {
            if (!saveDocument(path, bom, known().config()))
                return false;
            QStringList paths;
            for (const QStandardItem *file : bomTree::allFiles(model()))
                paths.append(pathOf(file));
            if (!paths.contains(QFileInfo(path).absoluteFilePath()) && !paths.contains(path))
                addToSet(path);
            tell(tr("Saved as %1").arg(QDir::toNativeSeparators(path)));
            return true;
        };
    }
    // Beside the list that is current, or beside the others.
    QString neighbour = currentPath();
    for (const QStandardItem *file : bomTree::allFiles(model()))
        if (neighbour.isEmpty())
            neighbour = pathOf(file);
    m_import->listFolder = neighbour.isEmpty() ? QString() : QFileInfo(neighbour).absolutePath();
    m_import->commandOpen(false);
    if (m_import->isEmpty())
        return;
    // The file dialog, when it goes, brings this window to the front.
    m_import->show();
    m_import->raise();
    m_import->activateWindow();
}

void Kiv_bomWindow::commandCompare(bool)
{
    const QList<QStandardItem *> files = selectedFiles();
    readLists selected = read(files);
    if (!selected.complete)
        return;
    QStringList paths;
    for (const QStandardItem *file : files)
        paths.append(pathOf(file));
    if (paths.size() == 1) {
        const QString other =
            userPrompts().openFile(tr("Compare with"), QFileInfo(paths.first()).path(),
                                   tr("Xml File") + QLatin1String(" (*.xml)"));
        if (other.isEmpty())
            return;
        paths.append(other);
        QString fault;
        selected.boms.push_back(std::make_unique<kiv_mat_bomStruct>());
        if (!bomOperations::readBom(other, selected.boms.back().get(), &fault)) {
            userPrompts().showError(fault);
            return;
        }
    }
    if (selected.boms.size() != 2)
        return;
    const std::vector<bomDifference> differences =
        compareBoms(*selected.boms[0], *selected.boms[1]);
    if (differences.empty()) {
        tell(tr("The lists have the same parts"));
        return;
    }
    QList<QStringList> rows;
    for (const bomDifference &row : differences)
        rows.append(cellsOf(row));
    const readTable table{tr("Differences of two lists"),
                          QDir::toNativeSeparators(paths.at(0)) + QStringLiteral(" \u2192 ")
                              + QDir::toNativeSeparators(paths.at(1)) + QLatin1Char('\n')
                              + tr("%n difference(s)", nullptr, int(differences.size())),
                          bomDifferenceCaptions(),
                          rows,
                          {110, 190, 60, 160, 170, 60, 160, 170}};
    (new tableDialog(table, this))->show();
}

// Below the current category; without one a category of its own.
void Kiv_bomWindow::commandAddGroup(bool)
{
    const auto name = userPrompts().inputText(tr("Add. new group"), labels::name(), {});
    if (!name || name->isEmpty())
        return;
    QStandardItem *category = current();
    while (category && category->parent())
        category = category->parent();
    std::vector<std::unique_ptr<command>> members;
    if (!category) {
        auto top = std::make_unique<fileCategory>();
        top->name = *name;
        members.push_back(
            std::make_unique<appendNewMaterial>(model(), m_rows->makeRow(std::move(top))));
        category = model()->item(model()->rowCount() - 1);
    }
    auto group = std::make_unique<fileGroup>();
    group->name = *name;
    members.push_back(std::make_unique<appendItems>(category, m_rows->makeRow(std::move(group))));
    push(std::make_unique<appendCommands>(std::move(members), model()), tr("Group added"));
    m_view->expandItem(category);
    selectItem(m_view, category->child(category->rowCount() - 1));
}

void Kiv_bomWindow::commandDelete(bool)
{
    std::vector<QStandardItem *> firsts;
    bool folderWithContent = false;
    for (const QModelIndex &cell : m_view->markedCells()) {
        QStandardItem *first = model()->itemFromIndex(cell.siblingAtColumn(0));
        folderWithContent = folderWithContent || first->hasChildren();
        if (!first->hasChildren() && std::find(firsts.begin(), firsts.end(), first) == firsts.end())
            firsts.push_back(first);
    }
    if (folderWithContent)
        userPrompts().showInformation(tr("Only empty folders can be deleted"));
    const changeBatch batch(model());
    std::vector<std::unique_ptr<command>> members;
    for (QStandardItem *first : firsts) {
        if (first->parent())
            members.push_back(std::make_unique<deleteFromItem>(first->parent(), first));
        else
            members.push_back(std::make_unique<deleteMaterial>(model(), first->index()));
    }
    if (!members.empty())
        push(std::make_unique<appendCommands>(std::move(members), model()),
             tr("%n row(s) deleted", nullptr, int(firsts.size())));
}

// --- Saving
// ---------------------------------------------------------------------------------------

// What the program works with is what the file holds; the numbers of sets stay.
// Of the categories that differ; the numbers of sets go with the names of the files.
std::unique_ptr<command> Kiv_bomWindow::become(documentStruct &wanted)
{
    auto &theirs = static_cast<kiv_mat_bomsStruct &>(wanted).categories;
    QHash<QString, int> sets;
    for (const QStandardItem *file : bomTree::allFiles(model()))
        sets.insert(bomTree::fileOf(file)->name, bomTree::setsOf(file));
    const auto &mine = known().boms().categories;
    const auto isLike = [&](size_t i, size_t j) {
        return contentOf(*mine[i]) == contentOf(*theirs[j]);
    };
    size_t head = 0;
    while (head < mine.size() && head < theirs.size() && isLike(head, head))
        ++head;
    size_t tail = 0;
    while (head + tail < mine.size() && head + tail < theirs.size()
           && isLike(mine.size() - 1 - tail, theirs.size() - 1 - tail))
        ++tail;
    std::vector<std::unique_ptr<command>> members;
    for (size_t row = mine.size() - tail; row-- > head;)
        members.push_back(std::make_unique<deleteMaterial>(model(), model()->index(int(row), 0)));
    const auto add = [&](QStandardItem *parent, const myItem::row &row, int at) {
        members.push_back(std::make_unique<appendItems>(parent, row, at));
        return row.first();
    };
    for (size_t at = head; at + tail < theirs.size(); ++at) {
        auto groups = std::exchange(theirs[at]->items, {});
        auto *category =
            add(model()->invisibleRootItem(), m_rows->makeRow(std::move(theirs[at])), int(at));
        for (auto &group : groups) {
            auto files = std::exchange(group->items, {});
            auto *below = add(category, m_rows->makeRow(std::move(group)), category->rowCount());
            for (auto &file : files) {
                const int number = sets.value(file->name);
                const auto *first = add(below, m_rows->makeRow(std::move(file)), below->rowCount());
                members.push_back(
                    std::make_unique<changeValue>(model(), bomTree::setsCell(first), number));
            }
        }
    }
    return members.empty() ? nullptr : std::make_unique<appendCommands>(std::move(members));
}

bool Kiv_bomWindow::load()
{
    QHash<QString, int> sets;
    for (const QStandardItem *file : bomTree::allFiles(model()))
        sets.insert(bomTree::fileOf(file)->name, bomTree::setsOf(file));
    auto boms = known().readBoms();
    userPrompts().showErrors();
    if (!boms)
        return false;
    setClean();
    const QByteArray saved = contentOf(*boms);
    remake(*boms);
    model()->setRecords(nullptr);
    model()->removeRows(0, model()->rowCount());
    known().putInUse(std::move(boms));
    showSet(sets);
    m_saved = saved;
    return true;
}

bool Kiv_bomWindow::write(const QString &path) { return writeDocument(path, known().boms()); }

void Kiv_bomWindow::saved() { m_saved = contentOf(known().boms()); }

std::vector<editWindow *> Kiv_bomWindow::viewWindows() const
{
    std::vector<editWindow *> windows;
    for (const auto &[path, window] : m_views)
        windows.push_back(window.get());
    return windows;
}
