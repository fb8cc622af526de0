#include "recipes/RecipesTest.h"

#include "foods/Logix.h"
#include "model/Nutrients.h"
#include "recipes/RecipeStore.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <SQLiteCpp/SQLiteCpp.h>

class RecipeStoreTest : public RecipesTest {
protected:
    /// The caption of a recipe of one ingredient.
    QString Caption(double calories, const QString& yield) {
        const qint32 recipe = AddRecipe("Soup", "1 bowl");
        AddIngredient(recipe, {{"Calories", calories}});
        return RecipeStore::CaloriesPerServing(recipe, yield);
    }

    /// One row of amounts, positions 1 to 31.
    QVariantList Amounts(const QString& where) {
        const auto rows = Rows(UserDB(), "SELECT * FROM Ingredients WHERE " + where);
        return rows.isEmpty() ? QVariantList() : rows.first().mid(1, NutrientCount);
    }
};

TEST_F(RecipeStoreTest, ANewRecipeStartsWithItsDefaults) {
    const qint32 key = RecipeStore::AddRecipe();
    const auto rows = Rows(UserDB(), "SELECT RecipeID, RecipeName, ServingName, RecipeYield, "
                                     "Instructions, PrepTime FROM Recipes");
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0], (QVariantList{qlonglong(key), "My Recipe", "", 1.0,
                                     "(enter preparation instructions here...)", 30.0}));
}

TEST_F(RecipeStoreTest, ANewRecipesServingIsEmptyAndNotNull) {
    RecipeStore::AddRecipe();
    EXPECT_EQ(Count("Recipes", "ServingName IS NULL"), 0);
}

TEST_F(RecipeStoreTest, TheKeyGivenIsThatOfTheNewRowAmongOthers) {
    AddRecipes(50, "Soup");
    const qint32 first = RecipeStore::AddRecipe();
    const qint32 second = RecipeStore::AddRecipe();
    EXPECT_EQ(second, first + 1);
    EXPECT_EQ(Users("SELECT max(RecipeID) FROM Recipes").toInt(), second);
}

TEST_F(RecipeStoreTest, KeysOfDeletedRecipesAreNotGivenOutAgain) {
    const qint32 first = RecipeStore::AddRecipe();
    RecipeStore::DeleteRecipe(first);
    EXPECT_GT(RecipeStore::AddRecipe(), first);
}

TEST_F(RecipeStoreTest, DeletingARecipeOfThreeIngredientsLeavesTwo) {
    const qint32 recipe = RecipeStore::AddRecipe();
    AddIngredients(recipe, 3);
    RecipeStore::DeleteRecipe(recipe);
    EXPECT_EQ(Count("Recipes"), 0);
    const auto left = Rows(UserDB(), "SELECT FoodName, RecipeID FROM Ingredients ORDER BY ID");
    ASSERT_EQ(left.size(), 2);
    EXPECT_EQ(left[0], (QVariantList{"Food 2", qlonglong(recipe)}));
    EXPECT_EQ(left[1], (QVariantList{"Food 3", qlonglong(recipe)}));
}

TEST_F(RecipeStoreTest, DeletingTouchesNoOtherRecipe) {
    const qint32 kept = RecipeStore::AddRecipe();
    AddIngredients(kept, 2);
    const qint32 gone = RecipeStore::AddRecipe();
    AddIngredients(gone, 1);
    RecipeStore::DeleteRecipe(gone);
    EXPECT_EQ(Count("Recipes", "RecipeID = " + QString::number(kept)), 1);
    EXPECT_EQ(Count("Ingredients"), 2);
}

TEST_F(RecipeStoreTest, DeletingARecipeWithoutIngredientsRemovesTheRecipe) {
    RecipeStore::DeleteRecipe(RecipeStore::AddRecipe());
    EXPECT_EQ(Count("Recipes"), 0);
}

TEST_F(RecipeStoreTest, DeletingARecipeThatIsGoneDoesNothing) {
    RecipeStore::AddRecipe();
    RecipeStore::DeleteRecipe(4711);
    EXPECT_EQ(Count("Recipes"), 1);
}

