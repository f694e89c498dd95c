#include "firm/firmWindow.h"

#include "commands/cellBlock.h"
#include "commands/editCommands.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/vocabulary.h"
#include "firm/firmMerge.h"
#include "firm/mergeFirmsDialog.h"
#include "tree/myTreeView.h"
#include "util/desktop.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "window/becomeList.h"
#include "window/treeHint.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>

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
    {usualActions::synchronize, &firmWindow::commandSynchronize},
    {usualActions::publish, &firmWindow::commandPublish},
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
    {{"mergeFirms", "Firm", QT_TRANSLATE_NOOP("actions", "Merge firms"), "action_merge", "Ctrl+M",
      QT_TRANSLATE_NOOP("actions", "Make one firm of the selected ones, in the materials, too"),
      true},
     &firmWindow::commandMergeFirms},
    {{"details", "Firm", QT_TRANSLATE_NOOP("actions", "Details ..."), "action_list", "F4",
      QT_TRANSLATE_NOOP("actions", "Address, mail, discount and the form of the firm's baskets")},
     &firmWindow::commandDetails},
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
        return completed(std::move(change));
    };
    m_tabs->setObjectName(QStringLiteral("pages"));
    m_tabs->setAccessibleName(firmWindow::title());
    addPage(manufacturer, labels::manufacturers(), "manufacturers");
    addPage(supplier, labels::suppliers(), "suppliers");
    for (firmKind kind : {manufacturer, supplier})
        model(kind)->setCheck([this, kind](const myItemStandard &item, const QVariant &value) {
            if (m_pasting || item.column() != firmTree::nameColumn)
                return QString();
            const auto *first =
                static_cast<const myItemStandard *>(model(kind)->item(item.row(), 0));
            return nameFault(kind, value.toString(),
                             static_cast<const firmStruct *>(first->record));
        });
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
    for (const char *wanted : {"add", "delete", "details", "homePage", "copyCells", "pasteCells"})
        view->addAction(action(wanted));
    m_tabs->addTab(view, title);
    QLabel *hint = treeHint::over(view, QLatin1String(name) + QStringLiteral("Hint"));
    hint->setText(tr("The list is empty. <a href=\"add\">Add a firm</a>."));
    connect(hint, &QLabel::linkActivated, action("add"), &QAction::trigger);

    const configStruct &config = known().config();
    auto rows = std::make_unique<firmRows>(firmTree::columns(
        kind == manufacturer ? config.manufacturerStatuses : config.supplierStatuses,
        [this, kind](const QString &firm) {
            return m_figures ? std::optional(m_figures->at(kind).value(firm)) : std::nullopt;
        }));
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
    return listOf(*m_edited, kind);
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
    m_detailNames.clear();
    m_unwritten = {};
    // Its records are looked at until the trees show the new ones.
    const auto before = std::exchange(m_edited, std::move(firms));
    for (firmKind kind : {manufacturer, supplier}) {
        model(kind)->setRecords(nullptr);
        m_pages[kind].rows->show(model(kind), &list(kind));
        model(kind)->setRecords(m_pages[kind].rows.get());
    }
    setUnlocked(known().config().isOn(optionKey::editFirm));
    // Reading orders takes its time, and shows it, once the window is there.
    QTimer::singleShot(0, this, &firmWindow::findFigures);
    return m_fault.isEmpty();
}

void firmWindow::updateActions()
{
    setAvailable("save", m_fault.isEmpty(), m_fault);
    allowWhenUnlocked({"add"});
    allowWhenUnlocked({"pasteCells"}, currentView()->currentIndex().isValid(),
                      tr("no firm selected"));
    allowWhenUnlocked({"mergeFirms"}, currentView()->markedRows().size() > 1,
                      tr("select the firms that are one"));
    allowWhenUnlocked({"details"}, currentFirm() && m_fault.isEmpty(), tr("no firm selected"));
    allowWhenUnlocked({"delete", "fillDown"}, !currentView()->markedCells().isEmpty(),
                      tr("no firm selected"));
    setAvailable("homePage", currentHomePage().isValid(), tr("no firm with a home page selected"));
    for (const page &each : m_pages)
        each.hint->setVisible(modelOf(each.view)->rowCount() == 0 && m_fault.isEmpty());
    m_counts->setText(tr("%n manufacturer(s)", nullptr, model(manufacturer)->rowCount())
                      + QLatin1String(", ")
                      + tr("%n supplier(s)", nullptr, model(supplier)->rowCount()));
}

// --- How much the firms are used
// ------------------------------------------------------------------------------------

