#include "StoreTest.h"

#include "store/Dialect.h"

#include <SQLiteCpp/SQLiteCpp.h>

/// The statements that screens compose: what they find, and by which index.
class QueriesTest : public StoreTest {
protected:
    static QStringList Plan(Connection& connection, const QString& sql, bool updatable = false) {
        SQLite::Statement plan(connection.Raw(),
                               "EXPLAIN QUERY PLAN " +
                                   Dialect::Adapt(sql, updatable).sql.toStdString());
        QStringList steps;
        while (plan.executeStep())
            steps << QString::fromStdString(plan.getColumn(3).getString());
        return steps;
    }
    static void ExpectSearch(Connection& connection, const QString& sql, const QString& index) {
        const QString plan = Plan(connection, sql).join("; ");
        EXPECT_TRUE(plan.startsWith("SEARCH") && plan.contains(index) && !plan.contains("SCAN"))
            << sql.toStdString() << "\n  " << plan.toStdString();
    }
    int Count(const QString& sql) { return Recordset(users_, sql).RecordCount(); }
    QStringList Names(const QString& terms, const char* ending) {
        Recordset set(foods_,
                      "SELECT TOP 300 FoodName,ID,Serv_Desc_A,Serv_Desc_B  FROM FOODS WHERE " +
                          terms + ending);
        QStringList names;
        for (; !set.AtEnd(); set.MoveNext())
            names << set["FoodName"].Text();
        return names;
    }
    QStringList Stock(const QString& terms) {
        return Names(terms, " AND ID <= 23508 ORDER BY FoodName");
    }
    QStringList Custom(const QString& terms) {
        return Names(terms, " AND ID > 23508 ORDER BY FoodName");
    }
};

TEST_F(QueriesTest, QueriesOfDaysMonthsAndPeriodsSearchAnIndex) {
    const QString log = "USER_FOODS_Day (UID=? AND UDate";
    for (const char* sql :
         {"SELECT * FROM USER_FOODS WHERE UID =1 AND UDATE = #4/3/2002#",
          "SELECT * FROM USER_FOODS WHERE UID =1 AND MEAL = 'BREAKFAST' AND UDate = #4/3/2002#",
          "SELECT DISTINCT USER_FOODS.UDate FROM USER_FOODS WHERE UID=1 AND UDate Between "
          "#4/1/2002# "
          "AND #4/30/2002#",
          "SELECT DISTINCT UDate FROM USER_FOODS WHERE UID=1 AND UDate Between #4/1/2002# AND "
          "#4/30/2002#",
          "SELECT Sum(USER_FOODS.Calories) AS [Calories], Sum(USER_FOODS.Protein) AS [Protein] "
          "FROM "
          "USER_FOODS  WHERE UID=1 AND UDate Between #1/1/1992# AND #12/31/2002#"})
        ExpectSearch(users_, sql, log);
    const QString weights = "USER_WEIGHTS_Day (UID=? AND UDate";
    for (const char* sql :
         {"SELECT * FROM USER_WEIGHTS WHERE UID =1 AND UDATE = #4/3/2002#",
          "SELECT * FROM USER_WEIGHTS WHERE UID=1 AND UDate Between #4/1/2002# AND #4/30/2002#",
          "SELECT Avg(USER_WEIGHTS.Weight) AS [Weight] FROM USER_WEIGHTS WHERE Weight > 0 AND "
          "UID=1 AND "
          "UDate Between #4/1/2002# AND #4/30/2002#",
          "SELECT  Min(Weight) As [MinWeight], Max(Weight) As [MaxWeight] FROM USER_WEIGHTS  WHERE "
          " "
          "Weight > 0 AND UID=1 AND UDate Between #4/1/2002# AND #4/30/2002# ",
          "SELECT * FROM USER_WEIGHTS  WHERE Weight > 0 AND UID=1 AND UDate Between #4/1/2002# AND "
          "#4/30/2002# ORDER BY UDate"})
        ExpectSearch(users_, sql, weights);
    ExpectSearch(users_, "SELECT DISTINCT UDate FROM USER_FOODS WHERE UID=1",
                 "USER_FOODS_Day (UID=?)");
    ExpectSearch(users_, "SELECT * FROM USER_WEIGHTS WHERE UID=1", "USER_WEIGHTS_Day (UID=?)");
    ExpectSearch(users_, "SELECT * FROM Ingredients WHERE RecipeID =1", "Ingredients_Recipe");
}

