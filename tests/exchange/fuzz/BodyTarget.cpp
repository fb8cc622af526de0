#include "fuzz/Target.h"

#include "exchange/Documents.h"
#include "exchange/RecipeReader.h"
#include "exchange/Refusal.h"
#include "exchange/StoredText.h"

#include <nlohmann/json.hpp>

/// A body is refused or taken; what is taken is written as JSON that can be read.
void Fuzz(const std::string& bytes) {
    constexpr int most = 20;
    try {
        const auto recipe = exchange::RecipeReader::ReadRecipe(bytes);
        Expect(!recipe.to.empty() && !recipe.from.empty());
        Expect(nlohmann::json::accept(exchange::Documents::RecipeDocument(recipe)));
        const auto name = recipe.name.value_or("");
        Expect(exchange::StoredText::Read(exchange::StoredText::Of(name)) == name);
    } catch (const exchange::Refusal&) {
    }
    try {
        exchange::Recipe recipe;
        recipe.ingredients = exchange::RecipeReader::ReadIngredients(bytes, most);
        Expect(recipe.ingredients.size() <= most);
        Expect(nlohmann::json::accept(exchange::Documents::IngredientsDocument(recipe)));
    } catch (const exchange::Refusal&) {
    }
}
