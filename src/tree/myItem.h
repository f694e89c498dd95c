// The cells of all editing trees. The kind of a cell says which editor the delegate opens for it
// and which typed value it carries beside its text. The text is what files store: it stays as it
// was read, also where it is no proper value of the kind, until the cell is edited.
#pragma once

#include "data/xmlData.h"

#include <QColor>
#include <QDate>
#include <QFont>
#include <QIcon>
#include <QStandardItem>
#include <QVariant>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

struct comboBoxStruct;

namespace myItem {

// True in a path that is to be chosen as a file, not as a folder.
constexpr int fileRole = Qt::UserRole + 1;

// What type() returns.
enum kind
{
    standardKind = QStandardItem::UserType + 1,
    comboBoxKind,
    progressBarKind,
    labelKind,
    lineEditKind,
    spinBoxKind,
    doubleSpinBoxKind,
    checkBoxKind,
    ipEditKind,
    passwordEditKind,
    textEditKind,
    dateEditKind,
    fontComboBoxKind,
    moneyKind,
    pathEditKind
};

// A record whose row is out of the tree, and where it was taken from, if it ever stood there: a
// sorted tree shows its list in another order, so that the row alone does not tell the place.
struct detachedRecord
{
    std::unique_ptr<xmlData> record;
    int row = -1;
    int place = -1; // in the list of records
};

// A row below a cell that makes the cells of its rows when they are needed.
struct lazyRow
{
    xmlData *record;
    bool made = false; // some of its cells
};

// A cell without an editor, and the base of all others.
class myItemStandard : public QStandardItem
{
public:
    // The key is the cell's first text, and its what's-this, by which a cell is found in its row.
    explicit myItemStandard(const QString &key);
    ~myItemStandard() override;
    int type() const override { return standardKind; }

    // Carried for the windows; nothing here uses them.
    QString *attachedText = nullptr;
    bool ownsAttachedText = false;
    QList<QStandardItem *> firstItems;
    QList<QStandardItem *> secondItems;

    bool highlighted = false; // the cell is in the tree's current row
    bool readOnly = false;    // made not editable: no editor opens
    QColor colour;            // painted behind the cell when colourOn
    bool colourOn = false;

    // In the first cell of a row: the record that the row shows, which the row owns only while it
    // is out of the tree, and whether the rows below it are still to be made. Once they are, what
    // they show: their cells come when they are needed, so that child() may be null. myModel keeps
    // it in step with the rows.
    xmlData *record = nullptr;
    std::unique_ptr<detachedRecord> owned;
    void own(std::unique_ptr<xmlData> detached);
    bool childrenPending = false;
    std::unique_ptr<std::vector<lazyRow>> below;

protected:
    void setUp(const QString &key, const QString &text, bool editable);
};

// One choice of a combo box. shown, if set, is painted in place of the value.
struct comboEntry
{
    QString value;
    QString description;
    QIcon icon;
    QString shown;
};
using comboEntries = QVector<comboEntry>;

// The entries of a list of words with their pictures; each word is shown in the user's language.
comboEntries entriesOf(const std::vector<comboBoxStruct> &words);
// The entries of a list of stored words.
comboEntries entriesOf(const QStringList &words);

class myItemComboBox : public myItemStandard
{
public:
    // An index past the end selects the first entry.
    myItemComboBox(const QString &key, const comboEntries &entries, int index, bool editable);
    myItemComboBox(const QString &key, const QStringList &texts, bool editable);
    myItemComboBox(const QString &key, const QStringList &texts, const QList<QIcon> &icons,
                   bool editable);
    myItemComboBox(const QString &key, const std::vector<comboBoxStruct> &words, bool editable);
    int type() const override { return comboBoxKind; }

    const comboEntries &entries() const { return m_entries; }
    int currentIndex() const { return m_index; }
    void setCurrentIndex(int index);
    // The entry with that value; it is added when there is none. Returns its index.
    int indexOf(const QString &value);
    // Selects the entry of a stored text.
    void setStoredText(const QString &text);
    // The current entry's text and, behind " - ", its description.
    QString displayText() const;

    int flag = 1;
    bool canBeTyped = false; // values beside the entries may be typed

private:
    comboEntries m_entries;
    int m_index = 0;
};

// A cell with a value within a range. The text is the value in decimal.
class myItemSpinBox : public myItemStandard
{
public:
    // A maximum of 0 counts as 1.
    myItemSpinBox(const QString &key, int minimum, int maximum, int value, bool editable);
    int type() const override { return spinBoxKind; }

    int value() const { return m_value; }
    void setValue(int value);
    // Keeps a text that may be no number of the range.
    void setStoredText(const QString &text);

    int minimum;
    int maximum;
    int defaultMinimum;
    int defaultMaximum;
    int displayMode = 0;     // 0 plain number, 1 bar, 2 bar coloured by the value
    bool mayBeEmpty = false; // no number is a value, too

private:
    int m_value = 0;
};

class myItemProgressBar : public myItemStandard
{
public:
    myItemProgressBar(const QString &key, int minimum, int maximum, int value, bool editable);
    int type() const override { return progressBarKind; }

    int value() const { return m_value; }
    void setValue(int value);

