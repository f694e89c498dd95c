// Reading, validating and saving large files, single codes, and the report of a large order.
#include "benchSupport.h"

#include "data/XmlValidator.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/loaders.h"
#include "report/orderReport.h"
#include "util/localeSetup.h"
#include "util/paths.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

using benchSupport::measure;
using benchSupport::processCost;

double since(QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e9; }

// kivzp-cli info --validate against xmllint on the same file. ratio: our time over xmllint's (the
// bound is 3, the aim 2). memory: our peak over the size of the file (the bound is 3).
void validateAndRead(benchmark::State &state, const QString &file)
{
    if (file.isEmpty()) {
        state.SkipWithError("KIVZP_REAL_DATA is not set");
        return;
    }
    double ours = 0;
    double reference = 0;
    double peak = 0;
    for (auto _ : state) {
        const processCost xmllint = measure(
            {"xmllint", "--noout", "--stream", "--schema", paths::schema("kiv_mat.xsd"), file});
        const processCost cli = measure({KIVZP_BENCH_DIR "/kivzp-cli", "info", "--validate", file});
        if (xmllint.exitCode != 0 || cli.exitCode != 0) {
            state.SkipWithError("one of the programs failed");
            return;
        }
        state.SetIterationTime(cli.seconds);
        ours += cli.seconds;
        reference += xmllint.seconds;
        peak = qMax(peak, cli.megabytes);
    }
    state.counters["ratio"] = ours / reference;
    state.counters["memory"] = peak / (double(QFileInfo(file).size()) / (1 << 20));
}

// Saving, with the look at the written file, against reading, in one process. ratio: the bound
// is 1.6.
void saveAgainstRead(benchmark::State &state, const QString &file)
{
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/saveXXXXXX");
    double reading = 0;
    double saving = 0;
    for (auto _ : state) {
        kiv_mat_databaseStruct database;
        QElapsedTimer timer;
        timer.start();
        bool good = loadDatabase(file, &database) == 0;
        reading += since(timer);
        timer.restart();
        good = good && saveXml(folder.filePath("saved.xml"), &database) == 0;
        const double saved = since(timer);
        if (!good) {
            state.SkipWithError("the file was not read or saved");
            return;
        }
        saving += saved;
        state.SetIterationTime(saved);
    }
    state.counters["ratio"] = saving / reading;
}

// Validating and reading a file, in one process.
double timeOf(const QString &file)
{
    QElapsedTimer timer;
    timer.start();
    const bool valid = validateXml(file, paths::schema("kiv_mat.xsd"), false);
    const auto document = newDocument(*fileKinds::ofFile(file));
    const int loaded = loadDocument(file, document.get());
    benchmark::DoNotOptimize(valid && loaded == 0);
    return since(timer);
}

// A file with one fault near its beginning, or an order with one long text in many pieces, against
// the good database. ratio: the bound is 2.
void faultAgainstGood(benchmark::State &state, const QString &good, const QByteArray &from,
                      const QByteArray &to)
{
    if (good.isEmpty()) {
        state.SkipWithError("KIVZP_REAL_DATA is not set");
        return;
    }
    QFile source(good);
    const QString path = QStringLiteral(KIVZP_BENCH_DIR "/fault.xml");
    QFile target(path);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly)) {
        state.SkipWithError("the files cannot be opened");
        return;
    }
    QByteArray content = source.readAll();
    if (from.isEmpty())
        content = "<kiv_mat_zp><attentions>" + to.repeated(int(content.size() / 4 / to.size()))
                  + "</attentions></kiv_mat_zp>";
    else
        content.replace(content.indexOf(from), from.size(), to);
    target.write(content);
    target.close();
    double reference = 0;
    double seconds = 0;
    for (auto _ : state) {
        reference += timeOf(good);
        const double taken = timeOf(path);
        seconds += taken;
        state.SetIterationTime(taken);
    }
    state.counters["ratio"] = seconds / reference;
    QFile::remove(path);
}

