#include "records/tables/IntakeTotals.h"

#include "records/tables/LogReading.h"

void IntakeTotals::Add(const LogReading& entry) {
    const double grams = entry.Grams();
    ++entries_;
    grams_ += grams;
    for (const NutrientInfo& nutrient : Nutrients()) {
        const std::optional<double> amount = entry.Amount(nutrient.id);
        if (!amount)
            continue;
        Sum& sum = sums_[size_t(nutrient.id)];
        sum.amount += *amount;
        sum.grams += grams;
        sum.known = true;
    }
}

std::optional<double> IntakeTotals::Amount(Nutrient nutrient) const {
    const Sum& sum = sums_[size_t(nutrient)];
    return sum.known ? std::optional(sum.amount) : std::nullopt;
}

std::optional<double> IntakeTotals::Coverage(Nutrient nutrient) const {
    return grams_ > 0 ? std::optional(sums_[size_t(nutrient)].grams / grams_) : std::nullopt;
}
