#include "runtime/Counted.h"

#include <gtest/gtest.h>

TEST(Counted, OneAloneTakesTheSingular) {
    EXPECT_EQ(Counted(0, "food", "foods"), "0 foods");
    EXPECT_EQ(Counted(1, "food", "foods"), "1 food");
    EXPECT_EQ(Counted(2, "food", "foods"), "2 foods");
    EXPECT_EQ(Counted(-1, "food", "foods"), "-1 foods");
}
