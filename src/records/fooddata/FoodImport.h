#pragma once

#include "records/fooddata/FdcDownload.h"
#include "records/fooddata/FoodFilter.h"
#include "records/fooddata/FoodTally.h"

class RecordsFolder;

/// Brings the foods of a folder into a person's own foods: of a FoodData Central download or of a
/// USDA release.
namespace FoodImport {
struct Options {
    QString folder;
    FoodFilter filter;
    bool dryRun = false; ///< the records do not change
    FdcDownload::Step step = {};
};

/// Everything in one change. Fails if the folder holds neither, or a file cannot be read; then
/// nothing has changed.
FoodTally Run(const RecordsFolder& records, const Options& options);
} // namespace FoodImport
