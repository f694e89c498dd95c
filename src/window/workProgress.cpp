#include "window/workProgress.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

namespace {

constexpr int appearAfterMs = 300;
constexpr int paintEveryMs = 40;
constexpr int barRange = 1000;

int windowsAtWork = 0;

} // namespace

workProgress::workProgress(QStatusBar *bar)
    : QObject(bar)
    , m_bar(new QProgressBar(bar))
    , m_cancel(new QToolButton(bar))
{
    m_bar->setObjectName(QStringLiteral("progressBar"));
    m_bar->setAccessibleName(tr("Progress"));
    m_bar->setRange(0, barRange);
    m_bar->setMaximumWidth(320);
    m_cancel->setObjectName(QStringLiteral("cancelButton"));
    m_cancel->setText(tr("Cancel"));
    m_cancel->setAccessibleName(m_cancel->text());
    connect(m_cancel, &QToolButton::clicked, this, [this] { m_cancelled = true; });
    bar->addPermanentWidget(m_bar);
    bar->addPermanentWidget(m_cancel);
    m_bar->hide();
    m_cancel->hide();
}

bool workProgress::isWorking() { return windowsAtWork > 0; }

workProgress::scope::scope(workProgress &progress, const QString &text, endKind ends)
    : m_progress(progress)
{
    m_progress.begin(text, ends == canCancel);
}

workProgress::scope::~scope() { m_progress.end(); }

progressFunction workProgress::scope::function()
{
    return [&progress = m_progress](long long done, long long total) {
        return progress.tell(done, total);
    };
}

void workProgress::begin(const QString &text, bool canCancel)
{
    if (m_depth++ > 0)
        return;
    ++windowsAtWork;
    m_canCancel = canCancel;
    m_cancelled = false;
    m_bar->setRange(0, barRange);
    m_bar->setValue(0);
    m_bar->setFormat(text + QLatin1String(" %p%"));
    m_sinceBegin.start();
    m_sincePaint.start();
    qApp->installEventFilter(this);
}

void workProgress::end()
{
    if (--m_depth > 0)
        return;
    --windowsAtWork;
    qApp->removeEventFilter(this);
    m_bar->hide();
    m_cancel->hide();
}

bool workProgress::tell(long long done, long long total)
{
    if (m_sincePaint.elapsed() < paintEveryMs)
        return !m_cancelled;
    m_sincePaint.start();
    if (m_sinceBegin.elapsed() >= appearAfterMs) {
        // A bar without an end says only that the work goes on.
        m_bar->setRange(0, total > 0 ? barRange : 0);
        m_bar->setValue(total > 0 ? int(double(done) / double(total) * barRange) : 0);
        m_bar->show();
        m_cancel->setVisible(m_canCancel);
    }
    QCoreApplication::processEvents();
    return !m_cancelled;
}

bool workProgress::eventFilter(QObject *watched, QEvent *event)
{
    // What asks in the middle of the work is answered.
    const QWidget *asking = QApplication::activeModalWidget();
    if (asking && asking != m_bar->window())
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            m_cancelled = m_canCancel;
        return true;
    case QEvent::Shortcut: // reaches the action, which is no widget
        return true;
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
    case QEvent::Drop:
        // A click reaches the window under the pointer before its widget.
        return watched->isWidgetType() && watched != m_cancel;
    case QEvent::Close:
        event->ignore();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}
