#pragma once

#include "model/Nutrients.h"

#include <array>

/// One value for each of the 31 nutrients: a person's targets, a day's totals, a serving of a food.
/// Whole-number members round half to even on assignment. What lies beyond the bounds of a 32-bit
/// integer becomes the bound, so that any sum can be shown. All values start at 0.
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
