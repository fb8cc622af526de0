#include "core/CoreTest.h"
#include "support/Unwinding.h"

#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "core/frmMain.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucCalButton.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

/// The home screen in the real navigation, with one user whose log the tests write.
class frmMainTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        OpenEmptyDatabases();
        RegisterScreens(TheNavigation());
        Clock::SetToday(QDate(2026, 11, 21));
        App().TipOfTheDay = QStringLiteral("Weigh one handful once.");
        AddUser();
    }
    /// Energy in kilocalories, the rest in grams.
    void Log(QDate day, double calories, double carbs = 0, double fat = 0, double protein = 0) {
        Users(QStringLiteral("INSERT INTO USER_FOODS (UID, FoodName, Serving, ID, Meal, UDate, "
                             "QTY, Calories, Carbs, TotalFat, Protein) VALUES (%1, 'Oats', '1 "
                             "cup', 1, 'Lunch', '%2', 1, %3, %4, %5, %6)")
                  .arg(User::Current().UID)
                  .arg(day.toString(Qt::ISODate))
                  .arg(calories)
                  .arg(carbs)
                  .arg(fat)
                  .arg(protein));
    }
    void Weigh(QDate day, double pounds) {
        Users(QStringLiteral("INSERT INTO USER_WEIGHTS (UID, UDate, Weight) VALUES (%1, '%2', %3)")
                  .arg(User::Current().UID)
                  .arg(day.toString(Qt::ISODate))
                  .arg(pounds));
    }
    frmMain* ShowMain() {
        ::ShowHome();
        ::ShowScreen(QStringLiteral("frmMain"));
        RunDeferredDeletes();
        return qobject_cast<frmMain*>(TheNavigation().Front());
    }
    QWidget* Control(const char* name) {
        return Find(TheNavigation().Front(), QLatin1String(name));
    }
    QString Caption(const char* name) { return Control(name)->property("Caption").toString(); }
    void ClickDay(int day) {
        Click(Control(qPrintable(QStringLiteral("picDay%1").arg(day))));
        RunDeferredDeletes();
    }
    /// Picks the item of that index from one of the calendar's lists.
    void Pick(const char* list, int index) {
        Click(Control(list));
        Find<DrawnControl>(Control(list), QStringLiteral("lblItem%1").arg(index))->Activate();
    }
    bool Marked(const char* mark, int day) {
        auto* picture = TheNavigation().Front()->findChild<QWidget*>(QLatin1String(mark) +
                                                                     QString::number(day));
        return picture && picture->isVisible();
    }
    QString GlanceLabels() {
        return QString(Caption("aafat") + u'|' + Caption("aaprotein") + u'|' + Caption("aacarbs"));
    }
    QString Front() { return TheNavigation().Front()->objectName(); }
};

// The chosen day

TEST_F(frmMainTest, AnUnsetDayBecomesTodayInEveryYear) {
    for (const int year : {1900, 1970, 1991, 1992, 2012, 2013, 2026, 2106}) {
        Clock::SetToday(QDate(year, 12, 31));
        App().CurrentDate = QDate();
        ShowMain();
        EXPECT_EQ(App().CurrentDate, QDate(year, 12, 31));
    }
}

TEST_F(frmMainTest, ADayBeforeDecember1992CountsAsUnset) {
    App().CurrentDate = QDate(1992, 11, 30);
    ShowMain();
    EXPECT_EQ(App().CurrentDate, QDate(2026, 11, 21));
    App().CurrentDate = QDate(1992, 12, 1);
    ShowMain();
    EXPECT_EQ(App().CurrentDate, QDate(1992, 12, 1));
}

TEST_F(frmMainTest, AClickOnADayChoosesItAndShowsItsDetails) {
    ShowMain();
    ClickDay(5);
    EXPECT_EQ(App().CurrentDate, QDate(2026, 11, 5));
    ASSERT_EQ(Front(), QStringLiteral("frmDay"));
    EXPECT_EQ(Caption("aadate"), QStringLiteral("Thursday, November 05, 2026"));
    EXPECT_EQ(Control("ucMyFood")->property("Date").toDate(), QDate(2026, 11, 5));
    EXPECT_EQ(Control("ucDaily")->property("Date").toDate(), QDate(2026, 11, 5));
}

