#include "window/completionList.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int mostRows = 10;
constexpr int gap = 24; // between the two columns

} // namespace

completionList::completionList(QWidget *field)
    : QTreeWidget(field)
    , m_field(field)
{
    // A window that takes no keys.
    setWindowFlags(Qt::ToolTip);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("completions"));
    setAccessibleName(tr("Completions"));
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A hidden header does not stretch.
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    connect(this, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem *item) { emit picked(indexOfTopLevelItem(item)); });
    hide();
}

void completionList::offer(const std::vector<searchSuggestion> &suggestions, int left)
{
    clear();
    QList<QTreeWidgetItem *> rows;
    const QColor dim = palette().color(QPalette::PlaceholderText);
    for (const searchSuggestion &suggestion : suggestions) {
        auto *row = new QTreeWidgetItem({suggestion.shown, suggestion.note});
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setForeground(1, dim);
        rows.append(row);
    }
    addTopLevelItems(rows);
    setCurrentItem(nullptr);
    if (rows.isEmpty())
        hide();
    else
        place(left);
}

void completionList::place(int left)
{
    setFont(m_field->font());
    // The tree keeps it to itself.
    const QAbstractItemView *view = this;
    const int rows = std::min(topLevelItemCount(), mostRows);
    const int frame = 2 * frameWidth();
    const int texts = view->sizeHintForColumn(0) + gap;
    const int notes = view->sizeHintForColumn(1);
    const int bar = topLevelItemCount() > rows ? verticalScrollBar()->sizeHint().width() : 0;
    const int height = rows * view->sizeHintForRow(0) + frame;
    const QRect screen = m_field->screen()->availableGeometry();
    QRect at(m_field->mapToGlobal(QPoint(left, m_field->height())),
             QSize(std::min(texts + notes + bar + frame, screen.width()), height));
    if (at.bottom() > screen.bottom())
        at.moveBottom(m_field->mapToGlobal(QPoint(0, 0)).y() - 1);
    at.moveLeft(
        std::clamp(at.left(), screen.left(), std::max(screen.left(), screen.right() - at.width())));
    header()->resizeSection(0, texts);
    header()->resizeSection(1, notes);
    setGeometry(at);
    show();
    scrollToTop();
}

void completionList::move(int rows)
{
    const int last = topLevelItemCount() - 1;
    const int now = chosen();
    const int wanted = now < 0 && rows < 0 ? last : now + rows;
    QTreeWidgetItem *item = topLevelItem(std::min(wanted, last));
    setCurrentItem(item);
    if (item)
        scrollToItem(item);
}
