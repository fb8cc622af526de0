#pragma once

#include "model/NutrientAmounts.h"

#include <QString>

/// What is wrong with a custom food, and where: the page leads to that field.
struct CustomFoodProblem {
    enum class Part { None, Name, Serving, Amount };
    Part part = Part::None;
    QString message = {};
    Nutrient nutrient = {}; ///< for Part::Amount

    explicit operator bool() const { return part != Part::None; }
};

/// A food of a person's own. It has one serving, and the amounts are those of that serving.
struct CustomFood {
    QString name;
    QString serving;
    NutrientAmounts amounts;

    CustomFoodProblem FirstProblem() const; ///< Part::None where the food can be saved
};
