#include "DayScreenTest.h"

#include "analysis/ui/ucDaily.h"
#include "foods/ui/frmFoodSearch.h"
#include "foods/ui/ucSearchResults.h"
#include "intake/ui/MealHeading.h"
#include "intake/ui/ucMyFood.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucRadio.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

const QString InvalidWeight =
    "Please enter a valid weight greater than '0'. To remove the weight entry for this day, delete "
    "the entry from the weight field.";
const QString TooHeavy =
    "Please enter a weight of 1,000,000 pounds or less. To remove the weight entry for this day, "
    "delete the entry from the weight field.";
const QString AskClear = "Are you sure you wish to remove all foods from your daily intake?";

} // namespace

class frmDayTest : public DayScreenTest {
protected:
    QLineEdit* Weight() { return Find<QLineEdit>(screen.get(), "txtWeight"); }
    ucButton* Button(const char* name) { return Find<ucButton>(screen.get(), name); }
    ucButtonA* CalendarButton() { return Find<ucButtonA>(screen.get(), "cmdCal"); }
    QCalendarWidget* Calendar() { return Find<QCalendarWidget>(screen.get(), "smCal"); }
    ucMyFood* List() { return Find<ucMyFood>(screen.get(), "ucMyFood"); }
    MealHeading* Heading(const char* name) { return Find<MealHeading>(screen.get(), name); }
    QString Bar(int row) {
        return Find(screen.get(), "lblVal" + QString::number(row))->property("Caption").toString();
    }

    /// Types a weight, then leaves the field.
    void Enter(const QString& text) {
        Weight()->setFocus();
        Weight()->selectAll();
        text.isEmpty() ? QTest::keyClick(Weight(), Qt::Key_Delete)
                       : QTest::keyClicks(Weight(), text);
        CalendarButton()->setFocus();
    }

    void LogWeight(QDate on, double pounds) {
        SQLite::Statement insert(UserDB().Raw(), "INSERT INTO USER_WEIGHTS VALUES (?, ?, ?)");
        insert.bind(1, User::Current().UID);
        insert.bind(2, on.toString(Qt::ISODate).toStdString());
        insert.bind(3, pounds);
        insert.exec();
    }

    QVariant StoredWeight(QDate on = day) {
        return Users("SELECT Weight FROM USER_WEIGHTS WHERE UDate = '" + on.toString(Qt::ISODate) +
                     "'");
    }
    int WeightRows() { return Users("SELECT count(*) FROM USER_WEIGHTS").toInt(); }

    QSpinBox* YearField() { return Find<QSpinBox>(Calendar(), "qt_calendar_yearedit"); }
    /// Opens the year field of the open calendar and types there.
    void EnterYear(const QString& year) {
        Click(Find(Calendar(), "qt_calendar_yearbutton"));
        YearField()->selectAll();
        QTest::keyClicks(YearField(), year);
    }

    /// Opens the calendar and clicks on that day of the month that it shows.
    void PickWithTheMouse(int dayOfMonth) {
        Click(CalendarButton());
        auto* view = Find<QAbstractItemView>(Calendar(), "qt_calendar_calendarview");
        const QAbstractItemModel* model = view->model();
        bool within = false;
        for (int row = 1; row < model->rowCount(); ++row)
            for (int column = 0; column < model->columnCount(); ++column) {
                const QModelIndex index = model->index(row, column);
                within = within || index.data().toInt() == 1;
                if (within && index.data().toInt() == dayOfMonth) {
                    Click(view->viewport(), view->visualRect(index).center());
                    return;
                }
            }
        FAIL() << "the calendar shows no " << dayOfMonth;
    }
};

TEST_F(frmDayTest, ShowsTheDateInItsLongForm) {
    Open();
    EXPECT_EQ(Find(screen.get(), "aadate")->property("Caption"), "Monday, March 04, 2002");
    EXPECT_EQ(Find<ucBox>(screen.get(), "ucBoxMyFood")->Caption(),
              "My food intake for Monday, March 04, 2002");
    EXPECT_EQ(screen->Title(), "Daily Details");
}

