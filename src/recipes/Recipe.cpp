#include "recipes/Recipe.h"

static constexpr std::array<RecipeFieldInfo, RecipeFieldCount> Fields{{
    {RecipeField::Name, "RecipeName", "My Recipe", false},
    {RecipeField::Yield, "RecipeYield", "1", true},
    {RecipeField::Serving, "ServingName", "Plate", false},
    {RecipeField::Instructions, "Instructions", "(enter preparation instructions here...)", false},
    {RecipeField::Time, "PrepTime", "30", true},
}};

const std::array<RecipeFieldInfo, RecipeFieldCount>& RecipeFields() {
    return Fields;
}
