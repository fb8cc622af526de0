#include "core/WindowScale.h"

#include "core/CoreTest.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "runtime/Seams.h"
#include "runtime/Settings.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

namespace {

class WindowScaleTest : public CoreTest {
protected:
    void TearDown() override {
        qunsetenv("QT_SCALE_FACTOR");
        SetRegValue("UISCALE", "100");
        WindowScale::TellPlatform();
        CoreTest::TearDown();
    }
    static QByteArray FactorFor(const char* kept, const char* desktop) {
        if (*desktop)
            qputenv("QT_SCALE_FACTOR", desktop);
        else
            qunsetenv("QT_SCALE_FACTOR");
        SetRegValue("UISCALE", kept);
        WindowScale::TellPlatform();
        return qgetenv("QT_SCALE_FACTOR");
    }
};

/// The frame, with the keys of the size.
class ScaleKeysTest : public WindowScaleTest {
protected:
    void SetUp() override {
        WindowScaleTest::SetUp();
        OpenEmptyDatabases();
        RegisterScreens(TheNavigation());
        AddUser();
        ::ShowHome();
        Activate(TheNavigation().Frame());
    }
    static QString Note() { return Find<QLabel>(TheNavigation().Frame(), "lblNote")->text(); }
    static void Control(Qt::Key key) {
        QTest::keyClick(TheNavigation().Frame(), key, Qt::ControlModifier);
    }
};

} // namespace

TEST_F(WindowScaleTest, AKeptSizeIsOneOfTheSteps) {
    EXPECT_EQ(WindowScale::Stored(), 100);
    static constexpr std::pair<const char*, int> rows[] = {{"125", 125},
                                                           {"130", 125},
                                                           {"99", 100},
                                                           {"-3", 100},
                                                           {"5000", 200},
                                                           {"large", 100},
                                                           {"99999999999999", 100},
                                                           {"", 100}};
    for (const auto& [kept, step] : rows) {
        SetRegValue("UISCALE", kept);
        EXPECT_EQ(WindowScale::Stored(), step) << kept;
    }
}

TEST_F(WindowScaleTest, TheStepsGoUpAndDownToTheirEnds) {
    QList<int> up{100};
    while (WindowScale::Larger(up.last()) != up.last())
        up << WindowScale::Larger(up.last());
    EXPECT_EQ(up, QList<int>({100, 110, 125, 150, 175, 200}));
    for (qsizetype i = 1; i < up.size(); ++i)
        EXPECT_EQ(WindowScale::Smaller(up[i]), up[i - 1]);
    EXPECT_EQ(WindowScale::Smaller(100), 100);
}

TEST_F(WindowScaleTest, TheLargestStepIsTheOneThatFitsTheScreen) {
    const QSize frame(850, 620);
    EXPECT_EQ(WindowScale::LargestThatFits(frame, {1920, 1080}, 100), 150);
    EXPECT_EQ(WindowScale::LargestThatFits(frame, {3840, 2160}, 100), 200);
    EXPECT_EQ(WindowScale::LargestThatFits(frame, {800, 600}, 100), 100);
    EXPECT_EQ(WindowScale::LargestThatFits(frame, {1280, 720}, 150), 150)
        << "a screen of 1920 by 1080 as a process at 150 % sees it";
}

TEST_F(WindowScaleTest, ThePlatformIsToldTheSizeOnTopOfTheDesktops) {
    EXPECT_EQ(FactorFor("150", ""), "1.5");
    EXPECT_EQ(WindowScale::Started(), 150);
    EXPECT_EQ(FactorFor("150", "2"), "3");
    EXPECT_EQ(FactorFor("125", "nonsense"), "1.25");
    EXPECT_EQ(FactorFor("100", "2"), "2");
    EXPECT_EQ(FactorFor("100", ""), "");
}

TEST_F(WindowScaleTest, ProgramsThatItOpensKeepTheirOwnSize) {
    FactorFor("150", "2");
    WindowScale::ClearEnvironment();
    EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), "2");
    FactorFor("150", "");
    WindowScale::ClearEnvironment();
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
}

TEST_F(ScaleKeysTest, CtrlMinusAndZeroKeepASmallerSizeForTheNextStart) {
    SetRegValue("UISCALE", "175");
    Control(Qt::Key_Minus);
    EXPECT_EQ(WindowScale::Stored(), 150);
    EXPECT_EQ(Note(), "The size will be 150 % from the next start");
    EXPECT_TRUE(Find(TheNavigation().Frame(), "lblNote")->isVisible());
    Control(Qt::Key_0);
    EXPECT_EQ(WindowScale::Stored(), 100);
    EXPECT_EQ(Note(), "The size stays at 100 %");
    Control(Qt::Key_Minus);
    EXPECT_EQ(Note(), "100 % is the smallest size");
}

/// The screen of these tests is smaller than the frame.
TEST_F(ScaleKeysTest, CtrlPlusRefusesASizeThatDoesNotFitTheScreen) {
    for (const Qt::Key plus : {Qt::Key_Plus, Qt::Key_Equal}) {
        Control(plus);
        EXPECT_EQ(WindowScale::Stored(), 100);
        EXPECT_EQ(Note(), "110 % does not fit this screen");
    }
}

TEST_F(ScaleKeysTest, CtrlPlusAtTheLargestSizeSaysSo) {
    SetRegValue("UISCALE", "200");
    Control(Qt::Key_Plus);
    EXPECT_EQ(WindowScale::Stored(), 200);
    EXPECT_EQ(Note(), "200 % is the largest size");
}
