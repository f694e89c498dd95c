// What an update offers, what it would change here, and installing it.
#pragma once

#include "update/updateRun.h"
#include "window/baseWindow.h"

class QLabel;
class QPlainTextEdit;
class QTextBrowser;
class QTreeWidget;
class programData;

class updateWindow : public baseWindow
{
    Q_OBJECT
public:
    explicit updateWindow(programData &known);
    ~updateWindow() override;

    // Ends this program, as far as the user lets it, and begins it anew. False when it goes on.
    std::function<bool()> restart = [] { return false; };
    // Whether a window holds changes of a file that are not saved.
    std::function<bool()> hasUnsaved = [] { return false; };

    // Comes to the front and looks at what is on offer.
    void showNow();

public slots:
    void commandLook(bool);
    void commandInstall(bool);
    void commandBack(bool);
    void commandClose(bool) { close(); }

private:
    void buildWidgets();
    void showOffer();
    void updateActions();
    std::set<updates::part> ticked() const;
    bool fetch();
    // False when the user has cancelled it.
    bool showPrepared();
    void drop();
    void tell(const QString &text);

    programData &m_known;
    updates::offer m_offer;
    updates::prepared m_prepared; // of what is ticked; without a scratch folder there is none
    std::set<updates::part> m_preparedParts;
    QLabel *m_state;
    QTreeWidget *m_parts;
    QTextBrowser *m_description;
    QPlainTextEdit *m_changes;
};
