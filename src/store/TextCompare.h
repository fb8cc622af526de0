#pragma once

#include <string_view>

/// Text comparison and LIKE of the store: case does not matter for any letter, not only A to Z.
/// All texts are UTF-8.
namespace TextCompare {
/// Less than, equal to or greater than 0. The order is that of the case-folded texts.
int Compare(std::string_view left, std::string_view right);
/// `%` stands for any run of characters, `_` for any one character.
bool Like(std::string_view pattern, std::string_view text);

/// Takes the next character off the text and gives it case-folded. A byte that is no UTF-8 counts
/// as a character of its own. The text must not be empty.
char32_t TakeFolded(std::string_view& text);
} // namespace TextCompare
