// The mark of a typed text that cannot be taken: colour, tool tip and what a screen reader says.
#pragma once

#include <QString>

class QWidget;

namespace refusal {

// Marks an editor with the reason, or takes the mark away when there is none. The line is the part
// that is typed in, the editor itself when null.
void mark(QWidget *editor, const QString &fault, QWidget *line = nullptr);
bool isMarked(const QWidget *editor);
// Shows the reason of a marked editor again.
void tell(QWidget *editor);

} // namespace refusal
