#include "database/detailsPane.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/programData.h"
#include "util/desktop.h"
#include "util/labels.h"
#include "util/paths.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QSettings>
#include <QSplitter>
#include <QTimer>

namespace {

const QLatin1String openKey("Kiv_mat_databaseWindow/detailsOpen");

} // namespace

detailsPane::detailsPane(programData &known)
    : m_known(known)
    , m_delay(new QTimer(this))
    , m_reading(new QTimer(this))
{
    setObjectName(QStringLiteral("details"));
    setAccessibleName(labels::details());
    setOpenLinks(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    setFrameShape(QFrame::StyledPanel);
    // Longer than a held arrow key takes from row to row.
    constexpr int delayMs = 60;
    m_delay->setSingleShot(true);
    m_delay->setInterval(delayMs);
    connect(m_delay, &QTimer::timeout, this, &detailsPane::makePage);
    constexpr int pauseMs = 5;
    m_reading->setInterval(pauseMs);
    connect(m_reading, &QTimer::timeout, this, &detailsPane::readOne);
    connect(this, &QTextBrowser::anchorClicked, this, &detailsPane::open);
}

QSplitter *detailsPane::beside(QWidget *tree)
{
    auto *splitter = new QSplitter(Qt::Horizontal, tree->parentWidget());
    splitter->setObjectName(QStringLiteral("detailsSplitter"));
    splitter->addWidget(tree);
    splitter->addWidget(this);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    constexpr int usualWidth = 340;
    constexpr int leastWidth = 160;
    setMinimumWidth(leastWidth);
    splitter->setSizes({3 * usualWidth, usualWidth});
    setVisible(wasOpen());
    return splitter;
}

bool detailsPane::wasOpen()
{
    return QSettings(paths::windowState(), QSettings::IniFormat).value(openKey, true).toBool();
}

void detailsPane::setOpen(bool open)
{
    QSettings(paths::windowState(), QSettings::IniFormat).setValue(openKey, open);
    setVisible(open);
}

void detailsPane::follow()
{
    if (isVisible())
        m_delay->start();
}

void detailsPane::showEvent(QShowEvent *event)
{
    QTextBrowser::showEvent(event);
    window()->installEventFilter(this);
    lookForFiles();
    makePage();
}

// Files may have come, gone or changed while another window was in front.
bool detailsPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window() && event->type() == QEvent::WindowActivate && isVisible()) {
        lookForFiles();
        follow();
    }
    return QTextBrowser::eventFilter(watched, event);
}

void detailsPane::lookForFiles()
{
    QStringList found;
    for (const QDir folder : m_known.config().orderFolders())
        for (const QString &name : folder.entryList({QStringLiteral("*.xml")}, QDir::Files))
            found.append(folder.filePath(name));
    m_uses.follow(filesOf(m_known.boms(), m_known.boms().filePath), found);
    if (!m_uses.isComplete())
        m_reading->start();
}

void detailsPane::readOne()
{
    // Not between two rows that a key runs through.
    if (m_delay->isActive())
        return;
    if (isVisible() && m_uses.readNext())
        return;
    m_reading->stop();
    follow();
}

void detailsPane::makePage()
{
    m_delay->stop();
    const materialPage::subject of = current ? current() : materialPage::subject();
    materialPage::knownUses known;
    known.isComplete = m_uses.isComplete();
    known.faults = m_uses.faults();
    if (of.material) {
        const kiv_mat_zpStruct *order = openOrder ? openOrder() : nullptr;
        const QString path = order ? order->filePath : QString();
        known.openOrder = path;
        if (order)
            known.uses = materialUses::in(*order, of.material->d_ktm);
        for (const materialUses::use &use : m_uses.of(of.material->d_ktm))
            if (!order || QFileInfo(use.path) != QFileInfo(path))
                known.uses.push_back(use);
    }
    const QString page = materialPage::page(of, known);
    m_shownUses = std::move(known.uses);
    // What is selected or scrolled to stays while nothing changed.
    if (page != m_page)
        setHtml(m_page = page);
}

void detailsPane::open(const QUrl &link)
{
    const int use = materialPage::useOf(link);
    if (materialPage::isHistory(link))
        emit historyWanted();
    else if (use < 0)
        desktop::followLink(link);
    else if (use < int(m_shownUses.size()))
        emit useWanted(m_shownUses[size_t(use)]);
}

void detailsPane::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        emit left();
    else
        QTextBrowser::keyPressEvent(event);
}
