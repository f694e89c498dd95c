#include "orders/orderOffers.h"

#include "data/firmDetails.h"
#include "data/kiv_mat_zpStruct.h"
#include "order/orderOperations.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <numeric>

namespace orderOffers {

namespace {

const QString dateForm = QStringLiteral("yyyy.MM.dd");

template <class Record>
const Record *lastOf(const std::vector<std::unique_ptr<Record>> &all, const QString &firm,
                     const QString &nip)
{
    for (auto one = all.rbegin(); one != all.rend(); ++one)
        if (isSameFirm((*one)->firm, (*one)->nip, firm, nip))
            return one->get();
    return nullptr;
}

} // namespace

bool isSameFirm(const QString &name, const QString &nip, const QString &otherName,
                const QString &otherNip)
{
    return firmDetails::isSameName(name, otherName)
           && (nip.isEmpty() || otherNip.isEmpty() || firmDetails::isSameNip(nip, otherNip));
}

QString folderOf(const QString &orderPath)
{
    const QFileInfo file(orderPath);
    return file.absolutePath() + QLatin1String("/offers/") + file.completeBaseName();
}

QString fileOf(const QString &orderPath)
{
    return folderOf(orderPath) + QLatin1String("/offers.xml");
}

QString freeName(const QString &folder, const QStringList &parts, const QString &ending)
{
    static const QRegularExpression others(QStringLiteral("[^\\w.-]+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    constexpr int longest = 80;
    const QString name = parts.join(QLatin1Char(' '))
                             .split(others, Qt::SkipEmptyParts)
                             .join(QLatin1Char('_'))
                             .left(longest);
    QString free = name + ending;
    for (int i = 2; QFileInfo::exists(folder + QLatin1Char('/') + free); ++i)
        free = QStringLiteral("%1_%2%3").arg(name).arg(i).arg(ending);
    return free;
}

QString dateText(const QDate &date) { return date.toString(dateForm); }

QDate readDate(const QString &text) { return QDate::fromString(text.trimmed(), dateForm); }

const need *needs::find(const QString &key) const
{
    for (const need &one : all)
        if (one.key == key)
            return &one;
    return nullptr;
}

needs needsOf(const kiv_mat_zpStruct &order, const std::optional<std::vector<int>> &lines)
{
    const auto &items = order.orderItems.items;
    std::vector<int> places(items.size());
    std::iota(places.begin(), places.end(), 0);
    needs result;
    QHash<QString, size_t> byMaterial; // and unit
    for (const int place : lines ? *lines : places) {
        const orderItemStruct &line = *items[size_t(place)];
        if (orderOperations::isShipment(line.ktm))
            continue;
        const auto quantity = decimal::read(line.quantity);
        if (!quantity || *quantity <= decimal()) {
            result.uncounted.push_back(place);
            continue;
        }
        const QString ktm = line.ktm.trimmed();
        const QString plain = ktm.isEmpty() ? line.name.trimmed() : ktm;
        const QString unit = line.unit.trimmed();
        const QString both = plain + QLatin1Char('\n') + unit;
        auto found = byMaterial.find(both);
        if (found == byMaterial.end()) {
            need fresh;
            fresh.key = result.find(plain) ? plain + QLatin1Char(' ') + unit : plain;
            fresh.ktm = ktm;
            fresh.name = line.name.trimmed();
            fresh.unit = unit;
            found = byMaterial.insert(both, result.all.size());
            result.all.push_back(fresh);
        }
        need &one = result.all[*found];
        one.quantity += *quantity;
        one.lines.push_back(place);
        const QDate wait = QDate::fromString(line.wait.trimmed(), QStringLiteral("dd.MM.yyyy"));
        if (wait.isValid() && (!one.wait.isValid() || wait < one.wait))
            one.wait = wait;
    }
    return result;
}

const choiceStruct *choiceFor(const kiv_mat_offersStruct &offers, const QString &key)
{
    for (const auto &choice : offers.choices)
        if (choice->key == key)
            return choice.get();
    return nullptr;
}

const requestStruct *requestTo(const kiv_mat_offersStruct &offers, const QString &firm,
                               const QString &nip)
{
    return lastOf(offers.requests, firm, nip);
}

const offerStruct *offerOf(const kiv_mat_offersStruct &offers, const QString &firm,
                           const QString &nip)
{
    return lastOf(offers.offers, firm, nip);
}

std::vector<const offerStruct *> offersOf(const kiv_mat_offersStruct &offers, const QString &firm,
                                          const QString &nip)
{
    std::vector<const offerStruct *> all;
    for (auto one = offers.offers.rbegin(); one != offers.offers.rend(); ++one)
        if (isSameFirm((*one)->firm, (*one)->nip, firm, nip))
            all.push_back(one->get());
    return all;
}

const offerStruct *offerOn(const kiv_mat_offersStruct &offers, const QString &firm,
                           const QString &nip, const QString &request)
{
    for (const offerStruct *one : offersOf(offers, firm, nip))
        if (one->request.trimmed() == request.trimmed())
            return one;
    return nullptr;
}

} // namespace orderOffers
