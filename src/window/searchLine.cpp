#include "window/searchLine.h"

#include "data/keptSearches.h"
#include "tree/myTreeView.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/completionList.h"
#include "window/keptSearchesDialog.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTextCharFormat>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int delayMs = 40;
// What is still being typed is no fault yet.
constexpr int faultDelayMs = 800;
constexpr int clearButtonWidth = 28;
constexpr int longestInMenu = 50;
constexpr int listedRows = 10;

} // namespace

searchLine::searchLine(QAbstractItemView *view, bool keepsKeyboard, QWidget *parent)
    : QLineEdit(parent)
    , m_view(view)
    , m_keepsKeyboard(keepsKeyboard)
    , m_delay(new QTimer(this))
    , m_list(new completionList(this))
    , m_faultDelay(new QTimer(this))
    , m_fault(new QLabel(this))
    , m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("words"));
    setAccessibleName(tr("Words to search for"));
    setPlaceholderText(tr("Name, KTM, value, part number: 100n 0603, case:SOT23, price:<2"));
    setClearButtonEnabled(true);

    m_fault->setObjectName(QStringLiteral("fault"));
    m_fault->setTextFormat(Qt::PlainText);
    m_fault->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_fault->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_fault->setStyleSheet(
        QStringLiteral("background-color: #FFD8D0; color: #8B0000; padding: 0px 4px;"));
    m_fault->hide();

    m_menu->setObjectName(QStringLiteral("searches"));
    m_menu->setToolTipsVisible(true);
    QAction *searches = addAction(QIcon(QStringLiteral(":/icons/icons/action_default.png")),
                                  QLineEdit::LeadingPosition);
    searches->setObjectName(QStringLiteral("openSearches"));
    searches->setText(tr("Kept and last searches"));
    searches->setToolTip(tr("Kept and last searches (Alt+Down)"));
    connect(searches, &QAction::triggered, this, &searchLine::openMenu);

    m_delay->setSingleShot(true);
    m_delay->setInterval(delayMs);
    connect(m_delay, &QTimer::timeout, this, &searchLine::wanted);
    m_faultDelay->setSingleShot(true);
    m_faultDelay->setInterval(faultDelayMs);
    connect(m_faultDelay, &QTimer::timeout, this, [this] { showFaults(true); });
    connect(this, &QLineEdit::textChanged, this, [this] {
        m_delay->start();
        readFaults();
    });
    connect(this, &QLineEdit::textEdited, this, [this] { complete(false); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this](int, int now) {
        if (now != m_caret)
            m_list->hide();
    });
    connect(this, &QLineEdit::returnPressed, this, &searchLine::accept);
    connect(m_list, &completionList::picked, this, &searchLine::take);
}

