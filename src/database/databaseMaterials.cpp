// What is done with the materials and groups of the database's window one by one: copied, deleted,
// added and edited.
#include "database/Kiv_mat_databaseWindow.h"

#include "commands/editCommands.h"
#include "database/materialChecks.h"
#include "database/materialWindow.h"

#include "data/XmlValidator.h"
#include "tree/myTreeView.h"
#include "util/labels.h"
#include "util/prompts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using materialRows = databaseTree::rows;
using myItem::myItemStandard;

namespace {

// What the clipboard holds while copied materials wait here.
constexpr const char *materialsFormat = "application/x-kivzp-materials";

} // namespace

// --- Materials and groups
// -------------------------------------------------------------------------

std::vector<materialStruct *> Kiv_mat_databaseWindow::selectedMaterials() const
{
    std::vector<materialStruct *> found;
    for (const QModelIndex &cell : m_view->markedCells())
        if (materialStruct *material = m_rows->materialAt(cell))
            if (found.empty() || found.back() != material)
                found.push_back(material);
    return found;
}

// For other windows; that there are none is told.
QStringList Kiv_mat_databaseWindow::selectedKtms()
{
    QStringList ktms;
    for (const materialStruct *material : selectedMaterials())
        ktms.append(material->d_ktm);
    if (ktms.isEmpty())
        tell(tr("No material is selected"));
    return ktms;
}

QStandardItem *Kiv_mat_databaseWindow::currentGroup() const
{
    QModelIndex index = m_view->currentIndex();
    if (index.parent().isValid())
        index = index.parent();
    return m_model->item(index.isValid() ? index.row() : 0);
}

void Kiv_mat_databaseWindow::commandCopyMaterials(bool)
{
    m_copied.clear();
    for (const materialStruct *material : selectedMaterials())
        m_copied.push_back(material->copy());
    // Marks that materials, not cells, were copied last.
    auto *mark = new QMimeData;
    mark->setData(QLatin1String(materialsFormat), QByteArrayLiteral("1"));
    QGuiApplication::clipboard()->setMimeData(mark);
    updateActions();
    tell(tr("%n material(s) copied", nullptr, int(m_copied.size())));
}

void Kiv_mat_databaseWindow::commandCutMaterials(bool on)
{
    commandCopyMaterials(on);
    commandDeleteMaterials(on);
}

void Kiv_mat_databaseWindow::commandPasteMaterials(bool on)
{
    const QMimeData *last = QGuiApplication::clipboard()->mimeData();
    if (!last || !last->hasFormat(QLatin1String(materialsFormat))) {
        commandPasteCells(on);
        return;
    }
    QStandardItem *group = currentGroup();
    if (!group)
        return;
    const ktmIndex &index = known().materials();
    std::vector<std::unique_ptr<command>> members;
    int withoutKtm = 0;
    for (const auto &material : m_copied) {
        auto copy = material->copy();
        // A KTM stands for one material.
        if (index.find(copy->d_ktm)) {
            copy->d_ktm.clear();
            ++withoutKtm;
        }
        members.push_back(std::make_unique<appendItems>(group, m_rows->makeRow(std::move(copy))));
    }
    if (members.empty())
        return;
    const int count = int(members.size());
    push(std::make_unique<appendCommands>(std::move(members), m_model),
         tr("%n material(s) pasted", nullptr, count));
    m_view->expand(group->index());
    if (withoutKtm > 0)
        tell(tr("%n of them need(s) a new KTM", nullptr, withoutKtm));
}

