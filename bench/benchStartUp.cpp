// The start of the program: from the process's start until the main window is shown, without a
// display.
#include "benchSupport.h"

#include "util/localeSetup.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

// From the process's start until it says that the window is shown; negative when it never does.
double secondsUntilShown(const QString &program)
{
    QElapsedTimer timer;
    timer.start();
    QProcess process;
    process.start(program, QStringList());
    QByteArray said;
    double seconds = -1;
    while (seconds < 0 && process.waitForReadyRead(60000)) {
        said += process.readAllStandardOutput();
        if (said.contains("visible: yes"))
            seconds = double(timer.nsecsElapsed()) / 1e9;
    }
    process.waitForFinished(60000);
    return seconds;
}

// ratio: the time over the allowed seconds. warehouse: a database in place of the sample's one.
// forget: every start is the first one, which has to check the files.
void startUp(benchmark::State &state, double allowed, const QString &warehouse, bool forget)
{
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/startXXXXXX");
    for (const char *name : {"_config", "_files", "_zp", "_validator"})
        QProcess::execute("cp", {"-r", QString(KIVZP_SOURCE_DIR "/") + name, folder.path()});
    QFile::copy(KIVZP_PROBE, folder.filePath("probe"));
    if (!warehouse.isEmpty()) {
        QFile::remove(folder.filePath("_files/db_warehouse.xml"));
        QFile::link(warehouse, folder.filePath("_files/db_warehouse.xml"));
    }
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    const QString windows = folder.filePath("_config/windows.ini");
    double seconds = 0;
    // The first start checks the files; what follows knows them.
    secondsUntilShown(folder.filePath("probe"));
    for (auto _ : state) {
        if (forget)
            QFile::remove(windows);
        const double once = secondsUntilShown(folder.filePath("probe"));
        if (once < 0) {
            state.SkipWithError("the program did not start");
            return;
        }
        seconds += once;
        state.SetIterationTime(once);
    }
    state.counters["ratio"] = seconds / double(state.iterations()) / allowed;
}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    const QCoreApplication application(argc, argv);
    const auto add = [](const char *name, auto function) {
        return benchmark::RegisterBenchmark(name, function)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(3);
    };
    constexpr double sampleSeconds = 1.5;
    constexpr double largeSeconds = 6.0;
    const QString large = benchSupport::generatedDatabase(100000);
    add("startUp/sample", [=](auto &s) { startUp(s, sampleSeconds, {}, true); });
    add("startUp/100k/firstTime", [=](auto &s) { startUp(s, largeSeconds, large, true); });
    add("startUp/100k/again", [=](auto &s) { startUp(s, largeSeconds, large, false); });

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
