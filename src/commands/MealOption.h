#pragma once

#include "commands/Command.h"

#include <string>

/// A meal on the command line: its name or the beginning of it, whatever the case.
namespace MealOption {
/// Adds an option, or an argument where the name has no dashes. It sets `meal` to the meal's place
/// in Meals::Names; `meal` must live as long as the command. Any other text is a usage error.
CommandOption Add(const Command& command, const std::string& name, int& meal,
                  const std::string& help);
} // namespace MealOption
