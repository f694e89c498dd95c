// The trees at the size of a company's data: opening, editing, searching. Without a display.
#include "benchSupport.h"

#include "commands/cellBlock.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "order/orderDocument.h"
#include "order/orderView.h"
#include "shell/MainWindow.h"
#include "tree/myTreeView.h"
#include "util/localeSetup.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/translation.h"
#include "util/userState.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

constexpr int orderLines = 5000;

double secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e9;
}

// ratio: the time over the seconds allowed.
void report(benchmark::State &state, double seconds, double allowed)
{
    state.SetIterationTime(seconds);
    state.counters["ratio"] = seconds / allowed;
}

void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

// A window on an order of thousands of lines.
class largeOrder
{
public:
    largeOrder()
    {
        programData &known = programData::instance();
        std::vector<const materialStruct *> materials;
        for (const auto &group : known.database(programData::warehouse).groups)
            for (const auto &material : group->items)
                if (materials.size() < orderLines)
                    materials.push_back(material.get());
        kiv_mat_zpStruct order;
        order.initialise(known.config());
        for (int i = 0; i < orderLines; ++i)
            order.orderItems.append(
                orderOperations::newLine(*materials[size_t(i) % materials.size()], order,
                                         QString::number(i), QDate::currentDate().addDays(7)));
        m_path = paths::data(QStringLiteral("_zp/large.xml"));
        saveXmlNoEvents(m_path, &order);
    }
    const QString &path() const { return m_path; }

private:
    QString m_path;
};

const QString &orderPath()
{
    static const largeOrder order;
    return order.path();
}

MainWindow &mainWindow()
{
    static MainWindow *window = nullptr;
    if (!window) {
        userState::instance().lastZp.clear();
        window = new MainWindow(programData::instance());
        window->show();
        settle();
    }
    return *window;
}

// From the file to a painted window.
void openOrder(benchmark::State &state)
{
    MainWindow &window = mainWindow();
    const QString &path = orderPath();
    for (auto _ : state)
        report(state, secondsOf([&] {
                   window.document().load(path);
                   window.view().show(window.document().order());
                   window.grab();
                   settle();
               }),
               1.0);
}

// One cell, until the window takes the next key.
void editCell(benchmark::State &state)
{
    MainWindow &window = mainWindow();
    orderView &view = window.view();
    int value = 0;
    for (auto _ : state)
        report(state, secondsOf([&] {
                   view.lines()->setValue(static_cast<myItem::myItemStandard *>(view.lines()->item(
                                              orderLines / 2, orderTree::quantityColumn)),
                                          ++value);
                   settle();
               }),
               0.05);
}

