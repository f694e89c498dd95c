#include "window/dialogPrompts.h"

#include "util/labels.h"
#include "window/messageWindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace {

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

prompts::answer dialogPrompts::ask(const QString &html, bool withCancel)
{
    box question(titleOf(QT_TRANSLATE_NOOP("prompts", "Asking")), html);
    question.setIcon(QMessageBox::Question);
    const QPushButton *yes = question.addButton(labels::yes(), QMessageBox::YesRole);
    QPushButton *no = question.addButton(labels::no(), QMessageBox::NoRole);
    QPushButton *cancel =
        withCancel ? question.addButton(labels::cancel(), QMessageBox::RejectRole) : nullptr;
    question.setEscapeButton(withCancel ? cancel : no);
    question.exec();
    if (question.clickedButton() == yes)
        return answer::yes;
    return withCancel && question.clickedButton() == cancel ? answer::cancel : answer::no;
}

QString dialogPrompts::openFile(const QString &title, const QString &directory,
                                const QString &filter)
{
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), title, directory, filter);
}

QString dialogPrompts::saveFile(const QString &title, const QString &proposed,
                                const QString &filter)
{
    return QFileDialog::getSaveFileName(QApplication::activeWindow(), title, proposed, filter);
}

void dialogPrompts::log(const QString &html) { logWindow::instance().append(html); }

void dialogPrompts::listError(const QString &html) { errorsWindow::instance().append(html); }

void dialogPrompts::showErrors()
{
    if (!errorsWindow::instance().text().isEmpty())
        errorsWindow::instance().showNow();
}