searchLine::searchLine(myTreeView *view)
    : searchLine(view, false, view->parentWidget())
{
    auto *layout = new QVBoxLayout(view->parentWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(this);
    layout->addWidget(view);
    setTabOrder(this, view);
}

searchLine::searchLine(QAbstractItemView *found, QWidget *parent)
    : searchLine(found, true, parent)
{
}

void searchLine::completeFrom(materialSearch &search, const databaseFunction &database)
{
    m_search = &search;
    m_database = database;
}

void searchLine::begin()
{
    setFocus();
    selectAll();
}

searchQuery searchLine::query()
{
    m_delay->stop();
    return searchQuery::parse(text());
}

void searchLine::setRowShown(const QModelIndex &first, bool shown)
{
    auto *tree = static_cast<myTreeView *>(m_view);
    if (tree->isRowHidden(first.row(), first.parent()) == shown)
        tree->setRowHidden(first.row(), first.parent(), !shown);
}

// ----------------------------------------------------------------------
// Keys

// Tab would leave the field before keyPressEvent().
bool searchLine::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_list->isVisible()) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        if (key->key() == Qt::Key_Tab && key->modifiers() == Qt::NoModifier) {
            take(qMax(m_list->chosen(), 0));
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void searchLine::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (key == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) {
        openMenu();
    } else if (key == Qt::Key_Space && event->modifiers() == Qt::ControlModifier) {
        complete(true);
    } else if (m_list->isVisible() && moveInList(key)) {
        event->accept();
    } else if (m_list->isVisible() && isReturn && m_list->chosen() >= 0) {
        take(m_list->chosen());
    } else if (m_list->isVisible() && key == Qt::Key_Escape) {
        m_list->hide();
    } else if (key == Qt::Key_Escape && !m_keepsKeyboard && !text().isEmpty()) {
        clear();
    } else if (m_keepsKeyboard
               && (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp
                   || key == Qt::Key_PageDown)) {
        QApplication::sendEvent(m_view, event);
    } else if (key == Qt::Key_Down) {
        m_view->setFocus();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

bool searchLine::moveInList(int key)
{
    static constexpr std::pair<int, int> moves[] = {{Qt::Key_Down, 1},
                                                    {Qt::Key_Up, -1},
                                                    {Qt::Key_PageDown, listedRows},
                                                    {Qt::Key_PageUp, -listedRows}};
    for (const auto &[moving, rows] : moves) {
        if (key == moving) {
            m_list->move(rows);
            return true;
        }
    }
    return false;
}

void searchLine::accept()
{
    m_list->hide();
    noteLast();
    showFaults(true);
    emit wanted();
    if (!m_keepsKeyboard)
        m_view->setFocus();
}

// ----------------------------------------------------------------------
// Completion

void searchLine::complete(bool asked)
{
    m_completion = {};
    if (m_search)
        m_completion = searchCompletion::at(text(), cursorPosition(), *m_search,
                                            m_database ? m_database() : nullptr, asked);
    m_caret = cursorPosition();
    const QString part = text().mid(m_completion.begin, m_completion.length);
    m_list->offer(m_completion.items,
                  qMax(0, cursorRect().left() - fontMetrics().horizontalAdvance(part)));
}

void searchLine::take(int suggestion)
{
    if (suggestion < 0 || suggestion >= int(m_completion.items.size()))
        return;
    const QString taken = m_completion.items[size_t(suggestion)].text;
    const bool goesOn = m_completion.ofFields;
    m_list->hide();
    // By the field itself, so that Ctrl+Z takes it back.
    setSelection(m_completion.begin, m_completion.length);
    insert(taken);
    // A field's name goes on with its values.
    if (!goesOn)
        m_list->hide();
}

// ----------------------------------------------------------------------
// Faults

void searchLine::readFaults()
{
    m_faults = searchQuery::parse(text()).faults();
    showFaults(!hasFocus());
}

// alsoTyped: the one that the caret stands behind, too, which may still become something else.
void searchLine::showFaults(bool alsoTyped)
{
    std::vector<searchFault> shown = m_faults;
    if (!alsoTyped)
        std::erase_if(shown, [this](const searchFault &fault) {
            return fault.begin + fault.length == cursorPosition();
        });
    if (shown.size() < m_faults.size())
        m_faultDelay->start();
    else
        m_faultDelay->stop();
    QStringList texts;
    for (const searchFault &fault : shown)
        texts << fault.text;
    const QString told = texts.join(QLatin1String("; "));
    setToolTip(told.isEmpty() ? QString() : text::toolTip(told));
    setAccessibleDescription(told);
    m_fault->setVisible(!told.isEmpty());
    if (!told.isEmpty()) {
        const QString marked = QString::fromUtf8("\u26a0 ") + told;
        m_fault->setText(fontMetrics().elidedText(marked, Qt::ElideRight, width() / 2));
        m_fault->adjustSize();
        m_fault->setGeometry(width() - clearButtonWidth - m_fault->width(), 2, m_fault->width(),
                             height() - 4);
    }
    setTextMargins(0, 0, told.isEmpty() ? 0 : m_fault->width() + 4, 0);
    markFaults(shown);
}

// Underlines them in the text, by the means of input methods: a field has no other for parts of it.
void searchLine::markFaults(const std::vector<searchFault> &faults)
{
    if (m_composing || (faults.empty() && !m_marked))
        return;
    m_marked = !faults.empty();
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(Qt::red);
    format.setBackground(QColor(QStringLiteral("#FFD8D0")));
    format.setForeground(Qt::black);
    QList<QInputMethodEvent::Attribute> attributes;
    for (const searchFault &fault : faults)
        attributes.append(
            {QInputMethodEvent::TextFormat, fault.begin - cursorPosition(), fault.length, format});
    QInputMethodEvent event(QString(), attributes);
    QLineEdit::inputMethodEvent(&event);
}

void searchLine::inputMethodEvent(QInputMethodEvent *event)
{
    m_composing = !event->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(event);
}

void searchLine::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    m_list->hide();
    if (m_fault->isVisible())
        showFaults(true);
}

void searchLine::showEvent(QShowEvent *event)
{
    QLineEdit::showEvent(event);
    window()->installEventFilter(this);
}

bool searchLine::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::WindowDeactivate)
        m_list->hide();
    return QLineEdit::eventFilter(watched, event);
}

