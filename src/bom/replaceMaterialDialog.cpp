#include "bom/replaceMaterialDialog.h"

#include "data/programData.h"
#include "order/addMaterialDialog.h"
#include "util/labels.h"
#include "util/text.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

using namespace materialReplacement;

namespace {

enum column
{
    fileColumn,
    quantityColumn,
    detailColumn,
    remarkColumn
};

constexpr int documentRole = Qt::UserRole;

QIcon icon(const char *name)
{
    return QIcon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(name)));
}

void setTexts(QTreeWidgetItem *item, const QStringList &texts)
{
    for (int column = 0; column < texts.size(); ++column) {
        item->setText(column, texts.at(column).simplified());
        item->setToolTip(column, text::toolTip(texts.at(column)));
    }
    item->setTextAlignment(quantityColumn, Qt::AlignRight | Qt::AlignVCenter);
}

} // namespace

replaceMaterialDialog::replaceMaterialDialog(programData &known,
                                             const std::vector<document> &documents,
                                             QWidget *parent)
    : QDialog(parent)
    , m_known(known)
    , m_documents(documents)
    , m_table(new QTreeWidget(this))
    , m_summary(new QLabel(this))
{
    setObjectName(QStringLiteral("replaceMaterialDialog"));
    setWindowTitle(tr("Replace material"));
    auto *fields = new QGridLayout;
    m_before = addField(fields, tr("&Material to replace"), "before", tr("&Search ..."));
    m_after = addField(fields, tr("&New material"), "after", tr("S&earch ..."));

    m_table->setObjectName(QStringLiteral("changes"));
    m_table->setAccessibleName(tr("What changes"));
    m_table->setHeaderLabels({tr("File, line"), labels::quantity(),
                              labels::designator() + QLatin1String(" / ") + labels::target(),
                              tr("Remarks")});
    m_table->setAlternatingRowColors(true);
    m_table->setUniformRowHeights(true);
    m_table->setAllColumnsShowFocus(true);
    int at = 0;
    for (int width : {300, 100, 260})
        m_table->header()->resizeSection(at++, width);
    m_table->installEventFilter(this);
    connect(m_table, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item, int column) {
        if (column != fileColumn || item->parent())
            return;
        const QString &path = m_documents[size_t(item->data(0, documentRole).toInt())].path;
        if (item->checkState(fileColumn) == Qt::Checked)
            m_leftOut.remove(path);
        else
            m_leftOut.insert(path);
        showState();
    });

    m_summary->setObjectName(QStringLiteral("summary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    m_go = buttons->addButton(tr("Replace"), QDialogButtonBox::AcceptRole);
    m_go->setObjectName(QStringLiteral("go"));
    m_go->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    const auto mark = [&](const QString &text, const char *name, bool all) {
        QPushButton *button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, all] { tick(all); });
    };
    mark(tr("Mark &all"), "all", true);
    mark(tr("Mark n&one"), "none", false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);
    setTabOrder(m_before.ktm, m_before.search);
    setTabOrder(m_before.search, m_after.ktm);
    setTabOrder(m_after.ktm, m_after.search);
    setTabOrder(m_after.search, m_table);
    setTabOrder(m_table, m_go);
    constexpr QSize usualSize(1040, 560);
    resize(usualSize);
    showChanges();
}

replaceMaterialDialog::materialField replaceMaterialDialog::addField(QGridLayout *to,
                                                                     const QString &caption,
                                                                     const char *name,
                                                                     const QString &search)
{
    const materialField field{new QLineEdit(this), new QPushButton(search, this), new QLabel(this)};
    auto *label = new QLabel(caption, this);
    label->setBuddy(field.ktm);
    const QString object = QLatin1String(name);
    field.ktm->setObjectName(object);
    field.ktm->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    field.ktm->setPlaceholderText(tr("KTM, or words to search for and Return"));
    field.ktm->installEventFilter(this);
    field.search->setObjectName(object + QLatin1String("Search"));
    field.search->setAutoDefault(false);
    field.known->setObjectName(object + QLatin1String("Known"));
    field.known->setTextFormat(Qt::PlainText);
    const int row = to->rowCount();
    to->addWidget(label, row, 0);
    to->addWidget(field.ktm, row, 1);
    to->addWidget(field.search, row, 2);
    to->addWidget(field.known, row, 3);
    constexpr int ktmShare = 2;
    constexpr int knownShare = 3;
    to->setColumnStretch(1, ktmShare);
    to->setColumnStretch(3, knownShare);
    connect(field.ktm, &QLineEdit::textChanged, this, &replaceMaterialDialog::showChanges);
    connect(field.search, &QPushButton::clicked, this, [this, field] { searchFor(field); });
    return field;
}

