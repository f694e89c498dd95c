#include "bom/Kiv_bomViewWindow.h"

#include "bom/bomReport.h"
#include "commands/cellBlock.h"
#include "commands/cellClipboard.h"
#include "commands/editCommands.h"
#include "data/programData.h"
#include "tree/myTreeView.h"
#include "util/prompts.h"

#include <QCloseEvent>
#include <QDir>
#include <QHeaderView>
#include <QStatusBar>

using namespace bomOperations;

namespace {

const windowAction<Kiv_bomViewWindow> actionTable[] = {
    {{"save", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Save"),
      "action_save", "Ctrl+S", nullptr, true},
     &Kiv_bomViewWindow::commandSave},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"close", "File", QT_TRANSLATE_NOOP("actions", "Close"), "action_close", "Ctrl+W", nullptr},
     &Kiv_bomViewWindow::commandClose},
    {{"edit", QT_TRANSLATE_NOOP("actions", "Edit"), QT_TRANSLATE_NOOP("actions", "Edit"),
      "action_edit", "Ctrl+E", QT_TRANSLATE_NOOP("actions", "Allow changes of the list"), true,
      true},
     &Kiv_bomViewWindow::commandEdit},
    {{"undo", "Edit", QT_TRANSLATE_NOOP("actions", "Undo"), "action_undo", "Ctrl+Z", nullptr, true},
     &Kiv_bomViewWindow::commandUndo},
    {{"redo", "Edit", QT_TRANSLATE_NOOP("actions", "Redo"), "action_redo", "Ctrl+Y", nullptr, true},
     &Kiv_bomViewWindow::commandRedo},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"copyText", "Edit", QT_TRANSLATE_NOOP("actions", "Copy text"), "data_copy_128", "Ctrl+C",
      QT_TRANSLATE_NOOP("actions", "Copy the selected cells as text")},
     &Kiv_bomViewWindow::commandCopyText},
    {{"paste", "Edit", QT_TRANSLATE_NOOP("actions", "Paste cells"), "action_paste", "Ctrl+V",
      QT_TRANSLATE_NOOP("actions", "Paste text into the cells from the current one on")},
     &Kiv_bomViewWindow::commandPasteCells},
    {{"deleteLines", "Edit", QT_TRANSLATE_NOOP("actions", "Delete lines"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Delete the selected lines")},
     &Kiv_bomViewWindow::commandDeleteLines},
    {{"sum", QT_TRANSLATE_NOOP("actions", "Tools"), QT_TRANSLATE_NOOP("actions", "Sum"),
      "action_sum", nullptr,
      QT_TRANSLATE_NOOP("actions", "Sums of quantities and prices, per set and for all sets"),
      true},
     &Kiv_bomViewWindow::commandShowSum},
};

} // namespace

Kiv_bomViewWindow::Kiv_bomViewWindow(const QString &path)
    : baseWindow(QStringLiteral("Kiv_bomViewWindow"))
    , m_path(path)
    , m_model(new myModel(this))
    , m_view(new myTreeView(this))
{
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/dialog_bom2_128.png")));
    addActions(actionTable);
    m_stack = std::make_unique<commandStack>(action("undo"), action("redo"));
    m_model->setStack(m_stack.get());
    m_view->setObjectName(QStringLiteral("lines"));
    m_view->setAccessibleName(tr("Lines of the BOM list"));
    m_view->setModel(m_model);
    m_view->setRootIsDecorated(false);
    m_view->header()->setObjectName(QStringLiteral("linesHeader"));
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const char *name : {"copyText", "paste", "deleteLines"})
        m_view->addAction(action(name));
    setCentralWidget(m_view);
    programData &known = programData::instance();
    m_view->setFont(known.config().font());
    m_rows = std::make_unique<bomTree::lineRows>(
        bomTree::lineColumns(known.config(), known.materials()));
    setCaptions(m_model, m_rows->columns());
    for (size_t c = 0; c < m_rows->columns().size(); ++c) {
        const treeColumn<materialStruct> &column = m_rows->columns()[c];
        m_view->header()->resizeSection(int(c), column.width);
        // Longer than some columns are wide.
        m_model->setHeaderData(int(c), Qt::Horizontal, column.label, Qt::ToolTipRole);
    }
    constexpr QSize usualSize(1280, 640);
    resize(usualSize);

    connect(m_model, &myModel::sorted, this, &Kiv_bomViewWindow::clearCommands);
    for (auto signal :
         {&myModel::changeValueOccured, &myModel::appendOccured, &myModel::removeOccured})
        connect(m_model, signal, this, &Kiv_bomViewWindow::changed);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &Kiv_bomViewWindow::updateActions);
    connect(m_view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            &Kiv_bomViewWindow::itemTreeClicked);
    load();
}

Kiv_bomViewWindow::~Kiv_bomViewWindow()
{
    m_stack->clear();
    for (myModel *model : findChildren<myModel *>())
        model->detach();
}

void Kiv_bomViewWindow::load()
{
    m_stack->clear();
    m_onDisk = fileState::of(m_path);
    auto bom = std::make_unique<kiv_mat_bomStruct>();
    QString error;
    m_fault.clear();
    if (!readBom(m_path, bom.get(), &error)) {
        // Saved over, what the file holds would be lost.
        m_fault = tr("the file cannot be read");
        bom = std::make_unique<kiv_mat_bomStruct>();
        userPrompts().listError(error);
        userPrompts().showErrors();
    }
    m_model->setRecords(nullptr);
    // Its records are looked at until the tree shows the new ones.
    const auto before = std::exchange(m_bom, std::move(bom));
    m_rows->show(m_model, &m_bom->materials);
    m_model->setRecords(m_rows.get());
    m_view->sortByColumn(bomTree::lineNameColumn, Qt::AscendingOrder);
    m_modified = false;
    setAvailable("edit", m_fault.isEmpty(), m_fault);
    action("edit")->setChecked(false);
    commandEdit(false);
}

