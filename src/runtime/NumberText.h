#pragma once

#include <QByteArray>
#include <QStringView>

/// The form in which numbers are read, whatever the locale: sign, digits, a point, an exponent.
namespace NumberText {
/// Length of the number that the text begins with; 0 where it begins with none.
/// An exponent without digits does not belong to the number.
qsizetype LeadingLength(QStringView text);

/// The value of a text that is wholly a number; an infinity where it is too large for a double.
double Value(QStringView number);
} // namespace NumberText
