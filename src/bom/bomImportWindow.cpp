#include "bom/bomImportWindow.h"

#include "bom/partsColumnsPage.h"
#include "bom/stagedLinesModel.h"
#include "commands/commandStack.h"
#include "data/programData.h"
#include "util/desktop.h"
#include "util/files.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/numbers.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/workProgress.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

using bomImport::stagedLine;
using bomImport::state;

namespace {

constexpr int searchedMaterials = 100;

const windowAction<bomImportWindow> actionTable[] = {
    {{"open", "File", QT_TRANSLATE_NOOP("actions", "Open list of parts ..."), "action_open",
      "Ctrl+O", QT_TRANSLATE_NOOP("actions", "Read another CSV, XLSX, ODS, XLS or KiCad XML file"),
      true},
     &bomImportWindow::commandOpen},
    {{"set", "File", "Set", "action_set", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Write the BOM list and add it to the set"), true},
     &bomImportWindow::commandSet},
    {{"report", "File", "Report", "action_report", nullptr,
      QT_TRANSLATE_NOOP("actions", "Save the table of all lines with what they were found by"),
      true},
     &bomImportWindow::commandReport},
    {{"decisions", "File", QT_TRANSLATE_NOOP("actions", "Decisions"), "zp_open_link_128", nullptr,
      QT_TRANSLATE_NOOP("actions", "Open the file of what was decided before")},
     &bomImportWindow::commandDecisions},
    {{"close", "File", "Close", "action_close", "Ctrl+W", nullptr}, &bomImportWindow::commandClose},
    {{"undo", "Edit", "Undo", "action_undo", "Ctrl+Z", nullptr, true},
     &bomImportWindow::commandUndo},
    {{"redo", "Edit", "Redo", "action_redo", "Ctrl+Y", nullptr, true},
     &bomImportWindow::commandRedo},
    {{"take", "Edit", QT_TRANSLATE_NOOP("actions", "Take the material"), "action_set",
      "Ctrl+Return",
      QT_TRANSLATE_NOOP("actions", "Match the line with the material that is marked below it"),
      true},
     &bomImportWindow::commandTake},
    {{"unmatch", "Edit", QT_TRANSLATE_NOOP("actions", "Unmatch"), "action_clear", "Ctrl+Backspace",
      QT_TRANSLATE_NOOP("actions", "The line becomes an unknown one"), true},
     &bomImportWindow::commandUnmatch},
    {{"leaveOut", "Edit", QT_TRANSLATE_NOOP("actions", "Leave out or take in"), "action_delete",
      "Ctrl+D", QT_TRANSLATE_NOOP("actions", "A line that is left out is not written"), true},
     &bomImportWindow::commandLeaveOut},
    {{"newMaterial", "Edit", QT_TRANSLATE_NOOP("actions", "New material from this line ..."),
      "data_new_element2_128", "Ctrl+N",
      QT_TRANSLATE_NOOP("actions", "Open the material editor filled in from the line"), true},
     &bomImportWindow::commandNewMaterial},
    {{"next", "Tools", QT_TRANSLATE_NOOP("actions", "Next open line"), "action_find_next", "F3",
      QT_TRANSLATE_NOOP("actions", "Go to the next line without a material"), true},
     &bomImportWindow::commandNext},
    {{"matchAgain", "Tools", QT_TRANSLATE_NOOP("actions", "Match again"), "action_refresh", "F5",
      QT_TRANSLATE_NOOP("actions", "Look for materials anew; what you chose stays decided"), true},
     &bomImportWindow::commandMatchAgain},
};

struct foundColumn
{
    QString (*caption)();
    int width;
    QString (*text)(const materialStruct &material);
};

const foundColumn foundColumns[] = {
    {labels::ktm, 170, [](const materialStruct &m) { return m.d_ktm; }},
    {labels::name, 200, [](const materialStruct &m) { return m.d_name; }},
    {labels::value, 90, [](const materialStruct &m) { return m.d_value; }},
    {labels::case_, 110, [](const materialStruct &m) { return m.d_case; }},
    {labels::status, 80,
     [](const materialStruct &m) { return labels::shown(m.information.status); }},
    {labels::inWarehouse, 80, [](const materialStruct &m) { return m.d_inWarehouse; }},
    {labels::price, 80, [](const materialStruct &m) { return numbers::price(m.d_price); }},
    {labels::description, 220, [](const materialStruct &m) { return m.d_description; }},
};

QLineEdit *newLine(const char *name, const QString &placeholder, QWidget *parent)
{
    auto *line = new QLineEdit(parent);
    line->setObjectName(QLatin1String(name));
    line->setAccessibleName(placeholder);
    line->setPlaceholderText(placeholder);
    line->setClearButtonEnabled(true);
    return line;
}

QTreeView *newTable(const char *name, const QString &accessibleName, QAbstractItemModel *model,
                    QWidget *parent)
{
    auto *view = new QTreeView(parent);
    view->setObjectName(QLatin1String(name));
    view->setAccessibleName(accessibleName);
    view->setModel(model);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setAllColumnsShowFocus(true);
    return view;
}

std::vector<ktmIndex::entry> allMaterials(programData &known)
{
    std::vector<ktmIndex::entry> all;
    for (int kind = 0; kind < programData::databaseCount; ++kind) {
        kiv_mat_databaseStruct &database = known.database(programData::databaseKind(kind));
        for (const auto &group : database.groups)
            for (const auto &material : group->items)
                all.push_back({material.get(), group.get(), &database});
    }
    return all;
}

} // namespace

// Another state of one line, taken back and done again as a whole.
class bomImportWindow::lineChange final : public command
{
public:
    lineChange(stagedLinesModel *lines, int row, stagedLine to)
        : m_lines(lines)
        , m_row(row)
        , m_before(lines->line(row))
        , m_after(std::move(to))
    {
        m_lines->replace(m_row, m_after);
    }
    void undo() override { m_lines->replace(m_row, m_before); }
    void redo() override { m_lines->replace(m_row, m_after); }

private:
    stagedLinesModel *m_lines;
    int m_row;
    stagedLine m_before;
    stagedLine m_after;
};

bomImportWindow::bomImportWindow(programData &known, QString folder)
    : baseWindow(QStringLiteral("bomImportWindow"))
    , m_known(known)
    , m_folder(std::move(folder))
    , m_columns(new partsColumnsPage(this))
    , m_lines(new stagedLinesModel(this))
    , m_shown(new stagedLinesFilter(m_lines))
    , m_materials(new QStandardItemModel(this))
    , m_counts(new QLabel(this))
{
    setWindowTitle(tr("Import list of parts"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_bom.png")));
    addActions(actionTable);
    m_commands = std::make_unique<commandStack>(action("undo"), action("redo"));
    m_commands->changed = [this] {
        showCounts();
        updateActions();
    };
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setObjectName(QStringLiteral("importSplitter"));
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_columns);
    splitter->addWidget(linesPage());
    auto *below = new QWidget(this);
    auto *layout = new QVBoxLayout(below);
    m_words = newLine("words", tr("Search the databases for this line"), below);
    m_found = newTable("found", tr("Materials for the line"), m_materials, below);
    QStringList captions;
    for (const foundColumn &column : foundColumns)
        captions.append(column.caption());
    captions.append(tr("Why"));
    m_materials->setHorizontalHeaderLabels(captions);
    for (int i = 0; i < int(std::size(foundColumns)); ++i)
        m_found->header()->resizeSection(i, foundColumns[i].width);
    layout->addWidget(m_words);
    layout->addWidget(m_found);
    splitter->addWidget(below);
    splitter->setSizes({190, 330, 200});
    setCentralWidget(splitter);
    m_counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(m_counts);
    constexpr QSize usualSize(1180, 800);
    resize(usualSize);

    connect(m_columns, &partsColumnsPage::tableWanted, this, &bomImportWindow::readFile);
    connect(m_columns, &partsColumnsPage::columnsChanged, this, &bomImportWindow::match);
    for (QWidget *widget : {static_cast<QWidget *>(m_words), static_cast<QWidget *>(m_found),
                            static_cast<QWidget *>(m_view)})
        widget->installEventFilter(this);
    connect(m_words, &QLineEdit::textChanged, this, &bomImportWindow::showCandidates);
    connect(m_found, &QTreeView::doubleClicked, this, [this] { commandTake(false); });
    connect(m_found->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { updateActions(); });
    updateActions();
}

bomImportWindow::~bomImportWindow() = default;

QWidget *bomImportWindow::linesPage()
{
    auto *page = new QWidget(this);
    m_states = new QComboBox(page);
    m_states->setObjectName(QStringLiteral("states"));
    m_states->setAccessibleName(tr("Lines of which state"));
    m_states->addItem(tr("All lines"), -1);
    for (const state one : {state::matched, state::ambiguous, state::unknown, state::leftOut})
        m_states->addItem(bomImport::stateText(one), int(one));
    m_filter = newLine("filter", tr("Filter the lines"), page);
    m_view = newTable("lines", tr("Lines"), m_shown, page);
    m_view->setSortingEnabled(true);
    m_view->header()->setSortIndicator(-1, Qt::AscendingOrder);
    constexpr int widths[] = {140, 190, 70, 230, 160, 190, 180, 200};
    for (int i = 0; i < int(std::size(widths)); ++i)
        m_view->header()->resizeSection(i, widths[i]);
    auto *top = new QHBoxLayout;
    top->addWidget(m_states);
    top->addWidget(m_filter, 1);
    auto *layout = new QVBoxLayout(page);
    layout->addLayout(top);
    layout->addWidget(m_view);
    connect(m_states, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int row) { m_shown->setState(m_states->itemData(row).toInt()); });
    connect(m_filter, &QLineEdit::textChanged, m_shown, &stagedLinesFilter::setText);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        const QSignalBlocker once(m_words);
        m_words->clear();
        showCandidates();
        updateActions();
    });
    return page;
}

