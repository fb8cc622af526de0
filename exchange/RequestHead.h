#pragma once

#include "exchange/Http.h"

#include <cstdint>

namespace exchange {

/// The head of a request. Strict: a head is refused if two servers could disagree about where the
/// request ends.
struct RequestHead {
    static constexpr size_t Largest = size_t{16} * 1024;
    static constexpr size_t LongestTarget = size_t{8} * 1024;

    Request request; ///< without body and peer; of a refused one as much as was understood
    std::uint64_t bodyLength = 0;
    bool close = false; ///< the connection closes after the reply
    int status = 0;     ///< of the refusal; 0 if the head is understood

    /// The size of the head at the beginning of the text; 0 if it is not complete yet.
    static size_t SizeIn(std::string_view arrived);
    static RequestHead Read(std::string_view head, std::uint64_t largestBody);
};

} // namespace exchange
