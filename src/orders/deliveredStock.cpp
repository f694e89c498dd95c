#include "orders/deliveredStock.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "util/labels.h"

#include <QCoreApplication>
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

std::vector<delivery> openOf(const kiv_mat_zpStruct &order, const ktmIndex &materials,
                             const std::vector<const stockedDeliveryStruct *> &stocked)
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
    for (const stockedDeliveryStruct *one : stocked) {
        const auto place = places.constFind(keyOf(one->ktm, one->delivery));
        if (place != places.constEnd())
            all[*place].quantity =
                all[*place].quantity - decimal::read(one->quantity).value_or(decimal());
    }
    std::erase_if(all, [](const delivery &one) { return one.quantity <= decimal(); });
    QHash<const materialStruct *, QString> stocks;
    for (delivery &one : all)
        fillIn(&one, materials, &stocks);
    return all;
}

std::vector<stockedDeliveryStruct> noteOf(const std::vector<delivery> &taken)
{
    std::vector<stockedDeliveryStruct> notes(taken.size());
    for (size_t i = 0; i < taken.size(); ++i) {
        notes[i].ktm = taken[i].ktm;
        notes[i].delivery = taken[i].delivery;
        notes[i].quantity = taken[i].quantity.text();
    }
    return notes;
}

} // namespace deliveredStock
