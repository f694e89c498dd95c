#include "util/cleanHtml.h"

#include "util/inertDocument.h"
#include "util/text.h"

#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

#include <iterator>

namespace {

// Deeper than any text of an order; the rich text classes recurse over it and take minutes.
constexpr int maxDepth = 100;

// How deep elements stand in each other. Those whose end tag is often left out do not count, nor do
// those that have none.
int depthOf(const QString &html)
{
    static const QSet<QString> uncounted{
        QStringLiteral("p"),    QStringLiteral("li"),    QStringLiteral("br"),
        QStringLiteral("hr"),   QStringLiteral("img"),   QStringLiteral("meta"),
        QStringLiteral("link"), QStringLiteral("input"), QStringLiteral("col")};
    static const QRegularExpression tag(QStringLiteral("<(/?)([a-zA-Z][a-zA-Z0-9]*)"));
    int depth = 0;
    int deepest = 0;
    for (auto it = tag.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (uncounted.contains(match.captured(2).toLower()))
            continue;
        depth = qMax(0, depth + (match.capturedLength(1) > 0 ? -1 : 1));
        deepest = qMax(deepest, depth);
    }
    return deepest;
}

bool linkAllowed(const QString &href)
{
    const QString scheme = QUrl(href).scheme().toLower();
    return scheme == QLatin1String("http") || scheme == QLatin1String("https")
           || scheme == QLatin1String("mailto") || scheme == QLatin1String("ftp");
}

// Spaces that HTML would fold stay visible.
QString escaped(const QString &text)
{
    QString result = text.toHtmlEscaped();
    result.remove(QChar::ObjectReplacementCharacter);
    result.replace(QChar::LineSeparator, QLatin1String("<br>"));
    result.replace(QLatin1String("  "), QLatin1String("&nbsp; "));
    return result;
}

class markupWriter
{
public:
    QString markup;

    void writeFrame(const QTextFrame *frame)
    {
        for (auto it = frame->begin(); !it.atEnd(); ++it) {
            if (it.currentFrame())
                writeChildFrame(it.currentFrame());
            else
                writeBlock(it.currentBlock());
        }
        closeLists(0);
    }

private:
    struct openList
    {
        const QTextList *list;
        QString tag;
    };
    std::vector<openList> m_lists;

    void writeChildFrame(QTextFrame *frame)
    {
        closeLists(0);
        if (const auto *table = qobject_cast<QTextTable *>(frame))
            writeTable(table);
        else
            writeFrame(frame);
    }

    void writeTable(const QTextTable *table)
    {
        markup += QLatin1String("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n");
        for (int row = 0; row < table->rows(); ++row) {
            markup += QLatin1String("<tr>");
            for (int column = 0; column < table->columns(); ++column) {
                const QTextTableCell cell = table->cellAt(row, column);
                if (cell.row() != row || cell.column() != column)
                    continue; // covered by a cell that spans
                markup += QLatin1String("<td");
                if (cell.columnSpan() > 1)
                    markup += QStringLiteral(" colspan=\"%1\"").arg(cell.columnSpan());
                if (cell.rowSpan() > 1)
                    markup += QStringLiteral(" rowspan=\"%1\"").arg(cell.rowSpan());
                markup += QLatin1Char('>');
                for (auto it = cell.begin(); !it.atEnd(); ++it) {
                    if (it.currentFrame())
                        writeChildFrame(it.currentFrame());
                    else
                        writeBlock(it.currentBlock());
                }
                closeLists(0);
                markup += QLatin1String("</td>");
            }
            markup += QLatin1String("</tr>\n");
        }
        markup += QLatin1String("</table>\n");
    }

    void closeLists(size_t depth)
    {
        while (m_lists.size() > depth) {
            markup += QLatin1String("</li></") + m_lists.back().tag + QLatin1String(">\n");
            m_lists.pop_back();
        }
    }

    void writeBlock(const QTextBlock &block)
    {
        if (const QTextList *list = block.textList()) {
            openListItem(list);
            writeFragments(block);
            return;
        }
        closeLists(0);
        // Nothing at the start, and the empty line that every table is followed by, are no text.
        if (block.text().trimmed().isEmpty()
            && (markup.isEmpty() || markup.endsWith(QLatin1String("</table>\n"))))
            return;
        markup += QLatin1String("<p") + alignment(block) + QLatin1Char('>');
        if (block.text().isEmpty())
            markup += QLatin1String("<br>");
        writeFragments(block);
        markup += QLatin1String("</p>\n");
    }

