#pragma once

#include "support/Cluster.h"
#include "support/Server.h"

#include "exchange/Connection.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

/// A test against the real server, run on each of the two databases.
class ExchangeTest : public testing::TestWithParam<const char*> {
protected:
    using json = nlohmann::json;

    struct Created {
        int id = 0;
        std::string token;
    };

    bool OnServer() const { return GetParam() == std::string("postgresql"); }
    const std::string& Database();
    Server& Start(Server::Settings settings = {}); ///< on the test's database
    Server& Running() { return *server_; }
    void Restart(Server::Settings settings = {});

    httplib::Result Get(const std::string& path) { return server_->Client().Get(path); }
    httplib::Result Post(const std::string& path, const json& body, const std::string& token = {});
    std::string Text(const std::string& path); ///< the body of a reply with status 200

    static json Soup(bool isPublic = true);
    /// By position up to the serving, without a quantity.
    static json Row(double calories, const std::string& food = "Lentils, raw");
    Created Create(const json& recipe = Soup());
    void Add(const Created& recipe, const json& rows);
    int Send(const json& recipe = Soup(), const json& rows = json::array({Row(100)}));

    /// Counters begin anew with each hour. Waits if it ends within a minute, so that a test of a
    /// limit does not run across its end.
    static void AwaitFreshHour();

    long long Count(const std::string& sql); ///< the one number that a statement gives
    std::string Cell(const std::string& sql);

private:
    Folder folder_;
    std::string database_;
    std::unique_ptr<Server> server_;
};

/// Names the two runs of each test.
#define ON_BOTH_DATABASES(Suite)                                                                   \
    INSTANTIATE_TEST_SUITE_P(Both, Suite, testing::Values("sqlite", "postgresql"),                 \
                             [](const auto& run) { return std::string(run.param); })
