#include "orders/annualPlanWindow.h"

#include "data/programData.h"
#include "data/vocabulary.h"
#include "orders/annualPlanReport.h"
#include "orders/barChart.h"
#include "orders/reportSaving.h"
#include "tree/shownTexts.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"
#include "window/rowTable.h"
#include "window/workProgress.h"

#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using namespace annualPlan;

namespace {

const windowAction<annualPlanWindow> actionTable[] = {
    {{"saveReport", QT_TRANSLATE_NOOP("actions", "File"),
      QT_TRANSLATE_NOOP("actions", "Save report ..."), "action_report", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Save the plan as a page, for printing, or as a workbook"),
      true},
     &annualPlanWindow::commandSaveReport},
    {{"open", "File", QT_TRANSLATE_NOOP("actions", "Open"), "action_open", "Ctrl+O",
      QT_TRANSLATE_NOOP("actions", "Open this order in the main window, at this line"), true},
     &annualPlanWindow::commandOpen},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"close", "File", "Close", "action_close", "Ctrl+W", nullptr},
     &annualPlanWindow::commandClose},

    {{"copy", QT_TRANSLATE_NOOP("actions", "Edit"), QT_TRANSLATE_NOOP("actions", "Copy rows"),
      "action_copy", "Ctrl+C", QT_TRANSLATE_NOOP("actions", "Copy the selected rows as text"),
      true},
     &annualPlanWindow::commandCopy},

    {{"readAgain", QT_TRANSLATE_NOOP("actions", "Tools"),
      QT_TRANSLATE_NOOP("actions", "Read again"), "action_refresh", "F5",
      QT_TRANSLATE_NOOP("actions", "Look for orders that are new or were changed"), true},
     &annualPlanWindow::commandReadAgain},
};

constexpr int restMs = 400;
constexpr size_t chartRows = 30; // more than a window has room for
constexpr int warningsShown = 4; // by themselves

QString money(const decimal &amount) { return numbers::grouped(amount.money()); }

// The word stands beside the picture.
const QIcon &iconOf(standing state)
{
    static const std::array<QIcon, 4> icons{
        QIcon(),
        QIcon(QStringLiteral(":/icons/icons/led_green.png")),
        QIcon(QStringLiteral(":/icons/icons/led_purple.png")),
        QIcon(QStringLiteral(":/icons/icons/led_red.png")),
    };
    return icons[size_t(state)];
}

QVariant alignment(bool isNumber)
{
    return int(Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft));
}

} // namespace

// --- The plan's rows
// ------------------------------------------------------------------------------

using annualPlanReport::column;

int planRows::widthOf(int column)
{
    constexpr int widths[annualPlanReport::columns] = {180, 155, 145, 120, 100,
                                                       65,  75,  80,  160, 150};
    return widths[column];
}

void planRows::show(plan plan)
{
    beginResetModel();
    m_plan = std::move(plan);
    endResetModel();
}

int planRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_plan.rows.size());
}

int planRows::columnCount(const QModelIndex &) const { return annualPlanReport::columns; }

QVariant planRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return annualPlanReport::caption(column(section), m_plan.what.by);
    if (role == Qt::TextAlignmentRole)
        return alignment(annualPlanReport::isNumber(column(section)));
    return {};
}

QVariant planRows::data(const QModelIndex &index, int role) const
{
    const row &of = m_plan.rows[size_t(index.row())];
    const auto which = column(index.column());
    const auto cell = [&] { return annualPlanReport::cell(of, which, m_plan.total); };
    switch (role) {
    case Qt::DisplayRole:
        return annualPlanReport::shown(cell(), which);
    case sortRole:
        if (which == annualPlanReport::stateColumn)
            return int(of.state);
        return annualPlanReport::isNumber(which) ? QVariant(cell().toDouble()) : cell();
    case Qt::TextAlignmentRole:
        return alignment(annualPlanReport::isNumber(which));
    case Qt::DecorationRole:
        return which == annualPlanReport::stateColumn && of.state != standing::none
                   ? QVariant(iconOf(of.state))
                   : QVariant();
    case Qt::ToolTipRole:
        return text::toolTip(annualPlanReport::shown(cell(), which));
    default:
        return {};
    }
}

// --- Lines without a code
// -------------------------------------------------------------------------

int withoutCodeRows::widthOf(int column)
{
    constexpr int widths[columns] = {140, 60, 180, 320, 160};
    return widths[column];
}

void withoutCodeRows::show(std::vector<lineWithoutCode> lines)
{
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

int withoutCodeRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

QVariant withoutCodeRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section == line);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case order:
        return tr("Order");
    case line:
        return tr("Line");
    case ktm:
        return labels::ktm();
    case name:
        return labels::name();
    default:
        return labels::cpv();
    }
}

