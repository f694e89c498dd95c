// check-materials: the materials of a database that the editor would not accept. material: all of
// one, and where it is used.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/materialUses.h"
#include "database/materialChecks.h"
#include "database/materialPage.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace cli {

namespace {

int runCheckMaterials(const QStringList &arguments)
{
    parser options(checkMaterialsCommand, QStringLiteral("DB..."), 1, -1);
    const QCommandLineOption json = jsonOption();
    options.addOption(json);
    if (!options.accept(arguments))
        return options.code();
    databaseSet databases;
    if (!databases.load(options.positionalArguments()))
        return refused;
    QJsonArray faults;
    for (const auto &database : databases.all())
        for (const auto &group : database->groups)
            for (const auto &material : group->items)
                if (const auto fault = materialChecks::firstFault(*material)) {
                    faults.append(QJsonObject{{QStringLiteral("ktm"), material->d_ktm},
                                              {QStringLiteral("name"), material->d_name},
                                              {QStringLiteral("group"), group->name},
                                              {QStringLiteral("field"), fault->field},
                                              {QStringLiteral("fault"), fault->text}});
                    if (options.isSet(json))
                        continue;
                    out() << material->d_ktm.simplified() << '\t' << material->d_name.simplified()
                          << '\t' << fault->text << '\n';
                }
    if (options.isSet(json))
        printJson({{QStringLiteral("faults"), faults}});
    out() << Qt::flush;
    return faults.isEmpty() ? done : refused;
}

// One line for each text: caption, TAB, text.
void printText(const QString &caption, const QString &text)
{
    out() << caption << '\t' << text.simplified() << '\n';
}

template <class List>
void printSources(const QString &caption, const List &sources)
{
    for (const auto &source : sources.items) {
        printText(caption, source->name + QLatin1Char(' ') + source->partNo + QLatin1Char(' ')
                               + source->description);
        for (const auto &file : source->files.items)
            printText(labels::shown(file->type), file->name);
    }
}

template <class List>
QJsonArray sourcesJson(const List &sources)
{
    QJsonArray array;
    for (const auto &source : sources.items) {
        QJsonArray files;
        for (const auto &file : source->files.items)
            files.append(QJsonObject{{QStringLiteral("type"), file->type},
                                     {QStringLiteral("name"), file->name}});
        array.append(QJsonObject{{QStringLiteral("name"), source->name},
                                 {QStringLiteral("part_no"), source->partNo},
                                 {QStringLiteral("description"), source->description},
                                 {QStringLiteral("files"), files}});
    }
    return array;
}

void printMaterial(const ktmIndex::entry &found, const std::vector<materialUses::use> &uses)
{
    const materialStruct &material = *found.material;
    for (const materialPage::field &field : materialPage::filledFields(material))
        printText(field.caption, labels::shownIn(field.name, field.stored));
    printText(labels::group(), found.group->name);
    printSources(labels::manufacturer(), material.manufacturers);
    printSources(labels::supplier(), material.suppliers);
    for (const materialUses::use &use : uses)
        printText(use.inOrder ? QCoreApplication::translate("cli", "In the order")
                              : QCoreApplication::translate("cli", "In the BOM list"),
                  QCoreApplication::translate("cli", "%1, line %2: %3")
                      .arg(use.path)
                      .arg(use.line + 1)
                      .arg(use.quantity + QLatin1Char(' ') + use.detail));
    out() << '\n';
}

QJsonObject materialJson(const ktmIndex::entry &found, const std::vector<materialUses::use> &uses)
{
    QJsonObject fields;
    for (const materialPage::field &field : materialPage::filledFields(*found.material))
        fields.insert(field.name, field.stored);
    QJsonArray places;
    for (const materialUses::use &use : uses)
        places.append(QJsonObject{
            {QStringLiteral("file"), use.path},
            {QStringLiteral("kind"), use.inOrder ? QStringLiteral("order") : QStringLiteral("bom")},
            {QStringLiteral("line"), use.line + 1},
            {QStringLiteral("quantity"), numberOrText(use.quantity)},
            {use.inOrder ? QStringLiteral("target") : QStringLiteral("designator"), use.detail}});
    return {{QStringLiteral("ktm"), found.material->d_ktm},
            {QStringLiteral("group"), found.group->name},
            {QStringLiteral("fields"), fields},
            {QStringLiteral("manufacturers"), sourcesJson(found.material->manufacturers)},
            {QStringLiteral("suppliers"), sourcesJson(found.material->suppliers)},
            {QStringLiteral("uses"), places}};
}

int runMaterial(const QStringList &arguments)
{
    parser options(materialCommand, QStringLiteral("KTM..."), 1, -1);
    const QCommandLineOption database = databaseOption(
        QCoreApplication::translate("cli", "A material database. May be given several times."));
    const QCommandLineOption usedIn(
        {QStringLiteral("u"), QStringLiteral("used-in")},
        QCoreApplication::translate("cli", "A BOM list, a set of BOM lists or an order in which "
                                           "to look for the material. May be given several "
                                           "times."),
        QStringLiteral("FILE"));
    const QCommandLineOption json = jsonOption();
    options.addOptions({database, usedIn, json});
    if (!options.accept(arguments))
        return options.code();
    if (!options.isSet(database))
        return refuseCall(materialCommand,
                          QCoreApplication::translate("cli", "give a database with -d"));
    databaseSet databases;
    materialUses uses;
    if (!databases.load(options.values(database)) || !readUses(options.values(usedIn), &uses))
        return refused;
    QJsonArray all;
    int code = done;
    for (const QString &ktm : options.positionalArguments()) {
        const std::vector<ktmIndex::entry> materials = databases.index().all(ktm);
        if (materials.empty()) {
            err() << QCoreApplication::translate("cli", "no material has the KTM %1").arg(ktm)
                  << '\n'
                  << Qt::flush;
            code = refused;
        }
        for (const ktmIndex::entry &found : materials)
            if (options.isSet(json))
                all.append(materialJson(found, uses.of(ktm)));
            else
                printMaterial(found, uses.of(ktm));
    }
    if (options.isSet(json))
        printJson({{QStringLiteral("materials"), all}});
    out() << Qt::flush;
    return code;
}

} // namespace

const subcommand materialCommand{
    "material",
    QT_TRANSLATE_NOOP("cli", "Tells all of the materials with a KTM, and where they are used."),
    runMaterial};

const subcommand checkMaterialsCommand{
    "check-materials",
    QT_TRANSLATE_NOOP("cli", "Lists the materials that the editor would not accept, with the "
                             "reason. Exit code 1 when there are some."),
    runCheckMaterials};

} // namespace cli
