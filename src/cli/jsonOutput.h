// Answers for other programs: one JSON document on standard output. Its names are English in every
// language; docs/commandLine.md lists them.
#pragma once

#include <QCommandLineOption>
#include <QJsonObject>

namespace cli {

// The option --json.
QCommandLineOption jsonOption();

void printJson(const QJsonObject &answer);

// A stored text as a number when it is one, else as it is.
QJsonValue numberOrText(const QString &stored);

} // namespace cli