TEST_F(frmDayTest, ControlsCarryTheirCaptionsAndTips) {
    Open();
    EXPECT_EQ(Button("cmdAddFoods")->Caption(), "Eat foods");
    EXPECT_EQ(Button("cmdClear")->Caption(), "Clear foods");
    EXPECT_EQ(Button("cmdDone")->Caption(), "Done");
    EXPECT_EQ(CalendarButton()->toolTip(), "Select a new date");
    EXPECT_EQ(Find<ucBox>(screen.get(), "picCal")->Caption(), "Select a date");
    EXPECT_FALSE(Find(screen.get(), "picCal")->isVisible());
    EXPECT_EQ(Find(screen.get(), "lblWeight")->property("text"), "Enter today's weight:");
}

TEST_F(frmDayTest, ShowsTheChosenDaysFoodAndTotals) {
    Log("Oats", "Breakfast", day, 250);
    Log("Soup", "Lunch", day.addDays(1), 400);
    Open();
    EXPECT_EQ(Names(screen.get()), QStringList{"Oats"});
    EXPECT_EQ(Bar(1), ".......................250 kcal");
}

TEST_F(frmDayTest, DayWithoutAWeightShowsAnEmptyField) {
    Open();
    EXPECT_EQ(Weight()->text(), "");
    EXPECT_EQ(WeightRows(), 0);
}

TEST_F(frmDayTest, StoredWeightIsShownAndBecomesTheCurrentOne) {
    LogWeight(day, 150.5);
    Open();
    EXPECT_EQ(Weight()->text(), "150.5");
    EXPECT_EQ(User::Current().CurrentWeight, 150);
}

TEST_F(frmDayTest, StoredZeroShowsAsAnEmptyFieldAndChangesNoWeight) {
    LogWeight(day, 0);
    Open();
    EXPECT_EQ(Weight()->text(), "");
    EXPECT_EQ(User::Current().CurrentWeight, 200);
}

TEST_F(frmDayTest, TheWeightOfAPastDayBecomesTheCurrentWeight) {
    LogWeight(day, 180);
    LogWeight(day.addDays(-300), 240);
    Open();
    EXPECT_EQ(User::Current().CurrentWeight, 180);
    App().CurrentDate = day.addDays(-300);
    Open();
    EXPECT_EQ(User::Current().CurrentWeight, 240);
}

TEST_F(frmDayTest, BringingTheScreenForwardWritesNothing) {
    Open();
    Open();
    screen->DoWinInit();
    EXPECT_EQ(WeightRows(), 0);
    LogWeight(day, 150);
    screen->DoWinInit();
    EXPECT_EQ(WeightRows(), 1);
}

struct WeightCase {
    const char* text;
    double stored;
    int current;
};

TEST_F(frmDayTest, EnteredWeightsAreStoredAsTheirLeadingNumber) {
    Open();
    const WeightCase cases[] = {{"150lb", 150, 150},  {"1,5", 1, 1},    {".05", .05, 0},
                                {"99.01", 99.01, 99}, {"99", 99, 99},   {" 1 60", 160, 160},
                                {"+170", 170, 170},   {"1e2", 100, 100}};
    for (const WeightCase& entry : cases) {
        Enter(entry.text);
        EXPECT_EQ(StoredWeight().toDouble(), entry.stored) << entry.text;
        EXPECT_EQ(User::Current().CurrentWeight, entry.current) << entry.text;
        EXPECT_EQ(WeightRows(), 1);
    }
    EXPECT_EQ(Users("SELECT UID FROM USER_WEIGHTS").toInt(), User::Current().UID);
}

TEST_F(frmDayTest, HalfAPoundIsStoredButRoundsToTheEvenPoundInTheCurrentWeight) {
    Open();
    Enter("150.5");
    EXPECT_EQ(StoredWeight().toDouble(), 150.5);
    EXPECT_EQ(User::Current().CurrentWeight, 150);
    Enter("151.5");
    EXPECT_EQ(StoredWeight().toDouble(), 151.5);
    EXPECT_EQ(User::Current().CurrentWeight, 152);
}

TEST_F(frmDayTest, WeightsOfZeroOrLessAreRefusedAndLeaveTheTextInTheField) {
    Open();
    for (const char* text :
         {"0", "-1", "abc", "1e400", " ", "lb 150", "0.0", "'; DROP TABLE x; --"}) {
        ExpectAlert(InvalidWeight);
        Enter(text);
        EXPECT_EQ(Weight()->text(), text);
        EXPECT_FALSE(Weight()->hasFocus());
        EXPECT_EQ(WeightRows(), 0) << text;
    }
    EXPECT_EQ(User::Current().CurrentWeight, 200);
}

