#include "CommandTest.h"

#include "commands/Session.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/AppPath.h"
#include "store/Connection.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int Stock = 20000;
constexpr int OwnFood = 23509;
constexpr auto OwnFoodName = "Grandmother's pie, \"warm\"";

class TableTest : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        Open();
        anna = AddUser("Anna");
        CloseDatabases();
    }
    static void Open() {
        UserDB().Open(FileBeside("users.mdb"), DatabaseKind::Users);
        FoodDB().Open(FileBeside("foods.mdb"), DatabaseKind::Foods);
    }
    /// Runs statements on users.mdb while no command runs.
    void Change(const QString& sql) {
        Open();
        UserDB().Raw().exec(sql.toStdString());
        CloseDatabases();
    }
    /// An own food with calories and sodium alone: 40 grams a serving.
    void AddOwnFood() {
        Open();
        InsertOwnFood();
        CloseDatabases();
    }
    static void InsertOwnFood() {
        SQLite::Statement insert(FoodDB().Raw(),
                                 "INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Serv_GM_WT_A, "
                                 "Calories, sodium) VALUES (?, ?, '1 slice', 40, 250, 0)");
        insert.bind(1, OwnFood);
        insert.bind(2, OwnFoodName);
        insert.exec();
    }
    /// Each nutrient gets an amount of its own, beginning with `first`.
    void Eat(const QString& day, int key, const char* name, const char* serving, double quantity,
             double first) {
        Open();
        Insert(day, key, name, serving, quantity, first);
        CloseDatabases();
    }
    void Insert(const QString& day, int key, const char* name, const char* serving, double quantity,
                double first) {
        std::string columns = "UID, UDate, Meal, FoodName, Serving, ID, QTY";
        std::string values = "?, ?, 'Lunch', ?, ?, ?, ?";
        for (const NutrientInfo& nutrient : Nutrients()) {
            columns += std::string(", ") + nutrient.logColumn;
            values += ", " + std::to_string(first == 0 ? 0 : first + double(nutrient.id) / 8);
        }
        SQLite::Statement insert(UserDB().Raw(), "INSERT INTO USER_FOODS (" + columns +
                                                     ") VALUES (" + values + ")");
        insert.bind(1, anna);
        insert.bind(2, day.toStdString());
        insert.bind(3, name);
        insert.bind(4, serving);
        insert.bind(5, key);
        insert.bind(6, quantity);
        insert.exec();
    }
    QJsonArray Json(const QStringList& arguments) const {
        const Run run = Command(QStringList{"table", "--format", "json"} + arguments);
        EXPECT_EQ(run.code, Done) << run.error.toStdString();
        return QJsonDocument::fromJson(run.out.toUtf8()).array();
    }
    static QString Key(const NutrientInfo& nutrient) {
        QString key = nutrient.property;
        key[0] = key[0].toLower();
        return key;
    }
    /// Each row of the table against the row of a statement with the nutrients in their order.
    void ExpectAmounts(const QJsonArray& rows, Connection& connection, const QString& select,
                       const char* NutrientInfo::*name, const QString& from) {
        QStringList columns;
        for (const NutrientInfo& nutrient : Nutrients())
            columns << select.arg(QLatin1String(nutrient.*name));
        Open();
        const auto expected = Rows(connection, "SELECT " + columns.join(',') + " FROM " + from);
        CloseDatabases();
        ASSERT_EQ(rows.size(), expected.size());
        for (qsizetype row = 0; row < rows.size(); ++row)
            for (const NutrientInfo& nutrient : Nutrients()) {
                const QVariant value = expected[row][int(nutrient.id)];
                const QJsonValue found = rows[row].toObject()[Key(nutrient)];
                EXPECT_EQ(found.isNull(), !value.isValid()) << nutrient.property;
                EXPECT_NEAR(found.toDouble(), value.toDouble(), 1e-9) << nutrient.property;
            }
    }
    QString StockName(int id) {
        Open();
        const QString name =
            Foods("SELECT FoodName FROM FOODS WHERE ID = " + QString::number(id)).toString();
        CloseDatabases();
        return name;
    }

    qint32 anna = 0;
};
} // namespace

