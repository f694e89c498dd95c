#include "bom/needsDialog.h"

#include "bom/bomReport.h"
#include "tree/shownTexts.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/tableFile.h"
#include "util/text.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace bomOperations;
using namespace bomReport;

namespace {

constexpr int needRole = Qt::UserRole;

// Numbers by value, anything else by its text.
class needItem : public QTreeWidgetItem
{
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem &other) const override
    {
        const int column = treeWidget()->sortColumn();
        const auto mine = decimal::read(text(column));
        const auto its = decimal::read(other.text(column));
        return mine && its ? *mine < *its : QTreeWidgetItem::operator<(other);
    }
};

QTreeWidgetItem *uncountedItem(const materialStruct &line)
{
    auto *item = new needItem;
    item->setText(workKtm, line.d_ktm);
    item->setText(workName, line.d_name);
    item->setText(workNeeded, line.d_quantity);
    item->setIcon(workName, QIcon(QStringLiteral(":/icons/icons/system_error_trans_128.png")));
    item->setData(0, needRole, -1);
    for (int column = 0; column < workColumns; ++column)
        item->setToolTip(column,
                         needsDialog::tr("The quantity is no number; the line is left out"));
    return item;
}

QRadioButton *radio(const QString &text, const char *name, QGroupBox *box, bool checked = false)
{
    auto *button = new QRadioButton(text, box);
    button->setObjectName(QLatin1String(name));
    button->setChecked(checked);
    box->layout()->addWidget(button);
    return button;
}

} // namespace

needsDialog::needsDialog(const demand &of, const kiv_mat_zpStruct &order, const QString &proposed,
                         QWidget *parent)
    : QDialog(parent)
    , m_of(of)
    , m_order(order)
    , m_proposed(proposed)
    , m_table(new QTreeWidget(this))
    , m_sum(new QLabel(this))
{
    setObjectName(QStringLiteral("needsDialog"));
    setWindowTitle(tr("Materials for the order"));
    auto *amounts = new QGroupBox(tr("Quantity"), this);
    amounts->setLayout(new QVBoxLayout);
    radio(tr("What is needed"), "needed", amounts, true);
    m_short = radio(tr("Only what is short of stock"), "short", amounts);
    m_topUp = radio(tr("What the order lacks of what is needed"), "topUp", amounts);
    m_neverTwice = new QCheckBox(tr("Never t&wice: less what is on the way"), amounts);
    m_neverTwice->setObjectName(QStringLiteral("neverTwice"));
    m_neverTwice->setEnabled(std::any_of(of.needs.begin(), of.needs.end(),
                                         [](const need &one) { return one.onTheWay > decimal(); }));
    m_neverTwice->setToolTip(m_neverTwice->isEnabled()
                                 ? tr("Other orders have some of these materials, not invoiced yet")
                                 : tr("No other order has any of these materials on the way"));
    amounts->layout()->addWidget(m_neverTwice);
    connect(m_neverTwice, &QCheckBox::toggled, this, &needsDialog::showRows);
    auto *present = new QGroupBox(tr("Materials that the order has already"), this);
    present->setLayout(new QVBoxLayout);
    radio(tr("Raise the quantity of their lines"), "raise", present, true);
    m_add = radio(tr("Add lines beside them"), "add", present);
    m_skip = radio(tr("Skip them"), "skip", present);
    for (QRadioButton *button : findChildren<QRadioButton *>())
        connect(button, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                showRows();
        });

    auto *buttons = new QDialogButtonBox(this);
    m_go = buttons->addButton(tr("Add to the order"), QDialogButtonBox::AcceptRole);
    m_go->setObjectName(QStringLiteral("go"));
    m_go->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    const auto other = [&](const QString &text, const char *name, auto &&act) {
        QPushButton *button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, act);
    };
    other(tr("Mark &all"), "all", [this] { tickAll(true); });
    other(tr("Mark &none"), "none", [this] { tickAll(false); });
    other(tr("&Copy"), "copy", [this] { copy(); });
    other(tr("&Save as ..."), "saveAs", [this] { save(); });
    other(tr("&Baskets ..."), "baskets", [this] { emit basketsWanted(); });
    findChild<QPushButton *>(QStringLiteral("baskets"))
        ->setToolTip(tr("What is ticked as orders for the shops of the suppliers"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    makeTable();
    m_sum->setObjectName(QStringLiteral("summary"));
    m_sum->setTextFormat(Qt::PlainText);
    m_sum->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addWidget(m_sum);
    auto *choices = new QHBoxLayout;
    choices->addWidget(amounts);
    choices->addWidget(present);
    layout->addLayout(choices);
    layout->addWidget(buttons);
    constexpr QSize usualSize(1380, 660);
    resize(usualSize);
    showRows();
    m_go->setFocus();
}

void needsDialog::makeTable()
{
    m_table->setObjectName(QStringLiteral("needs"));
    m_table->setAccessibleName(tr("Needs"));
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->installEventFilter(this);
    QStringList captions;
    for (int column = 0; column < workColumns; ++column)
        captions.append(workCaption(workColumn(column)));
    m_table->setHeaderLabels(captions);
    QList<QTreeWidgetItem *> items;
    for (size_t i = 0; i < m_of.needs.size(); ++i) {
        const need &one = m_of.needs[i];
        auto *item = new needItem;
        item->setData(0, needRole, int(i));
        const char *icon = !one.isKnown()  ? "line_unknown"
                           : one.isShort() ? "line_short"
                                           : "line_enough";
        item->setIcon(workName,
                      QIcon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(icon))));
        if (one.isKnown())
            item->setCheckState(0, Qt::Checked);
        m_items.push_back(item);
        items.append(item);
    }
    for (const materialStruct *line : m_of.uncounted)
        items.append(uncountedItem(*line));
    for (QTreeWidgetItem *item : qAsConst(items))
        for (int column = 0; column < workColumns; ++column)
            if (isNumber(workColumn(column)))
                item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    m_table->addTopLevelItems(items);
    constexpr int widths[] = {190, 190, 75, 60, 85, 75, 75, 60, 70, 75, 60, 50, 70, 85, 210, 130};
    for (int column = 0; column < workColumns; ++column)
        m_table->header()->resizeSection(
            column, std::max(widths[column], m_table->header()->sectionSizeHint(column)));
    // As the lists have them, until the user sorts.
    m_table->header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
    connect(m_table, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *, int column) {
        if (column == 0)
            showSums();
    });
}

