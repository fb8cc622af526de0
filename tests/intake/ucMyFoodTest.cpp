#include "IntakeTest.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "intake/ui/MealHeading.h"
#include "intake/ui/ucMyFood.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "toolkit/AtePane.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucScroll.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

class ucMyFoodTest : public IntakeTest {
protected:
    void SetUp() override {
        IntakeTest::SetUp();
        window.resize(390, 450);
        list.resize(390, 450);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void LogMany(int count, const QString& meal = QStringLiteral("Lunch")) {
        SQLite::Transaction all(UserDB().Raw());
        for (int i = 1; i <= count; ++i)
            Log("Food " + QString::number(i), meal);
        all.commit();
    }

    MealHeading* Heading(const char* name) { return Find<MealHeading>(&list, name); }
    QWidget* Pane() { return Find(&list, "picResultsPane"); }
    ucScroll* Bar() { return Find<ucScroll>(&list, "vsResultsPane"); }
    ucAte* Line(int index) { return Find<ucAte>(&list, "ucAte" + QString::number(index)); }

    QWidget window;
    ucMyFood list{&window};
};

static const char* const HeadingNames[] = {"lblBreakfast", "lblLunch", "lblDinner", "lblSnack"};

TEST_F(ucMyFoodTest, DrawsNothingUntilADateIsSet) {
    Log("Oats", "Breakfast");
    list.DisplayFoods();
    for (const char* name : HeadingNames)
        EXPECT_FALSE(Heading(name)->isVisible()) << name;
    EXPECT_TRUE(Lines(&list).isEmpty());
}

TEST_F(ucMyFoodTest, DayWithoutFoodShowsFourHeadingsEachWithABlankLineUnderIt) {
    list.setDate(day);
    const int step = Heading("lblLunch")->height() + TheStyle().tallRowHeight;
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(Heading(HeadingNames[i])->isVisible());
        EXPECT_EQ(Heading(HeadingNames[i])->y(), i == 0 ? Twips::ToPixels(-15) : i * step);
        EXPECT_EQ(Heading(HeadingNames[i])->x(), Twips::ToPixels(-15));
        EXPECT_EQ(Heading(HeadingNames[i])->width(), Pane()->width());
    }
    EXPECT_TRUE(Lines(&list).isEmpty());
}

TEST_F(ucMyFoodTest, HeadingsCarryTheMealsNames) {
    const QStringList captions{"Breakfast", "Lunch", "Dinner", "Snacks"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Heading(HeadingNames[i])->property("Caption"), captions[i]);
}

TEST_F(ucMyFoodTest, LinesStandUnderTheirMealInTheOrderOfEntry) {
    Log("Soup", "Lunch");
    Log("Oats", "Breakfast");
    Log("Nuts", "Snacks");
    Log("Bread", "Lunch");
    Log("Fish", "Dinner");
    list.setDate(day);
    EXPECT_EQ(Names(&list), (QStringList{"Oats", "Soup", "Bread", "Fish", "Nuts"}));
    EXPECT_EQ(Line(1)->y(), Heading("lblBreakfast")->height());
    EXPECT_EQ(Heading("lblLunch")->y(), Line(1)->y() + Line(1)->height());
    EXPECT_EQ(Line(2)->y(), Heading("lblLunch")->y() + Heading("lblLunch")->height());
    EXPECT_EQ(Line(3)->y(), Line(2)->y() + Line(2)->height());
    EXPECT_EQ(Line(1)->width(), Pane()->width());
}

TEST_F(ucMyFoodTest, LineShowsNameServingQuantityAndKey) {
    Log("Oats", "Breakfast", day, 150, 1.5, "1/2 cup");
    list.setDate(day);
    EXPECT_EQ(Line(1)->property("FoodName"), "Oats");
    EXPECT_EQ(Line(1)->property("Serv"), "1/2 cup");
    EXPECT_EQ(Line(1)->property("QTY"), "(x 1.5)");
    EXPECT_EQ(Line(1)->property("ID").toString(), Users("SELECT RecID FROM USER_FOODS").toString());
}

