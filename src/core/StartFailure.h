#pragma once

#include <QString>

#include <exception>

/// Reports a failed start: one line on standard error names the step and the reason. Above number
/// 400 a message box follows, then the process ends; other failures end in silence. A journal that
/// does not fit its file has its own message, which names the files to move.
namespace StartFailure {
/// The page for a newer program.
inline constexpr auto DownloadPage = "https://www.brindlewick.example/halvane/download";

void Report(const std::exception& error, const QString& step);
} // namespace StartFailure
