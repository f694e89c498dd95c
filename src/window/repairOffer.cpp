#include "window/repairOffer.h"

#include "data/repair.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "window/workProgress.h"

#include <QCoreApplication>
#include <QDir>

std::unique_ptr<documentStruct> offerRepaired(const QString &path, workProgress &progress,
                                              QString *fault)
{
    const auto tr = [](const char *source, int n = -1) {
        return QCoreApplication::translate("repairOffer", source, nullptr, n);
    };
    repairedFile repaired;
    {
        workProgress::scope work(progress, tr(QT_TRANSLATE_NOOP("repairOffer", "Repairing")));
        repaired = repairFile(path, work.function());
    }
    *fault = repaired.fault;
    if (repaired.document && repaired.changeCount == 0)
        *fault = tr(QT_TRANSLATE_NOOP("repairOffer", "there is nothing to mend"));
    if (!repaired.document || repaired.changeCount == 0)
        return nullptr;

    constexpr int shown = 3;
    QStringList lines;
    for (const fileFault &change : repaired.changes.mid(0, shown))
        lines.append(change.placed().toHtmlEscaped());
    if (repaired.changeCount > shown)
        lines.append(
            tr(QT_TRANSLATE_N_NOOP("repairOffer", "and %n more"), repaired.changeCount - shown));
    const QString question =
        tr(QT_TRANSLATE_NOOP("repairOffer", "The file %1 is damaged. This would make it readable; "
                                            "the file itself stays as it is:"))
            .arg(QDir::toNativeSeparators(path).toHtmlEscaped());
    if (!userPrompts().decide(question + QLatin1String("<br><br>")
                                  + lines.join(QLatin1String("<br>")),
                              {tr(QT_TRANSLATE_NOOP("repairOffer", "Open repaired copy"))}))
        return nullptr;

    lines.clear();
    for (const fileFault &change : repaired.changes)
        lines.append(change.placed().toHtmlEscaped());
    if (repaired.changeCount > repaired.changes.size())
        lines.append(tr(QT_TRANSLATE_N_NOOP("repairOffer", "and %n more"),
                        repaired.changeCount - repaired.changes.size()));
    userPrompts().listError(
        messages::failed(
            tr(QT_TRANSLATE_NOOP("repairOffer", "Mended or dropped in the repaired copy: ")), path)
        + lines.join(QLatin1String("<br>")) + QLatin1String("<br>"));
    return std::move(repaired.document);
}
