#pragma once

#include <QDate>

#include <string>

namespace CLI {
class App;
class Option;
} // namespace CLI

/// Days on the command line: "2026-03-02", "today" or "yesterday".
namespace DateOption {
QDate Of(const std::string& text); ///< fails (13) with a sentence for the user

/// Adds an option, or an argument where the name has no dashes. It sets `day`, which must live as
/// long as the command. A text that is no day is a usage error.
CLI::Option* Add(CLI::App& command, const std::string& name, QDate& day, const std::string& help);
} // namespace DateOption
