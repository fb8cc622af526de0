#include "core/CoreTest.h"

#include "core/Navigation.h"
#include "core/Screens.h"
#include "runtime/AppState.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "toolkit/ListBox.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

/// Leaves the screens of custom foods and recipes in the middle of an edit and shows them again,
/// once with screens kept and once with screens rebuilt.
class OwnScreensTest : public CoreTest, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        OpenEmptyDatabases();
        AddUser();
        FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName, Serv_Desc_A) VALUES "
                            "(23508, 'Stock', '1 cup'), (23509, 'Granola', '1 bowl')");
        UserDB().Raw().exec("INSERT INTO Recipes (RecipeName, ServingName, RecipeYield, PrepTime, "
                            "Instructions) VALUES ('Soup', '1 bowl', 4, 30, 'Stir.'), "
                            "('Stew', '1 plate', 2, 60, 'Wait.')");
        RegisterScreens(TheNavigation());
        App().AppInfo.FAST = Kept();
        ::ShowHome();
    }
    static bool Kept() { return GetParam(); }
    ScreenForm* Show(const char* name) {
        QObject* screen = ::ShowScreen(QLatin1String(name));
        RunDeferredDeletes();
        return qobject_cast<ScreenForm*>(screen);
    }
    static QString Text(ScreenForm* screen, const char* field) {
        return Find<QLineEdit>(screen, field)->text();
    }
    static QString Caption(ScreenForm* screen, const char* control) {
        return Find(screen, control)->property("Caption").toString();
    }
};

INSTANTIATE_TEST_SUITE_P(KeptOrNot, OwnScreensTest, ::testing::Bool(),
                         [](const auto& kept) { return kept.param ? "Kept" : "MadeAnew"; });

TEST_P(OwnScreensTest, ANewFoodThatIsBeingTypedStaysWithTheKeptScreenOnly) {
    ScreenForm* foods = Show("frmFoodList");
    Click(Find(foods, "cmdNewBut"));
    Find<QLineEdit>(foods, "txtFoodName")->setText("Half typed");
    Show("frmRecipeManager");
    foods = Show("frmFoodList");
    EXPECT_EQ(foods->property("Mode").toInt(), Kept() ? 2 : 1);
    EXPECT_EQ(Text(foods, "txtFoodName"), Kept() ? "Half typed" : "Granola");
    EXPECT_EQ(Foods("SELECT count(*) FROM FOODS WHERE ID > 23508"), 1);
    Find<QLineEdit>(foods, "txtServing")->setText("1 handful");
    Click(Find(foods, "cmdSave"));
    EXPECT_EQ(Foods("SELECT FoodName FROM FOODS WHERE Serv_Desc_A = '1 handful'"),
              Kept() ? "Half typed" : "Granola");
}

TEST_P(OwnScreensTest, AnEditedFoodIsSavedUnderItsOwnKeyAfterTheScreenCameBack) {
    ScreenForm* foods = Show("frmFoodList");
    Find<QLineEdit>(foods, "txtFoodName")->setText("Granola, mine");
    Show("frmRecipeManager");
    foods = Show("frmFoodList");
    EXPECT_EQ(Text(foods, "txtFoodName"), Kept() ? "Granola, mine" : "Granola");
    EXPECT_EQ(Find(foods, "cmdSave")->property("Enabled").toBool(), Kept());
    Click(Find(foods, "cmdSave"));
    EXPECT_EQ(Foods("SELECT FoodName FROM FOODS WHERE ID = 23509"),
              Kept() ? "Granola, mine" : "Granola");
}

TEST_P(OwnScreensTest, AnEditedRecipeIsSavedIntoItsOwnRowAfterTheScreenCameBack) {
    ScreenForm* recipes = Show("frmRecipeManager");
    Find<ListBox>(recipes, "lsRecipes")->SetListIndex(1);
    Click(Find(recipes, "cmdEdit"));
    Find<QLineEdit>(recipes, "txtName")->setText("Half typed");
    Find<QPlainTextEdit>(recipes, "txtInstructions")->setPlainText("Wait longer.");
    Show("frmFoodList");
    recipes = Show("frmRecipeManager");
    EXPECT_EQ(Caption(recipes, "cmdEdit"), Kept() ? "Save Changes" : "Edit Recipe");
    EXPECT_EQ(Users("SELECT RecipeName FROM Recipes WHERE RecipeID = 2"), "Stew");
    EXPECT_EQ(Find(recipes, "lsRecipes")->isEnabled(), !Kept());
    Click(Find(recipes, "cmdEdit"));
    EXPECT_EQ(Users("SELECT RecipeName || '/' || Instructions FROM Recipes WHERE RecipeID = 2"),
              Kept() ? "Half typed/Wait longer." : "Stew/Wait.");
    EXPECT_EQ(Users("SELECT RecipeName FROM Recipes WHERE RecipeID = 1"), "Soup");
}

TEST_P(OwnScreensTest, ANewRecipeThatWasLeftIsThereWithItsDefaults) {
    Click(Find(Show("frmRecipeManager"), "cmdNew"));
    Show("frmFoodList");
    ScreenForm* recipes = Show("frmRecipeManager");
    EXPECT_EQ(Users("SELECT RecipeName FROM Recipes WHERE RecipeID = 3"), "My Recipe");
    EXPECT_EQ(Caption(recipes, "cmdEdit"), Kept() ? "Save Changes" : "Edit Recipe");
    EXPECT_EQ(Find<ListBox>(recipes, "lsRecipes")->ListCount(), Kept() ? 2 : 3);
}

TEST_P(OwnScreensTest, ARecipeThatOnlyStoodThereIsListedAnewAndShown) {
    ScreenForm* recipes = Show("frmRecipeManager");
    Find<ListBox>(recipes, "lsRecipes")->SetListIndex(1);
    Show("frmFoodList");
    UserDB().Raw().exec("UPDATE Recipes SET RecipeName = RecipeName || ' of today'");
    recipes = Show("frmRecipeManager");
    EXPECT_EQ(Caption(recipes, "aaRecipeName"), Kept() ? "Stew of today" : "Soup of today");
}

TEST_P(OwnScreensTest, TheButtonOfTheScreenInFrontKeepsOrDropsItsEdit) {
    ScreenForm* recipes = Show("frmRecipeManager");
    Click(Find(recipes, "cmdEdit"));
    recipes = Show("frmRecipeManager");
    EXPECT_EQ(Caption(recipes, "cmdEdit"), Kept() ? "Save Changes" : "Edit Recipe");
    ScreenForm* foods = Show("frmFoodList");
    Click(Find(foods, "cmdNewBut"));
    foods = Show("frmFoodList");
    EXPECT_EQ(foods->property("Mode").toInt(), Kept() ? 2 : 1);
}
