// The shared store of 100,000 materials on a server of this machine.
#include "benchSupport.h"

#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "store/storeFiles.h"
#include "util/localeSetup.h"
#include "util/paths.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

double since(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e9; }

const QLatin1String author("bench");

// A server that lives as long as this.
class server
{
public:
    server()
    {
        // It may run as a user of its own.
        QFile::setPermissions(m_place.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                                  | QFile::ExeGroup | QFile::ExeOther);
        act("start");
    }
    ~server() { act("remove"); }
    server(const server &) = delete;
    server &operator=(const server &) = delete;

    void open(store::connection *with) const
    {
        QString fault;
        const auto to = store::address::parse(
            QStringLiteral("postgresql://owner@/kivzp?host=") + socket(), &fault);
        if (!to || !with->open(*to))
            qFatal("%s", qPrintable(with->fault()));
    }

private:
    QString socket() const { return m_place.filePath(QStringLiteral("s")); }
    void act(const char *what) const
    {
        if (QProcess::execute(QStringLiteral("sh"),
                              {QStringLiteral(KIVZP_SOURCE_DIR "/tests/store/postgres.sh"),
                               QLatin1String(what), socket()})
            != 0)
            qFatal("the server does not %s", what);
    }

    // A socket's path is short.
    QTemporaryDir m_place{QDir::tempPath() + QStringLiteral("/kivzp-XXXXXX")};
};

// Who has a copy of the database.
struct person
{
    store::connection with;
    std::unique_ptr<documentStruct> document;
    store::base known;

    void clone(const server &of)
    {
        of.open(&with);
        QString fault;
        document = store::clone(with, fileKinds::database, QStringLiteral("db"), &known, &fault);
        if (!document)
            qFatal("%s", qPrintable(fault));
    }

    // So many materials get a text, each so many behind the one before.
    void edit(int count, int first, int step, const QString &text) const
    {
        int number = 0;
        for (const auto &group : static_cast<kiv_mat_databaseStruct &>(*document).groups)
            for (const auto &material : group->items)
                if (const int at = number++ - first; at >= 0 && at % step == 0 && at / step < count)
                    material->d_description = text;
    }

    // Brought together, and the changes made; the seconds that the second takes are
    // added to applying.
    store::syncResult sync(double *applying = nullptr)
    {
        store::syncResult result = store::synchronize(with, *document, known, author, {});
        QElapsedTimer timer;
        timer.start();
        if (result.done)
            store::apply(result, document.get(), &known);
        if (applying)
            *applying += since(timer);
        return result;
    }
};

// What the others are measured against: the file opened as by a user, which checks it. Its time
// stamp is a new one, for a file that was checked is not checked again.
double readingSeconds(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)
        || !file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime))
        return 0;
    file.close();
    kiv_mat_databaseStruct database;
    QElapsedTimer timer;
    timer.start();
    return readChecked(path, &database) && database.materialCount() > 0 ? since(timer) : 0;
}

struct setting
{
    const server &at;
    QString file; // of this benchmark's own
    double reading = 0;
};

void tell(benchmark::State &state, double seconds, double allowed, const setting &with)
{
    const double once = seconds / double(state.iterations());
    state.counters["seconds"] = once;
    state.counters["reading"] = once / with.reading;
    state.counters["ratio"] = once / allowed;
}

// A file made of the store's document. ratio: over reading that file, three times is the bound.
void cloneInFile(benchmark::State &state, const setting &with)
{
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/cloneXXXXXX");
    store::connection from;
    with.at.open(&from);
    double seconds = 0;
    double reading = 0;
    int number = 0;
    for (auto _ : state) {
        const QString path = folder.filePath(QStringLiteral("db%1.xml").arg(++number));
        QString fault;
        QElapsedTimer timer;
        timer.start();
        const bool good =
            store::cloneFile(from, fileKinds::database, QStringLiteral("db"), path, &fault);
        state.SetIterationTime(since(timer));
        seconds += since(timer);
        const double once = readingSeconds(path);
        reading += once;
        if (!good || once <= 0) {
            state.SkipWithError("it was not cloned");
            return;
        }
        QFile::remove(path);
    }
    tell(state, seconds, reading / double(state.iterations()), with);
}

// The same without the file.
void cloneRecords(benchmark::State &state, const setting &with)
{
    double seconds = 0;
    for (auto _ : state) {
        person fresh;
        QElapsedTimer timer;
        timer.start();
        fresh.clone(with.at);
        state.SetIterationTime(since(timer));
        seconds += since(timer);
    }
    tell(state, seconds, with.reading, with);
}

