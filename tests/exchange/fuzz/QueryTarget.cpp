#include "fuzz/Target.h"

#include "exchange/Http.h"
#include "exchange/Target.h"
#include "exchange/Text.h"

/// A query is taken apart; each value is the same after it was written into a query again.
void Fuzz(const std::string& bytes) {
    exchange::Request request;
    exchange::Target::Read("/?" + bytes, request);
    std::string written;
    for (const auto& [name, value] : request.params)
        written += exchange::Target::Encoded(name) + "=" + exchange::Target::Encoded(value) + "&";
    exchange::Request again;
    exchange::Target::ReadParams(written, again);
    Expect(again.params == request.params);
    const auto number = exchange::WholeNumber(bytes, 2, 0x7fffffff);
    Expect(!number || *number >= 2);
}
