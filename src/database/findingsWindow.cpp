#include "database/findingsWindow.h"

#include "data/programData.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "database/findingsModel.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/workProgress.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

const windowAction<findingsWindow> actionTable[] = {
    {{"export", "File", QT_TRANSLATE_NOOP("actions", "Export ..."), "action_xlsx", "Ctrl+Shift+E",
      QT_TRANSLATE_NOOP("actions", "Write the rows that are shown as a workbook or CSV file"),
      true},
     &findingsWindow::commandExport},
    {{"again", "File", QT_TRANSLATE_NOOP("actions", "Check again"), "action_refresh", "F5",
      QT_TRANSLATE_NOOP("actions", "Check the whole database, also whether files are there"), true},
     &findingsWindow::commandAgain},
    {usualActions::fileSeparator, nullptr},
    {usualActions::close, &findingsWindow::commandClose},
    {{"copyRows", "Edit", QT_TRANSLATE_NOOP("actions", "Copy"), "action_copy", "Ctrl+C",
      QT_TRANSLATE_NOOP("actions", "Copy the selected rows as text")},
     &findingsWindow::commandCopy},
    {{"goTo", "Edit", QT_TRANSLATE_NOOP("actions", "Go to the cell"), "action_edit", nullptr,
      QT_TRANSLATE_NOOP("actions", "Go to the cell in the database (Return)"), true},
     &findingsWindow::commandGoTo},
    {{"replaceMaterial", "Edit", QT_TRANSLATE_NOOP("actions", "Replace material ..."),
      "action_replace", "Ctrl+R",
      QT_TRANSLATE_NOOP("actions", "Put another material in the place of this one in all BOM lists "
                                   "of the set and the open order"),
      true},
     &findingsWindow::commandReplaceMaterial},
    {{"find", "Edit", QT_TRANSLATE_NOOP("actions", "Find"), "action_find", "Ctrl+F",
      QT_TRANSLATE_NOOP("actions", "Go to the search field"), true},
     &findingsWindow::commandFind},
};

constexpr int slice = 5000; // materials that are checked anew at once

} // namespace

// Tells the findings what becomes of the records, beside whoever is told already.
class findingsWindow::watch final : public recordWatch
{
public:
    watch(findingsWindow *window, myModel *model)
        : m_window(window)
        , m_model(model)
        , m_next(model->watch())
    {
        model->setWatch(this);
    }
    ~watch() override
    {
        if (m_model && m_model->watch() == this)
            m_model->setWatch(m_next);
    }
    watch(const watch &) = delete;
    watch &operator=(const watch &) = delete;

    void willChange(const xmlData *record, int depth) override
    {
        if (m_next)
            m_next->willChange(record, depth);
        if (depth == 1)
            m_window->m_findings.willChange(static_cast<const materialStruct *>(record));
    }
    void changed(const xmlData *record, int depth) override
    {
        if (m_next)
            m_next->changed(record, depth);
        if (depth == 0)
            m_window->m_findings.changed(static_cast<const d_groupStruct *>(record));
        m_window->changed();
    }
    void inserted(xmlData *parent, const xmlData *record, int depth, int row) override
    {
        if (m_next)
            m_next->inserted(parent, record, depth, row);
        if (depth == 0)
            m_window->m_findings.inserted(static_cast<const d_groupStruct *>(record));
        else
            m_window->m_findings.inserted(static_cast<const materialStruct *>(record),
                                          static_cast<const d_groupStruct *>(parent));
        m_window->changed();
    }
    void willBeTaken(const xmlData *record, int depth) override
    {
        if (m_next)
            m_next->willBeTaken(record, depth);
        if (depth == 0)
            m_window->m_findings.willBeTaken(static_cast<const d_groupStruct *>(record));
        else
            m_window->m_findings.willBeTaken(static_cast<const materialStruct *>(record));
        m_window->changed();
    }

private:
    findingsWindow *m_window;
    QPointer<myModel> m_model;
    recordWatch *m_next;
};

// --- Construction
// ---------------------------------------------------------------------------------

