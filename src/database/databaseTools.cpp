// What the database window does with the whole database: it asks, calls the operations, and shows.
#include "database/Kiv_mat_databaseMergeWindow.h"
#include "database/Kiv_mat_databaseWindow.h"

#include "data/kiv_mat_bomStruct.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "database/altiumExport.h"
#include "database/cpvOperations.h"
#include "database/databaseChecks.h"
#include "database/databaseReport.h"
#include "database/databaseRowsTarget.h"
#include "database/findingsWindow.h"
#include "database/linkOperations.h"
#include "database/warehouseListing.h"
#include "dialogs/changesDialog.h"
#include "dialogs/tableDialog.h"
#include "tree/myTreeView.h"
#include "util/desktop.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "util/userState.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QUrl>

namespace {

QString xlsxFilter()
{
    return Kiv_mat_databaseWindow::tr("Xlsx File") + QLatin1String(" (*.xlsx)");
}

// Many texts of records as one step; rows that are made follow.
class changeTexts : public command
{
public:
    changeTexts(databaseTree::rows *rows, std::vector<materialChange> changes)
        : m_rows(rows)
        , m_changes(std::move(changes))
    {
        changeTexts::redo();
    }
    void undo() override
    {
        begin();
        revertChanges(m_changes);
        refresh();
    }
    void redo() override
    {
        begin();
        applyChanges(m_changes);
        refresh();
    }

private:
    void begin()
    {
        for (const materialChange &change : m_changes)
            m_rows->willChange(change.record);
    }
    void refresh()
    {
        for (const materialChange &change : m_changes)
            m_rows->refresh(change.record);
    }

    databaseTree::rows *m_rows;
    std::vector<materialChange> m_changes;
};

// Names in manufacturers and suppliers, or of their files, of many materials as one step; rows that
// are made follow.
class changeNames : public command
{
public:
    changeNames(databaseTree::rows *rows, std::vector<firmOperations::nameChange> changes)
        : m_rows(rows)
        , m_changes(std::move(changes))
    {
        changeNames::redo();
    }
    void undo() override
    {
        begin();
        firmOperations::revertNames(m_changes);
        refresh();
    }
    void redo() override
    {
        begin();
        firmOperations::applyNames(m_changes);
        refresh();
    }

private:
    void begin()
    {
        for (const firmOperations::nameChange &change : m_changes)
            m_rows->willChange(change.material);
    }
    void refresh()
    {
        for (const firmOperations::nameChange &change : m_changes)
            m_rows->refresh(change.material);
    }

    databaseTree::rows *m_rows;
    std::vector<firmOperations::nameChange> m_changes;
};

} // namespace

void Kiv_mat_databaseWindow::list(const QString &heading, const QStringList &lines)
{
    if (lines.isEmpty())
        return;
    userPrompts().listError((heading.isEmpty() ? QString() : heading + QLatin1String("<br>"))
                            + lines.join(QString()));
    userPrompts().showErrors();
}

void Kiv_mat_databaseWindow::tellExport(const exportResult &result)
{
    switch (result.result) {
    case exportResult::cancelled:
        tell(tr("Cancelled"));
        return;
    case exportResult::failed:
        userPrompts().showError(result.error.toHtmlEscaped());
        return;
    case exportResult::done:
        break;
    }
    for (const QString &file : result.files)
        userPrompts().log(messages::done(messages::saveFile(), text::fileNameOfPath(file), file));
    list({}, result.notes);
    // Lists of groups and of links count no materials.
    const QString form = result.materials > 0
                             ? tr("%n material(s) written to %1", nullptr, result.materials)
                             : tr("%1 written");
    tell(form.arg(QDir::toNativeSeparators(result.files.value(0))));
}

// What an export of the library changed is shown beside the window's work.
void Kiv_mat_databaseWindow::tellLibrary(const exportResult &result)
{
    tellExport(result);
    if (result.result != exportResult::done)
        return;
    const QString summary = summaryOf(result.changes);
    if (!result.changes.rows.empty()) {
        QList<QStringList> rows;
        for (const exportChange &change : result.changes.rows)
            rows.append(cellsOf(change));
        const readTable table{tr("Changes of the export"),
                              QDir::toNativeSeparators(result.files.value(0)) + QLatin1Char('\n')
                                  + summary,
                              changeCaptions(),
                              rows,
                              {130, 190, 160, 180, 110, 150}};
        (new tableDialog(table, this))->show();
    }
    tell(statusBar()->currentMessage() + QLatin1String(". ") + summary);
}

// --- Reports and exports
// --------------------------------------------------------------------------

