#include "DayScreenTest.h"

#include "intake/ui/ListNotice.h"
#include "intake/ui/MealHeading.h"
#include "intake/ui/ucMyFood.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "store/Connection.h"
#include "toolkit/ucAte.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTest>

/// The day screen, worked with keys alone.
class DayMenuTest : public DayScreenTest {
protected:
    void SetUp() override {
        DayScreenTest::SetUp();
        Clock::SetToday(day.addDays(3));
    }
    void Open() {
        DayScreenTest::Open();
        screen->setFocus();
    }

    static void Key(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClick(popup ? popup : QApplication::focusWidget(), Qt::Key(key), held);
    }
    static void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    /// Goes on with Tab until the focus is on that line or control.
    void TabTo(const QString& name) {
        for (int i = 0; i < 60; ++i) {
            const QWidget* focus = QApplication::focusWidget();
            const auto* line = qobject_cast<ucAte*>(focus->parentWidget());
            if (focus->objectName() == name || (line && line->FoodName() == name))
                return;
            Key(Qt::Key_Tab);
        }
        FAIL() << "no stop " << name.toStdString();
    }
    QMenu* OpenMenu(const QString& on) {
        TabTo(on);
        Key(Qt::Key_F10, Qt::ShiftModifier);
        return Menu();
    }
    /// The menu of meals opens a moment after its key.
    static void OpenMeals() {
        Key(Qt::Key_M);
        ASSERT_TRUE(QTest::qWaitFor(
            [] { return Menu() && Menu()->objectName() == QStringLiteral("moveToMeal"); }));
    }
    static QMenu* Menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    /// The names of the items that can be chosen.
    static QStringList Offered(const QMenu* menu) {
        QStringList names;
        for (const QAction* item : menu->actions())
            if (item->isEnabled() && !item->isSeparator())
                names << (item->menu() ? item->menu()->objectName() : item->objectName());
        return names;
    }
    void Undo() { Key(Qt::Key_Z, Qt::ControlModifier); }
    QLineEdit* Field() { return qobject_cast<QLineEdit*>(QApplication::focusWidget()); }
    QString Status() {
        auto* status = Find<ListNotice>(screen.get(), "lblStatus");
        return status->isVisible() ? status->text() : QString();
    }
    QString Total() {
        return Find(screen.get(), "lblVal1")->property("Caption").toString().remove(u'.');
    }
};

TEST_F(DayMenuTest, ALineOffersWhatCanBeDoneWithIt) {
    Log("Oats", "Lunch");
    Open();
    const QMenu* menu = OpenMenu("Oats");
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(Offered(menu), (QStringList{"changeQuantity", "copyToToday", "copyToDay",
                                          "moveToMeal", "remove", "print"}));
    EXPECT_EQ(menu->accessibleName(), "Oats, 1 cup, (x 1)");
    EXPECT_EQ(Offered(menu->findChild<QMenu*>("moveToMeal")),
              (QStringList{"Breakfast", "Dinner", "Snacks"}));
    Key(Qt::Key_Escape);
    EXPECT_EQ(Menu(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), Lines(screen.get()).first()->imgTrash());
}

TEST_F(DayMenuTest, AnEmptyMealOffersTheFoodsOfYesterday) {
    Log("Oats", "Lunch");
    Open();
    EXPECT_EQ(Offered(OpenMenu("lblBreakfast")),
              (QStringList{"add", "copyFromYesterday", "print"}));
    Key(Qt::Key_Escape);
    EXPECT_EQ(Offered(OpenMenu("lblLunch")),
              (QStringList{"add", "copyToToday", "copyToDay", "moveToMeal", "print"}));
    Key(Qt::Key_Escape);
}

TEST_F(DayMenuTest, TheRestOfTheScreenOffersTheWholeDay) {
    Log("Oats", "Lunch");
    Open();
    EXPECT_EQ(Offered(OpenMenu("cmdAddFoods")),
              (QStringList{"add", "copyToToday", "copyToDay", "print"}));
    Key(Qt::Key_Escape);
    Key(Qt::Key_Menu);
    ASSERT_NE(Menu(), nullptr);
    Key(Qt::Key_Escape);
}

TEST_F(DayMenuTest, TodayCannotBeCopiedToToday) {
    Clock::SetToday(day);
    Log("Oats", "Lunch");
    Open();
    EXPECT_FALSE(Offered(OpenMenu("Oats")).contains("copyToToday"));
    Key(Qt::Key_Escape);
}

