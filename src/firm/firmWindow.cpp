#include "firm/firmWindow.h"

#include "commands/cellBlock.h"
#include "commands/cellClipboard.h"
#include "commands/editCommands.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "tree/myTreeView.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QStatusBar>
#include <QTabWidget>

using namespace firmOperations;
using firmTree::firmRows;
using myItem::myItemStandard;

namespace {

const windowAction<firmWindow> actionTable[] = {
    {{"save", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Save"),
      "action_save", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Write the list of firms and put it in use"), true},
     &firmWindow::commandSave},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"close", "File", QT_TRANSLATE_NOOP("actions", "Close"), "action_close", "Ctrl+W", nullptr},
     &firmWindow::commandClose},
    {{"edit", QT_TRANSLATE_NOOP("actions", "Edit"), QT_TRANSLATE_NOOP("actions", "Edit"),
      "action_edit", "Ctrl+E", QT_TRANSLATE_NOOP("actions", "Allow changes of the firms"), true,
      true},
     &firmWindow::commandEdit},
    {{"undo", "Edit", QT_TRANSLATE_NOOP("actions", "Undo"), "action_undo", "Ctrl+Z", nullptr, true},
     &firmWindow::commandUndo},
    {{"redo", "Edit", QT_TRANSLATE_NOOP("actions", "Redo"), "action_redo", "Ctrl+Y", nullptr, true},
     &firmWindow::commandRedo},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"copy", "Edit", QT_TRANSLATE_NOOP("actions", "Copy cells"), "action_copy", "Ctrl+C",
      QT_TRANSLATE_NOOP("actions", "Copy the selected cells as text")},
     &firmWindow::commandCopyCells},
    {{"paste", "Edit", QT_TRANSLATE_NOOP("actions", "Paste cells"), "action_paste", "Ctrl+V",
      QT_TRANSLATE_NOOP("actions", "Paste text into the cells from the current one on")},
     &firmWindow::commandPasteCells},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr}, nullptr},
    {{"find", "Edit", QT_TRANSLATE_NOOP("actions", "Find"), "action_find", "Ctrl+F",
      QT_TRANSLATE_NOOP("actions", "Find a text among the firms"), true},
     &firmWindow::commandFind},
    {{"findNext", "Edit", QT_TRANSLATE_NOOP("actions", "Find next"), "action_find_next", "F3",
      nullptr},
     &firmWindow::commandFindNext},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
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

std::vector<const kiv_mat_databaseStruct *> loadedDatabases()
{
    std::vector<const kiv_mat_databaseStruct *> databases;
    databases.reserve(programData::databaseCount);
    for (int kind = 0; kind < programData::databaseCount; ++kind)
        databases.push_back(&programData::instance().database(programData::databaseKind(kind)));
    return databases;
}

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

firmWindow::firmWindow()
    : baseWindow(QStringLiteral("firmWindow"))
    , m_tabs(new QTabWidget(this))
    , m_counts(new QLabel(this))
{
    setWindowTitle(labels::listOfManufacturersAndSuppliers());
    addActions(actionTable);
    m_stack = std::make_unique<commandStack>(action("undo"), action("redo"));
    m_stack->completed = [this](std::unique_ptr<command> change) {
        return withRenames(std::move(change));
    };
    m_tabs->setObjectName(QStringLiteral("pages"));
    m_tabs->setAccessibleName(windowTitle());
    addPage(manufacturer, labels::manufacturers(), "manufacturers");
    addPage(supplier, labels::suppliers(), "suppliers");
    setCentralWidget(m_tabs);
    m_counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(m_counts);
    connect(m_tabs, &QTabWidget::currentChanged, this, &firmWindow::updateActions);
    for (const char *name : {"undo", "redo"})
        connect(action(name), &QAction::changed, this, &firmWindow::updateActions);
    constexpr QSize usualSize(1260, 680);
    resize(usualSize);
    load();
}

firmWindow::~firmWindow()
{
    m_stack->clear();
    for (myModel *model : findChildren<myModel *>())
        model->detach();
}

