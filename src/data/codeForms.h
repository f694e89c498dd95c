// The forms of KTM and CPV codes as the schema gives them, compiled once: a database has tens of
// thousands of codes, and a validation of a file for each takes minutes.
#pragma once

#include <QString>

#include <optional>

namespace codeForms {

// Whether a value has the form of an element, "ktm" or "cpv", in the check document of a schema.
// False when the schema is missing or broken. Nothing when only the validation of such a document
// can tell: the schema gives the element more than plain patterns, or the value has characters that
// may not come through a file unchanged.
std::optional<bool> matches(const QString &element, const QString &value, const QString &xsdPath);

} // namespace codeForms
