#include "window/baseWindow.h"

#include "util/paths.h"
#include "window/workProgress.h"

#include <QAction>
#include <QCoreApplication>
#include <QHeaderView>
#include <QHideEvent>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QShowEvent>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>

namespace {

QString translated(const char *text, const char *meaning = nullptr)
{
    return QCoreApplication::translate("actions", text, meaning);
}

constexpr const char *usualToolTip = "usualToolTip";

// The children whose layout the user can change, by the method that gives and takes it.
template <class Widget>
void saveChildren(const QWidget *window, QSettings &settings)
{
    for (const Widget *child : window->findChildren<Widget *>())
        if (!child->objectName().isEmpty())
            settings.setValue(child->objectName(), child->saveState());
}

template <class Widget>
void restoreChildren(QWidget *window, const QSettings &settings)
{
    for (Widget *child : window->findChildren<Widget *>())
        if (settings.contains(child->objectName()))
            child->restoreState(settings.value(child->objectName()).toByteArray());
}

} // namespace

baseWindow::baseWindow(const QString &name, QWidget *parent)
    : QMainWindow(parent)
    , m_progress(new workProgress(statusBar()))
{
    setObjectName(name);
    statusBar()->setObjectName(QStringLiteral("statusBar"));
}

QAction *baseWindow::action(const char *name) const
{
    return findChild<QAction *>(QLatin1String(name));
}

void baseWindow::setAvailable(const char *name, bool available, const QString &whyNot)
{
    QAction *const found = action(name);
    if (!found)
        return;
    const QVariant usual = found->property(usualToolTip);
    if (!usual.isValid())
        found->setProperty(usualToolTip, found->toolTip());
    const QString toolTip = found->property(usualToolTip).toString();
    found->setEnabled(available);
    found->setToolTip(available ? toolTip : QStringLiteral("%1: %2").arg(toolTip, whyNot));
}

QMenu *baseWindow::menuOf(const char *title)
{
    const QString name = QLatin1String("menu") + QLatin1String(title);
    if (auto *known = menuBar()->findChild<QMenu *>(name, Qt::FindDirectChildrenOnly))
        return known;
    QMenu *menu = menuBar()->addMenu(translated(title));
    menu->setObjectName(name);
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this, [this] { beforeAction(); });
    return menu;
}

QAction *baseWindow::addAction(const actionRow &row)
{
    if (!row.text) {
        menuOf(row.menu)->addSeparator();
        if (m_toolBar && row.onToolBar)
            m_toolBar->addSeparator();
        return nullptr;
    }
    auto *made = new QAction(translated(row.text, row.meaning), this);
    made->setObjectName(QLatin1String(row.name));
    made->setCheckable(row.checkable);
    if (row.icon)
        made->setIcon(QIcon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(row.icon))));
    QString toolTip = row.toolTip ? translated(row.toolTip) : translated(row.text, row.meaning);
    if (row.shortcut) {
        made->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
        toolTip += QStringLiteral(" (%1)").arg(made->shortcut().toString(QKeySequence::NativeText));
    }
    made->setToolTip(toolTip);
    if (row.menu)
        menuOf(row.menu)->QWidget::addAction(made);
    if (row.onToolBar) {
        if (!m_toolBar) {
            m_toolBar = addToolBar(tr("Tool bar"));
            m_toolBar->setObjectName(QStringLiteral("toolBar"));
            constexpr int iconSize = 24;
            m_toolBar->setIconSize(QSize(iconSize, iconSize));
        }
        m_toolBar->QWidget::addAction(made);
        QWidget *button = m_toolBar->widgetForAction(made);
        button->setObjectName(made->objectName());
        button->installEventFilter(this);
    }
    return made;
}

// In each menu, and in the menu bar, the first letter of a text that no other text there has taken.
void baseWindow::giveMnemonics()
{
    QList<QList<QAction *>> levels{menuBar()->actions()};
    for (const QMenu *menu : menuBar()->findChildren<QMenu *>())
        levels.append(menu->actions());
    for (const QList<QAction *> &level : qAsConst(levels)) {
        QString taken;
        for (QAction *item : level) {
            QString text = item->text().remove(QLatin1Char('&'));
            for (int i = 0; i < text.size(); ++i) {
                const QChar letter = text.at(i).toLower();
                if (!letter.isLetterOrNumber() || taken.contains(letter))
                    continue;
                taken.append(letter);
                item->setText(text.insert(i, QLatin1Char('&')));
                break;
            }
        }
    }
}

void baseWindow::restorePlace()
{
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    settings.beginGroup(objectName());
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("state")).toByteArray());
    restoreChildren<QSplitter>(this, settings);
    restoreChildren<QHeaderView>(this, settings);
}

void baseWindow::savePlace() const
{
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    settings.beginGroup(objectName());
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("state"), saveState());
    saveChildren<QSplitter>(this, settings);
    saveChildren<QHeaderView>(this, settings);
}

// A disabled button of the tool bar: what is being typed may enable it before it takes the press.
bool baseWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && watched->parent() == m_toolBar
        && !static_cast<QWidget *>(watched)->isEnabled())
        beforeAction();
    return QMainWindow::eventFilter(watched, event);
}

void baseWindow::showEvent(QShowEvent *event)
{
    if (!std::exchange(m_placed, true))
        restorePlace();
    QMainWindow::showEvent(event);
}

void baseWindow::hideEvent(QHideEvent *event)
{
    if (m_placed && !event->spontaneous())
        savePlace();
    QMainWindow::hideEvent(event);
}
