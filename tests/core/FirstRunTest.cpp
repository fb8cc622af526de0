#include "core/CoreTest.h"

#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmAlert.h"
#include "core/frmHOME.h"
#include "model/User.h"
#include "model/ui/frmProfile.h"
#include "recipes/RecipeBook.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "toolkit/ListBox.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

/// The real screens and the real navigation, from the first start on.
class FirstRunTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        RegisterScreens(TheNavigation());
        Clock::SetToday(QDate(2026, 11, 21));
        Deliver();
    }
    frmHOME* Frame() { return TheNavigation().Frame(); }
    static void Type(QWidget* form, const char* field, const char* text) {
        auto* edit = Find<QLineEdit>(form, QLatin1String(field));
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, QLatin1String(text));
    }
    static void FillIn(QWidget* form) {
        Type(form, "txtUserName", "Anna");
        Type(form, "txtAge", "30");
        Type(form, "txtFeet", "5");
        Type(form, "txtInches", "5");
        Type(form, "txtWeight", "140");
        Type(form, "txtDWeight", "130");
        Click(Find(form, QStringLiteral("opGender0")));
        Click(Find(form, QStringLiteral("opAct1")));
    }
    void CreateAnna(const std::function<void()>& whenSaved = [] {}) {
        ASSERT_EQ(RunMain(), 0);
        ExpectAlert(QStringLiteral(
            "Your profile has been created. The RDI values created should be used only as "
            "guidelines. You can edit these values by using the 'Edit My Profile' feature (under "
            "the 'Edit' menu)."));
        WithModal(
            [&](QWidget* profile) {
                FillIn(profile);
                Click(Find(profile, QStringLiteral("cmdSave")));
                whenSaved();
            },
            [this] {
                Click(Find(Window(QStringLiteral("frmWelcome")), QStringLiteral("cmdBegin")));
            });
        Activate(Frame());
    }
    void StartAgain() {
        Flow::QuitApp();
        TheNavigation().Reset();
        RunDeferredDeletes();
        ResetApp();
        RegisterScreens(TheNavigation());
        modals.clear();
        ASSERT_EQ(RunMain(), 0);
    }
    void ShowDay() {
        Click(Find(Frame(), QStringLiteral("cmdDay")));
        RunDeferredDeletes();
    }
    void ShowRecipes() {
        Click(Find(Frame(), QStringLiteral("cmdRecipes")));
        RunDeferredDeletes();
    }
    QStringList ListedRecipes() {
        return Find<ListBox>(Frame(), QStringLiteral("lsRecipes"))->List();
    }
    /// Opens the import from the menu; a recipe arrives while it is open.
    void ImportByTheMenu() {
        WithModal(
            [](QWidget* dialog) {
                RecipeBook::AddRecipe();
                dialog->close();
            },
            [] { ChooseFromMenu(2); });
    }
    void PressEditProfile() { ChooseFromMenu(7); }
    static void EndOfRoutine() { QCoreApplication::sendPostedEvents(); }
};

TEST_F(FirstRunTest, FromWelcomeThroughTheProfileToTheHomeScreen) {
    CreateAnna();
    EXPECT_EQ(Users(QStringLiteral("SELECT UserName FROM profiles")).toString(),
              QStringLiteral("Anna"));
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Anna"));
    EXPECT_TRUE(Frame()->isVisible());
    ASSERT_NE(TheNavigation().Front(), nullptr);
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmMain"));
    EXPECT_EQ(App().CurrentDate, QDate(2026, 11, 21));
    EXPECT_EQ(Window(QStringLiteral("frmWelcome")), nullptr);
    EXPECT_EQ(Window(QStringLiteral("frmProfile")), nullptr);
}

TEST_F(FirstRunTest, TheLoopOfTheFirstProfileEndsWhenTheFormCloses) {
    bool waiting = true;
    bool handledInside = false;
    QTimer next;
    QObject::connect(&next, &QTimer::timeout, [&] { handledInside = handledInside || waiting; });
    CreateAnna([&] { next.start(0); });
    waiting = false;
    QCoreApplication::processEvents();
    EXPECT_FALSE(handledInside);
}

TEST_F(FirstRunTest, ImportingByTheMenuRefreshesTheListOfRecipesInFront) {
    CreateAnna();
    ShowRecipes();
    ASSERT_EQ(ListedRecipes(), QStringList());
    ImportByTheMenu();
    EXPECT_EQ(ListedRecipes().size(), 1);
}

TEST_F(FirstRunTest, ImportingByTheMenuLeavesARecipeThatIsBeingEdited) {
    CreateAnna();
    ShowRecipes();
    Click(Find(Frame(), QStringLiteral("cmdNew")));
    Type(Frame(), "txtName", "Soup");
    ImportByTheMenu();
    EXPECT_EQ(ListedRecipes(), QStringList());
    auto* name = Find<QLineEdit>(Frame(), QStringLiteral("txtName"));
    EXPECT_TRUE(name->isVisible());
    EXPECT_EQ(name->text(), QStringLiteral("Soup"));
}

TEST_F(FirstRunTest, ImportingByTheMenuOverAnotherScreenLeavesThatInFront) {
    CreateAnna();
    ShowDay();
    ImportByTheMenu();
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmDay"));
}