void firmWindow::findFigures()
{
    if (!isVisible())
        return;
    {
        workProgress::scope work(progress(), tr("Reading orders"));
        m_orders.update(known().config().orderFolders(), work.function());
    }
    countFigures();
}

void firmWindow::countFigures()
{
    std::vector<orderedMaterials> orders = m_orders.orders();
    if (openOrder) {
        // As it is in its window, not as its file is.
        orderedMaterials open = orderedIn(openOrder());
        std::erase_if(orders, [&open](const orderedMaterials &order) {
            return QFileInfo(order.path) == QFileInfo(open.path);
        });
        orders.push_back(std::move(open));
    }
    m_figures = figuresOf(known().databases(), m_renames, orders);
    m_countedRenames = m_renames.size();
    for (const page &each : m_pages)
        each.rows->showFigures(modelOf(each.view));
}

// --- Editing
// --------------------------------------------------------------------------------------

// Why a firm cannot have that name; empty when it can.
QString firmWindow::nameFault(firmKind kind, const QString &name, const firmStruct *itself) const
{
    if (itself && itself->name == name)
        return {};
    for (const auto &firm : listOf(*m_edited, kind))
        if (firm.get() != itself && isSameFirm(firm->name, name))
            return tr("the list has a firm %1 already").arg(firm->name);
    return {};
}

// The names that more than one firm of a list has, as often as there is one too many.
QStringList firmWindow::repeatedNames() const
{
    QStringList repeated;
    for (firmKind kind : {manufacturer, supplier}) {
        QSet<QString> names;
        for (const auto &firm : listOf(*m_edited, kind)) {
            const QString name = firm->name.simplified().toCaseFolded();
            if (!name.isEmpty() && names.contains(name))
                repeated.append(firm->name);
            names.insert(name);
        }
    }
    return repeated;
}

std::unique_ptr<command> firmWindow::takenBack(std::unique_ptr<command> change, const QString &why)
{
    change->undo();
    for (const page &shown : m_pages)
        shown.rows->renamed.clear();
    m_takenBack = why;
    tell(why);
    return nullptr;
}

std::unique_ptr<command> firmWindow::completed(std::unique_ptr<command> change)
{
    // Pasted names are looked at together: two firms may change their names with each other.
    if (QStringList repeated = m_pasting ? repeatedNames() : QStringList(); !repeated.isEmpty()) {
        change->undo();
        for (const QString &name : repeatedNames())
            repeated.removeOne(name);
        change->redo();
        if (!repeated.isEmpty()) {
            repeated.removeDuplicates();
            for (QString &name : repeated)
                name = QLatin1String("<b>") + name.toHtmlEscaped() + QLatin1String("</b>");
            userPrompts().showError(
                tr("Nothing is pasted: the list would have two firms of a name:").toHtmlEscaped()
                + QLatin1String("<br>") + shortList(repeated));
            return takenBack(std::move(change), tr("Nothing is pasted"));
        }
    }
    return withRenames(std::move(change));
}

