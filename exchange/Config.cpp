#include "exchange/Config.h"

#include "exchange/LimitTable.h"
#include "exchange/MailAddress.h"
#include "exchange/NetworkAddress.h"
#include "exchange/Text.h"

#include <charconv>
#include <fstream>
#include <optional>
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

const Setting Settings[] = {
    {"address", &Config::address},
    {"port", Range{&Config::port, 0, 65535}},
    {"database", &Config::database},
    {"public_url", &Config::public_url},
    {"trusted_proxies", &Config::trusted_proxies},
    {"secret", &Config::secret},
    {"secret_file", &Config::secret_file},
    {"log_requests", &Config::log_requests},
    {"mail_relay", &Config::mail_relay},
    {"mail_from", &Config::mail_from},
    {"mail_user", &Config::mail_user},
    {"mail_password", &Config::mail_password},
    {"mail_tls", Choice{&Config::mail_tls, {"required", "tried", "none"}}},
};

std::optional<Place> PlaceOf(const std::string& name) {
    for (const auto& setting : Settings)
        if (setting.name == name)
            return setting.place;
    for (const auto& limit : SettableLimits())
        if (limit.setting == name)
            return Range{limit.value, limit.least, limit.most};
    return {};
}

/// Sets one setting to a value.
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

[[noreturn]] void RefuseLine(const std::string& line, const std::string& file) {
    throw ConfigError("no \"=\" in the line \"" + line + "\" of " + file);
}

void CheckProxies(const Config& config) {
    for (const auto& proxy : config.trusted_proxies)
        if (!Network::Read(proxy))
            throw ConfigError("trusted_proxies must be network addresses, not \"" + proxy + "\"");
}

void CheckDatabase(const Config& config) {
    if (config.database.empty())
        throw ConfigError(
            "database must be the path of a file or the address of a PostgreSQL database");
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

std::vector<std::string> Config::Names() {
    std::vector<std::string> names;
    for (const auto& setting : Settings)
        names.emplace_back(setting.name);
    for (const auto& limit : SettableLimits())
        names.emplace_back(limit.setting);
    return names;
}

void Config::Set(const std::string& name, const std::string& value) {
    const auto place = PlaceOf(name);
    if (!place)
        throw ConfigError("there is no setting \"" + name + "\"");
    std::visit(Assign{*this, name, value}, *place);
}

/// CLI11's own reader would cut a password at a #, remove its quotes, and let the file override the
/// environment.
void Config::ReadFile(const std::string& name) {
    std::ifstream file(name);
    if (!file)
        throw ConfigError("cannot read " + name);
    for (std::string line; std::getline(file, line);) {
        line = Trimmed(line);
        if (line.empty() || line.front() == '#')
            continue;
        const auto equals = line.find('=');
        if (equals == std::string::npos)
            RefuseLine(line, name);
        Set(Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1)));
    }
    if (file.bad())
        throw ConfigError("cannot read " + name);
}

void Config::Settle() {
    while (public_url.ends_with('/'))
        public_url.pop_back();
    CheckProxies(*this);
    CheckDatabase(*this);
    CheckMail(*this);
}

} // namespace exchange
