#include "dialogs/versionsWindow.h"

#include "data/documentDiff.h"
#include "data/documentStruct.h"
#include "util/labels.h"
#include "util/scratch.h"
#include "window/workProgress.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QSplitter>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QThread>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

enum copyColumn
{
    timeColumn,
    nameColumn,
    kindColumn,
    linesColumn,
    sizeColumn,
    folderColumn
};

constexpr int placeRole = Qt::UserRole + 1; // of a copy
constexpr int shownAtMost = 10000;          // differences

const windowAction<versionsWindow> actionTable[] = {
    {{"open", "File", "Open", "action_open", "Ctrl+O",
      QT_TRANSLATE_NOOP("actions", "Open an order as a new one, any other copy to be looked at"),
      true},
     &versionsWindow::commandOpen},
    {{"restore", "File", QT_TRANSLATE_NOOP("actions", "Restore"), "action_undo", "Ctrl+R",
      QT_TRANSLATE_NOOP("actions", "Put the content back, as a step that can be undone"), true},
     &versionsWindow::commandRestore},
    {{"again", "File", QT_TRANSLATE_NOOP("actions", "List again"), "action_refresh", "F5", nullptr,
      true},
     &versionsWindow::commandAgain},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"close", "File", "Close", "action_close", "Ctrl+W", nullptr}, &versionsWindow::commandClose},
    {{"nextVersion", "Tools", QT_TRANSLATE_NOOP("actions", "Compare with the version after it"),
      "action_find_next", "Ctrl+T",
      QT_TRANSLATE_NOOP("actions", "Instead of the file as it is now"), true, true},
     &versionsWindow::commandNextVersion},
};

QList<QStandardItem *> rowOf(const QStringList &texts)
{
    QList<QStandardItem *> row;
    for (const QString &text : texts) {
        row.append(new QStandardItem(text));
        row.last()->setEditable(false);
        row.last()->setToolTip(text.toHtmlEscaped());
    }
    return row;
}

QTreeView *newView(const char *name, const QString &accessibleName, QStandardItemModel *model,
                   std::initializer_list<int> widths, QWidget *parent)
{
    auto *view = new QTreeView(parent);
    view->setObjectName(QLatin1String(name));
    view->setAccessibleName(accessibleName);
    view->setModel(model);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setAllColumnsShowFocus(true);
    int column = 0;
    for (int width : widths)
        view->header()->resizeSection(column++, width);
    return view;
}

QString signOf(const documentDifference &difference)
{
    switch (difference.kind) {
    case documentDifference::added:
        return versionsWindow::tr("added");
    case documentDifference::removed:
        return versionsWindow::tr("removed");
    case documentDifference::moved:
        return versionsWindow::tr("moved");
    default:
        return versionsWindow::tr("changed");
    }
}

QString kilobytes(qint64 bytes)
{
    constexpr double kilobyte = 1e3;
    return QStringLiteral("%1 kB").arg(double(bytes) / kilobyte, 0, 'f', 1);
}

} // namespace

