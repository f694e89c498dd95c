#include "tree/refusal.h"

#include "util/text.h"

#include <QToolTip>
#include <QVariant>
#include <QWidget>

namespace refusal {

namespace {
constexpr const char *faultProperty = "fault";
}

bool isMarked(const QWidget *editor)
{
    return !editor->property(faultProperty).toString().isEmpty();
}

void mark(QWidget *editor, const QString &fault, QWidget *line)
{
    if (fault.isEmpty() && !isMarked(editor))
        return;
    editor->setProperty(faultProperty, fault);
    // A palette would lose against the style sheet of the tree.
    (line ? line : editor)
        ->setStyleSheet(fault.isEmpty()
                            ? QString()
                            : QStringLiteral("QLineEdit { background-color: #FFD8D0; "
                                             "color: black; border: 1px solid #B00000; }"));
    // A tag, so that the text is taken for what it is whatever it holds.
    const QString shown = fault.isEmpty()
                              ? QString()
                              : QLatin1String("<p>") + text::toHtml(fault) + QLatin1String("</p>");
    editor->setToolTip(shown);
    editor->setAccessibleDescription(fault);
    if (fault.isEmpty())
        QToolTip::hideText();
    else
        tell(editor);
}

void tell(QWidget *editor)
{
    QToolTip::showText(editor->mapToGlobal(QPoint(0, editor->height())), editor->toolTip(), editor);
}

} // namespace refusal
