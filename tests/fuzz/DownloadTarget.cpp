#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "foods/CustomFood.h"
#include "records/fooddata/FdcDownload.h"
#include "records/fooddata/FoodFilter.h"
#include "records/fooddata/FoodTally.h"
#include "runtime/Attempt.h"

#include <cmath>

namespace {
constexpr const char* Files[] = {
    "food.csv",         "nutrient.csv",       "food_category.csv",     "measure_unit.csv",
    "food_portion.csv", "sr_legacy_food.csv", "survey_fndds_food.csv", "branded_food.csv",
    "food_nutrient.csv"};

void ExpectSound(const QString&, const CustomFood& food) {
    Expect(!food.FirstProblem());
    for (const Nutrient id : CanonicalOrder())
        Expect(std::isfinite(food.amounts[id].value_or(0)) && food.amounts[id].value_or(0) >= 0);
}
} // namespace

/// The files of a download are refused, or each food of them is taken soundly or listed.
void Fuzz(const std::string& bytes) {
    const QByteArrayList parts = Scratch::Parts(bytes, std::size(Files));
    for (size_t i = 0; i < std::size(Files); ++i)
        Scratch::Write(QLatin1String(Files[i]), parts[qsizetype(i)]);
    FoodTally tally;
    Attempt([&] { FdcDownload(Scratch::Folder(), FoodFilter(), tally).Read(ExpectSound); });
    tally.RefusalTable();
}
