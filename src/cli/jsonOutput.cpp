#include "cli/jsonOutput.h"

#include "cli/arguments.h"
#include "util/numbers.h"

#include <QJsonDocument>

namespace cli {

QCommandLineOption jsonOption()
{
    return {QStringLiteral("json"),
            QCoreApplication::translate("cli", "Print one JSON document for other programs.")};
}

void printJson(const QJsonObject &answer)
{
    out() << QString::fromUtf8(QJsonDocument(answer).toJson()) << Qt::flush;
}

QJsonValue numberOrText(const QString &stored)
{
    const std::optional<double> number = numbers::finite(stored);
    return number ? QJsonValue(*number) : QJsonValue(stored);
}

} // namespace cli