TEST_F(frmDayTest, AWeightAboveAMillionHasAMessageOfItsOwn) {
    Open();
    for (const char* text : {"1000000.5", "1000001", "99999999999", "1e300"}) {
        ExpectAlert(TooHeavy);
        Enter(text);
        EXPECT_EQ(Weight()->text(), text);
        EXPECT_EQ(WeightRows(), 0) << text;
    }
    Enter("1000000");
    EXPECT_EQ(StoredWeight().toDouble(), 1'000'000);
}

TEST_F(frmDayTest, RefusedWeightIsTestedAgainAtTheNextChangeOfFocus) {
    Open();
    ExpectAlert(InvalidWeight);
    Enter("abc");
    ExpectAlert(InvalidWeight);
    Weight()->setFocus();
    CalendarButton()->setFocus();
}

TEST_F(frmDayTest, TenThousandLettersOrDigitsAreRefused) {
    Open();
    for (const QChar letter : {u'x', u'9'}) {
        ExpectAlert(InvalidWeight);
        Weight()->setFocus();
        Weight()->setText(QString(10000, letter));
        CalendarButton()->setFocus();
    }
    EXPECT_EQ(WeightRows(), 0);
}

TEST_F(frmDayTest, EmptyFieldStoresZeroAndKeepsTheRow) {
    LogWeight(day, 150);
    Open();
    Enter("");
    EXPECT_EQ(WeightRows(), 1);
    EXPECT_EQ(StoredWeight().toDouble(), 0);
    EXPECT_EQ(User::Current().CurrentWeight, 150);
    screen->DoWinInit();
    EXPECT_EQ(Weight()->text(), "");
}

TEST_F(frmDayTest, SecondWeightOfADayUsesTheRowAgain) {
    Open();
    Enter("150");
    Enter("151");
    EXPECT_EQ(WeightRows(), 1);
    EXPECT_EQ(StoredWeight().toDouble(), 151);
}

TEST_F(frmDayTest, WeightsOfOtherDaysAndUsersStayAsTheyAre) {
    LogWeight(day.addDays(1), 180);
    AddUser("Ben");
    LogWeight(day, 190);
    AddUser("Carl");
    Open();
    EXPECT_EQ(Weight()->text(), "");
    Enter("150");
    EXPECT_EQ(WeightRows(), 3);
    EXPECT_EQ(Users("SELECT count(*) FROM USER_WEIGHTS WHERE Weight = 190").toInt(), 1);
}

TEST_F(frmDayTest, WeightIsStoredBeforeTheTargetsFollow) {
    App().AppInfo.AUTOUPDATERDI = true;
    Open();
    UserDB().Raw().exec("CREATE TABLE witness (weight REAL); CREATE TRIGGER watch AFTER UPDATE ON "
                        "profiles BEGIN INSERT INTO witness SELECT Weight FROM USER_WEIGHTS; END");
    Enter("180");
    EXPECT_EQ(Users("SELECT weight FROM witness").toDouble(), 180);
    EXPECT_EQ(Users("SELECT current_weight FROM profiles").toInt(), 180);
}

TEST_F(frmDayTest, WithoutAutomaticTargetsTheProfileKeepsItsWeight) {
    Open();
    Enter("180");
    EXPECT_EQ(Users("SELECT current_weight FROM profiles").toInt(), 200);
    EXPECT_EQ(Users("SELECT Calories FROM profiles").toInt(), 2000);
    EXPECT_EQ(User::Current().CurrentWeight, 180);
}

TEST_F(frmDayTest, BarsFollowTheTargetsOfANewWeight) {
    App().AppInfo.AUTOUPDATERDI = true;
    Log("Feast", "Dinner", day, 1600);
    Open();
    const int before = Find(screen.get(), "imgBar1")->width();
    Enter("400");
    EXPECT_GT(User::Current().RDIs.Calories(), 2000);
    EXPECT_LT(Find(screen.get(), "imgBar1")->width(), before);
}

TEST_F(frmDayTest, BarsUseTheTargetsOfTheWeightOfTheDay) {
    App().AppInfo.AUTOUPDATERDI = true;
    Log("Feast", "Dinner", day, 1600);
    Log("Feast", "Dinner", day.addDays(1), 1600);
    LogWeight(day.addDays(1), 400);
    Open();
    const int before = Find(screen.get(), "imgBar1")->width();
    PickWithTheMouse(5);
    EXPECT_LT(Find(screen.get(), "imgBar1")->width(), before);
}

