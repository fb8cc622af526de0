#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

std::string Trimmed(std::string_view text);
std::string Upper(std::string_view text); ///< A to Z only
std::string Lower(std::string_view text); ///< A to Z only
std::string Join(const std::vector<std::string>& parts, std::string_view between);
std::vector<std::string> SplitWords(std::string_view text, std::string_view separators);
void ReplaceAll(std::string& text, std::string_view what, std::string_view with);

/// A number of decimal digits only, from least to most; nothing for any other text.
std::optional<int> WholeNumber(std::string_view text, int least, int most);

struct Letter {
    char32_t code;
    size_t size; ///< in bytes
};
/// The letter that a text in UTF-8 begins with; nothing at its end or if no letter stands there.
std::optional<Letter> FirstLetter(std::string_view text);
bool IsUtf8(std::string_view text);

/// Whether the text, which is UTF-8, has no control characters except the allowed ones.
bool IsPlain(std::string_view text, std::string_view allowed = {});

} // namespace exchange
