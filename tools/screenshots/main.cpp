// Pictures of the program's windows on its sample data, taken without a display:
//   kivzp-screenshots PROGRAM_FOLDER OUT_FOLDER LANGUAGE [NAME...]
// writes OUT_FOLDER/NAME.LANGUAGE.png for every window, or for those named.
#include "bom/Kiv_bomViewWindow.h"
#include "bom/Kiv_bomWindow.h"
#include "bom/basketsDialog.h"
#include "bom/boardStockDialog.h"
#include "bom/bomImportWindow.h"
#include "bom/needsDialog.h"
#include "bom/reservationsDialog.h"
#include "data/basketForm.h"
#include "data/programData.h"
#include "data/reservationsFile.h"
#include "database/Kiv_mat_databaseMergeWindow.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "database/materialWindow.h"
#include "dialogs/aboutDialog.h"
#include "firm/firmDetailsDialog.h"
#include "firm/firmWindow.h"
#include "order/addMaterialDialog.h"
#include "order/linesDialog.h"
#include "order/orderDocument.h"
#include "order/orderView.h"
#include "shell/MainWindow.h"
#include "shell/MyProxyStyle.h"
#include "shell/logos.h"
#include "shell/startupDialog.h"
#include "tree/myTreeView.h"
#include "tree/richtexteditDialog.h"
#include "util/files.h"
#include "util/localeSetup.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/translation.h"
#include "util/userState.h"
#include "window/messageWindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <cstdio>

namespace {

// What the pictures show in the log and errors windows; boxes are not opened.
class picturePrompts : public prompts
{
public:
    void log(const QString &html) override { logWindow::instance().append(html); }
    void listError(const QString &html) override { errorsWindow::instance().append(html); }
};

struct picture
{
    const char *name;
    QWidget *(*show)(MainWindow &window);
};

QWidget *showLog(MainWindow &)
{
    userPrompts().log(messages::done(messages::printToFile(), QStringLiteral("zp_0.pdf"),
                                     paths::data(QStringLiteral("_zp/zp_0.pdf"))));
    logWindow::instance().showNow();
    return &logWindow::instance();
}

QWidget *showErrors(MainWindow &)
{
    const QString path = paths::data(QStringLiteral("_files/db_author.xml"));
    userPrompts().listError(messages::failed(messages::fileCorrupted(), path));
    userPrompts().listError(messages::consequence(messages::createDefaultFile(), path));
    errorsWindow::instance().showNow();
    return &errorsWindow::instance();
}

QWidget *showSplash(MainWindow &)
{
    auto *dialog = new startupDialog;
    dialog->setProgress(6, 9);
    dialog->show();
    return dialog;
}

QWidget *showAbout(MainWindow &window)
{
    auto *dialog = new aboutDialog(logos::logo(), &window);
    dialog->show();
    return dialog;
}

template <class Show>
QWidget *shownBy(MainWindow &window, const char *name, const Show &show)
{
    show();
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->objectName() == QLatin1String(name))
            return widget;
    return &window;
}

QWidget *showBeside(MainWindow &window)
{
    window.action("previewBeside")->setChecked(true);
    window.resize(1600, 900);
    return &window;
}

QWidget *showEmpty(MainWindow &window)
{
    window.action("previewBeside")->setChecked(false);
    window.resize(1240, 820);
    window.commandZpNew(true);
    return &window;
}

QWidget *showDatabase(MainWindow &window)
{
    Kiv_mat_databaseWindow &database = window.databaseWindow(programData::warehouse);
    database.showNow();
    database.findChild<QLineEdit *>(QStringLiteral("words"))->setText(QStringLiteral("stm32"));
    return &database;
}

QWidget *showFindings(MainWindow &window)
{
    Kiv_mat_databaseWindow &database = window.databaseWindow(programData::warehouse);
    return shownBy(window, "findingsWindow", [&database] { database.commandChecks(true); });
}

QWidget *showMerge(MainWindow &window)
{
    Kiv_mat_databaseWindow &database = window.databaseWindow(programData::warehouse);
    database.commandEdit(true);
    auto *merge = new Kiv_mat_databaseMergeWindow(&database);
    merge->open(paths::data(QStringLiteral("_files/db_service.xml")));
    merge->show();
    merge->view()->expand(merge->model()->index(0, 0));
    return merge;
}

QWidget *showConfig(MainWindow &window)
{
    return shownBy(window, "configWindow", [&] { window.configCommand(true); });
}

QWidget *showFirms(MainWindow &, firmOperations::firmKind kind)
{
    auto *firms = new firmWindow(programData::instance());
    firms->showNow();
    firms->findChild<QTabWidget *>()->setCurrentIndex(kind);
    firms->showNow();
    myTreeView *view = firms->view(kind);
    view->setCurrentIndex(view->model()->index(2, 0));
    // A wrong tax number, for its mark.
    myModel *model = firms->model(kind);
    if (kind == firmOperations::supplier)
        model->setValue(model->cell(model->index(1, model->columnCount() - 1)),
                        QStringLiteral("526-025-02-75"));
    return firms;
}

