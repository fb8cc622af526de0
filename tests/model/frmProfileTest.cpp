#include "model/ui/frmProfile.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "support/Failure.h"
#include "support/HalvaneTest.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucRadio.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QTest>

namespace {
const QString Created =
    "Your profile has been created. The RDI values created should be used only as guidelines. You "
    "can edit these values by using the 'Edit My Profile' feature (under the 'Edit' menu).";
const QString QuitQuestion =
    "You must create a user profile to use Halvane. Are you sure you wish to quit without creating "
    "your profile?";
const QString TakenNew = "A user with this name already exists in the database. Please select a "
                         "different User Name.";
const QString TakenEdit = "A user with this name already exists in the database. Please enter a "
                          "different User Name.";

class ProfileTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
        TheSeams().LoadScreen = [this](const QString& name) -> QObject* {
            EXPECT_EQ(name, QStringLiteral("frmProfile"));
            if (!form_)
                form_ = new frmProfile;
            return form_;
        };
    }

    void TearDown() override {
        delete form_;
        HalvaneTest::TearDown();
    }

    frmProfile* Edit(qint32 uid) {
        frmProfile::EditUser(uid);
        form_->show();
        return form_;
    }

    /// A form for another new user, filled in for a woman of 30.
    frmProfile* Fresh() {
        form_ = new frmProfile;
        form_->CreateUser();
        form_->show();
        Enter(form_);
        return form_;
    }

    static void Type(QWidget* form, const char* field, const QString& text) {
        Find<QLineEdit>(form, QLatin1String(field))->setText(text);
    }

    static void Enter(QWidget* form, const QString& name = QStringLiteral("Berta")) {
        Type(form, "txtUserName", name);
        Type(form, "txtAge", "30");
        Type(form, "txtFeet", "5");
        Type(form, "txtInches", "5");
        Type(form, "txtWeight", "140");
        Type(form, "txtDWeight", "130");
        Click(Find(form, "opGender0"));
        Click(Find(form, "opAct1"));
    }

    QVariant Stored(const char* column, const QString& name = QStringLiteral("Berta")) {
        return Users(QStringLiteral("SELECT %1 FROM profiles WHERE UserName = '%2'")
                         .arg(QLatin1String(column), name));
    }

    int Profiles() { return Users("SELECT count(*) FROM profiles").toInt(); }

    /// Presses Save and expects the message. Nothing is written.
    void ExpectRefusal(frmProfile* form, const QString& message) {
        const auto before = Rows(UserDB(), "SELECT * FROM profiles");
        ExpectAlert(message);
        Click(Find(form, "cmdSave"));
        EXPECT_EQ(Rows(UserDB(), "SELECT * FROM profiles"), before);
        EXPECT_TRUE(form->isVisible());
    }

    void ExpectFailure(frmProfile* form, int number) {
        const auto before = Rows(UserDB(), "SELECT * FROM profiles");
        EXPECT_EQ(FailureOf([&] { form->SaveNewUser(); }), number);
        EXPECT_EQ(Rows(UserDB(), "SELECT * FROM profiles"), before);
    }

    QPointer<frmProfile> form_;
};

QString Value(QWidget* form, const char* field) {
    return Find<QLineEdit>(form, QLatin1String(field))->text();
}

bool On(QWidget* form, const char* radio) {
    return Find<ucRadio>(form, QLatin1String(radio))->Value();
}

void Drag(QWidget* form, QPoint from, QPoint by) {
    const QPoint start = form->mapToGlobal(from);
    const auto send = [&](QEvent::Type type, QPoint global, Qt::MouseButton button,
                          Qt::MouseButtons buttons) {
        QMouseEvent event(type, QPointF(form->mapFromGlobal(global)), QPointF(global), button,
                          buttons, Qt::NoModifier);
        QApplication::sendEvent(form, &event);
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, start + by / 2, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseMove, start + by, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, start + by, Qt::LeftButton, Qt::NoButton);
}
} // namespace

// The messages and their order

TEST_F(ProfileTest, TestsRunInOrderFromAnEmptyForm) {
    form_ = new frmProfile;
    form_->CreateUser();
    form_->show();
    ExpectRefusal(form_, "Please enter a User Name.");
    Type(form_, "txtUserName", "Berta");
    ExpectRefusal(form_, "Please enter your Height.");
    Type(form_, "txtInches", "12");
    ExpectRefusal(form_, "Please enter an Inches value of 11 or less.");
    Type(form_, "txtInches", "5");
    Type(form_, "txtFeet", "5");
    ExpectRefusal(form_, "Please enter your Age.");
    Type(form_, "txtAge", "30");
    ExpectRefusal(form_, "Please enter your Current Weight.");
    Type(form_, "txtWeight", "140");
    ExpectRefusal(form_, "Please enter your Desired Weight.");
    Type(form_, "txtDWeight", "130");
    ExpectRefusal(form_, "Please select your Gender.");
    Click(Find(form_.data(), "opGender0"));
    ExpectRefusal(form_, "Please select your Activity Level.");
    Click(Find(form_.data(), "opAct1"));
    Click(Find(form_.data(), "cmdSave"));
    EXPECT_EQ(Profiles(), 1);
}

TEST_F(ProfileTest, AlertsBelongToTheFormAndHaveNoCancel) {
    form_ = new frmProfile;
    form_->CreateUser();
    TheSeams().ShowAlert = [this](const QString& message, QObject* owner, bool cancel) {
        EXPECT_EQ(message, QStringLiteral("Please enter a User Name."));
        EXPECT_EQ(owner, form_.data());
        EXPECT_FALSE(cancel);
        return true;
    };
    EXPECT_FALSE(form_->SaveNewUser());
}

