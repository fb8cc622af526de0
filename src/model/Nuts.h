#pragma once

#include "model/Nutrients.h"

#include <array>

/// One value for each nutrient, 0 at first: the targets of a person, or the totals of a day. Some
/// members hold whole numbers: they round halves to the even neighbour. A value beyond the bounds
/// of a 32-bit integer becomes the bound, so that any sum can be shown.
class Nuts {
public:
    double operator[](Nutrient id) const { return values_[static_cast<size_t>(id)]; }
    void Set(Nutrient id, double value);

    double Calories() const { return (*this)[Nutrient::Calories]; }
    double TotalFat() const { return (*this)[Nutrient::TotalFat]; }
    double Protein() const { return (*this)[Nutrient::Protein]; }
    double Carbs() const { return (*this)[Nutrient::Carbs]; }

private:
    std::array<double, NutrientCount> values_{};
};
