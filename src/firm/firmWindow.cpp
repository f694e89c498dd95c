#include "firm/firmWindow.h"

#include "commands/cellBlock.h"
#include "commands/editCommands.h"
#include "data/vocabulary.h"
#include "tree/myTreeView.h"
#include "util/desktop.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "window/becomeList.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QStatusBar>
#include <QTabWidget>

#include <set>

using namespace firmOperations;
using firmTree::firmRows;
using myItem::myItemStandard;

namespace {

constexpr actionRow saveRegister{
    "save",   "File",
    "Save",   "action_save",
    "Ctrl+S", QT_TRANSLATE_NOOP("actions", "Write the list of firms and put it in use"),
    true};

const windowAction<firmWindow> actionTable[] = {
    {saveRegister, &firmWindow::commandSave},
    {usualActions::fileSeparator, nullptr},
    {usualActions::versions, &firmWindow::commandVersions},
    {usualActions::close, &firmWindow::commandClose},
    {usualActions::edit(QT_TRANSLATE_NOOP("actions", "Allow changes of the firms")),
     &firmWindow::commandEdit},
    {usualActions::undo, &firmWindow::commandUndo},
    {usualActions::redo, &firmWindow::commandRedo},
    {usualActions::editSeparator, nullptr},
    {usualActions::copyCells, &firmWindow::commandCopyCells},
    {usualActions::pasteCells, &firmWindow::commandPasteCells},
    {usualActions::fillDown, &firmWindow::commandFillDown},
    {usualActions::editSeparator, nullptr},
    {{"find", "Edit", QT_TRANSLATE_NOOP("actions", "Find"), "action_find", "Ctrl+F",
      QT_TRANSLATE_NOOP("actions", "Find a text among the firms"), true},
     &firmWindow::commandFind},
    {usualActions::findNext, &firmWindow::commandFindNext},
    {usualActions::editSeparator, nullptr},
    {{"add", QT_TRANSLATE_NOOP("actions", "Firm"), QT_TRANSLATE_NOOP("actions", "Add new firm"),
      "action_add_row", "Ins", nullptr, true},
     &firmWindow::commandAdd},
    {{"delete", "Firm", QT_TRANSLATE_NOOP("actions", "Delete firms"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Delete the selected firms that no material uses"), true},
     &firmWindow::commandDelete},
    {{"homePage", "Firm", QT_TRANSLATE_NOOP("actions", "Open home page"), "action_link", "Ctrl+H",
      QT_TRANSLATE_NOOP("actions", "Open the firm's home page in the browser"), true},
     &firmWindow::commandHomePage},
};

QSet<QString> keysOf(const QHash<QString, QString> &names)
{
    return {names.keyBegin(), names.keyEnd()};
}

// The first few lines for a box.
QString shortList(const QStringList &lines)
{
    constexpr int shown = 10;
    QString html = QStringList(lines.mid(0, shown)).join(QLatin1String("<br>"));
    if (lines.size() > shown)
        html += QLatin1String("<br>")
                + firmWindow::tr("and %n more", nullptr, lines.size() - shown).toHtmlEscaped();
    return html;
}

} // namespace

firmWindow::firmWindow(programData &files)
    : editWindow(QStringLiteral("firmWindow"), files)
    , m_edited(std::make_unique<kiv_mat_firmStruct>())
    , m_tabs(new QTabWidget(this))
    , m_counts(new QLabel(this))
{
    addActions(actionTable);
    stack().completed = [this](std::unique_ptr<command> change) {
        return withRenames(std::move(change));
    };
    m_tabs->setObjectName(QStringLiteral("pages"));
    m_tabs->setAccessibleName(firmWindow::title());
    addPage(manufacturer, labels::manufacturers(), "manufacturers");
    addPage(supplier, labels::suppliers(), "suppliers");
    keepJournal(fileKinds::firm, [this] { return m_edited.get(); },
                {model(manufacturer), model(supplier)});
    setCentralWidget(m_tabs);
    m_counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(m_counts);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] { updateActions(); });
    constexpr QSize usualSize(1260, 680);
    resize(usualSize);
}