QVariant withoutCodeRows::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column() == line);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const lineWithoutCode &of = at(index.row());
    const auto shown = [&]() -> QString {
        switch (index.column()) {
        case order:
            return of.order;
        case line:
            return QString::number(of.line + 1);
        case ktm:
            return of.ktm;
        case name:
            return of.name;
        default:
            return of.cpv;
        }
    };
    if (role == Qt::DisplayRole)
        return shown();
    return text::toolTip(index.column() == order ? QDir::toNativeSeparators(of.path) : shown());
}

// --- The window
// -----------------------------------------------------------------------------------

annualPlanWindow::annualPlanWindow(programData &known, orderRegister &orders)
    : baseWindow(QStringLiteral("annualPlanWindow"))
    , m_known(known)
    , m_orders(orders)
    , m_year(new QComboBox(this))
    , m_grouping(new QComboBox(this))
    , m_digits(new QSpinBox(this))
    , m_chart(new barChart(this))
    , m_thresholds(new QLabel(this))
    , m_sums(new QLabel(this))
    , m_heading(new QLabel(this))
{
    setWindowTitle(tr("Annual plan"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_sum.png")));
    addActions(actionTable);
    buildWidgets();
    m_again.setSingleShot(true);
    m_again.setInterval(restMs);
    connect(&m_again, &QTimer::timeout, this, [this] {
        if (isVisible())
            readAgain();
    });
}

void annualPlanWindow::buildWidgets()
{
    m_sorted.setSourceModel(&m_rows);
    m_sorted.setSortRole(planRows::sortRole);
    m_sorted.setSortCaseSensitivity(Qt::CaseInsensitive);
    m_table = newTable("plan", tr("Sums of the year"), &m_sorted);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(annualPlanReport::estimatedColumn, Qt::DescendingOrder);
    for (int i = 0; i < annualPlanReport::columns; ++i)
        resizeColumn(m_table->header(), i, planRows::widthOf(i));
    m_lines = newTable("withoutCode", tr("Lines without a CPV code"), &m_without);
    for (int i = 0; i < withoutCodeRows::columns; ++i)
        resizeColumn(m_lines->header(), i, withoutCodeRows::widthOf(i));
    connect(m_lines, &QTreeView::activated, this, [this] { commandOpen(false); });
    m_chart->setObjectName(QStringLiteral("chart"));
    m_chart->setAccessibleName(tr("Bars of the greatest sums"));
    m_chart->setLegend(tr("Estimated"), tr("Ordered"), tr("Threshold"),
                       tr("There are no orders of this year"));
    m_thresholds->setObjectName(QStringLiteral("thresholds"));
    m_sums->setObjectName(QStringLiteral("sums"));
    m_heading->setObjectName(QStringLiteral("heading"));
    for (QLabel *label : {m_thresholds, m_sums, m_heading}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }

    auto *lower = new QWidget(this);
    auto *lowerLayout = new QVBoxLayout(lower);
    lowerLayout->setContentsMargins(0, 0, 0, 0);
    lowerLayout->addWidget(m_heading);
    lowerLayout->addWidget(m_lines);
    auto *parts = new QSplitter(Qt::Vertical, this);
    parts->setObjectName(QStringLiteral("parts"));
    for (QWidget *part : {static_cast<QWidget *>(m_table), static_cast<QWidget *>(m_chart), lower})
        parts->addWidget(part);
    parts->setChildrenCollapsible(false);
    parts->setSizes({250, 230, 120});

    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(newChoices());
    layout->addWidget(m_thresholds);
    layout->addWidget(parts, 1);
    layout->addWidget(m_sums);
    setCentralWidget(page);
    constexpr QSize usualSize(1260, 800);
    resize(usualSize);
    updateActions();
}

QWidget *annualPlanWindow::newChoices()
{
    auto *choices = new QWidget(this);
    auto *layout = new QHBoxLayout(choices);
    layout->setContentsMargins(0, 0, 0, 0);
    addCaptioned(layout, m_year, "year", tr("&Year"));
    addCaptioned(layout, m_grouping, "grouping", tr("&Sums by"));
    addCaptioned(layout, m_digits, "digits", tr("&Digits of a group"));
    layout->addStretch();
    m_grouping->addItem(tr("CPV group"), int(grouping::group));
    m_grouping->addItem(tr("CPV code"), int(grouping::cpv));
    m_grouping->addItem(labels::target(), int(grouping::target));
    m_grouping->addItem(labels::supplier(), int(grouping::firm));
    m_digits->setRange(fewestDigits, mostDigits);
    m_year->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(m_year, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &annualPlanWindow::compute);
    connect(m_grouping, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &annualPlanWindow::compute);
    connect(m_digits, qOverload<int>(&QSpinBox::valueChanged), this, &annualPlanWindow::compute);
    return choices;
}

QTreeView *annualPlanWindow::newTable(const char *name, const QString &accessibleName,
                                      QAbstractItemModel *model)
{
    QTreeView *table = newRowTable(name, accessibleName, model, this);
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &annualPlanWindow::updateActions);
    return table;
}

QTreeView *annualPlanWindow::view() const { return focusWidget() == m_lines ? m_lines : m_table; }

// --- Reading and adding up
// ------------------------------------------------------------------------

void annualPlanWindow::showNow()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    statusBar()->clearMessage();
    readAgain();
    m_table->setFocus();
}

