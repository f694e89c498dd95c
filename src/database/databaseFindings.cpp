#include "database/databaseFindings.h"

#include "data/XmlValidator.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "order/orderOperations.h"
#include "util/labels.h"
#include "util/messages.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("databaseFindings", text);
}

struct kindText
{
    const char *key;
    const char *text;
};
// By findingKind.
constexpr kindText kindTexts[findingKinds] = {
    {"duplicate", QT_TRANSLATE_NOOP("databaseFindings", "Duplicate")},
    {"empty", QT_TRANSLATE_NOOP("databaseFindings", "Empty field")},
    {"ktm", QT_TRANSLATE_NOOP("databaseFindings", "KTM")},
    {"cpv", QT_TRANSLATE_NOOP("databaseFindings", "CPV")},
    {"link", QT_TRANSLATE_NOOP("databaseFindings", "Link")},
    {"file", QT_TRANSLATE_NOOP("databaseFindings", "Missing file")},
    {"firm", QT_TRANSLATE_NOOP("databaseFindings", "Firm")},
    {"status", QT_TRANSLATE_NOOP("databaseFindings", "Not to be ordered")}};

namespace reason {
constexpr const char *sameKtm = QT_TRANSLATE_NOOP("databaseFindings", "the same KTM has: %1");
constexpr const char *samePart =
    QT_TRANSLATE_NOOP("databaseFindings", "the same part number has: %1");
constexpr const char *empty = QT_TRANSLATE_NOOP("databaseFindings", "empty");
constexpr const char *noSource =
    QT_TRANSLATE_NOOP("databaseFindings", "neither a manufacturer nor a supplier");
constexpr const char *namelessMaker =
    QT_TRANSLATE_NOOP("databaseFindings", "a manufacturer without a name");
constexpr const char *namelessSupplier =
    QT_TRANSLATE_NOOP("databaseFindings", "a supplier without a name");
constexpr const char *ktmForm =
    QT_TRANSLATE_NOOP("databaseFindings", "\"%1\" has not the form XXXXXX-XX.XX-XXXXXX");
constexpr const char *cpvForm =
    QT_TRANSLATE_NOOP("databaseFindings", "\"%1\" has not the form of a CPV code");
constexpr const char *linkEmpty =
    QT_TRANSLATE_NOOP("databaseFindings", "an attached file without an address");
constexpr const char *linkForm = QT_TRANSLATE_NOOP("databaseFindings", "no proper address: %1");
constexpr const char *linkDead = QT_TRANSLATE_NOOP("databaseFindings", "does not answer: %1");
constexpr const char *fileMissing = QT_TRANSLATE_NOOP("databaseFindings", "there is no file %1");
constexpr const char *unknownMaker =
    QT_TRANSLATE_NOOP("databaseFindings", "no manufacturer of the register: %1");
constexpr const char *unknownSupplier =
    QT_TRANSLATE_NOOP("databaseFindings", "no supplier of the register: %1");
constexpr const char *notOrderable = QT_TRANSLATE_NOOP(
    "databaseFindings", "a status not valid for ordering, but BOM lists use it: %1");
} // namespace reason

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

QString loosely(const QString &name) { return name.simplified().toCaseFolded(); }

// What is to be filled in, by the key of its column.
struct wantedField
{
    const char *key;
    const QString &(*read)(const materialStruct &);
    QString (*caption)();
};
constexpr wantedField wantedFields[] = {
    {"d_ktm", [](const materialStruct &m) -> const QString & { return m.d_ktm; }, labels::ktm},
    {"d_cpv", [](const materialStruct &m) -> const QString & { return m.d_cpv; }, labels::cpv},
    {"d_name", [](const materialStruct &m) -> const QString & { return m.d_name; }, labels::name},
    {"d_description", [](const materialStruct &m) -> const QString & { return m.d_description; },
     labels::description},
    {"d_price", [](const materialStruct &m) -> const QString & { return m.d_price; },
     labels::price},
    {"d_unit", [](const materialStruct &m) -> const QString & { return m.d_unit; }, labels::unit},
    {"status", [](const materialStruct &m) -> const QString & { return m.information.status; },
     labels::status}};

const QLatin1String ktmField("d_ktm");
const QLatin1String cpvField("d_cpv");
const QLatin1String nameField("d_name");
const QLatin1String makersField("manufacturers");
const QLatin1String suppliersField("suppliers");
const QLatin1String fileField("file");
const QLatin1String statusField("status");
constexpr int mostNamed = 3;

