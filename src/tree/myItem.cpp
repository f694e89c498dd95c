#include "tree/myItem.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/quantity.h"
#include "util/text.h"
#include "util/typed.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace myItem {

namespace {

// Calls use(item of its own class) for the kinds whose value is not their text.
template <class Result, class Item, class Use>
Result onTyped(Item &item, const Use &use, const Result &otherwise)
{
    constexpr bool readsOnly = std::is_const_v<Item>;
    const auto as = [&item](auto *null) {
        using plain = std::remove_pointer_t<decltype(null)>;
        using kind = std::conditional_t<readsOnly, const plain, plain>;
        return static_cast<kind *>(&item);
    };
    switch (item.type()) {
    case comboBoxKind:
        return use(as(static_cast<myItemComboBox *>(nullptr)));
    case spinBoxKind:
        return use(as(static_cast<myItemSpinBox *>(nullptr)));
    case progressBarKind:
        return use(as(static_cast<myItemProgressBar *>(nullptr)));
    case doubleSpinBoxKind:
        return use(as(static_cast<myItemDoubleSpinBox *>(nullptr)));
    case moneyKind:
        return use(as(static_cast<myItemMoney *>(nullptr)));
    case checkBoxKind:
        return use(as(static_cast<myItemCheckBox *>(nullptr)));
    case dateEditKind:
        return use(as(static_cast<myItemDateEdit *>(nullptr)));
    case fontComboBoxKind:
        return use(as(static_cast<myItemFontComboBox *>(nullptr)));
    default:
        return otherwise;
    }
}

struct valueReader
{
    QVariant operator()(const myItemComboBox *i) const { return i->currentIndex(); }
    QVariant operator()(const myItemCheckBox *i) const { return int(i->state()); }
    QVariant operator()(const myItemDateEdit *i) const { return i->date(); }
    QVariant operator()(const myItemFontComboBox *i) const { return i->chosenFont(); }
    template <class Number>
    QVariant operator()(const Number *i) const
    {
        return i->value();
    }
};

struct valueWriter
{
    const QVariant &value;

    bool operator()(myItemComboBox *i) const { return i->setCurrentIndex(value.toInt()), true; }
    bool operator()(myItemSpinBox *i) const { return i->setValue(value.toInt()), true; }
    bool operator()(myItemProgressBar *i) const { return i->setValue(value.toInt()), true; }
    bool operator()(myItemDoubleSpinBox *i) const { return i->setValue(value.toDouble()), true; }
    bool operator()(myItemMoney *i) const { return i->setValue(value.toDouble()), true; }
    bool operator()(myItemCheckBox *i) const
    {
        return i->setCheckState(Qt::CheckState(value.toInt())), true;
    }
    bool operator()(myItemDateEdit *i) const { return i->setDate(value.toDate()), true; }
    bool operator()(myItemFontComboBox *i) const
    {
        return i->setChosenFont(value.value<QFont>()), true;
    }
};

QString dateText(const QDate &date) { return date.toString(labels::dateFormat()); }

bool isYes(const QString &text)
{
    return text.compare(statusWord::yes, Qt::CaseInsensitive) == 0
           || text.compare(statusWord::editableYes, Qt::CaseInsensitive) == 0;
}

// The text that setValue() gives for the item's present value.
QString canonicalText(const myItemStandard &item)
{
    switch (item.type()) {
    case spinBoxKind:
        return QString::number(static_cast<const myItemSpinBox &>(item).value());
    case moneyKind:
        return numbers::price(static_cast<const myItemMoney &>(item).value());
    case dateEditKind:
        return dateText(static_cast<const myItemDateEdit &>(item).date());
    default:
        return item.text();
    }
}

template <class Use>
void onStandard(const row &items, const Use &use)
{
    for (QStandardItem *item : items)
        if (item && item->type() >= standardKind)
            use(static_cast<myItemStandard *>(item));
}

} // namespace

// --- Kinds
// ----------------------------------------------------------------------------------------

myItemStandard::myItemStandard(const QString &key)
    : QStandardItem(key)
{
    setWhatsThis(key);
}

myItemStandard::~myItemStandard()
{
    if (ownsAttachedText)
        delete attachedText;
}

void myItemStandard::own(std::unique_ptr<xmlData> detached)
{
    owned = std::make_unique<detachedRecord>();
    owned->record = std::move(detached);
}