    static QString alignment(const QTextBlock &block)
    {
        const Qt::Alignment set = block.blockFormat().alignment();
        if (set & Qt::AlignHCenter)
            return QStringLiteral(" align=\"center\"");
        if (set & Qt::AlignJustify)
            return QStringLiteral(" align=\"justify\"");
        return set & Qt::AlignRight ? QStringLiteral(" align=\"right\"") : QString();
    }

    void openListItem(const QTextList *list)
    {
        const auto depth = size_t(qBound(1, list->format().indent(), 20));
        closeLists(depth);
        if (m_lists.size() == depth && m_lists.back().list != list)
            closeLists(depth - 1);
        if (m_lists.size() == depth) {
            markup += QLatin1String("</li>\n<li>");
            return;
        }
        const bool numbered = list->format().style() <= QTextListFormat::ListDecimal;
        while (m_lists.size() < depth) {
            m_lists.push_back({list, numbered ? QStringLiteral("ol") : QStringLiteral("ul")});
            markup += QLatin1Char('<') + m_lists.back().tag + QLatin1String("><li>");
        }
    }

    void writeFragments(const QTextBlock &block)
    {
        const int end = block.position() + block.length() - 1;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            QString text = fragment.text();
            if (fragment.position() + fragment.length() >= end)
                text = text::trimTrailingSpaces(text);
            if (!text.isEmpty())
                writeFormatted(escaped(text), fragment.charFormat());
        }
    }

    void writeFormatted(const QString &text, const QTextCharFormat &format)
    {
        QString open;
        QString close;
        const auto wrap = [&](const QString &tag, const QString &attributes = {}) {
            open += QLatin1Char('<') + tag + attributes + QLatin1Char('>');
            close.prepend(QLatin1String("</") + tag + QLatin1Char('>'));
        };
        if (format.isAnchor() && linkAllowed(format.anchorHref())) {
            // A link brings its own colour and line.
            wrap(QStringLiteral("a"), QLatin1String(" href=\"")
                                          + format.anchorHref().toHtmlEscaped() + QLatin1Char('"'));
        } else {
            const QBrush brush = format.foreground();
            if (!format.isAnchor() && brush.style() == Qt::SolidPattern
                && brush.color() != QColor(Qt::black))
                wrap(QStringLiteral("span"),
                     QLatin1String(" style=\"color:") + brush.color().name() + QLatin1Char('"'));
            if (!format.isAnchor() && format.fontUnderline())
                wrap(QStringLiteral("u"));
        }
        if (format.fontWeight() >= QFont::DemiBold)
            wrap(QStringLiteral("b"));
        if (format.fontItalic())
            wrap(QStringLiteral("i"));
        if (format.fontStrikeOut())
            wrap(QStringLiteral("s"));
        if (format.verticalAlignment() == QTextCharFormat::AlignSubScript)
            wrap(QStringLiteral("sub"));
        if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
            wrap(QStringLiteral("sup"));
        markup += open + text + close;
    }
};

} // namespace

QString cleanHtml(const QString &html)
{
    if (html.isEmpty())
        return {};
    inertDocument document;
    if (!Qt::mightBeRichText(html) || depthOf(html) > maxDepth)
        document.setPlainText(html);
    else
        document.setHtml(html);
    markupWriter writer;
    writer.writeFrame(document.rootFrame());
    return writer.markup;
}

QString linkAddress(const QString &typed)
{
    const QString address = typed.trimmed();
    static const QRegularExpression mail(QStringLiteral("^[^\\s/:@]+@[^\\s/:@]+\\.[^\\s/:@]+$"));
    static const QRegularExpression host(
        QStringLiteral("^[^\\s/:@.]+(\\.[^\\s/:@.]+)+(:\\d+)?([/?#].*)?$"));
    if (mail.match(address).hasMatch())
        return QLatin1String("mailto:") + address;
    if (host.match(address).hasMatch())
        return QLatin1String("https://") + address;
    return linkAllowed(address) && QUrl(address).isValid() ? address : QString();
}
