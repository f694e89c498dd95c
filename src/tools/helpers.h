// Where the external helper programs are, and how an argument is written into their command text.
#pragma once

#include <QString>
#include <QStringList>

namespace helpers {

// The helpers that ship with the program, as the code names them.
inline const QLatin1String curl("_bin/curl.exe");
inline const QLatin1String pscp("_bin/pscp.exe");
inline const QLatin1String zip("_bin\\zip.exe");
inline const QLatin1String unzip("_bin\\unzip.exe");
inline const QLatin1String minisign("_bin/minisign.exe");
inline const QLatin1String htmlToDocPdf("KIV_HTML_TO_DOC_PDF.exe");
inline const QLatin1String templateDoc("KIV_TEMPLATE_DOC.exe");

QStringList all();

// The program that stands for a name such as "_bin/curl.exe" (either slash) or
// "KIV_TEMPLATE_DOC.exe": beside the program, else in "_bin/" there. An absolute path stands for
// itself. When nothing that can be run is there, the path where it was expected.
QString path(const QString &name);

// One argument in double quotes, with quotes of its own tripled, as QProcess::splitCommand() reads
// it. It arrives at the helper unchanged, except that an empty one does not arrive at all.
QString quoted(const QString &argument);

// The argument as it is where that arrives whole, quoted otherwise.
QString argument(const QString &text);

} // namespace helpers
