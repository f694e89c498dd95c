// The header of the editing trees, which tells where and with which buttons a section was clicked.
#pragma once

#include <QHeaderView>

class myHeaderView : public QHeaderView
{
    Q_OBJECT
public:
    explicit myHeaderView(QWidget *parent = nullptr);

signals:
    // The place and the buttons of the press, and the section.
    void clicked(QPoint MousePos, uint b, int i);

public slots:
    void clickedSection(int section);

protected:
    // Sections can be clicked only between a press and a release: nothing but a real press counts.
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QPoint m_pressPosition;
    uint m_pressButtons = 0;
};
