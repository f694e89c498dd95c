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
bool renameSources(std::vector<std::unique_ptr<Source>> &sources, firmKind kind,
                   const renameList &renames)
{
    bool changed = false;
    for (const auto &source : sources) {
        const QString after = nameAfter(renames, kind, source->name);
        changed |= after != source->name;
        source->name = after;
    }
    return changed;
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

std::vector<const materialStruct *> rename(kiv_mat_databaseStruct &database,
                                           const renameList &renames)
{
    std::vector<const materialStruct *> changed;
    if (renames.empty())
        return changed;
    forEachMaterial(database, [&](materialStruct &material) {
        const bool made = renameSources(material.manufacturers.items, manufacturer, renames);
        const bool sold = renameSources(material.suppliers.items, supplier, renames);
        if (made || sold)
            changed.push_back(&material);
    });
    return changed;
}

QUrl homePage(const QString &text)
{
    const QUrl url = QUrl::fromUserInput(text.trimmed());
    const bool isWeb =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return isWeb && url.host().contains(QLatin1Char('.')) ? url : QUrl();
}

} // namespace firmOperations
