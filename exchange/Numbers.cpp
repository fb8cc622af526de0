#include "exchange/Numbers.h"

#include <charconv>
#include <cmath>

namespace exchange::Numbers {
namespace {
/// From here on a number is no longer written out, but with its power of ten.
constexpr double TooLong = 1e12;

template <class... Format> std::string Written(double number, Format... format) {
    char text[40];
    return {text, std::to_chars(text, text + sizeof text, number, format...).ptr};
}
} // namespace

std::string Whole(double number) {
    return std::abs(number) < TooLong ? std::to_string(std::llrint(number))
                                      : Written(number, std::chars_format::general, 3);
}

std::string Short(double number) {
    if (number == std::trunc(number))
        return Whole(number);
    auto shortened = Written(number, std::chars_format::fixed, 2);
    shortened.erase(shortened.find_last_not_of('0') + 1);
    if (shortened.back() == '.')
        shortened.pop_back();
    return shortened == "-0" ? "0" : shortened;
}

std::string Counted(double number, const std::string& one) {
    return Short(number) + " " + one + (number == 1 ? "" : "s");
}

} // namespace exchange::Numbers
