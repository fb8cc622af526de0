#pragma once

#include "commands/CommandOutline.h"

/// The help of a command, in lines that fit on a terminal.
namespace HelpText {
/// `name` is that of a command of the outline: "foods import"; empty for the program itself.
std::string Of(const std::vector<CommandOutline>& outline, const std::string& name);
} // namespace HelpText
