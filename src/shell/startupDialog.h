// The picture with a progress bar that stands on the screen while the program loads its files.
#pragma once

#include <QSplashScreen>

class startupDialog : public QSplashScreen
{
    Q_OBJECT
public:
    startupDialog();

    int progress() const { return m_progress; }
    int maximum() const { return m_maximum; }

    // Both repainted at once: the event loop does not run yet.
    void setProgress(int value, int maximum);

protected:
    void drawContents(QPainter *painter) override;

private:
    int m_progress = 0;
    int m_maximum = 100;
};

// The one start-up picture, for those who load files while it stands there. Without one, nothing
// happens.
namespace splash {

void hold(startupDialog *dialog); // null: none
void show();
void setProgress(int value, int maximum);
// Keeps the picture painted during long work between two steps.
void keepPainted();

} // namespace splash
