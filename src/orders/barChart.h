// Bars of pairs of sums, the greatest first, perhaps with a threshold each: as many rows as there
// is room for, values written out.
#pragma once

#include <QWidget>

#include <optional>
#include <vector>

class barChart : public QWidget
{
    Q_OBJECT
public:
    struct pair
    {
        QString name;
        double first = 0;
        double second = 0;
        std::optional<double> threshold;
        QString firstText; // as they are written
        QString secondText;
        QString thresholdText; // below the name
    };

    explicit barChart(QWidget *parent = nullptr);

    // What the two bars and the mark are called in the legend. empty stands where there are no
    // rows.
    void setLegend(const QString &first, const QString &second, const QString &threshold,
                   const QString &empty);
    void setRows(std::vector<pair> rows);

    // How many rows there is room for, and where the bars of one are, as they are painted.
    int shownRows() const;
    QRect firstBar(int row) const;
    QRect secondBar(int row) const;
    // Where its threshold is marked; nothing when it has none, or one so far beyond all sums that
    // they could not be seen beside it.
    std::optional<int> thresholdAt(int row) const;

    // Of the bars, apart from each other on light and on dark backgrounds.
    QColor firstColour() const;
    QColor secondColour() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    int lineHeight() const { return fontMetrics().height(); }
    int barHeight() const;
    int rowHeight() const;
    int top(int row) const;
    int namesWidth() const;
    QRect bar(int row, int below, double value) const;
    double greatest() const;
    double scale() const;
    void paintBar(QPainter &painter, const QRect &bar, const QColor &colour, bool isHatched) const;
    void paintRow(QPainter &painter, int row) const;
    void paintLegend(QPainter &painter) const;
    QString textOf(const pair &of) const;

    std::vector<pair> m_rows;
    int m_valuesWidth = 0; // of the longest value's text
    QString m_first;
    QString m_second;
    QString m_threshold;
    QString m_empty;
};