void myItemStandard::setUp(const QString &key, const QString &text, bool editable)
{
    setWhatsThis(key);
    setText(text);
    QStandardItem::setEditable(editable);
    readOnly = !editable;
}

comboEntries entriesOf(const std::vector<comboBoxStruct> &words)
{
    comboEntries entries;
    for (const comboBoxStruct &word : words)
        entries.append({word.value, word.description, QIcon(word.icon), labels::shown(word.value)});
    return entries;
}

comboEntries entriesOf(const QStringList &words)
{
    comboEntries entries;
    for (const QString &word : words)
        entries.append({word, {}, {}, labels::shown(word)});
    return entries;
}

myItemComboBox::myItemComboBox(const QString &key, const comboEntries &entries, int index,
                               bool editable)
    : myItemStandard(key)
    , m_entries(entries)
{
    setUp(key, {}, editable);
    setCurrentIndex(index);
}

myItemComboBox::myItemComboBox(const QString &key, const QStringList &texts, bool editable)
    : myItemComboBox(key, entriesOf(texts), 0, editable)
{
}

myItemComboBox::myItemComboBox(const QString &key, const QStringList &texts,
                               const QList<QIcon> &icons, bool editable)
    : myItemComboBox(key, entriesOf(texts), 0, editable)
{
    for (int i = 0; i < m_entries.size() && i < icons.size(); ++i)
        m_entries[i].icon = icons.at(i);
}

myItemComboBox::myItemComboBox(const QString &key, const std::vector<comboBoxStruct> &words,
                               bool editable)
    : myItemComboBox(key, entriesOf(words), 0, editable)
{
}

void myItemComboBox::setCurrentIndex(int index)
{
    m_index = index >= 0 && index < m_entries.size() ? index : 0;
    setText(m_entries.isEmpty() ? QString() : m_entries.at(m_index).value);
}

int myItemComboBox::indexOf(const QString &value)
{
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [&](const comboEntry &e) { return e.value == value; });
    if (found == m_entries.cend()) {
        m_entries.append({value, {}, {}, labels::shown(value)});
        return m_entries.size() - 1;
    }
    return int(found - m_entries.cbegin());
}

void myItemComboBox::setStoredText(const QString &text) { setCurrentIndex(indexOf(text)); }

QString myItemComboBox::displayText() const
{
    if (m_entries.isEmpty())
        return {};
    const comboEntry &entry = m_entries.at(m_index);
    const QString &shown = entry.shown.isEmpty() ? entry.value : entry.shown;
    return entry.description.isEmpty() ? shown : shown + QLatin1String(" - ") + entry.description;
}

myItemSpinBox::myItemSpinBox(const QString &key, int low, int high, int value, bool editable)
    : myItemStandard(key)
    , minimum(low)
    , maximum(high == 0 ? 1 : high)
    , defaultMinimum(minimum)
    , defaultMaximum(maximum)
    , m_value(value)
{
    setUp(key, QString::number(value), editable);
}

void myItemSpinBox::setValue(int value)
{
    m_value = value;
    setText(QString::number(value));
}

void myItemSpinBox::setStoredText(const QString &text)
{
    const double number = numbers::value(text);
    m_value =
        int(std::clamp(std::isfinite(number) ? number : 0.0, double(minimum), double(maximum)));
    setText(text);
}

myItemProgressBar::myItemProgressBar(const QString &key, int low, int high, int value,
                                     bool editable)
    : myItemStandard(key)
    , minimum(low)
    , maximum(high)
    , m_value(value)
{
    setUp(key, QString::number(value), editable);
}

void myItemProgressBar::setValue(int value)
{
    m_value = value;
    setText(QString::number(value));
}

myItemDoubleSpinBox::myItemDoubleSpinBox(const QString &key, double low, double high, double value,
                                         int places, bool editable)
    : myItemStandard(key)
    , minimum(low)
    , maximum(high)
    , decimals(places)
{
    setUp(key, {}, editable);
    setValue(value);
}

void myItemDoubleSpinBox::setValue(double value)
{
    m_value = value;
    setText(QString::number(value, 'f', decimals));
}

