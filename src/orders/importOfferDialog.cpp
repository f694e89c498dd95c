#include "orders/importOfferDialog.h"

#include "data/kiv_mat_firmStruct.h"
#include "data/vocabulary.h"
#include "util/labels.h"
#include "util/text.h"
#include "window/rowTable.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace offerImport;

namespace {

constexpr int typingMs = 200;

enum taxChoice
{
    asFile,
    net,
    gross
};

struct firm
{
    QString name;
    QString nip;
};

// Those that were asked first, then those of the register by name; several of one name have
// different tax numbers.
std::vector<firm> firmsOf(const kiv_mat_offersStruct &asked, const kiv_mat_firmStruct &known)
{
    std::vector<firm> all;
    const auto add = [&all](const QString &name, const QString &nip) {
        if (name.trimmed().isEmpty())
            return;
        const auto same = std::find_if(all.begin(), all.end(), [&](const firm &one) {
            return orderOffers::isSameFirm(one.name, one.nip, name, nip);
        });
        if (same == all.end())
            all.push_back({name, nip.trimmed()});
        else if (same->nip.isEmpty())
            same->nip = nip.trimmed();
    };
    for (const auto &request : asked.requests)
        add(request->firm, request->nip);
    const auto requested = std::ptrdiff_t(all.size());
    for (const auto &one : known.suppliers.items)
        add(one->name, one->nip);
    for (const auto &one : known.manufacturers.items)
        add(one->name, one->nip);
    std::stable_sort(all.begin() + requested, all.end(), [](const firm &one, const firm &other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
    });
    return all;
}

} // namespace

importOfferDialog::importOfferDialog(sheet from, const order &asked,
                                     const kiv_mat_firmStruct &firms, QWidget *parent)
    : QDialog(parent)
    , m_sheet(std::move(from))
    , m_asked(asked)
    , m_firm(new QComboBox(this))
    , m_received(new QDateEdit(QDate::currentDate(), this))
    , m_currency(newLine("currency", tr("as the file says, else PLN")))
    , m_rate(newLine("rate", tr("PLN for one")))
    , m_rateDate(new QDateEdit(QDate::currentDate(), this))
    , m_taxed(new QComboBox(this))
    , m_vat(newLine("vat", tr("as the file says")))
    , m_leadTime(newLine("leadTime", tr("as the file says")))
    , m_validity(newLine("validity", tr("as the file says")))
    , m_remarks(newLine("remarks"))
    , m_rows(new QTableWidget(this))
    , m_told(new QPlainTextEdit(this))
    , m_sum(new QLabel(this))
{
    setObjectName(QStringLiteral("importOfferDialog"));
    setWindowTitle(tr("Offer from %1").arg(QDir::toNativeSeparators(m_sheet.path)));
    m_rows->setObjectName(QStringLiteral("rows"));
    m_rows->setAccessibleName(tr("Prices that were understood"));
    m_rows->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_rows->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_rows->setTabKeyNavigation(false);
    m_rows->verticalHeader()->hide();
    constexpr int rowMargin = 6;
    m_rows->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowMargin);
    m_told->setObjectName(QStringLiteral("told"));
    m_told->setAccessibleName(tr("What is wrong, and what was left out"));
    m_told->setReadOnly(true);
    m_told->setTabChangesFocus(true);
    m_sum->setObjectName(QStringLiteral("summary"));
    m_sum->setTextFormat(Qt::PlainText);
    m_sum->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    m_go = buttons->addButton(tr("Take the offer &in"), QDialogButtonBox::AcceptRole);
    m_go->setObjectName(QStringLiteral("go"));
    m_go->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        // What was typed last may not be looked at yet.
        examine();
        if (m_result.offer)
            accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *upper = new QHBoxLayout;
    upper->addWidget(newTerms(firms), 1);
    if (!m_sheet.isForm)
        upper->addWidget(newColumns(), 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(upper);
    layout->addWidget(m_rows, 2);
    layout->addWidget(m_told, 1);
    layout->addWidget(m_sum);
    layout->addWidget(buttons);
    constexpr QSize usualSize(900, 760);
    resize(usualSize);
    m_delay.setSingleShot(true);
    m_delay.setInterval(typingMs);
    connect(&m_delay, &QTimer::timeout, this, &importOfferDialog::examine);
    for (QLineEdit *line : findChildren<QLineEdit *>())
        connect(line, &QLineEdit::textChanged, &m_delay, qOverload<>(&QTimer::start));
    for (QComboBox *box : findChildren<QComboBox *>())
        connect(box, &QComboBox::currentTextChanged, &m_delay, qOverload<>(&QTimer::start));
    for (QDateEdit *date : {m_received, m_rateDate})
        connect(date, &QDateEdit::dateChanged, &m_delay, qOverload<>(&QTimer::start));
    examine();
    m_firm->setFocus();
}

QLineEdit *importOfferDialog::newLine(const char *name, const QString &placeholder)
{
    auto *line = new QLineEdit(this);
    line->setObjectName(QLatin1String(name));
    line->setPlaceholderText(placeholder);
    return line;
}

