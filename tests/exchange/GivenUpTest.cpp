#include "support/RawClient.h"

#include "exchange/Front.h"
#include "exchange/Site.h"

#include <gtest/gtest.h>

#include <future>

using namespace exchange;

/// A front in this process whose workers do not answer until the test ends.
class GivenUpTest : public testing::Test {
protected:
    GivenUpTest() {
        config_.port = 0;
        config_.log_requests = false;
        for (const auto* path : {Api, Sending, Page})
            router_.Add("GET", path, [this](const Ask&, Reply&) { end_.wait(); },
                        {.lane = Lane::Watch});
        front_.Open();
        front_.Start();
    }
    ~GivenUpTest() override {
        ending_.set_value();
        front_.Stop();
    }
    std::string Ask503(const std::string& path) {
        const auto reply =
            RawClient::Ask(front_.Port(), "GET " + path + " HTTP/1.1\r\nHost: x\r\n\r\n");
        EXPECT_EQ(RawClient::Status(reply), 503) << path;
        return reply;
    }

    static constexpr const char* Api = "/halvane/api/recipes";
    static constexpr const char* Sending = "/halvane/sendrecipe.asp";
    static constexpr const char* Page = "/halvane/community.asp";

private:
    std::promise<void> ending_;
    std::shared_future<void> end_ = ending_.get_future().share();
    Config config_;
    Router router_{Site::Fail};
    Visitors visitors_{config_, "secret"};
    Front front_{config_, router_, visitors_};
};

TEST_F(GivenUpTest, AnApiPathGetsAReasonInJson) {
    const auto reply = Ask503(Api);
    EXPECT_NE(reply.find("Content-Type: application/json\r\n"), std::string::npos);
    EXPECT_EQ(RawClient::Body(reply), R"({"reason":"The service is not available just now."})");
}

TEST_F(GivenUpTest, ASenderGetsASentence) {
    const auto reply = Ask503(Sending);
    EXPECT_NE(reply.find("Content-Type: text/plain; charset=utf-8\r\n"), std::string::npos);
    EXPECT_EQ(RawClient::Body(reply), "The service is not available just now.");
}

TEST_F(GivenUpTest, AReaderOfAPageGetsAPage) {
    const auto reply = Ask503(Page);
    EXPECT_NE(reply.find("Content-Type: text/html; charset=utf-8\r\n"), std::string::npos);
    EXPECT_NE(RawClient::Body(reply).find("not available just now"), std::string::npos);
}
