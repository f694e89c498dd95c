#include "orders/deliveredStock.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "orders/orderRegister.h"
#include "util/labels.h"
#include "util/userName.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace deliveredStock {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("deliveredStock", text); }

QString keyOf(const QString &ktm, const QString &delivery)
{
    return ktm.trimmed() + QLatin1Char('\n') + delivery.trimmed();
}

// Finds the material and what its stock becomes; stocks has those that grew already.
void fillIn(delivery *one, const ktmIndex &materials,
            QHash<const materialStruct *, QString> *stocks)
{
    const ktmIndex::entry *known = materials.find(one->ktm);
    if (!known) {
        one->fault = tr("no database has this KTM");
        return;
    }
    one->material = known->material;
    one->database = known->database;
    one->before = stocks->value(known->material, known->material->d_inWarehouse);
    const auto stock = one->before.trimmed().isEmpty() ? decimal() : decimal::read(one->before);
    if (!one->unit.isEmpty() && one->unit != labels::unitOrPieces(known->material->d_unit)) {
        one->fault = tr("the stock is counted in another unit");
    } else if (!stock) {
        one->fault = tr("the stock is no number");
    } else {
        one->after = (*stock + one->quantity).text();
        stocks->insert(known->material, one->after);
    }
}

} // namespace

std::optional<takenList> takenOf(const QString &orderPath, QString *fault)
{
    const QFileInfo order(orderPath);
    statesFile file(orderRegister::statesIn(order.absolutePath()));
    const kiv_mat_orderStatesStruct &states = file.now();
    if (!file.fault().isEmpty()) {
        *fault = QDir::toNativeSeparators(file.path()) + QLatin1String(": ") + file.fault();
        return {};
    }
    takenList all;
    for (const auto &one : states.stocked)
        if (one->file == order.fileName())
            all.push_back({one->ktm.trimmed(), one->delivery.trimmed(),
                           decimal::read(one->quantity).value_or(decimal())});
    return all;
}

bool noteTaken(const QString &orderPath, const takenList &deliveries, configStruct &config,
               QString *fault)
{
    const QFileInfo order(orderPath);
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy.MM.dd hh:mm"));
    return statesFile(orderRegister::statesIn(order.absolutePath()))
        .change(
            [&](kiv_mat_orderStatesStruct &states) {
                for (const taken &one : deliveries) {
                    auto stocked = std::make_unique<stockedDeliveryStruct>();
                    stocked->file = order.fileName();
                    stocked->ktm = one.ktm;
                    stocked->delivery = one.delivery;
                    stocked->quantity = one.quantity.text();
                    stocked->date = now;
                    stocked->by = userName();
                    states.stocked.push_back(std::move(stocked));
                }
                return !deliveries.empty();
            },
            config, fault);
}

std::vector<delivery> openOf(const kiv_mat_zpStruct &order, const ktmIndex &materials,
                             const takenList &before)
{
    std::vector<delivery> all;
    QHash<QString, size_t> places;
    for (const auto &line : order.orderItems.items) {
        const auto quantity = decimal::read(line->quantity);
        if (line->delivery.trimmed().isEmpty() || line->ktm.trimmed().isEmpty() || !quantity)
            continue;
        const QString key = keyOf(line->ktm, line->delivery);
        const auto place = places.constFind(key);
        if (place != places.constEnd()) {
            all[*place].quantity += *quantity;
            continue;
        }
        places.insert(key, all.size());
        delivery &one = all.emplace_back();
        one.ktm = line->ktm.trimmed();
        one.name = line->name;
        one.delivery = line->delivery.trimmed();
        one.unit = line->unit.trimmed();
        one.quantity = *quantity;
    }
    QHash<QString, decimal> others; // taken beyond what the lines of that text have, by KTM
    for (const taken &one : before) {
        const auto place = places.constFind(keyOf(one.ktm, one.delivery));
        decimal left = one.quantity;
        if (place != places.constEnd()) {
            const decimal own = qMin(left, all[*place].quantity);
            all[*place].quantity = all[*place].quantity - own;
            left = left - own;
        }
        others[one.ktm] += left;
    }
    for (delivery &one : all) {
        decimal &left = others[one.ktm];
        const decimal own = qMin(left, one.quantity);
        one.quantity = one.quantity - own;
        left = left - own;
    }
    std::erase_if(all, [](const delivery &one) { return one.quantity <= decimal(); });
    QHash<const materialStruct *, QString> stocks;
    for (delivery &one : all)
        fillIn(&one, materials, &stocks);
    return all;
}

takenList takenOf(const std::vector<delivery> &deliveries)
{
    takenList all;
    for (const delivery &one : deliveries)
        all.push_back({one.ktm, one.delivery, one.quantity});
    return all;
}

} // namespace deliveredStock
