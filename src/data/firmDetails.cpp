#include "data/firmDetails.h"

#include "data/kiv_mat_firmStruct.h"
#include "data/programData.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

namespace firmDetails {

namespace {

QString plainNip(const QString &nip)
{
    static const QRegularExpression others(QStringLiteral("[^A-Z0-9]"));
    static const QRegularExpression polish(QStringLiteral("^PL(?=[0-9]{10}$)"));
    return nip.toUpper().remove(others).remove(polish);
}

// No details; their fields are those that say nothing.
const firmDetailsStruct &fresh()
{
    static const firmDetailsStruct none;
    return none;
}

} // namespace

bool isSameName(const QString &name, const QString &other)
{
    const QString plain = name.simplified();
    return !plain.isEmpty() && plain.compare(other.simplified(), Qt::CaseInsensitive) == 0;
}

bool isSameNip(const QString &nip, const QString &other)
{
    return plainNip(nip) == plainNip(other);
}

QString pathBeside(const QString &registerPath)
{
    return QFileInfo(registerPath).absolutePath() + QLatin1String("/firm_details.xml");
}

bool read(const QString &path, kiv_mat_firmDetailsStruct *details, QString *fault)
{
    // A link that leads nowhere is there, though not to be read.
    const QFileInfo file(path);
    return (!file.exists() && !file.isSymLink()) || readChecked(path, details, fault);
}

firmDetailsStruct *find(const kiv_mat_firmDetailsStruct &all, const QString &name,
                        const QString &nip)
{
    std::vector<firmDetailsStruct *> named;
    for (const auto &one : all.details)
        if (isSameName(one->name, name))
            named.push_back(one.get());
    if (named.size() == 1)
        return named.front();
    for (const QString &wanted : {nip, QString()})
        for (firmDetailsStruct *one : named)
            if (isSameNip(one->nip, wanted))
                return one;
    return nullptr;
}

const firmDetailsStruct *ofSupplier(const kiv_mat_firmDetailsStruct &all,
                                    const kiv_mat_firmStruct &firms, const QString &name)
{
    for (const auto *list : {&firms.suppliers.items, &firms.manufacturers.items})
        for (const auto &firm : *list)
            if (isSameName(firm->name, name))
                return find(all, name, firm->nip);
    return find(all, name, {});
}

bool saysNothing(const firmDetailsStruct &details)
{
    for (const auto &field : firmDetailsStruct::fields())
        if (field.member != &firmDetailsStruct::name && field.member != &firmDetailsStruct::nip
            && details.*field.member != fresh().*field.member)
            return false;
    return details.basket.items.empty();
}

void put(kiv_mat_firmDetailsStruct *all, const QString &name, const QString &nip,
         const firmDetailsStruct &details)
{
    firmDetailsStruct *found = find(*all, name, nip);
    if (saysNothing(details))
        std::erase_if(all->details, [found](const auto &one) { return one.get() == found; });
    else if (found)
        found->become(details);
    else
        all->details.push_back(details.copy());
}

QString emailFault(const QString &email)
{
    static const QRegularExpression form(
        QStringLiteral("^[^\\s@<>,;]+@[^\\s@<>,;.]+(\\.[^\\s@<>,;.]+)+$"));
    return email.isEmpty() || form.match(email).hasMatch()
               ? QString()
               : QCoreApplication::translate("firmDetails", "%1 is no e-mail address").arg(email);
}

QString discountFault(const QString &discount)
{
    constexpr int most = 100;
    const auto percent = decimal::read(discount);
    static const decimal whole = *decimal::read(QString::number(most));
    return discount.isEmpty() || (percent && *percent >= decimal() && *percent <= whole)
               ? QString()
               : QCoreApplication::translate("firmDetails",
                                             "%1 is no discount from 0 to %2 percent")
                     .arg(discount)
                     .arg(most);
}

decimal shareAfterDiscount(const QString &discount)
{
    static const decimal whole = *decimal::read(QStringLiteral("1"));
    static const decimal percent = *decimal::read(QStringLiteral("0.01"));
    const auto off = decimal::read(discount);
    return off && discountFault(discount).isEmpty() ? whole - *off * percent : whole;
}

} // namespace firmDetails
