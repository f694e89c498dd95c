#include "report/html.h"

#include "util/text.h"

namespace html {

namespace {

constexpr const char *baseStyle = R"(
body { font-family: Arial, "Liberation Sans", "DejaVu Sans", sans-serif; font-size: 13px;
  color: #1A1F24; background: #FFFFFF; margin: 12px 16px; }
h1 { font-size: 22px; margin: 0 0 10px 0; }
h2 { font-size: 15px; margin: 18px 0 6px 0; }
p { margin: 0 0 6px 0; }
a { color: #0B5CAD; }
span.note { color: #52606D; font-weight: normal; font-size: 11px; })";

} // namespace

QString pageStart(const QString &title, const char *styleRules)
{
    return QLatin1String("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"UTF-8\">\n<title>")
           + text::toHtml(title) + QLatin1String("</title>\n<style>") + QLatin1String(baseStyle)
           + QLatin1String(styleRules) + QLatin1String("</style>\n</head>\n<body>\n");
}

QString pageEnd() { return QStringLiteral("</body>\n</html>\n"); }

void htmlTable::openTable(const QString &attributes)
{
    m_text += QLatin1String("<table ") + attributes + QLatin1String(">\n");
}

void htmlTable::closeTable() { m_text += QLatin1String("</table>\n"); }

void htmlTable::openRow(const QString &attributes)
{
    m_text += QLatin1String("<tr ") + attributes + QLatin1String(">");
}

void htmlTable::closeRow() { m_text += QLatin1String("</tr>\n"); }

void htmlTable::cell(const QString &attributes, const QString &content)
{
    m_text += QLatin1String("<td ") + attributes + QLatin1String(">") + content
              + QLatin1String("</td>\n");
}

void htmlTable::separatorRow(int kind, const QString &colour)
{
    const QString line = QLatin1String("<hr size=\"1\" color=\"") + colour + QLatin1String("\"/>");
    if (kind == 1)
        m_text += QLatin1String("<tr><td style=\"width:20%\">") + line
                  + QLatin1String("</td><td/></tr>\n");
    else if (kind == 2)
        m_text += QLatin1String("<tr><td style=\"width:20%\"/><td>") + line
                  + QLatin1String("</td></tr>\n");
    else
        m_text += QLatin1String("<tr><td colspan=\"2\" /><td>") + line + QLatin1String("</tr>\n");
}

void htmlTable::labelRow(const QString &label, const QString &value)
{
    if (label.isEmpty())
        m_text += QLatin1String("<tr><td style=\"width:20%\" />");
    else
        m_text += QLatin1String("<tr><td style=\"width:20%\" valign=\"top\" align=\"right\">")
                  + label + QLatin1String(":</td>");
    m_text += QLatin1String("<td><b>") + value + QLatin1String("</b></td></tr>\n");
}

void htmlTable::image(const QString &source, const QString &alternativeText, int height, int width)
{
    m_text += QLatin1String("<img src=\"") + source + QLatin1String("\" ");
    if (!alternativeText.isEmpty())
        m_text += QLatin1String("alt=\"") + alternativeText + QLatin1String("\" ");
    if (height > 0 && width > 0)
        m_text += QStringLiteral("height=\"%1\" width=\"%2\" ").arg(height).arg(width);
    m_text += QLatin1String("/>\n");
}

void htmlTable::openFont(const QString &face, const QString &colour, const QString &size)
{
    m_text += QLatin1String("<font ");
    if (!face.isEmpty())
        m_text += QLatin1String("face=\"") + face + QLatin1String("\" ");
    if (!colour.isEmpty())
        m_text += QLatin1String("color=\"") + colour + QLatin1String("\" ");
    if (!size.isEmpty())
        m_text += QLatin1String("size=\"") + size + QLatin1String("\" ");
}

void htmlTable::fontText(const QString &face, const QString &colour, const QString &size,
                         const QString &content)
{
    openFont(face, colour, size);
    m_text += QLatin1String(">") + content + QLatin1String("</font>\n");
}

void htmlTable::boldText(const QString &face, const QString &colour, const QString &size,
                         const QString &content, const QString &note)
{
    openFont(face, colour, size);
    m_text += QLatin1String("><b>") + content + QLatin1String("</b></font>\n");
    if (note.isEmpty())
        return;
    m_text += QLatin1String("<br/> \n");
    openFont(face, colour, size);
    m_text += QLatin1String("><i>") + note + QLatin1String("</i></font>\n");
}

void htmlTable::link(const QString &target, const QString &content)
{
    if (!target.isEmpty())
        m_text += QLatin1String("<a href=\"") + target + QLatin1String("\">") + content
                  + QLatin1String("</a>\n");
}

} // namespace html
