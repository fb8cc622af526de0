#pragma once

#include "store/Schema.h"

/// The statements of every schema version. Step n (from 0) leads from version n to n + 1.
std::span<const Schema::Step> SchemaSteps();
