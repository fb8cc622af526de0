#pragma once

#include <string>

namespace exchange {

/// The files of exchange/pages and the logo, compiled in; Assets.cpp is made by the build.
namespace Assets {
extern const std::string Layout;
extern const std::string Front;
extern const std::string Community;
extern const std::string Recipe;
extern const std::string Report;
extern const std::string Nomail;
extern const std::string Problem;
extern const std::string Style;
extern const std::string Logo;
} // namespace Assets

} // namespace exchange
