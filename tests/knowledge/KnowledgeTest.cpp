#include "analysis/LoggedSums.h"
#include "foods/FoodSearch.h"
#include "foods/Meals.h"
#include "foods/Quantity.h"
#include "foods/ScaledFood.h"
#include "foods/SearchTerms.h"
#include "intake/DayLog.h"
#include "model/Profiles.h"
#include "recipes/RecipeBook.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Format.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "support/Places.h"

#include <QFile>
#include <QTemporaryDir>

#include <SQLiteCpp/SQLiteCpp.h>

#include <gtest/gtest.h>

#include <ctime>

/// The delivered files and one person, without a window, a display or an application object.
class KnowledgeTest : public ::testing::Test {
protected:
    static constexpr int Lunch = 1;
    static constexpr qint32 StockFood = 23508;

    void SetUp() override {
        ResetApp();
        User::ResetCurrent();
        Open(UserDB(), "users.mdb", DatabaseKind::Users);
        Open(FoodDB(), "foods.mdb", DatabaseKind::Foods);
        AddPerson();
    }
    void TearDown() override {
        UserDB().Close();
        FoodDB().Close();
        User::ResetCurrent();
        ResetApp();
    }

    void Open(Connection& connection, const QString& name, DatabaseKind kind) {
        const QString path = folder_.filePath(name);
        ASSERT_TRUE(QFile::copy(Places::Build("/delivered/" + name), path));
        connection.Open(path, kind);
    }
    /// A man of 40 years and 70 inches who weighs 200 pounds and wants to weigh 170.
    static void AddPerson() {
        Profile ben{.userName = "Ben",
                    .age = 40,
                    .feet = "5",
                    .inches = 10,
                    .currentWeight = 200,
                    .desiredWeight = 170,
                    .gender = 1,
                    .activityLevel = 2,
                    .targets = {}};
        ASSERT_EQ(Profiles::ProblemWithNew(ben), "");
        User::Current() = Profiles::Append(ben);
    }
    static qint32 MakeSoup() {
        const qint32 soup = RecipeBook::AddRecipe();
        RecipeTexts texts = RecipeBook::Read(soup);
        texts[RecipeField::Name] = "Soup";
        texts[RecipeField::Serving] = "1 bowl";
        texts[RecipeField::Yield] = "4";
        EXPECT_EQ(RecipeBook::SaveRecipe(soup, texts), nullptr);
        for (const double quantity : {1.0, 2.5})
            RecipeBook::AddIngredient(soup, ScaledFood::FromCatalogue(StockFood, "A", quantity));
        return soup;
    }
    static double StockCalories() {
        return ScaledFood::FromCatalogue(StockFood, "A", 1).Amount("Calories");
    }

    const QDate day_{2002, 3, 4};
    QTemporaryDir folder_;
};

TEST_F(KnowledgeTest, AFoodIsFoundLoggedSummedAndRemoved) {
    const FoodList found = FoodSearch::Find(SearchTerms("lentil"), {false, false, true});
    ASSERT_GT(found.Count(), 0);
    const ScaledFood lentils = ScaledFood::FromCatalogue(found.Item(1).ID, "A", 2);
    ASSERT_GT(lentils.Amount("Calories"), 0);
    DayLog::AddFood(lentils, Meals::Names[Lunch], day_);
    const std::vector<LoggedFood> logged = DayLog::FoodsOf(day_)[Lunch];
    ASSERT_EQ(logged.size(), 1U);
    EXPECT_EQ(logged[0].name, found.Item(1).FoodName);
    EXPECT_EQ(logged[0].serving, lentils.Text("SERVING"));
    EXPECT_EQ(logged[0].quantity, 2);
    const std::optional<Nuts> totals = LoggedSums::OfDay(day_);
    ASSERT_TRUE(totals);
    EXPECT_EQ(totals->Calories(), Round(lentils.Amount("Calories")));
    EXPECT_DOUBLE_EQ(totals->Protein(), lentils.Amount("Protein"));
    DayLog::RemoveFood(logged[0].RecID);
    EXPECT_TRUE(DayLog::FoodsOf(day_)[Lunch].empty());
    EXPECT_FALSE(LoggedSums::OfDay(day_));
}