TEST_F(frmMainTest, TodayLeadsToTodaysDetailsThroughTheButtonOnIt) {
    ShowMain();
    Click(TheNavigation().Front()->findChild<ucCalButton*>());
    EXPECT_EQ(Front(), QStringLiteral("frmDay"));
    EXPECT_EQ(App().CurrentDate, QDate(2026, 11, 21));
}

TEST_F(frmMainTest, TheChosenDaysWeightIsLoadedWithItsDetails) {
    App().AppInfo.AUTOUPDATERDI = true;
    Weigh(QDate(2026, 11, 5), 187.5);
    ShowMain();
    ClickDay(5);
    EXPECT_EQ(User::Current().CurrentWeight, 188);
}

// The way back

class TheWayBack : public frmMainTest, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        frmMainTest::SetUp();
        App().AppInfo.FAST = GetParam();
    }
};
INSTANTIATE_TEST_SUITE_P(FastOffAndOn, TheWayBack, ::testing::Bool());

TEST_P(TheWayBack, LeadsFromTheDayToTheHomeScreenByDone) {
    ShowMain();
    ClickDay(5);
    Click(Control("cmdDone"));
    RunDeferredDeletes();
    EXPECT_EQ(Front(), QStringLiteral("frmMain"));
    EXPECT_EQ(App().CurrentDate, QDate(2026, 11, 5)) << "the day stays chosen";
}

TEST_P(TheWayBack, ShowsTheDaysChangesInTheIconsAndTheGlance) {
    ShowMain();
    EXPECT_FALSE(Marked("imgFood", 5));
    ClickDay(5);
    Log(QDate(2026, 11, 5), 1800, 300);
    Weigh(QDate(2026, 11, 5), 190);
    Click(Control("cmdDone"));
    RunDeferredDeletes();
    EXPECT_TRUE(Marked("imgFood", 5));
    EXPECT_TRUE(Marked("imgScale", 5));
    EXPECT_EQ(Caption("lblAvgCals"), QStringLiteral("Average daily calories: 1800"));
}

TEST_P(TheWayBack, ShowsTheIconsGoneWithWhatWasRemoved) {
    Log(QDate(2026, 11, 5), 1800, 300);
    Weigh(QDate(2026, 11, 5), 190);
    ShowMain();
    EXPECT_TRUE(Marked("imgFood", 5));
    ClickDay(5);
    Users(QStringLiteral("DELETE FROM USER_FOODS"));
    Users(QStringLiteral("UPDATE USER_WEIGHTS SET Weight = 0"));
    Click(Control("cmdDone"));
    RunDeferredDeletes();
    EXPECT_FALSE(Marked("imgFood", 5));
    EXPECT_FALSE(Marked("imgScale", 5));
    EXPECT_EQ(GlanceLabels(), QStringLiteral("Total Fat: --|Protein: --|Carbs: --"));
}

TEST_P(TheWayBack, FromTheProfileFindsTheHomeScreenAsItWas) {
    ScreenForm* home = ShowMain();
    ::ShowScreen(QStringLiteral("frmProfile"));
    TheNavigation().Front()->close();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(TheNavigation().Front(), home);
    EXPECT_TRUE(home->isVisible());
}

// The glance

TEST_F(frmMainTest, AMonthWithoutEntriesHasNothingToChart) {
    Log(QDate(2026, 10, 31), 2000, 500);
    Log(QDate(2026, 12, 1), 2000, 500);
    ShowMain();
    EXPECT_EQ(Control("picPIE")->accessibleDescription(), QStringLiteral("No data to chart"));
    EXPECT_EQ(GlanceLabels(), QStringLiteral("Total Fat: --|Protein: --|Carbs: --"));
}

TEST_F(frmMainTest, OneLoggedDayAmongThirtyIsTheAverage) {
    Log(QDate(2026, 11, 7), 2000, 250, 60, 115);
    ShowMain();
    EXPECT_EQ(Caption("lblAvgCals"), QStringLiteral("Average daily calories: 2000"));
}

