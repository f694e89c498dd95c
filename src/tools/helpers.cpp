#include "tools/helpers.h"

#include "util/paths.h"
#include "util/text.h"

#include <QFileInfo>

#include <algorithm>

namespace helpers {

QStringList all() { return {curl, pscp, zip, unzip, minisign, htmlToDocPdf, templateDoc}; }

QString path(const QString &name)
{
    if (QFileInfo(name).isAbsolute())
        return name;
    QString relative = name;
    relative.replace(QLatin1Char('\\'), QLatin1Char('/'));
    QString expected = paths::beside(relative);
    const QString inBin = paths::beside(QLatin1String("_bin/") + text::fileNameOfPath(relative));
    for (const QString &candidate : {expected, inBin}) {
        const QFileInfo file(candidate);
        if (file.isFile() && file.isExecutable())
            return candidate;
    }
    return expected;
}

QString quoted(const QString &argument)
{
    QString inner = argument;
    inner.replace(QLatin1Char('"'), QLatin1String("\"\"\""));
    return QLatin1Char('"') + inner + QLatin1Char('"');
}

QString argument(const QString &text)
{
    const bool plain = std::none_of(text.begin(), text.end(),
                                    [](QChar c) { return c.isSpace() || c == QLatin1Char('"'); });
    return plain ? text : quoted(text);
}

} // namespace helpers