// 1,000 codes, every other one wrong. ratio: the time over the allowed second.
void checkCodes(benchmark::State &state)
{
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        int good = 0;
        for (int i = 0; i < 1000; ++i)
            good +=
                checkKtm(i % 2 ? QStringLiteral("312040-30.12-%1").arg(i, 5, 10, QLatin1Char('0'))
                               : QStringLiteral("no ktm %1").arg(i));
        if (good != 500) {
            state.SkipWithError("wrong verdicts");
            return;
        }
        seconds += since(timer);
        state.SetIterationTime(since(timer));
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / 1.0;
}

// The page of an order of 5,000 lines, all of them known materials. ratio: the time over the
// allowed 0.1 s.
void reportText(benchmark::State &state, const QString &databaseFile)
{
    kiv_mat_databaseStruct database;
    if (loadDatabase(databaseFile, &database) != 0) {
        state.SkipWithError("the database was not read");
        return;
    }
    ktmIndex index;
    index.add(&database);
    kiv_mat_zpStruct order;
    for (const auto &group : database.groups) {
        for (const auto &material : group->items) {
            if (order.orderItems.items.size() == 5000)
                break;
            orderItemStruct *item = order.orderItems.append(std::make_unique<orderItemStruct>());
            item->name = material->d_name;
            item->description = material->d_description;
            item->ktm = material->d_ktm;
            item->price = item->averagePrice = material->d_price;
            item->quantity = QStringLiteral("10");
            item->unit = material->d_unit;
        }
    }
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        benchmark::DoNotOptimize(orderReport(order, index).size());
        seconds += since(timer);
        state.SetIterationTime(since(timer));
    }
    state.counters["lines"] = double(order.orderItems.items.size());
    state.counters["ratio"] = seconds / double(state.iterations()) / 0.1;
}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    paths::setProgramDir(QStringLiteral(KIVZP_SOURCE_DIR));
    // The command line program, beside the schemas.
    QFile::remove(KIVZP_BENCH_DIR "/kivzp-cli");
    QFile::link(QStringLiteral(KIVZP_SOURCE_DIR "/_validator"), KIVZP_BENCH_DIR "/_validator");
    QFile::copy(KIVZP_CLI, KIVZP_BENCH_DIR "/kivzp-cli");

    const QString generated = benchSupport::generatedDatabase(100000);
    const QString real = benchSupport::realDatabase();
    const auto add = [](const char *name, auto function) {
        return benchmark::RegisterBenchmark(name, function)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("validateAndRead/generated100k", [=](auto &s) {
        validateAndRead(s, generated);
    })->Iterations(3);
    add("validateAndRead/real100k", [=](auto &s) { validateAndRead(s, real); })->Iterations(3);
    add("saveAgainstRead/generated100k", [=](auto &s) {
        saveAgainstRead(s, generated);
    })->Iterations(3);
    const QString smaller = benchSupport::realDatabase(QStringLiteral("db_real"));
    struct fault
    {
        const char *name;
        QByteArray from;
        QByteArray to;
    };
    const QByteArray end = "</d_name>";
    for (const fault &f :
         {fault{"fault/tag", end, "</d_nam>"}, fault{"fault/ampersand", end, " R & D" + end},
          fault{"fault/less", end, " < " + end}, fault{"fault/entity", end, "&nbsp;" + end},
          fault{"fault/windows1250", end, "\xb9" + end},
          fault{"fault/controlCharacter", end, "\x01" + end},
          fault{"fault/attributeTwice", "<d_group name=", "<d_group name=\"x\" name="},
          fault{"longText/entities", "", "&amp;"}, fault{"longText/remarks", "", "&lt;b&gt;text\n"},
          fault{"longText/comments", "", "a<!-- -->"},
          fault{"longText/cdata", "", "<![CDATA[a]]>"}})
        add(f.name, [=](auto &s) { faultAgainstGood(s, smaller, f.from, f.to); })->Iterations(2);
    add("checkKtm/1000", checkCodes)->Iterations(3);
    add("reportText/5000", [=](auto &s) { reportText(s, generated); })->Iterations(5);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
