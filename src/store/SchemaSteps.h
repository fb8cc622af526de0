#pragma once

#include "store/Schema.h"

/// The statements of every version, step n (from 0) from version n to n + 1.
std::span<const Schema::Step> SchemaSteps();