TEST_F(DayMenuTest, ARightClickOpensTheMenuOfWhatIsUnderIt) {
    Log("Oats", "Lunch");
    Open();
    ucAte* line = Lines(screen.get()).first();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5),
                            line->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(line, &asked);
    ASSERT_NE(Menu(), nullptr);
    EXPECT_EQ(Menu()->accessibleName(), line->Caption());
    Key(Qt::Key_Escape);
}

TEST_F(DayMenuTest, AFieldKeepsItsOwnMenu) {
    Open();
    const QMenu* menu = OpenMenu("txtWeight");
    ASSERT_NE(menu, nullptr);
    EXPECT_NE(menu->objectName(), "contextMenu");
    Key(Qt::Key_Escape);
}

TEST_F(DayMenuTest, AFoodIsCopiedToToday) {
    Log("Oats", "Lunch", day, 250, 2);
    Open();
    OpenMenu("Oats");
    Key(Qt::Key_T);
    EXPECT_EQ(LogCount("UDate = '2002-03-07' AND Meal = 'Lunch' AND Calories = 250 AND QTY = 2"),
              1);
    EXPECT_EQ(LogCount(), 2);
    EXPECT_EQ(Status(), "Copied to 03/07/2002: Oats.");
    Undo();
    EXPECT_EQ(LogCount(), 1);
    EXPECT_EQ(Status(), "Took back the copy on 03/07/2002: Oats.");
}

TEST_F(DayMenuTest, AMealIsCopiedToTheDayOfTheCalendar) {
    for (const char* name : {"Oats", "Milk"})
        Log(name, "Lunch");
    Log("Soup", "Dinner");
    Open();
    OpenMenu("lblLunch");
    Key(Qt::Key_D);
    EXPECT_EQ(Find<ucBox>(screen.get(), "picCal")->Caption(), "Copy to which day?");
    Key(Qt::Key_Right);
    Key(Qt::Key_Return);
    EXPECT_EQ(LogCount("UDate = '2002-03-05'"), 2);
    EXPECT_EQ(Status(), "Copied to 03/05/2002: 2 foods.");
    EXPECT_EQ(App().CurrentDate, day);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "lblLunch");
}

TEST_F(DayMenuTest, TheCalendarOfACopyCanBeLeft) {
    Log("Oats", "Lunch");
    Open();
    OpenMenu("Oats");
    Key(Qt::Key_D);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Find(screen.get(), "picCal")->isVisible());
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "imgTrash");
    EXPECT_EQ(LogCount(), 1);
    Find<ucButtonA>(screen.get(), "cmdCal")->setFocus();
    Key(Qt::Key_Return);
    EXPECT_EQ(Find<ucBox>(screen.get(), "picCal")->Caption(), "Select a date");
    Key(Qt::Key_Right);
    Key(Qt::Key_Return);
    EXPECT_EQ(App().CurrentDate, day.addDays(1));
    EXPECT_EQ(LogCount(), 1);
}

TEST_F(DayMenuTest, ACopyToTheSameDayIsRefused) {
    Log("Oats", "Lunch");
    Open();
    OpenMenu("Oats");
    Key(Qt::Key_D);
    ExpectAlert("Please give two different days.");
    Key(Qt::Key_Return);
    EXPECT_EQ(LogCount(), 1);
}

TEST_F(DayMenuTest, AnEmptyMealTakesTheFoodsOfTheDayBefore) {
    Log("Oats", "Breakfast", day.addDays(-1), 250);
    Log("Soup", "Lunch", day.addDays(-1));
    Open();
    OpenMenu("lblBreakfast");
    Key(Qt::Key_Y);
    EXPECT_EQ(Names(screen.get()), QStringList{"Oats"});
    EXPECT_EQ(Total(), "250 kcal");
    EXPECT_EQ(Status(), "Copied: Oats.");
    Undo();
    EXPECT_TRUE(Names(screen.get()).isEmpty());
}

TEST_F(DayMenuTest, ADayBeforeWithoutFoodsSaysSo) {
    Open();
    OpenMenu("lblBreakfast");
    Key(Qt::Key_Y);
    EXPECT_EQ(Status(), "Nothing to copy is logged on 03/03/2002.");
    EXPECT_EQ(LogCount(), 0);
}

