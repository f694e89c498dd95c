#include "bom/Kiv_bomViewWindow.h"

#include "bom/bomReport.h"
#include "bom/replacementStep.h"
#include "commands/cellBlock.h"
#include "commands/cellClipboard.h"
#include "commands/editCommands.h"
#include "data/programData.h"
#include "order/addMaterialDialog.h"
#include "tree/myTreeView.h"
#include "util/prompts.h"
#include "window/becomeList.h"
#include "window/searchLine.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QStatusBar>

using namespace bomOperations;

namespace {

const windowAction<Kiv_bomViewWindow> actionTable[] = {
    {usualActions::save, &Kiv_bomViewWindow::commandSave},
    {usualActions::fileSeparator, nullptr},
    {usualActions::versions, &Kiv_bomViewWindow::commandVersions},
    {usualActions::close, &Kiv_bomViewWindow::commandClose},
    {usualActions::edit(QT_TRANSLATE_NOOP("actions", "Allow changes of the list")),
     &Kiv_bomViewWindow::commandEdit},
    {usualActions::undo, &Kiv_bomViewWindow::commandUndo},
    {usualActions::redo, &Kiv_bomViewWindow::commandRedo},
    {usualActions::editSeparator, nullptr},
    {{"copyText", "Edit", QT_TRANSLATE_NOOP("actions", "Copy text"), "data_copy_128", "Ctrl+C",
      QT_TRANSLATE_NOOP("actions", "Copy the selected cells as text")},
     &Kiv_bomViewWindow::commandCopyCells},
    {usualActions::pasteCells, &Kiv_bomViewWindow::commandPasteCells},
    {usualActions::fillDown, &Kiv_bomViewWindow::commandFillDown},
    {usualActions::moveUp("Edit"), &Kiv_bomViewWindow::commandMoveUp},
    {usualActions::moveDown("Edit"), &Kiv_bomViewWindow::commandMoveDown},
    {{"pasteLines", "Edit", QT_TRANSLATE_NOOP("actions", "Paste lines"), "action_paste",
      "Ctrl+Shift+V",
      QT_TRANSLATE_NOOP("actions", "Paste text as new lines below the selected one")},
     &Kiv_bomViewWindow::commandPasteLines},
    {{"pickMaterial", "Edit", QT_TRANSLATE_NOOP("actions", "Pick material ..."),
      "action_add_material", "Ctrl+M",
      QT_TRANSLATE_NOOP("actions", "Search the databases for the material of the selected line"),
      true},
     &Kiv_bomViewWindow::commandPickMaterial},
    {{"deleteLines", "Edit", QT_TRANSLATE_NOOP("actions", "Delete lines"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Delete the selected lines")},
     &Kiv_bomViewWindow::commandDeleteLines},
    {{"find", "Edit", QT_TRANSLATE_NOOP("actions", "Find"), "action_find", "Ctrl+F",
      QT_TRANSLATE_NOOP("actions", "Go to the search field"), true},
     &Kiv_bomViewWindow::commandFind},
    {{"replaceMaterial", QT_TRANSLATE_NOOP("actions", "Tools"),
      QT_TRANSLATE_NOOP("actions", "Replace material ..."), "action_replace", "Ctrl+R",
      QT_TRANSLATE_NOOP("actions", "Put another material in the place of the selected line's in "
                                   "all BOM lists of the set and the open order")},
     &Kiv_bomViewWindow::commandReplaceMaterial},
    {{"sum", QT_TRANSLATE_NOOP("actions", "Tools"), QT_TRANSLATE_NOOP("actions", "Sum"),
      "action_sum", nullptr,
      QT_TRANSLATE_NOOP("actions", "Sums of quantities and prices, per set and for all sets"),
      true},
     &Kiv_bomViewWindow::commandShowSum},
};

} // namespace

Kiv_bomViewWindow::Kiv_bomViewWindow(programData &files, const QString &path)
    : editWindow(QStringLiteral("Kiv_bomViewWindow"), files)
    , m_path(path)
    , m_bom(std::make_unique<kiv_mat_bomStruct>())
    , m_rows(std::make_unique<bomTree::lineRows>(
          bomTree::lineColumns(files.config(), files.materials())))
{
    m_rows->makeRecord = [] {
        auto line = std::make_unique<materialStruct>();
        line->d_quantity = QStringLiteral("1");
        return line;
    };
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/dialog_bom2_128.png")));
    addActions(actionTable);
    auto *page = new QWidget(this);
    m_view = addView(tr("Lines of the BOM list"), "lines", page);
    m_words = new searchLine(m_view);
    m_words->completeFrom(m_search);
    connect(m_words, &searchLine::wanted, this, &Kiv_bomViewWindow::applyFilter);
    m_counts = new QLabel(this);
    m_counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(m_counts);
    m_view->setRootIsDecorated(false);
    m_view->setRowsDragged(true);
    connect(
        m_view, &myTreeView::rowsDragged, this,
        [this](const std::vector<int> &rows, int before) { moveRowsBefore(m_view, rows, before); });
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const char *name : {"copyText", "pasteCells", "pasteLines", "pickMaterial",
                             "replaceMaterial", "moveUp", "moveDown", "deleteLines"})
        m_view->addAction(action(name));
    setCentralWidget(page);
    keepJournal(fileKinds::bom, [this] { return m_bom.get(); }, {model()});
    m_view->setFont(files.config().font());
    setCaptions(model(), m_rows->columns());
    for (size_t c = 0; c < m_rows->columns().size(); ++c)
        m_view->header()->resizeSection(int(c), m_rows->columns()[c].width);
    constexpr QSize usualSize(1280, 640);
    resize(usualSize);
    connect(m_view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            &Kiv_bomViewWindow::itemTreeClicked);
}

std::unique_ptr<command> Kiv_bomViewWindow::become(documentStruct &wanted)
{
    // A line is written in its short form.
    const auto content = [](const materialStruct &line) {
        QByteArray all;
        for (const auto &field : materialStruct::shortFields())
            all += (line.*field.member).toUtf8() + '\0';
        return all;
    };
    std::vector<std::unique_ptr<command>> members;
    becomeList::change<materialStruct>(
        model(), *m_rows, m_bom->materials,
        std::move(static_cast<kiv_mat_bomStruct &>(wanted).materials), members, content);
    return members.empty() ? nullptr : std::make_unique<appendCommands>(std::move(members));
}

bool Kiv_bomViewWindow::load()
{
    const fileState state = fileState::of(m_path);
    auto bom = std::make_unique<kiv_mat_bomStruct>();
    QString error;
    m_fault.clear();
    if (!readBom(m_path, bom.get(), &error)) {
        userPrompts().listError(error);
        userPrompts().showErrors();
        // What is shown stays.
        if (isVisible())
            return false;
        // Saved over, what the file holds would be lost.
        m_fault = tr("the file cannot be read");
        bom = std::make_unique<kiv_mat_bomStruct>();
    }
    remake(*bom);
    onDisk() = state;
    setClean();
    model()->setRecords(nullptr);
    // Its records are looked at until the tree shows the new ones.
    const auto before = std::exchange(m_bom, std::move(bom));
    m_rows->show(model(), &m_bom->materials);
    model()->setRecords(m_rows.get());
    m_view->sortByColumn(bomTree::lineNameColumn, Qt::AscendingOrder);
    applyFilter();
    setUnlocked(false);
    return m_fault.isEmpty();
}

QString Kiv_bomViewWindow::title() const
{
    const QString title = tr("Bill of materials") + QLatin1String(" [")
                          + QDir::toNativeSeparators(m_path) + QLatin1Char(']');
    return isLocked() ? title + QLatin1Char(' ') + tr("Editing locked") : title;
}

QString Kiv_bomViewWindow::closeQuestion() const
{
    return tr("Save the changed BOM list %1?")
        .arg(QDir::toNativeSeparators(m_path).toHtmlEscaped());
}

void Kiv_bomViewWindow::updateActions()
{
    const bool onLine = m_view->currentIndex().isValid();
    const QString noLine = tr("no line is selected");
    allowWhenUnlocked({"pasteCells"}, onLine, noLine);
    allowWhenUnlocked({"deleteLines", "fillDown", "moveUp", "moveDown"},
                      !m_view->markedCells().isEmpty(), noLine);
    allowWhenUnlocked({"pasteLines"});
    allowWhenUnlocked({"pickMaterial"}, rowToPickFor() >= 0,
                      m_view->markedRows().size() > 1 ? tr("several lines are selected") : noLine);
    setAvailable("copyText", onLine, noLine);
    setAvailable("replaceMaterial", replaceEverywhere && rowToPickFor() >= 0,
                 m_view->markedRows().size() > 1 ? tr("several lines are selected") : noLine);
    setAvailable("save", m_fault.isEmpty(), m_fault);
    setAvailable("sum", m_fault.isEmpty(), m_fault);
    showCounts();
}

void Kiv_bomViewWindow::showCounts()
{
    int unknown = 0;
    for (const auto &line : m_bom->materials)
        unknown += !matched(*line, known().materials()).known;
    QString counts = tr("%n line(s)", nullptr, int(m_bom->materials.size())) + QLatin1String(", ")
                     + tr("%n of them unknown", nullptr, unknown);
    if (!m_words->text().isEmpty()) {
        int found = 0;
        for (int row = 0; row < model()->rowCount(); ++row)
            found += !m_view->isRowHidden(row, {});
        counts += QLatin1String(", ") + tr("%n found", nullptr, found);
    }
    m_counts->setText(counts);
}

void Kiv_bomViewWindow::commandFind(bool) { m_words->begin(); }

// A line is searched as the material that it shows, with its own designators.
void Kiv_bomViewWindow::applyFilter()
{
    const searchQuery query = m_words->query();
    m_search.clear();
    m_searched.clear();
    for (int row = 0; row < model()->rowCount(); ++row) {
        const auto *first = static_cast<const myItem::myItemStandard *>(model()->item(row));
        const bomLine of = matched(*bomTree::lineRows::recordOf(first), known().materials());
        materialStruct &shown = *m_searched.emplace_back(of.material->copy());
        shown.d_ktm = of.shownKtm();
        shown.d_description += QLatin1Char(' ') + of.line->d_designator;
        m_search.insert({&shown});
    }
    for (int row = 0; row < model()->rowCount(); ++row)
        m_words->setRowShown(model()->index(row, 0),
                             query.terms().empty()
                                 || m_search.matches(m_searched[size_t(row)].get(), query));
    m_view->deselectHidden();
    updateActions();
}

bool Kiv_bomViewWindow::takesFiles() const { return true; }

void Kiv_bomViewWindow::fileDropped(const QString &path)
{
    if (openList)
        openList(path);
}

void Kiv_bomViewWindow::commandShowSum(bool)
{
    userPrompts().showInformation(
        bomReport::sums(sumsOf(*m_bom, known().materials()), sets ? sets() : 1));
}

// The one selected line, or that of the cursor when none is; else -1.
int Kiv_bomViewWindow::rowToPickFor() const
{
    const std::vector<int> rows = m_view->markedRows();
    return rows.empty() ? m_view->currentIndex().row() : rows.size() == 1 ? rows.front() : -1;
}

void Kiv_bomViewWindow::commandPickMaterial(bool)
{
    const int row = rowToPickFor();
    const auto *first = static_cast<const myItem::myItemStandard *>(model()->item(row));
    const materialStruct &line = *bomTree::lineRows::recordOf(first);
    const QString ktm =
        addMaterialDialog::pick(known(), this, line.d_name + QLatin1Char(' ') + line.d_value);
    auto *cell = static_cast<myItem::myItemStandard *>(model()->item(row, bomTree::ktmColumn));
    if (!ktm.isEmpty() && line.d_ktm != ktm)
        push(std::make_unique<changeValue>(model(), cell, ktm), tr("Material picked"));
}

void Kiv_bomViewWindow::commandReplaceMaterial(bool)
{
    const auto *first = static_cast<const myItem::myItemStandard *>(model()->item(rowToPickFor()));
    replaceEverywhere(bomTree::lineRows::recordOf(first)->d_ktm);
}

materialReplacement::document Kiv_bomViewWindow::asDocument()
{
    materialReplacement::document here;
    here.path = m_path;
    here.list = m_bom.get();
    here.isOpen = true;
    here.fault = m_fault;
    if (!finishEditing())
        here.fault = tr("a text in its window is refused");
    return here;
}

void Kiv_bomViewWindow::replaceMaterial(const materialReplacement::replacement &what)
{
    if (isLocked())
        setUnlocked(true);
    push(replacementStep(m_view, *m_rows, what), tr("Material replaced"));
    applyFilter();
}

void Kiv_bomViewWindow::commandDeleteLines(bool)
{
    const std::vector<int> rows = m_view->markedRows();
    push(cellBlock::deleteRows(model(), rows), tr("%n line(s) deleted", nullptr, int(rows.size())));
}

void Kiv_bomViewWindow::commandMoveUp(bool) { moveMarkedRows(m_view, true); }

void Kiv_bomViewWindow::commandMoveDown(bool) { moveMarkedRows(m_view, false); }

// Below the selected lines; at the end when none is.
int Kiv_bomViewWindow::rowForNewLine()
{
    const std::vector<int> rows = m_view->markedRows();
    return rows.empty() ? model()->rowCount() : rows.back() + 1;
}

void Kiv_bomViewWindow::commandPasteLines(bool)
{
    const int before = model()->rowCount();
    const int row = rowForNewLine();
    cellClipboard::pasteRows(
        m_view, row, bomTree::ktmColumn,
        [this](std::unique_ptr<command> change) { push(std::move(change), tr("Paste lines")); });
    const int added = model()->rowCount() - before;
    if (added > 0)
        selectItem(m_view, model()->item(row, bomTree::quantityColumn));
    tell(tr("%n line(s) pasted", nullptr, added));
}

void Kiv_bomViewWindow::insertToBomView(const materialKtm &ktm)
{
    auto line = newBomLine(ktm, known().materials());
    if (!line) {
        userPrompts().listError(doesNotExist(ktm));
        userPrompts().showErrors();
        return;
    }
    if (isLocked()) {
        userPrompts().showInformation(tr("The list %1 is locked. Allow its editing first.")
                                          .arg(QDir::toNativeSeparators(m_path).toHtmlEscaped()));
        return;
    }
    const int row = rowForNewLine();
    push(std::make_unique<appendItems>(model()->invisibleRootItem(),
                                       m_rows->makeDetachedRow(std::move(line)), row),
         tr("Material inserted"));
    selectItem(m_view, model()->item(row, bomTree::quantityColumn));
    tell(tr("Inserted %1").arg(ktm));
}

void Kiv_bomViewWindow::selectItem(QTreeView *view, QStandardItem *item)
{
    static_cast<myTreeView *>(view)->goTo(item->index());
}

void Kiv_bomViewWindow::itemTreeClicked(QPoint, uint, const QModelIndex &index)
{
    const QModelIndex name = index.sibling(index.row(), bomTree::lineNameColumn);
    tell(index.sibling(index.row(), bomTree::ktmColumn).data().toString() + QLatin1String("  ")
         + name.data().toString() + QLatin1String("  ")
         + index.sibling(index.row(), model()->columnCount() - 1).data().toString());
}

bool Kiv_bomViewWindow::write(const QString &path) { return writeDocument(path, *m_bom); }
