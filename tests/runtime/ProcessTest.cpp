#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/RuntimeError.h"
#include "runtime/Seams.h"

#include <cstdio>

#include <gtest/gtest.h>

namespace {
class SeamsTest : public ::testing::Test {
protected:
    ~SeamsTest() override { TheSeams() = Seams(); }
};
} // namespace

TEST(RuntimeError, CarriesNumberAndDescription) {
    const RuntimeError error(ErrorNumber::Overflow, QStringLiteral("Overflow: cr\u00e8me"));
    EXPECT_EQ(error.Number(), 6);
    EXPECT_EQ(error.Description(), QStringLiteral("Overflow: cr\u00e8me"));
    EXPECT_STREQ(error.what(), "Overflow: cr\u00e8me");
}

TEST(AppState, BeginsWithNothingAndIsReset) {
    ResetApp();
    EXPECT_FALSE(App().AppStarted);
    EXPECT_TRUE(App().CurrentDate.isNull());
    App().AppStarted = true;
    App().CurrentDate = QDate(2002, 3, 4);
    App().AppInfo.FAST = true;
    App().AppInfo.UITOP = 5;
    App().TipOfTheDay = QStringLiteral("tip");
    ResetApp();
    EXPECT_FALSE(App().AppStarted);
    EXPECT_TRUE(App().CurrentDate.isNull());
    EXPECT_FALSE(App().AppInfo.FAST);
    EXPECT_EQ(App().AppInfo.UITOP, 0);
    EXPECT_EQ(App().TipOfTheDay, QString());
}

TEST(Clock, TellsTheSystemsDayUntilItIsSet) {
    Clock::UseSystemClock();
    const QDate before = QDate::currentDate();
    const QDate today = Clock::Today();
    EXPECT_GE(today, before);
    EXPECT_LE(today, QDate::currentDate());
}

TEST(Clock, KeepsTheDayThatItWasSetTo) {
    for (const QDate day : {QDate(1970, 1, 1), QDate(2106, 2, 7)}) {
        Clock::SetToday(day);
        EXPECT_EQ(Clock::Today(), day);
    }
    Clock::UseSystemClock();
    EXPECT_NE(Clock::Today(), QDate(2106, 2, 7));
}

TEST_F(SeamsTest, DoNothingWhereNothingIsInstalled) {
    TheSeams() = Seams();
    EXPECT_FALSE(ShowAlert("message"));
    EXPECT_EQ(ShowScreen("frmDay"), nullptr);
    EXPECT_EQ(LoadScreen("frmDay"), nullptr);
    EXPECT_NO_THROW(ShowHome());
}

TEST_F(SeamsTest, HandOnWhatTheyAreGiven) {
    QObject owner;
    QObject screen;
    QStringList calls;
    TheSeams().ShowAlert = [&](const QString& message, QObject* over, bool cancel) {
        calls << message;
        return over == &owner && cancel;
    };
    TheSeams().ShowScreen = [&](const QString& name) {
        calls << QString(u"show " + name);
        return &screen;
    };
    TheSeams().LoadScreen = [&](const QString& name) {
        calls << QString(u"load " + name);
        return &screen;
    };
    TheSeams().ShowHome = [&] { calls << QStringLiteral("home"); };
    TheSeams().EndProcess = [&](int code) { calls << QString::number(code); };
    EXPECT_TRUE(ShowAlert("Sure?", &owner, true));
    EXPECT_EQ(ShowScreen("frmDay"), &screen);
    EXPECT_EQ(LoadScreen("frmMain"), &screen);
    ShowHome();
    EndProcess(3);
    EXPECT_EQ(calls, QStringList({"Sure?", "show frmDay", "load frmMain", "home", "3"}));
}

TEST_F(SeamsTest, EndProcessEndsAtOnceWithItsCodeAndFlushesFirst) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto end = [] {
        TheSeams() = Seams();
        std::setvbuf(stderr, nullptr, _IOFBF, 4096);
        std::fputs("last words", stderr);
        EndProcess(7);
    };
    EXPECT_EXIT(end(), ::testing::ExitedWithCode(7), "last words");
}
