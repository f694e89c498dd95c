#include "tree/myModelDelegate.h"

#include "tree/IPCtrl.h"
#include "tree/filterComboBox.h"
#include "tree/myCalendarWidget.h"
#include "tree/myModel.h"
#include "tree/numberBox.h"
#include "tree/refusal.h"
#include "tree/richtexteditDialog.h"
#include "util/numbers.h"
#include "util/paths.h"
#include "util/text.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QProgressBar>
#include <QSpinBox>
#include <QTimer>

#include <algorithm>

using namespace myItem;

namespace {

constexpr int defaultIndentation = 4;
constexpr int barScale = 1000;
const QColor highlightColour(0x00, 0xBC, 0xFF);

const myModel *modelOf(const QModelIndex &index)
{
    return qobject_cast<const myModel *>(index.model());
}

myItemStandard *itemAt(const QModelIndex &index)
{
    const myModel *model = modelOf(index);
    return model ? model->cell(index) : nullptr;
}

// The same where it is looked at only, before anything else is.
const myItemStandard *lookAt(const QModelIndex &index)
{
    const myModel *model = modelOf(index);
    return model ? model->look(index) : nullptr;
}

// What an editor began with.
constexpr const char *loadedProperty = "loaded";

// The wanted colour where it can be read on what is behind it, else black or white.
QColor readable(const QColor &wanted, const QColor &behind)
{
    const auto luma = [](const QColor &c) {
        return 0.299 * c.redF() + 0.587 * c.greenF() + 0.114 * c.blueF();
    };
    constexpr double leastDifference = 0.4;
    constexpr double middle = 0.5;
    if (std::abs(luma(wanted) - luma(behind)) >= leastDifference)
        return wanted;
    return luma(behind) > middle ? Qt::black : Qt::white;
}

double shareOf(int value, int minimum, int maximum)
{
    return maximum > minimum ? std::clamp(double(value - minimum) / (maximum - minimum), 0.0, 1.0)
                             : 0.0;
}

// The item's font where it was given one, else the tree's.
QFont fontOf(const myItemStandard &item, const QFont &otherwise)
{
    return item.data(Qt::FontRole).isValid() ? item.font() : otherwise;
}

// Letters become somewhat narrower before a text is cut: codes that differ in their ends alone stay
// apart.
void condense(QStyleOptionViewItem *option, const QStyle *style)
{
    constexpr int leastStretch = 75; // percent
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, option, option->widget) + 1;
    const int room =
        style->subElementRect(QStyle::SE_ItemViewItemText, option, option->widget).width()
        - 2 * margin;
    const int needed = QFontMetrics(option->font).horizontalAdvance(option->text);
    QFont font = option->font;
    for (int stretch = needed > room ? 100 * room / needed : 0; stretch >= leastStretch;
         --stretch) {
        font.setStretch(stretch);
        const QFontMetrics metrics(font);
        if (metrics.horizontalAdvance(option->text) > room)
            continue;
        option->font = font;
        option->fontMetrics = metrics;
        return;
    }
}

using intBox = numberBox<QSpinBox>;
using decimalBox = numberBox<QDoubleSpinBox>;

// The text typed into the editor of a number.
QString numberText(const QWidget *editor)
{
    if (const auto *whole = dynamic_cast<const intBox *>(editor))
        return whole->typedText();
    return dynamic_cast<const decimalBox &>(*editor).typedText();
}

// What the editor of a cell shows at first, to tell whether it was changed.
QString loadedOf(const myItemStandard &item, const QWidget *editor)
{
    const auto *font = qobject_cast<const QFontComboBox *>(editor);
    return font ? font->currentText() : editedText(item);
}

// The line in which an editor shows what is typed; null when it has none.
QLineEdit *lineOf(QWidget *editor)
{
    if (auto *calendar = qobject_cast<myCalendarWidget *>(editor))
        return calendar->line();
    if (auto *line = qobject_cast<QLineEdit *>(editor))
        return line;
    return editor->findChild<QLineEdit *>();
}

