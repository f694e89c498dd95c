#include "order/deliveryDialog.h"

#include "data/kiv_mat_zpStruct.h"
#include "util/labels.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/rowTable.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum column
{
    ordinalColumn,
    ktmColumn,
    nameColumn,
    orderedColumn,
    cameColumn, // which the user fills in
    unitColumn,
    columnCount
};

} // namespace

deliveryDialog::deliveryDialog(const kiv_mat_zpStruct &order, const std::vector<int> &lines,
                               QWidget *parent)
    : QDialog(parent)
    , m_order(order)
    , m_table(new QTableWidget(this))
    , m_number(new QLineEdit(this))
    , m_date(new QDateEdit(QDate::currentDate(), this))
    , m_sum(new QLabel(this))
{
    setObjectName(QStringLiteral("deliveryDialog"));
    setWindowTitle(tr("What was delivered"));
    m_number->setObjectName(QStringLiteral("number"));
    m_number->setAccessibleName(tr("Number of the delivery note"));
    m_date->setObjectName(QStringLiteral("date"));
    m_date->setAccessibleName(tr("Date of the delivery"));
    m_date->setCalendarPopup(true);
    m_date->setDisplayFormat(labels::dateFormat());
    auto *form = new QFormLayout;
    form->addRow(tr("N&umber of the delivery note"), m_number);
    form->addRow(tr("D&ate of the delivery"), m_date);

    m_sum->setObjectName(QStringLiteral("summary"));
    auto *buttons = new QDialogButtonBox(this);
    m_go = buttons->addButton(tr("&Note the delivery"), QDialogButtonBox::AcceptRole);
    m_go->setObjectName(QStringLiteral("go"));
    m_go->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    const auto filling = [&](const QString &text, const char *name, bool whole) {
        QPushButton *button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, whole] { fill(whole); });
    };
    filling(tr("All &whole"), "whole", true);
    filling(tr("All n&othing"), "nothing", false);
    connect(buttons, &QDialogButtonBox::accepted, this, &deliveryDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    fillTable(lines);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_table);
    layout->addWidget(m_sum);
    layout->addWidget(buttons);
    constexpr QSize usualSize(820, 520);
    resize(usualSize);
    connect(m_table, &QTableWidget::itemChanged, this, &deliveryDialog::showSum);
    // After the editor is gone, which takes Return for itself.
    connect(m_table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget *, QAbstractItemDelegate::EndEditHint hint) {
                if (hint == QAbstractItemDelegate::SubmitModelCache)
                    QTimer::singleShot(0, this, [this] { goDown(); });
            });
    showSum();
    m_number->setFocus();
}

void deliveryDialog::fillTable(const std::vector<int> &lines)
{
    m_table->setObjectName(QStringLiteral("lines"));
    m_table->setAccessibleName(tr("Lines that are to come"));
    m_table->setColumnCount(columnCount);
    m_table->setHorizontalHeaderLabels({labels::ordinalNumber(), labels::ktm(), labels::name(),
                                        tr("Ordered"), tr("Came"), labels::unit()});
    m_table->verticalHeader()->hide();
    constexpr int rowMargin = 6;
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowMargin);
    m_table->setTabKeyNavigation(false);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked
                             | QAbstractItemView::EditKeyPressed);
    for (const int line : lines) {
        const orderItemStruct &of = *m_order.orderItems.items[size_t(line)];
        if (!deliveries::isOpen(of))
            continue;
        const int row = m_table->rowCount();
        m_table->insertRow(row);
        m_lines.push_back(line);
        const QStringList texts{
            QString::number(line + 1), of.ktm, of.name, of.quantity, of.quantity,
            labels::shown(of.unit)};
        for (int column = 0; column < columnCount; ++column) {
            auto *item = new QTableWidgetItem(texts.at(column));
            item->setToolTip(text::toolTip(texts.at(column)));
            if (column != cameColumn)
                item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            if (column == ordinalColumn || column == orderedColumn || column == cameColumn)
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_table->setItem(row, column, item);
        }
    }
    constexpr int widths[] = {44, 180, 250, 90, 90, 100};
    for (int column = 0; column < columnCount; ++column)
        resizeColumn(m_table->horizontalHeader(), column, widths[column]);
    if (m_table->rowCount() > 0)
        m_table->setCurrentCell(0, cameColumn);
}

void deliveryDialog::fill(bool whole)
{
    {
        const QSignalBlocker quiet(m_table);
        for (int row = 0; row < m_table->rowCount(); ++row)
            m_table->item(row, cameColumn)
                ->setText(whole ? m_table->item(row, orderedColumn)->text() : QString());
    }
    m_table->viewport()->update();
    showSum();
}

// Everything came only where somebody says so: Return goes from the number to the lines, and in
// them it ends the text that is typed and goes one line down.
void deliveryDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QWidget *focused = focusWidget();
    if (!isReturn || !focused || qobject_cast<const QPushButton *>(focused)) {
        QDialog::keyPressEvent(event);
        return;
    }
    event->accept();
    if (focused == m_table) {
        goDown();
        return;
    }
    m_table->setFocus();
    m_table->setCurrentCell(m_table->currentRow(), cameColumn);
}

void deliveryDialog::goDown()
{
    m_table->setCurrentCell(std::min(m_table->currentRow() + 1, m_table->rowCount() - 1),
                            cameColumn);
}

QString deliveryDialog::delivery() const
{
    return deliveries::textOf(m_number->text(), m_date->date());
}

void deliveryDialog::showSum()
{
    int came = 0;
    for (int row = 0; row < m_table->rowCount(); ++row)
        came += m_table->item(row, cameColumn)->text().trimmed().isEmpty() ? 0 : 1;
    m_sum->setText(tr("%n line(s) of it", nullptr, came) + QLatin1String(", ")
                   + tr("%n to come", nullptr, m_table->rowCount()));
    m_go->setEnabled(came > 0);
    m_go->setToolTip(came > 0 ? QString() : tr("nothing came of any line"));
}

// What cannot be stays on screen, with its cell open.
void deliveryDialog::accept()
{
    m_delivered.clear();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        QTableWidgetItem *item = m_table->item(row, cameColumn);
        const QString text = item->text().trimmed();
        if (text.isEmpty() || decimal::read(text) == decimal())
            continue;
        const auto came = decimal::read(text);
        const auto ordered = decimal::read(m_table->item(row, orderedColumn)->text());
        if (!came || *came < decimal() || !ordered || *came > *ordered) {
            userPrompts().showError(tr("Line %1: of %2, \"%3\" cannot have come")
                                        .arg(m_table->item(row, ordinalColumn)->text(),
                                             m_table->item(row, orderedColumn)->text(), text)
                                        .toHtmlEscaped());
            m_table->setCurrentItem(item);
            m_table->setFocus();
            m_table->editItem(item);
            return;
        }
        m_delivered.push_back({m_lines[size_t(row)], *came});
    }
    if (m_delivered.empty()) {
        m_table->setFocus();
        return;
    }
    QDialog::accept();
}
