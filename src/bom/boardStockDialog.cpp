#include "bom/boardStockDialog.h"

#include "tree/shownTexts.h"
#include "util/labels.h"
#include "util/text.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace bomOperations;
using boardStock::taking;

namespace {

struct column
{
    int width;
    bool isNumber;
    QString (*text)(const taking &of, bool withExtra);
};

QString filled(const decimal &number) { return number == decimal() ? QString() : number.text(); }

// In the order of their captions.
const column columns[] = {
    {180, false, [](const taking &of, bool) { return of.of->ktm; }},
    {210, false, [](const taking &of, bool) { return of.of->name; }},
    {80, true, [](const taking &of, bool) { return of.of->needed.text(); }},
    {80, true,
     [](const taking &of, bool withExtra) { return withExtra ? filled(of.of->extra) : QString(); }},
    {90, true,
     [](const taking &of, bool) {
         return of.of->inStock ? of.of->inStock->text() : QStringLiteral("?");
     }},
    {90, true, [](const taking &of, bool) { return filled(of.of->reserved); }},
    {80, true, [](const taking &of, bool) { return of.of->inStock ? of.after.text() : QString(); }},
    {80, true, [](const taking &of, bool) { return filled(of.lacking); }},
    {150, false, [](const taking &of, bool) { return of.fault; }},
};

} // namespace

boardStockDialog::boardStockDialog(purpose wanted, const demand &of, const ktmIndex &materials,
                                   const QString &boards, QWidget *parent)
    : QDialog(parent)
    , m_wanted(wanted)
    , m_of(of)
    , m_materials(materials)
    , m_boards(boards)
    , m_extra(new QCheckBox(tr("With what gets &lost while the boards are built"), this))
    , m_table(new QTreeWidget(this))
    , m_sum(new QLabel(this))
{
    setObjectName(QStringLiteral("boardStockDialog"));
    setWindowTitle(wanted == reserving ? tr("Reserve stock for boards")
                                       : tr("Take built boards out of stock"));
    m_table->setObjectName(QStringLiteral("stock"));
    m_table->setAccessibleName(windowTitle());
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setHeaderLabels({labels::ktm(), labels::name(), tr("Needed"), tr("Attrition"),
                              labels::inWarehouse(), labels::reserved(), tr("Then"), tr("Lacking"),
                              tr("Note")});
    for (int i = 0; i < int(std::size(columns)); ++i)
        m_table->header()->resizeSection(
            i, std::max(columns[i].width, m_table->header()->sectionSizeHint(i)));

    m_extra->setObjectName(QStringLiteral("withExtra"));
    const bool anyExtra = std::any_of(of.needs.begin(), of.needs.end(),
                                      [](const need &one) { return one.extra > decimal(); });
    m_extra->setVisible(anyExtra);
    m_extra->setChecked(anyExtra);
    connect(m_extra, &QCheckBox::toggled, this, &boardStockDialog::showRows);

    m_sum->setObjectName(QStringLiteral("summary"));
    m_sum->setTextFormat(Qt::PlainText);
    m_sum->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    m_go = buttons->addButton(wanted == reserving ? tr("&Reserve") : tr("&Take out"),
                              QDialogButtonBox::AcceptRole);
    m_go->setObjectName(QStringLiteral("go"));
    m_go->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    QPushButton *copying = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copying->setAutoDefault(false);
    connect(copying, &QPushButton::clicked, this, &boardStockDialog::copy);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_sum);
    layout->addWidget(m_table);
    layout->addWidget(m_extra);
    layout->addWidget(buttons);
    constexpr QSize usualSize(1180, 560);
    resize(usualSize);
    showRows();
    m_go->setFocus();
}

bool boardStockDialog::withExtra() const { return m_extra->isChecked(); }

void boardStockDialog::showRows()
{
    m_takings = boardStock::takingsOf(m_of, m_materials, withExtra());
    m_table->clear();
    QList<QTreeWidgetItem *> items;
    int lacking = 0;
    int unknown = 0;
    int taken = 0;
    for (const taking &one : m_takings) {
        auto *item = new QTreeWidgetItem;
        for (int i = 0; i < int(std::size(columns)); ++i) {
            item->setText(i, columns[i].text(one, withExtra()));
            item->setToolTip(i, text::toolTip(item->text(i)));
            if (columns[i].isNumber)
                item->setTextAlignment(i, Qt::AlignRight | Qt::AlignVCenter);
        }
        const char *icon = !one.of->isKnown()        ? "line_unknown"
                           : one.lacking > decimal() ? "line_short"
                                                     : "line_enough";
        item->setIcon(1, QIcon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(icon))));
        lacking += one.of->isKnown() && one.lacking > decimal() ? 1 : 0;
        unknown += one.of->isKnown() ? 0 : 1;
        taken += m_wanted == reserving ? int(one.of->isKnown()) : int(one.isTaken());
        items.append(item);
    }
    m_table->addTopLevelItems(items);
    QStringList parts{tr("%n material(s)", nullptr, int(m_takings.size()))};
    if (lacking > 0)
        parts.append(tr("%n lacking in stock", nullptr, lacking));
    if (unknown > 0)
        parts.append(tr("%n in no database", nullptr, unknown));
    if (!m_of.uncounted.empty())
        parts.append(tr("%n line(s) without a quantity", nullptr, int(m_of.uncounted.size())));
    m_sum->setText(m_boards + QLatin1Char('\n') + parts.join(QLatin1String(", ")));
    m_go->setEnabled(taken > 0);
    m_go->setToolTip(taken > 0 ? QString() : tr("there is nothing to take"));
}

void boardStockDialog::copy() { copyShown(*m_table); }
