#include "support/ExchangeTest.h"
#include "support/Until.h"

#include "exchange/Text.h"

namespace {
/// The first block of code in a language on the page of the exchange.
std::string Block(const std::string& language) {
    const auto page = ReadFile(std::string(HALVANE_SOURCE_DIR) + "/docs/exchange.md");
    const auto begin = page.find("```" + language + "\n") + language.size() + 4;
    return page.substr(begin, page.find("```", begin) - begin);
}
} // namespace

/// The server behind a real web server, with the configuration that the page gives.
class ProxyTest : public ExchangeTest {
protected:
    void StartBoth(Server::Settings settings = {}) {
        settings["trusted_proxies"] = "127.0.0.1";
        Start(settings);
        port_ = Server::FreePort();
        MakeCertificate();
        WriteFile(folder_ / "nginx.conf", Configuration());
        proxy_ = std::make_unique<Process>(std::vector<std::string>{"/usr/sbin/nginx", "-p",
                                                                    folder_ / "", "-c",
                                                                    folder_ / "nginx.conf"},
                                           Process::Environment{}, folder_ / "nginx.log");
        EXPECT_TRUE(Until([&] { return bool(Client().Get("/health")); }))
            << ReadFile(folder_ / "nginx.log");
    }

    httplib::Client Client() const {
        httplib::Client client("https://127.0.0.1:" + std::to_string(port_));
        client.enable_server_certificate_verification(false);
        return client;
    }

private:
    void MakeCertificate() {
        Process::Run({"openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj",
                      "/CN=localhost", "-keyout", folder_ / "key", "-out", folder_ / "pem"});
    }

    std::string Configuration() {
        auto server = Block("nginx");
        exchange::ReplaceAll(server, "443", "127.0.0.1:" + std::to_string(port_));
        exchange::ReplaceAll(server, "127.0.0.1:8613",
                             "127.0.0.1:" + std::to_string(Running().Port()));
        exchange::ReplaceAll(server, "/etc/ssl/recipes.pem", folder_ / "pem");
        exchange::ReplaceAll(server, "/etc/ssl/recipes.key", folder_ / "key");
        std::string temporary;
        for (const auto* kind : {"client_body", "proxy", "fastcgi", "uwsgi", "scgi"})
            temporary += std::string(kind) + "_temp_path " + (folder_ / kind) + ";\n";
        return "daemon off;\npid " + (folder_ / "pid") + ";\nerror_log stderr;\nevents {}\n" +
               "http {\naccess_log off;\n" + temporary + server + "}\n";
    }

    Folder folder_;
    int port_ = 0;
    std::unique_ptr<Process> proxy_;
};
INSTANTIATE_TEST_SUITE_P(ProxyTest, ProxyTest, testing::Values("sqlite"));

TEST_P(ProxyTest, RepliesComeThroughAndBrowsersAreToldToUseTlsOnly) {
    StartBoth();
    const auto reply = Client().Get("/index.asp");
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, 200);
    EXPECT_EQ(reply->get_header_value("Strict-Transport-Security"), "max-age=31536000");
    EXPECT_NE(reply->get_header_value("Content-Security-Policy"), "");
}

TEST_P(ProxyTest, ABodyInChunksReachesTheServerWithItsLength) {
    StartBoth();
    const auto body = Soup().dump();
    const auto inChunks = [&](size_t, httplib::DataSink& sink) {
        sink.write(body.data(), body.size());
        sink.done();
        return true;
    };
    const auto reply = Client().Post("/halvane/api/recipes", inChunks, "application/json");
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, 201) << reply->body;
}

TEST_P(ProxyTest, WhatAClientSaysOfItselfIsNotBelieved) {
    StartBoth({{"misses_per_client_hour", "1"}});
    const auto statusAs = [&](const char* client) {
        return Client().Get("/halvane/api/recipes/11", {{"X-Forwarded-For", client}})->status;
    };
    EXPECT_EQ(statusAs("192.0.2.1"), 404);
    EXPECT_EQ(statusAs("192.0.2.2"), 429);
}
