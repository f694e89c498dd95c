// What orders that were placed say of a material: how much of it is on the way, and when, where and
// at what price it was ordered last.
#pragma once

#include "util/decimal.h"

#include <QDate>
#include <QStringList>

#include <functional>
#include <vector>

struct orderedBefore
{
    // Ordered, neither invoiced nor in stock yet, by the unit as files have it.
    std::vector<std::pair<QString, decimal>> onTheWay;
    // The orders of it, a line each: number, quantity, the day it is needed.
    QStringList open;
    // The latest line with a price; no date when there is none.
    struct
    {
        QDate date;
        QString order; // its number, or its file's name
        QString price; // PLN for one
        QString unit;
    } last;

    bool isOnTheWay() const { return !onTheWay.empty(); }
    decimal onTheWayIn(const QString &unit) const;
    // "120 pcs"; empty when nothing is.
    QString onTheWayText() const;
    // "26.11.2026, 1.25 PLN, ZP/13/2026"; empty when it was never ordered.
    QString lastText() const;
};

// Of a KTM. An order whose path is except does not count: the one that asks.
using orderedLookup = std::function<orderedBefore(const QString &ktm, const QString &except)>;