TEST_F(QueriesTest, RowsAreFoundByTheirKeys) {
    const QString key = "INTEGER PRIMARY KEY";
    for (const char* sql :
         {"SELECT * FROM profiles WHERE UID = 1", "SELECT * FROM USER_FOODS WHERE RecID = 1",
          "SELECT * FROM Recipes WHERE RecipeID = 1", "SELECT * FROM Ingredients WHERE ID = 1"})
        ExpectSearch(users_, sql, key);
    ExpectSearch(foods_, "SELECT * FROM foods WHERE ID = 1", key);
}

TEST_F(QueriesTest, ASearchWalksTheIndexOfNamesAndSortsNothing) {
    const QString foods = "SELECT TOP 300 FoodName,ID,Serv_Desc_A,Serv_Desc_B  FROM FOODS WHERE "
                          "FoodName LIKE '%beef%' AND FoodName LIKE '%raw%'  AND ID ";
    for (const char* split : {"<= 23508 ORDER BY FoodName", "> 23508 ORDER BY FoodName"})
        EXPECT_EQ(Plan(foods_, foods + split),
                  QStringList({"SCAN FOODS USING COVERING INDEX FOODS_Name"}));
    EXPECT_EQ(Plan(users_, "SELECT TOP 300 RecipeName,RecipeID,ServingName FROM Recipes WHERE "
                           "RECIPENAME LIKE '%pie%'  ORDER BY RecipeName"),
              QStringList({"SCAN Recipes USING COVERING INDEX Recipes_Name"}));
}

TEST_F(QueriesTest, AMealIsFoundInAnyCase) {
    AddLog(1, "2002-04-03", "Breakfast", 100);
    AddLog(1, "2002-04-03", "breakfast", 100);
    AddLog(1, "2002-04-03", "Lunch", 100);
    AddLog(1, "2002-04-04", "Breakfast", 100);
    AddLog(2, "2002-04-03", "Breakfast", 100);
    EXPECT_EQ(
        Count(
            "SELECT * FROM USER_FOODS WHERE UID =1 AND MEAL = 'BREAKFAST' AND UDate = #4/3/2002#"),
        2);
}

TEST_F(QueriesTest, AUserNameIsFoundInAnyCaseOfAnyLetter) {
    Run(users_, "INSERT INTO profiles (UserName) VALUES ('Zoë'), ('JÉRÔME'), ('Anna')");
    EXPECT_EQ(Count("SELECT * FROM profiles WHERE UserName = 'ZOË'"), 1);
    EXPECT_EQ(Count("SELECT * FROM profiles WHERE UserName = 'jérôme'"), 1);
    EXPECT_EQ(Count("SELECT * FROM profiles WHERE UserName = 'jerome'"), 0);
    EXPECT_EQ(Count("SELECT * FROM profiles WHERE UserName = 'ANNA' AND UID <>3"), 0);
    EXPECT_EQ(Count("SELECT * FROM profiles WHERE UserName = 'ANNA' AND UID <>4"), 1);
    EXPECT_EQ(Count("SELECT * FROM profiles WHERE UserName <> 'zOË'"), 2);
    EXPECT_EQ(Count("SELECT * FROM profiles WHERE 'zOË' = UserName"), 1);
}

TEST_F(QueriesTest, AnApostropheInANameFailsBeforeAnythingIsWritten) {
    EXPECT_EQ(ErrorOf([&] { Count("SELECT * FROM profiles WHERE UserName = 'O'Brien'"); }), -1);
    EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles"), 0);
}

