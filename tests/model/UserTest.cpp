#include "model/User.h"
#include "model/EnergyTargets.h"
#include "model/ReferenceIntake.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "support/Failure.h"
#include "support/HalvaneTest.h"

namespace {
User Person(qint32 gender, double age, qint32 height, qint32 weight, qint32 desired,
            qint32 activity) {
    User user;
    user.Gender = gender;
    user.Age = age;
    user.Height = height;
    user.CurrentWeight = weight;
    user.DesiredWeight = desired;
    user.ActivityLevel = activity;
    return user;
}

User Man() {
    return Person(1, 40, 70, 200, 170, 2);
}

std::string KeyOf(const User& user) {
    const QString statement = ReferenceStatement(user);
    const QString head = QStringLiteral("SELECT * FROM RDI WHERE Profile = '");
    EXPECT_TRUE(statement.startsWith(head));
    EXPECT_TRUE(statement.endsWith(u'\''));
    return statement.mid(head.size()).chopped(1).toStdString();
}

std::string KeyOf(qint32 gender, double age) {
    return KeyOf(Person(gender, age, 70, 150, 150, 0));
}

std::string MotherKey(bool lactating, bool pregnant, double age, qint32 gender = 0) {
    User user = Person(gender, age, 65, 130, 130, 1);
    user.Lactating = lactating;
    user.Pregnant = pregnant;
    return KeyOf(user);
}

class UserTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
    }

    double Target(const char* column) {
        return Users(QStringLiteral("SELECT %1 FROM profiles").arg(QLatin1String(column)))
            .toDouble();
    }
};
} // namespace

TEST(ReferenceStatement, InfantsEndAtHalfAYearAndAtOne) {
    EXPECT_EQ(KeyOf(1, 0.1), "INFANT_0_6 ");
    EXPECT_EQ(KeyOf(1, 0.5), "INFANT_0_6 ");
    EXPECT_EQ(KeyOf(0, 0.6), "INFANT_7_12 ");
    EXPECT_EQ(KeyOf(0, 0.99), "INFANT_7_12 ");
}

TEST(ReferenceStatement, ChildBandsHaveNoGap) {
    EXPECT_EQ(KeyOf(1, 1), "CHILD_1_3");
    EXPECT_EQ(KeyOf(1, 3), "CHILD_1_3");
    EXPECT_EQ(KeyOf(0, 3.1), "CHILD_4_8");
    EXPECT_EQ(KeyOf(0, 3.5), "CHILD_4_8");
    EXPECT_EQ(KeyOf(0, 8.9), "CHILD_4_8");
}

TEST(ReferenceStatement, AdultBandsAreClosedInWholeYears) {
    const struct {
        double age;
        const char* suffix;
    } bands[] = {{9, "_9_13"},   {13, "_9_13"},  {14, "_14_18"},  {18, "_14_18"},
                 {19, "_19_30"}, {30, "_19_30"}, {31, "_31_50"},  {50, "_31_50"},
                 {51, "_51_70"}, {70, "_51_70"}, {71, "_71_999"}, {999, "_71_999"}};
    for (const auto& band : bands) {
        EXPECT_EQ(KeyOf(1, band.age), std::string("MALE") + band.suffix);
        EXPECT_EQ(KeyOf(0, band.age), std::string("FEMALE") + band.suffix);
    }
}

TEST(ReferenceStatement, AgesBetweenTwoBandsHaveNoSuffix) {
    for (double age : {13.5, 18.2, 30.5, 50.5, 70.5, 999.5, 1000.0}) {
        EXPECT_EQ(KeyOf(1, age), "MALE") << age;
        EXPECT_EQ(KeyOf(0, age), "FEMALE") << age;
    }
}

TEST(ReferenceStatement, AnyOtherGenderReadsAsFemale) {
    EXPECT_EQ(KeyOf(7, 20), "FEMALE_19_30");
}

