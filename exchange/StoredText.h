#pragma once

#include <string>
#include <string_view>

namespace exchange {

/// A user's text as it is stored in a column. The databases do not keep U+0000 in every case, so it
/// is escaped with the byte 1, and so is that byte. Every other text is stored unchanged.
namespace StoredText {
std::string Of(std::string_view text);
std::string Read(std::string_view stored); ///< the text that `Of` was given
} // namespace StoredText

} // namespace exchange
