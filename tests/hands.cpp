#include "hands.h"

#include "testSupport.h"
#include "util/text.h"

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
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>
#include <QWindow>

namespace {

constexpr int pauseMs = 15;
constexpr int waitsForWindow = 5;
constexpr int mostWaits = 200;
constexpr int guardMs = 200;
constexpr int mostMs = 15000;

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
QWindow *keyTarget()
{
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *focus = QApplication::focusWidget();
    if (popup && !qobject_cast<QListView *>(popup))
        return popup->windowHandle();
    return (focus ? focus->window() : front())->windowHandle();
}

void press(int key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(keyTarget(), Qt::Key(key), modifiers);
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
// a loop of its own. Letters open none, and are many.
void hands::next()
{
    noteBox();
    if (m_steps.isEmpty()) {
        m_running = false;
        return;
    }
    // Here no window manager brings the window below to the front when a box goes; and a box that
    // just comes up is not there yet.
    QWidget *now = front();
    if (now && (now->isActiveWindow() || QApplication::activePopupWidget())) {
        m_worked = now->window();
        m_waits = 0;
    } else {
        if (!now)
            now = m_worked && m_worked->isVisible() ? m_worked.data() : &m_window;
        if (++m_waits > mostWaits) {
            m_fault = "no window is in front before " + m_steps.join(' ');
            m_running = false;
            return;
        }
        if (m_waits % waitsForWindow == 0)
            now->activateWindow();
        QTimer::singleShot(pauseMs, &m_context, [this] { next(); });
        return;
    }
    const QString step = m_steps.takeFirst();
    int wait = pauseMs;
    if (step.startsWith('~'))
        wait = step.mid(1).toInt();
    const bool isText = step.startsWith('\'');
    const auto goOn = [this, wait] { QTimer::singleShot(wait, &m_context, [this] { next(); }); };
    if (!isText)
        goOn();
    if (const QString fault = perform(step); !fault.isEmpty() && m_fault.isEmpty()) {
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
        m_boxes.append(message->windowTitle() + ": "
                       + text::htmlToPlain(message->text()).simplified());
    else if (box)
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
            QTest::sendKeyEvent(QTest::Click, keyTarget(), Qt::Key_unknown, QString(letter), {});
        return {};
    }
    if (step.startsWith('#') || (step.startsWith('-') && step.size() > 1))
        return choose(step.mid(1), step.startsWith('-'));
    if (step.startsWith('!')) {
        const QString name = step.mid(1).replace('_', ' ');
        for (auto *widget : front()->findChildren<QWidget *>()) {
            auto *button = qobject_cast<QAbstractButton *>(widget);
            const bool isIt = widget->objectName() == step.mid(1)
                              || (button && button->text().remove('&') == name);
            if (!isIt || !widget->isVisible())
                continue;
            if (!widget->isEnabled())
                return "it is disabled";
            // Beyond its text a radio button or check box takes no click.
            const bool isPush = !button || !button->isCheckable();
            QTest::mouseClick(widget, Qt::LeftButton, {},
                              isPush ? widget->rect().center() : QPoint(8, widget->height() / 2));
            return {};
        }
        return "there is no such widget";
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
QString hands::choose(const QString &name, bool disabled)
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
    if (menu != context) {
        const QChar letter = mnemonicOf(menu->title());
        if (letter.isNull())
            return "its menu has no letter";
        press(letter.unicode(), Qt::AltModifier);
        if (QApplication::activePopupWidget() != menu)
            return "its menu does not open";
    }
    if (disabled) {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        m_boxes.append(name + ": " + action->toolTip());
        menu->close();
        return action->isEnabled() ? "it is enabled" : QString();
    }
    if (!action->isEnabled()) {
        menu->close();
        return "it is disabled: " + action->toolTip();
    }
    const QChar letter = mnemonicOf(action->text());
    if (!letter.isNull() && menu != context) {
        QTest::keyClick(menu, Qt::Key(letter.unicode()));
        return {};
    }
    for (int i = 0; i < menu->actions().size() && menu->activeAction() != action; ++i)
        QTest::keyClick(menu, Qt::Key_Down);
    if (menu->activeAction() != action)
        return "the arrows do not come to it";
    QTest::keyClick(menu, Qt::Key_Return);
    return {};
}

QString hands::clickCell(const QString &step)
{
    static const QRegularExpression form("^(\\+?)(\\w+)(@@|@\\?|@)(h|[\\d/]+),(\\d+)$");
    const auto match = form.match(step);
    if (!match.hasMatch())
        return "no such step";
    QTreeView *view = front()->findChild<QTreeView *>(match.captured(2));
    if (!view || !view->isVisible())
        return "there is no such tree in front";
    if (match.captured(4) == "h") {
        QHeaderView *header = view->header();
        const int left = header->sectionViewportPosition(match.captured(5).toInt());
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(left + 20, 5));
        return {};
    }
    QModelIndex index;
    const QStringList rows = match.captured(4).split('/');
    for (const QString &row : rows) {
        if (view->model()->canFetchMore(index))
            return "its parent is not open";
        index = view->model()->index(row.toInt(), 0, index);
    }
    index = index.siblingAtColumn(match.captured(5).toInt());
    if (!index.isValid())
        return "there is no such cell";
    view->scrollTo(index);
    const QRect rect = view->visualRect(index);
    const QRect seen = rect.intersected(view->viewport()->rect());
    if (seen.isEmpty())
        return "the cell is not seen";
    const auto modifiers = match.captured(1).isEmpty() ? Qt::NoModifier : Qt::ControlModifier;
    const QPoint place = seen.center();
    const QString kind = match.captured(3);
    if (kind == "@?") {
        QTest::mouseClick(view->viewport(), Qt::RightButton, modifiers, place);
        // What the window system adds to a right click.
        QContextMenuEvent menu(QContextMenuEvent::Mouse, place,
                               view->viewport()->mapToGlobal(place));
        QApplication::sendEvent(view->viewport(), &menu);
        return {};
    }
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, place);
    if (kind == "@@")
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, modifiers, place);
    return {};
}