QString replaceMaterialDialog::before() const { return m_before.ktm->text().trimmed(); }

QString replaceMaterialDialog::after() const { return m_after.ktm->text().trimmed(); }

void replaceMaterialDialog::setMaterials(const QString &before, const QString &after)
{
    m_before.ktm->setText(before);
    m_after.ktm->setText(after);
    if (m_go->isEnabled())
        m_go->setFocus();
    else
        (before.isEmpty() ? m_before : m_after).ktm->setFocus();
}

void replaceMaterialDialog::setLeftOut(const QSet<QString> &paths)
{
    m_leftOut = paths;
    showChanges();
}

// --- The two materials
// ----------------------------------------------------------------------------

void replaceMaterialDialog::searchFor(const materialField &field)
{
    // The new one is looked for among those like the old one.
    QString words = field.ktm->text();
    if (words.isEmpty() && field.ktm == m_after.ktm && m_what.old)
        words = m_what.old->d_value;
    else if (const ktmIndex::entry *found = m_known.materials().find(words.trimmed()))
        words = found->material->d_name;
    const QString ktm = addMaterialDialog::pick(m_known, this, words);
    if (ktm.isEmpty()) {
        field.ktm->setFocus();
        return;
    }
    field.ktm->setText(ktm);
    takeReturn(field);
}

// On to what is still to be said; words are searched for.
void replaceMaterialDialog::takeReturn(const materialField &field)
{
    const QString ktm = field.ktm->text().trimmed();
    const bool isBefore = field.ktm == m_before.ktm;
    if (!m_known.materials().find(ktm) && !(isBefore && isUsed(ktm)))
        searchFor(field);
    else if (isBefore && !m_what.after)
        m_after.ktm->setFocus();
    else if (!m_what.after)
        m_before.ktm->setFocus();
    else
        (m_go->isEnabled() ? static_cast<QWidget *>(m_go) : m_table)->setFocus();
}

bool replaceMaterialDialog::isUsed(const QString &ktm) const
{
    const replacement what{ktm};
    return std::any_of(m_documents.begin(), m_documents.end(),
                       [&what](const document &in) { return !changeOf(in, what).lines.empty(); });
}

void replaceMaterialDialog::showKnown(const materialField &field,
                                      const materialStruct *material) const
{
    const QString ktm = field.ktm->text().trimmed();
    QString told;
    if (material) {
        const QString status = material->information.status.trimmed();
        told = QStringList{material->d_name,
                           status.isEmpty() ? tr("no status") : labels::shown(status),
                           labels::shown(labels::unitOrPieces(material->d_unit)),
                           material->d_description}
                   .join(QLatin1String(", "));
    } else if (!ktm.isEmpty()) {
        told = tr("in no database");
    }
    constexpr int most = 70;
    field.known->setText(told.size() > most ? text::firstUnits(told, most) + QChar(0x2026) : told);
    field.known->setToolTip(text::toolTip(told));
}

// --- What changes
// ---------------------------------------------------------------------------------

QTreeWidgetItem *replaceMaterialDialog::rowOf(int at, const change &of) const
{
    const document &in = m_documents[size_t(at)];
    auto *row = new QTreeWidgetItem;
    row->setData(0, documentRole, at);
    const QString fault = in.fault.isEmpty() ? of.refusal : in.fault;
    QStringList remarks = fault.isEmpty() ? of.remarks() : QStringList(fault);
    if (in.isOpen && fault.isEmpty())
        remarks.prepend(tr("open: changed in its window, not saved"));
    setTexts(row, {in.path.isEmpty() ? tr("New order") : QFileInfo(in.path).fileName(),
                   of.lines.empty() ? QString() : tr("%n line(s)", nullptr, int(of.lines.size())),
                   QString(), remarks.join(QLatin1String("; "))});
    row->setToolTip(fileColumn, text::toolTip(QDir::toNativeSeparators(in.path)));
    row->setIcon(fileColumn, icon(!fault.isEmpty() ? "system_error_trans_128"
                                  : in.order       ? "action_list"
                                                   : "file_xml_128"));
    if (fault.isEmpty())
        row->setCheckState(fileColumn, m_leftOut.contains(in.path) ? Qt::Unchecked : Qt::Checked);
    for (const line &one : of.lines) {
        auto *below = new QTreeWidgetItem(row);
        const QString unit =
            one.unit.isEmpty() ? QString() : QLatin1Char(' ') + labels::shown(one.unit);
        setTexts(below, {tr("Line %1").arg(one.number + 1), one.quantity + unit, one.detail,
                         one.remarks(m_what).join(QLatin1String("; "))});
        if (!one.remarks(m_what).isEmpty())
            below->setIcon(remarkColumn, icon("action_information"));
    }
    return row;
}

