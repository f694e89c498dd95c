#include "database/databaseRowsTarget.h"

#include "commands/editCommands.h"

QStandardItem *databaseRowsTarget::fetched(const d_groupStruct *group)
{
    QStandardItem *item = m_rows->groupItem(group);
    m_model->fetch(item);
    return item;
}

d_groupStruct *databaseRowsTarget::addGroup(std::unique_ptr<d_groupStruct> group)
{
    d_groupStruct *added = group.get();
    m_members.push_back(
        std::make_unique<appendNewMaterial>(m_model, m_rows->makeRow(std::move(group))));
    return added;
}

void databaseRowsTarget::add(d_groupStruct *group, std::unique_ptr<materialStruct> material)
{
    m_members.push_back(
        std::make_unique<appendItems>(fetched(group), m_rows->makeRow(std::move(material))));
}

materialStruct *databaseRowsTarget::replace(d_groupStruct *group, materialStruct *material,
                                            std::unique_ptr<materialStruct> content)
{
    const QStandardItem *first = m_rows->bring(material);
    if (!first)
        return material;
    materialStruct *replaced = content.get();
    m_members.push_back(std::make_unique<changeRow>(m_rows->groupItem(group), first->row(),
                                                    m_rows->makeRow(std::move(content))));
    return replaced;
}

void databaseRowsTarget::addAt(d_groupStruct *group, std::unique_ptr<materialStruct> material,
                               int row)
{
    m_members.push_back(
        std::make_unique<appendItems>(fetched(group), m_rows->makeRow(std::move(material)), row));
}

void databaseRowsTarget::setName(d_groupStruct *group, const QString &name)
{
    m_members.push_back(std::make_unique<changeValue>(
        m_model, static_cast<myItem::myItemStandard *>(m_rows->groupItem(group)), name));
}

void databaseRowsTarget::removeGroup(d_groupStruct *group)
{
    m_members.push_back(
        std::make_unique<deleteMaterial>(m_model, m_rows->groupItem(group)->index()));
}

void databaseRowsTarget::setCpv(d_groupStruct *group, const QString &cpv)
{
    const int row = m_rows->groupItem(group)->row();
    m_members.push_back(std::make_unique<changeValue>(
        m_model, static_cast<myItem::myItemStandard *>(m_model->item(row, databaseTree::cpvColumn)),
        cpv));
}

void databaseRowsTarget::remove(d_groupStruct *group, const QSet<const materialStruct *> &materials)
{
    std::vector<const materialStruct *> doomed;
    for (const auto &material : group->items)
        if (materials.contains(material.get()))
            doomed.push_back(material.get());
    // From the last one on, where taking one moves none of the others.
    for (auto material = doomed.rbegin(); material != doomed.rend(); ++material)
        if (QStandardItem *first = m_rows->bring(*material))
            m_members.push_back(std::make_unique<deleteFromItem>(m_rows->groupItem(group), first));
}

void databaseRowsTarget::revert()
{
    if (const auto all = step())
        all->undo();
}

std::unique_ptr<command> databaseRowsTarget::step()
{
    if (m_members.empty())
        return nullptr;
    return std::make_unique<appendCommands>(std::exchange(m_members, {}), m_model);
}