    int minimum;
    int maximum;

private:
    int m_value = 0;
};

class myItemDoubleSpinBox : public myItemStandard
{
public:
    myItemDoubleSpinBox(const QString &key, double minimum, double maximum, double value,
                        int decimals, bool editable);
    int type() const override { return doubleSpinBoxKind; }

    double value() const { return m_value; }
    void setValue(double value);

    double minimum;
    double maximum;
    int decimals;

private:
    double m_value = 0;
};

constexpr double moneyMaximum = 1000000.0;

class myItemMoney : public myItemStandard
{
public:
    // The amount with a decimal comma or point; the text stays as given.
    myItemMoney(const QString &key, const QString &amount, bool editable);
    int type() const override { return moneyKind; }

    double value() const { return m_value; }
    void setValue(double value);
    void setStoredText(const QString &text);

    QString suffix; // shown behind the amount, never stored

private:
    double m_value = 0;
};

class myItemCheckBox : public myItemStandard
{
public:
    myItemCheckBox(const QString &key, Qt::CheckState state, bool editable);
    int type() const override { return checkBoxKind; }

    Qt::CheckState state() const { return m_state; }
    // The text becomes TAK or NIE.
    void setCheckState(Qt::CheckState state);

private:
    Qt::CheckState m_state = Qt::Unchecked;
};

class myItemDateEdit : public myItemStandard
{
public:
    // A text that is no date is kept; the date is invalid then.
    myItemDateEdit(const QString &key, const QString &text, bool editable);
    int type() const override { return dateEditKind; }

    QDate date() const { return m_date; }
    void setDate(const QDate &date);
    void setStoredText(const QString &text);

    QStringList words; // that may stand in place of a date

private:
    QDate m_date;
};

class myItemFontComboBox : public myItemStandard
{
public:
    // The text is the family.
    myItemFontComboBox(const QString &key, const QFont &font, bool editable);
    int type() const override { return fontComboBoxKind; }

    QFont chosenFont() const { return m_font; }
    void setChosenFont(const QFont &font);

private:
    QFont m_font;
};

// The kinds that carry a text alone differ in their editor only.
template <int Kind>
class textItem : public myItemStandard
{
public:
    textItem(const QString &key, const QString &text, bool editable)
        : myItemStandard(key)
    {
        setUp(key, text, editable);
    }
    int type() const override { return Kind; }
};
using myItemLabel = textItem<labelKind>;
using myItemLineEdit = textItem<lineEditKind>;
using myItemIPEdit = textItem<ipEditKind>;
using myItemPasswordEdit = textItem<passwordEditKind>;
using myItemTextEdit = textItem<textEditKind>; // the text is HTML
using myItemPathEdit = textItem<pathEditKind>;

// The typed value: int (combo box: the index; check box: the state), double, QDate, QFont or
// QString. Every kind also takes a QString, as a text that a file holds.
QVariant valueOf(const myItemStandard &item);
// Sets it, and the text that follows from it.
void setValue(myItemStandard *item, const QVariant &value);
// Puts back a value and the text that stood with it.
void restore(myItemStandard *item, const QVariant &value, const QString &text);

// Takes a text as a file holds it. A text that is no value of the kind is kept all the same.
void setStoredText(myItemStandard *item, const QString &text);

// Whether the text is another one than the value would give: kept from a file until it is edited.
bool isForeign(const myItemStandard &item);

// Whether setting the value would change the item. Doubles are compared exactly, dates by their
// texts; a text that is no proper one for the value is changed too.
bool differs(const myItemStandard &item, const QVariant &value);

// What a typed or pasted text means for a cell.
struct reading
{
    QVariant value; // for setValue(); invalid when the cell holds it already or there is a fault
    QString fault;  // why the text cannot be taken, for the user
};
// unit: the stored unit of what the number counts; none where there is no unit, so that the number
// is a whole one.
reading read(const myItemStandard &item, const QString &text,
             const std::optional<QString> &unit = {});

// The text painted for the item: translated words, amounts with two decimals at least, HTML without
// tags.
QString displayText(const myItemStandard &item);

// The text of the item as it is stored, but with a stored word as the user sees it: what is copied.
QString copiedText(const myItemStandard &item);

// The text that its editor begins with: the number as it is stored, a price as it is shown.
QString editedText(const myItemStandard &item);

// By what a column of the kind is sorted: a number or a date for those that have one, a text so
// that numbers and values with units within a column stand by their size. Texts that are no number
// come first.
QVariant sortValue(const myItemStandard &item);

// The dates that a calendar offers: from today to a year ahead.
QDate firstDate();
QDate lastDate();

// A row is a list of its items, one a column. What is no myItemStandard is passed over.
using row = QList<QStandardItem *>;
QStandardItem *find(const row &items, const QString &key, const QString &text);
row allOfKey(const row &items, const QString &key);
void setHighlighted(const row &items, bool on);
void setReadOnly(const row &items, bool on);
void setFont(const row &items, const QFont &font);
void setEditable(const row &items, bool on);
// The cells of a child row; empty when the parent has no such row.
row childRow(const QStandardItem *parent, int row);
// Every item below a parent, depth first.
row allItems(const QStandardItem *parent);

} // namespace myItem
