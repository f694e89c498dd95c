// Numbers as users type them: decimal comma or point, hexadecimal with "0x".
#pragma once

#include <QString>

#include <optional>

namespace numbers {

// Whether the text is a number: "0x" and hexadecimal digits, or a decimal number with a comma or a
// point. When it is none and errors is given, the HTML line "&nbsp;text&nbsp;is not a number<br>"
// is appended to it, so that callers collect the faults of many fields into one message.
bool check(const QString &text, QString *errors = nullptr);

// The value of such a text; 0 when it is no number.
double value(const QString &text);

// The value of a text that is a finite number; nothing for any other, "nan" and "inf" among them.
std::optional<double> finite(const QString &text);

// A stored price as people read it, with a point: as many decimals as it has, from two to six. A
// text that is no number stays as it is.
QString price(const QString &stored);
QString price(double amount);

// The shortest form with a point and at most six decimals: 2.5, 1000000.
QString plain(double value);

// A number with its thousands parted by no-break spaces, any other text as it is. For pages and
// windows; files have plain numbers.
QString grouped(const QString &number);

} // namespace numbers
