#include "exchange/NetworkAddress.h"

#include <gtest/gtest.h>

using namespace exchange;

namespace {
std::string Written(const std::optional<NetworkAddress>& address) {
    return address ? address->Written() : "none";
}
std::string Read(std::string_view text) {
    return Written(NetworkAddress::Read(text));
}
std::string Forwarded(std::string_view text) {
    return Written(NetworkAddress::ReadForwarded(text));
}
bool Has(std::string_view network, std::string_view address) {
    return Network::Read(network)->Has(*NetworkAddress::Read(address));
}
} // namespace

TEST(NetworkAddressTest, AnAddressHasOneWrittenForm) {
    EXPECT_EQ(Read("192.0.2.1"), "192.0.2.1");
    EXPECT_EQ(Read("0:0:0:0:0:0:0:1"), "::1");
    EXPECT_EQ(Read("2001:DB8::A"), "2001:db8::a");
}

TEST(NetworkAddressTest, Ipv4WithinIpv6IsIpv4) {
    EXPECT_EQ(Read("::ffff:192.0.2.1"), "192.0.2.1");
    EXPECT_EQ(Read("::FFFF:c000:201"), "192.0.2.1");
}

TEST(NetworkAddressTest, InvalidAddressesAreRefused) {
    for (const auto* text :
         {"", "localhost", "192.0.2", "192.0.2.1:80", "10.0.0.0/8", "::g", " ::1"})
        EXPECT_FALSE(NetworkAddress::Read(text)) << text;
    EXPECT_FALSE(NetworkAddress::Read({"::1\0", 4}));
}

TEST(NetworkAddressTest, AForwardedAddressMayHaveBracketsAndAPort) {
    EXPECT_EQ(Forwarded("192.0.2.1"), "192.0.2.1");
    EXPECT_EQ(Forwarded("192.0.2.1:4711"), "192.0.2.1");
    EXPECT_EQ(Forwarded("[2001:db8::1]"), "2001:db8::1");
    EXPECT_EQ(Forwarded("[2001:db8::1]:4711"), "2001:db8::1");
    EXPECT_EQ(Forwarded("2001:db8::1"), "2001:db8::1");
    for (const auto* text : {"", ":", "[", "[]", "]:80", "unknown", "192.0.2.1:80:80", "_hidden"})
        EXPECT_EQ(Forwarded(text), "none") << text;
}

TEST(NetworkAddressTest, AClientIsInNetworksOfGrowingWidth) {
    EXPECT_EQ(NetworkAddress::Read("2001:db8:1:2:3:4:5:6")->Networks(),
              (std::vector<std::string>{"2001:db8:1:2::/64", "2001:db8:1::/56", "2001:db8:1::/48",
                                        "2001:db8::/32"}));
    EXPECT_EQ(NetworkAddress::Read("192.0.2.77")->Networks(),
              (std::vector<std::string>{"192.0.2.77/32", "192.0.2.0/24", "192.0.0.0/16"}));
}

TEST(NetworkAddressTest, ANetworkContainsTheAddressesWithItsPrefix) {
    EXPECT_TRUE(Has("10.0.0.0/8", "10.255.0.1"));
    EXPECT_TRUE(Has("10.0.0.0/8", "::ffff:10.1.2.3"));
    EXPECT_FALSE(Has("10.0.0.0/8", "11.0.0.1"));
    EXPECT_TRUE(Has("192.0.2.1", "192.0.2.1"));
    EXPECT_FALSE(Has("192.0.2.1", "192.0.2.2"));
    EXPECT_TRUE(Has("2001:db8::/33", "2001:db8:7fff::1"));
    EXPECT_FALSE(Has("2001:db8::/33", "2001:db8:8000::1"));
    EXPECT_TRUE(Has("::/0", "2001:db8::1"));
    EXPECT_FALSE(Has("0.0.0.0/0", "2001:db8::1"));
}

TEST(NetworkAddressTest, ANetworkWithAnImpossibleWidthIsRefused) {
    for (const auto* text : {"10.0.0.0/33", "::/129", "10.0.0.0/", "10.0.0.0/-1", "/8", "x/8"})
        EXPECT_FALSE(Network::Read(text)) << text;
}
