#include "commands/cellBlock.h"

#include "commands/editCommands.h"

#include <QCoreApplication>

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
        text += oneLine(cell.data().toString());
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

pasted paste(myModel *model, const QModelIndex &start, const QModelIndexList &selected,
             const QList<int> &columns, const QString &text, htmlView *view)
{
    QString trimmed = text;
    trimmed.remove(QLatin1Char('\r'));
    if (trimmed.endsWith(QLatin1Char('\n')))
        trimmed.chop(1);
    QList<QStringList> block;
    for (const QString &line : trimmed.split(QLatin1Char('\n')))
        block.append(line.split(QLatin1Char('\t')));

    // What goes where.
    QList<QPair<QModelIndex, QString>> targets;
    if (block.size() == 1 && block.first().size() == 1 && selected.size() > 1) {
        for (const QModelIndex &cell : selected)
            targets.append({cell, block.first().first()});
    } else {
        const int from = columns.indexOf(start.column());
        for (int r = 0; r < block.size(); ++r)
            for (int c = 0; c < block[r].size() && from + c < columns.size(); ++c)
                targets.append({start.sibling(start.row() + r, columns[from + c]), block[r][c]});
    }

    pasted result;
    const changeBatch batch(model);
    std::vector<std::unique_ptr<command>> members;
    for (const auto &[index, typed] : qAsConst(targets)) {
        myItemStandard *cell = model->cell(index);
        if (!cell || cell->text() == typed)
            continue;
        const QVariant value = cell->readOnly ? QVariant() : myItem::parsed(*cell, typed);
        if (!value.isValid())
            result.refused.append(
                QCoreApplication::translate("cellBlock", "%1, row %2: %3")
                    .arg(model->headerData(index.column(), Qt::Horizontal).toString())
                    .arg(index.row() + 1)
                    .arg(typed));
        else if (myItem::differs(*cell, value))
            members.push_back(std::make_unique<changeValue>(model, cell, value));
    }
    result.changed = int(members.size());
    result.change = grouped(std::move(members), model, view);
    return result;
}

} // namespace cellBlock