TEST_F(QueriesTest, StatementsInANameDoNoHarm) {
    Run(users_, "INSERT INTO profiles (UserName) VALUES ('Anna')");
    for (const char* name :
         {"x'; DROP TABLE profiles", "x'; DROP TABLE profiles; --",
          "'; DELETE FROM profiles WHERE 'a'='a", "x' --", "x' /*", "x'; ATTACH 'y' AS y; SELECT '",
          "x\"; DROP TABLE profiles; \"", "x' UNION SELECT 1 --", "\\'; DROP TABLE profiles; --",
          "x');DROP TABLE profiles;--", "'", "''; DROP TABLE profiles", "#", "[", "]", "%", "_",
          ";"}) {
        const QString sql =
            QStringLiteral("SELECT * FROM profiles WHERE UserName = '%1' AND UID <>1").arg(name);
        try {
            EXPECT_EQ(Count(sql), 0) << name;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), -1) << name;
        }
        EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles"), 1) << name;
    }
}

TEST_F(QueriesTest, ASearchFindsEveryCaseOfEveryLetter) {
    AddFood(1, "CRÈME BRÛLÉE");
    AddFood(2, "Crème fraîche");
    AddFood(3, "Cream, light");
    EXPECT_EQ(Stock("FoodName LIKE '%crème%' "), QStringList({"CRÈME BRÛLÉE", "Crème fraîche"}));
    EXPECT_EQ(Stock("FoodName LIKE '%BRÛLÉE%' AND FoodName LIKE '%CRÈME%' "),
              QStringList({"CRÈME BRÛLÉE"}));
    EXPECT_EQ(Stock("FoodName LIKE '%CREAM%' "), QStringList({"Cream, light"}));
}

TEST_F(QueriesTest, TheSplitBetweenStockAndCustomIsByKey) {
    AddFood(23507, "Beef, raw");
    AddFood(23508, "Beef, dried");
    AddFood(23509, "Beef, mine");
    EXPECT_EQ(Stock("FoodName LIKE '%beef%' "), QStringList({"Beef, dried", "Beef, raw"}));
    EXPECT_EQ(Custom("FoodName LIKE '%beef%' "), QStringList({"Beef, mine"}));
}

TEST_F(QueriesTest, ResultsAreInTheOrderOfNamesWithoutRegardToCase) {
    for (const auto& [id, name] : std::initializer_list<std::pair<int, const char*>>{
             {1, "banana"}, {2, "Apple"}, {3, "Cherry"}, {4, "apple pie"}})
        AddFood(id, name);
    EXPECT_EQ(Stock("FoodName LIKE '%%' "),
              QStringList({"Apple", "apple pie", "banana", "Cherry"}));
}

TEST_F(QueriesTest, NoMoreThanTheTopRowsAreRead) {
    for (int i = 1; i <= 320; ++i)
        AddFood(i, QStringLiteral("Food %1").arg(i, 3, 10, QChar(u'0')));
    const QStringList names = Stock("FoodName LIKE '%food%' ");
    EXPECT_EQ(names.size(), 300);
    EXPECT_EQ(names.last(), "Food 300");
}

TEST_F(QueriesTest, WildcardsInATermStayWildcards) {
    AddFood(1, "Milk, 2% fat");
    AddFood(2, "Milk, 2 x fat");
    AddFood(3, "a_b");
    EXPECT_EQ(Stock("FoodName LIKE '%2%fat%' ").size(), 2);
    EXPECT_EQ(Stock("FoodName LIKE '%a_b%' ").size(), 1);
    EXPECT_EQ(Stock("FoodName LIKE '%[a]%' ").size(), 0);
}

TEST_F(QueriesTest, AnEmptyWordMatchesEveryNameButNull) {
    AddFood(1, "Salt");
    AddFood(2, "");
    Run(foods_, "INSERT INTO FOODS (ID) VALUES (3)");
    EXPECT_EQ(Stock("FoodName LIKE '%%' AND FoodName LIKE '%%' "), QStringList({"", "Salt"}));
}

TEST_F(QueriesTest, LikeTakesNumbersAndNulls) {
    Recordset set(foods_, "SELECT 123 LIKE '%2%' AS a, NULL LIKE 'x' AS b, 'x' LIKE NULL AS c, 'x' "
                          "NOT LIKE 'X' AS d");
    EXPECT_TRUE(set["a"].Boolean());
    EXPECT_TRUE(set["b"].IsNull());
    EXPECT_TRUE(set["c"].IsNull());
    EXPECT_FALSE(set["d"].Boolean());
}

