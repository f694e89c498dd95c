// The window of versions and unsaved orders, and what becomes of a copy that is opened or restored.
#include "shell/MainWindow.h"

#include "bom/Kiv_bomViewWindow.h"
#include "bom/Kiv_bomWindow.h"
#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/leftChanges.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "dialogs/versionsWindow.h"
#include "firm/firmWindow.h"
#include "order/orderView.h"
#include "util/desktop.h"
#include "util/fileVersions.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/scratch.h"
#include "util/userState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString called(const keptCopy &copy)
{
    return copy.name + QLatin1Char(' ') + copy.time.toString(QStringLiteral("dd.MM.yyyy hh:mm:ss"));
}

void showFault(const keptCopy &copy, const QString &fault)
{
    userPrompts().showError(
        MainWindow::tr("%1 cannot be read: %2").arg(called(copy), fault).toHtmlEscaped());
}

void showReadOnly(const QString &file)
{
    if (!QFile::setPermissions(file, QFile::ReadOwner) || !desktop::openFile(file))
        userPrompts().showError(MainWindow::tr("%1 cannot be opened")
                                    .arg(QDir::toNativeSeparators(file))
                                    .toHtmlEscaped());
}

bool sameFile(const QString &a, const QString &b)
{
    return !a.isEmpty() && QFileInfo(a).absoluteFilePath() == QFileInfo(b).absoluteFilePath();
}

} // namespace

void MainWindow::showVersions(const QString &path)
{
    if (!m_versions) {
        m_versions = std::make_unique<versionsWindow>(known());
        m_versions->setWindowIcon(windowIcon());
        m_versions->openCopy = [this](const keptCopy &copy) { openCopy(copy); };
        m_versions->restoreCopy = [this](const keptCopy &copy) { restoreCopy(copy); };
    }
    m_versions->showNow(path);
}

// An order becomes a new one, which has no file; other copies are shown as they are.
void MainWindow::openCopy(const keptCopy &copy)
{
    if (copy.isJournal) {
        QString fault;
        const auto changed = readKept(copy.file, &fault);
        const QString written = scratch::folder() + QLatin1Char('/') + copy.name;
        QFile::remove(written);
        if (!changed || saveXmlNoEvents(written, changed.get(), &fault, {}, saveRule::whatever) < 0)
            showFault(copy, fault);
        else
            showReadOnly(written);
        return;
    }
    const QString file = fileVersions::unpacked(copy.file);
    const fileKinds::fileHead head = fileKinds::headOf(file);
    if (head.kind == &fileKinds::order) {
        showNow();
        if (closeDocument() && m_document.recover(file, {}, {})) {
            forgetOrder();
            stayOpen();
            userState::instance().lastZp.clear();
            showDocument();
            setChanged();
            tell(tr("Opened as a new order: %1").arg(called(copy)));
        }
        if (file != copy.file)
            QFile::remove(file);
        return;
    }
    if (!head.kind) {
        showFault(copy, head.fault);
        return;
    }
    // It stays for the program that shows it, as long as this one runs.
    const QString shown =
        scratch::folder() + QLatin1Char('/') + QFileInfo(copy.file).completeBaseName();
    QFile::remove(shown);
    QFile::copy(file, shown);
    showReadOnly(shown);
    if (file != copy.file)
        QFile::remove(file);
}

// The window in which a file is edited; null when there is none.
editWindow *MainWindow::windowOf(const QString &path, const fileKind &kind)
{
    if (&kind == &fileKinds::order)
        return sameFile(path, m_document.path()) ? this : nullptr;
    if (&kind == &fileKinds::database)
        for (int i = 0; i < programData::databaseCount; ++i)
            if (sameFile(path, known().database(programData::databaseKind(i)).filePath))
                return &databaseWindow(programData::databaseKind(i));
    if (&kind == &fileKinds::firm
        && sameFile(path, paths::data(known().config().options.value(optionKey::fileFirm))))
        return &firms();
    if (&kind == &fileKinds::boms && sameFile(path, known().boms().filePath))
        return &bomWindow();
    return &kind == &fileKinds::bom && QFileInfo::exists(path) ? &bomWindow().viewWindow(path)
                                                               : nullptr;
}

// They have no window of their own; what stands in the file becomes a version as well.
void MainWindow::restoreDetails(const keptCopy &copy, documentStruct &version)
{
    if (userPrompts().decide(tr("The details of all firms become those of the version %1.")
                                 .arg(called(copy).toHtmlEscaped()),
                             {tr("Restore them")}, true)
        && saveDocument(copy.path, version, known().config()))
        tell(tr("The details of the firms are restored"));
    m_versions->listAgain();
}

void MainWindow::restoreCopy(const keptCopy &copy)
{
    QString fault;
    const auto version = readKept(copy.file, &fault);
    if (!version) {
        showFault(copy, fault);
        return;
    }
    // A file that is gone comes back as an order that is not saved.
    if (&version->kind() == &fileKinds::order && !QFileInfo::exists(copy.path)) {
        openCopy(copy);
        return;
    }
    if (&version->kind() == &fileKinds::order && !sameFile(copy.path, m_document.path())) {
        if (!closeDocument())
            return;
        openFile(copy.path);
        // It was told that it cannot be read.
        if (!sameFile(copy.path, m_document.path()))
            return;
    }
    if (&version->kind() == &fileKinds::firmDetails) {
        restoreDetails(copy, *version);
        return;
    }
    editWindow *window = windowOf(copy.path, version->kind());
    if (window) {
        // They are given up when the window's own journal has them.
        if (window->restoreVersion(*version, called(copy)) && copy.isJournal
            && window->storeRecovery())
            for (const leftChanges &one : leftChanges::all())
                if (one.journal() == copy.file)
                    one.remove();
        m_versions->listAgain();
    } else {
        userPrompts().showError(tr("%1 is not edited in any window; open the copy instead.")
                                    .arg(QDir::toNativeSeparators(copy.path))
                                    .toHtmlEscaped());
    }
}
