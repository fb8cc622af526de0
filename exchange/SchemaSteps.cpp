#include "exchange/SchemaSteps.h"

#include "exchange/ColumnOrderStep.h"
#include "exchange/SearchStep.h"

#include <initializer_list>

namespace exchange::SchemaSteps {
namespace {
void Run(Connection& connection, std::initializer_list<const char*> statements) {
    for (const auto* statement : statements)
        connection.Once(statement);
}

// A recipe is unfinished while SentAt is 0. `documents` has the replies for readers, written once
// when the recipe is sent: no unsent recipe can be read. `listing` has only public recipes, and
// `words` is their index. Times are microseconds since 1970.
void MakeTables(Connection& connection) {
    Run(connection,
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
            " RecipeName TEXT NOT NULL, ServingName TEXT NOT NULL, PrepTime DOUBLE PRECISION NOT "
            "NULL,"
            " Calories DOUBLE PRECISION, PRIMARY KEY (ListedAt, RecipeID))",
            "CREATE TABLE words (Word TEXT NOT NULL, ListedAt BIGINT NOT NULL,"
            " RecipeID INTEGER NOT NULL, PRIMARY KEY (Word, ListedAt, RecipeID))",
            "CREATE TABLE counters (Name TEXT NOT NULL, Slot BIGINT NOT NULL, Hits INTEGER NOT "
            "NULL,"
            " PRIMARY KEY (Name, Slot))",
            "CREATE INDEX counters_old ON counters (Slot)",
        });
}

void MakeModerationTables(Connection& connection) {
    Run(connection,
        {
            "CREATE TABLE reports ("
            " RecipeID INTEGER NOT NULL REFERENCES recipes ON DELETE CASCADE,"
            " ReportedAt BIGINT NOT NULL, Complaint TEXT NOT NULL, Words TEXT NOT NULL,"
            " PRIMARY KEY (RecipeID, ReportedAt))",
            "CREATE TABLE no_mail (Digest TEXT NOT NULL PRIMARY KEY, Since BIGINT NOT NULL)",
        });
}

/// Mails that wait. They have their own addresses, since those of the recipe may be deleted
/// earlier.
void MakeOutbox(Connection& connection) {
    Run(connection, {"CREATE TABLE outbox ("
                     " RecipeID INTEGER NOT NULL PRIMARY KEY REFERENCES recipes ON DELETE CASCADE,"
                     " Sender TEXT NOT NULL, Recipient TEXT NOT NULL, MessageID TEXT NOT NULL,"
                     " QueuedAt BIGINT NOT NULL, Due BIGINT NOT NULL, Tries INTEGER NOT NULL)",
                     "CREATE INDEX outbox_due ON outbox (Due)"});
}

constexpr Step Steps[] = {MakeTables, ColumnOrderStep::Take, MakeModerationTables, SearchStep::Take,
                          MakeOutbox};
} // namespace

std::span<const Step> All() {
    return Steps;
}

} // namespace exchange::SchemaSteps
