#include "update/createUpdateDialog.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "update/updateRun.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "window/rowTable.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QShortcut>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace updates;

namespace {

enum column
{
    partColumn,
    beforeColumn,
    releaseColumn,
    columns
};
constexpr int widths[columns] = {260, 120, 120};

const QString folderKey = QStringLiteral("updates/folder");
const QString keyKey = QStringLiteral("updates/key");

// One more in its last number.
QString nextRelease(const QString &before)
{
    const QString last = before.section(QLatin1Char('.'), -1);
    bool isNumber = false;
    const int number = last.toInt(&isNumber);
    return before.isEmpty() ? QStringLiteral("1")
           : isNumber       ? before.chopped(last.size()) + QString::number(number + 1)
                            : before;
}

} // namespace

createUpdateDialog::createUpdateDialog(const configStruct &config, QWidget *parent)
    : QDialog(parent)
    , m_config(config)
    , m_parts(new QTreeWidget(this))
    , m_folder(new QLineEdit(this))
    , m_key(new QLineEdit(this))
    , m_upload(new QCheckBox(tr("Copy it to the &address of updates"), this))
    , m_fault(new QLabel(this))
{
    setObjectName(QStringLiteral("createUpdateDialog"));
    setWindowTitle(tr("Make an update"));
    const QSettings settings;
    m_folder->setObjectName(QStringLiteral("folder"));
    m_folder->setText(settings.value(folderKey).toString());
    m_key->setObjectName(QStringLiteral("key"));
    m_key->setText(settings.value(keyKey).toString());
    m_key->setPlaceholderText(tr("not signed"));
    m_upload->setObjectName(QStringLiteral("upload"));
    m_upload->setEnabled(!settingsOf(config).address.isEmpty());
    m_fault->setObjectName(QStringLiteral("fault"));
    m_fault->setTextFormat(Qt::PlainText);
    m_fault->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    m_go = buttons->addButton(tr("&Make it"), QDialogButtonBox::AcceptRole);
    m_go->setObjectName(QStringLiteral("go"));
    m_go->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        QSettings kept;
        kept.setValue(folderKey, m_folder->text());
        kept.setValue(keyKey, m_key->text());
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *form = new QFormLayout;
    const auto add = [form](const QString &caption, QLineEdit *line, QWidget *row) {
        line->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
        auto *label = new QLabel(caption, row->parentWidget());
        label->setBuddy(line);
        form->addRow(label, row);
    };
    add(tr("&Folder"), m_folder, newPath(m_folder, tr("Folder of the update"), true));
    add(tr("&Key"), m_key, newPath(m_key, tr("Key to sign with"), false));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_parts, 1);
    layout->addLayout(form);
    layout->addWidget(m_upload);
    layout->addWidget(m_fault);
    layout->addWidget(buttons);
    constexpr QSize usualSize(620, 440);
    resize(usualSize);
    connect(m_folder, &QLineEdit::textChanged, this, [this] {
        addParts();
        examine();
    });
    connect(m_parts, &QTreeWidget::itemChanged, this, &createUpdateDialog::examine);
    // Only the release is a text of the user's.
    m_parts->setEditTriggers(QAbstractItemView::NoEditTriggers);
    const auto edit = [this] { m_parts->editItem(m_parts->currentItem(), releaseColumn); };
    connect(m_parts, &QTreeWidget::itemDoubleClicked, this, edit);
    connect(new QShortcut(Qt::Key_F2, m_parts, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, edit);
    addParts();
    examine();
}

QWidget *createUpdateDialog::newPath(QLineEdit *line, const QString &title, bool isFolder)
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *button = new QToolButton(row);
    button->setText(QStringLiteral("..."));
    button->setObjectName(line->objectName() + QLatin1String("Button"));
    button->setAccessibleName(title);
    layout->addWidget(line, 1);
    layout->addWidget(button);
    connect(button, &QToolButton::clicked, this, [line, title, isFolder] {
        const QString chosen = isFolder
                                   ? userPrompts().openFolder(title, line->text())
                                   : userPrompts().openFile(title, line->text(),
                                                            tr("Keys") + QLatin1String(" (*.key)"));
        if (!chosen.isEmpty())
            line->setText(chosen);
    });
    return row;
}

// The releases before are those of the folder's information file, if it has one.
void createUpdateDialog::addParts()
{
    const bool wasBlocked = m_parts->blockSignals(true);
    m_parts->clear();
    m_parts->setObjectName(QStringLiteral("parts"));
    m_parts->setAccessibleName(tr("Parts of the update"));
    m_parts->setRootIsDecorated(false);
    m_parts->setAllColumnsShowFocus(true);
    m_parts->setHeaderLabels({tr("Part"), tr("Release before"), tr("New release (F2)")});
    for (int i = 0; i < columns; ++i)
        resizeColumn(m_parts->header(), i, widths[i]);
    const auto before = installed(m_folder->text());
    for (int i = 0; i < partCount; ++i) {
        const part of = part(i);
        const QString release =
            m_folder->text().isEmpty() && of != program ? QString() : (*before).*rowOf(of).release;
        auto *row =
            new QTreeWidgetItem(m_parts, {captionOf(of), release,
                                          of == program ? QCoreApplication::applicationVersion()
                                                        : nextRelease(release)});
        row->setFlags(row->flags() | Qt::ItemIsEditable);
        row->setCheckState(partColumn, Qt::Unchecked);
    }
    m_parts->setCurrentItem(m_parts->topLevelItem(0));
    m_parts->blockSignals(wasBlocked);
}

void createUpdateDialog::examine()
{
    const updateMaker::job now = job();
    m_fault->setText(now.releases.empty()   ? tr("No part is ticked")
                     : now.folder.isEmpty() ? tr("The folder is missing")
                     : now.secretKey.isEmpty()
                         ? tr("Without a key nobody's program will take it, unless its "
                              "configuration allows that")
                         : QString());
    m_go->setEnabled(!now.releases.empty() && !now.folder.isEmpty());
}

updateMaker::job createUpdateDialog::job() const
{
    updateMaker::job made;
    made.folder = m_folder->text().trimmed();
    made.secretKey = m_key->text().trimmed();
    made.programDir = paths::programDir();
    made.dataDir = paths::dataDir();
    for (int i = 0; i < m_parts->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = m_parts->topLevelItem(i);
        if (row->checkState(partColumn) != Qt::Checked)
            continue;
        made.releases[part(i)] = row->text(releaseColumn).trimmed();
        if (part(i) != program)
            made.files[part(i)] = paths::data(m_config.options.value(rowOf(part(i)).option));
    }
    return made;
}

bool createUpdateDialog::uploads() const { return m_upload->isChecked() && m_upload->isEnabled(); }
