#include "orders/barChart.h"

#include "util/text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

constexpr int gap = 6;
constexpr int mostBeyond = 2;   // times the greatest sum is a threshold marked
constexpr int fewestPixels = 1; // of a bar that is not nothing

bool isDark(const QPalette &palette)
{
    constexpr int half = 128;
    return palette.color(QPalette::Base).lightness() < half;
}

} // namespace

barChart::barChart(QWidget *parent)
    : QWidget(parent)
{
    // Its description is read where it has the focus.
    setFocusPolicy(Qt::TabFocus);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void barChart::setLegend(const QString &first, const QString &second, const QString &threshold,
                         const QString &empty)
{
    m_first = first;
    m_second = second;
    m_threshold = threshold;
    m_empty = empty;
    update();
}

void barChart::setRows(std::vector<pair> rows)
{
    m_rows = std::move(rows);
    m_valuesWidth = 0;
    QStringList texts;
    for (const pair &one : m_rows) {
        for (const QString &text : {one.firstText, one.secondText})
            m_valuesWidth = std::max(m_valuesWidth, fontMetrics().horizontalAdvance(text));
        texts.append(textOf(one));
    }
    setAccessibleDescription(texts.isEmpty() ? m_empty : texts.join(QLatin1Char('\n')));
    update();
}

QString barChart::textOf(const pair &of) const
{
    QString text = QStringLiteral("%1\n%2: %3\n%4: %5")
                       .arg(of.name, m_first, of.firstText, m_second, of.secondText);
    if (!of.thresholdText.isEmpty())
        text += QLatin1Char('\n') + of.thresholdText;
    return text;
}

// --- Places
// ---------------------------------------------------------------------------------------

QSize barChart::minimumSizeHint() const
{
    constexpr int letters = 36;
    return {fontMetrics().averageCharWidth() * letters, 2 * gap + lineHeight() + 2 * rowHeight()};
}

QSize barChart::sizeHint() const
{
    constexpr int letters = 60;
    constexpr int rows = 10;
    return {fontMetrics().averageCharWidth() * letters,
            2 * gap + lineHeight() + rows * rowHeight()};
}

int barChart::barHeight() const { return lineHeight(); }

int barChart::rowHeight() const { return 2 * barHeight() + gap; }

int barChart::top(int row) const { return 2 * gap + lineHeight() + row * rowHeight(); }

int barChart::namesWidth() const
{
    constexpr int part = 3;
    int widest = 0;
    for (const pair &one : m_rows)
        for (const QString &text : {one.name, one.thresholdText})
            widest = std::max(widest, fontMetrics().horizontalAdvance(text));
    return std::min(widest, width() / part);
}

int barChart::shownRows() const
{
    return std::clamp((height() - top(0)) / rowHeight(), 0, int(m_rows.size()));
}

// What the width is for: the greatest value that is shown.
double barChart::greatest() const
{
    double sums = 0;
    for (int i = 0; i < shownRows(); ++i)
        sums = std::max({sums, m_rows[size_t(i)].first, m_rows[size_t(i)].second});
    double all = sums;
    for (int i = 0; i < shownRows(); ++i)
        if (const double threshold = m_rows[size_t(i)].threshold.value_or(0);
            threshold <= mostBeyond * sums)
            all = std::max(all, threshold);
    return all;
}

// Pixels for one.
double barChart::scale() const
{
    const double most = greatest();
    const int room = width() - namesWidth() - m_valuesWidth - 4 * gap;
    return most > 0 && room > 0 ? room / most : 0;
}

QRect barChart::bar(int row, int below, double value) const
{
    const int length = value > 0 ? std::max(fewestPixels, int(std::lround(value * scale()))) : 0;
    return {namesWidth() + 2 * gap, top(row) + below * barHeight(), length, barHeight() - 1};
}

QRect barChart::firstBar(int row) const { return bar(row, 0, m_rows[size_t(row)].first); }

QRect barChart::secondBar(int row) const { return bar(row, 1, m_rows[size_t(row)].second); }

std::optional<int> barChart::thresholdAt(int row) const
{
    const auto &threshold = m_rows[size_t(row)].threshold;
    if (!threshold || *threshold > greatest())
        return {};
    return namesWidth() + 2 * gap + int(std::lround(*threshold * scale()));
}

// --- Painting
// -------------------------------------------------------------------------------------

QColor barChart::firstColour() const
{
    return isDark(palette()) ? QColor(0x6F, 0xAE, 0xE8) : QColor(0x2B, 0x6C, 0xB0);
}

QColor barChart::secondColour() const
{
    return isDark(palette()) ? QColor(0x8C, 0xD8, 0x9F) : QColor(0x2E, 0x8B, 0x4E);
}

// The second bars are hatched, so that colours alone do not tell them apart.
void barChart::paintBar(QPainter &painter, const QRect &bar, const QColor &colour,
                        bool isHatched) const
{
    if (bar.width() <= 0)
        return;
    painter.fillRect(bar, colour);
    if (isHatched)
        painter.fillRect(bar, QBrush(palette().color(QPalette::Base), Qt::BDiagPattern));
}

void barChart::paintRow(QPainter &painter, int number) const
{
    const pair &of = m_rows[size_t(number)];
    const QRect first = firstBar(number);
    const QRect second = secondBar(number);
    paintBar(painter, first, firstColour(), false);
    paintBar(painter, second, secondColour(), true);
    painter.setPen(palette().color(QPalette::Text));
    const auto writeName = [&](const QString &text, int y) {
        const QString seen = fontMetrics().elidedText(text, Qt::ElideMiddle, namesWidth());
        painter.drawText(QRect(gap, y, namesWidth(), barHeight()),
                         Qt::AlignRight | Qt::AlignVCenter, seen);
    };
    writeName(of.name, first.top());
    writeName(of.thresholdText, second.top());
    const auto threshold = thresholdAt(number);
    if (threshold) {
        painter.setPen(QPen(palette().color(QPalette::Text), 2, Qt::DashLine));
        painter.drawLine(*threshold, first.top() - 2, *threshold, second.bottom() + 2);
    }
    // Values lie over what is painted, on a background of their own.
    const auto writeValue = [&](const QString &text, const QRect &bar) {
        int left = bar.left() + bar.width() + gap;
        const int width = fontMetrics().horizontalAdvance(text);
        if (threshold && *threshold >= left - gap && *threshold <= left + width)
            left = std::min(*threshold + gap, this->width() - gap - width);
        const QRect place(left, bar.top(), width, bar.height());
        painter.fillRect(place, palette().color(QPalette::Base));
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text);
    };
    writeValue(of.firstText, first);
    writeValue(of.secondText, second);
}