myCalendarWidget *makeCalendar(QWidget *parent, const myItemDateEdit &item)
{
    // Over the window, since a small tree would cut it.
    auto *calendar = new myCalendarWidget(parent->window());
    calendar->setRange(firstDate(), lastDate());
    calendar->setSelectedDate(item.date());
    return calendar;
}

void loadPath(QFileDialog *dialog, const myItemStandard &item)
{
    const QString path = paths::data(item.text());
    if (item.data(fileRole).toBool()) {
        dialog->setFileMode(QFileDialog::ExistingFile);
        dialog->setDirectory(QFileInfo(path).absolutePath());
        dialog->selectFile(path);
    } else {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setDirectory(path);
    }
}

} // namespace

myModelDelegate::myModelDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_indentation(defaultIndentation)
{
}

// --- Painting
// -------------------------------------------------------------------------------------

// The mark of the current row or of the cell, the selection, and the frame of the cell that keys go
// to; a selected cell has a frame, too, so that it is not told by colour alone. Returns what is
// behind the text now.
QColor myModelDelegate::paintBackground(QPainter *painter, QStyleOptionViewItem *option,
                                        const QModelIndex &index, const myItemStandard &item) const
{
    QColor behind = option->palette.color(option->features & QStyleOptionViewItem::Alternate
                                              ? QPalette::AlternateBase
                                              : QPalette::Base);
    const bool selected = option->state & QStyle::State_Selected;
    const bool marked = item.highlighted || item.colourOn;
    if (item.highlighted)
        behind = highlightColour;
    else if (item.colourOn)
        behind = item.colour;
    constexpr int darker = 165; // percent
    if (selected)
        behind = marked ? behind.darker(darker) : option->palette.color(QPalette::Highlight);
    if (selected || marked) {
        painter->fillRect(option->rect, behind);
        option->backgroundBrush = Qt::NoBrush;
    }
    const auto *view = qobject_cast<const QAbstractItemView *>(option->widget);
    const bool isCursor = view && view->currentIndex() == index;
    const bool hasKeys = isCursor && view->hasFocus();
    if (isCursor || selected) {
        painter->save();
        painter->setPen(readable(option->palette.color(QPalette::Text), behind));
        const int lines = hasKeys ? 2 : 1;
        for (int inset = 0; inset < lines; ++inset)
            painter->drawRect(option->rect.adjusted(inset, inset, -inset - 1, -inset - 1));
        painter->restore();
    }
    option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    return behind;
}