TEST_F(ucMyFoodTest, QuantityIsInItsShortestDecimalText) {
    const std::pair<double, const char*> cases[] = {
        {2, "(x 2)"}, {0.5, "(x 0.5)"}, {-3.25, "(x -3.25)"}, {0.1, "(x 0.1)"}, {99, "(x 99)"}};
    for (const auto& [quantity, text] : cases)
        Log("Food", "Dinner", day, 1, quantity);
    list.setDate(day);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Line(i + 1)->property("QTY"), cases[i].second);
}

TEST_F(ucMyFoodTest, MealsAreFoundWithoutRegardToCase) {
    Log("Oats", "BREAKFAST");
    Log("Milk", "breakfast");
    list.setDate(day);
    EXPECT_EQ(Names(&list), (QStringList{"Oats", "Milk"}));
}

TEST_F(ucMyFoodTest, RowWithAnEmptyMealIsNeverShown) {
    Log("Ghost", "");
    list.setDate(day);
    EXPECT_TRUE(Lines(&list).isEmpty());
}

TEST_F(ucMyFoodTest, OtherDaysAndOtherUsersAreLeftOut) {
    Log("Yesterday", "Lunch", day.addDays(-1));
    Log("Today", "Lunch");
    AddUser("Ben");
    Log("Ben's", "Lunch");
    list.setDate(day);
    EXPECT_EQ(Names(&list), QStringList{"Ben's"});
}

TEST_F(ucMyFoodTest, NullServingAndNameAreEmptyTexts) {
    Log("Oats", "Breakfast");
    UserDB().Raw().exec("UPDATE USER_FOODS SET Serving = NULL, FoodName = NULL");
    list.setDate(day);
    EXPECT_EQ(Line(1)->Serv(), "");
    EXPECT_EQ(Line(1)->FoodName(), "");
}

TEST_F(ucMyFoodTest, TemplateIsHiddenAndLendsItsHeight) {
    list.setDate(day);
    EXPECT_FALSE(Line(0)->isVisible());
    EXPECT_EQ(Line(0)->height(), TheStyle().tallRowHeight);
}

TEST_F(ucMyFoodTest, LinesThatAreNotNeededLeaveTheArray) {
    LogMany(3);
    list.setDate(day);
    EXPECT_NE(list.findChild<ucAte*>("ucAte3"), nullptr);
    list.setDate(day.addDays(1));
    EXPECT_EQ(list.findChild<ucAte*>("ucAte1"), nullptr);
    list.setDate(day);
    EXPECT_EQ(Names(&list).size(), 3);
    EXPECT_NE(list.findChild<ucAte*>("ucAte3"), nullptr);
    list.ClearList();
    EXPECT_TRUE(Lines(&list).isEmpty());
    EXPECT_EQ(list.findChild<ucAte*>("ucAte1"), nullptr);
}

TEST_F(ucMyFoodTest, LinesAreUsedAgainFromOneDayToTheNext) {
    LogMany(3);
    Log("Other", "Lunch", day.addDays(1));
    list.setDate(day);
    const ucAte* first = Line(1);
    list.setDate(day.addDays(1));
    EXPECT_EQ(Line(1), first);
    EXPECT_EQ(first->FoodName(), "Other");
}

TEST_F(ucMyFoodTest, LimitedListDraws49Lines) {
    App().AppInfo.LIMITRESULTS = true;
    LogMany(49);
    list.setDate(day);
    EXPECT_EQ(Names(&list).last(), "Food 49");
    Log("Food 50", "Lunch");
    list.setDate(day);
    EXPECT_EQ(Names(&list).size(), 49);
    EXPECT_EQ(Names(&list).last(), "Food 49");
}

TEST_F(ucMyFoodTest, UnlimitedListDraws300Lines) {
    LogMany(301);
    list.setDate(day);
    EXPECT_EQ(Names(&list).size(), 300);
    EXPECT_EQ(Names(&list).last(), "Food 300");
}

