#include "support/ExchangeTest.h"

#include "exchange/Pool.h"
#include "exchange/Refusal.h"

using namespace exchange;

/// What becomes of a connection when its lease ends.
class PoolTest : public ExchangeTest {
protected:
    /// Runs on a lease, and tells whether the next lease has another connection.
    template <class Work> bool IsClosedAfter(const Work& work) {
        Pool pool(Database());
        { Pool::Lease(pool)->Once("CREATE TEMPORARY TABLE mark (Number INTEGER)"); }
        try {
            const Pool::Lease lease(pool);
            work(*lease);
        } catch (const std::exception&) { // only what becomes of the connection counts
        }
        try {
            Pool::Lease(pool)->Change("INSERT INTO mark (Number) VALUES (1)");
            return false;
        } catch (const std::exception&) {
            return true;
        }
    }
};
ON_BOTH_DATABASES(PoolTest);

TEST_P(PoolTest, ARefusalKeepsTheConnection) {
    EXPECT_FALSE(IsClosedAfter([](Connection&) { throw Refusal(429, "Too many."); }));
}

TEST_P(PoolTest, ARefusalWithinATransactionRollsBackAndKeepsTheConnection) {
    EXPECT_FALSE(IsClosedAfter([](Connection& connection) {
        Transaction transaction(connection);
        connection.Change("INSERT INTO mark (Number) VALUES (2)");
        throw Refusal(429, "Too many.");
    }));
}

TEST_P(PoolTest, AFailedStatementClosesTheConnection) {
    EXPECT_TRUE(IsClosedAfter([](Connection& connection) { connection.Once("SELECT nothing"); }));
    EXPECT_TRUE(IsClosedAfter([](Connection& connection) {
        connection.Change("INSERT INTO mark (Nothing) VALUES (1)");
    }));
}

TEST_P(PoolTest, AFailureThatIsCaughtWithinTheLeaseClosesTheConnectionToo) {
    EXPECT_TRUE(IsClosedAfter([](Connection& connection) {
        EXPECT_THROW(connection.Once("SELECT nothing"), std::exception);
    }));
}
