#include "orders/orderSplitting.h"

#include "data/loaders.h"
#include "data/vocabulary.h"
#include "order/orderOperations.h"
#include "orders/orderRegister.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace orderSplitting {

namespace {

part *partOf(std::vector<part> *parts, const choiceStruct &choice)
{
    for (part &one : *parts)
        if (orderOffers::isSameFirm(one.firm, one.nip, choice.firm, choice.nip))
            return &one;
    parts->push_back({});
    parts->back().firm = choice.firm;
    parts->back().nip = choice.nip;
    return &parts->back();
}

// Writes the parts one after the other; what was written is removed again unless all is.
class writer
{
public:
    writer(const kiv_mat_zpStruct &order, const QString &orderPath,
           const kiv_mat_offersStruct &offers)
        : m_order(order)
        , m_path(orderPath)
        , m_offers(offers)
    {
    }
    ~writer()
    {
        if (m_isDone)
            return;
        for (auto one = m_written.rbegin(); one != m_written.rend(); ++one)
            QFile::remove(*one);
        for (auto one = m_folders.rbegin(); one != m_folders.rend(); ++one)
            QDir().rmdir(*one);
    }
    writer(const writer &) = delete;
    writer &operator=(const writer &) = delete;

    bool write(const part &of, QString *fault)
    {
        const QString path = freePath(of);
        const auto content = orderOf(of);
        if (!save(path, *content, fault))
            return false;
        m_files.append(path);
        return of.firm.isEmpty() || writeOffers(of, *content, path, fault);
    }
    const QStringList &files() const { return m_files; }
    void keep() { m_isDone = true; }

private:
    // Nor is it that of an order that is gone and has left its offers.
    QString freePath(const part &of) const
    {
        const QFileInfo whole(m_path);
        // Short enough for a counter behind them.
        constexpr int mostOfName = 40;
        constexpr int mostOfFirm = 30;
        QStringList name{whole.completeBaseName().left(mostOfName),
                         of.firm.isEmpty() ? QStringLiteral("rest") : of.firm.left(mostOfFirm)};
        for (int i = 2;; ++i) {
            const QString path =
                whole.absolutePath() + QLatin1Char('/')
                + orderOffers::freeName(whole.absolutePath(), name, QStringLiteral(".xml"));
            if (!QFileInfo::exists(orderOffers::fileOf(path)))
                return path;
            name = QStringList{name[0], name[1], QString::number(i)};
        }
    }
    std::unique_ptr<kiv_mat_zpStruct> orderOf(const part &of) const
    {
        auto result = orderOperations::copyOf(m_order);
        if (optionStruct *number = result->options.findOption(optionKey::orderNumber))
            number->value1 = of.number;
        auto &lines = result->orderItems.items;
        std::vector<std::unique_ptr<orderItemStruct>> kept;
        for (const int line : of.lines)
            kept.push_back(std::move(lines[size_t(line)]));
        lines = std::move(kept);
        for (size_t i = 0; i < lines.size(); ++i)
            lines[i]->index = QString::number(i + 1);
        return result;
    }
    bool writeOffers(const part &of, const kiv_mat_zpStruct &content, const QString &path,
                     QString *fault)
    {
        // Where a material has lines in two units, its key may be another one among fewer lines.
        const orderOffers::needs whole = orderOffers::needsOf(m_order);
        const orderOffers::needs own = orderOffers::needsOf(content);
        kiv_mat_offersStruct offers;
        offers.number = of.number;
        for (const orderOffers::need &need : own.all)
            for (const orderOffers::need &before : whole.all) {
                const int line = of.lines[size_t(need.lines.front())];
                const auto &lines = before.lines;
                if (std::find(lines.begin(), lines.end(), line) == lines.end())
                    continue;
                const choiceStruct *choice = orderOffers::choiceFor(m_offers, before.key);
                if (!choice)
                    continue;
                auto copy = std::make_unique<choiceStruct>();
                copyFields(*copy, *choice, choiceStruct::fields());
                copy->key = need.key;
                offers.choices.push_back(std::move(copy));
            }
        const QString file = orderOffers::fileOf(path);
        noteFolders(QFileInfo(file).absolutePath());
        return save(file, offers, fault);
    }
    // That are made for a file, the uppermost first.
    void noteFolders(const QString &folder)
    {
        if (QFileInfo::exists(folder))
            return;
        noteFolders(QFileInfo(folder).absolutePath());
        m_folders.append(folder);
    }
    bool save(const QString &path, const documentStruct &document, QString *fault)
    {
        QString reason;
        if (saveXmlNoEvents(path, &document, &reason, {}, saveRule::onlyGood) < 0) {
            *fault = QDir::toNativeSeparators(path) + QLatin1String(": ") + reason;
            return false;
        }
        m_written.append(path);
        return true;
    }

