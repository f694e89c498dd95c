// A window's actions, each pressed from its menu, and what is seen then: rows of steps and looks.
#pragma once

#include "editingFixture.h"

#include "report/myWebView.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QLabel>
#include <QTextEdit>
#include <QTreeView>
#include <QUrl>
#include <QWebFrame>

struct scenario
{
    const char *name;
    const char *steps;
    const char *seen; // what look() takes
};
Q_DECLARE_METATYPE(const scenario *)

enum class lockRule
{
    edits,  // disabled while locked; one step takes it back
    guards, // disabled while locked
    reads,  // does the same while locked
    none    // the lock is not looked at
};

struct pressedRow
{
    const char *action;
    const char *before; // steps
    const char *steps;  // with "#action"
    const char *seen;   // what look() takes
    lockRule lock = lockRule::none;
};

Q_DECLARE_METATYPE(const pressedRow *)

class scenarioFixture : public editingFixture
{
    Q_OBJECT
protected:
    // % is the program's folder, {+3} the date in three days.
    QString filled(QString text) const
    {
        static const QRegularExpression date("\\{\\+(\\d+)\\}");
        for (auto match = date.match(text); match.hasMatch(); match = date.match(text))
            text.replace(match.captured(),
                         QDate::currentDate().addDays(match.captured(1).toInt()).toString("dd.MM.yyyy"));
        return text.replace('%', path(""));
    }
    void steps(const QString &steps) { openWindow(filled(steps)); }

    // "PLACE = TEXT; PLACE ~ PART; PLACE !~ PART": what stands there is, holds, does not hold that.
    void look(const QString &looks)
    {
        static const QRegularExpression form("^(.+?) (=|~|!~) ?(.*)$", QRegularExpression::DotMatchesEverythingOption);
        const QStringList parts = looks.split("; ", Qt::SkipEmptyParts);
        for (const QString &part : parts) {
            const auto match = form.match(part);
            QVERIFY2(match.hasMatch(), qPrintable(part));
            const QString wanted = filled(match.captured(3));
            const QString found = seenAt(match.captured(1));
            const QString sign = match.captured(2);
            const bool isSo = sign == "="   ? found == wanted
                              : sign == "~" ? found.contains(wanted)
                                            : !found.contains(wanted);
            QVERIFY2(isSo, qPrintable(part + ", but it is: " + found.left(2000)));
        }
    }

    // A word, "file PATH", "files PATH*", "lines@3,5" for a cell, "lines:5" for the different texts
    // of a column, "lines" for the number of its rows, the object name of a text for that.
    QString seenAt(const QString &place)
    {
        if (place == "status")
            return status();
        if (place == "boxes")
            return boxes().join(" | ");
        if (place == "title")
            return window().isVisible() ? window().windowTitle() : "closed";
        if (place == "front")
            return QApplication::activeWindow() ? QApplication::activeWindow()->windowTitle() : "";
        if (place == "focus")
            return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : "";
        if (place == "log")
            return seen().logged;
        if (place == "errors")
            return seen().listed;
        if (place == "desktop")
            return m_desktop;
        if (place == "clipboard")
            return QApplication::clipboard()->text();
        if (place == "page")
            return window().findChild<myWebView *>()->page()->mainFrame()->toPlainText();
        if (place.startsWith("files "))
            return QDir(path(QFileInfo(place.mid(6)).path()))
                .entryList({QFileInfo(place).fileName()}, QDir::Files)
                .join(' ');
        if (place.startsWith("file "))
            return testSupport::read(path(place.mid(5)));
        if (const auto *text = window().findChild<QTextEdit *>(place))
            return text->toPlainText();
        if (const auto *label = window().findChild<QLabel *>(place))
            return label->text();
        static const QRegularExpression form("^(\\w+)(?:([@:])(?:([\\d/]+),)?(\\d+))?$");
        const auto match = form.match(place);
        const auto *view = window().findChild<QTreeView *>(match.captured(1));
        if (!view)
            return "nowhere";
        const QAbstractItemModel &model = *view->model();
        const int column = match.captured(4).toInt();
        if (match.captured(2) == ":") {
            QStringList texts;
            for (int row = 0; row < model.rowCount(); ++row)
                texts.append(model.index(row, column).data().toString());
            texts.removeDuplicates();
            return texts.join('|');
        }
        if (match.captured(2).isEmpty())
            return QString::number(model.rowCount());
        QModelIndex index;
        const QStringList rows = match.captured(3).split('/');
        for (const QString &row : rows)
            index = model.index(row.toInt(), 0, index);
        return index.siblingAtColumn(column).data().toString();
    }