TEST_F(KnowledgeTest, ARecipeIsMadeOfIngredientsAndLoggedAsTheirSum) {
    const qint32 soup = MakeSoup();
    const std::vector<Ingredient> ingredients = RecipeBook::Ingredients(soup);
    ASSERT_EQ(ingredients.size(), 2U);
    EXPECT_EQ(ingredients[1].quantity, 2.5);
    const double calories = 3.5 * StockCalories();
    EXPECT_EQ(RecipeBook::CaloriesPerServing(soup, "4"),
              QString("Calories: %1 per serving").arg(Round(calories / 4)));
    DayLog::AddFood(ScaledFood::FromRecipe(soup, 2), Meals::Names[Lunch], day_);
    EXPECT_EQ(DayLog::FoodsOf(day_)[Lunch].at(0).name, "Soup");
    EXPECT_EQ(LoggedSums::OfDay(day_)->Calories(), Round(2 * calories));
}

TEST_F(KnowledgeTest, ARecipeThatBreaksARuleIsNotWritten) {
    const qint32 recipe = RecipeBook::AddRecipe();
    RecipeTexts texts = RecipeBook::Read(recipe);
    texts[RecipeField::Name] = "Soup";
    const RecipeCheck* failed = RecipeBook::SaveRecipe(recipe, texts);
    ASSERT_NE(failed, nullptr);
    EXPECT_EQ(failed->field, RecipeField::Serving);
    EXPECT_STREQ(failed->message, "Please give your new recipe a serving size.");
    EXPECT_EQ(RecipeBook::Read(recipe)[RecipeField::Name], "My Recipe");
}

TEST_F(KnowledgeTest, AnEmptyTextOfARecipeIsNotNullAndAMissingOneIs) {
    const qint32 recipe = RecipeBook::AddRecipe();
    UserDB().Raw().exec("UPDATE Recipes SET Instructions = NULL");
    const RecipeTexts texts = RecipeBook::Read(recipe);
    EXPECT_FALSE(texts[RecipeField::Serving].isNull());
    EXPECT_TRUE(texts[RecipeField::Serving].isEmpty());
    EXPECT_TRUE(texts[RecipeField::Instructions].isNull());
}

TEST_F(KnowledgeTest, TargetsAreDerivedFromAProfileAndFollowALoggedWeight) {
    const User& ben = User::Current();
    EXPECT_EQ(ben.RDIs.Calories(), 3149);
    App().AppInfo.AUTOUPDATERDI = true;
    DayLog::SetWeight(day_, 180.4);
    EXPECT_TRUE(DayLog::TakeWeight(DayLog::Weight(day_)));
    EXPECT_EQ(ben.CurrentWeight, 180);
    EXPECT_EQ(ben.RDIs.Calories(), 2913);
    EXPECT_EQ(Profiles::Read(ben.UID).targets[Nutrient::Calories], 2913);
}

TEST_F(KnowledgeTest, AWeightThatIsRefusedSaysWhyAndChangesNothing) {
    EXPECT_EQ(DayLog::WeightRefusal(1'000'000), "");
    EXPECT_EQ(DayLog::WeightRefusal(0.1), "");
    EXPECT_TRUE(DayLog::WeightRefusal(0).startsWith("Please enter a valid weight"));
    EXPECT_TRUE(DayLog::WeightRefusal(-1).startsWith("Please enter a valid weight"));
    EXPECT_TRUE(DayLog::WeightRefusal(1'000'001).startsWith("Please enter a weight of 1,000,000"));
    EXPECT_FALSE(DayLog::TakeWeight(0));
    EXPECT_EQ(User::Current().CurrentWeight, 200);
}

TEST_F(KnowledgeTest, AWeightOf0TakesTheEntryOfTheDayBack) {
    EXPECT_EQ(DayLog::Weight(day_), 0);
    DayLog::SetWeight(day_, 150.5);
    EXPECT_EQ(DayLog::Weight(day_), 150.5);
    DayLog::SetWeight(day_, 0);
    EXPECT_EQ(DayLog::Weight(day_), 0);
    EXPECT_EQ(UserDB().Raw().execAndGet("SELECT count(*) FROM USER_WEIGHTS").getInt(), 1);
}