    const kiv_mat_zpStruct &m_order;
    QString m_path;
    const kiv_mat_offersStruct &m_offers;
    QStringList m_files;   // the orders
    QStringList m_written; // and their offers files
    QStringList m_folders;
    bool m_isDone = false;
};

} // namespace

plan planOf(const kiv_mat_zpStruct &order, const kiv_mat_offersStruct &offers)
{
    plan result;
    const orderOffers::needs needs = orderOffers::needsOf(order);
    std::vector<const choiceStruct *> choices(order.orderItems.items.size(), nullptr);
    for (const orderOffers::need &need : needs.all)
        for (const int line : need.lines)
            choices[size_t(line)] = orderOffers::choiceFor(offers, need.key);
    part rest;
    for (int line = 0; line < int(choices.size()); ++line) {
        const choiceStruct *choice = choices[size_t(line)];
        const bool isChosen = choice && !choice->firm.trimmed().isEmpty();
        (isChosen ? partOf(&result.parts, *choice)->lines : rest.lines).push_back(line);
    }
    if (result.parts.empty())
        result.fault =
            QCoreApplication::translate("orderSplitting", "No firm is chosen for any material");
    else if (result.parts.size() == 1
             && std::all_of(rest.lines.begin(), rest.lines.end(), [&order](int line) {
                    return orderOperations::isShipment(order.orderItems.items[size_t(line)]->ktm);
                }))
        result.fault = QCoreApplication::translate("orderSplitting",
                                                   "All lines are of %1: there is nothing to part")
                           .arg(result.parts.front().firm);
    if (!rest.lines.empty())
        result.parts.push_back(std::move(rest));
    const QString number = order.options.value(optionKey::orderNumber).trimmed();
    for (size_t i = 0; i < result.parts.size(); ++i)
        result.parts[i].number = number + QLatin1Char('/') + QString::number(i + 1);
    return result;
}

QString faultOf(const kiv_mat_zpStruct &order, const QString &orderPath,
                const kiv_mat_offersStruct &offers, orderRegister &orders)
{
    const QString fault = planOf(order, offers).fault;
    if (!fault.isEmpty())
        return fault;
    orderIndex::order whole;
    whole.path = orderPath;
    // Its parts would be ordered again, and what came of it taken into stock again.
    if (orders.sentState(orderPath))
        return QCoreApplication::translate("orderSplitting", "It was sent already");
    for (const auto &line : order.orderItems.items)
        if (!line->delivery.trimmed().isEmpty() || !line->invoice.trimmed().isEmpty())
            return QCoreApplication::translate("orderSplitting",
                                               "Something of it was delivered or invoiced already");
    return orders.isParted(whole) ? QCoreApplication::translate(
               "orderSplitting", "It was parted before, and its parts are there")
                                  : QString();
}

QStringList split(const kiv_mat_zpStruct &order, const QString &orderPath,
                  const kiv_mat_offersStruct &offers, orderRegister &orders, configStruct &config,
                  QString *fault)
{
    *fault = faultOf(order, orderPath, offers, orders);
    if (!fault->isEmpty())
        return {};
    writer parts(order, orderPath, offers);
    for (const part &one : planOf(order, offers).parts)
        if (!parts.write(one, fault))
            return {};
    if (!orders.noteParted(orderPath, parts.files(), config, fault))
        return {};
    parts.keep();
    return parts.files();
}

} // namespace orderSplitting