void Kiv_mat_databaseWindow::commandDeleteMaterials(bool)
{
    std::vector<std::unique_ptr<command>> members;
    const std::vector<materialStruct *> materials = selectedMaterials();
    for (auto material = materials.rbegin(); material != materials.rend(); ++material)
        if (myItemStandard *first = m_rows->find(*material))
            members.push_back(std::make_unique<deleteFromItem>(first->parent(), first));
    if (members.empty()) {
        const QModelIndex marked = m_view->markedCell();
        const QStandardItem *group =
            marked.isValid() && !marked.parent().isValid() ? m_model->item(marked.row()) : nullptr;
        if (!group || !materialRows::groupOf(group)->items.empty()) {
            tell(group ? tr("Only empty groups are deleted") : tr("No material is selected"));
            return;
        }
        members.push_back(std::make_unique<deleteMaterial>(m_model, group->index()));
    }
    const int count = int(members.size());
    push(std::make_unique<appendCommands>(std::move(members), m_model),
         tr("%n material(s) deleted", nullptr, count));
}

void Kiv_mat_databaseWindow::commandEditCpv(bool)
{
    QStandardItem *group = currentGroup();
    if (!group)
        return;
    auto *cell =
        static_cast<myItemStandard *>(m_model->item(group->row(), databaseTree::cpvColumn));
    const auto code = userPrompts().inputText(tr("Edit CPV"), labels::cpv(), cell->text());
    if (!code || *code == cell->text())
        return;
    if (!checkCpv(*code)) {
        userPrompts().showError(tr("CPV syntax error"));
        return;
    }
    push(std::make_unique<changeValue>(m_model, cell, *code), tr("Edit CPV"));
}

// What must not be stored, also when it is typed into a cell: codes of a wrong form, a KTM or a
// group's name that stands for something else already.
QString Kiv_mat_databaseWindow::faultOf(const myItemStandard &item, const QString &text) const
{
    if (item.column() == databaseTree::cpvColumn)
        return text.isEmpty() || checkCpv(text) ? QString() : tr("CPV syntax error");
    if (const d_groupStruct *renamed = materialRows::groupOf(&item)) {
        for (const auto &group : m_rows->database().groups)
            if (item.column() == databaseTree::nameColumn && group.get() != renamed
                && group->name == text)
                return tr("Group already exists");
        return {};
    }
    if (item.column() != databaseTree::ktmColumn)
        return {};
    if (!checkKtm(text))
        return tr("Ktm syntax error");
    const ktmIndex::entry *found = known().materials().find(text);
    return found && found->material != materialRows::materialOf(&item)
               ? tr("Another material has this KTM")
               : QString();
}

void Kiv_mat_databaseWindow::commandAddGroup(bool)
{
    const auto name = userPrompts().inputText(tr("Add. new group"), tr("Group name"), {});
    if (!name || name->trimmed().isEmpty())
        return;
    for (const auto &group : m_rows->database().groups)
        if (group->name == *name) {
            userPrompts().showWarning(tr("Group already exists"));
            return;
        }
    auto group = std::make_unique<d_groupStruct>();
    group->name = *name;
    push(std::make_unique<appendNewMaterial>(m_model, m_rows->makeRow(std::move(group))),
         tr("Add. new group"));
    selectItem(m_view, m_model->item(m_model->rowCount() - 1));
}

void Kiv_mat_databaseWindow::commandExpandGroup(bool)
{
    if (QStandardItem *group = currentGroup())
        m_view->expandItem(group);
}

void Kiv_mat_databaseWindow::commandCollapsGroup(bool)
{
    if (QStandardItem *group = currentGroup())
        m_view->collapseItem(group);
}

void Kiv_mat_databaseWindow::commandInsertToBom(bool)
{
    for (const QString &ktm : selectedKtms())
        emit insertToBom(ktm);
}

void Kiv_mat_databaseWindow::commandReplaceMaterial(bool)
{
    if (const materialStruct *material = m_rows->materialAt(m_view->markedCell()))
        emit replaceWanted(material->d_ktm, this);
}

void Kiv_mat_databaseWindow::commandToOrder(bool)
{
    const QStringList ktms = selectedKtms();
    if (!ktms.isEmpty())
        emit appendToOrder(ktms, 1);
}

