#include "database/materialWindow.h"

#include "commands/editCommands.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "database/datasheetCopies.h"
#include "database/materialChecks.h"
#include "tools/hostKeys.h"
#include "tree/myTreeView.h"
#include "util/desktop.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/workProgress.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QThread>
#include <QTimer>
#include <QUrl>

namespace {

const windowAction<materialWindow> actionTable[] = {
    {{"set", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Set"),
      "action_set", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Check the material and give it to its database"), true},
     &materialWindow::commandSet},
    {usualActions::close, &materialWindow::commandClose},
    {usualActions::undo, &materialWindow::commandUndo},
    {usualActions::redo, &materialWindow::commandRedo},
    {usualActions::editSeparator, nullptr},
    {usualActions::copyCells, &materialWindow::commandCopyCells},
    {usualActions::pasteCells, &materialWindow::commandPasteCells},
    {usualActions::fillDown, &materialWindow::commandFillDown},
    {{"addManufacturer", QT_TRANSLATE_NOOP("actions", "Commands"),
      QT_TRANSLATE_NOOP("actions", "Add manufacturer"), "zp_add_manufacturer_grey_128", "Ctrl+M",
      nullptr, true},
     &materialWindow::commandAddManufacture},
    {{"addSuppler", "Commands", QT_TRANSLATE_NOOP("actions", "Add suppler"),
      "zp_add_supplier_grey_128", "Ctrl+L", nullptr, true},
     &materialWindow::commandAddSuppler},
    {{"addFile", "Commands", QT_TRANSLATE_NOOP("actions", "Add file"), "action_add_row", "Ins",
      QT_TRANSLATE_NOOP("actions", "Add a file or link to the manufacturer or supplier"), true},
     &materialWindow::commandAddFile},
    {{"deleteRows", "Edit", QT_TRANSLATE_NOOP("actions", "Delete rows"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Delete the selected manufacturers, suppliers and files"), true},
     &materialWindow::commandDeleteRows},
    {{"deleteFile", "Edit", QT_TRANSLATE_NOOP("actions", "Delete file"), "action_clear", nullptr,
      nullptr},
     &materialWindow::commandDeleteFile},
    {{"deleteFiles", "Edit", QT_TRANSLATE_NOOP("actions", "Delete files"), "action_empty", nullptr,
      QT_TRANSLATE_NOOP("actions", "Delete all files of the manufacturer or supplier")},
     &materialWindow::commandDeleteFiles},
    {{nullptr, "Commands", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"datasheets", "Commands", QT_TRANSLATE_NOOP("actions", "Datasheets"), "action_report",
      "Ctrl+D", QT_TRANSLATE_NOOP("actions", "Add the link to a datasheet on the file server"),
      true},
     &materialWindow::commandDatasheets},
    {{"declarations", "Commands", QT_TRANSLATE_NOOP("actions", "Declarations"), "action_rohs",
      "Ctrl+R",
      QT_TRANSLATE_NOOP("actions", "Add the link to a RoHS declaration on the file server"), true},
     &materialWindow::commandDeclarations},
    {{"copyFileToServer", "Commands", QT_TRANSLATE_NOOP("actions", "CopyFileToServer"),
      "action_send", nullptr,
      QT_TRANSLATE_NOOP("actions", "Copy the file of the current link to the file server"), true},
     &materialWindow::commandCopyFileToServer},
    {{"open", "Commands", QT_TRANSLATE_NOOP("actions", "Open"), "zp_open_link_128", "Ctrl+O",
      QT_TRANSLATE_NOOP("actions", "Open the current file or link"), true},
     &materialWindow::commandOpen},
};

// What the context menu of the tree offers, in its order.
constexpr const char *menuActions[] = {"addManufacturer", "addSuppler",  "addFile",
                                       "deleteFile",      "deleteFiles", "open"};

QStandardItem *firstOf(const QStandardItemModel *model, const QModelIndex &index)
{
    return model->itemFromIndex(index.sibling(index.row(), 0));
}

// Whether it is a link at all; where it may lead is known when it is followed.
QUrl openable(const QString &link)
{
    const QString text = link.trimmed();
    if (QDir::isAbsolutePath(text))
        return QUrl::fromLocalFile(text);
    if (!text.isEmpty() && QFileInfo(paths::data(text)).isFile())
        return materialFiles::addressOf(text);
    const QUrl url(text);
    return url.scheme().isEmpty() ? QUrl() : url;
}

QString logLine(const QString &text) { return text::toHtml(text) + QLatin1String("<br>"); }

} // namespace

materialWindow::materialWindow(programData &files, QWidget *parent)
    : editWindow(QStringLiteral("materialWindow"), files, parent)
    , m_menu(new QMenu(this))
    , m_counts(new QLabel(this))
{
    setWindowModality(Qt::ApplicationModal);
    addActions(actionTable);
    stack().completed = [this](std::unique_ptr<command> change) {
        askAboutFirms();
        return change;
    };
    m_view =
        addView(tr("Fields, manufacturers, suppliers and files of the material"), "material", this);
    m_view->setSortingEnabled(false);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    model()->setCheck([this](const myItem::myItemStandard &item, const QVariant &value) {
        return &item == m_rows.valueOf(QStringLiteral("d_ktm")) && isTaken(value.toString())
                   ? tr("Another material has this KTM")
                   : QString();
    });
    setCentralWidget(m_view);
    m_menu->setObjectName(QStringLiteral("contextMenu"));
    for (const char *name : menuActions)
        m_menu->QWidget::addAction(action(name));
    m_counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(m_counts);

    connect(m_view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            &materialWindow::itemTreeClicked);
    // The menu key, which no click comes before.
    connect(m_view, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        if (!m_menu->isVisible())
            itemTreeClicked(position, Qt::RightButton, m_view->currentIndex());
    });
    constexpr QSize usualSize(900, 780);
    resize(usualSize);
}

bool materialWindow::openNew(QStandardItem *group, const QString &cpv)
{
    auto material = materialChecks::newMaterial();
    material->d_cpv = cpv;
    return open({group, newRow}, std::move(material));
}

bool materialWindow::openNew(QStandardItem *group, std::unique_ptr<materialStruct> filledIn)
{
    return open({group, newRow}, std::move(filledIn));
}

bool materialWindow::openExisting(QStandardItem *group, int row, const materialStruct &material)
{
    return open({group, row}, material.copy());
}

bool materialWindow::openExisting(QStandardItem *item, const materialStruct &material)
{
    return open({item, ownRow}, material.copy());
}

bool materialWindow::open(const origin &from, std::unique_ptr<materialStruct> material)
{
    if (isVisible() && !mayClose())
        return false;
    setClean();
    m_sources.clear();
    m_origin = from;
    m_openedKtm = from.row == newRow ? QString() : material->d_ktm;
    // Its records are looked at until the tree shows the new ones.
    const auto before = std::exchange(m_edited, std::move(material));
    m_rows.show(model(), *m_edited, known().config(), known().firm());
    m_view->setFont(known().config().font());
    for (int row = 0; row < model()->rowCount(); ++row)
        m_view->setFirstColumnSpanned(row, {}, true);
    m_view->expandAll();
    constexpr int nameWidth = 260;
    constexpr int valueWidth = 380;
    m_view->header()->resizeSection(materialTree::nameColumn, nameWidth);
    m_view->header()->resizeSection(materialTree::valueColumn, valueWidth);
    m_view->header()->setStretchLastSection(true);
    statusBar()->clearMessage();
    showState();
    showNow();
    goTo(m_rows.valueOf(QStringLiteral("d_ktm")));
    return true;
}

QString materialWindow::title() const
{
    return m_origin.row == newRow
               ? tr("New material")
               : tr("Edit parameters") + QStringLiteral(" [%1]").arg(m_edited->d_ktm);
}

void materialWindow::goTo(const QStandardItem *item)
{
    if (!item)
        return;
    m_view->goTo(item->index());
    m_view->setFocus();
}

QStandardItem *materialWindow::currentRow() const
{
    const QModelIndex marked = m_view->markedCell();
    return marked.isValid() ? firstOf(model(), marked) : nullptr;
}

QStandardItem *materialWindow::currentFirm() const { return materialTree::firmOf(currentRow()); }

QString materialWindow::currentLink() const
{
    QStandardItem *row = currentRow();
    return materialTree::kindOf(row) == materialTree::file
               ? row->parent()->child(row->row(), materialTree::valueColumn)->text()
               : QString();
}

void materialWindow::updateActions()
{
    const materialFiles::fileServer server = materialFiles::serverOf(known().config());
    const QStandardItem *firm = currentFirm();
    const QString noFirm = tr("no manufacturer or supplier is selected");
    const QString noFile = tr("no file is selected");
    setAvailable("addFile", firm, noFirm);
    setAvailable("deleteRows", firm, noFirm);
    setAvailable("deleteFile", materialTree::kindOf(currentRow()) == materialTree::file, noFile);
    setAvailable("deleteFiles", firm && firm->hasChildren(), firm ? tr("it has no files") : noFirm);
    setAvailable("open", openable(currentLink()).isValid(), tr("no link is selected"));
    for (const char *name : {"datasheets", "declarations"})
        setAvailable(name, firm && !server.name.isEmpty(),
                     firm ? tr("the configuration names no file server") : noFirm);
    const bool hasAccount = !server.account.isEmpty() && !server.password.isEmpty();
    setAvailable("copyFileToServer",
                 hasAccount && !materialFiles::placeOnServer(server, currentLink()).isEmpty(),
                 hasAccount ? tr("no link to the file server is selected")
                            : tr("the configuration has no account on the file server"));
    const int manufacturers = int(m_edited->manufacturers.items.size());
    const int suppliers = int(m_edited->suppliers.items.size());
    m_counts->setText(tr("%n manufacturer(s)", nullptr, manufacturers) + QLatin1String(", ")
                      + tr("%n supplier(s)", nullptr, suppliers));
}

void materialWindow::commandSet(bool) { save(); }

bool materialWindow::isTaken(const QString &ktm) const
{
    return ktm != m_openedKtm && known().materials().find(ktm);
}

void materialWindow::giveUnfinished()
{
    addFirm = {}; // nobody is there to be asked
    if (!isVisible() || isLocked() || !finishEditing() || !isModified())
        return;
    auto material = m_edited->copy();
    materialChecks::tidy(material.get());
    if (materialChecks::firstFault(*material) || isTaken(material->d_ktm))
        return;
    m_checked = std::move(material);
    saved();
}

// A name that the register does not have may be a slip, or a firm that it is to have.
void materialWindow::askAboutFirms()
{
    const std::vector<materialTree::firmName> names = std::exchange(m_rows.unlisted, {});
    if (!addFirm || known().isSwitchedOff(optionKey::editFirm))
        return;
    QStringList asked;
    for (const auto &[kind, name] : names) {
        const bool isMaker = kind == materialTree::manufacturer;
        const QString question = isMaker ? tr("The firm register has no manufacturer %1.")
                                         : tr("The firm register has no supplier %1.");
        const QString html =
            question.arg(QLatin1String("<b>") + name.toHtmlEscaped() + QLatin1String("</b>"));
        if (asked.contains(html))
            continue;
        asked.append(html);
        const std::optional<int> answer =
            userPrompts().decide(html, {tr("Add to the register"), tr("Only in this material")});
        if (!answer) {
            m_isUnwanted = true;
            QTimer::singleShot(0, this, [this] { takeBackUnwanted(); });
            return;
        }
        if (*answer == 0
            && addFirm(isMaker ? firmOperations::manufacturer : firmOperations::supplier, name))
            m_rows.refreshFirms(known().config(), known().firm());
    }
}

// The step is in the history only after the question.
bool materialWindow::takeBackUnwanted()
{
    if (!std::exchange(m_isUnwanted, false))
        return false;
    commandUndo(false);
    return true;
}

// Names that go back or forth with a step were asked about already.
void materialWindow::historyMoved() { m_rows.unlisted.clear(); }

bool materialWindow::write(const QString &)
{
    if (takeBackUnwanted())
        return false;
    auto material = m_edited->copy();
    materialChecks::tidy(material.get());
    if (const auto fault = materialChecks::firstFault(*material)) {
        userPrompts().showError(fault->text.toHtmlEscaped());
        const QStandardItem *field = m_rows.valueOf(fault->field);
        goTo(field ? field : m_rows.section(materialTree::manufacturer));
        return false;
    }
    if (isTaken(material->d_ktm)) {
        userPrompts().showError(tr("Another material has this KTM").toHtmlEscaped());
        goTo(m_rows.valueOf(QStringLiteral("d_ktm")));
        return false;
    }
    m_checked = std::move(material);
    return true;
}

void materialWindow::saved()
{
    hide();
    switch (m_origin.row) {
    case newRow:
        emit addNew(m_origin.item, m_checked.release());
        break;
    case ownRow:
        emit editExist(m_origin.item, m_checked.release());
        break;
    default:
        emit editExist(m_origin.item, m_origin.row, m_checked.release());
    }
}

void materialWindow::addRow(QStandardItem *parent, const myItem::row &items, const QString &what,
                            int column)
{
    push(std::make_unique<appendItems>(parent, items), what);
    m_view->expand(parent->index());
    const QModelIndex cell = items.at(column)->index();
    goTo(items.at(column));
    if (items.at(column)->text().isEmpty())
        m_view->edit(cell);
}

void materialWindow::commandAddManufacture(bool)
{
    addRow(m_rows.section(materialTree::manufacturer), m_rows.newFirm(materialTree::manufacturer),
           tr("Add manufacturer"), materialTree::nameColumn);
}

void materialWindow::commandAddSuppler(bool)
{
    addRow(m_rows.section(materialTree::supplier), m_rows.newFirm(materialTree::supplier),
           tr("Add suppler"), materialTree::nameColumn);
}

void materialWindow::commandAddFile(bool)
{
    if (QStandardItem *firm = currentFirm())
        addRow(firm, m_rows.newFile(materialFiles::fileKindOf(materialFiles::datasheet), {}),
               tr("Add file"), materialTree::valueColumn);
}

void materialWindow::deleteRows(const QList<QStandardItem *> &firstCells, const QString &what)
{
    std::vector<std::unique_ptr<command>> members;
    for (QStandardItem *first : firstCells)
        members.push_back(std::make_unique<deleteFromItem>(first->parent(), first));
    if (!members.empty())
        push(std::make_unique<appendCommands>(std::move(members), model()), what);
}

void materialWindow::commandDeleteFile(bool)
{
    if (materialTree::kindOf(currentRow()) == materialTree::file)
        deleteRows({currentRow()}, tr("Delete file"));
}

void materialWindow::commandDeleteFiles(bool)
{
    QList<QStandardItem *> files;
    if (const QStandardItem *firm = currentFirm())
        for (int row = 0; row < firm->rowCount(); ++row)
            files.append(firm->child(row));
    deleteRows(files, tr("Delete files"));
}

// A file goes with its firm when that is deleted too.
void materialWindow::commandDeleteRows(bool)
{
    QList<QStandardItem *> rows;
    for (const QModelIndex &cell : m_view->markedCells()) {
        QStandardItem *first = firstOf(model(), cell);
        if (materialTree::firmOf(first) && !rows.contains(first)
            && !rows.contains(materialTree::firmOf(first)))
            rows.append(first);
    }
    deleteRows(rows, tr("Delete rows"));
}

void materialWindow::commandOpen(bool)
{
    const QUrl url = datasheetCopies::toOpen(openable(currentLink()), datasheetCopies::isOnline());
    if (!desktop::mayFollow(url))
        desktop::followLink(url); // which refuses it
    else if (!desktop::followLink(url))
        userPrompts().showError(tr("%1 cannot be opened").arg(currentLink().toHtmlEscaped()));
}

void materialWindow::itemTreeClicked(QPoint position, uint buttons, const QModelIndex &index)
{
    if (!(buttons & Qt::RightButton) || !index.isValid())
        return;
    updateActions();
    m_menu->popup(m_view->viewport()->mapToGlobal(position));
}

QString materialWindow::chooseFile()
{
    const QString path = userPrompts().openFile(tr("Open File"), QDir::homePath(),
                                                tr("All files") + QLatin1String(" (*)"));
    if (path.isEmpty() || QFileInfo(path).isFile())
        return path;
    userPrompts().showError(
        messages::failed(messages::fileCorrupted(), path, messages::notExists()));
    return {};
}

void materialWindow::addServerFile(materialFiles::linkKind kind)
{
    QStandardItem *firm = currentFirm();
    const QString source = firm ? chooseFile() : QString();
    if (source.isEmpty())
        return;
    const auto path = userPrompts().inputText(tr("Please set path where write file"), tr("Path"),
                                              materialFiles::proposedPath(source));
    if (!path || path->trimmed().isEmpty())
        return;
    const QString link =
        materialFiles::linkTo(materialFiles::serverOf(known().config()), kind, *path);
    if (link.isEmpty()) {
        userPrompts().showError(
            tr("%1 is no path below the folder of the file server").arg(path->toHtmlEscaped()));
        return;
    }
    m_sources.insert(link, source);
    addRow(firm, m_rows.newFile(materialFiles::fileKindOf(kind), link), tr("Add file"),
           materialTree::valueColumn);
}

void materialWindow::commandDatasheets(bool) { addServerFile(materialFiles::datasheet); }

void materialWindow::commandDeclarations(bool) { addServerFile(materialFiles::declaration); }

// The result of the helper; nothing where the server's key was not accepted.
std::optional<int> materialWindow::send(const QString &source, const QString &target)
{
    const materialFiles::fileServer server = materialFiles::serverOf(known().config());
    const QString host = materialFiles::hostOf(server);
    const QString kept = hostKeys::keyOf(host);
    KivScp::scp runner;
    const int result = run(runner, {server.account, server.password, host, source, target, kept});
    if (result == 0)
        return 0;
    if (runner.keyChanged()) {
        userPrompts().showError(materialFiles::changedKey(host).toHtmlEscaped());
        return {};
    }
    const QString offered = runner.offeredKey();
    if (offered.isEmpty())
        return result;
    const QString question =
        tr("The file server %1 is not known yet. Its key is").arg(host.toHtmlEscaped())
        + QLatin1String("<br><b>") + offered + QLatin1String("</b><br>")
        + tr("Its administrator can tell whether that is so.");
    if (!userPrompts().decide(question, {tr("Accept the key and send")}))
        return {};
    if (!hostKeys::keep(host, offered))
        userPrompts().showError(messages::notWritten(hostKeys::file()));
    KivScp::scp again;
    return run(again, {server.account, server.password, host, source, target, offered});
}

int materialWindow::run(KivScp::scp &runner, const KivScp::upload &job)
{
    connect(&runner, &KivScp::scp::updateLog, this,
            [](const QString &text) { userPrompts().log(logLine(text)); });
    constexpr int timeoutMs = 10 * 60 * 1000;
    constexpr int pauseMs = 10;
    workProgress::scope work(progress(), tr("Send file"));
    const progressFunction goesOn = work.function();
    runner.start(job, timeoutMs);
    while (!runner.isDone()) {
        // How far the helper is nobody tells.
        if (!goesOn(0, 0))
            runner.stop();
        QCoreApplication::processEvents(QEventLoop::AllEvents, pauseMs);
        QThread::msleep(pauseMs);
    }
    return runner.result();
}

void materialWindow::commandCopyFileToServer(bool)
{
    const materialFiles::fileServer server = materialFiles::serverOf(known().config());
    const QString link = currentLink();
    const QString target = materialFiles::placeOnServer(server, link);
    QString source = target.isEmpty() ? QString() : m_sources.value(link);
    if (!target.isEmpty() && !QFileInfo(source).isFile())
        source = chooseFile();
    if (source.isEmpty())
        return;
    m_sources.insert(link, source);
    const std::optional<int> result = send(source, target);
    if (!result) {
        tell(tr("Nothing was sent"));
        return;
    }
    const QString shown = materialFiles::hostOf(server) + QLatin1Char(':') + target;
    if (result == 0) {
        userPrompts().log(materialFiles::sentLine(source, shown, true));
        tell(tr("%1 is on the file server").arg(QFileInfo(source).fileName()));
        return;
    }
    userPrompts().listError(result == childRunner::notStarted
                                ? materialFiles::notSentLine(source, shown)
                                : materialFiles::sentLine(source, shown, false));
    userPrompts().showErrors();
}
