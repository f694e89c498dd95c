// How pages name the manufacturers and suppliers of a material.
#pragma once

#include "data/sharedRecords.h"
#include "util/text.h"

// "name part-number, name part-number" as HTML; those without either are left out.
template <class List>
QString sourceNames(const List &list)
{
    QString names;
    for (const auto &source : list.items) {
        if (source->name.isEmpty() && source->partNo.isEmpty())
            continue;
        if (!names.isEmpty())
            names += QLatin1String(", ");
        names += text::toHtml((source->name + QLatin1Char(' ') + source->partNo).trimmed());
    }
    return names;
}