TEST_F(RecipeStoreTest, WhatIngredientsADeletedRecipeLeavesAreNoNewRecipesOwn) {
    const qint32 gone = RecipeStore::AddRecipe();
    AddIngredients(gone, 3);
    RecipeStore::DeleteRecipe(gone);
    EXPECT_EQ(RecipeStore::CaloriesPerServing(RecipeStore::AddRecipe(), "1"), "Calories: --");
}

TEST_F(RecipeStoreTest, ARecipeWithoutIngredientsShowsNoCalories) {
    const qint32 recipe = RecipeStore::AddRecipe();
    EXPECT_EQ(RecipeStore::CaloriesPerServing(recipe, "4"), "Calories: --");
    const auto sums = Rows(UserDB(), RecipeSumSQL(recipe));
    ASSERT_EQ(sums.size(), 1);
    EXPECT_EQ(sums[0], QVariantList(NutrientCount, QVariant()));
}

TEST_F(RecipeStoreTest, CaloriesAreDividedByTheYieldAndRoundedHalfToEven) {
    EXPECT_EQ(Caption(1000, "3"), "Calories: 333 per serving");
    EXPECT_EQ(Caption(5, "2"), "Calories: 2 per serving");
    EXPECT_EQ(Caption(7, "2"), "Calories: 4 per serving");
    EXPECT_EQ(Caption(2.5, "1"), "Calories: 2 per serving");
    EXPECT_EQ(Caption(3.5, "1"), "Calories: 4 per serving");
    EXPECT_EQ(Caption(0, "4"), "Calories: 0 per serving");
    EXPECT_EQ(Caption(-10, "4"), "Calories: -2 per serving");
}

TEST_F(RecipeStoreTest, AYieldOfZeroDividesByOne) {
    for (const char* yield : {"0", "", "abc", "-0", "0.0", "servings: 4", "1e400"})
        EXPECT_EQ(Caption(300, yield), "Calories: 300 per serving") << yield;
}

TEST_F(RecipeStoreTest, TheYieldIsTheLeadingNumberOfTheCaption) {
    EXPECT_EQ(Caption(300, "2.5"), "Calories: 120 per serving");
    EXPECT_EQ(Caption(300, " 3 bowls"), "Calories: 100 per serving");
    EXPECT_EQ(Caption(300, "1 0"), "Calories: 30 per serving");
    EXPECT_EQ(Caption(300, ".5"), "Calories: 600 per serving");
    EXPECT_EQ(Caption(300, "3,9"), "Calories: 100 per serving");
}

TEST_F(RecipeStoreTest, TheYieldComesFromTheCaptionAndNotFromTheRow) {
    const qint32 recipe = AddRecipe("Soup", "1 bowl"); // its row says 4
    AddIngredient(recipe, {{"Calories", 400}});
    EXPECT_EQ(RecipeStore::CaloriesPerServing(recipe, "2"), "Calories: 200 per serving");
}

TEST_F(RecipeStoreTest, AFigureThatFitsNoWholeNumberIsNoReasonToFail) {
    EXPECT_EQ(Caption(300, "1e-300"), "Calories: --");
    EXPECT_EQ(Caption(2147483647, "1"), "Calories: 2147483647 per serving");
    EXPECT_EQ(Caption(2147483648.0, "1"), "Calories: --");
}

TEST_F(RecipeStoreTest, CaloriesThatAreAllNullCountAsNone) {
    const qint32 recipe = AddRecipe("Soup", "1 bowl");
    AddIngredient(recipe, {{"Protein", 4}});
    EXPECT_EQ(RecipeStore::CaloriesPerServing(recipe, "1"), "Calories: --");
    AddIngredient(recipe, {{"Calories", 12}});
    EXPECT_EQ(RecipeStore::CaloriesPerServing(recipe, "1"), "Calories: 12 per serving");
}

TEST_F(RecipeStoreTest, LoggingTheWholeRecipeTakesNoAccountOfTheYield) {
    const qint32 recipe = AddRecipe("Soup", "1 bowl"); // makes 4
    AddIngredients(recipe, 4, 100);
    EXPECT_EQ(ScaledFood::FromRecipe(recipe, 1).Amount("Calories"), 400);
    EXPECT_EQ(RecipeStore::CaloriesPerServing(recipe, "4"), "Calories: 100 per serving");
}

