#include "bom/bomImport.h"

#include "bom/partsTable.h"
#include "bom/partsTexts.h"
#include "data/loaders.h"
#include "util/decimal.h"
#include "util/files.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace bomImport {

namespace {

const QString unknownStart = QStringLiteral("999999-99.99-");

struct stateRow
{
    const char *name;
    const char *text;
};

const std::array<stateRow, 4> states{{
    {"matched", QT_TRANSLATE_NOOP("bomImport", "matched")},
    {"ambiguous", QT_TRANSLATE_NOOP("bomImport", "to be chosen")},
    {"unknown", QT_TRANSLATE_NOOP("bomImport", "unknown")},
    {"left_out", QT_TRANSLATE_NOOP("bomImport", "left out")},
}};

QString csvLine(const QStringList &fields) { return text::csvRow(fields) + QLatin1Char('\n'); }

// The same name has the same KTM everywhere, so that needs of several boards add up.
QString ktmOfUnknown(const QString &name, unknownParts *known)
{
    const QString found = known->key(name);
    if (!found.isEmpty())
        return found;
    const QString last = known->isEmpty() ? QString() : known->lastKey();
    constexpr int digits = 5;
    const QString ktm = unknownStart
                        + QString::number(last.mid(unknownStart.size()).toInt() + 1)
                              .rightJustified(digits, QLatin1Char('0'));
    known->insert(ktm, name);
    return ktm;
}

} // namespace

QString stateText(state of)
{
    return QCoreApplication::translate("bomImport", states[size_t(of)].text);
}
QString stateName(state of) { return QLatin1String(states[size_t(of)].name); }

state stagedLine::stateOf() const
{
    if (line.isLeftOut)
        return state::leftOut;
    if (chosen >= 0)
        return state::matched;
    return candidates.empty() ? state::unknown : state::ambiguous;
}

int staged::count(state of) const
{
    return int(std::count_if(lines.begin(), lines.end(),
                             [of](const stagedLine &line) { return line.stateOf() == of; }));
}

bool stage(const partsList &list, const partsMatcher &materials, const matchDecisions &decisions,
           staged *to, const progressFunction &progress)
{
    staged lines;
    lines.remarks = list.remarks;
    for (const partsLine &line : list.lines) {
        if (progress && !progress(qint64(lines.lines.size()), list.lines.size()))
            return false;
        matchResult result = materials.match(line, decisions);
        lines.lines.push_back({line, std::move(result.candidates), result.isMatched ? 0 : -1});
    }
    *to = std::move(lines);
    return true;
}

// --- What was decided before

QString decisionsFile(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("bom_decisions.csv"));
}

std::vector<decision> readDecisions(const QString &folder, QString *fault)
{
    std::vector<decision> all;
    const QString path = decisionsFile(folder);
    if (!QFileInfo::exists(path))
        return all;
    partsTableOptions options;
    options.separator = QLatin1Char(';');
    const auto table = readPartsTable(path, options, fault);
    if (!table)
        return all;
    if (table->rows.first().size() < 2 || table->rows.first()[0] != QLatin1String("key")) {
        *fault =
            QCoreApplication::translate("bomImport", "it has no column \"key\" before a semicolon");
        return all;
    }
    for (const QStringList &row : table->rows)
        if (row.size() > 1 && row[0] != QLatin1String("key"))
            all.push_back({row[0], row[1], row.value(2), row.value(3)});
    return all;
}

bool writeDecisions(const QString &folder, const std::vector<decision> &all, QString *fault)
{
    QString table = csvLine({QStringLiteral("key"), QStringLiteral("ktm"), QStringLiteral("date"),
                             QStringLiteral("words")});
    for (const decision &one : all)
        table += csvLine({one.key, one.ktm, one.date, one.words});
    const QString path = decisionsFile(folder);
    if (files::writeText(path, table))
        return true;
    *fault = files::whyNotWritten(path);
    return false;
}

matchDecisions asMap(const std::vector<decision> &all)
{
    matchDecisions map;
    for (const decision &one : all)
        map.insert(one.key, one.ktm);
    return map;
}

void takeChosen(const staged &lines, const QDate &today, std::vector<decision> *all)
{
    for (const stagedLine &staged : lines.lines) {
        const matchCandidate *match = staged.match();
        if (!match || match->reason != matchReason::chosen)
            continue;
        const QString key = staged.line.key();
        if (key.isEmpty())
            continue;
        std::erase_if(*all, [&](const decision &one) { return one.key == key; });
        all->push_back({key, match->ktm, today.toString(Qt::ISODate), staged.line.name()});
    }
}

// --- Writing

