// bom-import and bom-diff: a list of parts becomes a BOM list, and two of them are compared.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "bom/bomDiff.h"
#include "bom/bomImport.h"
#include "util/files.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace cli {

namespace {

QString translated(const char *text) { return QCoreApplication::translate("cli", text); }

// CAPTION=FIELD, or NUMBER=FIELD for a column without a caption. The last "=" counts.
bool applyMap(const QStringList &maps, const partsTable &table, partsColumns::guess *columns,
              QString *fault)
{
    for (const QString &map : maps) {
        const QString caption = map.section(QLatin1Char('='), 0, -2).trimmed();
        const QString name = map.section(QLatin1Char('='), -1).trimmed();
        const partsColumns::field field = partsColumns::fieldNamed(name);
        if (field == partsColumns::none && name != partsColumns::nameOf(partsColumns::none)) {
            QStringList names;
            for (int i = 0; i < partsColumns::fieldCount; ++i)
                names.append(partsColumns::nameOf(partsColumns::field(i)));
            *fault = translated(QT_TRANSLATE_NOOP("cli", "%1 is no field; there are: %2"))
                         .arg(name, names.join(QLatin1String(", ")));
            return false;
        }
        int column = columns->header < 0 ? -1 : table.rows[columns->header].indexOf(caption);
        bool isNumber = false;
        const int number = caption.toInt(&isNumber);
        if (column < 0 && isNumber)
            column = number - 1;
        if (column < 0 || column >= columns->fields.size()) {
            *fault =
                translated(QT_TRANSLATE_NOOP("cli", "no column has the caption %1")).arg(caption);
            return false;
        }
        if (!partsColumns::mayBeSeveral(field) && columns->columnOf(field) >= 0)
            columns->fields[columns->columnOf(field)] = partsColumns::none;
        columns->fields[column] = field;
    }
    return true;
}

void printColumns(const partsTable &table, const partsColumns::guess &columns)
{
    for (int i = 0; i < columns.fields.size(); ++i)
        if (columns.fields[i] != partsColumns::none)
            err() << translated(QT_TRANSLATE_NOOP("cli", "column %1: %2"))
                         .arg(columns.header < 0 ? QString::number(i + 1)
                                                 : table.rows[columns.header][i],
                              partsColumns::captionOf(columns.fields[i]))
                  << '\n';
}

void printDoubtful(const bomImport::staged &lines)
{
    for (const QString &remark : lines.remarks)
        err() << remark << '\n';
    for (const bomImport::stagedLine &line : lines.lines) {
        const bomImport::state state = line.stateOf();
        if (state == bomImport::state::matched && line.line.remarks.isEmpty())
            continue;
        QStringList texts{bomImport::stateText(state)};
        if (state == bomImport::state::ambiguous)
            texts.append(QCoreApplication::translate("cli", "%n material(s)", nullptr,
                                                     int(line.candidates.size())));
        texts += line.line.remarks;
        err() << line.line.designators.join(QLatin1Char(' ')).left(40) << '\t' << line.line.name()
              << '\t' << texts.join(QLatin1String(", ")) << '\n';
    }
}

int runBomImport(const QStringList &arguments)
{
    parser options(bomImportCommand, QStringLiteral("FILE"), 1, 1);
    const QCommandLineOption database = databaseOption(QT_TRANSLATE_NOOP(
        "cli",
        "A material database that the parts are looked for in. May be given several times."));
    const QCommandLineOption output =
        outputOption(QT_TRANSLATE_NOOP("cli", "Where the BOM list goes."));
    const QCommandLineOption map(
        QStringLiteral("map"),
        translated(QT_TRANSLATE_NOOP("cli", "What a column holds, by its caption or number. "
                                            "May be given several times.")),
        QStringLiteral("CAPTION=FIELD"));
    const QCommandLineOption report(
        QStringLiteral("report"),
        translated(QT_TRANSLATE_NOOP("cli", "Where the table of all lines goes, as CSV.")),
        QStringLiteral("REPORT.csv"));
    const QCommandLineOption separator(
        QStringLiteral("separator"),
        translated(QT_TRANSLATE_NOOP("cli", "What parts the fields of a text.")),
        QStringLiteral("CHARACTER"));
    const QCommandLineOption encoding(
        QStringLiteral("encoding"), translated(QT_TRANSLATE_NOOP("cli", "The encoding of a text.")),
        QStringLiteral("NAME"));
    const QCommandLineOption sheet(
        QStringLiteral("sheet"),
        translated(QT_TRANSLATE_NOOP("cli", "The sheet of a workbook, from 1.")),
        QStringLiteral("NUMBER"));
    const QCommandLineOption json = jsonOption();
    options.addOptions({database, output, map, report, separator, encoding, sheet, json});
    if (!options.accept(arguments))
        return options.code();
    const QString target = options.value(output);
    if (target.isEmpty())
        return refuseCall(bomImportCommand, translated(QT_TRANSLATE_NOOP(
                                                "cli", "give the BOM list to write with -o")));

    const QString source = options.positionalArguments().at(0);
    partsTableOptions form;
    if (options.isSet(separator))
        form.separator = options.value(separator) == QLatin1String("tab")
                             ? QLatin1Char('\t')
                             : options.value(separator).at(0);
    form.encoding = options.value(encoding);
    if (options.isSet(sheet))
        form.sheet = options.value(sheet).toInt() - 1;
    QString fault;
    const auto table = readPartsTable(source, form, &fault);
    if (!table) {
        err() << source << ": " << fault << '\n' << Qt::flush;
        return refused;
    }
    partsColumns::guess columns = partsColumns::guessed(*table);
    if (!applyMap(options.values(map), *table, &columns, &fault))
        return refuseCall(bomImportCommand, fault);
    databaseSet databases;
    if (!databases.load(options.values(database)))
        return refused;

    const QString folder = QFileInfo(target).absolutePath();
    const auto decisions = bomImport::readDecisions(folder, &fault);
    if (!fault.isEmpty())
        err() << bomImport::decisionsFile(folder) << ": " << fault << '\n';
    std::vector<ktmIndex::entry> materials;
    for (const auto &one : databases.all())
        for (const auto &group : one->groups)
            for (const auto &material : group->items)
                materials.push_back({material.get(), group.get(), one.get()});
    bomImport::staged lines;
    bomImport::stage(linesOf(*table, columns), partsMatcher(materials), bomImport::asMap(decisions),
                     &lines);
    if (lines.lines.empty()) {
        printColumns(*table, columns);
        err() << source << ": "
              << translated(QT_TRANSLATE_NOOP("cli", "holds no parts; name its columns with --map"))
              << '\n'
              << Qt::flush;
        return refused;
    }
    bomImport::unknownParts known = bomImport::unknownIn(folder);
    const int written =
        writeDocument(target, *bomImport::bomOf(lines, &known, QDate::currentDate()));
    if (written != done)
        return written;
    if (options.isSet(report)
        && !files::writeText(options.value(report), bomImport::reportOf(lines)))
        return cannotWrite(options.value(report));

    const int matched = lines.count(bomImport::state::matched);
    const int ambiguous = lines.count(bomImport::state::ambiguous);
    const int unknown = lines.count(bomImport::state::unknown);
    const int leftOut = lines.count(bomImport::state::leftOut);
    if (options.isSet(json)) {
        printJson({{QStringLiteral("file"), source},
                   {QStringLiteral("form"), table->form},
                   {QStringLiteral("lines"), int(lines.lines.size())},
                   {QStringLiteral("matched"), matched},
                   {QStringLiteral("ambiguous"), ambiguous},
                   {QStringLiteral("unknown"), unknown},
                   {QStringLiteral("left_out"), leftOut}});
    } else {
        printColumns(*table, columns);
        printDoubtful(lines);
        out() << "lines: " << lines.lines.size() << '\n'
              << "matched: " << matched << '\n'
              << "ambiguous: " << ambiguous << '\n'
              << "unknown: " << unknown << '\n'
              << "left_out: " << leftOut << '\n';
    }
    out() << Qt::flush;
    err() << Qt::flush;
    return ambiguous + unknown > 0 ? refused : done;
}

// As diff tells it: 1 is no fault.
int runBomDiff(const QStringList &arguments)
{
    constexpr int notCompared = 2;
    parser options(bomDiffCommand, QStringLiteral("BEFORE AFTER"), 2, 2);
    const QCommandLineOption json = jsonOption();
    options.addOption(json);
    if (!options.accept(arguments))
        return options.code();
    const QStringList paths = options.positionalArguments();
    kiv_mat_bomStruct before;
    kiv_mat_bomStruct after;
    const QString isNot = translated(QT_TRANSLATE_NOOP("cli", "is no BOM list"));
    if (!readFile(paths[0], &before, isNot) || !readFile(paths[1], &after, isNot))
        return notCompared;
    const std::vector<bomDifference> rows = compareBoms(before, after);
    if (options.isSet(json)) {
        QJsonArray all;
        for (const bomDifference &row : rows)
            all.append(QJsonObject{
                {QStringLiteral("difference"), nameOf(row.what)},
                {QStringLiteral("designators"), QJsonArray::fromStringList(row.designators)},
                {QStringLiteral("ktm_before"), row.ktmBefore},
                {QStringLiteral("name_before"), row.nameBefore},
                {QStringLiteral("quantity_before"), numberOrText(row.quantityBefore)},
                {QStringLiteral("ktm_after"), row.ktmAfter},
                {QStringLiteral("name_after"), row.nameAfter},
                {QStringLiteral("quantity_after"), numberOrText(row.quantityAfter)}});
        printJson({{QStringLiteral("before"), paths[0]},
                   {QStringLiteral("after"), paths[1]},
                   {QStringLiteral("differences"), all}});
    } else {
        for (const bomDifference &row : rows)
            out() << lineOf(row) << '\n';
        out() << Qt::flush;
    }
    return rows.empty() ? done : refused;
}

} // namespace

const subcommand bomDiffCommand{
    "bom-diff",
    QT_TRANSLATE_NOOP(
        "cli", "Lists what two BOM lists of one board differ in, by designator. Exit code 1 when "
               "they differ, 2 when they cannot be compared."),
    runBomDiff};
const subcommand bomImportCommand{
    "bom-import",
    QT_TRANSLATE_NOOP("cli",
                      "Makes a BOM list of a list of parts: CSV, XLSX, ODS, XLS or KiCad XML. Exit "
                      "code 1 when parts were not found; the list is written all the same, with "
                      "these as unknown lines."),
    runBomImport};

} // namespace cli
