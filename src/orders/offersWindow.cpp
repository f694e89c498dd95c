#include "orders/offersWindow.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/lineSums.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "orders/importOfferDialog.h"
#include "orders/offerStoring.h"
#include "orders/orderRegister.h"
#include "orders/orderSplitting.h"
#include "orders/reportSaving.h"
#include "tree/shownTexts.h"
#include "util/desktop.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/numbers.h"
#include "util/prompts.h"
#include "util/userName.h"
#include "window/rowTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using namespace offerComparison;

namespace {

const windowAction<offersWindow> actionTable[] = {
    {{"import", QT_TRANSLATE_NOOP("actions", "File"),
      QT_TRANSLATE_NOOP("actions", "Import an offer ..."), "action_open", "Ctrl+O",
      QT_TRANSLATE_NOOP("actions", "Read a request that was filled in, or a price list"), true},
     &offersWindow::commandImport},
    {{"saveReport", "File", QT_TRANSLATE_NOOP("actions", "Save the comparison ..."),
      "action_report", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Save the comparison with the choice as a page, for printing, "
                                   "or as a workbook"),
      true},
     &offersWindow::commandSaveReport},
    {{"openFile", "File", QT_TRANSLATE_NOOP("actions", "Open what came"), "action_link", nullptr,
      QT_TRANSLATE_NOOP("actions", "Open the file of the current firm's offer")},
     &offersWindow::commandOpenFile},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"close", "File", "Close", "action_close", "Ctrl+W", nullptr}, &offersWindow::commandClose},

    {{"choose", QT_TRANSLATE_NOOP("actions", "Edit"),
      QT_TRANSLATE_NOOP("actions", "Buy from this firm"), "action_mark", nullptr,
      QT_TRANSLATE_NOOP("actions",
                        "Buy the selected materials from the firm of the column, or from "
                        "nobody when they are (Space)"),
      true},
     &offersWindow::commandChoose},
    {{"copy", "Edit", QT_TRANSLATE_NOOP("actions", "Copy rows"), "action_copy", "Ctrl+C",
      QT_TRANSLATE_NOOP("actions", "Copy the selected rows as text")},
     &offersWindow::commandCopy},

    {{"takeOver", QT_TRANSLATE_NOOP("actions", "Do"),
      QT_TRANSLATE_NOOP("actions", "Take the choice into the order ..."), "action_set",
      "Ctrl+Return",
      QT_TRANSLATE_NOOP("actions", "Give the order's lines the chosen prices, and note the firms "
                                   "with the reason"),
      true},
     &offersWindow::commandTakeOver},
    {{"split", "Do", QT_TRANSLATE_NOOP("actions", "Part the order by firm"), "action_duplicate",
      nullptr, QT_TRANSLATE_NOOP("actions", "Write an order for each chosen firm beside this one"),
      true},
     &offersWindow::commandSplit},

    {{"readAgain", QT_TRANSLATE_NOOP("actions", "Tools"),
      QT_TRANSLATE_NOOP("actions", "Read again"), "action_refresh", "F5",
      QT_TRANSLATE_NOOP("actions", "Look at the order and its offers again"), true},
     &offersWindow::commandReadAgain},
};

QString money(const decimal &amount) { return numbers::grouped(amount.money()); }

} // namespace

