#include "database/bulkEditDialog.h"

#include "data/kiv_mat_firmStruct.h"
#include "database/bulkPreview.h"
#include "database/templateLine.h"
#include "tree/refusal.h"
#include "util/labels.h"
#include "util/paths.h"
#include "window/searchableBox.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTimer>
#include <QToolTip>

using bulkEdit::request;

namespace {

constexpr const char *settingsGroup = "bulkEditDialog";
constexpr const char *templatesKey = "templates";
constexpr const char *geometryKey = "geometry";

// What can be done, in the order offered. The status is a field as any other, and wanted often.
struct offeredKind
{
    request::requestKind kind;
    const char *text;
    const char *fieldName;
};
const offeredKind offeredKinds[] = {
    {request::set, QT_TRANSLATE_NOOP("bulkEditDialog", "Set a field"), nullptr},
    {request::replace, QT_TRANSLATE_NOOP("bulkEditDialog", "Replace text in a field"), nullptr},
    {request::paste, QT_TRANSLATE_NOOP("bulkEditDialog", "Paste a column into a field"), nullptr},
    {request::compose, QT_TRANSLATE_NOOP("bulkEditDialog", "Compose a field from others"), nullptr},
    {request::set, QT_TRANSLATE_NOOP("bulkEditDialog", "Mark the status"), "status"},
    {request::toGroup, QT_TRANSLATE_NOOP("bulkEditDialog", "Move to another group"), nullptr},
    {request::addMaker, QT_TRANSLATE_NOOP("bulkEditDialog", "Add a manufacturer"), nullptr},
    {request::addSupplier, QT_TRANSLATE_NOOP("bulkEditDialog", "Add a supplier"), nullptr},
};

template <class List>
QStringList firmNames(const List &firms)
{
    QStringList names;
    for (const auto &firm : firms.items)
        if (!firm->name.trimmed().isEmpty())
            names.append(firm->name);
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}

} // namespace

// --- Construction
// ---------------------------------------------------------------------------------

bulkEditDialog::bulkEditDialog(source from, const QString &fieldName, QWidget *parent)
    : QDialog(parent)
    , m_from(std::move(from))
    , m_delay(new QTimer(this))
    , m_form(new QGridLayout)
    , m_selected(new QRadioButton(this))
    , m_shown(new QRadioButton(this))
    , m_kind(new QComboBox(this))
    , m_field(new QComboBox(this))
    , m_value(new QComboBox(this))
    , m_searched(new QLineEdit(this))
    , m_with(new QLineEdit(this))
    , m_isPattern(new QCheckBox(tr("&Pattern (regular expression)"), this))
    , m_matchCase(new QCheckBox(tr("&Match case"), this))
    , m_lines(new QPlainTextEdit(this))
    , m_template(new QComboBox(this))
    , m_templateLine(new templateLine(m_template, m_template))
    , m_keep(new QPushButton(this))
    , m_group(new searchableBox(this))
    , m_firm(new searchableBox(this))
    , m_partNumber(new templateLine(this))
    , m_counts(new QLabel(this))
    , m_preview(new bulkPreview(this))
    , m_view(new tickingView(this))
    , m_buttons(new QDialogButtonBox(this))
    , m_change(m_buttons->addButton(tr("&Change"), QDialogButtonBox::AcceptRole))
    , m_all(m_buttons->addButton(tr("Mark &all"), QDialogButtonBox::ActionRole))
    , m_none(m_buttons->addButton(tr("Mark &none"), QDialogButtonBox::ActionRole))
{
    setObjectName(QStringLiteral("bulkEditDialog"));
    setWindowTitle(tr("Change selected materials"));
    constexpr int delayMs = 150;
    m_delay->setSingleShot(true);
    m_delay->setInterval(delayMs);
    connect(m_delay, &QTimer::timeout, this, &bulkEditDialog::preview);
    buildWidgets(fieldName);
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    settings.beginGroup(QLatin1String(settingsGroup));
    constexpr QSize usualSize(1000, 680);
    resize(usualSize);
    restoreGeometry(settings.value(QLatin1String(geometryKey)).toByteArray());
    kindChosen();
    m_value->setFocus();
}

