#include "VersionOne.h"

#include "store/Schema.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr auto UsersTables = R"(
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

constexpr auto FoodsTable = R"(
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

constexpr auto UsersRows = R"(
INSERT INTO profiles (UserName, gender, age, Calories, VitaminA) VALUES ('Änne', 0, 41.5, 2000, NULL);
INSERT INTO USER_FOODS (UID, FoodName, Serving, ID, Meal, UDate, QTY, Calories, Cholesterol)
    VALUES (1, 'Butter, salted', '1 tbsp', 16096, 'Lunch', '2026-11-21', 1.5, 101.8, 30.5);
INSERT INTO USER_WEIGHTS VALUES (1, '2026-11-21', 151.5);
INSERT INTO Recipes (RecipeName, ServingName, RecipeYield, Instructions, PrepTime)
    VALUES ('Soup', '1 bowl', 4, 'Cook.', 30), ('Pie', '1 slice', 8, NULL, NULL);
)";

// Ingredients 1 and 2 and the one with the highest key were deleted.
constexpr auto IngredientRows = R"(
WITH RECURSIVE row (key) AS (SELECT 3 UNION ALL SELECT key + 1 FROM row WHERE key < 2 + ?)
INSERT INTO Ingredients (ID, FoodName, Serving, RecipeID, QTY)
    SELECT key, 'Food ' || key, CASE key WHEN 4 THEN NULL ELSE '1 cup' END, 1,
           CASE key WHEN 5 THEN NULL ELSE key + 0.5 END FROM row;
)";

constexpr auto FoodRows = R"(
INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Serv_Desc_B, Serv_GM_WT_A, Serv_GM_WT_B, NDB_No) VALUES
    (16096, 'Butter, salted', '1 cup', '1 tbsp', 227, 14.2, '01001'),
    (23508, 'Turtle, green, raw', '3 oz', NULL, 85, NULL, '93600'),
    (23509, 'Äpfel''s "best"', '1 piece', NULL, 100, NULL, NULL),
    (23511, NULL, NULL, NULL, NULL, NULL, NULL);
)";

SQLite::Database Make(const QString& path, DatabaseKind kind, const char* tables) {
    SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    file.exec("PRAGMA synchronous = OFF");
    file.exec("PRAGMA application_id = " + std::to_string(Schema::ApplicationId(kind)));
    file.exec(tables);
    file.exec("PRAGMA user_version = 1");
    return file;
}

/// All nutrients of the first row are unknown.
void FillAmounts(SQLite::Database& file, const std::string& table) {
    SQLite::Statement columns(file,
                              "SELECT name FROM pragma_table_info(?) WHERE cid BETWEEN 1 AND 31");
    columns.bind(1, table);
    while (columns.executeStep()) {
        const std::string name = columns.getColumn(0).getString();
        SQLite::Statement fill(file, "UPDATE " + table + " SET " + name +
                                         " = ? + ID / 1024.0 WHERE ID > "
                                         "(SELECT min(ID) FROM " +
                                         table + ")");
        fill.bind(1, VersionOne::Amount(QString::fromStdString(name), 0));
        fill.exec();
    }
}
} // namespace

double VersionOne::Amount(const QString& column, int key) {
    int sum = 0;
    for (const QChar letter : column.toLower())
        sum = (sum * 31 + letter.unicode()) % 100003;
    return sum + key / 1024.0;
}

void VersionOne::MakeUsers(const QString& path, int ingredients) {
    SQLite::Database file = Make(path, DatabaseKind::Users, UsersTables);
    file.exec(UsersRows);
    SQLite::Statement rows(file, IngredientRows);
    rows.bind(1, ingredients);
    rows.exec();
    file.exec(
        "INSERT INTO Ingredients (ID) VALUES (90000); DELETE FROM Ingredients WHERE ID = 90000");
    FillAmounts(file, "Ingredients");
}

void VersionOne::MakeFoods(const QString& path) {
    SQLite::Database file = Make(path, DatabaseKind::Foods, FoodsTable);
    file.exec(FoodRows);
    FillAmounts(file, "FOODS");
}