wish needsDialog::wanted() const
{
    return {m_short->isChecked()   ? amount::shortage
            : m_topUp->isChecked() ? amount::topUp
                                   : amount::needed,
            m_add->isChecked()    ? present::add
            : m_skip->isChecked() ? present::skip
                                  : present::raise,
            m_neverTwice->isChecked()};
}

// What is in no database has no tick, and is named when the plan is carried out.
bool needsDialog::isChosen(const need &one) const
{
    const size_t place = size_t(&one - m_of.needs.data());
    return !one.isKnown() || m_items[place]->checkState(0) == Qt::Checked;
}

void needsDialog::showRows()
{
    m_rows = orderedNeeds(m_of, m_order, wanted());
    {
        const QSignalBlocker quiet(m_table);
        for (size_t i = 0; i < m_rows.size(); ++i)
            for (int column = 0; column < workColumns; ++column) {
                m_items[i]->setText(column, workText(m_rows[i], workColumn(column)));
                m_items[i]->setToolTip(column, text::toolTip(m_items[i]->text(column)));
            }
    }
    m_table->viewport()->update();
    showSums();
}

void needsDialog::showSums()
{
    int ordered = 0;
    int shortOf = 0;
    int unknown = 0;
    int onTheWay = 0;
    lineSums sums;
    for (const orderedNeed &row : m_rows) {
        shortOf += row.of->isKnown() && row.of->isShort() ? 1 : 0;
        unknown += row.of->isKnown() ? 0 : 1;
        onTheWay += row.of->onTheWay > decimal() ? 1 : 0;
        if (!row.of->isKnown() || !isChosen(*row.of) || row.toOrder == decimal())
            continue;
        ++ordered;
        sums.add(row.toOrder, row.of->material->d_price, row.of->material->d_averagePrice);
    }
    QStringList parts{tr("%n material(s)", nullptr, int(m_rows.size())),
                      tr("%n short of stock", nullptr, shortOf)};
    if (unknown > 0)
        parts.append(tr("%n in no database", nullptr, unknown));
    if (onTheWay > 0)
        parts.append(tr("%n on the way already", nullptr, onTheWay));
    parts.append(tr("%n to be ordered", nullptr, ordered));
    parts.append(labels::sumPrice() + sums.price.money() + QLatin1String(" [ PLN ]")
                 + sums.price.note());
    m_sum->setText(parts.join(QLatin1String(", ")));
    // What is unknown is still to be named.
    m_go->setEnabled(ordered > 0 || unknown > 0);
    m_go->setToolTip(m_go->isEnabled() ? QString() : tr("nothing would be ordered"));
}

// All of them before the sums, which look at each row.
void needsDialog::tick(const QList<QTreeWidgetItem *> &items, Qt::CheckState wanted)
{
    {
        const QSignalBlocker quiet(m_table);
        for (QTreeWidgetItem *item : items)
            if (!item->data(0, Qt::CheckStateRole).isNull())
                item->setCheckState(0, wanted);
    }
    m_table->viewport()->update();
    showSums();
}

void needsDialog::tickAll(bool ticked)
{
    tick({m_items.begin(), m_items.end()}, ticked ? Qt::Checked : Qt::Unchecked);
}

// Space ticks all that is selected like the current row.
bool needsDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        const QTreeWidgetItem *current = m_table->currentItem();
        if (!current || current->data(0, Qt::CheckStateRole).isNull())
            return true;
        const Qt::CheckState wanted =
            current->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked;
        tick(m_table->selectedItems(), wanted);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void needsDialog::copy() { copyShown(*m_table); }

void needsDialog::save()
{
    const QString path = userPrompts().saveFile(tr("Save to File"), m_proposed,
                                                tr("Xlsx File") + QLatin1String(" (*.xlsx);;")
                                                    + tr("CSV File") + QLatin1String(" (*.csv)"));
    if (path.isEmpty())
        return;
    const QList<QStringList> rows = shownTexts(*m_table);
    tableFile::content table;
    table.sheet = QStringLiteral("BOM");
    for (int column = 0; column < workColumns; ++column)
        if (isNumber(workColumn(column)))
            table.numbers.append(column);
    table.captions = rows.first();
    table.rows = rows.size() - 1;
    table.cells = [&rows](int row) { return rows.at(row + 1); };
    QString fault;
    if (tableFile::write(table, path, &fault) == tableFile::failed)
        userPrompts().showError(messages::notWritten(path, fault));
}