void firmWindow::addPage(firmKind kind, const QString &title, const char *name)
{
    auto *model = new myModel(this);
    model->setStack(m_stack.get());
    auto *view = new myTreeView(m_tabs);
    view->setObjectName(QLatin1String(name));
    view->setAccessibleName(title);
    view->setModel(model);
    view->setRootIsDecorated(false);
    view->header()->setObjectName(QLatin1String(name) + QStringLiteral("Header"));
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const char *wanted : {"add", "delete", "homePage", "copy", "paste"})
        view->addAction(action(wanted));
    m_tabs->addTab(view, title);
    auto *hint =
        new QLabel(tr("The list is empty. <a href=\"add\">Add a firm</a>."), view->viewport());
    hint->setObjectName(QLatin1String(name) + QStringLiteral("Hint"));
    hint->setTextInteractionFlags(Qt::TextBrowserInteraction);
    constexpr QPoint hintPlace(24, 16);
    hint->move(hintPlace);
    connect(hint, &QLabel::linkActivated, action("add"), &QAction::trigger);

    const configStruct &config = programData::instance().config();
    auto rows = std::make_unique<firmRows>(firmTree::columns(
        kind == manufacturer ? config.manufacturerStatuses : config.supplierStatuses));
    setCaptions(model, rows->columns());
    for (size_t i = 0; i < rows->columns().size(); ++i)
        view->header()->resizeSection(int(i), rows->columns()[i].width);
    m_pages[kind] = {model, view, hint, std::move(rows)};

    connect(model, &myModel::sorted, this, &firmWindow::clearCommands);
    for (auto signal :
         {&myModel::changeValueOccured, &myModel::appendOccured, &myModel::removeOccured})
        connect(model, signal, this, &firmWindow::updateActions);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &firmWindow::updateActions);
    connect(view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            [this](QPoint, uint, const QModelIndex &cell) { clicked(cell); });
}

std::vector<std::unique_ptr<firmStruct>> &firmWindow::list(firmKind kind)
{
    return kind == manufacturer ? m_edited->manufacturers.items : m_edited->suppliers.items;
}

firmWindow::page &firmWindow::current() { return m_pages[size_t(m_tabs->currentIndex())]; }

bool firmWindow::isChanged() const
{
    return m_modified || m_stack->undoCount() > 0 || !m_unwritten.empty();
}

void firmWindow::load()
{
    m_stack->clear();
    m_modified = false;
    m_renames.clear();
    m_unwritten.clear();
    m_fault.clear();
    const configStruct &config = programData::instance().config();
    const QString name = config.options.value(optionKey::fileFirm);
    m_path = paths::data(name);
    m_onDisk = fileState::of(m_path);
    auto firms = std::make_unique<kiv_mat_firmStruct>();
    QString reason;
    if (name.isEmpty()) {
        m_fault = tr("the configuration names no file");
    } else if (QFileInfo::exists(m_path) && !readChecked(m_path, firms.get(), &reason)) {
        // Saved over, what it holds would be lost.
        m_fault = tr("the file cannot be read");
        firms = std::make_unique<kiv_mat_firmStruct>();
        userPrompts().listError(messages::failed(messages::fileCorrupted(), m_path, reason));
    }
    // Its records are looked at until the trees show the new ones.
    const auto before = std::exchange(m_edited, std::move(firms));
    for (firmKind kind : {manufacturer, supplier}) {
        page &shown = m_pages[kind];
        shown.model->setRecords(nullptr);
        shown.rows->show(shown.model, &list(kind));
        shown.model->setRecords(shown.rows.get());
    }
    setAvailable("edit", m_fault.isEmpty(), m_fault);
    action("edit")->setChecked(m_fault.isEmpty() && config.isOn(optionKey::editFirm));
    commandEdit(action("edit")->isChecked());
}

