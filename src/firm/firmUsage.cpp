#include "firm/firmUsage.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/vocabulary.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

namespace firmOperations {

namespace {

QDate dateOf(const QString &text)
{
    return QDate::fromString(text.trimmed(), QStringLiteral("dd.MM.yyyy"));
}

// Takes what counts out of an order's file; false when it is none.
bool scan(const QString &path, orderedMaterials &order)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader reader(&file);
    if (!reader.readNextStartElement() || reader.name() != fileKinds::order.root)
        return false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("ktm"))
            order.ktms.insert(reader.readElementText(QXmlStreamReader::SkipChildElements));
        else if (reader.attributes().value(QLatin1String("type")) == optionKey::orderDate)
            order.date = dateOf(reader.attributes().value(QLatin1String("value1")).toString());
    }
    order.ktms.remove(QString());
    return !reader.hasError();
}

// The different firms that a material names.
template <class Source>
QSet<QString> firmsIn(const std::vector<std::unique_ptr<Source>> &sources, firmKind kind,
                      const renameList &renames)
{
    QSet<QString> firms;
    for (const auto &source : sources)
        firms.insert(nameAfter(renames, kind, source->name));
    return firms;
}

} // namespace

orderedMaterials orderedIn(const kiv_mat_zpStruct &order)
{
    orderedMaterials found;
    found.path = order.filePath;
    for (const auto &line : order.orderItems.items)
        if (!line->ktm.isEmpty())
            found.ktms.insert(line->ktm);
    found.date = dateOf(order.options.value(optionKey::orderDate));
    return found;
}

bool orderScan::update(const QStringList &folders, const progressFunction &progress)
{
    QHash<QString, scanned> files;
    QFileInfoList found;
    for (const QString &folder : folders)
        found +=
            QDir(folder).entryInfoList({QStringLiteral("*.xml")}, QDir::Files | QDir::Readable);
    int done = 0;
    bool goesOn = true;
    for (const QFileInfo &info : found) {
        const QString path = info.absoluteFilePath();
        const fileState state = fileState::of(path);
        scanned now = m_files.value(path);
        if (goesOn && !(now.state == state)) {
            now = {state, false, {path, {}, {}}};
            now.isOrder = scan(path, now.order);
            if (!now.order.date.isValid())
                now.order.date = info.lastModified().date();
        }
        files.insert(path, now);
        goesOn = goesOn && (!progress || progress(++done, found.size()));
    }
    m_files = std::move(files);
    return goesOn;
}

std::vector<orderedMaterials> orderScan::orders() const
{
    std::vector<orderedMaterials> all;
    for (const scanned &file : m_files)
        if (file.isOrder)
            all.push_back(file.order);
    return all;
}

figuresByName figuresOf(const std::vector<const kiv_mat_databaseStruct *> &databases,
                        const renameList &renames, const std::vector<orderedMaterials> &orders)
{
    QHash<QString, QVector<int>> ordersOfKtm;
    for (size_t i = 0; i < orders.size(); ++i)
        for (const QString &ktm : orders[i].ktms)
            ordersOfKtm[ktm].append(int(i));
    figuresByName figures;
    std::array<QHash<QString, QSet<int>>, firmKindCount> ordersOfFirm;
    const auto count = [&](const QSet<QString> &firms, firmKind kind, const QString &ktm) {
        const auto found = ordersOfKtm.constFind(ktm);
        for (const QString &firm : firms) {
            ++figures[kind][firm].materials;
            if (found != ordersOfKtm.cend())
                for (const int order : *found)
                    ordersOfFirm[kind][firm].insert(order);
        }
    };
    for (const kiv_mat_databaseStruct *database : databases)
        for (const auto &group : database->groups)
            for (const auto &material : group->items) {
                count(firmsIn(material->manufacturers.items, manufacturer, renames), manufacturer,
                      material->d_ktm);
                count(firmsIn(material->suppliers.items, supplier, renames), supplier,
                      material->d_ktm);
            }
    for (const firmKind kind : {manufacturer, supplier})
        for (auto firm = ordersOfFirm[kind].cbegin(); firm != ordersOfFirm[kind].cend(); ++firm) {
            firmFigures &its = figures[kind][firm.key()];
            its.orders = firm->size();
            for (const int order : *firm)
                its.lastUsed = qMax(its.lastUsed, orders[size_t(order)].date);
        }
    return figures;
}

} // namespace firmOperations