void firmWindow::addPage(firmKind kind, const QString &title, const char *name)
{
    myTreeView *view = addView(title, name, m_tabs);
    view->setRootIsDecorated(false);
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const char *wanted : {"add", "delete", "homePage", "copyCells", "pasteCells"})
        view->addAction(action(wanted));
    m_tabs->addTab(view, title);
    auto *hint =
        new QLabel(tr("The list is empty. <a href=\"add\">Add a firm</a>."), view->viewport());
    hint->setObjectName(QLatin1String(name) + QStringLiteral("Hint"));
    hint->setTextInteractionFlags(Qt::TextBrowserInteraction);
    constexpr QPoint hintPlace(24, 16);
    hint->move(hintPlace);
    connect(hint, &QLabel::linkActivated, action("add"), &QAction::trigger);

    const configStruct &config = known().config();
    auto rows = std::make_unique<firmRows>(firmTree::columns(
        kind == manufacturer ? config.manufacturerStatuses : config.supplierStatuses));
    rows->makeRecord = std::make_unique<firmStruct>;
    setCaptions(modelOf(view), rows->columns());
    for (size_t i = 0; i < rows->columns().size(); ++i)
        view->header()->resizeSection(int(i), rows->columns()[i].width);
    m_pages[kind] = {view, hint, std::move(rows)};
    connect(view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            [this](QPoint, uint, const QModelIndex &cell) { clicked(cell); });
}

std::vector<std::unique_ptr<firmStruct>> &firmWindow::list(firmKind kind)
{
    return kind == manufacturer ? m_edited->manufacturers.items : m_edited->suppliers.items;
}

firmWindow::page &firmWindow::current() { return m_pages[size_t(m_tabs->currentIndex())]; }

myTreeView *firmWindow::currentView() const { return m_pages[size_t(m_tabs->currentIndex())].view; }

QString firmWindow::title() const { return labels::listOfManufacturersAndSuppliers(); }

QLatin1String firmWindow::editOption() const { return optionKey::editFirm; }

QString firmWindow::closeQuestion() const { return tr("Save the changed list of firms?"); }

bool firmWindow::isModified() const
{
    return editWindow::isModified()
           || std::any_of(m_unwritten.begin(), m_unwritten.end(),
                          [](const renameList &renames) { return !renames.empty(); });
}

std::unique_ptr<command> firmWindow::become(documentStruct &wanted)
{
    auto &firms = static_cast<kiv_mat_firmStruct &>(wanted);
    std::vector<std::unique_ptr<command>> members;
    becomeList::change(model(manufacturer), *m_pages[manufacturer].rows, list(manufacturer),
                       std::move(firms.manufacturers.items), members);
    becomeList::change(model(supplier), *m_pages[supplier].rows, list(supplier),
                       std::move(firms.suppliers.items), members);
    return members.empty() ? nullptr : std::make_unique<appendCommands>(std::move(members));
}

bool firmWindow::load()
{
    const QString name = known().config().options.value(optionKey::fileFirm);
    m_path = paths::data(name);
    const fileState state = fileState::of(m_path);
    auto firms = std::make_unique<kiv_mat_firmStruct>();
    QString reason;
    QString fault;
    // A window that shows firms had their file.
    const bool again = isVisible();
    if (name.isEmpty()) {
        fault = tr("the configuration names no file");
    } else if ((again || QFileInfo::exists(m_path)) && !readChecked(m_path, firms.get(), &reason)) {
        // Saved over, what it holds would be lost.
        fault = tr("the file cannot be read");
        firms = std::make_unique<kiv_mat_firmStruct>();
        userPrompts().listError(messages::failed(messages::fileCorrupted(), m_path, reason));
    }
    if (again && !fault.isEmpty())
        return false;
    remake(*firms);
    m_fault = fault;
    onDisk() = state;
    if (again)
        known().loadFirm();
    setClean();
    m_renames.clear();
    m_unwritten = {};
    // Its records are looked at until the trees show the new ones.
    const auto before = std::exchange(m_edited, std::move(firms));
    for (firmKind kind : {manufacturer, supplier}) {
        model(kind)->setRecords(nullptr);
        m_pages[kind].rows->show(model(kind), &list(kind));
        model(kind)->setRecords(m_pages[kind].rows.get());
    }
    setUnlocked(known().config().isOn(optionKey::editFirm));
    return m_fault.isEmpty();
}