// A material's cell and a deleted material, with the journal from which they would be recovered.
void editMaterial(benchmark::State &state)
{
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    window.commandEdit(true);
    const int last = window.model()->rowCount() - 1;
    window.view()->expand(window.model()->index(last, 0));
    settle();
    QStandardItem *group = window.model()->item(last);
    int value = 0;
    double worst = 0;
    for (auto _ : state) {
        const bool isCell = ++value % 2 > 0;
        const double seconds = secondsOf([&] {
            if (isCell)
                window.model()->setValue(static_cast<myItem::myItemStandard *>(
                                             group->child(0, databaseTree::nameColumn)),
                                         QString::number(value));
            else
                window.stack().push(
                    std::make_unique<deleteFromItem>(group, group->child(group->rowCount() - 1)));
            settle();
        });
        worst = std::max(worst, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = worst / 0.02;
}

// All cells of a column, undone and done again.
void groupCommand(benchmark::State &state)
{
    MainWindow &window = mainWindow();
    orderView &view = window.view();
    int value = 0;
    for (auto _ : state)
        report(state, secondsOf([&] {
                   const QVariant wanted = QString::number(++value);
                   auto change = cellBlock::set(
                       view.lines(), view.cells(view.allRows(), orderTree::descriptionColumn),
                       [&](const myItem::myItemStandard &) { return wanted; }, &window);
                   change->undo();
                   change->redo();
               }),
               0.3);
}

// The database window, groups closed.
void showDatabase(benchmark::State &state)
{
    for (auto _ : state) {
        std::unique_ptr<Kiv_mat_databaseWindow> window;
        report(state, secondsOf([&] {
                   window = std::make_unique<Kiv_mat_databaseWindow>(programData::instance(),
                                                                     programData::warehouse);
                   window->show();
                   window->grab();
                   settle();
               }),
               0.5);
    }
}

void openGroup(benchmark::State &state)
{
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    settle();
    int row = 0;
    for (auto _ : state)
        report(state, secondsOf([&] {
                   window.view()->expand(window.model()->index(row++, 0));
                   settle();
               }),
               0.02);
    state.counters["materials"] = window.model()->item(0)->rowCount();
}

// A key in the search field, with some groups open.
void searchKeys(benchmark::State &state)
{
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    for (int row = 0; row < 20; ++row)
        window.view()->expand(window.model()->index(row, 0));
    auto *words = window.findChild<QLineEdit *>(QStringLiteral("words"));
    words->setText(QStringLiteral("x"));
    emit words->returnPressed();
    settle();
    const QString typed = QStringLiteral("rezystor 0603");
    int length = 0;
    double worst = 0;
    for (auto _ : state) {
        const double seconds = secondsOf([&] {
            words->setText(typed.left(length++ % typed.size() + 1));
            emit words->returnPressed();
            settle();
        });
        worst = std::max(worst, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = worst / 0.05;
}

// 341 new and 341 changed materials of another database, over all groups, while a search filters.
void takeOver(benchmark::State &state)
{
    constexpr size_t each = 341;
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    window.commandEdit(true);
    auto *words = window.findChild<QLineEdit *>(QStringLiteral("words"));
    words->setText(QStringLiteral("rezystor"));
    emit words->returnPressed();
    settle();
    kiv_mat_databaseStruct &mine = window.rows().database();
    std::vector<std::unique_ptr<materialStruct>> others;
    std::vector<materialDifference> plan;
    for (size_t i = 0; i < each; ++i) {
        d_groupStruct *group = mine.groups[i % mine.groups.size()].get();
        materialStruct *known = group->items[i / mine.groups.size()].get();
        for (const auto kind : {materialDifference::added, materialDifference::changed}) {
            others.push_back(known->copy());
            others.back()->d_description += QLatin1Char('x');
            if (kind == materialDifference::added)
                others.back()->d_ktm += QLatin1Char('x');
            plan.push_back({kind, known, group, others.back().get(), group, {3}});
        }
    }
    for (auto _ : state) {
        report(state, secondsOf([&] {
                   window.takeOver(plan, true, QStringLiteral("Update"));
                   settle();
               }),
               2.0);
        window.commandUndo(true);
    }
}

// ratio: a mouse move over 100,000 rows against one over 1,000.
double secondsOfMoves(int rows)
{
    myModel model(nullptr);
    for (int row = 0; row < rows; ++row)
        model.appendRow(
            {new myItem::myItemLineEdit(QStringLiteral("a"), QStringLiteral("text"), true),
             new myItem::myItemLineEdit(QStringLiteral("b"), QStringLiteral("text"), true)});
    myTreeView view;
    view.setModel(&model);
    view.resize(600, 400);
    view.show();
    settle();
    const auto move = [&](int times) {
        for (int i = 0; i < times; ++i) {
            view.setCurrentIndex(model.index(i % 20, 0));
            QMouseEvent event(QEvent::MouseMove, QPointF(20, 10 + i % 200), Qt::NoButton,
                              Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(view.viewport(), &event);
        }
    };
    // The first one lays the rows out.
    move(1);
    constexpr int moves = 200;
    return secondsOf([&] { move(moves); });
}

void mouseMove(benchmark::State &state)
{
    for (auto _ : state) {
        const double few = secondsOfMoves(1000);
        const double many = secondsOfMoves(100000);
        state.SetIterationTime(many);
        state.counters["ratio"] = many / few;
    }
}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    translation::install(QStringLiteral("pl"));
    prompts silent;
    installPrompts(&silent);
    benchmark::Initialize(&argc, argv);

    const QTemporaryDir folder(KIVZP_BENCH_DIR "/editXXXXXX");
    for (const char *part : {"_config", "_validator", "_zp", "_files"})
        benchSupport::copyFolder(QStringLiteral(KIVZP_SOURCE_DIR "/") + QLatin1String(part),
                                 folder.filePath(QLatin1String(part)));
    const QString warehouse = folder.filePath(QStringLiteral("_files/db_warehouse.xml"));
    QFile::remove(warehouse);
    QFile::link(benchSupport::generatedDatabase(100000), warehouse);
    paths::setProgramDir(folder.path());
    mainWindow();

    const auto add = [](const char *name, void (*work)(benchmark::State &), int iterations) {
        benchmark::RegisterBenchmark(name, work)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(iterations);
    };
    add("openOrder/5000", openOrder, 3);
    add("editCell/5000", editCell, 20);
    add("editMaterial/100k", editMaterial, 40);
    add("groupCommand/5000", groupCommand, 5);
    add("showDatabase/100k", showDatabase, 3);
    add("openGroup/100k", openGroup, 10);
    add("searchKeys/100k", searchKeys, 26);
    add("takeOver/100k", takeOver, 1);
    add("mouseMove", mouseMove, 1);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
