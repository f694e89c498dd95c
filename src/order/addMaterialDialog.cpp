#include "order/addMaterialDialog.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/programData.h"
#include "order/orderTree.h"
#include "tree/countBox.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"
#include "window/searchLine.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <set>

namespace {

constexpr int shownMaterials = 200;

struct foundColumn
{
    QString (*label)();
    int width;
    QString materialStruct::*text; // null: the status
    bool isNumber;
};

const foundColumn columns[] = {
    {labels::name, 190, &materialStruct::d_name, false},
    {labels::ktm, 180, &materialStruct::d_ktm, false},
    {labels::value, 90, &materialStruct::d_value, false},
    {labels::case_, 90, &materialStruct::d_case, false},
    {labels::description, 240, &materialStruct::d_description, false},
    {labels::inWarehouse, 140, &materialStruct::d_inWarehouse, true},
    {labels::price, 80, &materialStruct::d_price, true},
    {labels::status, 110, nullptr, false},
};

QString statusIcon(const configStruct &config, const QString &status)
{
    for (const comboBoxStruct &known : config.statuses)
        if (known.value == status)
            return known.icon;
    return {};
}

QList<QStandardItem *> rowOf(const configStruct &config, const materialStruct &material)
{
    QList<QStandardItem *> row;
    for (const foundColumn &column : columns) {
        const QString stored =
            column.text ? material.*column.text : labels::shown(material.information.status);
        auto *item = new QStandardItem(
            column.text == &materialStruct::d_price ? numbers::price(stored) : stored);
        item->setEditable(false);
        item->setToolTip(text::toolTip(item->text()));
        if (column.isNumber)
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        if (!column.text)
            item->setIcon(QIcon(statusIcon(config, material.information.status)));
        row.append(item);
    }
    row.first()->setData(material.d_ktm);
    return row;
}

} // namespace

addMaterialDialog::addMaterialDialog(programData &known, QWidget *parent, purpose what)
    : QDialog(parent)
    , m_known(known)
    , m_purpose(what)
    , m_view(new QTreeView(this))
    , m_words(new searchLine(m_view, this))
    , m_found(new QStandardItemModel(this))
    , m_quantity(new countBox(this, 1, orderTree::quantityMaximum, 1))
    , m_add(new QPushButton(what == picksOne ? tr("Pick") : tr("Add to the order"), this))
    , m_count(new QLabel(this))
{
    setWindowTitle(what == picksOne ? tr("Pick material") : tr("Add material"));
    m_words->completeFrom(known.search());
    m_view->setObjectName(QStringLiteral("found"));
    m_view->setAccessibleName(tr("Materials found"));
    m_view->setModel(m_found);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setSelectionMode(what == picksOne ? QAbstractItemView::SingleSelection
                                              : QAbstractItemView::ExtendedSelection);
    m_quantity->setObjectName(QStringLiteral("quantity"));
    m_quantity->setAccessibleName(labels::quantity());
    m_add->setDefault(true);
    m_count->setTextFormat(Qt::PlainText);
    auto *close = new QPushButton(what == picksOne ? tr("Cancel") : tr("Close"), this);
    close->setAutoDefault(false);

    QStringList captions;
    for (const foundColumn &column : columns)
        captions.append(column.label());
    m_found->setHorizontalHeaderLabels(captions);
    for (int i = 0; i < captions.size(); ++i)
        m_view->header()->resizeSection(i, columns[i].width);

    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_count, 1);
    auto *quantityCaption = new QLabel(labels::quantity(), this);
    quantityCaption->setVisible(what == addsToOrder);
    m_quantity->setVisible(what == addsToOrder);
    bottom->addWidget(quantityCaption);
    bottom->addWidget(m_quantity);
    bottom->addWidget(m_add);
    bottom->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_words);
    layout->addWidget(m_view);
    layout->addLayout(bottom);
    setTabOrder(m_words, m_view);
    setTabOrder(m_view, m_quantity);
    constexpr QSize usualSize(1100, 560);
    resize(usualSize);

    connect(m_words, &QLineEdit::textChanged, this, &addMaterialDialog::search);
    connect(m_view, &QTreeView::doubleClicked, this, &addMaterialDialog::add);
    connect(m_add, &QPushButton::clicked, this, &addMaterialDialog::add);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

QString addMaterialDialog::pick(programData &known, QWidget *parent, const QString &words)
{
    known.search().prepare();
    addMaterialDialog dialog(known, parent, picksOne);
    QString tried = words.simplified();
    while (!tried.isEmpty() && known.search().find(searchQuery::parse(tried), 1).total == 0)
        tried = tried.section(QLatin1Char(' '), 0, -2);
    dialog.m_words->setText(tried.isEmpty() ? words.simplified() : tried);
    dialog.exec();
    return dialog.m_picked;
}

void addMaterialDialog::showNow()
{
    // Else the first key would wait for it.
    m_known.search().prepare();
    show();
    raise();
    activateWindow();
}

void addMaterialDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_words->begin();
    search();
}

void addMaterialDialog::search()
{
    const searchQuery query = searchQuery::parse(m_words->text());
    const materialSearch::result result = m_known.search().find(query, shownMaterials);
    m_found->removeRows(0, m_found->rowCount());
    for (const materialSearch::entry &entry : result.entries)
        m_found->appendRow(rowOf(m_known.config(), *entry.material));
    if (m_found->rowCount() > 0)
        // What is selected does not depend on the keys held, such as those that paste the words.
        m_view->selectionModel()->setCurrentIndex(
            m_found->index(0, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_add->setEnabled(m_found->rowCount() > 0);
    QString told = tr("%n material(s)", nullptr, result.total);
    if (result.total > shownMaterials)
        told += QLatin1String(", ") + tr("the first %1 are shown").arg(shownMaterials);
    m_count->setText(told);
}

void addMaterialDialog::add()
{
    std::set<int> rows;
    for (const QModelIndex &index : m_view->selectionModel()->selectedIndexes())
        rows.insert(index.row());
    QStringList ktms;
    for (int row : rows)
        ktms.append(m_found->item(row)->data().toString());
    const std::optional<int> quantity = m_quantity->count();
    if (ktms.isEmpty() || !quantity)
        return;
    if (m_purpose == picksOne) {
        m_picked = ktms.first();
        accept();
        return;
    }
    emit wanted(ktms, uint(*quantity));
    m_words->begin();
}

void addMaterialDialog::showAnswer(const QString &text) { m_count->setText(text); }
