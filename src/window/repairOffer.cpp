#include "window/repairOffer.h"

#include "data/repair.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "window/workProgress.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString more(int count)
{
    return QCoreApplication::translate("repairOffer", "and %n more", nullptr, count);
}

} // namespace

std::unique_ptr<documentStruct> offerRepaired(const QString &path, workProgress &progress,
                                              QString *fault)
{
    repairedFile repaired;
    {
        workProgress::scope work(progress, QCoreApplication::translate("repairOffer", "Repairing"));
        repaired = repairFile(path, work.function());
    }
    *fault = repaired.fault;
    if (repaired.document && repaired.changeCount == 0)
        *fault = QCoreApplication::translate("repairOffer", "there is nothing to mend");
    if (!repaired.document || repaired.changeCount == 0)
        return nullptr;

    constexpr int shown = 3;
    QStringList lines;
    for (const fileFault &change : repaired.changes.mid(0, shown))
        lines.append(change.placed().toHtmlEscaped());
    if (repaired.changeCount > shown)
        lines.append(more(repaired.changeCount - shown));
    const QString question =
        QCoreApplication::translate("repairOffer",
                                    "The file %1 is damaged. This would make it readable; "
                                    "the file itself stays as it is:")
            .arg(QDir::toNativeSeparators(path).toHtmlEscaped());
    if (!userPrompts().decide(question + QLatin1String("<br><br>")
                                  + lines.join(QLatin1String("<br>")),
                              {QCoreApplication::translate("repairOffer", "Open repaired copy")}))
        return nullptr;

    lines.clear();
    for (const fileFault &change : repaired.changes)
        lines.append(change.placed().toHtmlEscaped());
    if (repaired.changeCount > repaired.changes.size())
        lines.append(more(repaired.changeCount - repaired.changes.size()));
    userPrompts().listError(
        messages::failed(
            QCoreApplication::translate("repairOffer", "Mended or dropped in the repaired copy: "),
            path)
        + lines.join(QLatin1String("<br>")) + QLatin1String("<br>"));
    return std::move(repaired.document);
}
