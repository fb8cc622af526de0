#include "intake/DayLog.h"

#include "IntakeTest.h"

#include "foods/Meals.h"
#include "foods/Quantity.h"
#include "intake/LoggedRow.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "support/HostileRows.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <cmath>

class DayLogTest : public IntakeTest {
protected:
    static constexpr int Lunch = 1;
    const QDate next_ = day.addDays(1);

    QStringList NutrientColumns() {
        QStringList names;
        for (const QVariantList& row :
             Rows(UserDB(),
                  "SELECT name FROM pragma_table_info('USER_FOODS') WHERE cid BETWEEN 1 AND 31"))
            names << row[0].toString();
        return names;
    }
    /// All columns of a day's rows but key and day, with numbers as the store holds their bits.
    QList<QVariantList> Content(QDate on) {
        QList<QVariantList> rows =
            Rows(UserDB(), "SELECT * FROM USER_FOODS WHERE UDate = '" + on.toString(Qt::ISODate) +
                               "' ORDER BY RecID");
        for (QVariantList& row : rows) {
            row.removeFirst();
            row.removeAll(on.toString(Qt::ISODate));
        }
        return rows;
    }
};

TEST_F(DayLogTest, AddingAFoodGivesTheKeyOfItsRow) {
    const qint32 key = DayLog::AddFood(Scaled("Soup"), "Lunch", day);
    EXPECT_EQ(Users(QStringLiteral("SELECT FoodName FROM USER_FOODS WHERE RecID = %1").arg(key)),
              "Soup");
}

TEST_F(DayLogTest, CopyingADayKeepsEveryValueToTheBit) {
    DayLog::AddFood(Scaled("Soup", 0.1 + 0.2, 1.0 / 3), "Lunch", day);
    DayLog::AddFood(Scaled("Bread", 1e-300), "Breakfast", day);
    Log("Only calories", ""); // the other amounts are null
    EXPECT_EQ(DayLog::CopyFoods(LoggedEntries::Of(day), next_).size(), 3);
    EXPECT_EQ(Content(next_), Content(day));
    EXPECT_EQ(LogCount(), 6);
}

TEST_F(DayLogTest, CopyingAMealLeavesTheOthers) {
    Log("Soup", "Lunch");
    Log("Bread", "Breakfast");
    Log("Tea", "LUNCH");
    EXPECT_EQ(DayLog::CopyFoods(LoggedEntries::Of(day, Lunch), next_).size(), 2);
    EXPECT_EQ(LogCount("UDate = '2002-03-05'"), 2);
    EXPECT_EQ(LogCount("UDate = '2002-03-05' AND FoodName = 'Bread'"), 0);
}

TEST_F(DayLogTest, CopyingTakesTheFoodsOfTheCurrentUserAlone) {
    Log("Soup", "Lunch");
    AddUser("Ben");
    EXPECT_EQ(DayLog::CopyFoods(LoggedEntries::Of(day), next_).size(), 0);
}

TEST_F(DayLogTest, CopyingADayOntoItselfDoublesIt) {
    Log("Soup", "Lunch");
    EXPECT_EQ(DayLog::CopyFoods(LoggedEntries::Of(day), day).size(), 1);
    EXPECT_EQ(LogCount(), 2);
}

TEST_F(DayLogTest, CopyingOneFoodKeepsItsMealAndGivesTheKeyOfTheCopy) {
    const qint32 key = DayLog::AddFood(Scaled("Soup", 0.1 + 0.2), "Lunch", day);
    const std::vector<qint32> copies = DayLog::CopyFoods(LoggedEntries::One(key), next_);
    ASSERT_EQ(copies.size(), 1);
    EXPECT_EQ(Content(next_), Content(day));
    EXPECT_EQ(Users(QStringLiteral("SELECT UDate FROM USER_FOODS WHERE RecID = %1").arg(copies[0])),
              "2002-03-05");
}

TEST_F(DayLogTest, MovingAFoodChangesItsMealAlone) {
    const qint32 key = DayLog::AddFood(Scaled("Soup", 0.1 + 0.2, 1.0 / 3), "Lunch", day);
    Log("Bread", "Lunch");
    const QList<QVariantList> before = Content(day);
    DayLog::MoveFoods(LoggedEntries::One(key), 2);
    EXPECT_EQ(LogCount("FoodName = 'Soup' AND Meal = 'Dinner'"), 1);
    EXPECT_EQ(LogCount("FoodName = 'Bread' AND Meal = 'Lunch'"), 1);
    DayLog::MoveFoods(LoggedEntries::One(key), Lunch);
    EXPECT_EQ(Content(day), before);
}

/// |product / old - scaled| in more digits than a double has.
static long double Error(double scaled, double amount, double quantity, double old) {
    return std::abs(static_cast<long double>(amount) * quantity / old - scaled);
}