TEST_F(frmMainTest, AMonthOfCarbohydrateAloneSaysSo) {
    Log(QDate(2026, 11, 7), 400, 100);
    ShowMain();
    EXPECT_EQ(GlanceLabels(), QStringLiteral("Fat 0%|Protein 0%|Carbs. 100%"));
}

struct LastDay {
    int year, month, day;
};

class LastDays : public frmMainTest, public ::testing::WithParamInterface<LastDay> {};

INSTANTIATE_TEST_SUITE_P(Months, LastDays,
                         ::testing::Values(LastDay{1993, 2, 28}, LastDay{2000, 2, 29},
                                           LastDay{2012, 2, 29}, LastDay{2026, 2, 28},
                                           LastDay{2028, 2, 29}, LastDay{2100, 2, 28},
                                           LastDay{2026, 4, 30}, LastDay{2026, 11, 30},
                                           LastDay{2026, 12, 31}, LastDay{2027, 1, 31}),
                         [](const auto& month) {
                             return std::to_string(month.param.year) + "_" +
                                    std::to_string(month.param.month);
                         });

TEST_P(LastDays, TheGlanceReachesFromTheFirstToTheLastDayOfTheChosenDaysMonth) {
    const QDate last(GetParam().year, GetParam().month, GetParam().day);
    const QDate first(GetParam().year, GetParam().month, 1);
    Log(first.addDays(-1), 90000, 100);
    Log(first, 1000, 100);
    Log(last, 2000, 100);
    Log(last.addDays(1), 90000, 100);
    App().CurrentDate = first.addDays(14);
    ShowMain();
    EXPECT_EQ(Caption("lblAvgCals"), QStringLiteral("Average daily calories: 1500"));
}

TEST_F(frmMainTest, TheGlanceIsOfTheChosenDaysMonthAndItsBoxNamesIt) {
    Log(QDate(2002, 4, 3), 1234, 100);
    App().CurrentDate = QDate(2002, 4, 30);
    ShowMain();
    EXPECT_EQ(Caption("ucBox1"), QStringLiteral("April 2002 at a glance"));
    EXPECT_EQ(Control("ucGlance1")->accessibleName(), QStringLiteral("April 2002 at a glance"));
    EXPECT_EQ(Caption("lblAvgCals"), QStringLiteral("Average daily calories: 1234"));
}

TEST_F(frmMainTest, AnotherMonthOrYearMovesTheGlanceAndNothingElse) {
    Log(QDate(2026, 10, 31), 1500, 100);
    Log(QDate(2025, 10, 1), 1600, 100);
    ShowMain();
    Pick("ucMonth", 10);
    EXPECT_EQ(Caption("ucBox1"), QStringLiteral("October 2026 at a glance"));
    EXPECT_EQ(Caption("lblAvgCals"), QStringLiteral("Average daily calories: 1500"));
    EXPECT_TRUE(Marked("imgFood", 31));
    Pick("ucYear", 2025 - 1991);
    EXPECT_EQ(Caption("ucBox1"), QStringLiteral("October 2025 at a glance"));
    EXPECT_EQ(Caption("lblAvgCals"), QStringLiteral("Average daily calories: 1600"));
    Pick("ucMonth", 9);
    EXPECT_EQ(GlanceLabels(), QStringLiteral("Total Fat: --|Protein: --|Carbs: --"));
    EXPECT_EQ(App().CurrentDate, QDate(2026, 11, 21));
    EXPECT_EQ(Front(), QStringLiteral("frmMain"));
}

TEST_F(frmMainTest, ADayOfAnotherMonthCanBeChosen) {
    ShowMain();
    Pick("ucMonth", 2);
    ClickDay(28);
    EXPECT_EQ(App().CurrentDate, QDate(2026, 2, 28));
    EXPECT_EQ(Front(), QStringLiteral("frmDay"));
}

TEST_F(frmMainTest, AChosenDayOtherThanTodayIsToldBesideTheCalendar) {
    frmMain* home = ShowMain();
    auto* hint = Find<QLabel>(home, QStringLiteral("lblHint"));
    EXPECT_EQ(hint->text(), QStringLiteral("Click a day to add foods"));
    App().CurrentDate = QDate(2026, 11, 5);
    home->DoWinInit();
    EXPECT_EQ(hint->text(), QStringLiteral("Chosen day: Thursday, November 05, 2026"));
}