TEST_F(TableTest, TheLogHasARowForEachEntryWithItsAmounts) {
    Eat("2026-03-02", 1, "Oats", "1 cup", 2, 10);
    Eat("2026-03-01", 7, "=Tea", "1 mug", 0.5, 3.25);
    const QJsonArray rows = Json({"log"});
    ExpectAmounts(rows, UserDB(), "%1", &NutrientInfo::logColumn, "USER_FOODS ORDER BY UDate");
    const QJsonObject tea = rows[0].toObject();
    EXPECT_EQ(tea["date"], "2026-03-01");
    EXPECT_EQ(tea["meal"], "Lunch");
    EXPECT_EQ(tea["food"], "=Tea");
    EXPECT_EQ(tea["serving"], "1 mug");
    EXPECT_EQ(tea["quantity"], 0.5);
    EXPECT_EQ(tea["key"], 7);
    EXPECT_TRUE(tea["releaseNumber"].isNull());
}

TEST_F(TableTest, AStockFoodCarriesItsNumberInTheRelease) {
    Eat("2026-03-01", Stock, StockName(Stock).toUtf8().constData(), "1 cup", 1, 10);
    Open();
    const QString number = Foods("SELECT NDB_No FROM FOODS WHERE ID = 20000").toString();
    CloseDatabases();
    ASSERT_FALSE(number.isEmpty());
    EXPECT_EQ(Json({"log"})[0].toObject()["releaseNumber"], number);
}

TEST_F(TableTest, AnAmountThatTheCatalogueDoesNotKnowIsEmptyAndAZeroThatItKnowsIsZero) {
    AddOwnFood();
    Eat("2026-03-01", OwnFood, OwnFoodName, "1 slice", 2, 0);
    Eat("2026-03-01", OwnFood, "A recipe with the same key", "1 slice", 2, 0);
    const QJsonArray rows = Json({"log"});
    EXPECT_EQ(rows[0].toObject()["sodium"], 0);
    EXPECT_TRUE(rows[0].toObject()["iron"].isNull());
    EXPECT_EQ(rows[1].toObject()["iron"], 0);
}

TEST_F(TableTest, AnAmountThatWasKnownWhenItWasLoggedStays) {
    AddOwnFood();
    Eat("2026-03-01", OwnFood, OwnFoodName, "1 slice", 2, 10);
    EXPECT_GT(Json({"log"})[0].toObject()["iron"].toDouble(), 10);
}

TEST_F(TableTest, OnlyThePersonAndTheDaysThatAreAskedFor) {
    for (const char* day : {"2026-02-28", "2026-03-01", "2026-03-31", "2026-04-01"})
        Eat(day, 1, "Oats", "1 cup", 1, 10);
    Open();
    AddUser("Berta");
    CloseDatabases();
    EXPECT_EQ(Json({"log", "--from", "2026-03-01", "--to", "2026-03-31"}).size(), 2);
    EXPECT_EQ(Json({"log", "--from", "2026-03-31"}).size(), 2);
    EXPECT_EQ(Json({"log", "--profile", "berta"}).size(), 0);
}

TEST_F(TableTest, ADayHasTotalsTargetsPercentsAndCoverage) {
    AddOwnFood();
    Eat("2026-03-01", OwnFood, OwnFoodName, "1 slice", 2, 0);      // 80 grams, of unknown iron
    Eat("2026-03-01", 1, "From a restaurant", "1 plate", 1.2, 10); // counts as 120 grams
    Eat("2026-03-02", 1, "From a restaurant", "1 plate", 1, 10);
    const QJsonArray rows = Json({"days"});
    ExpectAmounts(rows, UserDB(), "Sum(%1)", &NutrientInfo::logColumn,
                  "USER_FOODS GROUP BY UDate ORDER BY UDate");
    const QJsonObject first = rows[0].toObject();
    EXPECT_EQ(first["date"], "2026-03-01");
    EXPECT_EQ(first["entries"], 2);
    EXPECT_EQ(first["grams"], 200);
    EXPECT_EQ(first["sodiumCoverage"], 100);
    EXPECT_EQ(first["ironCoverage"], 60);
    EXPECT_EQ(first["ironTarget"], 8);
    EXPECT_DOUBLE_EQ(first["ironPercent"].toDouble(), first["iron"].toDouble() / 8 * 100);
    EXPECT_TRUE(first["ashPercent"].isNull()) << "there is no target";
}