/// Nothing may push the name of a food to another place, so all that follows is looked at, too.
TEST_F(RecipeStoreTest, TheNutrientsStandInOneOrderInNewAndInDeliveredFiles) {
    const auto agree = [](Connection& connection, const QString& source, int first) {
        const Recordset rows(connection, source);
        for (int i = 0; i < NutrientCount; ++i)
            EXPECT_EQ(rows.FieldName(first + i).toLower(),
                      QString::fromLatin1(Info(StoredOrder()[size_t(i)]).logColumn).toLower())
                << source.toStdString() << i;
        return first + NutrientCount < rows.FieldCount() ? rows.FieldName(first + NutrientCount)
                                                         : QString();
    };
    const auto agreeAll = [&agree] {
        EXPECT_EQ(agree(FoodDB(), QStringLiteral("SELECT TOP 1 * FROM FOODS"), 1), "FoodName");
        EXPECT_EQ(agree(UserDB(), QStringLiteral("SELECT * FROM Ingredients"), 1), "FoodName");
        EXPECT_EQ(agree(UserDB(), QStringLiteral("SELECT * FROM USER_FOODS"), 1), "UID");
        EXPECT_EQ(agree(UserDB(), RecipeSumSQL(1), 0), QString());
    };
    agreeAll();
    CloseDatabases();
    ASSERT_TRUE(QFile::remove(Folder() + "/users.mdb") && QFile::remove(Folder() + "/foods.mdb"));
    OpenDatabases();
    agreeAll();
    EXPECT_EQ(Foods("SELECT max(ID) FROM FOODS").toInt(), 23508);
}

TEST_F(RecipeStoreTest, AmountsGoByPlaceAndTextsByKey) {
    RecipeStore::AddIngredient(7, Counting("Flour", 2.5));
    const QVariantList amounts = Amounts("1");
    ASSERT_EQ(amounts.size(), NutrientCount);
    for (int i = 0; i < NutrientCount; ++i)
        EXPECT_EQ(amounts[i], double(i + 1));
    EXPECT_EQ(Rows(UserDB(), "SELECT FoodName, Serving, RecipeID, QTY FROM Ingredients").first(),
              (QVariantList{"Flour", "1 cup", 7LL, 2.5}));
}

TEST_F(RecipeStoreTest, EveryAmountOfACatalogueFoodReachesTheColumnOfItsName) {
    FoodRow food{.id = 7, .name = "Flour", .gramsA = 100.0};
    double amount = 0;
    for (const NutrientInfo& nutrient : Nutrients())
        food.nutrients[QLatin1String(nutrient.profileColumn)] = amount += 0.25;
    AddFood(food);
    RecipeStore::AddIngredient(1, ScaledFood::FromCatalogue(7, "A", 2));
    amount = 0;
    for (const NutrientInfo& nutrient : Nutrients()) {
        const QString column = QLatin1String(nutrient.logColumn);
        EXPECT_DOUBLE_EQ(Users("SELECT " + column + " FROM Ingredients").toDouble(),
                         2 * (amount += 0.25))
            << nutrient.logColumn;
    }
}

TEST_F(RecipeStoreTest, ARecipeAsAnIngredientKeepsEveryAmountInTheColumnOfItsName) {
    const qint32 soup = AddRecipe("Soup", "1 bowl");
    QMap<QString, double> amounts;
    for (const NutrientInfo& nutrient : Nutrients())
        amounts[QLatin1String(nutrient.logColumn)] = double(amounts.size()) + 1.25;
    AddIngredient(soup, amounts);
    const qint32 stew = AddRecipe("Stew", "1 plate");
    RecipeStore::AddIngredient(stew, ScaledFood::FromRecipe(soup, 2));
    const QString own = " FROM Ingredients WHERE RecipeID = " + QString::number(stew);
    for (const auto& [column, amount] : amounts.asKeyValueRange())
        EXPECT_DOUBLE_EQ(Users("SELECT " + column + own).toDouble(), 2 * amount)
            << column.toStdString();
    EXPECT_EQ(Users("SELECT FoodName" + own).toString(), "Soup");
}