versionsWindow::versionsWindow(programData &known, QWidget *parent)
    : baseWindow(QStringLiteral("versionsWindow"), parent)
    , m_known(known)
    , m_filter(new QLineEdit(this))
    , m_copyRows(new QStandardItemModel(this))
    , m_differences(new QStandardItemModel(this))
    , m_delay(new QTimer(this))
{
    addActions(actionTable);
    setWindowTitle(tr("Versions and unsaved orders"));
    m_copyRows->setHorizontalHeaderLabels(
        {tr("Time"), labels::file(), tr("Kind"), tr("Lines"), tr("Size"), tr("Folder")});
    m_differences->setHorizontalHeaderLabels(
        {tr("Difference"), labels::group(), labels::name(), tr("Field"), tr("Then"), tr("Now")});
    m_filter->setObjectName(QStringLiteral("fileFilter"));
    m_filter->setPlaceholderText(tr("A part of the file's name or folder"));
    m_filter->setClearButtonEnabled(true);
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setObjectName(QStringLiteral("versionsSplitter"));
    splitter->setChildrenCollapsible(false);
    m_list = newView("versions", tr("Versions and unsaved orders"), m_copyRows,
                     {160, 220, 155, 80, 100}, splitter);
    m_rows = newView("differences", tr("Differences"), m_differences, {90, 140, 300, 150, 220},
                     splitter);
    splitter->addWidget(m_list);
    splitter->addWidget(m_rows);
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_filter);
    layout->addWidget(splitter);
    setCentralWidget(page);
    constexpr QSize usualSize(1100, 720);
    resize(usualSize);

    // Who goes through the list with the keyboard is not to wait for each row.
    constexpr int delayMs = 200;
    m_delay->setSingleShot(true);
    m_delay->setInterval(delayMs);
    connect(m_delay, &QTimer::timeout, this, &versionsWindow::compare);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        updateActions();
        m_delay->start();
    });
    connect(m_list, &QTreeView::activated, this, [this] { commandOpen(false); });
    connect(m_filter, &QLineEdit::textChanged, this, &versionsWindow::filter);
}

versionsWindow::~versionsWindow() { stopCounting(); }

void versionsWindow::closeEvent(QCloseEvent *event)
{
    stopCounting();
    m_delay->stop();
    baseWindow::closeEvent(event);
}

void versionsWindow::showNow(const QString &path)
{
    {
        const QSignalBlocker once(m_filter);
        m_filter->setText(path.isEmpty()
                              ? QString()
                              : QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()));
    }
    list();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    m_list->setFocus();
}

void versionsWindow::list()
{
    stopCounting();
    m_copies = keptCopies(m_known);
    m_copyRows->removeRows(0, m_copyRows->rowCount());
    for (size_t i = 0; i < m_copies.size(); ++i) {
        const keptCopy &copy = m_copies[i];
        const QString folder =
            copy.path.isEmpty() ? QString() : QDir::toNativeSeparators(QFileInfo(copy.path).path());
        const QList<QStandardItem *> row =
            rowOf({copy.time.toString(QStringLiteral("dd.MM.yyyy hh:mm:ss")),
                   copy.name,
                   copy.isJournal   ? tr("unsaved changes")
                   : copy.isUnsaved ? tr("unsaved order")
                                    : tr("version"),
                   {},
                   kilobytes(copy.size),
                   folder});
        row.first()->setData(int(i), placeRole);
        for (int column : {int(linesColumn), int(sizeColumn)})
            row[column]->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_copyRows->appendRow(row);
    }
    filter();
    countLines();
}

// Hides what does not match, and goes to the newest that does.
void versionsWindow::filter()
{
    const QString wanted = m_filter->text();
    int first = -1;
    for (int row = 0; row < m_copyRows->rowCount(); ++row) {
        const keptCopy &copy = m_copies[size_t(row)];
        const QString text = QDir::toNativeSeparators(copy.path) + QLatin1Char('\n') + copy.name;
        const bool shown = text.contains(wanted, Qt::CaseInsensitive);
        m_list->setRowHidden(row, {}, !shown);
        if (shown && first < 0)
            first = row;
    }
    m_list->setCurrentIndex(m_copyRows->index(first, 0));
    if (first < 0)
        statusBar()->showMessage(tr("No version is kept"));
    updateActions();
    m_delay->start();
}

const keptCopy *versionsWindow::current() const
{
    const QModelIndex at = m_list->currentIndex();
    return at.isValid() && !m_list->isRowHidden(at.row(), {})
               ? &m_copies[size_t(at.siblingAtColumn(0).data(placeRole).toInt())]
               : nullptr;
}

void versionsWindow::updateActions()
{
    const keptCopy *copy = current();
    const QString none = tr("no version selected");
    setAvailable("open", copy, none);
    setAvailable("restore", copy && !copy->path.isEmpty(),
                 copy ? tr("it is not known which file it is of") : none);
}

