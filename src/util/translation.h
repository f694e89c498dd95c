// The languages of the program: English in the sources, Polish from the catalogue, and a small
// English catalogue for plural forms and captions made of keys.
#pragma once

#include <QStringList>

namespace translation {

// "pl" and "en".
const QStringList &languages();

// Installs the catalogues of a language in the application, replacing those installed before.
// False when the program carries none for it; texts then show in English.
bool install(const QString &language);

// The language installed last; of the environment before.
QString current();

// The language of the environment when the program has it, else "en".
QString ofEnvironment();

} // namespace translation
