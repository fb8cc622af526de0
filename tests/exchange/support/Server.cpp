#include "support/Server.h"

#include "support/Until.h"

#include "exchange/Text.h"

#include <csignal>
#include <gtest/gtest.h>
#include <regex>

std::string Server::Program() {
    return HALVANE_EXCHANGE_PROGRAM;
}

int Server::PortIn(const std::string& log) {
    std::smatch found;
    const bool started = std::regex_search(log, found, std::regex(R"("started".*"port":(\d+)[,}])"));
    return started ? std::stoi(found[1]) : 0;
}

Server::Server(Settings settings) {
    settings.try_emplace("port", "0");
    settings.try_emplace("secret", "the secret of the servers that a test starts");
    Process::Environment environment;
    for (const auto& [name, value] : settings)
        environment["HALVANE_EXCHANGE_" + exchange::Upper(name)] = value;
    process_ = std::make_unique<Process>(std::vector<std::string>{Program()}, environment,
                                         folder_ / "log");
    const auto started = [&] {
        port_ = PortIn(Log());
        return port_ != 0 || !process_->Runs();
    };
    EXPECT_TRUE(Until(started) && port_ != 0) << Log();
}

Server::~Server() {
    process_.reset();
    EXPECT_EQ(Log().find("Sanitizer: "), std::string::npos) << Log();
}

httplib::Client Server::Client() const {
    httplib::Client client("127.0.0.1", port_);
    client.set_keep_alive(true);
    client.set_tcp_nodelay(true);
    client.set_read_timeout(30);
    return client;
}

int Server::End() {
    process_->Signal(SIGTERM);
    return process_->Wait();
}
