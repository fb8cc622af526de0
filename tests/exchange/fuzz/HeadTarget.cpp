#include "fuzz/Target.h"

#include "exchange/RequestHead.h"

/// A head is refused or taken; what is taken has a path, and a body within the limit.
void Fuzz(const std::string& bytes) {
    constexpr std::uint64_t largestBody = 1 << 20;
    const auto size = exchange::RequestHead::SizeIn(bytes);
    Expect(size <= bytes.size() && size <= exchange::RequestHead::Largest);
    const auto head = exchange::RequestHead::Read(bytes.substr(0, size), largestBody);
    if (head.status != 0)
        return;
    Expect(head.request.path.starts_with('/') && head.bodyLength <= largestBody);
    Expect(head.request.Header("transfer-encoding").empty());
}
