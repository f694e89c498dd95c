// KivZP: shows the report of the sample order in a window.
#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "report/orderReport.h"
#include "report/reportPage.h"
#include "util/localeSetup.h"
#include "util/paths.h"
#include "util/translation.h"

#include <QApplication>
#include <QMainWindow>
#include <QWebView>

int main(int argc, char *argv[])
{
    ensureUtf8Locale();
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("KivZP"));
    translation::install(QStringLiteral("pl"));

    configStruct config;
    config.load(paths::config());
    std::vector<std::unique_ptr<kiv_mat_databaseStruct>> databases;
    ktmIndex materials;
    for (QLatin1String key : {optionKey::fileDbWarehouse, optionKey::fileDbService,
                              optionKey::fileDbMechanics, optionKey::fileDbAuthor}) {
        databases.push_back(std::make_unique<kiv_mat_databaseStruct>());
        loadDatabase(paths::beside(config.options.value(key)), databases.back().get());
        materials.add(databases.back().get());
    }
    kiv_mat_zpStruct order;
    loadZp(paths::beside(config.options.value(optionKey::fileLastZp)), &order);

    QMainWindow window;
    auto *view = new QWebView(&window);
    auto *page = new reportPage(view);
    view->setPage(page);
    page->showHtml(orderReport(order, materials));
    window.setCentralWidget(view);
    window.setWindowTitle(orderTitle(order));
    window.resize(1240, 840);
    window.show();
    return QApplication::exec();
}