TEST(ReferenceStatement, LactationReplacesTheKey) {
    EXPECT_EQ(MotherKey(true, false, 16), "LACTATION_0_18");
    EXPECT_EQ(MotherKey(true, false, 19), "LACTATION_19_30");
    EXPECT_EQ(MotherKey(true, false, 30), "LACTATION_19_30");
    EXPECT_EQ(MotherKey(true, false, 31), "LACTATION_31_999");
    EXPECT_EQ(MotherKey(true, false, 999), "LACTATION_31_999");
}

TEST(ReferenceStatement, PregnancyOverridesLactation) {
    EXPECT_EQ(MotherKey(true, true, 18), "PREGNANCY_0_18");
    EXPECT_EQ(MotherKey(true, true, 25), "PREGNANCY_19_30");
    EXPECT_EQ(MotherKey(false, true, 40), "PREGNANCY_31_999");
}

TEST(ReferenceStatement, BetweenTwoBandsTheKeyOfTheLifeStageStays) {
    EXPECT_EQ(MotherKey(true, false, 18.5), "FEMALE");
    EXPECT_EQ(MotherKey(true, true, 30.5), "FEMALE");
    EXPECT_EQ(MotherKey(false, true, 1000), "FEMALE");
    EXPECT_EQ(MotherKey(true, false, 13.5), "LACTATION_0_18");
}

TEST(ReferenceStatement, PregnancyAndLactationIgnoreTheGender) {
    EXPECT_EQ(MotherKey(false, true, 25, 1), "PREGNANCY_19_30");
}

TEST_F(UserTest, BeginsWithoutAKey) {
    EXPECT_EQ(User().UID, -1);
    EXPECT_EQ(User::Current().UID, -1);
    EXPECT_FALSE(User().Lactating);
    EXPECT_FALSE(User().Pregnant);
}

TEST_F(UserTest, TheDeliveredTableHoldsEveryKey) {
    EXPECT_EQ(Users("SELECT count(*) FROM RDI").toInt(), 22);
    EXPECT_EQ(Users("SELECT count(*) FROM RDI WHERE Profile IN ('INFANT_0_6 ', 'INFANT_7_12 ')"),
              2);
}

TEST_F(UserTest, TargetsOfTheWorkedExample) {
    User user = Man();
    user.CreateDefaultRDIs();
    EXPECT_EQ(user.RDIs.Calories(), 3149);
    EXPECT_EQ(user.RDIs.Protein(), 236);
    EXPECT_EQ(user.RDIs.Carbs(), 315);
    EXPECT_EQ(user.RDIs.TotalFat(), 105);
    EXPECT_EQ(user.RDIs[Nutrient::SatFat], 35);
    EXPECT_EQ(user.RDIs[Nutrient::MonoFat], 35);
    EXPECT_EQ(user.RDIs[Nutrient::PolyFat], 35);
    EXPECT_DOUBLE_EQ(user.RDIs[Nutrient::Fiber], 157.45);
    EXPECT_EQ(user.RDIs[Nutrient::Water], 1792);
    EXPECT_EQ(user.RDIs[Nutrient::Sodium], 2400);
    EXPECT_EQ(user.RDIs[Nutrient::Potassium], 3500);
}

TEST_F(UserTest, MicronutrientsComeFromTheRowOfTheLifeStage) {
    User user = Man();
    user.CreateDefaultRDIs();
    const auto rows =
        Rows(UserDB(), "SELECT Ash, Calcium, Cholesterol, Copper, Folate, Iron, Magnesium, "
                       "Manganese, Niacin, Panto, Phosphorus, Riboflavin, Selenium, Thiamin, "
                       "VitaminA, VitaminB12, VitaminB6, VitaminC, VitaminE, Zinc "
                       "FROM RDI WHERE Profile = 'MALE_31_50'");
    ASSERT_EQ(rows.size(), 1);
    qsizetype column = 0;
    for (Nutrient id : ReferenceOrder())
        EXPECT_EQ(user.RDIs[id], rows.first().at(column++).toDouble()) << Info(id).property;
    EXPECT_EQ(user.RDIs[Nutrient::Selenium], 0.055);
    EXPECT_EQ(user.RDIs[Nutrient::VitaminA], 3000);
}