TEST_F(ProfileTest, FeetAndInchesOfZeroGiveTheHeightMessage) {
    frmProfile* form = Fresh();
    Type(form, "txtFeet", "0");
    Type(form, "txtInches", "0");
    ExpectRefusal(form, "Please enter your Height.");
    Type(form, "txtFeet", "-5");
    Type(form, "txtInches", "-1");
    ExpectRefusal(form, "Please enter your Height.");
    Type(form, "txtFeet", "abc");
    Type(form, "txtInches", "");
    ExpectRefusal(form, "Please enter your Height.");
}

TEST_F(ProfileTest, InchesMustBeBelowTwelve) {
    frmProfile* form = Fresh();
    for (const char* inches : {"12", "12.5", "99", "1e10"}) {
        Type(form, "txtInches", QLatin1String(inches));
        ExpectRefusal(form, "Please enter an Inches value of 11 or less.");
    }
}

TEST_F(ProfileTest, TextThatIsNoNumberCountsAsZero) {
    const struct {
        const char* field;
        const char* message;
    } fields[] = {{"txtAge", "Please enter your Age."},
                  {"txtWeight", "Please enter your Current Weight."},
                  {"txtDWeight", "Please enter your Desired Weight."}};
    frmProfile* form = Fresh();
    for (const auto& field : fields) {
        const QString kept = Value(form, field.field);
        for (const char* text :
             {"", "abc", "-1", "0", "1e400", "\xf0\x9f\x8d\x9e", "'; DROP TABLE profiles; --"}) {
            Type(form, field.field, QString::fromUtf8(text));
            ExpectRefusal(form, QLatin1String(field.message));
        }
        Type(form, field.field, kept);
    }
}

// A new profile

TEST_F(ProfileTest, NewProfileIsWrittenWithItsTargets) {
    frmProfile* form = Fresh();
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Profiles(), 1);
    EXPECT_EQ(Stored("age").toDouble(), 30);
    EXPECT_EQ(Stored("height").toInt(), 65);
    EXPECT_EQ(Stored("gender").toInt(), 0);
    EXPECT_EQ(Stored("current_weight").toInt(), 140);
    EXPECT_EQ(Stored("desired_weight").toInt(), 130);
    EXPECT_EQ(Stored("activity_level").toInt(), 1);
    for (const char* column : {"flagsodium", "flagcholesterol", "cholesterolMAX", "sodiumMAX"})
        EXPECT_EQ(Stored(column).toInt(), 0) << column;
    EXPECT_FALSE(Stored("flagsodium").isNull());
    User expected;
    expected.Age = 30;
    expected.Height = 65;
    expected.CurrentWeight = 140;
    expected.DesiredWeight = 130;
    expected.ActivityLevel = 1;
    expected.CreateDefaultRDIs();
    for (const NutrientInfo& info : Nutrients())
        EXPECT_EQ(Stored(info.profileColumn).toDouble(), expected.RDIs[info.id]) << info.property;
}

TEST_F(ProfileTest, AnotherNewUserDoesNotChangeTheCurrentOne) {
    const qint32 anna = AddUser("Anna");
    frmProfile* form = Fresh();
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Profiles(), 2);
    EXPECT_EQ(User::Current().UID, anna);
    EXPECT_TRUE(shownScreens.isEmpty());
}

TEST_F(ProfileTest, SavingANewUserClosesTheForm) {
    frmProfile* form = Fresh();
    EXPECT_TRUE(form->SaveNewUser());
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return form_.isNull(); }));
}

TEST_F(ProfileTest, EveryRadioIsStoredAsItsNumber) {
    for (int gender = 0; gender < 2; ++gender)
        for (int activity = 0; activity < 4; ++activity) {
            frmProfile* form = Fresh();
            const QString name = QStringLiteral("user %1%2").arg(gender).arg(activity);
            Type(form, "txtUserName", name);
            Click(Find(form, QStringLiteral("opGender%1").arg(gender)));
            Click(Find(form, QStringLiteral("opAct%1").arg(activity)));
            EXPECT_TRUE(form->SaveNewUser());
            EXPECT_EQ(Stored("gender", name).toInt(), gender);
            EXPECT_EQ(Stored("activity_level", name).toInt(), activity);
        }
}

TEST_F(ProfileTest, FeetAloneAreAHeight) {
    frmProfile* form = Fresh();
    Type(form, "txtInches", "");
    EXPECT_TRUE(form->SaveNewUser());
    EXPECT_EQ(Stored("height").toInt(), 60);
}

TEST_F(ProfileTest, FractionsOfAnInchAreRounded) {
    frmProfile* form = Fresh();
    Type(form, "txtInches", "11.5");
    EXPECT_TRUE(form->SaveNewUser());
    EXPECT_EQ(Stored("height").toInt(), 72); // 71.5, to the even neighbour
}

TEST_F(ProfileTest, WeightsRoundHalvesToTheEvenNeighbour) {
    frmProfile* form = Fresh();
    Type(form, "txtWeight", "150.5");
    Type(form, "txtDWeight", "151.5");
    EXPECT_TRUE(form->SaveNewUser());
    EXPECT_EQ(Stored("current_weight").toInt(), 150);
    EXPECT_EQ(Stored("desired_weight").toInt(), 152);
}