void annualPlanWindow::readAgain()
{
    if (m_reading)
        return;
    const QScopedValueRollback reading(m_reading, true);
    const QStringList folders = m_known.config().orderFolders();
    QStringList lacking;
    for (const QString &folder : folders)
        if (!QDir(folder).exists())
            lacking.append(QDir::toNativeSeparators(folder));
    bool complete = false;
    {
        workProgress::scope work(progress(), tr("Reading orders"));
        complete = m_orders.update(folders, work.function());
    }
    const QString limits = m_known.config().options.value(QString(optionKey::orderThresholds));
    if (m_orders.revision() != m_shownRevision || limits != m_shownLimits) {
        m_shownRevision = m_orders.revision();
        m_shownLimits = limits;
        m_limits = readThresholds(limits);
        offerYears();
        compute();
    }
    if (!complete)
        tell(tr("Reading was cancelled; some orders are missing"));
    else if (!lacking.isEmpty())
        tell(tr("There is no folder %1").arg(lacking.join(QLatin1String(", "))));
    else if (const QStringList faults = m_orders.faults(); !faults.isEmpty())
        tell(faults.join(QLatin1String("; ")));
}

// The year that was chosen stays, as long as there are orders of it.
void annualPlanWindow::offerYears()
{
    const QSignalBlocker quiet(m_year);
    const QVariant before = m_year->currentData();
    m_year->clear();
    for (const int year : yearsOf(m_orders.index()))
        m_year->addItem(QString::number(year), year);
    m_year->setCurrentIndex(std::max(m_year->findData(before), m_year->count() > 0 ? 0 : -1));
    m_year->setEnabled(m_year->count() > 0);
}

question annualPlanWindow::asked() const
{
    const bool hasYear = m_year->currentIndex() >= 0;
    return {hasYear ? m_year->currentData().toInt() : QDate::currentDate().year(),
            grouping(m_grouping->currentData().toInt()), m_digits->value()};
}

void annualPlanWindow::choose(const question &what)
{
    const QSignalBlocker quietYear(m_year), quietGrouping(m_grouping), quietDigits(m_digits);
    m_year->setCurrentIndex(m_year->findData(what.year));
    m_grouping->setCurrentIndex(m_grouping->findData(int(what.by)));
    m_digits->setValue(what.digits);
    m_digits->setEnabled(what.by == grouping::group);
}

void annualPlanWindow::compute()
{
    workProgress::scope work(progress(), tr("Adding up orders"));
    plan made = planOf(m_orders.index(), asked(), m_limits, optionsOf(m_orders), work.function());
    if (!made.complete) {
        choose(m_rows.shown().what);
        tell(tr("Adding up was cancelled; the sums before are shown"));
        return;
    }
    // The row that one was at stays current.
    const QString current = m_table->currentIndex().siblingAtColumn(0).data().toString();
    m_without.show(made.withoutCode);
    m_rows.show(std::move(made));
    choose(m_rows.shown().what);
    QModelIndex at = m_sorted.index(0, 0);
    for (int i = 0; i < m_sorted.rowCount(); ++i)
        if (m_sorted.index(i, 0).data().toString() == current)
            at = m_sorted.index(i, 0);
    m_table->selectionModel()->setCurrentIndex(at, QItemSelectionModel::ClearAndSelect
                                                       | QItemSelectionModel::Rows);
    showPlan();
}

