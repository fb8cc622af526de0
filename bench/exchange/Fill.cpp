#include "Fill.h"

#include "exchange/RecipeStore.h"
#include "exchange/Text.h"

#include <random>

namespace Fill {
namespace {
using namespace exchange;

constexpr int Originals = 500;

const char* const Foods[] = {"Lentils, mature seeds, raw",
                             "Onions, raw",
                             "Carrots, raw",
                             "Oil, olive, salad or cooking",
                             "Tomatoes, red, ripe, canned",
                             "Salt, table",
                             "Garlic, raw",
                             "Potatoes, flesh and skin, raw",
                             "Cheese, parmesan, grated",
                             "Egg, whole, raw, fresh",
                             "Milk, reduced fat",
                             "Flour, wheat, white, all-purpose",
                             "Chicken, broilers, breast",
                             "Rice, brown, long-grain",
                             "Beans, kidney, mature seeds",
                             "Peppers, sweet, red, raw"};
const char* const Dishes[] = {"soup", "salad", "stew", "pie", "casserole", "curry", "bake", "bowl"};
const char* const Manners[] = {"Quick", "Sunday", "Winter", "Garden", "Spicy", "Simple"};

Recipe Draw(std::mt19937& random) {
    Recipe recipe;
    recipe.name = std::string(Manners[random() % 6]) + " " + Dishes[random() % 8];
    recipe.servingName = "1 bowl";
    recipe.yield = static_cast<int>(1 + random() % 8);
    recipe.prepTime = static_cast<int>(5 * (1 + random() % 20));
    recipe.instructions = std::string(400, 'x');
    recipe.from = recipe.to = "a@example.org";
    recipe.isPublic = true;
    for (int i = 0; i < 10; ++i) {
        Ingredient row;
        for (auto& amount : row.nutrients)
            amount = static_cast<double>(random() % 100'000) / 128;
        row.foodName = Foods[random() % 16];
        row.serving = "1 cup, chopped";
        recipe.ingredients.push_back(row);
    }
    return recipe;
}

/// Under an ID that none of the copies will have.
RecipeStore::Created CreateBeyond(RecipeStore& store, const Recipe& recipe, int copies) {
    for (;;) {
        const auto created = store.Create(recipe);
        if (created.id > copies + Originals)
            return created;
        store.Remove(created.id);
    }
}

void StoreOriginals(Connection& connection, int copies) {
    std::mt19937 random(4711);
    RecipeStore store(connection);
    connection.Once("CREATE TABLE fill (Place INTEGER NOT NULL PRIMARY KEY, RecipeID INTEGER)");
    for (int place = 0; place < Originals; ++place) {
        const auto recipe = Draw(random);
        const auto created = CreateBeyond(store, recipe, copies);
        store.Add(created.id, created.token, recipe.ingredients, 100);
        store.Finish(created.id);
        connection.Change("INSERT INTO fill (Place, RecipeID) VALUES (:p, :id)", soci::use(place),
                          soci::use(created.id));
    }
    connection.Once("CREATE TABLE fill_words AS SELECT Word, ListedAt, Place FROM words"
                    " JOIN fill ON fill.RecipeID = words.RecipeID");
}

std::string NutrientList() {
    std::string list;
    for (const auto& column : NutrientColumns())
        list.append(column.name).append(", ");
    return list;
}

/// Each original once more under the IDs from @ on, as an older recipe.
std::vector<std::string> Copies() {
    return {"INSERT INTO recipes SELECT Place + @, RecipeName, ServingName, RecipeYield,"
            " Instructions, PrepTime, '', '', ISPUBLIC, Token, IngredientCount, CreatedAt - @,"
            " SentAt - @, MailedAt FROM fill JOIN recipes ON recipes.RecipeID = fill.RecipeID",
            "INSERT INTO ingredients SELECT ID, " + NutrientList() +
                "FoodName, Serving, Place + @, QTY FROM fill"
                " JOIN ingredients ON ingredients.RecipeID = fill.RecipeID",
            "INSERT INTO documents SELECT Place + @, RecipeText, IngredientsText FROM fill"
            " JOIN documents ON documents.RecipeID = fill.RecipeID",
            "INSERT INTO listing SELECT ListedAt - @, Place + @, RecipeName, ServingName, PrepTime,"
            " Calories FROM fill JOIN listing ON listing.RecipeID = fill.RecipeID",
            "INSERT INTO words SELECT Word, ListedAt - @, Place + @ FROM fill_words"};
}

void Copy(Connection& connection, int first) {
    Transaction transaction(connection);
    for (auto statement : Copies()) {
        ReplaceAll(statement, "@", std::to_string(first));
        connection.Once(statement);
    }
    transaction.Commit();
}
} // namespace

std::vector<int> With(const std::string& database, int recipes) {
    Connection connection(database);
    if (!database.starts_with("postgresql"))
        connection.Once("PRAGMA synchronous=OFF");
    StoreOriginals(connection, recipes);
    std::vector<int> ids;
    for (int first = 2; first + Originals <= recipes + 2; first += Originals) {
        Copy(connection, first);
        for (int place = 0; place < Originals; ++place)
            ids.push_back(first + place);
    }
    connection.Once("ANALYZE");
    return ids;
}
} // namespace Fill