void firmWindow::updateActions()
{
    setAvailable("save", m_fault.isEmpty(), m_fault);
    allowWhenUnlocked({"add"});
    allowWhenUnlocked({"pasteCells"}, currentView()->currentIndex().isValid(),
                      tr("no firm selected"));
    allowWhenUnlocked({"delete", "fillDown"}, !currentView()->markedCells().isEmpty(),
                      tr("no firm selected"));
    setAvailable("homePage", currentHomePage().isValid(), tr("no firm with a home page selected"));
    for (const page &each : m_pages)
        each.hint->setVisible(modelOf(each.view)->rowCount() == 0 && m_fault.isEmpty());
    m_counts->setText(tr("%n manufacturer(s)", nullptr, model(manufacturer)->rowCount())
                      + QLatin1String(", ")
                      + tr("%n supplier(s)", nullptr, model(supplier)->rowCount()));
}

// --- Editing
// --------------------------------------------------------------------------------------

// A firm that materials name gets its new name in them, too, when the user wants it.
std::unique_ptr<command> firmWindow::withRenames(std::unique_ptr<command> change)
{
    renameStep step;
    QStringList lines;
    int uses = 0;
    for (firmKind kind : {manufacturer, supplier}) {
        const auto renamed = std::exchange(m_pages[kind].rows->renamed, {});
        if (renamed.isEmpty())
            continue;
        for (const firmUse &use : usesOf(keysOf(renamed), kind, known().databases(), m_renames)) {
            const QString name = renamed.value(use.firm);
            if (name.isEmpty())
                continue;
            ++uses;
            if (!step[kind].contains(use.firm))
                lines.append(QStringLiteral("<b>%1</b> \u2192 <b>%2</b>")
                                 .arg(use.firm.toHtmlEscaped(), name.toHtmlEscaped()));
            step[kind].insert(use.firm, name);
        }
    }
    if (uses == 0)
        return change;
    const std::optional<int> answer = userPrompts().decide(
        tr("Materials use the old name. Saving can write the new one into their databases, too.")
            + QLatin1String("<br>") + shortList(lines),
        {tr("Rename in %n place(s)", nullptr, uses), tr("Rename in this list only")});
    if (!answer || *answer != 0)
        return change;
    std::vector<std::unique_ptr<command>> members;
    members.push_back(std::move(change));
    members.push_back(std::make_unique<firmTree::planRenames>(&m_renames, std::move(step)));
    return std::make_unique<appendCommands>(std::move(members));
}

// The materials' names have gone back or forth with the step.
void firmWindow::historyMoved()
{
    for (const page &shown : m_pages)
        shown.rows->renamed.clear();
}

void firmWindow::commandAdd(bool)
{
    myTreeView *view = currentView();
    myModel *firms = modelOf(view);
    push(std::make_unique<appendNewMaterial>(firms, current().rows->newRow()),
         labels::addNewFirm());
    const QModelIndex added = firms->index(firms->rowCount() - 1, firmTree::nameColumn);
    view->goTo(added);
    view->setFocus();
}

void firmWindow::commandDelete(bool)
{
    const firmKind kind = firmKind(m_tabs->currentIndex());
    const std::vector<int> rows = currentView()->markedRows();
    std::set<const xmlData *> selected;
    for (int row : rows)
        selected.insert(static_cast<myItemStandard *>(model(kind)->item(row))->record);
    QSet<QString> lost;
    QSet<QString> kept;
    for (const auto &firm : list(kind))
        (selected.count(firm.get()) > 0 ? lost : kept).insert(firm->name);
    const std::vector<firmUse> uses =
        usesOf(lost.subtract(kept), kind, known().databases(), m_renames);
    if (!uses.empty()) {
        const QStringList lines = useLines(uses);
        const QString heading =
            tr("Materials use what was to be deleted; nothing is deleted:").toHtmlEscaped();
        userPrompts().showError(heading + QLatin1String("<br>") + shortList(lines));
        userPrompts().listError(heading + QLatin1String("<br>") + lines.join(QLatin1String("<br>"))
                                + QLatin1String("<br>"));
        return;
    }
    push(cellBlock::deleteRows(model(kind), rows),
         tr("%n firm(s) deleted", nullptr, int(rows.size())));
}

