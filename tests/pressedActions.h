// Every action of a window pressed from its menu, while editing is locked and while it is not: what
// is seen of it, and how the files differ afterwards.
#pragma once

#include "editingFixture.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDirIterator>
#include <QHeaderView>
#include <QTreeView>

struct pressedAction
{
    // "%1" is the program's folder.
    const char *name;     // with what tells rows of one action apart behind a comma
    const char *steps;    // with "#name", from where the window stands unlocked
    const char *seen;     // texts seen afterwards, parted by '|'; those that begin with "+" or "-" are
                          // lines of files, "new " are files; without such ones no file may differ
    bool changes = false; // refused while editing is locked
};

struct pressedWindow
{
    const char *title;
    const char *opened; // for openWindow(), to where it is unlocked
    const char *lock;   // the key that locks it; empty when it has no lock
    std::vector<pressedAction> actions;
};

class actionFixture : public editingFixture
{
    Q_OBJECT
public slots:
    void pageOpened(const QUrl &url) { m_opened += "opened " + url.toString() + '\n'; }

protected:
    virtual std::vector<pressedWindow> windows() = 0;
    // How the trees of the window stand, and what else of it counts as seen.
    virtual QString look()
    {
        QStringList lines;
        for (const QTreeView *view : window().findChildren<QTreeView *>()) {
            int open = 0;
            QStringList below;
            for (int r = 0; r < view->model()->rowCount(); ++r) {
                const QModelIndex row = view->model()->index(r, 0);
                open += view->isExpanded(row);
                for (int child = 0; child < view->model()->rowCount(row); ++child)
                    if (!view->isRowHidden(child, row))
                        below.append(view->model()->index(child, 0, row).data().toString());
            }
            const QHeaderView *header = view->header();
            lines.append(QString("%1: rows %2, open %3, columns %4, at %5, below %6")
                             .arg(view->objectName())
                             .arg(view->model()->rowCount())
                             .arg(open)
                             .arg(header->count() - header->hiddenSectionCount())
                             .arg(view->currentIndex().data().toString(), below.join(' ')));
        }
        return lines.join('\n');
    }
    // Saves what is unsaved, so that the files can be compared.
    virtual void saveAll()
    {
        if (window().isVisible() && window().windowTitle().endsWith(" *"))
            work("Ctrl+S Escape");
    }

    // Since it was last called.
    QString seenNow()
    {
        QStringList lines = boxes();
        lines << status() << look() << seen().listed << seen().logged << std::exchange(m_opened, {})
              << "clipboard " + QGuiApplication::clipboard()->text();
        for (const QMainWindow *shown : shownWindows())
            lines << "shown " + shown->windowTitle();
        lines << (window().isVisible() ? "" : "closed");
        saveAll();
        lines << "saving " + boxes().join(' ') << differences();
        return lines.join('\n');
    }

private slots:
    void pressed_data()
    {
        QTest::addColumn<int>("window");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("locked");
        const auto all = windows();
        for (int w = 0; w < int(all.size()); ++w)
            for (int r = 0; r < int(all[w].actions.size()); ++r)
                for (const bool locked : {false, true})
                    if (!locked || all[w].lock[0])
                        QTest::addRow("%s: %s%s", all[w].title, all[w].actions[r].name, locked ? ", locked" : "")
                            << w << r << locked;
    }
    void pressed()
    {
        QFETCH(int, window);
        QFETCH(int, row);
        QFETCH(bool, locked);
        const pressedWindow at = windows()[window];
        const pressedAction action = at.actions[row];
        for (const char *scheme : {"http", "https", "file"})
            QDesktopServices::setUrlHandler(scheme, this, "pageOpened");
        QGuiApplication::clipboard()->clear();
        m_files = files();
        openWindow(at.opened);
        const QString steps = QString(action.steps).replace("%1", path({}));
        // A click that opens a context menu belongs to what is pressed in it.
        const QRegularExpression press("(\\S+@\\?\\S+ )?[#!]\\S+(?!.* #)");
        const int start = std::max(0, steps.indexOf(press));
        const QString name = QString(action.name).section(',', 0, 0);
        if (locked)
            work(steps.left(start) + at.lock);
        if (locked && action.changes) {
            const QString stood = stand();
            work(steps.mid(start).section(name, 0, 0).replace('#', "#-") + name);
            // Undo stays enabled, and says it when it is pressed.
            const QString told = boxes().value(0, status());
            QVERIFY2(told.endsWith("diting is locked"), qPrintable(told));
            QCOMPARE(stand(), stood);
            return;
        }
        boxes();
        work(locked ? steps.mid(start) : steps);
        const QString now = seenNow();
        const QStringList parts = QString(action.seen).split('|');
        for (const QString &part : parts)
            QVERIFY2(now.contains(QString(part).replace("%1", path({}))), qPrintable(part + "\nis not in\n" + now));
        const QRegularExpression difference("^([+-]|new )");
        QVERIFY2(now.contains(QRegularExpression("\n([+-]|new )")) == !parts.filter(difference).isEmpty(),
                 qPrintable("files differ otherwise:\n" + now));
    }
    // An action that the window gets later is not to be missing here.
    void noneIsMissing_data()
    {
        QTest::addColumn<int>("window");
        for (int w = 0; w < int(windows().size()); ++w)
            QTest::addRow("%s", windows()[w].title) << w;
    }
    void noneIsMissing()
    {
        QFETCH(int, window);
        const pressedWindow at = windows()[window];
        openWindow(at.opened);
        QStringList missing;
        for (const QAction *action :
             editingFixture::window().findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly))
            if (!action->objectName().isEmpty())
                missing.append(action->objectName());
        for (const pressedAction &row : at.actions)
            missing.removeAll(QString(row.name).section(',', 0, 0));
        QCOMPARE(missing, QStringList());
    }

private:
    QString stand() { return window().windowTitle().remove(" Editing locked") + look(); }
    QMap<QString, QByteArray> files()
    {
        QMap<QString, QByteArray> all;
        for (QDirIterator it(path({}), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
            const QString file = it.next();
            all.insert(file, testSupport::read(file));
        }
        return all;
    }
    // Files that are new, and lines that there are more or fewer of.
    QString differences()
    {
        QStringList lines;
        const auto now = files();
        for (auto file = now.begin(); file != now.end(); ++file) {
            const QString name = QDir(path({})).relativeFilePath(file.key());
            if (name.startsWith("backup/") || name.contains(".lock") || name.endsWith(".ini"))
                continue;
            if (!m_files.contains(file.key()))
                lines.append("new " + name);
            else if (file.value() != m_files[file.key()])
                lines += lineDifferences(m_files[file.key()], file.value());
        }
        m_files = now;
        return lines.join('\n');
    }
    static QStringList lineDifferences(const QByteArray &before, const QByteArray &after)
    {
        QMap<QString, int> counts;
        for (const QByteArray &line : after.split('\n'))
            ++counts[QString::fromUtf8(line.trimmed())];
        for (const QByteArray &line : before.split('\n'))
            --counts[QString::fromUtf8(line.trimmed())];
        QStringList lines;
        for (auto line = counts.begin(); line != counts.end(); ++line)
            if (line.value() != 0 && !line.key().startsWith("<update>"))
                lines.append((line.value() > 0 ? '+' : '-') + line.key());
        return lines;
    }

    QString m_opened;
    QMap<QString, QByteArray> m_files;
};