QString versionsWindow::otherOf(const keptCopy &copy, QString *name) const
{
    *name = tr("the file now");
    if (!action("nextVersion")->isChecked())
        return copy.path;
    // The newest come first.
    QString other = copy.path;
    for (const keptCopy &one : m_copies) {
        if (&one == &copy)
            break;
        if (one.path == copy.path && !one.isUnsaved) {
            other = one.file;
            *name = tr("the version of %1")
                        .arg(one.time.toString(QStringLiteral("dd.MM.yyyy hh:mm:ss")));
        }
    }
    return other;
}

void versionsWindow::compare()
{
    m_differences->removeRows(0, m_differences->rowCount());
    const keptCopy *copy = current();
    if (!copy || !isVisible())
        return;
    QString name;
    const QString other = otherOf(*copy, &name);
    if (other.isEmpty() || !QFileInfo::exists(other)) {
        statusBar()->showMessage(tr("There is no file to compare it with"));
        return;
    }
    documentDiff diff;
    QString fault;
    bool cancelled = false;
    {
        workProgress::scope work(progress(), tr("Comparing"));
        const auto then = readKept(copy->file, &fault, work.function());
        const auto now = then ? readKept(other, &fault, work.function()) : nullptr;
        if (now)
            diff = compareDocuments(*then, *now, work.function());
        cancelled = work.cancelled();
    }
    if (cancelled) {
        statusBar()->showMessage(tr("Comparing was cancelled"));
        return;
    }
    if (!fault.isEmpty()) {
        statusBar()->showMessage(tr("It cannot be compared: %1").arg(fault));
        return;
    }
    const int count = int(diff.rows.size());
    for (int i = 0; i < std::min(count, shownAtMost); ++i) {
        const documentDifference &row = diff.rows[size_t(i)];
        m_differences->appendRow(
            rowOf({signOf(row), row.group, row.name, row.caption,
                   labels::shownIn(row.field, row.before), labels::shownIn(row.field, row.after)}));
    }
    QString told = count == 0 ? tr("Nothing differs from %1").arg(name)
                              : tr("%n difference(s) from %1", nullptr, count).arg(name);
    if (count > shownAtMost)
        told += QLatin1String(", ") + tr("the first %1 are shown").arg(shownAtMost);
    statusBar()->showMessage(told);
}

// --- Numbers of lines, counted beside
// -------------------------------------------------------------

void versionsWindow::stopCounting()
{
    m_stopped = true;
    if (m_counting)
        m_counting->wait();
    m_counting.reset();
}

void versionsWindow::countLines()
{
    scratch::folder();
    m_stopped = false;
    QStringList files;
    for (const keptCopy &copy : m_copies)
        files.append(copy.file);
    m_counting.reset(QThread::create([this, files] {
        for (int row = 0; row < files.size() && !m_stopped; ++row) {
            const int count = linesOfKept(files[row], [this] { return !m_stopped; });
            QMetaObject::invokeMethod(this, [this, row, count, file = files[row]] {
                if (size_t(row) < m_copies.size() && m_copies[size_t(row)].file == file)
                    m_copyRows->item(row, linesColumn)
                        ->setText(count < 0 ? tr("damaged") : QString::number(count));
            });
        }
    }));
    m_counting->start(QThread::LowPriority);
}

// --- Actions
// --------------------------------------------------------------------------------------

void versionsWindow::commandOpen(bool)
{
    if (const keptCopy *copy = current())
        openCopy(keptCopy(*copy));
}

void versionsWindow::commandRestore(bool)
{
    const keptCopy *copy = current();
    if (copy && !copy->path.isEmpty())
        restoreCopy(keptCopy(*copy));
}

void versionsWindow::commandAgain(bool) { list(); }

void versionsWindow::listAgain()
{
    if (isVisible())
        list();
}

void versionsWindow::commandNextVersion(bool) { compare(); }