// The sample lists with some sets.
Kiv_bomWindow &builtBoms(MainWindow &window)
{
    Kiv_bomWindow &boms = window.bomWindow();
    const auto files = bomTree::allFiles(boms.model());
    for (int i = 0; i < files.size(); i += 2)
        boms.model()->setValue(bomTree::setsCell(files[i]), 10 * (i + 1));
    boms.view()->setCurrentIndex(files[0]->index());
    return boms;
}

QWidget *showBoms(MainWindow &window)
{
    Kiv_bomWindow &boms = builtBoms(window);
    boms.showNow();
    return &boms;
}

QWidget *showBomView(MainWindow &window)
{
    Kiv_bomViewWindow &list = window.bomWindow().viewWindow(
        paths::data(QStringLiteral("_files/boms/konwerter_rs232_usb.xml")));
    list.showNow();
    return &list;
}

QWidget *showNeeds(MainWindow &window)
{
    // Looked at by the dialog only while it is made.
    const ktmIndex &materials = programData::instance().materials();
    std::vector<std::unique_ptr<kiv_mat_bomStruct>> read;
    std::vector<bomOperations::bomSets> lists;
    for (const QString &path :
         filesOf(programData::instance().boms(), programData::instance().boms().filePath)) {
        read.push_back(std::make_unique<kiv_mat_bomStruct>());
        QString error;
        if (bomOperations::readBom(path, read.back().get(), &error))
            lists.push_back({read.back().get(), 20});
    }
    // As long as the dialog.
    static const bomOperations::demand needed = bomOperations::demandOf(lists, materials);
    auto *dialog = new needsDialog(needed, window.document().order(), {}, &window);
    dialog->show();
    return dialog;
}

// A parts list of the sample database: found by number, by value, in doubt, unknown, left out.
QWidget *showImport(MainWindow &)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("modem_rev_b.csv"));
    files::writeText(path, QStringLiteral("Designator;Quantity;Value;Footprint;Manufacturer;MPN\n"
                                          "U1;1;;LQFP-48;STMicroelectronics;STM32F103C8T6\n"
                                          "C1, C2;2;22pF;0603;;\n"
                                          "R1-R4;4;10k;0603;;\n"
                                          "R5, R6;2;4k7;;;\n"
                                          "X1;1;Modem;;Acme;AC-9000\n"
                                          "J3;1;DNP;;;\n"));
    auto *import = new bomImportWindow(programData::instance(),
                                       QFileInfo(programData::instance().boms().filePath).path());
    import->openList(path);
    import->show();
    return import;
}

QWidget *showBoardStock(MainWindow &window)
{
    static kiv_mat_bomStruct bom;
    QString error;
    bomOperations::readBom(paths::data(QStringLiteral("_files/boms/modul_stm32f103.xml")), &bom,
                           &error);
    const ktmIndex &materials = programData::instance().materials();
    static bomOperations::demand needed = bomOperations::demandOf({{&bom, 40}}, materials);
    needed.needs.front().reserved =
        decimal::read(QStringLiteral("4")).value_or(decimal()); // by another board
    auto *dialog = new boardStockDialog(boardStockDialog::takingOut, needed, materials,
                                        QStringLiteral("modul_stm32f103"), &window);
    dialog->show();
    return dialog;
}

QWidget *showReservations(MainWindow &window)
{
    static const QTemporaryDir folder;
    static reservationsFile file(folder.filePath(QStringLiteral("reservations.xml")));
    const ktmIndex &materials = programData::instance().materials();
    kiv_mat_bomStruct bom;
    QString error;
    const QString path = paths::data(QStringLiteral("_files/boms/modul_stm32f103.xml"));
    bomOperations::readBom(path, &bom, &error);
    const boardStock::occasion when{QStringLiteral("anna"), QDateTime(QDate(2026, 11, 26), {}),
                                    true};
    const bomOperations::demand needed = bomOperations::demandOf({{&bom, 5}}, materials);
    file.change(
        [&](kiv_mat_reservationsStruct &all) {
            all.reserved.append(boardStock::boardOf({&bom, 20}, materials, {}, path, when));
            for (const boardStock::withdrawal &one :
                 boardStock::withdrawalsOf(boardStock::takingsOf(needed, materials, true),
                                           {{&bom, 5}}, materials, {}, path, when))
                for (const auto &board : one.boards)
                    all.built.append(board->copy());
            return true;
        },
        programData::instance().config(), &error);
    auto *dialog = new reservationsDialog(file, programData::instance().config(), &window);
    dialog->findChild<QTreeWidget *>()->expandAll();
    dialog->show();
    return dialog;
}

