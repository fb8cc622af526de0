#pragma once

#include "model/Nutrients.h"

#include <array>
#include <optional>

class Recordset;

/// The 31 amounts that a person enters on a page: the targets of a profile, or what one serving of
/// a custom food holds. Unlike Nuts it rounds nothing, and an amount may be missing.
class NutrientAmounts {
public:
    std::optional<double> operator[](Nutrient id) const { return values_[static_cast<size_t>(id)]; }
    void Set(Nutrient id, double amount) { values_[static_cast<size_t>(id)] = amount; }
    bool operator==(const NutrientAmounts&) const = default;

    /// Reads the current row of `profiles` or `FOODS`. A null is a missing amount.
    static NutrientAmounts Of(const Recordset& row);
    /// Writes each amount without its sign, and a missing one as 0.
    void WriteTo(Recordset& row) const;

private:
    std::array<std::optional<double>, NutrientCount> values_;
};