myItemMoney::myItemMoney(const QString &key, const QString &amount, bool editable)
    : myItemStandard(key)
{
    setUp(key, {}, editable);
    setStoredText(amount);
}

void myItemMoney::setValue(double value)
{
    m_value = value;
    setText(numbers::price(value));
}

void myItemMoney::setStoredText(const QString &text)
{
    m_value = QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    if (!std::isfinite(m_value))
        m_value = 0;
    setText(text);
}

myItemCheckBox::myItemCheckBox(const QString &key, Qt::CheckState state, bool editable)
    : myItemStandard(key)
{
    setUp(key, {}, editable);
    setCheckState(state);
}

void myItemCheckBox::setCheckState(Qt::CheckState state)
{
    m_state = state;
    setText(state == Qt::Unchecked ? statusWord::no : statusWord::yes);
}

myItemDateEdit::myItemDateEdit(const QString &key, const QString &text, bool editable)
    : myItemStandard(key)
{
    setUp(key, {}, editable);
    setStoredText(text);
}

void myItemDateEdit::setDate(const QDate &date)
{
    m_date = date;
    setText(dateText(date));
}

void myItemDateEdit::setStoredText(const QString &text)
{
    m_date = QDate::fromString(text, labels::dateFormat());
    setText(text);
}

myItemFontComboBox::myItemFontComboBox(const QString &key, const QFont &font, bool editable)
    : myItemStandard(key)
{
    setUp(key, {}, editable);
    setChosenFont(font);
}

void myItemFontComboBox::setChosenFont(const QFont &font)
{
    m_font = font;
    setText(font.family());
}

// --- Values
// ---------------------------------------------------------------------------------------

QVariant valueOf(const myItemStandard &item)
{
    return onTyped<QVariant>(item, valueReader(), item.text());
}

void setValue(myItemStandard *item, const QVariant &value)
{
    if (value.type() == QVariant::String)
        setStoredText(item, value.toString());
    else
        onTyped<bool>(*item, valueWriter{value}, false);
}

void restore(myItemStandard *item, const QVariant &value, const QString &text)
{
    setValue(item, value);
    if (item->text() != text)
        item->setText(text);
}

void setStoredText(myItemStandard *item, const QString &text)
{
    switch (item->type()) {
    case comboBoxKind:
        static_cast<myItemComboBox *>(item)->setStoredText(text);
        break;
    case spinBoxKind:
        static_cast<myItemSpinBox *>(item)->setStoredText(text);
        break;
    case moneyKind:
        static_cast<myItemMoney *>(item)->setStoredText(text);
        break;
    case dateEditKind:
        static_cast<myItemDateEdit *>(item)->setStoredText(text);
        break;
    case fontComboBoxKind:
        static_cast<myItemFontComboBox *>(item)->setChosenFont(QFont(text));
        break;
    case progressBarKind:
        static_cast<myItemProgressBar *>(item)->setValue(text.toInt());
        break;
    case doubleSpinBoxKind:
        static_cast<myItemDoubleSpinBox *>(item)->setValue(numbers::value(text));
        item->setText(text);
        break;
    case checkBoxKind:
        static_cast<myItemCheckBox *>(item)->setCheckState(isYes(text) ? Qt::Checked
                                                                       : Qt::Unchecked);
        item->setText(text);
        break;
    default:
        item->setText(text);
    }
}

bool isForeign(const myItemStandard &item) { return item.text() != canonicalText(item); }

bool differs(const myItemStandard &item, const QVariant &value)
{
    if (value.type() == QVariant::String)
        return item.text() != value.toString();
    if (isForeign(item))
        return true;
    if (item.type() == dateEditKind)
        return dateText(static_cast<const myItemDateEdit &>(item).date())
               != dateText(value.toDate());
    if (item.type() == fontComboBoxKind)
        return valueOf(item).value<QFont>() != value.value<QFont>();
    return valueOf(item) != value;
}