// What the order asks for, by supplier.
QWidget *showBaskets(MainWindow &window)
{
    static const firmDetailsStruct usual;
    auto *dialog = new basketsDialog(
        supplierBasket::itemsOf(window.document().order(), programData::instance().materials()),
        [](const QString &) -> const firmDetailsStruct & { return usual; }, {}, &window);
    dialog->show();
    return dialog;
}

QWidget *showFirmDetails(MainWindow &window)
{
    firmDetailsStruct details;
    details.name = QStringLiteral("TME");
    details.address = QStringLiteral("ul. Przykładowa 1\n00-001 Warszawa");
    details.email = QStringLiteral("biuro@example.com");
    details.discount = QStringLiteral("5");
    basketForm::setUsualColumns(&details);
    auto *dialog = new firmDetailsDialog(
        details, [](const firmDetailsStruct &) { return true; }, &window);
    dialog->show();
    return dialog;
}

QWidget *showAddMaterial(MainWindow &window)
{
    window.commandAddMaterial(true);
    auto *dialog = window.findChild<addMaterialDialog *>();
    dialog->findChild<QLineEdit *>(QStringLiteral("words"))
        ->setText(QStringLiteral("rezystor 0603 stock:>100"));
    return dialog;
}

// One with several manufacturers and suppliers, and with files.
QWidget *showMaterial(MainWindow &window)
{
    auto *editor = new materialWindow(programData::instance(), &window);
    programData &known = programData::instance();
    known.config().options.findOption(QStringLiteral("SERVER_NAME"))->value1 =
        QStringLiteral("files.example.com");
    editor->openExisting(nullptr,
                         *known.database(programData::warehouse).groups.front()->items.front());
    return editor;
}

QWidget *showLines(MainWindow &window)
{
    auto *dialog =
        new linesDialog(linesDialog::copying, window.view().lineRows().columns(), true, &window);
    dialog->show();
    return dialog;
}

QWidget *showRichText(MainWindow &window)
{
    auto *dialog = new richtexteditDialog(&window);
    dialog->setHtml(window.document().order().attentions);
    dialog->show();
    return dialog;
}

const picture pictures[] = {
    {"main", [](MainWindow &window) -> QWidget * { return &window; }},
    {"splash", showSplash},
    {"log", showLog},
    {"errors", showErrors},
    {"about", showAbout},
    {"addMaterial", showAddMaterial},
    {"database", showDatabase},
    {"findings", showFindings},
    {"merge", showMerge},
    {"config", showConfig},
    {"firms", [](MainWindow &w) { return showFirms(w, firmOperations::manufacturer); }},
    {"firmsSuppliers", [](MainWindow &w) { return showFirms(w, firmOperations::supplier); }},
    {"boms", showBoms},
    {"bomView", showBomView},
    {"needs", showNeeds},
    {"bomImport", showImport},
    {"boardStock", showBoardStock},
    {"reservations", showReservations},
    {"baskets", showBaskets},
    {"firmDetails", showFirmDetails},
    {"lines", showLines},
    {"material", showMaterial},
    {"richText", showRichText},
    {"mainBeside", showBeside},
    {"mainEmpty", showEmpty},
};

void settle()
{
    constexpr int settleMs = 300;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < settleMs)
        QCoreApplication::processEvents(QEventLoop::AllEvents, settleMs);
}

void silence(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(silence);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("KivZP"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KIVZP_VERSION));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        std::fprintf(stderr,
                     "usage: kivzp-screenshots PROGRAM_FOLDER OUT_FOLDER pl|en [NAME...]\n");
        return 2;
    }
    paths::setProgramDir(QDir(arguments.at(1)).absolutePath());
    const QDir out(arguments.at(2));
    const QString &language = arguments.at(3);
    const QStringList wanted = arguments.mid(4);
    translation::install(language);
    QApplication::setStyle(new MyProxyStyle);
    picturePrompts shown;
    installPrompts(&shown);
    userState::instance().lastZp = QStringLiteral("_zp/zp_0.xml");

    MainWindow window(programData::instance());
    window.show();
    int code = QDir().mkpath(out.path()) ? 0 : 3;
    for (const picture &one : pictures) {
        if (!wanted.isEmpty() && !wanted.contains(QLatin1String(one.name)))
            continue;
        QWidget *widget = one.show(window);
        settle();
        const QString file =
            out.filePath(QStringLiteral("%1.%2.png").arg(QLatin1String(one.name), language));
        if (!widget->grab().save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            code = 3;
        }
        if (widget != &window)
            widget->hide();
    }
    installPrompts(nullptr);
    return code;
}