QString andMore(const QStringList &named, int all)
{
    QString text = named.join(QLatin1String(", "));
    if (const int more = all - int(named.size()); more > 0)
        text += QLatin1Char(' ')
                + QCoreApplication::translate("databaseFindings", "and %n more", nullptr, more);
    return text;
}

enum class linkForm
{
    good,
    bad,
    file // the name of a file
};

// A text of a wrong form is told from a file by how it begins.
linkForm formOf(const QString &link)
{
    const QUrl url(link);
    const QString scheme = url.scheme();
    if (scheme == QLatin1String("file"))
        return linkForm::file;
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https")
        || scheme == QLatin1String("ftp"))
        return url.isValid() && !url.host().isEmpty() ? linkForm::good : linkForm::bad;
    if (scheme == QLatin1String("mailto"))
        return url.isValid() && url.path().contains(QLatin1Char('@')) ? linkForm::good
                                                                      : linkForm::bad;
    const bool isMeantAsAddress = link.startsWith(QLatin1String("http"), Qt::CaseInsensitive)
                                  || link.startsWith(QLatin1String("www."), Qt::CaseInsensitive)
                                  || link.contains(QLatin1String("://"));
    return isMeantAsAddress ? linkForm::bad : linkForm::file;
}

// The key under which a manufacturer's part is looked up; empty without a part number.
QString partKey(const manufacturerStruct &manufacturer)
{
    return isBlank(manufacturer.partNo)
               ? QString()
               : (manufacturer.name.trimmed() + QLatin1Char('\t') + manufacturer.partNo.trimmed())
                     .toCaseFolded();
}

// Calls with each key of a material and the index that it belongs to.
template <class Use>
void forKeys(const materialStruct &material, const Use &use)
{
    if (!material.d_ktm.isEmpty())
        use(true, material.d_ktm);
    for (const auto &manufacturer : material.manufacturers.items)
        if (const QString key = partKey(*manufacturer); !key.isEmpty())
            use(false, key);
}

} // namespace

// --- Findings
// -------------------------------------------------------------------------------------

const xmlData *finding::record() const
{
    return material ? static_cast<const xmlData *>(material) : group;
}

bool finding::isSameFault(const finding &other) const
{
    return record() == other.record() && kind == other.kind && reason == other.reason
           && field == other.field && detail == other.detail;
}

QString findingText::key(findingKind kind) { return QLatin1String(kindTexts[int(kind)].key); }

QString findingText::kind(findingKind kind) { return translated(kindTexts[int(kind)].text); }

std::optional<findingKind> findingText::kindOf(const QString &key)
{
    for (int kind = 0; kind < findingKinds; ++kind)
        if (key == QLatin1String(kindTexts[kind].key))
            return findingKind(kind);
    return std::nullopt;
}

QString findingText::emptyField(QLatin1String key)
{
    for (const wantedField &wanted : wantedFields)
        if (key == QLatin1String(wanted.key))
            return wanted.caption();
    return labels::manufacturers() + QLatin1String(" / ") + labels::suppliers();
}

QString findingText::field(const finding &of)
{
    if (of.reason == reason::noSource)
        return emptyField(of.field);
    return of.field == makersField      ? labels::manufacturers()
           : of.field == suppliersField ? labels::suppliers()
           : of.field == fileField      ? labels::file()
                                        : emptyField(of.field);
}

QString findingText::reason(const finding &of)
{
    const QString text = translated(of.reason);
    return of.detail.isEmpty() ? text : text.arg(of.detail);
}

QStringList findingText::captions()
{
    return {translated(QT_TRANSLATE_NOOP("databaseFindings", "Kind")),
            labels::ktm(),
            labels::material(),
            labels::group(),
            translated(QT_TRANSLATE_NOOP("databaseFindings", "Field")),
            translated(QT_TRANSLATE_NOOP("databaseFindings", "Reason"))};
}

QStringList findingText::cells(const finding &of)
{
    return {kind(of.kind), of.ktm, of.name, of.groupName, field(of), reason(of)};
}

exportResult exportFindings(const std::vector<const finding *> &findings, const QString &path,
                            const progressFunction &progress)
{
    const tableFile::content table{
        QStringLiteral("Checks"),
        findingText::captions(),
        int(findings.size()),
        [&findings](int row) { return findingText::cells(*findings[size_t(row)]); },
        {}};
    return exportTable(table, path, progress);
}

std::vector<QLatin1String> emptyFieldsOf(const materialStruct &material)
{
    std::vector<QLatin1String> empty;
    for (const wantedField &wanted : wantedFields)
        if (isBlank(wanted.read(material)))
            empty.emplace_back(wanted.key);
    if (material.manufacturers.items.empty() && material.suppliers.items.empty())
        empty.push_back(makersField);
    return empty;
}

