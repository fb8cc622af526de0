#include "BareStore.h"
#include "Ground.h"
#include "Table.h"

#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "recipes/RecipeStore.h"
#include "recipes/ucIngredients.h"
#include "store/Connection.h"
#include "store/Schema.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int ManyRows = 5000;
constexpr int ManyIngredients = 100;
constexpr auto Term = "lentil";

/// So many recipes and custom foods, each third one of lentils, of which the catalogue has some as
/// well. The first recipe has many ingredients.
struct RecipeGround : Ground {
    RecipeGround()
        : Ground(false) {
        SQLite::Transaction users(UserDB().Raw());
        SQLite::Transaction foods(FoodDB().Raw());
        FillNames(UserDB().Raw(), "INSERT INTO Recipes (RecipeName, ServingName, RecipeYield, "
                                  "Instructions, PrepTime) VALUES (?1, '1 bowl', 4, ?1, 30)");
        FillNames(FoodDB().Raw(),
                  "INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Serv_Desc_B, Serv_GM_WT_A) "
                  "SELECT max(ID) + 1, ?1, '1 cup', '', 100 FROM FOODS");
        FillIngredients();
        users.commit();
        foods.commit();
    }

    static void FillNames(SQLite::Database& database, const char* sql) {
        SQLite::Statement insert(database, sql);
        for (int i = 0; i < ManyRows; ++i) {
            insert.bind(1, (i % 3 ? "Bean stew " : "Lentil soup ") + std::to_string(i));
            insert.exec();
            insert.reset();
        }
    }
    static void FillIngredients() {
        SQLite::Statement insert(UserDB().Raw(),
                                 "INSERT INTO Ingredients (RecipeID, FoodName, Serving, QTY, "
                                 "Calories) VALUES (1, ?, '1 cup, chopped', 1.5, 100)");
        for (int i = 0; i < ManyIngredients; ++i) {
            insert.bind(1, "Lentils, mature seeds, raw " + std::to_string(i));
            insert.exec();
            insert.reset();
        }
    }
};

void OpenRecipeOurs(benchmark::State& state) {
    const RecipeGround ground;
    ucIngredients list;
    list.resize(500, 210);
    list.show();
    for (auto _ : state) {
        list.ClearList();
        list.SetRecipeID(1);
        benchmark::DoNotOptimize(RecipeStore::CaloriesPerServing(1, QStringLiteral("4")));
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