void barChart::paintLegend(QPainter &painter) const
{
    int x = gap;
    const int side = lineHeight();
    const auto write = [&](const QString &text) {
        painter.setPen(palette().color(QPalette::Text));
        const int width = fontMetrics().horizontalAdvance(text);
        painter.drawText(QRect(x + side + gap / 2, gap, width, side), Qt::AlignVCenter, text);
        x += side + gap / 2 + width + 2 * gap;
    };
    const auto square = [&] { return QRect(x, gap + 2, side - 4, side - 4); };
    paintBar(painter, square(), firstColour(), false);
    write(m_first);
    paintBar(painter, square(), secondColour(), true);
    write(m_second);
    if (std::none_of(m_rows.begin(), m_rows.end(),
                     [](const pair &one) { return one.threshold.has_value(); }))
        return;
    painter.setPen(QPen(palette().color(QPalette::Text), 2, Qt::DashLine));
    painter.drawLine(x + side / 2, gap, x + side / 2, gap + side);
    write(m_threshold);
}

void barChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_rows.empty()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_empty);
    } else {
        paintLegend(painter);
        for (int row = 0; row < shownRows(); ++row)
            paintRow(painter, row);
    }
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void barChart::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void barChart::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

// Names may be too long to be shown.
bool barChart::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    for (int row = 0; row < shownRows(); ++row)
        if (help->y() >= top(row) && help->y() < top(row) + rowHeight()) {
            QToolTip::showText(help->globalPos(), text::toolTip(textOf(m_rows[size_t(row)])), this);
            return true;
        }
    QToolTip::hideText();
    return true;
}