TEST_F(frmMainTest, TabLeadsFromTheColumnToTheListsAndTheChosenDay) {
    ShowMain();
    Activate(TheNavigation().Frame());
    Find(TheNavigation().Frame(), QStringLiteral("cmdCommunity"))->setFocus(Qt::TabFocusReason);
    QStringList names;
    for (int step = 0; step < 3; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        names << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(names, (QStringList{QStringLiteral("ucMonth"), QStringLiteral("ucYear"),
                                  QStringLiteral("ucCalButton")}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Front(), QStringLiteral("frmDay"));
}

TEST_F(frmMainTest, AnotherUsersLogIsNotLookedAt) {
    Log(QDate(2026, 11, 7), 2000, 250);
    AddUser(QStringLiteral("Bert"));
    ShowMain();
    EXPECT_EQ(GlanceLabels(), QStringLiteral("Total Fat: --|Protein: --|Carbs: --"));
    EXPECT_FALSE(Marked("imgFood", 7));
}

// The tip

TEST_F(frmMainTest, TheTipOfTheDayIsShownAndFollowsAtEachComingForward) {
    frmMain* home = ShowMain();
    auto* tip = Find<QLabel>(home, QStringLiteral("lblTip"));
    EXPECT_EQ(tip->text(), QStringLiteral("Weigh one handful once."));
    App().TipOfTheDay = QStringLiteral("<b>Eat</b> & drink");
    home->DoWinInit();
    EXPECT_EQ(tip->text(), QStringLiteral("<b>Eat</b> & drink"));
    EXPECT_EQ(tip->textFormat(), Qt::PlainText);
}

TEST_F(frmMainTest, ATipLongerThanItsBoxCanBeScrolledFromTheKeyboard) {
    App().TipOfTheDay = QStringLiteral("one word and another ").repeated(100);
    frmMain* home = ShowMain();
    auto* area = home->findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return area->verticalScrollBar()->maximum() > 0; }));
    EXPECT_NE(area->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(QTest::qWaitFor([&] { return area->verticalScrollBar()->isVisible(); }));
    EXPECT_LE(area->widget()->width(), area->viewport()->width());
    area->setFocus();
    QTest::keyClick(area, Qt::Key_Down);
    EXPECT_GT(area->verticalScrollBar()->value(), 0);
}

TEST_F(frmMainTest, ATipThatComesAnewIsReadFromItsBeginning) {
    App().TipOfTheDay = QStringLiteral("one word and another ").repeated(100);
    frmMain* home = ShowMain();
    auto* bar = home->findChild<QScrollArea*>()->verticalScrollBar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar->maximum() > 0; }));
    bar->setValue(bar->maximum());
    home->DoWinInit();
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(frmMainTest, ATipThatFitsTakesNoTab) {
    ShowMain();
    auto* area = TheNavigation().Front()->findChild<QScrollArea*>();
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->focusPolicy(), Qt::NoFocus);
}

// The store

