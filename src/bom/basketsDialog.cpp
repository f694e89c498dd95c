#include "bom/basketsDialog.h"

#include "data/firmDetails.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/numbers.h"
#include "util/prompts.h"
#include "util/text.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace supplierBasket;

namespace {

enum supplierColumn
{
    supplierName,
    lineCount,
    discountColumn,
    sumColumn
};

enum lineColumn
{
    nameColumn,
    ktmColumn,
    numberColumn,
    quantityColumn,
    unitColumn,
    amountColumn,
    othersColumn,
    remarkColumn
};

QTreeWidget *table(const char *name, const QString &accessibleName, const QStringList &captions,
                   const QVector<int> &widths, const QVector<int> &numbers, QWidget *parent)
{
    auto *made = new QTreeWidget(parent);
    made->setObjectName(QLatin1String(name));
    made->setAccessibleName(accessibleName);
    made->setRootIsDecorated(false);
    made->setUniformRowHeights(true);
    made->setAlternatingRowColors(true);
    made->setHeaderLabels(captions);
    for (int column = 0; column < widths.size(); ++column)
        made->header()->resizeSection(
            column, std::max(widths.at(column), made->header()->sectionSizeHint(column)));
    for (const int column : numbers)
        made->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    return made;
}

void addRow(QTreeWidget *to, const QStringList &cells, const QVector<int> &numbers,
            const QString &fault)
{
    auto *row = new QTreeWidgetItem(to, cells);
    for (const int column : numbers)
        row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    for (int column = 0; column < cells.size(); ++column)
        row->setToolTip(column, text::toolTip(fault.isEmpty() ? cells.at(column) : fault));
    if (!fault.isEmpty())
        row->setIcon(0, QIcon(QStringLiteral(":/icons/icons/system_error_trans_128.png")));
}

const QVector<int> numbersOfSuppliers{lineCount, discountColumn, sumColumn};
const QVector<int> numbersOfLines{quantityColumn, amountColumn};

} // namespace

basketsDialog::basketsDialog(std::vector<item> items, formOf forms, const QString &folder,
                             QWidget *parent)
    : QDialog(parent)
    , m_items(std::move(items))
    , m_forms(std::move(forms))
    , m_folder(QFileInfo(folder).isDir() ? folder : QDir::homePath())
    , m_summary(new QLabel(this))
    , m_told(new QLabel(this))
{
    setObjectName(QStringLiteral("basketsDialog"));
    setWindowTitle(tr("Supplier baskets"));
    makeTables();
    for (QLabel *label : {m_summary, m_told}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_summary->setObjectName(QStringLiteral("summary"));
    m_told->setObjectName(QStringLiteral("told"));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const auto button = [&](const QString &text, const char *name, auto act) {
        QPushButton *made = buttons->addButton(text, QDialogButtonBox::ActionRole);
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, act);
        return made;
    };
    m_other = button(tr("&Other supplier ..."), "other", [this] { chooseSupplier(); });
    m_copy = button(tr("&Copy"), "copy", [this] { copy(); });
    m_copy->setToolTip(
        tr("Copy the columns of the supplier's basket, to paste them into its shop"));
    m_saveOne = button(tr("&Save as ..."), "saveAs", [this] { saveOne(); });
    m_saveAll = button(tr("Save &all ..."), "saveAll", [this] { saveAll(); });
    m_saveAll->setToolTip(tr("Write a file for each supplier into a folder"));
    // Return acts on the lines; it is not to close the dialog.
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_suppliers);
    splitter->addWidget(m_lines);
    constexpr int leftWidth = 390;
    constexpr int rightWidth = 930;
    splitter->setSizes({leftWidth, rightWidth});
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_told);
    layout->addWidget(buttons);
    constexpr QSize usualSize(1320, 600);
    resize(usualSize);
    part({});
    m_suppliers->setFocus();
}