TEST_F(frmDayTest, ReturnInTheFieldSavesAndLeavesIt) {
    Open();
    Weight()->setFocus();
    QTest::keyClicks(Weight(), "172");
    QTest::keyClick(Weight(), Qt::Key_Return);
    EXPECT_FALSE(Weight()->hasFocus());
    EXPECT_EQ(StoredWeight().toDouble(), 172);
}

TEST_F(frmDayTest, ClickOnTheScreensGroundLeavesTheField) {
    Open();
    Weight()->setFocus();
    QTest::keyClicks(Weight(), "172");
    Click(screen.get(), QPoint(400, 540));
    EXPECT_EQ(StoredWeight().toDouble(), 172);
}

TEST_F(frmDayTest, UnsavedWeightIsKeptWhenTheScreenIsHiddenOrClosed) {
    Open();
    Weight()->setFocus();
    QTest::keyClicks(Weight(), "172");
    screen->hide();
    EXPECT_EQ(StoredWeight().toDouble(), 172);
    screen->show();
    Weight()->setFocus();
    Weight()->selectAll();
    QTest::keyClicks(Weight(), "173");
    screen->close();
    EXPECT_EQ(StoredWeight().toDouble(), 173);
    EXPECT_EQ(WeightRows(), 1);
}

TEST_F(frmDayTest, UnsavedWeightIsKeptWhenTheWindowCloses) {
    Open();
    Weight()->setFocus();
    QTest::keyClicks(Weight(), "172");
    window.close();
    EXPECT_EQ(StoredWeight().toDouble(), 172);
}

TEST_F(frmDayTest, UntouchedFieldWritesNothingWhenTheWindowCloses) {
    Open();
    Weight()->setFocus();
    window.close();
    EXPECT_EQ(WeightRows(), 0);
}

TEST_F(frmDayTest, AnotherWindowInFrontDoesNotSaveTheWeight) {
    Open();
    Weight()->setFocus();
    QTest::keyClicks(Weight(), "abc");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(WeightRows(), 0);
    Weight()->clear();
}

