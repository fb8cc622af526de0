#include "support/Files.h"

#include "exchange/LimitTable.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace exchange;

TEST(LimitTableTest, ThePageShowsEachLimitAsItIs) {
    const auto page = ReadFile(std::string(HALVANE_SOURCE_DIR) + "/docs/exchange.md");
    for (const auto& limit : AllLimits())
        EXPECT_NE(page.find("\n" + limit.Row() + "\n"), std::string::npos) << limit.Row();
}

TEST(LimitTableTest, EachDefaultIsAValidValue) {
    for (const auto& limit : SettableLimits())
        EXPECT_NO_THROW(Config().Set(limit.setting, std::to_string(limit.Default())))
            << limit.setting;
}

TEST(LimitTableTest, ValuesOutsideTheBoundsAreRefused) {
    for (const auto& limit : SettableLimits()) {
        Config config;
        EXPECT_THROW(config.Set(limit.setting, std::to_string(limit.least - 1)), ConfigError);
        EXPECT_THROW(config.Set(limit.setting, std::to_string(limit.most + 1)), ConfigError);
    }
}

TEST(LimitTableTest, FixedLimitsHaveNoSettingAndComeLast) {
    const auto settable = SettableLimits().size();
    ASSERT_LT(settable, AllLimits().size());
    for (const auto& limit : AllLimits().subspan(settable))
        EXPECT_TRUE(limit.IsFixed()) << limit.name;
}

TEST(LimitTableTest, ThePageHasNoOtherRows) {
    const auto page = ReadFile(std::string(HALVANE_SOURCE_DIR) + "/docs/exchange.md");
    const auto begin = page.find("| limit | setting |");
    ASSERT_NE(begin, std::string::npos);
    const auto table = page.substr(begin, page.find("\n\n", begin) - begin);
    const auto rows =
        std::count(table.begin(), table.end(), '\n') - 1; // without the two of the head
    EXPECT_EQ(static_cast<size_t>(rows), AllLimits().size());
}

TEST(LimitTableTest, TheDeliveredFileNamesEachSettingWithItsDefault) {
    const auto file = ReadFile(std::string(HALVANE_SOURCE_DIR) + "/exchange/halvane-exchange.conf");
    for (const auto& limit : SettableLimits()) {
        const auto line =
            "\n# " + std::string(limit.setting) + " = " + std::to_string(limit.Default()) + "\n";
        EXPECT_NE(file.find(line), std::string::npos) << line;
    }
}