TEST_F(FirstRunTest, TheSecondStartFindsEverythingThere) {
    CreateAnna();
    const qint32 uid = User::Current().UID;
    const double calories = User::Current().RDIs.Calories();
    StartAgain();
    EXPECT_EQ(modals, QStringList{QStringLiteral("frmSplash")});
    EXPECT_EQ(User::Current().UID, uid);
    EXPECT_EQ(User::Current().RDIs.Calories(), calories);
    ASSERT_TRUE(Window(QStringLiteral("frmHOME")) && TheNavigation().Front());
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmMain"));
}

TEST_F(FirstRunTest, AWeightBeingTypedIsSavedByQuitting) {
    CreateAnna();
    ShowDay();
    Type(Frame(), "txtWeight", "138.5");
    QTest::keyClick(Find(Frame(), QStringLiteral("txtWeight")), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(Flow::HasWindow());
    StartAgain();
    ShowDay();
    EXPECT_EQ(Users(QStringLiteral("SELECT Weight FROM USER_WEIGHTS")).toDouble(), 138.5);
    EXPECT_EQ(Find<QLineEdit>(Frame(), QStringLiteral("txtWeight"))->text(),
              QStringLiteral("138.5"));
}

TEST_F(FirstRunTest, AWeightThatIsNoneIsSaidWhileQuittingAndNothingIsStored) {
    CreateAnna();
    ShowDay();
    Type(Frame(), "txtWeight", "-5");
    ExpectAlert(QStringLiteral("Please enter a valid weight greater than '0'. To remove the weight "
                               "entry for this day, delete the entry from the weight field."));
    Flow::QuitApp();
    EXPECT_FALSE(Flow::HasWindow());
    StartAgain();
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM USER_WEIGHTS")).toInt(), 0);
}

TEST_F(FirstRunTest, TheDayShowsTheTargetsThatTheProfileHasChanged) {
    CreateAnna();
    App().AppInfo.AUTOUPDATERDI = false;
    Users(QStringLiteral("UPDATE profiles SET Calories = 2000"));
    Users(QStringLiteral("INSERT INTO USER_FOODS (UID, FoodName, Serving, ID, Meal, UDate, QTY, "
                         "Calories) VALUES (1, 'Bread', '1 slice', 5, 'Lunch', '2026-11-21', 1, "
                         "500)"));
    User::Current().GetUserProfile(User::Current().UID);
    ::ShowScreen(QStringLiteral("frmDay"));
    RunDeferredDeletes();
    const int quarter = Find(Frame(), QStringLiteral("imgBar1"))->width();
    PressEditProfile();
    Click(Find(Frame(), QStringLiteral("cmdAdvanced")));
    Type(Frame(), "txtCals", "1000");
    Click(Find(TheNavigation().Front(), QStringLiteral("cmdSave")));
    EndOfRoutine();
    ASSERT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmDay"));
    EXPECT_NEAR(Find(Frame(), QStringLiteral("imgBar1"))->width(), 2 * quarter, 2);
}

TEST_F(FirstRunTest, QuittingEndsTheEventLoop) {
    CreateAnna();
    QTimer::singleShot(0, [this] { Click(Find(Frame(), QStringLiteral("cmdQuit"))); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(TheNavigation().HasFrame()) << "nothing of the screens is left";
}

TEST_F(FirstRunTest, QuittingWhileAMessageStandsAnswersItNoAndEndsTheEventLoop) {
    CreateAnna();
    bool answer = true;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [] { Flow::QuitApp(); });
        answer = frmAlert::Ask(QStringLiteral("Are you sure?"), Frame(), true);
    });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(answer);
}

class QuittingOverADialog : public FirstRunTest, public ::testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(ImportPreferencesAbout, QuittingOverADialog, ::testing::Values(2, 6, 12));

TEST_P(QuittingOverADialog, ClosesItAndEndsTheEventLoop) {
    CreateAnna();
    QTimer::singleShot(0, [] {
        QTimer::singleShot(0, [] { Flow::QuitApp(); });
        ChooseFromMenu(GetParam());
    });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(TheNavigation().HasFrame());
    EXPECT_FALSE(Flow::HasWindow());
}

TEST_F(FirstRunTest, QuittingRightAfterTheProfileHasClosedBringsNothingBack) {
    CreateAnna();
    PressEditProfile();
    TheNavigation().Front()->close();
    Flow::QuitApp();
    RunDeferredDeletes();
    EndOfRoutine();
    EXPECT_FALSE(TheNavigation().HasFrame());
    EXPECT_FALSE(Flow::HasWindow());
}

TEST_F(FirstRunTest, ThePreferencesStandAtTheNextStart) {
    CreateAnna();
    WithModal(
        [](QWidget* dialog) {
            Click(Find(dialog, QStringLiteral("ckFast")), QPoint(8, 8));
            Click(Find(dialog, QStringLiteral("cmdSave")));
        },
        [this] { ChooseFromMenu(6); });
    StartAgain();
    EXPECT_TRUE(App().AppInfo.FAST);
}

TEST_F(FirstRunTest, RefusingTheFirstProfileEndsTheProcessAndWritesNoRow) {
    ASSERT_EQ(RunMain(), 0);
    ExpectAlert(QStringLiteral("You must create a user profile to use Halvane. Are you sure you "
                               "wish to quit without creating your profile?"));
    WithModal(
        [](QWidget* profile) {
            FillIn(profile);
            Click(Find(profile, QStringLiteral("cmdCancel")));
        },
        [this] { Click(Find(Window(QStringLiteral("frmWelcome")), QStringLiteral("cmdBegin"))); });
    EXPECT_EQ(endings, QList<int>{0});
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM profiles")).toInt(), 0);
}
