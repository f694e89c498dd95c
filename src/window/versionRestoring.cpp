// What an editing window does with a kept version of its document.
#include "window/editWindow.h"

#include "data/documentDiff.h"
#include "data/documentStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "util/files.h"
#include "util/prompts.h"

#include <QFile>

void editWindow::commandVersions(bool) { emit versionsWanted(filePath()); }

bool editWindow::restoreVersion(documentStruct &version, const QString &what)
{
    showNow();
    if (!finishEditing())
        return false;
    if (isLocked())
        setUnlocked(true);
    const documentStruct *mine = record();
    if (isLocked() || !mine || &mine->kind() != &version.kind()) {
        userPrompts().showError(isLocked() ? lockedText().toHtmlEscaped()
                                           : tr("It is of another kind.").toHtmlEscaped());
        return false;
    }
    if (compareDocuments(*mine, version).rows.empty()) {
        tell(tr("Nothing differs from %1").arg(what));
        return true;
    }
    // Also what was not saved.
    if (!keepOwnVersion())
        return false;
    push(become(version), tr("Restored: %1").arg(what));
    return true;
}
