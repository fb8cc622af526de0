#include "records/tables/CsvWriter.h"

#include <gtest/gtest.h>

namespace {
class CsvWriterTest : public ::testing::Test {
protected:
    /// Each cell in a line of its own, without the head.
    std::string Written(const std::vector<Cell>& cells) {
        std::string text;
        CsvWriter writer("Title", [&text](std::string_view bytes) { text += bytes; });
        writer.Row(cells);
        writer.End();
        return text;
    }
};
} // namespace

TEST_F(CsvWriterTest, ANumberIsNoTextAndKeepsItsSign) {
    EXPECT_EQ(Written({-5.0, 0.1, -0.0}), "-5,0.1,0\r\n");
}

TEST_F(CsvWriterTest, ANumberReadsBackToTheLastBit) {
    const double third = 1.0 / 3;
    EXPECT_EQ(std::strtod(Written({third}).c_str(), nullptr), third);
    EXPECT_EQ(std::strtod(Written({5e-324}).c_str(), nullptr), 5e-324);
    EXPECT_EQ(std::strtod(Written({1.7976931348623157e308}).c_str(), nullptr),
              1.7976931348623157e308);
}

TEST_F(CsvWriterTest, WhatIsNotKnownIsEmptyAndADayIsIso) {
    EXPECT_EQ(Written({Cell(), QDate(2026, 3, 2), Cell()}), ",2026-03-02,\r\n");
}

TEST_F(CsvWriterTest, TheHeadHasNamesAndUnits) {
    std::string text;
    CsvWriter writer("Title", [&text](std::string_view bytes) { text += bytes; });
    writer.Head({{"Date", "", "date"}, {"Sodium", "mg", "sodium"}});
    writer.End();
    EXPECT_EQ(text, "Date,Sodium (mg)\r\n");
}
