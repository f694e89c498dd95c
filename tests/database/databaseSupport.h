// Small databases for the tests of what is done with them.
#pragma once

#include "data/kiv_mat_databaseStruct.h"

namespace testSupport {

inline d_groupStruct *group(kiv_mat_databaseStruct &database, const QString &name)
{
    for (const auto &present : database.groups)
        if (present->name == name)
            return present.get();
    database.groups.push_back(std::make_unique<d_groupStruct>());
    database.groups.back()->name = name;
    return database.groups.back().get();
}

// A material at the end of the group of that name, which is made when there is none.
inline materialStruct *material(kiv_mat_databaseStruct &database, const QString &groupName, const QString &ktm,
                                const QString &name = {})
{
    materialStruct *added = group(database, groupName)->append(std::make_unique<materialStruct>());
    added->d_ktm = ktm;
    added->d_name = name;
    return added;
}

inline manufacturerStruct *manufacturer(materialStruct *of, const QString &name, const QString &partNo,
                                        const QString &link = {})
{
    manufacturerStruct *added = of->manufacturers.append(std::make_unique<manufacturerStruct>());
    added->name = name;
    added->partNo = partNo;
    if (!link.isEmpty())
        added->files.append(std::make_unique<fileStruct>())->name = link;
    return added;
}

inline supplierStruct *supplier(materialStruct *of, const QString &name, const QString &partNo = {})
{
    supplierStruct *added = of->suppliers.append(std::make_unique<supplierStruct>());
    added->name = name;
    added->partNo = partNo;
    return added;
}

// A new element at the end of a record's list.
template <class List>
auto *appendTo(List &list)
{
    return list.append(std::make_unique<typename decltype(list.items)::value_type::element_type>());
}

} // namespace testSupport
