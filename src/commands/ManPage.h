#pragma once

#include "commands/CommandOutline.h"

/// The page that `man halvane-data` shows, for section 1.
namespace ManPage {
std::string Of(const std::vector<CommandOutline>& outline);
} // namespace ManPage