// The firms that were asked come first.
QWidget *importOfferDialog::newTerms(const kiv_mat_firmStruct &firms)
{
    m_firm->setObjectName(QStringLiteral("firm"));
    if (m_sheet.isForm)
        m_firm->addItem(tr("as the request says"));
    for (const firm &one : firmsOf(m_asked.offers, firms)) {
        const QString shown =
            one.nip.isEmpty() ? one.name : QStringLiteral("%1 (%2)").arg(one.name, one.nip);
        m_firm->addItem(shown, QStringList{one.name, one.nip});
    }
    for (QDateEdit *date : {m_received, m_rateDate}) {
        date->setCalendarPopup(true);
        date->setDisplayFormat(labels::dateFormat());
    }
    m_received->setObjectName(QStringLiteral("received"));
    m_rateDate->setObjectName(QStringLiteral("rateDate"));
    m_taxed->setObjectName(QStringLiteral("taxed"));
    m_taxed->addItems({tr("as the file says, else net"), tr("net"), tr("gross")});
    auto *terms = new QWidget(this);
    auto *form = new QFormLayout(terms);
    form->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString &caption, QWidget *widget) {
        widget->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
        form->addRow(caption, widget);
    };
    add(tr("&Firm"), m_firm);
    add(tr("&Received"), m_received);
    add(tr("&Currency"), m_currency);
    add(tr("Ra&te"), m_rate);
    add(tr("Date of t&he rate"), m_rateDate);
    add(tr("&Prices"), m_taxed);
    add(tr("&VAT [%]"), m_vat);
    add(tr("&Lead time [days]"), m_leadTime);
    add(tr("Valid &until"), m_validity);
    add(tr("Re&marks"), m_remarks);
    return terms;
}

// What each column of a price list holds, beside its caption.
QWidget *importOfferDialog::newColumns()
{
    auto *columns = new QWidget;
    auto *form = new QFormLayout(columns);
    for (int i = 0; i < m_sheet.fields.size(); ++i) {
        auto *box = new QComboBox(columns);
        box->setObjectName(QStringLiteral("column%1").arg(i));
        for (int of = 0; of < fieldCount; ++of)
            box->addItem(captionOf(field(of)));
        box->setCurrentIndex(m_sheet.fields.at(i));
        const QString caption = m_sheet.header >= 0
                                    ? m_sheet.cells.rows.at(m_sheet.header).value(i).simplified()
                                    : tr("Column %1").arg(i + 1);
        constexpr int longest = 40;
        auto *label = new QLabel(text::firstUnits(caption, longest), columns);
        label->setTextFormat(Qt::PlainText);
        box->setAccessibleName(caption);
        form->addRow(label, box);
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, [this, i](int of) {
            m_sheet.fields[i] = field(of);
            m_delay.start();
        });
    }
    auto *area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("columns"));
    area->setAccessibleName(tr("What the columns hold"));
    area->setWidgetResizable(true);
    area->setWidget(columns);
    return area;
}

terms importOfferDialog::terms() const
{
    offerImport::terms told;
    const QStringList firm = m_firm->currentData().toStringList();
    told.firm = firm.value(0);
    told.nip = firm.value(1);
    told.received = m_received->date();
    told.currency = m_currency->text().trimmed().toUpper();
    told.rate = m_rate->text().trimmed();
    if (!told.rate.isEmpty())
        told.rateDate = m_rateDate->date();
    if (m_taxed->currentIndex() != asFile)
        told.isGross = m_taxed->currentIndex() == gross;
    told.vat = m_vat->text().trimmed();
    told.leadTime = m_leadTime->text().trimmed();
    told.validity = m_validity->text().trimmed();
    told.remarks = m_remarks->text().trimmed();
    return told;
}

void importOfferDialog::examine()
{
    m_delay.stop();
    m_result = offerOf(m_sheet, terms(), m_asked);
    QStringList told;
    for (const QString &fault : m_result.faults)
        told.append(tr("Refused: %1").arg(fault));
    told += m_result.remarks;
    m_told->setPlainText(told.join(QLatin1Char('\n')));
    showRows();
    m_sum->setText(
        m_result.offer
            ? tr("%n material(s) offered", nullptr, m_result.offered) + QLatin1String(", ")
                  + tr("%n without a price", nullptr, m_result.withoutPrice) + QLatin1String(", ")
                  + tr("%n not named", nullptr, int(m_result.notNamed.size()))
            : tr("%n thing(s) keep the offer out", nullptr, int(m_result.faults.size())));
    m_go->setEnabled(m_result.offer != nullptr);
    m_go->setToolTip(m_result.offer ? QString() : told.value(0));
}

void importOfferDialog::showRows()
{
    m_rows->clear();
    m_rows->setColumnCount(6);
    m_rows->setHorizontalHeaderLabels({captionOf(field::key), captionOf(field::price),
                                       captionOf(field::minimum), captionOf(field::multiple),
                                       captionOf(field::leadTime), captionOf(field::remarks)});
    m_rows->setRowCount(m_result.offer ? int(m_result.offer->items.size()) : 0);
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        const offeredStruct &one = *m_result.offer->items[size_t(row)];
        const QStringList texts{one.key,      one.prices,   one.minimum,
                                one.multiple, one.leadTime, one.remarks};
        for (int column = 0; column < texts.size(); ++column) {
            auto *item = new QTableWidgetItem(texts.at(column));
            item->setToolTip(text::toolTip(texts.at(column)));
            m_rows->setItem(row, column, item);
        }
    }
    constexpr int widths[] = {190, 220, 130, 100, 110, 140};
    for (int column = 0; column < m_rows->columnCount(); ++column)
        resizeColumn(m_rows->horizontalHeader(), column, widths[column]);
}