TEST_F(UserTest, InfantRowsAreFoundByTheirKeyWithTheBlank) {
    User user = Person(0, 0.5, 24, 14, 14, 0);
    user.CreateDefaultRDIs();
    EXPECT_EQ(user.RDIs[Nutrient::Calcium], 200);
    user.Age = 0.6;
    user.CreateDefaultRDIs();
    EXPECT_EQ(user.RDIs[Nutrient::Calcium], 260);
}

TEST_F(UserTest, WholeNumberMembersRoundTheValuesOfTheTable) {
    Users("UPDATE RDI SET Calcium = 1000.5, Iron = 8.5 WHERE Profile = 'MALE_31_50'");
    User user = Man();
    user.CreateDefaultRDIs();
    EXPECT_EQ(user.RDIs[Nutrient::Calcium], 1000);
    EXPECT_EQ(user.RDIs[Nutrient::Iron], 8.5);
}

TEST_F(UserTest, EnergyOfAWoman) {
    User user = Person(0, 30, 65, 140, 140, 0);
    user.CreateDefaultRDIs();
    // 655 + 610.909... + 280.67 - 141 = 1405.579...; by 1.2 and 1.1: 1855.36...
    EXPECT_EQ(user.RDIs.Calories(), 1855);
}

TEST_F(UserTest, EveryActivityLevelHasItsFactor) {
    const int expected[] = {2546, 3394, 3649, 4030};
    for (int level = 0; level <= 3; ++level) {
        User user = Person(1, 40, 70, 200, 200, level);
        user.CreateDefaultRDIs();
        EXPECT_EQ(user.RDIs.Calories(), expected[level]) << level;
    }
}

TEST_F(UserTest, AnyOtherActivityLevelCountsAsNone) {
    for (int level : {-1, 4, 99}) {
        User user = Person(1, 40, 70, 200, 200, level);
        user.CreateDefaultRDIs();
        EXPECT_EQ(user.RDIs.Calories(), 2121) << level;
    }
}

TEST_F(UserTest, AtTheDesiredWeightNothingIsAddedOrTaken) {
    User user = Person(1, 40, 70, 200, 200, 2);
    user.CreateDefaultRDIs();
    EXPECT_EQ(user.RDIs.Calories(), 3649);
}

TEST_F(UserTest, GainingWeightAddsFiveHundredAtAnyEnergy) {
    User user = Person(1, 40, 70, 200, 201, 2);
    user.CreateDefaultRDIs();
    EXPECT_EQ(user.RDIs.Calories(), 4149);
    User small = Person(0, 5, 40, 40, 41, 0);
    small.CreateDefaultRDIs();
    EXPECT_EQ(small.RDIs.Calories(), 1792);
}

namespace {
/// A man whose energy is exactly that number before the weight goal.
User ManOf(qint32 calories) {
    for (qint32 weight = 60; weight < 400; ++weight)
        for (double age = 31; age <= 50; ++age)
            for (qint32 height = 40; height < 80; ++height) {
                User user = Person(1, age, height, weight, weight, 0);
                DeriveEnergyTargets(user);
                if (user.RDIs.Calories() != calories)
                    continue;
                user.CreateDefaultRDIs();
                return user;
            }
    ADD_FAILURE() << "no such man";
    return Man();
}
} // namespace

TEST_F(UserTest, EnergyIsReducedFrom1501OnButNotAt1500) {
    User kept = ManOf(1500);
    kept.DesiredWeight = kept.CurrentWeight - 1;
    kept.CreateDefaultRDIs();
    EXPECT_EQ(kept.RDIs.Calories(), 1500);
    User reduced = ManOf(1501);
    reduced.DesiredWeight = reduced.CurrentWeight - 1;
    reduced.CreateDefaultRDIs();
    EXPECT_EQ(reduced.RDIs.Calories(), 1001);
}

TEST_F(UserTest, TotalFatBecomesTheSumOfItsRoundedThirds) {
    User down = ManOf(2010); // 67 g
    EXPECT_EQ(down.RDIs[Nutrient::SatFat], 22);
    EXPECT_EQ(down.RDIs.TotalFat(), 66);
    User up = ManOf(2040); // 68 g
    EXPECT_EQ(up.RDIs[Nutrient::PolyFat], 23);
    EXPECT_EQ(up.RDIs.TotalFat(), 69);
}