bool bomImportWindow::openList(const QString &path)
{
    QString fault;
    const auto table = readPartsTable(path, {}, &fault);
    if (!table) {
        userPrompts().showError(
            QStringLiteral("<b>%1</b><br>%2")
                .arg(QDir::toNativeSeparators(path).toHtmlEscaped(), fault.toHtmlEscaped()));
        return false;
    }
    m_path = path;
    m_table = *table;
    // What was given up of another list is decided no more.
    m_commands->clear();
    m_lines->show({});
    QString unreadable;
    m_decisions = bomImport::readDecisions(m_folder, &unreadable);
    m_keepsDecisions = unreadable.isEmpty();
    if (!m_keepsDecisions)
        userPrompts().showError(
            tr("What was decided before cannot be read, so that nothing is kept now; %1: %2")
                .arg(QDir::toNativeSeparators(bomImport::decisionsFile(m_folder)), unreadable)
                .toHtmlEscaped());
    setWindowTitle(tr("Import list of parts")
                   + QStringLiteral(" [%1]").arg(QFileInfo(path).fileName()));
    m_columns->showTable(m_table);
    match();
    m_view->setFocus();
    return true;
}

bool bomImportWindow::isEmpty() const { return m_lines->lines().lines.empty(); }

// The same file, read in another way.
void bomImportWindow::readFile(const partsTableOptions &options)
{
    QString fault;
    const auto table = readPartsTable(m_path, options, &fault);
    if (!table) {
        statusBar()->showMessage(fault);
        return;
    }
    m_table = *table;
    m_columns->showTable(m_table);
    match();
}

