// The whole program in a folder of its own, worked with hands: the main window on the sample data,
// and the windows that are opened from it.
#pragma once

#include "hands.h"
#include "testSupport.h"

#include "data/programData.h"
#include "shell/MainWindow.h"
#include "util/userState.h"

#include <QAction>
#include <QApplication>
#include <QStatusBar>

class editingFixture : public QObject
{
    Q_OBJECT
protected:
    // The window that was opened last.
    QMainWindow &window() { return *m_front; }
    MainWindow &mainWindow() { return *m_main; }
    QString path(const QString &relative) const { return m_folder->path(relative); }
    testSupport::programFolder &folder() { return *m_folder; }
    seenPrompts &seen() { return *m_seen; }

    // Steps in the window that was opened last.
    void work(const QString &steps) { (*m_hands)(steps); }
    QStringList boxes() { return m_hands->boxes(); }
    QString status() const { return m_front->statusBar()->currentMessage(); }

    // Steps in the main window that open another one, which is worked in from here on; parts stand between "|", and "<"
    // begins one in the main window.
    void openWindow(const QString &steps)
    {
        const QStringList parts = steps.split('|');
        for (const QString &part : parts) {
            const QList<QMainWindow *> before = shownWindows();
            if (part.startsWith('<'))
                turnTo(*m_main);
            work(part.mid(part.startsWith('<')));
            auto *opened = qobject_cast<QMainWindow *>(QApplication::activeWindow());
            for (QMainWindow *shown : shownWindows())
                if (!before.contains(shown))
                    opened = shown;
            if (opened && opened != m_front)
                turnTo(*opened);
        }
    }
    static QList<QMainWindow *> shownWindows()
    {
        QList<QMainWindow *> shown;
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *opened = qobject_cast<QMainWindow *>(widget); opened && opened->isVisible())
                shown.append(opened);
        return shown;
    }

    // Works in a window that is open already from here on.
    void turnTo(QMainWindow &opened)
    {
        m_front = &opened;
        m_hands = std::make_unique<hands>(opened);
    }

    // The program begins, and offers what its last run left unsaved; steps answer that.
    void start()
    {
        m_main = std::make_unique<MainWindow>(programData::instance());
        turnTo(*m_main);
    }
    void restart(const QString &steps)
    {
        end();
        start();
        QTimer::singleShot(0, m_main.get(), &MainWindow::offerRecovery);
        work("~50 " + steps);
    }

    // The program is ended by the system, and begins anew.
    void endAndStart()
    {
        m_main->endNow();
        // It has told the event loop to end, which there is none of here.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
        end();
        start();
    }

    // Called before the main window is made: other files, other options.
    virtual void prepare() {}
    void setOption(const char *key, const QString &value)
    {
        configStruct config;
        QVERIFY(config.load(path("_config/kiv_mat_config.xml")));
        config.options.findOption(key)->value1 = value;
        QVERIFY(config.save(path("_config/kiv_mat_config.xml")));
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<testSupport::programFolder>();
        for (const char *name : {"_config", "_files", "_zp"})
            testSupport::copyFolder(testSupport::source(name), path(name));
        configStruct config;
        QVERIFY(config.load(path("_config/kiv_mat_config.xml")));
        config.backupPath();
        config.options.findOption("PATH_BACKUP")->value1 = path("backup");
        QVERIFY(config.save(path("_config/kiv_mat_config.xml")));
        userState::instance().lastZp = "_zp/zp_0.xml";
        prepare();
        m_seen = std::make_unique<seenPrompts>();
        start();
    }
    void cleanup()
    {
        end();
        m_seen.reset();
        m_folder.reset();
    }

private:
    void end()
    {
        m_hands.reset();
        m_main.reset();
        programData::instance().clear();
    }

    std::unique_ptr<testSupport::programFolder> m_folder;
    std::unique_ptr<seenPrompts> m_seen;
    std::unique_ptr<MainWindow> m_main;
    QMainWindow *m_front = nullptr;
    std::unique_ptr<hands> m_hands;
};
