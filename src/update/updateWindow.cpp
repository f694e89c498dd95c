#include "update/updateWindow.h"

#include "data/materialUses.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "util/desktop.h"
#include "util/labels.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "window/rowTable.h"
#include "window/workProgress.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace updates;

namespace {

const windowAction<updateWindow> actionTable[] = {
    {{"look", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Look again"),
      "action_refresh", "F5",
      QT_TRANSLATE_NOOP("actions", "Ask the address of updates for what is on offer"), true},
     &updateWindow::commandLook},
    {{"install", "File", QT_TRANSLATE_NOOP("actions", "Install ..."), "action_set", "Ctrl+Return",
      QT_TRANSLATE_NOOP("actions", "Download and check what is ticked, show what it changes, and "
                                   "put it in place"),
      true},
     &updateWindow::commandInstall},
    {{"back", "File", QT_TRANSLATE_NOOP("actions", "Back to the version before ..."), "action_undo",
      nullptr,
      QT_TRANSLATE_NOOP("actions",
                        "Put back the program that the last update replaced; data stay")},
     &updateWindow::commandBack},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"close", "File", "Close", "action_close", "Ctrl+W", nullptr}, &updateWindow::commandClose},
};

enum column
{
    partColumn,
    hereColumn,
    thereColumn,
    sizeColumn,
    standColumn,
    columns
};
constexpr int widths[columns] = {260, 110, 110, 110, 160};

} // namespace

updateWindow::updateWindow(programData &known)
    : baseWindow(QStringLiteral("updateWindow"))
    , m_known(known)
    , m_state(new QLabel(this))
    , m_parts(new QTreeWidget(this))
    , m_description(new QTextBrowser(this))
    , m_changes(new QPlainTextEdit(this))
{
    setWindowTitle(tr("Update"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_refresh.png")));
    addActions(actionTable);
    buildWidgets();
}

updateWindow::~updateWindow() { drop(); }

void updateWindow::buildWidgets()
{
    m_state->setObjectName(QStringLiteral("state"));
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    m_parts->setObjectName(QStringLiteral("parts"));
    m_parts->setAccessibleName(tr("What is on offer"));
    m_parts->setRootIsDecorated(false);
    m_parts->setAllColumnsShowFocus(true);
    m_parts->setHeaderLabels({tr("Part"), tr("Here"), tr("On offer"), tr("Size"), tr("State")});
    for (int i = 0; i < columns; ++i)
        resizeColumn(m_parts->header(), i, widths[i]);
    connect(m_parts, &QTreeWidget::itemChanged, this, [this] {
        if (ticked() != m_preparedParts)
            drop();
        updateActions();
    });
    m_description->setObjectName(QStringLiteral("description"));
    m_description->setAccessibleName(tr("What is new"));
    m_description->setOpenLinks(false);
    m_changes->setObjectName(QStringLiteral("changes"));
    m_changes->setAccessibleName(tr("What it changes here"));
    m_changes->setReadOnly(true);
    m_changes->setTabChangesFocus(true);
    m_changes->setPlaceholderText(
        tr("What it changes here is shown once it is downloaded, before it is put in place"));
    auto *halves = new QSplitter(Qt::Vertical, this);
    halves->setObjectName(QStringLiteral("halves"));
    for (QWidget *part : {static_cast<QWidget *>(m_parts), static_cast<QWidget *>(m_description),
                          static_cast<QWidget *>(m_changes)})
        halves->addWidget(part);
    halves->setChildrenCollapsible(false);
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_state);
    layout->addWidget(halves, 1);
    setCentralWidget(page);
    constexpr QSize usualSize(820, 640);
    resize(usualSize);
    updateActions();
}

void updateWindow::tell(const QString &text) { statusBar()->showMessage(text); }

// --- What is on offer
// -----------------------------------------------------------------------------

void updateWindow::showNow()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    commandLook(false);
    m_parts->setFocus();
}

void updateWindow::commandLook(bool)
{
    drop();
    const settings with = settingsOf(m_known.config());
    m_offer = offer();
    if (with.address.isEmpty())
        m_offer.fault = tr("The configuration names no address of updates");
    else {
        workProgress::scope work(progress(), tr("Looking for updates"));
        m_offer = look(with, *installed(paths::dataDir()), work.function());
    }
    showOffer();
}

