#include "dialogs/changesDialog.h"
#include "util/text.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

changesDialog::changesDialog(const QString &title, const QStringList &captions,
                             const QList<QStringList> &rows, QWidget *parent)
    : QDialog(parent)
    , m_rows(new QTreeWidget(this))
{
    setWindowTitle(title);
    m_rows->setObjectName(QStringLiteral("changes"));
    m_rows->setAccessibleName(tr("Changes"));
    m_rows->setHeaderLabels(captions);
    m_rows->setRootIsDecorated(false);
    m_rows->setUniformRowHeights(true);
    m_rows->setAlternatingRowColors(true);
    QList<QTreeWidgetItem *> items;
    for (const QStringList &row : rows) {
        auto *item = new QTreeWidgetItem(row);
        item->setCheckState(0, Qt::Checked);
        for (int column = 0; column < row.size(); ++column)
            item->setToolTip(column, text::toolTip(row[column]));
        items.append(item);
    }
    m_rows->addTopLevelItems(items);
    constexpr int columnWidth = 180;
    for (int column = 0; column + 1 < captions.size(); ++column)
        m_rows->header()->resizeSection(column, columnWidth);

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Take over"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    for (const Qt::CheckState state : {Qt::Checked, Qt::Unchecked}) {
        QPushButton *button =
            buttons->addButton(state == Qt::Checked ? tr("Mark &all") : tr("Mark &none"),
                               QDialogButtonBox::ActionRole);
        button->setObjectName(state == Qt::Checked ? QStringLiteral("markAll")
                                                   : QStringLiteral("markNone"));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, state] {
            for (int row = 0; row < m_rows->topLevelItemCount(); ++row)
                m_rows->topLevelItem(row)->setCheckState(0, state);
        });
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(
        tr("%n change(s). What stays marked is taken over.", nullptr, rows.size()), this));
    layout->addWidget(m_rows);
    layout->addWidget(buttons);
    constexpr QSize usualSize(900, 520);
    resize(usualSize);
}

void changesDialog::unmark(int row) { m_rows->topLevelItem(row)->setCheckState(0, Qt::Unchecked); }

std::vector<int> changesDialog::chosen() const
{
    std::vector<int> rows;
    for (int row = 0; row < m_rows->topLevelItemCount(); ++row)
        if (m_rows->topLevelItem(row)->checkState(0) == Qt::Checked)
            rows.push_back(row);
    return rows;
}
