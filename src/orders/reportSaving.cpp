#include "orders/reportSaving.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "report/myWebView.h"
#include "report/pdfPrinter.h"
#include "util/desktop.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/workProgress.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString tr(const char *text) { return QCoreApplication::translate("reportSaving", text); }

} // namespace

QString saveReport(const savedReport &of, const configStruct &config, workProgress &progress)
{
    const auto said = [](const char *text) { return tr(text); };
    const QString path = userPrompts().saveFile(
        said(QT_TRANSLATE_NOOP("reportSaving", "Save to File")), of.proposed,
        said(QT_TRANSLATE_NOOP("reportSaving", "Html File")) + QLatin1String(" (*.html);;")
            + said(QT_TRANSLATE_NOOP("reportSaving", "Pdf File")) + QLatin1String(" (*.pdf);;")
            + said(QT_TRANSLATE_NOOP("reportSaving", "Xlsx File")) + QLatin1String(" (*.xlsx);;")
            + said(QT_TRANSLATE_NOOP("reportSaving", "CSV File")) + QLatin1String(" (*.csv)"));
    if (path.isEmpty())
        return {};
    const auto ends = [&path](const char *ending) {
        return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    };
    QString fault;
    bool written = false;
    if (ends(".pdf")) {
        workProgress::scope work(progress, said(QT_TRANSLATE_NOOP("reportSaving", "Printing")));
        myWebView printed;
        printed.showReport(of.page());
        written = printPdf(&printed, path, of.title, work.function());
        if (work.cancelled())
            return {};
    } else if (ends(".xlsx") || ends(".csv")) {
        workProgress::scope work(progress, said(QT_TRANSLATE_NOOP("reportSaving", "Writing")));
        const auto result = of.table(path, &fault, work.function());
        if (result == tableFile::cancelled)
            return {};
        written = result == tableFile::written;
    } else {
        written = files::writeText(path, of.page());
    }
    if (!written) {
        userPrompts().showError(messages::notWritten(path, fault));
        return {};
    }
    userPrompts().log(messages::done(messages::saveFile(), text::fileNameOfPath(path), path));
    if (config.isOn(optionKey::openReportHtml))
        desktop::openFile(path);
    return said(QT_TRANSLATE_NOOP("reportSaving", "Saved as %1"))
        .arg(QDir::toNativeSeparators(path));
}
