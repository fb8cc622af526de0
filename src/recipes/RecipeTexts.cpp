#include "recipes/RecipeTexts.h"

#include "runtime/Val.h"
#include "store/Recordset.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::array<RecipeFieldInfo, RecipeFieldCount> fields{{
    {RecipeField::Name, "RecipeName", "aaRecipeName", "txtName", "Recipe name", "My Recipe", false},
    {RecipeField::Yield, "RecipeYield", "lblRecYield", "txtYield", "Recipe yield in servings", "1",
     true},
    {RecipeField::Serving, "ServingName", "lblServingDesc", "txtServing", "Serving size", "Plate",
     false},
    {RecipeField::Instructions, "Instructions", "txtInstructions", "txtInstructions",
     "Preparation instructions", "(enter preparation instructions here...)", false},
    {RecipeField::Time, "PrepTime", "aaTotalTime", "txtTime", "Total time in minutes", "30", true},
}};

/// In this order; the first that fails is the one that is told. The time is not tested.
constexpr RecipeCheck checks[] = {
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

const std::array<RecipeFieldInfo, RecipeFieldCount>& RecipeFields() {
    return fields;
}

RecipeTexts RecipeTexts::OfNewRecipe() {
    RecipeTexts texts;
    for (const RecipeFieldInfo& field : fields)
        texts[field.id] = QLatin1String(field.initial);
    return texts;
}

const RecipeCheck* RecipeTexts::FirstFailed() const {
    const auto* found =
        std::find_if(std::begin(checks), std::end(checks), [this](const RecipeCheck& check) {
            return Fails(check, (*this)[check.field]);
        });
    return found == std::end(checks) ? nullptr : found;
}

void RecipeTexts::Write(Recordset& row) const {
    for (const RecipeFieldInfo& field : fields) {
        const QString& text = (*this)[field.id];
        row.Set(QLatin1String(field.column),
                field.isNumber ? QVariant(std::abs(Val(text))) : QVariant(text));
    }
}
