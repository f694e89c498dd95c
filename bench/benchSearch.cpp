// Searching 100,000 materials while a user types.
#include "benchSupport.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/loaders.h"
#include "data/searchCompletion.h"
#include "util/localeSetup.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

constexpr double allowedKey = 0.030;
constexpr double allowedIndex = 1.0;
constexpr double allowedFilter = 0.050;
constexpr double allowedMemory = 60;
constexpr double allowedCompletion = 0.005;
constexpr double allowedCollecting = 0.300;

double since(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e9; }

// Reading the texts of all materials, once. ratio: the time over the allowed second; memory: the
// index over the allowed 60 MB.
void makeIndex(benchmark::State &state, kiv_mat_databaseStruct &database)
{
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        materialSearch search;
        search.add(&database);
        search.prepare();
        const double taken = since(timer);
        seconds += taken;
        state.SetIterationTime(taken);
        state.counters["memory"] = double(search.memory()) / (1 << 20) / allowedMemory;
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / allowedIndex;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// A text typed letter by letter, each letter a search for the first 200. ratio: the slowest key
// (each key's median over the rounds) over the allowed 30 ms; mean: all of them likewise; found: by
// the whole text.
void type(benchmark::State &state, materialSearch &search, const QString &text)
{
    std::vector<std::vector<double>> keys(size_t(text.size()));
    int found = 0;
    for (auto _ : state) {
        // Forgets the round before.
        search.find({}, 0);
        double sum = 0;
        for (int length = 1; length <= text.size(); ++length) {
            QElapsedTimer timer;
            timer.start();
            found = search.find(searchQuery::parse(text.left(length)), 200).total;
            const double key = since(timer);
            keys[size_t(length) - 1].push_back(key);
            sum += key;
        }
        state.SetIterationTime(sum);
    }
    double slowest = 0;
    double sum = 0;
    for (const std::vector<double> &key : keys) {
        slowest = qMax(slowest, median(key));
        sum += median(key);
    }
    state.counters["ratio"] = slowest / allowedKey;
    state.counters["mean"] = sum / double(keys.size()) / allowedKey;
    state.counters["found"] = found;
}

// Each material asked whether it matches, as a tree does. ratio: the slowest of three queries (each
// one's median) over the allowed 50 ms.
void filter(benchmark::State &state, materialSearch &search, kiv_mat_databaseStruct &database)
{
    const QString texts[] = {"r", "rezystor 10k", "case:0603 value:4k7 stock:>0"};
    std::vector<double> taken[std::size(texts)];
    for (auto _ : state) {
        double sum = 0;
        for (size_t i = 0; i < std::size(texts); ++i) {
            const searchQuery query = searchQuery::parse(texts[i]);
            QElapsedTimer timer;
            timer.start();
            int shown = 0;
            for (const auto &group : database.groups)
                for (const auto &material : group->items)
                    shown += search.matches(material.get(), query);
            benchmark::DoNotOptimize(shown);
            taken[i].push_back(since(timer));
            sum += taken[i].back();
        }
        state.SetIterationTime(sum);
    }
    double slowest = 0;
    for (const std::vector<double> &times : taken)
        slowest = qMax(slowest, median(times));
    state.counters["ratio"] = slowest / allowedFilter;
}

// One material of each group changed. ratio: one change over the allowed time of a key.
void change(benchmark::State &state, materialSearch &search, kiv_mat_databaseStruct &database)
{
    double seconds = 0;
    size_t changes = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        for (const auto &group : database.groups) {
            if (group->items.empty())
                continue;
            materialStruct *material = group->items.front().get();
            material->information.comment = QString::number(changes++);
            search.update(material);
        }
        const double taken = since(timer);
        seconds += taken;
        state.SetIterationTime(taken);
    }
    state.counters["ratio"] = seconds / double(changes) / allowedKey;
}

// A text typed letter by letter, each letter a list of completions; the values are collected at the
// first of them. ratio: the slowest key after the first that collects over the allowed 5 ms;
// collect: that one over the allowed 300 ms; offered: for the whole text.
void complete(benchmark::State &state, materialSearch &search, kiv_mat_databaseStruct &database,
              const QString &text)
{
    const int name = text.indexOf(QLatin1Char(':')) + 1;
    std::vector<std::vector<double>> keys(size_t(text.size()) + 1);
    size_t offered = 0;
    for (auto _ : state) {
        // A change, so that the values are collected anew.
        search.update(database.groups.front()->items.front().get());
        double sum = 0;
        for (int length = 1; length <= text.size(); ++length) {
            QElapsedTimer timer;
            timer.start();
            offered =
                searchCompletion::at(text.left(length), length, search, &database).items.size();
            keys[size_t(length)].push_back(since(timer));
            sum += keys[size_t(length)].back();
        }
        state.SetIterationTime(sum);
    }
    double slowest = 0;
    for (int length = 1; length <= text.size(); ++length)
        if (length != name)
            slowest = qMax(slowest, median(keys[size_t(length)]));
    state.counters["ratio"] = slowest / allowedCompletion;
    state.counters["collect"] = median(keys[size_t(name)]) / allowedCollecting;
    state.counters["offered"] = double(offered);
}

// The benchmarks over one database, which they share with its index.
struct subject
{
    QString name;
    kiv_mat_databaseStruct database;
    materialSearch search;
};

void addAll(subject &with)
{
    const auto add = [&](const QString &what, auto function) {
        benchmark::RegisterBenchmark(qPrintable(what + QLatin1Char('/') + with.name), function)
            ->UseManualTime()
            ->Iterations(9)
            ->Unit(benchmark::kMillisecond);
    };
    add("makeIndex", [&](auto &s) { makeIndex(s, with.database); });
    for (const char *text :
         {"rezystor 0603 10k", "KONDENSATOR 100 nF 50V", "STM32F103", "e", "317111-1",
          "zzyzx nothing", "dławik 22uH bourns", "case:0603 value:10k",
          "price:>10 stock:0 status:zielony", "opis:złącze aktywny:tak", "4k7", "0 1 2 3 4 5"})
        add(QLatin1String("type/") + QString::fromUtf8(text),
            [&with, text](auto &s) { type(s, with.search, QString::fromUtf8(text)); });
    for (const char *text :
         {"case:0603", "manufacturer:texas", "name:stm32f103", "part:zzyzx", "value:4k7"})
        add(QLatin1String("complete/") + QString::fromUtf8(text), [&with, text](auto &s) {
            complete(s, with.search, with.database, QString::fromUtf8(text));
        });
    add("filter", [&](auto &s) { filter(s, with.search, with.database); });
    add("change", [&](auto &s) { change(s, with.search, with.database); });
}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    const QCoreApplication application(argc, argv);
    std::vector<std::unique_ptr<subject>> subjects;
    for (const auto &[name, file] :
         {std::pair<const char *, QString>("generated100k",
                                           benchSupport::generatedDatabase(100000)),
          std::pair<const char *, QString>("real100k", benchSupport::realDatabase())}) {
        if (file.isEmpty())
            continue;
        auto &with = *subjects.emplace_back(std::make_unique<subject>());
        with.name = QLatin1String(name);
        if (loadDatabase(file, &with.database) != 0)
            qFatal("%s was not read", qPrintable(file));
        with.search.add(&with.database);
        addAll(with);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
