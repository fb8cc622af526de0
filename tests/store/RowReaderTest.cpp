#include "store/RowReader.h"

#include "StoreTest.h"

class RowReaderTest : public StoreTest {
protected:
    void AddTwoFoods() {
        AddFood(30001, "Rye");
        AddFood(30002, "Oats");
    }
};

TEST_F(RowReaderTest, WalksTheRowsInTheirOrderUpToTheLast) {
    AddTwoFoods();
    RowReader rows(foods_, "SELECT ID, FoodName FROM FOODS ORDER BY FoodName");
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.Text(1), "Oats");
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.Number(0), 30001);
    EXPECT_FALSE(rows.Next());
}

TEST_F(RowReaderTest, TakesStatementsInTheDialect) {
    AddTwoFoods();
    RowReader rows(foods_, "SELECT TOP 1 FoodName FROM FOODS WHERE FoodName <> 'OATS'");
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.Text(0), "Rye");
    EXPECT_FALSE(rows.Next());
}

TEST_F(RowReaderTest, GivesTheColumnsOfTheStatementAlone) {
    Run(users_, "INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-03', 150)");
    RowReader rows(users_, "SELECT * FROM USER_WEIGHTS");
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.Number(2), 150);
}

TEST_F(RowReaderTest, RefusesAStatementThatWritesBeforeAnythingRuns) {
    AddFood(30001, "Rye");
    for (const char* writes : {"DELETE FROM FOODS", "UPDATE FOODS SET FoodName = 'x'"})
        EXPECT_THROW(RowReader(foods_, writes), RuntimeError) << writes;
    EXPECT_EQ(First(foods_, "SELECT FoodName FROM FOODS").toString(), "Rye");
}

TEST_F(RowReaderTest, ANumberIsNothingWhereTheColumnHoldsNoFiniteOne) {
    RowReader row(users_, "SELECT 7, -2.5, '3', NULL, 9e999, x'31'");
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Number(0), 7);
    EXPECT_EQ(row.Number(1), -2.5);
    for (int column = 2; column < 6; ++column)
        EXPECT_FALSE(row.Number(column)) << column;
}

TEST_F(RowReaderTest, OnlyNullIsNull) {
    RowReader row(users_, "SELECT NULL, '', 0");
    ASSERT_TRUE(row.Next());
    EXPECT_TRUE(row.IsNull(0));
    EXPECT_FALSE(row.IsNull(1));
    EXPECT_FALSE(row.IsNull(2));
}

TEST_F(RowReaderTest, LettersBeyondAsciiAreReadAlsoWhereThereAreNoOthers) {
    RowReader row(users_, u"SELECT 'Öl', 'é', '日本'"_qs);
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Text(0), "Öl");
    EXPECT_EQ(row.Text(1), "é");
    EXPECT_EQ(row.Text(2), "日本");
}

TEST_F(RowReaderTest, ATextIsValidUtf8WhateverTheColumnHolds) {
    RowReader row(users_, "SELECT 'rye', 'cr\u00E8me', CAST(x'61C362' AS TEXT), NULL, 1.5, "
                          "CAST(x'C3' AS TEXT)");
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Text(0), "rye");
    EXPECT_EQ(row.Text(1), "cr\u00E8me");
    EXPECT_EQ(row.Text(2), "a\uFFFDb");
    EXPECT_EQ(row.Text(3), "");
    EXPECT_EQ(row.Text(4), "1.5");
    EXPECT_EQ(row.Text(5), "\uFFFD");
}

TEST_F(RowReaderTest, AByteOrderMarkBelongsToTheTextThatItBegins) {
    RowReader row(users_, u"SELECT '\uFEFFrye'"_qs);
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Text(0), "\uFEFFrye");
    EXPECT_EQ(row.Name(0), u"\uFEFFrye"_qs);
}

TEST_F(RowReaderTest, ADayIsADateAsTheStoreWritesIt) {
    RowReader row(users_, "SELECT '2002-03-04', '3/4/2002', '2002-02-30', NULL");
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Day(0), QDate(2002, 3, 4));
    for (int column = 1; column < 4; ++column)
        EXPECT_FALSE(row.Day(column).isValid()) << column;
}
