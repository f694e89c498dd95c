#include "firm/mergeFirmsDialog.h"

#include "data/kiv_mat_databaseStruct.h"
#include "util/text.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

mergeFirmsDialog::mergeFirmsDialog(const QStringList &names, int usual, planner plan,
                                   QWidget *parent)
    : QDialog(parent)
    , m_planner(std::move(plan))
    , m_names(new QComboBox(this))
    , m_summary(new QLabel(this))
    , m_rows(new QTreeWidget(this))
{
    setWindowTitle(tr("Merge firms"));
    m_names->setObjectName(QStringLiteral("stays"));
    m_names->addItems(names);
    m_names->setCurrentIndex(usual);
    m_summary->setObjectName(QStringLiteral("summary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_rows->setObjectName(QStringLiteral("changes"));
    m_rows->setAccessibleName(tr("Changes"));
    m_rows->setHeaderLabels(firmOperations::mergeCaptions());
    m_rows->setRootIsDecorated(false);
    m_rows->setUniformRowHeights(true);
    m_rows->setAlternatingRowColors(true);
    constexpr int widths[] = {150, 165, 210, 110, 150};
    for (int column = 0; column < int(std::size(widths)); ++column)
        m_rows->header()->resizeSection(column, widths[column]);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *merge = buttons->addButton(tr("Merge"), QDialogButtonBox::AcceptRole);
    merge->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_names, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &mergeFirmsDialog::show);
    auto *choice = new QFormLayout;
    choice->addRow(tr("The firm that stays"), m_names);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(m_summary);
    layout->addWidget(m_rows);
    layout->addWidget(buttons);
    constexpr QSize usualSize(980, 520);
    resize(usualSize);
    show(usual);
}

void mergeFirmsDialog::show(int stays)
{
    m_plan = m_planner(stays);
    QSet<const materialStruct *> materials;
    for (const firmOperations::mergePlan::use &use : m_plan.uses)
        materials.insert(use.at.material);
    m_summary->setText(
        tr("%n material(s) get the name %1 when the list is saved.", nullptr, materials.size())
            .arg(m_plan.stays));
    m_rows->clear();
    QList<QTreeWidgetItem *> items;
    for (const QStringList &row : firmOperations::mergeRows(m_plan)) {
        auto *item = new QTreeWidgetItem(row);
        for (int column = 0; column < row.size(); ++column)
            item->setToolTip(column, text::toolTip(row.at(column)));
        items.append(item);
    }
    m_rows->addTopLevelItems(items);
}