TEST_F(ucMyFoodTest, HeadingsKeepTheirPlaceWhenLinesAreDropped) {
    App().AppInfo.LIMITRESULTS = true;
    LogMany(60);
    Log("Nuts", "Snacks");
    list.setDate(day);
    const int below = Line(49)->y() + Line(49)->height();
    EXPECT_EQ(Heading("lblDinner")->y(), below);
    EXPECT_TRUE(Heading("lblSnack")->isVisible());
    EXPECT_EQ(Pane()->height(), Heading("lblSnack")->y() + Heading("lblSnack")->height());
}

TEST_F(ucMyFoodTest, ShortListHidesTheBarAndStandsAtTheTop) {
    LogMany(40);
    list.setDate(day);
    EXPECT_TRUE(Bar()->isVisible());
    Bar()->SetValue(60);
    EXPECT_EQ(Pane()->y(), Twips::ToPixels(-600));
    list.setDate(day.addDays(1));
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(Pane()->y(), 0);
    EXPECT_EQ(Pane()->height(), 450);
}

TEST_F(ucMyFoodTest, LongListSetsTheBarUp) {
    LogMany(40);
    list.setDate(day);
    EXPECT_EQ(Bar()->Min(), 0);
    EXPECT_EQ(Bar()->Max(), Round(Twips::FromPixels(Pane()->height() - 450) / 10.0));
    EXPECT_EQ(Bar()->LargeChange(), 100);
    EXPECT_EQ(Bar()->SmallChange(), 20);
    EXPECT_LE(Line(1)->geometry().right(), Bar()->x());
}

TEST_F(ucMyFoodTest, ListAsHighAsTheFrameNeedsNoBar) {
    list.setDate(day);
    list.resize(390, 4 * (Heading("lblLunch")->height() + TheStyle().tallRowHeight));
    EXPECT_FALSE(Bar()->isVisible());
    list.resize(390, list.height() - 1);
    EXPECT_TRUE(Bar()->isVisible());
    list.resize(390, list.height() + 1);
    EXPECT_FALSE(Bar()->isVisible());
}

TEST_F(ucMyFoodTest, RedrawKeepsTheScrollPosition) {
    LogMany(40);
    list.setDate(day);
    Bar()->SetValue(60);
    list.DisplayFoods();
    EXPECT_EQ(Bar()->Value(), 60);
    EXPECT_EQ(Pane()->y(), Twips::ToPixels(-600));
    list.DisplayFoods(true);
    EXPECT_EQ(Bar()->Value(), 0);
    EXPECT_EQ(Pane()->y(), 0);
}

TEST_F(ucMyFoodTest, RemovalAtTheEndOfALongListLeavesNoEmptyRoomBelow) {
    LogMany(30);
    list.setDate(day);
    Bar()->SetValue(Bar()->Max());
    Click(Line(30)->imgTrash());
    EXPECT_EQ(Bar()->Value(), Bar()->Max());
    EXPECT_GE(Pane()->y() + Pane()->height(), 450 - 1);
}