TEST_F(TableTest, ATotalOfWhichNothingIsKnownIsEmpty) {
    AddOwnFood();
    Eat("2026-03-01", OwnFood, OwnFoodName, "1 slice", 2, 0);
    const QJsonObject day = Json({"days"})[0].toObject();
    EXPECT_TRUE(day["iron"].isNull());
    EXPECT_TRUE(day["ironPercent"].isNull());
    EXPECT_EQ(day["ironCoverage"], 0);
    EXPECT_EQ(day["sodium"], 0);
}

TEST_F(TableTest, WeightsStandInTheOrderOfTheirDays) {
    Change(QString("INSERT INTO USER_WEIGHTS VALUES (%1,'2026-03-02',150.5), (%1,'2026-03-01',151),"
                   "(%1,'2026-03-03',0), (99,'2026-03-01',200)")
               .arg(anna));
    EXPECT_EQ(Command({"table", "weights"}).out,
              "Date,Weight (lb)\r\n2026-03-01,151\r\n2026-03-02,150.5\r\n");
}

TEST_F(TableTest, FoodsAreThoseOfTheReleaseAndOnesOwnWithTheirAmounts) {
    AddOwnFood();
    const QJsonArray rows = Json({"foods"});
    ExpectAmounts(rows, FoodDB(), "%1", &NutrientInfo::profileColumn, "FOODS ORDER BY ID");
    const QJsonObject own = rows.last().toObject();
    EXPECT_EQ(own["key"], OwnFood);
    EXPECT_EQ(own["kind"], "own");
    EXPECT_EQ(own["food"], OwnFoodName);
    EXPECT_EQ(own["servingA"], "1 slice");
    EXPECT_EQ(own["gramsA"], 40);
    EXPECT_TRUE(own["servingB"].isNull());
    EXPECT_EQ(own["amountsFor"], "serving");
    EXPECT_EQ(rows[0].toObject()["kind"], "stock");
    EXPECT_EQ(rows[0].toObject()["amountsFor"], "100 g");
}

TEST_F(TableTest, RecipesCarryTheirIngredientsAndTheSumsOverThem) {
    Change("INSERT INTO Recipes VALUES (1,'Pie','1 slice',8,'Bake.\nEat.',45);"
           "INSERT INTO Recipes (RecipeID,RecipeName) VALUES (2,'Empty');"
           "INSERT INTO Ingredients (RecipeID,FoodName,Serving,QTY,Calories,Iron) VALUES "
           "(1,'Apples','1 cup',2.5,100,1), (1,'Flour','1 cup',1,400,2)");
    const QJsonArray rows = Json({"recipes"});
    ExpectAmounts(rows, UserDB(),
                  "(SELECT Sum(%1) FROM Ingredients AS I WHERE I.RecipeID = R.RecipeID)",
                  &NutrientInfo::logColumn, "Recipes AS R ORDER BY RecipeID");
    const QJsonObject pie = rows[0].toObject();
    EXPECT_EQ(pie["recipe"], "Pie");
    EXPECT_EQ(pie["serving"], "1 slice");
    EXPECT_EQ(pie["yield"], 8);
    EXPECT_EQ(pie["preparationTime"], 45);
    EXPECT_EQ(pie["instructions"], "Bake.\nEat.");
    EXPECT_EQ(pie["ingredients"], "2.5 x 1 cup Apples\n1 x 1 cup Flour");
    EXPECT_EQ(pie["calories"], 500);
}