/// In some zones a day begins at one o'clock, because its first hour is left out.
TEST_F(KnowledgeTest, AFoodBelongsToItsDayInEveryZoneAlsoWhereClocksChange) {
    const ScaledFood food = ScaledFood::FromCatalogue(StockFood, "A", 1);
    for (const QDate day :
         {QDate(2026, 12, 31), QDate(2027, 1, 1), QDate(2028, 2, 29), QDate(2026, 3, 8),
          QDate(2026, 3, 29), QDate(2026, 4, 5), QDate(2026, 4, 24), QDate(2026, 9, 6),
          QDate(2026, 10, 25), QDate(2026, 11, 1), QDate(2018, 11, 4), QDate(2021, 3, 22)}) {
        const QString text = day.toString(Qt::ISODate);
        DayLog::AddFood(food, Meals::Names[Lunch], day);
        DayLog::SetWeight(day, 150.5);
        EXPECT_TRUE(LoggedSums::OfDay(day)) << text.toStdString();
        EXPECT_FALSE(LoggedSums::OfDay(day.addDays(-1))) << text.toStdString();
        EXPECT_FALSE(LoggedSums::OfDay(day.addDays(1))) << text.toStdString();
        EXPECT_EQ(DayLog::Weight(day), 150.5) << text.toStdString();
        EXPECT_EQ(UserDB().Raw().execAndGet("SELECT UDate FROM USER_FOODS").getString(),
                  text.toStdString());
        EXPECT_EQ(Dates::Parse(FormatShortDate(day)), day) << text.toStdString();
        EXPECT_TRUE(FormatLongDate(day).startsWith(Dates::WeekdayName(Dates::Weekday(day))));
        DayLog::RemoveFood(DayLog::FoodsOf(day)[Lunch].at(0).RecID);
    }
}

TEST_F(KnowledgeTest, AFoodIsFoundInEveryLocaleInCapitalsToo) {
    for (const char* words : {"milk fluid", "MILK FLUID", "Milk FLUID"})
        EXPECT_GT(FoodSearch::Find(SearchTerms(words), {false, false, true}).Count(), 5) << words;
}

TEST(Figures, AreReadAsTheyAreShownInEveryLocale) {
    for (const double value : {0.0, 0.5, 1.25, 99.99, 999.0, 1234.0, 1234567.0, -42.0}) {
        EXPECT_EQ(ToDouble(DecimalText(value)), value);
        EXPECT_DOUBLE_EQ(PlainNumber(Format(value, NumberMask::UpToTwoDecimals)).toDouble(), value);
    }
    EXPECT_EQ(PlainNumber(Format(1234567, NumberMask::Thousands)), "1234567");
}

TEST(Figures, ACommaIsRefusedAndNeverSkipped) {
    for (const QString& text : {QStringLiteral("1,5"), QStringLiteral("1.000,5")}) {
        EXPECT_EQ(NumberOrZero(text), 0) << text.toStdString();
        EXPECT_THROW(ToDouble(text), RuntimeError) << text.toStdString();
    }
}

TEST(Today, IsTheDayOfTheZone) {
    Clock::UseSystemClock();
    const auto here = [] {
        const std::time_t now = std::time(nullptr);
        std::tm local{};
        localtime_r(&now, &local);
        return QDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
    };
    const QDate before = here();
    const QDate today = Clock::Today();
    EXPECT_TRUE(today == before || today == here()) << "or midnight has just passed";
}

TEST(Quantities, AreLoggedUpTo99AndExaminedBeyond) {
    for (const double accepted : {0.05, 1.0, 99.0, -1.0})
        EXPECT_EQ(Quantity::LogRefusal(accepted), "") << accepted;
    for (const double refused : {0.0, 99.01})
        EXPECT_EQ(Quantity::LogRefusal(refused), "Please enter a quantity (QTY) between .1 and 99");
    EXPECT_EQ(Quantity::ExamineRefusal(0), "Please enter a valid quantity (between .1 and 99)");
    EXPECT_EQ(Quantity::ExamineRefusal(100), "");
}
