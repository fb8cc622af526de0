#include "foods/CustomFood.h"

#include <cmath>

namespace {
using enum CustomFoodProblem::Part;

/// No serving holds more of anything. Larger amounts make the sum of a day overflow.
constexpr double MostAmount = 1'000'000;

bool HoldsRefusedCharacter(const QString& text) {
    return text.contains(u'^') || text.contains(u'~') || text.contains(u'"');
}

CustomFoodProblem AmountProblem(const NutrientAmounts& amounts) {
    for (const Nutrient id : PeriodOrder())
        if (std::abs(amounts[id].value_or(0)) > MostAmount)
            return {Amount,
                    u"The amount of " + QLatin1String(Info(id).editCaption) +
                        u" is too large. Please enter a number up to 1,000,000.",
                    id};
    return {};
}
} // namespace

CustomFoodProblem CustomFood::FirstProblem() const {
    const QString refused =
        QStringLiteral(" names cannot contain the special characters '~', '^' or \".");
    if (HoldsRefusedCharacter(name))
        return {Name, u"Food" + refused};
    if (HoldsRefusedCharacter(serving))
        return {Serving, u"Serving" + refused};
    if (name.isEmpty())
        return {Name, QStringLiteral("Please give your custom food a name.")};
    if (serving.isEmpty())
        return {Serving, QStringLiteral("Please give your custom food a serving size.")};
    return AmountProblem(amounts);
}