void annualPlanWindow::showPlan()
{
    const plan &shown = m_rows.shown();
    QStringList warnings;
    if (!m_limits.faults.isEmpty())
        warnings.append(
            labels::optionCaption(QString(optionKey::orderThresholds)) + QLatin1String(": ")
            + tr("is not understood: %1").arg(m_limits.faults.join(QLatin1String("; "))));
    for (const QString &one : annualPlanReport::reached(shown, standing::above))
        warnings.append(QChar(0x25B2) + QLatin1Char(' ') + one);
    for (const QString &one : annualPlanReport::reached(shown, standing::almost))
        warnings.append(QChar(0x25B3) + QLatin1Char(' ') + one);
    m_thresholds->setToolTip(text::toolTip(warnings.join(QLatin1Char('\n'))));
    const int more = warnings.size() - warningsShown;
    if (more > 0)
        warnings = warnings.mid(0, warningsShown) + QStringList{tr("and %n more", nullptr, more)};
    m_thresholds->setText(warnings.join(QLatin1Char('\n')));
    m_thresholds->setVisible(!warnings.isEmpty());

    const sums &total = shown.total;
    QStringList texts{tr("Estimated %1 PLN, ordered %2 PLN, rest %3 PLN")
                          .arg(money(total.estimated), money(total.ordered), money(total.rest())),
                      tr("%n line(s)", nullptr, total.lines) + QLatin1String(", ")
                          + tr("%n order(s)", nullptr, total.orders)};
    m_sums->setText((texts + annualPlanReport::leftOut(shown)).join(QLatin1String("; ")));

    const int without = int(shown.withoutCode.size());
    m_heading->setText(without > 0 ? tr("%n line(s) without a CPV code", nullptr, without)
                                   : tr("All lines have a CPV code"));
    m_lines->setVisible(without > 0);
    showChart();
    updateActions();
}

void annualPlanWindow::showChart()
{
    const plan &shown = m_rows.shown();
    std::vector<barChart::pair> bars;
    for (const row &one : shown.rows) {
        if (bars.size() == chartRows)
            break;
        barChart::pair bar;
        bar.name = nameOf(one);
        bar.first = one.of.estimated.text().toDouble();
        bar.second = one.of.ordered.text().toDouble();
        bar.firstText = money(one.of.estimated);
        bar.secondText = money(one.of.ordered);
        if (one.threshold)
            bar.threshold = one.threshold->text().toDouble();
        const QString state =
            annualPlanReport::cell(one, annualPlanReport::stateColumn, shown.total);
        if (one.threshold)
            bar.thresholdText = tr("threshold %1: %2").arg(money(*one.threshold), state);
        else if (!state.isEmpty())
            bar.thresholdText = tr("threshold: %1").arg(state);
        bars.push_back(bar);
    }
    m_chart->setRows(std::move(bars));
}

// --- Actions
// --------------------------------------------------------------------------------------

void annualPlanWindow::updateActions()
{
    if (!m_lines)
        return;
    const bool hasRow = m_table->selectionModel()->hasSelection();
    const bool hasLine = m_lines->selectionModel()->hasSelection();
    setAvailable("saveReport", m_rows.rowCount() > 0, tr("there are no orders of this year"));
    setAvailable("open", hasLine, tr("no line without a CPV code is selected"));
    setAvailable("copy", hasRow || hasLine, tr("no row is selected"));
}

void annualPlanWindow::tell(const QString &text) { statusBar()->showMessage(text); }

void annualPlanWindow::commandOpen(bool)
{
    const QModelIndex row = m_lines->currentIndex();
    if (!row.isValid())
        return;
    const lineWithoutCode of = m_without.at(row.row());
    emit openWanted(of.path, of.ktm, of.line);
}

void annualPlanWindow::commandCopy(bool)
{
    const QTreeView *from = view()->selectionModel()->hasSelection() ? view() : m_table;
    const QModelIndexList rows = from->selectionModel()->selectedRows();
    copyRows(rows);
    tell(tr("%n row(s) copied", nullptr, rows.size()));
}

void annualPlanWindow::commandReadAgain(bool)
{
    statusBar()->clearMessage();
    readAgain();
    if (statusBar()->currentMessage().isEmpty())
        tell(tr("The plan is as the orders' files are"));
}

// The rows stand in the report as they do here where they are sorted by name.
plan annualPlanWindow::planAsSorted() const
{
    plan sorted = m_rows.shown();
    sortRows(sorted.rows, m_sorted.sortColumn() == annualPlanReport::nameColumn);
    return sorted;
}

void annualPlanWindow::commandSaveReport(bool)
{
    const plan saved = planAsSorted();
    const QString told =
        saveReport({annualPlanReport::proposedPath(saved), annualPlanReport::title(saved),
                    [&saved] { return annualPlanReport::page(saved); },
                    [&saved](const QString &path, QString *fault, const progressFunction &asked) {
                        return annualPlanReport::write(saved, path, fault, asked);
                    }},
                   m_known.config(), progress());
    if (!told.isEmpty())
        tell(told);
}

void annualPlanWindow::changeEvent(QEvent *event)
{
    baseWindow::changeEvent(event);
    // Orders may have been changed and sent meanwhile.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isVisible())
        m_again.start();
}
