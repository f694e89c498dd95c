#include "bom/needsDialog.h"

#include "bom/bomReport.h"
#include "util/labels.h"
#include "util/text.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace bomOperations;

namespace {

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

QTreeWidgetItem *itemOf(const need &of)
{
    auto *item = new needItem;
    for (int column = 0; column < bomReport::needColumns; ++column) {
        item->setText(column, bomReport::needText(of, bomReport::needColumn(column)));
        item->setToolTip(column, text::toolTip(item->text(column)));
    }
    const char *icon = !of.isKnown() ? "line_unknown" : of.isShort() ? "line_short" : "line_enough";
    item->setIcon(0, QIcon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(icon))));
    return item;
}

QTreeWidgetItem *uncountedItem(const materialStruct &line)
{
    auto *item = new needItem;
    item->setText(bomReport::ktmColumn, line.d_ktm);
    item->setText(bomReport::nameColumn, line.d_name);
    item->setText(bomReport::neededColumn, line.d_quantity);
    item->setIcon(0, QIcon(QStringLiteral(":/icons/icons/system_error_trans_128.png")));
    for (int column = 0; column < bomReport::needColumns; ++column)
        item->setToolTip(column,
                         needsDialog::tr("The quantity is no number; the line is left out"));
    return item;
}

QTreeWidget *tableOf(const demand &of, QWidget *parent)
{
    auto *table = new QTreeWidget(parent);
    table->setObjectName(QStringLiteral("needs"));
    table->setAccessibleName(needsDialog::tr("Needs"));
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setAlternatingRowColors(true);
    QStringList captions;
    for (int column = 0; column < bomReport::needColumns; ++column)
        captions.append(bomReport::needCaption(bomReport::needColumn(column)));
    table->setHeaderLabels(captions);
    QList<QTreeWidgetItem *> items;
    for (const need &one : of.needs)
        items.append(itemOf(one));
    for (const materialStruct *line : of.uncounted)
        items.append(uncountedItem(*line));
    for (QTreeWidgetItem *item : qAsConst(items))
        for (const int column :
             {bomReport::neededColumn, bomReport::inStockColumn, bomReport::shortageColumn})
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    table->addTopLevelItems(items);
    constexpr int widths[] = {230, 210, 90, 150, 90, 70};
    for (int column = 0; column < bomReport::needColumns; ++column)
        table->header()->resizeSection(column, widths[column]);
    // As the lists have them, until the user sorts.
    table->header()->setSortIndicator(-1, Qt::AscendingOrder);
    table->setSortingEnabled(true);
    return table;
}

QString summary(const demand &of, const lineSums &sums)
{
    int shortOf = 0;
    int unknown = 0;
    for (const need &one : of.needs) {
        shortOf += one.isKnown() && one.isShort();
        unknown += !one.isKnown();
    }
    QStringList parts{needsDialog::tr("%n material(s)", nullptr, int(of.needs.size())),
                      needsDialog::tr("%n short of stock", nullptr, shortOf)};
    if (unknown > 0)
        parts.append(needsDialog::tr("%n in no database", nullptr, unknown));
    parts.append(labels::sumPrice() + sums.price.money() + QLatin1String(" [ PLN ]")
                 + sums.price.note());
    return parts.join(QLatin1String(", "));
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

needsDialog::needsDialog(const demand &of, const lineSums &sums, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("needsDialog"));
    setWindowTitle(tr("Materials for the order"));
    auto *amounts = new QGroupBox(tr("Quantity"), this);
    amounts->setLayout(new QVBoxLayout);
    radio(tr("What is needed"), "needed", amounts, true);
    m_short = radio(tr("Only what is short of stock"), "short", amounts);
    auto *present = new QGroupBox(tr("Materials that the order has already"), this);
    present->setLayout(new QVBoxLayout);
    radio(tr("Raise the quantity of their lines"), "raise", present, true);
    m_add = radio(tr("Add lines beside them"), "add", present);
    m_skip = radio(tr("Skip them"), "skip", present);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *go = buttons->addButton(tr("Add to the order"), QDialogButtonBox::AcceptRole);
    go->setObjectName(QStringLiteral("go"));
    go->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tableOf(of, this));
    auto *sum = new QLabel(summary(of, sums), this);
    sum->setObjectName(QStringLiteral("summary"));
    sum->setWordWrap(true);
    layout->addWidget(sum);
    auto *choices = new QHBoxLayout;
    choices->addWidget(amounts);
    choices->addWidget(present);
    layout->addLayout(choices);
    layout->addWidget(buttons);
    constexpr QSize usualSize(900, 620);
    resize(usualSize);
}

amount needsDialog::wantedAmount() const
{
    return m_short->isChecked() ? amount::shortage : amount::needed;
}

present needsDialog::existing() const
{
    return m_add->isChecked() ? present::add : m_skip->isChecked() ? present::skip : present::raise;
}