TEST_F(DayMenuTest, AFoodMovesToAnotherMealAndKeepsTheFocus) {
    for (const char* name : {"Oats", "Milk", "Soup"})
        Log(name, "Breakfast");
    Open();
    OpenMenu("Oats");
    OpenMeals();
    Key(Qt::Key_D);
    EXPECT_EQ(LogCount("FoodName = 'Oats' AND Meal = 'Dinner'"), 1);
    EXPECT_EQ(Names(screen.get()), (QStringList{"Milk", "Soup", "Oats"}));
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Remove Oats");
    EXPECT_EQ(Status(), "Moved to Dinner: Oats.");
    Undo();
    EXPECT_EQ(Names(screen.get()), (QStringList{"Oats", "Milk", "Soup"}));
    EXPECT_EQ(Status(), "Moved back to Breakfast: Oats.");
}

TEST_F(DayMenuTest, EachChangeOfTheVisitIsTakenBack) {
    Log("Oats", "Breakfast", day, 250);
    Log("Soup", "Lunch", day, 100);
    Open();
    TabTo("Oats");
    Key(Qt::Key_Delete);
    ExpectAlert("Are you sure you wish to remove all foods from your daily intake?");
    TabTo("cmdClear");
    Key(Qt::Key_Return);
    EXPECT_EQ(LogCount(), 0);
    Undo();
    EXPECT_EQ(Status(), "Brought back: Soup.");
    EXPECT_EQ(Total(), "100 kcal");
    Undo();
    EXPECT_EQ(Status(), "Brought back: Oats.");
    EXPECT_EQ(Names(screen.get()), (QStringList{"Oats", "Soup"}));
    EXPECT_EQ(Total(), "350 kcal");
    Undo();
    EXPECT_EQ(LogCount(), 2);
}

TEST_F(DayMenuTest, TheMenuUndoesToo) {
    Log("Oats", "Breakfast");
    Open();
    OpenMenu("Oats");
    Key(Qt::Key_R);
    EXPECT_EQ(LogCount(), 0);
    EXPECT_TRUE(Offered(OpenMenu("lblLunch")).contains("undo"));
    Key(Qt::Key_U);
    EXPECT_EQ(Names(screen.get()), QStringList{"Oats"});
}

TEST_F(DayMenuTest, AStepBackOnAnotherDaySaysWhichDay) {
    Log("Oats", "Breakfast");
    Open();
    TabTo("Oats");
    Key(Qt::Key_Delete);
    Find<ucButtonA>(screen.get(), "cmdCal")->setFocus();
    Key(Qt::Key_Return);
    Key(Qt::Key_Right);
    Key(Qt::Key_Return);
    Undo();
    EXPECT_EQ(LogCount("UDate = '2002-03-04'"), 1);
    EXPECT_EQ(Status(), "Brought back on 03/04/2002: Oats.");
}

TEST_F(DayMenuTest, TheChangesOfAnEarlierVisitStay) {
    Log("Oats", "Breakfast");
    Open();
    TabTo("Oats");
    Key(Qt::Key_Delete);
    screen->hide();
    screen->show();
    screen->setFocus();
    Undo();
    EXPECT_EQ(LogCount(), 0);
}

TEST_F(DayMenuTest, TheUndoKeyOfTheWeightFieldIsItsOwn) {
    Log("Oats", "Breakfast");
    Open();
    TabTo("Oats");
    Key(Qt::Key_Delete);
    TabTo("txtWeight");
    Type("15");
    Undo();
    EXPECT_EQ(Field()->text(), "");
    EXPECT_EQ(LogCount(), 0);
}

TEST_F(DayMenuTest, TheStatusGoesWithTheNextChange) {
    Log("Oats", "Breakfast");
    Open();
    TabTo("Oats");
    Key(Qt::Key_Delete);
    Undo();
    EXPECT_NE(Status(), "");
    TabTo("Oats");
    Key(Qt::Key_Delete);
    EXPECT_EQ(Status(), "");
}

TEST_F(DayMenuTest, AQuantityIsChangedInPlace) {
    Log("Oats", "Breakfast", day, 250, 2);
    Open();
    TabTo("Oats");
    Key(Qt::Key_F2);
    ASSERT_NE(Field(), nullptr);
    EXPECT_EQ(Field()->text(), "2");
    EXPECT_EQ(Field()->accessibleName(), "Quantity of Oats, 1 cup");
    EXPECT_TRUE(Lines(screen.get()).first()->rect().contains(Field()->geometry()));
    Type("3");
    Key(Qt::Key_Return);
    EXPECT_EQ(LogCount("QTY = 3 AND Calories = 375"), 1);
    EXPECT_EQ(Lines(screen.get()).first()->property("QTY"), "(x 3)");
    EXPECT_EQ(Total(), "375 kcal");
    EXPECT_EQ(Status(), "Quantity 3: Oats.");
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Remove Oats");
    Undo();
    EXPECT_EQ(LogCount("QTY = 2 AND Calories = 250"), 1);
    EXPECT_EQ(Status(), "Back to quantity 2: Oats.");
}

