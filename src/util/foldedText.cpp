#include "util/foldedText.h"

#include <QVector>

#include <array>

namespace {

// What has no decomposition, or one that a search does not want.
QString plainForm(uint codePoint)
{
    switch (codePoint) {
    case 0x142: // ł
        return QStringLiteral("l");
    case 0xf8: // ø
        return QStringLiteral("o");
    case 0x111: // đ
        return QStringLiteral("d");
    case 0x131: // dotless i
        return QStringLiteral("i");
    case 0xdf: // ß
        return QStringLiteral("ss");
    case 0xe6: // æ
        return QStringLiteral("ae");
    case 0x153: // œ
        return QStringLiteral("oe");
    case 0xd7: // multiplication sign
        return QStringLiteral("x");
    case 0x3bc: // mu, and the micro sign
        return QStringLiteral("u");
    case 0x3c9: // omega, and the ohm sign
        return QStringLiteral("ohm");
    case 0x2010: // hyphens, dashes and the minus sign
    case 0x2011:
    case 0x2012:
    case 0x2013:
    case 0x2014:
    case 0x2212:
        return QStringLiteral("-");
    case 0x2044: // in decomposed fractions
        return QStringLiteral("/");
    default:
        return QString::fromUcs4(&codePoint, 1);
    }
}

std::string foldCodePoint(uint codePoint)
{
    QString result;
    const QString decomposed =
        QString::fromUcs4(&codePoint, 1).normalized(QString::NormalizationForm_KD).toCaseFolded();
    for (const uint part : decomposed.toUcs4()) {
        const QChar::Category category = QChar::category(part);
        if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing)
            continue;
        if (QChar::isSpace(part) || category == QChar::Other_Control)
            result += QLatin1Char(' ');
        else
            result += plainForm(part);
    }
    return result.toStdString();
}

// Latin, Greek and Cyrillic letters are looked up, the others worked out each time.
constexpr uint tableSize = 0x530;

const std::array<std::string, tableSize> &foldTable()
{
    static const std::array<std::string, tableSize> table = [] {
        std::array<std::string, tableSize> result;
        for (uint i = 0; i < tableSize; ++i)
            result[i] = foldCodePoint(i);
        return result;
    }();
    return table;
}

} // namespace

namespace text {

void appendFolded(const QString &text, std::string &to)
{
    static const std::array<std::string, tableSize> &table = foldTable();
    const size_t start = to.size();
    const auto append = [&](const std::string &piece) {
        for (const char c : piece)
            if (c != ' ' || to.size() == start || to.back() != ' ')
                to.push_back(c);
    };
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.unicode() < tableSize) {
            append(table[c.unicode()]);
        } else if (!c.isSurrogate()) {
            append(foldCodePoint(c.unicode()));
        } else if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            append(foldCodePoint(QChar::surrogateToUcs4(c, text.at(i + 1))));
            ++i;
        }
    }
}

std::string folded(const QString &text)
{
    std::string result;
    appendFolded(text, result);
    return result;
}

} // namespace text
