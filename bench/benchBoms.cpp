// From lists of parts to BOM lists, and from many of these to one order.
#include "benchSupport.h"

#include "bom/bomImport.h"
#include "bom/bomOperations.h"
#include "data/loaders.h"
#include "util/files.h"
#include "util/localeSetup.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace bomOperations;

namespace {

constexpr double allowed = 1.0;
constexpr int lists = 100;
constexpr int linesPerList = 500;

double since(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e9; }

using bomVector = std::vector<std::unique_ptr<kiv_mat_bomStruct>>;

// Lists whose lines are spread over the database; neighbouring lists share half of their materials.
bomVector makeLists(const kiv_mat_databaseStruct &database)
{
    std::vector<const materialStruct *> all;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            all.push_back(material.get());
    bomVector made;
    for (int i = 0; i < lists; ++i) {
        size_t at = size_t(i) * linesPerList / 2 * 37;
        auto &bom = *made.emplace_back(std::make_unique<kiv_mat_bomStruct>());
        for (int n = 0; n < linesPerList; ++n) {
            const materialStruct &of = *all[(at += 37) % all.size()];
            auto &line = *bom.materials.emplace_back(std::make_unique<materialStruct>());
            line.d_ktm = of.d_ktm;
            line.d_name = of.d_name;
            line.d_quantity = QString::number(n % 20 + 1);
            line.d_designator = QStringLiteral("R%1, R%2").arg(n).arg(n + 1);
        }
    }
    return made;
}

std::vector<bomSets> withSets(const bomVector &boms, size_t count)
{
    std::vector<bomSets> list;
    for (size_t i = 0; i < count; ++i)
        list.push_back({boms[i].get(), int(i) % 10 + 1});
    return list;
}

int order(const bomVector &boms, size_t count, const ktmIndex &materials, kiv_mat_zpStruct *into)
{
    return apply(planOf(demandOf(withSets(boms, count), materials), *into, {}, {}),
                 into);
}

// Into an order that has half of the lists already.
// ratio: the time over the allowed second.
void fromRecords(benchmark::State &state, const ktmIndex &materials, const bomVector &boms)
{
    double seconds = 0;
    for (auto _ : state) {
        kiv_mat_zpStruct made;
        order(boms, boms.size() / 2, materials, &made);
        QElapsedTimer timer;
        timer.start();
        state.counters["changes"] = order(boms, boms.size(), materials, &made);
        const double taken = since(timer);
        seconds += taken;
        state.SetIterationTime(taken);
        state.counters["lines"] = double(made.orderItems.items.size());
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / allowed;
}

// The lists' files checked and read, and all of it ordered anew. ratio as above.
void fromFiles(benchmark::State &state, const ktmIndex &materials, const bomVector &boms)
{
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/bomsXXXXXX");
    QStringList paths;
    for (const auto &bom : boms) {
        paths.append(folder.filePath(QStringLiteral("%1.xml").arg(paths.size())));
        if (saveXmlNoEvents(paths.last(), bom.get()) < 0) {
            state.SkipWithError("a list was not written");
            return;
        }
    }
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        bomVector read;
        QString error;
        for (const QString &path : paths)
            if (!readBom(path, read.emplace_back(std::make_unique<kiv_mat_bomStruct>()).get(),
                         &error)) {
                state.SkipWithError(qPrintable(error));
                return;
            }
        kiv_mat_zpStruct made;
        order(read, read.size(), materials, &made);
        const double taken = since(timer);
        seconds += taken;
        state.SetIterationTime(taken);
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / allowed;
}

// A list of parts with so many lines: part numbers of the database, values with cases, and parts
// that it has not.
QString makePartsList(const std::vector<ktmIndex::entry> &materials, int lines)
{
    QString text = QStringLiteral("Designator;Quantity;Value;Footprint;Manufacturer;MPN\n");
    for (int i = 0; i < lines; ++i) {
        const materialStruct &of = *materials[size_t(i) * 971 % materials.size()].material;
        const auto &makers = of.manufacturers.items;
        const bool isNumber = i % 3 != 0 && !makers.empty();
        QStringList cells{QStringLiteral("X%1, X%2").arg(2 * i).arg(2 * i + 1),
                          QStringLiteral("2"),
                          of.d_value,
                          of.d_case,
                          isNumber ? makers[0]->name : QString(),
                          isNumber      ? makers[0]->partNo
                          : i % 10 == 0 ? QStringLiteral("NOSUCH-%1").arg(i)
                                        : QString()};
        for (QString &cell : cells)
            cell.replace(QLatin1Char(';'), QLatin1Char(','));
        text += cells.join(QLatin1Char(';')) + QLatin1Char('\n');
    }
    return text;
}

// From the file of a CAD tool to staged lines, with looking at all materials once.
// ratio: the time over the allowed half second.
void stageParts(benchmark::State &state, const std::vector<ktmIndex::entry> &materials)
{
    constexpr double allowedForParts = 0.5;
    constexpr int partsLines = 100;
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/partsXXXXXX");
    const QString path = folder.filePath(QStringLiteral("parts.csv"));
    if (!files::writeText(path, makePartsList(materials, partsLines))) {
        state.SkipWithError("the list was not written");
        return;
    }
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        QString fault;
        const auto table = readPartsTable(path, {}, &fault);
        if (!table) {
            state.SkipWithError(qPrintable(fault));
            return;
        }
        bomImport::staged lines;
        const partsMatcher matcher(materials);
        state.counters["index_ms"] = since(timer) * 1000;
        bomImport::stage(linesOf(*table, partsColumns::guessed(*table)), matcher, {}, &lines);
        const double taken = since(timer);
        seconds += taken;
        state.SetIterationTime(taken);
        state.counters["lines"] = double(lines.lines.size());
        state.counters["matched"] = lines.count(bomImport::state::matched);
        state.counters["ambiguous"] = lines.count(bomImport::state::ambiguous);
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / allowedForParts;
}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    const QCoreApplication application(argc, argv);
    paths::setProgramDir(QStringLiteral(KIVZP_SOURCE_DIR));
    kiv_mat_databaseStruct database;
    if (loadDatabase(benchSupport::generatedDatabase(100000), &database) != 0)
        qFatal("the database was not read");
    ktmIndex materials;
    materials.add(&database);
    const bomVector boms = makeLists(database);
    const auto add = [&](const char *name, auto function) {
        benchmark::RegisterBenchmark(name, [&, function](auto &s) { function(s, materials, boms); })
            ->UseManualTime()
            ->Iterations(9)
            ->Unit(benchmark::kMillisecond);
    };
    add("bomsToOrder/fromRecords", fromRecords);
    add("bomsToOrder/fromFiles", fromFiles);
    std::vector<ktmIndex::entry> all;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            all.push_back({material.get(), group.get(), &database});
    benchmark::RegisterBenchmark("stageParts", [&all](auto &s) { stageParts(s, all); })
        ->UseManualTime()
        ->Iterations(9)
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
