#include "exchange/Shares.h"
#include "exchange/NetworkAddress.h"

#include <gtest/gtest.h>

using namespace exchange;

namespace {
Visitor At(const std::string& address) {
    return {NetworkAddress::Read(address)->Networks()};
}
} // namespace

TEST(SharesTest, TheHolderOfMostIsTheGreatest) {
    Shares shares;
    EXPECT_EQ(shares.Greatest(), "");
    shares.Add(At("192.0.2.1"), 3);
    shares.Add(At("198.51.100.1"), 2);
    EXPECT_EQ(shares.Greatest(), "192.0.2.1/32");
    shares.Add(At("192.0.2.1"), -2);
    EXPECT_EQ(shares.Greatest(), "198.51.100.1/32");
    EXPECT_EQ(shares.Sum(), 3);
}

TEST(SharesTest, ManySmallNetworksOfOneOwnerCountAsOne) {
    Shares shares;
    shares.Add(At("192.0.2.1"), 9);
    for (int i = 0; i < 10; ++i)
        shares.Add(At("2001:db8:1:" + std::to_string(i) + "::1"), 1);
    EXPECT_TRUE(shares.Greatest().starts_with("2001:db8:1:")) << shares.Greatest();
}

TEST(SharesTest, WithinAWideNetworkTheNarrowOneThatHoldsMostIsFound) {
    Shares shares;
    shares.Add(At("2001:db8:1:1::1"), 2);
    shares.Add(At("2001:db8:2:1::1"), 1);
    shares.Add(At("2001:db8:2:2::1"), 2);
    EXPECT_EQ(shares.Greatest(), "2001:db8:2:2::/64");
}

TEST(SharesTest, AShareThatIsGivenBackLeavesNoTrace) {
    Shares shares;
    shares.Add(At("192.0.2.1"), 5);
    shares.Add(At("192.0.2.1"), -5);
    EXPECT_EQ(shares.Greatest(), "");
    EXPECT_EQ(shares.Of("192.0.2.1/32"), 0);
    EXPECT_EQ(shares.Of("192.0.0.0/16"), 0);
}
