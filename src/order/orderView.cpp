#include "order/orderView.h"

#include "commands/editCommands.h"
#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "order/orderOperations.h"
#include "tree/myModelDelegate.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"
#include "util/cleanHtml.h"
#include "util/labels.h"
#include "window/becomeList.h"
#include "window/treeHint.h"

#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include <set>

namespace {

barThresholds thresholdsOf(const configStruct &config)
{
    const auto percent = [&config](QLatin1String key, int otherwise) {
        bool isNumber = false;
        const int value = config.options.value(key).toInt(&isNumber);
        return isNumber ? value : otherwise;
    };
    const barThresholds usual;
    return {percent(optionKey::thresholdLow, usual.low),
            percent(optionKey::thresholdAverage, usual.average),
            percent(optionKey::thresholdHigh, usual.high)};
}

} // namespace

orderView::orderView(programData &known, commandStack &stack, QWidget *parent)
    : QWidget(parent)
    , m_known(known)
    , m_stack(stack)
    , m_options(new myModel(this))
    , m_lines(new myModel(this))
    , m_optionsView(new myTreeView(this))
    , m_linesView(new myTreeView(this))
    , m_attentions(new myTextEdit(this))
    , m_hint(treeHint::over(m_linesView, QStringLiteral("hint")))
{
    buildOptions();
    buildLines();
    m_attentions->setObjectName(QStringLiteral("attentions"));
    m_attentions->setAccessibleName(labels::attentions());
    m_attentions->setTabChangesFocus(true);
    connect(m_attentions->document(), &QTextDocument::contentsChanged, this, [this] {
        if (m_loading)
            return;
        // Also when undo brings the text back to how it was: the order has the other one by then.
        m_attentionsTouched = m_attentionsTouched || m_attentions->document()->isModified();
        if (m_attentionsTouched)
            emit changed();
    });

    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setObjectName(QStringLiteral("orderSplitter"));
    splitter->addWidget(m_optionsView);
    splitter->addWidget(m_linesView);
    splitter->addWidget(m_attentions);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    constexpr int optionsHeight = 150;
    constexpr int linesHeight = 440;
    constexpr int attentionsHeight = 120;
    splitter->setSizes({optionsHeight, linesHeight, attentionsHeight});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);
}

void orderView::buildOptions()
{
    recordEdits(m_options, &m_stack);
    m_options->setRecords(&m_optionRows);
    m_options->setHorizontalHeaderLabels({tr("Order"), labels::value()});
    m_optionsView->setObjectName(QStringLiteral("orderOptions"));
    m_optionsView->setAccessibleName(tr("Options of the order"));
    m_optionsView->setModel(m_options);
    m_optionsView->setSortingEnabled(false);
    m_optionsView->setRootIsDecorated(false);
    m_optionsView->header()->setObjectName(QStringLiteral("orderOptionsHeader"));
    constexpr int captionWidth = 220;
    m_optionsView->header()->resizeSection(0, captionWidth);
    m_optionsView->header()->setStretchLastSection(true);
    connect(m_options, &myModel::changeValueOccured, this, &orderView::changed);
}

void orderView::buildLines()
{
    recordEdits(m_lines, &m_stack);
    m_linesView->setObjectName(QStringLiteral("orderLines"));
    m_linesView->setAccessibleName(tr("Lines of the order"));
    m_linesView->setModel(m_lines);
    // A click on a header is a command of its own here.
    m_linesView->setSortingEnabled(false);
    m_linesView->setRootIsDecorated(false);
    m_linesView->setRowsDragged(true);
    m_linesView->setContextMenuPolicy(Qt::CustomContextMenu);
    m_linesView->header()->setObjectName(QStringLiteral("orderLinesHeader"));
    connect(m_lines, &myModel::changeValueOccured, this, &orderView::changed);
    for (auto signal : {&myModel::appendOccured, &myModel::removeOccured})
        connect(m_lines, signal, this, [this] {
            showHint();
            emit changed();
        });

    m_hint->setText(tr("The order has no lines. <a href=\"addMaterial\">Add a material</a>, or "
                       "<a href=\"zpOpen\">open an order</a>."));
    connect(m_hint, &QLabel::linkActivated, this, &orderView::actionWanted);
}

