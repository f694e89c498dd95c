#include "orders/orderRegister.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "util/labels.h"
#include "util/paths.h"
#include "util/userName.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

const QString timeForm = QStringLiteral("yyyy.MM.dd hh:mm");

QString stockedKey(const QString &file, const QString &ktm, const QString &delivery)
{
    return QStringList{file, ktm, delivery}.join(QLatin1Char('\n'));
}

} // namespace

QString orderRegister::statesIn(const QString &folder)
{
    return folder + QLatin1String("/order_states.xml");
}

bool orderRegister::update(const QStringList &folders, const progressFunction &progress)
{
    const bool complete = index().update(folders, progress);
    noteOrdered();
    return complete;
}

orderIndex &orderRegister::index()
{
    if (!m_index)
        m_index = std::make_unique<orderIndex>(m_cache);
    return *m_index;
}

int orderRegister::revision()
{
    int number = index().revision();
    for (auto &[folder, states] : m_states) {
        states.file.now();
        number += states.file.readings();
    }
    return number;
}

orderRegister::folderStates &orderRegister::statesOf(const QString &orderPath)
{
    const QString folder = QFileInfo(orderPath).absolutePath();
    return m_states.try_emplace(folder, statesIn(folder)).first->second;
}

orderRegister::folderStates &orderRegister::currentStates(const QString &orderPath, bool looks)
{
    folderStates &states = statesOf(orderPath);
    if (!looks && states.seen == states.file.readings())
        return states;
    const kiv_mat_orderStatesStruct &now = states.file.now();
    if (states.seen == states.file.readings())
        return states;
    states.seen = states.file.readings();
    states.byName.clear();
    states.parts.clear();
    states.stocked.clear();
    for (const auto &one : now.stocked)
        states.stocked[stockedKey(one->file, one->ktm.trimmed(), one->delivery.trimmed())] +=
            decimal::read(one->quantity).value_or(decimal());
    for (const auto &one : now.orders)
        states.byName.insert(one->file, one.get());
    const QString folder = QFileInfo(orderPath).absolutePath() + QLatin1Char('/');
    for (const auto &one : now.parted)
        for (const QString &part : one->parts.split(QLatin1Char('/'), Qt::SkipEmptyParts))
            states.parts[one->file].append(folder + part);
    return states;
}

const orderStateStruct *orderRegister::sentState(const QString &orderPath)
{
    return orderPath.isEmpty()
               ? nullptr
               : currentStates(orderPath).byName.value(QFileInfo(orderPath).fileName());
}

orderStage orderRegister::stageOf(const orderIndex::order &order)
{
    const bool isSent = sentState(order.path) != nullptr;
    if (isParted(order))
        return orderStage::parted;
    return order.stage == orderStage::edited && isSent ? orderStage::sent : order.stage;
}

bool orderRegister::isOrdered(const orderIndex::order &order)
{
    const orderStage stage = stageOf(order);
    return stage != orderStage::edited && stage != orderStage::parted;
}

bool orderRegister::isParted(const orderIndex::order &order)
{
    const QStringList parts =
        currentStates(order.path, false).parts.value(QFileInfo(order.path).fileName());
    return std::any_of(parts.begin(), parts.end(),
                       [](const QString &part) { return QFileInfo::exists(part); });
}

QString orderRegister::firmOf(const orderIndex::order &order, const QString &ktmOrName)
{
    auto offers = m_offers.find(order.path);
    if (offers == m_offers.end())
        offers = m_offers.try_emplace(order.path, orderOffers::fileOf(order.path)).first;
    const choiceStruct *choice = orderOffers::choiceFor(offers->second.now(), ktmOrName);
    return choice ? choice->firm : QString();
}

// Not for each line of each row: a network's folder is slow to say whether a file is as it was.
void orderRegister::noteOrdered()
{
    for (auto &[folder, states] : m_states)
        currentStates(folder + QLatin1String("/x"));
    m_ordered.clear();
    for (const orderIndex::order &order : index().orders()) {
        const folderStates &states = currentStates(order.path, false);
        const bool isSent = order.stage != orderStage::edited
                            || states.byName.contains(QFileInfo(order.path).fileName());
        m_ordered.push_back(isSent && !isParted(order));
    }
    m_orderedAt = index().revision();
}

orderedMaterial orderRegister::orderedOf(const QString &ktm, const QString &except)
{
    if (m_orderedAt != index().revision())
        noteOrdered();
    const orderIndex::order *first = index().orders().data();
    orderedMaterial ordered = ::orderedOf(
        index(), ktm,
        [this, first](const orderIndex::order &order) { return m_ordered[size_t(&order - first)]; },
        except);
    leaveOutStock(&ordered, ktm);
    return ordered;
}

// Else it would count twice: as stock, and as something that is still to come.
void orderRegister::leaveOutStock(orderedMaterial *of, const QString &ktm)
{
    QHash<QString, decimal> counted; // by order and delivery
    std::erase_if(of->open, [&](const orderIndex::place &at) {
        const orderIndex::order &order = index().orders()[size_t(at.order)];
        const auto text = [&](orderIndex::field which) {
            return index().textOf(order.lines[size_t(at.line)], which);
        };
        const auto &stocked = currentStates(order.path, false).stocked;
        const QString delivery = text(orderIndex::delivery).trimmed();
        const auto all =
            stocked.constFind(stockedKey(QFileInfo(order.path).fileName(), ktm, delivery));
        const auto same =
            std::find_if(of->onTheWay.begin(), of->onTheWay.end(),
                         [&](const auto &one) { return one.first == text(orderIndex::unit); });
        if (delivery.isEmpty() || all == stocked.constEnd() || same == of->onTheWay.end())
            return false;
        decimal &before = counted[order.path + QLatin1Char('\n') + delivery];
        const decimal quantity = decimal::read(text(orderIndex::quantity)).value_or(decimal());
        const decimal own = qMin(*all - before, quantity);
        before += own;
        same->second = same->second - own;
        return own == quantity;
    });
    std::erase_if(of->onTheWay, [](const auto &one) { return one.second <= decimal(); });
}

