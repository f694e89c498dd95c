#include "tree/myHeaderView.h"

#include <QMouseEvent>

myHeaderView::myHeaderView(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(true);
    setTextElideMode(Qt::ElideRight);
    setSortIndicator(-1, Qt::AscendingOrder);
    connect(this, &QHeaderView::sectionClicked, this, &myHeaderView::clickedSection);
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