namespace {

typed::numberForm formOf(const myItemStandard &item, const std::optional<QString> &unit)
{
    static_assert(moneyMaximum == typed::priceMaximum);
    switch (item.type()) {
    case moneyKind:
        return typed::priceForm();
    case doubleSpinBoxKind: {
        const auto &box = static_cast<const myItemDoubleSpinBox &>(item);
        return {box.minimum, box.maximum, box.decimals, box.decimals};
    }
    case progressBarKind: {
        const auto &bar = static_cast<const myItemProgressBar &>(item);
        return {double(bar.minimum), double(bar.maximum)};
    }
    default: {
        const auto &box = static_cast<const myItemSpinBox &>(item);
        return unit ? typed::quantityForm(*unit, box.minimum, box.maximum)
                    : typed::numberForm{double(box.minimum), double(box.maximum)};
    }
    }
}

reading readNumber(const myItemStandard &item, const QString &text,
                   const std::optional<QString> &unit)
{
    if (text.isEmpty()) {
        if (item.type() == moneyKind
            || (item.type() == spinBoxKind && static_cast<const myItemSpinBox &>(item).mayBeEmpty))
            return {QString(), {}};
        return {{}, QCoreApplication::translate("myItem", "A number is needed here")};
    }
    const auto [number, fault] = typed::readNumber(text, formOf(item, unit));
    if (!fault.isEmpty())
        return {{}, fault};
    const std::optional<double> before = numbers::finite(item.text());
    return {before && *before == number.toDouble() ? QVariant() : QVariant(number), {}};
}

reading readDate(const myItemDateEdit &item, const QString &text)
{
    if (text.isEmpty())
        return {QString(), {}};
    for (const QString &word : item.words)
        if (text.compare(word, Qt::CaseInsensitive) == 0
            || text.compare(labels::shown(word), Qt::CaseInsensitive) == 0)
            return {word, {}};
    const auto [date, fault] = typed::readDay(text, QDate::currentDate(), firstDate(), lastDate());
    return {fault.isEmpty() ? QVariant(date) : QVariant(), fault};
}

reading readChoice(const myItemComboBox &combo, const QString &text)
{
    for (int i = 0; i < combo.entries().size(); ++i) {
        const comboEntry &entry = combo.entries().at(i);
        // An entry that shows its value has no other text, which an empty one is not to choose.
        if (entry.value.compare(text, Qt::CaseInsensitive) == 0
            || (!entry.shown.isEmpty() && entry.shown.compare(text, Qt::CaseInsensitive) == 0))
            return {i, {}};
    }
    if (combo.canBeTyped)
        return {text::storable(text), {}};
    return {{}, QCoreApplication::translate("myItem", "\"%1\" is not in the list").arg(text)};
}

} // namespace

reading read(const myItemStandard &item, const QString &typed, const std::optional<QString> &unit)
{
    const QString trimmed = typed.trimmed();
    switch (item.type()) {
    case comboBoxKind:
        return readChoice(static_cast<const myItemComboBox &>(item), trimmed);
    case progressBarKind:
    case spinBoxKind:
    case moneyKind:
    case doubleSpinBoxKind:
        return readNumber(item, trimmed, unit);
    case checkBoxKind:
        if (isYes(trimmed) || trimmed.compare(labels::yes(), Qt::CaseInsensitive) == 0)
            return {int(Qt::Checked), {}};
        if (trimmed.compare(statusWord::no, Qt::CaseInsensitive) == 0
            || trimmed.compare(labels::no(), Qt::CaseInsensitive) == 0)
            return {int(Qt::Unchecked), {}};
        return {{},
                QCoreApplication::translate("myItem", "\"%1\" is neither yes nor no").arg(trimmed)};
    case dateEditKind:
        return readDate(static_cast<const myItemDateEdit &>(item), trimmed);
    case standardKind:
    case fontComboBoxKind:
        return {{}, QCoreApplication::translate("myItem", "This cell takes no text")};
    case textEditKind:
        return {text::storable(typed), {}};
    default:
        return {text::storable(typed).replace(QLatin1Char('\n'), QLatin1Char(' ')), {}};
    }
}

QString displayText(const myItemStandard &item)
{
    switch (item.type()) {
    case comboBoxKind:
        return static_cast<const myItemComboBox &>(item).displayText();
    case moneyKind:
        return numbers::check(item.text())
                   ? numbers::price(item.text()) + static_cast<const myItemMoney &>(item).suffix
                   : item.text();
    case checkBoxKind:
    case dateEditKind: // or a word in its place
        return labels::shown(item.text());
    case textEditKind:
        return text::htmlToPlain(item.text());
    case passwordEditKind:
        // Of one length, so that it tells nothing.
        return item.text().isEmpty() ? QString() : QString(8, QChar(0x2022));
    default:
        return item.text();
    }
}

