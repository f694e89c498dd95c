// The lines of the log and errors windows: a text, its subject in bold, a reason in brackets.
// Subjects and reasons are plain text and are escaped here.
#pragma once

#include <QString>

namespace messages {

// The texts that such lines begin with, in the user's language.
QString openFile();
QString saveFile();
QString printToFile();
QString fileCorrupted();
QString fileInvalid();
QString createDefaultFile();
QString temporaryFolderError();

// Result words.
QString ok();
QString error();
QString notExists();

// text<b>subject</b> [reason]<br>: what was done, for the log.
QString done(const QString &text, const QString &subject, const QString &reason);

// text<b>subject</b>&nbsp;[reason]<br>: a failure; the brackets only when there is a reason.
QString failed(const QString &text, const QString &subject, const QString &reason = {});

// "text: why the file could not be written"; the text alone when nothing stands in the way now.
QString because(const QString &text, const QString &path);

// For a box: "The file %1 cannot be written", and why on the next line. Without a reason it is
// looked for.
QString notWritten(const QString &path, const QString &reason = {});

// text&nbsp;[subject]<br>: what came of the line before.
QString consequence(const QString &text, const QString &subject);

} // namespace messages
