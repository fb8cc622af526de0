#pragma once

#include <string>
#include <string_view>

namespace exchange {

/// The way in which a text of a person stands in a column. No database keeps the letter U+0000 in
/// every way in which we hand it over, so the byte 1 and a sign stand for it and for itself. Every
/// other text stands as it is.
namespace StoredText {
std::string Of(std::string_view text);
std::string Read(std::string_view stored); ///< the text that `Of` was given
} // namespace StoredText

} // namespace exchange