TEST_F(DayLogTest, ANewQuantityScalesTheStoredAmountsWithOneRounding) {
    for (const double amount : {100.0, 0.1, 7.7, 1.0 / 3, 123456.789, 1e-9})
        for (const double old : {1.0, 3.0, .7, 49.0, -2.5})
            for (const double quantity : {1.0, .1, 99.0, 1.0 / 3, 7.0}) {
                const qint32 key = DayLog::AddFood(Scaled("Soup", amount, old), "Lunch", day);
                EXPECT_EQ(DayLog::QuantityRefusal(key, quantity), "");
                DayLog::SetQuantity(key, quantity);
                const double scaled =
                    Users(
                        QStringLiteral("SELECT Calories FROM USER_FOODS WHERE RecID = %1").arg(key))
                        .toDouble();
                const double ulp = std::abs(std::nextafter(scaled, 1e300) - scaled);
                EXPECT_LE(Error(scaled, amount, quantity, old), ulp * .5005L)
                    << amount << ' ' << old << ' ' << quantity;
            }
    EXPECT_EQ(LogCount("QTY = 99 AND Protein = 99"), 6);
}

TEST_F(DayLogTest, ANewQuantityScalesEveryNutrient) {
    const qint32 key = DayLog::AddFood(Scaled("Soup", 100, 2), "Lunch", day);
    QStringList known;
    QStringList doubled;
    for (const QString& nutrient : NutrientColumns()) {
        known << nutrient + QStringLiteral(" = %1").arg(known.size() + 10);
        doubled << nutrient + QStringLiteral(" = %1").arg(doubled.size() * 2 + 20);
    }
    UserDB().Raw().exec("UPDATE USER_FOODS SET " + known.join(u',').toStdString());
    DayLog::SetQuantity(key, 4);
    EXPECT_EQ(LogCount(doubled.join(QStringLiteral(" AND "))), 1);
}

TEST_F(DayLogTest, AnUnknownAmountStaysUnknownInAnotherQuantity) {
    Log("Only calories", "Lunch", day, 100, 2);
    DayLog::SetQuantity(Users("SELECT RecID FROM USER_FOODS").toInt(), 3);
    EXPECT_EQ(LogCount("Calories = 150 AND QTY = 3 AND Protein IS NULL"), 1);
}

TEST_F(DayLogTest, AQuantityIsRefusedAsInTheSearch) {
    const qint32 key = DayLog::AddFood(Scaled("Soup"), "Lunch", day);
    for (const double refused : {0.0, 99.01, 1e300})
        EXPECT_EQ(DayLog::QuantityRefusal(key, refused), Quantity::LogRefusal(refused));
    for (const double accepted : {99.0, .05, -1.0})
        EXPECT_EQ(DayLog::QuantityRefusal(key, accepted), "");
}

TEST_F(DayLogTest, AnEntryThatCannotBeScaledKeepsItsQuantity) {
    Log("No quantity", "Lunch", day, 100, 0);
    Log("Infinite", "Lunch", day, INFINITY);
    Log("Huge", "Lunch", day, 1e300, 1e-300);
    Log("Text", "Lunch");
    Log("Unknown quantity", "Lunch");
    UserDB().Raw().exec("UPDATE USER_FOODS SET Protein = '12 grams' WHERE FoodName = 'Text'");
    UserDB().Raw().exec("UPDATE USER_FOODS SET QTY = NULL WHERE FoodName = 'Unknown quantity'");
    const LoggedMeals meals = DayLog::FoodsOf(day);
    for (const LoggedFood& food : meals[Lunch])
        EXPECT_EQ(DayLog::QuantityRefusal(food.RecID, 2),
                  "The quantity of this entry cannot be changed. Please remove it and add the food "
                  "again.")
            << food.name.toStdString();
    EXPECT_NE(DayLog::QuantityRefusal(4711, 2), "") << "an entry that is gone";
}

TEST_F(DayLogTest, ATextInAnyNutrientKeepsTheQuantity) {
    const qint32 key = DayLog::AddFood(Scaled("Soup"), "Lunch", day);
    for (const QString& nutrient : NutrientColumns()) {
        UserDB().Raw().exec("UPDATE USER_FOODS SET " + nutrient.toStdString() + " = '12 grams'");
        EXPECT_NE(DayLog::QuantityRefusal(key, 2), "") << nutrient.toStdString();
        UserDB().Raw().exec("UPDATE USER_FOODS SET " + nutrient.toStdString() + " = 12");
        EXPECT_EQ(DayLog::QuantityRefusal(key, 2), "") << nutrient.toStdString();
    }
}