void firmWindow::updateActions()
{
    if (!m_edited)
        return;
    const page &shown = current();
    const bool locked = shown.view->isEditingLocked();
    const QModelIndex at = shown.view->currentIndex();
    const QString lockedReason = m_fault.isEmpty() ? tr("editing is locked") : m_fault;
    setAvailable("save", isChanged() && m_fault.isEmpty(),
                 m_fault.isEmpty() ? tr("nothing was changed") : m_fault);
    setAvailable("add", !locked, lockedReason);
    for (const char *name : {"delete", "paste"})
        setAvailable(name, !locked && at.isValid(), locked ? lockedReason : tr("no firm selected"));
    setAvailable("homePage", currentHomePage().isValid(), tr("no firm with a home page selected"));
    for (const page &each : m_pages)
        each.hint->setVisible(each.model->rowCount() == 0 && m_fault.isEmpty());
    m_counts->setText(
        tr("%n manufacturer(s)", nullptr, m_pages[manufacturer].model->rowCount())
        + QLatin1String(", ") + tr("%n supplier(s)", nullptr, m_pages[supplier].model->rowCount())
        + (isChanged() ? QStringLiteral(" \u2013 ") + tr("changed, not saved") : QString()));
}

void firmWindow::showNow()
{
    if (!isVisible())
        load();
    show();
    raise();
    activateWindow();
}

// --- Editing
// --------------------------------------------------------------------------------------

