#pragma once

#include "exchange/Http.h"

namespace exchange {

/// The head of a reply, with what every reply has: its length, the date, and the headers that
/// forbid a browser everything except showing it.
namespace ReplyHead {
std::string Written(const Reply& reply, bool close);
std::string_view Phrase(int status); ///< the words for a status: "Not Found"
} // namespace ReplyHead

} // namespace exchange
