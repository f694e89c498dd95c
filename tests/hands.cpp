#include "hands.h"

#include "testSupport.h"
#include "util/text.h"
#include "window/workProgress.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScopeGuard>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QUrl>
#include <QWindow>

namespace {

constexpr int pauseMs = 15;
constexpr int guardMs = 200;
constexpr int mostMs = 15000;
constexpr int mostWaits = 100;
const QLatin1String notThere("there is no such");
const QLatin1String notOpen("its menu does not open");
constexpr int waitsForWindow = 5;

// The window that takes keys now.
QWidget *front()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

// A list that completes what is typed comes and goes; the keys are meant for the field.
QWindow *keyWindow()
{
    QWidget *popup = QApplication::activePopupWidget();
    const QWidget *focus = QApplication::focusWidget();
    if (popup && !qobject_cast<QListView *>(popup))
        return popup->windowHandle();
    if (focus)
        return focus->window()->windowHandle();
    // While such a list comes up nobody may have the focus; the dialog below takes the key.
    for (const QWidget *widget : {front(), QApplication::activeModalWidget(), QApplication::activeWindow()})
        if (widget && widget->windowHandle())
            return widget->windowHandle();
    return nullptr;
}

// A menu or list that goes leaves a moment in which no window has the keys.
QWindow *waitForKeyWindow()
{
    if (!QTest::qWaitFor([] { return keyWindow() != nullptr; }))
        qFatal("no window takes keys");
    return keyWindow();
}

void press(int key, Qt::KeyboardModifiers modifiers = {})
{
    const QPointer<QWindow> window = waitForKeyWindow();
    QTest::keyPress(window.data(), Qt::Key(key), modifiers);
    if (window)
        QTest::keyRelease(window.data(), Qt::Key(key), modifiers);
}

// Steps are parted by blanks, but for those within apostrophes.
QStringList parted(const QString &steps)
{
    QStringList list;
    QString step;
    bool quoted = false;
    for (const QChar letter : steps) {
        quoted = quoted != (letter == '\'');
        if (letter == ' ' && !quoted) {
            if (!step.isEmpty())
                list.append(step);
            step.clear();
        } else {
            step += letter;
        }
    }
    if (!step.isEmpty())
        list.append(step);
    return list;
}

QChar mnemonicOf(const QString &text)
{
    const int at = text.indexOf('&');
    return at < 0 ? QChar() : text.at(at + 1).toUpper();
}

QMenu *menuWith(QAction *action)
{
    const QList<QWidget *> widgets = action->associatedWidgets();
    for (QWidget *widget : widgets)
        if (auto *menu = qobject_cast<QMenu *>(widget))
            return menu;
    return nullptr;
}

} // namespace

seenPrompts::seenPrompts()
    : m_before(installPrompts(this))
{
}

seenPrompts::~seenPrompts() { installPrompts(m_before); }

void seenPrompts::listError(const QString &html)
{
    listed += html;
    if (showsErrors)
        dialogPrompts::listError(html);
}

void seenPrompts::showErrors()
{
    if (showsErrors)
        dialogPrompts::showErrors();
}

hands::hands(QWidget &window)
    : m_window(window)
{
    window.show();
    window.raise();
    window.activateWindow();
    if (!QTest::qWaitFor([&window] { return window.isActiveWindow(); }))
        qFatal("the window does not become active");
}

void hands::operator()(const QString &steps)
{
    m_fault.clear();
    m_steps = parted(steps);
    m_running = true;
    QElapsedTimer time;
    time.start();
    // A box that nobody answers would hold everything up.
    QTimer guard;
    QObject::connect(&guard, &QTimer::timeout, &guard, [&] {
        QWidget *open = QApplication::activePopupWidget();
        if (!open)
            open = QApplication::activeModalWidget();
        const bool isTooLate = time.elapsed() > mostMs;
        if (isTooLate && m_fault.isEmpty())
            m_fault = "hangs before " + m_steps.join(' ');
        if (!open || (m_running && !isTooLate))
            return;
        noteBox();
        if (m_fault.isEmpty() && qobject_cast<QMessageBox *>(open))
            m_fault = "a box is left open, " + m_boxes.value(m_boxes.size() - 1);
        if (!m_fault.isEmpty())
            open->close();
    });
    guard.start(guardMs);
    QTimer::singleShot(0, &m_context, [this] { next(); });
    while (m_running && time.elapsed() < mostMs + 1000)
        QTest::qWait(1);
    QTest::qWait(pauseMs);
    QVERIFY2(m_fault.isEmpty(), qPrintable(steps + ": " + m_fault));
}

