#include "recipes/RecipesTest.h"

#include "foods/ui/frmFoodSearch.h"
#include "foods/ui/frmNutInfo.h"
#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "intake/ui/ucMyFood.h"
#include "recipes/RecipeBook.h"
#include "store/Connection.h"
#include "store/Schema.h"
#include "toolkit/ucAte.h"

#include <QLabel>
#include <QLineEdit>

#include <SQLiteCpp/SQLiteCpp.h>

/// Stock foods, the user's own foods and recipes, found in one search and logged to a day.
class RecipeSearchTest : public RecipesTest {
protected:
    static constexpr int OwnFood = Schema::LastStockFood + 1;

    void SetUp() override {
        RecipesTest::SetUp();
        AddFood(
            {.id = 7, .name = "Soup, canned", .gramsA = 30.0, .nutrients = {{"Calories", 250}}});
        AddFood({.id = OwnFood,
                 .name = "Soup of mine",
                 .servA = "1 mug",
                 .servB = "",
                 .nutrients = {{"Calories", 80}}});
        soup = AddRecipe("Lentil soup", "1 bowl"); // makes 4
        AddIngredients(soup, 3, 200);
        day.setDate(QDate(2002, 3, 4));
        QObject::connect(
            &dialog, &SearchDialog::FoodChosen, &day,
            [this](const QString& meal, const ScaledFood& item) { day.AddFood(item, meal); });
        dialog.show();
    }

    void SearchFor(const QString& term) { Search(*dialog.Panel(), term); }
    ucFood* Found(int index) { return Rows(*dialog.Panel()).value(index); }
    void Add(int index, const QString& quantity = QStringLiteral("1")) {
        Find<QLineEdit>(Found(index), "txtQTY_A")->setText(quantity);
        Click(Find<QWidget>(Found(index), "cmdEAT_a"));
    }
    QVariantList Logged(const QString& name) {
        return Rows(UserDB(), "SELECT Calories, Serving, ID, Meal, QTY FROM USER_FOODS WHERE "
                              "FoodName = '" +
                                  name + "'")
            .value(0);
    }

    qint32 soup = 0;
    frmFoodSearch dialog;
    ucMyFood day;
};

TEST_F(RecipeSearchTest, OneSearchFindsRecipesThenOwnFoodsThenStockFoods) {
    SearchFor("soup");
    EXPECT_EQ(NamesShown(*dialog.Panel()),
              (QStringList{"Lentil soup", "Soup of mine", "Soup, canned"}));
    EXPECT_TRUE(Found(0)->isRecipe());
    EXPECT_EQ(Found(0)->ServA(), "1 bowl");
    EXPECT_EQ(Found(0)->ID().toInt(), soup);
    EXPECT_FALSE(Found(1)->isRecipe());
}

TEST_F(RecipeSearchTest, EachOfTheThreeCanBeLogged) {
    SearchFor("soup");
    for (int i = 0; i < 3; ++i)
        Add(i, "2");
    EXPECT_EQ(Logged("Lentil soup"), (QVariantList{1200.0, "1 bowl", soup, "Breakfast", 2.0}));
    EXPECT_EQ(Logged("Soup of mine"), (QVariantList{160.0, "1 mug", OwnFood, "Breakfast", 2.0}));
    EXPECT_EQ(Logged("Soup, canned"), (QVariantList{150.0, "1 cup", 7, "Breakfast", 2.0}));
}

TEST_F(RecipeSearchTest, EachOfTheThreeCanBeExamined) {
    SearchFor("soup");
    const std::pair<const char*, const char*> facts[] = {
        {"Lentil soup", "600"}, {"Soup of mine", "80."}, {"Soup, canned", "75."}};
    for (int i = 0; i < 3; ++i)
        WithModal(
            [&](QWidget* shown) {
                EXPECT_NE(qobject_cast<frmNutInfo*>(shown), nullptr);
                EXPECT_EQ(Find<QLabel>(shown, "aaFoodName")->text(), facts[i].first);
                EXPECT_EQ(Find<QLabel>(shown, "lblCalories")->text(), facts[i].second);
            },
            [&] { Click(Find<QWidget>(Found(i), "imgInfo_W_A")); });
    EXPECT_EQ(Count("USER_FOODS"), 0);
}

TEST_F(RecipeSearchTest, AQuantityOfOneLogsTheWholeRecipeAndTheCardDividesByTheYield) {
    SearchFor("lentil");
    Add(0, "1");
    EXPECT_EQ(Logged("Lentil soup").value(0), 600.0);
    EXPECT_EQ(RecipeBook::CaloriesPerServing(soup, "4"), "Calories: 150 per serving");
}