// False when the user cancels it.
bool bomImportWindow::stageAll(bomImport::staged &lines)
{
    workProgress::scope work(progress(), tr("Matching"));
    if (!bomImport::stage(linesOf(m_table, m_columns->columns()),
                          partsMatcher(allMaterials(m_known)), bomImport::asMap(m_decisions),
                          &lines, work.function()))
        return false;
    m_matchedCount = m_known.materials().size();
    return true;
}

// What the user chose before is decided by now, and found again. The databases may have changed.
void bomImportWindow::match()
{
    bomImport::takeChosen(m_lines->lines(), QDate::currentDate(), &m_decisions);
    bomImport::staged lines;
    if (!stageAll(lines))
        return;
    m_commands->clear();
    m_lines->show(std::move(lines));
    for (const QString &remark : m_lines->lines().remarks)
        statusBar()->showMessage(remark);
    m_view->setCurrentIndex(m_shown->index(0, 0));
    showCounts();
    showCandidates();
    updateActions();
}

void bomImportWindow::showCounts()
{
    const bomImport::staged &lines = m_lines->lines();
    QStringList counts;
    for (int row = 1; row < m_states->count(); ++row) {
        const auto one = state(m_states->itemData(row).toInt());
        const QString counted =
            bomImport::stateText(one) + QStringLiteral(": %1").arg(lines.count(one));
        m_states->setItemText(row, counted);
        counts.append(counted);
    }
    m_counts->setText(counts.join(QLatin1String(", ")));
}

