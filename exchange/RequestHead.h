#pragma once

#include "exchange/Http.h"

#include <cstdint>

namespace exchange {

/// What the head of a request says. Strict: whatever leaves two opinions about where the request
/// ends is refused.
struct RequestHead {
    static constexpr size_t Largest = size_t{16} * 1024;
    static constexpr size_t LongestTarget = size_t{8} * 1024;

    Request request; ///< without body and peer; of a refused one as much as was understood
    std::uint64_t bodyLength = 0;
    bool close = false; ///< the connection closes after the reply
    int status = 0;     ///< of the refusal; 0 if the head is understood

    /// The size of the head that the text begins with; 0 if it has not arrived as a whole.
    static size_t SizeIn(std::string_view arrived);
    static RequestHead Read(std::string_view head, std::uint64_t largestBody);
};

} // namespace exchange