// The document is put into an empty store.
void publish(benchmark::State &state, const setting &with)
{
    store::connection to;
    with.at.open(&to);
    kiv_mat_databaseStruct database;
    double seconds = 0;
    int number = 0;
    if (loadDatabase(with.file, &database) != 0)
        state.SkipWithError("not read");
    for (auto _ : state) {
        store::base known;
        QElapsedTimer timer;
        timer.start();
        const store::syncResult result = store::publish(
            to, database, QStringLiteral("another %1").arg(++number), author, &known);
        state.SetIterationTime(since(timer));
        seconds += since(timer);
        if (!result.done)
            state.SkipWithError("it was not published");
    }
    tell(state, seconds, with.reading, with);
}

// Nobody changed anything, the document in memory.
void nothingNew(benchmark::State &state, const setting &with)
{
    person me;
    me.clone(with.at);
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const store::syncResult result =
            store::synchronize(me.with, *me.document, me.known, author, {});
        state.SetIterationTime(since(timer));
        seconds += since(timer);
        if (!result.done || result.fetched + result.sent != 0)
            state.SkipWithError("a wrong result");
    }
    constexpr double allowed = 0.2;
    tell(state, seconds, allowed, with);
}

// The same of a file, which is not read for that.
void nothingNewInFile(benchmark::State &state, const setting &with)
{
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/syncXXXXXX");
    const QString path = folder.filePath(QStringLiteral("db.xml"));
    store::connection from;
    with.at.open(&from);
    QString fault;
    if (!store::cloneFile(from, fileKinds::database, QStringLiteral("db"), path, &fault))
        state.SkipWithError("it was not cloned");
    configStruct config;
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const store::syncResult result = store::synchronizeFile(from, path, config, {});
        state.SetIterationTime(since(timer));
        seconds += since(timer);
        if (!result.done || !result.fault.isEmpty())
            state.SkipWithError("a wrong result");
    }
    constexpr double allowed = 0.2;
    tell(state, seconds, allowed, with);
}

// A hundred rows that somebody else changed come, a hundred own ones go.
void bothChanged(benchmark::State &state, const setting &with)
{
    constexpr int changed = 100;
    constexpr int step = 900;
    person me;
    person other;
    me.clone(with.at);
    other.clone(with.at);
    double seconds = 0;
    double applying = 0;
    int round = 0;
    for (auto _ : state) {
        const QString text = QString::number(++round);
        other.sync();
        other.edit(changed, 0, step, text);
        if (!other.sync().done)
            state.SkipWithError("the other one failed");
        me.edit(changed, step / 2, step, text);
        QElapsedTimer timer;
        timer.start();
        const store::syncResult result = me.sync(&applying);
        state.SetIterationTime(since(timer));
        seconds += since(timer);
        if (!result.done || result.fetched != changed || result.sent != changed)
            state.SkipWithError("a wrong result");
    }
    state.counters["applying"] = applying / double(state.iterations());
    constexpr double allowed = 0.5;
    tell(state, seconds, allowed, with);
}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    // A program's folder, where it remembers which files it checked.
    const QTemporaryDir program;
    benchSupport::copyFolder(QStringLiteral(KIVZP_SOURCE_DIR "/_validator"),
                             program.filePath(QStringLiteral("_validator")));
    paths::setProgramDir(program.path());
    const QString file = benchSupport::generatedDatabase(100000);
    const server at;
    {
        store::connection owner;
        at.open(&owner);
        kiv_mat_databaseStruct database;
        store::base known;
        if (!store::makeTables(owner) || loadDatabase(file, &database) != 0
            || !store::publish(owner, database, QStringLiteral("db"), author, &known).done) {
            qWarning("the store cannot be filled: %s", qPrintable(owner.fault()));
            return 1;
        }
        // As a server does by itself after a while.
        owner.run(QStringLiteral("vacuum analyze"));
    }
    const setting with{at, file, readingSeconds(file)};

    const auto add = [&with](const char *name, auto function) {
        return benchmark::RegisterBenchmark(
                   name, [&with, function](benchmark::State &state) { function(state, with); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("clone/100k", cloneInFile)->Iterations(3);
    add("cloneRecords/100k", cloneRecords)->Iterations(3);
    add("syncNothing/100k", nothingNew)->Iterations(10);
    add("syncNothing/100k/file", nothingNewInFile)->Iterations(10);
    add("sync/100k", bothChanged)->Iterations(10);
    add("publish/100k", publish)->Iterations(1);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