TEST_F(UserTest, FiberFollowsTheAgeUpToTenAndTheEnergyAfterwards) {
    User child = Person(1, 10, 50, 70, 70, 1);
    child.CreateDefaultRDIs();
    EXPECT_EQ(child.RDIs[Nutrient::Fiber], 15);
    User infant = Person(1, 0.5, 24, 14, 14, 1);
    infant.CreateDefaultRDIs();
    EXPECT_EQ(infant.RDIs[Nutrient::Fiber], 5.5);
    User grown = ManOf(2000);
    EXPECT_EQ(grown.RDIs[Nutrient::Fiber], 100);
    grown.Age = 11;
    grown.CreateDefaultRDIs();
    EXPECT_DOUBLE_EQ(grown.RDIs[Nutrient::Fiber], grown.RDIs.Calories() / 20);
}

TEST_F(UserTest, EnergyBelowFiveHundredHasNoFiberTarget) {
    User old = Person(0, 250, 60, 80, 80, 0);
    EXPECT_EQ(FailureOf([&] { old.CreateDefaultRDIs(); }), ErrorNumber::NoSuchMember);
    User eldest = Person(0, 999, 60, 80, 80, 0);
    EXPECT_EQ(FailureOf([&] { eldest.CreateDefaultRDIs(); }), ErrorNumber::NoSuchMember);
}

TEST_F(UserTest, EnergyOfJustFiveHundredHasTheLeastFiberTarget) {
    User child = Person(2, 11, 50, 70, 80, 1);
    ExpectAlert("Error, gender info not found");
    child.CreateDefaultRDIs();
    EXPECT_EQ(child.RDIs.Calories(), 500);
    EXPECT_EQ(child.RDIs[Nutrient::Fiber], 25);
    child.DesiredWeight = child.CurrentWeight;
    ExpectAlert("Error, gender info not found");
    EXPECT_EQ(FailureOf([&] { child.CreateDefaultRDIs(); }), ErrorNumber::NoSuchMember);
}

TEST_F(UserTest, TheFailureOfTheFiberTargetSaysWhy) {
    User old = Person(0, 250, 60, 80, 80, 0);
    try {
        old.CreateDefaultRDIs();
        FAIL() << "no failure";
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.Description().contains(QStringLiteral("fiber")));
        EXPECT_TRUE(error.Description().contains(QStringLiteral("kcal")));
        EXPECT_TRUE(error.Description().contains(QStringLiteral("Check the age")));
    }
}

TEST_F(UserTest, AgesUpTo999HaveARow) {
    User user = Person(0, 999, 60, 2000, 2000, 0);
    user.CreateDefaultRDIs();
    EXPECT_EQ(user.RDIs[Nutrient::Calcium], 1200);
    EXPECT_EQ(user.RDIs[Nutrient::VitaminB6], 1.5);
}

TEST_F(UserTest, AgesInAGapFailAndTheMessageSaysWhichAgesWork) {
    for (double age : {13.5, 18.2, 30.5, 50.5, 70.5, 1000.0}) {
        User user = Person(0, age, 65, 900, 900, 1);
        try {
            user.CreateDefaultRDIs();
            ADD_FAILURE() << "no failure at " << age;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::NoCurrentRecord);
            EXPECT_TRUE(error.Description().contains(QString::number(age)));
            EXPECT_TRUE(error.Description().contains(QStringLiteral("whole years")));
        }
    }
}

TEST_F(UserTest, AnUnknownGenderIsReportedAndCountsAsNoBasalEnergy) {
    ExpectAlert("Error, gender info not found");
    User child = Person(2, 10, 50, 70, 80, 1);
    child.CreateDefaultRDIs();
    EXPECT_EQ(child.RDIs.Calories(), 500);
}

