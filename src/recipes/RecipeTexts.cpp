#include "recipes/RecipeTexts.h"

#include "runtime/Val.h"

#include <algorithm>
#include <cmath>

namespace {

/// Tested in this order, and the message of the first that fails is shown. The time has no rule.
constexpr RecipeCheck Checks[] = {
    {RecipeField::Name, "^~", "Recipe name cannot contain the special characters '~' or '^'."},
    {RecipeField::Yield, "^~", "Recipe yield cannot contain the special characters '~' or '^'."},
    {RecipeField::Serving, "^~",
     "Recipe serving description cannot contain the special characters '~' or '^'."},
    {RecipeField::Instructions, "^~",
     "Recipe preparation instructions cannot contain the special characters '~' or '^'."},
    {RecipeField::Instructions, "|",
     "Recipe preparation instructions cannot contain the special character '|' "},
    {RecipeField::Name, nullptr, "Please give your new recipe a name."},
    {RecipeField::Serving, nullptr, "Please give your new recipe a serving size."},
    {RecipeField::Yield, nullptr,
     "Please give your new recipe a yield (Recipe Makes __ Servings)."},
};

bool Fails(const RecipeCheck& check, const QString& text) {
    if (!check.refused)
        return text.isEmpty();
    const QLatin1String refused(check.refused);
    return std::any_of(text.cbegin(), text.cend(), [&](QChar c) { return refused.contains(c); });
}

} // namespace

RecipeTexts RecipeTexts::OfNewRecipe() {
    RecipeTexts texts;
    for (const RecipeFieldInfo& field : RecipeFields())
        texts[field.id] = QLatin1String(field.initial);
    return texts;
}

const RecipeCheck* RecipeTexts::FirstFailed() const {
    const auto* found =
        std::find_if(std::begin(Checks), std::end(Checks), [this](const RecipeCheck& check) {
            return Fails(check, (*this)[check.field]);
        });
    return found == std::end(Checks) ? nullptr : found;
}

Recipe RecipeTexts::Values() const {
    Recipe recipe;
    for (const RecipeFieldInfo& field : RecipeFields()) {
        const QString& text = (*this)[field.id];
        recipe[field.id] = field.isNumber ? QVariant(std::abs(Val(text))) : QVariant(text);
    }
    return recipe;
}