// A firm that materials name gets its new name in them, too, when the user wants it.
std::unique_ptr<command> firmWindow::withRenames(std::unique_ptr<command> change)
{
    renameStep step;
    renameStep all;
    QStringList lines;
    int uses = 0;
    for (firmKind kind : {manufacturer, supplier}) {
        const auto renamed = std::exchange(m_pages[kind].rows->renamed, {});
        if (renamed.isEmpty())
            continue;
        all[kind] = renamed;
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
    if (all[manufacturer].isEmpty() && all[supplier].isEmpty())
        return change;
    const auto withPlan = [](std::unique_ptr<command> first, renameList *plan, renameStep names) {
        std::vector<std::unique_ptr<command>> members;
        members.push_back(std::move(first));
        members.push_back(std::make_unique<firmTree::planRenames>(plan, std::move(names)));
        return std::make_unique<appendCommands>(std::move(members));
    };
    if (uses == 0)
        return withPlan(std::move(change), &m_detailNames, std::move(all));
    const std::optional<int> answer = userPrompts().decide(
        tr("Materials use the old name. Saving can write the new one into their databases, too.")
            + QLatin1String("<br>") + shortList(lines),
        {tr("Rename in %n place(s)", nullptr, uses), tr("Rename in this list only")});
    if (!answer)
        return takenBack(std::move(change), tr("The name was not changed"));
    change = withPlan(std::move(change), &m_detailNames, std::move(all));
    return *answer == 0 ? withPlan(std::move(change), &m_renames, std::move(step))
                        : std::move(change);
}

// The materials' names have gone back or forth with the step.
void firmWindow::historyMoved()
{
    for (const page &shown : m_pages)
        shown.rows->renamed.clear();
    if (m_figures && m_countedRenames != m_renames.size())
        countFigures();
}

void firmWindow::commandAdd(bool)
{
    myTreeView *view = currentView();
    myModel *firms = modelOf(view);
    const QString usual = firmStruct().name;
    for (int row = 0; row < firms->rowCount(); ++row) {
        const QModelIndex name = firms->index(row, firmTree::nameColumn);
        if (!isSameFirm(name.data().toString(), usual))
            continue;
        view->goTo(name);
        view->setFocus();
        userPrompts().showError(tr("The list has a new firm %1 already. Give it its name first.")
                                    .arg(name.data().toString())
                                    .toHtmlEscaped());
        return;
    }
    push(std::make_unique<appendNewMaterial>(firms, current().rows->newRow()),
         labels::addNewFirm());
    const QModelIndex added = firms->index(firms->rowCount() - 1, firmTree::nameColumn);
    view->goTo(added);
    view->setFocus();
}

bool firmWindow::addFirm(firmKind kind, const QString &name)
{
    const bool wasOpen = isVisible();
    if (!wasOpen) {
        begin();
        setUnlocked(true);
    }
    const bool hasOthers = wasOpen && isModified();
    if (!m_fault.isEmpty() || isLocked()) {
        userPrompts().showError((m_fault.isEmpty() ? tr("The firm register is locked")
                                                   : tr("The firm register: %1").arg(m_fault))
                                    .toHtmlEscaped());
        return false;
    }
    auto firm = std::make_unique<firmStruct>();
    firm->name = firm->fullname = name;
    push(std::make_unique<appendNewMaterial>(model(kind),
                                             m_pages[kind].rows->makeDetachedRow(std::move(firm))),
         labels::addNewFirm());
    if (hasOthers || save())
        return true;
    // Nobody sees the window, which would be left with it.
    if (!wasOpen)
        load();
    return false;
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

void firmWindow::commandPasteCells(bool on)
{
    const QScopedValueRollback pasting(m_pasting, true);
    m_takenBack.clear();
    editWindow::commandPasteCells(on);
    if (!m_takenBack.isEmpty())
        tell(m_takenBack);
}

void firmWindow::commandMergeFirms(bool)
{
    const firmKind kind = firmKind(m_tabs->currentIndex());
    const firmList &firms = list(kind);
    // The tree may show the list in another order.
    std::set<const xmlData *> selected;
    for (const int row : currentView()->markedRows())
        selected.insert(static_cast<myItemStandard *>(model(kind)->item(row))->record);
    std::vector<size_t> places;
    QStringList names;
    for (size_t place = 0; place < firms.size(); ++place)
        if (selected.count(firms[place].get()) > 0) {
            places.push_back(place);
            names.append(firms[place]->name);
        }
    if (places.size() < 2 || refuseWhileLocked())
        return;
    // The one that most materials name stays, unless the user wants another one.
    const auto materialsOf = [&](const QString &name) {
        return m_figures ? m_figures->at(kind).value(name).materials : 0;
    };
    const auto most =
        std::max_element(names.begin(), names.end(), [&](const auto &a, const auto &b) {
            return materialsOf(a) < materialsOf(b);
        });
    mergeFirmsDialog dialog(
        names, int(most - names.begin()),
        [&](int stays) {
            std::vector<size_t> going = places;
            going.erase(going.begin() + stays);
            return planMerge(*m_edited, kind, places[size_t(stays)], going, known().databases(),
                             m_renames);
        },
        this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const mergePlan &plan = dialog.plan();
    const auto merged = copyOf(*m_edited);
    mergeFirms(*merged, plan);
    std::vector<std::unique_ptr<command>> members;
    members.push_back(become(*merged));
    members.push_back(std::make_unique<firmTree::planRenames>(&m_detailNames, plan.names));
    if (!plan.uses.empty())
        members.push_back(std::make_unique<firmTree::planRenames>(&m_renames, plan.names));
    push(std::make_unique<appendCommands>(std::move(members)),
         tr("%n firm(s) merged into %1", nullptr, int(places.size()) - 1).arg(plan.stays));
    for (int row = 0; row < model(kind)->rowCount(); ++row)
        if (const QModelIndex name = model(kind)->index(row, firmTree::nameColumn);
            name.data().toString() == plan.stays)
            view(kind)->goTo(name);
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
    moveDetailsAlong();
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
    m_detailNames.clear();
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
    if (m_figures)
        countFigures();
    if (isModified())
        tell(tr("Saved, but firms are not renamed in every database"));
    if (anyChanged)
        emit materialsChanged();
}
