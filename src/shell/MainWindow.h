// The main window: the open order and the ways to everything else.
#pragma once

#include "window/baseWindow.h"

class QTabWidget;
class myWebView;

class MainWindow : public baseWindow
{
    Q_OBJECT
public:
    // Loads the configuration, all data files and the last order in nine stages, which the start-up
    // picture shows. What cannot be read is in the errors window, which is shown when it holds
    // anything.
    MainWindow();

public slots:
    void commandZpPrint(bool);
    void commandShowLog(bool);
    void commandShowErrors(bool);
    void commandHelp(bool);
    void commandAbout(bool);
    void commandExit(bool);
    void checkUpdate();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildWidgets();
    void loadDataFiles();
    void openLastOrder();
    void refreshPreview();
    void showPath();

    QTabWidget *m_tabs = nullptr;
    myWebView *m_preview = nullptr;
};