TEST_F(QueriesTest, ATermThatChangesFromRowToRowIsReadEachTime) {
    AddFood(1, "Salt");
    AddFood(2, "Vinegar");
    Run(foods_, "UPDATE FOODS SET Serv_Desc_A = CASE ID WHEN 1 THEN '%SAL%' ELSE '%sal%' END");
    EXPECT_EQ(Recordset(foods_, "SELECT FoodName FROM FOODS WHERE FoodName LIKE Serv_Desc_A")
                  .RecordCount(),
              1);
}

TEST_F(QueriesTest, TermsOfTenThousandCharactersAndEmojiAreSearched) {
    const QString longName = QString(10000, u'x') + QString::fromUtf8("🍞");
    AddFood(1, longName);
    EXPECT_EQ(Stock("FoodName LIKE '%" + longName.toUpper() + "%' ").size(), 1);
    EXPECT_EQ(Stock("FoodName LIKE '%" + longName + "y%' ").size(), 0);
    EXPECT_EQ(Stock(QString::fromUtf8("FoodName LIKE '%🍞%' ")).size(), 1);
}

TEST_F(QueriesTest, APeriodHoldsBothItsEnds) {
    for (const char* day : {"2002-03-31", "2002-04-01", "2002-04-15", "2002-04-30", "2002-05-01"})
        AddLog(1, day, "Lunch", 10);
    AddLog(1, "2002-04-15", "Dinner", 10);
    const QString period = " WHERE UID=1 AND UDate Between #4/1/2002# AND #4/30/2002#";
    EXPECT_EQ(Count("SELECT DISTINCT USER_FOODS.UDate FROM USER_FOODS" + period), 3);
    EXPECT_EQ(Recordset(users_, "SELECT Sum(USER_FOODS.Calories) AS [Calories] FROM USER_FOODS " +
                                    period)["Calories"]
                  .Number(),
              40);
    Recordset days(users_, "SELECT DISTINCT UDate FROM USER_FOODS WHERE UID=1");
    EXPECT_EQ(days.RecordCount(), 5);
    EXPECT_EQ(days["UDate"].Date(), QDate(2002, 3, 31));
}

TEST_F(QueriesTest, AveragesAndExtremesOfWeights) {
    Run(users_, "INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-01', 150), (1, '2002-04-02', 0), (1, "
                "'2002-04-03', 155)");
    const QString period = "FROM USER_WEIGHTS  WHERE  Weight > 0 AND UID=1 AND UDate Between "
                           "#4/1/2002# AND #4/30/2002# ";
    Recordset range(users_,
                    "SELECT  Min(Weight) As [MinWeight], Max(Weight) As [MaxWeight] " + period);
    EXPECT_EQ(range["minweight"].Integer(), 150);
    EXPECT_EQ(range["MAXWEIGHT"].Integer(), 155);
    EXPECT_EQ(Recordset(users_, "SELECT Avg(USER_WEIGHTS.Weight) AS [Weight] " + period)["Weight"]
                  .Number(),
              152.5);
    Recordset weights(users_, "SELECT * " + period + "ORDER BY UDate", CursorType::Static,
                      LockType::Optimistic);
    EXPECT_EQ(weights.RecordCount(), 2);
    weights.MoveLast();
    weights.Set("Weight", 156);
    weights.Update();
    EXPECT_EQ(First(users_, "SELECT Weight FROM USER_WEIGHTS WHERE UDate = '2002-04-03'"), 156.0);
}

TEST_F(QueriesTest, AUserOfMinusOneFindsNothing) {
    AddLog(1, "2002-04-03", "Lunch", 10);
    EXPECT_EQ(Count("SELECT * FROM USER_FOODS WHERE UID =-1 AND UDATE = #4/3/2002#"), 0);
    EXPECT_EQ(Count("SELECT * FROM profiles WHERE UID <>-1"), 0);
}