void firmWindow::commandEdit(bool on)
{
    for (const page &shown : m_pages)
        shown.view->setEditingLocked(!on || !m_fault.isEmpty());
    updateActions();
}

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
        for (const firmUse &use : usesOf(keysOf(renamed), kind, loadedDatabases(), m_renames)) {
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

void firmWindow::commandUndo(bool) { tellHistory(tr("Undone: %1").arg(m_stack->undo())); }

void firmWindow::commandRedo(bool) { tellHistory(tr("Done again: %1").arg(m_stack->redo())); }

void firmWindow::tellHistory(const QString &what)
{
    // The materials' names have gone back or forth with the step.
    for (const page &shown : m_pages)
        shown.rows->renamed.clear();
    updateActions();
    statusBar()->showMessage(what);
}

void firmWindow::clearCommands()
{
    m_modified = isChanged();
    m_stack->clear();
}

void firmWindow::commandAdd(bool)
{
    const page &shown = current();
    m_stack->push(std::make_unique<appendNewMaterial>(
                      shown.model, shown.rows->makeDetachedRow(std::make_unique<firmStruct>())),
                  labels::addNewFirm());
    updateActions();
    const QModelIndex added = shown.model->index(shown.model->rowCount() - 1, firmTree::nameColumn);
    shown.view->setCurrentIndex(added);
    shown.view->scrollTo(added);
    shown.view->setFocus();
}

void firmWindow::commandDelete(bool)
{
    const page &shown = current();
    const firmKind kind = firmKind(m_tabs->currentIndex());
    const std::vector<int> rows = shown.view->selectedRows();
    std::set<const xmlData *> selected;
    for (int row : rows)
        selected.insert(static_cast<myItemStandard *>(shown.model->item(row))->record);
    QSet<QString> lost;
    QSet<QString> kept;
    for (const auto &firm : list(kind))
        (selected.count(firm.get()) > 0 ? lost : kept).insert(firm->name);
    const std::vector<firmUse> uses =
        usesOf(lost.subtract(kept), kind, loadedDatabases(), m_renames);
    if (!uses.empty()) {
        const QStringList lines = useLines(uses);
        const QString heading =
            tr("Materials use what was to be deleted; nothing is deleted:").toHtmlEscaped();
        userPrompts().showError(heading + QLatin1String("<br>") + shortList(lines));
        userPrompts().listError(heading + QLatin1String("<br>") + lines.join(QLatin1String("<br>"))
                                + QLatin1String("<br>"));
        return;
    }
    if (auto change = cellBlock::deleteRows(shown.model, rows))
        m_stack->push(std::move(change), tr("%n firm(s) deleted", nullptr, int(rows.size())));
    updateActions();
    statusBar()->showMessage(tr("%n firm(s) deleted", nullptr, int(rows.size())));
}

void firmWindow::commandCopyCells(bool)
{
    statusBar()->showMessage(tr("%n cell(s) copied", nullptr, cellClipboard::copy(current().view)));
}

void firmWindow::commandPasteCells(bool)
{
    const int changed =
        cellClipboard::paste(current().view, [this](std::unique_ptr<command> change) {
            m_stack->push(std::move(change), tr("Paste"));
        });
    updateActions();
    statusBar()->showMessage(tr("%n cell(s) pasted", nullptr, changed));
}

// --- Finding and looking
// --------------------------------------------------------------------------

void firmWindow::commandFind(bool)
{
    const auto text = userPrompts().inputText(tr("Find"), tr("Text in any column"), m_wanted);
    if (!text || text->isEmpty())
        return;
    m_wanted = *text;
    commandFindNext(false);
}

void firmWindow::commandFindNext(bool)
{
    if (m_wanted.isEmpty())
        commandFind(false);
    else if (!current().view->findNext(m_wanted))
        statusBar()->showMessage(tr("No firm holds %1").arg(m_wanted));
    else
        statusBar()->showMessage(
            tr("Found in line %1").arg(current().view->currentIndex().row() + 1));
}

QUrl firmWindow::currentHomePage()
{
    const QModelIndex at = current().view->currentIndex();
    return homePage(at.sibling(at.row(), firmTree::homePageColumn).data().toString());
}

void firmWindow::commandHomePage(bool)
{
    const QUrl url = currentHomePage();
    if (!url.isValid())
        return;
    statusBar()->showMessage(QDesktopServices::openUrl(url)
                                 ? tr("Opened %1").arg(url.toDisplayString())
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

// The databases whose materials are renamed are written with the register. One that cannot be
// written has been told to the user and is tried again with the next saving.
bool firmWindow::saveMaterials()
{
    programData &known = programData::instance();
    bool anyChanged = false;
    for (int kind = 0; kind < programData::databaseCount; ++kind) {
        const auto changed =
            firmOperations::rename(known.database(programData::databaseKind(kind)), m_renames);
        for (const materialStruct *material : changed)
            known.search().update(material);
        if (changed.empty())
            continue;
        anyChanged = true;
        m_unwritten.insert(kind);
    }
    m_renames.clear();
    for (auto kind = m_unwritten.begin(); kind != m_unwritten.end();) {
        const auto written = programData::databaseKind(*kind);
        const kiv_mat_databaseStruct &database = known.database(written);
        if (!saveDocument(database.filePath, database, programData::instance().config())) {
            ++kind;
            continue;
        }
        // The database's own window would take this for another program's work.
        known.fileOf(written) = fileState::of(database.filePath);
        kind = m_unwritten.erase(kind);
    }
    if (anyChanged)
        emit materialsChanged();
    return m_unwritten.empty();
}

// Whether nothing is left to be saved.
bool firmWindow::save()
{
    if (!m_fault.isEmpty())
        return false;
    if (!(fileState::of(m_path) == m_onDisk)) {
        enum
        {
            reload,
            overwrite
        };
        const std::optional<int> answer = userPrompts().decide(
            tr("The file %1 was changed by another program since it was opened.")
                .arg(QDir::toNativeSeparators(m_path).toHtmlEscaped()),
            {tr("Reload it and lose the changes here"), tr("Overwrite it")});
        if (answer == reload)
            load();
        if (answer != overwrite)
            return false;
    }
    if (!saveDocument(m_path, *m_edited, programData::instance().config()))
        return false;
    m_onDisk = fileState::of(m_path);
    programData::instance().loadFirm();
    m_stack->clear();
    m_modified = false;
    return saveMaterials();
}

void firmWindow::commandSave(bool)
{
    const bool saved = save();
    updateActions();
    if (saved)
        statusBar()->showMessage(tr("Saved"));
}

void firmWindow::commandClose(bool) { close(); }

void firmWindow::closeEvent(QCloseEvent *event)
{
    if (isChanged()) {
        const prompts::answer answer =
            userPrompts().ask(tr("Save the changed list of firms?"), true);
        if (answer == prompts::answer::cancel || (answer == prompts::answer::yes && !save())) {
            updateActions();
            event->ignore();
            return;
        }
    }
    m_stack->clear();
    m_modified = false;
    m_renames.clear();
    m_unwritten.clear();
    baseWindow::closeEvent(event);
}
