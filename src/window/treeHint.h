// What a tree that shows nothing says: what to do next, with the actions in it as links.
#pragma once

#include <QAbstractScrollArea>
#include <QLabel>

namespace treeHint {

// Over the tree, at the place of its first row; the caller gives it its text and connects its
// links.
inline QLabel *over(const QAbstractScrollArea *tree, const QString &objectName)
{
    constexpr QPoint place(24, 16);
    auto *hint = new QLabel(tree->viewport());
    hint->setObjectName(objectName);
    hint->setTextFormat(Qt::RichText);
    hint->setTextInteractionFlags(Qt::TextBrowserInteraction);
    hint->move(place);
    return hint;
}

} // namespace treeHint