void updateWindow::showOffer()
{
    m_parts->clear();
    m_description->setHtml(m_offer.description);
    m_description->setVisible(!m_offer.description.isEmpty());
    for (const standing &one : m_offer.parts) {
        const qint64 size = m_offer.sizeOf(one);
        auto *row = new QTreeWidgetItem(
            m_parts, {captionOf(one.of), one.here.isEmpty() ? tr("unknown") : one.here, one.there,
                      size > 0 ? QLocale().formattedDataSize(size) : QString(),
                      one.isNewer()   ? tr("newer")
                      : one.isLower() ? tr("lower than here")
                                      : tr("as it is here")});
        row->setData(partColumn, Qt::UserRole, int(one.of));
        row->setTextAlignment(sizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        if (one.isNewer())
            row->setCheckState(partColumn, Qt::Checked);
        else
            row->setFlags(row->flags() & ~Qt::ItemIsUserCheckable);
    }
    if (m_parts->topLevelItemCount() > 0)
        m_parts->setCurrentItem(m_parts->topLevelItem(0));
    if (!m_offer.fault.isEmpty())
        m_state->setText(m_offer.fault);
    else
        m_state->setText(
            (m_offer.hasNewer() ? tr("There is something newer") : tr("Everything is up to date"))
            + QLatin1String("; ")
            + (m_offer.made.isEmpty() ? QString()
                                      : tr("made on %1").arg(m_offer.made) + QLatin1String("; "))
            + (m_offer.isSigned ? tr("signed with the key that came with the program")
                                : tr("nobody signed it")));
    updateActions();
}

std::set<part> updateWindow::ticked() const
{
    std::set<part> all;
    for (int i = 0; i < m_parts->topLevelItemCount(); ++i)
        if (const QTreeWidgetItem *row = m_parts->topLevelItem(i);
            row->checkState(partColumn) == Qt::Checked)
            all.insert(part(row->data(partColumn, Qt::UserRole).toInt()));
    return all;
}

void updateWindow::updateActions()
{
    setAvailable("install", !ticked().empty(), tr("nothing is ticked"));
    QString before;
    const updateJournal::stage at = updateJournal::stageOf(paths::programDir(), nullptr, &before);
    setAvailable("back",
                 at == updateJournal::stage::installed || at == updateJournal::stage::started,
                 tr("no update has replaced anything"));
}

// --- Installing
// -----------------------------------------------------------------------------------

void updateWindow::drop()
{
    discard(m_prepared);
    m_prepared = prepared();
    m_preparedParts.clear();
    m_changes->clear();
}

bool updateWindow::fetch()
{
    if (!m_prepared.scratch.isEmpty() && !isOutdated(m_prepared))
        return true;
    drop();
    const std::set<part> parts = ticked();
    {
        workProgress::scope work(progress(), tr("Downloading"));
        m_prepared = prepare(settingsOf(m_known.config()), m_offer, parts, paths::dataDir(),
                             work.function());
    }
    if (m_prepared.isCancelled) {
        drop();
        tell(tr("Cancelled; nothing was changed"));
        return false;
    }
    if (!m_prepared.faults.isEmpty()) {
        userPrompts().showError(m_prepared.faults.join(QLatin1String("\n"))
                                    .toHtmlEscaped()
                                    .replace(QLatin1Char('\n'), QLatin1String("<br>")));
        drop();
        return false;
    }
    m_preparedParts = parts;
    if (showPrepared())
        return true;
    drop();
    tell(tr("Cancelled; nothing was changed"));
    return false;
}

bool updateWindow::showPrepared()
{
    QStringList lines;
    int program = 0;
    for (const updateJournal::change &one : m_prepared.what.changes)
        program += one.goesBack ? 1 : 0;
    {
        workProgress::scope work(progress(), tr("Comparing"));
        const std::vector<difference> all = differencesOf(m_prepared, work.function());
        materialUses uses;
        QStringList orders;
        for (const QDir folder : m_known.config().orderFolders())
            for (const QString &name : folder.entryList({QStringLiteral("*.xml")}, QDir::Files))
                orders.append(folder.filePath(name));
        uses.follow(filesOf(m_known.boms(), m_known.boms().filePath), orders);
        while (work.function()(0, 0) && uses.readNext()) {
        }
        if (work.cancelled())
            return false;
        const touched those = touchedBy(all, uses);
        if (those.lists + those.orders > 0)
            lines.append(tr("%n BOM list(s)", nullptr, those.lists) + QLatin1String(", ")
                         + tr("%n order(s) with materials that change", nullptr, those.orders));
        for (const difference &one : all)
            lines.append(tr("%1: %2 added, %3 changed, %4 removed")
                             .arg(QDir::toNativeSeparators(one.place))
                             .arg(one.added)
                             .arg(one.changed)
                             .arg(one.removed));
    }
    lines += m_prepared.told;
    if (m_preparedParts.count(updates::program) > 0)
        lines.append(tr("%n file(s) of the program", nullptr, program));
    m_changes->setPlainText(lines.join(QLatin1Char('\n')));
    return true;
}

void updateWindow::commandInstall(bool)
{
    if (hasUnsaved()) {
        userPrompts().showInformation(
            tr("Save or close what is changed first; an update merges files as they are saved.")
                .toHtmlEscaped());
        return;
    }
    if (!fetch())
        return;
    const bool restarts = m_preparedParts.count(program) > 0;
    if (userPrompts().decide(
            (restarts ? tr("Put the update in place? The program is begun anew then.")
                      : tr("Put the update in place?"))
                    .toHtmlEscaped()
                + QLatin1String("<br>")
                + m_changes->toPlainText().toHtmlEscaped().replace(QLatin1Char('\n'),
                                                                   QLatin1String("<br>")),
            {tr("Put it in place")}, true)
        != 0)
        return;
    const prepared what = std::exchange(m_prepared, prepared());
    const QString fault = updates::install(what, m_known.config());
    drop();
    m_offer.parts = compare(*installed(paths::dataDir()), *m_offer.info);
    showOffer();
    if (!fault.isEmpty()) {
        userPrompts().showError(fault.toHtmlEscaped());
        return;
    }
    tell(tr("The update is in place"));
    for (const QString &place : what.what.toOpen)
        desktop::openFile(what.root + QLatin1Char('/') + place);
    if (restarts
        || userPrompts().ask(tr("Data are read again at the next start. Begin the "
                                "program anew now?")
                                 .toHtmlEscaped(),
                             false)
               == prompts::answer::yes)
        restart();
}

void updateWindow::commandBack(bool)
{
    QString version;
    QString before;
    updateJournal::stageOf(paths::programDir(), &version, &before);
    if (userPrompts().decide(
            tr("Go back from version %1 to %2? The program is begun anew; data stay as they are.")
                .arg(version, before)
                .toHtmlEscaped(),
            {tr("Go back")}, true)
        != 0)
        return;
    if (const QString fault = updates::goBack(paths::programDir()); !fault.isEmpty()) {
        userPrompts().showError(fault.toHtmlEscaped());
        return;
    }
    updateActions();
    restart();
}
