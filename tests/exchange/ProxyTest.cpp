#include "support/ExchangeTest.h"
#include "support/Port.h"
#include "support/Until.h"

#include "exchange/Text.h"

#include <csignal>

namespace {
/// The first block of code in a language on the page of the exchange.
std::string Block(const std::string& language) {
    const auto page = ReadFile(std::string(HALVANE_SOURCE_DIR) + "/docs/exchange.md");
    const auto begin = page.find("```" + language + "\n") + language.size() + 4;
    return page.substr(begin, page.find("```", begin) - begin);
}
} // namespace

/// The server behind a real web server, with the configuration that the page gives: the one that
/// the parameter names.
class ProxyTest : public ExchangeTest {
protected:
    /// Its workers would outlive it if it were killed.
    void TearDown() override {
        if (!proxy_)
            return;
        proxy_->Signal(SIGTERM);
        proxy_->Wait();
    }

    void StartBoth(Server::Settings settings = {}) {
        settings["trusted_proxies"] = "127.0.0.1";
        Start(settings);
        MakeCertificate();
        if (IsCaddy())
            StartCaddy();
        else
            StartNginx();
        EXPECT_TRUE(Until([&] { return bool(Client().Get("/health")); }))
            << ReadFile(folder_ / "log");
    }

    httplib::Client Client() const {
        httplib::Client client("https://127.0.0.1:" + std::to_string(port_.Number()));
        client.enable_server_certificate_verification(false);
        return client;
    }

    static bool IsCaddy() { return GetParam() == std::string("caddy"); }

private:
    void StartNginx() {
        WriteFile(folder_ / "configuration", NginxConfiguration());
        StartProxy({"/usr/sbin/nginx", "-p", folder_ / "", "-c", folder_ / "configuration"});
    }

    void StartCaddy() {
        WriteFile(folder_ / "configuration", CaddyConfiguration());
        StartProxy(
            {"caddy", "run", "--adapter", "caddyfile", "--config", folder_ / "configuration"});
    }

    void StartProxy(const std::vector<std::string>& command) {
        proxy_ =
            std::make_unique<Process>(command,
                                      Process::Environment{{"XDG_DATA_HOME", folder_.Path()},
                                                           {"XDG_CONFIG_HOME", folder_.Path()}},
                                      folder_ / "log");
    }

    void MakeCertificate() {
        Process::Run({"openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj",
                      "/CN=localhost", "-keyout", folder_ / "key", "-out", folder_ / "pem"});
    }

    /// That of the page, with the addresses and the certificate of this test.
    std::string BlockOf(const std::string& language, const std::string& address) {
        auto block = Block(language);
        exchange::ReplaceAll(block, address, "127.0.0.1:" + std::to_string(port_.Number()));
        exchange::ReplaceAll(block, "127.0.0.1:8613",
                             "127.0.0.1:" + std::to_string(Running().Port()));
        return block;
    }

    /// The port is held at this address only; at another one a program could have taken it.
    std::string CaddyConfiguration() {
        auto site = BlockOf("caddy", "recipes.example.org");
        site.insert(0, "https://");
        const auto onlyHere =
            "\nbind 127.0.0.1\ntls " + (folder_ / "pem") + " " + (folder_ / "key");
        site.insert(site.find('{') + 1, onlyHere);
        return "{\nadmin off\nauto_https off\n}\n" + site;
    }

    std::string NginxConfiguration() {
        auto server = BlockOf("nginx", "443");
        exchange::ReplaceAll(server, "/etc/ssl/recipes.pem", folder_ / "pem");
        exchange::ReplaceAll(server, "/etc/ssl/recipes.key", folder_ / "key");
        std::string temporary;
        for (const auto* kind : {"client_body", "proxy", "fastcgi", "uwsgi", "scgi"})
            temporary += std::string(kind) + "_temp_path " + (folder_ / kind) + ";\n";
        return "daemon off;\npid " + (folder_ / "pid") + ";\nerror_log stderr;\nevents {}\n" +
               "http {\naccess_log off;\n" + temporary + server + "}\n";
    }

    Folder folder_;
    Port port_;
    std::unique_ptr<Process> proxy_;
};
INSTANTIATE_TEST_SUITE_P(Each, ProxyTest, testing::Values("nginx", "caddy"),
                         [](const auto& run) { return std::string(run.param); });

TEST_P(ProxyTest, RepliesComeThroughAndBrowsersAreToldToUseTlsOnly) {
    StartBoth();
    const auto reply = Client().Get("/index.asp");
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, 200);
    EXPECT_EQ(reply->get_header_value("Strict-Transport-Security"), "max-age=31536000");
    EXPECT_NE(reply->get_header_value("Content-Security-Policy"), "");
}

/// nginx tells its length. Caddy hands it on in chunks, which the server refuses.
TEST_P(ProxyTest, ABodyInChunksIsTakenIfItsLengthIsKnownOtherwiseRefused) {
    StartBoth();
    const auto body = Soup().dump();
    const auto inChunks = [&](size_t, httplib::DataSink& sink) {
        sink.write(body.data(), body.size());
        sink.done();
        return true;
    };
    const auto reply = Client().Post("/halvane/api/recipes", inChunks, "application/json");
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, IsCaddy() ? 411 : 201) << reply->body;
}

TEST_P(ProxyTest, XForwardedForOfAClientIsIgnored) {
    AwaitFreshHour();
    StartBoth({{"misses_per_client_hour", "1"}});
    const auto statusAs = [&](const char* client) {
        return Client().Get("/halvane/api/recipes/11", {{"X-Forwarded-For", client}})->status;
    };
    EXPECT_EQ(statusAs("192.0.2.1"), 404);
    EXPECT_EQ(statusAs("192.0.2.2"), 429);
}
