#pragma once

#include <QString>

#include <exception>

/// Reports a failed start: one line on standard error names the step and the reason. Above number
/// 400 a message box follows, then the process ends; other failures end in silence. What only the
/// user can decide has its own message: a journal that does not fit its file, records that a
/// command is changing, and a missing or damaged file that is in a snapshot.
namespace StartFailure {
/// The page for a newer program.
inline constexpr auto DownloadPage = "https://www.brindlewick.example/halvane/download";

void Report(const std::exception& error, const QString& step);
} // namespace StartFailure