int bomImportWindow::currentLine() const
{
    const QModelIndex at = m_view->currentIndex();
    return at.isValid() ? m_shown->mapToSource(at).row() : -1;
}

// What matching found for the line, or what is searched for.
void bomImportWindow::showCandidates()
{
    m_materials->removeRows(0, m_materials->rowCount());
    const int row = currentLine();
    if (row < 0)
        return;
    const auto add = [&](const materialStruct &material, const QString &why) {
        QList<QStandardItem *> items;
        for (const foundColumn &column : foundColumns)
            items.append(new QStandardItem(column.text(material)));
        items.append(new QStandardItem(why));
        for (QStandardItem *item : qAsConst(items)) {
            item->setEditable(false);
            item->setToolTip(text::toolTip(item->text()));
        }
        items.first()->setData(material.d_ktm);
        m_materials->appendRow(items);
    };
    const QString words = m_words->text().trimmed();
    if (words.isEmpty())
        for (const matchCandidate &candidate : m_lines->line(row).candidates) {
            QStringList why{reasonText(candidate.reason)};
            why += candidate.differences;
            if (const ktmIndex::entry *entry = m_known.materials().find(candidate.ktm))
                add(*entry->material, why.join(QLatin1String(", ")));
        }
    else
        for (const materialSearch::entry &entry :
             m_known.search().find(searchQuery::parse(words), searchedMaterials).entries)
            add(*entry.material, reasonText(matchReason::byWords));
    if (m_materials->rowCount() > 0)
        m_found->setCurrentIndex(m_materials->index(0, 0));
    updateActions();
}

void bomImportWindow::updateActions()
{
    const int row = currentLine();
    const QString noLine = tr("no line is selected");
    const bool hasLines = !m_lines->lines().lines.empty();
    const QString empty = tr("no list of parts is open");
    for (const char *name : {"set", "report", "next", "matchAgain"})
        setAvailable(name, hasLines, empty);
    setAvailable("take", row >= 0 && m_found->currentIndex().isValid(),
                 row < 0 ? noLine : tr("no material is marked"));
    setAvailable("unmatch", row >= 0 && m_lines->line(row).match(),
                 row < 0 ? noLine : tr("the line has no material"));
    setAvailable("leaveOut", row >= 0, noLine);
    setAvailable("newMaterial", row >= 0, noLine);
}

