#include "exchange/Schema.h"

#include "exchange/Secrets.h"

#include <stdexcept>
#include <vector>

namespace exchange::Schema {
namespace {
using Step = std::vector<const char*>;

// A recipe is unfinished while SentAt is 0. `documents` is what is read of a recipe, written once
// when it is sent: nothing that is not sent can be read. `listing` holds the public ones alone, and
// `words` leads to them. Moments are microseconds since 1970.
const Step Steps[] = {
    {
        "CREATE TABLE settings (Name TEXT NOT NULL PRIMARY KEY, Value TEXT NOT NULL)",
        "CREATE TABLE recipes ("
        " RecipeID INTEGER NOT NULL PRIMARY KEY, RecipeName TEXT NOT NULL,"
        " ServingName TEXT NOT NULL, RecipeYield DOUBLE PRECISION NOT NULL,"
        " Instructions TEXT NOT NULL, PrepTime DOUBLE PRECISION NOT NULL,"
        " EMAILFROM TEXT NOT NULL, EMAILTO TEXT NOT NULL, ISPUBLIC INTEGER NOT NULL,"
        " Token TEXT NOT NULL, IngredientCount INTEGER NOT NULL, CreatedAt BIGINT NOT NULL,"
        " SentAt BIGINT NOT NULL, MailedAt BIGINT NOT NULL)",
        "CREATE INDEX recipes_unfinished ON recipes (CreatedAt) WHERE SentAt = 0",
        "CREATE INDEX recipes_addresses ON recipes (SentAt) WHERE EMAILTO <> ''",
        "CREATE TABLE ingredients ("
        " ID INTEGER NOT NULL,"
        " Calories DOUBLE PRECISION, TotalFat DOUBLE PRECISION, SatFat DOUBLE PRECISION,"
        " MonoFat DOUBLE PRECISION, PolyFat DOUBLE PRECISION, Cholesterol DOUBLE PRECISION,"
        " Sodium DOUBLE PRECISION, carbs DOUBLE PRECISION, fiber DOUBLE PRECISION,"
        " Protein DOUBLE PRECISION, Calcium DOUBLE PRECISION, Copper DOUBLE PRECISION,"
        " Folate DOUBLE PRECISION, Iron DOUBLE PRECISION, Magnesium DOUBLE PRECISION,"
        " Manganese DOUBLE PRECISION, Niacin DOUBLE PRECISION, Panto DOUBLE PRECISION,"
        " Phosphorus DOUBLE PRECISION, Potassium DOUBLE PRECISION, Riboflavin DOUBLE PRECISION,"
        " Selenium DOUBLE PRECISION, Thiamin DOUBLE PRECISION, VitaminA DOUBLE PRECISION,"
        " VitaminB12 DOUBLE PRECISION, VitaminB6 DOUBLE PRECISION, VitaminC DOUBLE PRECISION,"
        " VitaminE DOUBLE PRECISION, Zinc DOUBLE PRECISION, Ash DOUBLE PRECISION,"
        " Water DOUBLE PRECISION,"
        " FoodName TEXT, Serving TEXT,"
        " RecipeID INTEGER NOT NULL REFERENCES recipes ON DELETE CASCADE, QTY DOUBLE PRECISION,"
        " PRIMARY KEY (RecipeID, ID))",
        "CREATE TABLE documents ("
        " RecipeID INTEGER NOT NULL PRIMARY KEY REFERENCES recipes ON DELETE CASCADE,"
        " Recipe TEXT NOT NULL, Ingredients TEXT NOT NULL)",
        "CREATE TABLE listing ("
        " ListedAt BIGINT NOT NULL,"
        " RecipeID INTEGER NOT NULL UNIQUE REFERENCES recipes ON DELETE CASCADE,"
        " RecipeName TEXT NOT NULL, ServingName TEXT NOT NULL, PrepTime DOUBLE PRECISION NOT NULL,"
        " Calories DOUBLE PRECISION, PRIMARY KEY (ListedAt, RecipeID))",
        "CREATE TABLE words (Word TEXT NOT NULL, ListedAt BIGINT NOT NULL,"
        " RecipeID INTEGER NOT NULL, PRIMARY KEY (Word, ListedAt, RecipeID))",
        "CREATE TABLE counters (Name TEXT NOT NULL, Slot BIGINT NOT NULL, Hits INTEGER NOT NULL,"
        " PRIMARY KEY (Name, Slot))",
        "CREATE INDEX counters_old ON counters (Slot)",
    },
};

/// The row of the step comes first: a second server waits at it, and then finds it there.
void Take(Connection& connection, int number, const Step& step) {
    Transaction transaction(connection);
    if (connection.Change("INSERT INTO schema_steps (Step) VALUES (:n) ON CONFLICT DO NOTHING",
                          soci::use(number)) == 0)
        return;
    for (const auto* statement : step)
        connection.Once(statement);
    transaction.Commit();
}

void EnsureSalt(Connection& connection) {
    const auto salt = Secrets::RandomToken();
    connection.Change("INSERT INTO settings (Name, Value) VALUES ('salt', :v)"
                      " ON CONFLICT DO NOTHING",
                      soci::use(salt));
}

void EnsureStepTable(Connection& connection) {
    connection.Once("CREATE TABLE IF NOT EXISTS schema_steps (Step INTEGER NOT NULL PRIMARY KEY)");
}
} // namespace

void BringUpToDate(Connection& connection) {
    EnsureStepTable(connection);
    int number = 0;
    for (const auto& step : Steps)
        Take(connection, ++number, step);
    EnsureSalt(connection);
}

void Check(Connection& connection) {
    int step = 0;
    soci::indicator indicator = soci::i_ok;
    connection.First("SELECT MAX(Step) FROM schema_steps", soci::into(step, indicator));
    if (indicator == soci::i_null || step < static_cast<int>(std::size(Steps)))
        throw std::runtime_error("the database lacks a step of its schema");
}

} // namespace exchange::Schema
