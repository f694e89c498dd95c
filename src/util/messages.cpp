#include "util/messages.h"

#include "util/files.h"

#include <QCoreApplication>
#include <QDir>

// The texts stand as they are in lines whose subject follows at once; the catalogues of both
// languages end them with a blank.
#define MESSAGE(name, text)                                                                        \
    QString name() { return QCoreApplication::translate("log", text); }

namespace messages {

MESSAGE(openFile, QT_TRANSLATE_NOOP("log", "Open file"))
MESSAGE(saveFile, QT_TRANSLATE_NOOP("log", "Save file"))
MESSAGE(printToFile, QT_TRANSLATE_NOOP("log", "Print to file"))
MESSAGE(fileCorrupted, QT_TRANSLATE_NOOP("log", "File does not exist or corrupted"))
MESSAGE(fileInvalid, QT_TRANSLATE_NOOP("log", "File corrupted"))
MESSAGE(createDefaultFile, QT_TRANSLATE_NOOP("log", "Create default file"))
MESSAGE(temporaryFolderError, QT_TRANSLATE_NOOP("log", "Temporary folder error"))
MESSAGE(ok, QT_TRANSLATE_NOOP("log", "Ok"))
MESSAGE(error, QT_TRANSLATE_NOOP("log", "Error"))
MESSAGE(notExists, QT_TRANSLATE_NOOP("log", "Not exists"))

namespace {

QString bold(const QString &subject)
{
    return QLatin1String("<b>") + subject.toHtmlEscaped() + QLatin1String("</b>");
}

QString bracketed(const QString &reason)
{
    return QLatin1Char('[') + reason.toHtmlEscaped().replace(QChar::Nbsp, QLatin1String("&nbsp;"))
           + QLatin1Char(']');
}

} // namespace

QString done(const QString &text, const QString &subject, const QString &reason)
{
    return text + bold(subject) + QLatin1Char(' ') + bracketed(reason) + QLatin1String("<br>");
}

QString failed(const QString &text, const QString &subject, const QString &reason)
{
    return text + bold(subject)
           + (reason.isEmpty() ? QString() : QLatin1String("&nbsp;") + bracketed(reason))
           + QLatin1String("<br>");
}

QString because(const QString &text, const QString &path)
{
    const QString reason = files::whyNotWritten(path);
    return reason.isEmpty() ? text : text + QLatin1String(": ") + reason;
}

QString notWritten(const QString &path, const QString &reason)
{
    const QString text = QCoreApplication::translate("log", "The file %1 cannot be written")
                             .arg(QDir::toNativeSeparators(path).toHtmlEscaped());
    return reason.isEmpty() ? because(text, path)
                            : text + QLatin1String("<br>") + reason.toHtmlEscaped();
}

QString consequence(const QString &text, const QString &subject)
{
    return text + QLatin1String("&nbsp;") + bracketed(subject) + QLatin1String("<br>");
}

} // namespace messages