void searchLine::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    m_list->hide();
    if (m_faultDelay->isActive())
        showFaults(true);
    if (event->reason() != Qt::PopupFocusReason)
        noteLast();
}

void searchLine::hideEvent(QHideEvent *event)
{
    QLineEdit::hideEvent(event);
    m_list->hide();
}

// ----------------------------------------------------------------------
// Kept and last searches

void searchLine::openMenu()
{
    m_list->hide();
    noteLast();
    fillMenu();
    m_menu->popup(mapToGlobal(QPoint(0, height())));
    if (m_menu->actions().first()->isEnabled())
        m_menu->setActiveAction(m_menu->actions().first());
}

void searchLine::fillMenu()
{
    m_menu->clear();
    const auto add = [this](const QString &text, const char *name) {
        QAction *action = m_menu->addAction(text);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    const auto search = [this](QAction *action, const QString &words) {
        action->setToolTip(text::toolTip(words));
        connect(action, &QAction::triggered, this, [this, words] { searchFor(words); });
    };
    // An ampersand would mark a letter.
    const auto shown = [this](const QString &text) {
        return m_menu->fontMetrics()
            .elidedText(text, Qt::ElideRight,
                        longestInMenu * m_menu->fontMetrics().averageCharWidth())
            .replace(QLatin1Char('&'), QLatin1String("&&"));
    };
    QAction *keeps = add(tr("Keep this search ..."), "keepSearch");
    connect(keeps, &QAction::triggered, this, &searchLine::keep);
    keeps->setEnabled(!text().trimmed().isEmpty() && m_faults.empty());
    keeps->setToolTip(text().trimmed().isEmpty() ? tr("nothing is searched for")
                      : m_faults.empty()         ? QString()
                                                 : m_faults.front().text);

    const std::vector<keptSearch> kept = keptSearches::all();
    if (!kept.empty())
        m_menu->addSection(tr("Kept searches"));
    for (const keptSearch &one : kept)
        // The part behind the tab stands on the right.
        search(add(shown(one.name) + QLatin1Char('\t') + shown(one.words), "keptSearch"),
               one.words);
    if (!kept.empty())
        connect(add(tr("Change kept searches ..."), "changeKept"), &QAction::triggered, this,
                &searchLine::changeKept);

    const QStringList last = keptSearches::last();
    if (last.isEmpty())
        return;
    m_menu->addSection(tr("Last searches"));
    for (const QString &words : last)
        search(add(shown(words), "lastSearch"), words);
    connect(add(tr("Forget the last searches"), "forgetLast"), &QAction::triggered, this,
            [] { keptSearches::forgetLast(); });
}

void searchLine::searchFor(const QString &words)
{
    setFocus();
    selectAll();
    insert(words);
    noteLast();
    m_list->hide();
    emit wanted();
}

void searchLine::keep()
{
    const QString words = text().trimmed();
    const std::optional<QString> typed = userPrompts().inputText(
        tr("Keep this search"), tr("Name of the search %1").arg(words), words);
    const QString name = typed.value_or(QString()).simplified();
    if (name.isEmpty())
        return;
    const std::optional<keptSearch> before = keptSearches::find(name);
    if (before && before->words != words
        && userPrompts().decide(
               tr("There is a kept search %1: %2")
                   .arg(before->name.toHtmlEscaped(), before->words.toHtmlEscaped()),
               {tr("Replace it")}, true)
               != 0)
        return;
    if (!keptSearches::keep({name, words}))
        userPrompts().showError(messages::notWritten(keptSearches::file()));
}

void searchLine::changeKept()
{
    keptSearchesDialog dialog(window());
    if (dialog.exec() == QDialog::Accepted && !keptSearches::setAll(dialog.searches()))
        userPrompts().showError(messages::notWritten(keptSearches::file()));
}

// What stands in the field and can be read counts as searched for.
void searchLine::noteLast()
{
    if (m_faults.empty() && !searchQuery::parse(text()).terms().empty())
        keptSearches::addLast(text());
}
