#include "exchange/RequestFrame.h"

#include "exchange/Text.h"

#include <algorithm>
#include <charconv>

namespace exchange {
namespace {
constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view HeadEnd = "\r\n\r\n";

bool IsName(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(),
                                        [](char c) { return c > ' ' && c < 0x7f && c != ':'; });
}

/// Headers that change how a body or a reply is carried, and what they are answered with.
struct Unwanted {
    std::string_view name;
    int status;
};
constexpr Unwanted NotTaken[] = {
    {"transfer-encoding", 411}, {"content-encoding", 415}, {"expect", 417}, {"upgrade", 400}};
} // namespace

RequestFrame::RequestFrame(std::string_view arrived, size_t largestBody)
    : arrived_(arrived)
    , largestBody_(largestBody) {
    const auto end = arrived_.substr(0, LargestHead).find(HeadEnd);
    if (end == std::string_view::npos) {
        if (arrived_.size() >= LargestHead)
            Refuse(431);
        return;
    }
    head_ = end + HeadEnd.size();
    ReadHead();
    if (state_ != Is::Refused && arrived_.size() >= Size())
        state_ = Is::Whole;
}

void RequestFrame::Refuse(int status) {
    state_ = Is::Refused;
    status_ = status;
}

void RequestFrame::ReadHead() {
    auto rest = Head();
    const auto first = rest.find(LineEnd);
    if (!IsPlain(rest.substr(0, first)))
        return Refuse(400);
    rest.remove_prefix(first + LineEnd.size());
    while (state_ != Is::Refused && rest != LineEnd) {
        const auto end = rest.find(LineEnd);
        ReadLine(rest.substr(0, end));
        rest.remove_prefix(end + LineEnd.size());
    }
}

void RequestFrame::ReadLine(std::string_view line) {
    const auto colon = line.find(':');
    if (colon == std::string_view::npos || !IsName(line.substr(0, colon)) || !IsPlain(line, "\t"))
        return Refuse(400);
    const auto name = Lower(line.substr(0, colon));
    for (const auto& unwanted : NotTaken)
        if (name == unwanted.name)
            return Refuse(unwanted.status);
    if (name == "content-length")
        ReadLength(line.substr(colon + 1));
}

void RequestFrame::ReadLength(std::string_view value) {
    const auto digits = Trimmed(value);
    const auto* end = digits.data() + digits.size();
    const bool onlyDigits = !digits.empty() && digits[0] >= '0' && digits[0] <= '9';
    const auto [stop, error] = std::from_chars(digits.data(), end, body_);
    if (hasLength_ || !onlyDigits || stop != end || error == std::errc::invalid_argument)
        return Refuse(400);
    if (error == std::errc::result_out_of_range || body_ > largestBody_)
        return Refuse(413);
    hasLength_ = true;
}

} // namespace exchange
