#include "commands/cellBlock.h"

#include "commands/editCommands.h"

#include <QCoreApplication>

#include <algorithm>

using myItem::myItemStandard;

namespace cellBlock {

namespace {

QString oneLine(QString text)
{
    for (QChar blank : {QChar('\t'), QChar('\n'), QChar('\r')})
        text.replace(blank, QLatin1Char(' '));
    return text;
}

std::unique_ptr<command> grouped(std::vector<std::unique_ptr<command>> members, myModel *model,
                                 htmlView *view)
{
    if (members.empty())
        return nullptr;
    if (view)
        members.push_back(std::make_unique<refreshHtml>(view));
    return std::make_unique<appendCommands>(std::move(members), model);
}

} // namespace

QString copied(const QModelIndexList &cells)
{
    QString text;
    QModelIndex before;
    for (const QModelIndex &cell : cells) {
        if (before.isValid())
            text += QLatin1Char(
                before.sibling(before.row(), 0) == cell.sibling(cell.row(), 0) ? '\t' : '\n');
        const auto *model = qobject_cast<const myModel *>(cell.model());
        const myItemStandard *item = model ? model->look(cell) : nullptr;
        text += oneLine(item ? myItem::copiedText(*item) : cell.data().toString());
        before = cell;
    }
    return text;
}

std::unique_ptr<command> set(myModel *model, const QList<myItemStandard *> &cells,
                             const std::function<QVariant(const myItemStandard &)> &value,
                             htmlView *view, whichCells which)
{
    const changeBatch batch(model);
    std::vector<std::unique_ptr<command>> members;
    for (myItemStandard *cell : cells) {
        if (cell->readOnly && which == editableOnly)
            continue;
        const QVariant wanted = value(*cell);
        if (wanted.isValid() && myItem::differs(*cell, wanted))
            members.push_back(std::make_unique<changeValue>(model, cell, wanted));
    }
    return grouped(std::move(members), model, view);
}

std::unique_ptr<command> clear(myModel *model, const QList<myItemStandard *> &cells, htmlView *view)
{
    return set(
        model, cells, [](const myItemStandard &) { return QVariant(QString()); }, view);
}

std::unique_ptr<command> deleteRows(myModel *model, const std::vector<int> &rows, htmlView *view)
{
    const changeBatch batch(model);
    std::vector<std::unique_ptr<command>> members;
    // From the last one on, so that the numbers of the others stay true.
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        members.push_back(std::make_unique<deleteMaterial>(model, model->index(*row, 0)));
    return grouped(std::move(members), model, view);
}

namespace {

QList<QStringList> blockOf(QString text)
{
    text.remove(QLatin1Char('\r'));
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    QList<QStringList> block;
    for (const QString &line : text.split(QLatin1Char('\n')))
        block.append(line.split(QLatin1Char('\t')));
    return block;
}

// A date that another row of the column holds may be pasted, whatever a calendar offers.
bool standsInColumn(const myModel *model, const QModelIndex &index, const QString &text)
{
    for (int row = 0; row < model->rowCount(index.parent()); ++row)
        if (index.sibling(row, index.column()).data().toString() == text)
            return true;
    return false;
}

myItem::reading readPasted(const myModel *model, const QModelIndex &index,
                           const myItemStandard &cell, const QString &text)
{
    if (cell.readOnly)
        return {{}, QCoreApplication::translate("cellBlock", "this cell cannot be edited")};
    myItem::reading read = model->read(cell, text);
    if (!read.fault.isEmpty() && cell.type() == myItem::dateEditKind && !text.isEmpty()
        && standsInColumn(model, index, text.trimmed()))
        return {text.trimmed(), {}};
    return read;
}

} // namespace

myItem::reading like(const myItemStandard &source, const myItemStandard &cell)
{
    if (cell.type() == myItem::fontComboBoxKind)
        return {myItem::valueOf(source), {}};
    return readPasted(static_cast<const myModel *>(cell.model()), cell.index(), cell,
                      source.text());
}

int linesBeyond(const QList<int> &rows, const QString &text)
{
    return std::max(0, int(blockOf(text).size()) - int(rows.size()));
}

pasted paste(myModel *model, const QModelIndex &start, const QModelIndexList &selected,
             QList<int> rows, const QList<int> &columns, const QString &text, bool newRows,
             htmlView *view)
{
    const QList<QStringList> block = blockOf(text);
    pasted result;
    const changeBatch batch(model);
    std::vector<std::unique_ptr<command>> members;
    // What goes where.
    QList<QPair<QModelIndex, QString>> targets;
    if (block.size() == 1 && block.first().size() == 1 && selected.size() > 1) {
        for (const QModelIndex &cell : selected)
            targets.append({cell, block.first().first()});
    } else {
        const int beyond = linesBeyond(rows, text);
        for (int line = 0; line < beyond && newRows && model->records(); ++line)
            if (const myItem::row added = model->records()->newRow(); !added.isEmpty()) {
                rows.append(model->rowCount());
                members.push_back(std::make_unique<appendNewMaterial>(model, added));
            }
        if (const int lost = linesBeyond(rows, text); lost > 0)
            result.refused.append(QCoreApplication::translate(
                "cellBlock", "%n line(s) past the last row", nullptr, lost));
        const int from = columns.indexOf(start.column());
        for (int r = 0; r < std::min(block.size(), rows.size()); ++r)
            for (int c = 0; c < block[r].size(); ++c) {
                if (from + c < columns.size())
                    targets.append({start.sibling(rows[r], columns[from + c]), block[r][c]});
                else if (r == 0)
                    result.refused.append(
                        QCoreApplication::translate("cellBlock", "\"%1\" past the last column")
                            .arg(block[r][c]));
            }
    }

    // What a cell shows only may follow from the others of its row.
    std::stable_partition(targets.begin(), targets.end(), [model](const auto &target) {
        const myItemStandard *cell = model->cell(target.first);
        return cell && !cell->readOnly;
    });
    for (const auto &[index, typed] : qAsConst(targets)) {
        myItemStandard *cell = model->cell(index);
        if (!cell || cell->text() == typed)
            continue;
        const myItem::reading read = readPasted(model, index, *cell, typed);
        if (!read.fault.isEmpty()) {
            result.refused.append(
                QCoreApplication::translate("cellBlock", "%1, row %2: %3")
                    .arg(model->headerData(index.column(), Qt::Horizontal).toString())
                    .arg(index.row() + 1)
                    .arg(read.fault.contains(typed.trimmed())
                             ? read.fault
                             : typed.trimmed() + QLatin1String(", ") + read.fault));
        } else if (read.value.isValid()) {
            members.push_back(std::make_unique<changeValue>(model, cell, read.value));
            ++result.changed;
        }
    }
    result.change = grouped(std::move(members), model, view);
    return result;
}

pasted pasteRows(myModel *model, int at, int column, const QList<int> &columns, const QString &text)
{
    const changeBatch batch(model);
    std::vector<std::unique_ptr<command>> members;
    QList<int> rows;
    const int count = blockOf(text).size();
    for (int line = 0; line < count && model->records(); ++line)
        if (const myItem::row added = model->records()->newRow(); !added.isEmpty()) {
            rows.append(at + line);
            members.push_back(
                std::make_unique<appendItems>(model->invisibleRootItem(), added, at + line));
        }
    if (members.empty())
        return {};
    pasted result = paste(model, model->index(at, column), {}, rows, columns, text, false);
    if (result.change)
        members.push_back(std::move(result.change));
    result.change = grouped(std::move(members), model, nullptr);
    return result;
}

} // namespace cellBlock
