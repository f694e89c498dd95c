#include "order/linesDialog.h"

#include "data/kiv_mat_zpStruct.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QRadioButton *radio(const QString &text, const char *name, QWidget *parent)
{
    auto *button = new QRadioButton(text, parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

QGroupBox *group(const QString &title, std::initializer_list<QWidget *> members, QWidget *parent)
{
    auto *box = new QGroupBox(title, parent);
    auto *layout = new QVBoxLayout(box);
    for (QWidget *member : members)
        layout->addWidget(member);
    return box;
}

} // namespace

linesDialog::linesDialog(purpose wanted, const treeColumns<orderItemStruct> &columns,
                         bool severalSelected, QWidget *parent)
    : QDialog(parent)
    , m_columns(new QListWidget(this))
    , m_selected(radio(tr("Selected lines"), "selectedLines", this))
{
    setWindowTitle(wanted == copying ? tr("Copy ...") : tr("Clear ..."));
    m_columns->setObjectName(QStringLiteral("columns"));
    m_columns->setAccessibleName(tr("Columns"));
    constexpr int listHeight = 260;
    m_columns->setMinimumHeight(listHeight);
    for (size_t c = 0; c < columns.size(); ++c) {
        if (!columns[c].write || (wanted == clearing && !columns[c].editable))
            continue;
        auto *item = new QListWidgetItem(columns[c].label, m_columns);
        item->setData(Qt::UserRole, int(c));
        item->setCheckState(wanted == copying ? Qt::Checked : Qt::Unchecked);
    }
    QRadioButton *all = radio(tr("All lines"), "allLines", this);
    m_selected->setEnabled(severalSelected);
    (severalSelected ? m_selected : all)->setChecked(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(group(tr("Columns"), {m_columns}, this));
    layout->addWidget(group(tr("Lines"), {all, m_selected}, this));
    if (wanted == copying) {
        QRadioButton *clipboard = radio(tr("To the clipboard"), "clipboard", this);
        m_file = radio(tr("To another order ..."), "file", this);
        clipboard->setChecked(true);
        layout->addWidget(group(tr("Copy to"), {clipboard, m_file}, this));
    }
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *go = buttons->addButton(wanted == copying ? tr("Copy") : tr("Clear"),
                                         QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    const auto update = [this, go] {
        go->setEnabled(!this->columns().empty());
        go->setToolTip(go->isEnabled() ? QString() : tr("no column is chosen"));
    };
    connect(m_columns, &QListWidget::itemChanged, this, update);
    update();
}

std::vector<int> linesDialog::columns() const
{
    std::vector<int> chosen;
    for (int i = 0; i < m_columns->count(); ++i)
        if (m_columns->item(i)->checkState() == Qt::Checked)
            chosen.push_back(m_columns->item(i)->data(Qt::UserRole).toInt());
    return chosen;
}

bool linesDialog::selectedOnly() const { return m_selected->isChecked(); }

bool linesDialog::toFile() const { return m_file && m_file->isChecked(); }
