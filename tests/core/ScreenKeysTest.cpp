#include "core/CoreTest.h"

#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "intake/ui/frmDay.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "store/Connection.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

/// The frame with the real screens, worked with keys alone.
class ScreenKeysTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        OpenEmptyDatabases();
        Clock::SetToday(today_);
        FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName, Calories, Serv_Desc_A, "
                            "Serv_GM_WT_A) VALUES (1, 'Oats', 250, '1 cup', 100)");
        RegisterScreens(TheNavigation());
    }
    void OpenFrame() {
        ::ShowHome();
        Activate(TheNavigation().Frame());
    }
    void OpenWithPerson() {
        AddUser();
        OpenFrame();
    }
    static void Control(Qt::Key key) {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : TheNavigation().Frame(), key, Qt::ControlModifier);
        RunDeferredDeletes();
    }
    static QString Front() {
        return TheNavigation().Front() ? TheNavigation().Front()->objectName() : QString();
    }
    QLineEdit* Weight() { return Find<QLineEdit>(TheNavigation().Front(), "txtWeight"); }

    const QDate today_{2026, 11, 21};
};

TEST_F(ScreenKeysTest, EachNumberBringsItsScreen) {
    OpenWithPerson();
    const char* const names[] = {"frmMain",     "frmDay",           "frmReport",
                                 "frmFoodList", "frmRecipeManager", "frmProfile"};
    for (int i = 5; i >= 0; --i) {
        if (i == 2)
            ExpectAlert("There is no weight entry from 11/15/2026 to 11/21/2026, so the percent "
                        "bars and the average values of this period cannot be worked out. Enter a "
                        "weight for one of its days on the screen \"Daily Details\", in the field "
                        "\"Enter today's weight:\".");
        Control(Qt::Key(Qt::Key_1 + i));
        EXPECT_EQ(Front(), names[i]);
        QApplication::processEvents();
    }
}

TEST_F(ScreenKeysTest, TheProfileIsThatOfThePerson) {
    OpenWithPerson();
    Control(Qt::Key_6);
    EXPECT_EQ(Find<QLineEdit>(TheNavigation().Front(), "txtUserName")->text(), "Anna");
}

TEST_F(ScreenKeysTest, TheKeyOfTheScreenInFrontKeepsWhatIsBeingTyped) {
    OpenWithPerson();
    Control(Qt::Key_6);
    auto* name = Find<QLineEdit>(TheNavigation().Front(), "txtUserName");
    name->setText("Half typed");
    Control(Qt::Key_6);
    EXPECT_EQ(Find<QLineEdit>(TheNavigation().Front(), "txtUserName")->text(), "Half typed");
}

TEST_F(ScreenKeysTest, AFoodOfTodayIsLoggedWithAShortcutItsWordsAndEnterTwice) {
    OpenWithPerson();
    App().CurrentDate = today_.addDays(-9);
    Control(Qt::Key_4);
    WithModal(
        [this](QWidget* dialog) {
            Activate(dialog);
            EXPECT_TRUE(QTest::qWaitFor([dialog] {
                const QWidget* focus = QApplication::focusWidget();
                return focus && dialog->isAncestorOf(focus);
            }));
            QTest::keyClicks(QApplication::focusWidget(), "oats");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Quantity of Oats, 1 cup");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            EXPECT_EQ(Users("SELECT count(*) FROM USER_FOODS"), 1);
        },
        [] { Control(Qt::Key_F); });
    EXPECT_EQ(Front(), "frmDay");
    EXPECT_EQ(App().CurrentDate, today_);
    EXPECT_EQ(Users("SELECT UDate || ' ' || FoodName || ' ' || QTY || ' ' || Calories FROM "
                    "USER_FOODS")
                  .toString(),
              "2026-11-21 Oats 1.0 250.0");
}

TEST_F(ScreenKeysTest, AWeightBeingTypedBelongsToItsDayWhenTheSearchOfTodayOpens) {
    OpenWithPerson();
    App().CurrentDate = today_.addDays(-9);
    Control(Qt::Key_2);
    Weight()->setFocus();
    QTest::keyClicks(Weight(), "172");
    WithModal([](QWidget*) {}, [] { Control(Qt::Key_F); });
    EXPECT_EQ(Users("SELECT UDate || Weight FROM USER_WEIGHTS"), "2026-11-12172.0");
}

TEST_F(ScreenKeysTest, TheDateIsChosenFromAnyScreen) {
    OpenWithPerson();
    Control(Qt::Key_4);
    Control(Qt::Key_D);
    EXPECT_EQ(Front(), "frmDay");
    ASSERT_TRUE(Find(TheNavigation().Front(), "picCal")->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(App().CurrentDate, today_.addDays(-1));
    Weight()->setFocus();
    Control(Qt::Key_D);
    EXPECT_TRUE(Find(TheNavigation().Front(), "picCal")->isVisible());
}

TEST_F(ScreenKeysTest, WithoutAPersonTheyDoNothing) {
    OpenFrame();
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_6, Qt::Key_F, Qt::Key_D})
        Control(key);
    EXPECT_EQ(Front(), "");
}
