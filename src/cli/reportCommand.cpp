// report: an order as an HTML page or a PDF.
#include "cli/arguments.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "report/orderReport.h"
#include "report/pdfPrinter.h"
#include "report/reportPage.h"
#include "util/files.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QWebView>

namespace cli {

namespace {

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
    const QCommandLineOption database(
        {QStringLiteral("d"), QStringLiteral("database")},
        QCoreApplication::translate(
            "cli",
            "A material database, for manufacturers and suppliers. May be given several times."),
        QStringLiteral("DB"));
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
    const bool pdf = target.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
    if (!pdf && !target.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)) {
        err() << "report: "
              << QCoreApplication::translate("cli",
                                             "give an output file that ends in .html or .pdf")
              << '\n'
              << Qt::flush;
        return wrongCall;
    }

    const QString path = options.positionalArguments().at(0);
    kiv_mat_zpStruct order;
    QString error;
    if (!validateFile(path))
        return refused;
    if (fileKinds::ofFile(path) != &fileKinds::order)
        error = QCoreApplication::translate("cli", "is no order");
    else
        loadDocument(path, &order, &error);
    if (!error.isEmpty()) {
        err() << path << ": " << error << '\n' << Qt::flush;
        return refused;
    }
    databaseSet databases;
    if (!databases.load(options.values(database)))
        return refused;

    const QString html = orderReport(order, databases.index());
    if (pdf ? writePdf(html, target, orderTitle(order)) : files::writeText(target, html))
        return done;
    err() << target << ": " << QCoreApplication::translate("cli", "cannot be written") << '\n'
          << Qt::flush;
    return notWritten;
}

} // namespace

const subcommand reportCommand{
    "report", QT_TRANSLATE_NOOP("cli", "Writes the report of an order as HTML or PDF."), runReport};

} // namespace cli
