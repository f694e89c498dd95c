#include "orders/offerStoring.h"

#include "util/labels.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace offerImport {

namespace {

QString dayOf(const QDate &date) { return date.toString(labels::dateFormat()); }

} // namespace

bool store(const offerStruct &offer, const QString &file, const QString &orderPath,
           const QString &orderNumber, bool replaces, configStruct &config, QString *fault,
           QString *stored)
{
    const QString folder = orderOffers::folderOf(orderPath);
    offersFile offers(orderOffers::fileOf(orderPath));
    const auto refusal = [&](const kiv_mat_offersStruct &now) {
        const offerStruct *earlier =
            orderOffers::offerOn(now, offer.firm, offer.nip, offer.request);
        if (!earlier || replaces)
            return QString();
        const QString received = dayOf(orderOffers::readDate(earlier->received));
        return earlier->request.trimmed().isEmpty()
                   ? QCoreApplication::translate("offerImport",
                                                 "There is an offer of %1 already, received on %2")
                         .arg(earlier->firm, received)
                   : QCoreApplication::translate(
                         "offerImport",
                         "There is an offer of %1 on the request %2 already, received on %3")
                         .arg(earlier->firm, earlier->request, received);
    };
    *fault = refusal(offers.now());
    if (!fault->isEmpty())
        return false;
    const bool isNewFolder = !QFileInfo::exists(folder);
    const QString ending = QLatin1Char('.') + QFileInfo(file).suffix().toLower();
    QString name = orderOffers::freeName(
        folder, {QStringLiteral("offer"), offer.firm, offer.received}, ending);
    const QString copy = folder + QLatin1Char('/') + name;
    QFile original(file);
    if (!QDir().mkpath(folder) || !original.copy(copy)) {
        *fault = QDir::toNativeSeparators(copy) + QLatin1String(": ") + original.errorString();
        if (isNewFolder)
            QDir().rmdir(folder);
        return false;
    }
    QString refused;
    const bool written = offers.change(
        [&](kiv_mat_offersStruct &now) {
            refused = refusal(now);
            if (!refused.isEmpty())
                return false;
            while (const offerStruct *earlier =
                       orderOffers::offerOn(now, offer.firm, offer.nip, offer.request))
                std::erase_if(now.offers, [&](const auto &one) { return one.get() == earlier; });
            if (now.number.isEmpty())
                now.number = orderNumber;
            auto own = std::make_unique<offerStruct>();
            copyFields(*own, offer, offerStruct::fields());
            own->file = name;
            for (const auto &row : offer.items)
                copyFields(*own->append(std::make_unique<offeredStruct>()), *row,
                           offeredStruct::fields());
            now.offers.push_back(std::move(own));
            return true;
        },
        config, fault);
    if (!refused.isEmpty())
        *fault = refused;
    if (!written || !refused.isEmpty()) {
        QFile::remove(copy);
        if (isNewFolder)
            QDir().rmdir(folder);
        return false;
    }
    if (stored)
        *stored = copy;
    return true;
}

} // namespace offerImport
