#include "recipes/RecipesTest.h"

#include "foods/Logix.h"
#include "model/Nutrients.h"
#include "recipes/RecipeBook.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <SQLiteCpp/SQLiteCpp.h>

class RecipeBookTest : public RecipesTest {
protected:
    /// The caption of a recipe with one ingredient.
    QString Caption(double calories, const QString& yield) {
        const qint32 recipe = AddRecipe("Soup", "1 bowl");
        AddIngredient(recipe, {{"Calories", calories}});
        return RecipeBook::CaloriesPerServing(recipe, yield);
    }

    /// Positions 1 to 31 of one row.
    QVariantList Amounts(const QString& where) {
        const auto rows = Rows(UserDB(), "SELECT * FROM Ingredients WHERE " + where);
        return rows.isEmpty() ? QVariantList() : rows.first().mid(1, NutrientCount);
    }
};

TEST_F(RecipeBookTest, ANewRecipeStartsWithItsDefaults) {
    const qint32 key = RecipeBook::AddRecipe();
    const auto rows = Rows(UserDB(), "SELECT RecipeID, RecipeName, ServingName, RecipeYield, "
                                     "Instructions, PrepTime FROM Recipes");
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0], (QVariantList{qlonglong(key), "My Recipe", "", 1.0,
                                     "(enter preparation instructions here...)", 30.0}));
}

TEST_F(RecipeBookTest, TheServingOfANewRecipeIsEmptyAndNotNull) {
    RecipeBook::AddRecipe();
    EXPECT_EQ(Count("Recipes", "ServingName IS NULL"), 0);
}

TEST_F(RecipeBookTest, TheKeyGivenIsThatOfTheNewRowAmongOthers) {
    AddRecipes(50, "Soup");
    const qint32 first = RecipeBook::AddRecipe();
    const qint32 second = RecipeBook::AddRecipe();
    EXPECT_EQ(second, first + 1);
    EXPECT_EQ(Users("SELECT max(RecipeID) FROM Recipes").toInt(), second);
}

TEST_F(RecipeBookTest, KeysOfDeletedRecipesAreNotGivenOutAgain) {
    const qint32 first = RecipeBook::AddRecipe();
    RecipeBook::DeleteRecipe(first);
    EXPECT_GT(RecipeBook::AddRecipe(), first);
}

TEST_F(RecipeBookTest, DeletingARecipeOfThreeIngredientsLeavesTwo) {
    const qint32 recipe = RecipeBook::AddRecipe();
    AddIngredients(recipe, 3);
    RecipeBook::DeleteRecipe(recipe);
    EXPECT_EQ(Count("Recipes"), 0);
    const auto left = Rows(UserDB(), "SELECT FoodName, RecipeID FROM Ingredients ORDER BY ID");
    ASSERT_EQ(left.size(), 2);
    EXPECT_EQ(left[0], (QVariantList{"Food 2", qlonglong(recipe)}));
    EXPECT_EQ(left[1], (QVariantList{"Food 3", qlonglong(recipe)}));
}

TEST_F(RecipeBookTest, DeletingTouchesNoOtherRecipe) {
    const qint32 kept = RecipeBook::AddRecipe();
    AddIngredients(kept, 2);
    const qint32 gone = RecipeBook::AddRecipe();
    AddIngredients(gone, 1);
    RecipeBook::DeleteRecipe(gone);
    EXPECT_EQ(Count("Recipes", "RecipeID = " + QString::number(kept)), 1);
    EXPECT_EQ(Count("Ingredients"), 2);
}

TEST_F(RecipeBookTest, DeletingARecipeWithoutIngredientsRemovesTheRecipe) {
    RecipeBook::DeleteRecipe(RecipeBook::AddRecipe());
    EXPECT_EQ(Count("Recipes"), 0);
}

TEST_F(RecipeBookTest, DeletingARecipeThatIsGoneDoesNothing) {
    RecipeBook::AddRecipe();
    RecipeBook::DeleteRecipe(4711);
    EXPECT_EQ(Count("Recipes"), 1);
}

TEST_F(RecipeBookTest, IngredientsLeftByADeletedRecipeNeverBelongToANewOne) {
    const qint32 gone = RecipeBook::AddRecipe();
    AddIngredients(gone, 3);
    RecipeBook::DeleteRecipe(gone);
    EXPECT_EQ(RecipeBook::CaloriesPerServing(RecipeBook::AddRecipe(), "1"), "Calories: --");
}

TEST_F(RecipeBookTest, ARecipeWithoutIngredientsShowsNoCalories) {
    const qint32 recipe = RecipeBook::AddRecipe();
    EXPECT_EQ(RecipeBook::CaloriesPerServing(recipe, "4"), "Calories: --");
    const auto sums = Rows(UserDB(), RecipeSumSQL(recipe));
    ASSERT_EQ(sums.size(), 1);
    EXPECT_EQ(sums[0], QVariantList(NutrientCount, QVariant()));
}

