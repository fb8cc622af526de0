#pragma once

#include <QString>

#include <exception>

/// The texts for a failure. An exception other than RuntimeError means that memory has run out:
/// number 7.
namespace FailureText {
int Number(const std::exception& error);
QString Description(const std::exception& error);

/// "description (number)": for one line.
QString Short(const std::exception& error);

/// The message for an unhandled failure: what failed, and what the user can do.
QString Unhandled(const std::exception& error);
} // namespace FailureText
