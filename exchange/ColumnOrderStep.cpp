#include "exchange/ColumnOrderStep.h"

#include "exchange/Documents.h"
#include "exchange/RecipeStore.h"

namespace exchange::ColumnOrderStep {
namespace {
using soci::into;
using soci::use;

constexpr const char* SetAside[] = {
    "DROP INDEX recipes_unfinished",
    "DROP INDEX recipes_addresses",
    "ALTER TABLE recipes RENAME TO old_recipes",
    "ALTER TABLE ingredients RENAME TO old_ingredients",
    "ALTER TABLE documents RENAME TO old_documents",
    "ALTER TABLE listing RENAME TO old_listing",
};

constexpr const char* Make[] = {
    "CREATE TABLE recipes ("
    " RecipeID INTEGER NOT NULL PRIMARY KEY, RecipeName TEXT, ServingName TEXT,"
    " RecipeYield DOUBLE PRECISION, Instructions TEXT, PrepTime DOUBLE PRECISION,"
    " EMAILFROM TEXT NOT NULL, EMAILTO TEXT NOT NULL, ISPUBLIC INTEGER NOT NULL,"
    " Token TEXT NOT NULL, IngredientCount INTEGER NOT NULL, CreatedAt BIGINT NOT NULL,"
    " SentAt BIGINT NOT NULL, MailedAt BIGINT NOT NULL,"
    " HiddenAt BIGINT NOT NULL DEFAULT 0)",
    "CREATE INDEX recipes_unfinished ON recipes (CreatedAt) WHERE SentAt = 0",
    "CREATE INDEX recipes_addresses ON recipes (SentAt) WHERE EMAILTO <> ''",
    "CREATE TABLE ingredients (ID INTEGER NOT NULL,"
    " VitaminC DOUBLE PRECISION, VitaminE DOUBLE PRECISION, VitaminB12 DOUBLE PRECISION,"
    " VitaminB6 DOUBLE PRECISION, VitaminA DOUBLE PRECISION, SatFat DOUBLE PRECISION,"
    " Potassium DOUBLE PRECISION, PolyFat DOUBLE PRECISION, MonoFat DOUBLE PRECISION,"
    " Folate DOUBLE PRECISION, Water DOUBLE PRECISION, Calories DOUBLE PRECISION, Protein"
    " DOUBLE PRECISION, TotalFat DOUBLE PRECISION, carbs DOUBLE PRECISION, fiber DOUBLE"
    " PRECISION, Ash DOUBLE PRECISION, Calcium DOUBLE PRECISION, Phosphorus DOUBLE"
    " PRECISION, Iron DOUBLE PRECISION, Sodium DOUBLE PRECISION, Magnesium DOUBLE"
    " PRECISION, Panto DOUBLE PRECISION, Zinc DOUBLE PRECISION, Copper DOUBLE PRECISION,"
    " Manganese DOUBLE PRECISION, Selenium DOUBLE PRECISION, Thiamin DOUBLE PRECISION,"
    " Riboflavin DOUBLE PRECISION, Niacin DOUBLE PRECISION, Cholesterol DOUBLE PRECISION,"
    " FoodName TEXT, Serving TEXT,"
    " RecipeID INTEGER NOT NULL REFERENCES recipes ON DELETE CASCADE, QTY DOUBLE PRECISION,"
    " PRIMARY KEY (RecipeID, ID))",
    "CREATE TABLE documents ("
    " RecipeID INTEGER NOT NULL PRIMARY KEY REFERENCES recipes ON DELETE CASCADE,"
    " RecipeText TEXT NOT NULL, IngredientsText TEXT NOT NULL)",
    "CREATE TABLE listing ("
    " ListedAt BIGINT NOT NULL,"
    " RecipeID INTEGER NOT NULL UNIQUE REFERENCES recipes ON DELETE CASCADE,"
    " RecipeName TEXT NOT NULL, ServingName TEXT NOT NULL, PrepTime DOUBLE PRECISION,"
    " Calories DOUBLE PRECISION, PRIMARY KEY (ListedAt, RecipeID))",
};

constexpr const char* Fill[] = {
    "INSERT INTO recipes SELECT RecipeID, RecipeName, ServingName, RecipeYield, Instructions,"
    " PrepTime, EMAILFROM, EMAILTO, ISPUBLIC, Token, IngredientCount, CreatedAt, SentAt, MailedAt, "
    "0"
    " FROM old_recipes",
    "INSERT INTO ingredients SELECT ID,"
    " VitaminC, VitaminE, VitaminB12, VitaminB6, VitaminA, SatFat, Potassium, PolyFat,"
    " MonoFat, Folate, Water, Calories, Protein, TotalFat, carbs, fiber, Ash, Calcium,"
    " Phosphorus, Iron, Sodium, Magnesium, Panto, Zinc, Copper, Manganese, Selenium,"
    " Thiamin, Riboflavin, Niacin, Cholesterol, FoodName,"
    " Serving, RecipeID, QTY FROM old_ingredients",
    ("INSERT INTO listing SELECT ListedAt, RecipeID, RecipeName, ServingName, PrepTime, Calories"
     " FROM old_listing"),
};

constexpr const char* Drop[] = {
    "DROP TABLE old_ingredients",
    "DROP TABLE old_documents",
    "DROP TABLE old_listing",
    "DROP TABLE old_recipes",
};

void Run(Connection& connection, std::span<const char* const> statements) {
    for (const auto* statement : statements)
        connection.Once(statement);
}

void CopyDocument(Connection& connection, int id) {
    Recipe recipe;
    recipe.id = id;
    RecipeStore(connection).ReadIngredients(recipe);
    const auto ingredients = Documents::IngredientsDocument(recipe);
    connection.Change("INSERT INTO documents (RecipeID, RecipeText, IngredientsText)"
                      " SELECT RecipeID, Recipe, :ingredients FROM old_documents"
                      " WHERE RecipeID = :id",
                      use(ingredients), use(id));
}

/// Reads a portion at a time, since both client libraries keep all rows of a result in memory.
std::vector<int> IDsAfter(Connection& connection, int last) {
    std::vector<int> ids;
    int id = 0;
    connection.Each(
        "SELECT RecipeID FROM old_documents WHERE RecipeID > :last ORDER BY RecipeID LIMIT 500",
        [&] { ids.push_back(id); }, use(last), into(id));
    return ids;
}

void CopyDocuments(Connection& connection) {
    for (auto ids = IDsAfter(connection, 0); !ids.empty(); ids = IDsAfter(connection, ids.back()))
        for (const int id : ids)
            CopyDocument(connection, id);
}
} // namespace

void Take(Connection& connection) {
    Run(connection, SetAside);
    Run(connection, Make);
    Run(connection, Fill);
    CopyDocuments(connection);
    Run(connection, Drop);
}

} // namespace exchange::ColumnOrderStep
