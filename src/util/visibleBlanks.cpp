#include "util/visibleBlanks.h"

namespace text {

namespace {

constexpr QChar dot(0x00B7);
constexpr QChar openBox(0x237D);
constexpr QChar frame(0x25AF);
constexpr QChar right(0x2192);
constexpr QChar back(0x21B5);

bool isLineEnd(QChar c) { return c == QLatin1Char('\n') || c == QLatin1Char('\r'); }

} // namespace

QString visibleBlanks(const QString &text)
{
    QString shown;
    shown.reserve(text.size());
    const auto isOpen = [&text](int i) {
        return i < 0 || i >= text.size() || isLineEnd(text.at(i)) || text.at(i).isSpace();
    };
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char(' '))
            shown += isOpen(i - 1) || isOpen(i + 1) ? dot : c;
        else if (c == QLatin1Char('\t'))
            shown += right;
        else if (c == QLatin1Char('\r') && i + 1 < text.size()
                 && text.at(i + 1) == QLatin1Char('\n'))
            shown += frame;
        else if (isLineEnd(c))
            shown += back;
        else if (c.isSpace())
            shown += openBox;
        else
            shown += c.isPrint() || c.isSurrogate() ? c : frame;
        // What follows a line end begins apart from it.
        if (isLineEnd(c) && shown.endsWith(back) && i + 1 < text.size())
            shown += QLatin1Char(' ');
    }
    return shown;
}

} // namespace text