offersWindow::offersWindow(programData &known, orderRegister &orders)
    : baseWindow(QStringLiteral("offersWindow"))
    , m_known(known)
    , m_orders(orders)
    , m_mode(new QComboBox(this))
    , m_within(new QDoubleSpinBox(this))
    , m_until(new QDateEdit(QDate::currentDate(), this))
    , m_raise(new QCheckBox(tr("Raise &quantities to what is sold"), this))
    , m_fault(new QLabel(this))
    , m_sum(new QLabel(this))
{
    setWindowTitle(tr("Offers"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_equal.png")));
    addActions(actionTable);
    buildWidgets();
}

void offersWindow::buildWidgets()
{
    m_firmTable = newTable("firms", tr("Firms and their offers"), &m_firms);
    m_materials = newTable("materials", tr("Materials and their prices"), &m_rows);
    m_materials->setAllColumnsShowFocus(false);
    m_materials->setSelectionBehavior(QAbstractItemView::SelectItems);
    for (int column = 0; column < offerFirmRows::columns; ++column)
        resizeColumn(m_firmTable->header(), column, offerFirmRows::widthOf(column));
    connect(m_materials, &QTreeView::doubleClicked, this, [this] { commandChoose(false); });
    m_fault->setObjectName(QStringLiteral("fault"));
    m_fault->setWordWrap(true);
    m_fault->hide();
    m_sum->setObjectName(QStringLiteral("sum"));
    m_sum->setWordWrap(true);
    for (QLabel *label : {m_fault, m_sum})
        label->setTextFormat(Qt::PlainText);
    auto *parts = new QSplitter(Qt::Vertical, this);
    parts->setObjectName(QStringLiteral("parts"));
    parts->addWidget(m_firmTable);
    parts->addWidget(m_materials);
    parts->setChildrenCollapsible(false);
    parts->setSizes({170, 480});
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_fault);
    layout->addWidget(newChoices());
    layout->addWidget(parts, 1);
    layout->addWidget(m_sum);
    setCentralWidget(page);
    constexpr QSize usualSize(1260, 780);
    resize(usualSize);
    updateActions();
}

QWidget *offersWindow::newChoices()
{
    auto *choices = new QWidget(this);
    auto *layout = new QHBoxLayout(choices);
    layout->setContentsMargins(0, 0, 0, 0);
    m_mode->addItem(tr("the cheapest for each material"), int(mode::cheapest));
    m_mode->addItem(tr("one firm for all"), int(mode::oneFirm));
    m_mode->addItem(tr("the fewest firms"), int(mode::fewestFirms));
    m_mode->addItem(tr("only what comes in time"), int(mode::byDate));
    m_within->setRange(0, 100);
    m_within->setDecimals(1);
    m_within->setValue(5);
    m_within->setSuffix(QStringLiteral(" %"));
    m_until->setCalendarPopup(true);
    m_until->setDisplayFormat(labels::dateFormat());
    addCaptioned(layout, m_mode, "mode", tr("&Propose"));
    addCaptioned(layout, m_within, "within", tr("&Above the cheapest by"));
    addCaptioned(layout, m_until, "until", tr("&Until"));
    m_raise->setObjectName(QStringLiteral("raise"));
    m_raise->setChecked(true);
    layout->addStretch();
    layout->addWidget(m_raise);
    connect(m_mode, qOverload<int>(&QComboBox::currentIndexChanged), this, &offersWindow::propose);
    connect(m_within, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &offersWindow::propose);
    connect(m_until, &QDateEdit::dateChanged, this, &offersWindow::propose);
    return choices;
}

QTreeView *offersWindow::newTable(const char *name, const QString &accessibleName,
                                  QAbstractItemModel *model)
{
    QTreeView *table = newRowTable(name, accessibleName, model, this);
    table->installEventFilter(this);
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &offersWindow::updateActions);
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &offersWindow::updateActions);
    return table;
}

// --- Reading and proposing
// ------------------------------------------------------------------------

void offersWindow::showNow()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    statusBar()->clearMessage();
    readAgain();
    m_materials->setFocus();
}

void offersWindow::orderChanged()
{
    if (isVisible())
        readAgain();
}

// What was chosen before stays chosen; where nothing was, it is what is proposed.
void offersWindow::readAgain()
{
    QString path;
    const kiv_mat_zpStruct *order = openOrder ? openOrder(&path) : nullptr;
    const QString before = std::exchange(m_path, path);
    m_firms.show({});
    m_offers.requests.clear();
    m_offers.offers.clear();
    m_offers.choices.clear();
    QString fault;
    const QString file = orderOffers::fileOf(path);
    m_state = fileState::of(file);
    m_isChosenByHand = false;
    if (!path.isEmpty() && QFileInfo::exists(file) && !readChecked(file, &m_offers, &fault))
        fault = QDir::toNativeSeparators(file) + QLatin1String(": ") + fault;
    if (path.isEmpty())
        fault = tr("The order was not saved yet; offers are kept beside its file");
    m_fault->setVisible(!fault.isEmpty());
    m_fault->setText(fault);
    setWindowTitle(path.isEmpty() ? tr("Offers")
                                  : tr("Offers for %1").arg(QDir::toNativeSeparators(path)));
    const auto vat = readVat(m_known.config().options.value(optionKey::vatRate));
    comparison compared;
    if (order)
        compared = vat ? comparisonOf(*order, m_offers, *vat) : comparisonOf(*order, m_offers);
    const QModelIndex current = m_materials->currentIndex();
    selection chosen = m_offers.choices.empty() ? offerComparison::propose(compared, asked())
                                                : chosenBefore(compared, m_offers);
    m_firms.show(compared.firms);
    m_rows.show(std::move(compared), std::move(chosen));
    for (int column = 0; column < m_rows.columnCount(); ++column)
        resizeColumn(m_materials->header(), column, offerRows::widthOf(column));
    const bool isSame = before == path && current.isValid();
    m_materials->setCurrentIndex(
        m_rows.index(isSame ? current.row() : 0, isSame ? current.column() : offerRows::firms));
    chosenChanged();
}

