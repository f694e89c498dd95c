#include "dialogs/emailTempWindow.h"

#include "mail/mail.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/prompts.h"

emailTempWindow::emailTempWindow(QWidget *parent)
    : richtexteditDialog(parent)
{
    setObjectName(QStringLiteral("emailTempWindow"));
    setWindowTitle(tr("Message template"));
    setHtml(files::readText(mail::templatePath()));
}

void emailTempWindow::accept()
{
    const QString path = mail::templatePath();
    const QString edited = html();
    // Only a changed text comes without the frame of a page.
    if (edited != files::readText(path)
        && !files::writeText(path,
                             QLatin1String("<!DOCTYPE html>\n<html>\n<head><meta charset=\"UTF-8\">"
                                           "</head>\n<body>\n")
                                 + edited + QLatin1String("\n</body>\n</html>\n"))) {
        userPrompts().showError(messages::notWritten(path));
        return;
    }
    richtexteditDialog::accept();
}