void myModelDelegate::paint(QPainter *painter, const QStyleOptionViewItem &given,
                            const QModelIndex &index) const
{
    const myItemStandard *item = lookAt(index);
    if (!item) {
        QStyledItemDelegate::paint(painter, given, index);
        return;
    }
    QStyleOptionViewItem option(given);
    initStyleOption(&option, index);
    option.font = fontOf(*item, given.font);
    option.textElideMode = Qt::ElideRight;
    option.text = myItem::displayText(*item);
    option.features |= QStyleOptionViewItem::HasDisplay;
    option.decorationSize = QSize(option.rect.height() - 2, option.rect.height() - 2);

    const bool selected = option.state & QStyle::State_Selected;
    const QColor behind = paintBackground(painter, &option, index, *item);
    const QColor wanted = item->foreground().style() != Qt::NoBrush ? item->foreground().color()
                          : selected && !item->highlighted && !item->colourOn
                              ? given.palette.color(QPalette::HighlightedText)
                              : given.palette.color(QPalette::Text);
    option.palette.setColor(QPalette::Text, readable(wanted, behind));

    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    switch (item->type()) {
    case comboBoxKind: {
        const auto *combo = static_cast<const myItemComboBox *>(item);
        if (combo->entries().isEmpty())
            break;
        const QIcon &icon = combo->entries().at(combo->currentIndex()).icon;
        if (icon.isNull())
            break;
        option.icon = icon;
        option.features |= QStyleOptionViewItem::HasDecoration;
        break;
    }
    case spinBoxKind:
        if (static_cast<const myItemSpinBox *>(item)->displayMode != 0)
            paintBar(painter, option, *item);
        break;
    case progressBarKind: {
        const auto *progress = static_cast<const myItemProgressBar *>(item);
        QStyleOptionProgressBar bar;
        bar.rect = option.rect;
        bar.state = item->isEnabled() ? QStyle::State_Enabled : QStyle::State_None;
        bar.state |= QStyle::State_Horizontal;
        bar.minimum = progress->minimum;
        bar.maximum = progress->maximum;
        bar.progress = progress->value();
        bar.text = QString::number(progress->value());
        bar.textVisible = false;
        QApplication::style()->drawControl(QStyle::CE_ProgressBar, &bar, painter);
        option.displayAlignment = Qt::AlignCenter;
        option.text = bar.text;
        break;
    }
    case checkBoxKind: {
        QStyleOptionButton box;
        box.rect = option.rect.adjusted(2 * m_indentation, 0, 0, 0);
        box.state = item->isEnabled() ? QStyle::State_Enabled : QStyle::State_None;
        const auto *check = static_cast<const myItemCheckBox *>(item);
        box.state |= check->state() == Qt::Checked            ? QStyle::State_On
                     : check->state() == Qt::PartiallyChecked ? QStyle::State_NoChange
                                                              : QStyle::State_Off;
        QApplication::style()->drawControl(QStyle::CE_CheckBox, &box, painter);
        option.text.clear();
        break;
    }
    default:
        break;
    }
    condense(&option, style);
    style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
}

void myModelDelegate::paintBar(QPainter *painter, const QStyleOptionViewItem &option,
                               const myItemStandard &item) const
{
    const auto &spin = static_cast<const myItemSpinBox &>(item);
    const int share = int(barScale * shareOf(spin.value(), spin.minimum, spin.maximum));
    QRect bar = option.rect.adjusted(1, 2, -1, -2);
    bar.setWidth(bar.width() * share / barScale);
    static const QColor plainBar(0xFF, 0xBE, 0xFF);
    painter->fillRect(bar, spin.displayMode == 1
                               ? plainBar
                               : barColour(spin.value(), spin.minimum, spin.maximum));
}

QColor myModelDelegate::barColour(int value, int minimum, int maximum) const
{
    constexpr int percent = 100;
    const double share = percent * shareOf(value, minimum, maximum);
    if (share <= m_thresholds.low)
        return QColor(0xFE, 0x5A, 0x3C);
    if (share <= m_thresholds.average)
        return QColor(0xFF, 0xBE, 0x1E);
    if (share <= m_thresholds.high)
        return QColor(0xFF, 0xFF, 0x64);
    return QColor(0xBE, 0xFF, 0xBE);
}

QSize myModelDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    constexpr QSize withoutItem(30, 17);
    const myItemStandard *item = lookAt(index);
    if (!item)
        return withoutItem;
    return {withoutItem.width(), QFontMetrics(fontOf(*item, option.font)).height() + 2};
}

// --- Editors
// --------------------------------------------------------------------------------------

