// The page of the current material beside the tree of its database, see materialPage.h. It follows
// the tree some moments after it came to rest, and reads BOM lists and orders, for what they use,
// while nothing else is done.
#pragma once

#include "database/materialPage.h"

#include <QTextBrowser>

#include <functional>

class QSplitter;
class QTimer;
class kiv_mat_zpStruct;
class programData;

class detailsPane : public QTextBrowser
{
    Q_OBJECT
public:
    // known: where the BOM lists and the firm register are found.
    explicit detailsPane(programData &known);

    // Puts the tree's page and this pane, which belong to it then, side by side.
    QSplitter *beside(QWidget *tree);

    // What is to be shown now; asked for whenever the page is made.
    std::function<materialPage::subject()> current;
    // The order that is open, or null.
    std::function<const kiv_mat_zpStruct *()> openOrder;

    // Has the page follow what changed in the tree.
    void follow();
    // Whether the pane was left open; it is at first.
    static bool wasOpen();
    // Opens or closes it, and remembers that.
    void setOpen(bool open);

signals:
    // A line of a BOM list or an order was clicked.
    void useWanted(const materialUses::use &use);
    // The link to the material's history was clicked.
    void historyWanted();
    // Escape was pressed.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    // Nothing that a page names is loaded by itself.
    QVariant loadResource(int, const QUrl &) override { return {}; }

private:
    void makePage();
    void lookForFiles();
    void readOne();
    void open(const QUrl &link);

    programData &m_known;
    QTimer *m_delay;
    QTimer *m_reading;
    materialUses m_uses;
    std::vector<materialUses::use> m_shownUses;
    QString m_page;
};
