#include "window/mergeDialog.h"

#include "util/labels.h"
#include "util/text.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum column
{
    lineColumn,
    fieldColumn,
    openedColumn,
    mineColumn,
    theirsColumn,
    takeColumn,
    columnCount
};

QString shown(const mergeRow &row, const QString &text)
{
    return text.isNull() ? mergeDialog::tr("not there")
                         : labels::shownIn(row.field, text).replace('\n', ' ');
}

} // namespace

mergeDialog::mergeDialog(std::vector<mergeRow> &rows, bool mayTake, QWidget *parent)
    : QDialog(parent)
    , m_rows(rows)
    , m_view(new QTreeWidget(this))
    , m_count(new QLabel(this))
    , m_mayTake(mayTake)
{
    setWindowTitle(tr("Changes here and by another program"));
    m_view->setObjectName(QStringLiteral("versions"));
    m_view->setAccessibleName(windowTitle());
    m_view->setHeaderLabels(
        {tr("Line"), tr("Field"), tr("As opened"), tr("Mine"), tr("Theirs"), tr("Take")});
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QList<QTreeWidgetItem *> items;
    for (const mergeRow &row : m_rows) {
        const QStringList texts{row.line,
                                row.field.isEmpty() ? tr("the whole line")
                                                    : mergeCaption(row.field),
                                shown(row, row.opened),
                                shown(row, row.mine),
                                shown(row, row.theirs),
                                QString()};
        auto *item = new QTreeWidgetItem(texts);
        for (int column = 0; column < columnCount; ++column)
            item->setToolTip(column, text::toolTip(texts[column]));
        items.append(item);
    }
    m_view->addTopLevelItems(items);
    // The line ends in what tells it from others: a KTM and a name.
    constexpr int widths[] = {340, 110, 150, 150, 150, 90};
    for (int column = 0; column < columnCount; ++column)
        m_view->header()->resizeSection(column, widths[column]);

    auto *buttons = new QDialogButtonBox(this);
    m_merge = buttons->addButton(tr("Merge"), QDialogButtonBox::AcceptRole);
    m_merge->setObjectName(QStringLiteral("mergeVersions"));
    m_merge->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    for (const bool theirs : {false, true}) {
        QPushButton *button = buttons->addButton(theirs ? tr("Take &theirs") : tr("Take &mine"),
                                                 QDialogButtonBox::ActionRole);
        button->setObjectName(theirs ? QStringLiteral("takeTheirs") : QStringLiteral("takeMine"));
        button->setToolTip(tr("In the selected rows"));
        // Return merges, wherever the focus is.
        button->setAutoDefault(false);
        button->setEnabled(m_mayTake);
        connect(button, &QPushButton::clicked, this, [this, theirs] { take(theirs); });
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_count->setObjectName(QStringLiteral("mergeCount"));
    m_count->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_count);
    layout->addWidget(m_view);
    layout->addWidget(buttons);
    constexpr QSize usualSize(1040, 560);
    resize(usualSize);
    for (int row = 0; row < int(m_rows.size()); ++row)
        showChoice(row);
    showCount();
    if (m_view->topLevelItemCount() > 0)
        m_view->setCurrentItem(m_view->topLevelItem(0));
}

void mergeDialog::take(bool theirs)
{
    for (const QModelIndex &index : m_view->selectionModel()->selectedRows()) {
        mergeRow &row = m_rows[size_t(index.row())];
        row.picked = true;
        row.takeTheirs = theirs;
        showChoice(index.row());
    }
    showCount();
}

void mergeDialog::showChoice(int at)
{
    const mergeRow &row = m_rows[size_t(at)];
    QTreeWidgetItem *item = m_view->topLevelItem(at);
    item->setText(takeColumn, !row.picked      ? QStringLiteral("?")
                              : row.takeTheirs ? tr("theirs")
                                               : tr("mine"));
    QFont taken = m_view->font();
    taken.setBold(true);
    item->setFont(mineColumn, row.picked && !row.takeTheirs ? taken : m_view->font());
    item->setFont(theirsColumn, row.picked && row.takeTheirs ? taken : m_view->font());
    item->setFont(takeColumn, row.picked ? m_view->font() : taken);
    for (int column = 0; column < columnCount; ++column)
        item->setForeground(column, row.picked ? QBrush() : QBrush(QColor(0xA0, 0x20, 0x20)));
}

void mergeDialog::showCount()
{
    const int open = int(
        std::count_if(m_rows.begin(), m_rows.end(), [](const mergeRow &r) { return !r.picked; }));
    m_count->setText(
        tr("%n difference(s). What only one changed is taken.", nullptr, int(m_rows.size()))
        + QLatin1Char(' ')
        + (open > 0 ? tr("%n row(s) changed by both: pick which to take.", nullptr, open)
                    : QString()));
    m_merge->setEnabled(m_mayTake && open == 0);
    m_merge->setToolTip(!m_mayTake  ? tr("Editing is locked")
                        : open == 0 ? QString()
                                    : tr("Pick in each row marked with ? first"));
}
