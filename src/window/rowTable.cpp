#include "window/rowTable.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>

#include <algorithm>

QTreeView *newRowTable(const char *name, const QString &accessibleName, QAbstractItemModel *model,
                       QWidget *parent)
{
    auto *table = new QTreeView(parent);
    table->setObjectName(QLatin1String(name));
    table->setAccessibleName(accessibleName);
    table->setModel(model);
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setAlternatingRowColors(true);
    table->setAllColumnsShowFocus(true);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    return table;
}

void resizeColumn(QHeaderView *header, int column, int width)
{
    header->resizeSection(column, std::max(width, header->sectionSizeHint(column)));
}

void addCaptioned(QBoxLayout *to, QWidget *widget, const char *name, const QString &caption)
{
    auto *label = new QLabel(caption, widget->parentWidget());
    label->setBuddy(widget);
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    to->addWidget(label);
    to->addWidget(widget);
}
