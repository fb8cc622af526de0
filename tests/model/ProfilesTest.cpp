#include "model/Profiles.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "support/Failure.h"
#include "support/HalvaneTest.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
const QString TakenNew = "A user with this name already exists in the database. Please select a "
                         "different User Name.";
const QString TakenChange = "A user with this name already exists in the database. Please enter a "
                            "different User Name.";

Profile Berta() {
    Profile profile;
    profile.userName = "Berta";
    profile.age = 30;
    profile.feet = "5";
    profile.inches = 5;
    profile.currentWeight = 140;
    profile.desiredWeight = 130;
    profile.gender = 0;
    profile.activityLevel = 1;
    return profile;
}

template <class Value>
QString ProblemAfter(Value Profile::*entry, std::type_identity_t<Value> value) {
    Profile profile = Berta();
    profile.*entry = value;
    return profile.FirstProblem();
}

class ProfilesTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
    }

    QList<QVariantList> All() { return Rows(UserDB(), "SELECT * FROM profiles"); }

    void ExpectAppendFails(const Profile& entered, int number) {
        EXPECT_EQ(FailureOf([&] { Profiles::Append(entered); }), number);
        EXPECT_TRUE(All().isEmpty());
    }
};
} // namespace

// Rules

TEST(Profile, ThatIsCompleteHasNoProblem) {
    EXPECT_EQ(Berta().FirstProblem(), "");
}

TEST(Profile, NamesTheFirstRuleThatIsBroken) {
    EXPECT_EQ(Profile().FirstProblem(), "Please enter a User Name.");
    EXPECT_EQ(ProblemAfter(&Profile::userName, ""), "Please enter a User Name.");
    EXPECT_EQ(ProblemAfter(&Profile::inches, 12), "Please enter an Inches value of 11 or less.");
    EXPECT_EQ(ProblemAfter(&Profile::age, 0), "Please enter your Age.");
    EXPECT_EQ(ProblemAfter(&Profile::currentWeight, -1), "Please enter your Current Weight.");
    EXPECT_EQ(ProblemAfter(&Profile::currentWeight, 1000000.5),
              "Please enter a Current Weight of 1,000,000 pounds or less.");
    EXPECT_EQ(ProblemAfter(&Profile::desiredWeight, 0), "Please enter your Desired Weight.");
    EXPECT_EQ(ProblemAfter(&Profile::desiredWeight, 1e10),
              "Please enter a Desired Weight of 1,000,000 pounds or less.");
    for (const qint32 none : {-1, 2})
        EXPECT_EQ(ProblemAfter(&Profile::gender, none), "Please select your Gender.");
    for (const qint32 none : {-1, 4})
        EXPECT_EQ(ProblemAfter(&Profile::activityLevel, none),
                  "Please select your Activity Level.");
}

TEST(Profile, TheLeastOfEachEntryIsAllowed) {
    for (const double least : {0.5, 1.0}) {
        EXPECT_EQ(ProblemAfter(&Profile::age, least), "");
        EXPECT_EQ(ProblemAfter(&Profile::currentWeight, least), "");
        EXPECT_EQ(ProblemAfter(&Profile::desiredWeight, least), "");
    }
    Profile profile = Berta();
    profile.feet = "";
    profile.inches = 1;
    EXPECT_EQ(profile.FirstProblem(), "");
    profile.feet = "1";
    profile.inches = 0;
    EXPECT_EQ(profile.FirstProblem(), "");
}

TEST(Profile, TheHeaviestWeightsAreAllowed) {
    EXPECT_EQ(ProblemAfter(&Profile::currentWeight, 1000000), "");
    EXPECT_EQ(ProblemAfter(&Profile::desiredWeight, 1000000), "");
}

TEST(Profile, FeetOrInchesAloneAreAHeight) {
    EXPECT_EQ(ProblemAfter(&Profile::inches, 0), "");
    EXPECT_EQ(ProblemAfter(&Profile::feet, ""), "");
    Profile profile = Berta();
    profile.feet = "abc";
    profile.inches = 0;
    EXPECT_EQ(profile.FirstProblem(), "Please enter your Height.");
}

