#include "support/Files.h"

#include "exchange/LimitTable.h"

#include <gtest/gtest.h>

using namespace exchange;

TEST(LimitTableTest, ThePageShowsEachLimitAsItIs) {
    const auto page = ReadFile(std::string(HALVANE_SOURCE_DIR) + "/docs/exchange.md");
    for (const auto& limit : AllLimits())
        EXPECT_NE(page.find("\n" + limit.Row() + "\n"), std::string::npos) << limit.Row();
}

TEST(LimitTableTest, EachDefaultIsOneThatTheSettingTakes) {
    for (const auto& limit : AllLimits())
        EXPECT_NO_THROW(Config().Set(limit.setting, std::to_string(limit.Default())))
            << limit.setting;
}

TEST(LimitTableTest, WhatIsOutsideOfTheBoundsIsNotTaken) {
    for (const auto& limit : AllLimits()) {
        Config config;
        EXPECT_THROW(config.Set(limit.setting, std::to_string(limit.least - 1)), ConfigError);
        EXPECT_THROW(config.Set(limit.setting, std::to_string(limit.most + 1)), ConfigError);
    }
}
