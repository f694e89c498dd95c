#include "database/historyDialog.h"

#include "util/labels.h"
#include "util/text.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum column
{
    whenColumn,
    whoColumn,
    fieldColumn,
    beforeColumn,
    afterColumn
};

constexpr int releaseRole = Qt::UserRole;
constexpr int rowRole = Qt::UserRole + 1;

// In the time of this computer.
QString timeOf(const QString &utc)
{
    QDateTime at = QDateTime::fromString(utc, Qt::ISODate);
    return at.isValid() ? at.toLocalTime().toString(labels::dateFormat() + QLatin1String(" hh:mm"))
                        : utc;
}

} // namespace

historyDialog::historyDialog(std::vector<store::materialHistory> materials, bool mayGoBack,
                             QWidget *parent)
    : QDialog(parent)
    , m_materials(std::move(materials))
    , m_view(new QTreeWidget(this))
    , m_mayGoBack(mayGoBack)
{
    setWindowTitle(tr("History"));
    auto *caption = new QLabel(m_materials.front().caption, this);
    caption->setTextFormat(Qt::PlainText);
    caption->setWordWrap(true);
    m_view->setObjectName(QStringLiteral("history"));
    m_view->setAccessibleName(windowTitle());
    m_view->setHeaderLabels({tr("When"), tr("Who"), tr("What"), tr("Before"), tr("After")});
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    QList<QTreeWidgetItem *> items;
    for (const store::materialHistory &material : m_materials)
        for (const store::historyLine &line : material.lines) {
            const bool isText = line.what == QLatin1String("changed");
            const QString who =
                line.login.isEmpty() || line.login == line.author
                    ? line.author
                    : line.author + QLatin1String(" (") + line.login + QLatin1Char(')');
            const QStringList texts{timeOf(line.at), who,
                                    isText ? line.caption : store::sentenceOf(line),
                                    isText ? labels::shownIn(line.field, line.before) : QString(),
                                    isText ? labels::shownIn(line.field, line.after) : QString()};
            auto *item = new QTreeWidgetItem(texts);
            for (int at = 0; at < texts.size(); ++at)
                item->setToolTip(at, text::toolTip(texts[at]));
            item->setData(whenColumn, releaseRole, line.release);
            item->setData(whenColumn, rowRole, material.id);
            items.append(item);
        }
    m_view->addTopLevelItems(items);
    constexpr int widths[] = {130, 190, 150, 190, 190};
    for (int at = whenColumn; at <= afterColumn; ++at)
        m_view->header()->resizeSection(at, widths[at]);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_back = buttons->addButton(tr("&Back to this state"), QDialogButtonBox::AcceptRole);
    m_back->setObjectName(QStringLiteral("backToState"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_view, &QTreeWidget::currentItemChanged, this, &historyDialog::showChoice);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(m_view);
    layout->addWidget(buttons);
    constexpr QSize usual(900, 420);
    resize(usual);
    if (!items.isEmpty())
        m_view->setCurrentItem(items.front());
    m_view->setFocus();
    showChoice();
}

void historyDialog::showChoice()
{
    m_back->setEnabled(m_mayGoBack && m_view->currentItem());
    m_back->setToolTip(m_mayGoBack
                           ? tr("The material becomes what it was after this change, as one "
                                "step; synchronising sends it")
                           : tr("Editing is locked"));
}

historyDialog::state historyDialog::picked() const
{
    const QTreeWidgetItem *item = m_view->currentItem();
    return item ? state{item->data(whenColumn, rowRole).toString(),
                        item->data(whenColumn, releaseRole).toLongLong()}
                : state();
}