TEST_F(DayLogTest, AFoodWhoseAmountsAreUnknownIsListedWithZero) {
    Log("Only a name", "Lunch");
    UserDB().Raw().exec("UPDATE USER_FOODS SET Calories = NULL, QTY = NULL");
    EXPECT_EQ(DayLog::FoodsOf(day)[Lunch].front().calories, 0);
    EXPECT_EQ(DayLog::FoodsOf(day)[Lunch].front().quantity, 0);
    EXPECT_EQ(LoggedRow::AllOf(LoggedEntries::Of(day)).front().quantity, 0);
}

TEST_F(DayLogTest, ClearingADayWithoutFoodsChangesNothing) {
    Log("Soup", "Lunch", next_);
    DayLog::ClearFoods(day);
    EXPECT_EQ(LogCount(), 1);
}

TEST_F(DayLogTest, ARowWhoseKeyIsTooLargeHasNone) {
    Log("Far away", "Lunch");
    UserDB().Raw().exec("UPDATE USER_FOODS SET RecID = 5000000000");
    const LoggedRow row = LoggedRow::AllOf(LoggedEntries::Of(day)).front();
    EXPECT_EQ(row.RecID, 0);
    EXPECT_FALSE(row.HasKey());
}

TEST_F(DayLogTest, RowsOfAnotherToolNeverKeepADayFromBeingCopied) {
    const QByteArray uid = QByteArray::number(User::Current().UID);
    const HostileRows rows(UserDB().Raw(), "USER_FOODS", {{"UID", uid}, {"UDate", "'2002-03-04'"}});
    for (const char* value : HostileRows::Values())
        rows.Insert(rows.With(value));
    const int count = LogCount();
    EXPECT_EQ(DayLog::CopyFoods(LoggedEntries::Of(day), next_).size(), count);
    EXPECT_EQ(LogCount("UDate = '2002-03-05'"), count);
}

TEST_F(DayLogTest, AWeightIsAboveZeroAndAtMostAMillionPounds) {
    for (const double accepted : {0.1, 1.0, 1e6})
        EXPECT_EQ(DayLog::WeightRefusal(accepted), "") << accepted;
    for (const double refused : {-1.0, 0.0, 1e6 + 0.1})
        EXPECT_NE(DayLog::WeightRefusal(refused), "") << refused;
}

TEST_F(DayLogTest, AWeightThatARowDoesNotKnowIsZero) {
    DayLog::SetWeight(day, 150);
    EXPECT_EQ(DayLog::Weight(day), 150);
    UserDB().Raw().exec("UPDATE USER_WEIGHTS SET Weight = NULL");
    EXPECT_EQ(DayLog::Weight(day), 0);
}

TEST_F(DayLogTest, AnEnteredWeightIsKeptAndTaken) {
    App().AppInfo.AUTOUPDATERDI = true;
    EXPECT_TRUE(DayLog::EnterWeight(day, 150.5));
    EXPECT_EQ(DayLog::Weight(day), 150.5);
    EXPECT_EQ(User::Current().CurrentWeight, 150);
    EXPECT_EQ(Users("SELECT current_weight FROM profiles"), 150);
}

TEST_F(DayLogTest, TheTargetsOfADayFollowItsWeightAndNothingIsWritten) {
    App().AppInfo.AUTOUPDATERDI = true;
    DayLog::SetWeight(day, 150);
    const User onDay = DayLog::UserOn(day);
    EXPECT_EQ(Users("SELECT Calories FROM profiles"), 2000);
    EXPECT_EQ(User::Current().RDIs.Calories(), 2000);
    DayLog::TakeWeight(150);
    EXPECT_EQ(onDay.RDIs.Calories(), User::Current().RDIs.Calories());
    EXPECT_NE(onDay.RDIs.Calories(), 2000);
}

TEST_F(DayLogTest, WithoutAWeightOrWithTheSettingOffTheTargetsOfADayAreThePersons) {
    App().AppInfo.AUTOUPDATERDI = true;
    EXPECT_EQ(DayLog::UserOn(day).RDIs.Calories(), 2000);
    App().AppInfo.AUTOUPDATERDI = false;
    DayLog::SetWeight(day, 150);
    EXPECT_EQ(DayLog::UserOn(day).RDIs.Calories(), 2000);
    EXPECT_EQ(DayLog::UserOn(day).CurrentWeight, 150);
}

TEST_F(DayLogTest, RowsAreAppendedWithoutReadingAny) {
    Log("Soup", "Lunch");
    EXPECT_TRUE(Recordset(UserDB(), LoggedEntries::NoneOf(day).Statement()).AtEnd());
    DayLog::AddFood(Scaled("Bread"), "Lunch", day);
    EXPECT_EQ(LogCount(), 2);
}