// --- What is looked up once
// -----------------------------------------------------------------------

// Many materials have the same code, and the same file, whose folder may be far away.
class databaseFindings::lookUps
{
public:
    explicit lookUps(const QStringList &folders)
        : m_folders(folders)
    {
    }

    bool isThere(const QString &name)
    {
        const auto known = m_files.constFind(name);
        return known != m_files.constEnd() ? *known : *m_files.insert(name, look(name));
    }

    bool isCpv(const QString &code)
    {
        const auto known = m_codes.constFind(code);
        return known != m_codes.constEnd() ? *known : *m_codes.insert(code, checkCpv(code));
    }

private:
    bool look(const QString &name) const
    {
        const QUrl url(name);
        const QString path = url.scheme() == QLatin1String("file") ? url.toLocalFile() : name;
        if (QFileInfo(path).isAbsolute())
            return QFileInfo::exists(path);
        return std::any_of(m_folders.begin(), m_folders.end(), [&path](const QString &folder) {
            return QFileInfo::exists(folder + QLatin1Char('/') + path);
        });
    }

    const QStringList &m_folders;
    QHash<QString, bool> m_files;
    QHash<QString, bool> m_codes;
};

// --- The index
// ------------------------------------------------------------------------------------

databaseFindings::databaseFindings(QStringList folders)
    : m_folders(std::move(folders))
{
}

databaseFindings::~databaseFindings() = default;

void databaseFindings::clear()
{
    m_places.clear();
    m_groups.clear();
    m_sameKtm.clear();
    m_samePart.clear();
    m_out.clear();
    m_touched.clear();
    m_touchedGroups.clear();
    m_gone.clear();
    m_next = 0;
}

void databaseFindings::touch(const std::vector<const materialStruct *> &materials)
{
    for (const materialStruct *material : materials)
        m_touched.insert(material);
}

// Those with the same key are touched, too: what is told of them names the others.
void databaseFindings::putIn(const materialStruct *material)
{
    forKeys(*material, [&](bool isKtm, const QString &key) {
        auto &same = (isKtm ? m_sameKtm : m_samePart)[key];
        // A part may stand twice in one material.
        if (!same.empty() && same.back() == material)
            return;
        same.push_back(material);
        if (same.size() > 1)
            touch(same);
    });
}

void databaseFindings::takeOut(const materialStruct *material)
{
    forKeys(*material, [&](bool isKtm, const QString &key) {
        sameKey &index = isKtm ? m_sameKtm : m_samePart;
        const auto same = index.find(key);
        if (same == index.end())
            return;
        std::erase(*same, material);
        touch(*same);
        if (same->empty())
            index.erase(same);
    });
}

void databaseFindings::willChange(const materialStruct *material)
{
    if (!m_places.contains(material) || m_out.contains(material))
        return;
    takeOut(material);
    m_out.insert(material);
}

void databaseFindings::willBeTaken(const materialStruct *material)
{
    if (!m_places.contains(material))
        return;
    if (!m_out.remove(material))
        takeOut(material);
    m_places.remove(material);
    m_touched.remove(material);
    m_gone.insert(material);
}

void databaseFindings::inserted(const materialStruct *material, const d_groupStruct *group)
{
    m_places.insert(material, {group, m_next++});
    m_out.insert(material);
}

void databaseFindings::inserted(const d_groupStruct *group)
{
    m_groups.insert(group, m_next++);
    m_touchedGroups.insert(group);
    for (const auto &material : group->items)
        inserted(material.get(), group);
}

// Findings of its materials name it, and those of others with the same keys.
void databaseFindings::changed(const d_groupStruct *group)
{
    m_touchedGroups.insert(group);
    for (const auto &material : group->items) {
        if (!m_places.contains(material.get()) || m_out.contains(material.get()))
            continue;
        m_touched.insert(material.get());
        forKeys(*material, [&](bool isKtm, const QString &key) {
            const sameKey &index = isKtm ? m_sameKtm : m_samePart;
            if (const auto same = index.constFind(key); same != index.constEnd())
                touch(*same);
        });
    }
}

void databaseFindings::willBeTaken(const d_groupStruct *group)
{
    m_groups.remove(group);
    m_touchedGroups.remove(group);
    m_gone.insert(group);
    for (const auto &material : group->items)
        willBeTaken(material.get());
}

void databaseFindings::touchAll(const std::function<bool(const materialStruct &)> &isConcerned)
{
    for (auto at = m_places.begin(); at != m_places.end(); ++at)
        if (isConcerned(*at.key()))
            m_touched.insert(at.key());
}