void bomImportWindow::change(int row, stagedLine to, const QString &what)
{
    to.isOwn = true;
    m_commands->push(std::make_unique<lineChange>(m_lines, row, std::move(to)), what);
    statusBar()->showMessage(what);
}

// --- Actions

void bomImportWindow::commandOpen(bool)
{
    const QString path = userPrompts().openFile(
        tr("Open list of parts"), m_path.isEmpty() ? m_folder : QFileInfo(m_path).path(),
        tr("Lists of parts")
            + QLatin1String(" (*.csv *.tsv *.txt *.xlsx *.xlsm *.ods *.xls *.xml *.net);;")
            + tr("All files") + QLatin1String(" (*)"));
    if (!path.isEmpty() && mayGiveUp())
        openList(path);
}

void bomImportWindow::commandTake(bool)
{
    const int row = currentLine();
    const QModelIndex at = m_found->currentIndex().siblingAtColumn(0);
    const ktmIndex::entry *entry =
        at.isValid() ? m_known.materials().find(at.data(Qt::UserRole + 1).toString()) : nullptr;
    if (row < 0 || !entry)
        return;
    stagedLine line = m_lines->line(row);
    line.line.isLeftOut = false;
    const auto known =
        std::find_if(line.candidates.begin(), line.candidates.end(),
                     [&](const matchCandidate &one) { return one.ktm == entry->material->d_ktm; });
    line.chosen = int(known - line.candidates.begin());
    if (known == line.candidates.end())
        line.candidates.push_back(
            {entry->material->d_ktm, entry->material->d_name, matchReason::chosen, {}});
    line.candidates[size_t(line.chosen)].reason = matchReason::chosen;
    change(row, std::move(line), tr("%1 taken").arg(entry->material->d_ktm));
    commandNext(false);
}

void bomImportWindow::commandUnmatch(bool)
{
    const int row = currentLine();
    if (row < 0)
        return;
    stagedLine line = m_lines->line(row);
    line.chosen = -1;
    change(row, std::move(line), tr("Unmatched"));
    showCandidates();
}

void bomImportWindow::commandLeaveOut(bool)
{
    const int row = currentLine();
    if (row < 0)
        return;
    stagedLine line = m_lines->line(row);
    line.line.isLeftOut = !line.line.isLeftOut;
    const QString what = line.line.isLeftOut ? tr("Left out") : tr("Taken in");
    change(row, std::move(line), what);
}

void bomImportWindow::commandNewMaterial(bool)
{
    if (const int row = currentLine(); row >= 0)
        makeMaterial(*bomImport::materialOf(m_lines->line(row).line));
}

// New materials may be what open lines wait for.
void bomImportWindow::changeEvent(QEvent *event)
{
    baseWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isVisible()
        && m_matchedCount != m_known.materials().size())
        rematch(true);
}

void bomImportWindow::rematch(bool openOnly)
{
    bomImport::staged again;
    if (!stageAll(again))
        return;
    for (int row = 0; row < int(m_lines->lines().lines.size()); ++row) {
        const stagedLine &line = m_lines->line(row);
        const state of = line.stateOf();
        if (!line.isOwn && (!openOnly || of == state::ambiguous || of == state::unknown))
            m_lines->replace(row, again.lines[size_t(row)]);
    }
    showCounts();
    showCandidates();
    updateActions();
}

void bomImportWindow::commandNext(bool)
{
    const int count = m_shown->rowCount();
    const int from = m_view->currentIndex().row();
    for (int i = 1; i <= count; ++i) {
        const QModelIndex at = m_shown->index((from + i) % count, 0);
        const state of = m_lines->line(m_shown->mapToSource(at).row()).stateOf();
        if (of == state::ambiguous || of == state::unknown) {
            m_view->setCurrentIndex(at);
            return;
        }
    }
    statusBar()->showMessage(tr("No line is open"));
}

