#include "tree/myHeaderView.h"

#include "tree/myTreeView.h"
#include <QHelpEvent>

#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

myHeaderView::myHeaderView(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(true);
    setTextElideMode(Qt::ElideNone);
    setDefaultAlignment(Qt::Alignment(QFlag(int(Qt::AlignCenter) | int(Qt::TextWordWrap))));
    setSortIndicator(-1, Qt::AscendingOrder);
    connect(this, &QHeaderView::sectionClicked, this, &myHeaderView::clickedSection);
    // A caption may need more lines, or fewer.
    connect(this, &QHeaderView::sectionResized, this, &QHeaderView::geometriesChanged);
}

QString myHeaderView::captionOf(int section) const
{
    return model() ? model()->headerData(section, orientation()).toString() : QString();
}

// A unit in brackets is not broken.
QString myHeaderView::shownCaption(int section) const
{
    const QChar noBreak(QChar::Nbsp);
    return captionOf(section)
        .replace(QLatin1String("[ "), QLatin1Char('[') + QString(noBreak))
        .replace(QLatin1String(" ]"), noBreak + QLatin1String("]"));
}

QStyleOptionHeader myHeaderView::optionOf(const QRect &rect, int section) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = rect;
    option.section = section;
    if (isSortIndicatorShown() && sortIndicatorSection() == section)
        option.sortIndicator = sortIndicatorOrder() == Qt::AscendingOrder
                                   ? QStyleOptionHeader::SortDown
                                   : QStyleOptionHeader::SortUp;
    return option;
}

int myHeaderView::heightOf(int section) const
{
    int height = QHeaderView::sizeHint().height();
    // The mark of sorting grows with the section and leaves the caption less room.
    constexpr int attempts = 3;
    for (int i = 0; i < attempts; ++i) {
        const QStyleOptionHeader option = optionOf({0, 0, sectionSize(section), height}, section);
        const QRect label = style()->subElementRect(QStyle::SE_HeaderLabel, &option, this);
        const QRect text = fontMetrics().boundingRect(
            {0, 0, label.width(), 0}, Qt::AlignCenter | Qt::TextWordWrap, shownCaption(section));
        if (text.height() <= label.height())
            break;
        height += text.height() - label.height();
    }
    return height;
}

QSize myHeaderView::sizeHint() const
{
    QSize size = QHeaderView::sizeHint();
    for (int section = 0; section < count(); ++section)
        if (!isSectionHidden(section))
            size.setHeight(std::max(size.height(), heightOf(section)));
    return size;
}

// The base would break captions at any blank.
void myHeaderView::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    QStyleOptionHeader option = optionOf(rect, section);
    const int visual = visualIndex(section);
    option.position = count() == 1            ? QStyleOptionHeader::OnlyOneSection
                      : visual == 0           ? QStyleOptionHeader::Beginning
                      : visual == count() - 1 ? QStyleOptionHeader::End
                                              : QStyleOptionHeader::Middle;
    if (window()->isActiveWindow())
        option.state |= QStyle::State_Active;
    option.text = shownCaption(section);
    option.textAlignment = defaultAlignment();
    // A word wider than the section would lose both its ends.
    const int room = style()->subElementRect(QStyle::SE_HeaderLabel, &option, this).width();
    const QStringList words = option.text.split(QLatin1Char(' '));
    if (std::any_of(words.begin(), words.end(), [&](const QString &word) {
            return fontMetrics().horizontalAdvance(word) > room;
        }))
        option.text = fontMetrics().elidedText(captionOf(section), Qt::ElideRight, room);
    painter->save();
    style()->drawControl(QStyle::CE_Header, &option, painter, this);
    painter->restore();
}

bool myHeaderView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QHeaderView::viewportEvent(event);
    const auto *help = static_cast<const QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), captionOf(logicalIndexAt(help->pos())), this);
    return true;
}

void myHeaderView::clickedSection(int section)
{
    emit clicked(m_pressPosition, m_pressButtons, section);
}

void myHeaderView::mousePressEvent(QMouseEvent *event)
{
    // Sorting would take away the editor of a refused text.
    if (auto *view = qobject_cast<myTreeView *>(parentWidget()); view && !view->finishEditing())
        return;
    m_pressPosition = event->pos();
    m_pressButtons = uint(event->buttons());
    setSectionsClickable(true);
    QHeaderView::mousePressEvent(event);
}

void myHeaderView::mouseReleaseEvent(QMouseEvent *event)
{
    QHeaderView::mouseReleaseEvent(event);
    setSectionsClickable(false);
}