TEST_F(ProfileTest, WeightsAreStoredAsWholePoundsHoweverTheyAreWritten) {
    const struct {
        const char* text;
        int pounds;
    } weights[] = {{".05", 0}, {"99", 99}, {"99.01", 99}, {"1,5", 1}, {"1e2", 100}};
    for (const auto& weight : weights) {
        Users("DELETE FROM profiles");
        frmProfile* form = Fresh();
        Type(form, "txtWeight", weight.text);
        Type(form, "txtDWeight", weight.text);
        EXPECT_TRUE(form->SaveNewUser()) << weight.text;
        EXPECT_EQ(Stored("current_weight").toInt(), weight.pounds) << weight.text;
        EXPECT_EQ(Stored("desired_weight").toInt(), weight.pounds) << weight.text;
    }
}

TEST_F(ProfileTest, NumbersAreTakenFromTheBeginningOfTheText) {
    frmProfile* form = Fresh();
    Type(form, "txtAge", " 3 0 years");
    Type(form, "txtWeight", "140 lbs");
    Type(form, "txtDWeight", "1,5");
    EXPECT_TRUE(form->SaveNewUser());
    EXPECT_EQ(Stored("age").toDouble(), 30);
    EXPECT_EQ(Stored("current_weight").toInt(), 140);
    EXPECT_EQ(Stored("desired_weight").toInt(), 1);
}

TEST_F(ProfileTest, AHeightWithoutFeetFailsAndWritesNothing) {
    frmProfile* form = Fresh();
    Type(form, "txtInches", "11");
    for (const char* feet : {"", "five", "5ft", "5,5"}) {
        Type(form, "txtFeet", QLatin1String(feet));
        ExpectFailure(form, ErrorNumber::TypeMismatch);
    }
    Type(form, "txtFeet", "1e400");
    ExpectFailure(form, ErrorNumber::Overflow);
    Type(form, "txtFeet", "1e308");
    ExpectFailure(form, ErrorNumber::Overflow);
    Type(form, "txtFeet", "1e9");
    ExpectFailure(form, ErrorNumber::Overflow);
}

TEST_F(ProfileTest, WeightsAboveAMillionHaveAMessageOfTheirOwn) {
    const std::pair<const char*, const char*> fields[] = {
        {"txtWeight", "Please enter a Current Weight of 1,000,000 pounds or less."},
        {"txtDWeight", "Please enter a Desired Weight of 1,000,000 pounds or less."}};
    for (const auto& [field, message] : fields) {
        frmProfile* form = Fresh();
        for (const char* pounds : {"1000000.5", "1e10"}) {
            Type(form, field, QLatin1String(pounds));
            ExpectRefusal(form, QLatin1String(message));
        }
        delete form;
    }
}

TEST_F(ProfileTest, AgesInAGapFailAndWriteNothing) {
    frmProfile* form = Fresh();
    for (const char* age : {"13.5", "18.2", "30.5", "50.5", "70.5", "1000"}) {
        Type(form, "txtAge", QLatin1String(age));
        Type(form, "txtWeight", "2000");
        ExpectFailure(form, ErrorNumber::NoCurrentRecord);
    }
}

TEST_F(ProfileTest, AnAgeWithoutAFiberTargetFailsAndWritesNothing) {
    frmProfile* form = Fresh();
    Type(form, "txtAge", "999");
    ExpectFailure(form, ErrorNumber::NoSuchMember);
}

TEST_F(ProfileTest, AgesFromHalfAYearTo999AreStored) {
    frmProfile* form = Fresh();
    Type(form, "txtAge", "0.5");
    EXPECT_TRUE(form->SaveNewUser());
    EXPECT_EQ(Stored("age").toDouble(), 0.5);
    EXPECT_EQ(Stored("Calcium").toInt(), 200);
    form = Fresh();
    Type(form, "txtUserName", "Methuselah");
    Type(form, "txtAge", "999");
    Type(form, "txtWeight", "2000");
    EXPECT_TRUE(form->SaveNewUser());
    EXPECT_EQ(Stored("age", "Methuselah").toDouble(), 999);
}

// Names

TEST_F(ProfileTest, ATakenNameIsRefusedForANewUser) {
    AddUser("Berta");
    ExpectRefusal(Fresh(), TakenNew);
}

TEST_F(ProfileTest, NamesAreComparedWithoutCase) {
    AddUser("BERTA");
    ExpectRefusal(Fresh(), TakenNew);
}

TEST_F(ProfileTest, OtherProblemsAreReportedBeforeATakenName) {
    AddUser("Berta");
    frmProfile* form = Fresh();
    Type(form, "txtAge", "");
    ExpectRefusal(form, "Please enter your Age.");
}

TEST_F(ProfileTest, ATakenNameIsReportedBeforeMissingFeet) {
    AddUser("Berta");
    frmProfile* form = Fresh();
    Type(form, "txtFeet", "");
    ExpectRefusal(form, TakenNew);
}

TEST_F(ProfileTest, NamesAreStoredAsTyped) {
    const QStringList names = {"100%",
                               "_",
                               "[brackets]",
                               "\"quoted\"",
                               "#1/1/2002#",
                               QString::fromUtf8("\U0001F35E bread"),
                               "Zo\u00eb; --",
                               "TOP 5 *",
                               QString(10000, u'n'),
                               " ",
                               "a\\b"};
    for (const QString& name : names) {
        frmProfile* form = Fresh();
        Type(form, "txtUserName", name);
        EXPECT_TRUE(form->SaveNewUser()) << name.left(20).toStdString();
        EXPECT_EQ(Stored("UserName", name).toString(), name);
    }
    EXPECT_EQ(Profiles(), names.size());
}

TEST_F(ProfileTest, WildcardsInANameMatchOnlyThemselves) {
    AddUser("Anna");
    frmProfile* form = Fresh();
    for (const char* name : {"%", "A%", "A___", "____"}) {
        Type(form, "txtUserName", QLatin1String(name));
        EXPECT_TRUE(form->SaveNewUser()) << name;
        form = Fresh();
    }
}

