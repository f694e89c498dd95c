#include "firm/firmDetailsDialog.h"

#include "data/basketForm.h"
#include "data/firmDetails.h"
#include "data/vocabulary.h"
#include "tree/refusal.h"
#include "util/labels.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/treeHint.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>

namespace {

// Two lines as an engineer would order them.
const std::vector<basketForm::values> &sampleLines()
{
    static const std::vector<basketForm::values> lines{
        {QStringLiteral("RC0603FR-0710KL"), QStringLiteral("250"),
         QStringLiteral("317111-00.01-00017"), QStringLiteral("Yageo"),
         QStringLiteral("10k 1% 0603"), QStringLiteral("R1, R2")},
        {QStringLiteral("STM32F103C8T6"), QStringLiteral("5"), QStringLiteral("317121-03.01-00001"),
         QStringLiteral("STMicroelectronics"), QStringLiteral("STM32F103C8T6"),
         QStringLiteral("U1")},
    };
    return lines;
}

QString separatorName(const QString &word)
{
    return word == QLatin1String("tab")         ? firmDetailsDialog::tr("Tab")
           : word == QLatin1String("semicolon") ? firmDetailsDialog::tr("Semicolon")
                                                : firmDetailsDialog::tr("Comma");
}

template <class Widget>
Widget *named(Widget *widget, const char *name, const QString &accessibleName)
{
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(accessibleName);
    return widget;
}

void goTo(QComboBox *box, const QString &word)
{
    const int place = box->findData(word);
    // What is stored and not offered stays as it is.
    if (place < 0)
        box->addItem(word, word);
    box->setCurrentIndex(place < 0 ? box->count() - 1 : place);
}

} // namespace

firmDetailsDialog::firmDetailsDialog(const firmDetailsStruct &details, storing store,
                                     QWidget *parent)
    : QDialog(parent)
    , m_details(details.copy())
    , m_store(std::move(store))
    , m_address(named(new QPlainTextEdit(this), "address", labels::address()))
    , m_email(named(new QLineEdit(this), "email", tr("E-mail")))
    , m_language(named(new QComboBox(this), "language", tr("Language")))
    , m_discount(named(new QLineEdit(this), "discount", tr("Discount, percent")))
{
    setObjectName(QStringLiteral("firmDetails"));
    setWindowTitle(tr("Details of %1").arg(details.name.simplified()));
    m_address->setTabChangesFocus(true);
    constexpr int addressHeight = 76;
    m_address->setMaximumHeight(addressHeight);
    m_address->setPlainText(details.address);
    m_email->setText(details.email);
    m_language->addItem(tr("not told"), QString());
    for (const char *code : {"pl", "en", "de", "cs", "fr", "it", "es", "nl", "sk", "zh"})
        m_language->addItem(QLatin1String(code) + QStringLiteral(" \u2013 ")
                                + QLocale(QLatin1String(code)).nativeLanguageName(),
                            QLatin1String(code));
    goTo(m_language, details.language);
    m_discount->setText(details.discount);
    // A text that was refused is another one as soon as it is changed.
    for (QLineEdit *line : {m_email, m_discount})
        connect(line, &QLineEdit::textEdited, this, [line] { refusal::mark(line, {}); });

    auto *form = new QFormLayout;
    const auto row = [this, form](const QString &text, QWidget *field) {
        auto *label = new QLabel(text, this);
        label->setBuddy(field);
        form->addRow(label, field);
    };
    row(tr("&Address"), m_address);
    row(tr("&E-mail"), m_email);
    row(tr("&Language of letters"), m_language);
    row(tr("&Discount, percent"), m_discount);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &firmDetailsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &firmDetailsDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(makeBasket(), 1);
    layout->addWidget(buttons);
    constexpr QSize usualSize(720, 680);
    resize(usualSize);
    showColumns(0);
    // Changed is what the user changed, not what the fields made of the texts.
    takeFields();
    m_before = m_details->copy();
    m_address->setFocus();
}

