#include "tree/filterComboBox.h"

#include "util/foldedText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int entryRole = Qt::UserRole;
constexpr int mostRows = 12;

QString shownText(const myItem::comboEntry &entry)
{
    return entry.shown.isEmpty() ? entry.value : entry.shown;
}

QString described(const myItem::comboEntry &entry)
{
    return entry.description.isEmpty()
               ? shownText(entry)
               : shownText(entry) + QLatin1String(" - ") + entry.description;
}

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

filterComboBox::filterComboBox(QWidget *parent, const myItem::comboEntries &entries,
                               bool canBeTyped)
    : QComboBox(parent)
    , m_entries(entries)
    , m_canBeTyped(canBeTyped)
    , m_list(new QListWidget(this))
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setFrame(false);
    for (const myItem::comboEntry &entry : m_entries)
        insertItem(count(), entry.icon, shownText(entry), entry.value);
    if (!m_entries.isEmpty() && !m_entries.first().icon.isNull())
        setIconSize(m_entries.first().icon.actualSize(iconSize()));

    // A window that takes no keys: they stay in the text, which filters and moves in the list.
    m_list->setWindowFlags(Qt::ToolTip);
    m_list->setAttribute(Qt::WA_ShowWithoutActivating);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setObjectName(QStringLiteral("choices"));
    m_list->setAccessibleName(tr("Choices"));
    m_list->setIconSize(iconSize());
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setUniformItemSizes(true);
    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        mark(item);
        m_touched = true;
        emit picked();
    });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString &text) {
        m_touched = true;
        filter(text);
        place();
    });
}

void filterComboBox::load(int index)
{
    setCurrentIndex(index);
    m_touched = false;
    filter({});
    for (int row = 0; row < m_list->count(); ++row)
        if (m_list->item(row)->data(entryRole).toInt() == index)
            mark(m_list->item(row));
    lineEdit()->selectAll();
}

int filterComboBox::chosen() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? item->data(entryRole).toInt() : -1;
}

QString filterComboBox::typedText() const { return lineEdit()->text().trimmed(); }

// Fills the list with the entries that hold the text, and marks the best of them: the same text,
// else one that begins with it, else the first. Where anything may be typed the text itself stands
// last, and counts when no entry holds it.
void filterComboBox::filter(const QString &typed)
{
    const std::string wanted = text::folded(typed.trimmed());
    m_list->clear();
    QListWidgetItem *same = nullptr;
    QListWidgetItem *begins = nullptr;
    for (int i = 0; i < m_entries.size(); ++i) {
        const myItem::comboEntry &entry = m_entries.at(i);
        const std::string shown = text::folded(shownText(entry));
        const std::string value = text::folded(entry.value);
        if (!contains(text::folded(described(entry)), wanted) && !contains(value, wanted))
            continue;
        auto *item = new QListWidgetItem(entry.icon, described(entry), m_list);
        item->setData(entryRole, i);
        if (!same && (shown == wanted || value == wanted))
            same = item;
        if (!begins && (shown.starts_with(wanted) || value.starts_with(wanted)))
            begins = item;
    }
    if (m_canBeTyped && !same && m_touched) {
        auto *item = new QListWidgetItem(
            typed.trimmed().isEmpty() ? tr("(nothing)") : tr("%1 (as typed)").arg(typed.trimmed()),
            m_list);
        item->setData(entryRole, -1);
        QListWidgetItem *first = begins ? begins : m_list->item(0);
        mark(wanted.empty() ? item : first);
    } else {
        mark(same ? same : begins ? begins : m_list->item(0));
        // An emptied text chooses nothing.
        if (wanted.empty() && !same && m_touched)
            m_list->setCurrentItem(nullptr);
    }
}

void filterComboBox::mark(QListWidgetItem *item)
{
    m_list->setCurrentItem(item);
    if (item)
        m_list->scrollToItem(item);
}

void filterComboBox::place()
{
    if (m_list->count() == 0) {
        m_list->hide();
        return;
    }
    m_list->setFont(font());
    const int frame = 2 * m_list->frameWidth() + 2;
    const int rows = std::min(m_list->count(), mostRows);
    const int height = rows * m_list->sizeHintForRow(0) + frame;
    const int wanted =
        m_list->sizeHintForColumn(0) + frame
        + (m_list->count() > rows ? m_list->verticalScrollBar()->sizeHint().width() : 0);
    const QRect screen = this->screen()->availableGeometry();
    QRect at(mapToGlobal(QPoint(0, this->height())),
             QSize(std::min(std::max(wanted, width()), screen.width()), height));
    if (at.bottom() > screen.bottom())
        at.moveBottom(mapToGlobal(QPoint(0, 0)).y() - 1);
    at.moveLeft(
        std::clamp(at.left(), screen.left(), std::max(screen.left(), screen.right() - at.width())));
    m_list->setGeometry(at);
    m_list->show();
    if (m_list->currentItem())
        m_list->scrollToItem(m_list->currentItem());
}

void filterComboBox::showPopup() { place(); }

void filterComboBox::hidePopup() { m_list->hide(); }

void filterComboBox::showEvent(QShowEvent *event)
{
    QComboBox::showEvent(event);
    // Once the editor is in its place.
    QTimer::singleShot(0, this, [this] {
        if (isVisible())
            showPopup();
    });
}

void filterComboBox::hideEvent(QHideEvent *event)
{
    hidePopup();
    QComboBox::hideEvent(event);
}

void filterComboBox::keyPressEvent(QKeyEvent *event)
{
    const int last = m_list->count() - 1;
    const int row = m_list->currentRow();
    int wanted = -1;
    switch (event->key()) {
    case Qt::Key_F4:
        m_list->isVisible() ? hidePopup() : showPopup();
        return;
    case Qt::Key_Down:
        wanted = row + 1;
        break;
    case Qt::Key_Up:
        wanted = row < 0 ? last : row - 1;
        break;
    case Qt::Key_PageDown:
        wanted = row + mostRows;
        break;
    case Qt::Key_PageUp:
        wanted = row - mostRows;
        break;
    default:
        QComboBox::keyPressEvent(event);
        return;
    }
    if (last < 0)
        return;
    mark(m_list->item(std::clamp(wanted, 0, last)));
    m_touched = true;
    showPopup();
}

void filterComboBox::wheelEvent(QWheelEvent *event)
{
    // It would change the choice unseen; the list scrolls by itself.
    event->accept();
}
