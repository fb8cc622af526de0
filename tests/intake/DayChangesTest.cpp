#include "intake/DayChanges.h"

#include "IntakeTest.h"

#include "intake/DayLog.h"
#include "model/User.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "support/HostileRows.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <random>

class DayChangesTest : public IntakeTest {
protected:
    enum { Breakfast, Lunch, Dinner };

    void SetUp() override {
        IntakeTest::SetUp();
        for (const char* name : {"Oats", "Milk", "Soup"})
            DayLog::AddFood(Scaled(name, 0.1 + 0.2, 1.0 / 3), "Lunch", day);
        Log("Only calories", "Dinner"); // the other amounts are null
    }

    QList<QVariantList> Everything() {
        return Rows(UserDB(), QStringLiteral("SELECT * FROM USER_FOODS ORDER BY RecID"));
    }
    qint32 KeyOf(const char* name) {
        return Users(QLatin1String("SELECT RecID FROM USER_FOODS WHERE FoodName = '") +
                     QLatin1String(name) + u'\'')
            .toInt();
    }
    QString UndoneText() {
        const DayChanges::Report report = changes_.Undo();
        return report.done + u' ' + report.foods + u' ' + report.day.toString(Qt::ISODate);
    }
    /// Every write of a row of that food fails.
    void RefuseWritesOf(const char* name) {
        for (const char* write : {"INSERT", "UPDATE"})
            UserDB().Raw().exec(std::string("CREATE TRIGGER refuse_") + write + " BEFORE " + write +
                                " ON USER_FOODS WHEN NEW.FoodName = '" + name +
                                "' BEGIN SELECT RAISE(ABORT, 'refused'); END");
    }

    DayChanges changes_;
    const QDate next_ = day.addDays(1);
};

TEST_F(DayChangesTest, ARemovedFoodComesBackToTheBitAndToItsPlace) {
    const auto before = Everything();
    changes_.Remove(KeyOf("Milk"));
    EXPECT_EQ(LogCount(), 3);
    EXPECT_EQ(UndoneText(), "Brought back Milk 2002-03-04");
    EXPECT_EQ(Everything(), before);
    EXPECT_FALSE(changes_.CanUndo());
}

TEST_F(DayChangesTest, AClearedDayComesBack) {
    const auto before = Everything();
    changes_.Clear(day);
    EXPECT_EQ(LogCount(), 0);
    EXPECT_EQ(UndoneText(), "Brought back 4 foods 2002-03-04");
    EXPECT_EQ(Everything(), before);
}

TEST_F(DayChangesTest, ClearingAnEmptyDayIsNoChange) {
    changes_.Clear(next_);
    EXPECT_FALSE(changes_.CanUndo());
}

TEST_F(DayChangesTest, AnAddedFoodIsRemovedAgain) {
    const auto before = Everything();
    changes_.Add(Scaled("Bread"), "Lunch", day);
    EXPECT_EQ(UndoneText(), "Removed again Bread 2002-03-04");
    EXPECT_EQ(Everything(), before);
}

TEST_F(DayChangesTest, ACopyIsTakenBackOnItsDay) {
    const auto before = Everything();
    EXPECT_EQ(changes_.Copy(LoggedEntries::Of(day, Lunch), next_), "3 foods");
    EXPECT_EQ(LogCount("UDate = '2002-03-05' AND Meal = 'Lunch'"), 3);
    EXPECT_EQ(UndoneText(), "Took back the copy 3 foods 2002-03-05");
    EXPECT_EQ(Everything(), before);
}

TEST_F(DayChangesTest, CopyingNothingIsNoChange) {
    EXPECT_EQ(changes_.Copy(LoggedEntries::Of(day, Breakfast), next_), "");
    EXPECT_EQ(changes_.Move(LoggedEntries::Of(day, Breakfast), Lunch), "");
    EXPECT_FALSE(changes_.CanUndo());
}

TEST_F(DayChangesTest, AMoveIsTakenBack) {
    const auto before = Everything();
    EXPECT_EQ(changes_.Move(LoggedEntries::One(KeyOf("Soup")), Dinner), "Soup");
    EXPECT_EQ(LogCount("Meal = 'Dinner'"), 2);
    EXPECT_EQ(UndoneText(), "Moved back to Lunch Soup 2002-03-04");
    EXPECT_EQ(Everything(), before);
}

TEST_F(DayChangesTest, AQuantityIsTakenBackToTheBit) {
    const auto before = Everything();
    changes_.SetQuantity(KeyOf("Only calories"), 7);
    changes_.SetQuantity(KeyOf("Milk"), .7);
    EXPECT_EQ(UndoneText(), "Back to quantity 0.3333333333333333 Milk 2002-03-04");
    EXPECT_EQ(UndoneText(), "Back to quantity 1 Only calories 2002-03-04");
    EXPECT_EQ(Everything(), before);
}