TEST_F(RecipeStoreTest, ARecipeOfARecipeHasTheSameCalories) {
    const qint32 filling = AddRecipe("Filling", "1 bowl");
    AddIngredient(filling, {{"Calories", 2537}, {"VitaminC", 11}});
    const qint32 pie = AddRecipe("Pie", "1 pie");
    RecipeStore::AddIngredient(pie, ScaledFood::FromRecipe(filling, 1));
    EXPECT_EQ(RecipeStore::CaloriesPerServing(pie, "1"), "Calories: 2537 per serving");
}

TEST_F(RecipeStoreTest, ALaterChangeOfTheCatalogueChangesNoRecipe) {
    AddFood({.id = 7, .name = "Flour", .gramsA = 100.0, .nutrients = {{"Calories", 364}}});
    const qint32 recipe = RecipeStore::AddRecipe();
    RecipeStore::AddIngredient(recipe, ScaledFood::FromCatalogue(7, "A", 1));
    FoodDB().Raw().exec("UPDATE FOODS SET Calories = 1, FoodName = 'Sand'");
    EXPECT_EQ(RecipeStore::CaloriesPerServing(recipe, "1"), "Calories: 364 per serving");
    EXPECT_EQ(Users("SELECT FoodName FROM Ingredients").toString(), "Flour");
}

TEST_F(RecipeStoreTest, TheSameIngredientTwiceGivesTwoRows) {
    RecipeStore::AddIngredient(1, Counting());
    RecipeStore::AddIngredient(1, Counting());
    EXPECT_EQ(Count("Ingredients"), 2);
}

TEST_F(RecipeStoreTest, AnItemThatMissesAnEntryLeavesNoHalfWrittenRow) {
    ScaledFood item;
    item.Add(QStringLiteral("Calories"), 1.0);
    EXPECT_EQ(FailureOf([&] { RecipeStore::AddIngredient(1, item); }), 9);
    EXPECT_EQ(Count("Ingredients"), 0);
    RecipeStore::AddIngredient(1, Counting());
    EXPECT_EQ(Count("Ingredients"), 1);
}

TEST_F(RecipeStoreTest, ARowThatTheStoreRefusesLeavesNothing) {
    UserDB().Raw().exec("CREATE TRIGGER full BEFORE INSERT ON Ingredients "
                        "BEGIN SELECT RAISE(ABORT, 'full'); END");
    EXPECT_LT(FailureOf([&] { RecipeStore::AddIngredient(1, Counting()); }), 0);
    UserDB().Raw().exec("DROP TRIGGER full");
    EXPECT_EQ(Count("Ingredients"), 0);
}

TEST_F(RecipeStoreTest, AwkwardTextsAreKeptToTheLetter) {
    const QStringList names{"O'Brien's '); DROP TABLE Ingredients; --",
                            QStringLiteral("100 % of_[all] ^ ~ | \U0001F96A"), QString(10000, u'x'),
                            "<b>bold</b>", ""};
    for (const QString& name : names)
        RecipeStore::AddIngredient(1, Counting(name));
    const auto rows = Rows(UserDB(), "SELECT FoodName FROM Ingredients ORDER BY ID");
    ASSERT_EQ(rows.size(), names.size());
    for (int i = 0; i < names.size(); ++i)
        EXPECT_EQ(rows[i][0].toString(), names[i]);
}

TEST_F(RecipeStoreTest, OneIngredientIsRemovedByItsOwnKey) {
    AddIngredients(1, 3);
    RecipeStore::RemoveIngredient(2);
    const auto left = Rows(UserDB(), "SELECT ID FROM Ingredients ORDER BY ID");
    EXPECT_EQ(left, (QList<QVariantList>{{1LL}, {3LL}}));
}

TEST_F(RecipeStoreTest, RemovingAnIngredientThatIsGoneFails) {
    EXPECT_EQ(FailureOf([] { RecipeStore::RemoveIngredient(4711); }), 3021);
}