void bulkEditDialog::addRow(const QString &caption, QWidget *widget, const char *name,
                            std::initializer_list<request::requestKind> kinds)
{
    widget->setObjectName(QLatin1String(name));
    if (widget->accessibleName().isEmpty())
        widget->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    // Rows that are hidden leave no gaps, as they would in a form.
    auto *label = new QLabel(caption, this);
    label->setBuddy(widget);
    const int row = int(m_rows.size());
    m_form->addWidget(label, row, 0);
    m_form->addWidget(widget, row, 1);
    m_rows.push_back({label, widget, kinds});
}

// The radio buttons that say which materials.
QWidget *bulkEditDialog::addMaterials()
{
    auto *box = new QWidget(this);
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    m_selected->setText(tr("S&elected (%1)").arg(m_from.selected.size()));
    m_selected->setObjectName(QStringLiteral("selected"));
    m_selected->setEnabled(!m_from.selected.empty());
    m_shown->setText((m_from.isFiltered ? tr("All that the search s&hows (%1)") : tr("A&ll (%1)"))
                         .arg(m_from.shown.size()));
    m_shown->setObjectName(QStringLiteral("shown"));
    (m_from.selected.empty() ? m_shown : m_selected)->setChecked(true);
    for (QRadioButton *button : {m_selected, m_shown}) {
        layout->addWidget(button);
        connect(button, &QRadioButton::toggled, this, &bulkEditDialog::preview);
    }
    layout->addStretch();
    return box;
}

// The kept templates, and what keeps one.
QWidget *bulkEditDialog::addTemplates()
{
    auto *box = new QWidget(this);
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    m_template->setObjectName(QStringLiteral("template"));
    m_template->setEditable(true);
    m_template->setInsertPolicy(QComboBox::NoInsert);
    m_template->setLineEdit(m_templateLine);
    m_template->setCompleter(nullptr); // the line has its own
    m_template->setAccessibleName(tr("Template"));
    m_template->lineEdit()->setPlaceholderText(QStringLiteral("{value} {case}"));
    m_keep->setObjectName(QStringLiteral("keep"));
    m_keep->setAutoDefault(false);
    connect(m_keep, &QPushButton::clicked, this, &bulkEditDialog::keepOrForget);
    layout->addWidget(m_template, 1);
    layout->addWidget(m_keep);
    box->setFocusProxy(m_template);
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    settings.beginGroup(QLatin1String(settingsGroup));
    m_template->addItems(settings.value(QLatin1String(templatesKey)).toStringList());
    m_template->setCurrentIndex(-1);
    return box;
}

