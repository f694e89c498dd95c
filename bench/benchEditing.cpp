// The trees at the size of a company's data: opening, editing, searching. Without a display.
#include "benchSupport.h"

#include "commands/cellBlock.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "database/bulkEdit.h"
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
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cmath>
#include <numeric>
#include <string>

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
    window.view()->expand(window.model()->index(0, 0));
    settle();
    QStandardItem *group = window.model()->item(0);
    int value = 0;
    double worst = 0;
    for (auto _ : state) {
        const bool isCell = ++value % 2 > 0;
        const auto cell = [&](int row) {
            return window.model()->cell(
                window.model()->index(row, databaseTree::nameColumn, group->index()));
        };
        const double seconds = secondsOf([&] {
            if (isCell)
                window.model()->setValue(cell(0), QString::number(value));
            else
                window.stack().push(
                    std::make_unique<deleteFromItem>(group, cell(window.model()->rowCount(group->index()) - 1)));
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
    state.counters["materials"] = window.model()->rowCount(window.model()->index(0, 0));
}

// Texts typed key by key into the search field and taken back: the slowest key. Groups with matches
// open by themselves; or all of them are open from the beginning.
void searchKeys(benchmark::State &state, const QStringList &texts, bool allOpen)
{
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    auto *words = window.findChild<QLineEdit *>(QStringLiteral("words"));
    words->setText(QStringLiteral("x"));
    emit words->returnPressed();
    settle();
    words->clear();
    emit words->returnPressed();
    if (allOpen)
        window.commandExpand(true);
    settle();
    double worst = 0;
    for (auto _ : state) {
        double whole = 0;
        for (const QString &text : texts)
            for (int key = 1; key <= 2 * text.size(); ++key) {
                const double seconds = secondsOf([&] {
                    words->setText(text.left(key <= text.size() ? key : 2 * text.size() - key));
                    emit words->returnPressed();
                    settle();
                });
                worst = std::max(worst, seconds);
                whole += seconds;
            }
        state.SetIterationTime(whole);
    }
    state.counters["ratio"] = worst / 0.05;
}

// The table of checks with 100,000 findings: shown, sorted by a column, and a key in its search
// field; the slowest.
void findings(benchmark::State &state)
{
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    for (const auto &group : window.rows().database().groups)
        for (const auto &material : group->items)
            material->d_description.clear();
    window.commandChecks(false);
    settle();
    const auto *table = window.findChild<QTreeView *>(QStringLiteral("findings"));
    auto *words = window.findChild<QLineEdit *>(QStringLiteral("findingWords"));
    const QString typed = QStringLiteral("rezystor 0603");
    int step = 0;
    double worst = 0;
    for (auto _ : state) {
        const double seconds = secondsOf([&] {
            if (step < 6) {
                table->header()->setSortIndicator(step, Qt::DescendingOrder);
            } else {
                words->setText(typed.left(step - 5));
                emit words->returnPressed();
            }
            settle();
        });
        ++step;
        worst = std::max(worst, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["rows"] = table->model()->rowCount();
    state.counters["ratio"] = worst / 0.3;
}

// All groups opened. ratio: the resident memory of the whole program then over three times the size
// of the database's file.
void expandAll(benchmark::State &state)
{
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    settle();
    for (auto _ : state)
        report(state, secondsOf([&] {
                   window.commandExpand(true);
                   settle();
               }),
               0.5);
    QScrollBar *bar = window.view()->verticalScrollBar();
    for (int page = 0; page <= 200; ++page) {
        bar->setValue(int(qint64(bar->maximum()) * page / 200));
        window.grab();
    }
    const double file =
        double(QFileInfo(paths::data(QStringLiteral("_files/db_warehouse.xml"))).size());
    state.counters["memory"] = double(benchSupport::residentBytes()) / (3 * file);
}

// A window with everything expanded.
void closeWindow(benchmark::State &state)
{
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    for (auto _ : state) {
        window.showNow();
        window.commandExpand(true);
        settle();
        report(state, secondsOf([&] {
                   window.close();
                   settle();
               }),
               0.3);
    }
}

// 341 new and 341 changed materials of another database, over all groups, while a search filters.
struct otherDatabase
{
    explicit otherDatabase(kiv_mat_databaseStruct &mine)
    {
        constexpr int each = 341;
        std::vector<std::pair<d_groupStruct *, materialStruct *>> all;
        for (const auto &group : mine.groups)
            for (const auto &material : group->items)
                all.emplace_back(group.get(), material.get());
        for (int i = 0; i < each; ++i) {
            const auto [group, known] = all[all.size() * size_t(i) / each];
            for (const auto kind : {materialDifference::added, materialDifference::changed}) {
                materials.push_back(known->copy());
                materials.back()->d_description += QLatin1Char('x');
                if (kind == materialDifference::added)
                    materials.back()->d_ktm += QLatin1Char('x');
                plan.push_back({kind, known, group, materials.back().get(), group, {3}});
            }
        }
    }
    std::vector<std::unique_ptr<materialStruct>> materials;
    std::vector<materialDifference> plan;
};

// Taken over, or then taken back and done again, the slower of both.
void takeOver(benchmark::State &state, bool allOpen, bool history)
{
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    window.commandEdit(true);
    if (allOpen)
        window.commandExpand(true);
    auto *words = window.findChild<QLineEdit *>(QStringLiteral("words"));
    words->setText(QStringLiteral("0603"));
    emit words->returnPressed();
    settle();
    const otherDatabase other(window.rows().database());
    for (auto _ : state) {
        const double taken = secondsOf([&] {
            window.takeOver(other.plan, true, QStringLiteral("Update"));
            settle();
        });
        const auto move = [&](void (Kiv_mat_databaseWindow::*way)(bool)) {
            return secondsOf([&] {
                (window.*way)(true);
                settle();
            });
        };
        double moved = move(&Kiv_mat_databaseWindow::commandUndo);
        if (history) {
            moved = std::max(moved, move(&Kiv_mat_databaseWindow::commandRedo));
            window.commandUndo(true);
        }
        report(state, history ? moved : taken, 0.3);
    }
}

// 10,000 materials get another text, or another group, and have it back, with all their rows made.
// The slowest of making, undoing and doing again.
void changeMany(benchmark::State &state, const bulkEdit::request &wanted)
{
    constexpr int many = 10000;
    Kiv_mat_databaseWindow window(programData::instance(), programData::warehouse);
    window.show();
    window.commandEdit(true);
    std::vector<bulkEdit::place> places;
    for (const auto &group : window.rows().database().groups) {
        if (places.size() >= many)
            break;
        window.view()->expand(window.rows().groupItem(group.get())->index());
        for (const auto &material : group->items)
            places.push_back({material.get(), group.get(), &window.rows().database()});
    }
    places.resize(many);
    settle();
    double slowest = 0;
    const auto take = [&](const std::function<void()> &work) {
        slowest = std::max(slowest, secondsOf([&] {
                               work();
                               settle();
                           }));
    };
    for (auto _ : state) {
        take([&] {
            const auto plan = bulkEdit::planOf(wanted, places, programData::instance().materials());
            std::vector<int> all(plan.changes.size());
            std::iota(all.begin(), all.end(), 0);
            window.changeMaterials(plan, all);
        });
        take([&] { window.commandUndo(true); });
        take([&] { window.commandRedo(true); });
        window.commandUndo(true);
        report(state, slowest, 2.0);
    }
}

void changeText(benchmark::State &state)
{
    changeMany(state, {bulkEdit::request::replace, bulkEdit::findField(QStringLiteral("name")),
                       QStringLiteral("^(.*)$"), QStringLiteral("$1 x"), true});
}

void changeGroup(benchmark::State &state)
{
    changeMany(state, {bulkEdit::request::toGroup,
                       nullptr,
                       programData::instance().database(programData::warehouse).groups.back()->name,
                       {}});
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
    const QString real = benchSupport::realDatabase();
    QFile::link(real.isEmpty() ? benchSupport::generatedDatabase(100000) : real, warehouse);
    paths::setProgramDir(folder.path());
    mainWindow();

    const auto add = [](const char *name, const std::function<void(benchmark::State &)> &work,
                        int iterations) {
        benchmark::RegisterBenchmark(name, work)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(iterations);
    };
    // First, while no other window has left memory behind.
    add("expandAll/100k", expandAll, 1);
    add("openOrder/5000", openOrder, 3);
    add("editCell/5000", editCell, 20);
    add("editMaterial/100k", editMaterial, 40);
    add("groupCommand/5000", groupCommand, 5);
    add("showDatabase/100k", showDatabase, 3);
    add("openGroup/100k", openGroup, 10);
    for (const char *text : {"rezystor 0603", "-00100", "esr", "10k 1%"})
        add((std::string("searchKeys/100k/") + text).c_str(),
            [text](auto &state) { searchKeys(state, {QLatin1String(text)}, false); }, 1);
    add(
        "searchKeys/100k/allOpen",
        [](auto &state) {
            searchKeys(state, {QStringLiteral("rezystor 0603"), QStringLiteral("-00100")}, true);
        },
        1);
    for (const bool allOpen : {false, true}) {
        const std::string end = allOpen ? "/100k/allOpen" : "/100k";
        add(("takeOver" + end).c_str(), [=](auto &state) { takeOver(state, allOpen, false); }, 1);
        add(("undoTakeOver" + end).c_str(), [=](auto &state) { takeOver(state, allOpen, true); },
            1);
    }
    add("closeWindow/100k", closeWindow, 2);
    add("changeText/10k", changeText, 1);
    add("changeGroup/10k", changeGroup, 1);
    add("mouseMove", mouseMove, 1);
    add("findings/100k", findings, 19); // changes the database
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
