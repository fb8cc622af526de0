#include "Fill.h"

#include "exchange/RecipeSearch.h"
#include "exchange/RecipeStore.h"
#include "exchange/Text.h"
#include "exchange/Words.h"

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

/// Gives the words of each.
std::vector<std::vector<std::string>> StoreOriginals(Connection& connection, int copies) {
    std::mt19937 random(4711);
    RecipeStore store(connection);
    connection.Once("CREATE TABLE fill (Number INTEGER NOT NULL PRIMARY KEY, RecipeID INTEGER)");
    std::vector<std::vector<std::string>> words;
    for (int place = 0; place < Originals; ++place) {
        const auto recipe = Draw(random);
        const auto created = CreateBeyond(store, recipe, copies);
        store.Add(created.id, created.token, recipe.ingredients, 100);
        store.Finish(created.id);
        words.push_back(Words::Of(recipe));
        connection.Change("INSERT INTO fill (Number, RecipeID) VALUES (:n, :id)", soci::use(place),
                          soci::use(created.id));
    }
    return words;
}

std::string NutrientList() {
    std::string list;
    for (const auto& column : NutrientColumns())
        list.append(column.name).append(", ");
    return list;
}

/// Each original once more under the IDs from @ on, as an older recipe.
std::vector<std::string> Copies() {
    return {"INSERT INTO recipes (RecipeID, RecipeName, ServingName, RecipeYield, Instructions,"
            " PrepTime, EMAILFROM, EMAILTO, ISPUBLIC, Token, IngredientCount, CreatedAt, SentAt,"
            " MailedAt) SELECT Number + @, RecipeName, ServingName, RecipeYield,"
            " Instructions, PrepTime, '', '', ISPUBLIC, Token, IngredientCount, CreatedAt - @,"
            " SentAt - @, MailedAt FROM fill JOIN recipes ON recipes.RecipeID = fill.RecipeID",
            "INSERT INTO ingredients SELECT ID, " + NutrientList() +
                "FoodName, Serving, Number + @, QTY FROM fill"
                " JOIN ingredients ON ingredients.RecipeID = fill.RecipeID",
            "INSERT INTO documents SELECT Number + @, RecipeText, IngredientsText FROM fill"
            " JOIN documents ON documents.RecipeID = fill.RecipeID",
            "INSERT INTO listing (RecipeID, ListedAt, RecipeName, ServingName, PrepTime, Calories)"
            " SELECT Number + @, ListedAt - @, RecipeName, ServingName, PrepTime, Calories"
            " FROM fill JOIN listing ON listing.RecipeID = fill.RecipeID ORDER BY Number"};
}

/// The copies were listed last, in their order.
void AddWords(Connection& connection, const std::vector<std::vector<std::string>>& words) {
    long long place = 0;
    connection.First("SELECT MAX(Place) FROM listing", soci::into(place));
    place -= static_cast<long long>(words.size());
    for (const auto& some : words)
        RecipeSearch(connection).Add(++place, some);
}

void Copy(Connection& connection, int first, const std::vector<std::vector<std::string>>& words) {
    Transaction transaction(connection);
    for (auto statement : Copies()) {
        ReplaceAll(statement, "@", std::to_string(first));
        connection.Once(statement);
    }
    AddWords(connection, words);
    transaction.Commit();
}

/// Otherwise the first commit after this would wait until the system has written all of it.
void WriteThrough(Connection& connection) {
    if (!connection.IsEmbedded())
        return connection.Once("CHECKPOINT");
    connection.Once("PRAGMA synchronous=FULL");
    connection.Once("PRAGMA wal_checkpoint(TRUNCATE)");
}
} // namespace

std::vector<int> With(const std::string& database, int recipes) {
    Connection connection(database);
    if (connection.IsEmbedded())
        connection.Once("PRAGMA synchronous=OFF");
    const auto words = StoreOriginals(connection, recipes);
    std::vector<int> ids;
    for (int first = 2; first + Originals <= recipes + 2; first += Originals) {
        Copy(connection, first, words);
        for (int place = 0; place < Originals; ++place)
            ids.push_back(first + place);
    }
    connection.Once("ANALYZE");
    WriteThrough(connection);
    return ids;
}
} // namespace Fill