TEST_F(RecipeBookTest, CaloriesAreDividedByTheYieldAndRoundedHalfToEven) {
    EXPECT_EQ(Caption(1000, "3"), "Calories: 333 per serving");
    EXPECT_EQ(Caption(5, "2"), "Calories: 2 per serving");
    EXPECT_EQ(Caption(7, "2"), "Calories: 4 per serving");
    EXPECT_EQ(Caption(2.5, "1"), "Calories: 2 per serving");
    EXPECT_EQ(Caption(3.5, "1"), "Calories: 4 per serving");
    EXPECT_EQ(Caption(0, "4"), "Calories: 0 per serving");
    EXPECT_EQ(Caption(-10, "4"), "Calories: -2 per serving");
}

TEST_F(RecipeBookTest, AYieldOfZeroDividesByOne) {
    for (const char* yield : {"0", "", "abc", "-0", "0.0", "servings: 4", "1e400"})
        EXPECT_EQ(Caption(300, yield), "Calories: 300 per serving") << yield;
}

TEST_F(RecipeBookTest, TheYieldIsTheLeadingNumberOfTheCaption) {
    EXPECT_EQ(Caption(300, "2.5"), "Calories: 120 per serving");
    EXPECT_EQ(Caption(300, " 3 bowls"), "Calories: 100 per serving");
    EXPECT_EQ(Caption(300, "1 0"), "Calories: 30 per serving");
    EXPECT_EQ(Caption(300, ".5"), "Calories: 600 per serving");
    EXPECT_EQ(Caption(300, "3,9"), "Calories: 100 per serving");
}

TEST_F(RecipeBookTest, TheYieldComesFromTheCaptionAndNotFromTheRow) {
    const qint32 recipe = AddRecipe("Soup", "1 bowl"); // its row says 4
    AddIngredient(recipe, {{"Calories", 400}});
    EXPECT_EQ(RecipeBook::CaloriesPerServing(recipe, "2"), "Calories: 200 per serving");
}

TEST_F(RecipeBookTest, AFigureThatFitsNoWholeNumberShowsAsDashes) {
    EXPECT_EQ(Caption(300, "1e-300"), "Calories: --");
    EXPECT_EQ(Caption(2147483647, "1"), "Calories: 2147483647 per serving");
    EXPECT_EQ(Caption(2147483648.0, "1"), "Calories: --");
}

TEST_F(RecipeBookTest, CaloriesThatAreAllNullCountAsNone) {
    const qint32 recipe = AddRecipe("Soup", "1 bowl");
    AddIngredient(recipe, {{"Protein", 4}});
    EXPECT_EQ(RecipeBook::CaloriesPerServing(recipe, "1"), "Calories: --");
    AddIngredient(recipe, {{"Calories", 12}});
    EXPECT_EQ(RecipeBook::CaloriesPerServing(recipe, "1"), "Calories: 12 per serving");
}

TEST_F(RecipeBookTest, LoggingARecipeDoesNotDivideByTheYield) {
    const qint32 recipe = AddRecipe("Soup", "1 bowl"); // makes 4
    AddIngredients(recipe, 4, 100);
    EXPECT_EQ(ScaledFood::FromRecipe(recipe, 1).Amount("Calories"), 400);
    EXPECT_EQ(RecipeBook::CaloriesPerServing(recipe, "4"), "Calories: 100 per serving");
}

