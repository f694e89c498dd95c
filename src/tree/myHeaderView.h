// The header of the editing trees, which tells where and with which buttons a section was clicked.
// A caption that is wider than its column goes on in further lines; a tool tip holds it whole.
#pragma once

#include <QHeaderView>
#include <QStyleOptionHeader>

class myHeaderView : public QHeaderView
{
    Q_OBJECT
public:
    explicit myHeaderView(QWidget *parent = nullptr);

    QSize sizeHint() const override;

signals:
    // The place and the buttons of the press, and the section.
    void clicked(QPoint MousePos, uint b, int i);

public slots:
    void clickedSection(int section);

protected:
    // Sections can be clicked only between a press and a release: nothing but a real press counts.
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;

private:
    QString captionOf(int section) const;
    QString shownCaption(int section) const;
    QStyleOptionHeader optionOf(const QRect &rect, int section) const;
    int heightOf(int section) const;

    QPoint m_pressPosition;
    uint m_pressButtons = 0;
};