TEST_F(ucMyFoodTest, TrashCanDeletesItsRowAtOnceAndRaisesFoodRemoved) {
    Log("Oats", "Breakfast");
    Log("Milk", "Breakfast");
    Log("Milk", "Breakfast");
    list.setDate(day);
    QSignalSpy removed(&list, &ucMyFood::FoodRemoved);
    const QString key = Line(2)->ID();
    Click(Line(2)->imgTrash());
    EXPECT_EQ(removed.size(), 1);
    EXPECT_EQ(LogCount("RecID = " + key), 0);
    EXPECT_EQ(Names(&list), (QStringList{"Oats", "Milk"}));
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(ucMyFoodTest, DeletingTheOnlyLineOfAMealLeavesTheHeadingWithABlankLine) {
    Log("Oats", "Breakfast");
    list.setDate(day);
    const int lunch = Heading("lblLunch")->y();
    Click(Line(1)->imgTrash());
    EXPECT_TRUE(Lines(&list).isEmpty());
    EXPECT_EQ(Heading("lblLunch")->y(), lunch);
}

TEST_F(ucMyFoodTest, FailedDeleteLeavesTheLineUntilTheNextRedraw) {
    Log("Oats", "Breakfast");
    list.setDate(day);
    UserDB().Raw().exec("DELETE FROM USER_FOODS");
    QSignalSpy removed(&list, &ucMyFood::FoodRemoved);
    Click(Line(1)->imgTrash());
    EXPECT_EQ(removed.size(), 0);
    EXPECT_EQ(Names(&list), QStringList{"Oats"});
    EXPECT_FALSE(MousePointer::IsBusy());
    list.DisplayFoods();
    EXPECT_TRUE(Lines(&list).isEmpty());
}

TEST_F(ucMyFoodTest, DeleteThatTheStoreRefusesChangesNothing) {
    Log("Oats", "Breakfast");
    list.setDate(day);
    UserDB().Raw().exec("CREATE TRIGGER keep BEFORE DELETE ON USER_FOODS "
                        "BEGIN SELECT RAISE(ABORT, 'kept'); END");
    Click(Line(1)->imgTrash());
    EXPECT_EQ(LogCount(), 1);
    EXPECT_EQ(Names(&list), QStringList{"Oats"});
}

TEST_F(ucMyFoodTest, AddedFoodIsARowOfFinishedAmounts) {
    list.setDate(day);
    list.AddFood(Scaled("Oats", 150.123456789012345, 2.5, "1/2 cup"), "Breakfast");
    const auto rows = Rows(UserDB(), "SELECT Calories, Protein, UID, FoodName, Serving, ID, Meal, "
                                     "UDate, QTY FROM USER_FOODS");
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0], (QVariantList{150.123456789012345, 1.0, qlonglong(User::Current().UID),
                                     "Oats", "1/2 cup", 4711LL, "Breakfast", "2002-03-04", 2.5}));
    EXPECT_EQ(Names(&list), QStringList{"Oats"});
}

TEST_F(ucMyFoodTest, EveryAmountGoesToTheColumnOfItsName) {
    ScaledFood item;
    double amount = 0;
    for (const NutrientInfo& nutrient : Nutrients())
        item.Add(QString::fromLatin1(nutrient.logColumn).toUpper(), amount += 0.25);
    for (const char* key : {"FOODNAME", "SERVING"})
        item.Add(QLatin1String(key), "Oats");
    item.Add(QStringLiteral("ID"), 1);
    item.Add(QStringLiteral("QTY"), 1);
    list.setDate(day);
    list.AddFood(item, "Lunch");
    amount = 0;
    for (const NutrientInfo& nutrient : Nutrients())
        EXPECT_EQ(Users("SELECT " + QString::fromLatin1(nutrient.logColumn) + " FROM USER_FOODS")
                      .toDouble(),
                  amount += 0.25)
            << nutrient.logColumn;
}

TEST_F(ucMyFoodTest, CatalogueFoodIsScaledByGramsAndQuantity) {
    FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName, Calories, Serv_Desc_A, Serv_GM_WT_A) "
                        "VALUES (1, 'Oats', 250, '1 cup', 30)");
    list.setDate(day);
    list.AddFood(ScaledFood::FromCatalogue(1, "A", 2), "Breakfast");
    EXPECT_EQ(Users("SELECT Calories FROM USER_FOODS").toDouble(), 150);
    EXPECT_EQ(Users("SELECT Zinc FROM USER_FOODS").toDouble(), 0);
    EXPECT_EQ(LogCount("Zinc IS NULL"), 0);
}