TEST(Profile, AHeightOfWholeFeetHasNoInches) {
    Profile profile;
    for (const int feet : {0, 1, 5, 8}) {
        profile.SetHeight(feet * 12);
        EXPECT_EQ(profile.feet, QString::number(feet));
        EXPECT_EQ(profile.inches, 0);
        profile.SetHeight(feet * 12 + 11);
        EXPECT_EQ(profile.feet, QString::number(feet));
        EXPECT_EQ(profile.inches, 11);
    }
}

TEST(Profile, AHeightIsFeetAndInches) {
    EXPECT_EQ(Berta().Height(), 65);
    Profile profile;
    profile.SetHeight(70);
    EXPECT_EQ(profile.feet, "5");
    EXPECT_EQ(profile.inches, 10);
    EXPECT_EQ(profile.Height(), 70);
}

TEST(Profile, AHeightNeedsFeetThatAreANumber) {
    for (const char* feet : {"", "five", "5ft"}) {
        Profile profile = Berta();
        profile.feet = feet;
        EXPECT_EQ(FailureOf([&] { profile.Height(); }), ErrorNumber::TypeMismatch) << feet;
    }
}

// Rows

TEST_F(ProfilesTest, ThereIsNoFirstUserInAnEmptyTable) {
    EXPECT_FALSE(Profiles::First());
}

TEST_F(ProfilesTest, TheFirstUserIsTheOneOfTheFirstRow) {
    const qint32 anna = AddUser("Anna");
    AddUser("Bert");
    const std::optional<User> first = Profiles::First();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->UID, anna);
    EXPECT_EQ(first->UserName, "Anna");
    EXPECT_EQ(first->RDIs.Calories(), 2000);
}

TEST_F(ProfilesTest, AUserIsFoundByNameOrByKey) {
    UserDB().Raw().exec("INSERT INTO profiles (UID, UserName) VALUES (7, 'Anna'), (8, '7')");
    EXPECT_EQ(Profiles::Find("ANNA")->UID, 7);
    EXPECT_EQ(Profiles::Find("8")->UID, 8);
    EXPECT_EQ(Profiles::Find("7")->UID, 8) << "a name comes before a key";
    EXPECT_FALSE(Profiles::Find("Berta"));
    EXPECT_FALSE(Profiles::Find("9"));
}

TEST_F(ProfilesTest, ANewProfileDerivesItsTargets) {
    Profile entered = Berta();
    entered.targets.Set(Nutrient::Calories, 1);
    const User user = Profiles::Append(entered);
    EXPECT_EQ(user.UID, Users("SELECT UID FROM profiles").toInt());
    EXPECT_EQ(user.Height, 65);
    User expected = user;
    expected.CreateDefaultRDIs();
    const Profile read = Profiles::Read(user.UID);
    for (const NutrientInfo& nutrient : Nutrients()) {
        EXPECT_EQ(user.RDIs[nutrient.id], expected.RDIs[nutrient.id]) << nutrient.property;
        EXPECT_EQ(read.targets[nutrient.id], expected.RDIs[nutrient.id]) << nutrient.property;
    }
}

TEST_F(ProfilesTest, ANewProfileHasNoLimitsOfItsOwn) {
    User user;
    user.GetUserProfile(Profiles::Append(Berta()).UID);
    EXPECT_FALSE(user.FlagSodium);
    EXPECT_FALSE(user.FlagCholesterol);
    EXPECT_EQ(user.sodiumMAX, 0);
    EXPECT_EQ(user.cholesterolMAX, 0);
}

TEST_F(ProfilesTest, ANewProfileWithoutTargetsToDeriveIsNotWritten) {
    Profile entered = Berta();
    entered.age = 13.5;
    ExpectAppendFails(entered, ErrorNumber::NoCurrentRecord);
    entered.age = 999;
    ExpectAppendFails(entered, ErrorNumber::NoSuchMember);
    entered = Berta();
    entered.feet = "";
    ExpectAppendFails(entered, ErrorNumber::TypeMismatch);
}

TEST_F(ProfilesTest, WhatWasEnteredIsReadBack) {
    const qint32 uid = AddUser("Anna");
    Profile entered = Berta();
    entered.age = 8.5;
    for (const NutrientInfo& nutrient : Nutrients())
        entered.targets.Set(nutrient.id, int(nutrient.id) + 100);
    Profiles::Change(uid, entered);
    const Profile read = Profiles::Read(uid);
    EXPECT_EQ(read.userName, "Berta");
    EXPECT_EQ(read.age, 8.5);
    EXPECT_EQ(read.feet, "5");
    EXPECT_EQ(read.inches, 5);
    EXPECT_EQ(read.currentWeight, 140);
    EXPECT_EQ(read.desiredWeight, 130);
    EXPECT_EQ(read.gender, 0);
    EXPECT_EQ(read.activityLevel, 1);
    EXPECT_EQ(read.targets, entered.targets);
}

