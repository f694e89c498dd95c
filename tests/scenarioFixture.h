// A window's actions, each pressed from its menu, and what is seen then: rows of steps and looks.
#pragma once

#include "editingFixture.h"

#include "report/myWebView.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextBrowser>
#include <QTextEdit>
#include <QTreeView>
#include <QUrl>
#include <QWebFrame>

#include <span>

enum class lockRule
{
    edits,  // disabled while locked; one step takes it back and does it again; "saved" stands last in what is seen
    guards, // disabled while locked
    reads,  // does the same while locked, and no cell, text or title changes
    same,   // does the same while locked
    none    // the lock is not looked at
};

struct scenario
{
    const char *before; // steps; a name where no window is opened
    const char *steps;  // where a window is opened: with "#action"
    const char *seen;   // what look() takes
    lockRule lock = lockRule::none;
};

// The rows of a window's actions, none of which is to be missing; or, with no window, others.
struct scenarioTable
{
    const char *opened; // for openWindow(), to where it is unlocked; or nullptr
    bool hasLock;
    std::span<const scenario> rows;
};

class scenarioFixture : public editingFixture
{
    Q_OBJECT
protected:
    // % is the program's folder, {pc} a %, {+3} the date in three days.
    QString filled(QString text) const
    {
        static const QRegularExpression date("\\{\\+(\\d+)\\}");
        for (auto match = date.match(text); match.hasMatch(); match = date.match(text))
            text.replace(match.captured(),
                         QDate::currentDate().addDays(match.captured(1).toInt()).toString("dd.MM.yyyy"));
        return text.replace('%', path("")).replace("{pc}", "%");
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

    // A word, "file PATH", "files PATH*", "lines@3,5" for a cell, "lines@!3,5" for its tool tip, behind a "!" with an
    // icon, "lines:5" for the different texts of a column, "lines" for the number of its rows, "lines!" for the texts
    // that are not hidden, "lines^" for the number of columns that are not, the object name of a text for that.
    QString seenAt(const QString &place)
    {
        const QWidget *focus = QApplication::focusWidget();
        const QWidget *front = QApplication::activeWindow();
        const auto *at = qobject_cast<QTreeView *>(window().focusWidget());
        if (place == "saved")
            saveAll();
        const QHash<QString, std::function<QString()>> words{
            {"status", [&] { return status(); }},
            {"boxes", [&] { return boxes().join(" | "); }},
            {"title", [&] { return window().isVisible() ? window().windowTitle() : "closed"; }},
            {"front", [&] { return front ? front->windowTitle() : ""; }},
            {"focus", [&] { return focus ? focus->objectName() : ""; }},
            {"log", [&] { return seen().logged; }},
            {"errors", [&] { return seen().listed; }},
            {"desktop", [&] { return m_desktop; }},
            {"clipboard", [&] { return QApplication::clipboard()->text(); }},
            {"at", [&] { return at ? at->currentIndex().data().toString() : "no tree"; }},
            {"disk", [&] { return QString(testSupport::read(file())); }},
            {"saved", [&] { return QString(testSupport::read(file())); }},
            {"page", [&] { return window().findChild<myWebView *>()->page()->mainFrame()->toPlainText(); }},
        };
        if (words.contains(place))
            return words[place]();
        if (place.startsWith("files "))
            return QDir(path(QFileInfo(place.mid(6)).path()))
                .entryList({QFileInfo(place).fileName()}, QDir::Files)
                .join(' ');
        if (place.startsWith("file "))
            return testSupport::read(path(place.mid(5)));
        if (const auto *text = window().findChild<QTextEdit *>(place))
            return text->toPlainText();
        if (const auto *text = window().findChild<QPlainTextEdit *>(place))
            return text->toPlainText();
        if (const auto *label = window().findChild<QLabel *>(place))
            return label->text();
        static const QRegularExpression form("^(\\w+)(@!|[@:!^])?(?:([\\d/]+),)?(\\d+)?$");
        const auto match = form.match(place);
        const auto *view = window().findChild<QTreeView *>(match.captured(1));
        if (!view)
            view = mainWindow().findChild<QTreeView *>(match.captured(1));
        if (!view)
            return "nowhere";
        const QAbstractItemModel &model = *view->model();
        const int column = match.captured(4).toInt();
        const QString sign = match.captured(2);
        QStringList texts;
        QModelIndex index;
        if (sign == "^")
            return QString::number(view->header()->count() - view->header()->hiddenSectionCount());
        if (sign == "!") {
            index = model.index(0, 0);
            for (index = view->isRowHidden(0, {}) ? view->indexBelow(index) : index; index.isValid();
                 index = view->indexBelow(index))
                texts.append(index.data().toString());
            return texts.join('|');
        }
        if (sign == ":") {
            for (int row = 0; row < model.rowCount(); ++row)
                texts.append(model.index(row, column).data().toString());
            texts.removeDuplicates();
            return texts.join('|');
        }
        if (sign.isEmpty())
            return QString::number(model.rowCount());
        const QStringList rows = match.captured(3).split('/');
        for (const QString &row : rows)
            index = model.index(row.toInt(), 0, index);
        index = index.siblingAtColumn(column);
        if (sign == "@")
            return index.data().toString();
        return (index.data(Qt::DecorationRole).value<QIcon>().isNull() ? "" : "! ")
               + index.data(Qt::ToolTipRole).toString();
    }

    virtual std::vector<scenarioTable> tables() = 0;
    // What "disk" looks at, and "saved" after saving.
    virtual QString file() { return path("_zp/zp_0.xml"); }
    // What is given to another window is saved there.
    void saveAll()
    {
        if (window().isVisible() && window().windowTitle().endsWith('*'))
            work("Ctrl+S");
        for (QMainWindow *shown : shownWindows())
            if (shown->windowTitle().endsWith('*'))
                hands{*shown}("Ctrl+S");
    }

    void prepare() override
    {
        for (const char *scheme : {"http", "https", "file"})
            QDesktopServices::setUrlHandler(scheme, this, "opened");
    }

public slots:
    // What the desktop was given to open.
    void opened(const QUrl &url) { m_desktop = url.toString(); }

private slots:
    void row_data()
    {
        QTest::addColumn<int>("table");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("locked");
        const auto all = tables();
        for (size_t t = 0; t < all.size(); ++t)
            for (size_t r = 0; r < all[t].rows.size(); ++r)
                for (const bool locked : {false, true})
                    if (const scenario &of = all[t].rows[r]; !locked || (all[t].hasLock && of.lock != lockRule::none))
                        QTest::addRow("%s | %s%s", of.before, of.steps, locked ? ", locked" : "")
                            << int(t) << int(r) << locked;
    }
    void row()
    {
        QFETCH(int, table);
        QFETCH(int, row);
        QFETCH(bool, locked);
        const scenarioTable at = tables()[table];
        const scenario &of = at.rows[row];
        m_desktop.clear();
        QApplication::clipboard()->clear();
        if (at.opened) {
            steps(at.opened);
            steps(of.before);
        }
        if (locked)
            work("Ctrl+E");
        boxes();
        const QString before = everything();
        if (locked && of.lock <= lockRule::guards) {
            static const QRegularExpression pressed("#(\\w+).*");
            steps(QString(of.steps).replace(pressed, "#-\\1"));
            // Undo stays enabled, and says it when it is pressed.
            const QString told = boxes().value(0, status());
            QVERIFY2(told.endsWith("diting is locked"), qPrintable(told));
            QCOMPARE(everything(), before);
            return;
        }
        steps(of.steps);
        const QString after = everything();
        QVERIFY(of.lock != lockRule::edits || after != before);
        if (of.lock == lockRule::reads)
            QCOMPARE(after, before);
        const QString seen = of.seen;
        if (of.lock != lockRule::edits)
            return look(seen);
        // Saving ends the history.
        const int saved = seen.indexOf(QRegularExpression("\\bsaved |$"));
        look(seen.left(saved));
        work("Ctrl+Z");
        QCOMPARE(everything(), before);
        work("Ctrl+Y");
        QCOMPARE(everything(), after);
        look(seen.mid(saved));
    }

    // An action that the window gets later is not to be missing in the tables.
    void noneIsMissing()
    {
        for (const scenarioTable &table : tables()) {
            if (!table.opened)
                continue;
            turnTo(mainWindow());
            steps(table.opened);
            QString all;
            for (const scenario &of : table.rows)
                all += QString(of.steps) + ' ';
            QStringList missing, shortcuts;
            for (const QAction *action :
                 window().findChildren<QAction *>(QRegularExpression("."), Qt::FindDirectChildrenOnly)) {
                if (!all.contains('#' + action->objectName() + ' ') && !all.contains("#-" + action->objectName() + ' ')
                    && !all.contains('!' + action->text().remove('&') + ' '))
                    missing.append(action->objectName());
                QVERIFY2(!action->icon().availableSizes().isEmpty(), qPrintable(action->text()));
                if (!action->shortcut().isEmpty())
                    shortcuts.append(action->shortcut().toString());
            }
            QCOMPARE(missing, QStringList());
            QCOMPARE(shortcuts.removeDuplicates(), 0);
            QVERIFY(shortcuts.size() > 2);
        }
    }

private:
    // All cells and texts of the window.
    QString everything()
    {
        QString all = window().windowTitle();
        for (const auto *view : window().findChildren<QTreeView *>())
            if (view->window() == &window())
                addCells(*view->model(), {}, all);
        // A page beside the tree follows it later.
        for (const auto *text : window().findChildren<QTextEdit *>())
            if (!qobject_cast<const QTextBrowser *>(text))
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