void Kiv_mat_databaseWindow::writeReport(databaseReportKind kind)
{
    const QString path = databaseReportPath(m_rows->database().filePath, kind);
    if (userPrompts().ask(tr("Do you want create ?").toHtmlEscaped() + QLatin1String("<br>")
                              + QDir::toNativeSeparators(path).toHtmlEscaped(),
                          false)
        != prompts::answer::yes)
        return;
    workProgress::scope work(progress(), tr("Writing the report"));
    const exportResult result =
        writeDatabaseReport(m_rows->database(), &known().firm(), kind, path, work.function());
    tellExport(result);
    if (result.result == exportResult::done && known().config().isOn(optionKey::openReportHtml))
        desktop::openFile(path);
}

void Kiv_mat_databaseWindow::commandFullReport(bool) { writeReport(databaseReportKind::full); }
void Kiv_mat_databaseWindow::commandShortReport(bool) { writeReport(databaseReportKind::brief); }

void Kiv_mat_databaseWindow::exportTo(const QString &path,
                                      exportResult (*run)(const kiv_mat_databaseStruct &,
                                                          const QString &,
                                                          const progressFunction &))
{
    if (path.isEmpty())
        return;
    userState::instance().altiumDir = QFileInfo(path).absolutePath();
    exportResult result;
    {
        workProgress::scope work(progress(), tr("Exporting"));
        result = run(m_rows->database(), path, work.function());
    }
    if (run == exportGroups)
        tellExport(result);
    else
        tellLibrary(result);
}

void Kiv_mat_databaseWindow::commandAltiumXlsx(bool)
{
    exportTo(userPrompts().saveFile(tr("Save to File"),
                                    proposedExportPath(m_rows->database().filePath,
                                                       userState::instance().altiumDir,
                                                       QStringLiteral(".xlsx")),
                                    xlsxFilter()),
             exportAltiumXlsx);
}

void Kiv_mat_databaseWindow::commandAltiumSQLite(bool)
{
    exportTo(userPrompts().saveFile(tr("Save to File"),
                                    proposedExportPath(m_rows->database().filePath,
                                                       userState::instance().altiumDir,
                                                       QStringLiteral(".sqlite")),
                                    tr("SQLITE File") + QLatin1String(" (*.sqlite)")),
             exportAltiumSqlite);
}

void Kiv_mat_databaseWindow::commandGroups(bool)
{
    exportTo(userPrompts().saveFile(tr("Save to File"),
                                    QFileInfo(m_rows->database().filePath).absolutePath()
                                        + QLatin1String("/groups.xlsx"),
                                    xlsxFilter()),
             exportGroups);
}

// --- Checks
// ---------------------------------------------------------------------------------------

// The KTMs are listed in the errors window, too, which stays where it is.
void Kiv_mat_databaseWindow::commandFindDuplicate(bool)
{
    const QStringList ktms = duplicateLines(duplicateKtms(m_rows->database()));
    if (ktms.isEmpty())
        userPrompts().showInformation(allKtmsAreUnique().toHtmlEscaped());
    else
        userPrompts().listError(ktms.join(QString()));
    if (!ktms.isEmpty() || !duplicatePartNumbers(m_rows->database()).empty())
        findings().showNow(findingKind::duplicate);
}

void Kiv_mat_databaseWindow::commandFindEmpty(bool)
{
    if (incompleteMaterials(m_rows->database()).empty())
        userPrompts().showInformation(tr("No material has empty fields"));
    else
        findings().showNow(findingKind::empty);
}

void Kiv_mat_databaseWindow::commandInformation(bool)
{
    userPrompts().showInformation(informationText(m_rows->database()));
}

void Kiv_mat_databaseWindow::commandCheck_urls(bool)
{
    linkCheckResult checked;
    {
        workProgress::scope work(progress(), tr("Checking links"));
        checked = checkUrls(m_rows->database(), work.function());
    }
    list({}, linkErrorLines(checked));
    noteLinks(checked);
    tell(tr("%n link(s) checked", nullptr, int(checked.links.size())));
    if (checked.links.empty())
        return;
    const QString path = userPrompts().saveFile(
        tr("Save to File"),
        QFileInfo(m_rows->database().filePath).absolutePath() + QLatin1String("/links.xlsx"),
        xlsxFilter());
    if (path.isEmpty())
        return;
    workProgress::scope work(progress(), tr("Exporting"));
    tellExport(exportLinks(checked, path, work.function()));
}

// --- Taking over
// ----------------------------------------------------------------------------------

