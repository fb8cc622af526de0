#include "exchange/Numbers.h"

#include <charconv>
#include <cmath>

namespace exchange::Numbers {

std::string Whole(double number) {
    return std::to_string(std::llrint(number));
}

std::string Short(double number) {
    if (number == std::trunc(number))
        return Whole(number);
    char text[40];
    std::string shortened(
        text, std::to_chars(text, text + sizeof text, number, std::chars_format::fixed, 2).ptr);
    shortened.erase(shortened.find_last_not_of('0') + 1);
    if (shortened.back() == '.')
        shortened.pop_back();
    return shortened == "-0" ? "0" : shortened;
}

std::string Counted(double number, const std::string& one) {
    return Short(number) + " " + one + (number == 1 ? "" : "s");
}

} // namespace exchange::Numbers
