#pragma once

#include "IntakeTest.h"

#include "intake/ui/frmDay.h"

#include <QTest>

/// The day screen in a window that takes input.
class DayScreenTest : public IntakeTest {
protected:
    void SetUp() override {
        IntakeTest::SetUp();
        window.resize(766, 562);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void TearDown() override {
        screen.reset();
        IntakeTest::TearDown();
    }

    /// Brings the screen forward as the navigation does.
    void Open() {
        screen = std::make_unique<frmDay>(&window);
        screen->setGeometry(window.rect());
        screen->BeforeShow();
        screen->show();
        screen->DoWinInit();
    }

    QWidget window;
    std::unique_ptr<frmDay> screen;
};