QString copiedText(const myItemStandard &item)
{
    switch (item.type()) {
    case comboBoxKind: {
        const auto &combo = static_cast<const myItemComboBox &>(item);
        const QString shown =
            combo.entries().isEmpty() ? QString() : combo.entries().at(combo.currentIndex()).shown;
        return shown.isEmpty() ? item.text() : shown;
    }
    case checkBoxKind:
    case dateEditKind:
        return displayText(item);
    case passwordEditKind:
        return {};
    default:
        return item.text();
    }
}

QString editedText(const myItemStandard &item)
{
    return item.type() == moneyKind ? numbers::price(item.text()) : item.text();
}

namespace {

// A number as a text that stands where the number does among its like.
QString numberKey(double number)
{
    quint64 bits = 0;
    static_assert(sizeof bits == sizeof number);
    std::memcpy(&bits, &number, sizeof bits);
    constexpr quint64 sign = quint64(1) << 63;
    bits = (bits & sign) ? ~bits : bits | sign;
    constexpr int digits = 16;
    return QStringLiteral("%1").arg(bits, digits, 16, QLatin1Char('0'));
}

// Values with units by their size, other texts as people order them: R2 before R10.
QString textKey(const QString &text)
{
    if (const auto value = quantity::parse(text))
        return QLatin1Char('0') + numberKey(value->value);
    QString key(QLatin1Char('1'));
    const QString lower = text.toLower();
    for (int i = 0; i < lower.size();) {
        int end = i;
        while (end < lower.size() && lower.at(end).isDigit())
            ++end;
        if (end == i) {
            key += lower.at(i++);
            continue;
        }
        while (i + 1 < end && lower.at(i) == QLatin1Char('0'))
            ++i;
        // The longer of two runs of digits is the larger number.
        key += QLatin1Char('0') + QChar(ushort(end - i)) + lower.mid(i, end - i);
        i = end;
    }
    return key;
}

} // namespace

QVariant sortValue(const myItemStandard &item)
{
    switch (item.type()) {
    case spinBoxKind:
    case moneyKind:
    case progressBarKind:
    case doubleSpinBoxKind:
        return numbers::finite(item.text()).value_or(-std::numeric_limits<double>::infinity());
    case dateEditKind: {
        const QDate date = static_cast<const myItemDateEdit &>(item).date();
        return date.isValid() ? date.toJulianDay() : std::numeric_limits<qint64>::min();
    }
    default:
        return textKey(displayText(item));
    }
}

QDate firstDate() { return QDate::currentDate(); }

QDate lastDate() { return QDate::currentDate().addYears(1); }

// --- Rows
// -----------------------------------------------------------------------------------------

QStandardItem *find(const row &items, const QString &key, const QString &text)
{
    for (QStandardItem *item : items)
        if (item && item->whatsThis() == key && item->text() == text)
            return item;
    return nullptr;
}

row allOfKey(const row &items, const QString &key)
{
    row found;
    for (QStandardItem *item : items)
        if (item && item->whatsThis() == key)
            found.append(item);
    return found;
}

void setHighlighted(const row &items, bool on)
{
    onStandard(items, [on](myItemStandard *item) { item->highlighted = on; });
}

void setReadOnly(const row &items, bool on)
{
    onStandard(items, [on](myItemStandard *item) { item->readOnly = on; });
}

void setFont(const row &items, const QFont &font)
{
    for (QStandardItem *item : items)
        if (item)
            item->setFont(font);
}

void setEditable(const row &items, bool on)
{
    for (QStandardItem *item : items)
        if (item)
            item->setEditable(on);
}

row childRow(const QStandardItem *parent, int index)
{
    row items;
    if (index >= 0 && index < parent->rowCount())
        for (int column = 0; column < parent->columnCount(); ++column)
            items.append(parent->child(index, column));
    return items;
}

row allItems(const QStandardItem *parent)
{
    row items;
    for (int r = 0; r < parent->rowCount(); ++r)
        for (int c = 0; c < parent->columnCount(); ++c)
            if (QStandardItem *item = parent->child(r, c)) {
                items.append(item);
                items.append(allItems(item));
            }
    return items;
}

} // namespace myItem
