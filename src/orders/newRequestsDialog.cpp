#include "orders/newRequestsDialog.h"

#include "util/foldedText.h"
#include "util/labels.h"
#include "util/text.h"
#include "window/rowTable.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace quotationRequests;

namespace {

enum column
{
    nameColumn,
    mailColumn,
    languageColumn,
    namedColumn,
    beforeColumn,
    addressColumn,
    columns
};
constexpr int widths[columns] = {220, 240, 80, 90, 140, 200};

bool isTicked(const QTreeWidgetItem &row) { return row.checkState(nameColumn) == Qt::Checked; }

bool mayBeTicked(const QTreeWidgetItem &row) { return row.flags() & Qt::ItemIsUserCheckable; }

} // namespace

newRequestsDialog::newRequestsDialog(std::vector<candidate> firms, const orderOffers::needs &needs,
                                     QWidget *parent)
    : QDialog(parent)
    , m_firms(std::move(firms))
    , m_materials(int(needs.all.size()))
    , m_uncounted(int(needs.uncounted.size()))
    , m_search(new QLineEdit(this))
    , m_table(newTable())
    , m_deadline(new QDateEdit(usualDeadline(QDate::currentDate()), this))
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("newRequestsDialog"));
    setWindowTitle(tr("New requests for quotation"));
    m_deadline->setCalendarPopup(true);
    m_deadline->setDisplayFormat(labels::dateFormat());
    m_deadline->setMinimumDate(QDate::currentDate());
    m_search->setPlaceholderText(tr("Name or address"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_count->setObjectName(QStringLiteral("count"));
    m_count->setTextFormat(Qt::PlainText);

    auto *fields = new QHBoxLayout;
    const auto add = [&](QWidget *widget, const char *name, const QString &caption, int stretch) {
        auto *label = new QLabel(caption, this);
        label->setBuddy(widget);
        widget->setObjectName(QLatin1String(name));
        widget->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
        fields->addWidget(label);
        fields->addWidget(widget, stretch);
    };
    add(m_search, "search", tr("&Search"), 1);
    add(m_deadline, "deadline", tr("Offers expected &by"), 0);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_write = buttons->addButton(tr("&Write requests"), QDialogButtonBox::AcceptRole);
    m_write->setObjectName(QStringLiteral("write"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_search, &QLineEdit::textChanged, this, &newRequestsDialog::filter);
    connect(m_table, &QTreeWidget::itemChanged, this, &newRequestsDialog::showCount);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_count);
    layout->addWidget(buttons);
    constexpr QSize usualSize(960, 560);
    resize(usualSize);
    setTabOrder(m_search, m_deadline);
    setTabOrder(m_deadline, m_table);
    setTabOrder(m_table, m_write);
    setTabOrder(m_write, buttons->button(QDialogButtonBox::Cancel));
    showCount();
    m_search->setFocus();
}

QTreeWidget *newRequestsDialog::newTable()
{
    auto *table = new QTreeWidget(this);
    table->setObjectName(QStringLiteral("firms"));
    table->setAccessibleName(tr("Firms of the register"));
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setAlternatingRowColors(true);
    table->setAllColumnsShowFocus(true);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setHeaderLabels({tr("Firm"), tr("E-mail"), tr("Language"), tr("Materials"),
                            tr("Asked before"), tr("Address")});
    table->headerItem()->setToolTip(
        namedColumn, tr("Materials of the order that name the firm as supplier or manufacturer"));
    for (int i = 0; i < columns; ++i)
        resizeColumn(table->header(), i, widths[i]);
    for (const candidate &one : m_firms) {
        const QString addresses = one.to.join(QLatin1String(", "));
        auto *row =
            new QTreeWidgetItem(table, {one.firm, addresses, one.language,
                                        QString::number(one.named), one.before, one.address});
        row->setTextAlignment(namedColumn, Qt::AlignRight | Qt::AlignVCenter);
        const QString fault = faultOf(one);
        if (fault.isEmpty())
            row->setCheckState(nameColumn, Qt::Unchecked);
        else
            row->setFlags(row->flags() & ~Qt::ItemIsUserCheckable);
        for (int i = 0; i < columns; ++i)
            row->setToolTip(i, text::toolTip(!fault.isEmpty() ? fault
                                             : i == nameColumn && !one.nip.isEmpty()
                                                 ? one.firm + QLatin1Char('\n') + one.nip
                                                 : row->text(i)));
    }
    table->setCurrentItem(table->topLevelItem(0));
    table->installEventFilter(this);
    return table;
}

std::vector<candidate> newRequestsDialog::chosen() const
{
    std::vector<candidate> all;
    for (int i = 0; i < m_table->topLevelItemCount(); ++i)
        if (isTicked(*m_table->topLevelItem(i)))
            all.push_back(m_firms[size_t(i)]);
    return all;
}

QDate newRequestsDialog::deadline() const { return m_deadline->date(); }

// Rows with all words; what is ticked stays so.
void newRequestsDialog::filter(const QString &words)
{
    const QStringList wanted = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < m_table->topLevelItemCount(); ++i) {
        const candidate &of = m_firms[size_t(i)];
        const std::string all =
            text::folded(of.firm + QLatin1Char('\n') + of.nip + QLatin1Char('\n')
                         + of.to.join(QLatin1Char('\n')) + QLatin1Char('\n') + of.address);
        m_table->topLevelItem(i)->setHidden(
            std::any_of(wanted.begin(), wanted.end(), [&all](const QString &word) {
                return all.find(text::folded(word)) == std::string::npos;
            }));
    }
}

