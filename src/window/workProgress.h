// Long work in a window: a bar with Cancel in its status bar, while nothing else takes the user's
// input.
#pragma once

#include "util/progress.h"

#include <QElapsedTimer>
#include <QObject>

class QProgressBar;
class QStatusBar;
class QToolButton;

class workProgress : public QObject
{
    Q_OBJECT
public:
    explicit workProgress(QStatusBar *bar);

    // Whether some window is at work, which swallows keys and clicks.
    static bool isWorking();

    // Work that lasts as long as the object. Its function shows how far it is, lets the window be
    // painted, and answers false once the user has pressed Cancel or Escape. Until the work ends
    // every other key, click and close is swallowed, so that it is not begun a second time. The bar
    // appears when the work takes longer than a moment. Work within work shows in the same bar.
    class scope
    {
    public:
        // Work that cannot stop halfway shows no Cancel, and its function never answers false.
        enum endKind
        {
            canCancel,
            runsToItsEnd
        };
        scope(workProgress &progress, const QString &text, endKind ends = canCancel);
        ~scope();
        scope(const scope &) = delete;
        scope &operator=(const scope &) = delete;

        progressFunction function();
        bool cancelled() const { return m_progress.m_cancelled; }

    private:
        workProgress &m_progress;
    };

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool tell(long long done, long long total);
    void begin(const QString &text, bool canCancel);
    void end();

    QProgressBar *m_bar;
    QToolButton *m_cancel;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sincePaint;
    const QWidget *m_modal = nullptr; // the box that was open when the work began
    int m_depth = 0;
    bool m_canCancel = true;
    bool m_cancelled = false;
};
