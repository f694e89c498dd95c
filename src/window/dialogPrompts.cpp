#include "window/dialogPrompts.h"

#include "tree/countBox.h"
#include "tree/myCalendarWidget.h"
#include "tree/refusal.h"
#include "util/labels.h"
#include "util/text.h"
#include "util/typed.h"
#include "window/messageWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize calendarSize(260, 200);

QString titleOf(const char *text) { return QCoreApplication::translate("prompts", text); }

// A box over the active window; over the start-up picture when there is no window yet.
class box : public QMessageBox
{
public:
    box(const QString &title, const QString &html)
        : QMessageBox(QApplication::activeWindow())
    {
        setWindowTitle(title);
        setText(html);
        setTextFormat(Qt::RichText);
        setWindowIcon(QApplication::windowIcon());
        if (!parentWidget())
            setWindowFlag(Qt::WindowStaysOnTopHint);
    }

    void showPicture(const QString &name)
    {
        constexpr int size = 48;
        setIconPixmap(QIcon(QStringLiteral(":/icons/icons/%1.png").arg(name)).pixmap(size, size));
    }
};

bool mayReplace(const QString &path)
{
    box question(titleOf(QT_TRANSLATE_NOOP("prompts", "Asking")),
                 QCoreApplication::translate("prompts", "The file %1 exists already. Replace it?")
                     .arg(QDir::toNativeSeparators(path).toHtmlEscaped()));
    question.setIcon(QMessageBox::Warning);
    const QPushButton *yes = question.addButton(labels::yes(), QMessageBox::YesRole);
    QPushButton *no = question.addButton(labels::no(), QMessageBox::NoRole);
    question.setDefaultButton(no);
    question.setEscapeButton(no);
    question.exec();
    return question.clickedButton() == yes;
}

} // namespace

void dialogPrompts::showError(const QString &html)
{
    box message(titleOf(QT_TRANSLATE_NOOP("prompts", "Error")), html);
    message.showPicture(QStringLiteral("system_error_trans_128"));
    message.exec();
}

void dialogPrompts::showInformation(const QString &html)
{
    box message(titleOf(QT_TRANSLATE_NOOP("prompts", "Information")), html);
    message.setIcon(QMessageBox::Information);
    message.exec();
}

void dialogPrompts::showWarning(const QString &html)
{
    box message(titleOf(QT_TRANSLATE_NOOP("prompts", "Warning")), html);
    message.showPicture(QStringLiteral("system_error_trans_128"));
    message.exec();
}

prompts::answer dialogPrompts::ask(const QString &html, bool withCancel)
{
    box question(titleOf(QT_TRANSLATE_NOOP("prompts", "Asking")), html);
    question.setIcon(QMessageBox::Question);
    const QPushButton *yes = question.addButton(labels::yes(), QMessageBox::YesRole);
    const QPushButton *no = question.addButton(labels::no(), QMessageBox::NoRole);
    // Whoever closes the box without an answer has given none.
    QPushButton *cancel = question.addButton(labels::cancel(), QMessageBox::RejectRole);
    cancel->setVisible(withCancel);
    question.setEscapeButton(cancel);
    question.exec();
    if (question.clickedButton() == yes)
        return answer::yes;
    return question.clickedButton() == no ? answer::no : answer::cancel;
}

std::optional<int> dialogPrompts::decide(const QString &html, const QStringList &buttons,
                                         bool noneIsHarmless)
{
    box question(titleOf(QT_TRANSLATE_NOOP("prompts", "Asking")), html);
    question.setIcon(QMessageBox::Question);
    QList<QAbstractButton *> made;
    for (const QString &button : buttons)
        made.append(question.addButton(button, QMessageBox::ActionRole));
    QPushButton *cancel = question.addButton(labels::cancel(), QMessageBox::RejectRole);
    question.setEscapeButton(cancel);
    if (noneIsHarmless)
        question.setDefaultButton(cancel);
    question.exec();
    const int pressed = made.indexOf(question.clickedButton());
    return pressed < 0 ? std::nullopt : std::optional(pressed);
}

