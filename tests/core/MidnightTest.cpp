#include "core/KeysAlone.h"

#include "core/Navigation.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Format.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "store/Connection.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

/// Midnight passes while a screen is open: at the turn of a year, around 29 February, and in the
/// nights in which clocks change.
class MidnightTest : public KeysAlone, public testing::WithParamInterface<QDate> {
protected:
    void SetUp() override {
        KeysAlone::SetUp();
        Clock::SetToday(Evening());
        App().CurrentDate = Evening();
    }
    static QDate Evening() { return GetParam(); }
    static QDate Morning() { return GetParam().addDays(1); }
    static void Open(const ScreenRow& screen) { ::ShowScreen(QLatin1String(screen.name)); }
    static void PassMidnight() { Clock::SetToday(Morning()); }
    static QString Stored(QDate day) { return day.toString(Qt::ISODate); }
    static QLabel* Label(const char* name) {
        return Find<QLabel>(TheNavigation().Front(), QLatin1String(name));
    }
};

TEST_P(MidnightTest, WhatIsTypedOnTheDayScreenBelongsToTheDayThatIsShown) {
    Open(Screens::Day);
    TabTo("txtWeight");
    Type("150");
    PassMidnight();
    Press(Qt::Key_Tab);
    TabAndOpen("cmdAddFoods", [] {
        Search("oats");
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(ChosenDay(), Evening());
    EXPECT_EQ(Users("SELECT UDate FROM USER_WEIGHTS"), Stored(Evening()));
    EXPECT_EQ(Users("SELECT UDate FROM USER_FOODS"), Stored(Evening()));
}

TEST_P(MidnightTest, TheDayScreenCopiesToTheNewDay) {
    Log("Breakfast");
    Open(Screens::Day);
    PassMidnight();
    TabTo("imgTrash");
    Press(Qt::Key_F10, Qt::ShiftModifier);
    Press(Qt::Key_T);
    EXPECT_EQ(Users("SELECT group_concat(UDate) FROM USER_FOODS"),
              QString(Stored(Evening()) + u',' + Stored(Morning())));
}

TEST_P(MidnightTest, TheSearchForTodayIsForTheNewDay) {
    Open(Screens::Day);
    PassMidnight();
    InDialog([] { PressControl(Qt::Key_F); },
             [] {
                 Search("oats");
                 Press(Qt::Key_Return);
             });
    EXPECT_EQ(ChosenDay(), Morning());
    EXPECT_EQ(Users("SELECT UDate FROM USER_FOODS"), Stored(Morning()));
}

TEST_P(MidnightTest, AReportThatIsOpenedThenEndsWithTheNewDay) {
    UserDB().Raw().exec("INSERT INTO USER_WEIGHTS (UID, UDate, Weight) VALUES (" +
                        std::to_string(person_) + ", '" + Stored(Morning()).toStdString() +
                        "', 150)");
    PassMidnight();
    Open(Screens::Report);
    const auto day = [](const char* field) {
        return Dates::Parse(Find<QLineEdit>(TheNavigation().Front(), QLatin1String(field))->text());
    };
    EXPECT_EQ(day("txtStart"), Morning().addDays(-6));
    EXPECT_EQ(day("txtEnd"), Morning());
}

TEST_P(MidnightTest, TheHomeScreenMarksTheNewDayAndKeepsTheChosenOne) {
    Open(Screens::Main);
    EXPECT_EQ(Label("lblHint")->text(), "Click a day to add foods");
    const QPoint before = Label("lblToday")->pos();
    PassMidnight();
    Find<QTimer>(TheNavigation().Front(), "tmrDay")->start(0);
    const QString hint = "Chosen day: " + FormatLongDate(Evening());
    EXPECT_TRUE(QTest::qWaitFor([&] { return Label("lblHint")->text() == hint; }));
    const bool sameMonth = Morning().month() == Evening().month();
    EXPECT_EQ(Label("lblToday")->isVisible(), sameMonth);
    EXPECT_EQ(Label("lblToday")->pos() != before, sameMonth);
    EXPECT_EQ(ChosenDay(), Evening());
}

INSTANTIATE_TEST_SUITE_P(Evenings, MidnightTest,
                         testing::Values(QDate(2026, 12, 31), QDate(2028, 2, 28),
                                         QDate(2028, 2, 29), QDate(2026, 3, 28),
                                         QDate(2026, 10, 24), QDate(2026, 3, 7)),
                         [](const auto& test) {
                             return test.param.toString(QStringLiteral("yyyyMMdd")).toStdString();
                         });