TEST_F(frmDayTest, CalendarOpensOnTheChosenDayWithTheFocus) {
    Open();
    Click(CalendarButton());
    EXPECT_TRUE(Find(screen.get(), "picCal")->isVisible());
    EXPECT_EQ(Calendar()->selectedDate(), day);
    EXPECT_EQ(Calendar()->monthShown(), 3);
    EXPECT_EQ(Calendar()->yearShown(), 2002);
    EXPECT_TRUE(Calendar()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(frmDayTest, APressOfAnAssistiveToolOnADayChoosesItAndClosesTheCalendar) {
    Open();
    Click(CalendarButton());
    auto* view = Find<QAbstractItemView>(Calendar(), "qt_calendar_calendarview");
    QAccessibleInterface* cell =
        QAccessible::queryAccessibleInterface(view)->tableInterface()->cellAt(1, 2);
    EXPECT_EQ(cell->text(QAccessible::Name), "Tuesday, March 05, 2002");
    cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::sendPostedEvents(Calendar());
    EXPECT_EQ(App().CurrentDate, QDate(2002, 3, 5));
    EXPECT_FALSE(Find(screen.get(), "picCal")->isVisible());
}

TEST_F(frmDayTest, CalendarHidesWithoutAChangeWhenItLosesTheFocus) {
    Open();
    Click(CalendarButton());
    Button("cmdClear")->setFocus();
    EXPECT_FALSE(Find(screen.get(), "picCal")->isVisible());
    EXPECT_EQ(App().CurrentDate, day);
}

TEST_F(frmDayTest, EscapeClosesTheCalendar) {
    Open();
    Click(CalendarButton());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Find(screen.get(), "picCal")->isVisible());
    EXPECT_TRUE(CalendarButton()->hasFocus());
    EXPECT_EQ(App().CurrentDate, day);
}

TEST_F(frmDayTest, ClickedDayBecomesTheChosenOneEverywhere) {
    Log("Soup", "Lunch", QDate(2002, 3, 12), 400);
    LogWeight(QDate(2002, 3, 12), 190);
    Open();
    PickWithTheMouse(12);
    EXPECT_EQ(App().CurrentDate, QDate(2002, 3, 12));
    EXPECT_FALSE(Find(screen.get(), "picCal")->isVisible());
    EXPECT_EQ(Find(screen.get(), "aadate")->property("Caption"), "Tuesday, March 12, 2002");
    EXPECT_EQ(Find<ucBox>(screen.get(), "ucBoxMyFood")->Caption(),
              "My food intake for Tuesday, March 12, 2002");
    EXPECT_EQ(Names(screen.get()), QStringList{"Soup"});
    EXPECT_EQ(Bar(1), ".......................400 kcal");
    EXPECT_EQ(Weight()->text(), "190");
}

TEST_F(frmDayTest, DayIsPickedFromTheKeyboard) {
    Open();
    CalendarButton()->setFocus();
    QTest::keyClick(CalendarButton(), Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(App().CurrentDate, day);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(App().CurrentDate, QDate(2002, 3, 12));
    EXPECT_TRUE(CalendarButton()->hasFocus());
    EXPECT_EQ(WeightRows(), 0);
}

TEST_F(frmDayTest, AnyPastOrFutureDayCanBePicked) {
    Open();
    for (const QDate& date : {QDate(1970, 1, 1), QDate(2106, 2, 7), QDate(2004, 2, 29),
                              QDate(1900, 12, 31), QDate(9999, 12, 31), QDate(2002, 4, 3)}) {
        Click(CalendarButton());
        Calendar()->setSelectedDate(date);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(App().CurrentDate, date);
        List()->AddFood(Scaled("Oats"), "Lunch");
        EXPECT_EQ(Names(screen.get()), QStringList{"Oats"});
    }
    EXPECT_EQ(LogCount(), 6);
}

TEST_F(frmDayTest, DaysOfEarlyYearsCanBePickedAndKeepTheirFoods) {
    Open();
    for (const QDate& date : {QDate(100, 1, 1), QDate(202, 3, 4), QDate(500, 12, 31)}) {
        Click(CalendarButton());
        Calendar()->setSelectedDate(date);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(App().CurrentDate, date);
        List()->AddFood(Scaled("Oats"), "Lunch");
        EXPECT_EQ(Names(screen.get()), QStringList{"Oats"});
        EXPECT_EQ(Users("SELECT count(*) FROM USER_FOODS WHERE UDate = '" +
                        date.toString(Qt::ISODate) + "'"),
                  1);
        Enter("150");
        EXPECT_EQ(StoredWeight(date).toDouble(), 150);
    }
}

TEST_F(frmDayTest, NoDayBeforeTheYear100CanBePicked) {
    Open();
    Click(CalendarButton());
    Calendar()->setSelectedDate(QDate(50, 6, 1));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(App().CurrentDate, QDate(100, 1, 1));
}

TEST_F(frmDayTest, KeysThatEndTheEntryOfTheYearLeaveTheCalendarOpen) {
    Open();
    for (const auto& [key, year] : {std::pair(Qt::Key_Return, 1999), std::pair(Qt::Key_Enter, 1999),
                                    std::pair(Qt::Key_Tab, 1999), std::pair(Qt::Key_Backtab, 1999),
                                    std::pair(Qt::Key_Escape, 2002)}) {
        Click(CalendarButton());
        EnterYear("1999");
        QTest::keyClick(YearField(), key);
        EXPECT_TRUE(Find(screen.get(), "picCal")->isVisible()) << key;
        EXPECT_FALSE(YearField()->isVisible()) << key;
        EXPECT_EQ(Calendar()->yearShown(), year) << key;
        EXPECT_TRUE(Calendar()->isAncestorOf(QApplication::focusWidget())) << key;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(Find(screen.get(), "picCal")->isVisible()) << key;
    }
    EXPECT_EQ(App().CurrentDate, day);
}

TEST_F(frmDayTest, LeavingTheScreensCalendarFromTheYearFieldClosesIt) {
    Open();
    Click(CalendarButton());
    EnterYear("1999");
    Button("cmdClear")->setFocus();
    EXPECT_FALSE(Find(screen.get(), "picCal")->isVisible());
}

TEST_F(frmDayTest, TheMenuOfMonthsWorksFromTheKeyboard) {
    Open();
    Click(CalendarButton());
    auto* months = Find<QToolButton>(Calendar(), "qt_calendar_monthbutton");
    months->setFocus(Qt::TabFocusReason);
    QTimer::singleShot(0, [] {
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(menu, key);
    });
    QTest::keyClick(months, Qt::Key_Space);
    EXPECT_TRUE(Find(screen.get(), "picCal")->isVisible());
    EXPECT_NE(Calendar()->monthShown(), 3);
}

TEST_F(frmDayTest, TheMenuOfMonthsIsAPartOfTheCalendar) {
    Open();
    Click(CalendarButton());
    auto* menu = Find<QToolButton>(Calendar(), "qt_calendar_monthbutton")->menu();
    menu->show();
    menu->setFocus();
    EXPECT_TRUE(Find(screen.get(), "picCal")->isVisible());
    menu->hide();
}

TEST_F(frmDayTest, WeightBeingTypedIsSavedUnderTheOldDayWhenTheDayChanges) {
    Open();
    Weight()->setFocus();
    QTest::keyClicks(Weight(), "172");
    PickWithTheMouse(12);
    EXPECT_EQ(StoredWeight(day).toDouble(), 172);
    EXPECT_FALSE(StoredWeight(QDate(2002, 3, 12)).isValid());
    EXPECT_EQ(Weight()->text(), "");
}

TEST_F(frmDayTest, DayStaysChosenWhenTheScreenCloses) {
    Open();
    PickWithTheMouse(12);
    screen.reset();
    EXPECT_EQ(App().CurrentDate, QDate(2002, 3, 12));
}

TEST_F(frmDayTest, ScreenCanGoWhileTheCalendarIsOpen) {
    Open();
    Click(CalendarButton());
    screen.reset();
    EXPECT_EQ(App().CurrentDate, day);
}

TEST_F(frmDayTest, ClearAsksFirst) {
    Log("Oats", "Breakfast");
    Open();
    ExpectAlert(AskClear, false);
    Click(Button("cmdClear"));
    EXPECT_EQ(LogCount(), 1);
    EXPECT_EQ(Names(screen.get()), QStringList{"Oats"});
}

TEST_F(frmDayTest, ClearRemovesOnlyTheFoodsOfThisDayAndUser) {
    for (const char* meal : {"Breakfast", "Lunch", "Dinner", "Snacks", ""})
        Log("Food", meal);
    Log("Tomorrow's", "Lunch", day.addDays(1));
    AddUser("Ben");
    Log("Ben's", "Lunch");
    Log("Ben's other", "Lunch");
    Open();
    ExpectAlert(AskClear);
    Click(Button("cmdClear"));
    EXPECT_EQ(LogCount(), 6);
    EXPECT_EQ(LogCount("UID = " + QString::number(User::Current().UID)), 0);
    EXPECT_TRUE(Names(screen.get()).isEmpty());
}

TEST_F(frmDayTest, TotalsFollowTheClearing) {
    Log("Oats", "Breakfast", day, 250);
    Open();
    ExpectAlert(AskClear);
    Click(Button("cmdClear"));
    EXPECT_EQ(Bar(1), "..............................0");
}

TEST_F(frmDayTest, ClearingADayWithoutRowsDoesNothingButRedraw) {
    Open();
    Log("Late", "Lunch", day.addDays(1));
    ExpectAlert(AskClear);
    Click(Button("cmdClear"));
    EXPECT_EQ(LogCount(), 1);
}

TEST_F(frmDayTest, TotalsFollowARemovedLine) {
    Log("Oats", "Breakfast", day, 250);
    Log("Soup", "Lunch", day, 400);
    Open();
    Click(Lines(screen.get()).first()->imgTrash());
    EXPECT_EQ(Bar(1), ".......................400 kcal");
}

TEST_F(frmDayTest, TotalsCountLinesThatTheListDoesNotDraw) {
    App().AppInfo.LIMITRESULTS = true;
    for (int i = 0; i < 50; ++i)
        Log("Food", "Lunch", day, 10);
    Open();
    EXPECT_EQ(Lines(screen.get()).size(), 49);
    EXPECT_EQ(Bar(1), ".......................500 kcal");
}

TEST_F(frmDayTest, FoodsChosenInTheDialogAreLoggedAndSummedBehindIt) {
    Open();
    const auto eat = [&](QWidget* dialog) {
        auto* search = Find<ucSearchResults>(dialog, "ucSearchResults1");
        Q_EMIT search->FoodChosen("Lunch", Scaled("Soup", 120));
        EXPECT_EQ(Names(screen.get()), QStringList{"Soup"});
        EXPECT_EQ(Bar(1), ".......................120 kcal");
        Q_EMIT search->FoodChosen("Lunch", Scaled("Soup", 120));
        EXPECT_EQ(Bar(1), ".......................240 kcal");
    };
    WithModal(eat, [&] { Click(Button("cmdAddFoods")); });
    EXPECT_EQ(LogCount("UDate = '2002-03-04' AND Meal = 'Lunch'"), 2);
}

TEST_F(frmDayTest, PressingAddTwiceInTheDialogAddsTwoRowsToTheDay) {
    FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName, Calories, Serv_Desc_A, Serv_GM_WT_A) "
                        "VALUES (1, 'Oats', 250, '1 cup', 30)");
    Open();
    const auto eat = [&](QWidget* dialog) {
        Find<QLineEdit>(dialog, "txtSearchString")->setText("oats");
        Click(Find(dialog, "cmdGo"));
        QWidget* row = Find(dialog, "ucFood1");
        Find<QLineEdit>(row, "txtQTY_A")->setText("2");
        Click(Find(row, "cmdEAT_a"));
        Click(Find(row, "cmdEAT_a"));
        EXPECT_EQ(Bar(1), ".......................300 kcal");
    };
    WithModal(eat, [&] { Click(Heading("lblLunch")); });
    EXPECT_EQ(LogCount("FoodName = 'Oats' AND Calories = 150 AND QTY = 2 AND Meal = 'Lunch'"), 2);
}

