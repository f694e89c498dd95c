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
    QPalette palette;
    if (!fault.isEmpty()) {
        palette = editor->palette();
        palette.setColor(QPalette::Base, QColor(0xFF, 0xD8, 0xD0));
        palette.setColor(QPalette::Text, Qt::black);
    }
    (line ? line : editor)->setPalette(palette);
    // A tag, so that the text is taken for what it is whatever it holds.
    const QString shown = fault.isEmpty()
                              ? QString()
                              : QLatin1String("<p>") + text::toHtml(fault) + QLatin1String("</p>");
    editor->setToolTip(shown);
    editor->setAccessibleDescription(fault);
    if (fault.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(editor->mapToGlobal(QPoint(0, editor->height())), shown, editor);
}

} // namespace refusal
