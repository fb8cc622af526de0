#pragma once

#include <string_view>

/// Text comparison and LIKE of the store. They ignore the case of all letters, not only A to Z.
/// Texts are UTF-8.
namespace TextCompare {
/// Less than, equal to or greater than 0, by the case-folded texts.
int Compare(std::string_view left, std::string_view right);
/// `%` stands for any run of characters, `_` for any one character.
bool Like(std::string_view pattern, std::string_view text);

/// Removes the first character of a text that is not empty, and returns it case-folded. A byte that
/// is not UTF-8 counts as a character.
char32_t TakeFolded(std::string_view& text);
} // namespace TextCompare
