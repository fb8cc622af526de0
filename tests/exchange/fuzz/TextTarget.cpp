#include "fuzz/Target.h"

#include "exchange/ShownText.h"
#include "exchange/StoredText.h"
#include "exchange/Text.h"

#include <string_view>

namespace {
bool HoldsControls(std::string_view text, std::string_view allowed) {
    return !exchange::IsPlain(text, allowed) || text.find("\xe2\x80\xae") != std::string_view::npos;
}
} // namespace

/// Every text comes back from its column, and what is shown of it cannot steer what shows it.
void Fuzz(const std::string& bytes) {
    const auto stored = exchange::StoredText::Of(bytes);
    Expect(exchange::StoredText::Read(stored) == bytes && stored.find('\0') == std::string::npos);
    exchange::StoredText::Read(bytes);
    const auto line = exchange::ShownText::Line(bytes, 20);
    Expect(exchange::IsUtf8(line) && !HoldsControls(line, ""));
    Expect(line.size() <= 4 * 20 + 3 && exchange::ShownText::Line(line, 100) == line);
    Expect(!exchange::ShownText::Name(bytes, 20).empty());
    const auto lines = exchange::ShownText::Lines(bytes);
    Expect(exchange::IsUtf8(lines) && !HoldsControls(lines, "\t\n") &&
           lines.size() <= bytes.size());
}
