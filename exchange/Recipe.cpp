#include "exchange/Recipe.h"

#include "exchange/Numbers.h"

#include <cmath>

namespace exchange {
namespace {
constexpr double BeyondMeasure = 1e12;
}

std::optional<std::string> Ingredient::Portion() const {
    if (quantity.value_or(1) == 1)
        return serving;
    if (serving.value_or("").empty())
        return Numbers::Counted(*quantity, "serving");
    return Numbers::Short(*quantity) + " x " + *serving;
}

std::optional<double> Recipe::PerServing(int nutrient) const {
    std::optional<double> sum;
    for (const auto& ingredient : ingredients)
        if (const auto& amount = ingredient.nutrients[static_cast<size_t>(nutrient)])
            sum = sum.value_or(0) + *amount;
    if (sum)
        *sum /= Servings();
    return sum && std::abs(*sum) < BeyondMeasure ? sum : std::nullopt;
}

} // namespace exchange
