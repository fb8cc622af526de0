#include "abuse/Abuse.h"

namespace AbuseCases {
namespace {
using namespace Raw;

/// A client may miss one recipe an hour here. The status of a second miss tells whether both
/// clients are counted as one.
struct Pair {
    const char* one;
    const char* other;
    bool same;
};

/// An unreadable name stands for the proxy itself, which is one client.
constexpr Pair Pairs[] = {
    {"11.1.1.1", "11.1.1.1", true},
    {"12.1.1.1", "12.1.1.1:4711", true},
    {"13.1.1.1", "::ffff:13.1.1.1", true},
    {"14.1.1.1", "[::ffff:14.1.1.1]:80", true},
    {"15.1.1.1", "::FFFF:0F01:0101", true},
    {"16.1.1.1", "9.9.9.9, 16.1.1.1", true},
    {"17.1.1.1", "9.9.9.9,8.8.8.8 ,17.1.1.1", true},
    {"18.1.1.1", "unknown, 18.1.1.1", true},
    {"2a01:1::1", "2a01:1::2", true},
    {"2a01:2::1", "2A01:0002:0:0:FFFF::9", true},
    {"2a01:3::1", "[2a01:3::1]", true},
    {"2a01:4::1", "[2a01:4::7]:443", true},
    {"2a01:5:0:0:1:2:3:4", "2a01:5::", true},
    {"2a01:6::1", "1.2.3.4, 2a01:6::5", true},
    {"", "unknown", true},
    {"localhost", "999.1.1.1", true},
    {"1.2.3.4.5", "_hidden", true},
    {"]::1[", "::1]", true},
    {"21.1.1.1", "21.1.1.2", false},
    {"22.1.1.1", "22.1.2.1", false},
    {"23.1.1.1", "23.2.1.1", false},
    {"2a01:11:1:1::1", "2a01:11:1:2::1", false},
    {"2a01:12:1::1", "2a01:12:2::1", false},
    {"24.1.1.1, 9.1.1.1", "24.1.1.1, 9.2.1.1", false},
};

std::string Miss(const std::string& client) {
    return Get(Api + "/77", "X-Forwarded-For: " + client + "\r\n");
}

/// A network of which each request comes from another address.
Abuse Wide(const std::string& name, const std::string& client, int times) {
    return {.name = name, .request = Miss(client), .status = 429, .times = times};
}
} // namespace

Abuses Networks() {
    Abuses all;
    for (const auto& [one, other, same] : Pairs)
        all.push_back({.name = std::string(other) + " after " + one,
                       .request = Miss(other),
                       .status = same ? 429 : 404,
                       .before = Miss(one)});
    all.push_back(Wide("a /64 with many addresses", "2a01:21:1:1::{n}", 3));
    all.push_back(Wide("a /56 with many households", "2a01:22:1:{n}::1", 9));
    all.push_back(Wide("a /48 with many households", "2a01:23:1:{n}00::1", 29));
    all.push_back(Wide("a /32 with many customers", "2a01:24:{n}::1", 99));
    all.push_back(Wide("a /24 with many addresses", "31.1.1.{n}", 9));
    all.push_back(Wide("a /16 with many addresses", "32.1.{n}.1", 29));
    return all;
}

} // namespace AbuseCases