QWidget *firmDetailsDialog::makeBasket()
{
    auto *box = new QGroupBox(tr("Basket"), this);
    m_separator = named(new QComboBox(box), "separator", tr("Separator"));
    for (const QString &word : basketForm::separators())
        m_separator->addItem(separatorName(word), word);
    goTo(m_separator, m_details->separator);
    m_captions = named(new QCheckBox(tr("Caption l&ine first"), box), "captions", {});
    m_captions->setChecked(m_details->captions != statusWord::no);
    m_columns = named(new QListWidget(box), "columns", tr("Columns"));
    m_hint = treeHint::over(m_columns, QStringLiteral("columnsHint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setText(tr("Usual columns:\npart number, quantity,\nown reference"));
    m_kind = named(new QComboBox(box), "kind", tr("Content"));
    for (const basketForm::kind &of : basketForm::kinds())
        m_kind->addItem(of.label(), of.word);
    m_caption = named(new QLineEdit(box), "caption", tr("Caption"));
    m_text = named(new QLineEdit(box), "text", tr("Text"));

    const auto button = [box](const QString &text, const char *name) {
        auto *made = named(new QPushButton(text, box), name, {});
        made->setAutoDefault(false);
        return made;
    };
    QPushButton *ready = button(tr("&Ready columns"), "ready");
    auto *sets = new QMenu(ready);
    for (const QString &word : basketForm::separators())
        sets->addAction(tr("Part number, quantity, reference: %1").arg(separatorName(word)), this,
                        [this, word] { chooseReady(word); })
            ->setObjectName(QLatin1String("ready") + word.left(1).toUpper() + word.mid(1));
    ready->setMenu(sets);
    QPushButton *add = button(tr("Add colu&mn"), "add");
    m_remove = button(tr("Remo&ve"), "remove");
    m_up = button(tr("&Up"), "up");
    m_down = button(tr("Do&wn"), "down");
    connect(add, &QPushButton::clicked, this, &firmDetailsDialog::addColumn);
    connect(m_remove, &QPushButton::clicked, this, &firmDetailsDialog::removeColumn);
    connect(m_up, &QPushButton::clicked, this, [this] { moveColumn(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { moveColumn(1); });

    m_preview = named(new QPlainTextEdit(box), "preview", tr("Two lines as they are written"));
    m_preview->setReadOnly(true);
    m_preview->setTabChangesFocus(true);
    m_preview->setLineWrapMode(QPlainTextEdit::NoWrap);
    constexpr int previewHeight = 84;
    m_preview->setMaximumHeight(previewHeight);

    connect(m_columns, &QListWidget::currentRowChanged, this, &firmDetailsDialog::showColumn);
    connect(m_kind, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
        if (m_showing || !current())
            return;
        // A caption that nobody typed follows what stands in the column.
        const basketForm::kind *before = basketForm::kindOf(current()->kind);
        const basketForm::kind *now = basketForm::kindOf(m_kind->currentData().toString());
        if (before && now && m_caption->text() == before->caption)
            m_caption->setText(now->caption);
        takeColumn();
    });
    for (QLineEdit *line : {m_caption, m_text})
        connect(line, &QLineEdit::textEdited, this, &firmDetailsDialog::takeColumn);
    connect(m_separator, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &firmDetailsDialog::updatePreview);
    connect(m_captions, &QCheckBox::toggled, this, &firmDetailsDialog::updatePreview);

    auto *grid = new QGridLayout(box);
    const auto label = [box](const QString &text, QWidget *buddy) {
        auto *made = new QLabel(text, box);
        made->setBuddy(buddy);
        return made;
    };
    grid->addWidget(label(tr("&Separator"), m_separator), 0, 0);
    grid->addWidget(m_separator, 0, 1);
    grid->addWidget(m_captions, 0, 2, 1, 2);
    grid->addWidget(ready, 0, 4);
    grid->addWidget(m_columns, 1, 0, 5, 2);
    grid->addWidget(label(tr("Co&ntent"), m_kind), 1, 2);
    grid->addWidget(m_kind, 1, 3);
    grid->addWidget(label(tr("Ca&ption"), m_caption), 2, 2);
    grid->addWidget(m_caption, 2, 3);
    grid->addWidget(label(tr("&Text"), m_text), 3, 2);
    grid->addWidget(m_text, 3, 3);
    int place = 1;
    for (QPushButton *each : {add, m_remove, m_up, m_down})
        grid->addWidget(each, place++, 4);
    grid->setRowStretch(5, 1);
    grid->addWidget(m_preview, 6, 0, 1, 5);
    return box;
}

basketColumnStruct *firmDetailsDialog::current() const
{
    const int row = m_columns->currentRow();
    return row < 0 ? nullptr : m_details->basket.items[size_t(row)].get();
}

void firmDetailsDialog::showColumns(int current)
{
    {
        const QScopedValueRollback showing(m_showing, true);
        m_columns->clear();
        for (const auto &column : m_details->basket.items) {
            const basketForm::kind *of = basketForm::kindOf(column->kind);
            const QString what = of ? of->label() : column->kind;
            auto *item = new QListWidgetItem(
                column->caption.isEmpty() ? what
                                          : what + QStringLiteral(" \u2013 ") + column->caption,
                m_columns);
            item->setToolTip(text::toolTip(item->text()));
        }
        m_columns->setCurrentRow(std::min(current, m_columns->count() - 1));
        m_hint->setVisible(m_columns->count() == 0);
    }
    showColumn();
}

void firmDetailsDialog::showColumn()
{
    if (m_showing)
        return;
    const QScopedValueRollback showing(m_showing, true);
    const basketColumnStruct *column = current();
    const basketForm::kind *of = column ? basketForm::kindOf(column->kind) : nullptr;
    if (column)
        goTo(m_kind, column->kind);
    // What is being typed keeps its cursor.
    const auto show = [](QLineEdit *line, const QString &wanted) {
        if (line->text() != wanted)
            line->setText(wanted);
    };
    show(m_caption, column ? column->caption : QString());
    show(m_text, column ? column->text : QString());
    m_kind->setEnabled(column != nullptr);
    m_caption->setEnabled(column != nullptr);
    m_text->setEnabled(of && basketForm::hasOwnText(*of));
    m_text->setToolTip(m_text->isEnabled() ? QString() : tr("only of a column with a fixed text"));
    m_remove->setEnabled(column != nullptr);
    m_up->setEnabled(m_columns->currentRow() > 0);
    m_down->setEnabled(column && m_columns->currentRow() + 1 < m_columns->count());
    updatePreview();
}

void firmDetailsDialog::takeColumn()
{
    basketColumnStruct *column = current();
    if (m_showing || !column)
        return;
    column->kind = m_kind->currentData().toString();
    column->caption = text::storable(m_caption->text());
    column->text = text::storable(m_text->text());
    showColumns(m_columns->currentRow());
}

void firmDetailsDialog::addColumn()
{
    const basketForm::kind &of = basketForm::kinds().front();
    auto column = std::make_unique<basketColumnStruct>();
    column->kind = of.word;
    column->caption = of.caption;
    auto &columns = m_details->basket.items;
    const int place = m_columns->currentRow() + 1;
    columns.insert(columns.begin() + place, std::move(column));
    showColumns(place);
    m_kind->setFocus();
}

void firmDetailsDialog::removeColumn()
{
    const int row = m_columns->currentRow();
    auto &columns = m_details->basket.items;
    columns.erase(columns.begin() + row);
    showColumns(row);
    m_columns->setFocus();
}

void firmDetailsDialog::moveColumn(int by)
{
    const int row = m_columns->currentRow();
    auto &columns = m_details->basket.items;
    const int other = row + by;
    std::swap(columns[size_t(row)], columns[size_t(other)]);
    showColumns(row + by);
}

void firmDetailsDialog::chooseReady(const QString &separator)
{
    basketForm::setUsualColumns(m_details.get());
    goTo(m_separator, separator);
    showColumns(0);
}

void firmDetailsDialog::takeFields()
{
    m_details->address = text::storable(m_address->toPlainText());
    m_details->email = text::storable(m_email->text()).trimmed();
    m_details->language = m_language->currentData().toString();
    m_details->discount = text::storable(m_discount->text()).trimmed();
    m_details->separator = m_separator->currentData().toString();
    m_details->captions = m_captions->isChecked() ? statusWord::yes : statusWord::no;
}

void firmDetailsDialog::updatePreview()
{
    takeFields();
    QString shown = basketForm::text(*m_details, sampleLines());
    m_preview->setPlainText(shown.remove(QLatin1Char('\r')));
}

bool firmDetailsDialog::isChanged()
{
    takeFields();
    return !(*m_details == *m_before);
}

// Marks what cannot be stored and goes to the first of it.
bool firmDetailsDialog::markFaults()
{
    QLineEdit *first = nullptr;
    const auto check = [&first](QLineEdit *line, const QString &fault) {
        refusal::mark(line, fault);
        if (!fault.isEmpty() && !first)
            first = line;
    };
    check(m_email, firmDetails::emailFault(m_details->email));
    check(m_discount, firmDetails::discountFault(m_details->discount));
    if (!first)
        return true;
    first->setFocus();
    first->selectAll();
    refusal::tell(first);
    return false;
}

void firmDetailsDialog::accept()
{
    takeFields();
    if (markFaults() && (!isChanged() || m_store(*m_details)))
        QDialog::accept();
}

void firmDetailsDialog::reject()
{
    if (!isChanged()) {
        QDialog::reject();
        return;
    }
    const prompts::answer answer = userPrompts().ask(
        tr("Save the changed details of %1?").arg(m_details->name.toHtmlEscaped()), true);
    if (answer == prompts::answer::yes)
        accept();
    else if (answer == prompts::answer::no)
        QDialog::reject();
}
