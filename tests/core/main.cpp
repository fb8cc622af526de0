#include "core/Appearance.h"
#include "core/Application.h"

#include <gtest/gtest.h>

/// The tests of this folder use the program's own application object.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    Appearance::Take();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
