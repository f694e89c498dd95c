#include "shell/recoveryDialog.h"

#include "util/labels.h"
#include "util/prompts.h"
#include "util/text.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int placeRole = Qt::UserRole;

size_t placeOf(const QTreeWidgetItem *item) { return item->data(0, placeRole).toUInt(); }

} // namespace

recoveryDialog::recoveryDialog(const std::vector<leftWork> &left, QWidget *parent)
    : QDialog(parent)
    , m_left(left)
    , m_list(new QTreeWidget(this))
{
    setWindowTitle(tr("Unsaved work"));
    m_list->setObjectName(QStringLiteral("left"));
    m_list->setAccessibleName(windowTitle());
    m_list->setHeaderLabels({labels::file(), tr("Changed"), tr("Content")});
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideMiddle);
    for (size_t place = 0; place < m_left.size(); ++place) {
        const leftWork &one = m_left[place];
        auto *item = new QTreeWidgetItem(
            m_list,
            {one.file, one.time.toString(QStringLiteral("dd.MM.yyyy hh:mm:ss")), one.content});
        item->setData(0, placeRole, uint(place));
        item->setToolTip(0, text::toolTip(one.file));
        item->setToolTip(2, text::toolTip(one.content));
    }
    constexpr int widths[] = {360, 150};
    for (int column = 0; column < int(std::size(widths)); ++column)
        m_list->header()->resizeSection(column, widths[column]);

    auto *buttons = new QDialogButtonBox(this);
    m_open = buttons->addButton(tr("Open"), QDialogButtonBox::AcceptRole);
    m_open->setDefault(true);
    buttons->addButton(tr("Keep for later"), QDialogButtonBox::RejectRole);
    m_delete = buttons->addButton(tr("Delete ..."), QDialogButtonBox::ActionRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_delete, &QPushButton::clicked, this, &recoveryDialog::deleteSelected);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &recoveryDialog::follow);
    connect(m_list, &QTreeWidget::itemDoubleClicked, m_open, &QPushButton::click);

    auto *heading =
        new QLabel(tr("This was left unsaved when the program ended. What is not opened "
                      "now is offered again at the next start."),
                   this);
    heading->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    constexpr QSize usualSize(900, 320);
    resize(usualSize);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_list->setFocus();
}

void recoveryDialog::follow()
{
    const QList<QTreeWidgetItem *> selected = m_list->selectedItems();
    int orders = 0;
    for (const QTreeWidgetItem *item : selected)
        orders += m_left[placeOf(item)].isOrder;
    m_open->setEnabled(!selected.isEmpty() && orders <= 1);
    m_open->setToolTip(orders > 1 ? tr("One order can be open at a time") : QString());
    m_delete->setEnabled(!selected.isEmpty());
}

void recoveryDialog::deleteSelected()
{
    const QList<QTreeWidgetItem *> selected = m_list->selectedItems();
    QStringList lines;
    for (const QTreeWidgetItem *item : selected)
        lines.append(item->text(0).toHtmlEscaped() + QLatin1String(", ")
                     + item->text(1).toHtmlEscaped());
    if (userPrompts().ask(tr("Delete this unsaved work for good?") + QLatin1String("<br><br>")
                              + lines.join(QLatin1String("<br>")),
                          false)
        != prompts::answer::yes)
        return;
    for (QTreeWidgetItem *item : selected) {
        m_left[placeOf(item)].remove();
        delete item;
    }
    if (remaining() == 0)
        reject();
}

int recoveryDialog::remaining() const { return m_list->topLevelItemCount(); }

std::vector<size_t> recoveryDialog::chosen() const
{
    std::vector<size_t> places;
    if (result() == Accepted)
        for (const QTreeWidgetItem *item : m_list->selectedItems())
            places.push_back(placeOf(item));
    return places;
}