void databaseFindings::setFirms(const kiv_mat_firmStruct &firms)
{
    QSet<QString> names[2];
    for (const auto &firm : firms.manufacturers.items)
        names[0].insert(firm->name);
    for (const auto &firm : firms.suppliers.items)
        names[1].insert(firm->name);
    if (names[0] == m_firms[0] && names[1] == m_firms[1])
        return;
    const bool checkedBefore = checksFirms();
    QSet<QString> other[2];
    for (int kind : {0, 1}) {
        other[kind] = (names[kind] - m_firms[kind]) + (m_firms[kind] - names[kind]);
        m_firms[kind] = names[kind];
        m_likely[kind].clear();
        for (const QString &name : qAsConst(names[kind]))
            m_likely[kind].insert(loosely(name), name);
        for (const QString &name : QSet<QString>(other[kind]))
            other[kind].insert(loosely(name));
    }
    const bool all = checkedBefore != checksFirms();
    const auto namesOne = [&](const auto &sources, int kind) {
        return std::any_of(sources.items.begin(), sources.items.end(), [&](const auto &source) {
            return other[kind].contains(source->name)
                   || other[kind].contains(loosely(source->name));
        });
    };
    touchAll([&](const materialStruct &material) {
        return all || namesOne(material.manufacturers, 0) || namesOne(material.suppliers, 1);
    });
}

bool databaseFindings::checksFirms() const
{
    return !m_firms[0].isEmpty() || !m_firms[1].isEmpty();
}

void databaseFindings::setDeadLinks(const QHash<QString, QString> &links)
{
    if (links == m_deadLinks)
        return;
    const QHash<QString, QString> before = std::exchange(m_deadLinks, links);
    const auto concerns = [&](const auto &sources) {
        for (const auto &source : sources.items)
            for (const auto &file : source->files.items)
                if (before.value(file->name) != links.value(file->name))
                    return true;
        return false;
    };
    touchAll([&](const materialStruct &material) {
        return concerns(material.manufacturers) || concerns(material.suppliers);
    });
}

void databaseFindings::setLists(const QHash<QString, QStringList> &lists)
{
    if (lists == m_lists)
        return;
    const QHash<QString, QStringList> before = std::exchange(m_lists, lists);
    touchAll([&](const materialStruct &material) {
        return before.value(material.d_ktm) != lists.value(material.d_ktm);
    });
}

// --- Checking
// -------------------------------------------------------------------------------------

std::optional<std::vector<finding>> databaseFindings::check(const kiv_mat_databaseStruct &database,
                                                            const progressFunction &progress)
{
    clear();
    const int count = database.materialCount();
    m_places.reserve(count);
    m_sameKtm.reserve(count);
    for (const auto &group : database.groups) {
        m_groups.insert(group.get(), m_next++);
        for (const auto &material : group->items) {
            m_places.insert(material.get(), {group.get(), m_next++});
            putIn(material.get());
        }
    }
    m_touched.clear();
    std::vector<finding> found;
    lookUps known(m_folders);
    progressSteps steps(progress, count);
    for (const auto &group : database.groups) {
        find(group.get(), found);
        for (const auto &material : group->items) {
            find(material.get(), known, found);
            if (!steps.next()) {
                clear();
                return std::nullopt;
            }
        }
    }
    return found;
}

bool databaseFindings::hasChanges() const
{
    return !m_out.isEmpty() || !m_touched.isEmpty() || !m_touchedGroups.isEmpty()
           || !m_gone.isEmpty();
}

databaseFindings::changes databaseFindings::takeChanges(int most)
{
    const QSet<const materialStruct *> out = std::exchange(m_out, {});
    for (const materialStruct *material : out) {
        putIn(material);
        m_touched.insert(material);
    }
    changes taken;
    taken.records = std::exchange(m_gone, {});
    for (const d_groupStruct *group : std::exchange(m_touchedGroups, {})) {
        taken.records.insert(group);
        find(group, taken.found);
    }
    lookUps known(m_folders);
    for (auto at = m_touched.begin(); at != m_touched.end() && most-- > 0;
         at = m_touched.erase(at)) {
        taken.records.insert(*at);
        find(*at, known, taken.found);
    }
    std::stable_sort(taken.found.begin(), taken.found.end(),
                     [](const finding &a, const finding &b) { return a.place < b.place; });
    return taken;
}