question offersWindow::asked() const
{
    return {mode(m_mode->currentData().toInt()),
            decimal::read(QString::number(m_within->value(), 'f', 1)).value_or(decimal()),
            m_until->date()};
}

void offersWindow::propose()
{
    m_rows.choose(offerComparison::propose(m_rows.compared(), asked()));
    m_isChosenByHand = true;
    chosenChanged();
}

void offersWindow::chosenChanged()
{
    const selection &chosen = m_rows.chosen();
    const comparison &of = m_rows.compared();
    QStringList names;
    for (const int firm : chosen.firms)
        names.append(of.firms[size_t(firm)].name);
    QStringList parts{tr("Chosen: %1 PLN net, %2 PLN VAT, %3 PLN with VAT")
                          .arg(money(chosen.net), money(chosen.tax), money(chosen.gross()))};
    if (!names.isEmpty())
        parts.append(names.join(QLatin1String(", ")));
    if (!chosen.missing.empty())
        parts.append(tr("%n material(s) from nobody", nullptr, int(chosen.missing.size())));
    if (!of.uncounted.empty())
        parts.append(tr("%n line(s) without a quantity", nullptr, int(of.uncounted.size())));
    m_sum->setText(of.firms.empty() ? tr("No offer came yet: Import an offer (Ctrl+O)")
                                    : parts.join(QLatin1String("; ")));
    updateActions();
}

// --- Actions
// --------------------------------------------------------------------------------------

void offersWindow::updateActions()
{
    if (!m_materials)
        return;
    const auto by = mode(m_mode->currentData().toInt());
    m_within->setEnabled(by == mode::fewestFirms);
    m_until->setEnabled(by == mode::byDate);
    const bool hasOrder = !m_path.isEmpty();
    const bool hasOffers = !m_rows.compared().firms.empty();
    const QString noFile = tr("the order was not saved yet");
    const QString noOffers = tr("no offer came yet");
    setAvailable("import", hasOrder, noFile);
    setAvailable("saveReport", hasOffers, noOffers);
    setAvailable("takeOver", hasOffers && !m_rows.chosen().firms.empty(),
                 hasOffers ? tr("nothing is chosen") : noOffers);
    setAvailable("split", !m_offers.choices.empty(), tr("no choice was taken into the order yet"));
    const int firm = m_rows.firmOf(m_materials->currentIndex().column());
    setAvailable("choose", firm >= 0, tr("no firm's column is current"));
    setAvailable("openFile", m_firmTable->currentIndex().isValid(), tr("no firm is selected"));
    setAvailable("copy", m_rows.rowCount() > 0, tr("there are no rows"));
}

void offersWindow::tell(const QString &text) { statusBar()->showMessage(text); }

void offersWindow::commandImport(bool)
{
    const QString path =
        userPrompts().openFile(tr("Open File"), orderOffers::folderOf(m_path),
                               tr("Offers") + QLatin1String(" (*.xlsx *.csv *.txt *.ods *.xls)"));
    if (!path.isEmpty())
        importFile(path);
}

