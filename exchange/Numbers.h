#pragma once

#include <optional>
#include <string>

namespace exchange {

/// Numbers as a person reads them.
namespace Numbers {
std::string Whole(double number); ///< rounded half to even, like the program's own card
std::string Short(double number); ///< at most two decimal places, without trailing zeros
std::string Counted(double number, const std::string& one); ///< "1 serving", "4 servings"
} // namespace Numbers

} // namespace exchange
