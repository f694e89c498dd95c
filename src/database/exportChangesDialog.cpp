#include "database/exportChangesDialog.h"

#include "util/text.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

// All the changes, of which a table asks for those in sight.
class changesModel : public QAbstractTableModel
{
public:
    changesModel(std::vector<exportChange> rows, QObject *parent)
        : QAbstractTableModel(parent)
        , m_rows(std::move(rows))
        , m_captions(changeCaptions())
    {
    }
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_captions.size();
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
            return {};
        const QString cell = cellsOf(m_rows[size_t(index.row())]).at(index.column());
        return role == Qt::ToolTipRole ? text::toolTip(cell) : cell;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        return orientation == Qt::Horizontal && role == Qt::DisplayRole
                   ? m_captions.at(section)
                   : QAbstractTableModel::headerData(section, orientation, role);
    }

private:
    std::vector<exportChange> m_rows;
    QStringList m_captions;
};

} // namespace

exportChangesDialog::exportChangesDialog(exportChanges changes, const QString &path,
                                         QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("exportChanges"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Changes of the export"));
    auto *summary =
        new QLabel(QDir::toNativeSeparators(path) + QLatin1Char('\n') + summaryOf(changes), this);
    summary->setTextFormat(Qt::PlainText);
    summary->setWordWrap(true);
    summary->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *rows = new QSortFilterProxyModel(this);
    rows->setSourceModel(new changesModel(std::move(changes.rows), this));
    rows->setFilterKeyColumn(-1);
    rows->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto *filter = new QLineEdit(this);
    filter->setObjectName(QStringLiteral("filter"));
    filter->setAccessibleName(tr("Filter"));
    filter->setPlaceholderText(tr("Show only what holds this text"));
    filter->setClearButtonEnabled(true);
    connect(filter, &QLineEdit::textChanged, rows, &QSortFilterProxyModel::setFilterFixedString);

    auto *view = new QTreeView(this);
    view->setObjectName(QStringLiteral("changes"));
    view->setAccessibleName(windowTitle());
    view->setModel(rows);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setSortingEnabled(true);
    // In the order of the file until the user sorts.
    view->sortByColumn(-1, Qt::AscendingOrder);
    constexpr int widths[] = {130, 190, 160, 180, 110, 150};
    for (int column = 0; column < int(std::size(widths)); ++column)
        view->header()->resizeSection(column, widths[column]);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *copy = buttons->addButton(tr("Copy"), QDialogButtonBox::ActionRole);
    copy->setToolTip(tr("Copy the selected lines, or all that are shown"));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, [view, rows] {
        QModelIndexList lines = view->selectionModel()->selectedRows();
        if (lines.isEmpty())
            for (int row = 0; row < rows->rowCount(); ++row)
                lines.append(rows->index(row, 0));
        std::sort(lines.begin(), lines.end());
        QString all;
        for (const QModelIndex &line : qAsConst(lines)) {
            QStringList cells;
            for (int column = 0; column < rows->columnCount(); ++column)
                cells.append(line.siblingAtColumn(column).data().toString().simplified());
            all += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
        }
        QApplication::clipboard()->setText(all);
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