TEST_F(TableTest, TheProfileHasOneRowWithTheTargets) {
    const QJsonArray rows = Json({"profile"});
    ExpectAmounts(rows, UserDB(), "%1", &NutrientInfo::profileColumn, "profiles");
    const QJsonObject person = rows[0].toObject();
    EXPECT_EQ(person["name"], "Anna");
    EXPECT_EQ(person["gender"], "male");
    EXPECT_EQ(person["age"], 40);
    EXPECT_EQ(person["height"], 70);
    EXPECT_EQ(person["currentWeight"], 200);
    EXPECT_EQ(person["desiredWeight"], 170);
    EXPECT_EQ(person["activity"], "medium");
}

TEST_F(TableTest, CsvHasTheUnitsInItsHeadAndEndsLinesWithCrLf) {
    Eat("2026-03-01", 7, "=1+1, \"x\"", "1 mug", 0.5, 3.25);
    const QStringList lines = Command({"table", "log"}).out.split("\r\n");
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith("Date,Meal,Food,Serving,Quantity,Key,Release number,"
                                    "Calories (kcal),Total Fat (g),"));
    EXPECT_EQ(lines[0].count(','), 7 + NutrientCount - 1);
    EXPECT_TRUE(lines[1].startsWith("2026-03-01,Lunch,\"'=1+1, \"\"x\"\"\",1 mug,0.5,7,,"));
}

TEST_F(TableTest, ATableWithoutRowsIsItsHead) {
    const Run run = Command({"table", "weights"});
    EXPECT_EQ(run.code, Done);
    EXPECT_EQ(run.out, "Date,Weight (lb)\r\n");
}

TEST_F(TableTest, TheNameOfTheFileChoosesTheFormat) {
    const auto first = [this](const QString& name) {
        EXPECT_EQ(Command({"table", "foods", "--out", Folder() + '/' + name}).code, Done);
        QFile file(Folder() + '/' + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.read(2);
    };
    EXPECT_EQ(first("foods.xlsx"), "PK");
    EXPECT_EQ(first("FOODS.XLSX"), "PK");
    EXPECT_EQ(first("foods.json"), "[\n");
    EXPECT_EQ(first("foods.csv"), "Ke");
    EXPECT_EQ(first("foods"), "Ke");
}

TEST_F(TableTest, AFileThatCannotBeWrittenIsTold) {
    const Run run = Command({"table", "weights", "--out", Folder() + "/missing/w.csv"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("missing/w.csv cannot be written")) << run.error.toStdString();
}

TEST_F(TableTest, WhatMakesNoSenseIsAUsageError) {
    const QList<QStringList> wrong = {
        {"table"},
        {"table", "meals"},
        {"table", "log", "--format", "pdf"},
        {"table", "log", "--format", "xlsx"},
        {"table", "log", "--from", "March"},
        {"table", "log", "--from", "2026-03-02", "--to", "2026-03-01"},
        {"table", "foods", "--from", "2026-03-02"},
    };
    for (const QStringList& arguments : wrong) {
        const Run run = Command(arguments);
        EXPECT_EQ(run.code, Usage) << arguments.join(' ').toStdString();
        EXPECT_NE(run.error, "");
        EXPECT_EQ(run.out, "");
    }
}

TEST_F(TableTest, RowsThatAnyToolWroteDoNoHarm) {
    Change(QString("INSERT INTO USER_FOODS (UID,UDate,FoodName,ID,QTY,Calories,Iron) VALUES "
                   "(%1,'2026-03-01',x'ff00fe','x','many',9e999,'much'), (%1,'soon',1,2,3,4,5), "
                   "(%1,'2026-03-01',NULL,1e300,NULL,NULL,NULL)")
               .arg(anna));
    const QJsonArray rows = Json({"log"});
    EXPECT_EQ(rows.size(), 2);
    EXPECT_TRUE(rows[0].toObject()["calories"].isNull());
    EXPECT_TRUE(rows[0].toObject()["iron"].isNull());
    EXPECT_EQ(Json({"days"}).size(), 1);
}

TEST_F(TableTest, ShowsAnExampleInItsHelp) {
    EXPECT_TRUE(Command({"table", "--help"}).out.contains("Example: halvane-data table"));
}