unknownParts unknownIn(const QString &folder)
{
    unknownParts known;
    const QFileInfoList lists = QDir(folder).entryInfoList({QStringLiteral("*.xml")}, QDir::Files);
    for (const QFileInfo &file : lists) {
        kiv_mat_bomStruct bom;
        if (fileKinds::ofFile(file.filePath()) != &fileKinds::bom
            || loadDocument(file.filePath(), &bom) != 0)
            continue;
        for (const auto &line : bom.materials)
            if (line->d_ktm.startsWith(unknownStart) && !known.contains(line->d_ktm))
                known.insert(line->d_ktm, line->d_name);
    }
    return known;
}

std::unique_ptr<kiv_mat_bomStruct> bomOf(const staged &lines, unknownParts *known,
                                         const QDate &today)
{
    struct written
    {
        materialStruct *record;
        QStringList designators;
        decimal quantity;
    };
    auto bom = std::make_unique<kiv_mat_bomStruct>();
    bom->update = today.toString(QStringLiteral("dd.MM.yyyy"));
    std::vector<written> all;
    QHash<QString, size_t> places;
    for (const stagedLine &staged : lines.lines) {
        if (staged.line.isLeftOut)
            continue;
        const matchCandidate *match = staged.match();
        const QString name = text::storable(match ? match->name : staged.line.name());
        const QString ktm = match ? match->ktm : ktmOfUnknown(name, known);
        const auto found = places.constFind(ktm);
        if (found == places.constEnd()) {
            bom->materials.push_back(std::make_unique<materialStruct>());
            bom->materials.back()->d_ktm = ktm;
            bom->materials.back()->d_name = name;
            places.insert(ktm, all.size());
            all.push_back({bom->materials.back().get(), {}, {}});
        }
        written &line = all[places.value(ktm)];
        line.designators += staged.line.designators;
        line.quantity += decimal::read(staged.line.quantity).value_or(decimal());
    }
    for (const written &line : all) {
        line.record->d_designator = text::storable(line.designators.join(QLatin1String(", ")));
        line.record->d_quantity = line.quantity.text();
    }
    return bom;
}

std::unique_ptr<materialStruct> materialOf(const partsLine &line)
{
    auto material = std::make_unique<materialStruct>();
    const QString number = line.partNumbers.value(0);
    const QString size = partsTexts::caseIn(line.package);
    material->d_name = text::storable(number.isEmpty() ? line.name() : number);
    material->d_value = text::storable(line.value);
    material->d_case = text::storable(size.isEmpty() ? line.package : size);
    material->d_description = text::storable(line.description);
    material->d_tolerance = text::storable(line.tolerance);
    material->d_voltage = text::storable(line.voltage);
    material->d_power = text::storable(line.power);
    const auto source = [](auto &list, auto record, const QString &name, const QString &partNo) {
        if (name.isEmpty() && partNo.isEmpty())
            return;
        record->name = text::storable(name);
        record->partNo = text::storable(partNo);
        list.append(std::move(record));
    };
    source(material->manufacturers, std::make_unique<manufacturerStruct>(), line.manufacturer,
           number);
    source(material->suppliers, std::make_unique<supplierStruct>(), line.supplier,
           line.supplierNumbers.value(0));
    return material;
}

QString reportOf(const staged &lines)
{
    QString table = csvLine(
        {QStringLiteral("line"), QStringLiteral("state"), QStringLiteral("reason"),
         QStringLiteral("confidence"), QStringLiteral("ktm"), QStringLiteral("name"),
         QStringLiteral("quantity"), QStringLiteral("designators"), QStringLiteral("part_number"),
         QStringLiteral("manufacturer"), QStringLiteral("value"), QStringLiteral("case"),
         QStringLiteral("candidates"), QStringLiteral("remarks")});
    for (const stagedLine &staged : lines.lines) {
        const partsLine &line = staged.line;
        const matchCandidate *match = staged.match();
        QStringList candidates;
        for (const matchCandidate &candidate : staged.candidates)
            candidates.append(candidate.ktm
                              + (candidate.differences.isEmpty()
                                     ? QString()
                                     : QStringLiteral(" (%1)").arg(
                                         candidate.differences.join(QLatin1String(", ")))));
        table +=
            csvLine({line.rows.isEmpty() ? QString() : QString::number(line.rows.first()),
                     stateName(staged.stateOf()), match ? reasonName(match->reason) : QString(),
                     match ? QString::number(confidenceOf(match->reason)) : QString(),
                     match ? match->ktm : QString(), match ? match->name : line.name(),
                     line.quantity, line.designators.join(QLatin1String(", ")),
                     line.partNumbers.join(QLatin1String(" ")), line.manufacturer, line.value,
                     line.package, match ? QString() : candidates.join(QLatin1String(", ")),
                     line.remarks.join(QLatin1String(", "))});
    }
    return table;
}

} // namespace bomImport