TEST_F(DayChangesTest, AnyChangesAreTakenBackOneByOne) {
    std::mt19937 random(4711);
    std::vector<QList<QVariantList>> states;
    const auto anyKey = [&] {
        const auto rows = Everything();
        return rows.isEmpty() ? 0 : rows[qsizetype(random() % size_t(rows.size()))].first().toInt();
    };
    for (int i = 0; i < 60; ++i) {
        const auto before = Everything();
        const qint32 key = anyKey();
        const auto kind = key == 0 ? 0UL : random() % 6;
        if (kind == 0)
            changes_.Add(Scaled("Bread", double(random() % 999) / 7), "Lunch", day);
        else if (kind == 1)
            changes_.Remove(key);
        else if (kind == 2)
            changes_.Copy(LoggedEntries::One(key), day);
        else if (kind == 3)
            changes_.Move(LoggedEntries::One(key), int(random() % 4));
        else if (kind == 4)
            changes_.SetQuantity(key, double(1 + random() % 98) / 3);
        else if (LogCount("UDate = '2002-03-04'") > 12)
            changes_.Clear(day);
        else
            continue;
        states.push_back(before);
    }
    for (; !states.empty(); states.pop_back()) {
        ASSERT_TRUE(changes_.CanUndo());
        changes_.Undo();
        ASSERT_EQ(Everything(), states.back());
    }
    EXPECT_FALSE(changes_.CanUndo());
}

TEST_F(DayChangesTest, AChangeThatFailsIsNoneToTakeBack) {
    EXPECT_THROW(changes_.Remove(4711), RuntimeError);
    EXPECT_FALSE(changes_.CanUndo());
}

TEST_F(DayChangesTest, ACopyThatFailsInTheMiddleLeavesNothing) {
    RefuseWritesOf("Milk");
    const auto before = Everything();
    EXPECT_THROW(changes_.Copy(LoggedEntries::Of(day), next_), RuntimeError);
    EXPECT_THROW(changes_.Move(LoggedEntries::Of(day), Breakfast), RuntimeError);
    EXPECT_EQ(Everything(), before);
    EXPECT_FALSE(changes_.CanUndo());
}

TEST_F(DayChangesTest, AMoveLeavesAFoodWhoseKeyIsTooLargeAndItsStepBackDoesNotDoubleIt) {
    Log("Rye", "Lunch");
    UserDB().Raw().exec("UPDATE USER_FOODS SET RecID = 5000000000 WHERE FoodName = 'Rye'");
    const auto before = Everything();
    EXPECT_EQ(changes_.Move(LoggedEntries::Of(day, Lunch), Dinner), "3 foods");
    EXPECT_EQ(LogCount("FoodName = 'Rye' AND Meal = 'Lunch'"), 1);
    changes_.Undo();
    EXPECT_EQ(Everything(), before);
}

TEST_F(DayChangesTest, ARowWithoutAKeyOfOursComesBackBesideARowWithTheKeyZero) {
    UserDB().Raw().exec("UPDATE USER_FOODS SET RecID = 0 WHERE FoodName = 'Milk'");
    Log("Rye", "Lunch");
    UserDB().Raw().exec("UPDATE USER_FOODS SET RecID = 5000000000 WHERE FoodName = 'Rye'");
    changes_.Clear(day);
    changes_.Undo();
    EXPECT_EQ(LogCount("FoodName = 'Milk'"), 1);
    EXPECT_EQ(LogCount("FoodName = 'Rye'"), 1);
}

TEST_F(DayChangesTest, AStepBackThatFailsInTheMiddleLeavesNothingAndCanBeRepeated) {
    const auto before = Everything();
    changes_.Clear(day);
    RefuseWritesOf("Milk");
    EXPECT_THROW(changes_.Undo(), RuntimeError);
    EXPECT_EQ(LogCount(), 0);
    UserDB().Raw().exec("DROP TRIGGER refuse_INSERT");
    changes_.Undo();
    EXPECT_EQ(Everything(), before);
}

TEST_F(DayChangesTest, ForgottenChangesStay) {
    changes_.Remove(KeyOf("Milk"));
    changes_.Forget();
    EXPECT_FALSE(changes_.CanUndo());
    EXPECT_EQ(LogCount(), 3);
}

TEST_F(DayChangesTest, RowsOfAnotherToolComeBackAndKeepNothingElseFromIt) {
    const QByteArray uid = QByteArray::number(User::Current().UID);
    const HostileRows rows(UserDB().Raw(), "USER_FOODS", {{"UID", uid}, {"UDate", "'2002-03-04'"}});
    for (const char* value : HostileRows::Values())
        rows.Insert(rows.With(value));
    const int count = LogCount();
    changes_.Clear(day);
    changes_.Undo();
    EXPECT_EQ(LogCount(), count);
    EXPECT_EQ(LogCount("FoodName = 'Milk' AND QTY = 1.0 / 3"), 1);
}

TEST_F(DayChangesTest, ALongNameIsShortenedInTheReport) {
    Log(QString(500, u'x'), "Lunch");
    changes_.Clear(day);
    changes_.Undo();
    changes_.Remove(Users("SELECT max(RecID) FROM USER_FOODS").toInt());
    EXPECT_EQ(changes_.Undo().foods, QString(59, u'x') + u'…');
}

TEST_F(DayChangesTest, ANameOfSixtyCharactersIsReportedWhole) {
    const auto reported = [this](const QString& name) {
        Log(name, "Lunch");
        changes_.Remove(Users("SELECT max(RecID) FROM USER_FOODS").toInt());
        return changes_.Undo().foods;
    };
    EXPECT_EQ(reported(QString(60, u'x')), QString(60, u'x'));
    EXPECT_EQ(reported(QString(61, u'y')), QString(59, u'y') + u'…');
}