TEST_F(ProfileTest, AnApostropheFailsAtTheNamesStatement) {
    frmProfile* form = Fresh();
    Type(form, "txtUserName", "O'Brien");
    Type(form, "txtFeet", "");
    const auto before = Rows(UserDB(), "SELECT * FROM profiles");
    EXPECT_LT(FailureOf([&] { form->SaveNewUser(); }), 0);
    EXPECT_EQ(Rows(UserDB(), "SELECT * FROM profiles"), before);
}

TEST_F(ProfileTest, StatementsInANameDoNoHarm) {
    AddUser("Anna");
    frmProfile* form = Fresh();
    for (const char* name : {"x'; DROP TABLE profiles; --", "x'; DELETE FROM profiles WHERE '1'='1",
                             "x' UNION DELETE FROM profiles --"}) {
        Type(form, "txtUserName", QLatin1String(name));
        EXPECT_LT(FailureOf([&] { form->SaveNewUser(); }), 0) << name;
        EXPECT_EQ(Profiles(), 1) << name;
    }
    Type(form, "txtUserName", "x' OR '1'='1");
    ExpectRefusal(form, TakenNew);
}

TEST_F(ProfileTest, AnEmbeddedNulIsRefusedByTheStoreAndWritesNothing) {
    frmProfile* form = Fresh();
    Type(form, "txtUserName", QStringLiteral("Ber") + QChar::Null + QStringLiteral("ta"));
    EXPECT_LT(FailureOf([&] { form->SaveNewUser(); }), 0);
    EXPECT_EQ(Profiles(), 0);
}

// Editing

TEST_F(ProfileTest, EditShowsTheRowAsAScreen) {
    const qint32 uid = AddUser("Anna");
    frmProfile* form = Edit(uid);
    EXPECT_EQ(shownScreens, QStringList({"frmProfile"}));
    EXPECT_EQ(Value(form, "txtUserName"), QStringLiteral("Anna"));
    EXPECT_EQ(Value(form, "txtAge"), QStringLiteral("40"));
    EXPECT_EQ(Value(form, "txtFeet"), QStringLiteral("5"));
    EXPECT_EQ(Value(form, "txtInches"), QStringLiteral("10"));
    EXPECT_EQ(Value(form, "txtWeight"), QStringLiteral("200"));
    EXPECT_EQ(Value(form, "txtDWeight"), QStringLiteral("170"));
    EXPECT_TRUE(On(form, "opGender1"));
    EXPECT_FALSE(On(form, "opGender0"));
    EXPECT_TRUE(On(form, "opAct2"));
    EXPECT_FALSE(Find(form, "ucTitleFlat1")->isVisible());
    EXPECT_TRUE(Find(form, "cmdAdvanced")->isVisible());
}

TEST_F(ProfileTest, EditShowsEachTargetInItsField) {
    const qint32 uid = AddUser();
    Users("UPDATE profiles SET Selenium = 0.055, Iron = 8.25, Calories = 2345");
    frmProfile* form = Edit(uid);
    EXPECT_EQ(Value(form, "txtSelenium"), QStringLiteral("0.055"));
    EXPECT_EQ(Value(form, "txtIron"), QStringLiteral("8.25"));
    EXPECT_EQ(Value(form, "txtCals"), QStringLiteral("2345"));
    for (const NutrientInfo& info : Nutrients())
        EXPECT_EQ(Value(form, info.textField).toDouble(),
                  Stored(info.profileColumn, "Anna").toDouble())
            << info.property;
}

TEST_F(ProfileTest, AnActivityOutOfRangeSelectsNone) {
    const qint32 uid = AddUser();
    Users("UPDATE profiles SET activity_level = 4, gender = 0");
    frmProfile* form = Edit(uid);
    for (const char* radio : {"opAct0", "opAct1", "opAct2", "opAct3", "opGender1"})
        EXPECT_FALSE(On(form, radio)) << radio;
    EXPECT_TRUE(On(form, "opGender0"));
    ExpectRefusal(form, "Please select your Activity Level.");
}

TEST_F(ProfileTest, EditOfAMissingUserFails) {
    EXPECT_EQ(FailureOf([] { frmProfile::EditUser(4711); }), ErrorNumber::NoCurrentRecord);
    EXPECT_TRUE(shownScreens.isEmpty());
}

TEST_F(ProfileTest, ASecondEditShowsTheOtherUserInTheSameForm) {
    const qint32 anna = AddUser("Anna");
    const qint32 bert = AddUser("Bert");
    frmProfile* form = Edit(anna);
    EXPECT_EQ(Edit(bert), form);
    EXPECT_EQ(Value(form, "txtUserName"), QStringLiteral("Bert"));
    Type(form, "txtAge", "41");
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Stored("age", "Anna").toInt(), 40);
    EXPECT_EQ(Stored("age", "Bert").toInt(), 41);
}

TEST_F(ProfileTest, ChangesReachTheRowAndTheCurrentUser) {
    frmProfile* form = Edit(AddUser("Anna"));
    Enter(form);
    Type(form, "txtWeight", "150.5");
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Profiles(), 1);
    EXPECT_EQ(Stored("age").toDouble(), 30);
    EXPECT_EQ(Stored("height").toInt(), 65);
    EXPECT_EQ(Stored("gender").toInt(), 0);
    EXPECT_EQ(Stored("current_weight").toInt(), 150);
    EXPECT_EQ(Stored("desired_weight").toInt(), 130);
    EXPECT_EQ(Stored("activity_level").toInt(), 1);
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Berta"));
    EXPECT_EQ(User::Current().CurrentWeight, 150);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(ProfileTest, AnEditClearsTheFlagsAndTheirLimits) {
    const qint32 uid = AddUser("Anna");
    Users("UPDATE profiles SET flagsodium = 1, flagcholesterol = 1, sodiumMAX = 11, "
          "cholesterolMAX = 12");
    Click(Find(Edit(uid), "cmdSave"));
    for (const char* column : {"flagsodium", "flagcholesterol", "sodiumMAX", "cholesterolMAX"})
        EXPECT_EQ(Stored(column, "Anna"), 0) << column;
}

