#include "window/messageWindow.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTextEdit>

namespace {

const windowAction<messageWindow> actionTable[] = {
    {{"clear", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Clear"),
      "action_clear", nullptr, nullptr},
     &messageWindow::commandClear},
    {{"close", "File", QT_TRANSLATE_NOOP("actions", "Close"), "action_close", "Esc", nullptr},
     &messageWindow::escape},
};

// The application deletes the windows that are left when it ends.
template <class Window>
Window &single(Window *(*create)())
{
    static QPointer<Window> window;
    if (!window)
        window = create();
    return *window;
}

} // namespace

messageWindow::messageWindow(const QString &name, const QString &title)
    : baseWindow(name)
    , m_view(new QTextEdit(this))
{
    setWindowTitle(title);
    m_view->setObjectName(QStringLiteral("text"));
    m_view->setAccessibleName(title);
    m_view->setReadOnly(true);
    setCentralWidget(m_view);
    addActions(actionTable);
    constexpr QSize usualSize(760, 420);
    resize(usualSize);
}

void messageWindow::append(const QString &html)
{
    m_text += html;
    m_hasNews = true;
    if (isVisible())
        showRest();
}

void messageWindow::showRest()
{
    if (m_shown < m_text.size()) {
        m_view->moveCursor(QTextCursor::End);
        m_view->insertHtml(m_text.mid(m_shown));
        m_shown = m_text.size();
        m_view->ensureCursorVisible();
    }
    m_view->repaint();
}

void messageWindow::refresh()
{
    showRest();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void messageWindow::showNow()
{
    show();
    raise();
    activateWindow();
    m_hasNews = false;
    refresh();
}

void messageWindow::hideNow()
{
    hide();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void messageWindow::showEvent(QShowEvent *event)
{
    baseWindow::showEvent(event);
    showRest();
}

void messageWindow::commandClear(bool)
{
    m_text.clear();
    m_shown = 0;
    m_hasNews = false;
    m_view->clear();
    m_view->repaint();
}

void messageWindow::escape(bool) { hideNow(); }

logWindow::logWindow()
    : messageWindow(QStringLiteral("logWindow"), tr("Log"))
{
}

logWindow &logWindow::instance()
{
    return single<logWindow>([] { return new logWindow; });
}

void logWindow::appendToLog(const QString &text)
{
    append(text.toHtmlEscaped() + QLatin1String("<br>"));
}

errorsWindow::errorsWindow()
    : messageWindow(QStringLiteral("errorsWindow"), tr("Errors"))
{
}

errorsWindow &errorsWindow::instance()
{
    return single<errorsWindow>([] { return new errorsWindow; });
}