void bomImportWindow::commandMatchAgain(bool) { rematch(false); }

void bomImportWindow::commandUndo(bool)
{
    statusBar()->showMessage(m_commands->undo());
    showCandidates();
}

void bomImportWindow::commandRedo(bool)
{
    statusBar()->showMessage(m_commands->redo());
    showCandidates();
}

void bomImportWindow::commandReport(bool)
{
    const QString path =
        userPrompts().saveFile(tr("Save to File"),
                               m_folder + QLatin1Char('/') + QFileInfo(m_path).completeBaseName()
                                   + QLatin1String("_report.csv"),
                               tr("CSV File") + QLatin1String(" (*.csv)"));
    if (path.isEmpty())
        return;
    if (files::writeText(path, bomImport::reportOf(m_lines->lines())))
        statusBar()->showMessage(tr("Saved as %1").arg(QDir::toNativeSeparators(path)));
    else
        userPrompts().showError(messages::notWritten(path));
}

void bomImportWindow::commandDecisions(bool)
{
    const QString path = bomImport::decisionsFile(m_folder);
    if (!QFileInfo::exists(path))
        statusBar()->showMessage(tr("Nothing was decided yet"));
    else if (!desktop::openFile(path))
        userPrompts().showError(
            tr("%1 cannot be opened").arg(QDir::toNativeSeparators(path)).toHtmlEscaped());
}

void bomImportWindow::commandSet(bool)
{
    const QString path =
        userPrompts().saveFile(tr("Save the BOM list"),
                               (listFolder.isEmpty() ? m_folder : listFolder) + QLatin1Char('/')
                                   + QFileInfo(m_path).completeBaseName() + QLatin1String(".xml"),
                               tr("Xml File") + QLatin1String(" (*.xml)"));
    if (path.isEmpty() || !writeList)
        return;
    bomImport::unknownParts known = bomImport::unknownIn(QFileInfo(path).absolutePath());
    if (!writeList(path, *bomImport::bomOf(m_lines->lines(), &known, QDate::currentDate())))
        return;
    QString fault;
    bomImport::takeChosen(m_lines->lines(), QDate::currentDate(), &m_decisions);
    if (m_keepsDecisions && !m_decisions.empty()
        && !bomImport::writeDecisions(m_folder, m_decisions, &fault))
        userPrompts().showError(
            tr("What you decided could not be kept: %1").arg(fault).toHtmlEscaped());
    m_commands->clear();
    close();
}

// Whether what was settled may go unwritten.
bool bomImportWindow::mayGiveUp() const
{
    return m_commands->undoCount() == 0
           || userPrompts()
                  .decide(tr("What you settled in this list is not written yet.").toHtmlEscaped(),
                          {tr("Give it up")}, true)
                  .has_value();
}

void bomImportWindow::closeEvent(QCloseEvent *event)
{
    if (!mayGiveUp()) {
        event->ignore();
        return;
    }
    m_commands->clear();
    m_lines->show({});
    baseWindow::closeEvent(event);
}

// Return takes the material from the search field, the lines and the materials alike; from the
// field the arrows move through what was found, and what is typed over the lines goes into it.
bool bomImportWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (isReturn && key->modifiers() == Qt::NoModifier
            && (watched == m_words || watched == m_found || watched == m_view)) {
            commandTake(false);
            m_view->setFocus();
            return true;
        }
        if (watched == m_words && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            QApplication::sendEvent(m_found, event);
            return true;
        }
        if (watched == m_words && key->key() == Qt::Key_Escape) {
            m_words->clear();
            m_view->setFocus();
            return true;
        }
        if (watched == m_view && !key->text().isEmpty() && key->text().at(0).isPrint()
            && (key->modifiers() & ~Qt::ShiftModifier) == 0) {
            m_words->setFocus();
            m_words->setText(key->text());
            return true;
        }
    }
    return baseWindow::eventFilter(watched, event);
}
