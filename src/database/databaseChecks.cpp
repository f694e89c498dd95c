#include "database/databaseChecks.h"

#include "data/kiv_mat_databaseStruct.h"
#include "database/databaseFindings.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <map>

namespace {

// A material that may share its key with others. Keys are made only for those whose hashes meet:
// most materials of a large database share nothing.
struct candidate
{
    uint hash;
    int order; // in the file
    const materialStruct *material;
    const manufacturerStruct *manufacturer = nullptr;
};

// Groups the candidates by keyOf(candidate); shownOf(candidate) gives the key as the user knows it.
template <class KeyOf, class ShownOf>
std::vector<duplicateSet> sharing(std::vector<candidate> &candidates, const KeyOf &keyOf,
                                  const ShownOf &shownOf)
{
    std::sort(candidates.begin(), candidates.end(), [](const candidate &a, const candidate &b) {
        return a.hash != b.hash ? a.hash < b.hash : a.order < b.order;
    });
    std::map<int, duplicateSet> sets; // by the order of the first
    for (auto begin = candidates.begin(); begin != candidates.end();) {
        const auto end = std::find_if(
            begin, candidates.end(), [begin](const candidate &c) { return c.hash != begin->hash; });
        std::map<QString, std::vector<const candidate *>> byKey;
        if (end - begin > 1)
            for (auto c = begin; c != end; ++c)
                byKey[keyOf(*c)].push_back(&*c);
        for (const auto &entry : byKey) {
            duplicateSet set{shownOf(*entry.second.front()), {}};
            for (const candidate *c : entry.second)
                if (set.materials.empty() || set.materials.back() != c->material)
                    set.materials.push_back(c->material);
            if (set.materials.size() > 1)
                sets.emplace(entry.second.front()->order, std::move(set));
        }
        begin = end;
    }
    std::vector<duplicateSet> result;
    result.reserve(sets.size());
    for (auto &entry : sets)
        result.push_back(std::move(entry.second));
    return result;
}

// Equal for texts that differ in letter case or in blanks.
uint looseHash(const QString &text, uint hash)
{
    for (QChar c : text)
        if (!c.isSpace())
            hash = hash * 31 + c.toCaseFolded().unicode();
    return hash;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("databaseChecks", text).toHtmlEscaped();
}

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

} // namespace

std::vector<duplicateSet> duplicateKtms(const kiv_mat_databaseStruct &database)
{
    std::vector<candidate> candidates;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            if (!material->d_ktm.isEmpty())
                candidates.push_back(
                    {qHash(material->d_ktm), int(candidates.size()), material.get()});
    const auto ktm = [](const candidate &c) { return c.material->d_ktm; };
    return sharing(candidates, ktm, ktm);
}

std::vector<duplicateSet> duplicatePartNumbers(const kiv_mat_databaseStruct &database)
{
    std::vector<candidate> candidates;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            for (const auto &manufacturer : material->manufacturers.items)
                if (!isBlank(manufacturer->partNo))
                    candidates.push_back(
                        {looseHash(manufacturer->partNo, looseHash(manufacturer->name, 0)),
                         int(candidates.size()), material.get(), manufacturer.get()});
    const auto shown = [](const candidate &c) {
        return (c.manufacturer->name.trimmed() + QLatin1Char(' ')
                + c.manufacturer->partNo.trimmed())
            .trimmed();
    };
    const auto key = [&shown](const candidate &c) { return shown(c).toCaseFolded(); };
    return sharing(candidates, key, shown);
}

QString duplicateName(const duplicateSet &set, const materialStruct &material)
{
    return set.key == material.d_ktm ? material.d_name
                                     : material.d_ktm + QLatin1Char(' ') + material.d_name;
}

QStringList duplicateLines(const std::vector<duplicateSet> &duplicates)
{
    QStringList lines;
    for (const duplicateSet &set : duplicates) {
        QStringList names;
        for (const materialStruct *material : set.materials)
            names.append(QLatin1Char('[') + duplicateName(set, *material).toHtmlEscaped()
                         + QLatin1Char(']'));
        lines.append(QLatin1String("<b>") + set.key.toHtmlEscaped() + QLatin1String("</b> ")
                     + names.join(QLatin1String(", ")) + QLatin1String("<br>"));
    }
    return lines;
}

QString allKtmsAreUnique()
{
    return QCoreApplication::translate("databaseChecks", "All materials has unique KTM");
}

std::vector<incompleteMaterial> incompleteMaterials(const kiv_mat_databaseStruct &database)
{
    std::vector<incompleteMaterial> result;
    for (const auto &group : database.groups)
        for (const auto &item : group->items) {
            QStringList missing;
            for (const QLatin1String field : emptyFieldsOf(*item))
                missing.append(findingText::emptyField(field));
            if (!missing.isEmpty())
                result.push_back({item.get(), missing});
        }
    return result;
}

QString informationText(const kiv_mat_databaseStruct &database)
{
    int withStatus = 0;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            withStatus += !isBlank(material->information.status);
    const auto count = [](int number) {
        return QLatin1String(" [ ") + QString::number(number) + QLatin1String(" ]<br>");
    };
    const int materials = database.materialCount();
    return QLatin1String("<b>") + translated(QT_TRANSLATE_NOOP("databaseChecks", "Materials count"))
           + QLatin1String("</b>") + count(materials) + QLatin1String("<br>")
           + translated(QT_TRANSLATE_NOOP("databaseChecks", "Materials count in database"))
           + count(materials)
           + translated(QT_TRANSLATE_NOOP("databaseChecks", "Groups count in database"))
           + count(int(database.groups.size()))
           + translated(QT_TRANSLATE_NOOP("databaseChecks", "Materials count with status"))
           + count(withStatus) + QLatin1String("<br>");
}