void basketsDialog::makeTables()
{
    m_suppliers = table("suppliers", labels::suppliers(),
                        {labels::supplier(), tr("Lines"), tr("Discount"),
                         labels::sum() + QLatin1String(" [ PLN ]")},
                        {140, 50, 60, 100}, numbersOfSuppliers, this);
    m_lines = table("basketLines", tr("Lines of the basket"),
                    {labels::name(), labels::ktm(), labels::partNumber(), labels::quantity(),
                     labels::unit(), labels::value() + QLatin1String(" [ PLN ]"),
                     tr("Other suppliers"), tr("Remark")},
                    {145, 152, 140, 60, 50, 90, 105, 120}, numbersOfLines, this);
    m_lines->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(m_suppliers, &QTreeWidget::currentItemChanged, this, [this] { showLines(); });
    connect(m_lines, &QTreeWidget::itemSelectionChanged, this, [this] {
        QStringList others;
        for (const QTreeWidgetItem *row : m_lines->selectedItems())
            others.append(row->text(othersColumn));
        others.removeAll({});
        m_other->setEnabled(!others.isEmpty());
        m_other->setToolTip(m_other->isEnabled()
                                ? tr("Buy the selected lines from another supplier")
                                : tr("no line selected that has another supplier"));
    });
    connect(m_lines, &QTreeWidget::itemActivated, this, [this] { m_other->click(); });
}

const basket *basketsDialog::current() const
{
    const int row = m_suppliers->indexOfTopLevelItem(m_suppliers->currentItem());
    return row < 0 ? nullptr : &m_baskets[size_t(row)];
}

QString basketsDialog::called(const basket &of) const
{
    return of.supplier.isEmpty() ? tr("no supplier") : of.supplier;
}

void basketsDialog::part(const QString &supplier)
{
    m_baskets = basketsOf(m_items, m_chosen);
    int wanted = 0;
    int without = 0;
    int faults = 0;
    {
        const QSignalBlocker quiet(m_suppliers);
        m_suppliers->clear();
        for (const basket &one : m_baskets) {
            const QString discount = m_forms(one.supplier).discount;
            const decimal share = firmDetails::shareAfterDiscount(discount);
            const int faulty = one.faults();
            addRow(m_suppliers,
                   {called(one), QString::number(one.lines.size()),
                    discount.isEmpty() ? QString() : discount + QLatin1String(" %"),
                    numbers::grouped(one.sum(share).money())},
                   numbersOfSuppliers,
                   faulty > 0 ? tr("%n line(s) with a remark", nullptr, faulty) : QString());
            if (!supplier.isEmpty() && one.supplier == supplier)
                wanted = m_suppliers->topLevelItemCount() - 1;
            if (one.supplier.isEmpty())
                without = int(one.lines.size());
            else
                faults += faulty;
        }
    }
    QStringList parts{tr("%n supplier(s)", nullptr, int(m_baskets.size()) - (without > 0 ? 1 : 0)),
                      tr("%n line(s)", nullptr, int(m_items.size()))};
    if (without > 0)
        parts.append(tr("%n without a supplier", nullptr, without));
    if (faults > 0)
        parts.append(tr("%n with a remark", nullptr, faults));
    m_summary->setText(parts.join(QLatin1String(", ")));
    m_suppliers->setCurrentItem(m_suppliers->topLevelItem(wanted));
    showLines();
    const bool anySupplier = std::any_of(m_baskets.begin(), m_baskets.end(),
                                         [](const auto &one) { return !one.supplier.isEmpty(); });
    m_saveAll->setEnabled(anySupplier);
    for (QPushButton *button : {m_copy, m_saveOne})
        button->setEnabled(!m_baskets.empty());
}

void basketsDialog::showLines()
{
    m_lines->clear();
    const basket *shown = current();
    if (!shown)
        return;
    const decimal share = firmDetails::shareAfterDiscount(m_forms(shown->supplier).discount);
    for (const line &one : shown->lines) {
        QStringList others;
        for (const QString &name : suppliersOf(one.of))
            if (!firmDetails::isSameName(name, one.supplier))
                others.append(name);
        const auto amount = one.amount(share);
        addRow(m_lines,
               {one.of.name, one.of.ktm, one.partNumber, one.of.writtenQuantity,
                one.of.material ? labels::shown(one.of.material->d_unit) : QString(),
                amount ? amount->money() : QString(), others.join(QLatin1String(", ")), one.fault},
               numbersOfLines, one.fault);
    }
    m_lines->setCurrentItem(m_lines->topLevelItem(0));
}

