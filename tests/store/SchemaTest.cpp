#include "StoreTest.h"

#include "store/Schema.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
const QStringList NutrientColumns =
    QStringLiteral("VitaminC VitaminE VitaminB12 VitaminB6 VitaminA SatFat Potassium PolyFat "
                   "MonoFat Folate Water "
                   "Calories Protein TotalFat carbs fiber Ash Calcium Phosphorus Iron Sodium "
                   "Magnesium Panto Zinc "
                   "Copper Manganese Selenium Thiamin Riboflavin Niacin Cholesterol")
        .split(u' ');
} // namespace

class SchemaTest : public StoreTest {
protected:
    QStringList ColumnsOf(Connection& connection, const char* table) {
        return Column(connection,
                      QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(table));
    }
    QString TypesOf(Connection& connection, const char* table) {
        return Column(connection,
                      QStringLiteral("SELECT name || ' ' || type FROM pragma_table_info('%1')")
                          .arg(table))
            .join(", ");
    }
};

TEST_F(SchemaTest, TheTablesAreThere) {
    EXPECT_EQ(
        Column(users_, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE "
                       "'sqlite%' ORDER BY name"),
        QStringList({"Ingredients", "RDI", "Recipes", "USER_FOODS", "USER_WEIGHTS", "profiles"}));
    EXPECT_EQ(Column(foods_, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT "
                             "LIKE 'FOODS_Trigrams%'"),
              QStringList({"FOODS"}));
}

TEST_F(SchemaTest, TheNutrientsOfTheLogStandAtOneToThirtyOne) {
    const QStringList columns = ColumnsOf(users_, "USER_FOODS");
    EXPECT_EQ(columns.first(), "RecID");
    EXPECT_EQ(columns.mid(1, 31), NutrientColumns);
    EXPECT_EQ(columns.mid(32),
              QStringList({"UID", "FoodName", "Serving", "ID", "Meal", "UDate", "QTY"}));
}

TEST_F(SchemaTest, TheNutrientsOfAFoodStandAtOneToThirtyOne) {
    const QStringList columns = ColumnsOf(foods_, "FOODS");
    EXPECT_EQ(columns.first(), "ID");
    for (int i = 1; i <= 31; ++i)
        EXPECT_EQ(columns[i].toLower(), NutrientColumns[i - 1].toLower());
    EXPECT_EQ(columns.mid(32), QStringList({"FoodName", "Serv_Desc_A", "Serv_Desc_B",
                                            "Serv_GM_WT_A", "Serv_GM_WT_B", "NDB_No"}));
}

TEST_F(SchemaTest, TheNutrientsOfAnIngredientStandAtOneToThirtyOne) {
    const QStringList columns = ColumnsOf(users_, "Ingredients");
    EXPECT_EQ(columns.first(), "ID");
    EXPECT_EQ(columns.mid(1, 31), NutrientColumns);
    EXPECT_EQ(columns.mid(32), QStringList({"FoodName", "Serving", "RecipeID", "QTY"}));
}

TEST_F(SchemaTest, ProfilesAndReferencesHaveTheirColumns) {
    EXPECT_EQ(TypesOf(users_, "profiles"),
              "UID INTEGER, UserName TEXT, gender INTEGER, age REAL, height INTEGER, "
              "current_weight INTEGER, desired_weight INTEGER, activity_level INTEGER, "
              "flagsodium BOOLEAN, flagcholesterol BOOLEAN, sodiumMAX INTEGER, "
              "cholesterolMAX INTEGER, Calories INTEGER, protein REAL, carbs REAL, TotalFat REAL, "
              "SatFat REAL, PolyFat REAL, MonoFat REAL, fiber REAL, water REAL, "
              "Cholesterol INTEGER, sodium INTEGER, Calcium INTEGER, Folate INTEGER, "
              "Magnesium INTEGER, Phosphorus INTEGER, Potassium INTEGER, ASH REAL, Copper REAL, "
              "Iron REAL, Manganese REAL, Niacin REAL, Panto REAL, Riboflavin REAL, Selenium REAL, "
              "Thiamin REAL, VitaminA REAL, VitaminB12 REAL, VitaminB6 REAL, VitaminC REAL, "
              "VitaminE REAL, Zinc REAL");
    EXPECT_EQ(ColumnsOf(users_, "RDI").size(), 21);
    EXPECT_EQ(TypesOf(users_, "USER_WEIGHTS"), "UID INTEGER, UDate DATE, Weight REAL");
    EXPECT_EQ(TypesOf(users_, "Recipes"), "RecipeID INTEGER, RecipeName TEXT, ServingName TEXT, "
                                          "RecipeYield REAL, Instructions TEXT, PrepTime REAL");
}