TEST_F(ucMyFoodTest, NullNutrientOfTheCatalogueIsStoredAsZeroAndNotAsNull) {
    FoodDB().Raw().exec(
        "INSERT INTO FOODS (ID, FoodName, Serv_Desc_A) VALUES (1, 'Oats', '1 cup')");
    list.setDate(day);
    list.AddFood(ScaledFood::FromCatalogue(1, "A", 1), "Breakfast");
    for (const NutrientInfo& nutrient : Nutrients())
        EXPECT_EQ(Users("SELECT count(*) FROM USER_FOODS WHERE " +
                        QString::fromLatin1(nutrient.logColumn) + " = 0")
                      .toInt(),
                  1)
            << nutrient.logColumn;
}

TEST_F(ucMyFoodTest, SameFoodTwiceGivesTwoRows) {
    list.setDate(day);
    list.AddFood(Scaled("Oats"), "Breakfast");
    list.AddFood(Scaled("Oats"), "Breakfast");
    EXPECT_EQ(LogCount(), 2);
    EXPECT_EQ(Names(&list), (QStringList{"Oats", "Oats"}));
}

TEST_F(ucMyFoodTest, FoodWithoutAMealIsLoggedButNotShown) {
    list.setDate(day);
    list.AddFood(Scaled("Oats"), "");
    EXPECT_EQ(LogCount("Meal = ''"), 1);
    EXPECT_TRUE(Lines(&list).isEmpty());
}

TEST_F(ucMyFoodTest, FoodThatMissesAnAmountLeavesNoHalfWrittenRow) {
    ScaledFood item;
    item.Add(QStringLiteral("VitaminC"), 1.0);
    list.setDate(day);
    EXPECT_THROW(list.AddFood(item, "Lunch"), RuntimeError);
    EXPECT_EQ(LogCount(), 0);
    list.AddFood(Scaled("Oats"), "Lunch");
    EXPECT_EQ(LogCount(), 1);
}

TEST_F(ucMyFoodTest, RowThatTheStoreRefusesLeavesNoHalfWrittenRow) {
    list.setDate(day);
    UserDB().Raw().exec("CREATE TRIGGER full BEFORE INSERT ON USER_FOODS "
                        "BEGIN SELECT RAISE(ABORT, 'full'); END");
    EXPECT_THROW(list.AddFood(Scaled("Oats"), "Lunch"), RuntimeError);
    UserDB().Raw().exec("DROP TRIGGER full");
    EXPECT_EQ(LogCount(), 0);
    list.AddFood(Scaled("Oats"), "Lunch");
    EXPECT_EQ(LogCount(), 1);
}

TEST_F(ucMyFoodTest, LoggingWithoutADateIsRefused) {
    EXPECT_THROW(list.AddFood(Scaled("Oats"), "Lunch"), RuntimeError);
    EXPECT_EQ(LogCount(), 0);
}

TEST_F(ucMyFoodTest, AwkwardNamesAreLoggedShownAndRemoved) {
    list.setDate(day);
    QString nul = QStringLiteral("half");
    nul += QChar(QChar::Null);
    const QStringList names{QStringLiteral("O'Brien's '); DROP TABLE USER_FOODS; --"),
                            QStringLiteral("100 % of_[all] \U0001F96A \U0001F468\u200D\U0001F373"),
                            QString(10000, u'x'), QStringLiteral("<b>bold</b>"), nul};
    for (const QString& name : names)
        list.AddFood(Scaled(name, 1, 1, name), "Snacks");
    EXPECT_EQ(Names(&list), names);
    EXPECT_EQ(Line(3)->Serv(), names[2]);
    EXPECT_FALSE(Grab(&list).isNull());
    for (const QString& name : names) {
        EXPECT_EQ(Line(1)->FoodName(), name);
        Click(Line(1)->imgTrash());
    }
    EXPECT_EQ(LogCount(), 0);
}

TEST_F(ucMyFoodTest, AnyDayCanHoldFood) {
    for (const QDate& date : {QDate(1970, 1, 1), QDate(2106, 2, 7), QDate(2000, 2, 29),
                              QDate(9999, 12, 31), QDate(1752, 9, 14)}) {
        list.setDate(date);
        EXPECT_TRUE(Lines(&list).isEmpty());
        list.AddFood(Scaled("Oats"), "Lunch");
        EXPECT_EQ(LogCount("UDate = '" + date.toString(Qt::ISODate) + "'"), 1);
        EXPECT_EQ(Names(&list), QStringList{"Oats"});
    }
}

