#include "store/Transaction.h"

#include "StoreTest.h"

#include <SQLiteCpp/SQLiteCpp.h>

class TransactionTest : public StoreTest {
protected:
    /// Two writes through result sets, as a routine makes them.
    void AddAndName(int id) {
        Recordset row(foods_, "SELECT * FROM foods", Cursor::Dynamic, Lock::Optimistic);
        row.AddNew();
        row.Set("ID", id);
        row.Update();
        row.Close();
        row.Open(foods_, "SELECT * FROM foods WHERE ID = " + QString::number(id), Cursor::Dynamic,
                 Lock::Optimistic);
        row.Set("FoodName", "Muesli");
        row.Update();
    }
    /// What another program sees of the file at this moment.
    QVariant SeenFromOutside(const QString& sql) {
        SQLite::Database other(FoodsFile().toStdString(), SQLite::OPEN_READONLY);
        SQLite::Statement statement(other, sql.toStdString());
        statement.executeStep();
        return QString::fromStdString(statement.getColumn(0).getString());
    }
    static constexpr auto all = "SELECT count(*) || group_concat(FoodName) FROM FOODS";
};

TEST_F(TransactionTest, AllWritesAreThereAfterCommit) {
    Transaction whole(foods_);
    AddAndName(5);
    whole.Commit();
    EXPECT_EQ(SeenFromOutside(all), "1Muesli");
}

TEST_F(TransactionTest, NothingIsSeenFromOutsideBeforeCommit) {
    AddFood(1, "Bread");
    Transaction whole(foods_);
    AddAndName(5);
    EXPECT_EQ(SeenFromOutside(all), "1Bread");
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 2);
    whole.Commit();
}

TEST_F(TransactionTest, NothingIsThereWhereTheRoutineEndsBefore) {
    AddFood(1, "Bread");
    {
        const Transaction whole(foods_);
        AddAndName(5);
    }
    EXPECT_EQ(First(foods_, all), "1Bread");
}

TEST_F(TransactionTest, NothingIsThereWhereAWriteFails) {
    AddFood(1, "Bread");
    EXPECT_NE(ErrorOf([this] {
                  Transaction whole(foods_);
                  AddAndName(5);
                  AddAndName(1); // the key is taken
                  whole.Commit();
              }),
              0);
    EXPECT_EQ(First(foods_, all), "1Bread");
    EXPECT_EQ(ErrorOf([this] { AddAndName(5); }), 0);
}

TEST_F(TransactionTest, AfterOneHasEndedTheNextCanBegin) {
    for (int id = 1; id <= 3; ++id) {
        Transaction whole(foods_);
        AddAndName(id);
        whole.Commit();
    }
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 3);
}

TEST_F(TransactionTest, ASecondAtTheSameTimeIsRefusedAndLeavesTheFirstAsItIs) {
    Transaction whole(foods_);
    AddAndName(5);
    EXPECT_NE(ErrorOf([this] { Transaction inner(foods_); }), 0);
    whole.Commit();
    EXPECT_EQ(SeenFromOutside(all), "1Muesli");
}

TEST_F(TransactionTest, WhatTheStoreRollsBackByItselfEndsWell) {
    EXPECT_EQ(ErrorOf([this] {
                  const Transaction whole(foods_);
                  Run(foods_, "ROLLBACK");
              }),
              0);
}
