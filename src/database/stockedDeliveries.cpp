#include "database/stockedDeliveries.h"

#include <QFileInfo>

#include <algorithm>
#include <map>

void stockedDeliveries::add(const entries &deliveries)
{
    m_entries.insert(m_entries.end(), deliveries.begin(), deliveries.end());
    changed();
}

void stockedDeliveries::remove(const entries &deliveries)
{
    std::erase_if(m_entries, [&deliveries](const auto &one) {
        return std::find(deliveries.begin(), deliveries.end(), one) != deliveries.end();
    });
    changed();
}

void stockedDeliveries::discard()
{
    m_entries.clear();
    m_overdue = false;
}

deliveredStock::takenList stockedDeliveries::pendingOf(const QString &orderPath) const
{
    deliveredStock::takenList all;
    for (const auto &one : m_entries)
        if (QFileInfo(one->orderPath) == QFileInfo(orderPath))
            all.push_back(one->taken);
    return all;
}

// As the states file has them, but with the whole path of the order.
QString stockedDeliveries::text() const
{
    if (m_entries.empty())
        return {};
    kiv_mat_orderStatesStruct all;
    for (const auto &one : m_entries) {
        all.stocked.push_back(std::make_unique<stockedDeliveryStruct>());
        all.stocked.back()->file = one->orderPath;
        all.stocked.back()->ktm = one->taken.ktm;
        all.stocked.back()->delivery = one->taken.delivery;
        all.stocked.back()->quantity = one->taken.quantity.text();
    }
    return QString::fromUtf8(contentOf(all));
}

bool stockedDeliveries::takeUp(const QString &text)
{
    kiv_mat_orderStatesStruct all;
    // Behind what else was noted.
    const int begin = text.indexOf(QLatin1Char('<') + all.kind().root);
    QXmlStreamReader reader(begin < 0 ? QString() : text.mid(begin));
    if (readToElement(&reader, all.kind().root))
        readChildren(&reader, all.tagHandlers(), all.kind().root);
    entries found;
    for (const auto &one : all.stocked)
        found.push_back(std::make_shared<entry>(
            entry{one->file,
                  {one->ktm, one->delivery, decimal::read(one->quantity).value_or(decimal())}}));
    add(found);
    return !found.empty();
}

bool stockedDeliveries::settle(configStruct &config, QString *fault)
{
    std::map<QString, deliveredStock::takenList> byOrder;
    for (const auto &one : m_entries)
        byOrder[one->orderPath].push_back(one->taken);
    for (const auto &[path, deliveries] : byOrder)
        if (deliveredStock::noteTaken(path, deliveries, config, fault))
            std::erase_if(m_entries,
                          [&path = path](const auto &one) { return one->orderPath == path; });
    m_overdue = !m_entries.empty();
    return !m_overdue;
}

deliveriesStocked::deliveriesStocked(std::unique_ptr<command> stock, stockedDeliveries *log,
                                     stockedDeliveries::entries deliveries)
    : m_stock(std::move(stock))
    , m_log(log)
    , m_deliveries(std::move(deliveries))
{
    m_log->add(m_deliveries);
}

void deliveriesStocked::undo()
{
    m_stock->undo();
    m_log->remove(m_deliveries);
}

void deliveriesStocked::redo()
{
    m_stock->redo();
    m_log->add(m_deliveries);
}
