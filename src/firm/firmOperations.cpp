#include "firm/firmOperations.h"

#include "data/kiv_mat_databaseStruct.h"

namespace firmOperations {

namespace {

// Calls visit(material) for every material of a database.
template <class Database, class Visit>
void forEachMaterial(Database &database, const Visit &visit)
{
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            visit(*material);
}

template <class Source>
void addChanges(const std::vector<std::unique_ptr<Source>> &sources, materialStruct *material,
                firmKind kind, const renameList &renames, std::vector<nameChange> &changes)
{
    for (const auto &source : sources)
        if (const QString after = nameAfter(renames, kind, source->name); after != source->name)
            changes.push_back({material, &source->name, source->name, after});
}

template <class Source>
void addUses(const std::vector<std::unique_ptr<Source>> &sources, const firmUse &use,
             const QSet<QString> &firms, firmKind kind, const renameList &renames,
             std::vector<firmUse> &uses)
{
    QStringList found;
    for (const auto &source : sources) {
        const QString name = nameAfter(renames, kind, source->name);
        if (name.isEmpty() || !firms.contains(name) || found.contains(name))
            continue;
        found.append(name);
        uses.push_back({name, use.material, use.database});
    }
}

} // namespace

QString nameAfter(const renameList &renames, firmKind kind, const QString &name)
{
    QString after = name;
    for (const renameStep &step : renames)
        after = step[kind].value(after, after);
    return after;
}

std::vector<firmUse> usesOf(const QSet<QString> &firms, firmKind kind,
                            const std::vector<const kiv_mat_databaseStruct *> &databases,
                            const renameList &renames)
{
    std::vector<firmUse> uses;
    for (const kiv_mat_databaseStruct *database : databases)
        forEachMaterial(*database, [&](const materialStruct &material) {
            const firmUse use{{}, &material, database};
            if (kind == manufacturer)
                addUses(material.manufacturers.items, use, firms, kind, renames, uses);
            else
                addUses(material.suppliers.items, use, firms, kind, renames, uses);
        });
    return uses;
}

QStringList useLines(const std::vector<firmUse> &uses)
{
    QStringList lines;
    for (const firmUse &use : uses)
        lines.append(QStringLiteral("<b>%1</b>: %2, %3 [%4]")
                         .arg(use.firm.toHtmlEscaped(), use.material->d_ktm.toHtmlEscaped(),
                              use.material->d_name.toHtmlEscaped(),
                              use.database->fileName.toHtmlEscaped()));
    return lines;
}

std::vector<nameChange> changesOf(kiv_mat_databaseStruct &database, const renameList &renames)
{
    std::vector<nameChange> changes;
    if (!renames.empty())
        forEachMaterial(database, [&](materialStruct &material) {
            addChanges(material.manufacturers.items, &material, manufacturer, renames, changes);
            addChanges(material.suppliers.items, &material, supplier, renames, changes);
        });
    return changes;
}

void applyNames(const std::vector<nameChange> &changes)
{
    for (const nameChange &change : changes)
        *change.name = change.after;
}

void revertNames(const std::vector<nameChange> &changes)
{
    for (const nameChange &change : changes)
        *change.name = change.before;
}

QUrl homePage(const QString &text)
{
    const QUrl url = QUrl::fromUserInput(text.trimmed());
    const bool isWeb =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return isWeb && url.host().contains(QLatin1Char('.')) ? url : QUrl();
}

} // namespace firmOperations
