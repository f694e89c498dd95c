// The log and errors windows: what the user is to read without being interrupted. One instance of
// each for the whole process, made hidden when it is first needed.
#pragma once

#include "window/baseWindow.h"

class QTextEdit;

class messageWindow : public baseWindow
{
    Q_OBJECT
public:
    // All that was appended since the start or the last Clear, as HTML.
    const QString &text() const { return m_text; }

    // Whether anything arrived since the window was last brought up.
    bool hasNews() const { return m_hasNews; }

    // Adds a fragment of HTML. What arrives while the window is hidden is shown when it opens.
    void append(const QString &html);

    // Each is visible at once, also inside long work.
    void showNow();
    void hideNow();
    void refresh();

public slots:
    void commandClear(bool);
    void escape(bool);

protected:
    messageWindow(const QString &name, const QString &title);

    void showEvent(QShowEvent *event) override;

private:
    void showRest();

    QTextEdit *m_view;
    QString m_text;
    bool m_hasNews = false;
    int m_shown = 0; // characters of the text that the view has
};

// "Log": progress and results.
class logWindow : public messageWindow
{
    Q_OBJECT
public:
    static logWindow &instance();

public slots:
    // Output of an external process: plain text, one run of it a line.
    void appendToLog(const QString &text);

private:
    logWindow();
};

// "Errors": failures.
class errorsWindow : public messageWindow
{
    Q_OBJECT
public:
    static errorsWindow &instance();

private:
    errorsWindow();
};
