#include "data/materialUses.h"

#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/programData.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

materialUses::use useOf(const orderItemStruct &item, int line, const QString &path)
{
    return {true, path, line, item.ktm, item.quantity, item.unit, item.target};
}

} // namespace

void materialUses::follow(const QStringList &named, const QStringList &found)
{
    QHash<QString, size_t> known;
    for (size_t i = 0; i < m_files.size(); ++i)
        known.insert(m_files[i].path, i);
    std::vector<document> wanted;
    QSet<QString> taken;
    const auto add = [&](const QString &path, bool isNamed) {
        const QString place = QFileInfo(path).absoluteFilePath();
        if (taken.contains(place))
            return;
        taken.insert(place);
        document file;
        file.state = fileState::of(path);
        const auto before = known.constFind(path);
        if (before != known.constEnd() && m_files[*before].state == file.state
            && m_files[*before].named == isNamed)
            file = std::move(m_files[*before]);
        file.path = path;
        file.named = isNamed;
        wanted.push_back(std::move(file));
    };
    for (const QString &path : named)
        add(path, true);
    for (const QString &path : found)
        add(path, false);
    m_files = std::move(wanted);
}

bool materialUses::readNext()
{
    const auto next = std::find_if(m_files.begin(), m_files.end(),
                                   [](const document &file) { return file.waits; });
    if (next == m_files.end())
        return false;
    next->waits = false;
    read(*next);
    return true;
}

bool materialUses::isComplete() const
{
    return std::none_of(m_files.begin(), m_files.end(),
                        [](const document &file) { return file.waits; });
}

void materialUses::read(document &file)
{
    const fileKind *kind = fileKinds::ofFile(file.path);
    if (!file.named && kind != &fileKinds::order && kind != &fileKinds::bom)
        return;
    if (kind == &fileKinds::order) {
        kiv_mat_zpStruct order;
        file.failed = !readChecked(file.path, &order, &file.fault);
        if (file.failed)
            return;
        int line = 0;
        for (const auto &item : order.orderItems.items)
            file.lines[item->ktm].push_back(useOf(*item, line++, file.path));
        return;
    }
    kiv_mat_bomStruct list;
    file.failed = !readChecked(file.path, &list, &file.fault);
    if (file.failed)
        return;
    int line = 0;
    for (const auto &item : list.materials)
        file.lines[item->d_ktm].push_back(
            {false, file.path, line++, item->d_ktm, item->d_quantity, {}, item->d_designator});
}

std::vector<materialUses::use> materialUses::of(const QString &ktm) const
{
    std::vector<use> all;
    if (ktm.isEmpty())
        return all;
    for (const document &file : m_files) {
        const auto lines = file.lines.constFind(ktm);
        if (lines != file.lines.constEnd())
            all.insert(all.end(), lines->begin(), lines->end());
    }
    return all;
}

QHash<QString, QStringList> materialUses::lists() const
{
    QHash<QString, QStringList> names;
    for (const document &file : m_files)
        for (auto lines = file.lines.begin(); lines != file.lines.end(); ++lines)
            if (!lines.key().isEmpty() && !lines->front().inOrder)
                names[lines.key()].append(QFileInfo(file.path).completeBaseName());
    return names;
}

std::vector<materialUses::use> materialUses::in(const kiv_mat_zpStruct &order, const QString &ktm)
{
    std::vector<use> all;
    int line = 0;
    for (const auto &item : order.orderItems.items) {
        if (!ktm.isEmpty() && item->ktm == ktm)
            all.push_back(useOf(*item, line, order.filePath));
        ++line;
    }
    return all;
}

QStringList materialUses::faults() const
{
    QStringList faults;
    for (const document &file : m_files)
        if (file.named && file.failed)
            faults.append(QFileInfo(file.path).fileName()
                          + (file.fault.isEmpty() ? QString() : QLatin1String(": ") + file.fault));
    return faults;
}
