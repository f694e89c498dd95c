#include "bom/reservationsDialog.h"

#include "data/reservationsFile.h"
#include "tree/shownTexts.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/prompts.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum column
{
    boardColumn, // or the KTM
    nameColumn,  // or the state
    setsColumn,
    quantityColumn,
    beforeColumn,
    afterColumn,
    dateColumn,
    authorColumn,
    databaseColumn
};

constexpr int idRole = Qt::UserRole; // of a reservation

QTreeWidgetItem *boardItem(const boardStruct &board, const QString &state, const char *icon)
{
    auto *item = new QTreeWidgetItem;
    item->setText(boardColumn, QFileInfo(board.list).completeBaseName());
    item->setToolTip(boardColumn, QDir::toNativeSeparators(board.list).toHtmlEscaped());
    item->setText(nameColumn, state);
    item->setIcon(nameColumn,
                  QIcon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(icon))));
    item->setText(setsColumn, board.sets);
    item->setText(dateColumn, board.date);
    item->setText(authorColumn, board.author);
    item->setText(databaseColumn, board.database);
    for (const auto &line : board.items) {
        auto *child = new QTreeWidgetItem(item);
        child->setText(boardColumn, line->ktm);
        child->setText(nameColumn, line->name);
        child->setText(quantityColumn, line->quantity);
        child->setText(beforeColumn, line->before);
        child->setText(afterColumn, line->after);
        for (const int number : {quantityColumn, beforeColumn, afterColumn})
            child->setTextAlignment(number, Qt::AlignRight | Qt::AlignVCenter);
    }
    item->setTextAlignment(setsColumn, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

reservationsDialog::reservationsDialog(reservationsFile &file, configStruct &config,
                                       QWidget *parent)
    : QDialog(parent)
    , m_file(file)
    , m_config(config)
    , m_tree(new QTreeWidget(this))
    , m_sum(new QLabel(this))
{
    setObjectName(QStringLiteral("reservationsDialog"));
    setWindowTitle(tr("Reservations and built boards"));
    m_tree->setObjectName(QStringLiteral("boards"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setHeaderLabels({tr("Board"), labels::name(), tr("Sets"), labels::quantity(),
                             tr("Before"), tr("After"), tr("Date"), tr("By"), tr("Database")});
    constexpr int widths[] = {230, 250, 70, 80, 80, 80, 130, 110, 150};
    for (int i = 0; i < int(std::size(widths)); ++i)
        m_tree->header()->resizeSection(i,
                                        std::max(widths[i], m_tree->header()->sectionSizeHint(i)));
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &reservationsDialog::updateButtons);

    m_sum->setObjectName(QStringLiteral("summary"));
    m_sum->setTextFormat(Qt::PlainText);
    m_sum->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_release = buttons->addButton(tr("&Release"), QDialogButtonBox::ActionRole);
    m_release->setObjectName(QStringLiteral("release"));
    m_release->setAutoDefault(false);
    connect(m_release, &QPushButton::clicked, this, &reservationsDialog::releaseSelected);
    QPushButton *copying = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copying->setAutoDefault(false);
    connect(copying, &QPushButton::clicked, this, &reservationsDialog::copy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *del = new QAction(this);
    del->setShortcut(QKeySequence::Delete);
    connect(del, &QAction::triggered, this, [this] {
        if (m_release->isEnabled())
            releaseSelected();
    });
    addAction(del);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_sum);
    layout->addWidget(m_tree);
    layout->addWidget(buttons);
    constexpr QSize usualSize(1220, 560);
    resize(usualSize);
    showBoards();
    m_tree->setFocus();
}

void reservationsDialog::showBoards()
{
    const kiv_mat_reservationsStruct &all = m_file.now();
    m_tree->clear();
    for (const auto &board : all.reserved.items) {
        QTreeWidgetItem *item = boardItem(*board, tr("reserved"), "line_short");
        item->setData(boardColumn, idRole, board->id);
        m_tree->addTopLevelItem(item);
    }
    // The last ones are looked for.
    for (auto board = all.built.items.rbegin(); board != all.built.items.rend(); ++board)
        m_tree->addTopLevelItem(boardItem(**board, tr("built"), "line_enough"));
    QStringList parts{tr("%n board(s) reserved", nullptr, int(all.reserved.items.size())),
                      tr("%n built", nullptr, int(all.built.items.size()))};
    if (!m_file.fault().isEmpty())
        parts = QStringList{tr("%1 cannot be read: %2")
                                .arg(QDir::toNativeSeparators(m_file.path()), m_file.fault())};
    m_sum->setText(parts.join(QLatin1String(", ")));
    if (QTreeWidgetItem *first = m_tree->topLevelItem(0))
        m_tree->setCurrentItem(first);
    updateButtons();
}

void reservationsDialog::updateButtons()
{
    const QList<QTreeWidgetItem *> selected = m_tree->selectedItems();
    const bool any = std::any_of(selected.begin(), selected.end(), [](const auto *item) {
        return !item->data(boardColumn, idRole).toString().isEmpty();
    });
    m_release->setEnabled(any);
    m_release->setToolTip(any ? tr("Free the stock of the selected boards")
                              : tr("no reservation is selected"));
}

void reservationsDialog::releaseSelected()
{
    QStringList ids;
    QStringList boards;
    for (const QTreeWidgetItem *item : m_tree->selectedItems())
        if (const QString id = item->data(boardColumn, idRole).toString(); !id.isEmpty()) {
            ids.append(id);
            boards.append(item->text(boardColumn));
        }
    if (userPrompts().ask(tr("Release what is reserved for %1?")
                              .arg(boards.join(QLatin1String(", ")).toHtmlEscaped()),
                          false)
        != prompts::answer::yes)
        return;
    QString fault;
    const bool done = m_file.change(
        [&ids](kiv_mat_reservationsStruct &content) {
            auto &left = content.reserved.items;
            left.erase(std::remove_if(left.begin(), left.end(),
                                      [&ids](const auto &b) { return ids.contains(b->id); }),
                       left.end());
            return true;
        },
        m_config, &fault);
    if (!done)
        userPrompts().showError(messages::notWritten(m_file.path(), fault));
    showBoards();
}

void reservationsDialog::copy() { copyShown(*m_tree); }