// The next step waits in the event loop before this one is done: this one may open a box, which has
// a loop of its own.
void hands::next()
{
    // Keys let events through: on a slow machine this step's last key is still to come.
    if (m_isOpening) {
        QTimer::singleShot(pauseMs, &m_context, [this] { next(); });
        return;
    }
    noteBox();
    if (m_steps.isEmpty()) {
        m_running = false;
        return;
    }
    // Work swallows what a person would do after it. Escape ends it.
    if (workProgress::isWorking() && !QApplication::activeModalWidget() && m_steps.first() != "Escape") {
        QTimer::singleShot(pauseMs, &m_context, [this] { next(); });
        return;
    }
    // Here no window manager brings the window below to the front when a box goes; and a box that
    // just comes up takes no keys yet.
    QWidget *now = front();
    const bool takesKeys = now && keyWindow() && (now->isActiveWindow() || QApplication::activePopupWidget());
    if (!takesKeys && m_waits < mostWaits) {
        if (!now)
            now = m_worked && m_worked->isVisible() ? m_worked.data() : &m_window;
        if (++m_waits % waitsForWindow == 0)
            now->activateWindow();
        QTimer::singleShot(pauseMs, &m_context, [this] { next(); });
        return;
    }
    m_worked = now ? now->window() : nullptr;
    m_waits = 0;
    const QString step = m_steps.takeFirst();
    int wait = pauseMs;
    if (step.startsWith('~'))
        wait = step.mid(1).toInt();
    // Letters open no box, and are many.
    const bool isText = step.startsWith('\'');
    const auto goOn = [this, wait] { QTimer::singleShot(wait, &m_context, [this] { next(); }); };
    if (!isText)
        goOn();
    const QString fault = perform(step);
    // What is looked for may still be coming up.
    if ((fault.startsWith(notThere) || fault == notOpen) && ++m_looks < mostWaits) {
        m_steps.prepend(step);
        return;
    }
    m_looks = 0;
    if (!fault.isEmpty() && m_fault.isEmpty()) {
        m_fault = step + ": " + fault;
        m_steps.clear();
    }
    if (isText)
        goOn();
}

void hands::noteBox()
{
    QWidget *box = QApplication::activeModalWidget();
    if (box == m_lastBox)
        return;
    m_lastBox = box;
    if (const auto *message = qobject_cast<QMessageBox *>(box))
        m_boxes.append(message->windowTitle() + ": " + text::htmlToPlain(message->text()).simplified());
    else if (box && !qobject_cast<QMainWindow *>(box))
        m_boxes.append(box->windowTitle());
}

QStringList hands::boxes() { return std::exchange(m_boxes, {}); }

QString hands::status() const
{
    const auto *window = qobject_cast<const QMainWindow *>(&m_window);
    return window ? window->statusBar()->currentMessage() : QString();
}

QString hands::perform(const QString &step)
{
    if (step.startsWith('~'))
        return {};
    if (!front())
        return "no window is in front";
    if (step.startsWith('\'')) {
        const QString typed = QString(step.mid(1, step.size() - 2)).replace("''", "'");
        for (const QChar letter : typed)
            QTest::sendKeyEvent(QTest::Click, waitForKeyWindow(), Qt::Key_unknown, QString(letter), {});
        return {};
    }
    if (step.startsWith('#'))
        return choose(QString(step).remove(QRegularExpression("^#-?")), step.startsWith("#-"));
    if (step.startsWith('!')) {
        const QString name = step.mid(1).replace('_', ' ');
        for (auto *widget : front()->findChildren<QWidget *>()) {
            auto *button = qobject_cast<QAbstractButton *>(widget);
            const bool isIt = widget->objectName() == step.mid(1) || (button && button->text().remove('&') == name);
            if (!isIt || !widget->isVisible())
                continue;
            // Through the window, which knows who gets what a disabled button does not take.
            // Beyond its text a radio button or check box takes no click.
            const bool isPush = !button || !button->isCheckable() || qobject_cast<QToolButton *>(button);
            QTest::mouseClick(
                widget->window()->windowHandle(), Qt::LeftButton, {},
                widget->mapTo(widget->window(), isPush ? widget->rect().center() : QPoint(8, widget->height() / 2)));
            return {};
        }
        for (auto *bar : front()->findChildren<QTabBar *>())
            for (int tab = 0; tab < bar->count(); ++tab)
                if (bar->isVisible() && bar->tabText(tab).remove('&') == name) {
                    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
                    return {};
                }
        return notThere + QString(" widget");
    }
    if (step.contains('@'))
        return clickCell(step);
    const QKeySequence sequence(step);
    if (sequence.isEmpty() || sequence[0] == Qt::Key_unknown)
        return "no such key";
    const int code = sequence[0];
    press(code & ~Qt::KeyboardModifierMask, Qt::KeyboardModifiers(code & Qt::KeyboardModifierMask));
    return {};
}

