#pragma once

#include "records/document/ImportReport.h"

/// Takes the staged weights into the open records. A person has one weight a day: the one that is
/// there stays.
namespace WeightMerge {
void Run(ImportReport& report);
} // namespace WeightMerge
