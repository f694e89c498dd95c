// Where the record of a tree's row stands in its list: rows that come and go take theirs along.
#pragma once

#include "tree/myItem.h"

#include <QHash>

#include <algorithm>
#include <memory>
#include <vector>

namespace recordPlaces {

// A sorted tree shows a list in another order, so the row is only where to look first.
template <class List>
auto placeOf(List &list, const xmlData *record, int row)
{
    if (size_t(row) < list.size() && list[size_t(row)].get() == record)
        return list.begin() + row;
    return std::find_if(list.begin(), list.end(),
                        [record](const auto &item) { return item.get() == record; });
}

// The record of a row comes to stand before a place of its list.
template <class Record>
void putAt(std::vector<std::unique_ptr<Record>> &list,
           typename std::vector<std::unique_ptr<Record>>::iterator place,
           myItem::myItemStandard *first)
{
    (void)first->owned->record.release(); // the list owns it from here on
    first->owned.reset();
    list.insert(place, std::unique_ptr<Record>(static_cast<Record *>(first->record)));
}

// A row that comes back to where it was taken from takes its old place among the records, any other
// the one before the row below it.
template <class Record>
void putInto(std::vector<std::unique_ptr<Record>> &list, QStandardItem *parent, int row,
             myItem::myItemStandard *first)
{
    auto place = list.end();
    if (first->owned->row == row && size_t(first->owned->place) <= list.size())
        place = list.begin() + first->owned->place;
    else if (row + 1 < parent->rowCount())
        place = placeOf(list, static_cast<myItem::myItemStandard *>(parent->child(row + 1))->record,
                        row);
    putAt(list, place, first);
}

template <class Record>
void takeFrom(std::vector<std::unique_ptr<Record>> &list, int row, myItem::myItemStandard *first)
{
    const auto place = placeOf(list, first->record, row);
    first->own(std::move(*place));
    first->owned->row = row;
    first->owned->place = int(place - list.begin());
    list.erase(place);
}

// Puts the records of a list into an order that names each of them.
template <class Record>
void arrange(std::vector<std::unique_ptr<Record>> &list, const std::vector<const xmlData *> &order)
{
    QHash<const xmlData *, int> places;
    for (const xmlData *record : order)
        places.insert(record, places.size());
    std::sort(list.begin(), list.end(), [&places](const auto &a, const auto &b) {
        return places.value(a.get()) < places.value(b.get());
    });
}

} // namespace recordPlaces