// Opens the menu by its letter and takes the entry by its own; where entries have none, by arrows.
QString hands::choose(const QString &name, bool mayBeDisabled)
{
    auto *context = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QAction *action = front()->findChild<QAction *>(name);
    if (!action)
        action = m_window.findChild<QAction *>(name);
    if (!action)
        return "there is no such action";
    QMenu *menu = context && context->actions().contains(action) ? context : menuWith(action);
    if (!menu)
        return "it is in no menu";
    // But for the last key, which may open a box.
    m_isOpening = true;
    const auto opened = qScopeGuard([this] { m_isOpening = false; });
    if (menu != context) {
        const QChar letter = mnemonicOf(menu->title());
        if (letter.isNull())
            return "its menu has no letter";
        press(letter.unicode(), Qt::AltModifier);
        if (QApplication::activePopupWidget() != menu)
            return notOpen;
    }
    const QChar letter = mnemonicOf(action->text());
    if (!action->isEnabled()) {
        if (!letter.isNull())
            QTest::keyClick(menu, Qt::Key(letter.unicode()));
        menu->close();
        const QString fault = "is disabled: " + action->toolTip();
        if (mayBeDisabled)
            m_boxes.append(name + ": " + fault);
        return mayBeDisabled ? QString() : fault;
    }
    if (!letter.isNull() && menu != context) {
        m_isOpening = false;
        QTest::keyClick(menu, Qt::Key(letter.unicode()));
        return {};
    }
    for (int i = 0; i < menu->actions().size() && menu->activeAction() != action; ++i)
        QTest::keyClick(menu, Qt::Key_Down);
    if (menu->activeAction() != action)
        return "the arrows do not come to it";
    m_isOpening = false;
    QTest::keyClick(menu, Qt::Key_Return);
    return {};
}

// What the window system makes of it: the events go to the nearest widget around that takes drops.
QString hands::dropOn(QWidget *target, const QPoint &place, const QStringList &paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    QPoint at = place;
    while (target && !target->acceptDrops()) {
        at = target->mapToParent(at);
        target = target->parentWidget();
    }
    if (!target)
        return "nothing takes it";
    QDragEnterEvent entered(at, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &entered);
    if (!entered.isAccepted())
        return "it is not taken";
    QDragMoveEvent moved(at, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &moved);
    m_boxes.append("dragging: " + status());
    QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &dropped);
    return {};
}

QString hands::clickCell(const QString &step)
{
    static const QRegularExpression form("^(?:<(.*)>)?(\\+?)(\\w+)(@@|@\\?|@\\^|@)(?:([\\d/]+),)?(\\d+)$");
    const auto match = form.match(step);
    if (!match.hasMatch())
        return "no such step";
    QTreeView *view = front()->findChild<QTreeView *>(match.captured(3));
    if (!view || !view->isVisible())
        return notThere + QString(" tree in front");
    if (match.captured(4) == "@^") {
        const QHeaderView *header = view->header();
        const int left = header->sectionViewportPosition(match.captured(6).toInt());
        constexpr int inside = 8;
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {left + inside, header->height() / 2});
        return {};
    }
    QModelIndex index;
    const QStringList rows = match.captured(5).split('/');
    for (const QString &row : rows) {
        if (view->model()->canFetchMore(index))
            return "its parent is not open";
        index = view->model()->index(row.toInt(), 0, index);
    }
    index = index.siblingAtColumn(match.captured(6).toInt());
    if (!index.isValid())
        return "there is no such cell";
    view->scrollTo(index);
    const QRect rect = view->visualRect(index);
    const QRect seen = rect.intersected(view->viewport()->rect());
    if (seen.isEmpty())
        return "the cell is not seen";
    const auto modifiers = match.captured(2).isEmpty() ? Qt::NoModifier : Qt::ControlModifier;
    const QPoint place = seen.center();
    if (step.startsWith('<'))
        return dropOn(view->viewport(), place, match.captured(1).split(','));
    const QString kind = match.captured(4);
    if (kind == "@?") {
        QTest::mouseClick(view->viewport(), Qt::RightButton, modifiers, place);
        // What the window system adds to a right click.
        QContextMenuEvent menu(QContextMenuEvent::Mouse, place, view->viewport()->mapToGlobal(place));
        QApplication::sendEvent(view->viewport(), &menu);
        return {};
    }
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, place);
    if (kind == "@@")
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, modifiers, place);
    return {};
}
