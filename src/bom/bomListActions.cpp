#include "bom/Kiv_bomWindow.h"

#include "bom/Kiv_bomViewWindow.h"
#include "bom/bomReport.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "report/docExport.h"
#include "report/myWebView.h"
#include "report/pdfPrinter.h"
#include "tools/childRunner.h"
#include "util/desktop.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QStatusBar>
#include <QUrl>

using namespace bomOperations;

namespace {

QString native(const QString &path) { return QDir::toNativeSeparators(path).toHtmlEscaped(); }

} // namespace

// Errors go to the errors window together. Lists changed in their windows are saved first, when the
// user wants it.
Kiv_bomWindow::readLists Kiv_bomWindow::read(const QList<QStandardItem *> &files)
{
    readLists result;
    for (const QStandardItem *file : files) {
        const QString path = pathOf(file);
        const auto window = m_views.find(path);
        if (window != m_views.end() && window->second->isModified()
            && userPrompts().ask(tr("Save the changed BOM list %1?").arg(native(path)), false)
                   == prompts::answer::yes)
            window->second->save();
        auto bom = std::make_unique<kiv_mat_bomStruct>();
        QString error;
        if (!readBom(path, bom.get(), &error)) {
            userPrompts().listError(error);
            result.complete = false;
            continue;
        }
        result.lists.push_back({bom.get(), bomTree::setsOf(file)});
        result.boms.push_back(std::move(bom));
    }
    if (!result.complete)
        userPrompts().showErrors();
    return result;
}

Kiv_bomWindow::readLists Kiv_bomWindow::readBuilt(QList<QStandardItem *> *files)
{
    finishEditing();
    QList<QStandardItem *> built;
    for (QStandardItem *file : bomTree::allFiles(model()))
        if (bomTree::setsOf(file) > 0)
            built.append(file);
    if (built.isEmpty())
        tell(nothingBuilt());
    readLists read = this->read(built);
    // Half of what is built would be taken for all unnoticed.
    if (!read.complete) {
        tell(tr("A list cannot be read; nothing was done"));
        read.lists.clear();
    }
    if (files)
        *files = built;
    return read;
}

void Kiv_bomWindow::commandSet(bool)
{
    const readLists read = readBuilt(nullptr);
    if (!read.lists.empty())
        emit appendToOrder(read.lists);
}

void Kiv_bomWindow::tellWritten(const QString &path, bool written)
{
    if (!written) {
        userPrompts().showError(messages::notWritten(path));
        return;
    }
    userPrompts().log(messages::done(messages::saveFile(), text::fileNameOfPath(path), path));
    tell(tr("Saved as %1").arg(QDir::toNativeSeparators(path)));
}

void Kiv_bomWindow::commandFullReport(bool)
{
    QList<QStandardItem *> files = selectedFiles();
    if (files.isEmpty())
        for (QStandardItem *file : bomTree::allFiles(model()))
            if (!hasSets() || bomTree::setsOf(file) > 0)
                files.append(file);
    const readLists read = this->read(files);
    if (read.lists.empty())
        return;
    const QString path = userPrompts().saveFile(
        tr("Save to File"),
        bomReport::proposedPath(read.lists.front().bom->fileName, QStringLiteral(".html")),
        tr("Html File") + QLatin1String(" (*.html);;") + tr("Pdf File")
            + QLatin1String(" (*.pdf)"));
    if (path.isEmpty())
        return;
    const QString page = bomReport::page(read.lists, known().materials());
    bool written = false;
    if (path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) {
        workProgress::scope work(progress(), tr("Printing"));
        myWebView printed;
        printed.showReport(page);
        written = printPdf(&printed, path, bomReport::title(read.lists), work.function());
        if (work.cancelled())
            return;
    } else {
        written = files::writeText(path, page);
    }
    tellWritten(path, written);
    if (written && known().config().isOn(optionKey::openReportHtml))
        desktop::openFile(path);
}

void Kiv_bomWindow::commandCsv(bool)
{
    const readLists read = this->read({current()});
    if (read.lists.empty())
        return;
    const QString path = userPrompts().saveFile(
        tr("Save to File"), bomReport::proposedPath(currentPath(), QStringLiteral(".csv")),
        tr("CSV File") + QLatin1String(" (*.csv)"));
    if (!path.isEmpty())
        tellWritten(
            path, files::writeText(path, bomReport::csv(*read.boms.front(), known().materials())));
}

void Kiv_bomWindow::commandDoc(bool)
{
    if (const QString missing = missingConverter(); !missing.isEmpty()) {
        userPrompts().showInformation(missing.toHtmlEscaped());
        return;
    }
    const readLists read = this->read({current()});
    if (read.lists.empty())
        return;
    const QString path = userPrompts().saveFile(
        tr("Save to File"), bomReport::proposedPath(currentPath(), QStringLiteral(".doc")),
        tr("Doc File") + QLatin1String(" (*.doc)"));
    if (path.isEmpty())
        return;
    QMessageBox box(QMessageBox::Information, tr("Information"), tr("Please wait ..."),
                    QMessageBox::Close, this);
    box.setObjectName(QStringLiteral("pleaseWait"));
    box.setWindowModality(Qt::WindowModal);
    QPointer<childRunner> running;
    connect(&box, &QMessageBox::finished, this, [&running] {
        if (running)
            running->stop();
    });
    box.show();
    const bool written = writeDoc(bomReport::page(read.lists, known().materials()), path,
                                  QStringLiteral("_files/BOM_template.dotx"),
                                  [&running](childRunner *runner) { running = runner; });
    const bool stopped = !box.isVisible();
    box.hide();
    if (!written && stopped)
        return;
    tellWritten(path, written);
    if (written)
        desktop::openFile(path);
}

void Kiv_bomWindow::commandOpen(bool)
{
    const QString path = currentPath();
    if (!desktop::openFile(path))
        tell(tr("%1 cannot be opened").arg(QDir::toNativeSeparators(path)));
}

Kiv_bomViewWindow &Kiv_bomWindow::viewWindow(const QString &path)
{
    auto &window = m_views[path];
    if (!window) {
        window = std::make_unique<Kiv_bomViewWindow>(known(), path);
        window->sets = [this, path] {
            int sets = 0;
            for (const QStandardItem *file : bomTree::allFiles(model()))
                if (pathOf(file) == path)
                    sets += bomTree::setsOf(file);
            return sets;
        };
        connect(window.get(), &editWindow::versionsWanted, this, &editWindow::versionsWanted);
        window->openList = [this](const QString &file) { openList(file); };
        window->replaceEverywhere = [this, over = window.get()](const QString &ktm) {
            replaceMaterial(ktm, *over);
        };
    }
    return *window;
}

void Kiv_bomWindow::openList(const QString &path)
{
    kiv_mat_bomStruct bom;
    QString error;
    if (!readBom(path, &bom, &error)) {
        userPrompts().listError(error);
        userPrompts().showErrors();
        return;
    }
    m_lastView = QDir::cleanPath(path);
    viewWindow(m_lastView).showNow();
}

void Kiv_bomWindow::commandBom(bool)
{
    if (!bomTree::fileOf(current()))
        return;
    m_lastView = currentPath();
    viewWindow(m_lastView).showNow();
}

void Kiv_bomWindow::insertToBom(const materialKtm &ktm)
{
    const auto last = m_views.find(m_lastView);
    if (last != m_views.end() && last->second->isVisible())
        last->second->insertToBomView(ktm);
    else
        userPrompts().showInformation(
            tr("No BOM list is open. Open one with \"Bom\" among the BOM lists."));
}
