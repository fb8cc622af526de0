#pragma once

#include "exchange/Connection.h"

#include <span>

namespace exchange {

/// The steps of Schema, in their order. Each runs in a transaction of its own.
namespace SchemaSteps {
using Step = void (*)(Connection& connection);
std::span<const Step> All();
} // namespace SchemaSteps

} // namespace exchange
