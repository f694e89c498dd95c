#include "orders/orderRegister.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "util/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

QString orderRegister::statesIn(const QString &folder)
{
    return folder + QLatin1String("/order_states.xml");
}

bool orderRegister::update(const QStringList &folders, const progressFunction &progress)
{
    return index().update(folders, progress);
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

const orderStateStruct *orderRegister::sentState(const QString &orderPath)
{
    if (orderPath.isEmpty())
        return nullptr;
    folderStates &states = statesOf(orderPath);
    const kiv_mat_orderStatesStruct &now = states.file.now();
    if (states.seen != states.file.readings()) {
        states.seen = states.file.readings();
        states.byName.clear();
        for (const auto &one : now.orders)
            states.byName.insert(one->file, one.get());
    }
    return states.byName.value(QFileInfo(orderPath).fileName());
}

orderStage orderRegister::stageOf(const orderIndex::order &order)
{
    return order.stage == orderStage::edited && sentState(order.path) ? orderStage::sent
                                                                      : order.stage;
}

bool orderRegister::isOrdered(const orderIndex::order &order)
{
    return stageOf(order) != orderStage::edited;
}

orderedMaterial orderRegister::orderedOf(const QString &ktm, const QString &except)
{
    return ::orderedOf(
        index(), ktm, [this](const orderIndex::order &order) { return isOrdered(order); }, except);
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
    for (const orderIndex::order &order : index().orders())
        if (!order.number.trimmed().isEmpty())
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
            state->sent = of.time.toString(QStringLiteral("yyyy.MM.dd hh:mm"));
            state->by = of.by;
            state->to = of.to;
            state->copy = copy;
            states.orders.push_back(std::move(state));
            return true;
        },
        config, fault);
    if (!noted)
        QFile::remove(target);
    return noted;
}

bool orderRegister::takeBackSent(const QString &orderPath, configStruct &config, QString *fault)
{
    const QString name = QFileInfo(orderPath).fileName();
    return statesOf(orderPath).file.change(
        [&name](kiv_mat_orderStatesStruct &states) {
            const size_t before = states.orders.size();
            std::erase_if(states.orders, [&name](const auto &one) { return one->file == name; });
            return states.orders.size() != before;
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
