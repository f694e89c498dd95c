// report: an order as an HTML page or a PDF.
#include "cli/arguments.h"

#include "data/kiv_mat_zpStruct.h"
#include "report/orderReport.h"
#include "report/pdfPrinter.h"
#include "report/reportPage.h"
#include "util/files.h"

#include <QCoreApplication>
#include <QWebView>

namespace cli {

namespace {

bool isPdf(const QString &path)
{
    return path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
}

bool writePdf(const QString &html, const QString &path, const QString &title)
{
    QWebView view;
    auto *page = new reportPage(&view);
    view.setPage(page);
    page->showHtml(html);
    return printPdf(&view, path, title);
}

int runReport(const QStringList &arguments)
{
    parser options(reportCommand, QStringLiteral("ORDER"), 1, 1);
    const QCommandLineOption database = databaseOption(QCoreApplication::translate(
        "cli",
        "A material database, for manufacturers and suppliers. May be given several times."));
    const QCommandLineOption output(
        {QStringLiteral("o"), QStringLiteral("output")},
        QCoreApplication::translate(
            "cli", "The file to write; its ending, .html or .pdf, decides its kind."),
        QStringLiteral("OUT"));
    options.addOption(database);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    const QString target = options.value(output);
    if (!isPageFile(target))
        return refuseCall(
            reportCommand,
            QCoreApplication::translate("cli", "give an output file that ends in .html or .pdf"));

    kiv_mat_zpStruct order;
    if (!readFile(options.positionalArguments().at(0), &order,
                  QCoreApplication::translate("cli", "is no order")))
        return refused;
    databaseSet databases;
    if (!databases.load(options.values(database)))
        return refused;

    return writePage(orderReport(order, databases.index()), target, orderTitle(order));
}

} // namespace

bool isPageFile(const QString &path)
{
    return isPdf(path) || path.endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
}

int writePage(const QString &html, const QString &path, const QString &title)
{
    const bool written = isPdf(path) ? writePdf(html, path, title) : files::writeText(path, html);
    return written ? done : cannotWrite(path);
}

const subcommand reportCommand{
    "report", QT_TRANSLATE_NOOP("cli", "Writes the report of an order as HTML or PDF."), runReport};

} // namespace cli
