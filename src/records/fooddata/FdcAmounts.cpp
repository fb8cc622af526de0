#include "records/fooddata/FdcAmounts.h"

#include "records/fooddata/FdcTable.h"
#include "records/fooddata/FoodTally.h"

#include <algorithm>
#include <cmath>

namespace {
enum Column { FoodKey, NutrientKey, Amount };
constexpr int RowsInAStep = 10'000;
constexpr size_t Slots = FdcNutrients::SlotCount;
} // namespace

FdcAmounts::FdcAmounts(const QString& folder, std::span<const FdcFood> foods, FoodTally& tally,
                       const Step& step)
    : foods_(foods)
    , figures_(foods.size() * Slots, FdcNutrients::Unknown) {
    FdcTable table(
        folder, QStringLiteral("food_nutrient.csv"),
        {QStringLiteral("fdc_id"), QStringLiteral("nutrient_id"), QStringLiteral("amount")});
    while (table.Next()) {
        Read(table, tally);
        if (table.Line() % RowsInAStep == 0)
            step(table.Passed(), table.Size());
    }
}

FdcNutrients::Figures FdcAmounts::Of(size_t food) const {
    return FdcNutrients::Figures(figures_.data() + food * Slots, Slots);
}

void FdcAmounts::Read(FdcTable& table, FoodTally& tally) {
    double* const figures = Place(table.Key(FoodKey));
    if (!figures)
        return;
    const int slot = FdcNutrients::SlotOf(table.Key(NutrientKey));
    const auto amount = slot < 0 ? std::nullopt : table.Number(Amount);
    if (!amount)
        return;
    double& figure = figures[slot];
    if (std::isnan(figure))
        figure = *amount;
    else if (figure != *amount)
        tally.Note(QStringLiteral("second, different amounts of one nutrient were left"));
}

double* FdcAmounts::Place(quint32 key) {
    if (foods_[last_].key != key) {
        const auto found = std::ranges::lower_bound(foods_, key, {}, &FdcFood::key);
        if (found == foods_.end() || found->key != key)
            return nullptr;
        last_ = static_cast<size_t>(found - foods_.begin());
    }
    return figures_.data() + last_ * Slots;
}