TEST_F(ProfilesTest, AChangeDerivesNothing) {
    const qint32 uid = AddUser("Anna");
    Profile changed = Profiles::Read(uid);
    changed.age = 13.5;
    changed.targets.Set(Nutrient::Iron, -30);
    Profiles::Change(uid, changed);
    EXPECT_EQ(Users("SELECT age FROM profiles"), 13.5);
    EXPECT_EQ(Users("SELECT Iron FROM profiles"), 30);
    EXPECT_EQ(Users("SELECT Calories FROM profiles"), 2000);
}

TEST_F(ProfilesTest, ATargetThatIsATextIsZero) {
    const qint32 uid = AddUser("Anna");
    Users("UPDATE profiles SET Iron = 'much'");
    EXPECT_EQ(Profiles::Read(uid).targets[Nutrient::Iron], 0);
}

TEST_F(ProfilesTest, TargetsThatAreNotSetAreMissingAndSavedAsZero) {
    const qint32 uid = AddUser("Anna");
    Users("UPDATE profiles SET Iron = NULL, Calcium = NULL");
    const Profile read = Profiles::Read(uid);
    EXPECT_FALSE(read.targets[Nutrient::Iron]);
    EXPECT_FALSE(read.targets[Nutrient::Calcium]);
    Profiles::Change(uid, read);
    EXPECT_EQ(Users("SELECT Iron FROM profiles"), 0);
    EXPECT_EQ(Users("SELECT Calcium FROM profiles"), 0);
}

TEST_F(ProfilesTest, WhatARowDoesNotKnowIsZero) {
    UserDB().Raw().exec("INSERT INTO profiles (UID, UserName) VALUES (7, 'Nil')");
    const Profile profile = Profiles::Read(7);
    EXPECT_EQ(profile.age, 0);
    EXPECT_EQ(profile.Height(), 0);
    EXPECT_EQ(profile.currentWeight, 0);
    EXPECT_EQ(profile.desiredWeight, 0);
    EXPECT_EQ(profile.gender, 0);
    EXPECT_EQ(profile.activityLevel, 0);
}

TEST_F(ProfilesTest, AKeyWithoutARowFails) {
    EXPECT_EQ(FailureOf([] { Profiles::Read(4711); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(FailureOf([] { Profiles::Change(4711, Berta()); }), ErrorNumber::NoCurrentRecord);
}

// Names

TEST_F(ProfilesTest, ANameThatIsTakenIsAProblemWithANewProfile) {
    EXPECT_EQ(Profiles::ProblemWithNew(Berta()), "");
    AddUser("BERTA");
    EXPECT_EQ(Profiles::ProblemWithNew(Berta()), TakenNew);
}

TEST_F(ProfilesTest, ANameThatSomebodyElseHasIsAProblemWithAChange) {
    const qint32 berta = AddUser("Berta");
    EXPECT_EQ(Profiles::ProblemWithChange(berta, Berta()), "");
    const qint32 anna = AddUser("Anna");
    EXPECT_EQ(Profiles::ProblemWithChange(anna, Berta()), TakenChange);
}

TEST_F(ProfilesTest, TheOtherRulesComeBeforeTheName) {
    const qint32 uid = AddUser("Berta");
    Profile entered = Berta();
    entered.age = 0;
    EXPECT_EQ(Profiles::ProblemWithNew(entered), "Please enter your Age.");
    EXPECT_EQ(Profiles::ProblemWithChange(uid + 1, entered), "Please enter your Age.");
}

TEST_F(ProfilesTest, AnApostropheFailsAtTheStatement) {
    Profile entered = Berta();
    entered.userName = "O'Brien";
    EXPECT_LT(FailureOf([&] { Profiles::ProblemWithNew(entered); }), 0);
    EXPECT_LT(FailureOf([&] { Profiles::ProblemWithChange(1, entered); }), 0);
}
