#include "tree/columnTable.h"

myItem::myItemStandard *makeCell(const cellTraits &traits, const QString &stored)
{
    using namespace myItem;
    const auto &[key, kind, editable, entries, canBeTyped, minimum, maximum] = traits;
    myItemStandard *cell = nullptr;
    switch (kind) {
    case standardKind:
        cell = new myItemStandard(key);
        cell->setEditable(false);
        cell->readOnly = true;
        break;
    case comboBoxKind: {
        auto *combo = new myItemComboBox(key, entries, 0, editable);
        combo->canBeTyped = canBeTyped;
        cell = combo;
        break;
    }
    case progressBarKind:
        cell = new myItemProgressBar(key, minimum, maximum, stored.toInt(), editable);
        break;
    case labelKind:
        cell = new myItemLabel(key, {}, editable);
        break;
    case lineEditKind:
        cell = new myItemLineEdit(key, {}, editable);
        break;
    case spinBoxKind:
        cell = new myItemSpinBox(key, minimum, maximum, minimum, editable);
        break;
    case doubleSpinBoxKind: {
        constexpr int decimals = 2;
        cell =
            new myItemDoubleSpinBox(key, minimum, maximum, stored.toDouble(), decimals, editable);
        break;
    }
    case checkBoxKind:
        cell = new myItemCheckBox(key, Qt::Unchecked, editable);
        break;
    case ipEditKind:
        cell = new myItemIPEdit(key, {}, editable);
        break;
    case passwordEditKind:
        cell = new myItemPasswordEdit(key, {}, editable);
        break;
    case textEditKind:
        cell = new myItemTextEdit(key, {}, editable);
        break;
    case dateEditKind: {
        auto *date = new myItemDateEdit(key, {}, editable);
        for (const comboEntry &entry : entries)
            date->words.append(entry.value);
        cell = date;
        break;
    }
    case fontComboBoxKind:
        cell = new myItemFontComboBox(key, QFont(stored), editable);
        break;
    case moneyKind:
        cell = new myItemMoney(key, {}, editable);
        break;
    case pathEditKind:
        cell = new myItemPathEdit(key, {}, editable);
        break;
    }
    setStoredText(cell, stored);
    if (kind == spinBoxKind || kind == moneyKind || kind == doubleSpinBoxKind)
        cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return cell;
}
