#include "hostile/HostileTest.h"

#include "core/Navigation.h"
#include "core/Screens.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/ScreenTable.h"
#include "store/Connection.h"

#include <QLineEdit>
#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

/// All screens over rows that another tool has written.
class HostileRowsTest : public HostileTest,
                        public ::testing::WithParamInterface<HostileTest::Ground> {
protected:
    void SetUp() override {
        HostileTest::SetUp();
        OpenEmptyDatabases();
        AddUser();
        App().AppInfo.AUTOUPDATERDI = true;
        FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Calories) VALUES "
                            "(23508, 'Stock', '1 cup', 10), (23509, 'Mine', '1 cup', 20)");
        UserDB().Raw().exec(
            "INSERT INTO Recipes (RecipeName, ServingName, RecipeYield) VALUES ('Pie', '1', 2);"
            "INSERT INTO Ingredients (RecipeID, FoodName, QTY, Calories) VALUES (1, 'Oat', 1, 5);"
            "INSERT INTO USER_WEIGHTS VALUES (1, '2026-11-20', 170);"
            "INSERT INTO USER_FOODS (UID, FoodName, Meal, UDate, QTY, Calories) VALUES "
            "(1, 'Oats', 'Lunch', '2026-11-20', 1, 100)");
        ShowHome();
    }

    /// Rows that hold one value everywhere, and rows of any values.
    static void InsertSome(const HostileRows& rows) {
        QRandomGenerator random{1};
        for (const char* value : HostileRows::Values()) {
            rows.Insert(rows.With(value).last());
            rows.Insert(rows.Random(random));
        }
    }

    /// Presses until nothing is left to press.
    void RemoveAll(const QString& table, const Button& button) {
        while (RemoveOne(table, button) && !HasFailure()) {
        }
    }
};

INSTANTIATE_TEST_SUITE_P(EveryTable, HostileRowsTest, ::testing::ValuesIn(HostileTest::Grounds()));

TEST_P(HostileRowsTest, EveryScreenOpensWhateverStandsInAColumn) {
    const Ground& ground = GetParam();
    const HostileRows rows(ground.database().Raw(), ground.table, ground.sound);
    for (const char* value : HostileRows::Values()) {
        ground.database().Raw().exec("SAVEPOINT before");
        rows.Insert(rows.With(value));
        EXPECT_NO_THROW(ShowAll()) << ground.table << ' ' << value;
        EXPECT_NO_THROW(ShowAllFacts()) << ground.table << ' ' << value;
        ground.database().Raw().exec("ROLLBACK TO before; RELEASE before");
    }
}

TEST_P(HostileRowsTest, EveryScreenOpensOverRowsWithoutAnySense) {
    const Ground& ground = GetParam();
    QRandomGenerator random{1};
    const HostileRows rows(ground.database().Raw(), ground.table, ground.sound);
    for (int i = 0; i < 40; ++i)
        rows.Insert(rows.Random(random));
    EXPECT_NO_THROW(ShowAll()) << ground.table;
    EXPECT_NO_THROW(ShowAllFacts()) << ground.table;
}

TEST_F(HostileRowsTest, EveryLineOfADayCanBeRemoved) {
    const HostileRows rows(UserDB().Raw(), "USER_FOODS", Grounds().front().sound);
    InsertSome(rows);
    const ScreenForm* day = Show(Screens::Day.name);
    RemoveAll(QStringLiteral("USER_FOODS"), [&] { return Trash(day); });
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM USER_FOODS")), 1) << "of another day";
}

TEST_F(HostileRowsTest, EveryIngredientCanBeRemoved) {
    const HostileRows rows(UserDB().Raw(), "Ingredients", {{"RecipeID", "1"}});
    InsertSome(rows);
    const ScreenForm* recipes = Show(Screens::RecipeManager.name);
    RemoveAll(QStringLiteral("Ingredients"), [&] { return Trash(recipes); });
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM Ingredients")), 0);
}

TEST_F(HostileRowsTest, EveryOwnFoodCanBeDeleted) {
    const HostileRows rows(FoodDB().Raw(), "FOODS", {});
    InsertSome(rows);
    const ScreenForm* foods = Show(Screens::FoodList.name);
    RemoveAll(QStringLiteral("FOODS"), [&] { return DeleteOf(foods, "FoodList"); });
    EXPECT_EQ(Foods(QStringLiteral("SELECT max(ID) FROM FOODS")), 23508);
}

TEST_F(HostileRowsTest, EveryRecipeCanBeDeleted) {
    UserDB().Raw().exec("DELETE FROM Ingredients");
    const HostileRows rows(UserDB().Raw(), "Recipes", {});
    InsertSome(rows);
    const ScreenForm* recipes = Show(Screens::RecipeManager.name);
    RemoveAll(QStringLiteral("Recipes"), [&] { return DeleteOf(recipes, "lsRecipes"); });
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM Recipes")), 0);
}

TEST_F(HostileRowsTest, AWeightOfNoSenseCanBeReplacedAndTakenBack) {
    for (const char* value : HostileRows::Values()) {
        UserDB().Raw().exec("DELETE FROM USER_WEIGHTS");
        HostileRows(UserDB().Raw(), "USER_WEIGHTS", {{"UID", "1"}})
            .Insert({{"UID", "1"}, {"UDate", "'2026-11-21'"}, {"Weight", value}});
        ScreenForm* day = Show(Screens::Day.name);
        auto* weight = Find<QLineEdit>(day, QStringLiteral("txtWeight"));
        weight->setFocus();
        weight->setText(QStringLiteral("180"));
        Find(day, QStringLiteral("cmdCal"))->setFocus();
        EXPECT_EQ(Users(QStringLiteral("SELECT Weight FROM USER_WEIGHTS")), 180) << value;
        weight->setFocus();
        weight->clear();
        Find(day, QStringLiteral("cmdCal"))->setFocus();
        EXPECT_EQ(Users(QStringLiteral("SELECT Weight FROM USER_WEIGHTS")), 0) << value;
        EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM USER_WEIGHTS")), 1) << value;
    }
}

TEST_F(HostileRowsTest, EveryScreenOpensForAProfileOfNoSense) {
    const HostileRows rows(UserDB().Raw(), "profiles", {});
    for (const char* value : HostileRows::Values())
        for (const HostileRows::Row& row : rows.With(value)) {
            rows.Insert(row);
            User::Current().UID = qint32(UserDB().Raw().getLastInsertRowid());
            EXPECT_NO_THROW(User::Current().GetUserProfile(User::Current().UID)) << value;
            EXPECT_NO_THROW(ShowProfile()) << value;
            if (row == rows.With(value).last()) {
                EXPECT_NO_THROW(ShowAll()) << value;
                EXPECT_NO_THROW(ShowAllFacts()) << value;
            }
        }
}