QString databaseFindings::othersOf(const std::vector<const materialStruct *> &all,
                                   const materialStruct *one, bool withKtm) const
{
    QStringList named;
    for (const materialStruct *other : all) {
        const auto at = m_places.constFind(other);
        if (other == one || at == m_places.constEnd())
            continue;
        if (named.size() == mostNamed)
            break;
        named.append(((withKtm ? other->d_ktm + QLatin1Char(' ') : QString()) + other->d_name
                      + QLatin1String(" [") + at->group->name + QLatin1Char(']'))
                         .simplified());
    }
    return andMore(named, int(all.size()) - 1);
}

void databaseFindings::find(const d_groupStruct *group, std::vector<finding> &found) const
{
    finding one;
    one.group = group;
    one.groupName = group->name;
    one.place = m_groups.value(group);
    if (isBlank(group->name)) {
        one.field = nameField;
        one.reason = reason::empty;
        found.push_back(one);
    }
    if (group->cpv.isEmpty() || checkCpv(group->cpv))
        return;
    one.kind = findingKind::cpv;
    one.field = cpvField;
    one.reason = reason::cpvForm;
    one.detail = group->cpv;
    found.push_back(one);
}

void databaseFindings::find(const materialStruct *material, lookUps &known,
                            std::vector<finding> &found) const
{
    const place at = m_places.value(material);
    const size_t first = found.size();
    const auto add = [&](findingKind kind, QLatin1String field, const char *why,
                         const QString &detail = {}) {
        finding one;
        one.kind = kind;
        one.material = material;
        one.group = at.group;
        one.ktm = material->d_ktm;
        one.name = material->d_name;
        one.groupName = at.group->name;
        one.field = field;
        one.reason = why;
        one.detail = detail;
        one.place = at.number;
        // A firm or a link may stand in one material more than once.
        if (std::none_of(found.begin() + std::ptrdiff_t(first), found.end(),
                         [&one](const finding &other) { return one.isSameFault(other); }))
            found.push_back(std::move(one));
    };

    forKeys(*material, [&](bool isKtm, const QString &key) {
        const sameKey &index = isKtm ? m_sameKtm : m_samePart;
        const auto same = index.constFind(key);
        if (same != index.constEnd() && same->size() > 1)
            add(findingKind::duplicate, isKtm ? ktmField : makersField,
                isKtm ? reason::sameKtm : reason::samePart, othersOf(*same, material, !isKtm));
    });

    for (const QLatin1String field : emptyFieldsOf(*material))
        add(findingKind::empty, field, field == makersField ? reason::noSource : reason::empty);
    if (!isBlank(material->d_ktm) && !checkKtm(material->d_ktm))
        add(findingKind::ktm, ktmField, reason::ktmForm, material->d_ktm);
    if (!isBlank(material->d_cpv) && !known.isCpv(material->d_cpv))
        add(findingKind::cpv, cpvField, reason::cpvForm, material->d_cpv);

    const auto look = [&](const auto &sources, int kind) {
        const QLatin1String field = kind == 0 ? makersField : suppliersField;
        for (const auto &source : sources.items) {
            if (isBlank(source->name))
                add(findingKind::empty, field,
                    kind == 0 ? reason::namelessMaker : reason::namelessSupplier);
            else if (checksFirms() && !m_firms[kind].contains(source->name)) {
                const QString likely = m_likely[kind].value(loosely(source->name));
                add(findingKind::firm, field,
                    kind == 0 ? reason::unknownMaker : reason::unknownSupplier,
                    likely.isEmpty()
                        ? source->name
                        : translated(QT_TRANSLATE_NOOP("databaseFindings", "%1 (it has %2)"))
                              .arg(source->name, likely));
            }
            for (const auto &file : source->files.items) {
                const QString link = file->name.trimmed();
                const linkForm form = formOf(link);
                if (link.isEmpty())
                    add(findingKind::link, fileField, reason::linkEmpty);
                else if (form == linkForm::bad)
                    add(findingKind::link, fileField, reason::linkForm, link);
                else if (form == linkForm::file && !known.isThere(link))
                    add(findingKind::file, fileField, reason::fileMissing, link);
                if (const QString answer = m_deadLinks.value(file->name); !answer.isEmpty())
                    add(findingKind::link, fileField, reason::linkDead,
                        link + QLatin1String(" (") + answer + QLatin1Char(')'));
            }
        }
    };
    const auto lists = m_lists.constFind(material->d_ktm);
    if (lists != m_lists.constEnd() && !orderOperations::isOrderable(material->information.status))
        add(findingKind::status, statusField, reason::notOrderable,
            andMore(lists->mid(0, mostNamed), int(lists->size())));
    look(material->manufacturers, 0);
    look(material->suppliers, 1);
}
