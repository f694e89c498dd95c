#include "database/databaseDrop.h"

#include "database/Kiv_mat_databaseWindow.h"
#include "database/materialFiles.h"
#include "tree/myTreeView.h"
#include "util/files.h"
#include "util/prompts.h"
#include "window/workProgress.h"

#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QRubberBand>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolTip>
#include <QUrl>

namespace {

constexpr int hintMargin = 4;    // pixels
constexpr int hintOffset = 18;   // below the mouse
constexpr int scrollEdge = 24;   // from the tree's ends
constexpr int scrollMs = 80;     // between two steps
constexpr int openGroupMs = 700; // over a closed group

QString nameOf(const materialStruct &material)
{
    return material.d_name.isEmpty() ? material.d_ktm : material.d_name;
}

QStringList firmNames(const materialStruct &material)
{
    QStringList names;
    for (const auto &maker : material.manufacturers.items)
        names.append(maker->name);
    for (const auto &supplier : material.suppliers.items)
        names.append(supplier->name);
    return names;
}

} // namespace

databaseDrop::databaseDrop(Kiv_mat_databaseWindow *window)
    : QObject(window)
    , m_window(window)
    , m_view(window->view())
    , m_frame(new QRubberBand(QRubberBand::Rectangle, m_view->viewport()))
    , m_hint(new QLabel(m_view->viewport()))
{
    m_frame->setObjectName(QStringLiteral("dropFrame"));
    m_hint->setObjectName(QStringLiteral("dropHint"));
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_hint->setPalette(QToolTip::palette());
    m_hint->setAutoFillBackground(true);
    m_hint->setForegroundRole(QPalette::ToolTipText);
    m_hint->setBackgroundRole(QPalette::ToolTipBase);
    m_hint->setFrameShape(QFrame::Box);
    m_hint->setMargin(hintMargin);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->hide();
    connect(&m_rest, &QTimer::timeout, this, &databaseDrop::rest);
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

bool databaseDrop::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        return enter(static_cast<QDropEvent *>(event));
    case QEvent::DragMove: {
        auto *moved = static_cast<QDropEvent *>(event);
        moved->setDropAction(Qt::CopyAction);
        moved->accept();
        follow(moved->pos());
        return true;
    }
    case QEvent::DragLeave:
        leave();
        return true;
    case QEvent::Drop: {
        auto *dropped = static_cast<QDropEvent *>(event);
        dropped->setDropAction(Qt::CopyAction);
        dropped->accept();
        follow(dropped->pos());
        drop();
        return true;
    }
    default:
        return false;
    }
}

// What is refused is accepted all the same: else nothing would be told when it is let go.
bool databaseDrop::enter(QDropEvent *event)
{
    m_files.clear();
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (!url.isLocalFile()) {
            m_files.clear();
            break;
        }
        m_files.push_back(droppedFiles::recognise(url.toLocalFile()));
    }
    if (m_files.empty() || workProgress::isWorking()) {
        event->ignore();
        return true;
    }
    m_told = m_window->statusBar()->currentMessage();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    follow(event->pos());
    return true;
}

void databaseDrop::follow(const QPoint &position)
{
    m_position = m_view->viewport()->mapFrom(m_window, position);
    const bool isInside = m_view->viewport()->rect().contains(m_position);
    const QModelIndex index = isInside ? m_view->indexAt(m_position) : QModelIndex();
    m_material = m_window->rows().materialAt(index);
    const droppedFiles::plan plan = m_window->planFor(m_files, m_material);
    const bool isFramed = plan.what == droppedFiles::attach;
    if (isFramed) {
        const QRect row = m_view->visualRect(index);
        m_frame->setGeometry(0, row.top(), m_view->viewport()->width(), row.height());
    }
    m_frame->setVisible(isFramed);
    m_hint->setText(plan.text);
    m_hint->adjustSize();
    const QRect room = m_view->viewport()->rect();
    QPoint at = m_position + QPoint(hintOffset, hintOffset);
    at.setX(qBound(0, at.x(), qMax(0, room.width() - m_hint->width())));
    if (at.y() + m_hint->height() > room.height())
        at.setY(m_position.y() - hintOffset - m_hint->height());
    m_hint->move(at.x(), qMax(0, at.y()));
    m_hint->raise();
    m_hint->show();
    m_window->tell(plan.text);
    const bool isAtEdge =
        isInside && m_files.front().is == droppedFiles::datasheet
        && (m_position.y() < scrollEdge || m_position.y() > room.height() - scrollEdge);
    m_rest.start(isAtEdge ? scrollMs : openGroupMs);
}

