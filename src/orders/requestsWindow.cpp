#include "orders/requestsWindow.h"

#include "data/firmDetails.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "mail/mail.h"
#include "orders/newRequestsDialog.h"
#include "report/myWebView.h"
#include "report/pdfPrinter.h"
#include "tree/shownTexts.h"
#include "util/desktop.h"
#include "util/files.h"
#include "util/labels.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/rowTable.h"
#include "window/workProgress.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QSet>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <memory>

using namespace quotationRequests;

namespace {

const windowAction<requestsWindow> actionTable[] = {
    {{"newRequests", QT_TRANSLATE_NOOP("actions", "File"),
      QT_TRANSLATE_NOOP("actions", "New requests ..."), "action_new", "Ctrl+N",
      QT_TRANSLATE_NOOP("actions", "Ask firms for their prices of the order's materials"), true},
     &requestsWindow::commandNew},
    {{"openDocument", "File", QT_TRANSLATE_NOOP("actions", "Open document"), "action_pdf", "Ctrl+O",
      QT_TRANSLATE_NOOP("actions", "Open the page that the firm got"), true},
     &requestsWindow::commandOpenDocument},
    {{"openTable", "File", QT_TRANSLATE_NOOP("actions", "Open table"), "action_xlsx", "Ctrl+T",
      QT_TRANSLATE_NOOP("actions", "Open the table that the firm got to fill in"), true},
     &requestsWindow::commandOpenTable},
    {{"showFolder", "File", QT_TRANSLATE_NOOP("actions", "Show folder"), "action_open", nullptr,
      QT_TRANSLATE_NOOP("actions", "Show the folder with what was sent and what came back")},
     &requestsWindow::commandShowFolder},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"close", "File", "Close", "action_close", "Ctrl+W", nullptr}, &requestsWindow::commandClose},

    {{"copy", QT_TRANSLATE_NOOP("actions", "Edit"), QT_TRANSLATE_NOOP("actions", "Copy rows"),
      "action_copy", "Ctrl+C", QT_TRANSLATE_NOOP("actions", "Copy the selected rows as text"),
      true},
     &requestsWindow::commandCopy},

    {{"remind", QT_TRANSLATE_NOOP("actions", "Tools"), QT_TRANSLATE_NOOP("actions", "Remind"),
      "action_mail", "Ctrl+M",
      QT_TRANSLATE_NOOP("actions", "Send a reminder to the selected firms that sent no offer yet"),
      true},
     &requestsWindow::commandRemind},
    {{"sendAgain", "Tools", QT_TRANSLATE_NOOP("actions", "Send again"), "action_send", nullptr,
      QT_TRANSLATE_NOOP("actions", "Send the same documents to the selected firm again"), true},
     &requestsWindow::commandSendAgain},
    {{"readAgain", "Tools", QT_TRANSLATE_NOOP("actions", "Read again"), "action_refresh", "F5",
      QT_TRANSLATE_NOOP("actions", "Look for requests and offers that came meanwhile"), true},
     &requestsWindow::commandReadAgain},
};

enum column
{
    numberColumn,
    firmColumn,
    sentColumn,
    deadlineColumn,
    stateColumn,
    remindedColumn,
    addressColumn,
    materialsColumn,
    columns
};
constexpr int widths[columns] = {150, 220, 130, 100, 120, 130, 260, 90};

// The word stands beside the picture.
const QIcon &iconOf(state of)
{
    static const std::array<QIcon, 4> icons{
        QIcon(QStringLiteral(":/icons/icons/led_blue.png")),
        QIcon(QStringLiteral(":/icons/icons/led_red.png")),
        QIcon(QStringLiteral(":/icons/icons/led_green.png")),
        QIcon(QStringLiteral(":/icons/icons/led_gray.png")),
    };
    return icons[size_t(of)];
}

// "yyyy.MM.dd hh:mm" as people read it; any other text as it is.
QString timeOf(const QString &kept)
{
    const QDateTime time = QDateTime::fromString(kept, QStringLiteral("yyyy.MM.dd hh:mm"));
    return time.isValid() ? time.toString(labels::dateFormat() + QLatin1String(" hh:mm")) : kept;
}

