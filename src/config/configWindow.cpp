#include "config/configWindow.h"

#include "commands/cellBlock.h"
#include "commands/editCommands.h"
#include "config/configOperations.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "tree/myTreeView.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/becomeList.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QTabWidget>

using configOperations::optionKind;
using myItem::myItemStandard;

namespace {

const windowAction<configWindow> actionTable[] = {
    {{"save", "File", "Save", "action_save", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Check the configuration, write it and use it"), true},
     &configWindow::commandSave},
    {{"default", "File", QT_TRANSLATE_NOOP("actions", "Default"), "action_default", nullptr,
      QT_TRANSLATE_NOOP("actions", "Give every option its default value"), true},
     &configWindow::commandDefault},
    {usualActions::fileSeparator, nullptr},
    {usualActions::close, &configWindow::commandClose},
    {usualActions::edit(QT_TRANSLATE_NOOP("actions", "Allow changes of the configuration")),
     &configWindow::commandEdit},
    {usualActions::undo, &configWindow::commandUndo},
    {usualActions::redo, &configWindow::commandRedo},
    {usualActions::editSeparator, nullptr},
    {usualActions::copyCells, &configWindow::commandCopyCells},
    {usualActions::pasteCells, &configWindow::commandPasteCells},
    {usualActions::fillDown, &configWindow::commandFillDown},
    {{"add", "Edit", QT_TRANSLATE_NOOP("actions", "Add row"), "action_add_row", "Ins",
      QT_TRANSLATE_NOOP("actions", "Add a person or a target"), true},
     &configWindow::commandAdd},
    {{"delete", "Edit", QT_TRANSLATE_NOOP("actions", "Delete rows"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Delete the selected persons or targets"), true},
     &configWindow::commandDelete},
};

template <class Record>
treeColumns<Record> allColumns()
{
    constexpr int width = 150;
    treeColumns<Record> columns;
    for (const textField<Record> &field : Record::fields())
        columns.push_back(
            fieldColumn(Record::fields(), field.name, width, myItem::lineEditKind, true));
    return columns;
}

template <class Record>
treeColumn<Record> &columnOf(treeColumns<Record> &columns, const char *key)
{
    for (treeColumn<Record> &column : columns)
        if (column.key == QLatin1String(key))
            return column;
    return columns.front();
}

myItem::comboEntries rolesOf(std::initializer_list<QLatin1String> keys)
{
    myItem::comboEntries entries;
    for (QLatin1String key : keys)
        entries.append({key, {}, {}, labels::optionCaption(key)});
    return entries;
}

treeColumns<personStruct> personColumns()
{
    auto columns = allColumns<personStruct>();
    treeColumn<personStruct> &type = columnOf(columns, "type");
    type.kind = myItem::comboBoxKind;
    type.entries = rolesOf({optionKey::personAuthor, optionKey::personApproved,
                            optionKey::personContractor, optionKey::personAdmin});
    return columns;
}

treeColumns<targetStruct> targetColumns()
{
    auto columns = allColumns<targetStruct>();
    treeColumn<targetStruct> &type = columnOf(columns, "type");
    type.kind = myItem::comboBoxKind;
    type.entries = rolesOf({optionKey::orderTarget});
    return columns;
}

cellTraits traitsOf(const configStruct &config, const optionStruct &option)
{
    const configOperations::optionType type = configOperations::typeOf(option.type);
    cellTraits traits{option.type, myItem::lineEditKind, true,        {},
                      false,       type.minimum,         type.maximum};
    switch (type.kind) {
    case optionKind::yesNo:
        traits.kind = myItem::comboBoxKind;
        traits.entries = myItem::entriesOf(config.goodWhenYes);
        break;
    case optionKind::number:
        traits.kind = myItem::spinBoxKind;
        break;
    case optionKind::fontName:
        traits.kind = myItem::fontComboBoxKind;
        break;
    case optionKind::file:
    case optionKind::folder:
        traits.kind = myItem::pathEditKind;
        break;
    case optionKind::password:
        traits.kind = myItem::passwordEditKind;
        break;
    case optionKind::date:
        traits.kind = myItem::dateEditKind;
        break;
    case optionKind::language:
        traits.kind = myItem::comboBoxKind;
        traits.entries = {{QStringLiteral("pl"), {}, {}, QStringLiteral("Polski")},
                          {QStringLiteral("en"), {}, {}, QStringLiteral("English")}};
        break;
    case optionKind::target:
    case optionKind::person:
        traits.kind = myItem::comboBoxKind;
        traits.canBeTyped = true;
        for (const auto &target : config.targets.items)
            if (type.kind == optionKind::target)
                traits.entries.append({target->name, target->description, {}, {}});
        for (const auto &person : config.persons.items)
            if (type.kind == optionKind::person && person->type == option.type)
                traits.entries.append({person->name, person->phone, {}, {}});
        break;
    case optionKind::text:
        break;
    }
    return traits;
}

} // namespace

void configWindow::optionRows::cellChanged(myItemStandard *item, myItemStandard *first)
{
    if (item->type() == myItem::pathEditKind)
        item->setText(configOperations::storedPath(item->text()));
    auto *option = static_cast<optionStruct *>(first->record);
    option->value1 = item->text();
}

configWindow::configWindow(programData &files)
    : editWindow(QStringLiteral("configWindow"), files)
    , m_edited(std::make_unique<configStruct>())
    , m_tabs(new QTabWidget(this))
{
    addActions(actionTable);
    m_tabs->setObjectName(QStringLiteral("pages"));
    addPage(optionsPage, tr("Options"), "options");
    addPage(personsPage, tr("Persons"), "persons");
    addPage(targetsPage, tr("Targets"), "targets");
    m_views[optionsPage]->setSortingEnabled(false);
    setCentralWidget(m_tabs);
    connect(&m_versions, &versionCount::counted, this, &configWindow::showVersions);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] { updateActions(); });
    constexpr QSize usualSize(880, 640);
    resize(usualSize);
}

void configWindow::addPage(page at, const QString &title, const char *name)
{
    myTreeView *view = addView(title, name, m_tabs);
    view->setRootIsDecorated(false);
    view->header()->setStretchLastSection(true);
    m_tabs->addTab(view, title);
    m_views[at] = view;
}

myTreeView *configWindow::currentView() const { return m_views[size_t(m_tabs->currentIndex())]; }

QString configWindow::filePath() const { return paths::config(); }

QLatin1String configWindow::editOption() const { return optionKey::editConfig; }

// Only the file itself can take the lock away again.
QString configWindow::forbidden(QLatin1String option) const
{
    return tr("%1 is NIE; change line %2 of %3")
        .arg(option)
        .arg(configOperations::lineOf(option, filePath()))
        .arg(QDir::toNativeSeparators(filePath()));
}

std::unique_ptr<command> configWindow::become(documentStruct &wanted)
{
    auto &config = static_cast<configStruct &>(wanted);
    std::vector<std::unique_ptr<command>> members;
    becomeList::changeOptions(options(), config.options, members);
    becomeList::change(modelOf(m_views[personsPage]), *m_personRows, m_edited->persons.items,
                       std::move(config.persons.items), members);
    becomeList::change(modelOf(m_views[targetsPage]), *m_targetRows, m_edited->targets.items,
                       std::move(config.targets.items), members);
    return members.empty() ? nullptr : std::make_unique<appendCommands>(std::move(members));
}

bool configWindow::load()
{
    auto config = std::make_unique<configStruct>();
    const fileState state = fileState::of(filePath());
    const bool read = config->load(filePath());
    // A window that shows options had their file.
    const bool again = isVisible();
    if (!read)
        userPrompts().listError(messages::failed(messages::fileCorrupted(), filePath()));
    if (again && (!read || !known().replaceConfiguration(filePath())))
        return false;
    // Saved over, what the file holds would be lost.
    m_fault = read || !QFileInfo::exists(filePath()) ? QString() : tr("the file cannot be read");
    onDisk() = state;
    if (!read) {
        config = std::make_unique<configStruct>();
        config->setDefaults();
    }
    configOperations::addMissing(config.get());
    setClean();
    // Its records are looked at until the trees show the new ones.
    const auto before = std::exchange(m_edited, std::move(config));
    showOptions();
    m_personRows = std::make_unique<listRows<personStruct>>(personColumns());
    m_targetRows = std::make_unique<listRows<targetStruct>>(targetColumns());
    m_personRows->makeRecord = [] {
        auto person = std::make_unique<personStruct>();
        person->type = optionKey::personAuthor;
        return person;
    };
    m_targetRows->makeRecord = [] {
        auto target = std::make_unique<targetStruct>();
        target->type = optionKey::orderTarget;
        return target;
    };
    const auto show = [this](page at, auto &rows, auto &records) {
        myModel *model = modelOf(m_views[at]);
        model->setRecords(nullptr);
        setCaptions(model, rows.columns());
        rows.show(model, &records);
        model->setRecords(&rows);
    };
    show(personsPage, *m_personRows, m_edited->persons.items);
    show(targetsPage, *m_targetRows, m_edited->targets.items);
    setUnlocked(true);
    if (again)
        emit configChange();
    return read;
}

void configWindow::showOptions()
{
    myModel *model = options();
    model->setRecords(&m_optionRows);
    model->removeRows(0, model->rowCount());
    model->setHorizontalHeaderLabels({tr("Option"), labels::value(), labels::unit()});
    for (const auto &option : m_edited->options.items) {
        auto *caption = new myItemStandard(option->type);
        const QString text = labels::optionCaption(option->type);
        caption->setText(text.startsWith(QLatin1String("OPTION_")) ? option->type : text);
        caption->setToolTip(option->type);
        caption->setEditable(false);
        caption->record = option.get();
        cellTraits traits = traitsOf(*m_edited, *option);
        traits.editable = option->editable == statusWord::editableYes;
        myItemStandard *value = makeCell(traits, option->value1);
        // Texts and numbers stand below each other here.
        value->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        if (configOperations::typeOf(option->type).kind == optionKind::file)
            value->setData(true, myItem::fileRole);
        auto *unit = new myItemStandard(QStringLiteral("unit"));
        unit->setText(option->unit);
        unit->setEditable(false);
        model->appendRow({caption, value, unit});
    }
    constexpr int captionWidth = 360;
    constexpr int valueWidth = 340;
    m_views[optionsPage]->header()->resizeSection(0, captionWidth);
    m_views[optionsPage]->header()->resizeSection(1, valueWidth);
    m_versions.start(known().config().backupFolders());
}

// Beside the number of versions that are kept of a file.
void configWindow::showVersions(const fileVersions::usage &found)
{
    constexpr double megabyte = 1e6;
    constexpr int unitColumn = 2;
    for (int row = 0; row < options()->rowCount(); ++row)
        if (options()->item(row)->toolTip() == optionKey::backupCount)
            options()
                ->item(row, unitColumn)
                ->setText(tr("%n version(s), %1 MB", nullptr, found.count)
                              .arg(double(found.bytes) / megabyte, 0, 'f', 1));
}

void configWindow::updateActions()
{
    allowWhenUnlocked({"default", "pasteCells", "fillDown"});
    allowWhenUnlocked({"add", "delete"}, m_tabs->currentIndex() != optionsPage,
                      tr("options are neither added nor deleted"));
    setAvailable("save", m_fault.isEmpty(), m_fault);
}

void configWindow::commandAdd(bool)
{
    myTreeView *view = currentView();
    const myItem::row items = modelOf(view)->records()->newRow();
    push(std::make_unique<appendNewMaterial>(modelOf(view), items), tr("Add row"));
    view->goTo(view->model()->index(view->model()->rowCount() - 1, 0));
    view->setFocus();
}

void configWindow::commandDelete(bool)
{
    push(cellBlock::deleteRows(modelOf(currentView()), currentView()->markedRows()),
         tr("Delete rows"));
}

void configWindow::commandDefault(bool)
{
    QList<myItemStandard *> cells;
    for (int row = 0; row < options()->rowCount(); ++row)
        cells.append(static_cast<myItemStandard *>(options()->item(row, 1)));
    push(cellBlock::set(options(), cells,
                        [](const myItemStandard &cell) {
                            const QString value = configOperations::defaultValue(cell.whatsThis());
                            return value.isNull() ? QVariant() : QVariant(value);
                        }),
         tr("Default"));
}

bool configWindow::write(const QString &path)
{
    const QStringList faults = configOperations::faultsOf(*m_edited);
    if (!faults.isEmpty()) {
        userPrompts().showError(text::toHtml(faults.join(QLatin1Char('\n'))));
        return false;
    }
    m_edited->hidePasswords(path);
    if (!writeDocument(path, *m_edited))
        return false;
    m_edited->hidePasswords(path);
    m_later = configOperations::restartNeeded(known().config(), *m_edited);
    return known().replaceConfiguration(path);
}

void configWindow::saved()
{
    setUnlocked(!isLocked());
    emit configChange();
    if (!m_later.isEmpty())
        userPrompts().showInformation(text::toHtml(tr("These options count from the next start on:")
                                                   + QLatin1Char('\n')
                                                   + m_later.join(QLatin1Char('\n'))));
}