void bulkEditDialog::buildWidgets(const QString &fieldName)
{
    const auto ofField = {request::set, request::replace, request::paste, request::compose};
    addRow(tr("Materials:"), addMaterials(), "materials", {});
    for (const offeredKind &offered : offeredKinds)
        m_kind->addItem(tr(offered.text));
    addRow(tr("Wha&t to do:"), m_kind, "kind", {});
    for (const bulkEdit::field &one : bulkEdit::fields()) {
        m_field->addItem(one.caption());
        if (one.name == fieldName)
            m_field->setCurrentIndex(m_field->count() - 1);
    }
    addRow(tr("&Field:"), m_field, "field", ofField);
    m_value->setInsertPolicy(QComboBox::NoInsert);
    addRow(tr("&Value:"), m_value, "value", {request::set});
    addRow(tr("&Replace:"), m_searched, "searched", {request::replace});
    addRow(tr("&With:"), m_with, "with", {request::replace});
    auto *options = new QWidget(this);
    auto *optionsLayout = new QHBoxLayout(options);
    optionsLayout->setContentsMargins(0, 0, 0, 0);
    m_isPattern->setObjectName(QStringLiteral("isPattern"));
    m_isPattern->setToolTip(tr("[0-9]+ finds digits, (...) keeps what it found; in the new text "
                               "$1 is what the first bracket found"));
    m_matchCase->setObjectName(QStringLiteral("matchCase"));
    m_matchCase->setChecked(true);
    optionsLayout->addWidget(m_isPattern);
    optionsLayout->addWidget(m_matchCase);
    optionsLayout->addStretch();
    addRow({}, options, "options", {request::replace});
    m_lines->setTabChangesFocus(true);
    m_lines->setPlaceholderText(
        tr("A line for each material, or lines of KTM, tab and text; Ctrl+V pastes them"));
    constexpr int linesHeight = 110;
    m_lines->setMaximumHeight(linesHeight);
    addRow(tr("L&ines:"), m_lines, "lines", {request::paste});
    addRow(tr("Tem&plate:"), addTemplates(), "templateBox", {request::compose});
    for (const auto &group : m_from.database.groups)
        m_group->addItem(group->name);
    m_group->setCurrentIndex(-1);
    addRow(tr("&Group:"), m_group, "group", {request::toGroup});
    addRow(tr("&Firm:"), m_firm, "firm", {request::addMaker, request::addSupplier});
    m_partNumber->setPlaceholderText(
        tr("empty, or a template such as %1").arg(QLatin1String("{part}")));
    addRow(tr("&Part no:"), m_partNumber, "partNumber", {request::addMaker, request::addSupplier});

    m_counts->setObjectName(QStringLiteral("counts"));
    m_counts->setWordWrap(true);
    m_counts->setTextFormat(Qt::PlainText);
    m_view->setObjectName(QStringLiteral("preview"));
    m_view->setAccessibleName(tr("Preview"));
    m_view->setModel(m_preview);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    constexpr int iconPixels = 16;
    m_view->setIconSize({iconPixels, iconPixels});
    constexpr int widths[] = {190, 220, 220, 220};
    for (int column = 0; column < int(std::size(widths)); ++column)
        m_view->header()->resizeSection(column, widths[column]);

    m_change->setObjectName(QStringLiteral("change"));
    m_change->setDefault(true);
    m_buttons->addButton(QDialogButtonBox::Cancel)->setAutoDefault(false);
    m_all->setObjectName(QStringLiteral("markAll"));
    m_none->setObjectName(QStringLiteral("markNone"));
    for (QPushButton *button : {m_all, m_none}) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, button] { m_preview->markAll(button == m_all); });
    }
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(m_form);
    layout->addWidget(m_counts);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_buttons);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &bulkEditDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_kind, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &bulkEditDialog::kindChosen);
    connect(m_field, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &bulkEditDialog::targetChosen);
    for (QComboBox *box : std::initializer_list<QComboBox *>{m_value, m_template, m_group, m_firm})
        connect(box, &QComboBox::currentTextChanged, this, &bulkEditDialog::previewSoon);
    for (QLineEdit *line : {m_searched, m_with, static_cast<QLineEdit *>(m_partNumber)})
        connect(line, &QLineEdit::textChanged, this, &bulkEditDialog::previewSoon);
    connect(m_lines, &QPlainTextEdit::textChanged, this, &bulkEditDialog::previewSoon);
    for (QCheckBox *box : {m_isPattern, m_matchCase})
        connect(box, &QCheckBox::toggled, this, &bulkEditDialog::preview);
    connect(m_preview, &QAbstractItemModel::dataChanged, this, [this] { showCounts(); });
    // In the lines Return begins a new one.
    auto *go = new QAction(this);
    go->setShortcut(QKeySequence(QStringLiteral("Ctrl+Return")));
    connect(go, &QAction::triggered, this, &bulkEditDialog::accept);
    addAction(go);
}

// --- What is chosen
// -------------------------------------------------------------------------------

request::requestKind bulkEditDialog::kind() const
{
    return offeredKinds[m_kind->currentIndex()].kind;
}

const bulkEdit::field *bulkEditDialog::target() const
{
    if (const char *name = offeredKinds[m_kind->currentIndex()].fieldName)
        return bulkEdit::findField(QLatin1String(name));
    return kind() <= request::compose ? &bulkEdit::fields()[size_t(m_field->currentIndex())]
                                      : nullptr;
}

void bulkEditDialog::kindChosen()
{
    const bool isOneField = offeredKinds[m_kind->currentIndex()].fieldName;
    for (const auto &[caption, widget, kinds] : m_rows) {
        const bool isWanted = kinds.empty()
                              || (std::find(kinds.begin(), kinds.end(), kind()) != kinds.end()
                                  && !(isOneField && widget == m_field));
        caption->setVisible(isWanted);
        widget->setVisible(isWanted);
    }
    const QString clipboard = QApplication::clipboard()->text();
    if (kind() == request::paste && m_lines->toPlainText().isEmpty()
        && clipboard.contains(QLatin1Char('\n')))
        m_lines->setPlainText(clipboard);
    if (kind() == request::addMaker || kind() == request::addSupplier) {
        m_firm->clear();
        m_firm->addItems(kind() == request::addMaker ? firmNames(m_from.firms.manufacturers)
                                                     : firmNames(m_from.firms.suppliers));
        m_firm->setCurrentIndex(-1);
    }
    targetChosen();
}