TEST_F(ProfileTest, AnEditEndsTheModeOfOneMoreUser) {
    const qint32 uid = AddUser("Anna");
    frmProfile* form = Fresh();
    EXPECT_EQ(Edit(uid), form);
    EXPECT_TRUE(Find(form, "cmdAdvanced")->isVisible());
    EXPECT_FALSE(Find(form, "ucTitleFlat1")->isVisible());
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Profiles(), 1);
    EXPECT_EQ(Stored("age", "Anna").toInt(), 40);
}

TEST_F(ProfileTest, EditDerivesNoReferenceValues) {
    frmProfile* form = Edit(AddUser("Anna"));
    Type(form, "txtAge", "13.5");
    Click(Find(form, "opGender0"));
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Stored("age", "Anna").toDouble(), 13.5);
    EXPECT_EQ(Stored("Calories", "Anna").toInt(), 2000);
    EXPECT_EQ(Stored("Iron", "Anna").toDouble(), 8);
}

TEST_F(ProfileTest, RecalculationOverwritesTypedEnergyTargetsAtOnce) {
    App().AppInfo.AUTOUPDATERDI = true;
    frmProfile* form = Edit(AddUser("Anna"));
    Type(form, "txtCals", "1234");
    Type(form, "txtTotalFat", "1");
    Type(form, "txtIron", "9");
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Stored("Calories", "Anna").toInt(), 3149);
    EXPECT_EQ(Stored("TotalFat", "Anna").toDouble(), 105);
    EXPECT_EQ(Stored("Iron", "Anna").toDouble(), 9);
    EXPECT_EQ(User::Current().RDIs.Calories(), 3149);
    EXPECT_EQ(User::Current().RDIs[Nutrient::Iron], 9);
}

TEST_F(ProfileTest, EditOfAnotherUserLeavesTheCurrentOneAlone) {
    App().AppInfo.AUTOUPDATERDI = true;
    const qint32 anna = AddUser("Anna");
    AddUser("Bert");
    frmProfile* form = Edit(anna);
    Type(form, "txtCals", "1234");
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Stored("Calories", "Anna").toInt(), 1234);
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Bert"));
    EXPECT_EQ(User::Current().RDIs.Calories(), 2000);
}

TEST_F(ProfileTest, EachTargetIsWrittenToItsOwnColumn) {
    frmProfile* form = Edit(AddUser("Anna"));
    int value = 100;
    for (const NutrientInfo& info : Nutrients())
        Type(form, info.textField, QString::number(value++));
    Click(Find(form, "cmdSave"));
    value = 100;
    for (const NutrientInfo& info : Nutrients())
        EXPECT_EQ(Stored(info.profileColumn, "Anna").toInt(), value++) << info.property;
}

TEST_F(ProfileTest, TargetsLoseTheirSign) {
    frmProfile* form = Edit(AddUser("Anna"));
    Type(form, "txtIron", "-30");
    Type(form, "txtCals", "-2000.5");
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Stored("Iron", "Anna").toDouble(), 30);
    EXPECT_EQ(Stored("Calories", "Anna").toInt(), 2000);
}

TEST_F(ProfileTest, TargetsThatAreNoNumberBecomeZero) {
    for (const char* text :
         {"", "abc", "1e400", "'; DROP TABLE profiles; --", "\xf0\x9f\x8d\x9e"}) {
        ResetApp();
        Users("DELETE FROM profiles");
        frmProfile* form = Edit(AddUser("Anna"));
        Type(form, "txtIron", QString::fromUtf8(text));
        Type(form, "txtCalcium", QString::fromUtf8(text));
        Click(Find(form, "cmdSave"));
        EXPECT_EQ(Stored("Iron", "Anna").toDouble(), 0) << text;
        EXPECT_EQ(Stored("Calcium", "Anna").toInt(), 0) << text;
    }
}

TEST_F(ProfileTest, AStatementInAnyFieldDoesNoHarm) {
    const QString statement = QStringLiteral("1'; DELETE FROM profiles; --");
    AddUser("Bert");
    const qint32 anna = AddUser("Anna");
    const auto saving = [&](const char* field) {
        frmProfile* form = Edit(anna);
        Type(form, field, statement);
        const int failure = FailureOf([&] { form->SaveChanges(); });
        EXPECT_EQ(Profiles(), 2) << field;
        EXPECT_EQ(Stored("Calories", "Bert").toInt(), 2000) << field;
        return failure;
    };
    EXPECT_LT(saving("txtUserName"), 0);
    EXPECT_EQ(saving("txtFeet"), ErrorNumber::TypeMismatch);
    EXPECT_EQ(saving("txtInches"), 0);
    EXPECT_EQ(Stored("height", "Anna").toInt(), 61);
    const std::pair<const char*, const char*> numbers[] = {
        {"txtAge", "age"}, {"txtWeight", "current_weight"}, {"txtDWeight", "desired_weight"}};
    for (const auto& [field, column] : numbers) {
        EXPECT_EQ(saving(field), 0) << field;
        EXPECT_EQ(Stored(column, "Anna").toInt(), 1) << field;
    }
    for (const NutrientInfo& info : Nutrients()) {
        EXPECT_EQ(saving(info.textField), 0) << info.textField;
        EXPECT_EQ(Stored(info.profileColumn, "Anna").toDouble(), 1) << info.textField;
    }
}

