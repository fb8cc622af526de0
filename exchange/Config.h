#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace exchange {

class ConfigError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The settings of the operator: defaults, then a file of `name = value` lines, then the
/// environment (HALVANE_EXCHANGE_ and the name in capitals), then the command line. Read once at
/// the start and never changed. LimitTable explains those that limit something.
struct Config {
    std::string address = "127.0.0.1";
    int port = 8613;
    std::string database = "exchange.db";
    std::string public_url;
    std::vector<std::string> trusted_proxies;
    std::string secret;
    std::string secret_file = "exchange.secret";
    int workers = 8;
    int connections = 1000;
    int connections_per_client = 64;
    int request_seconds = 10;
    int idle_seconds = 15;
    bool log_requests = true;

    std::string mail_relay;
    std::string mail_from;
    std::string mail_user;
    std::string mail_password;
    std::string mail_tls = "required";
    int mail_seconds = 15;
    int mail_retry_seconds = 60;

    int body_bytes = 1 << 20;
    int bodies_bytes = 128 << 20;
    int ingredients_per_recipe = 500;
    int recipes_per_client_day = 100;
    int recipes_per_day = 20000;
    int mails_per_client_day = 20;
    int mails_per_recipient_day = 10;
    int mails_per_day = 1000;
    int misses_per_client_hour = 60;
    int reports_per_client_day = 10;
    int reports_per_day = 1000;
    int misses_per_hour = 20000;
    int searches_per_client_minute = 120;
    int pages_per_client_minute = 600;
    int unfinished_hours = 24;
    int address_days = 30;

    bool Mails() const { return !mail_relay.empty(); }

    static std::vector<std::string> Names(); ///< of all settings

    /// Each fails with ConfigError: on an unknown name or a value that the setting does not accept,
    /// on a file that cannot be read, on settings that contradict each other.
    void Set(const std::string& name, const std::string& value);
    void ReadFile(const std::string& name);
    void Settle();
};

} // namespace exchange
