#include "order/orderOperations.h"

#include "data/configStruct.h"
#include "data/documentSaving.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "util/decimal.h"
#include "util/fileLock.h"
#include "util/labels.h"
#include "util/numbers.h"

#include <QCoreApplication>

#include <algorithm>

namespace orderOperations {

namespace {

const QString shipmentPrefix = QStringLiteral("SRV-000.10");
const QString serviceKtm = QStringLiteral("SRV-000.001");
constexpr int shipmentLines = 10;

void appendOnce(QStringList &list, const QString &text)
{
    if (!text.isEmpty() && !list.contains(text))
        list.append(text);
}

} // namespace

lineState stateOf(const orderItemStruct &line, const ktmIndex &materials)
{
    lineState state;
    if (const ktmIndex::entry *found = materials.find(line.ktm)) {
        state.known = true;
        state.status = found->material->information.status;
    }
    const std::optional<decimal> wanted = decimal::read(line.quantity);
    const std::optional<decimal> there = decimal::read(line.inWarehouse);
    if (wanted && there) {
        const bool isEnough = *there >= *wanted;
        state.inStock = isEnough ? stock::enough : stock::tooLittle;
        state.share =
            isEnough
                ? 1
                : std::max(0.0, numbers::value(line.inWarehouse) / numbers::value(line.quantity));
    }
    return state;
}

bool isOrderable(const QString &status)
{
    const QString word = status.trimmed();
    return !word.isEmpty() && word.compare(statusWord::grey, Qt::CaseInsensitive) != 0;
}

lineFaults faultsOf(const kiv_mat_zpStruct &order, const ktmIndex &materials)
{
    lineFaults faults;
    for (const auto &line : order.orderItems.items) {
        const lineState state = stateOf(*line, materials);
        if (!state.known)
            appendOnce(faults.unknown, line->ktm.isEmpty() ? line->name : line->ktm);
        else if (!isOrderable(state.status))
            appendOnce(faults.withoutStatus, line->ktm);
    }
    return faults;
}

const QString &pcbKtm()
{
    static const QString ktm = QStringLiteral("SRV-001.100");
    return ktm;
}

bool isShipment(const QString &ktm)
{
    return ktm.contains(serviceKtm) || ktm.contains(shipmentPrefix);
}

bool isTakenOnce(const QString &ktm) { return isShipment(ktm) || ktm == pcbKtm(); }

bool holds(const kiv_mat_zpStruct &order, const QString &ktm)
{
    return std::any_of(order.orderItems.items.begin(), order.orderItems.items.end(),
                       [&ktm](const auto &line) { return line->ktm == ktm; });
}

QString freeShipmentKtm(const kiv_mat_zpStruct &order)
{
    for (int n = 0; n < shipmentLines; ++n) {
        const QString ktm = shipmentPrefix + QString::number(n);
        if (!holds(order, ktm))
            return ktm;
    }
    return {};
}

std::unique_ptr<orderItemStruct> newLine(const materialStruct &material,
                                         const kiv_mat_zpStruct &order, const QString &quantity,
                                         const QDate &wait)
{
    auto line = std::make_unique<orderItemStruct>();
    line->index = QString::number(order.orderItems.items.size() + 1);
    line->name = material.d_name;
    line->price = material.d_price;
    line->averagePrice = material.d_averagePrice;
    line->inWarehouse = material.d_inWarehouse;
    line->quantity = quantity;
    line->unit = labels::unitOrPieces(material.d_unit);
    line->wait = wait.toString(labels::dateFormat());
    line->description = material.d_description;
    line->rohsRequired = material.information.rohsRequired.isEmpty()
                             ? QString(statusWord::yes)
                             : material.information.rohsRequired;
    line->target = order.options.value(optionKey::orderTarget);
    line->ktm = material.d_ktm;
    line->cpv = material.d_cpv;
    return line;
}

bool appendToFile(const QString &path, const std::vector<const orderItemStruct *> &lines,
                  const std::vector<int> &columns, configStruct &config, QString *reason)
{
    fileLock lock;
    lock.claim(path);
    if (!lock.otherUser().isEmpty()) {
        *reason = QCoreApplication::translate("orderOperations", "it is open elsewhere: %1")
                      .arg(lock.otherUser());
        return false;
    }
    kiv_mat_zpStruct order;
    if (!readChecked(path, &order, reason))
        return false;
    for (const orderItemStruct *line : lines) {
        auto copy = std::make_unique<orderItemStruct>();
        for (int column : columns) {
            const auto member = orderItemStruct::fields()[size_t(column)].member;
            (*copy).*member = line->*member;
        }
        copy->index = QString::number(order.orderItems.items.size() + 1);
        order.orderItems.append(std::move(copy));
    }
    keepVersion(path, config);
    QString fault;
    if (saveXmlNoEvents(path, &order, &fault) >= 0)
        return true;
    *reason = QCoreApplication::translate("orderOperations", "the file cannot be written")
              + QLatin1String(": ") + fault;
    return false;
}

std::unique_ptr<kiv_mat_zpStruct> copyOf(const kiv_mat_zpStruct &other)
{
    auto order = std::make_unique<kiv_mat_zpStruct>();
    order->attentions = other.attentions;
    for (const auto &option : other.options.items) {
        optionStruct *own = order->options.findOption(option->type);
        if (!own)
            own = order->options.append(std::make_unique<optionStruct>());
        copyFields(*own, *option, optionStruct::fields());
    }
    for (const auto &line : other.orderItems.items)
        copyFields(*order->orderItems.append(std::make_unique<orderItemStruct>()), *line,
                   orderItemStruct::fields());
    return order;
}

std::unique_ptr<kiv_mat_zpStruct> newOrderLike(const kiv_mat_zpStruct &other, const QString &number,
                                               const QDate &today, const QDate &wait)
{
    auto order = copyOf(other);
    const auto set = [&order](QLatin1String key, const QString &value) {
        if (optionStruct *option = order->options.findOption(key))
            option->value1 = value;
    };
    set(optionKey::orderNumber, number);
    set(optionKey::orderDate, today.toString(labels::dateFormat()));
    for (const auto &line : order->orderItems.items) {
        line->wait = wait.toString(labels::dateFormat());
        line->delivery.clear();
        line->invoice.clear();
    }
    return order;
}

QDate usualDate(const configStruct &config)
{
    return QDate::currentDate().addDays(config.options.value(optionKey::orderDateAdd).toInt());
}

QStringList units() { return labels::storedUnits(); }

QStringList targets(const configStruct &config, const kiv_mat_zpStruct &order)
{
    QStringList names;
    for (const auto &target : config.targets.items)
        appendOnce(names, target->name);
    appendOnce(names, order.options.value(optionKey::orderTarget));
    return names;
}

} // namespace orderOperations
