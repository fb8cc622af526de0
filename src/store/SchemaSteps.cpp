#include "store/SchemaSteps.h"

#include <iterator>

namespace {
// Generated keys are AUTOINCREMENT, so that none is given twice. A food's key is not: the next
// custom food gets the highest key plus 1. Texts use the collation for A to Z that every tool has.
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

// The index holds every column that a search reads, so a search never reads the table. NDB_No is
// the food's number in the release: it traces each figure.
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

// In FOODS, Ingredients and USER_FOODS the nutrients are at positions 1 to 31 in the order of the
// sums over a recipe, because amounts are copied by position. This step moves values by name. Keys
// of deleted ingredients are still not given again.
constexpr auto UsersStep2 = R"(
CREATE TEMP TABLE moved AS SELECT * FROM main.Ingredients;
CREATE TEMP TABLE highest AS SELECT seq FROM main.sqlite_sequence WHERE name = 'Ingredients';
DROP TABLE main.Ingredients;

CREATE TABLE Ingredients (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    VitaminC REAL, VitaminE REAL, VitaminB12 REAL, VitaminB6 REAL, VitaminA REAL, SatFat REAL,
    Potassium REAL, PolyFat REAL, MonoFat REAL, Folate REAL, Water REAL, Calories REAL,
    Protein REAL, TotalFat REAL, carbs REAL, fiber REAL, Ash REAL, Calcium REAL, Phosphorus REAL,
    Iron REAL, Sodium REAL, Magnesium REAL, Panto REAL, Zinc REAL, Copper REAL, Manganese REAL,
    Selenium REAL, Thiamin REAL, Riboflavin REAL, Niacin REAL, Cholesterol REAL,
    FoodName TEXT COLLATE NOCASE, Serving TEXT COLLATE NOCASE, RecipeID INTEGER,
    QTY REAL DEFAULT 1);
INSERT INTO Ingredients SELECT ID,
    VitaminC, VitaminE, VitaminB12, VitaminB6, VitaminA, SatFat, Potassium, PolyFat, MonoFat,
    Folate, Water, Calories, Protein, TotalFat, carbs, fiber, Ash, Calcium, Phosphorus, Iron,
    Sodium, Magnesium, Panto, Zinc, Copper, Manganese, Selenium, Thiamin, Riboflavin, Niacin,
    Cholesterol,
    FoodName, Serving, RecipeID, QTY FROM temp.moved;
CREATE INDEX Ingredients_Recipe ON Ingredients (RecipeID);

DELETE FROM sqlite_sequence WHERE name = 'Ingredients';
INSERT INTO sqlite_sequence SELECT 'Ingredients', seq FROM temp.highest;
DROP TABLE temp.moved;
DROP TABLE temp.highest;
)";

constexpr auto FoodsStep2 = R"(
CREATE TEMP TABLE moved AS SELECT * FROM main.FOODS;
DROP TABLE main.FOODS;

CREATE TABLE FOODS (
    ID INTEGER PRIMARY KEY,
    VitaminC REAL, VitaminE REAL, VitaminB12 REAL, VitaminB6 REAL, VitaminA REAL, SatFat REAL,
    Potassium REAL, PolyFat REAL, MonoFat REAL, Folate REAL, water REAL, Calories REAL,
    protein REAL, TotalFat REAL, carbs REAL, fiber REAL, ASH REAL, Calcium REAL, Phosphorus REAL,
    Iron REAL, sodium REAL, Magnesium REAL, Panto REAL, Zinc REAL, Copper REAL, Manganese REAL,
    Selenium REAL, Thiamin REAL, Riboflavin REAL, Niacin REAL, Cholesterol REAL,
    FoodName TEXT COLLATE NOCASE, Serv_Desc_A TEXT COLLATE NOCASE, Serv_Desc_B TEXT COLLATE NOCASE,
    Serv_GM_WT_A REAL, Serv_GM_WT_B REAL, NDB_No TEXT COLLATE NOCASE);
INSERT INTO FOODS SELECT ID,
    VitaminC, VitaminE, VitaminB12, VitaminB6, VitaminA, SatFat, Potassium, PolyFat, MonoFat,
    Folate, water, Calories, protein, TotalFat, carbs, fiber, ASH, Calcium, Phosphorus, Iron,
    sodium, Magnesium, Panto, Zinc, Copper, Manganese, Selenium, Thiamin, Riboflavin, Niacin,
    Cholesterol,
    FoodName, Serv_Desc_A, Serv_Desc_B, Serv_GM_WT_A, Serv_GM_WT_B, NDB_No FROM temp.moved;
CREATE INDEX FOODS_Name ON FOODS (FoodName, Serv_Desc_A, Serv_Desc_B);

DROP TABLE temp.moved;
)";

// The index of names (NameIndex.h). It holds each trigram of each name once, without its place, so
// the delivered file grows by only a tenth. It is filled in the order of the keys: the store's own
// command for this takes twice as long. A file whose version was set back has it already.
constexpr auto FoodsStep3 = R"(
DROP TABLE IF EXISTS FOODS_Trigrams;
CREATE VIRTUAL TABLE FOODS_Trigrams USING fts5(
    FoodName, content='FOODS', content_rowid='ID', tokenize='trigram', detail=none, columnsize=0);
INSERT INTO FOODS_Trigrams (rowid, FoodName) SELECT ID, FoodName FROM FOODS ORDER BY ID;
CREATE INDEX FOODS_Unindexed ON FOODS (ID) WHERE instr(FoodName, char(0)) > 0;
CREATE TRIGGER FOODS_Trigrams_Added AFTER INSERT ON FOODS BEGIN
    INSERT INTO FOODS_Trigrams (rowid, FoodName) VALUES (new.ID, new.FoodName);
END;
CREATE TRIGGER FOODS_Trigrams_Removed AFTER DELETE ON FOODS BEGIN
    INSERT INTO FOODS_Trigrams (FOODS_Trigrams, rowid, FoodName)
        VALUES ('delete', old.ID, old.FoodName);
END;
CREATE TRIGGER FOODS_Trigrams_Changed AFTER UPDATE OF ID, FoodName ON FOODS
WHEN old.ID <> new.ID OR old.FoodName IS NOT new.FoodName BEGIN
    INSERT INTO FOODS_Trigrams (FOODS_Trigrams, rowid, FoodName)
        VALUES ('delete', old.ID, old.FoodName);
    INSERT INTO FOODS_Trigrams (rowid, FoodName) VALUES (new.ID, new.FoodName);
END;
)";

constexpr Schema::Step Steps[] = {
    {UsersStep1, FoodsStep1}, {UsersStep2, FoodsStep2}, {"", FoodsStep3}};
static_assert(std::size(Steps) == Schema::Version);
} // namespace

std::span<const Schema::Step> SchemaSteps() {
    return Steps;
}