TEST_F(RecipeSearchTest, ARecipeWithoutIngredientsIsLoggedAsZeros) {
    UserDB().Raw().exec("DELETE FROM Ingredients");
    SearchFor("lentil");
    Add(0, "1");
    EXPECT_EQ(Count("USER_FOODS", "Calories = 0 AND Zinc = 0 AND VitaminC = 0"), 1);
}

TEST_F(RecipeSearchTest, ANewRecipeIsFoundAsMyRecipeAndHasNoServing) {
    RecipeBook::AddRecipe();
    SearchFor("my rec");
    EXPECT_EQ(NamesShown(*dialog.Panel()), QStringList{"My Recipe"});
    Add(0);
    EXPECT_EQ(Count("USER_FOODS", "FoodName = 'My Recipe' AND Serving = ''"), 1);
}

TEST_F(RecipeSearchTest, ADeletedRecipeStaysOnTheTenDaysOnWhichItWasLogged) {
    const auto onEachDay = [this](const std::function<void()>& work) {
        for (int i = 1; i <= 10; ++i) {
            day.setDate(QDate(2002, 3, i));
            work();
        }
    };
    SearchFor("lentil");
    onEachDay([this] { Add(0, "0.5"); });
    RecipeBook::DeleteRecipe(soup);
    onEachDay([this] {
        const auto* line = Find<ucAte>(&day, "ucAte1");
        EXPECT_EQ(line->FoodName(), "Lentil soup");
        EXPECT_EQ(line->Serv(), "1 bowl");
        EXPECT_EQ(day.findChild<ucAte*>("ucAte2"), nullptr);
    });
    EXPECT_EQ(Count("USER_FOODS", "Calories = 300 AND ID = " + QString::number(soup)), 10);
    SearchFor("lentil");
    EXPECT_TRUE(NamesShown(*dialog.Panel()).isEmpty());
}

TEST_F(RecipeSearchTest, EatingARecipeThatWasDeletedMeanwhileFailsAndLogsNothing) {
    SearchFor("lentil");
    RecipeBook::DeleteRecipe(soup);
    EXPECT_EQ(FailureOf([this] { Found(0)->EatFood(soup, "A", 1, true); }), 3021);
    EXPECT_EQ(Count("USER_FOODS"), 0);
}

TEST_F(RecipeSearchTest, ARecipeAndAFoodWithTheSameKeyAreNotConfused) {
    AddFood({.id = soup, .name = "Lentils", .gramsA = 100.0, .nutrients = {{"Calories", 125}}});
    SearchFor("lentil");
    Add(0);
    Add(1);
    EXPECT_EQ(Logged("Lentil soup").value(0), 600.0);
    EXPECT_EQ(Logged("Lentils").value(0), 125.0);
}

TEST_F(RecipeSearchTest, AwkwardNamesAreFoundExaminedAndLogged) {
    const QStringList names{QStringLiteral("O'Brien's stew'); DROP TABLE Recipes; --"),
                            QStringLiteral("stew ") + QString(10000, u'x'),
                            QStringLiteral("stew 100 % of_[all] ^~| \U0001F372"),
                            QStringLiteral("stew <b>bold</b>")};
    for (const QString& name : names)
        AddIngredient(AddRecipe(name, name), {{"Calories", 10}});
    SearchFor("stew");
    ASSERT_EQ(Rows(*dialog.Panel()).size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        WithModal([](QWidget*) {}, [&] { Click(Find<QWidget>(Found(i), "imgInfo_W_A")); });
        Add(i);
    }
    const auto logged = Rows(UserDB(), "SELECT FoodName, Serving FROM USER_FOODS");
    for (const QString& name : names)
        EXPECT_TRUE(logged.contains(QVariantList{name, name})) << name.left(40).toStdString();
    EXPECT_EQ(Count("Recipes"), 5);
}

TEST_F(RecipeSearchTest, ThousandsOfEachSourceGiveTwoHundredAndOneOfEach) {
    AddRecipes(5000, "Bean recipe");
    AddFoods(5000, OwnFood + 1, "Bean of mine");
    AddFoods(300, 100, "Bean, stock");
    SearchFor("bean");
    const QStringList names = NamesShown(*dialog.Panel());
    ASSERT_EQ(names.size(), 3 * 201);
    EXPECT_TRUE(names[200].startsWith("Bean recipe"));
    EXPECT_TRUE(names[201].startsWith("Bean of mine"));
    EXPECT_TRUE(names[401].startsWith("Bean of mine"));
    EXPECT_TRUE(names[402].startsWith("Bean, stock"));
}