void replaceMaterialDialog::showChanges()
{
    if (!m_after.ktm)
        return;
    m_what = replacementOf(before(), after(), m_known.materials(), &m_fault);
    showKnown(m_before, m_what.old);
    const ktmIndex::entry *found = m_known.materials().find(after());
    showKnown(m_after, found ? found->material : nullptr);
    QList<QTreeWidgetItem *> rows;
    if (!before().isEmpty())
        for (size_t i = 0; i < m_documents.size(); ++i) {
            const change of = changeOf(m_documents[i], m_what);
            if (!of.lines.empty() || (!m_documents[i].fault.isEmpty() && !m_documents[i].order))
                rows.append(rowOf(int(i), of));
        }
    const QSignalBlocker quiet(m_table);
    m_table->clear();
    m_table->addTopLevelItems(rows);
    m_table->expandAll();
    m_table->setCurrentItem(m_table->topLevelItem(0));
    showState();
}

std::vector<int> replaceMaterialDialog::chosen() const
{
    std::vector<int> all;
    for (int row = 0; row < m_table->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_table->topLevelItem(row);
        if (item->childCount() > 0 && item->checkState(fileColumn) == Qt::Checked)
            all.push_back(item->data(0, documentRole).toInt());
    }
    return all;
}

void replaceMaterialDialog::showState()
{
    int lines = 0;
    int files = 0;
    int users = 0;
    int faulty = 0;
    for (int row = 0; row < m_table->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_table->topLevelItem(row);
        const bool canChange = !item->data(0, Qt::CheckStateRole).isNull();
        users += item->childCount() > 0 ? 1 : 0;
        faulty += canChange ? 0 : 1;
        if (!canChange || item->checkState(fileColumn) != Qt::Checked)
            continue;
        ++files;
        lines += item->childCount();
    }
    QStringList told;
    const QString reason = !m_fault.isEmpty() ? m_fault
                           : users == 0       ? tr("no list and no order has the material")
                           : files == 0       ? tr("nothing is marked")
                                              : QString();
    told.append(tr("%n line(s) to replace", nullptr, lines));
    told.append(tr("lists and orders: %1 of %2").arg(files).arg(m_documents.size()));
    if (faulty > 0)
        told.append(tr("%n cannot be changed", nullptr, faulty));
    const QString status = statusRemark(m_what);
    for (const QString &more : {reason, status})
        if (!more.isEmpty())
            told.append(more);
    m_summary->setText(told.join(QLatin1String("; ")));
    m_go->setEnabled(reason.isEmpty());
    m_go->setToolTip(reason);
}

void replaceMaterialDialog::tick(bool all)
{
    {
        const QSignalBlocker quiet(m_table);
        for (int row = 0; row < m_table->topLevelItemCount(); ++row) {
            QTreeWidgetItem *item = m_table->topLevelItem(row);
            if (item->data(0, Qt::CheckStateRole).isNull())
                continue;
            item->setCheckState(fileColumn, all ? Qt::Checked : Qt::Unchecked);
            const QString &path = m_documents[size_t(item->data(0, documentRole).toInt())].path;
            if (all)
                m_leftOut.remove(path);
            else
                m_leftOut.insert(path);
        }
    }
    m_table->viewport()->update();
    showState();
}

// Return in a field goes on or searches, and is not yet the dialog's; Space ticks the document of
// the row, wherever the cursor is in it.
bool replaceMaterialDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        for (const materialField *field : {&m_before, &m_after})
            if (watched == field->ktm) {
                takeReturn(*field);
                return true;
            }
    }
    if (watched == m_table && key == Qt::Key_Space) {
        QTreeWidgetItem *item = m_table->currentItem();
        if (item && item->parent())
            item = item->parent();
        if (item && !item->data(0, Qt::CheckStateRole).isNull())
            item->setCheckState(fileColumn, item->checkState(fileColumn) == Qt::Checked
                                                ? Qt::Unchecked
                                                : Qt::Checked);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}