TEST_F(UserTest, TheMessageForAnUnknownGenderHasNoOwnerAndNoCancel) {
    int reports = 0;
    TheSeams().ShowAlert = [&](const QString& message, QObject* owner, bool cancel) {
        ++reports;
        EXPECT_EQ(message, QStringLiteral("Error, gender info not found"));
        EXPECT_EQ(owner, nullptr);
        EXPECT_FALSE(cancel);
        return true;
    };
    User user = Person(2, 10, 50, 70, 80, 1);
    user.CreateDefaultRDIs();
    DeriveEnergyTargets(user);
    EXPECT_EQ(reports, 2);
}

TEST_F(UserTest, TheGenderIsReportedBeforeTheMissingRowFails) {
    ExpectAlert("Error, gender info not found");
    User user = Person(2, 13.5, 50, 70, 80, 1);
    EXPECT_EQ(FailureOf([&] { user.CreateDefaultRDIs(); }), ErrorNumber::NoCurrentRecord);
}

TEST_F(UserTest, DerivingWritesNothing) {
    User user = Man();
    user.CreateDefaultRDIs();
    EXPECT_EQ(Users("SELECT count(*) FROM profiles").toInt(), 0);
}

TEST_F(UserTest, AWeightThatIsTooLargeOverflows) {
    User user = Person(1, 40, 70, 2000000000, 170, 3);
    EXPECT_EQ(FailureOf([&] { user.CreateDefaultRDIs(); }), ErrorNumber::Overflow);
}

TEST_F(UserTest, ProfileIsReadFromItsRow) {
    const qint32 uid = AddUser("Anna");
    Users("UPDATE profiles SET age = 8.5, gender = 0, height = 50, current_weight = 61, "
          "desired_weight = 60, activity_level = 3, flagsodium = 1, flagcholesterol = 1, "
          "sodiumMAX = 11, cholesterolMAX = 12");
    User user;
    user.UID = uid;
    user.GetUserProfile(uid);
    EXPECT_EQ(user.UserName, QStringLiteral("Anna"));
    EXPECT_EQ(user.Age, 8.5);
    EXPECT_EQ(user.Gender, 0);
    EXPECT_EQ(user.Height, 50);
    EXPECT_EQ(user.CurrentWeight, 61);
    EXPECT_EQ(user.DesiredWeight, 60);
    EXPECT_EQ(user.ActivityLevel, 3);
    EXPECT_TRUE(user.FlagSodium);
    EXPECT_TRUE(user.FlagCholesterol);
    EXPECT_EQ(user.sodiumMAX, 11);
    EXPECT_EQ(user.cholesterolMAX, 12);
}

TEST_F(UserTest, WhatAProfileDoesNotKnowIsZero) {
    Users("INSERT INTO profiles (UID, UserName, flagsodium, flagcholesterol) "
          "VALUES (7, 'Nil', NULL, NULL)");
    User user;
    user.GetUserProfile(7);
    EXPECT_EQ(user.Age, 0);
    EXPECT_EQ(user.Gender, 0);
    EXPECT_EQ(user.Height, 0);
    EXPECT_EQ(user.CurrentWeight, 0);
    EXPECT_EQ(user.DesiredWeight, 0);
    EXPECT_EQ(user.ActivityLevel, 0);
    EXPECT_FALSE(user.FlagSodium);
    EXPECT_FALSE(user.FlagCholesterol);
    EXPECT_EQ(user.sodiumMAX, 0);
    EXPECT_EQ(user.cholesterolMAX, 0);
    for (const NutrientInfo& info : Nutrients())
        EXPECT_EQ(user.RDIs[info.id], 0) << info.property;
}

TEST_F(UserTest, EachTargetIsReadFromItsOwnColumn) {
    const qint32 uid = AddUser();
    double value = 100;
    for (const NutrientInfo& info : Nutrients())
        Users(QStringLiteral("UPDATE profiles SET %1 = %2")
                  .arg(QLatin1String(info.profileColumn))
                  .arg(value++));
    User user;
    user.GetUserProfile(uid);
    value = 100;
    for (const NutrientInfo& info : Nutrients())
        EXPECT_EQ(user.RDIs[info.id], value++) << info.property;
}