QWidget *myModelDelegate::makeEditor(QWidget *parent, const myItemStandard &item) const
{
    switch (item.type()) {
    case comboBoxKind: {
        const auto &combo = static_cast<const myItemComboBox &>(item);
        auto *box = new filterComboBox(parent, combo.entries(), combo.canBeTyped);
        connect(box, &filterComboBox::picked, this, [this, box] {
            auto *self = const_cast<myModelDelegate *>(this);
            emit self->commitData(box);
            emit self->closeEditor(box);
        });
        return box;
    }
    case progressBarKind: {
        const auto &progress = static_cast<const myItemProgressBar &>(item);
        auto *bar = new QProgressBar(parent);
        bar->setValue(progress.value());
        bar->setMaximum(progress.maximum);
        bar->setMinimum(progress.minimum);
        return bar;
    }
    case labelKind:
    case lineEditKind:
    case passwordEditKind: {
        auto *line = new QLineEdit(item.text(), parent);
        line->setFrame(false);
        if (item.type() == passwordEditKind)
            line->setEchoMode(QLineEdit::Password);
        return line;
    }
    case spinBoxKind: {
        const auto &spin = static_cast<const myItemSpinBox &>(item);
        return new intBox(parent, spin.minimum, spin.maximum, numbers::plain);
    }
    case doubleSpinBoxKind: {
        const auto &spin = static_cast<const myItemDoubleSpinBox &>(item);
        auto *box = new decimalBox(parent, spin.minimum, spin.maximum, numbers::plain);
        box->setDecimals(spin.decimals);
        return box;
    }
    case moneyKind:
        return new decimalBox(parent, 0, moneyMaximum, numbers::price);
    case checkBoxKind: {
        auto *box = new QCheckBox(parent);
        box->setCheckState(static_cast<const myItemCheckBox &>(item).state());
        return box;
    }
    case ipEditKind: {
        auto *ip = new IPCtrl(parent);
        ip->setText(item.text());
        return ip;
    }
    case textEditKind: {
        auto *dialog = new richtexteditDialog(parent->window());
        dialog->setHtml(item.text());
        closeWith(dialog);
        return dialog;
    }
    case dateEditKind:
        return makeCalendar(parent, static_cast<const myItemDateEdit &>(item));
    case fontComboBoxKind: {
        auto *box = new QFontComboBox(parent);
        box->setFontFilters(QFontComboBox::ScalableFonts);
        box->setCurrentFont(static_cast<const myItemFontComboBox &>(item).chosenFont());
        return box;
    }
    case pathEditKind: {
        auto *dialog = new QFileDialog(parent->window());
        dialog->setOption(QFileDialog::DontUseNativeDialog);
        loadPath(dialog, item);
        closeWith(dialog);
        return dialog;
    }
    default:
        return nullptr;
    }
}

// A dialog is closed by its own buttons, and only what it accepted is written.
void myModelDelegate::closeWith(QDialog *dialog) const
{
    dialog->setModal(true);
    connect(dialog, &QDialog::finished, this, [this, dialog](int result) {
        auto *self = const_cast<myModelDelegate *>(this);
        if (result == QDialog::Accepted)
            emit self->commitData(dialog);
        emit self->closeEditor(dialog);
    });
}

QWidget *myModelDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    const myItemStandard *item = itemAt(index);
    if (!item || item->readOnly)
        return nullptr;
    QWidget *editor = makeEditor(parent, *item);
    if (!editor)
        return nullptr;
    editor->setObjectName(QStringLiteral("editor"));
    editor->setAccessibleName(
        modelOf(index)->headerData(index.column(), Qt::Horizontal).toString());
    if (qobject_cast<QDialog *>(editor))
        editor->move(parent->mapToGlobal(option.rect.topLeft()));
    else if (item->type() != dateEditKind)
        editor->setFont(fontOf(*item, option.font));
    editor->setEnabled(item->isEnabled());
    if (QLineEdit *line = lineOf(editor))
        connect(line, &QLineEdit::textEdited, editor,
                [editor, line] { refusal::mark(editor, {}, line); });
    return editor;
}

void myModelDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (editor == m_committed)
        return;
    const myItemStandard *item = itemAt(index);
    if (!item) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    const QVariant value = valueOf(*item);
    switch (item->type()) {
    case comboBoxKind:
        static_cast<filterComboBox *>(editor)->load(value.toInt());
        break;
    case progressBarKind:
        static_cast<QProgressBar *>(editor)->setValue(value.toInt());
        break;
    case spinBoxKind: {
        auto *box = static_cast<intBox *>(editor);
        box->setValue(value.toInt());
        box->show(editedText(*item));
        break;
    }
    case doubleSpinBoxKind:
    case moneyKind: {
        auto *box = static_cast<decimalBox *>(editor);
        box->setValue(value.toDouble());
        box->show(editedText(*item));
        break;
    }
    case checkBoxKind:
        static_cast<QCheckBox *>(editor)->setCheckState(Qt::CheckState(value.toInt()));
        break;
    case passwordEditKind:
        static_cast<QLineEdit *>(editor)->setText(item->text());
        break;
    case ipEditKind:
        static_cast<IPCtrl *>(editor)->setText(item->text());
        break;
    case textEditKind:
        static_cast<richtexteditDialog *>(editor)->setHtml(item->text());
        break;
    case dateEditKind:
        static_cast<myCalendarWidget *>(editor)->setSelectedDate(value.toDate());
        break;
    case fontComboBoxKind:
        static_cast<QFontComboBox *>(editor)->setCurrentFont(value.value<QFont>());
        // Also one that is not here.
        static_cast<QFontComboBox *>(editor)->setEditText(item->text());
        break;
    case pathEditKind:
        loadPath(static_cast<QFileDialog *>(editor), *item);
        break;
    case labelKind:
    case lineEditKind:
        // They have their text since they were made.
        break;
    default:
        QStyledItemDelegate::setEditorData(editor, index);
    }
    editor->setProperty(loadedProperty, loadedOf(*item, editor));
    refusal::mark(editor, {}, lineOf(editor));
}

// The value that an editor holds. What only was looked at is none: the editor may be unable to show
// it as it is.
reading myModelDelegate::readEditor(QWidget *editor, const myModel &model,
                                    const myItemStandard &item)
{
    switch (item.type()) {
    case comboBoxKind: {
        const auto *box = static_cast<filterComboBox *>(editor);
        if (!box->isTouched())
            return {};
        const int chosen = box->chosen();
        return chosen >= 0 ? reading{chosen, {}} : model.read(item, box->typedText());
    }
    case progressBarKind:
        return {static_cast<QProgressBar *>(editor)->value(), {}};
    case labelKind:
    case lineEditKind:
    case passwordEditKind:
        return {text::storable(static_cast<QLineEdit *>(editor)->text()), {}};
    case spinBoxKind:
    case doubleSpinBoxKind:
    case moneyKind: {
        const QString typed = numberText(editor);
        return typed == editor->property(loadedProperty).toString() ? reading()
                                                                    : model.read(item, typed);
    }
    case checkBoxKind:
        return {int(static_cast<QCheckBox *>(editor)->checkState()), {}};
    case ipEditKind:
        return {static_cast<IPCtrl *>(editor)->text(), {}};
    case textEditKind:
        if (static_cast<QDialog *>(editor)->result() == QDialog::Accepted)
            return {static_cast<richtexteditDialog *>(editor)->html(), {}};
        return {};
    case dateEditKind: {
        const auto *calendar = static_cast<myCalendarWidget *>(editor);
        if (!calendar->typedText().isNull())
            return model.read(item, calendar->typedText());
        return calendar->isChosen() ? reading{calendar->selectedDate(), {}} : reading();
    }
    case fontComboBoxKind: {
        const auto *box = static_cast<QFontComboBox *>(editor);
        const QString typed = box->currentText();
        if (typed == editor->property(loadedProperty).toString())
            return {};
        if (box->findText(typed, Qt::MatchFixedString) < 0)
            return {{}, tr("\"%1\" is not in the list").arg(typed)};
        return {QFont(typed), {}};
    }
    case pathEditKind: {
        auto *dialog = static_cast<QFileDialog *>(editor);
        const QStringList files = dialog->selectedFiles();
        return dialog->result() == QDialog::Accepted && !files.isEmpty()
                   ? reading{files.first(), {}}
                   : reading();
    }
    default:
        return {};
    }
}

void myModelDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                   const QModelIndex &index) const
{
    auto *own = qobject_cast<myModel *>(model);
    myItemStandard *item = itemAt(index);
    if (!own || !item) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    reading typed = readEditor(editor, *own, *item);
    if (typed.fault.isEmpty() && typed.value.isValid()) {
        // Questions may be asked meanwhile; what was typed stands there until they are answered.
        if (item->type() == comboBoxKind)
            static_cast<filterComboBox *>(editor)->hidePopup();
        const QPersistentModelIndex place(index);
        const QPointer<QWidget> open(editor);
        m_committed = editor;
        typed.fault = own->setValue(item, typed.value);
        m_committed = nullptr;
        if (!open)
            return;
        if (place.isValid() && typed.fault.isEmpty())
            setEditorData(editor, place);
    }
    refusal::mark(editor, typed.fault, lineOf(editor));
    if (!typed.fault.isEmpty())
        emit const_cast<myModelDelegate *>(this)->refused(typed.fault);
}

bool myModelDelegate::isRefused(const QWidget *editor) { return refusal::isMarked(editor); }

void myModelDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    const myItemStandard *item = itemAt(index);
    if (!item || qobject_cast<QDialog *>(editor))
        return;
    constexpr QSize calendarSize(220, 182);
    constexpr QSize fontBoxSize(150, 25);
    QRect place = option.rect;
    if (item->type() == checkBoxKind)
        place.setLeft(place.left() + 2 * m_indentation);
    else if (item->type() == dateEditKind) {
        // In its window, wholly visible.
        const QWidget *window = editor->parentWidget();
        const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
        if (view && view->viewport() != window)
            place.moveTopLeft(view->viewport()->mapTo(window, place.topLeft()));
        place.setSize(calendarSize);
        place.moveLeft(std::max(0, std::min(place.left(), window->width() - place.width())));
        place.moveTop(std::max(0, std::min(place.top(), window->height() - place.height())));
    } else if (item->type() == fontComboBoxKind)
        place.setSize(fontBoxSize);
    editor->setGeometry(place);
    editor->update();
}

// An action that is disabled may wait for what is being typed: it is asked again once that is in.
// Others take it in themselves.
void myModelDelegate::enableByCommit(QWidget *editor, QKeyEvent *event)
{
    // Keys of the editor's own come first.
    event->ignore();
    static_cast<QObject *>(editor)->event(event);
    if (event->isAccepted())
        return;
    const QKeySequence pressed(event->key() | int(event->modifiers()));
    for (QAction *action : editor->window()->findChildren<QAction *>()) {
        if (action->isEnabled() || !action->shortcuts().contains(pressed))
            continue;
        event->accept();
        // Taking the text may ask the user, which cannot be done while the key is looked up.
        QTimer::singleShot(0, action, [this, action, taken = QPointer<QWidget>(editor)] {
            if (taken)
                emit commitData(taken);
            if (action->isEnabled())
                action->trigger();
        });
        return;
    }
}

bool myModelDelegate::eventFilter(QObject *watched, QEvent *event)
{
    // What the base takes for the end of an edit is everyday life in a dialog.
    if (qobject_cast<QDialog *>(watched))
        return false;
    if (event->type() == QEvent::KeyPress && qobject_cast<myCalendarWidget *>(watched)) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
            && (key->modifiers() & Qt::ControlModifier)) {
            emit fillWanted();
            return true;
        }
    }
    if (QStyledItemDelegate::eventFilter(watched, event))
        return true;
    auto *editor = qobject_cast<QWidget *>(watched);
    if (!editor || event->type() != QEvent::ShortcutOverride)
        return false;
    enableByCommit(editor, static_cast<QKeyEvent *>(event));
    return event->isAccepted();
}
