#include "exchange/Config.h"

#include "exchange/MailAddress.h"
#include "exchange/NetworkAddress.h"
#include "exchange/Text.h"

#include <charconv>
#include <cstdlib>
#include <fstream>
#include <variant>

namespace exchange {
namespace {
struct Range {
    int Config::*member;
    int least;
    int most;
};
struct Choice {
    std::string Config::*member;
    std::vector<std::string> allowed;
};
using Place = std::variant<std::string Config::*, bool Config::*,
                           std::vector<std::string> Config::*, Range, Choice>;
struct Setting {
    const char* name;
    Place place;
};

constexpr int Many = 1'000'000'000;

const Setting Settings[] = {
    {"address", &Config::address},
    {"port", Range{&Config::port, 0, 65535}},
    {"database", &Config::database},
    {"public_url", &Config::public_url},
    {"trusted_proxies", &Config::trusted_proxies},
    {"secret", &Config::secret},
    {"secret_file", &Config::secret_file},
    {"workers", Range{&Config::workers, 1, 256}},
    {"connections", Range{&Config::connections, 1, 100'000}},
    {"connections_per_client", Range{&Config::connections_per_client, 1, 100'000}},
    {"request_seconds", Range{&Config::request_seconds, 1, 300}},
    {"idle_seconds", Range{&Config::idle_seconds, 1, 300}},
    {"log_requests", &Config::log_requests},
    {"mail_relay", &Config::mail_relay},
    {"mail_from", &Config::mail_from},
    {"mail_user", &Config::mail_user},
    {"mail_password", &Config::mail_password},
    {"mail_tls", Choice{&Config::mail_tls, {"required", "tried", "none"}}},
    {"mail_seconds", Range{&Config::mail_seconds, 1, 25}},
    {"body_bytes", Range{&Config::body_bytes, 1024, 64 << 20}},
    {"bodies_bytes", Range{&Config::bodies_bytes, 1 << 20, 1 << 30}},
    {"ingredients_per_recipe", Range{&Config::ingredients_per_recipe, 1, 10'000}},
    {"recipes_per_client_day", Range{&Config::recipes_per_client_day, 0, Many}},
    {"recipes_per_day", Range{&Config::recipes_per_day, 0, Many}},
    {"mails_per_client_day", Range{&Config::mails_per_client_day, 0, Many}},
    {"mails_per_recipient_day", Range{&Config::mails_per_recipient_day, 0, Many}},
    {"mails_per_day", Range{&Config::mails_per_day, 0, Many}},
    {"misses_per_client_hour", Range{&Config::misses_per_client_hour, 1, Many}},
    {"reports_per_client_day", Range{&Config::reports_per_client_day, 0, Many}},
    {"reports_per_day", Range{&Config::reports_per_day, 0, Many}},
    {"unfinished_hours", Range{&Config::unfinished_hours, 1, 1000}},
    {"address_days", Range{&Config::address_days, 0, 3650}},
};

/// Takes one value into the place of its setting.
struct Assign {
    Config& config;
    const std::string& name;
    const std::string& value;

    [[noreturn]] void Refuse(const std::string& wanted) const {
        throw ConfigError(name + " must be " + wanted + ", not \"" + value + "\"");
    }

    void operator()(std::string Config::*member) const { config.*member = value; }

    void operator()(bool Config::*member) const {
        if (value != "yes" && value != "no")
            Refuse("yes or no");
        config.*member = value == "yes";
    }

    void operator()(std::vector<std::string> Config::*member) const {
        config.*member = SplitWords(value, " ,");
    }

    void operator()(const Range& range) const {
        int number = 0;
        const auto [end, error] =
            std::from_chars(value.data(), value.data() + value.size(), number);
        if (error != std::errc{} || end != value.data() + value.size() || number < range.least ||
            number > range.most)
            Refuse("a whole number from " + std::to_string(range.least) + " to " +
                   std::to_string(range.most));
        config.*range.member = number;
    }

    void operator()(const Choice& choice) const {
        for (const auto& allowed : choice.allowed)
            if (value == allowed) {
                config.*choice.member = value;
                return;
            }
        Refuse("one of " + Join(choice.allowed, ", "));
    }
};

void Set(Config& config, const std::string& name, const std::string& value) {
    for (const auto& setting : Settings)
        if (setting.name == name)
            return std::visit(Assign{config, name, value}, setting.place);
    throw ConfigError("there is no setting \"" + name + "\"");
}

void ReadFile(Config& config, const std::string& name) {
    std::ifstream file(name);
    if (!file)
        throw ConfigError("cannot read " + name);
    for (std::string line; std::getline(file, line);) {
        line = Trimmed(line);
        if (line.empty() || line.front() == '#')
            continue;
        const auto equals = line.find('=');
        if (equals == std::string::npos)
            throw ConfigError("no \"=\" in the line \"" + line + "\" of " + name);
        Set(config, Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1)));
    }
    if (file.bad())
        throw ConfigError("cannot read " + name);
}

void ReadEnvironment(Config& config) {
    for (const auto& setting : Settings)
        if (const char* value = std::getenv(("HALVANE_EXCHANGE_" + Upper(setting.name)).c_str()))
            Set(config, setting.name, value);
}

void CheckProxies(const Config& config) {
    for (const auto& proxy : config.trusted_proxies)
        if (!Network::Read(proxy))
            throw ConfigError("trusted_proxies must be network addresses, not \"" + proxy + "\"");
}

void CheckDatabase(const Config& config) {
    if (config.database.empty())
        throw ConfigError("database must be the path of a file or an address");
}

void CheckMail(const Config& config) {
    if (!config.Mails())
        return;
    if (!config.mail_relay.starts_with("smtp://") && !config.mail_relay.starts_with("smtps://"))
        throw ConfigError("mail_relay must begin with smtp:// or smtps://");
    if (!IsMailAddress(config.mail_from))
        throw ConfigError("mail_from must be the address that mails are sent from");
}
} // namespace

Config Config::Read(const std::string& file) {
    Config config;
    if (!file.empty())
        ReadFile(config, file);
    ReadEnvironment(config);
    while (config.public_url.ends_with('/'))
        config.public_url.pop_back();
    CheckProxies(config);
    CheckDatabase(config);
    CheckMail(config);
    return config;
}

} // namespace exchange