std::optional<QString> dialogPrompts::inputText(const QString &title, const QString &label,
                                                const QString &initial)
{
    bool accepted = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), title, label,
                                               QLineEdit::Normal, initial, &accepted);
    return accepted ? std::optional(text::storable(text)) : std::nullopt;
}

std::optional<prompts::password> dialogPrompts::inputPassword(const QString &title,
                                                              const QString &label)
{
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(title);
    auto *line = new QLineEdit(&dialog);
    line->setObjectName(QStringLiteral("password"));
    line->setAccessibleName(label);
    line->setEchoMode(QLineEdit::Password);
    auto *keep = new QCheckBox(
        titleOf(QT_TRANSLATE_NOOP("prompts", "&Keep it in the desktop's store of secrets")),
        &dialog);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    auto *caption = new QLabel(label, &dialog);
    caption->setTextFormat(Qt::PlainText);
    layout->addWidget(caption);
    layout->addWidget(line);
    layout->addWidget(keep);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return password{line->text(), keep->isChecked()};
}

std::optional<int> dialogPrompts::inputNumber(const QString &title, const QString &label,
                                              int initial, int minimum, int maximum)
{
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(title);
    auto *number = new countBox(&dialog, minimum, maximum, initial);
    number->setObjectName(QStringLiteral("number"));
    number->setAccessibleName(label);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, [&dialog, number] {
        if (number->count())
            dialog.accept();
    });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(label, &dialog));
    layout->addWidget(number);
    layout->addWidget(buttons);
    return dialog.exec() == QDialog::Accepted ? number->count() : std::nullopt;
}

std::optional<QDate> dialogPrompts::inputDate(const QString &title, const QDate &initial)
{
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(title);
    auto *calendar = new myCalendarWidget(&dialog);
    calendar->setObjectName(QStringLiteral("date"));
    calendar->setRange(QDate::currentDate(), QDate::currentDate().addYears(1));
    calendar->setSelectedDate(initial);
    calendar->setAccessibleName(title);
    calendar->hideButton();
    calendar->setMinimumSize(calendarSize);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, [&dialog, calendar] {
        const QString typed = calendar->typedText();
        const QDate today = QDate::currentDate();
        const QString fault = typed.isNull()
                                  ? QString()
                                  : typed::readDay(typed, today, today, today.addYears(1)).fault;
        refusal::mark(calendar, fault, calendar->line());
        if (fault.isEmpty())
            dialog.accept();
    });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(calendar);
    layout->addWidget(buttons);
    calendar->setFocus();
    return dialog.exec() == QDialog::Accepted ? std::optional(calendar->selectedDate())
                                              : std::nullopt;
}

std::optional<int> dialogPrompts::choose(const QString &title, const QString &label,
                                         const QStringList &texts, int initial)
{
    bool accepted = false;
    const QString text = QInputDialog::getItem(QApplication::activeWindow(), title, label, texts,
                                               initial, false, &accepted);
    return accepted ? std::optional(texts.indexOf(text)) : std::nullopt;
}

QString dialogPrompts::openFile(const QString &title, const QString &directory,
                                const QString &filter)
{
    // Del would offer to delete the file that is marked.
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), title, directory, filter,
                                        nullptr, QFileDialog::ReadOnly);
}

QString dialogPrompts::openFolder(const QString &title, const QString &directory)
{
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(), title, directory);
}

QString dialogPrompts::saveFile(const QString &title, const QString &proposed,
                                const QString &filter)
{
    const QFileInfo place(proposed);
    QFileDialog dialog(QApplication::activeWindow(), title, place.absolutePath(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(place.fileName());
    // The dialog would ask for the name as typed, and only some of them know the suffix by then.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    while (dialog.exec() == QDialog::Accepted) {
        const QString path =
            withSuffix(dialog.selectedFiles().value(0), dialog.selectedNameFilter(), filter);
        if (!QFileInfo::exists(path) || mayReplace(path))
            return path;
        dialog.selectFile(QFileInfo(path).fileName());
    }
    return {};
}

void dialogPrompts::log(const QString &html) { logWindow::instance().append(html); }

void dialogPrompts::listError(const QString &html) { errorsWindow::instance().append(html); }

void dialogPrompts::showErrors()
{
    if (errorsWindow::instance().hasNews())
        errorsWindow::instance().showNow();
}
