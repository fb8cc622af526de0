#pragma once

#include "commands/Command.h"

#include <QDate>

#include <string>

/// Days on the command line: "2026-03-02", "today" or "yesterday".
namespace DateOption {
QDate Of(const std::string& text); ///< fails (13) with a sentence for the user

/// Adds an option, or an argument where the name has no dashes. It sets `day`, which must live as
/// long as the command. A text that is no day is a usage error.
CommandOption Add(const Command& command, const std::string& name, QDate& day,
                  const std::string& help);
} // namespace DateOption
