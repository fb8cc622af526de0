#include "records/text/CsvText.h"

#include <gtest/gtest.h>

namespace {
struct CellCase {
    const char* text;
    const char* cell;
};
class CsvCellTest : public ::testing::TestWithParam<CellCase> {};
} // namespace

TEST_P(CsvCellTest, IsQuotedAndGuardedWhereItMustBe) {
    EXPECT_EQ(CsvText::ForeignCell(GetParam().text), GetParam().cell);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CsvCellTest,
    ::testing::Values(
        CellCase{"", ""}, CellCase{"Oats", "Oats"}, CellCase{" Oats ", " Oats "},
        CellCase{"Oats, cooked", "\"Oats, cooked\""}, CellCase{"1\" cookie", "\"1\"\" cookie\""},
        CellCase{"\"", "\"\"\"\""}, CellCase{"a\nb", "\"a\nb\""}, CellCase{"a\r\nb", "\"a\r\nb\""},
        CellCase{"crème brûlée", "crème brûlée"}, CellCase{"a;b", "a;b"}, CellCase{"=1+1", "'=1+1"},
        CellCase{"+1", "'+1"}, CellCase{"-1", "'-1"}, CellCase{"@SUM(A1)", "'@SUM(A1)"},
        CellCase{"@SUM(A1,A2)", "\"'@SUM(A1,A2)\""}, CellCase{"\tx", "'\tx"},
        CellCase{"\rx", "\"'\rx\""}, CellCase{"=A1,B1", "\"'=A1,B1\""},
        CellCase{"=\"x\"", "\"'=\"\"x\"\"\""}, CellCase{"a=b", "a=b"}, CellCase{"'x", "'x"}));

TEST(CsvText, OneOfOurOwnIsGuardedByNothing) {
    EXPECT_EQ(CsvText::Cell("=1+1"), "=1+1");
}

TEST(CsvText, TheSeparatorOfTheFileIsQuoted) {
    EXPECT_EQ(CsvText::Cell("a;b", ';'), "\"a;b\"");
    EXPECT_EQ(CsvText::Cell("a,b", ';'), "a,b");
    EXPECT_EQ(CsvText::Cell("a\tb", '\t'), "\"a\tb\"");
}

TEST(CsvText, ALineKeepsItsEmptyCells) {
    EXPECT_EQ(CsvText::ForeignLine({"", "=1", ""}), ",'=1,\r\n");
}