TEST_F(UserTest, LoadingDoesNotSetTheKey) {
    const qint32 uid = AddUser();
    User user;
    user.GetUserProfile(uid);
    EXPECT_EQ(user.UID, -1);
}

TEST_F(UserTest, LoadingDerivesNothing) {
    const qint32 uid = AddUser();
    User user;
    user.GetUserProfile(uid);
    EXPECT_EQ(user.RDIs.Calories(), 2000);
}

TEST_F(UserTest, AgeKeepsItsFraction) {
    const qint32 uid = AddUser();
    Users("UPDATE profiles SET age = 8.5");
    User user;
    user.GetUserProfile(uid);
    EXPECT_EQ(user.Age, 8.5);
    EXPECT_EQ(KeyOf(user), "CHILD_4_8");
}

TEST_F(UserTest, AChangedWeightLeavesTheTargetsUntilTheyAreRecalculated) {
    App().AppInfo.AUTOUPDATERDI = true;
    AddUser();
    User::Current().CurrentWeight = 190;
    EXPECT_EQ(User::Current().RDIs.Calories(), 2000);
    EXPECT_EQ(Target("Calories"), 2000);
    RecalcTargets();
    EXPECT_NE(User::Current().RDIs.Calories(), 2000);
    EXPECT_EQ(User::Current().RDIs.Calories(), Target("Calories"));
}

TEST_F(UserTest, AnElevenYearOldOf2000CaloriesHasAFiberTargetOf100) {
    for (qint32 weight = 40; weight < 300; ++weight)
        for (qint32 height = 40; height < 80; ++height) {
            User child = Person(1, 11, height, weight, weight, 1);
            DeriveEnergyTargets(child);
            if (child.RDIs.Calories() != 2000)
                continue;
            child.CreateDefaultRDIs();
            EXPECT_EQ(child.RDIs[Nutrient::Fiber], 100);
            return;
        }
    FAIL() << "no such child";
}

TEST_F(UserTest, AKeyWithoutARowFails) {
    User user;
    EXPECT_EQ(FailureOf([&] { user.GetUserProfile(4711); }), ErrorNumber::NoCurrentRecord);
}

TEST_F(UserTest, ATargetThatIsNotSetLoadsAsZero) {
    const qint32 uid = AddUser();
    User& user = User::Current();
    for (const char* column : {"VitaminA", "VitaminE", "Calories", "protein"})
        Users(QStringLiteral("UPDATE profiles SET %1 = NULL").arg(QLatin1String(column)));
    user.GetUserProfile(uid);
    for (const Nutrient id :
         {Nutrient::VitaminA, Nutrient::VitaminE, Nutrient::Calories, Nutrient::Protein})
        EXPECT_EQ(user.RDIs[id], 0) << Info(id).property;
    EXPECT_EQ(user.RDIs[Nutrient::VitaminC], 90);
}

TEST_F(UserTest, RecalculationDoesNothingWhereTheSettingIsOff) {
    AddUser();
    const auto before = Rows(UserDB(), "SELECT * FROM profiles");
    User::Current().CurrentWeight = 150;
    RecalcTargets();
    EXPECT_EQ(Rows(UserDB(), "SELECT * FROM profiles"), before);
    EXPECT_EQ(User::Current().RDIs.Calories(), 2000);
}

TEST_F(UserTest, RecalculationWritesEnergyFatsAndWeight) {
    App().AppInfo.AUTOUPDATERDI = true;
    AddUser();
    User::Current().CurrentWeight = 200;
    RecalcTargets();
    EXPECT_EQ(Target("Calories"), 3149);
    EXPECT_EQ(Target("protein"), 236);
    EXPECT_EQ(Target("carbs"), 315);
    EXPECT_EQ(Target("TotalFat"), 105);
    EXPECT_EQ(Target("SatFat"), 35);
    EXPECT_EQ(Target("current_weight"), 200);
    User::Current().CurrentWeight = 170;
    RecalcTargets();
    EXPECT_EQ(Target("current_weight"), 170);
    // 66 + 1058.636... + 889 - 272 = 1741.636...; by 1.72 and 1.1: 3295.17...
    EXPECT_EQ(Target("Calories"), 3295);
    EXPECT_EQ(User::Current().RDIs.Calories(), 3295);
}

