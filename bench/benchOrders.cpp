// Benchmarks of the register of orders: a thousand orders of 200 lines, a tenth of what it has to
// carry.
#include "benchSupport.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "orders/orderIndex.h"
#include "util/localeSetup.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

#include <benchmark/benchmark.h>

namespace {

constexpr int orderCount = 1000;
constexpr int lineCount = 200;
constexpr int materialCount = 100000;
// Of what 10,000 orders may take.
constexpr double share = orderCount / 10000.0;

double since(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) * 1e-9; }

// Made once and kept in the build folder.
QString ordersFolder()
{
    const QString folder = QStringLiteral(KIVZP_BENCH_DIR "/orders");
    const QString last = folder + QStringLiteral("/%1.xml").arg(orderCount - 1);
    if (QFile::exists(last))
        return folder;
    QDir().mkpath(folder);
    quint32 next = 1;
    const auto random = [&next](int below) {
        next = next * 1664525U + 1013904223U;
        return int((next >> 8U) % quint32(below));
    };
    for (int i = 0; i < orderCount; ++i) {
        kiv_mat_zpStruct order;
        order.options.findOption(optionKey::orderNumber)->value1 =
            QStringLiteral("ZP/%1/%2").arg(i % 100 + 1).arg(2016 + i / 100);
        order.options.findOption(optionKey::orderDate)->value1 =
            QStringLiteral("%1.%2.%3")
                .arg(i % 28 + 1, 2, 10, QLatin1Char('0'))
                .arg(i % 12 + 1, 2, 10, QLatin1Char('0'))
                .arg(2016 + i / 100);
        for (int j = 0; j < lineCount; ++j) {
            const int material = random(materialCount);
            auto line = std::make_unique<orderItemStruct>();
            line->ktm = QStringLiteral("317111-01.01-%1").arg(material, 5, 10, QLatin1Char('0'));
            line->name = QStringLiteral("PART-%1 X7R 0603").arg(material);
            line->description = QStringLiteral("Kondensator ceramiczny 100nF 50V");
            line->quantity = QString::number(random(500) + 1);
            line->price = QStringLiteral("0.%1").arg(random(99) + 1);
            line->unit = QStringLiteral("szt.");
            line->target = QStringLiteral("312-%1").arg(i % 50);
            line->invoice = j % 3 ? QStringLiteral("FV %1/%2").arg(i).arg(j % 7) : QString();
            order.orderItems.append(std::move(line));
        }
        if (saveXmlNoEvents(folder + QStringLiteral("/%1.xml").arg(i), &order) != 0)
            qFatal("an order was not written");
    }
    return folder;
}

// ratio: the time over that share of the 60 seconds allowed.
void scan(benchmark::State &state, const QString &folder)
{
    const QString cache = QStringLiteral(KIVZP_BENCH_DIR "/orders.sqlite");
    double seconds = 0;
    for (auto _ : state) {
        for (const char *end : {"", "-wal", "-shm"})
            QFile::remove(cache + QLatin1String(end));
        QElapsedTimer timer;
        timer.start();
        orderIndex index(cache);
        index.update({folder});
        const double taken = since(timer);
        seconds += taken;
        state.SetIterationTime(taken);
        state.counters["orders"] = double(index.orders().size());
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / (60 * share);
}

// From the cache to a register that can be searched; ratio against half a second: the
// texts are as many as in 10,000 orders, the lines a tenth.
void start(benchmark::State &state, const QString &folder)
{
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        orderIndex index(QStringLiteral(KIVZP_BENCH_DIR "/orders.sqlite"));
        index.update({folder});
        benchmark::DoNotOptimize(index.search(QStringLiteral("part-123"), 1000));
        const double taken = since(timer);
        seconds += taken;
        state.SetIterationTime(taken);
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / 0.5;
}

// The slowest key of a search; ratio against 50 ms, likewise.
void keys(benchmark::State &state, const QString &folder)
{
    orderIndex index(QStringLiteral(KIVZP_BENCH_DIR "/orders.sqlite"));
    index.update({folder});
    index.search(QStringLiteral("x"), 1);
    const QString typed = QStringLiteral("part-12 0603 fv 312");
    double slowest = 0;
    for (auto _ : state) {
        double taken = 0;
        for (int length = 1; length <= typed.size(); ++length) {
            QElapsedTimer timer;
            timer.start();
            benchmark::DoNotOptimize(index.search(typed.left(length), 1000));
            taken = std::max(taken, since(timer));
        }
        slowest = std::max(slowest, taken);
        state.SetIterationTime(taken);
    }
    state.counters["ratio"] = slowest / 0.05;
}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    const QCoreApplication application(argc, argv);
    const QString folder = ordersFolder();
    const auto add = [&folder](const char *name, int times, auto function) {
        benchmark::RegisterBenchmark(name, [&folder, function](auto &s) { function(s, folder); })
            ->UseManualTime()
            ->Iterations(times)
            ->Unit(benchmark::kMillisecond);
    };
    add("ordersScan/1000", 3, scan);
    add("ordersStart/1000", 9, start);
    add("ordersKey/1000", 9, keys);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