findingsWindow::findingsWindow(Kiv_mat_databaseWindow *database)
    : baseWindow(QStringLiteral("findingsWindow"), database)
    , m_database(database)
    , m_findings({paths::data(QStringLiteral("_files")), paths::programDir(),
                  QFileInfo(database->rows().database().filePath).absolutePath()})
    , m_model(new findingsModel(this))
    , m_words(new QLineEdit(this))
    , m_kinds(new QComboBox(this))
    , m_view(new QTreeView(this))
    , m_nothing(new QLabel(m_view->viewport()))
    , m_delay(new QTimer(this))
    , m_typing(new QTimer(this))
    , m_reading(new QTimer(this))
{
    setWindowIcon(database->windowIcon());
    addActions(actionTable);
    buildWidgets();

    m_delay->setSingleShot(true);
    m_delay->setInterval(0);
    connect(m_delay, &QTimer::timeout, this, &findingsWindow::takeChanges);
    m_typing->setSingleShot(true);
    constexpr int typingMs = 40;
    m_typing->setInterval(typingMs);
    connect(m_typing, &QTimer::timeout, this, &findingsWindow::filter);
    constexpr int pauseMs = 5;
    m_reading->setInterval(pauseMs);
    connect(m_reading, &QTimer::timeout, this, &findingsWindow::readOneList);
    connect(m_words, &QLineEdit::textChanged, m_typing, qOverload<>(&QTimer::start));
    connect(m_words, &QLineEdit::returnPressed, this, [this] {
        filter();
        m_view->setFocus();
    });
    connect(m_kinds, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &findingsWindow::filter);
    connect(m_view, &QTreeView::clicked, this,
            [this](const QModelIndex &row) { goToCell(row, false); });
    connect(m_view, &QTreeView::activated, this,
            [this](const QModelIndex &row) { goToCell(row, true); });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &findingsWindow::updateActions);
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, &findingsWindow::keepPlace);
    connect(m_model, &QAbstractItemModel::modelReset, this, &findingsWindow::goBack);
}

findingsWindow::~findingsWindow() = default;

void findingsWindow::buildWidgets()
{
    m_words->setObjectName(QStringLiteral("findingWords"));
    m_words->setAccessibleName(tr("Words to search for"));
    m_words->setPlaceholderText(tr("Words of the KTM, material, group, field or reason"));
    m_words->setClearButtonEnabled(true);
    m_words->installEventFilter(this);
    m_kinds->setObjectName(QStringLiteral("findingKinds"));
    m_kinds->setAccessibleName(tr("Kind of finding"));
    m_kinds->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_kinds->setMaxVisibleItems(findingKinds + 1);
    for (int i = 0; i <= findingKinds; ++i)
        m_kinds->addItem({});

    m_view->setObjectName(QStringLiteral("findings"));
    m_view->setAccessibleName(tr("Findings"));
    m_view->setModel(m_model);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const char *name : {"goTo", "replaceMaterial", "copyRows"})
        m_view->addAction(action(name));
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setFont(m_database->known().config().font());
    m_view->header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_view->setSortingEnabled(true);
    int column = 0;
    for (int width : {110, 170, 220, 180, 130})
        m_view->header()->resizeSection(column++, width);

    m_nothing->setObjectName(QStringLiteral("nothingFound"));
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setWordWrap(true);
    auto *over = new QVBoxLayout(m_view->viewport());
    over->addWidget(m_nothing);

    auto *page = new QWidget(this);
    auto *top = new QHBoxLayout;
    top->addWidget(m_words, 1);
    top->addWidget(m_kinds);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(2, 2, 2, 0);
    layout->setSpacing(2);
    layout->addLayout(top);
    layout->addWidget(m_view);
    setCentralWidget(page);
    constexpr QSize usualSize(1100, 380);
    resize(usualSize);
}

// --- Checking
// -------------------------------------------------------------------------------------

void findingsWindow::showNow(std::optional<findingKind> kind)
{
    setWindowTitle(tr("Checks") + QLatin1String(" [")
                   + QDir::toNativeSeparators(m_database->rows().database().filePath)
                   + QLatin1Char(']'));
    m_words->clear();
    m_kinds->setCurrentIndex(kind ? int(*kind) + 1 : 0);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    m_view->setFocus();
    if (m_watch)
        takeChanges();
    else
        check();
    filter();
}

