#pragma once

#include <string>

namespace exchange {

/// The files of exchange/pages and the logo, compiled in; Assets.cpp is made by the build.
namespace Assets {
extern const std::string layout;
extern const std::string front;
extern const std::string community;
extern const std::string recipe;
extern const std::string report;
extern const std::string nomail;
extern const std::string problem;
extern const std::string style;
extern const std::string logo;
} // namespace Assets

} // namespace exchange
