#include "commands/DateOption.h"

#include "commands/Session.h"
#include "commands/UsageError.h"
#include "runtime/Clock.h"
#include "runtime/RuntimeError.h"
#include "support/Failure.h"
#include "support/HalvaneTest.h"

#include <sstream>

#include <CLI/CLI.hpp>

class DateOptionTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        Clock::SetToday(QDate(2026, 3, 1));
    }
    /// What a command with the option `--date` makes of the text.
    static QDate Parsed(const std::string& text) {
        std::ostringstream none;
        Session session(none, none);
        CLI::App program;
        QDate day;
        DateOption::Add(Command(program, session), "--date,-d", day, "The day");
        program.parse("--date " + text);
        return day;
    }
};

TEST_F(DateOptionTest, ReadsAnIsoDateAndTheTwoWords) {
    EXPECT_EQ(DateOption::Of("2026-03-02"), QDate(2026, 3, 2));
    EXPECT_EQ(DateOption::Of("today"), QDate(2026, 3, 1));
    EXPECT_EQ(DateOption::Of("Yesterday"), QDate(2026, 2, 28));
}

TEST_F(DateOptionTest, RefusesEveryOtherTextAndSaysHowToWriteADay) {
    for (const char* text : {"", "3/2/2026", "02.03.2026", "2026-3-2", "20260302", "2026-02-29",
                             "2026-13-01", "0099-12-31", "10000-01-01", "2026-03-02 ", "tomorrow"})
        EXPECT_EQ(FailureOf([&] { DateOption::Of(text); }), ErrorNumber::TypeMismatch) << text;
}

TEST_F(DateOptionTest, AnOptionSetsItsDay) {
    EXPECT_EQ(Parsed("2024-02-29"), QDate(2024, 2, 29));
}

TEST_F(DateOptionTest, ATextThatIsNoDayIsAUsageErrorThatNamesTheOption) {
    try {
        Parsed("2026-02-29");
        FAIL() << "the day was taken";
    } catch (const UsageError& wrong) {
        EXPECT_STREQ(
            wrong.what(),
            "--date: \"2026-02-29\" is not a day. Write it as 2026-03-02, today or yesterday.");
    }
}
