#include "dialogs/tableDialog.h"

#include "tree/shownTexts.h"
#include "util/text.h"

#include <QAbstractTableModel>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

class rowsModel : public QAbstractTableModel
{
public:
    rowsModel(QStringList captions, QList<QStringList> rows, QObject *parent)
        : QAbstractTableModel(parent)
        , m_captions(std::move(captions))
        , m_rows(std::move(rows))
    {
    }
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_rows.size();
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_captions.size();
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
            return {};
        const QString cell = m_rows.at(index.row()).at(index.column());
        return role == Qt::ToolTipRole ? text::toolTip(cell) : cell;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        return orientation == Qt::Horizontal && role == Qt::DisplayRole
                   ? m_captions.at(section)
                   : QAbstractTableModel::headerData(section, orientation, role);
    }

private:
    QStringList m_captions;
    QList<QStringList> m_rows;
};

} // namespace

tableDialog::tableDialog(readTable table, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("tableDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(table.title);
    auto *summary = new QLabel(table.summary, this);
    summary->setObjectName(QStringLiteral("summary"));
    summary->setTextFormat(Qt::PlainText);
    summary->setWordWrap(true);
    summary->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *rows = new QSortFilterProxyModel(this);
    rows->setSourceModel(new rowsModel(std::move(table.captions), std::move(table.rows), this));
    rows->setFilterKeyColumn(-1);
    rows->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto *filter = new QLineEdit(this);
    filter->setObjectName(QStringLiteral("filter"));
    filter->setAccessibleName(tr("Filter"));
    filter->setPlaceholderText(tr("Show only what holds this text"));
    filter->setClearButtonEnabled(true);
    connect(filter, &QLineEdit::textChanged, rows, &QSortFilterProxyModel::setFilterFixedString);

    auto *view = new QTreeView(this);
    view->setObjectName(QStringLiteral("rows"));
    view->setAccessibleName(windowTitle());
    view->setModel(rows);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setSortingEnabled(true);
    // As given until the user sorts.
    view->sortByColumn(-1, Qt::AscendingOrder);
    for (int column = 0; column < table.widths.size(); ++column)
        view->header()->resizeSection(
            column, std::max(table.widths.at(column), view->header()->sectionSizeHint(column)));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *copy = buttons->addButton(tr("Copy"), QDialogButtonBox::ActionRole);
    copy->setToolTip(tr("Copy the selected lines, or all that are shown"));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, [view, rows] {
        QModelIndexList lines = view->selectionModel()->selectedRows();
        if (lines.isEmpty())
            for (int row = 0; row < rows->rowCount(); ++row)
                lines.append(rows->index(row, 0));
        copyRows(lines);
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addWidget(filter);
    layout->addWidget(view);
    layout->addWidget(buttons);
    view->setFocus();
    constexpr QSize usualSize(1100, 520);
    resize(usualSize);
}
