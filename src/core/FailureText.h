#pragma once

#include <QString>

#include <exception>

/// What the program says of a failure. A failure other than a RuntimeError (memory has run out)
/// counts as number 7.
namespace FailureText {
int Number(const std::exception& error);
QString Description(const std::exception& error);

/// "description (number)": for one line.
QString Short(const std::exception& error);

/// The message of a failure that nothing has handled: what it was, and what the person can do.
QString Unhandled(const std::exception& error);
} // namespace FailureText