void offersWindow::importFile(const QString &path)
{
    QString orderPath;
    const kiv_mat_zpStruct *order = openOrder(&orderPath);
    QString fault;
    auto sheet = offerImport::readSheet(path, {}, &fault);
    if (!sheet) {
        userPrompts().showError(QDir::toNativeSeparators(path).toHtmlEscaped()
                                + QLatin1String("<br>") + fault.toHtmlEscaped());
        return;
    }
    const offerImport::order asked{order->options.value(optionKey::orderNumber),
                                   orderOffers::needsOf(*order), m_offers, &m_known.materials()};
    importOfferDialog dialog(std::move(*sheet), asked, m_known.firm(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const offerStruct &offer = dialog.offer();
    const offerStruct *earlier =
        orderOffers::offerOn(m_offers, offer.firm, offer.nip, offer.request);
    const QString told =
        earlier && !earlier->request.isEmpty()
            ? tr("%1 has answered the request %2 before.").arg(offer.firm, earlier->request)
            : tr("%1 has sent an offer before.").arg(offer.firm);
    const bool isSecond = earlier != nullptr;
    if (isSecond && userPrompts().decide(told.toHtmlEscaped(), {tr("Replace it")}, true) != 0)
        return;
    if (!offerImport::store(offer, path, orderPath, asked.number, isSecond, m_known.config(),
                            &fault)) {
        userPrompts().showError(messages::notWritten(orderOffers::fileOf(orderPath), fault));
        return;
    }
    readAgain();
    tell(tr("Offer of %1 taken in: %n material(s)", nullptr, int(offer.items.size()))
             .arg(offer.firm));
}

// Of all selected cells, each by its own column.
void offersWindow::commandChoose(bool)
{
    std::vector<int> firmOf = m_rows.chosen().firmOf;
    QModelIndexList cells = m_materials->selectionModel()->selectedIndexes();
    if (cells.isEmpty() && m_materials->currentIndex().isValid())
        cells.append(m_materials->currentIndex());
    int refused = 0;
    for (const QModelIndex &cell : qAsConst(cells)) {
        const int firm = m_rows.firmOf(cell.column());
        if (firm < 0)
            continue;
        if (!m_rows.compared().isOffered(cell.row(), firm)) {
            ++refused;
            continue;
        }
        int &chosen = firmOf[size_t(cell.row())];
        chosen = chosen == firm ? -1 : firm;
    }
    m_rows.choose(selectionOf(m_rows.compared(), std::move(firmOf)));
    m_isChosenByHand = true;
    chosenChanged();
    if (refused > 0)
        tell(tr("%n material(s) are not offered there", nullptr, refused));
}

// Whether the offers are others now, or the order needs something else, than what is shown was
// compared for.
bool offersWindow::isOutdated() const
{
    QString path;
    const kiv_mat_zpStruct *order = openOrder(&path);
    if (!order)
        return true;
    const orderOffers::needs now = orderOffers::needsOf(*order);
    const std::vector<material> &shown = m_rows.compared().materials;
    return path != m_path || fileState::of(orderOffers::fileOf(m_path)) != m_state
           || !std::equal(now.all.begin(), now.all.end(), shown.begin(), shown.end(),
                          [](const orderOffers::need &one, const material &other) {
                              return one.key == other.need.key
                                     && one.quantity == other.need.quantity;
                          });
}

// False, with what is there now shown and told of, when it is no more what the user looked at.
bool offersWindow::isUpToDate()
{
    if (!isOutdated())
        return true;
    readAgain();
    tell(tr("The order or its offers were changed meanwhile; this is what is there now"));
    return false;
}

void offersWindow::commandTakeOver(bool)
{
    if (!isUpToDate())
        return;
    const auto reason = userPrompts().inputText(
        tr("Take the choice into the order"), tr("Reason of the choice"),
        m_offers.choices.empty() ? m_mode->currentText() : m_offers.choices.front()->reason);
    if (!reason || !isUpToDate()
        || !takeOver(m_rows.compared(), m_rows.chosen(), m_raise->isChecked()))
        return;
    QString fault;
    const auto choices =
        choicesOf(m_rows.compared(), m_rows.chosen(), *reason, QDate::currentDate(), userName());
    if (!storeChoices(m_path, m_rows.compared().number, choices, m_known.config(), &fault)) {
        userPrompts().showError(messages::notWritten(orderOffers::fileOf(m_path), fault));
        return;
    }
    readAgain();
    tell(tr("The order has the chosen prices; save it to keep them"));
}

void offersWindow::commandSplit(bool)
{
    if (!isUpToDate())
        return;
    QString path;
    const kiv_mat_zpStruct *order = openOrder(&path);
    if (!isOrderSaved()) {
        userPrompts().showInformation(tr("Save the order first.").toHtmlEscaped());
        return;
    }
    const orderSplitting::plan plan = orderSplitting::planOf(*order, m_offers);
    if (!plan.fault.isEmpty()) {
        userPrompts().showInformation(plan.fault.toHtmlEscaped());
        return;
    }
    QStringList parts;
    for (const orderSplitting::part &one : plan.parts)
        parts.append(tr("%1: %2, %n line(s)", nullptr, int(one.lines.size()))
                         .arg(one.number, one.firm.isEmpty() ? tr("no firm") : one.firm)
                         .toHtmlEscaped());
    if (userPrompts().decide(
            tr("Write these orders beside this one, which then counts no more?").toHtmlEscaped()
                + QLatin1String("<br>") + parts.join(QLatin1String("<br>")),
            {tr("Write them")}, true)
            != 0
        || !isUpToDate())
        return;
    QString fault;
    const QStringList files =
        orderSplitting::split(*order, path, m_offers, m_orders, m_known.config(), &fault);
    if (files.isEmpty()) {
        userPrompts().showError(tr("The order was not parted").toHtmlEscaped()
                                + QLatin1String("<br>") + fault.toHtmlEscaped());
        return;
    }
    QStringList written;
    for (const QString &file : files)
        written.append(QDir::toNativeSeparators(file).toHtmlEscaped());
    emit orderParted(files);
    tell(tr("%n order(s) written", nullptr, files.size()));
    userPrompts().showInformation(tr("Written:").toHtmlEscaped() + QLatin1String("<br>")
                                  + written.join(QLatin1String("<br>")));
}

void offersWindow::commandSaveReport(bool)
{
    if (!isUpToDate())
        return;
    QString path;
    const kiv_mat_zpStruct *order = openOrder(&path);
    const offerReport::content content =
        offerReport::contentOf(m_rows.compared(), m_rows.chosen(), *order, m_offers);
    const QString told =
        saveReport({offerReport::proposedPath(path), offerReport::title(content),
                    [&content] { return offerReport::page(content); },
                    [&content](const QString &to, QString *fault, const progressFunction &asked) {
                        return offerReport::write(content, to, fault, asked);
                    }},
                   m_known.config(), progress());
    if (!told.isEmpty())
        tell(told);
}

void offersWindow::commandOpenFile(bool)
{
    const QModelIndex row = m_firmTable->currentIndex();
    if (!row.isValid())
        return;
    // A file of offers names no file elsewhere.
    const QString file = QFileInfo(m_firms.at(row.row()).file).fileName();
    const QString path = orderOffers::folderOf(m_path) + QLatin1Char('/') + file;
    if (file.isEmpty() || !desktop::openFile(path))
        userPrompts().showError(tr("The file cannot be opened: %1")
                                    .arg(QDir::toNativeSeparators(path))
                                    .toHtmlEscaped());
}

void offersWindow::commandCopy(bool)
{
    const QTreeView *from = focusWidget() == m_firmTable ? m_firmTable : m_materials;
    QModelIndexList rows;
    for (const QModelIndex &cell : from->selectionModel()->selectedIndexes())
        if (const QModelIndex first = cell.siblingAtColumn(0); !rows.contains(first))
            rows.append(first);
    copyRows(rows);
    tell(tr("%n row(s) copied", nullptr, rows.size()));
}

void offersWindow::commandReadAgain(bool)
{
    readAgain();
    tell(tr("The offers are as their file is"));
}

void offersWindow::changeEvent(QEvent *event)
{
    baseWindow::changeEvent(event);
    // The order may have been changed meanwhile; what was chosen by hand and not taken over stays.
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !isVisible()
        || !openOrder)
        return;
    // Later, so that what a prompt was asked about is not another thing when it is closed.
    QTimer::singleShot(0, this, [this] {
        QString path;
        openOrder(&path);
        if (path != m_path || (!m_isChosenByHand && isOutdated()))
            readAgain();
    });
}

bool offersWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_materials && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Space
            || (key->key() == Qt::Key_Return && key->modifiers() == Qt::NoModifier)) {
            if (action("choose")->isEnabled())
                commandChoose(false);
            return true;
        }
    }
    return baseWindow::eventFilter(watched, event);
}
