#include "records/fooddata/FoodImport.h"

#include "foods/release/FoodRelease.h"
#include "records/RecordsChange.h"
#include "records/RecordsReading.h"
#include "records/fooddata/ImportedFoods.h"
#include "records/fooddata/ReleaseFoods.h"
#include "runtime/RuntimeError.h"

namespace {
using Options = FoodImport::Options;

void RequireFoods(const QString& folder) {
    if (!FdcDownload::IsIn(folder) && !FoodRelease::IsIn(folder))
        throw RuntimeError(ErrorNumber::FileNotFound,
                           u"There is neither food.csv nor ABBREV.txt in " + folder +
                               u". Unpack the download first, and name its folder.");
}

FoodTally Bring(const Options& options, ImportedFoods::Mode mode) {
    FoodTally tally;
    ImportedFoods own(mode, tally);
    const auto take = [&](const QString& number, const CustomFood& food) {
        own.Take(number, food);
    };
    if (FdcDownload::IsIn(options.folder))
        FdcDownload(options.folder, options.filter, tally).Read(take, options.step);
    else
        ReleaseFoods::Read(options.folder, options.filter, tally, take);
    return tally;
}
} // namespace

FoodTally FoodImport::Run(const RecordsFolder& records, const Options& options) {
    RequireFoods(options.folder);
    if (options.dryRun) {
        const RecordsReading reading(records);
        return Bring(options, ImportedFoods::Mode::CountOnly);
    }
    RecordsChange change(records, QStringLiteral("foods import"));
    const FoodTally tally = Bring(options, ImportedFoods::Mode::Write);
    change.Commit();
    return tally;
}
