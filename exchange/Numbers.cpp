#include "exchange/Numbers.h"

#include <cmath>
#include <cstdio>

namespace exchange::Numbers {

std::string Whole(double number) {
    char text[40];
    std::snprintf(text, sizeof text, "%.0f", std::nearbyint(number) + 0.0);
    return text;
}

std::string Short(double number) {
    char text[40];
    std::snprintf(text, sizeof text, "%.2f", number);
    std::string shortened = text;
    shortened.erase(shortened.find_last_not_of('0') + 1);
    if (shortened.back() == '.')
        shortened.pop_back();
    return shortened == "-0" ? "0" : shortened;
}

} // namespace exchange::Numbers