    template <size_t Count>
    static void addScenarios(const scenario (&table)[Count])
    {
        QTest::addColumn<const scenario *>("of");
        for (const scenario &row : table)
            QTest::newRow(row.name) << &row;
    }
    void live()
    {
        QFETCH(const scenario *, of);
        steps(of->steps);
        look(of->seen);
    }

    // --- Tables of actions ---

    template <size_t Count>
    static void addActions(const pressedRow (&table)[Count], bool hasLock = true)
    {
        QTest::addColumn<const pressedRow *>("row");
        QTest::addColumn<bool>("locked");
        for (const pressedRow &row : table) {
            QTest::addRow("%s | %s", row.before, row.steps) << &row << false;
            if (hasLock && row.lock != lockRule::none)
                QTest::addRow("%s | %s, locked", row.before, row.steps) << &row << true;
        }
    }

    // Presses one in the open window, which is unlocked.
    void pressAction()
    {
        QFETCH(const pressedRow *, row);
        QFETCH(bool, locked);
        QVERIFY(QString(row->steps).contains(QString("#") + row->action));
        steps(row->before);
        if (locked)
            work("Ctrl+E");
        boxes();
        const QString before = everything();
        if (!locked || row->lock == lockRule::reads) {
            steps(row->steps);
            look(row->seen);
            if (row->lock == lockRule::edits) {
                QVERIFY(everything() != before);
                work("Ctrl+Z");
                QCOMPARE(everything(), before);
            }
            return;
        }
        const QString pressed = QString("#") + row->action;
        const QString way = QString(row->steps).section(pressed, 0, 0);
        steps(way + "#-" + row->action);
        look("boxes ~ : editing is locked");
        QCOMPARE(everything(), before);
    }

    template <size_t Count>
    void noneIsMissing(const pressedRow (&table)[Count])
    {
        QSet<QString> missing;
        QStringList shortcuts;
        const auto actions = window().findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QAction *action : actions)
            if (!action->objectName().isEmpty()) {
                missing.insert(action->objectName());
                QVERIFY2(!action->icon().availableSizes().isEmpty(), qPrintable(action->text()));
                if (!action->shortcut().isEmpty())
                    shortcuts.append(action->shortcut().toString());
            }
        QVERIFY(missing.size() > 5);
        QCOMPARE(shortcuts.removeDuplicates(), 0);
        for (const pressedRow &row : table)
            missing.remove(row.action);
        QCOMPARE(missing.values(), QStringList());
    }

    // What the desktop was given to open.
    Q_INVOKABLE void opened(const QUrl &url) { m_desktop = url.toString(); }

    void prepare() override { QDesktopServices::setUrlHandler("file", this, "opened"); }

    ~scenarioFixture() override { QDesktopServices::unsetUrlHandler("file"); }

private:
    // All cells and texts of the window.
    QString everything()
    {
        QString all = window().windowTitle();
        for (const auto *view : window().findChildren<QTreeView *>())
            if (view->window() == &window())
                addCells(*view->model(), {}, all);
        for (const auto *text : window().findChildren<QTextEdit *>())
            all += text->toPlainText();
        return all;
    }
    static void addCells(const QAbstractItemModel &model, const QModelIndex &parent, QString &all)
    {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            for (int column = 0; column < model.columnCount(parent); ++column)
                all += '|' + model.index(row, column, parent).data().toString();
            addCells(model, model.index(row, 0, parent), all);
        }
    }

    QString m_desktop;
};