TEST_F(ucMyFoodTest, FourthOfMarchIsNotTheThirdOfApril) {
    Log("March", "Lunch", QDate(2002, 3, 4));
    Log("April", "Lunch", QDate(2002, 4, 3));
    list.setDate(QDate(2002, 3, 4));
    EXPECT_EQ(Names(&list), QStringList{"March"});
}

TEST_F(ucMyFoodTest, ClickOnAHeadingAsksToAddToItsMeal) {
    list.setDate(day);
    QSignalSpy asked(&list, &ucMyFood::AddRequested);
    for (int i = 0; i < 4; ++i) {
        Click(Heading(HeadingNames[i]));
        ASSERT_EQ(asked.size(), i + 1);
        EXPECT_EQ(asked[i][0].toInt(), i);
    }
}

TEST_F(ucMyFoodTest, HeadingsWorkFromTheKeyboard) {
    list.setDate(day);
    QSignalSpy asked(&list, &ucMyFood::AddRequested);
    Heading("lblDinner")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(Heading("lblDinner")->hasFocus());
    QTest::keyClick(Heading("lblDinner"), Qt::Key_Return);
    QTest::keyClick(Heading("lblDinner"), Qt::Key_Space);
    ASSERT_EQ(asked.size(), 2);
    EXPECT_EQ(asked[1][0].toInt(), 2);
}

TEST_F(ucMyFoodTest, HeadingIsAButtonToAssistiveTools) {
    list.setDate(day);
    QSignalSpy asked(&list, &ucMyFood::AddRequested);
    QAccessibleInterface* heading = QAccessible::queryAccessibleInterface(Heading("lblLunch"));
    ASSERT_NE(heading, nullptr);
    EXPECT_EQ(heading->role(), QAccessible::Button);
    EXPECT_EQ(heading->text(QAccessible::Name), "Lunch");
    heading->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::sendPostedEvents(Heading("lblLunch"));
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0][0].toInt(), 1);
}

TEST_F(ucMyFoodTest, ClickOnTheEmptyPaneAsksToAddWithTheMealLeftAsItIs) {
    list.setDate(day);
    QSignalSpy asked(&list, &ucMyFood::AddRequested);
    Click(Pane(), QPoint(50, Pane()->height() - 5));
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0][0].toInt(), -1);
}

TEST_F(ucMyFoodTest, OnlyALeftClickInsideAsksToAdd) {
    Log("Oats", "Breakfast");
    list.setDate(day);
    QSignalSpy asked(&list, &ucMyFood::AddRequested);
    QTest::mouseClick(Pane(), Qt::RightButton, {}, QPoint(50, Pane()->height() - 5));
    QTest::mouseClick(Heading("lblLunch"), Qt::RightButton);
    QTest::mousePress(Heading("lblLunch"), Qt::LeftButton);
    QTest::mouseRelease(Heading("lblLunch"), Qt::LeftButton, {}, QPoint(5, 60));
    Click(Line(1), QPoint(30, 10));
    EXPECT_EQ(asked.size(), 0);
}

TEST_F(ucMyFoodTest, HeadingUnderThePointerTurnsWhiteAndTheOthersRest) {
    list.setDate(day);
    const QColor rest(180, 105, 12);
    QSignalSpy moved(&list, &ucMyFood::MouseMove);
    for (const char* under : HeadingNames) {
        Hover(Heading(under));
        for (const char* name : HeadingNames)
            EXPECT_EQ(Heading(name)->ForeColor(), name == under ? QColor(Qt::white) : rest);
    }
    EXPECT_EQ(moved.size(), 4);
    EXPECT_EQ(Grab(Heading("lblSnack")).pixelColor(3, 5), TheStyle().mealStripLit);
    EXPECT_EQ(Grab(Heading("lblLunch")).pixelColor(3, 5), TheStyle().mealStrip);
}