TEST_F(frmMainTest, ComesUpWhileAnotherProgramWritesToTheDatabase) {
    Log(QDate(2026, 11, 7), 2000, 250);
    SQLite::Database other(UserDB().Raw().getFilename(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN IMMEDIATE");
    other.exec("DELETE FROM USER_FOODS");
    ShowMain();
    EXPECT_EQ(Front(), QStringLiteral("frmMain"));
    EXPECT_TRUE(Marked("imgFood", 7));
    EXPECT_EQ(Caption("lblAvgCals"), QStringLiteral("Average daily calories: 2000"));
}

TEST_F(frmMainTest, AStoreThatFailsLeavesTheFrameAndTheNextTryShowsTheScreen) {
    Users(QStringLiteral("ALTER TABLE USER_FOODS RENAME TO gone"));
    EXPECT_EQ(ShowMain(), nullptr);
    EXPECT_TRUE(TheNavigation().Frame()->isVisible());
    EXPECT_EQ(endings, QList<int>{});
    Users(QStringLiteral("ALTER TABLE gone RENAME TO USER_FOODS"));
    Click(Find(TheNavigation().Frame(), QStringLiteral("cmdCal")));
    RunDeferredDeletes();
    ASSERT_NE(TheNavigation().Front(), nullptr);
    EXPECT_EQ(Front(), QStringLiteral("frmMain"));
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(frmMainTest, AMonthThatCannotBeReadEndsTheProgramWithAMessage) {
    const Unwinding leavesEvents;
    frmMain* home = ShowMain();
    Users(QStringLiteral("ALTER TABLE USER_FOODS RENAME TO gone"));
    QString message;
    testing::internal::CaptureStderr();
    WithModal(
        [&](QWidget* window) {
            message = qobject_cast<QMessageBox*>(window)->text();
            window->close();
        },
        [&] {
            Click(Find(home, QStringLiteral("ucMonth")), QPoint(5, 5));
            Click(Find(Find(home, QStringLiteral("ucMonth")), QStringLiteral("lblItem3")));
        });
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(message.contains(QStringLiteral("USER_FOODS"))) << message.toStdString();
    EXPECT_EQ(endings, QList<int>{1});
}

// The week

TEST_F(frmMainTest, TheWeekBoxStaysHiddenAndUnfilled) {
    Log(QDate(2026, 11, 20), 2000, 250);
    Weigh(QDate(2026, 11, 20), 190);
    ShowMain();
    EXPECT_FALSE(Control("ucBox_Week")->isVisible());
    const std::pair<const char*, const char*> labels[] = {
        {"aaCals", "Average daily calories............................"},
        {"aaChol", "Average daily cholesterol......................."},
        {"aaFiber", "Average daily fiber................................."},
        {"aaPerCarbs", "Percent from carbohydrates................"},
        {"aaPerFat", "Percent from fat................................."},
        {"aaPerPro", "Percent from protein..........................."},
        {"aaWeight", "Current Weight....................................."},
    };
    for (const auto& [name, caption] : labels) {
        EXPECT_EQ(Caption(name), QLatin1String(caption));
        EXPECT_TRUE(Control("ucBox_Week")->isAncestorOf(Control(name))) << name;
    }
}

// The pointer

class Pointer : public frmMainTest {
protected:
    void SetUp() override {
        frmMainTest::SetUp();
        home = ShowMain();
        button = home->findChild<ucCalButton*>();
        ASSERT_NE(button, nullptr);
        QCursor::setPos(home->mapToGlobal(QPoint(5, 5)));
    }
    bool Lit() const { return button->State() != 1; }

    frmMain* home = nullptr;
    ucCalButton* button = nullptr;
};

TEST_F(Pointer, MovingOverTheScreenTakesTheHighlightOffTheCalendar) {
    Hover(button);
    ASSERT_TRUE(Lit());
    Hover(home, QPoint(300, 5));
    EXPECT_FALSE(Lit());
}

TEST_F(Pointer, RestingWhereItWasChangesNothing) {
    Hover(home, QPoint(300, 5));
    Hover(button);
    Hover(home, QPoint(300, 5));
    EXPECT_TRUE(Lit());
    Hover(home, QPoint(301, 5));
    EXPECT_FALSE(Lit());
}

TEST_F(Pointer, MovingOverGlanceAndTipTakesTheHighlightOffToo) {
    for (const char* name :
         {"ucBox1", "ucGlance1", "picPIE", "lblAvgCals", "ucBox_Tip", "lblTip", "lblHint"}) {
        Hover(button);
        ASSERT_TRUE(Lit());
        Hover(Control(name), QPoint(20, 5));
        EXPECT_FALSE(Lit()) << name;
    }
}

TEST_F(Pointer, AllOffLeavesTheCalendarAloneWhereItIsNamedInAnyCase) {
    Hover(button);
    home->AllOff(QStringLiteral("ucCal"));
    home->AllOff(QStringLiteral("UCCAL"));
    EXPECT_TRUE(Lit());
    home->AllOff(QStringLiteral("ucCal_LG1"));
    EXPECT_FALSE(Lit());
}

TEST_F(Pointer, TheTimerTakesTheHighlightOffWhereItHasLeftTheScreen) {
    Hover(button);
    QCursor::setPos(home->mapToGlobal(QPoint(-50, -50)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Lit(); }));
}
