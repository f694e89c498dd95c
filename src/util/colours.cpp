#include "util/colours.h"

namespace colours {

QColor fromText(const QString &colour)
{
    if (colour.size() != 7)
        return {};
    const auto component = [&](int at) { return int(colour.midRef(at, 2).toUInt(nullptr, 16)); };
    return {component(1), component(3), component(5)};
}

QString toRgb(const QString &colour)
{
    const QColor parsed = fromText(colour);
    if (!parsed.isValid())
        return QStringLiteral("rgb(127, 0, 0)");
    return QStringLiteral("rgb(%1, %2, %3)")
        .arg(parsed.red())
        .arg(parsed.green())
        .arg(parsed.blue());
}

QString backgroundAttribute(const QString &colour)
{
    return QStringLiteral("bgcolor=\"%1\"").arg(colour);
}

} // namespace colours
