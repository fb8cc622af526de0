#include "store/Schema.h"

#include "store/StoreError.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
// The order of the nutrient columns is relied upon: writers walk positions 1 to 31 of USER_FOODS,
// and Ingredients has the order of FOODS. Generated keys are AUTOINCREMENT, so that none is given
// out twice; the key of a food is not, as the next custom food takes the highest one plus 1.
// Texts fold A to Z with the collation that every tool has.
constexpr auto UsersStep1 = R"(
CREATE TABLE profiles (
    UID INTEGER PRIMARY KEY AUTOINCREMENT,
    UserName TEXT COLLATE NOCASE,
    gender INTEGER, age REAL, height INTEGER, current_weight INTEGER, desired_weight INTEGER,
    activity_level INTEGER, flagsodium BOOLEAN DEFAULT 0, flagcholesterol BOOLEAN DEFAULT 0,
    sodiumMAX INTEGER, cholesterolMAX INTEGER,
    Calories INTEGER, protein REAL, carbs REAL, TotalFat REAL, SatFat REAL, PolyFat REAL,
    MonoFat REAL, fiber REAL, water REAL,
    Cholesterol INTEGER, sodium INTEGER, Calcium INTEGER, Folate INTEGER, Magnesium INTEGER,
    Phosphorus INTEGER, Potassium INTEGER,
    ASH REAL, Copper REAL, Iron REAL, Manganese REAL, Niacin REAL, Panto REAL, Riboflavin REAL,
    Selenium REAL, Thiamin REAL, VitaminA REAL, VitaminB12 REAL, VitaminB6 REAL, VitaminC REAL,
    VitaminE REAL, Zinc REAL);

CREATE TABLE RDI (
    Profile TEXT COLLATE NOCASE,
    Calcium REAL, Cholesterol REAL, Folate REAL, Magnesium REAL, Phosphorus REAL,
    Ash REAL, Copper REAL, Iron REAL, Manganese REAL, Niacin REAL, Panto REAL, Riboflavin REAL,
    Selenium REAL, Thiamin REAL, VitaminA REAL, VitaminB12 REAL, VitaminB6 REAL, VitaminC REAL,
    VitaminE REAL, Zinc REAL);

CREATE TABLE USER_FOODS (
    RecID INTEGER PRIMARY KEY AUTOINCREMENT,
    VitaminC REAL, VitaminE REAL, VitaminB12 REAL, VitaminB6 REAL, VitaminA REAL, SatFat REAL,
    Potassium REAL, PolyFat REAL, MonoFat REAL, Folate REAL, Water REAL, Calories REAL,
    Protein REAL, TotalFat REAL, carbs REAL, fiber REAL, Ash REAL, Calcium REAL, Phosphorus REAL,
    Iron REAL, Sodium REAL, Magnesium REAL, Panto REAL, Zinc REAL, Copper REAL, Manganese REAL,
    Selenium REAL, Thiamin REAL, Riboflavin REAL, Niacin REAL, Cholesterol REAL,
    UID INTEGER, FoodName TEXT COLLATE NOCASE, Serving TEXT COLLATE NOCASE, ID INTEGER,
    Meal TEXT COLLATE NOCASE, UDate DATE, QTY REAL);
CREATE INDEX USER_FOODS_Day ON USER_FOODS (UID, UDate);

CREATE TABLE USER_WEIGHTS (UID INTEGER, UDate DATE, Weight REAL);
CREATE INDEX USER_WEIGHTS_Day ON USER_WEIGHTS (UID, UDate);

CREATE TABLE Recipes (
    RecipeID INTEGER PRIMARY KEY AUTOINCREMENT,
    RecipeName TEXT COLLATE NOCASE, ServingName TEXT COLLATE NOCASE, RecipeYield REAL,
    Instructions TEXT COLLATE NOCASE, PrepTime REAL);
CREATE INDEX Recipes_Name ON Recipes (RecipeName, ServingName);

CREATE TABLE Ingredients (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Calories REAL, TotalFat REAL, SatFat REAL, MonoFat REAL, PolyFat REAL, Cholesterol REAL,
    Sodium REAL, carbs REAL, fiber REAL, Protein REAL, Calcium REAL, Copper REAL, Folate REAL,
    Iron REAL, Magnesium REAL, Manganese REAL, Niacin REAL, Panto REAL, Phosphorus REAL,
    Potassium REAL, Riboflavin REAL, Selenium REAL, Thiamin REAL, VitaminA REAL, VitaminB12 REAL,
    VitaminB6 REAL, VitaminC REAL, VitaminE REAL, Zinc REAL, Ash REAL, Water REAL,
    FoodName TEXT COLLATE NOCASE, Serving TEXT COLLATE NOCASE, RecipeID INTEGER, QTY REAL);
CREATE INDEX Ingredients_Recipe ON Ingredients (RecipeID);
)";

// The index holds every column that a search reads, so that a search never touches the table.
// NDB_No is the number that the release gives the food, by which each figure can be traced.
constexpr auto FoodsStep1 = R"(
CREATE TABLE FOODS (
    ID INTEGER PRIMARY KEY,
    Calories REAL, TotalFat REAL, SatFat REAL, MonoFat REAL, PolyFat REAL, Cholesterol REAL,
    sodium REAL, carbs REAL, fiber REAL, protein REAL, Calcium REAL, Copper REAL, Folate REAL,
    Iron REAL, Magnesium REAL, Manganese REAL, Niacin REAL, Panto REAL, Phosphorus REAL,
    Potassium REAL, Riboflavin REAL, Selenium REAL, Thiamin REAL, VitaminA REAL, VitaminB12 REAL,
    VitaminB6 REAL, VitaminC REAL, VitaminE REAL, Zinc REAL, ASH REAL, water REAL,
    FoodName TEXT COLLATE NOCASE, Serv_Desc_A TEXT COLLATE NOCASE, Serv_Desc_B TEXT COLLATE NOCASE,
    Serv_GM_WT_A REAL, Serv_GM_WT_B REAL, NDB_No TEXT COLLATE NOCASE);
CREATE INDEX FOODS_Name ON FOODS (FoodName, Serv_Desc_A, Serv_Desc_B);
)";

constexpr Schema::Step Steps[] = {{UsersStep1, FoodsStep1}};
static_assert(std::size(Steps) == Schema::Version);

void Run(SQLite::Database& database, const char* step, int version) {
    SQLite::Transaction transaction(database);
    database.exec(step);
    database.exec("PRAGMA user_version = " + std::to_string(version));
    transaction.commit();
}
} // namespace

qint32 Schema::ApplicationId(DatabaseKind kind) {
    return kind == DatabaseKind::Users ? 0x48414C55 : 0x48414C46;
}

void Schema::Create(const QString& path, DatabaseKind kind) {
    if (QFile::exists(path))
        throw StoreError::Make(SQLITE_CANTOPEN, path, QStringLiteral("it is there already"));
    StoreError::Guarded(path, [&] {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        database.exec("PRAGMA application_id = " + std::to_string(ApplicationId(kind)));
        Migrate(database, kind);
    });
}

void Schema::Migrate(SQLite::Database& database, DatabaseKind kind) {
    Migrate(database, kind, Steps);
}

void Schema::Migrate(SQLite::Database& database, DatabaseKind kind, std::span<const Step> steps) {
    const int from = database.execAndGet("PRAGMA user_version").getInt();
    for (size_t i = static_cast<size_t>(from); i < steps.size(); ++i)
        Run(database, kind == DatabaseKind::Users ? steps[i].users : steps[i].foods,
            static_cast<int>(i) + 1);
}
