// Who changed what of a material in the shared store, and the way back to any of it.
#pragma once

#include "store/storeHistory.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;

class historyDialog : public QDialog
{
    Q_OBJECT
public:
    // The material may be several: one KTM in several rows, or under another KTM before. mayGoBack:
    // whether the file may be changed.
    historyDialog(std::vector<store::materialHistory> materials, bool mayGoBack, QWidget *parent);

    // What the user picked when the dialog was accepted: the material's state after a release.
    struct state
    {
        QString row; // its id
        qint64 release = 0;
    };
    state picked() const;

private:
    void showChoice();

    std::vector<store::materialHistory> m_materials;
    QTreeWidget *m_view;
    QPushButton *m_back;
    bool m_mayGoBack;
};