TEST_F(ucMyFoodTest, MoveOverThePaneTakesTheHighlightOffAndRaisesMouseMove) {
    list.setDate(day);
    Hover(Heading("lblLunch"));
    QSignalSpy moved(&list, &ucMyFood::MouseMove);
    Hover(Pane(), QPoint(10, 400));
    EXPECT_FALSE(Heading("lblLunch")->Lit());
    ASSERT_EQ(moved.size(), 1);
    EXPECT_EQ(moved[0][2].toDouble(), Twips::FromPixels(10));
    EXPECT_EQ(moved[0][3].toDouble(), Twips::FromPixels(400));
}

TEST_F(ucMyFoodTest, MoveOverALineTakesTheHighlightOffAndRaisesNothing) {
    Log("Oats", "Breakfast");
    list.setDate(day);
    Hover(Heading("lblLunch"));
    QSignalSpy moved(&list, &ucMyFood::MouseMove);
    Hover(Line(1));
    EXPECT_FALSE(Heading("lblLunch")->Lit());
    EXPECT_EQ(moved.size(), 0);
}

TEST_F(ucMyFoodTest, AllOffSparesTheHeadingNamed) {
    list.setDate(day);
    Hover(Heading("lblSnack"));
    list.AllOff("lblsnack");
    EXPECT_TRUE(Heading("lblSnack")->Lit());
    list.AllOff("");
    EXPECT_FALSE(Heading("lblSnack")->Lit());
}

TEST_F(ucMyFoodTest, TabVisitsHeadingsAndTrashCansFromTopToBottom) {
    Log("Soup", "Lunch");
    Log("Oats", "Breakfast");
    Log("Bread", "Lunch");
    list.setDate(day);
    const QList<QWidget*> order{Heading("lblBreakfast"), Line(1)->imgTrash(), Heading("lblLunch"),
                                Line(2)->imgTrash(),     Line(3)->imgTrash(), Heading("lblDinner"),
                                Heading("lblSnack")};
    order.first()->setFocus();
    for (QWidget* stop : order) {
        EXPECT_EQ(QApplication::focusWidget(), stop) << stop->accessibleName().toStdString();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(ucMyFoodTest, FocusStaysInThePlaceOfARemovedLine) {
    LogMany(3);
    list.setDate(day);
    Line(2)->imgTrash()->setFocus();
    QTest::keyClick(Line(2)->imgTrash(), Qt::Key_Delete);
    EXPECT_EQ(Names(&list), (QStringList{"Food 1", "Food 3"}));
    EXPECT_TRUE(Line(2)->imgTrash()->hasFocus());
    QTest::keyClick(Line(2)->imgTrash(), Qt::Key_Delete);
    EXPECT_TRUE(Line(1)->imgTrash()->hasFocus());
    QTest::keyClick(Line(1)->imgTrash(), Qt::Key_Delete);
    EXPECT_TRUE(Heading("lblBreakfast")->hasFocus());
    EXPECT_EQ(LogCount(), 0);
}

TEST_F(ucMyFoodTest, LineThatTakesTheFocusComesIntoView) {
    LogMany(40);
    list.setDate(day);
    Line(40)->imgTrash()->setFocus(Qt::TabFocusReason);
    const QRect place(Line(40)->imgTrash()->mapTo(&list, QPoint()), Line(40)->imgTrash()->size());
    EXPECT_TRUE(list.rect().contains(place));
}

TEST_F(ucMyFoodTest, NewWidthReachesEveryLineAndHeading) {
    LogMany(2);
    list.setDate(day);
    list.resize(300, 450);
    EXPECT_EQ(Line(2)->width(), 300);
    EXPECT_EQ(Heading("lblSnack")->width(), 300);
    EXPECT_LT(Line(2)->imgTrash()->geometry().right(), 300);
}
