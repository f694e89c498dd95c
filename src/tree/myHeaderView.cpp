#include "tree/myHeaderView.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QStyleOptionHeader>
#include <QToolTip>

#include <algorithm>

myHeaderView::myHeaderView(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(true);
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

// Where the style puts the caption of a section of that size.
QRect myHeaderView::labelIn(const QSize &size, int section) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), size);
    option.section = section;
    if (isSortIndicatorShown() && sortIndicatorSection() == section)
        option.sortIndicator = QStyleOptionHeader::SortDown;
    return style()->subElementRect(QStyle::SE_HeaderLabel, &option, this);
}

int myHeaderView::heightOf(int section) const
{
    int height = QHeaderView::sizeHint().height();
    // The mark of sorting grows with the section and leaves the caption less room.
    constexpr int attempts = 3;
    for (int i = 0; i < attempts; ++i) {
        const QRect label = labelIn({sectionSize(section), height}, section);
        const QRect text = fontMetrics().boundingRect(
            {0, 0, label.width(), 0}, Qt::AlignCenter | Qt::TextWordWrap, captionOf(section));
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

void myHeaderView::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    // A word wider than the section would lose both its ends.
    const int room = labelIn(rect.size(), section).width();
    const QStringList words = captionOf(section).split(QLatin1Char(' '));
    const bool fits = std::all_of(words.begin(), words.end(), [&](const QString &word) {
        return fontMetrics().horizontalAdvance(word) <= room;
    });
    const_cast<myHeaderView *>(this)->setTextElideMode(fits ? Qt::ElideNone : Qt::ElideRight);
    QHeaderView::paintSection(painter, rect, section);
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