/// A further nutrient must not move the food's name, so the column after the nutrients is checked.
TEST_F(RecipeBookTest, TheNutrientsStandInOneOrderInNewAndInDeliveredFiles) {
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

TEST_F(RecipeBookTest, AmountsAreCopiedByPositionAndTextsByKey) {
    RecipeBook::AddIngredient(7, Counting("Flour", 2.5));
    const QVariantList amounts = Amounts("1");
    ASSERT_EQ(amounts.size(), NutrientCount);
    for (int i = 0; i < NutrientCount; ++i)
        EXPECT_EQ(amounts[i], double(i + 1));
    EXPECT_EQ(Rows(UserDB(), "SELECT FoodName, Serving, RecipeID, QTY FROM Ingredients").first(),
              (QVariantList{"Flour", "1 cup", 7LL, 2.5}));
}

TEST_F(RecipeBookTest, EveryAmountOfACatalogueFoodReachesTheColumnOfItsName) {
    FoodRow food{.id = 7, .name = "Flour", .gramsA = 100.0};
    double amount = 0;
    for (const NutrientInfo& nutrient : Nutrients())
        food.nutrients[QLatin1String(nutrient.profileColumn)] = amount += 0.25;
    AddFood(food);
    RecipeBook::AddIngredient(1, ScaledFood::FromCatalogue(7, "A", 2));
    amount = 0;
    for (const NutrientInfo& nutrient : Nutrients()) {
        const QString column = QLatin1String(nutrient.logColumn);
        EXPECT_DOUBLE_EQ(Users("SELECT " + column + " FROM Ingredients").toDouble(),
                         2 * (amount += 0.25))
            << nutrient.logColumn;
    }
}

TEST_F(RecipeBookTest, ARecipeAsAnIngredientKeepsEveryAmountInTheColumnOfItsName) {
    const qint32 soup = AddRecipe("Soup", "1 bowl");
    QMap<QString, double> amounts;
    for (const NutrientInfo& nutrient : Nutrients())
        amounts[QLatin1String(nutrient.logColumn)] = double(amounts.size()) + 1.25;
    AddIngredient(soup, amounts);
    const qint32 stew = AddRecipe("Stew", "1 plate");
    RecipeBook::AddIngredient(stew, ScaledFood::FromRecipe(soup, 2));
    const QString own = " FROM Ingredients WHERE RecipeID = " + QString::number(stew);
    for (const auto& [column, amount] : amounts.asKeyValueRange())
        EXPECT_DOUBLE_EQ(Users("SELECT " + column + own).toDouble(), 2 * amount)
            << column.toStdString();
    EXPECT_EQ(Users("SELECT FoodName" + own).toString(), "Soup");
}

TEST_F(RecipeBookTest, ARecipeOfARecipeHasTheSameCalories) {
    const qint32 filling = AddRecipe("Filling", "1 bowl");
    AddIngredient(filling, {{"Calories", 2537}, {"VitaminC", 11}});
    const qint32 pie = AddRecipe("Pie", "1 pie");
    RecipeBook::AddIngredient(pie, ScaledFood::FromRecipe(filling, 1));
    EXPECT_EQ(RecipeBook::CaloriesPerServing(pie, "1"), "Calories: 2537 per serving");
}

TEST_F(RecipeBookTest, ALaterChangeOfTheCatalogueChangesNoRecipe) {
    AddFood({.id = 7, .name = "Flour", .gramsA = 100.0, .nutrients = {{"Calories", 364}}});
    const qint32 recipe = RecipeBook::AddRecipe();
    RecipeBook::AddIngredient(recipe, ScaledFood::FromCatalogue(7, "A", 1));
    FoodDB().Raw().exec("UPDATE FOODS SET Calories = 1, FoodName = 'Sand'");
    EXPECT_EQ(RecipeBook::CaloriesPerServing(recipe, "1"), "Calories: 364 per serving");
    EXPECT_EQ(Users("SELECT FoodName FROM Ingredients").toString(), "Flour");
}

TEST_F(RecipeBookTest, TheSameIngredientTwiceGivesTwoRows) {
    RecipeBook::AddIngredient(1, Counting());
    RecipeBook::AddIngredient(1, Counting());
    EXPECT_EQ(Count("Ingredients"), 2);
}

TEST_F(RecipeBookTest, AnItemThatMissesAnEntryLeavesNoHalfWrittenRow) {
    ScaledFood item;
    item.Add(QStringLiteral("Calories"), 1.0);
    EXPECT_EQ(FailureOf([&] { RecipeBook::AddIngredient(1, item); }), 9);
    EXPECT_EQ(Count("Ingredients"), 0);
    RecipeBook::AddIngredient(1, Counting());
    EXPECT_EQ(Count("Ingredients"), 1);
}

TEST_F(RecipeBookTest, ARowThatTheStoreRefusesLeavesNothing) {
    UserDB().Raw().exec("CREATE TRIGGER full BEFORE INSERT ON Ingredients "
                        "BEGIN SELECT RAISE(ABORT, 'full'); END");
    EXPECT_LT(FailureOf([&] { RecipeBook::AddIngredient(1, Counting()); }), 0);
    UserDB().Raw().exec("DROP TRIGGER full");
    EXPECT_EQ(Count("Ingredients"), 0);
}

TEST_F(RecipeBookTest, AwkwardTextsAreKeptToTheLetter) {
    const QStringList names{"O'Brien's '); DROP TABLE Ingredients; --",
                            QStringLiteral("100 % of_[all] ^ ~ | \U0001F96A"), QString(10000, u'x'),
                            "<b>bold</b>", ""};
    for (const QString& name : names)
        RecipeBook::AddIngredient(1, Counting(name));
    const auto rows = Rows(UserDB(), "SELECT FoodName FROM Ingredients ORDER BY ID");
    ASSERT_EQ(rows.size(), names.size());
    for (int i = 0; i < names.size(); ++i)
        EXPECT_EQ(rows[i][0].toString(), names[i]);
}

TEST_F(RecipeBookTest, OneIngredientIsRemovedByItsOwnKey) {
    AddIngredients(1, 3);
    RecipeBook::RemoveIngredient(2);
    const auto left = Rows(UserDB(), "SELECT ID FROM Ingredients ORDER BY ID");
    EXPECT_EQ(left, (QList<QVariantList>{{1LL}, {3LL}}));
}

TEST_F(RecipeBookTest, RemovingAnIngredientThatIsGoneFails) {
    EXPECT_EQ(FailureOf([] { RecipeBook::RemoveIngredient(4711); }), 3021);
}
