// The table that a firm fills in: what stands in it, in the firm's language. What writes it and
// what reads it back both walk these tables.
#pragma once

#include <QString>
#include <QStringList>

namespace quotationForm {

// The columns of the table, from left to right. Up to ourDate they are filled in by us.
enum column
{
    ordinal,
    key, // our number of the material, by which it is known again
    name,
    partNumbers, // makers and their part numbers
    quantity,
    unit,
    ourDate, // by which it is needed
    price,   // for one unit
    from2,   // from this quantity on ...
    price2,  // ... it costs this
    from3,
    price3,
    minimum,
    multiple,
    leadTime, // days
    remarks,
    columnCount
};
// Whether the firm fills it in.
inline bool isAsked(column of) { return of > ourDate; }
// Whether numbers stand in it.
bool isNumber(column of);

// What is said once, above the table: each in a row of its own, the caption in the first column and
// the value in the third.
enum entry
{
    request,  // its number
    customer, // who asks
    deadline, // "dd.MM.yyyy"
    firm,     // who is asked
    currency, // from here on the firm fills in
    pricesAre,
    vat,             // percent
    generalLeadTime, // days
    validity,
    generalRemarks,
    entryCount
};
inline bool isAsked(entry of) { return of >= currency; }
constexpr int captionColumn = 1; // of entries, as a workbook counts
constexpr int valueColumn = 3;

// Texts beside the captions.
enum phrase
{
    title,
    mailSubject,  // %1: number of the request
    mailBody,     // %1: number of the request, %2: deadline
    mailBodyOpen, // without a deadline
    reminderSubject,
    reminderBody,
    fillIn, // what the firm is to do
    net,
    gross,
    textCount
};

// The languages that there are; the one of a firm's details, or English, since those who write
// neither of them read that.
const QStringList &languages();
QString known(const QString &language);
QString captionOf(column of, const QString &language);
QString captionOf(entry of, const QString &language);
QString textOf(phrase which, const QString &language);

// Which column or entry has that caption in any of the languages; the count when none has.
column columnNamed(const QString &caption);
entry entryNamed(const QString &caption);
// Whether a text says that prices hold the tax; nothing when it says neither.
enum class taxed
{
    net,
    gross,
    unsaid
};
taxed taxedBy(const QString &value);

} // namespace quotationForm