TEST_F(ProfileTest, ATargetBeyondAWholeNumberFailsAndWritesNothing) {
    frmProfile* form = Edit(AddUser("Anna"));
    const auto before = Rows(UserDB(), "SELECT * FROM profiles");
    Type(form, "txtUserName", "Changed");
    Type(form, "txtCals", "1e300");
    EXPECT_EQ(FailureOf([&] { form->SaveChanges(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Rows(UserDB(), "SELECT * FROM profiles"), before);
}

TEST_F(ProfileTest, AnEditWithoutFeetFailsAndWritesNothing) {
    frmProfile* form = Edit(AddUser("Anna"));
    const auto before = Rows(UserDB(), "SELECT * FROM profiles");
    Type(form, "txtUserName", "Changed");
    Type(form, "txtFeet", "");
    EXPECT_EQ(FailureOf([&] { form->SaveChanges(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(Rows(UserDB(), "SELECT * FROM profiles"), before);
}

TEST_F(ProfileTest, RenamingToAnotherUsersNameIsRefused) {
    const qint32 anna = AddUser("Anna");
    AddUser("Bert");
    frmProfile* form = Edit(anna);
    Type(form, "txtUserName", "bert");
    ExpectRefusal(form, TakenEdit);
}

TEST_F(ProfileTest, KeepingTheOwnNameIsAllowed) {
    frmProfile* form = Edit(AddUser("Anna"));
    Type(form, "txtUserName", "ANNA");
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Users("SELECT UserName FROM profiles").toString(), QStringLiteral("ANNA"));
}

TEST_F(ProfileTest, AnApostropheInARenameFailsAndWritesNothing) {
    frmProfile* form = Edit(AddUser("Anna"));
    const auto before = Rows(UserDB(), "SELECT * FROM profiles");
    Type(form, "txtUserName", "O'Brien");
    EXPECT_LT(FailureOf([&] { form->SaveChanges(); }), 0);
    EXPECT_EQ(Rows(UserDB(), "SELECT * FROM profiles"), before);
}

TEST_F(ProfileTest, CancelClosesTheEditAndWritesNothing) {
    frmProfile* form = Edit(AddUser("Anna"));
    const auto before = Rows(UserDB(), "SELECT * FROM profiles");
    Enter(form);
    Click(Find(form, "cmdCancel"));
    EXPECT_EQ(Rows(UserDB(), "SELECT * FROM profiles"), before);
    EXPECT_TRUE(QTest::qWaitFor([this] { return form_.isNull(); }));
}

// The pages

TEST_F(ProfileTest, AdvancedTogglesTheTwoPages) {
    frmProfile* form = Edit(AddUser("Anna"));
    EXPECT_EQ(form->property("Tag").toString(), QStringLiteral("0"));
    EXPECT_TRUE(Find(form, "picCover")->isVisible());
    EXPECT_FALSE(Find(form, "txtCals")->isVisible());
    Click(Find(form, "cmdAdvanced"));
    EXPECT_EQ(form->property("Tag").toString(), QStringLiteral("1"));
    EXPECT_FALSE(Find(form, "picCover")->isVisible());
    EXPECT_TRUE(Find(form, "txtCals")->isVisible());
    Click(Find(form, "cmdAdvanced"));
    EXPECT_EQ(form->property("Tag").toString(), QStringLiteral("0"));
    EXPECT_TRUE(Find(form, "picCover")->isVisible());
}

TEST_F(ProfileTest, EntriesOfBothPagesAreSavedWhicheverIsShown) {
    frmProfile* form = Edit(AddUser("Anna"));
    Type(form, "txtAge", "41");
    Click(Find(form, "cmdAdvanced"));
    Type(form, "txtIron", "9");
    Click(Find(form, "cmdSave"));
    EXPECT_EQ(Stored("age", "Anna").toDouble(), 41);
    EXPECT_EQ(Stored("Iron", "Anna").toDouble(), 9);
}

TEST_F(ProfileTest, TheNewUserModesHaveNoAdvancedPage) {
    frmProfile* form = Fresh();
    EXPECT_FALSE(Find(form, "cmdAdvanced")->isVisible());
    EXPECT_FALSE(Find(form, "txtCals")->isVisible());
}

TEST_F(ProfileTest, BothPagesCarryTheirCaptions) {
    frmProfile* form = Edit(AddUser("Anna"));
    QStringList texts;
    for (const QLabel* label : form->findChildren<QLabel*>())
        texts << label->text();
    for (const ucBox* box : form->findChildren<ucBox*>())
        texts << box->Caption();
    for (const char* caption : {"User Name", "Age", "Height", "Current Weight", "Desired Weight",
                                "Gender", "Activity Level", "Feet", "Inches", "Years"})
        EXPECT_EQ(texts.count(QLatin1String(caption)), 1) << caption;
    EXPECT_EQ(texts.count(QStringLiteral("Pounds")), 2);
    for (const NutrientInfo& info : Nutrients())
        EXPECT_EQ(texts.count(QLatin1String(info.editCaption)), 1) << info.editCaption;
    const std::pair<const char*, const char*> pressed[] = {
        {"opGender0", "Female"},     {"opGender1", "Male"},       {"opAct0", "Sedentary"},
        {"opAct1", "Low"},           {"opAct2", "Medium"},        {"opAct3", "High"},
        {"cmdAdvanced", "Advanced"}, {"cmdSave", "Save Profile"}, {"cmdCancel", "Cancel"}};
    for (const auto& [name, caption] : pressed)
        EXPECT_EQ(Find(form, QLatin1String(name))->property("Caption").toString(),
                  QLatin1String(caption));
}

TEST_F(ProfileTest, FieldsHaveTheirTips) {
    frmProfile* form = Fresh();
    const struct {
        const char* field;
        const char* tip;
    } tips[] = {{"txtUserName", "Enter the user name you'd like to use"},
                {"txtAge", "Enter your age in years"},
                {"txtFeet", "Enter your height"},
                {"txtInches", "Enter your height"},
                {"txtWeight", "Enter your current weight in pounds"},
                {"txtDWeight", "Enter your desired weight in pounds"}};
    for (const auto& each : tips)
        EXPECT_EQ(Find(form, QLatin1String(each.field))->toolTip(), QLatin1String(each.tip));
}

TEST_F(ProfileTest, EveryControlHasAnAccessibleName) {
    frmProfile* form = Edit(AddUser("Anna"));
    const auto fields = form->findChildren<QLineEdit*>();
    EXPECT_EQ(fields.size(), 37);
    for (QLineEdit* field : fields)
        EXPECT_FALSE(field->accessibleName().isEmpty()) << field->objectName().toStdString();
    EXPECT_EQ(Find(form, "txtPantoAcid")->accessibleName(), QStringLiteral("Panto. Adic (mg)"));
}

TEST_F(ProfileTest, RadiosOfOneGroupTurnEachOtherOff) {
    frmProfile* form = Fresh();
    Click(Find(form, "opGender1"));
    EXPECT_TRUE(On(form, "opGender1"));
    EXPECT_FALSE(On(form, "opGender0"));
    EXPECT_TRUE(On(form, "opAct1"));
    Click(Find(form, "opAct3"));
    EXPECT_TRUE(On(form, "opAct3"));
    EXPECT_FALSE(On(form, "opAct1"));
    Click(Find(form, "opAct3"));
    EXPECT_TRUE(On(form, "opAct3"));
    EXPECT_TRUE(On(form, "opGender1"));
}

TEST_F(ProfileTest, RadiosWorkByKeyboard) {
    frmProfile* form = Fresh();
    QTest::keyClick(Find(form, "opAct2"), Qt::Key_Space);
    EXPECT_TRUE(On(form, "opAct2"));
    EXPECT_FALSE(On(form, "opAct1"));
    QTest::keyClick(Find(form, "opAct2"), Qt::Key_Down);
    EXPECT_TRUE(On(form, "opAct3"));
    EXPECT_FALSE(On(form, "opAct2"));
}

TEST_F(ProfileTest, TabGoesThroughTheVisiblePageInReadingOrder) {
    frmProfile* form = Edit(AddUser("Anna"));
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    form->DoWinInit();
    QStringList names;
    for (int i = 0; i < 15; ++i) {
        names << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(names, QStringList({"txtUserName", "txtAge", "txtFeet", "txtInches", "txtWeight",
                                  "txtDWeight", "opGender0", "opGender1", "opAct0", "opAct1",
                                  "opAct2", "opAct3", "cmdAdvanced", "cmdSave", "cmdCancel"}));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("txtUserName"));
}

TEST_F(ProfileTest, SaveWorksByKeyboard) {
    frmProfile* form = Fresh();
    QTest::keyClick(Find(form, "cmdSave"), Qt::Key_Space);
    EXPECT_EQ(Profiles(), 1);
}

TEST_F(ProfileTest, OnlyTheButtonUnderThePointerIsHighlighted) {
    frmProfile* form = Edit(AddUser("Anna"));
    auto* save = Find<ucButton>(form, "cmdSave");
    auto* cancel = Find<ucButton>(form, "cmdCancel");
    Hover(save);
    EXPECT_EQ(save->State(), 2);
    Hover(cancel);
    EXPECT_EQ(save->State(), 1);
    EXPECT_EQ(cancel->State(), 2);
    Hover(form, QPoint(300, 8));
    EXPECT_EQ(cancel->State(), 1);
}

TEST_F(ProfileTest, EverythingFitsTheNest) {
    frmProfile* form = Edit(AddUser("Anna"));
    EXPECT_EQ(form->size(), QSize(766, 562));
    Click(Find(form, "cmdAdvanced"));
    QApplication::processEvents();
    for (const NutrientInfo& info : Nutrients()) {
        const QWidget* field = Find(form, QLatin1String(info.textField));
        const QRect place(field->mapTo(form, QPoint()), field->size());
        EXPECT_TRUE(QRect(14, 42, 738, 476).contains(place)) << info.property;
    }
}

TEST_F(ProfileTest, AnEdgeIsDrawnOnlyAroundAWindowOfItsOwn) {
    frmProfile* form = Edit(AddUser("Anna"));
    EXPECT_EQ(Grab(form).pixelColor(0, 300), TheStyle().frame);
    QWidget nest;
    nest.resize(form->size());
    form->setParent(&nest);
    form->show();
    EXPECT_EQ(Grab(form).pixelColor(0, 300), TheStyle().canvas);
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(form->isHidden());
    form->setParent(nullptr);
}

// Dragging

TEST_F(ProfileTest, DraggingTheTopMovesTheForm) {
    frmProfile* form = Edit(AddUser("Anna"));
    form->move(50, 60);
    Drag(form, QPoint(300, 5), QPoint(40, -20));
    EXPECT_EQ(form->pos(), QPoint(90, 40));
    Drag(form, QPoint(300, Twips::ToPixels(255) - 1), QPoint(-40, 20));
    EXPECT_EQ(form->pos(), QPoint(50, 60));
}

TEST_F(ProfileTest, AScreenInTheNestCannotBeDragged) {
    frmProfile* form = Edit(AddUser("Anna"));
    QWidget nest;
    nest.resize(900, 700);
    form->setParent(&nest);
    form->move(84, 66);
    form->show();
    Drag(form, QPoint(300, 5), QPoint(40, 20));
    EXPECT_EQ(form->pos(), QPoint(84, 66));
    form->setParent(nullptr);
}

TEST_F(ProfileTest, DraggingBelowTheTopMovesNothing) {
    frmProfile* form = Edit(AddUser("Anna"));
    form->move(50, 60);
    Drag(form, QPoint(300, Twips::ToPixels(255)), QPoint(40, 40));
    EXPECT_EQ(form->pos(), QPoint(50, 60));
}

TEST_F(ProfileTest, AfterADragTheFormStays) {
    frmProfile* form = Edit(AddUser("Anna"));
    form->move(50, 60);
    Drag(form, QPoint(300, 5), QPoint(10, 10));
    Hover(form, QPoint(200, 5));
    EXPECT_EQ(form->pos(), QPoint(60, 70));
}

// The first user

TEST_F(ProfileTest, TheFirstUserIsAskedInAModalWindowInTheMiddle) {
    ExpectAlert(QuitQuestion, true);
    WithModal(
        [](QWidget* form) {
            EXPECT_EQ(form->objectName(), QStringLiteral("frmProfile"));
            EXPECT_TRUE(form->isWindow());
            EXPECT_EQ(form->windowModality(), Qt::ApplicationModal);
            EXPECT_TRUE(form->windowFlags().testFlag(Qt::FramelessWindowHint));
            const QPoint middle = form->screen()->availableGeometry().center();
            EXPECT_LE((form->geometry().center() - middle).manhattanLength(), 2);
            EXPECT_TRUE(Find(form, "ucTitleFlat1")->isVisible());
            EXPECT_FALSE(Find(form, "cmdAdvanced")->isVisible());
            Click(Find(form, "cmdCancel"));
        },
        [] { frmProfile::CreateFirstUser(); });
}

TEST_F(ProfileTest, TheFirstUserBecomesTheCurrentOneAndSeesTheProgram) {
    QStringList calls;
    TheSeams().ShowHome = [&] { calls << "home"; };
    TheSeams().ShowScreen = [&](const QString& name) -> QObject* {
        calls << name;
        return nullptr;
    };
    TheSeams().ShowAlert = [&](const QString& message, QObject*, bool cancel) {
        EXPECT_FALSE(cancel);
        calls << message;
        return true;
    };
    WithModal(
        [](QWidget* form) {
            Enter(form);
            Click(Find(form, "cmdSave"));
            EXPECT_FALSE(form->isVisible());
        },
        [] { frmProfile::CreateFirstUser(); });
    EXPECT_EQ(calls, QStringList({"home", "frmMain", Created}));
    EXPECT_EQ(Profiles(), 1);
    EXPECT_EQ(User::Current().UID, Stored("UID").toInt());
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Berta"));
    EXPECT_EQ(User::Current().RDIs.Calories(), Stored("Calories").toDouble());
    EXPECT_TRUE(endings.isEmpty());
}

TEST_F(ProfileTest, TheRulesHoldForTheFirstUserToo) {
    ExpectAlert("Please enter a User Name.");
    ExpectAlert(QuitQuestion, true);
    WithModal(
        [](QWidget* form) {
            Click(Find(form, "cmdSave"));
            EXPECT_TRUE(form->isVisible());
            Click(Find(form, "cmdCancel"));
        },
        [] { frmProfile::CreateFirstUser(); });
    EXPECT_EQ(Profiles(), 0);
    EXPECT_EQ(User::Current().UID, -1);
}

TEST_F(ProfileTest, CancellingTheFirstProfileEndsTheProcessAfterAQuestion) {
    QWidget home;
    home.setObjectName("frmHOME");
    WithModal(
        [&](QWidget* form) {
            QList<bool> answers = {false, true};
            TheSeams().ShowAlert = [&](const QString& message, QObject* owner, bool cancel) {
                EXPECT_EQ(message, QuitQuestion);
                EXPECT_EQ(owner, &home);
                EXPECT_TRUE(cancel);
                return answers.takeFirst();
            };
            Click(Find(form, "cmdCancel"));
            EXPECT_TRUE(form->isVisible());
            EXPECT_TRUE(endings.isEmpty());
            Click(Find(form, "cmdCancel"));
            EXPECT_EQ(endings, QList<int>({0}));
            form->close();
        },
        [] { frmProfile::CreateFirstUser(); });
    EXPECT_EQ(Profiles(), 0);
}

TEST_F(ProfileTest, ClosingTheFirstProfileInAnyOtherWayAsksToo) {
    ExpectAlert(QuitQuestion, false);
    ExpectAlert(QuitQuestion, false);
    ExpectAlert(QuitQuestion, true);
    WithModal(
        [this](QWidget* form) {
            form->close();
            EXPECT_TRUE(form->isVisible());
            QTest::keyClick(form, Qt::Key_Escape);
            EXPECT_TRUE(form->isVisible());
            EXPECT_TRUE(endings.isEmpty());
            Click(Find(form, "cmdCancel"));
            EXPECT_EQ(endings, QList<int>({0}));
        },
        [] { frmProfile::CreateFirstUser(); });
}

TEST_F(ProfileTest, EditWithoutARegisteredScreenDoesNothing) {
    const qint32 uid = AddUser();
    TheSeams().LoadScreen = [](const QString&) -> QObject* { return nullptr; };
    frmProfile::EditUser(uid);
    EXPECT_TRUE(shownScreens.isEmpty());
}