TEST_F(DayMenuTest, ALongNameEndsBeforeTheFieldOfTheQuantity) {
    Log(QString("Milk ").repeated(30), "Breakfast");
    Open();
    const ucAte* line = Lines(screen.get()).first();
    const int whole = line->layoutRects().lblFood.width();
    line->imgTrash()->setFocus();
    Key(Qt::Key_F2);
    ASSERT_NE(Field(), nullptr);
    EXPECT_LT(line->layoutRects().lblFood.right(), Field()->x());
    Key(Qt::Key_Escape);
    EXPECT_EQ(line->layoutRects().lblFood.width(), whole);
}

TEST_F(DayMenuTest, ARefusedQuantityHasTheMessageOfTheSearchAndStaysInTheField) {
    Log("Oats", "Breakfast");
    Open();
    OpenMenu("Oats");
    Key(Qt::Key_Q);
    for (const char* refused : {"0", "99.01", "abc", "1e400"}) {
        Type(refused);
        ExpectAlert("Please enter a quantity (QTY) between .1 and 99");
        Key(Qt::Key_Return);
        ASSERT_NE(Field(), nullptr) << refused;
        EXPECT_EQ(Field()->selectedText(), refused);
    }
    Key(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Remove Oats");
    EXPECT_EQ(LogCount("QTY = 1"), 1);
}

TEST_F(DayMenuTest, LeavingTheFieldKeepsTheQuantity) {
    Log("Oats", "Breakfast", day, 250);
    Open();
    TabTo("Oats");
    Key(Qt::Key_F2);
    Type(".5");
    Key(Qt::Key_Tab);
    EXPECT_EQ(LogCount("QTY = .5 AND Calories = 125"), 1);
}

TEST_F(DayMenuTest, LeavingARefusedQuantityKeepsTheOldOne) {
    Log("Oats", "Breakfast");
    Open();
    TabTo("Oats");
    Key(Qt::Key_F2);
    Type("100");
    ExpectAlert("Please enter a quantity (QTY) between .1 and 99");
    Key(Qt::Key_Tab);
    EXPECT_EQ(LogCount("QTY = 1"), 1);
    EXPECT_FALSE(Find<QLineEdit>(Lines(screen.get()).first(), "txtQTY")->isVisible());
}

TEST_F(DayMenuTest, AnUntouchedQuantityIsNoChange) {
    Log("Oats", "Breakfast");
    Open();
    TabTo("Oats");
    for (const int key : {Qt::Key_Return, Qt::Key_Tab}) {
        Key(Qt::Key_F2);
        Key(key);
    }
    EXPECT_FALSE(Find<ucMyFood>(screen.get(), "ucMyFood")->CanUndo());
}

TEST_F(DayMenuTest, AnotherLineRemovedMeanwhileKeepsTheQuantityBeingTyped) {
    Log("Oats", "Breakfast");
    Log("Milk", "Breakfast");
    Open();
    TabTo("Milk");
    Key(Qt::Key_F2);
    Type("4");
    Click(Lines(screen.get()).first()->imgTrash());
    EXPECT_EQ(LogCount("FoodName = 'Milk' AND QTY = 4"), 1);
    EXPECT_EQ(Names(screen.get()), QStringList{"Milk"});
}

TEST_F(DayMenuTest, AnEntryWithoutAQuantityCannotBeScaled) {
    Log("Oats", "Breakfast", day, 250, 0);
    Open();
    TabTo("Oats");
    Key(Qt::Key_F2);
    Type("2");
    ExpectAlert("The quantity of this entry cannot be changed. Please remove it and add the food "
                "again.");
    Key(Qt::Key_Return);
    Key(Qt::Key_Escape);
    EXPECT_EQ(LogCount("QTY = 0 AND Calories = 250"), 1);
}

TEST_F(DayMenuTest, TheMenuLivesAsLongAsTheWindowThatItHasOpened) {
    Open();
    const QPointer<QMenu> menu = OpenMenu("lblLunch");
    ASSERT_FALSE(menu.isNull());
    WithModal(
        [&menu](QWidget*) {
            QCoreApplication::processEvents();
            EXPECT_FALSE(menu.isNull());
        },
        [] { Key(Qt::Key_A); });
    EXPECT_FALSE(menu.isNull());
}
