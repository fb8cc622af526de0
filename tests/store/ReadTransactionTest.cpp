#include "store/ReadTransaction.h"

#include "StoreTest.h"

#include "store/Transaction.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

class ReadTransactionTest : public StoreTest {
protected:
    /// The result code of a change by another process.
    int WriteElsewhere() const {
        SQLite::Database other(UsersFile().toStdString(), SQLite::OPEN_READWRITE);
        return other.tryExec("INSERT INTO USER_WEIGHTS (Weight) VALUES (150)");
    }
    int Weights() { return First(users_, "SELECT count(*) FROM USER_WEIGHTS").toInt(); }
};

TEST_F(ReadTransactionTest, NothingChangesBetweenItsStatements) {
    {
        const ReadTransaction oneMoment(users_);
        EXPECT_EQ(Weights(), 0);
        EXPECT_EQ(WriteElsewhere(), SQLITE_BUSY);
        EXPECT_EQ(Weights(), 0);
    }
    EXPECT_EQ(WriteElsewhere(), SQLITE_OK);
    EXPECT_EQ(Weights(), 1);
}

TEST_F(ReadTransactionTest, WithinATransactionItSeesTheChangesAndLeavesThem) {
    Transaction change(users_);
    Run(users_, "INSERT INTO USER_WEIGHTS (Weight) VALUES (150)");
    {
        const ReadTransaction oneMoment(users_);
        EXPECT_EQ(Weights(), 1);
    }
    change.Commit();
    EXPECT_EQ(Weights(), 1);
}