void orderView::show(kiv_mat_zpStruct &order)
{
    // Its commands look at rows of the order before.
    m_stack.clear();
    m_order = &order;
    m_optionRows.show(m_options, order, m_known.config());

    const bool first = !m_lineRows;
    m_lines->setRecords(nullptr);
    m_lines->removeRows(0, m_lines->rowCount());
    m_lineRows = std::make_unique<listRows<orderItemStruct>>(
        orderTree::columns(m_known.config(), order, m_known.materials(),
                           [this](const QString &ktm) { return m_ordered ? m_ordered(ktm) : orderedBefore(); }));
    m_lineRows->makeRecord = [this] {
        return orderOperations::newLine(materialStruct(), *m_order, QStringLiteral("1"),
                                        QDate::currentDate());
    };
    m_lineRows->onChange = [this](myItem::myItemStandard *item, myItem::myItemStandard *) {
        switch (item->column()) {
        case orderTree::quantityColumn:
        case orderTree::inWarehouseColumn:
        case orderTree::ktmColumn:
        case orderTree::deliveryColumn:
        case orderTree::invoiceColumn:
            orderTree::refreshLooks(m_lines, item->row(), m_lineRows->columns());
            break;
        default:
            break;
        }
    };
    // The view is not to follow each of thousands of rows.
    const QByteArray headerState = m_linesView->header()->saveState();
    m_linesView->setModel(nullptr);
    setCaptions(m_lines, m_lineRows->columns());
    m_lineRows->show(m_lines, &order.orderItems.items);
    m_linesView->setModel(m_lines);
    m_lines->setRecords(m_lineRows.get());
    if (first) {
        QHeaderView *header = m_linesView->header();
        for (size_t c = 0; c < m_lineRows->columns().size(); ++c)
            header->resizeSection(int(c), m_lineRows->columns()[c].width);
        for (size_t visual = 0; visual < orderTree::usualOrder().size(); ++visual)
            header->moveSection(header->visualIndex(orderTree::usualOrder()[visual]), int(visual));
    } else {
        m_linesView->header()->restoreState(headerState);
    }
    refreshSettings();
    m_loading = true;
    m_attentions->setHtml(cleanHtml(order.attentions));
    m_attentions->document()->setModified(false);
    m_attentionsTouched = false;
    m_loading = false;
    if (m_lines->rowCount() > 0)
        m_linesView->selectionModel()->setCurrentIndex(m_lines->index(0, orderTree::nameColumn),
                                                       QItemSelectionModel::NoUpdate);
    showHint();
}

void orderView::refreshSettings()
{
    const configStruct &config = m_known.config();
    for (myTreeView *view : {m_optionsView, m_linesView}) {
        static_cast<myModelDelegate *>(view->itemDelegate())->setThresholds(thresholdsOf(config));
        view->setFont(config.font());
        view->viewport()->update();
    }
}

void orderView::showHint()
{
    m_hint->adjustSize();
    m_hint->setVisible(m_lines->rowCount() == 0);
}

std::vector<int> orderView::selectedRows() const
{
    std::set<int> rows;
    for (const QModelIndex &index : m_linesView->selectionModel()->selectedIndexes())
        rows.insert(index.row());
    return {rows.begin(), rows.end()};
}

std::vector<int> orderView::allRows() const
{
    std::vector<int> rows;
    for (int row = 0; row < m_lines->rowCount(); ++row)
        rows.push_back(row);
    return rows;
}

QList<myItem::myItemStandard *> orderView::cells(const std::vector<int> &rows, int column) const
{
    QList<myItem::myItemStandard *> found;
    for (int row : rows)
        found.append(static_cast<myItem::myItemStandard *>(m_lines->item(row, column)));
    return found;
}

std::vector<const orderItemStruct *> orderView::records(const std::vector<int> &rows) const
{
    std::vector<const orderItemStruct *> found;
    for (int row : rows)
        found.push_back(listRows<orderItemStruct>::recordOf(
            static_cast<myItem::myItemStandard *>(m_lines->item(row))));
    return found;
}

void orderView::takeAttentions()
{
    if (m_order && m_attentionsTouched)
        m_order->attentions = cleanHtml(m_attentions->toHtml());
}

void orderView::replaceAttentions(const QString &html)
{
    QTextCursor cursor(m_attentions->document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.insertHtml(html);
    cursor.endEditBlock();
}

std::unique_ptr<command> orderView::become(kiv_mat_zpStruct &wanted)
{
    takeAttentions();
    if (m_order->attentions != wanted.attentions)
        replaceAttentions(cleanHtml(wanted.attentions));
    std::vector<std::unique_ptr<command>> members;
    const changeBatch batch(m_lines);
    becomeList::changeOptions(m_options, wanted.options, members);
    becomeList::change(m_lines, *m_lineRows, m_order->orderItems.items,
                       std::move(wanted.orderItems.items), members);
    return members.empty() ? nullptr
                           : std::make_unique<appendCommands>(std::move(members), m_lines);
}

void orderView::renumber()
{
    for (int row = 0; row < m_lines->rowCount(); ++row) {
        auto *first = static_cast<myItem::myItemStandard *>(m_lines->item(row));
        const QString number = QString::number(row + 1);
        if (first->text() == number)
            continue;
        first->setText(number);
        m_lines->writeCell(first);
    }
}

void orderView::refreshLooks()
{
    for (int row = 0; row < m_lines->rowCount(); ++row)
        orderTree::refreshLooks(m_lines, row, m_lineRows->columns());
}
