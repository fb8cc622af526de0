#include "BareStore.h"
#include "RecipeGround.h"
#include "Table.h"

#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "recipes/RecipeBook.h"
#include "recipes/ui/ucIngredients.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr auto Term = "lentil";

void OpenRecipeOurs(benchmark::State& state) {
    const RecipeGround ground;
    ucIngredients list;
    list.resize(500, 210);
    list.show();
    for (auto _ : state) {
        list.ClearList();
        list.SetRecipeID(1);
        benchmark::DoNotOptimize(RecipeBook::CaloriesPerServing(1, QStringLiteral("4")));
        list.DisplayFoods(true);
    }
}

void OpenRecipeLimit(benchmark::State& state) {
    const RecipeGround ground;
    SQLite::Database users = BareStore::Open(UserDB());
    for (auto _ : state) {
        BareStore::Read(users, "SELECT Sum(Calories) FROM Ingredients WHERE RecipeID = 1");
        BareStore::Read(users, "SELECT * FROM Ingredients WHERE RecipeID = 1");
    }
}

void SearchOurs(benchmark::State& state) {
    const RecipeGround ground;
    for (auto _ : state) {
        const FoodList foods =
            FoodSearch::Find(SearchTerms(QLatin1String(Term)), {true, true, true});
        benchmark::DoNotOptimize(foods.Count());
    }
}

void SearchLimit(benchmark::State& state) {
    const RecipeGround ground;
    SQLite::Database users = BareStore::Open(UserDB());
    SQLite::Database foods = BareStore::Open(FoodDB());
    const SearchTerms terms{QString(QLatin1String(Term))};
    for (auto _ : state)
        BareStore::Search(users, foods, terms);
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim("open a recipe of 100 ingredients", 4);
    Table::Aim("search that hits 5,000 recipes, 5,000 own foods and the catalogue", 2);
    return true;
}();
} // namespace

BENCHMARK(OpenRecipeOurs)->Name("open a recipe of 100 ingredients/ours");
BENCHMARK(OpenRecipeLimit)->Name("open a recipe of 100 ingredients/limit");
BENCHMARK(SearchOurs)
    ->Name("search that hits 5,000 recipes, 5,000 own foods and the catalogue/ours");
BENCHMARK(SearchLimit)
    ->Name("search that hits 5,000 recipes, 5,000 own foods and the catalogue/limit");
