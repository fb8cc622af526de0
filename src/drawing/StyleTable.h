#pragma once

#include "drawing/Style.h"

/// The colours of all styles, side by side for each role.
namespace StyleTable {
/// Sets the kind and every colour of `style`, and the pens of the weight line.
void Colour(Style& style, StyleKind kind);
} // namespace StyleTable