void findingsWindow::check()
{
    stop();
    m_findings.setFirms(m_database->known().firm());
    std::optional<std::vector<finding>> found;
    {
        workProgress::scope work(progress(), tr("Checking"));
        followLists();
        while (m_uses.readNext() && work.function()(0, 0))
            ;
        m_findings.setLists(m_uses.lists());
        found = m_findings.check(m_database->rows().database(), work.function());
    }
    m_isChecked = found.has_value();
    if (found)
        m_watch = std::make_unique<watch>(this, m_database->model());
    m_model->set(found ? std::move(*found) : std::vector<finding>());
    showState();
}

void findingsWindow::stop()
{
    m_watch.reset();
    m_delay->stop();
    m_reading->stop();
    m_findings.clear();
}

void findingsWindow::databaseReplaced()
{
    stop();
    m_isChecked = false;
    m_model->set({});
    showState();
    // Whoever replaces it is not done yet.
    if (isVisible())
        QTimer::singleShot(0, this, [this] {
            if (isVisible() && !m_watch)
                check();
        });
}

void findingsWindow::setDeadLinks(const QHash<QString, QString> &links)
{
    m_findings.setDeadLinks(links);
    changed();
}

void findingsWindow::changed()
{
    if (m_watch && !m_delay->isActive())
        m_delay->start();
}

// Many changes go slice by slice, between which keys are taken.
void findingsWindow::takeChanges()
{
    m_delay->stop();
    if (!m_watch || !m_findings.hasChanges())
        return;
    m_model->apply(m_findings.takeChanges(slice));
    showState();
    changed();
    if (!m_findings.hasChanges())
        m_delay->stop();
}

void findingsWindow::hideEvent(QHideEvent *event)
{
    baseWindow::hideEvent(event);
    if (event->spontaneous())
        return;
    stop();
    m_isChecked = false;
    m_model->set({});
}

void findingsWindow::followLists()
{
    const kiv_mat_bomsStruct &boms = m_database->known().boms();
    m_uses.follow(filesOf(boms, boms.filePath), {});
}

// One at a time, so that keys are taken between them.
void findingsWindow::readOneList()
{
    if (m_uses.readNext())
        return;
    m_reading->stop();
    m_findings.setLists(m_uses.lists());
    changed();
}

// The register and BOM lists may have been changed meanwhile.
void findingsWindow::changeEvent(QEvent *event)
{
    baseWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_watch) {
        m_findings.setFirms(m_database->known().firm());
        followLists();
        m_reading->start();
        changed();
    }
}

// --- What is shown
// --------------------------------------------------------------------------------

void findingsWindow::filter()
{
    m_typing->stop();
    const int kind = m_kinds->currentIndex() - 1;
    m_model->filter(kind < 0 ? std::nullopt : std::optional(findingKind(kind)), m_words->text());
    showState();
}

void findingsWindow::showState()
{
    const QString form = QStringLiteral("%1 (%2)");
    {
        const QSignalBlocker once(m_kinds);
        m_kinds->setItemText(0, form.arg(tr("All kinds")).arg(m_model->count()));
        for (int kind = 0; kind < findingKinds; ++kind)
            m_kinds->setItemText(kind + 1, form.arg(findingText::kind(findingKind(kind)))
                                               .arg(m_model->countOf(findingKind(kind))));
    }
    const int shown = m_model->rowCount();
    QString told = !m_isChecked ? tr("Nothing was checked")
                   : shown == m_model->count()
                       ? tr("%n finding(s)", nullptr, shown)
                       : tr("%1 of %n finding(s) shown", nullptr, m_model->count()).arg(shown);
    if (m_isChecked && !m_findings.checksFirms())
        told += QLatin1String(", ") + tr("the register of firms is empty: they were not checked");
    if (const int faulty = int(m_uses.faults().size()); m_isChecked && faulty > 0)
        told += QLatin1String(", ") + tr("%n BOM list(s) cannot be read", nullptr, faulty);
    statusBar()->showMessage(told);
    m_nothing->setText(!m_isChecked            ? tr("Check the database with F5")
                       : m_model->count() == 0 ? tr("Nothing is wrong that is checked here")
                                               : tr("No finding matches"));
    m_nothing->setVisible(shown == 0);
    const QString none = tr("there are no findings");
    for (const char *name : {"export", "copyRows", "goTo"})
        setAvailable(name, shown > 0, none);
    updateActions();
}