void Kiv_mat_databaseWindow::applyTexts(std::vector<materialChange> changes, const QString &what)
{
    if (changes.empty()) {
        tell(tr("Nothing differs"));
        return;
    }
    QList<QStringList> shown;
    for (const materialChange &change : changes) {
        QString caption;
        for (const auto &field : materialStruct::fields())
            if (field.member == change.field)
                caption = field.label();
        shown.append(
            {change.record->d_ktm, change.record->d_name, caption, change.before, change.after});
    }
    changesDialog dialog(
        what, {labels::ktm(), labels::name(), tr("Field"), tr("Before"), tr("After")}, shown, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    std::vector<materialChange> wanted;
    for (int row : dialog.chosen())
        wanted.push_back(changes[size_t(row)]);
    if (!wanted.empty())
        push(std::make_unique<changeTexts>(m_rows.get(), std::move(wanted)), what);
}

void Kiv_mat_databaseWindow::takeOut(std::vector<materialChange> stock, builtBoards::boards built,
                                     const QString &what)
{
    push(
        std::make_unique<boardsBuilt>(std::make_unique<changeTexts>(m_rows.get(), std::move(stock)),
                                      &m_built, std::move(built)),
        what);
}

void Kiv_mat_databaseWindow::takeIn(std::vector<materialChange> stock,
                                    stockedDeliveries::entries deliveries, const QString &what)
{
    push(std::make_unique<deliveriesStocked>(
             std::make_unique<changeTexts>(m_rows.get(), std::move(stock)), &m_stocked,
             std::move(deliveries)),
         what);
}

void Kiv_mat_databaseWindow::commandParse(bool)
{
    const QString path = userPrompts().openFile(
        tr("Open File"), paths::programDir(), tr("Xml/Txt File") + QLatin1String(" (*.txt *.xml)"));
    if (!path.isEmpty())
        takeListing(path);
}

void Kiv_mat_databaseWindow::takeListing(const QString &path)
{
    QString error;
    const auto entries = readListing(path, &error);
    if (!entries) {
        list({}, {error});
        return;
    }
    listingResult result;
    {
        workProgress::scope work(progress(), tr("Comparing"));
        ktmIndex own;
        own.add(&m_rows->database());
        result = matchListing(*entries, own, work.function());
    }
    list({}, result.problems);
    if (!result.cancelled)
        applyTexts(std::move(result.changes), tr("Parse"));
}

void Kiv_mat_databaseWindow::commandLoadCPVForGroups(bool)
{
    const QString path =
        userPrompts().openFile(tr("Open File"), paths::programDir(), QStringLiteral("(*.txt)"));
    if (!path.isEmpty())
        loadCpv(path);
}

void Kiv_mat_databaseWindow::loadCpv(const QString &path)
{
    workProgress::scope work(progress(), tr("Reading"));
    auto result = loadCpvForGroups(path, m_rows->database(), work.function());
    list(tr("CPV syntax error"), result.problems);
    std::vector<std::unique_ptr<command>> members;
    for (const groupChange &change : result.changes)
        if (const QStandardItem *group = m_rows->groupItem(change.record))
            members.push_back(
                std::make_unique<changeValue>(m_model,
                                              static_cast<myItem::myItemStandard *>(m_model->item(
                                                  group->row(), databaseTree::cpvColumn)),
                                              change.after));
    const int count = int(members.size());
    if (count > 0)
        push(std::make_unique<appendCommands>(std::move(members), m_model),
             tr("Load CPV for groups"));
    tell(count > 0 ? tr("%n group(s) with another CPV now", nullptr, count)
                   : tr("Nothing differs"));
}

void Kiv_mat_databaseWindow::commandMoveCPVFromGroupToMaterials(bool)
{
    auto result = moveCpvToMaterials(m_rows->database());
    list({}, result.problems);
    applyTexts(std::move(result.changes), tr("Move CPV from group to materials"));
}

void Kiv_mat_databaseWindow::commandCPVIndex(bool)
{
    const QUrl file = cpvIndexFile();
    if (file.isEmpty())
        tell(tr("The dictionary of CPV codes is not there"));
    else
        desktop::followLink(file);
}

void Kiv_mat_databaseWindow::commandCPVIndexWWW(bool) { desktop::followLink(cpvIndexPage()); }

bool Kiv_mat_databaseWindow::takeOver(const std::vector<materialDifference> &selected,
                                      bool deleteAbsent, const QString &what,
                                      const progressFunction &progress)
{
    historyMoves();
    const changeBatch batch(m_model);
    databaseRowsTarget target(m_model, m_rows.get());
    const bool done = carryOut(selected, deleteAbsent ? absentOnes::remove : absentOnes::keep,
                               m_rows->database(), target, progress);
    if (!done)
        target.revert();
    auto step = target.step();
    if (step)
        push(std::move(step), what);
    else
        historyMoved();
    if (!done)
        tell(tr("Cancelled"));
    return done;
}

void Kiv_mat_databaseWindow::renameFirms(const firmOperations::renameList &renames)
{
    finishEditing();
    pushNames(firmOperations::changesOf(m_rows->database(), renames), tr("Firms renamed"));
}

void Kiv_mat_databaseWindow::pushNames(std::vector<firmOperations::nameChange> changes,
                                       const QString &what)
{
    if (!changes.empty())
        push(std::make_unique<changeNames>(m_rows.get(), std::move(changes)), what);
}

void Kiv_mat_databaseWindow::commandMerge(bool)
{
    const QString path = userPrompts().openFile(tr("Open File"), paths::programDir(), xmlFilter());
    if (!path.isEmpty())
        mergeWith(path);
}

void Kiv_mat_databaseWindow::mergeWith(const QString &path)
{
    auto merge = std::make_unique<Kiv_mat_databaseMergeWindow>(this);
    if (merge->open(path))
        m_merge = std::move(merge);
}

// Names the lines of the open order and of BOM lists that would be left without a material, and
// asks. Another material, or another database, may have the same KTM.
bool Kiv_mat_databaseWindow::mayDelete(const std::vector<materialDifference> &wanted)
{
    QHash<QString, int> deleted;
    for (const materialDifference &difference : wanted)
        if (difference.kind == materialDifference::absent)
            ++deleted[difference.mine->d_ktm];
        else if (difference.kind == materialDifference::added
                 || difference.kind == materialDifference::repeated)
            --deleted[difference.other->d_ktm];
    QSet<QString> missing = deletedKtms(wanted);
    for (const QString &ktm : QSet<QString>(missing))
        if (int(known().materials().all(ktm).size()) > deleted.value(ktm))
            missing.remove(ktm);
    if (missing.isEmpty())
        return true;
    QStringList uses;
    if (openOrder)
        uses = usesOf(missing, openOrder());
    {
        workProgress::scope work(progress(), tr("Reading"));
        const progressFunction go = work.function();
        const QStringList paths = filesOf(known().boms(), known().boms().filePath);
        for (int i = 0; i < paths.size(); ++i) {
            kiv_mat_bomStruct bom;
            if (QFileInfo::exists(paths[i])
                && loadDocument(paths[i], &bom) == 0) // a part of it says something, too
                uses += usesOf(missing, bom);
            if (!go(i + 1, paths.size()))
                return false;
        }
    }
    if (uses.isEmpty())
        return true;
    constexpr int mostShown = 10;
    QString html =
        tr("The open order or BOM lists use materials that would be deleted:").toHtmlEscaped()
        + QLatin1String("<br>") + QStringList(uses.mid(0, mostShown)).join(QString());
    if (uses.size() > mostShown)
        html += tr("and %n more", nullptr, uses.size() - mostShown).toHtmlEscaped();
    if (!userPrompts().decide(html, {tr("Delete them all the same")}, true))
        return false;
    list(tr("The open order or BOM lists use deleted materials:"), uses);
    return true;
}

void Kiv_mat_databaseWindow::commandUpdate(bool)
{
    const QString path = userPrompts().openFile(tr("Open File"), paths::programDir(), xmlFilter());
    if (path.isEmpty())
        return;
    kiv_mat_databaseStruct other;
    QString reason;
    comparison found;
    {
        workProgress::scope work(progress(), tr("Comparing"));
        if (!readChecked(path, &other, &reason, work.function())) {
            if (!work.cancelled())
                list({}, {messages::failed(messages::fileCorrupted(), path, reason)});
            return;
        }
        found = compareDatabases(m_rows->database(), other, work.function());
    }
    if (found.differences.empty()) {
        if (!found.cancelled)
            userPrompts().showInformation(allMaterialsInDatabase().toHtmlEscaped());
        return;
    }
    QList<QStringList> shown;
    for (const materialDifference &difference : found.differences) {
        if (difference.kind == materialDifference::groupCpv) {
            shown.append({{}, difference.myGroup->name, tr("changed"), labels::cpv()});
            continue;
        }
        const materialStruct *material = difference.other ? difference.other : difference.mine;
        QStringList fields;
        for (int field : difference.fields)
            fields.append(comparedFields()[size_t(field)].caption());
        if (difference.moved)
            fields.append(labels::group());
        shown.append({material->d_ktm, material->d_name,
                      difference.kind == materialDifference::added      ? tr("new")
                      : difference.kind == materialDifference::repeated ? tr("once more")
                      : difference.kind == materialDifference::absent   ? tr("deleted")
                                                                        : tr("changed"),
                      fields.join(QLatin1String(", "))});
    }
    changesDialog dialog(tr("Update"), {labels::ktm(), labels::name(), tr("Change"), tr("Fields")},
                         shown, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    std::vector<materialDifference> wanted;
    for (int row : dialog.chosen())
        wanted.push_back(found.differences[size_t(row)]);
    const QStringList lines = deletedLines(wanted);
    if (!mayDelete(wanted))
        return;
    {
        workProgress::scope work(progress(), tr("Update"));
        if (!takeOver(wanted, true, tr("Update"), work.function()))
            return;
    }
    list({}, lines);
}
