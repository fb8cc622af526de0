#include "fuzz/Target.h"

#include "records/recipefiles/DurationText.h"
#include "records/recipefiles/ForeignJson.h"
#include "records/recipefiles/IngredientText.h"
#include "records/recipefiles/LineText.h"
#include "records/recipefiles/QuantityText.h"

#include <cmath>

namespace {
void ExpectNumber(const std::optional<double>& number) {
    Expect(std::isfinite(number.value_or(0)) && number.value_or(0) >= 0);
}
} // namespace

/// Each line of a recipe gives finite numbers that are not below 0.
void Fuzz(const std::string& bytes) {
    const QString line = QString::fromStdString(bytes);
    ExpectNumber(QuantityText::Leading(line).value);
    ExpectNumber(IngredientText::Of(line).quantity);
    ExpectNumber(LineText::FirstNumber(line));
    ExpectNumber(MinutesOf(line));
    ForeignJson::Plain(line);
}
