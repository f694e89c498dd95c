#include "window/changedBar.h"

#include <QLabel>
#include <QPushButton>

changedBar::changedBar(QWidget *parent)
    : QToolBar(tr("Change of the file"), parent)
    , m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("changedBar"));
    setMovable(false);
    // The window shows it when there is something to say.
    toggleViewAction()->setVisible(false);
    m_text->setObjectName(QStringLiteral("changedText"));
    QPalette colours;
    colours.setColor(QPalette::Window, QColor(0xFF, 0xE0, 0x8A));
    colours.setColor(QPalette::WindowText, Qt::black);
    m_text->setPalette(colours);
    m_text->setBackgroundRole(QPalette::Window); // not the tool bar's
    m_text->setForegroundRole(QPalette::WindowText);
    m_text->setAutoFillBackground(true);
    constexpr int margin = 5;
    m_text->setMargin(margin);
    m_text->setTextFormat(Qt::PlainText);
    addWidget(m_text);
    m_compare = add(tr("Compare"), "compareVersions", &changedBar::compare);
    m_reload = add(tr("Reload"), "reloadVersion", &changedBar::reload);
    m_keep = add(tr("Keep mine"), "keepMine", &changedBar::keepMine);
    m_noted = add(tr("Hide"), "hideNote", &changedBar::noted);
}

QAction *changedBar::add(const QString &text, const char *name, void (changedBar::*pressed)())
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, pressed);
    return addWidget(button);
}

void changedBar::show(change what, const QString &note)
{
    QStringList texts;
    if (what == other)
        texts.append(tr("The file was changed by another program."));
    if (what == gone)
        texts.append(tr("The file is gone."));
    if (!note.isEmpty())
        texts.append(note);
    m_text->setText(texts.join(QLatin1Char(' ')));
    m_compare->setVisible(what == other);
    m_reload->setVisible(what == other);
    m_keep->setVisible(what != none);
    m_noted->setVisible(what == none);
    setVisible(!texts.isEmpty());
}