void basketsDialog::chooseSupplier()
{
    const basket *shown = current();
    if (!shown)
        return;
    QStringList names;
    std::vector<const line *> selected;
    for (QTreeWidgetItem *row : m_lines->selectedItems()) {
        const line &one = shown->lines[size_t(m_lines->indexOfTopLevelItem(row))];
        selected.push_back(&one);
        for (const QString &name : suppliersOf(one.of))
            if (!firmDetails::isSameName(name, one.supplier)
                && std::none_of(names.cbegin(), names.cend(), [&name](const QString &other) {
                       return firmDetails::isSameName(name, other);
                   }))
                names.append(name);
    }
    if (names.isEmpty())
        return;
    const std::optional<int> answer =
        userPrompts().choose(tr("Other supplier"), labels::supplier(), names, 0);
    if (!answer)
        return;
    const QString chosen = names.at(*answer);
    int moved = 0;
    for (const line *one : selected)
        for (const QString &name : suppliersOf(one->of))
            if (firmDetails::isSameName(name, chosen)) {
                m_chosen.insert(keyOf(one->of), name);
                ++moved;
            }
    // What is shown goes with the baskets that are parted anew.
    const QString supplier = shown->supplier;
    part(supplier);
    tell(tr("%n line(s) bought from %1", nullptr, moved).arg(chosen));
}

void basketsDialog::copy()
{
    const basket *shown = current();
    if (!shown)
        return;
    QApplication::clipboard()->setText(tabbedText(*shown, m_forms(shown->supplier)));
    tell(tr("The basket of %1 is copied").arg(called(*shown)));
}

bool basketsDialog::write(const basket &of, const QString &path)
{
    QString fault;
    if (!supplierBasket::write(of, m_forms(of.supplier), path, &fault)) {
        userPrompts().showError(messages::notWritten(path, fault));
        return false;
    }
    userPrompts().log(messages::done(messages::saveFile(), text::fileNameOfPath(path), path));
    return true;
}

void basketsDialog::saveOne()
{
    const basket *shown = current();
    if (!shown)
        return;
    const firmDetailsStruct &form = m_forms(shown->supplier);
    const QString name = fileNames({basket{*shown}}, m_forms).front();
    const QString csv = tr("CSV File") + QLatin1String(" (*.csv)");
    const QString txt = tr("Text File") + QLatin1String(" (*.txt)");
    const QString path = userPrompts().saveFile(
        tr("Save to File"), m_folder + QLatin1Char('/') + name,
        basketForm::suffix(form) == QLatin1String("txt") ? txt + QLatin1String(";;") + csv
                                                         : csv + QLatin1String(";;") + txt);
    if (path.isEmpty() || !write(*shown, path))
        return;
    m_folder = QFileInfo(path).absolutePath();
    tell(tr("Saved as %1").arg(QDir::toNativeSeparators(path)));
}

// Nothing is written while one of the files may not be replaced.
void basketsDialog::saveAll()
{
    const QString folder = userPrompts().openFolder(tr("A folder for the baskets"), m_folder);
    if (folder.isEmpty())
        return;
    std::vector<basket> written;
    int without = 0;
    for (const basket &one : m_baskets)
        if (one.supplier.isEmpty())
            without = int(one.lines.size());
        else
            written.push_back(one);
    const QStringList names = fileNames(written, m_forms);
    QStringList there;
    for (const QString &name : names)
        if (QFileInfo::exists(folder + QLatin1Char('/') + name))
            there.append(name);
    if (!there.isEmpty()
        && !userPrompts().decide(
            tr("The folder %1 has these files already: %2")
                .arg(QDir::toNativeSeparators(folder), there.join(QLatin1String(", ")))
                .toHtmlEscaped(),
            {tr("Replace %n file(s)", nullptr, there.size())}, true))
        return;
    int count = 0;
    for (size_t i = 0; i < written.size(); ++i) {
        if (!write(written[i], folder + QLatin1Char('/') + names.at(int(i))))
            break;
        ++count;
    }
    m_folder = folder;
    QString told =
        tr("%n file(s) written into %1", nullptr, count).arg(QDir::toNativeSeparators(folder));
    if (without > 0)
        told +=
            QLatin1String(", ") + tr("%n line(s) without a supplier are in none", nullptr, without);
    tell(told);
}

void basketsDialog::tell(const QString &text) { m_told->setText(text); }