void Kiv_bomViewWindow::showNow()
{
    if (!isVisible() && !m_modified)
        load();
    show();
    raise();
    activateWindow();
}

void Kiv_bomViewWindow::showTitle()
{
    QString title = tr("Bill of materials") + QLatin1String(" [") + QDir::toNativeSeparators(m_path)
                    + QLatin1Char(']');
    if (m_view->isEditingLocked())
        title += QLatin1Char(' ') + tr("Editing locked");
    setWindowTitle(title + (m_modified ? QStringLiteral(" *") : QString()));
}

void Kiv_bomViewWindow::changed()
{
    m_modified = true;
    updateActions();
}

void Kiv_bomViewWindow::updateActions()
{
    const bool locked = m_view->isEditingLocked();
    const bool onLine = m_view->currentIndex().isValid();
    const QString reason = m_fault.isEmpty() ? tr("editing is locked") : m_fault;
    for (const char *name : {"paste", "deleteLines"})
        setAvailable(name, !locked && onLine, locked ? reason : tr("no line is selected"));
    setAvailable("copyText", onLine, tr("no line is selected"));
    setAvailable("save", m_modified, tr("nothing was changed"));
    setAvailable("sum", m_fault.isEmpty(), m_fault);
    showTitle();
}

void Kiv_bomViewWindow::commandEdit(bool on)
{
    m_view->setEditingLocked(!on || !m_fault.isEmpty());
    updateActions();
}

void Kiv_bomViewWindow::commandUndo(bool)
{
    statusBar()->showMessage(tr("Undone: %1").arg(m_stack->undo()));
}

void Kiv_bomViewWindow::commandRedo(bool)
{
    statusBar()->showMessage(tr("Done again: %1").arg(m_stack->redo()));
}

void Kiv_bomViewWindow::clearCommands() { m_stack->clear(); }

void Kiv_bomViewWindow::commandShowSum(bool)
{
    userPrompts().showInformation(
        bomReport::sums(sumsOf(*m_bom, programData::instance().materials()), sets ? sets() : 1));
}

void Kiv_bomViewWindow::commandCopyText(bool)
{
    statusBar()->showMessage(tr("%n cell(s) copied", nullptr, cellClipboard::copy(m_view)));
}

void Kiv_bomViewWindow::commandPasteCells(bool)
{
    const int pasted = cellClipboard::paste(m_view, [this](std::unique_ptr<command> change) {
        m_stack->push(std::move(change), tr("Paste"));
    });
    statusBar()->showMessage(tr("%n cell(s) pasted", nullptr, pasted));
}

void Kiv_bomViewWindow::commandDeleteLines(bool)
{
    const std::vector<int> rows = m_view->selectedRows();
    const QString what = tr("%n line(s) deleted", nullptr, int(rows.size()));
    if (auto change = cellBlock::deleteRows(m_model, rows))
        m_stack->push(std::move(change), what);
    statusBar()->showMessage(what);
}

void Kiv_bomViewWindow::insertToBomView(const materialKtm &ktm)
{
    auto line = newBomLine(ktm, programData::instance().materials());
    if (!line) {
        userPrompts().listError(doesNotExist(ktm));
        userPrompts().showErrors();
        return;
    }
    if (m_view->isEditingLocked()) {
        userPrompts().showInformation(tr("The list %1 is locked. Allow its editing first.")
                                          .arg(QDir::toNativeSeparators(m_path).toHtmlEscaped()));
        return;
    }
    m_stack->push(std::make_unique<appendItems>(m_model->invisibleRootItem(),
                                                m_rows->makeDetachedRow(std::move(line))),
                  tr("Material inserted"));
    changed();
    selectItem(m_view, m_model->item(m_model->rowCount() - 1, bomTree::quantityColumn));
    statusBar()->showMessage(tr("Inserted %1").arg(ktm));
}

void Kiv_bomViewWindow::selectItem(QTreeView *view, QStandardItem *item)
{
    view->setCurrentIndex(item->index());
    view->scrollTo(item->index());
}

void Kiv_bomViewWindow::itemTreeClicked(QPoint, uint, const QModelIndex &index)
{
    const QModelIndex name = index.sibling(index.row(), bomTree::lineNameColumn);
    statusBar()->showMessage(
        index.sibling(index.row(), bomTree::ktmColumn).data().toString() + QLatin1String("  ")
        + name.data().toString() + QLatin1String("  ")
        + index.sibling(index.row(), m_model->columnCount() - 1).data().toString());
}

// --- Saving
// ---------------------------------------------------------------------------------------

bool Kiv_bomViewWindow::save()
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
    if (!saveDocument(m_path, *m_bom, programData::instance().config()))
        return false;
    m_onDisk = fileState::of(m_path);
    m_stack->clear();
    m_modified = false;
    updateActions();
    statusBar()->showMessage(tr("Saved"));
    return true;
}

void Kiv_bomViewWindow::commandSave(bool) { save(); }

void Kiv_bomViewWindow::commandClose(bool) { close(); }

void Kiv_bomViewWindow::closeEvent(QCloseEvent *event)
{
    if (m_modified) {
        const prompts::answer answer =
            userPrompts().ask(tr("Save the changed BOM list %1?")
                                  .arg(QDir::toNativeSeparators(m_path).toHtmlEscaped()),
                              true);
        if (answer == prompts::answer::cancel || (answer == prompts::answer::yes && !save())) {
            event->ignore();
            return;
        }
    }
    m_stack->clear();
    m_modified = false;
    baseWindow::closeEvent(event);
}
