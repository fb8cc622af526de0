#include "commands/DateOption.h"

#include "commands/CommandLine.h"
#include "commands/Session.h"
#include "runtime/Clock.h"
#include "runtime/RuntimeError.h"
#include "support/Failure.h"
#include "support/HalvaneTest.h"

#include <sstream>

class DateOptionTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        Clock::SetToday(QDate(2026, 3, 1));
    }
    struct Outcome {
        int code;
        QDate day;
        std::string errors;
    };
    /// What a program with the option `--date` makes of the text.
    static Outcome Parsed(const QString& text) {
        std::ostringstream out;
        std::ostringstream errors;
        Session session(out, errors);
        CommandLine line("program", "Takes a day", session);
        QDate day;
        DateOption::Add(line.Program(), "--date,-d", day, "The day");
        line.Program().Does([] { return Done; });
        const int code = line.Run({"program", "--date", text}, out, errors);
        return {code, day, errors.str()};
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
    const Outcome outcome = Parsed("2024-02-29");
    EXPECT_EQ(outcome.code, Done);
    EXPECT_EQ(outcome.day, QDate(2024, 2, 29));
}

TEST_F(DateOptionTest, ATextThatIsNoDayIsAUsageErrorThatNamesTheOption) {
    const Outcome outcome = Parsed("2026-02-29");
    EXPECT_EQ(outcome.code, Usage);
    EXPECT_EQ(outcome.errors,
              "halvane-data: --date: \"2026-02-29\" is not a day. Write it as 2026-03-02, today or "
              "yesterday. `program --help` shows how it is used.\n");
}
