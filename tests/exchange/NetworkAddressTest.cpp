#include "exchange/NetworkAddress.h"

#include <gtest/gtest.h>

using namespace exchange;

TEST(NetworkAddressTest, AnAddressHasOneWayToBeWritten) {
    EXPECT_EQ(NetworkAddress::Canonical("192.0.2.1"), "192.0.2.1");
    EXPECT_EQ(NetworkAddress::Canonical("0:0:0:0:0:0:0:1"), "::1");
    EXPECT_EQ(NetworkAddress::Canonical("2001:DB8::A"), "2001:db8::a");
}

TEST(NetworkAddressTest, Ipv4WithinIpv6IsIpv4) {
    EXPECT_EQ(NetworkAddress::Canonical("::ffff:192.0.2.1"), "192.0.2.1");
    EXPECT_EQ(NetworkAddress::Canonical("::FFFF:c000:201"), "192.0.2.1");
}

TEST(NetworkAddressTest, WhatIsNoAddressHasNoName) {
    for (const auto* text :
         {"", "localhost", "192.0.2", "192.0.2.1:80", "10.0.0.0/8", "::g", " ::1"})
        EXPECT_FALSE(NetworkAddress::Canonical(text)) << text;
}

TEST(NetworkAddressTest, AHouseholdIsTheFirstHalfOfAnIpv6Address) {
    EXPECT_EQ(NetworkAddress::Household("2001:db8:1:2:3:4:5:6"), "2001:db8:1:2::");
    EXPECT_EQ(NetworkAddress::Household("2001:db8:1:2::"), "2001:db8:1:2::");
    EXPECT_EQ(NetworkAddress::Household("192.0.2.1"), "192.0.2.1");
}
