#include "core/CoreTest.h"

#include "analysis/ucLineChart.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "runtime/Settings.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucButtonA.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPointer>

namespace {

const QString NoWeight = QStringLiteral(
    "There is no weight entry from 3/28/2002 to 4/3/2002, so the percent bars and the average "
    "values of this period cannot be worked out. Enter a weight for one of its days on the screen "
    "\"Daily Details\", in the field \"Enter today's weight:\".");

/// The report in the real frame.
class ReportScreenTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        OpenEmptyDatabases();
        AddUser();
        Clock::SetToday(QDate(2002, 4, 3));
        App().CurrentDate = QDate(2002, 4, 3);
        RegisterScreens(TheNavigation());
        ::ShowHome();
    }
    QWidget* Show(const char* name) {
        auto* screen = qobject_cast<QWidget*>(::ShowScreen(QLatin1String(name)));
        RunDeferredDeletes();
        return screen;
    }
    void Weigh() {
        Users(QStringLiteral("INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-03', 150)"));
    }
};

} // namespace

TEST_F(ReportScreenTest, TheNavigationButtonBringsIt) {
    Weigh();
    auto* button = Find<ucButtonA>(TheNavigation().Frame(), QStringLiteral("cmdReport"));
    EXPECT_TRUE(button->isEnabled());
    Click(button);
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmReport"));
    EXPECT_EQ(App().WindowTitle, QStringLiteral("Report"));
}

TEST_F(ReportScreenTest, WithoutAWeightItStandsInFrontBeforeTheOneMessageComes) {
    QWidget* report = Show("frmReport");
    ASSERT_NE(report, nullptr);
    EXPECT_TRUE(report->isVisible());
    EXPECT_FALSE(MousePointer::IsBusy());
    ExpectAlert(NoWeight);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

TEST_F(ReportScreenTest, EachLoadSaysItOnceAndAHiddenScreenThatReturnsDoesNot) {
    App().AppInfo.FAST = true;
    Show("frmReport");
    ExpectAlert(NoWeight);
    QCoreApplication::sendPostedEvents();
    Show("frmDay");
    Show("frmReport");
    QCoreApplication::sendPostedEvents();
    App().AppInfo.FAST = false;
    Show("frmDay");
    Show("frmReport");
    ExpectAlert(NoWeight);
    QCoreApplication::sendPostedEvents();
}

TEST_F(ReportScreenTest, AReportThatIsLeftAtOnceSaysNothing) {
    Show("frmReport");
    Show("frmDay");
    QCoreApplication::sendPostedEvents();
}

TEST_F(ReportScreenTest, TheViewComesBackWhenTheScreenIsBroughtAgain) {
    Weigh();
    QWidget* report = Show("frmReport");
    Click(Find(report, QStringLiteral("cmdLine")));
    report = Show("frmReport"); // rebuilt while it stands in front
    EXPECT_TRUE(Find(report, QStringLiteral("ucLine"))->isVisible());
    Click(Find(report, QStringLiteral("cmdPie")));
    Show("frmDay");
    report = Show("frmReport");
    EXPECT_TRUE(Find(report, QStringLiteral("ucPie"))->isVisible());
}

TEST_F(ReportScreenTest, TheViewIsKeptAtTheEndOfTheProgram) {
    Weigh();
    Click(Find(Show("frmReport"), QStringLiteral("cmdVals")));
    TheNavigation().CloseAll();
    EXPECT_EQ(GetRegValue(QStringLiteral("REPORTSTATE")), QStringLiteral("3"));
}

TEST_F(ReportScreenTest, WithFastAReturningLineReadsThePeriodAnew) {
    App().AppInfo.FAST = true;
    Weigh();
    QWidget* report = Show("frmReport");
    Click(Find(report, QStringLiteral("cmdLine")));
    Users(QStringLiteral("INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-02', 151)"));
    Show("frmDay");
    EXPECT_EQ(Show("frmReport"), report);
    EXPECT_EQ(Find<ucLineChart>(report, QStringLiteral("ucLine"))->Points().size(), 2U);
}

TEST_F(ReportScreenTest, ATextInPlaceOfTheViewLeavesTheScreenInFront) {
    Weigh();
    SetRegValue(QStringLiteral("REPORTSTATE"), QStringLiteral("rubbish"));
    QWidget* report = Show("frmReport");
    EXPECT_TRUE(report->isVisible());
    EXPECT_TRUE(Find(report, QStringLiteral("ucBar"))->isVisible());
    Show("frmReport");
    EXPECT_TRUE(Find(TheNavigation().Front(), QStringLiteral("ucBar"))->isVisible());
    EXPECT_FALSE(MousePointer::IsBusy());
}