TEST_F(UserTest, RecalculationLeavesAllOtherColumns) {
    App().AppInfo.AUTOUPDATERDI = true;
    AddUser();
    const QString others =
        QStringLiteral("SELECT UID, UserName, gender, age, height, desired_weight, activity_level, "
                       "fiber, water, Cholesterol, sodium, Calcium, Folate, Magnesium, Phosphorus, "
                       "Potassium, ASH, Copper, Iron, Manganese, Niacin, Panto, Riboflavin, "
                       "Selenium, Thiamin, VitaminA, VitaminB12, VitaminB6, VitaminC, VitaminE, "
                       "Zinc FROM profiles");
    const auto before = Rows(UserDB(), others);
    User::Current().CurrentWeight = 180;
    RecalcTargets();
    EXPECT_EQ(Rows(UserDB(), others), before);
}

TEST_F(UserTest, RecalculationDoesNotReplaceTotalFatByItsThirds) {
    User model = ManOf(2010);
    App().AppInfo.AUTOUPDATERDI = true;
    AddUser();
    Users(
        QStringLiteral("UPDATE profiles SET age=%1, height=%2, desired_weight=%3, activity_level=0")
            .arg(model.Age)
            .arg(model.Height)
            .arg(model.DesiredWeight));
    User::Current().GetUserProfile(User::Current().UID);
    User::Current().CurrentWeight = model.CurrentWeight;
    RecalcTargets();
    EXPECT_EQ(Target("TotalFat"), 67);
    EXPECT_EQ(Target("SatFat"), 22);
    EXPECT_EQ(Target("MonoFat"), 22);
    EXPECT_EQ(Target("PolyFat"), 22);
}

TEST_F(UserTest, RecalculationTouchesOnlyTheCurrentUser) {
    App().AppInfo.AUTOUPDATERDI = true;
    AddUser("Anna");
    AddUser("Bert");
    RecalcTargets();
    EXPECT_EQ(Users("SELECT Calories FROM profiles WHERE UserName = 'Anna'").toInt(), 2000);
    EXPECT_EQ(Users("SELECT Calories FROM profiles WHERE UserName = 'Bert'").toInt(), 3149);
}

TEST_F(UserTest, RecalculationOverwritesTargetsSetByHand) {
    App().AppInfo.AUTOUPDATERDI = true;
    AddUser();
    Users("UPDATE profiles SET Calories = 1234, protein = 1");
    User::Current().GetUserProfile(User::Current().UID);
    RecalcTargets();
    EXPECT_EQ(Target("Calories"), 3149);
    EXPECT_EQ(Target("protein"), 236);
}

TEST_F(UserTest, RecalculationReloadsTheUserFromTheRow) {
    App().AppInfo.AUTOUPDATERDI = true;
    AddUser("Anna");
    Users("UPDATE profiles SET Iron = 9, age = 55");
    User::Current().UserName = QStringLiteral("somebody else");
    RecalcTargets();
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Anna"));
    EXPECT_EQ(User::Current().RDIs[Nutrient::Iron], 9);
    EXPECT_EQ(User::Current().Age, 55);
    EXPECT_EQ(Target("Calories"), 3149); // of the age that the user had before
}

TEST_F(UserTest, RecalculationOfAnUnknownGenderStillWrites) {
    App().AppInfo.AUTOUPDATERDI = true;
    AddUser();
    User::Current().Gender = 5;
    ExpectAlert("Error, gender info not found");
    RecalcTargets();
    EXPECT_EQ(Target("Calories"), 0);
    User::Current().Gender = 5;
    User::Current().CurrentWeight = 100;
    ExpectAlert("Error, gender info not found");
    RecalcTargets();
    EXPECT_EQ(Target("Calories"), 500);
}

TEST_F(UserTest, RecalculationWithoutARowFails) {
    App().AppInfo.AUTOUPDATERDI = true;
    User::Current().Gender = 1;
    EXPECT_EQ(FailureOf([] { RecalcTargets(); }), ErrorNumber::NoCurrentRecord);
}
