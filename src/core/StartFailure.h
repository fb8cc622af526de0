#pragma once

#include <QString>

#include <exception>

/// How a start that has failed ends: one line on standard error that says which file and why, and
/// above number 400 a message box, after which the process ends. All others end in silence.
/// A journal that does not fit its file gets a message of its own: which files to set aside.
namespace StartFailure {
/// Where the message sends the person for a newer program.
inline constexpr auto downloadPage = "https://www.brindlewick.example/halvane/download";

void Report(const std::exception& error, const QString& file);
} // namespace StartFailure
