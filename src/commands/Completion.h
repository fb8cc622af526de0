#pragma once

#include "commands/CommandOutline.h"

/// What a shell offers when the tabulator key is pressed: commands, options and their values; where
/// there are none, files.
namespace Completion {
std::string ForBash(const std::vector<CommandOutline>& outline);
std::string ForZsh(const std::vector<CommandOutline>& outline);
} // namespace Completion
