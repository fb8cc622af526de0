#pragma once

#include <span>

class ucRadio;

/// Radios of which one is on. The group holds nothing: its owner keeps the radios.
namespace RadioGroup {
/// From here on, a click on one turns the others off.
void Join(std::span<ucRadio* const> radios);
void Select(std::span<ucRadio* const> radios, int chosen); ///< none if there is none of that number
int Selected(std::span<ucRadio* const> radios);            ///< -1 if none is
} // namespace RadioGroup
