#include "window/searchLine.h"

#include "tree/myTreeView.h"

#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int delayMs = 40;

} // namespace

searchLine::searchLine(myTreeView *view)
    : QLineEdit(view->parentWidget())
    , m_view(view)
    , m_delay(new QTimer(this))
{
    setObjectName(QStringLiteral("words"));
    setAccessibleName(tr("Words to search for"));
    setPlaceholderText(tr("Name, KTM, value, part number: 100n 0603, case:SOT23, price:<2"));
    setClearButtonEnabled(true);
    auto *layout = new QVBoxLayout(view->parentWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(this);
    layout->addWidget(view);
    m_delay->setSingleShot(true);
    m_delay->setInterval(delayMs);
    connect(m_delay, &QTimer::timeout, this, &searchLine::wanted);
    connect(this, &QLineEdit::textChanged, m_delay, qOverload<>(&QTimer::start));
    connect(this, &QLineEdit::returnPressed, this, [this] {
        emit wanted();
        m_view->setFocus();
    });
}

void searchLine::begin()
{
    setFocus();
    selectAll();
}

searchQuery searchLine::query()
{
    m_delay->stop();
    return searchQuery::parse(text());
}

void searchLine::setRowShown(const QModelIndex &first, bool shown)
{
    if (m_view->isRowHidden(first.row(), first.parent()) == shown)
        m_view->setRowHidden(first.row(), first.parent(), !shown);
}

void searchLine::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else if (event->key() == Qt::Key_Down)
        m_view->setFocus();
    else
        QLineEdit::keyPressEvent(event);
}