void Kiv_mat_databaseWindow::commandToOrderN(bool)
{
    const QStringList ktms = selectedKtms();
    constexpr int mostPieces = 1000000;
    const auto quantity =
        ktms.isEmpty()
            ? std::nullopt
            : userPrompts().inputNumber(labels::addN(), labels::quantity(), 1, 1, mostPieces);
    if (!quantity)
        return;
    emit appendToOrder(ktms, uint(*quantity));
}

// --- The material editor
// --------------------------------------------------------------------------

materialWindow &Kiv_mat_databaseWindow::editor()
{
    if (!m_editor) {
        m_editor = new materialWindow(known(), this);
        m_editor->addFirm = addFirm;
        connect(m_editor, &materialWindow::addNew, this, &Kiv_mat_databaseWindow::commandAddNew);
        connect(m_editor, qOverload<QStandardItem *, materialStruct *>(&materialWindow::editExist),
                this, &Kiv_mat_databaseWindow::commandEditExist);
    }
    return *m_editor;
}

void Kiv_mat_databaseWindow::leaveUnsaved()
{
    if (m_editor)
        m_editor->giveUnfinished();
    editWindow::leaveUnsaved();
}

void Kiv_mat_databaseWindow::commandAddMaterial(bool)
{
    if (QStandardItem *group = currentGroup())
        editor().openNew(group, materialRows::groupOf(group)->cpv);
}

bool Kiv_mat_databaseWindow::makeEditable()
{
    if (isLocked() && action("edit")->isEnabled())
        action("edit")->trigger();
    return !refuseWhileLocked() && finishEditing();
}

bool Kiv_mat_databaseWindow::addFilledIn(const materialStruct &filledIn)
{
    if (!makeEditable())
        return false;
    QStringList names;
    for (const auto &group : m_rows->database().groups)
        names.append(group->name);
    if (names.isEmpty()) {
        userPrompts().showError(tr("The database has no group").toHtmlEscaped());
        return false;
    }
    // Materials often come one after the other for one group.
    const int usual = std::max(0, names.indexOf(m_filledInto));
    const auto chosen = userPrompts().choose(tr("Add. new material"),
                                             tr("Group for %1").arg(filledIn.d_name), names, usual);
    if (!chosen)
        return false;
    m_filledInto = names.at(*chosen);
    const d_groupStruct *group = m_rows->database().groups[size_t(*chosen)].get();
    auto material = materialChecks::newMaterial();
    material->d_cpv = group->cpv;
    for (const auto &field : materialStruct::fields())
        if (const QString &text = filledIn.*field.member;
            field.member != &materialStruct::d_active && !text.isEmpty())
            (*material).*field.member = text;
    const auto copied = filledIn.copy();
    material->manufacturers.items = std::move(copied->manufacturers.items);
    material->suppliers.items = std::move(copied->suppliers.items);
    return editor().openNew(m_rows->groupItem(group), std::move(material));
}

void Kiv_mat_databaseWindow::commandEditParameters(bool)
{
    const materialStruct *material = m_rows->materialAt(m_view->markedCell());
    if (!material
        || userPrompts().ask(tr("Do you want to edit material ?").toHtmlEscaped(), false)
               != prompts::answer::yes)
        return;
    editor().openExisting(m_rows->find(material), *material);
}

void Kiv_mat_databaseWindow::commandAddNew(QStandardItem *group, materialStruct *material)
{
    push(std::make_unique<appendItems>(group,
                                       m_rows->makeRow(std::unique_ptr<materialStruct>(material))),
         tr("Add. new material"));
    selectMaterial(material);
}

void Kiv_mat_databaseWindow::commandEditExist(QStandardItem *item, materialStruct *material)
{
    // A search may have hidden the row meanwhile.
    m_model->bringBack(static_cast<myItemStandard *>(item));
    push(std::make_unique<changeRow>(item->parent(), item->row(),
                                     m_rows->makeRow(std::unique_ptr<materialStruct>(material))),
         tr("Edit parameters"));
    selectMaterial(material);
}
