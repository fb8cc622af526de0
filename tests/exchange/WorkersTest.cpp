#include "exchange/Workers.h"

#include <gtest/gtest.h>

#include <future>
#include <latch>

using namespace exchange;

TEST(WorkersTest, AClientWithManyJobsDelaysOnlyItself) {
    Workers workers(2);
    std::promise<void> go;
    auto gone = go.get_future().share();
    std::latch begun(1);
    std::atomic<int> greedy = 0;
    workers.Add("greedy", [&, gone] {
        begun.count_down();
        gone.wait();
    });
    begun.wait();
    for (int i = 0; i < 100; ++i)
        workers.Add("greedy", [&] { ++greedy; });
    std::promise<int> other;
    workers.Add("other", [&] { other.set_value(greedy); });
    EXPECT_EQ(other.get_future().get(), 0) << "one client never has all of the threads";
    go.set_value();
}

TEST(WorkersTest, ClientsTakeTurns) {
    std::string order;
    std::promise<void> go;
    std::latch begun(1);
    std::latch done(5);
    Workers workers(1);
    workers.Add("first", [&, gone = go.get_future().share()] {
        begun.count_down();
        gone.wait();
    });
    begun.wait();
    for (const auto* client : {"a", "a", "a", "b", "c"})
        workers.Add(client, [&, client] {
            order += client;
            done.count_down();
        });
    go.set_value();
    done.wait();
    EXPECT_EQ(order, "abcaa");
}

TEST(WorkersTest, JobsThatHaveNotBegunAreDroppedAtTheEnd) {
    std::atomic<int> ran = 0;
    {
        Workers workers(1);
        std::latch begun(1);
        workers.Add("a", [&] {
            begun.count_down();
            ++ran;
        });
        begun.wait();
    }
    EXPECT_EQ(ran, 1);
}
