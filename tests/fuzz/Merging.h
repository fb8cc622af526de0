#pragma once

#include "records/peers/Imported.h"

/// What must hold of all that was read from the files of another program.
namespace Merging {
/// Expects sound values, and that they come into records that are open just once.
void Check(Imported& imported);
} // namespace Merging