// To the first row that is shown.
void newRequestsDialog::goToTable()
{
    m_table->setFocus();
    for (int i = 0; i < m_table->topLevelItemCount(); ++i)
        if (QTreeWidgetItem *row = m_table->topLevelItem(i); !row->isHidden()) {
            m_table->setCurrentItem(row);
            return;
        }
}

// All of them, unless they are ticked already.
void newRequestsDialog::tickSelected()
{
    QList<QTreeWidgetItem *> rows;
    QString fault;
    for (int i = 0; i < m_table->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = m_table->topLevelItem(i);
        if (!row->isSelected() || row->isHidden())
            continue;
        if (mayBeTicked(*row))
            rows.append(row);
        else
            fault = faultOf(m_firms[size_t(i)]);
    }
    const bool areTicked = std::all_of(rows.begin(), rows.end(),
                                       [](const QTreeWidgetItem *row) { return isTicked(*row); });
    {
        const QSignalBlocker quiet(m_table);
        for (QTreeWidgetItem *row : qAsConst(rows))
            row->setCheckState(nameColumn, areTicked ? Qt::Unchecked : Qt::Checked);
    }
    m_table->viewport()->update();
    showCount();
    if (rows.isEmpty() && !fault.isEmpty())
        m_count->setText(fault);
}

void newRequestsDialog::showCount()
{
    if (!m_write)
        return;
    const int firms = int(chosen().size());
    QString count = tr("%n firm(s)", nullptr, firms) + QLatin1String(", ")
                    + tr("%n material(s)", nullptr, m_materials);
    if (m_uncounted > 0)
        count += QLatin1String("; ")
                 + tr("%n line(s) without a quantity are left out", nullptr, m_uncounted);
    m_count->setText(count);
    m_write->setEnabled(firms > 0 && m_materials > 0);
    m_write->setToolTip(m_materials == 0 ? tr("There is nothing to ask for")
                        : firms == 0     ? tr("No firm is ticked")
                                         : QString());
}

bool newRequestsDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_search && (isReturn || key == Qt::Key_Down)) {
        goToTable();
        return true;
    }
    if (watched == m_table && key == Qt::Key_Space) {
        tickSelected();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

// Return in a field or the table is not to send anything.
void newRequestsDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QDialog::keyPressEvent(event);
    else if (auto *button = qobject_cast<QPushButton *>(focusWidget()))
        button->click();
}
