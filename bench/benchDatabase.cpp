// The operations of the material database on 100,000 materials.
#include "benchSupport.h"

#include "data/XmlValidator.h"
#include "data/documentDiff.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/ktmIndex.h"
#include "data/loaders.h"
#include "database/altiumExport.h"
#include "database/databaseChecks.h"
#include "database/databaseFindings.h"
#include "database/databaseMerge.h"
#include "database/materialPage.h"
#include "database/warehouseListing.h"
#include "util/localeSetup.h"
#include "util/paths.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextDocument>

#include <benchmark/benchmark.h>

namespace {

double since(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e9; }

// The workbook of the CAD tool against XlsxWriter writing the same cells. ratio: the bound is 0.5.
void workbookAgainstPython(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/exportXXXXXX");
    double ours = 0;
    double reference = 0;
    for (auto _ : state) {
        QProcess python;
        python.start(QStringLiteral("/usr/bin/python3"),
                     {QStringLiteral(KIVZP_SOURCE_DIR "/bench/writeWorkbook.py"), database.filePath,
                      folder.filePath(QStringLiteral("python.xlsx"))});
        python.waitForFinished(-1);
        reference += python.readAllStandardOutput().trimmed().toDouble();
        QElapsedTimer timer;
        timer.start();
        const exportResult result =
            exportAltiumXlsx(database, folder.filePath(QStringLiteral("ours.xlsx")));
        state.SetIterationTime(since(timer));
        ours += since(timer);
        if (result.result != exportResult::done || reference <= 0) {
            state.SkipWithError("one of the two failed");
            return;
        }
    }
    state.counters["ratio"] = ours / reference;
}

// The script. ratio: the time over what 50 MB/s allow.
void script(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/exportXXXXXX");
    const QString path = folder.filePath(QStringLiteral("parts.sqlite"));
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        if (exportAltiumSqlite(database, path).result != exportResult::done) {
            state.SkipWithError("the export failed");
            return;
        }
        state.SetIterationTime(since(timer));
        seconds += since(timer);
    }
    const double megabytes = double(QFileInfo(scriptPath(path)).size()) / 1e6;
    state.counters["MB"] = megabytes;
    state.counters["ratio"] = seconds / double(state.iterations()) / (megabytes / 50);
}

// Runs work and measures it against the seconds allowed; work answers whether all was right.
template <class Work>
void againstTime(benchmark::State &state, double allowed, const Work &work)
{
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const bool good = work();
        seconds += since(timer);
        state.SetIterationTime(since(timer));
        if (!good) {
            state.SkipWithError("a wrong result");
            return;
        }
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / allowed;
}

// Both lists, on data in which no KTM stands twice.
void duplicates(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    againstTime(state, 0.2, [&database] {
        benchmark::DoNotOptimize(duplicatePartNumbers(database).size());
        return duplicateKtms(database).empty();
    });
}

// Everything that is checked, of a database in which each material lacks something.
void checkAll(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    againstTime(state, 2.0, [&database] { return !databaseFindings().check(database)->empty(); });
}

// One material of them changed; the slowest.
void checkChange(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    databaseFindings checks;
    const auto found = checks.check(database);
    size_t at = 0;
    double worst = 0;
    for (auto _ : state) {
        const auto &group = database.groups[at++ % database.groups.size()];
        QElapsedTimer timer;
        timer.start();
        checks.willChange(group->items[at % group->items.size()].get());
        const bool good = checks.takeChanges(100).records.size() == 1;
        worst = std::max(worst, since(timer));
        state.SetIterationTime(since(timer));
        if (!good)
            state.SkipWithError("a wrong result");
    }
    state.counters["ratio"] = worst / 0.001;
}

// The pages of 1000 materials, each laid out as the pane beside the tree does, within 10 ms.
void details(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    constexpr size_t count = 1000;
    againstTime(state, 10, [&database] {
        QTextDocument pane;
        constexpr int width = 340;
        pane.setTextWidth(width);
        size_t made = 0;
        for (const auto &group : database.groups)
            for (size_t i = 0; i < group->items.size() && made < count; ++i, ++made) {
                pane.setHtml(materialPage::page(
                    {group->items[i].get(), group.get(), &database, nullptr}, {}));
                benchmark::DoNotOptimize(pane.size());
            }
        return made == count;
    });
}

// Comparing with a copy in which every tenth material is changed in one field.
template <class Compare>
void compareWithCopy(benchmark::State &state, const kiv_mat_databaseStruct &database,
                     const Compare &compare)
{
    kiv_mat_databaseStruct mine;
    kiv_mat_databaseStruct other;
    int number = 0;
    for (const auto &group : database.groups) {
        for (kiv_mat_databaseStruct *copy : {&mine, &other}) {
            copy->groups.push_back(std::make_unique<d_groupStruct>());
            copy->groups.back()->name = group->name;
        }
        for (const auto &material : group->items) {
            mine.groups.back()->append(material->copy());
            if (++number % 10 == 0)
                other.groups.back()->append(material->copy())->d_description += QLatin1Char('x');
            else
                other.groups.back()->append(material->copy());
        }
    }
    // The texts of the two are their own, as when they come from two files.
    for (const auto &group : other.groups)
        for (const auto &material : group->items)
            for (const auto &field : materialStruct::fields())
                ((*material).*field.member).detach();
    againstTime(state, 1.0, [&] { return compare(mine, other) == size_t(number / 10); });
}

void compareInMerge(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    compareWithCopy(state, database, [](kiv_mat_databaseStruct &mine, const auto &other) {
        return compareDatabases(mine, other).differences.size();
    });
}

void compareAll(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    compareWithCopy(state, database, [](const auto &mine, const auto &other) {
        return compareDocuments(mine, other).rows.size();
    });
}

// The forms of 200,000 codes, all of them right.
void codes(benchmark::State &state, const kiv_mat_databaseStruct &database)
{
    againstTime(state, 2.0, [&database] {
        bool good = true;
        for (const auto &group : database.groups)
            for (const auto &material : group->items)
                good = good && checkKtm(material->d_ktm) && checkCpv(material->d_cpv);
        return good;
    });
}

// A listing with an entry for each of 100,000 materials: cut, read and matched.
void listing(benchmark::State &state, kiv_mat_databaseStruct &database)
{
    QString text;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            text += QStringLiteral("Towar: %1\n Ilosc: 1 234,50 szt.\n Wartosc: 617,25\n")
                        .arg(material->d_ktm);
    ktmIndex index;
    index.add(&database);
    againstTime(state, 2.0, [&] {
        const listingResult result = matchListing(parseListing(text), index);
        return result.problems.isEmpty() && result.found == database.materialCount();
    });
}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    paths::setProgramDir(QStringLiteral(KIVZP_SOURCE_DIR));
    kiv_mat_databaseStruct database;
    if (loadDatabase(benchSupport::generatedDatabase(100000), &database) != 0)
        return 1;

    const auto add = [&database](const char *name, auto function) {
        return benchmark::RegisterBenchmark(
                   name,
                   [&database, function](benchmark::State &state) { function(state, database); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("altium/xlsx", workbookAgainstPython)->Iterations(2);
    add("altium/script", script)->Iterations(3);
    add("duplicates", duplicates)->Iterations(5);
    add("codes", codes)->Iterations(3);
    add("check", checkAll)->Iterations(3);
    add("checkChange", checkChange)->Iterations(200);
    add("compare", compareInMerge)->Iterations(3);
    add("diff", compareAll)->Iterations(3);
    add("listing", listing)->Iterations(3);
    add("details", details)->Iterations(3);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