// Over a closed group it opens; at an end of the tree that goes on.
void databaseDrop::rest()
{
    m_rest.stop();
    if (m_files.empty() || m_files.front().is != droppedFiles::datasheet)
        return;
    const int height = m_view->viewport()->height();
    QScrollBar *bar = m_view->verticalScrollBar();
    const int before = bar->value();
    if (m_position.y() < scrollEdge)
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (m_position.y() > height - scrollEdge)
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    if (bar->value() == before)
        m_view->expand(m_view->indexAt(m_position).siblingAtColumn(0));
    follow(m_view->viewport()->mapTo(m_window, m_position));
}

void databaseDrop::leave()
{
    m_rest.stop();
    m_frame->hide();
    m_hint->hide();
    m_files.clear();
    m_window->tell(m_told);
}

// The program that they came from waits until this is over, so that questions come later.
void databaseDrop::drop()
{
    const auto files = m_files;
    materialStruct *material = m_material;
    leave();
    QTimer::singleShot(0, m_window, [window = m_window, files, material] {
        window->raise();
        window->activateWindow();
        window->takeFiles(files, material);
    });
}

// --- In the window
// --------------------------------------------------------------------------------

droppedFiles::plan Kiv_mat_databaseWindow::planFor(const std::vector<droppedFiles::file> &files,
                                                   const materialStruct *material) const
{
    return droppedFiles::planOf(files, {isLocked(), material ? nameOf(*material) : QString(),
                                        material && !firmNames(*material).isEmpty()});
}

void Kiv_mat_databaseWindow::takeFiles(const std::vector<droppedFiles::file> &files,
                                       materialStruct *material)
{
    if (!finishEditing())
        return;
    const droppedFiles::plan plan = planFor(files, material);
    switch (plan.what) {
    case droppedFiles::merge:
        mergeWith(files.front().path);
        break;
    case droppedFiles::takeListing:
        takeListing(files.front().path);
        break;
    case droppedFiles::loadCpv:
        loadCpv(files.front().path);
        break;
    case droppedFiles::attach:
        attach(files, material);
        break;
    case droppedFiles::refuse:
        userPrompts().showError(plan.text.toHtmlEscaped());
    }
}

void Kiv_mat_databaseWindow::attach(const std::vector<droppedFiles::file> &dropped,
                                    materialStruct *material)
{
    if (!m_rows->homeOf(material))
        return;
    const QStringList names = firmNames(*material);
    const auto firm =
        names.size() == 1
            ? std::optional(0)
            : userPrompts().choose(tr("Attach a file"),
                                   tr("Manufacturer or supplier it belongs to"), names, 0);
    if (!firm)
        return;
    const auto wanted = material->copy();
    const size_t makers = wanted->manufacturers.items.size();
    const bool isMaker = size_t(*firm) < makers;
    filesStruct &attached = isMaker ? wanted->manufacturers.items[size_t(*firm)]->files
                                    : wanted->suppliers.items[size_t(*firm) - makers]->files;
    const size_t before = attached.items.size();
    QStringList copies;
    for (const droppedFiles::file &file : dropped) {
        QString error;
        QString made;
        const QString link = materialFiles::keepCopy(file.path, &error, &made);
        if (!made.isEmpty())
            copies.append(made);
        if (link.isEmpty()) {
            for (const QString &copy : qAsConst(copies))
                files::removeFile(copy);
            userPrompts().showError(error.toHtmlEscaped());
            return;
        }
        if (std::any_of(attached.items.begin(), attached.items.end(),
                        [&link](const auto &present) { return present->name == link; }))
            continue;
        fileStruct *added = attached.append(std::make_unique<fileStruct>());
        added->type = materialFiles::fileKindOf(materialFiles::datasheet);
        added->name = link;
    }
    const int count = int(attached.items.size() - before);
    if (count == 0) {
        tell(tr("The file is attached to this material already"));
        return;
    }
    d_groupStruct *group = m_rows->homeOf(material);
    const QString &field = isMaker ? manufacturersStruct::element : suppliersStruct::element;
    if (!takeOver({{materialDifference::changed,
                    material,
                    group,
                    wanted.get(),
                    group,
                    {*placeOf(field)}}},
                  false, tr("Attach a file")))
        return;
    if (const ktmIndex::entry *entry = known().materials().find(wanted->d_ktm))
        selectMaterial(entry->material);
    tell(tr("%n file(s) attached to %1", nullptr, count).arg(nameOf(*wanted)));
}