orderedBefore orderRegister::beforeOf(const QString &ktm, const QString &except)
{
    const orderedMaterial ordered = orderedOf(ktm, except);
    const auto lineAt = [this](const orderIndex::place &at) -> const orderIndex::line & {
        return index().orders()[size_t(at.order)].lines[size_t(at.line)];
    };
    const auto nameAt = [this](const orderIndex::place &at) {
        const orderIndex::order &order = index().orders()[size_t(at.order)];
        return order.number.trimmed().isEmpty() ? QFileInfo(order.path).completeBaseName()
                                                : order.number.trimmed();
    };
    orderedBefore before;
    before.onTheWay = ordered.onTheWay;
    for (const orderIndex::place &at : ordered.open) {
        const auto text = [&](orderIndex::field which) {
            return index().textOf(lineAt(at), which).trimmed();
        };
        QString line =
            QStringLiteral("%1: %2 %3")
                .arg(nameAt(at), text(orderIndex::quantity), labels::shown(text(orderIndex::unit)));
        if (!text(orderIndex::wait).isEmpty())
            line += QLatin1String(", ") + text(orderIndex::wait);
        before.open.append(line);
    }
    if (ordered.last) {
        before.last.date = index().orders()[size_t(ordered.last->order)].date;
        before.last.order = nameAt(*ordered.last);
        before.last.price = index().textOf(lineAt(*ordered.last), orderIndex::price);
        before.last.unit = index().textOf(lineAt(*ordered.last), orderIndex::unit);
    }
    return before;
}

QStringList orderRegister::faults()
{
    QStringList all;
    for (auto &[folder, states] : m_states) {
        states.file.now();
        if (!states.file.fault().isEmpty())
            all.append(QDir::toNativeSeparators(states.file.path()) + QLatin1String(": ")
                       + states.file.fault());
    }
    return all;
}

QString orderRegister::nextNumber()
{
    QStringList used;
    // The parts of an order have its number, and theirs behind it.
    QSet<QString> parts;
    for (const orderIndex::order &order : index().orders())
        for (const QString &part :
             currentStates(order.path, false).parts.value(QFileInfo(order.path).fileName()))
            parts.insert(part);
    for (const orderIndex::order &order : index().orders())
        if (!order.number.trimmed().isEmpty() && !parts.contains(order.path))
            used.append(order.number.trimmed());
    return nextOrderNumber(used, QDate::currentDate());
}

bool orderRegister::noteSent(const QString &orderPath, const sending &of, configStruct &config,
                             QString *fault)
{
    const QFileInfo file(orderPath);
    const QString copy =
        QStringLiteral("sent/%1 %2.xml")
            .arg(file.completeBaseName(), of.time.toString(QStringLiteral("yyyy.MM.dd hhmmss")));
    const QString target = file.absolutePath() + QLatin1Char('/') + copy;
    QFile order(orderPath);
    if (!QDir().mkpath(QFileInfo(target).path()) || !order.copy(target)) {
        *fault = order.error() != QFile::NoError ? order.errorString()
                                                 : QDir::toNativeSeparators(target);
        return false;
    }
    const bool noted = statesOf(orderPath).file.change(
        [&](kiv_mat_orderStatesStruct &states) {
            auto state = std::make_unique<orderStateStruct>();
            state->file = file.fileName();
            state->number = of.number;
            state->sent = of.time.toString(timeForm);
            state->by = of.by;
            state->to = of.to;
            state->copy = copy;
            states.orders.push_back(std::move(state));
            return true;
        },
        config, fault);
    if (!noted)
        QFile::remove(target);
    m_orderedAt = -1;
    return noted;
}

bool orderRegister::takeBackSent(const QString &orderPath, configStruct &config, QString *fault)
{
    const QString name = QFileInfo(orderPath).fileName();
    m_orderedAt = -1;
    return statesOf(orderPath).file.change(
        [&name](kiv_mat_orderStatesStruct &states) {
            const size_t before = states.orders.size();
            std::erase_if(states.orders, [&name](const auto &one) { return one->file == name; });
            return states.orders.size() != before;
        },
        config, fault);
}

bool orderRegister::noteParted(const QString &orderPath, const QStringList &files,
                               configStruct &config, QString *fault)
{
    QStringList names;
    for (const QString &file : files)
        names.append(QFileInfo(file).fileName());
    m_orderedAt = -1;
    return statesOf(orderPath).file.change(
        [&](kiv_mat_orderStatesStruct &states) {
            auto parted = std::make_unique<partedOrderStruct>();
            parted->file = QFileInfo(orderPath).fileName();
            parted->parts = names.join(QLatin1Char('/'));
            parted->date = QDateTime::currentDateTime().toString(timeForm);
            parted->by = userName();
            states.parted.push_back(std::move(parted));
            return true;
        },
        config, fault);
}

QString orderRegister::sentCopy(const QString &orderPath)
{
    const orderStateStruct *state = sentState(orderPath);
    if (!state || state->copy.isEmpty())
        return {};
    const QString path =
        QDir::cleanPath(QFileInfo(orderPath).absoluteDir().absoluteFilePath(state->copy));
    // A file of states names no file elsewhere.
    const bool isBelow = path.startsWith(QFileInfo(orderPath).absolutePath() + QLatin1Char('/'));
    return isBelow && QFileInfo(path).isFile() ? path : QString();
}
