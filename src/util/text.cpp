#include "util/text.h"

#include "util/inertDocument.h"

#include <QFileInfo>

#include <algorithm>

namespace {

QString collapseRuns(const QString &text, QChar separator)
{
    QString result;
    result.reserve(text.size());
    for (QChar c : text)
        if (c != separator || result.isEmpty() || result.back() != separator)
            result.append(c);
    return result;
}

} // namespace

namespace text {

QString chopTrailingTabs(const QString &text)
{
    int length = text.size();
    while (length > 0 && text.at(length - 1) == QLatin1Char('\t'))
        --length;
    return text.left(length);
}

QString trimLeadingSpaces(const QString &text)
{
    int start = 0;
    while (start < text.size() && text.at(start) == QLatin1Char(' '))
        ++start;
    return text.mid(start);
}

QString trimTrailingSpaces(const QString &text)
{
    int length = text.size();
    while (length > 0 && text.at(length - 1) == QLatin1Char(' '))
        --length;
    return text.left(length);
}

QString collapseDoubleSpaces(const QString &text) { return collapseRuns(text, QLatin1Char(' ')); }

QString htmlToPlain(const QString &html)
{
    inertDocument document;
    document.setHtml(html);
    return document.toPlainText();
}

QString normalisePath(const QString &path)
{
    return collapseRuns(collapseRuns(path, QLatin1Char('/')), QLatin1Char('\\'));
}

QString fileNameOfPath(const QString &path) { return QFileInfo(path).fileName(); }

QString storable(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\r')) {
            if (i + 1 >= text.size() || text.at(i + 1) != QLatin1Char('\n'))
                result.append(QLatin1Char('\n'));
        } else if (c.isHighSurrogate()) {
            if (i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
                result.append(c);
                result.append(text.at(++i));
            }
        } else if (!c.isLowSurrogate() && c < QChar(0xfffe)
                   && (c >= QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n'))) {
            result.append(c);
        }
    }
    return result;
}

QString firstUnits(const QString &text, int units)
{
    if (text.size() <= units)
        return text;
    return text.left(units > 0 && text.at(units - 1).isHighSurrogate() ? units - 1 : units);
}

QString toHtml(const QString &text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

QString toolTip(const QString &text)
{
    return text.isEmpty() ? QString()
                          : QLatin1String("<qt>") + toHtml(text) + QLatin1String("</qt>");
}

QString tabbedRow(const QStringList &values)
{
    QStringList cells;
    for (const QString &value : values)
        cells.append(value.simplified());
    return cells.join(QLatin1Char('\t'));
}

QString csvRow(const QStringList &values)
{
    QStringList fields;
    for (QString value : values) {
        const bool isQuoted = std::any_of(value.cbegin(), value.cend(), [](QChar c) {
            return c == QLatin1Char(';') || c == QLatin1Char('"') || c == QLatin1Char('\n')
                   || c == QLatin1Char('\r');
        });
        if (isQuoted)
            value = QLatin1Char('"') + value.replace(QLatin1Char('"'), QLatin1String("\"\""))
                    + QLatin1Char('"');
        fields.append(value);
    }
    return fields.join(QLatin1Char(';'));
}

} // namespace text
