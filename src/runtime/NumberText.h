#pragma once

#include <QByteArray>
#include <QStringView>

/// How numbers are read in every locale: sign, digits, a point, an exponent.
namespace NumberText {
/// Length of the number at the start of the text; 0 if there is none. An exponent without digits
/// does not count.
qsizetype LeadingLength(QStringView text);

/// The value of a text that is entirely a number; infinity if it is too large for a double.
double Value(QStringView number);
} // namespace NumberText
