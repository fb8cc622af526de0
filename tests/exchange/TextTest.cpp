#include "exchange/Text.h"
#include "exchange/Numbers.h"
#include "exchange/ShownText.h"
#include "exchange/StoredText.h"

#include <gtest/gtest.h>

using namespace exchange;

namespace {
std::string Line(std::string_view text) {
    return ShownText::Line(text, 1000);
}
} // namespace

TEST(ShownTextTest, ControlCharactersAreNotShown) {
    EXPECT_EQ(Line(std::string("a\0b\x01\x1b[2J\x7f", 9)), "ab[2J");
    EXPECT_EQ(Line("a\xc2\x80\xc2\x9b\xc2\x9f"
                   "b"),
              "ab");
}

TEST(ShownTextTest, DirectionOverridesAreNotShown) {
    for (const auto* turn : {"\u202a", "\u202b", "\u202c", "\u202d", "\u202e", "\u2066", "\u2067",
                             "\u2068", "\u2069", "\u200e", "\u200f", "\u061c"})
        EXPECT_EQ(Line("gpj" + std::string(turn) + ".exe"), "gpj.exe");
    EXPECT_EQ(Line("חמין"), "חמין");
}

TEST(ShownTextTest, InvisibleLettersAreNotShown) {
    for (const auto* letter : {"\u200b", "\u2060", "\ufeff", "\u00ad", "\u034f", "\u3164", "\uffa0",
                               "\u180e", "\U000e0041", "\ufffe", "\U0001ffff", "\ufdd0"})
        EXPECT_EQ(Line("so" + std::string(letter) + "up"), "soup");
}

TEST(ShownTextTest, JoinersStayWithTheLettersThatTheyJoin) {
    EXPECT_EQ(Line("👩‍🍳"), "👩‍🍳");
    EXPECT_EQ(Line("می‌خواهم"), "می‌خواهم");
    EXPECT_EQ(Line("❤️"), "❤️");
}

TEST(ShownTextTest, ALineHasSingleBlanksAndNoneAtItsEnds) {
    EXPECT_EQ(Line(" \t a\r\n\r\n b\u00a0\u3000c\u2028"), "a b c");
    EXPECT_EQ(Line(""), "");
}

TEST(ShownTextTest, ALongLineEndsWithDots) {
    EXPECT_EQ(ShownText::Line("äpfel", 5), "äpfel");
    EXPECT_EQ(ShownText::Line("äpfel", 4), "äpfe…");
    EXPECT_EQ(ShownText::Line("ab cd", 3), "ab…");
    EXPECT_EQ(ShownText::Line(std::string(1 << 20, 'x'), 120), std::string(120, 'x') + "…");
}

TEST(ShownTextTest, AnInvisibleNameIsShownAsNoName) {
    for (const auto& name :
         {std::string(), std::string(" "), std::string("\t\r\n"), std::string(1, '\0'),
          std::string("\u200b"), std::string("\u00a0\u2800"), std::string("\u200d\ufe0f"),
          std::string("\u3164"), std::string("\u202e\u2069")})
        EXPECT_EQ(ShownText::Name(name, 100), "(no name)");
    EXPECT_EQ(ShownText::Name("\u200b.", 100), ".");
}

TEST(ShownTextTest, LinesKeepTheirEndsAndTabs) {
    EXPECT_EQ(ShownText::Lines("1.\tCut\r\n2. Boil\r3.\n\n4.\u2028\u202e5.\x07"),
              "1.\tCut\n2. Boil\n3.\n\n4.\n5.");
}

TEST(ShownTextTest, InvalidUtf8EndsTheText) {
    EXPECT_EQ(Line("ab\xff"
                   "cd"),
              "ab");
}

TEST(StoredTextTest, EveryTextComesBack) {
    for (const auto& text : {std::string(), std::string("soup"), std::string(1, '\0'),
                             std::string("\x01", 1), std::string("\0\x01\0\x01\x01", 5),
                             std::string("\x01"
                                         "0\x01"
                                         "1",
                                         4),
                             std::string("a\0", 2)}) {
        const auto stored = StoredText::Of(text);
        EXPECT_EQ(StoredText::Read(stored), text);
        EXPECT_EQ(stored.find('\0'), std::string::npos);
    }
}

TEST(StoredTextTest, OtherTextsAreStoredUnchanged) {
    EXPECT_EQ(StoredText::Of("1.\tCrème\r\n\x1b"), "1.\tCrème\r\n\x1b");
}

TEST(NumbersTest, LargeNumbersAreWrittenWithTheirPowerOfTen) {
    EXPECT_EQ(Numbers::Whole(999'999'999'999), "999999999999");
    EXPECT_EQ(Numbers::Whole(1e12), "1e+12");
    EXPECT_EQ(Numbers::Short(-1.7976931348623157e308), "-1.8e+308");
    EXPECT_EQ(Numbers::Short(5e-324), "0");
    EXPECT_EQ(Numbers::Counted(123'456'789'012.5, "minute"), "123456789012.5 minutes");
}
