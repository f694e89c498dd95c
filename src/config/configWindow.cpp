#include "config/configWindow.h"

#include "commands/cellBlock.h"
#include "commands/editCommands.h"
#include "config/configOperations.h"
#include "data/documentSaving.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "tree/myTreeView.h"
#include "util/labels.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QStatusBar>
#include <QTabWidget>

using configOperations::optionKind;
using myItem::myItemStandard;

namespace {

const windowAction<configWindow> actionTable[] = {
    {{"save", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Save"),
      "action_save", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Check the configuration, write it and use it"), true},
     &configWindow::commandSave},
    {{"default", "File", QT_TRANSLATE_NOOP("actions", "Default"), "action_default", nullptr,
      QT_TRANSLATE_NOOP("actions", "Give every option its default value"), true},
     &configWindow::commandDefault},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"close", "File", QT_TRANSLATE_NOOP("actions", "Close"), "action_close", "Ctrl+W", nullptr},
     &configWindow::commandClose},
    {{"edit", QT_TRANSLATE_NOOP("actions", "Edit"), QT_TRANSLATE_NOOP("actions", "Edit"),
      "action_edit", "Ctrl+E", QT_TRANSLATE_NOOP("actions", "Allow changes of the configuration"),
      true, true},
     &configWindow::commandEdit},
    {{"undo", "Edit", QT_TRANSLATE_NOOP("actions", "Undo"), "action_undo", "Ctrl+Z", nullptr, true},
     &configWindow::commandUndo},
    {{"redo", "Edit", QT_TRANSLATE_NOOP("actions", "Redo"), "action_redo", "Ctrl+Y", nullptr, true},
     &configWindow::commandRedo},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"add", "Edit", QT_TRANSLATE_NOOP("actions", "Add row"), "action_add_row", "Ins",
      QT_TRANSLATE_NOOP("actions", "Add a person or a target"), true},
     &configWindow::commandAdd},
    {{"delete", "Edit", QT_TRANSLATE_NOOP("actions", "Delete rows"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Delete the selected persons or targets"), true},
     &configWindow::commandDelete},
};

enum page
{
    optionsPage,
    personsPage,
    targetsPage
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

configWindow::configWindow()
    : baseWindow(QStringLiteral("configWindow"))
    , m_tabs(new QTabWidget(this))
    , m_options(new myModel(this))
    , m_persons(new myModel(this))
    , m_targets(new myModel(this))
{
    setWindowTitle(tr("Configuration"));
    addActions(actionTable);
    m_stack = std::make_unique<commandStack>(action("undo"), action("redo"));
    m_tabs->setObjectName(QStringLiteral("pages"));
    addTree(m_options, tr("Options"), "options")->setSortingEnabled(false);
    addTree(m_persons, tr("Persons"), "persons");
    addTree(m_targets, tr("Targets"), "targets");
    setCentralWidget(m_tabs);
    connect(m_tabs, &QTabWidget::currentChanged, this, &configWindow::updateActions);
    constexpr QSize usualSize(880, 640);
    resize(usualSize);
    load();
}

configWindow::~configWindow()
{
    m_stack->clear();
    for (myModel *model : {m_options, m_persons, m_targets})
        model->detach();
}

myTreeView *configWindow::addTree(myModel *model, const QString &title, const char *name)
{
    model->setStack(m_stack.get());
    auto *view = new myTreeView(m_tabs);
    view->setObjectName(QLatin1String(name));
    view->setAccessibleName(title);
    view->setModel(model);
    view->setRootIsDecorated(false);
    view->header()->setStretchLastSection(true);
    view->header()->setObjectName(QLatin1String(name) + QStringLiteral("Header"));
    m_tabs->addTab(view, title);
    m_views.push_back(view);
    connect(model, &myModel::sorted, this, &configWindow::clearCommands);
    for (auto signal :
         {&myModel::changeValueOccured, &myModel::appendOccured, &myModel::removeOccured})
        connect(model, signal, this, &configWindow::updateActions);
    return view;
}

void configWindow::load()
{
    m_stack->clear();
    m_changedBefore = false;
    auto config = std::make_unique<configStruct>();
    if (!config->load(paths::config())) {
        config = std::make_unique<configStruct>();
        config->setDefaults();
    }
    configOperations::addMissing(config.get());
    // Its records are looked at until the trees show the new ones.
    const auto before = std::exchange(m_edited, std::move(config));
    showOptions();
    m_persons->setRecords(nullptr);
    m_targets->setRecords(nullptr);
    m_personRows = std::make_unique<listRows<personStruct>>(personColumns());
    m_targetRows = std::make_unique<listRows<targetStruct>>(targetColumns());
    setCaptions(m_persons, m_personRows->columns());
    setCaptions(m_targets, m_targetRows->columns());
    m_personRows->show(m_persons, &m_edited->persons.items);
    m_targetRows->show(m_targets, &m_edited->targets.items);
    m_persons->setRecords(m_personRows.get());
    m_targets->setRecords(m_targetRows.get());
    action("edit")->setChecked(m_edited->isOn(optionKey::editConfig));
    commandEdit(action("edit")->isChecked());
}

void configWindow::showOptions()
{
    m_options->setRecords(&m_optionRows);
    m_options->removeRows(0, m_options->rowCount());
    m_options->setHorizontalHeaderLabels({tr("Option"), labels::value(), labels::unit()});
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
        m_options->appendRow({caption, value, unit});
    }
    constexpr int captionWidth = 360;
    constexpr int valueWidth = 340;
    m_views[optionsPage]->header()->resizeSection(0, captionWidth);
    m_views[optionsPage]->header()->resizeSection(1, valueWidth);
}

void configWindow::updateActions()
{
    const bool locked = m_views.size() < 3 || m_views[optionsPage]->isEditingLocked();
    const bool onOptions = m_tabs->currentIndex() == optionsPage;
    const QString lockedReason = tr("editing is locked");
    setAvailable("default", !locked, lockedReason);
    for (const char *name : {"add", "delete"})
        setAvailable(name, !locked && !onOptions,
                     locked ? lockedReason : tr("options are neither added nor deleted"));
    statusBar()->showMessage(isChanged() ? tr("Changed, not saved") : QString());
}

void configWindow::showNow()
{
    if (!isVisible())
        load();
    show();
    raise();
    activateWindow();
}

void configWindow::commandEdit(bool on)
{
    for (myTreeView *view : m_views)
        view->setEditingLocked(!on);
    updateActions();
}

void configWindow::commandUndo(bool)
{
    const QString what = m_stack->undo();
    statusBar()->showMessage(tr("Undone: %1").arg(what));
}

void configWindow::commandRedo(bool)
{
    const QString what = m_stack->redo();
    statusBar()->showMessage(tr("Done again: %1").arg(what));
}

void configWindow::clearCommands()
{
    // Sorting ends the history, not the changes.
    m_changedBefore = isChanged();
    m_stack->clear();
}

void configWindow::commandAdd(bool)
{
    const bool persons = m_tabs->currentIndex() == personsPage;
    myModel *model = persons ? m_persons : m_targets;
    myItem::row items;
    if (persons) {
        auto person = std::make_unique<personStruct>();
        person->type = optionKey::personAuthor;
        items = m_personRows->makeDetachedRow(std::move(person));
    } else {
        auto target = std::make_unique<targetStruct>();
        target->type = optionKey::orderTarget;
        items = m_targetRows->makeDetachedRow(std::move(target));
    }
    m_stack->push(std::make_unique<appendNewMaterial>(model, items), tr("Add row"));
    myTreeView *view = m_views[size_t(m_tabs->currentIndex())];
    view->setCurrentIndex(model->index(model->rowCount() - 1, 0));
    view->setFocus();
    updateActions();
}

void configWindow::commandDelete(bool)
{
    myTreeView *view = m_views[size_t(m_tabs->currentIndex())];
    if (auto change =
            cellBlock::deleteRows(static_cast<myModel *>(view->model()), view->selectedRows()))
        m_stack->push(std::move(change), tr("Delete rows"));
    updateActions();
}

void configWindow::commandDefault(bool)
{
    QList<myItemStandard *> cells;
    for (int row = 0; row < m_options->rowCount(); ++row)
        cells.append(static_cast<myItemStandard *>(m_options->item(row, 1)));
    auto change = cellBlock::set(m_options, cells, [](const myItemStandard &cell) {
        const QString value = configOperations::defaultValue(cell.whatsThis());
        return value.isNull() ? QVariant() : QVariant(value);
    });
    if (change)
        m_stack->push(std::move(change), tr("Default"));
    updateActions();
}

void configWindow::commandSave(bool)
{
    for (myTreeView *view : m_views)
        view->finishEditing();
    const QStringList faults = configOperations::faultsOf(*m_edited);
    if (!faults.isEmpty()) {
        userPrompts().showError(text::toHtml(faults.join(QLatin1Char('\n'))));
        return;
    }
    programData &known = programData::instance();
    const QString path = paths::config();
    if (!saveDocument(path, *m_edited, programData::instance().config()))
        return;
    const QStringList later = configOperations::restartNeeded(known.config(), *m_edited);
    if (!known.replaceConfiguration(path))
        return;
    m_stack->clear();
    m_changedBefore = false;
    updateActions();
    statusBar()->showMessage(tr("Saved"));
    emit configChange();
    if (!later.isEmpty())
        userPrompts().showInformation(text::toHtml(tr("These options count from the next start on:")
                                                   + QLatin1Char('\n')
                                                   + later.join(QLatin1Char('\n'))));
}

void configWindow::commandClose(bool) { close(); }

void configWindow::closeEvent(QCloseEvent *event)
{
    for (myTreeView *view : m_views)
        view->finishEditing();
    if (isChanged()) {
        const prompts::answer answer =
            userPrompts().ask(tr("Save the changed configuration?"), true);
        if (answer == prompts::answer::yes)
            commandSave(false);
        if (answer == prompts::answer::cancel || (answer == prompts::answer::yes && isChanged())) {
            event->ignore();
            return;
        }
    }
    m_stack->clear();
    baseWindow::closeEvent(event);
}