void bulkEditDialog::targetChosen()
{
    if (const bulkEdit::field *field = target(); field && kind() == request::set) {
        const bool isTyped = m_value->isEditable() && m_value->lineEdit()->isModified();
        const QString text = isTyped          ? m_value->currentText()
                             : m_from.current ? field->of(*m_from.current)
                                              : QString();
        m_value->clear();
        const bool isUnit = field->kind == bulkEdit::field::unit;
        for (const QString &word : isUnit ? labels::storedUnits() : field->words)
            m_value->addItem(labels::shown(word), word);
        m_value->setEditable(field->words.isEmpty());
        m_value->setCurrentIndex(-1);
        if (m_value->isEditable()) {
            m_value->setCompleter(nullptr);
            m_value->setEditText(isUnit ? labels::shown(text) : text);
            m_value->lineEdit()->setModified(isTyped);
            m_value->lineEdit()->selectAll();
        }
    }
    preview();
}

void bulkEditDialog::showKept()
{
    const bool isKept = m_template->findText(m_template->currentText()) >= 0;
    m_keep->setText(isKept ? tr("F&orget template") : tr("&Keep template"));
}

void bulkEditDialog::keepOrForget()
{
    const QString typed = m_template->currentText();
    const int place = m_template->findText(typed);
    if (place >= 0)
        m_template->removeItem(place);
    else
        m_template->addItem(typed);
    m_template->setEditText(typed);
    QStringList all;
    for (int i = 0; i < m_template->count(); ++i)
        all.append(m_template->itemText(i));
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    settings.beginGroup(QLatin1String(settingsGroup));
    settings.setValue(QLatin1String(templatesKey), all);
    showKept();
}

request bulkEditDialog::wanted() const
{
    request made;
    made.kind = kind();
    made.target = target();
    switch (made.kind) {
    case request::set:
        made.text =
            m_value->isEditable() ? m_value->currentText() : m_value->currentData().toString();
        break;
    case request::replace:
        made.text = m_searched->text();
        made.with = m_with->text();
        made.isPattern = m_isPattern->isChecked();
        made.matchCase = m_matchCase->isChecked();
        break;
    case request::paste:
        made.text = m_lines->toPlainText();
        break;
    case request::compose:
        made.text = m_template->currentText();
        break;
    case request::toGroup:
        made.text = m_group->currentText();
        break;
    case request::addMaker:
    case request::addSupplier:
        made.text = m_firm->currentText();
        made.with = m_partNumber->text();
        break;
    }
    return made;
}

// --- Preview
// --------------------------------------------------------------------------------------