TEST_F(frmDayTest, HeadingOpensTheDialogWithItsMealTicked) {
    Open();
    const char* const headings[] = {"lblBreakfast", "lblLunch", "lblDinner", "lblSnack"};
    for (int meal : {2, 0, 3, 1})
        WithModal(
            [&](QWidget* dialog) {
                EXPECT_EQ(dialog->objectName(), "frmFoodSearch");
                EXPECT_EQ(Find<ucSearchResults>(dialog, "ucSearchResults1")->meal(), meal);
                EXPECT_TRUE(Find<ucRadio>(dialog, "opMeal" + QString::number(meal))->Value());
            },
            [&] { Click(Heading(headings[meal])); });
}

TEST_F(frmDayTest, ButtonAndEmptyPaneLeaveTheMealAsItWas) {
    Open();
    const auto dinnerIsTicked = [](QWidget* dialog) {
        EXPECT_TRUE(Find<ucRadio>(dialog, "opMeal2")->Value());
    };
    WithModal([](QWidget*) {}, [&] { Click(Heading("lblDinner")); });
    WithModal(dinnerIsTicked, [&] { Click(Button("cmdAddFoods")); });
    QWidget* pane = Find(screen.get(), "picResultsPane");
    WithModal(dinnerIsTicked, [&] { Click(pane, QPoint(50, pane->height() - 4)); });
}