QUrl firmWindow::currentHomePage()
{
    const QModelIndex at = currentView()->markedCell();
    return homePage(at.sibling(at.row(), firmTree::homePageColumn).data().toString());
}

void firmWindow::commandHomePage(bool)
{
    const QUrl url = currentHomePage();
    if (!url.isValid())
        return;
    tell(desktop::followLink(url) ? tr("Opened %1").arg(url.toDisplayString())
                                  : tr("%1 cannot be opened").arg(url.toDisplayString()));
}

void firmWindow::clicked(const QModelIndex &cell)
{
    if (cell.column() == firmTree::homePageColumn
        && (QGuiApplication::keyboardModifiers() & Qt::ControlModifier))
        commandHomePage(false);
}

// --- Saving
// ---------------------------------------------------------------------------------------

bool firmWindow::write(const QString &path)
{
    if (!writeDocument(path, *m_edited))
        return false;
    known().loadFirm();
    return true;
}

// What another program did to a database is neither written over nor read unasked.
bool firmWindow::mayWrite(programData::databaseKind kind, const fileState &now) const
{
    const QString native = QDir::toNativeSeparators(known().database(kind).filePath);
    if (now == known().fileOf(kind))
        return true;
    const bool isGone = now == fileState();
    return userPrompts()
        .decide((isGone ? tr("The database %1 is gone. Firms were renamed in it.")
                        : tr("The database %1 was changed by another program. Firms were renamed "
                             "in it."))
                    .arg(native.toHtmlEscaped()),
                {isGone ? tr("Save it anew") : tr("Read it again, rename there and save it")}, true)
        .has_value();
}

// A database without a window of its own is read again when another program wrote it meanwhile,
// renamed, and written. One that cannot be written, or not be waited for, stays as its file is.
bool firmWindow::renameInFile(programData::databaseKind kind, const renameList &renames)
{
    const QString path = known().database(kind).filePath;
    const fileState now = fileState::of(path);
    if (!mayWrite(kind, now))
        return false;
    const auto shown = [this](const auto &work) {
        workProgress::scope scope(progress(), tr("Renaming"));
        work(scope.function());
    };
    if (!(now == fileState()) && !(now == known().fileOf(kind))) {
        programData::readDatabase read;
        shown([&](const progressFunction &progress) { read = known().readAgain(kind, progress); });
        if (!read.database)
            return false;
        known().putInUse(kind, std::move(read));
    }
    kiv_mat_databaseStruct &database = known().database(kind);
    const std::vector<nameChange> changes = changesOf(database, renames);
    applyNames(changes);
    const bool written = saveDocument(path, database, known().config(), shown);
    if (written)
        // The database's own window would take this for another program's work.
        known().fileOf(kind) = fileState::of(path);
    else
        revertNames(changes);
    for (const nameChange &change : changes)
        known().search().update(change.material);
    return written;
}

// What could not be done with a database was given up with the window.
void firmWindow::closed()
{
    m_renames.clear();
    m_unwritten = {};
    editWindow::closed();
}

void firmWindow::saved()
{
    bool anyChanged = false;
    for (int number = 0; number < programData::databaseCount; ++number) {
        const auto kind = programData::databaseKind(number);
        renameList renames = std::exchange(m_unwritten[kind], {});
        renames.insert(renames.end(), m_renames.begin(), m_renames.end());
        if (changesOf(known().database(kind), renames).empty())
            continue;
        anyChanged = true;
        if (!(renameInWindow && renameInWindow(kind, renames)) && !renameInFile(kind, renames))
            m_unwritten[kind] = std::move(renames);
    }
    m_renames.clear();
    userPrompts().showErrors();
    if (isModified())
        tell(tr("Saved, but firms are not renamed in every database"));
    if (anyChanged)
        emit materialsChanged();
}
