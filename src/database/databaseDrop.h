// Files that are dragged over the window of a material database: the material below the mouse is
// framed, and what dropping them there would do is told beside it and in the status bar.
#pragma once

#include "database/droppedFiles.h"

#include <QObject>
#include <QTimer>

class Kiv_mat_databaseWindow;
class QDropEvent;
class QLabel;
class QRubberBand;
class materialStruct;
class myTreeView;

class databaseDrop : public QObject
{
    Q_OBJECT
public:
    // Of a window whose tree is made; it owns this.
    explicit databaseDrop(Kiv_mat_databaseWindow *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool enter(QDropEvent *event);
    void follow(const QPoint &position);
    void leave();
    void drop();
    void rest();

    Kiv_mat_databaseWindow *m_window;
    myTreeView *m_view;
    QRubberBand *m_frame;
    QLabel *m_hint;
    QTimer m_rest; // of the mouse
    std::vector<droppedFiles::file> m_files;
    materialStruct *m_material = nullptr; // below the mouse
    QPoint m_position;                    // in the tree
    QString m_told;                       // in the status bar before
};