TEST_F(frmDayTest, DoneGoesToTheHomeScreen) {
    Open();
    Click(Button("cmdDone"));
    EXPECT_EQ(shownScreens, QStringList{"frmMain"});
}

TEST_F(frmDayTest, ButtonUnderThePointerTakesTheLookOffTheOthers) {
    Open();
    Hover(Button("cmdAddFoods"));
    EXPECT_EQ(Button("cmdAddFoods")->State(), 2);
    Hover(Button("cmdClear"));
    EXPECT_EQ(Button("cmdAddFoods")->State(), 1);
    EXPECT_EQ(Button("cmdClear")->State(), 2);
    Hover(CalendarButton());
    EXPECT_EQ(Button("cmdClear")->State(), 1);
    EXPECT_EQ(CalendarButton()->Shown(), "img_ROLL");
    Hover(screen.get(), QPoint(300, 540));
    EXPECT_EQ(CalendarButton()->Shown(), "img_NORM");
}

TEST_F(frmDayTest, MoveOverTheFoodBoxTakesEveryHighlightOff) {
    Open();
    Hover(Heading("lblLunch"));
    Hover(Button("cmdClear"));
    Hover(Find(screen.get(), "ucBoxMyFood"), QPoint(30, 8));
    EXPECT_EQ(Button("cmdClear")->State(), 1);
    EXPECT_FALSE(Heading("lblLunch")->Lit());
}

