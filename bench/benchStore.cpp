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

#include <ctime>

namespace {

// What something took: seconds that passed, and those in which this process worked, without the
// server's and without what others on the machine take away.
struct spent
{
    double seconds = 0;
    double working = 0;

    spent &operator+=(const spent &other)
    {
        seconds += other.seconds;
        working += other.working;
        return *this;
    }
    spent operator/(double count) const { return {seconds / count, working / count}; }
};

class stopwatch
{
public:
    stopwatch() { m_timer.start(); }
    spent read() const
    {
        return {double(m_timer.nsecsElapsed()) / 1e9,
                double(std::clock() - m_before) / CLOCKS_PER_SEC};
    }

private:
    QElapsedTimer m_timer;
    std::clock_t m_before = std::clock();
};

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
    store::syncResult sync(spent *applying = nullptr)
    {
        store::syncResult result = store::synchronize(with, *document, known, author, {});
        const stopwatch watch;
        if (result.done)
            store::apply(result, document.get(), &known);
        if (applying)
            *applying += watch.read();
        return result;
    }
};

// What the others are measured against: the file opened as by a user, which checks it. Its time
// stamp is a new one, for a file that was checked is not checked again.
spent openedAsAFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)
        || !file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime))
        return {};
    file.close();
    kiv_mat_databaseStruct database;
    const stopwatch watch;
    return readChecked(path, &database) && database.materialCount() > 0 ? watch.read() : spent();
}

struct setting
{
    const server &at;
    QString file; // of this benchmark's own
    spent reading;
};

// ratio: the seconds over those allowed.
void tell(benchmark::State &state, const spent &all, double allowed, const setting &with)
{
    const spent once = all / double(state.iterations());
    state.counters["seconds"] = once.seconds;
    state.counters["working"] = once.working;
    state.counters["reading"] = once.seconds / with.reading.seconds;
    state.counters["ratio"] = once.seconds / allowed;
}

// A file made of the store's document. ratio: over reading that file, three times is the bound.
void cloneInFile(benchmark::State &state, const setting &with)
{
    const QTemporaryDir folder(KIVZP_BENCH_DIR "/cloneXXXXXX");
    store::connection from;
    with.at.open(&from);
    spent all;
    spent reading;
    int number = 0;
    for (auto _ : state) {
        const QString path = folder.filePath(QStringLiteral("db%1.xml").arg(++number));
        QString fault;
        const stopwatch watch;
        const bool good =
            store::cloneFile(from, fileKinds::database, QStringLiteral("db"), path, &fault);
        const spent once = watch.read();
        state.SetIterationTime(once.seconds);
        all += once;
        const spent opened = openedAsAFile(path);
        reading += opened;
        if (!good || opened.seconds <= 0) {
            state.SkipWithError("it was not cloned");
            return;
        }
        QFile::remove(path);
    }
    tell(state, all, reading.seconds / double(state.iterations()), with);
    // Of this process alone, on both sides.
    state.counters["workingRatio"] = all.working / reading.working;
}

// The same without the file.
void cloneRecords(benchmark::State &state, const setting &with)
{
    spent all;
    for (auto _ : state) {
        person fresh;
        const stopwatch watch;
        fresh.clone(with.at);
        const spent once = watch.read();
        state.SetIterationTime(once.seconds);
        all += once;
    }
    tell(state, all, with.reading.seconds, with);
}

// The document is put into an empty store.
void publish(benchmark::State &state, const setting &with)
{
    store::connection to;
    with.at.open(&to);
    kiv_mat_databaseStruct database;
    spent all;
    int number = 0;
    if (loadDatabase(with.file, &database) != 0)
        state.SkipWithError("not read");
    for (auto _ : state) {
        store::base known;
        const stopwatch watch;
        const store::syncResult result = store::publish(
            to, database, QStringLiteral("another %1").arg(++number), author, &known);
        const spent once = watch.read();
        state.SetIterationTime(once.seconds);
        all += once;
        if (!result.done)
            state.SkipWithError("it was not published");
    }
    tell(state, all, with.reading.seconds, with);
}

// Nobody changed anything, the document in memory.
void nothingNew(benchmark::State &state, const setting &with)
{
    person me;
    me.clone(with.at);
    spent all;
    for (auto _ : state) {
        const stopwatch watch;
        const store::syncResult result =
            store::synchronize(me.with, *me.document, me.known, author, {});
        const spent once = watch.read();
        state.SetIterationTime(once.seconds);
        all += once;
        if (!result.done || result.fetched + result.sent != 0)
            state.SkipWithError("a wrong result");
    }
    constexpr double allowed = 0.2;
    tell(state, all, allowed, with);
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
    spent all;
    for (auto _ : state) {
        const stopwatch watch;
        const store::syncResult result = store::synchronizeFile(from, path, config, {});
        const spent once = watch.read();
        state.SetIterationTime(once.seconds);
        all += once;
        if (!result.done || !result.fault.isEmpty())
            state.SkipWithError("a wrong result");
    }
    constexpr double allowed = 0.2;
    tell(state, all, allowed, with);
}

// Rows that somebody else changed come, own ones go.
void changed(benchmark::State &state, const setting &with, int own, int others)
{
    constexpr int step = 900;
    person me;
    person other;
    me.clone(with.at);
    other.clone(with.at);
    spent all;
    spent applying;
    int round = 0;
    for (auto _ : state) {
        const QString text = QString::number(++round);
        other.sync();
        other.edit(others, 0, step, text);
        if (!other.sync().done)
            state.SkipWithError("the other one failed");
        me.edit(own, step / 2, step, text);
        const stopwatch watch;
        const store::syncResult result = me.sync(&applying);
        const spent once = watch.read();
        state.SetIterationTime(once.seconds);
        all += once;
        if (!result.done || result.fetched != others || result.sent != own)
            state.SkipWithError("a wrong result");
    }
    state.counters["applying"] = applying.seconds / double(state.iterations());
    constexpr double allowed = 0.5;
    tell(state, all, allowed, with);
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
    const setting with{at, file, openedAsAFile(file)};

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
    for (const auto &[name, own, others] :
         {std::make_tuple("sync/100k/sent", 100, 0), std::make_tuple("sync/100k/fetched", 0, 100),
          std::make_tuple("sync/100k/both", 100, 100)})
        add(name, [own = own, others = others](benchmark::State &state, const setting &of) {
            changed(state, of, own, others);
        })->Iterations(10);
    add("publish/100k", publish)->Iterations(1);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