QString bulkEditDialog::firmFault(const request &request) const
{
    return m_firm->findText(request.text, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0
               ? tr("The firm register has no such firm")
               : QString();
}

// Return is taken meanwhile: it makes the preview itself.
void bulkEditDialog::previewSoon()
{
    m_delay->start();
    m_change->setEnabled(true);
}

void bulkEditDialog::preview()
{
    m_delay->stop();
    const request made = wanted();
    bulkEdit::faults found = bulkEdit::faultsOf(made, m_from.database);
    if (found.text.isEmpty()
        && (made.kind == request::addMaker || made.kind == request::addSupplier))
        found.text = firmFault(made);
    // Nothing is emptied by mistake.
    const bool isUntouched = m_value->isEditable()
                                 ? made.text.isEmpty() && !m_value->lineEdit()->isModified()
                                 : m_value->currentIndex() < 0;
    if (made.kind == request::set && isUntouched)
        found.text = tr("Choose or type a value");
    if (made.kind == request::paste && made.text.isEmpty())
        found.text = tr("Paste the lines");
    bulkEdit::plan plan;
    plan.made = made;
    if (found.none()) {
        plan = bulkEdit::planOf(made, m_selected->isChecked() ? m_from.selected : m_from.shown,
                                m_from.known);
        // One reason for all of them is one of the text.
        if (plan.changes.empty() && !plan.refused.empty() && made.kind != request::paste
            && std::all_of(plan.refused.begin(), plan.refused.end(), [&](const auto &row) {
                   return row.refusal == plan.refused.front().refusal;
               }))
            found.text = plan.refused.front().refusal;
        else if (plan.changes.empty() && plan.refused.empty() && made.kind == request::replace)
            found.text = plan.note;
    }
    m_preview->show(std::move(plan));
    m_view->setColumnHidden(bulkPreview::reasonColumn, m_preview->plan().refused.empty());
    markFaults(found);
    showKept();
    m_keep->setEnabled(found.none());
    showCounts(found.text.isEmpty() ? found.with : found.text);
}

// Marks what was typed; what is still to be typed is told with the counts alone.
void bulkEditDialog::markFaults(const bulkEdit::faults &found)
{
    const auto markBox = [&](QComboBox *box, request::requestKind of, bool isUnfinished = false) {
        const bool isFault = kind() == of && !box->currentText().isEmpty() && !isUnfinished;
        refusal::mark(box, isFault ? found.text : QString(), box->lineEdit());
    };
    markBox(m_value, request::set);
    markBox(m_template, request::compose, m_templateLine->isOffering());
    markBox(m_group, request::toGroup, m_group->matches() > 0);
    markBox(m_firm, kind() == request::addMaker ? request::addMaker : request::addSupplier,
            m_firm->matches() > 0);
    const bool replaces = kind() == request::replace;
    refusal::mark(m_searched, replaces && !m_searched->text().isEmpty() ? found.text : QString());
    refusal::mark(m_with, replaces ? found.with : QString());
    refusal::mark(m_partNumber, replaces ? QString() : found.with);
    // The tool tip would cover what is typed in another field; the counts tell the fault, too.
    if (focusWidget() && !refusal::isMarked(focusWidget()))
        QToolTip::hideText();
}

void bulkEditDialog::showCounts(const QString &before)
{
    const bulkEdit::plan &plan = m_preview->plan();
    QStringList told;
    if (!before.isEmpty())
        told.append(before);
    if (!plan.changes.empty())
        told.append(tr("%n will change", nullptr, m_preview->markedCount()));
    if (plan.unchanged > 0)
        told.append(tr("%n stay(s) as they are", nullptr, plan.unchanged));
    if (!plan.refused.empty())
        told.append(tr("%n refused", nullptr, int(plan.refused.size())));
    if (!plan.note.isEmpty() && plan.note != before)
        told.append(plan.note);
    m_counts->setText(told.join(QLatin1String("; ")));
    m_change->setEnabled(m_preview->markedCount() > 0);
    m_all->setEnabled(!plan.changes.empty());
    m_none->setEnabled(!plan.changes.empty());
    m_change->setToolTip(m_change->isEnabled() ? QString() : tr("no material would change"));
}

// --- The end
// --------------------------------------------------------------------------------------

const bulkEdit::plan &bulkEditDialog::plan() const { return m_preview->plan(); }

void bulkEditDialog::accept()
{
    // Return may be quicker than the preview.
    if (m_delay->isActive())
        preview();
    m_chosen = m_preview->marked();
    if (m_chosen.empty())
        return;
    const bulkEdit::plan &made = m_preview->plan();
    if (made.made.target && made.made.target->kind == bulkEdit::field::ktm) {
        // A KTM may be one that a row left out keeps.
        std::vector<bulkEdit::row> some;
        for (int place : m_chosen)
            some.push_back(made.changes[size_t(place)]);
        std::vector<bulkEdit::row> taken = bulkEdit::takenKtms(some, m_from.known);
        if (!taken.empty()) {
            const int count = int(taken.size());
            m_preview->refuse(std::move(taken));
            m_view->setColumnHidden(bulkPreview::reasonColumn, false);
            showCounts(tr("Without the rows left out %n more cannot be changed", nullptr, count));
            return;
        }
    }
    QDialog::accept();
}

void bulkEditDialog::done(int result)
{
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    settings.beginGroup(QLatin1String(settingsGroup));
    settings.setValue(QLatin1String(geometryKey), saveGeometry());
    QDialog::done(result);
}
