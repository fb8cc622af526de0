#pragma once

#include "records/recipefiles/KitchenUnit.h"

#include <QStringList>

#include <optional>

/// An ingredient line or a serving, taken apart: "1 1/2 cups brown lentils, rinsed".
struct IngredientText {
    std::optional<double> quantity = {};
    const KitchenUnit* unit = nullptr; ///< null: the food itself is counted
    QStringList words = {};            ///< of the food, in lower case
    QStringList details = {};          ///< words behind the first comma or in brackets

    static IngredientText Of(const QString& line);
};
