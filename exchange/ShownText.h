#pragma once

#include <string>
#include <string_view>

namespace exchange {

/// A user's text as a page, a mail or a terminal shows it: without control characters, direction
/// overrides and invisible letters. The stored text stays as it was sent.
namespace ShownText {
/// One line of at most `most` letters; a longer one ends with three dots.
std::string Line(std::string_view text, size_t most);
/// The same, or "(no name)" if nothing of it is visible.
std::string Name(std::string_view text, size_t most);
/// Keeps line ends and tabs.
std::string Lines(std::string_view text);

inline constexpr size_t InList = 120; ///< letters of a text in a list, a subject or a title
inline constexpr size_t InCard = 400; ///< letters of a text on a recipe's own page and in its mail
} // namespace ShownText

} // namespace exchange
