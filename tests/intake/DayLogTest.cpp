#include "intake/DayLog.h"

#include "IntakeTest.h"

#include "foods/Meals.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "store/Connection.h"
#include "support/HostileRows.h"

#include <SQLiteCpp/SQLiteCpp.h>

class DayLogTest : public IntakeTest {
protected:
    static constexpr int Lunch = 1;
    const QDate next_ = day.addDays(1);

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
    EXPECT_EQ(DayLog::CopyFoods(day, next_), 3);
    EXPECT_EQ(Content(next_), Content(day));
    EXPECT_EQ(LogCount(), 6);
}

TEST_F(DayLogTest, CopyingAMealLeavesTheOthers) {
    Log("Soup", "Lunch");
    Log("Bread", "Breakfast");
    Log("Tea", "LUNCH");
    EXPECT_EQ(DayLog::CopyFoods(day, next_, Lunch), 2);
    EXPECT_EQ(LogCount("UDate = '2002-03-05'"), 2);
    EXPECT_EQ(LogCount("UDate = '2002-03-05' AND FoodName = 'Bread'"), 0);
}

TEST_F(DayLogTest, CopyingTakesTheFoodsOfTheCurrentUserAlone) {
    Log("Soup", "Lunch");
    AddUser("Ben");
    EXPECT_EQ(DayLog::CopyFoods(day, next_), 0);
}

TEST_F(DayLogTest, CopyingADayOntoItselfDoublesIt) {
    Log("Soup", "Lunch");
    EXPECT_EQ(DayLog::CopyFoods(day, day), 1);
    EXPECT_EQ(LogCount(), 2);
}

TEST_F(DayLogTest, RowsOfAnotherToolNeverKeepADayFromBeingCopied) {
    const QByteArray uid = QByteArray::number(User::Current().UID);
    const HostileRows rows(UserDB().Raw(), "USER_FOODS", {{"UID", uid}, {"UDate", "'2002-03-04'"}});
    for (const char* value : HostileRows::Values())
        rows.Insert(rows.With(value));
    const int count = LogCount();
    EXPECT_EQ(DayLog::CopyFoods(day, next_), count);
    EXPECT_EQ(LogCount("UDate = '2002-03-05'"), count);
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