TEST_F(frmDayTest, MoveOverAHeadingResetsTheButtonsAndKeepsItsHighlight) {
    Open();
    Hover(Button("cmdClear"));
    Hover(Heading("lblLunch"), QPoint(40, 9));
    EXPECT_EQ(Button("cmdClear")->State(), 1);
    EXPECT_TRUE(Heading("lblLunch")->Lit());
}

TEST_F(frmDayTest, MovesCountOnlyIfXAndYBothChanged) {
    Open();
    QWidget* pane = Find(screen.get(), "picResultsPane");
    Hover(pane, QPoint(10, 400));
    Hover(Button("cmdClear"));
    Hover(pane, QPoint(10, 410));
    EXPECT_EQ(Button("cmdClear")->State(), 2);
    Hover(pane, QPoint(20, 400));
    EXPECT_EQ(Button("cmdClear")->State(), 2);
    Hover(pane, QPoint(11, 401));
    EXPECT_EQ(Button("cmdClear")->State(), 1);
}

TEST_F(frmDayTest, PanelAndListShareTheLastPlace) {
    Open();
    auto* daily = Find<ucDaily>(screen.get(), "ucDaily");
    Q_EMIT daily->MouseMove(0, 0, 150, 6000);
    Hover(Button("cmdClear"));
    Q_EMIT List()->MouseMove(0, 0, 150, 6010);
    EXPECT_EQ(Button("cmdClear")->State(), 2);
    Q_EMIT daily->MouseMove(0, 0, 160, 6010);
    EXPECT_EQ(Button("cmdClear")->State(), 1);
}

TEST_F(frmDayTest, MoveOverThePanelTakesTheHeadingsHighlightOff) {
    Open();
    Hover(Heading("lblLunch"));
    Q_EMIT Find<ucDaily>(screen.get(), "ucDaily")->MouseMove(0, 0, 1, 1);
    EXPECT_FALSE(Heading("lblLunch")->Lit());
}

TEST_F(frmDayTest, TabGoesThroughTheScreenInReadingOrder) {
    Log("Oats", "Breakfast");
    Open();
    CalendarButton()->setFocus();
    QStringList visited;
    for (int i = 0; i < 20 && !visited.contains("cmdDone"); ++i) {
        visited << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, (QStringList{"cmdCal", "txtWeight", "lblBreakfast", "imgTrash", "lblLunch",
                                    "lblDinner", "lblSnack", "cmdBar", "cmdVals", "cmdPIEChart",
                                    "cmdAddFoods", "cmdClear", "cmdDone"}));
}

TEST_F(frmDayTest, EveryControlHasANameForAssistiveTools) {
    Log("Oats", "Breakfast");
    Open();
    for (const QWidget* control : screen->findChildren<QWidget*>()) {
        const QVariant caption = control->property("Caption");
        if (control->focusPolicy() & Qt::TabFocus && control->isVisible()) {
            EXPECT_FALSE(control->accessibleName().isEmpty() && caption.toString().isEmpty())
                << control->objectName().toStdString();
        }
    }
}

TEST_F(frmDayTest, NothingOverlapsAndNothingIsCut) {
    App().CurrentDate = QDate(2026, 9, 30);
    Open();
    const QList<QWidget*> parts{Find(screen.get(), "aadate"),
                                CalendarButton(),
                                Find(screen.get(), "lblWeight"),
                                Weight(),
                                Find(screen.get(), "ucBoxMyFood"),
                                Find(screen.get(), "ucDaily"),
                                Button("cmdAddFoods"),
                                Button("cmdClear"),
                                Button("cmdDone")};
    for (const QWidget* part : parts) {
        EXPECT_TRUE(screen->rect().contains(part->geometry())) << part->objectName().toStdString();
        EXPECT_FALSE(QRect(14, 8, 182, 30).intersects(part->geometry()))
            << part->objectName().toStdString();
        for (const QWidget* other : parts)
            EXPECT_FALSE(part != other && part->geometry().intersects(other->geometry()))
                << part->objectName().toStdString() << " and " << other->objectName().toStdString();
    }
    EXPECT_EQ(Find(screen.get(), "ucDaily")->geometry(), QRect(414, 42, 338, 476));
}
