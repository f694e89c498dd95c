#include "tree/richtexteditDialog.h"

#include "util/cleanHtml.h"
#include "util/prompts.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextFragment>
#include <QTextList>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

QIcon icon(const char *name)
{
    return QIcon(QStringLiteral(":/icons/icons/action_%1.png").arg(QLatin1String(name)));
}

QAction *add(QToolBar *bar, const char *name, const QString &text,
             const QKeySequence &shortcut = {})
{
    QAction *action = bar->addAction(icon(name), text);
    action->setObjectName(QLatin1String(name));
    if (!shortcut.isEmpty()) {
        action->setShortcut(shortcut);
        action->setToolTip(
            QStringLiteral("%1 (%2)").arg(text, shortcut.toString(QKeySequence::NativeText)));
    }
    return action;
}

} // namespace

richtexteditDialog::richtexteditDialog(QWidget *parent)
    : QDialog(parent)
    , m_edit(new QTextEdit(this))
{
    setWindowTitle(tr("Edit text"));
    auto *bar = new QToolBar(this);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    // Who presses the button means it.
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { done(Rejected); });
    m_edit->setObjectName(QStringLiteral("text"));
    m_edit->setAccessibleName(tr("Text"));
    m_edit->setTabChangesFocus(true);
    auto *layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);
    layout->addWidget(m_edit);
    layout->addWidget(buttons);
    buildToolBar(bar);
    connect(m_edit, &QTextEdit::currentCharFormatChanged, this, &richtexteditDialog::showFormat);
    m_edit->setFocus();
    constexpr QSize usualSize(640, 420);
    resize(usualSize);
}

void richtexteditDialog::buildToolBar(QToolBar *bar)
{
    constexpr int iconSize = 24;
    bar->setIconSize(QSize(iconSize, iconSize));
    connect(add(bar, "undo", tr("Undo"), QKeySequence::Undo), &QAction::triggered, m_edit,
            &QTextEdit::undo);
    connect(add(bar, "redo", tr("Redo"), QKeySequence::Redo), &QAction::triggered, m_edit,
            &QTextEdit::redo);
    bar->addSeparator();
    m_bold = add(bar, "bold", tr("Bold"), QKeySequence::Bold);
    m_italic = add(bar, "italic", tr("Italic"), QKeySequence::Italic);
    m_underline = add(bar, "underline", tr("Underline"), QKeySequence::Underline);
    for (QAction *action : {m_bold, m_italic, m_underline})
        action->setCheckable(true);
    connect(m_bold, &QAction::triggered, m_edit,
            [this](bool on) { m_edit->setFontWeight(on ? QFont::Bold : QFont::Normal); });
    connect(m_italic, &QAction::triggered, m_edit, &QTextEdit::setFontItalic);
    connect(m_underline, &QAction::triggered, m_edit, &QTextEdit::setFontUnderline);
    connect(add(bar, "colour", tr("Colour")), &QAction::triggered, this,
            &richtexteditDialog::chooseColour);
    bar->addSeparator();
    connect(add(bar, "list", tr("List")), &QAction::triggered, this,
            [this] { makeList(QTextListFormat::ListDisc); });
    connect(add(bar, "list_numbered", tr("Numbered list")), &QAction::triggered, this,
            [this] { makeList(QTextListFormat::ListDecimal); });
    bar->addSeparator();
    const auto align = [this](Qt::Alignment alignment) {
        return [this, alignment] { m_edit->setAlignment(alignment); };
    };
    connect(add(bar, "align_left", tr("Left")), &QAction::triggered, this, align(Qt::AlignLeft));
    connect(add(bar, "align_center", tr("Centre")), &QAction::triggered, this,
            align(Qt::AlignHCenter));
    connect(add(bar, "align_right", tr("Right")), &QAction::triggered, this, align(Qt::AlignRight));
    bar->addSeparator();
    connect(add(bar, "link", tr("Link"), QKeySequence(QStringLiteral("Ctrl+L"))),
            &QAction::triggered, this, &richtexteditDialog::editLink);
}

void richtexteditDialog::setHtml(const QString &html)
{
    m_given = html;
    m_edit->setHtml(cleanHtml(html));
    m_edit->document()->setModified(false);
}

QString richtexteditDialog::html() const
{
    return m_edit->document()->isModified() ? cleanHtml(m_edit->toHtml()) : m_given;
}

void richtexteditDialog::chooseColour()
{
    const QColor colour = QColorDialog::getColor(m_edit->textColor(), this, tr("Colour"));
    if (colour.isValid())
        m_edit->setTextColor(colour);
}

void richtexteditDialog::reject()
{
    if (!m_edit->document()->isModified()) {
        QDialog::reject();
        return;
    }
    switch (userPrompts().ask(tr("Keep the changes of the text?"), true)) {
    case prompts::answer::yes:
        accept();
        break;
    case prompts::answer::no:
        QDialog::reject();
        break;
    default:
        break;
    }
}

// The whole link that the cursor is in or beside, else what is selected.
QTextCursor richtexteditDialog::linkAtCursor() const
{
    QTextCursor cursor = m_edit->textCursor();
    if (cursor.hasSelection())
        return cursor;
    // Parts of it may be bold.
    int from = -1;
    int to = -1;
    QString address;
    const QTextBlock block = cursor.block();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment part = it.fragment();
        const QString itsAddress = part.charFormat().anchorHref();
        if (itsAddress.isEmpty() || itsAddress != address) {
            if (from >= 0 && to >= cursor.position())
                break;
            address = itsAddress;
            from = address.isEmpty() ? -1 : part.position();
        }
        to = part.position() + part.length();
        if (from > cursor.position())
            return cursor;
    }
    if (from >= 0 && to >= cursor.position()) {
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
    }
    return cursor;
}

void richtexteditDialog::editLink()
{
    QTextCursor cursor = linkAtCursor();
    QTextCursor inside = cursor;
    inside.setPosition(qMin(cursor.selectionStart() + 1, cursor.selectionEnd()));
    const QString before = cursor.hasSelection() ? inside.charFormat().anchorHref() : QString();
    std::optional<QString> typed = before;
    QString address;
    do {
        typed = userPrompts().inputText(tr("Link"), tr("Address"), *typed);
        if (!typed)
            return;
        address = linkAddress(*typed);
        if (address.isEmpty() && !typed->trimmed().isEmpty())
            userPrompts().showError(tr("%1 is no address of a page, of mail or of a file server")
                                        .arg(typed->toHtmlEscaped()));
    } while (address.isEmpty() && !typed->trimmed().isEmpty());
    if (address.isEmpty() && before.isEmpty())
        return;
    QTextCharFormat format;
    format.setAnchor(!address.isEmpty());
    format.setAnchorHref(address);
    format.setFontUnderline(!address.isEmpty());
    if (!cursor.hasSelection())
        cursor.insertText(*typed, format);
    else
        cursor.mergeCharFormat(format);
}

void richtexteditDialog::makeList(int style)
{
    QTextCursor cursor = m_edit->textCursor();
    if (QTextList *list = cursor.currentList();
        list && list->format().style() == QTextListFormat::Style(style)) {
        QTextBlockFormat plain;
        plain.setIndent(0);
        list->remove(cursor.block());
        cursor.setBlockFormat(plain);
        return;
    }
    cursor.createList(QTextListFormat::Style(style));
}

void richtexteditDialog::showFormat()
{
    m_bold->setChecked(m_edit->fontWeight() >= QFont::Bold);
    m_italic->setChecked(m_edit->fontItalic());
    m_underline->setChecked(m_edit->fontUnderline());
}