void findingsWindow::updateActions()
{
    const QModelIndex current = m_view->currentIndex();
    setAvailable("replaceMaterial",
                 current.isValid() && !m_model->at(current.row()).ktm.trimmed().isEmpty(),
                 tr("no finding of a material with a KTM is selected"));
}

void findingsWindow::keepPlace()
{
    const QModelIndex current = m_view->currentIndex();
    m_currentRow = current.isValid() ? current.row() : 0;
    m_current = current.isValid() ? m_model->at(current.row()) : finding();
}

// To the finding that was current, or to the one in its place.
void findingsWindow::goBack()
{
    const int count = m_model->rowCount();
    int row = std::min(m_currentRow, count - 1);
    for (int i = 0; m_current.reason && i < count; ++i)
        if (m_model->at(i).isSameFault(m_current))
            row = i;
    const QModelIndex at = m_model->index(row, 0);
    m_view->setCurrentIndex(at);
    m_view->scrollTo(at);
}

// --- Actions
// --------------------------------------------------------------------------------------

void findingsWindow::goToCell(const QModelIndex &row, bool toFront)
{
    if (!row.isValid())
        return;
    // The record is there: what was taken away meanwhile has no row any more.
    const finding wanted = m_model->at(row.row());
    while (m_findings.hasChanges())
        takeChanges();
    for (const finding *shown : m_model->shown())
        if (shown->isSameFault(wanted)) {
            m_database->goToCell(shown->material, shown->group, shown->field);
            if (toFront)
                m_database->showCell();
            return;
        }
}

void findingsWindow::commandGoTo(bool) { goToCell(m_view->currentIndex(), true); }

void findingsWindow::commandReplaceMaterial(bool)
{
    emit m_database->replaceWanted(m_model->at(m_view->currentIndex().row()).ktm, this);
}

void findingsWindow::commandAgain(bool) { check(); }

void findingsWindow::commandFind(bool)
{
    m_words->setFocus();
    m_words->selectAll();
}

void findingsWindow::commandCopy(bool)
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex &row : qAsConst(rows))
        lines.append(text::tabbedRow(findingText::cells(m_model->at(row.row()))));
    if (lines.isEmpty())
        return;
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    statusBar()->showMessage(tr("%n row(s) copied", nullptr, lines.size()));
}

void findingsWindow::commandExport(bool)
{
    const QString path =
        userPrompts().saveFile(tr("Save to File"),
                               QFileInfo(m_database->rows().database().filePath).absolutePath()
                                   + QLatin1String("/checks.xlsx"),
                               tr("Xlsx File") + QLatin1String(" (*.xlsx);;") + tr("CSV File")
                                   + QLatin1String(" (*.csv)"));
    if (path.isEmpty())
        return;
    exportResult result;
    {
        workProgress::scope work(progress(), tr("Exporting"));
        result = exportFindings(m_model->shown(), path, work.function());
    }
    if (result.result == exportResult::failed)
        userPrompts().showError(result.error.toHtmlEscaped());
    else
        statusBar()->showMessage(result.result == exportResult::done
                                     ? tr("%1 written").arg(QDir::toNativeSeparators(path))
                                     : tr("Cancelled"));
}

void findingsWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        baseWindow::keyPressEvent(event);
}

// Of the search field: Escape empties it first, Down goes to the rows.
bool findingsWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_words && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Down) {
            m_view->setFocus();
            return true;
        }
        if (key == Qt::Key_Escape && !m_words->text().isEmpty()) {
            m_words->clear();
            return true;
        }
    }
    return baseWindow::eventFilter(watched, event);
}