TEST_F(SchemaTest, FilesAreReadByAPlainTool) {
    users_.Close();
    SQLite::Database plain(UsersFile().toStdString(), SQLite::OPEN_READONLY);
    EXPECT_EQ(plain.execAndGet("PRAGMA integrity_check").getString(), "ok");
    EXPECT_EQ(plain.execAndGet("PRAGMA user_version").getInt(), Schema::Version);
    EXPECT_EQ(plain.execAndGet("SELECT count(*) FROM profiles WHERE UserName = 'x'").getInt(), 0);
}

TEST_F(SchemaTest, FilesFromTheOldestReadableVersionToThisOneCanBeRead) {
    for (int version = 0; version <= Schema::Version + 1; ++version)
        EXPECT_EQ(Schema::CanBeRead(version), version == 2 || version == 3) << version;
}

TEST_F(SchemaTest, TheMarkInTheHeaderTellsTheKind) {
    EXPECT_EQ(First(users_, "PRAGMA application_id"), Schema::ApplicationId(DatabaseKind::Users));
    EXPECT_EQ(First(foods_, "PRAGMA application_id"), Schema::ApplicationId(DatabaseKind::Foods));
    EXPECT_NE(Schema::ApplicationId(DatabaseKind::Users),
              Schema::ApplicationId(DatabaseKind::Foods));
}

TEST_F(SchemaTest, AFileThatIsThereIsNotMadeAnew) {
    users_.Close();
    const QByteArray before = Contents(UsersFile());
    EXPECT_LT(ErrorOf([&] { Schema::Create(UsersFile(), DatabaseKind::Users); }), 0);
    EXPECT_TRUE(Contents(UsersFile()) == before);
}

TEST_F(SchemaTest, AFileInAFolderThatIsNotThereIsNotMade) {
    EXPECT_EQ(ErrorOf([&] { Schema::Create(File("none/users.mdb"), DatabaseKind::Users); }), -14);
}

TEST_F(SchemaTest, StepsRunInOrderFromTheVersionOfTheFile) {
    const Schema::Step steps[] = {
        {"SELECT 1", "this would fail"},
        {"CREATE TABLE two (a); INSERT INTO two VALUES (2)", "CREATE TABLE two (a)"},
        {"ALTER TABLE two ADD COLUMN b; UPDATE two SET b = 3", "ALTER TABLE two RENAME TO three"},
    };
    Run(users_, "PRAGMA user_version = 1");
    Run(foods_, "PRAGMA user_version = 1");
    Schema::Migrate(users_.Raw(), DatabaseKind::Users, steps);
    EXPECT_EQ(First(users_, "SELECT a || b FROM two"), "23");
    EXPECT_EQ(First(users_, "PRAGMA user_version"), 3);
    Schema::Migrate(foods_.Raw(), DatabaseKind::Foods, steps);
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM three"), 0);
    Schema::Migrate(foods_.Raw(), DatabaseKind::Foods, steps);
    EXPECT_EQ(First(foods_, "PRAGMA user_version"), 3);
}

TEST_F(SchemaTest, AStepThatFailsLeavesTheVersionBeforeIt) {
    const Schema::Step steps[] = {
        {"", ""},
        {"CREATE TABLE two (a)", ""},
        {"CREATE TABLE three (a); INSERT INTO nowhere VALUES (1)", ""},
        {"CREATE TABLE four (a)", ""},
    };
    Run(users_, "PRAGMA user_version = 1");
    EXPECT_THROW(Schema::Migrate(users_.Raw(), DatabaseKind::Users, steps), SQLite::Exception);
    EXPECT_EQ(First(users_, "PRAGMA user_version"), 2);
    EXPECT_EQ(
        Column(users_, "SELECT name FROM sqlite_schema WHERE name IN ('two', 'three', 'four')"),
        QStringList({"two"}));
}

TEST_F(SchemaTest, OpeningAnOlderFileBringsItUpToDate) {
    foods_.Close();
    {
        SQLite::Database older(FoodsFile().toStdString(), SQLite::OPEN_READWRITE);
        older.exec("DROP TABLE FOODS");
        older.exec("CREATE TABLE before_versions (a)");
        older.exec("PRAGMA user_version = 0");
    }
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 0);
    EXPECT_EQ(First(foods_, "PRAGMA user_version"), Schema::Version);
}