QString dayOf(const QString &kept)
{
    const QDate day = orderOffers::readDate(kept);
    return day.isValid() ? day.toString(labels::dateFormat()) : kept;
}

QString asBox(const QStringList &lines)
{
    QStringList escaped;
    for (const QString &line : lines)
        escaped.append(line.toHtmlEscaped());
    return escaped.join(QLatin1String("<br>"));
}

} // namespace

requestsWindow::requestsWindow(programData &known)
    : baseWindow(QStringLiteral("requestsWindow"))
    , m_known(known)
    , m_counts(new QLabel(this))
    , m_table(new QTreeWidget(this))
{
    setWindowTitle(tr("Requests for quotation"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_mail.png")));
    addActions(actionTable);
    buildWidgets();
}

void requestsWindow::buildWidgets()
{
    m_counts->setObjectName(QStringLiteral("counts"));
    m_counts->setTextFormat(Qt::PlainText);
    m_counts->setWordWrap(true);
    m_table->setObjectName(QStringLiteral("requests"));
    m_table->setAccessibleName(tr("Requests for quotation"));
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setAllColumnsShowFocus(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setHeaderLabels({tr("Request"), tr("Firm"), tr("Sent"), tr("Deadline"), tr("State"),
                              tr("Reminded"), tr("Addresses"), tr("Materials")});
    for (int i = 0; i < columns; ++i)
        resizeColumn(m_table->header(), i, widths[i]);
    connect(m_table, &QTreeWidget::itemSelectionChanged, this, &requestsWindow::updateActions);
    connect(m_table, &QTreeWidget::itemActivated, this, [this] { commandOpenDocument(false); });
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_counts);
    layout->addWidget(m_table, 1);
    setCentralWidget(page);
    constexpr QSize usualSize(1240, 480);
    resize(usualSize);
    updateActions();
}

// --- Reading
// --------------------------------------------------------------------------------------

void requestsWindow::showFor(const QString &orderPath)
{
    if (orderPath != m_orderPath) {
        m_orderPath = orderPath;
        m_offers = offersFile(orderOffers::fileOf(orderPath));
        m_shownReadings = -1;
        setWindowTitle(
            tr("Requests for quotation for %1").arg(QDir::toNativeSeparators(orderPath)));
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    statusBar()->clearMessage();
    readAgain();
    m_table->setFocus();
}

// Only when the file changed, or another day began; the selection stays.
void requestsWindow::readAgain()
{
    const kiv_mat_offersStruct &offers = m_offers.now();
    const QDate today = QDate::currentDate();
    if (m_shownReadings == m_offers.readings() && m_shownDay == today)
        return;
    m_shownReadings = m_offers.readings();
    m_shownDay = today;
    QSet<QString> chosen;
    for (const QTreeWidgetItem *row : m_table->selectedItems())
        chosen.insert(row->text(numberColumn));
    // What follows a selection may read the file again, and takes the offers away.
    const QSignalBlocker quiet(m_table);
    m_table->clear();
    for (const auto &one : offers.requests)
        addRow(*one, offers);
    for (int i = 0; i < m_table->topLevelItemCount(); ++i)
        if (QTreeWidgetItem *row = m_table->topLevelItem(i);
            chosen.contains(row->text(numberColumn))) {
            if (m_table->selectedItems().isEmpty())
                m_table->setCurrentItem(row);
            row->setSelected(true);
        }
    if (!m_table->currentItem())
        m_table->setCurrentItem(m_table->topLevelItem(0));
    const int late = int(overdue(offers, today).size());
    const int open = int(unanswered(offers).size());
    if (!m_offers.fault().isEmpty())
        m_counts->setText(QDir::toNativeSeparators(m_offers.path()) + QLatin1String(": ")
                          + m_offers.fault());
    else if (offers.requests.empty())
        m_counts->setText(tr("No firm was asked yet: New requests (Ctrl+N)"));
    else
        m_counts->setText(QStringList{tr("%n request(s)", nullptr, int(offers.requests.size())),
                                      tr("%n without an offer", nullptr, open),
                                      tr("%n overdue", nullptr, late)}
                              .join(QLatin1String(", ")));
    updateActions();
}

void requestsWindow::addRow(const requestStruct &of, const kiv_mat_offersStruct &offers)
{
    const state standing = stateOf(of, offers, m_shownDay);
    auto *row = new QTreeWidgetItem(
        m_table, {of.number, of.firm, of.sent.isEmpty() ? tr("not sent") : timeOf(of.sent),
                  dayOf(of.deadline), stateText(standing), timeOf(of.reminded), of.to,
                  QString::number(of.items.size())});
    row->setIcon(stateColumn, iconOf(standing));
    row->setTextAlignment(materialsColumn, Qt::AlignRight | Qt::AlignVCenter);
    for (int i = 0; i < columns; ++i)
        row->setToolTip(i, text::toolTip(row->text(i)));
    QStringList materials;
    constexpr size_t shown = 25;
    for (size_t i = 0; i < of.items.size() && i < shown; ++i)
        materials.append(of.items[i]->key + QLatin1String(": ") + of.items[i]->quantity
                         + QLatin1Char(' ') + labels::shown(of.items[i]->unit));
    if (of.items.size() > shown)
        materials.append(QString(QChar(0x2026)));
    row->setToolTip(materialsColumn, text::toolTip(materials.join(QLatin1Char('\n'))));
}

// --- Actions
// --------------------------------------------------------------------------------------

// The rows are in the order of the file as it was shown.
std::vector<const requestStruct *> requestsWindow::selected(
    const kiv_mat_offersStruct &offers) const
{
    std::vector<const requestStruct *> all;
    QSet<QString> numbers;
    for (const QTreeWidgetItem *row : m_table->selectedItems())
        numbers.insert(row->text(numberColumn));
    for (const auto &one : offers.requests)
        if (numbers.contains(one->number))
            all.push_back(one.get());
    return all;
}

const requestStruct *requestsWindow::current()
{
    const auto all = selected(m_offers.now());
    return all.size() == 1 ? all.front() : nullptr;
}

void requestsWindow::updateActions()
{
    const kiv_mat_offersStruct &offers = m_offers.now();
    const auto all = selected(offers);
    const QString none = tr("no request is selected");
    const QString notOne = all.empty() ? none : tr("several requests are selected");
    setAvailable("newRequests", !m_orderPath.isEmpty(), tr("there is no order"));
    setAvailable("remind",
                 std::any_of(all.begin(), all.end(),
                             [&](const requestStruct *one) {
                                 return stateOf(*one, offers, m_shownDay) != state::answered;
                             }),
                 all.empty() ? none : tr("an offer has come from each selected firm"));
    for (const char *name : {"sendAgain", "openDocument", "openTable"})
        setAvailable(name, all.size() == 1, notOne);
    setAvailable("showFolder", QFileInfo(orderOffers::folderOf(m_orderPath)).isDir(),
                 tr("no firm was asked yet"));
    setAvailable("copy", !all.empty(), none);
}

void requestsWindow::tell(const QString &text) { statusBar()->showMessage(text); }

bool requestsWindow::readDetails(kiv_mat_firmDetailsStruct *details)
{
    const QString path =
        firmDetails::pathBeside(paths::data(m_known.config().options.value(optionKey::fileFirm)));
    QString fault;
    if (firmDetails::read(path, details, &fault))
        return true;
    userPrompts().showError(asBox(
        {tr("The details of the firms in %1 cannot be read").arg(QDir::toNativeSeparators(path)),
         fault}));
    return false;
}

means requestsWindow::meansWith(const kiv_mat_firmDetailsStruct &details,
                                const progressFunction &progress)
{
    means with;
    // While pages are printed the bar stays at the firm that they are for.
    const auto place = std::make_shared<std::pair<long long, long long>>();
    with.print = [progress, place](const QString &html, const QString &path, const QString &title,
                                   QString *fault) {
        myWebView printed;
        printed.showReport(html);
        if (printPdf(&printed, path, title,
                     [&](long long, long long) { return progress(place->first, place->second); }))
            return true;
        *fault = files::whyNotWritten(path);
        return false;
    };
    with.start = [this](const QString &description) {
        return mail::start(description, m_known.config());
    };
    with.progress = [progress, place](long long done, long long total) {
        *place = {done, total};
        return progress(done, total);
    };
    with.details = &details;
    return with;
}

void requestsWindow::askFirms(const kiv_mat_zpStruct &order,
                              const std::optional<std::vector<int>> &lines)
{
    kiv_mat_firmDetailsStruct details;
    if (!readDetails(&details))
        return;
    const orderOffers::needs needs = asked(order, lines);
    newRequestsDialog dialog(
        candidatesOf(m_known.firm(), details, needs, m_known.materials(), m_offers.now()), needs,
        this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const batch wanted{&order,          m_orderPath,       lines,
                       dialog.chosen(), dialog.deadline(), &m_known.materials()};
    result done;
    {
        workProgress::scope work(progress(), tr("Writing requests"));
        done = send(wanted, meansWith(details, work.function()), m_known.config());
    }
    showResult(done);
}

void requestsWindow::sendKept(occasion why, const QStringList &numbers)
{
    kiv_mat_firmDetailsStruct details;
    if (!readDetails(&details))
        return;
    result done;
    {
        workProgress::scope work(progress(), tr("Writing messages"));
        done = quotationRequests::sendKept(why, m_orderPath, numbers,
                                           meansWith(details, work.function()), m_known.config());
    }
    showResult(done);
}

void requestsWindow::showResult(const result &of)
{
    readAgain();
    QStringList parts;
    if (of.fault.isEmpty())
        parts.append(tr("%n message(s) handed to the mail program", nullptr, of.started()));
    if (const int waiting = of.written() - of.started(); waiting > 0)
        parts.append(tr("%n only written", nullptr, waiting));
    if (of.isCancelled)
        parts.append(tr("the rest was cancelled"));
    tell(parts.join(QLatin1String("; ")));
    for (const outcome &one : of.firms)
        if (one.isWritten)
            userPrompts().log(one.number.toHtmlEscaped() + QLatin1Char(' ')
                              + one.firm.toHtmlEscaped() + QLatin1String("<br>"));
    const QStringList faults = of.fault.isEmpty() ? of.faults() : QStringList{of.fault};
    if (!faults.isEmpty())
        userPrompts().showError(asBox(faults));
}

void requestsWindow::commandNew(bool) { emit newWanted(); }

void requestsWindow::commandRemind(bool)
{
    const kiv_mat_offersStruct &offers = m_offers.now();
    QStringList numbers;
    for (const requestStruct *one : selected(offers))
        if (stateOf(*one, offers, m_shownDay) != state::answered)
            numbers.append(one->number);
    sendKept(occasion::reminder, numbers);
}

void requestsWindow::commandSendAgain(bool)
{
    if (const requestStruct *one = current())
        sendKept(occasion::again, {one->number});
}

void requestsWindow::openKept(const QString &name)
{
    const QString path = keptFile(m_orderPath, name);
    if (path.isEmpty())
        userPrompts().showError(tr("%1 is missing")
                                    .arg(QDir::toNativeSeparators(orderOffers::folderOf(m_orderPath)
                                                                  + QLatin1Char('/') + name))
                                    .toHtmlEscaped());
    else
        desktop::openFile(path);
}

void requestsWindow::commandOpenDocument(bool)
{
    if (const requestStruct *one = current())
        openKept(one->document);
}

void requestsWindow::commandOpenTable(bool)
{
    if (const requestStruct *one = current())
        openKept(one->table);
}

void requestsWindow::commandShowFolder(bool)
{
    const QString folder = orderOffers::folderOf(m_orderPath);
    if (!desktop::openFolder(folder))
        userPrompts().showError(
            asBox({tr("The folder cannot be shown: %1").arg(QDir::toNativeSeparators(folder))}));
}

void requestsWindow::commandCopy(bool)
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    copyRows(rows);
    tell(tr("%n row(s) copied", nullptr, rows.size()));
}

void requestsWindow::commandReadAgain(bool)
{
    m_shownReadings = -1;
    readAgain();
    tell(tr("The requests are as the order's file of offers is"));
}

void requestsWindow::changeEvent(QEvent *event)
{
    baseWindow::changeEvent(event);
    // An offer may have been imported meanwhile.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isVisible())
        readAgain();
}
